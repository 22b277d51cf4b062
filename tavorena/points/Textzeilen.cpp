#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/points/Textzeilen.h>

namespace tavorena {
namespace {

std::string Zahl(const Wert& x) { return ZahlFormat(x, -1, Optionen.OptNachkommastellen); }
std::string Zahl(double x) { return Zahl(Wert(x)); }

Textzeile Punktzeile(const Listenzeile& L, bool MitMarke) {
  const KorSatz S = KorPunkt(L.Zeile);
  const bool Doppelt = L.Index >= 0;
  return {{Doppelt && MitMarke ? "D" : "", std::string(S.Pnr), Zahl(S.Rechts), Zahl(S.Hoch),
           S.Hoehe != 0 ? Zahl(S.Hoehe) : "", Zahl(L.fs), Zahl(L.dh), std::string(S.Symbol),
           Doppelt ? std::to_string(L.Index) : "", Doppelt ? std::to_string(L.Zeile) : ""},
          L.Zeile};
}

// The told text without the margin of the page.
std::vector<Textzeile> Laufzeilen(const std::vector<Nummernlauf>& Läufe) {
  std::vector<Textzeile> Zeilen;
  for (const std::string& Text : BelegungText(Läufe).Zeilen) Zeilen.push_back({{Text.substr(6)}});
  return Zeilen;
}

Listentext TextVon(const Textliste& Liste) {
  const int n = Optionen.OptNachkommastellen;
  if (Liste.Auftrag.Art == Textart::Belegung) return BelegungText(Liste.Läufe);
  if (Liste.Auftrag.Art == Textart::Koordinaten) return KoordinatenlisteText(n);
  return PunktlisteText(Liste.Punkte, n);
}

const char* Drucktitel(Textart Art) {
  constexpr const char* Titel[] = {"      Koordinaten", "      Doppelte Punkte",
                                   "      Mit doppelten Punkten", "      Quasiidentische Punkte",
                                   "      Punktnummernbelegung"};
  return Titel[static_cast<std::size_t>(Art)];
}

}  // namespace

Textliste TextlisteBilden(const Textauftrag& A) {
  switch (A.Art) {
    case Textart::Doppelte:
      return {A, DoppelteListe(), {}};
    case Textart::Quasi:
      return {A, QuasiListe(A.fs, A.MitEinzelpunkten), {}};
    case Textart::Belegung:
      return {A, {}, Punktnummernbelegung(A.Von, A.Bis)};
    case Textart::Koordinaten:
    case Textart::MitDoppelten:
      break;
  }
  return {A, AlleListe(), {}};
}

const char* Texttitel(Textart Art) {
  constexpr const char* Titel[] = {"Ansicht Koordinaten", "Ansicht doppelter Punkte",
                                   "Ansicht mit doppelten Punkten", "Ansicht quasiidentischer Punkte",
                                   "Ansicht Punktnummernbelegung"};
  return Titel[static_cast<std::size_t>(Art)];
}

std::vector<Gitterspalte> Textspalten(Textart Art) {
  if (Art == Textart::Belegung) return {{"Punktnummern", 44, false, false}};
  const bool ZurMitte = Art == Textart::Quasi;
  std::vector<Gitterspalte> Spalten = {{"M.", 3, false, false},
                                       {"Punktnr.", PnrZeichen + 1},
                                       {"Rechtswert", 13},
                                       {"Hochwert", 13},
                                       {"Höhe", 10},
                                       {ZurMitte ? "fs (S)" : "fs", 8},
                                       {ZurMitte ? "dh (S)" : "dh", 8},
                                       {"Symbol", 8},
                                       {"Index", 7},
                                       {"P(i)", 7}};
  for (std::size_t s = SpalteIndex; s < Spalten.size(); ++s) Spalten[s].Sichtbar = false;
  return Spalten;
}

std::vector<Textzeile> Textzeilen(const Textliste& Liste, bool MitWarnung) {
  if (Liste.Auftrag.Art == Textart::Belegung) return Laufzeilen(Liste.Läufe);
  const std::size_t Breite = Textspalten(Liste.Auftrag.Art).size();
  std::vector<Textzeile> Zeilen;
  Zeilen.reserve(Liste.Punkte.size());
  for (const Listenzeile& L : Liste.Punkte) {
    if (L.Zeile < 0) {
      Zeilen.push_back({std::vector<std::string>(Breite)});
      continue;
    }
    Zeilen.push_back(Punktzeile(L, Liste.Auftrag.Art == Textart::MitDoppelten));
    const char* const Marke = MitWarnung ? Abstandsmarke(L.fs.Zahl()) : "";
    if (*Marke == '\0') continue;
    Textzeile& Warnung = Zeilen.emplace_back(Textzeile{std::vector<std::string>(Breite), L.Zeile, true});
    Warnung.Zellen[SpaltePnr] = Marke;
  }
  return Zeilen;
}

std::string Textseiten(const Textliste& Liste) {
  const Textauftrag& A = Liste.Auftrag;
  const bool IstQuasi = A.Art == Textart::Quasi;
  return Listenseiten({Drucktitel(A.Art), IstQuasi ? QuasiZusatz(A.fs, Optionen.OptNachkommastellen) : "",
                       KoordinatendateiName},
                      TextVon(Liste));
}

}  // namespace tavorena
