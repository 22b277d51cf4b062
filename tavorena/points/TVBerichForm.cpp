#include <algorithm>
#include <vector>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/TVBerichForm.h>
#include <tavorena/points/TVPSelectForm.h>

namespace tavorena {
namespace {

constexpr const char *RahmenPunkt = "Einzelner Punkt", *RahmenMehrere = "Punktbereich oder Punktselektion";

}  // namespace

TVBerichForm::TVBerichForm()
    : Punktform("TVBerichForm"),
      Alt((PunktzeileKopf(*this, {0, 1}, RahmenPunkt),
           BeschriftungAnlegen("Alte Punktnr.", {1, 0}, RahmenPunkt), *this),
          "BerichAlt", "", {1, 1}, RahmenPunkt),
      AltAnzahl(BeschriftungAnlegen("", {2, 2, 3}, RahmenPunkt)),
      BerichNeuPnr((BeschriftungAnlegen("Neue Punktnr.", {2, 0}, RahmenPunkt),
                    ZahlenfeldAnlegen("BerichNeuPnr", {2, 1}, RahmenPunkt, PnrZeichen))),
      BerichPnrvon((KnopfAnlegen(
                        "BerichPunkt", "&Umnumerieren", [this] { PunktBerichtigen(); }, {2, 5}, RahmenPunkt),
                    BeschriftungAnlegen("Von Punktnr.", {0, 0}, RahmenMehrere),
                    NummernfeldAnlegen("BerichPnrvon", {0, 1}))),
      BerichPnrbis((BeschriftungAnlegen("Bis Punktnr.", {0, 2}, RahmenMehrere),
                    NummernfeldAnlegen("BerichPnrbis", {0, 3}))),
      BerichStartPnr((BeschriftungAnlegen("Neu ab Punktnr.", {1, 0}, RahmenMehrere),
                      NummernfeldAnlegen("BerichStartPnr", {1, 1}))),
      SelektionStand(BeschriftungAnlegen("", {1, 2, 2}, RahmenMehrere)) {
  Titel = "Tavorena Koordinatenverwaltung (VR 25.07)";
  Hilfenummer = 4030;
  Alt.Pnr.BeiVerlassen = [this] { return AltLesen(); };
  BerichNeuPnr.IstPnr = true;
  BerichNeuPnr.BeiVerlassen = [this] { return NeuLesen(); };
  BerichNeuPnr.BeiReturn = [this] { PunktBerichtigen(); };
  BerichStartPnr.BeiReturn = [this] { MehrereBerichtigen(); };
  for (Feld* F : {&BerichPnrvon, &BerichPnrbis}) {
    F->BeiText = [this] {
      Selektion.Leeren();
      SelektionZeigen();
    };
  }
  KnopfAnlegen(
      "BerichSelektion", "&Punktselektion ...", [this] { SelektionWählen(); }, {0, 4}, RahmenMehrere);
  KnopfAnlegen(
      "BerichMehrere", "U&mnumerieren", [this] { MehrereBerichtigen(); }, {1, 4}, RahmenMehrere);
  RückgängigAnlegen("BerichRückgängig", {0, 0});
  KnopfAnlegen("BerichEnd", "&Schließen", [this] { SchließenVerlangen(); }, {0, 1}).OhnePrüfung = true;
}

Feld& TVBerichForm::NummernfeldAnlegen(const char* Name, Platz Ort) {
  Feld& F = ZahlenfeldAnlegen(Name, Ort, RahmenMehrere, PnrZeichen);
  F.IstPnr = true;
  return F;
}

bool TVBerichForm::AltLesen() {
  Alt.Pnr.Text = Trimmen(*Alt.Pnr.Text);
  std::vector<int> Zeilen;
  const bool Gut = Alt.Pnr.Text->empty() || NummerZeilen(Alt.Pnr.Text, Zeilen) == 0;
  AltZeigen();
  return Gut;
}

bool TVBerichForm::NeuLesen() const {
  BerichNeuPnr.Text = Trimmen(*BerichNeuPnr.Text);
  return BerichNeuPnr.Text->empty() || NeueNummerFrei(BerichNeuPnr.Text);
}

// The first point of the number, and how many there are.
void TVBerichForm::AltZeigen() {
  const std::string Getippt = Alt.Pnr.Text;
  Wert Pnr(Getippt);
  const int Zeile = Getippt.empty() ? -1 : KorSucheMitPunkt(Pnr);
  int Anzahl = 0;
  for (int z = std::max(Zeile, 0); Zeile >= 0 && z < KorAnzahl; ++z) {
    if (TrimmenSicht(KorPnr(z)) == TrimmenSicht(Pnr.Text())) ++Anzahl;
  }
  Alt.Leeren();
  if (Zeile >= 0) Alt.Zeigen(PunktsatzVon(Zeile));
  if (Zeile < 0) Alt.Pnr.Text = Getippt;
  AltAnzahl.Text = Anzahl > 1 ? std::to_string(Anzahl) + " Punkte dieser Nummer" : "";
}

void TVBerichForm::PunktBerichtigen() {
  for (Feld* F : {&Alt.Pnr, &BerichNeuPnr}) {
    if (!Lesen(*F)) return FokusSetzen(*F);
    if (F->Text->empty()) return NummerFehlt(*F);
  }
  const std::string Alte = Alt.Pnr.Text, Neue = BerichNeuPnr.Text;
  if (!DarfÄndern() || Getan(NummerBerichtigen(R, Alte, Neue)) < 0) return FokusSetzen(BerichNeuPnr);
  Alt.Leeren();
  AltAnzahl.Text = BerichNeuPnr.Text = "";
  StatusHilfeSetzen("Punkt " + Zitat(Alte) + " hat jetzt die Nummer " + Zitat(Neue));
  FokusSetzen(Alt.Pnr);
}

void TVBerichForm::SelektionWählen() {
  std::vector<int> Zeilen;
  if (TabellenpunkteAuswählen(Zeilen) < 0) return;
  BerichPnrvon.Text = BerichPnrbis.Text = "";
  Selektion.Leeren();
  Selektion.Hinzu(Zeilen);
  SelektionZeigen();
  FokusSetzen(BerichStartPnr);
}

void TVBerichForm::SelektionZeigen() {
  const auto Anzahl = static_cast<int>(Selektion.Punkte().size());
  SelektionStand.Text = Anzahl > 0 ? Anzahltext(Anzahl, "Punkt", "Punkte") + " gewählt" : "";
}

void TVBerichForm::MehrereBerichtigen() {
  if (!DarfÄndern()) return;
  BeiTabelle();
  const bool Gewählt = !Selektion.Punkte().empty();
  for (Feld* F : {&BerichPnrvon, &BerichPnrbis, &BerichStartPnr}) {
    F->Text = Trimmen(*F->Text);
    if (F->Text->empty() && (!Gewählt || F == &BerichStartPnr)) return NummerFehlt(*F);
  }
  std::vector<int> Zeilen;
  for (const Punktsammlung::Punkt& P : Selektion.Punkte()) Zeilen.push_back(P.Zeile);
  std::sort(Zeilen.begin(), Zeilen.end());
  if (!Gewählt && BereichZeilen(BerichPnrvon.Text, BerichPnrbis.Text, Zeilen) < 0)
    return FokusSetzen(BerichPnrvon);
  const auto Anzahl = static_cast<int>(Zeilen.size());
  if (Getan(ReiheBerichtigen(R, Zeilen, BerichStartPnr.Text)) < 0) return FokusSetzen(BerichStartPnr);
  BerichPnrvon.Text = BerichPnrbis.Text = BerichStartPnr.Text = "";
  Selektion.Leeren();
  SelektionZeigen();
  StatusHilfeSetzen(Anzahltext(Anzahl, "Punkt", "Punkte") + " umnumeriert");
  FokusSetzen(BerichPnrvon);
}

void TVBerichForm::NachTat() { AltZeigen(); }

// Somebody else may have changed the points.
void TVBerichForm::BeiTabelle() {
  AltZeigen();
  if (Selektion.Nachsehen().empty()) return;
  SelektionZeigen();
  StatusHilfeSetzen("Gewählte Punkte wurden inzwischen geändert oder gelöscht");
}

bool TVBerichForm::OffenesKlären() {
  const bool Punkt = !Alt.Pnr.Text->empty() && !BerichNeuPnr.Text->empty();
  const bool Mehrere =
      (!BerichPnrvon.Text->empty() || !Selektion.Punkte().empty()) && !BerichStartPnr.Text->empty();
  return (!Punkt && !Mehrere) ||
         FrageJaNein("Die neue Punktnummer ist nicht vergeben. Verwerfen ?", Titel, KnopfNein) == KnopfJa;
}

}  // namespace tavorena
