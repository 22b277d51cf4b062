#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/worksheets/FStatMitteln.h>
#include <tavorena/worksheets/TVFStatForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

FStatMitteln::FStatMitteln(TVFStatForm& Für)
    : KnopfMitteln(Für.KnopfAnlegen("FStatMitteln", "Messungen mitteln", [this] { Drücken(); }, {1, 2})),
      Form(Für) {
  KnopfMitteln.Hilfe =
      "Mehrfach gemessene Punkte zu einer Zeile mitteln, oder alle Punkte ein zweites Mal messen";
}

Messstandpunkt FStatMitteln::Standpunkt() const { return {Form.Ergebnis(), Form.Instrumentenhöhe().Zahl()}; }

bool FStatMitteln::Läuft() const { return Form.Kleinpunkte().HatBeiseite(); }

void FStatMitteln::Drücken() {
  if (Läuft()) {
    Mitteln();
    return;
  }
  Kleinpunktgitter& G = Form.Kleinpunkte();
  if (!G.Lesen()) return Form.FokusSetzen(G.Zellen);
  const std::vector<Punktsatz> Alle = Messpunkte();
  if (Alle.empty()) {
    StatusHilfeSetzen("Noch keine Messung");
  } else if (!Mehrfachmessungen(Alle).empty()) {
    TVMMittForm(*this).Zeigen();
  } else if (FStatDoppelteMessung({})) {
    StatusHilfeSetzen("Zweite Messung eingeben, dann \"Messungen mitteln\"");
  }
  Form.FokusSetzen(G.Zellen);
}

bool FStatMitteln::FStatDoppelteMessung(const std::vector<Kleinpunkteingabe>& Neue) {
  Kleinpunktgitter& G = Form.Kleinpunkte();
  if (!G.Lesen()) return false;
  if (G.Zeilen().size() > MessmittelGrenze || Neue.size() > MessmittelGrenze) {
    Hinweis("Zu viele Messungen !");
    return false;
  }
  G.BeiseiteLegen(Neue);
  G.AllesRechnen();
  Form.ZustandZeigen();
  return true;
}

bool FStatMitteln::Mitteln() {
  Kleinpunktgitter& G = Form.Kleinpunkte();
  if (!G.Lesen()) return false;
  const std::vector<Kleinpunkteingabe> Zweite = G.Zurückholen(), Erste = G.Zeilen();
  const std::vector<Kleinpunkteingabe> Alle = MessungenMitteln(Standpunkt(), Erste, Zweite);
  bool Gut = true;
  for (std::size_t i = 0; i < Alle.size(); ++i)
    Gut = (i < Erste.size() ? G.Ändern(i, Alle[i]) : G.Hinzufügen(Alle[i])) && Gut;
  Form.ZustandZeigen();
  return Gut;
}

std::vector<Punktsatz> FStatMitteln::Messpunkte() const {
  return Messpunktsätze(Standpunkt(), Form.Kleinpunkte().Zeilen());
}

void FStatMitteln::MesspunkteMitteln(const std::vector<int>& Zeilen) {
  Kleinpunktgitter& G = Form.Kleinpunkte();
  const std::vector<Kleinpunkteingabe> Alle = G.Zeilen();
  std::vector<Kleinpunkteingabe> Gruppe;
  for (const int z : Zeilen) Gruppe.push_back(Alle[static_cast<std::size_t>(z)]);
  // From behind, so that the places stay; the mean stands only where the others could go.
  for (auto z = Zeilen.rbegin(); z + 1 != Zeilen.rend(); ++z) {
    if (!G.Entfernen(static_cast<std::size_t>(*z))) return;
  }
  static_cast<void>(G.Ändern(static_cast<std::size_t>(Zeilen.front()), ZeilenMitteln(Standpunkt(), Gruppe)));
}

void FStatMitteln::MesspunktLöschen(int Zeile) {
  static_cast<void>(Form.Kleinpunkte().Entfernen(static_cast<std::size_t>(Zeile)));
}

bool FStatMitteln::MesspunktUmnummern(int Zeile, const std::string& Pnr) {
  if (Pnr.empty() || !WortPrüfen(Pnr)) return false;
  Kleinpunktgitter& G = Form.Kleinpunkte();
  const auto i = static_cast<std::size_t>(Zeile);
  Kleinpunkteingabe K = G.Zeilen()[i];
  K.Pnr = Pnr;
  return G.Ändern(i, K);
}

}  // namespace tavorena
