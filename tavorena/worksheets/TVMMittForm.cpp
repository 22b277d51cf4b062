#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/worksheets/TVMMittForm.h>

namespace tavorena {
namespace {

constexpr std::size_t GrößteGruppe = 8;
constexpr const char *RahmenAlte = "Doppelte Messungen :", *RahmenNeuer = "Gemittelter Punkt :";

}  // namespace

std::vector<std::vector<int>> Mehrfachmessungen(const std::vector<Punktsatz>& Alle) {
  std::vector<std::vector<int>> Gruppen;
  std::unordered_map<std::string_view, std::size_t> Welche;
  for (std::size_t z = 0; z < Alle.size(); ++z) {
    if (Alle[z].Pnr.empty()) continue;
    const auto [i, Neu] = Welche.try_emplace(Alle[z].Pnr, Gruppen.size());
    if (Neu) Gruppen.emplace_back();
    Gruppen[i->second].push_back(static_cast<int>(z));
  }
  std::erase_if(Gruppen, [](const std::vector<int>& G) { return G.size() < 2; });
  return Gruppen;
}

TVMMittForm::TVMMittForm(Messliste& Messungen)
    : Dialogform("TVMMittForm", "Tavorena Messungen mitteln"), Liste(Messungen) {
  Hilfenummer = 4230;
  Ungefragt = true;  // its button begins a second measurement where nothing stands twice
  PunktzeileKopf(*this, {0, 0}, RahmenAlte);
  BeschriftungAnlegen("Bem.", {0, 5}, RahmenAlte);
  for (std::size_t i = 0; i < GrößteGruppe; ++i) {
    const std::string Index = "(" + std::to_string(i) + ")";
    const int Zeile = static_cast<int>(i) + 1;
    Alte.push_back({Punktzeile(*this, "AlterPunkt", Index, {Zeile, 0}, RahmenAlte),
                    ErgebnisfeldAnlegen("AlterPunktBem" + Index, {Zeile, 5}, RahmenAlte, 9)});
    Alte.back().Zeile.PlatzHalten();
    Alte.back().Bem.Rechtsbündig = false;
  }
  // Behind all numbers, so that Tab leads from number to number.
  for (std::size_t i = 0; i < Alte.size(); ++i) {
    Altpunkt& A = Alte[i];
    A.Zeile.Pnr.BeiVerlassen = [this, i] { return AlterPunktUmnummern(i); };
    A.Zeile.Pnr.BeiReturn = [this] { FokusSetzen(*Finde("MMittMitteln")); };
    A.Zeile.Pnr.Hilfe = "Eine andere Nummer nimmt die Messung aus der Gruppe";
    A.Löschen = &KnopfAnlegen(
        "AlterPunktLöschen(" + std::to_string(i) + ")", "Löschen", [this, i] { AlterPunktLöschen(i); },
        {static_cast<int>(i) + 1, 6}, RahmenAlte);
    A.Löschen->PlatzHalten = true;
  }
  Weitere = &BeschriftungAnlegen("", {static_cast<int>(GrößteGruppe) + 1, 0, 5}, RahmenAlte);
  Neuer.emplace(*this, "NeuerPunkt", "", Platz{0, 0}, RahmenNeuer, "Symbol");
  Neuer->Pnr.NurLesen = true;
  KnopfAnlegen("MMittMitteln", "&Mitteln", [this] { MMittMitteln(); });
  KnopfAnlegen("MMittWeiter", "&Nächste Gruppe", [this] { NächsteGruppe(); }, {0, 1});
  AbbruchAnlegen("MMittEnd", "&Schließen", {0, 2});
}

void TVMMittForm::MmittSuchDoppelte() {
  const std::vector<Punktsatz> Alle = Liste.Messpunkte();
  for (std::vector<int>& G : Mehrfachmessungen(Alle)) {
    Nummer = Alle[static_cast<std::size_t>(G.front())].Pnr;
    if (Übergangen.contains(Nummer)) continue;
    Gruppe = std::move(G);
    GruppeZeigen(Alle);
    return FokusSetzen(*Finde("MMittMitteln"));
  }
  Gruppe.clear();
  StatusHilfeSetzen("Keine weiteren doppelten Messungen");
  Schließen();
}

void TVMMittForm::GruppeZeigen(const std::vector<Punktsatz>& Alle) {
  const std::size_t Anzahl = std::min(Gruppe.size(), GrößteGruppe);
  const auto Punkt = [&](std::size_t i) -> const Punktsatz& {
    return Alle[static_cast<std::size_t>(Gruppe[i])];
  };
  std::vector<Punktsatz> Punkte;
  for (std::size_t i = 0; i < Gruppe.size(); ++i) Punkte.push_back(Punkt(i));
  const Punktsatz M = MittelVon(Punkte);
  Neuer->Zeigen(M);
  for (std::size_t i = 0; i < Alte.size(); ++i) {
    Altpunkt& A = Alte[i];
    const bool Da = i < Anzahl;
    A.Zeile.SichtbarSetzen(Da);
    A.Bem.Sichtbar = A.Löschen->Sichtbar = Da;
    if (!Da) continue;
    const Punktsatz& P = Punkt(i);
    A.Zeile.Zeigen(P);
    A.Zeile.Pnr.Fehlerhaft = false;
    A.Bem.Text = Abstandswort(AchtStellen(Strecke(M.Rechts, M.Hoch, P.Rechts, P.Hoch)));
    A.Bem.Fehlerhaft = !A.Bem.Text->empty();
  }
  const auto Übrig = static_cast<int>(Gruppe.size() - Anzahl);
  Weitere->Text =
      Übrig > 0 ? "und " + Anzahltext(Übrig, "weitere Messung", "weitere Messungen") + " dieser Nummer" : "";
}

void TVMMittForm::MMittMitteln() {
  Liste.MesspunkteMitteln(Gruppe);
  MmittSuchDoppelte();
}

void TVMMittForm::AlterPunktLöschen(std::size_t i) {
  if (i >= Gruppe.size() || FrageJaNein("Messung " + Zitat(Nummer) + " löschen ?", Titel) != KnopfJa) return;
  Liste.MesspunktLöschen(Gruppe[i]);
  MmittSuchDoppelte();
}

bool TVMMittForm::AlterPunktUmnummern(std::size_t i) {
  Feld& F = Alte[i].Zeile.Pnr;
  F.Text = Trimmen(*F.Text);
  if (i >= Gruppe.size() || *F.Text == Nummer) return true;
  if (!Liste.MesspunktUmnummern(Gruppe[i], F.Text)) return false;
  MmittSuchDoppelte();
  return true;
}

void TVMMittForm::NächsteGruppe() {
  Übergangen.insert(Nummer);
  MmittSuchDoppelte();
}

}  // namespace tavorena
