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

std::string Spalten::Summe(const Protanschluss& A) const {
  return Leerzeichen(29) + "WS=" + Spalte(A.Abweichung) + "D=" + Zahl(A.AbweichungZulaessig, 5) +
         AnschlussMarke(A);
}

std::string AnschlussMarke(const Protanschluss& A) {
  const double WS = std::fabs(A.Abweichung), D = std::fabs(A.AbweichungZulaessig);
  return WS > D ? " ******(>D)" : WS > D / 3 ? " ***(>1/3D)" : "";
}

}  // namespace tavorena
