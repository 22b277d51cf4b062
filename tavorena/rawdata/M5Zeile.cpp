#include <algorithm>
#include <cctype>
#include <cmath>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/M5Zeile.h>

namespace tavorena {
namespace {

constexpr std::size_t Angabenbreite = 27, Kurzbreite = 7;

// The piece up to the next bar.
std::string_view Feldnehmen(std::string_view& Rest) {
  const std::size_t Strich = Rest.find('|');
  const std::string_view Feld = Rest.substr(0, Strich);
  Rest = Strich == std::string_view::npos ? std::string_view() : Rest.substr(Strich + 1);
  return Feld;
}

void Anfügen(M5Zeile& Z, M5Feld F) {
  if (Z.Anzahl < Z.Felder.size()) Z.Felder[Z.Anzahl++] = F;
}

M5Zeile MitStrichen(std::string_view Zeile) {
  M5Zeile Z;
  Z.Kurz = TextTeil(Feldnehmen(Zeile), 4, 1) == "R";
  std::string_view Kopf = Feldnehmen(Zeile);
  if (Kopf.starts_with("Adr")) Kopf = Feldnehmen(Zeile);
  if (TrimmenSicht(TextTeil(Kopf, 0, 2)).empty()) return Z;
  Z.Art = Kopf.starts_with('T') ? M5Art::Text : M5Art::Punkt;
  Z.Angaben = Z.Kurz ? TextTeil(Kopf, 3, Kurzbreite) : TextTeil(Kopf, 4, Angabenbreite);
  while (!Zeile.empty()) {
    std::string_view Feld = Feldnehmen(Zeile);
    M5Feld F{TrimmenSicht(TextTeil(Feld, 0, 2)), {}, {}};
    Feld.remove_prefix(TextTeil(Feld, 0, 2).size());
    F.Zahl = Wortnehmen(Feld);
    F.Einheit = Wortnehmen(Feld);
    if (!F.Marke.empty() && F.Marke != "$") Anfügen(Z, F);
  }
  return Z;
}

// Three blanks, an address of four digits, the 27 characters, values from column 37 on.
M5Zeile InSpalten(std::string_view Zeile) {
  M5Zeile Z;
  const std::string_view Adresse = TextTeil(Zeile, 3, 4);
  if (!IstLeerText(TextTeil(Zeile, 0, 3)) || Adresse.size() != 4 || IstLeerText(Adresse) ||
      !std::all_of(Adresse.begin(), Adresse.end(),
                   [](unsigned char c) { return c == ' ' || std::isdigit(c) != 0; }))
    return Z;
  Z.Angaben = TextTeil(Zeile, 7, Angabenbreite);
  std::string_view Rest = TextTeil(Zeile, 36);
  for (std::string_view Wort = Wortnehmen(Rest); !Wort.empty() && Wort != "$";) {
    M5Feld F{Wort, {}, {}};
    Wort = Wortnehmen(Rest);
    if (IstZahlwort(Wort)) {
      F.Zahl = Wort;
      Wort = Wortnehmen(Rest);
    }
    Anfügen(Z, F);
  }
  // Names of programs begin with the second character; a number stands in its place further on.
  const bool Programm = !IstLeerText(TextTeil(Z.Angaben, 0, 8));
  Z.Art = Programm || IstLeerText(TextTeil(Z.Angaben, 8)) ? M5Art::Text : M5Art::Punkt;
  return Z;
}

bool Grad(double Gms, double& Wert) {
  const double Betrag = std::abs(Gms), Ganze = std::floor(Betrag + 1e-9), Rest = (Betrag - Ganze) * 100;
  const double Minuten = std::floor(Rest + 1e-7), Sekunden = (Rest - Minuten) * 100;
  if (Minuten >= 60 || Sekunden >= 60 - 1e-6) return false;
  Wert = std::copysign(Ganze + Minuten / 60 + Sekunden / 3600, Gms);
  return true;
}

bool Zahl(const M5Feld& F, double& Wert) {
  if (!IstZahlwort(F.Zahl)) return false;
  Wert = ZahlAusText(F.Zahl);
  return std::isfinite(Wert);
}

}  // namespace

M5Zeile M5Zerlegen(std::string_view Zeile) {
  return Zeile.starts_with("For ") ? MitStrichen(Zeile) : InSpalten(Zeile);
}

bool M5NummerHinten(const M5Zeile& Z) {
  return Z.Art == M5Art::Punkt && !Z.Kurz && !IstLeerText(TextTeil(Z.Angaben, Angabenbreite - 1));
}

void M5Nummer(const M5Zeile& Z, bool Hinten, std::string_view& Nummer, std::string_view& Code) {
  if (Z.Kurz) {
    Code = TrimmenSicht(TextTeil(Z.Angaben, 0, 3));
    Nummer = TrimmenSicht(TextTeil(Z.Angaben, 3));
  } else if (Hinten) {
    Nummer = Code = {};
    std::string_view Rest = Z.Angaben;
    for (std::string_view Wort = Wortnehmen(Rest); !Wort.empty(); Wort = Wortnehmen(Rest)) {
      Code = Nummer;
      Nummer = Wort;
    }
  } else {
    Nummer = TrimmenSicht(TextTeil(Z.Angaben, 8, 12));
    Code = TrimmenSicht(TextTeil(Z.Angaben, 20, 5));
  }
}

bool M5Winkel(const M5Feld& F, double& Gon) {
  double Wert = 0;
  if (!Zahl(F, Wert)) return false;
  const std::string_view E = F.Einheit;
  if (E == "DMS" && !Grad(Wert, Wert)) return false;
  if (E == "DMS" || E == "DEG") {
    Gon = Wert / 0.9;
  } else if (E.empty() || E == "gon" || E == "grd") {
    Gon = Wert;
  } else {
    return false;
  }
  return true;
}

bool M5Länge(const M5Feld& F, double& Meter) {
  return (F.Einheit.empty() || F.Einheit == "m") && Zahl(F, Meter);
}

}  // namespace tavorena
