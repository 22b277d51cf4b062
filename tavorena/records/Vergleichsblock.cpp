#include <memory>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Spalten.h>
#include <tavorena/records/Vergleichsblock.h>

namespace tavorena {
namespace {

// The numbers of a line; what is missing stays blank.
struct Zeilenwerte {
  Wert Rechts, Hoch, Hoehe, fs;
};

std::string Zeile(int n, const Zeilenwerte& W, const Wert& Pnr, const std::string& Text) {
  const Spalten S(n);
  return Leerzeichen(6) + S.Spalte(W.Rechts) + S.Spalte(W.Hoch) + Leerzeichen(1) + S.Zahl(W.Hoehe, 5) +
         Leerzeichen(6 - n) + S.Zahl(W.fs, 4) + Leerzeichen(8 - n) + PnrFormat(Pnr) + " " + Text;
}

Wert Höhenwert(double Hoehe) { return Hoehe != 0 ? Wert(Hoehe) : Wert(); }

Zeilenwerte WerteVon(const Vergleichspunkt& P, bool NurHoehen) {
  if (NurHoehen) return {{}, {}, Höhenwert(P.Hoehe), {}};
  return {P.Rechts, P.Hoch, Höhenwert(P.Hoehe), {}};
}

Zeilenwerte Differenz(const Vergleichspaar& P, bool NurHoehen) {
  const Vergleichspunkt &S = P.Soll, &I = P.Ist;
  Zeilenwerte W;
  if (S.Hoehe != 0 && I.Hoehe != 0) W.Hoehe = S.Hoehe - I.Hoehe;
  if (NurHoehen) return W;
  W.Rechts = S.Rechts - I.Rechts;
  W.Hoch = S.Hoch - I.Hoch;
  W.fs = AchtStellen(Strecke(I.Rechts, I.Hoch, S.Rechts, S.Hoch));
  return W;
}

}  // namespace

std::string Vergleichszeile(int Nachkomma, const Vergleichspunkt& P, const std::string& Text) {
  return Zeile(Nachkomma, WerteVon(P, false), P.Pnr, Text);
}

std::string Differenzzeile(int Nachkomma, const Vergleichspaar& P) {
  return Zeile(Nachkomma, Differenz(P, false), NullWert{}, "Soll-Ist");
}

Block Vergleichsblock(int Nachkomma, const std::vector<Vergleichspaar>& Paare, bool NurHoehen) {
  std::vector<std::string> Zeilen;
  for (const Vergleichspaar& P : Paare) {
    Zeilen.push_back(Zeile(Nachkomma, WerteVon(P.Soll, NurHoehen), P.Soll.Pnr, "Soll"));
    Zeilen.push_back(Zeile(Nachkomma, WerteVon(P.Ist, NurHoehen), P.Ist.Pnr, "Ist"));
    Zeilen.push_back(Zeile(Nachkomma, Differenz(P, NurHoehen), NullWert{}, "Soll-Ist"));
  }
  return Zahlenblock(Nachkomma, std::move(Zeilen));
}

int VergleichEintragen(const std::string& Titel, const std::string& SollDatei,
                       const std::vector<Vergleichspaar>& Paare) {
  Verbindung V;
  V.Titel = Titel;
  V.Riß = LetzterPlan;
  V.SollDatei = SollDatei;
  return Schreiben(Prot, std::make_shared<const Verbindung>(std::move(V)),
                   Vergleichsblock(Optionen.OptNachkommastellen, Paare, Titel.starts_with("Höhenübe")));
}

}  // namespace tavorena
