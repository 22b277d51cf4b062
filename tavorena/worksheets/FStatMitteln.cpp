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
  if (Läuft()) {  // a third one in its place would take the first rows away
    StatusHilfeSetzen("Erst die Messungen mitteln");
    return false;
  }
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
  const std::vector<std::optional<std::size_t>> Paare = Messpaare(Erste, Zweite);
  std::vector<bool> Gemittelt(Zweite.size());
  bool Gut = true;
  for (std::size_t i = 0; i < Erste.size(); ++i) {
    if (!Paare[i]) continue;
    const std::size_t j = *Paare[i];
    const int Ergebnis = G.Ändern(i, ZeilenMitteln(Standpunkt(), {Erste[i], Zweite[j]}));
    Gemittelt[j] = Ergebnis >= 0;
    Gut = Ergebnis == 0 && Gut;
  }
  for (std::size_t j = 0; j < Zweite.size(); ++j) {  // nothing that was measured is lost
    if (!Gemittelt[j]) Gut = G.Hinzufügen(Zweite[j]) && Gut;
  }
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
  // From behind, so that the places stay; the mean stands only where the others could go, and otherwise they
  // stand there again.
  std::size_t n = Zeilen.size();
  while (n > 1 && G.Entfernen(static_cast<std::size_t>(Zeilen[n - 1]))) --n;
  if (n == 1 && G.Ändern(static_cast<std::size_t>(Zeilen[0]), ZeilenMitteln(Standpunkt(), Gruppe)) >= 0)
    return;
  for (; n < Gruppe.size(); ++n) static_cast<void>(G.Hinzufügen(Gruppe[n]));
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
  return G.Ändern(i, K) >= 0;
}

}  // namespace tavorena
