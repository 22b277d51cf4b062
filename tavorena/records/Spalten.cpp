#include <cmath>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Spalten.h>

namespace tavorena {

std::string Spalten::Zahl(const Wert& x, int Vorkomma) const { return ZahlFormat(x, Vorkomma, n); }

std::string Spalten::Spalte(const Wert& x) const { return Zahl(x, 7) + Leerzeichen(5 - n); }

std::string Spalten::Gonspalte(const Wert& x) {
  return Leerzeichen(3) + ZahlFormat(x, 3, 4) + Leerzeichen(2);
}

std::string Spalten::Punkt(const Protpunkt& P, const std::string& Mitte, const std::string& Marke) const {
  return Leerzeichen(6) + Spalte(P.Rechts) + Spalte(P.Hoch) + Mitte + PnrFormat(P.Pnr) + Marke;
}

std::string Spalten::Punkt(const Protpunkt& P, const Wert& v3, const Wert& v4,
                           const std::string& Marke) const {
  return Punkt(P, Spalte(v3) + Spalte(v4), Marke);
}

std::string Spalten::Gonpunkt(const Protpunkt& P, const Wert& Richtung, const Wert& v4,
                              const std::string& Marke) const {
  return Punkt(P, Gonspalte(Richtung) + Spalte(v4), Marke);
}

// No row has both: with 5 decimals the length takes the first blank of the angle.
std::string Spalten::Lange(const Wert& Meter, const Wert& Gon) const {
  if (Gon.IstGegeben()) return Leerzeichen(12) + ZahlFormat(Gon, 3, 4) + Leerzeichen(6);
  return FeldLinks(Zahl(Meter, 7), 26);
}

std::string Spalten::Richtung(const Protpunkt& P, const Wert& Gon, const std::string& Marke) const {
  return Punkt(P, Leerzeichen(14) + ZahlFormat(Gon, 3, 4) + Leerzeichen(4), Marke);
}

std::string Spalten::Summe(const Protanschluss& A) const {
  return Leerzeichen(29) + "WS=" + Spalte(A.Abweichung) + "D=" + Zahl(A.AbweichungZulaessig, 5) +
         AnschlussMarke(A);
}

Warnung Grenzwarnung(double x, double Grenze, int Warnstufe) {
  const double Betrag = std::fabs(x);
  if (Betrag > std::fabs(Grenze)) return Warnung::Voll;
  return Warnstufe > 1 && Betrag > std::fabs(Grenze) / 3 ? Warnung::Früh : Warnung::Keine;
}

std::string Sterne(Warnung W) { return W == Warnung::Voll ? "******" : W == Warnung::Früh ? "***" : ""; }

std::string AnschlussMarke(const Protanschluss& A) {
  const Warnung W = Grenzwarnung(A.Abweichung, A.AbweichungZulaessig, 2);  // whatever the level
  if (W == Warnung::Keine) return "";
  return " " + Sterne(W) + (W == Warnung::Voll ? "(>D)" : "(>1/3D)");
}

}  // namespace tavorena
