#include <algorithm>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/points/TVPMittForm.h>

namespace tavorena {
namespace {

constexpr int GrößteGruppe = 8;
constexpr const char* RahmenAlte = "Alte Punkte :";

const char* RahmenNeuer(Mittelart Art) {
  return Art == Mittelart::Ersetzen ? "Gemittelter Punkt (ersetzt die Altpunkte) :"
                                    : "Gemittelter Punkt (Schwerpunkt) :";
}

}  // namespace

TVPMittForm::TVPMittForm(Mittelart Welche) : Punktform("TVPMittForm"), Art(Welche) {
  Titel = "Tavorena Koordinatenverwaltung (VR 25.50)";
  Hilfenummer = 4040;
  PunktzeileKopf(*this, {0, 0}, RahmenAlte);
  BeschriftungAnlegen("fs", {0, 5}, RahmenAlte).Rechtsbündig = true;
  BeschriftungAnlegen("Bem.", {0, 6}, RahmenAlte);
  for (int i = 0; i < GrößteGruppe; ++i) {
    const std::string Index = "(" + std::to_string(i) + ")";
    Alte.push_back({Punktzeile(*this, "AlterPunkt", Index, {i + 1, 0}, RahmenAlte),
                    ErgebnisfeldAnlegen("AlterPunktDs" + Index, {i + 1, 5}, RahmenAlte, 8),
                    ErgebnisfeldAnlegen("AlterPunktBem" + Index, {i + 1, 6}, RahmenAlte, 8)});
    Alte.back().Zeile.PlatzHalten();
    Alte.back().Bem.Rechtsbündig = false;
  }
  NeuenPunktAnlegen();
  // Behind all numbers, so that Tab leads from number to number.
  for (std::size_t i = 0; i < Alte.size(); ++i) {
    Altpunkt& A = Alte[i];
    A.Zeile.Pnr.Hilfe = "Punktnummer; ein Klick in der Grafik nimmt den Punkt";
    A.Zeile.Pnr.BeiVerlassen = [this, i] { return pmittklärealtpunkt(i); };
    A.Zeile.Pnr.BeiReturn = [this, i] { NachAltpunkt(i); };
    A.Wegnehmen = &KnopfAnlegen(
        "AlterPunktWegnehmen(" + std::to_string(i) + ")", "Wegnehmen", [this, i] { pmittwegnehmen(i); },
        {static_cast<int>(i) + 1, 7}, RahmenAlte);
    A.Wegnehmen->PlatzHalten = true;
  }
  KnopfAnlegen("PunktErzeugen", "&Punkt erzeugen", [this] { PunktErzeugen(); });
  RückgängigAnlegen("PMittRückgängig", {0, 1});
  KnopfAnlegen("PMittEnd", "&Schließen", [this] { SchließenVerlangen(); }, {0, 2}).OhnePrüfung = true;
  ZeilenZeigen();
}

void TVPMittForm::NeuenPunktAnlegen() {
  PunktzeileKopf(*this, {0, 0}, RahmenNeuer(Art));
  Neuer.emplace(*this, "NeuerPunkt", "", Platz{1, 0}, RahmenNeuer(Art), "Symbol");
  Neuer->Hoehe.NurLesen = Neuer->Sym.NurLesen = false;
  Neuer->Pnr.BeiVerlassen = [this] { return pmittkläreneupunkt(); };
  Neuer->Hoehe.BeiVerlassen = [this] { return HöheLesen(); };
  Neuer->Sym.BeiReturn = [this] { PunktErzeugen(); };
  Neuer->Sym.BeiVerlassen = [this] {
    Neuer->Sym.Text = Trimmen(*Neuer->Sym.Text);
    return Neuer->Sym.Text->find_first_of(" \t") == std::string::npos;  // a file could not hold it
  };
}

std::size_t TVPMittForm::Anzahl() const {
  return static_cast<std::size_t>(
      std::count_if(Alte.begin(), Alte.end(), [](const Altpunkt& A) { return A.Punkt.has_value(); }));
}

// One empty row waits behind those with a point.
void TVPMittForm::ZeilenZeigen() {
  const std::size_t Belegt = Anzahl();
  for (std::size_t i = 0; i < Alte.size(); ++i) {
    Altpunkt& A = Alte[i];
    A.Zeile.SichtbarSetzen(i <= Belegt);
    A.Ds.Sichtbar = A.Bem.Sichtbar = i <= Belegt;
    A.Wegnehmen->Sichtbar = i < Belegt;
  }
}

// ---- the old points ----------------------------------------------------------------------------------

// The number of a row was typed or clicked.
bool TVPMittForm::pmittklärealtpunkt(std::size_t i) {
  Feld& F = Alte[i].Zeile.Pnr;
  F.Text = Trimmen(*F.Text);
  const std::string Bisher = Alte[i].Punkt ? Trimmen(Alte[i].Punkt->Pnr) : "";
  if (*F.Text == Bisher) return true;
  if (F.Text->empty()) {
    pmittwegnehmen(i);
    return true;
  }
  Wert Pnr(*F.Text);
  if (KorSucheMitPunkt(Pnr) < 0 && !DarfÄndern()) return false;
  const int Zeile = KorFind(Pnr);
  if (Zeile < 0) return false;
  const Punktsatz P = PunktsatzVon(Zeile);
  for (std::size_t k = 0; k < Alte.size(); ++k) {
    if (k == i || !Alte[k].Punkt || Alte[k].Punkt->Pnr != P.Pnr) continue;
    FehlerMeldung("Punkt " + Zitat(P.Pnr) + " steht zweimal unter den Punkten.");
    return false;
  }
  pmittsetzealtpunkt(i, P);
  pmittrechnemittel();
  return true;
}

// Puts a point into a row and marks it in the graphics view.
void TVPMittForm::pmittsetzealtpunkt(std::size_t i, const Punktsatz& P) {
  Altpunkt& A = Alte[i];
  A.Punkt = P;
  A.Zeile.Zeigen(P);
  A.Zeile.Pnr.Fehlerhaft = false;
  PMittGrafikAltplöschen(i);
  A.Bild.Punkt({Trimmen(P.Pnr), P.Rechts, P.Hoch, "MARK", FarbeRot});
}

// Takes the point of a row out; those behind it move up.
void TVPMittForm::pmittwegnehmen(std::size_t i) {
  std::vector<Punktsatz> Rest;
  for (std::size_t k = 0; k < Alte.size(); ++k) {
    if (k > i && Alte[k].Punkt) Rest.push_back(*Alte[k].Punkt);
    if (k < i) continue;
    Alte[k].Punkt.reset();
    Alte[k].Zeile.Leeren();
    PMittGrafikAltplöschen(k);
  }
  for (const Punktsatz& P : Rest) pmittsetzealtpunkt(i++, P);
  pmittrechnemittel();
  if (Fokus() == nullptr || !NimmtFokus(*Fokus()))
    FokusSetzen(Alte[std::min(Anzahl(), Alte.size() - 1)].Zeile.Pnr);
}

// Return leads to the next row, out of an empty one and behind the eighth to the new point.
void TVPMittForm::NachAltpunkt(std::size_t i) {
  const bool Weiter = Alte[i].Punkt && i + 1 < Alte.size();
  FokusSetzen(Weiter ? Alte[i + 1].Zeile.Pnr : Neuer->Pnr);
  if (Alte[i].Punkt && !Weiter) StatusHilfeSetzen("Mehr als acht Punkte werden nicht gemittelt");
}

// ---- the mean ----------------------------------------------------------------------------------------

void TVPMittForm::pmittrechnemittel() {
  Neuer->Hoehe.Text = Neuer->Sym.Text = Neuer->Rechts.Text = Neuer->Hoch.Text = "";
  PMittGrafikNeuplöschen();
  ZeilenZeigen();
  pmittsetzeneupunkt();
  std::vector<Punktsatz> Punkte;
  for (Altpunkt& A : Alte) {
    A.Ds.Text = A.Bem.Text = "";
    if (A.Punkt) Punkte.push_back(*A.Punkt);
  }
  if (Punkte.size() < 2) return;
  const Punktsatz Mittel = MittelVon(Punkte);
  Neuer->Rechts.Text = Trimmen(ZahlFormat(Mittel.Rechts, 7, Optionen.OptNachkommastellen));
  Neuer->Hoch.Text = Trimmen(ZahlFormat(Mittel.Hoch, 7, Optionen.OptNachkommastellen));
  NeuesBild.Punkt({"", Mittel.Rechts, Mittel.Hoch, ZeichenNeu, FarbeBlau});
  pmittsetzekoordinaten(Mittel);
}

void TVPMittForm::pmittsetzekoordinaten(const Punktsatz& Mittel) {
  for (Altpunkt& A : Alte) {
    if (!A.Punkt) continue;
    pmittsetzeds(A, AchtStellen(Strecke(Mittel.Rechts, Mittel.Hoch, A.Punkt->Rechts, A.Punkt->Hoch)));
  }
}

void TVPMittForm::pmittsetzeds(Altpunkt& A, double ds) {
  A.Ds.Text = Trimmen(ZahlFormat(ds, 4, Optionen.OptNachkommastellen));
  A.Bem.Text = Abstandswort(ds);
  A.Bem.Fehlerhaft = !A.Bem.Text->empty();
}

// Proposes the number of the first point where the mean takes its place; what was typed stays.
void TVPMittForm::pmittsetzeneupunkt() {
  const bool Eigene = *Neuer->Pnr.Text != Vorschlag;
  Vorschlag = Art == Mittelart::Ersetzen && Alte.front().Punkt ? Trimmen(Alte.front().Punkt->Pnr) : "";
  if (!Eigene) Neuer->Pnr.Text = Vorschlag;
}

// A taken number is asked about when the point is made.
bool TVPMittForm::pmittkläreneupunkt() {
  Neuer->Pnr.Text = Trimmen(*Neuer->Pnr.Text);
  if (Neuer->Pnr.Text->find_first_of(" \t") == std::string::npos) return true;
  StatusHilfeSetzen("Punktnummer ohne Leerzeichen erwartet");
  return false;
}

bool TVPMittForm::HöheLesen() {
  Feld& F = Neuer->Hoehe;
  F.Text = Trimmen(*F.Text);
  if (F.Text->empty()) return true;
  const std::string Text = ZahlFormat(*F.Text, 5, Optionen.OptNachkommaSpeichern);
  if (!IstZahlwort(*F.Text) || Text.find('*') != std::string::npos) {
    StatusHilfeSetzen("Höhe: Zahl mit höchstens fünf Stellen vor dem Komma erwartet");
    return false;
  }
  F.Text = Trimmen(Text);
  return true;
}

void TVPMittForm::PunktErzeugen() {
  if (!DarfÄndern() || Nachgesehen()) return;
  for (Altpunkt& A : Alte) {
    if (!Lesen(A.Zeile.Pnr)) return FokusSetzen(A.Zeile.Pnr);
  }
  for (Feld* F : {&Neuer->Pnr, &Neuer->Hoehe, &Neuer->Sym}) {
    if (!Lesen(*F)) return FokusSetzen(*F);
  }
  Mittelauftrag M{Art, Neuer->Pnr.Text, {}, ZahlAusText(*Neuer->Hoehe.Text), Neuer->Sym.Text};
  for (const Altpunkt& A : Alte) {
    if (A.Punkt) M.Alte.push_back(A.Punkt->Pnr);
  }
  if (Getan(PunkteMitteln(R, M)) < 0)
    return FokusSetzen(M.Alte.size() < 2 ? Alte[M.Alte.size()].Zeile.Pnr : Neuer->Pnr);
  StatusHilfeSetzen("Punkt " + Zitat(M.Neu) + " erzeugt");
  Leeren();
}

void TVPMittForm::Leeren() {
  for (std::size_t i = 0; i < Alte.size(); ++i) {
    Alte[i].Punkt.reset();
    Alte[i].Zeile.Leeren();
    PMittGrafikAltplöschen(i);
  }
  Neuer->Pnr.Text = Vorschlag = "";
  pmittrechnemittel();
  FokusSetzen(Alte.front().Zeile.Pnr);
}

// ---- what happens around the form --------------------------------------------------------------------

// Points that moved are taken where they are now, those that are gone go. @return whether there were any
bool TVPMittForm::Nachgesehen() {
  std::vector<Punktsatz> Punkte;
  bool Anders = false;
  for (const Altpunkt& A : Alte) {
    if (!A.Punkt) continue;
    const int Zeile = KorSuche(std::string_view(A.Punkt->Pnr));
    if (Zeile >= 0) Punkte.push_back(PunktsatzVon(Zeile));
    Anders = Anders || Zeile < 0 || Punkte.back() != *A.Punkt;
  }
  if (!Anders) return false;
  for (std::size_t i = Punkte.size(); i < Alte.size(); ++i) {
    if (Alte[i].Punkt) Alte[i].Zeile.Leeren();
    Alte[i].Punkt.reset();
    PMittGrafikAltplöschen(i);
  }
  for (std::size_t i = 0; i < Punkte.size(); ++i) pmittsetzealtpunkt(i, Punkte[i]);
  pmittrechnemittel();
  StatusHilfeSetzen("Alte Punkte wurden inzwischen geändert oder gelöscht");
  return true;
}

void TVPMittForm::BeiSchließen() {
  for (std::size_t i = 0; i < Alte.size(); ++i) PMittGrafikAltplöschen(i);
  PMittGrafikNeuplöschen();
}

bool TVPMittForm::OffenesKlären() {
  return Anzahl() < 2 ||
         FrageJaNein("Der Punkt ist noch nicht erzeugt. Verwerfen ?", Titel, KnopfNein) == KnopfJa;
}

}  // namespace tavorena
