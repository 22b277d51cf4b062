#include <array>
#include <utility>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/DreiD.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

struct Kunde {
  const char* Titel;
  int Punkte;
  bool MitNeupunkt;
  std::vector<DreiDWert> Werte;
};

const Kunde& KundeVon(DreiDArt Art) {
  static const std::array<Kunde, 6> Alle = {{
      {"3D Raumstrecke",
       2,
       false,
       {{"Raumstrecke", false},
        {"Horizontalstrecke", false},
        {"Höhenunterschied", false},
        {"Richtungswinkel", true},
        {"Zenitwinkel", true}}},
      {"3D Mitte", 2, true, {}},
      {"3D Schwerpunkt", 3, true, {}},
      {"3D Lotabstand", 3, true, {{"Lotabstand", false}}},
      {"3D Kanalmeßstab", 2, true, {{"Abstand", false}}},
      {"3D Winkel", 3, false, {{"Raumwinkel", true}, {"Horizontalwinkel", true}}},
  }};
  return Alle[static_cast<std::size_t>(Art)];
}

std::string Punktzeile(int n, const Raumpunkt& P, const std::string& Marke) {
  std::string Zeile;
  KorZeileAnhängen(Zeile, P.Pnr, P.Rechts, P.Hoch, P.Hoehe, P.Symbol, n);
  return Zeile + Marke;
}

std::vector<std::string> Wertzeilen(int n, const ProtdreiD& D, const std::string& Marke) {
  std::vector<std::string> Zeilen;
  const std::vector<DreiDWert>& Namen = DreiDWerte(D.Art);
  for (std::size_t i = 0; i < Namen.size() && i < D.Werte.size(); ++i) {
    const std::string Zahl =
        Namen[i].Gon ? ZahlFormat(D.Werte[i], 7, 4) + " gon" : ZahlFormat(D.Werte[i], 7, n) + " m";
    Zeilen.push_back(Leerzeichen(6) + FeldLinks(Namen[i].Name, 20) + "=" + Zahl + Marke);
  }
  return Zeilen;
}

Satzfolge Sätze(DreiDArt Art, DreiDEingabe& E) {
  E.Pnr.resize(static_cast<std::size_t>(KundeVon(Art).Punkte));
  std::vector<Satzfeld> Felder;
  for (std::string& Pnr : E.Pnr) Felder.push_back(satz::Pnr(Pnr));
  if (KundeVon(Art).MitNeupunkt) Felder.push_back(satz::NeuePnr(E.NeuPnr));
  if (Art == DreiDArt::Kanalmessstab) Felder.push_back(satz::Zahl(E.Abstand));
  Satzfolge F;
  F.Pflicht({"NR3D ", std::move(Felder)});
  return F;
}

}  // namespace

const char* DreiDTitel(DreiDArt Art) { return KundeVon(Art).Titel; }
int DreiDPunkte(DreiDArt Art) { return KundeVon(Art).Punkte; }
bool DreiDMitNeupunkt(DreiDArt Art) { return KundeVon(Art).MitNeupunkt; }
const std::vector<DreiDWert>& DreiDWerte(DreiDArt Art) { return KundeVon(Art).Werte; }

std::optional<DreiDArt> DreiDVon(std::string_view Titel) {
  using enum DreiDArt;
  for (const DreiDArt Art : {Raumstrecke, Mitte, Schwerpunkt, Lotabstand, Kanalmessstab, Winkel}) {
    if (Großtext(DreiDTitel(Art)) == Großtext(Titel)) return Art;
  }
  return {};
}

Block DreiDZeile(int Nachkomma, const Raumpunkt& P, const std::string& Marke) {
  return Zahlenblock(Nachkomma, {Punktzeile(Nachkomma, P, Marke)});
}

Block DreiDWertzeilen(int Nachkomma, const ProtdreiD& D, const std::string& Marke) {
  return Zahlenblock(Nachkomma, Wertzeilen(Nachkomma, D, Marke));
}

Block DreiDBlock(int Nachkomma, const ProtdreiD& D) {
  std::vector<std::string> Zeilen;
  for (const Raumpunkt& P : D.Punkte) Zeilen.push_back(Punktzeile(Nachkomma, P, ""));
  for (std::string& Zeile : Wertzeilen(Nachkomma, D, "")) Zeilen.push_back(std::move(Zeile));
  if (D.Neu) Zeilen.push_back(Punktzeile(Nachkomma, *D.Neu, ""));
  return Zahlenblock(Nachkomma, std::move(Zeilen));
}

std::vector<std::string> StapelDreiD(DreiDArt Art, DreiDEingabe E) { return Sätze(Art, E).Zeilen(); }

int StapelLeseDreiD(DreiDArt Art, DreiDEingabe& E) {
  E = {};
  return Sätze(Art, E).BlockLesen();
}

}  // namespace tavorena
