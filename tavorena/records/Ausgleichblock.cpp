#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/records/Ausgleichblock.h>

namespace tavorena {
namespace {

std::string Zeile(const Spalten& S, const Protpunkt& P, const Wert& Abstand, const char* Marke) {
  return S.Punkt(P, Leerzeichen(13) + S.Spalte(Abstand), Marke);
}

std::string Nummer(const Protpunkt& P) { return P.Pnr.empty() ? "-" : P.Pnr; }

}  // namespace

Block AusgleichBlock(int Nachkomma, const Protausgleich& A) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen;
  if (A.Kreis) {
    Zeilen = {"          Rechts         Hoch                  Abst.(m)    Pkt.Nr.  Bemerkung",
              Zeile(S, A.Erster, A.Radius, "   Mittelp."), Zeile(S, A.Zweiter, {}, "   Bogenp.")};
  } else {
    Zeilen = {"          Rechts         Hoch                  Seitw.(m)   Pkt.Nr.  Bemerkung",
              Zeile(S, A.Erster, {}, "   Neup.Start"), Zeile(S, A.Zweiter, {}, "   Neup.Ende")};
  }
  for (const Protabstand& P : A.Punkte) Zeilen.push_back(Zeile(S, P.Punkt, P.Abstand, ""));
  return Zahlenblock(Nachkomma, std::move(Zeilen));
}

std::string AusgleichKommentar(const Protausgleich& A) {
  return std::string(A.Kreis ? "Ausgleichender Kreis: " : "Ausgleichende Gerade: ") + Nummer(A.Erster) + " " +
         Nummer(A.Zweiter);
}

}  // namespace tavorena
