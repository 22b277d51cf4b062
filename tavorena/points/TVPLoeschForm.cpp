#include <algorithm>
#include <string>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/TVPLoeschForm.h>
#include <tavorena/points/TVPSelectForm.h>

namespace tavorena {
namespace {

constexpr const char *RahmenPunkt = "Punkte auswählen", *RahmenListe = "Zu löschende Punkte";

void GeändertMelden(std::size_t Anzahl) {
  StatusHilfeSetzen(Anzahltext(static_cast<int>(Anzahl), "Punkt der Liste wurde", "Punkte der Liste wurden") +
                    " inzwischen geändert oder gelöscht");
}

}  // namespace

TVPLoeschForm::TVPLoeschForm()
    : Punktform("TVPLoeschForm"),
      LoeschPnr((BeschriftungAnlegen("Punktnr.", {0, 0}, RahmenPunkt),
                 NummernfeldAnlegen("LoeschPnr", {0, 1}, RahmenPunkt))),
      LoeschPnrvon((BeschriftungAnlegen("Von Punktnr.", {1, 0}, RahmenPunkt),
                    NummernfeldAnlegen("LoeschPnrvon", {1, 1}, RahmenPunkt))),
      LoeschPnrbis((BeschriftungAnlegen("Bis Punktnr.", {1, 2}, RahmenPunkt),
                    NummernfeldAnlegen("LoeschPnrbis", {1, 3}, RahmenPunkt))),
      Liste((KnöpfeAnlegen(), GitterAnlegen("LoeschGitter", Punktwahlspalten(), {0, 0}, RahmenListe))),
      Stand(BeschriftungAnlegen("", {1, 0}, RahmenListe)) {
  Titel = "Tavorena Koordinatenverwaltung (VR 25.08)";
  Hilfenummer = 4060;
  LoeschPnr.Hilfe = "Punktnummer; ein Klick in der Grafik nimmt den Punkt auf";
  LoeschPnr.BeiReturn = [this] { NummerHinzu(); };
  LoeschPnrbis.BeiReturn = [this] { BereichHinzu(); };
  Liste.Markenspalte = 0;
  Liste.NurLesen = true;
  Liste.Hilfe = "Leertaste, Return und Klick wählen: nur Punkte mit \"*\" werden gelöscht";
  Liste.BeiMarke = [this] { StandZeigen(); };
  LoeschPunkte = &KnopfAnlegen("LoeschPunkte", "&Löschen", [this] { Löschen(); });
  KnopfAnlegen("LoeschLeeren", "Liste &verwerfen",
               [this] {
                 Punkte.Leeren();
                 Zeigen({});
                 FokusSetzen(LoeschPnr);
               },
               {0, 1});
  RückgängigAnlegen("LoeschRückgängig", {0, 2});
  KnopfAnlegen("LoeschEnd", "&Schließen", [this] { SchließenVerlangen(); }, {0, 3}).OhnePrüfung = true;
  StandZeigen();
}

// What adds to the list stands before it.
void TVPLoeschForm::KnöpfeAnlegen() {
  KnopfAnlegen(
      "LoeschHinzu", "&Hinzu", [this] { NummerHinzu(); }, {0, 4}, RahmenPunkt);
  KnopfAnlegen(
      "LoeschBereichHinzu", "Bereich hin&zu", [this] { BereichHinzu(); }, {1, 4}, RahmenPunkt);
  KnopfAnlegen(
      "LoeschSelektion", "&Punktselektion ...", [this] { SelektionHinzu(); }, {0, 5}, RahmenPunkt);
}

Feld& TVPLoeschForm::NummernfeldAnlegen(const char* Name, Platz Ort, const char* Rahmen) {
  Feld& F = ZahlenfeldAnlegen(Name, Ort, Rahmen, PnrZeichen);
  F.IstPnr = true;
  return F;
}

// All rows of the number. The field waits for the next one; Return in the empty one leads on.
void TVPLoeschForm::NummerHinzu() {
  const std::string Pnr = Trimmen(*LoeschPnr.Text);
  std::vector<int> Zeilen;
  FokusSetzen(LoeschPnr);
  if (Pnr.empty()) return LoeschPunkte->Aktiv ? FokusSetzen(*LoeschPunkte) : NummerFehlt(LoeschPnr);
  if (NummerZeilen(Pnr, Zeilen) < 0) return;
  Hinzu(Zeilen);
  LoeschPnr.Text = "";
}

void TVPLoeschForm::BereichHinzu() {
  for (Feld* F : {&LoeschPnrvon, &LoeschPnrbis}) {
    if (Trimmen(*F->Text).empty()) return NummerFehlt(*F);
  }
  FokusSetzen(LoeschPnrvon);
  std::vector<int> Zeilen;
  if (BereichZeilen(Trimmen(*LoeschPnrvon.Text), Trimmen(*LoeschPnrbis.Text), Zeilen) < 0) return;
  Hinzu(Zeilen);
  LoeschPnrvon.Text = LoeschPnrbis.Text = "";
}

void TVPLoeschForm::SelektionHinzu() {
  std::vector<int> Zeilen;
  if (TabellenpunkteAuswählen(Zeilen) == 0) Hinzu(Zeilen);
}

// What comes new is chosen.
void TVPLoeschForm::Hinzu(const std::vector<int>& Zeilen) {
  if (const auto Weg = ListeNachsehen(); !Weg.empty()) GeändertMelden(Weg.size());
  std::vector<bool> Marken;
  for (int i = 0; i < Liste.Zeilen(); ++i) Marken.push_back(Liste.Markiert(i));
  Punkte.Hinzu(Zeilen);
  Marken.resize(Punkte.Punkte().size(), true);
  Zeigen(Marken);
}

// Points that are no longer there as they were leave the list; the others keep their marks.
std::vector<std::size_t> TVPLoeschForm::ListeNachsehen() {
  const std::vector<std::size_t> Weg = Punkte.Nachsehen();
  if (Weg.empty()) return Weg;
  std::vector<bool> Marken;
  for (int i = 0; i < Liste.Zeilen(); ++i) {
    if (!std::binary_search(Weg.begin(), Weg.end(), static_cast<std::size_t>(i)))
      Marken.push_back(Liste.Markiert(i));
  }
  Zeigen(Marken);
  return Weg;
}

void TVPLoeschForm::Zeigen(const std::vector<bool>& Marken) {
  Liste.Leeren(static_cast<int>(Punkte.Punkte().size()));
  for (int i = 0; i < Liste.Zeilen(); ++i) {
    const Punktsatz& P = Punkte.Punkte()[static_cast<std::size_t>(i)].Satz;
    Liste.InhaltSetzen(i, 1, P.Pnr);
    Liste.InhaltSetzen(i, 2, Koordinatentext(P.Rechts));
    Liste.InhaltSetzen(i, 3, Koordinatentext(P.Hoch));
    Liste.InhaltSetzen(i, 4, Hoehentext(P.Hoehe));
    Liste.InhaltSetzen(i, 5, P.Symbol);
    Liste.MarkeSetzen(i, Marken[static_cast<std::size_t>(i)]);
  }
  Liste.Zeile = std::max(Liste.Zeilen() - 1, 0);
  StandZeigen();
}

void TVPLoeschForm::StandZeigen() {
  const std::size_t Anzahl = Liste.Markierte().size();
  Stand.Text = std::to_string(Anzahl) + " von " + Anzahltext(Liste.Zeilen(), "Punkt", "Punkten") + " gewählt";
  LoeschPunkte->Aktiv = Anzahl > 0;
}

std::vector<int> TVPLoeschForm::Gewählte() const {
  std::vector<int> Zeilen;
  for (const int i : Liste.Markierte()) Zeilen.push_back(Punkte.Punkte()[static_cast<std::size_t>(i)].Zeile);
  std::sort(Zeilen.begin(), Zeilen.end());
  return Zeilen;
}

void TVPLoeschForm::Löschen() {
  if (!DarfÄndern()) return;
  if (const auto Weg = ListeNachsehen(); !Weg.empty()) return GeändertMelden(Weg.size());
  const std::vector<int> Zeilen = Gewählte();
  if (Zeilen.empty()) return;
  const std::string Frage = (Zeilen.size() == 1 ? "Punkt " : "Punkte ") + Nummernliste(Zeilen) + " löschen ?";
  if (FrageJaNein(Frage, Titel) != KnopfJa) return;
  if (Getan(PunkteLöschen(R, Zeilen)) < 0) return;
  StatusHilfeSetzen(Anzahltext(static_cast<int>(Zeilen.size()), "Punkt", "Punkte") + " gelöscht");
  FokusSetzen(LoeschPnr);
}

void TVPLoeschForm::NachTat() { static_cast<void>(ListeNachsehen()); }

void TVPLoeschForm::BeiTabelle() {
  if (const auto Weg = ListeNachsehen(); !Weg.empty()) GeändertMelden(Weg.size());
}

bool TVPLoeschForm::OffenesKlären() {
  const auto Anzahl = static_cast<int>(Liste.Markierte().size());
  return Anzahl == 0 || FrageJaNein(Anzahltext(Anzahl, "gewählter Punkt ist", "gewählte Punkte sind") +
                                        " nicht gelöscht. Liste verwerfen ?",
                                    Titel, KnopfNein) == KnopfJa;
}

}  // namespace tavorena
