#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Flt.h>
#include <tavorena/records/Kastenseiten.h>

namespace tavorena {
namespace {

constexpr std::string_view Leer = " \t";

// In "12/3 1234,5" the comma may stand between parcel and area, or in the area.
bool Zweideutig(std::string_view Vor, std::string_view Nach) {
  const std::size_t Lücke = Vor.find_last_of(Leer);
  return Lücke != std::string_view::npos && IstZahlwort(Vor.substr(Lücke + 1)) &&
         Nach.find_first_of(Leer) != 0;
}

// @return false: it is no parcel
bool ZeileNehmen(std::string_view Zeile, Flurstück& F) {
  std::size_t Trenner = Zeile.find(';');
  const bool Strichpunkt = Trenner != std::string_view::npos;
  if (!Strichpunkt) Trenner = Zeile.find(',');
  const bool Komma = !Strichpunkt && Trenner != std::string_view::npos;
  if (Trenner == std::string_view::npos) Trenner = Zeile.find_last_of(Leer);
  if (Trenner == std::string_view::npos) return false;
  std::string_view Nach = Zeile.substr(Trenner + 1);
  if (Strichpunkt) Nach = Nach.substr(0, Nach.find(';'));
  if (Komma && Zweideutig(Zeile.substr(0, Trenner), Nach)) return false;
  Nach = TrimmenSicht(Nach);
  F.Name = TrimmenSicht(Zeile.substr(0, Trenner));
  F.Fläche = ZahlAusText(Nach);
  return !F.Name.empty() && IstZahlwort(Nach);
}

std::string Flächenzeile(const std::string& Name, double Fläche, int Nachkomma) {
  return Leerzeichen(6) + FeldLinks(Name, 30) + ZahlFormat(Fläche, 9, Nachkomma) + " m²";
}

}  // namespace

Flurstücksliste FltLesen(std::string_view Text) {
  Flurstücksliste L;
  int Nummer = 0;
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    ++Nummer;
    Zeile = TrimmenSicht(Zeile);
    if (Zeile.empty() || (Zeile == "\x1a" && Leser.AmEnde())) continue;
    if (Flurstück F; ZeileNehmen(Zeile, F)) {
      L.Stücke.push_back(std::move(F));
    } else if (++L.Übergangen == 1) {
      L.ErsteÜbergangene = Nummer;
    }
  }
  return L;
}

std::string FltSeiten(const Flurstücksliste& L, const std::string& Name, int ErsteSeite, int Nachkomma) {
  const int Breite = 10 + Nachkomma;
  const auto Kopf = [&](int Seite) {
    std::vector<std::string> Zeilen = Kastenkopf(Seite, "F l ä c h e n l i s t e", {"Name:   " + Name});
    Zeilen.push_back(Leerzeichen(6) + FeldLinks("Flurstück", 30) + RechtsBündig("Fläche", Breite));
    return Zeilen;
  };
  std::vector<std::vector<std::string>> Gruppen;
  double Summe = 0;
  for (const Flurstück& F : L.Stücke) {
    Gruppen.push_back({Flächenzeile(F.Name, F.Fläche, Nachkomma)});
    Summe += F.Fläche;
  }
  if (Gruppen.empty()) return "";
  // The sum stands below a row at least.
  Gruppen.back().push_back(Leerzeichen(36) + std::string(static_cast<std::size_t>(Breite), '-'));
  Gruppen.back().push_back(Flächenzeile("Summe", Summe, Nachkomma));
  return Kastenseiten(ErsteSeite, Kopf, Gruppen);
}

}  // namespace tavorena
