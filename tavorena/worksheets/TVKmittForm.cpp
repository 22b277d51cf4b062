#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/GrafDesign.h>
#include <tavorena/records/Kreismitte.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVKmittForm.h>

namespace tavorena {
namespace {

const char* const RahmenBogen = "Bogen";

}  // namespace

TVKmittForm::TVKmittForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt),
      P{&PunktAnlegen("_", "Punkt 1", RahmenBogen, 1, true, "1"),
        &PunktAnlegen("_", "Punkt 2", RahmenBogen, 2, true, "2"),
        &PunktAnlegen("_", "Punkt 3", RahmenBogen, 3, true, "3")},
      Neu(LösungAnlegen("", "Mittelpkt.")),
      TauFeld(ErgebnisAnlegen("Tau", "Tau (gon):", 0)),
      R{&ErgebnisAnlegen("R1", "R1:", 2), &ErgebnisAnlegen("R2", "R2:", 4),
        &ErgebnisAnlegen("R3", "R3:", 6)} {
  PunktfeldKopf(*this, RahmenBogen);
  FallAnlegen();
}

// Without a centre the fields keep what they show.
std::string TVKmittForm::Rechnen() {
  const Lage A = P[0]->Ort(), B = P[1]->Ort(), E = P[2]->Ort();
  if (KreisMittelpunktBerechnung(A, B, E, Kreis) < 0) {
    Grundfeld = A == B ? &P[1]->Pnr : &P[2]->Pnr;
    return A == B || B == E || A == E ? "Punkte sind gleich" : "Punkte liegen auf einer Linie";
  }
  Tau = Kreis.WinkelGon < 0 ? Kreis.WinkelGon + 400 : Kreis.WinkelGon;
  if (Tau > 200) Tau -= 200;
  const Warnung W = KreismitteWarnung(Tau, Optionen.OptWarnstufe);
  TauFeld.Text = ZahlFormat(Tau, -1, 4);
  TauFeld.Fehlerhaft = W != Warnung::Keine;
  if (W != Warnung::Keine) StatusHilfeSetzen("Ungünstige Verteilung: Tau unter 20 oder über 180 gon");
  for (std::size_t i = 0; i < 3; ++i) R[i]->Text = Längentext(Kreis.Radien[i]);
  Neu.Zeigen(Kreis.M);
  return "";
}

Block TVKmittForm::Protokollieren() {
  std::array<Protbogenpunkt, 3> Bogen;
  for (std::size_t i = 0; i < 3; ++i) Bogen[i] = {P[i]->AlsProtpunkt(), Kreis.Radien[i]};
  return MitNotiz(
      KreismitteBlock(Optionen.OptNachkommastellen, Bogen, Neu.AlsProtpunkt(), Tau, Optionen.OptWarnstufe));
}

Block TVKmittForm::Streichzeile(const Fallpunkt& L) {
  return KreismitteZeile(Optionen.OptNachkommastellen, L.AlsProtpunkt(), Tau, MarkeGelöscht);
}

std::vector<std::string> TVKmittForm::Sätze() {
  const Neupunkteingabe E = Neu.Eingabe();
  return StapelKreismittelpunkt({{P[0]->Nummer(), P[1]->Nummer(), P[2]->Nummer()}, E.Pnr, E.Symbol});
}

int TVKmittForm::StapelLesen() {
  Kreismitteeingabe E;
  if (StapelLeseKreismittelpunkt(E) < 0) return -1;
  for (std::size_t i = 0; i < 3; ++i) P[i]->Pnr.Text = E.Pnr[i];
  Neu.Setzen({E.NeuPnr, E.Symbol});
  return 0;
}

void TVKmittForm::Zeichnen(Markierung& Bild) {
  if (!P[0]->Gesetzt() || !P[1]->Gesetzt() || !P[2]->Gesetzt()) return;
  GrafikBogen Bogen;
  Bogen.Farbe = FarbeRot;
  if (BogenDurchDrei(P[0]->Ort(), P[1]->Ort(), P[2]->Ort(), Bogen) == 0) Bild.Bogen(Bogen);
}

}  // namespace tavorena
