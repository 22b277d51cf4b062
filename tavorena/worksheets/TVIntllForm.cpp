#include <tavorena/core/Optionen.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/worksheets/TVIntllForm.h>

namespace tavorena {

TVIntllForm::TVIntllForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt),
      G{Geradenfelder(*this, "G1_", "Gerade 1"), Geradenfelder(*this, "G2_", "Gerade 2")},
      Neu(LösungAnlegen("", "Schnitt")),
      TauFeld(ErgebnisAnlegen("_Tau", "Tau (gon):", 0)) {
  FallAnlegen();
}

std::string TVIntllForm::Rechnen() {
  Lage S;
  double Winkel = 0;
  for (const Geradenfelder& Gerade : G) {
    if (Gerade.Art() >= 0) continue;
    Unvollständig();
    Grundfeld = &Gerade.Zuviel();
    return "Abstand und Punkt zugleich";
  }
  if (SchnittGeradeGeradeBerechnung(10 * G[0].Art() + G[1].Art(), G[0].Gerade(), G[1].Gerade(), S, Winkel) !=
      0) {
    Neu.Zeigen("***kein Schnitt", "***kein Schnitt");
    TauZeigen(TauFeld, {}, false);
    return "kein Schnitt";
  }
  Tau = TauGefaltet(GradNachGon(Winkel));
  TauZeigen(TauFeld, Tau, false);
  Neu.Zeigen(S);
  return "";
}

void TVIntllForm::Unvollständig() {
  Neu.Zeigen("###Fehler", "###Fehler");
  TauZeigen(TauFeld, {}, false);
}

Block TVIntllForm::Protokollieren() {
  return MitNotiz(GeradenschnittBlock(Optionen.OptNachkommastellen, G[0].AlsProtgerade(),
                                      G[1].AlsProtgerade(), Neu.AlsProtpunkt(), Tau, Optionen.OptWarnstufe));
}

Block TVIntllForm::Streichzeile(const Fallpunkt& L) {
  return SchnittZeile(Optionen.OptNachkommastellen, L.AlsProtpunkt(), Tau, MarkeGelöscht);
}

std::vector<std::string> TVIntllForm::Sätze() {
  return StapelGeradenschnitt({{G[0].Eingabe(), G[1].Eingabe()}, Neu.Eingabe()});
}

int TVIntllForm::StapelLesen() {
  Geradenschnitteingabe E;
  if (StapelLeseGeradenschnitt(E) < 0) return -1;
  for (std::size_t i = 0; i < 2; ++i) G[i].Setzen(E.G[i]);
  Neu.Setzen(E.Neu);
  return 0;
}

void TVIntllForm::Zeichnen(Markierung& Bild) {
  for (const Geradenfelder& Gerade : G) Gerade.Zeichnen(Bild);
}

}  // namespace tavorena
