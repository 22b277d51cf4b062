#include <algorithm>
#include <utility>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/TVDMittForm.h>

namespace tavorena {
namespace {

constexpr int GrößteGruppe = 8;
constexpr const char *RahmenAlte = "Doppelte Punkte :", *RahmenNeuer = "Gemittelter Punkt :";

}  // namespace

TVDMittForm::TVDMittForm() : Punktform("TVDMittForm") {
  Titel = "Tavorena Koordinatenverwaltung (VR 25.xx)";
  Hilfenummer = 4050;
  PunktzeileKopf(*this, {0, 0}, RahmenAlte);
  BeschriftungAnlegen("Bem.", {0, 5}, RahmenAlte);
  for (int i = 0; i < GrößteGruppe; ++i) {
    const std::string Index = "(" + std::to_string(i) + ")";
    Alte.push_back({Punktzeile(*this, "AlterPunkt", Index, {i + 1, 0}, RahmenAlte),
                    ErgebnisfeldAnlegen("AlterPunktBem" + Index, {i + 1, 5}, RahmenAlte, 9)});
    Alte.back().Zeile.PlatzHalten();
    Alte.back().Bem.Rechtsbündig = false;
  }
  // Behind all numbers, so that Tab leads from number to number.
  for (std::size_t i = 0; i < Alte.size(); ++i) {
    Altpunkt& A = Alte[i];
    A.Zeile.Pnr.BeiVerlassen = [this, i] { return AlterPunktBerichtigen(i); };
    A.Zeile.Pnr.BeiReturn = [this] { FokusSetzen(*Finde("DMittMitteln")); };
    A.Zeile.Pnr.Hilfe = "Eine andere Nummer nimmt den Punkt aus der Gruppe";
    A.Löschen = &KnopfAnlegen(
        "AlterPunktLöschen(" + std::to_string(i) + ")", "Löschen", [this, i] { AlterPunktLöschen(i); },
        {static_cast<int>(i) + 1, 6}, RahmenAlte);
    A.Löschen->PlatzHalten = true;
  }
  Weitere = &BeschriftungAnlegen("", {GrößteGruppe + 1, 0, 5}, RahmenAlte);
  Neuer.emplace(*this, "NeuerPunkt", "", Platz{0, 0}, RahmenNeuer, "Symbol");
  Neuer->Pnr.NurLesen = true;
  KnopfAnlegen("DMittMitteln", "&Punkt erzeugen", [this] { DMittMitteln(); });
  KnopfAnlegen("DMittWeiter", "&Nächste Gruppe", [this] { NächsteGruppe(); }, {0, 1});
  RückgängigAnlegen("DMittRückgängig", {0, 2});
  KnopfAnlegen("DMittEnd", "&Schließen", [this] { SchließenVerlangen(); }, {0, 3}).OhnePrüfung = true;
}

void TVDMittForm::DmittSuchDoppelte() {
  for (Altpunkt& A : Alte) A.Punkt.reset();
  const std::vector<std::vector<int>> Gruppen = Doppelgruppen();
  const auto Nächste = std::find_if(Gruppen.begin(), Gruppen.end(), [&](const std::vector<int>& G) {
    return !Übergangen.contains(Trimmen(KorPnr(G.front())));
  });
  if (Nächste == Gruppen.end()) {
    StatusHilfeSetzen("Keine weiteren doppelten Punkte");
    return Schließen();
  }
  Nummer = Trimmen(KorPnr(Nächste->front()));
  Belegen(*Nächste);
  FokusSetzen(*Finde("DMittMitteln"));
}

// The points of the group that are there already keep their places and what is typed there, the others take
// the places that are free.
void TVDMittForm::Belegen(std::vector<int> Zeilen) {
  const auto Suchen = [&](const std::optional<Punktsatz>& P) {
    return std::find_if(Zeilen.begin(), Zeilen.end(), [&](int z) { return P && PunktsatzVon(z) == *P; });
  };
  for (Altpunkt& A : Alte) {
    const auto z = Suchen(A.Punkt);
    if (z == Zeilen.end()) {
      A.Punkt.reset();
      continue;
    }
    A.InTabelle = *z;
    Zeilen.erase(z);
  }
  if (const auto z = Suchen(Zuletzt); z != Zeilen.end()) std::rotate(Zeilen.begin(), z, z + 1);
  for (Altpunkt& A : Alte) {
    if (A.Punkt || Zeilen.empty()) continue;
    A.InTabelle = Zeilen.front();
    A.Punkt = PunktsatzVon(A.InTabelle);
    A.Zeile.Zeigen(*A.Punkt);
    A.Zeile.Pnr.Fehlerhaft = false;
    Zeilen.erase(Zeilen.begin());
  }
  const auto Übrig = static_cast<int>(Zeilen.size());
  Weitere->Text =
      Übrig > 0 ? "und " + Anzahltext(Übrig, "weiterer Punkt", "weitere Punkte") + " dieser Nummer" : "";
  Gesehen = KorStand;
  MittelZeigen();
}

void TVDMittForm::MittelZeigen() {
  const Punktsatz M = Mittel();
  Neuer->Zeigen(M);
  for (Altpunkt& A : Alte) {
    A.Zeile.SichtbarSetzen(A.Punkt.has_value());
    A.Bem.Sichtbar = A.Löschen->Sichtbar = A.Punkt.has_value();
    if (!A.Punkt) continue;
    A.Bem.Text = Abstandswort(AchtStellen(Strecke(M.Rechts, M.Hoch, A.Punkt->Rechts, A.Punkt->Hoch)));
    A.Bem.Fehlerhaft = !A.Bem.Text->empty();
  }
}

// The points of the group in table order, the mean of its first eight at the head.
std::vector<TVDMittForm::Altpunkt*> TVDMittForm::Gruppe() {
  std::vector<Altpunkt*> Punkte;
  for (Altpunkt& A : Alte) {
    if (A.Punkt) Punkte.push_back(&A);
  }
  const auto Rang = [&](const Altpunkt* A) { return std::pair(A->Punkt != Zuletzt, A->InTabelle); };
  std::sort(Punkte.begin(), Punkte.end(), [&](auto* A, auto* B) { return Rang(A) < Rang(B); });
  return Punkte;
}

Punktsatz TVDMittForm::Mittel() {
  std::vector<Punktsatz> Punkte;
  for (const Altpunkt* A : Gruppe()) Punkte.push_back(*A->Punkt);
  return MittelVon(Punkte);
}

// What another window did meanwhile has to be seen first.
bool TVDMittForm::Bereit() {
  if (!DarfÄndern()) return false;
  if (Gesehen == KorStand) return true;
  StatusHilfeSetzen("Die Punkte wurden inzwischen geändert");
  BeiTabelle();
  return false;
}

void TVDMittForm::DMittMitteln() {
  if (!Bereit()) return;
  std::vector<int> Zeilen;
  for (const Altpunkt* A : Gruppe()) Zeilen.push_back(A->InTabelle);
  Zuletzt = Mittel();
  static_cast<void>(Getan(DoppelteMitteln(R, {Zeilen})));  // what hinders it is told
}

void TVDMittForm::AlterPunktLöschen(std::size_t i) {
  if (!Bereit() || !Alte[i].Punkt) return;
  const std::vector<int> Zeile = {Alte[i].InTabelle};
  if (FrageJaNein("Punkt " + Nummernliste(Zeile) + " löschen ?", Titel) != KnopfJa || !Bereit()) return;
  static_cast<void>(Getan(PunkteLöschen(R, Zeile)));
}

bool TVDMittForm::AlterPunktBerichtigen(std::size_t i) {
  Feld& F = Alte[i].Zeile.Pnr;
  F.Text = Trimmen(*F.Text);
  if (!Alte[i].Punkt || *F.Text == Nummer) return true;
  return Bereit() && NeueNummerFrei(F.Text) && Getan(NummerGeben(R, {Alte[i].InTabelle}, F.Text)) == 0;
}

void TVDMittForm::NächsteGruppe() {
  Übergangen.insert(Nummer);
  DmittSuchDoppelte();
}

// A group of which one row is left is done.
void TVDMittForm::BeiTabelle() {
  const std::vector<std::vector<int>> Gruppen = Doppelgruppen();
  const auto Meine = std::find_if(Gruppen.begin(), Gruppen.end(), [&](const std::vector<int>& G) {
    return Trimmen(KorPnr(G.front())) == Nummer;
  });
  if (Meine == Gruppen.end()) return DmittSuchDoppelte();
  Belegen(*Meine);
}

// The group that comes back is shown again.
bool TVDMittForm::Zurücknehmen() {
  if (!Punktform::Zurücknehmen()) return false;
  if (Offen()) DmittSuchDoppelte();
  return true;
}

bool TVDMittForm::OffenesKlären() {
  const bool Getippt = std::any_of(Alte.begin(), Alte.end(), [&](const Altpunkt& A) {
    return A.Punkt && Trimmen(*A.Zeile.Pnr.Text) != Nummer;
  });
  return !Getippt ||
         FrageJaNein("Die neue Punktnummer ist nicht vergeben. Verwerfen ?", Titel, KnopfNein) == KnopfJa;
}

}  // namespace tavorena
