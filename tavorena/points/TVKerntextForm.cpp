#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/Satzsuche.h>
#include <tavorena/points/TVKerntextForm.h>
#include <tavorena/records/Seiten.h>

namespace tavorena {
namespace {

bool Quasifrage(Textauftrag& A) {
  Wertfeld fs{"fs:", "0.01", -1, -1, true};
  Wahlpaar Paar{"Mit Einzelpunkten", "Ohne Einzelpunkte"};
  if (EinWert("Tavorena Quasiidentische Punkte", fs, &Paar) < 0) return false;
  A.fs = ZahlAusText(fs.Wert);
  A.MitEinzelpunkten = !Paar.ZweiteGewählt;
  return true;
}

bool Bereichsfrage(Textauftrag& A) {
  std::string Von, Bis;
  for (;;) {
    if (PunktbereichFrage("Tavorena Punktnummernbelegung", Von, Bis) < 0) return false;
    if (GanzePunktnummer(Von, A.Von) && GanzePunktnummer(Bis, A.Bis)) return true;
    FehlerMeldung("Die Punktnummern des Bereichs müssen ganze Zahlen sein.");
  }
}

std::string Nummernzahl(const std::vector<Nummernlauf>& Läufe) {
  double Belegt = 0, Frei = 0;  // the free ones may be more than an integer holds
  for (const Nummernlauf& L : Läufe) (L.Belegt ? Belegt : Frei) += static_cast<double>(L.Bis - L.Von) + 1;
  return ZahlFeld(Belegt, 0) + " belegt, " + ZahlFeld(Frei, 0) + " frei";
}

// How many rows a list has, and in what.
std::string Zähltext(const Textliste& Liste) {
  const auto Punkte = [&](const auto& Zählt) {
    return static_cast<int>(std::count_if(Liste.Punkte.begin(), Liste.Punkte.end(), Zählt));
  };
  std::string Text = Anzahltext(Punkte([](const Listenzeile& L) { return L.Zeile >= 0; }), "Punkt", "Punkte");
  switch (Liste.Auftrag.Art) {
    case Textart::Doppelte:
      return Text + " in " +
             Anzahltext(Punkte([](const Listenzeile& L) { return L.fs.IstLeer(); }), "Gruppe", "Gruppen");
    case Textart::Quasi:
      return Text + " in " +
             Anzahltext(Punkte([](const Listenzeile& L) { return L.Zeile < 0; }), "Gruppe", "Gruppen") +
             ", fs " + ZahlNachText(Liste.Auftrag.fs).Text() + " m";
    case Textart::Belegung:
      return Nummernzahl(Liste.Läufe);
    case Textart::Koordinaten:
    case Textart::MitDoppelten:
      break;
  }
  const int Doppelte = Punkte([](const Listenzeile& L) { return L.Index >= 0; });
  return Doppelte > 0 ? Text + ", davon " + std::to_string(Doppelte) + " doppelt" : Text;
}

}  // namespace

TVKerntextForm::TVKerntextForm(const Textauftrag& Was) : Punktform("TVKerntextForm") {
  Hilfenummer = Listenseite;
  if (Was.Art == Textart::Belegung) Platzname += "Belegung";  // it is narrow
  Liste.Auftrag = Was;
  BeschriftungAnlegen("Punktnr. s&uchen:", {0, 0});
  Suche = &FeldAnlegen("TextanzeigeSuchen", {0, 1}, "", PnrZeichen);
  Suche->IstPnr = Suche->Rechtsbündig = true;
  Suche->Hilfe = "Return führt zur nächsten Zeile mit dieser Nummer";
  Suche->BeiReturn = [this] { Suchen(); };
  if (Was.Art != Textart::Belegung) Punktknöpfe();
  PlustextUeberschrift();
  Zählung = &BeschriftungAnlegen("", {2, 0, 5});
  if (Was.Art != Textart::Belegung) {
    Mitteln = &KnopfAnlegen("PlustextPunktemitteln", "&Mitteln", [this] { PlustextPunktemitteln(); }, {0, 0});
    Mitteln->Hilfe = "macht aus den markierten Punkten einen";
    KnopfAnlegen("PlustextPunktlöschen", "&Löschen", [this] { PlustextPunktlöschen(); }, {0, 1}).Hilfe =
        "löscht die markierten Punkte oder den aktuellen";
    KnopfAnlegen("PlustextPunktegleichePnr", "&Gleiche Punktnr.", [this] { PlustextPunktegleichePnr(); },
                 {0, 2})
        .Hilfe = "gibt den markierten Punkten eine gemeinsame Nummer";
    Rückgängig = &RückgängigAnlegen("TextanzeigeRückgängig", {0, 3});
  }
  KnopfAnlegen("MenüSpeichern", "Liste &speichern ...", [this] { MenüSpeichern_Click(); }, {0, 4});
  KnopfAnlegen("TextanzeigeDrucken", "Drucke&n ...", [this] { Drucken(); }, {0, 5});
  KnopfAnlegen("TextanzeigeSchließen", "S&chließen", [this] { SchließenVerlangen(); }, {0, 6});
  PlustextSetzeArttext();
  Auflisten();
}

void TVKerntextForm::Punktknöpfe() {
  KnopfAnlegen(
      "TextanzeigeZeigen", "Zeigen", [this] { Zeigen(); }, {0, 2}, "")
      .Hilfe = "bringt den Punkt in die Mitte der Grafik; ebenso ein Doppelklick";
  if (Liste.Auftrag.Art != Textart::Quasi) {
    Auswahl& Weitere = KästchenAnlegen("TextanzeigeWeitere", "Weitere Spalten", {0, 3});
    Weitere.Hilfe = "Platz unter den doppelten Punkten und Zeile der Tabelle";
    Weitere.BeiWahl = [this, &Weitere] {
      for (std::size_t s = SpalteIndex; s < Tabelle->Spalten.size(); ++s)
        Tabelle->Spalten[s].Sichtbar = Weitere.Gewählt;
    };
  }
  Warnknopf = &KnopfAnlegen(
      "TextanzeigeWarn", "", [this] { Warnen(); }, {0, 4}, "");
  Warnknopf->Hilfe = "Zeilen unter Punkten, die über 0.03 m abweichen";
}

// The grid with its head.
void TVKerntextForm::PlustextUeberschrift() {
  Tabelle = &GitterAnlegen("TextanzeigeGitter", Textspalten(Liste.Auftrag.Art), {1, 0});
  Tabelle->NurLesen = true;
  if (Liste.Auftrag.Art == Textart::Belegung) return;
  Tabelle->Markenspalte = SpalteMarke;
  // A list that is behind the table, while a replay runs, takes no marks: its rows may be others.
  Tabelle->Markierbar = [this](int z) { return ZeileVon(z) >= 0 && !IstWarnung(z) && Stand == KorStand; };
  Tabelle->BeiMarke = [this] { MarkenMerken(); };
  Tabelle->BeiDoppelklick = [this](int z) {
    Tabelle->Zeile = z;
    Zeigen();
  };
}

// What depends on the kind and on how it is shown.
void TVKerntextForm::PlustextSetzeArttext() {
  Titel = Texttitel(Liste.Auftrag.Art);
  if (Warnknopf != nullptr) Warnknopf->Text = MitWarnung ? "Warnmeldung aus" : "Warnmeldung an";
}

void TVKerntextForm::BeiÖffnen() { FokusSetzen(*Tabelle); }

// ---- the rows --------------------------------------------------------------------------------------

void TVKerntextForm::Nachführen() {
  if (Stand != KorStand) Auflisten();
}

void TVKerntextForm::Auflisten() {
  Liste = TextlisteBilden(Liste.Auftrag);
  Stand = KorStand;
  Gezeigt.Löschen();
  ZeilenZeigen();
}

// The points that are still there keep their marks, the cursor stays at its point or else where it was.
void TVKerntextForm::ZeilenZeigen() {
  const int Bisher = Tabelle->Zeile;
  const std::string Pnr = PnrBei(Bisher);
  Zeilen = Textzeilen(Liste, MitWarnung);
  Tabelle->Leeren(0);
  for (Textzeile& Z : Zeilen) Tabelle->ZeileAnhängen(std::exchange(Z.Zellen, {}));
  Satzsuche Marken;
  for (std::size_t i = 0; i < Gemerkt.size(); ++i) Marken.Aufnehmen(Gemerkt[i].Satz(), static_cast<int>(i));
  const auto Gemerkter = [this](int i) { return Gemerkt[static_cast<std::size_t>(i)].Satz(); };
  for (int z = 0; z < Tabelle->Zeilen() && !Gemerkt.empty(); ++z) {
    if (Tabelle->Markierbar(z) && Marken.Nehmen(KorPunkt(ZeileVon(z)), Gemerkter) >= 0)
      Tabelle->MarkeSetzen(z, true);
  }
  Tabelle->Zeile = std::clamp(Bisher, 0, std::max(Tabelle->Zeilen() - 1, 0));
  if (!Pnr.empty() && PnrBei(Bisher) != Pnr) static_cast<void>(NummerAufsuchen(Pnr));
  MarkenMerken();
}

// The number of the point that a row stands for.
std::string TVKerntextForm::PnrBei(int z) const {
  if (z < 0 || z >= Tabelle->Zeilen() || Liste.Auftrag.Art == Textart::Belegung) return "";
  return Trimmen(Tabelle->Inhalt(IstWarnung(z) ? z - 1 : z, SpaltePnr));
}

// Remembers the marked points by what they hold: their rows move.
void TVKerntextForm::MarkenMerken() {
  if (Stand != KorStand) return Auflisten();
  Gemerkt.clear();
  for (const int z : Tabelle->Markierte()) Gemerkt.push_back(PunktsatzVon(ZeileVon(z)));
  if (Mitteln != nullptr) Mitteln->Aktiv = Gemerkt.size() > 1;
  Zählung->Text =
      Zähltext(Liste) + (Gemerkt.empty() ? "" : ", " + std::to_string(Gemerkt.size()) + " markiert");
}

bool TVKerntextForm::NummerAufsuchen(const std::string& Pnr) {
  std::string MitPunkt = Pnr;
  ZeichenErsetzen(MitPunkt, ',', '.');
  std::int64_t Zahl = 0;
  const bool IstGanz = GanzePunktnummer(Pnr, Zahl);
  const auto Passt = [&](int z) {
    if (Liste.Auftrag.Art != Textart::Belegung) return PnrBei(z) == Pnr || PnrBei(z) == MitPunkt;
    const Nummernlauf& L = Liste.Läufe[static_cast<std::size_t>(z)];
    return IstGanz && Zahl >= L.Von && Zahl <= L.Bis;
  };
  for (int i = 1; i <= Tabelle->Zeilen(); ++i) {
    const int z = (Tabelle->Zeile + i) % Tabelle->Zeilen();
    if (IstWarnung(z) || !Passt(z)) continue;
    Tabelle->Zeile = z;
    return true;
  }
  return false;
}

// ---- what the user does ----------------------------------------------------------------------------

void TVKerntextForm::Suchen() {
  const std::string Pnr = Trimmen(*Suche->Text);
  if (Pnr.empty()) return;
  if (!NummerAufsuchen(Pnr)) return StatusHilfeSetzen("Punkt " + Zitat(Pnr) + " steht nicht in der Liste");
  FokusSetzen(*Tabelle);
}

void TVKerntextForm::Zeigen() {
  Nachführen();
  const int z = Tabelle->Zeilen() > 0 ? ZeileVon(Tabelle->Zeile) : -1;
  if (z < 0) return;
  const KorSatz P = KorPunkt(z);
  if (!std::isfinite(P.Rechts) || !std::isfinite(P.Hoch)) return;
  Gezeigt.Löschen();
  Gezeigt.Punkt({std::string(P.Pnr), P.Rechts, P.Hoch, std::string(P.Symbol), FarbeRot});
  AnzeigePort().GrafikPunktZeigen(P.Rechts, P.Hoch);
}

void TVKerntextForm::Warnen() {
  MitWarnung = !MitWarnung;
  PlustextSetzeArttext();
  Nachführen();
  ZeilenZeigen();
}

// The rows of the table behind the marked ones in the order of the list, each once; the first shall be the
// first of a mean.
std::vector<int> TVKerntextForm::Gewählte(bool AuchAktuelle) const {
  std::vector<int> Gewählt;
  for (const int z : Tabelle->Markierte()) {
    if (std::find(Gewählt.begin(), Gewählt.end(), ZeileVon(z)) == Gewählt.end())
      Gewählt.push_back(ZeileVon(z));
  }
  if (Gewählt.empty() && AuchAktuelle && Tabelle->Zeilen() > 0 && ZeileVon(Tabelle->Zeile) >= 0)
    Gewählt.push_back(ZeileVon(Tabelle->Zeile));
  return Gewählt;
}

void TVKerntextForm::PlustextPunktemitteln() {
  if (!DarfÄndern()) return;
  Nachführen();
  const std::vector<int> Gewählt = Gewählte(false);
  if (Gewählt.size() < 2) return;
  if (FrageJaNein("Punkte " + Nummernliste(Gewählt) + " mitteln ?") != KnopfJa) return;
  if (Getan(ZeilenMitteln(R, Gewählt)) == 0) PlustextSpeichereRück();
}

// The rows of a mean are in the store.
void TVKerntextForm::PlustextSpeichereRück() { Rückgängig->Text = "(Rückgängig)"; }

void TVKerntextForm::PlustextPunktlöschen() {
  if (!DarfÄndern()) return;
  Nachführen();
  std::vector<int> Gewählt = Gewählte(true);
  if (Gewählt.empty()) return;
  const std::string Wort = Gewählt.size() == 1 ? "Punkt " : "Punkte ";
  if (FrageJaNein(Wort + Nummernliste(Gewählt) + " löschen ?") != KnopfJa) return;
  std::sort(Gewählt.begin(), Gewählt.end());
  Getan(PunkteLöschen(R, Gewählt));
}

void TVKerntextForm::PlustextPunktegleichePnr() {
  if (!DarfÄndern()) return;
  Nachführen();
  const std::vector<int> Gewählt = Gewählte(false);
  if (Gewählt.empty()) return StatusHilfeSetzen("Kein Punkt markiert");
  std::string Neu = Trimmen(KorPnr(Gewählt.front()));
  do {
    if (EinWert("Tavorena Gleiche Punktnummer", "Punktnr.:", Neu) < 0) return;
  } while (Getan(NummerGeben(R, Gewählt, Neu)) < 0);
}

void TVKerntextForm::MenüSpeichern_Click() {
  const std::string Name = DateiFragen("Liste speichern", "Textdateien (*.txt)|*.txt", "*.txt", true);
  if (Name.empty()) return;
  Nachführen();
  std::string Grund;
  if (DateiErsetzen(Name, Textseiten(Liste), &Grund) < 0)
    return SpeicherfehlerMelden(Name, Grund, "KerntextForm.Speichern");
  StatusHilfeSetzen("Gespeichert: " + Name);
}

void TVKerntextForm::Drucken() {
  Nachführen();
  const Dateiname Teile = DateinameZerlegen(KoordinatendateiName);
  static_cast<void>(DruckwerkPort().Drucken(SeitenTeilen(Textseiten(Liste)), *Titel,
                                            Teile.Ordner + Teile.Grundname + "-liste.pdf"));
}

// ---- opening ---------------------------------------------------------------------------------------

std::unique_ptr<TVKerntextForm> KerntextErfragen(Textart Art) {
  Textauftrag A{Art};
  if (Art == Textart::Quasi && !Quasifrage(A)) return nullptr;
  if (Art == Textart::Belegung && !Bereichsfrage(A)) return nullptr;
  auto Form = std::make_unique<TVKerntextForm>(A);
  if (!Form->IstLeer()) return Form;
  Hinweis(Art == Textart::Doppelte ? "Keine doppelten Punkte vorhanden !"
                                   : "Keine quasiidentischen Punkte vorhanden !");
  return nullptr;
}

}  // namespace tavorena
