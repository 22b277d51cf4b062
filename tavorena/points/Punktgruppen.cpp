#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <unordered_map>
#include <utility>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktraster.h>

namespace tavorena {
namespace {

std::size_t Stelle(int i) { return static_cast<std::size_t>(i); }

// The rows of a number, beginning with its first one.
using Nummernzeilen = std::unordered_map<std::string_view, std::vector<int>>;

Nummernzeilen ZeilenJeNummer() {
  Nummernzeilen Zeilen;
  Zeilen.reserve(Stelle(KorAnzahl));
  for (int z = 0; z < KorAnzahl; ++z) Zeilen[TrimmenSicht(KorPnr(z))].push_back(z);
  return Zeilen;
}

}  // namespace

void DoppeltePunkteSuchen(std::vector<int>& Index, int& Anzahl) {
  Index.clear();
  if (DoppelteVorhanden()) {
    for (const auto& [Nummer, Zeilen] : ZeilenJeNummer()) {
      if (Zeilen.size() > 1) Index.insert(Index.end(), Zeilen.begin(), Zeilen.end());
    }
    std::sort(Index.begin(), Index.end());
  }
  Anzahl = static_cast<int>(Index.size());
}

std::vector<std::vector<int>> Doppelgruppen() {
  std::vector<std::vector<int>> Gruppen;
  if (!DoppelteVorhanden()) return Gruppen;
  for (auto& [Nummer, Zeilen] : ZeilenJeNummer()) {
    if (Zeilen.size() > 1) Gruppen.push_back(std::move(Zeilen));
  }
  std::sort(Gruppen.begin(), Gruppen.end());
  return Gruppen;
}

Punktgruppe GruppeMitMitte(std::vector<int> Zeilen) {
  Punktgruppe G{std::move(Zeilen)};
  static std::vector<double> R, H, Z;  // kept between calls: there may be a group for each point
  for (auto* Spalte : {&R, &H, &Z}) Spalte->clear();
  for (const int z : G.Zeilen) {
    R.push_back(KorRechts[Stelle(z)]);
    H.push_back(KorHoch[Stelle(z)]);
    Z.push_back(KorHoehe[Stelle(z)]);
  }
  const auto n = static_cast<int>(G.Zeilen.size());
  if (Schwerpunkt(R, H, n, G.Rechts, G.Hoch) < 0 || MittelOhneNull(Z, n, G.Hoehe) < 0) return {};
  return G;
}

std::vector<Punktgruppe> QuasiidentischePunkte(double Radius, bool MitEinzelpunkten) {
  std::vector<Punktgruppe> Gruppen;
  if (!(Radius >= 0)) return Gruppen;
  const auto Zeilen = Stelle(KorAnzahl);
  const Punktraster Raster(Suchweite(Radius), {KorRechts.data(), Zeilen}, {KorHoch.data(), Zeilen});
  std::vector<bool> Vergeben(Zeilen);
  for (int i = 0; i < KorAnzahl; ++i) {
    const double R = KorRechts[Stelle(i)], H = KorHoch[Stelle(i)];
    if (Vergeben[Stelle(i)] || !std::isfinite(R) || !std::isfinite(H)) continue;
    std::vector<int> Nahe;
    Raster.Umkreis(R, H, [&](int j) {
      if (PunktIstNah(R, H, KorRechts[Stelle(j)], KorHoch[Stelle(j)], Radius) != 0) Nahe.push_back(j);
      return true;
    });
    if (Nahe.size() < (MitEinzelpunkten ? 1 : 2)) continue;
    std::sort(Nahe.begin(), Nahe.end());
    for (const int j : Nahe) Vergeben[Stelle(j)] = true;
    Gruppen.push_back(GruppeMitMitte(std::move(Nahe)));
  }
  return Gruppen;
}

bool GanzePunktnummer(std::string_view Pnr, std::int64_t& Zahl) {
  const std::string_view Ziffern = TrimmenSicht(Pnr);
  if (Ziffern.empty() || Ziffern.size() > 18 || Ziffern.find_first_not_of("0123456789") != Ziffern.npos)
    return false;
  if (Ziffern.front() == '0' && Ziffern.size() > 1) return false;
  std::from_chars(Ziffern.data(), Ziffern.data() + Ziffern.size(), Zahl);
  return true;
}

std::vector<Nummernlauf> Punktnummernbelegung(std::int64_t Von, std::int64_t Bis) {
  if (Von > Bis) std::swap(Von, Bis);
  std::vector<std::int64_t> Belegt;
  for (int z = 0; z < KorAnzahl; ++z) {
    std::int64_t Zahl = 0;
    if (GanzePunktnummer(KorPnr(z), Zahl) && Zahl >= Von && Zahl <= Bis) Belegt.push_back(Zahl);
  }
  std::sort(Belegt.begin(), Belegt.end());
  Belegt.erase(std::unique(Belegt.begin(), Belegt.end()), Belegt.end());
  std::vector<Nummernlauf> Läufe;
  std::int64_t Nächste = Von;  // the first number that no run holds yet
  for (const std::int64_t Zahl : Belegt) {
    if (Zahl > Nächste) Läufe.push_back({Nächste, Zahl - 1, false});
    if (Läufe.empty() || !Läufe.back().Belegt) Läufe.push_back({Zahl, Zahl, true});
    Läufe.back().Bis = Zahl;
    Nächste = Zahl + 1;
  }
  if (Nächste <= Bis) Läufe.push_back({Nächste, Bis, false});
  return Läufe;
}

}  // namespace tavorena
