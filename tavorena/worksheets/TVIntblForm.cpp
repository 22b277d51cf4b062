#include <tavorena/core/Optionen.h>
#include <tavorena/worksheets/TVIntblForm.h>

namespace tavorena {

TVIntblForm::TVIntblForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt),
      K(*this, "K1_", "Kreis"),
      G(*this, "G2_", "Gerade"),
      Neue{LösungAnlegen("1", "Schnitt 1"), LösungAnlegen("2", "Schnitt 2"),
           ErgebnisAnlegen("Tau", "Tau (gon):", 0), true} {
  Neue.Zwei.Öffnen(false);
  FallAnlegen();
}

// What the engine refuses changes no field: it is only said.
std::string TVIntblForm::Rechnen() {
  if (G.Art() < 0) {
    Grundfeld = &G.Zuviel();
    return "Abstand und Punkt zugleich";
  }
  if (!(K.Radius() > 0)) {
    Grundfeld = &K.Radiusfeld.Eingabe;
    return "Radius fehlt";
  }
  KreisGeradeSchnitt S;
  const int Anzahl = SchnittKreisGeradeBerechnung(G.Art(), K.Mitte.Ort(), K.Radius(), G.Gerade(), S);
  if (Anzahl >= 0) return Neue.Zeigen(Anzahl, S.S1, S.S2, S.Winkel);
  Grundfeld = &G.End.Pnr;
  return "Anfangs- und Endpunkt sind gleich";
}

Block TVIntblForm::Protokollieren() {
  return KreisGeradeBlock(Optionen.OptNachkommastellen, K.AlsProtkreis(), G.AlsProtgerade(),
                          Neue.AlsProtpunkte(), Neue.Tau, Optionen.OptWarnstufe, {Notiz(0), Notiz(1)});
}

Block TVIntblForm::Streichzeile(const Fallpunkt& L) {
  return SchnittZeile(Optionen.OptNachkommastellen, L.AlsProtpunkt(), Neue.Tau, MarkeGelöscht);
}

std::vector<std::string> TVIntblForm::Sätze() {
  return StapelKreisGerade({K.Eingabe(), G.Eingabe(), Neue.Eingaben()});
}

int TVIntblForm::StapelLesen() {
  KreisGeradeEingabe E;
  if (StapelLeseKreisGerade(E) < 0) return -1;
  K.Setzen(E.K);
  G.Setzen(E.G);
  Neue.Setzen(E.Neu);
  return 0;
}

void TVIntblForm::Zeichnen(Markierung& Bild) {
  K.Zeichnen(Bild);
  G.Zeichnen(Bild);
}

}  // namespace tavorena
