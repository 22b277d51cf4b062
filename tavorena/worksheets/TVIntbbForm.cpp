#include <tavorena/core/Optionen.h>
#include <tavorena/worksheets/TVIntbbForm.h>

namespace tavorena {

TVIntbbForm::TVIntbbForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt),
      K{Kreisfelder(*this, "K1_", "Kreis 1"), Kreisfelder(*this, "K2_", "Kreis 2")},
      Neue{LösungAnlegen("1", "Schnitt 1"), LösungAnlegen("2", "Schnitt 2"),
           ErgebnisAnlegen("Tau", "Tau (gon):", 0), false} {
  Neue.Zwei.Öffnen(false);
  FallAnlegen();
}

// What the engine refuses changes no field: it is only said.
std::string TVIntbbForm::Rechnen() {
  for (const Kreisfelder& Kreis : K) {
    if (Kreis.Radius() > 0) continue;
    Grundfeld = &Kreis.Radiusfeld.Eingabe;
    return "Radius fehlt";
  }
  Lage S1, S2;
  double Winkel = 0;
  const int Anzahl = SchnittKreisKreisBerechnung(K[0].Mitte.Ort(), K[0].Radius(), K[1].Mitte.Ort(),
                                                 K[1].Radius(), S1, S2, Winkel);
  if (Anzahl >= 0) return Neue.Zeigen(Anzahl, S1, S2, Winkel);
  Grundfeld = &K[1].Mitte.Pnr;
  return "Mittelpunkte sind gleich";
}

Block TVIntbbForm::Protokollieren() {
  return BogenschnittBlock(Optionen.OptNachkommastellen, K[0].AlsProtkreis(), K[1].AlsProtkreis(),
                           Neue.AlsProtpunkte(), Neue.Tau, Optionen.OptWarnstufe, {Notiz(0), Notiz(1)});
}

Block TVIntbbForm::Streichzeile(const Fallpunkt& L) {
  return SchnittZeile(Optionen.OptNachkommastellen, L.AlsProtpunkt(), Neue.Tau, MarkeGelöscht);
}

std::vector<std::string> TVIntbbForm::Sätze() {
  return StapelBogenschnitt({{K[0].Eingabe(), K[1].Eingabe()}, Neue.Eingaben()});
}

int TVIntbbForm::StapelLesen() {
  Bogenschnitteingabe E;
  if (StapelLeseBogenschnitt(E) < 0) return -1;
  for (std::size_t i = 0; i < 2; ++i) K[i].Setzen(E.K[i]);
  Neue.Setzen(E.Neu);
  return 0;
}

void TVIntbbForm::Nachführen() {
  for (Kreisfelder& Kreis : K) Kreis.Nachführen();
}

void TVIntbbForm::Zeichnen(Markierung& Bild) {
  for (const Kreisfelder& Kreis : K) Kreis.Zeichnen(Bild);
}

}  // namespace tavorena
