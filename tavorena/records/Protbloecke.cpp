#include <cmath>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protbloecke.h>
#include <tavorena/records/TVProtokollmodul.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena {
namespace {

// A number with the decimals of the forms, and the gap that keeps the next column in its place.
std::string F(const Wert& x, int Vorkomma) { return ZahlFormat(x, Vorkomma, Optionen.OptNachkommastellen); }
std::string Lücke() { return Leerzeichen(5 - Optionen.OptNachkommastellen); }
std::string Spalte(const Wert& x) { return F(x, 7) + Lücke(); }
// A direction in gon, as wide as a column.
std::string Gonspalte(const Wert& x) { return Leerzeichen(3) + ZahlFormat(x, 3, 4) + Leerzeichen(2); }

std::string Punktzeile(const Protpunkt& P, const std::string& Mitte, const std::string& Marke) {
  return Leerzeichen(6) + Spalte(P.Rechts) + Spalte(P.Hoch) + Mitte + PnrFormat(P.Pnr) + Marke;
}

std::string Zeile(const Protpunkt& P, const Wert& v3, const Wert& v4, const std::string& Marke) {
  return Punktzeile(P, Spalte(v3) + Spalte(v4), Marke);
}

std::string Gonzeile(const Protpunkt& P, const Wert& Richtung, const Wert& v4, const std::string& Marke) {
  return Punktzeile(P, Gonspalte(Richtung) + Spalte(v4), Marke);
}

std::string Summenzeile(const Protanschluss& A) {
  return Leerzeichen(29) + "WS=" + Spalte(A.Abweichung) + "D=" + F(A.AbweichungZulaessig, 5) +
         AnschlussMarke(A.Abweichung, A.AbweichungZulaessig);
}

int Marken(const Protanschluss& A) {
  return AnschlussMarke(A.Abweichung, A.AbweichungZulaessig).empty() ? 0 : 1;
}

const char* const MarkeAnfang = "      PA";
const char* const MarkeEnde = "      PE";

}  // namespace

std::string AnschlussMarke(double Abweichung, double AbweichungZulaessig) {
  const double WS = std::fabs(Abweichung), D = std::fabs(AbweichungZulaessig);
  return WS > D ? " ******(>D)" : WS > D / 3 ? " ***(>1/3D)" : "";
}

int ProtLinelAnschluss(const Protanschluss& A) {
  return ProtBlock({Zeile(A.Anf, A.AnfWert1, A.AnfWert2, MarkeAnfang),
                    Zeile(A.End, A.EndWert1, A.EndWert2, MarkeEnde), Summenzeile(A)},
                   Marken(A));
}

int ProtLinelZeile(const Protpunkt& P, double Linie, double Seitwaerts, const Wert& LinieRed,
                   const Wert& SeitwaertsRed, const std::string& Marke) {
  std::vector<std::string> Zeilen = {Zeile(P, Linie, Seitwaerts, Marke)};
  if (LinieRed.IstGegeben()) Zeilen.push_back(Leerzeichen(32) + Spalte(LinieRed) + F(SeitwaertsRed, 7));
  return ProtBlock(Zeilen);
}

int ProtPolelAnschluss(const Protanschluss& A) {
  return ProtBlock({Gonzeile(A.Anf, A.AnfWert1, A.AnfWert2, MarkeAnfang),
                    Gonzeile(A.End, A.EndWert1, A.EndWert2, MarkeEnde), Summenzeile(A)},
                   Marken(A));
}

int ProtPolelZeile(const Protpunkt& P, double Richtung, double Entfernung, const std::string& Marke) {
  return ProtBlock({Gonzeile(P, Richtung, Entfernung, Marke)});
}

int ProtEntfernungskontrolle(const Protanschluss& A, bool Gemessen) {
  std::vector<std::string> Zeilen = {Zeile(A.Anf, {}, {}, MarkeAnfang),
                                     Zeile(A.End, A.EndWert1, A.EndWert2, MarkeEnde)};
  if (Gemessen) Zeilen.push_back(Summenzeile(A));
  return ProtBlock(Zeilen, Gemessen ? Marken(A) : 0);
}

int ProtMittel(const Mittelpunkt& M) {
  const auto Punkt = [&](double R, double H, const char* Marke) {
    return Punktzeile({R, H, M.Pnr}, Leerzeichen(26), Marke);
  };
  return ProtBlock({KopfPunkte, Punkt(M.AltRechts, M.AltHoch, ""), Punkt(M.NeuRechts, M.NeuHoch, ""),
                    Punkt(M.Rechts, M.Hoch, " ***Mittel")});
}

int Bearbeitungsnotiz(int Code, const std::string& Nummer, double DeltaRechts, double DeltaHoch) {
  const char* Text = Code == 1    ? "*** letzte Berechnung eingeführt"
                     : Code == 2  ? "*** Mittel eingeführt"
                     : Code == 3  ? "***  erste Berechnung umnumeriert"
                     : Code == 11 ? "***  erste Berechnung eingeführt"
                     : Code == 13 ? "*** letzte Berechnung umnumeriert"
                                  : nullptr;
  if (Text == nullptr) return 0;
  std::string Notiz =
      Leerzeichen(6) + FeldLinks(Text, 34) + "dRw=" + F(DeltaRechts, 5) + "  dHw=" + F(DeltaHoch, 5);
  if (Code == 3) Notiz += "  alt:" + PnrFormat(Nummer);
  if (Code == 13) Notiz += "  neu:" + PnrFormat(Nummer);
  return ProtBlock({Notiz});
}

}  // namespace tavorena
