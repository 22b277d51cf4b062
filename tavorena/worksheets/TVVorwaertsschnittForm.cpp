#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVVorwaertsschnittForm.h>

namespace tavorena {

TVVorwaertsschnittForm::Stand::Stand(TVVorwaertsschnittForm& Blatt, const std::string& Nummer,
                                     const char* Rahmen)
    : Fern(Blatt.PunktAnlegen("Fern", "Fernpkt.", Rahmen, 1, true, Nummer)),
      FernRichtung(Blatt.MaßAnlegen("FernRichtung" + Nummer, "", {1, 6}, Rahmen)),
      Ort(Blatt.PunktAnlegen("Stand", "Standpkt.", Rahmen, 2, true, Nummer)),
      NeuRichtung(Blatt.MaßAnlegen("NeuRichtung" + Nummer, "Neupkt.", {2, 6}, Rahmen)),
      Vertikal(Blatt.MaßAnlegen("Vertikal" + Nummer, "Vk", {3, 6}, Rahmen, false)) {
  PunktfeldKopf(Blatt, Rahmen);
  Blatt.BeschriftungAnlegen("Richtung", {0, 7}, Rahmen).Rechtsbündig = true;
  FernRichtung.Eingabe.Hilfe = "Ablesung auf dem Fernpunkt in gon";
  NeuRichtung.Eingabe.Hilfe = "Ablesung auf dem Neupunkt in gon";
  Vertikal.Eingabe.Bezeichnung = "Vertikalwinkel, " + std::string(Rahmen);
  Vertikal.Eingabe.Hilfe = "Zenitwinkel zum Neupunkt in gon; leer: waagerecht";
}

VorwStation TVVorwaertsschnittForm::Stand::AlsStation() const {
  return {Ort.Ort(), Fern.Ort(), FernRichtung.Zahl(), NeuRichtung.Zahl(), Ort.Hoehe(), Vertikal.Zahl()};
}

Protstation TVVorwaertsschnittForm::Stand::AlsProtstation() const {
  return {Ort.AlsProtpunkt(), NeuRichtung.Zahl(), Fern.AlsProtpunkt(), FernRichtung.Zahl()};
}

Standeingabe TVVorwaertsschnittForm::Stand::Eingabe() const {
  return {Fern.Nummer(), FernRichtung.Zahl(), Ort.Nummer(), NeuRichtung.Zahl(), Vertikal.Zahl()};
}

void TVVorwaertsschnittForm::Stand::Setzen(const Standeingabe& E) {
  Fern.Pnr.Text = E.FernPnr;
  FernRichtung.Setzen(E.FernRichtung);
  Ort.Pnr.Text = E.StandPnr;
  NeuRichtung.Setzen(E.NeuRichtung);
  Vertikal.Setzen(E.Vertikal);
}

TVVorwaertsschnittForm::TVVorwaertsschnittForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt),
      S{Stand(*this, "1", "Standpunkt 1"), Stand(*this, "2", "Standpunkt 2")},
      Neu(LösungAnlegen("", "Neupunkt")),
      TauFeld(ErgebnisAnlegen("Tau", "Tau (gon):", 0)),
      HöheFeld(ErgebnisAnlegen("NeuHoehe", "Höhe:", 2)),
      ParallaxeFeld(ErgebnisAnlegen("Parallaxe", "Parallaxe:", 4)) {
  FallAnlegen();
}

// What would give a point that means nothing.
std::string TVVorwaertsschnittForm::Standfehler() {
  for (Stand& A : S) {
    if (A.Fern.Ort() != A.Ort.Ort()) continue;
    Grundfeld = &A.Ort.Pnr;
    return "Fernpunkt und Standpunkt sind gleich";
  }
  if (S[0].Ort.Ort() != S[1].Ort.Ort()) return "";
  Grundfeld = &S[1].Ort.Pnr;
  return "Die Standpunkte sind gleich";
}

std::string TVVorwaertsschnittForm::Rechnen() {
  NichtsZeigen();
  Neu.Hoehe = {};
  if (std::string Fehler = Standfehler(); !Fehler.empty()) return Fehler;
  const VorwStation A = S[0].AlsStation(), B = S[1].AlsStation();
  if (VorwaertsschnittEbene(A, B, Werte) < 0) {
    if (ErstmalsGesagt()) LaufzeitFehlerMeldung(Laufzeitfehler::DivisionDurchNull, FormName + ".VorwCalc");
    Grundfeld = &S[1].NeuRichtung.Eingabe;
    return "Die Strahlen sind parallel";
  }
  Neu.Zeigen({Werte.NeuRechts, Werte.NeuHoch});
  TauFeld.Text = ZahlFormat(Werte.TauGon, -1, 4);
  TauFeld.Fehlerhaft = VorwaertsWarnung(Werte.TauGon, Optionen.OptWarnstufe) != Warnung::Keine;
  if (TauFeld.Fehlerhaft) StatusHilfeSetzen("schleifender Schnitt: Tau nicht zwischen 20 und 180 gon");
  if (Optionen.FStatMitHoehe) HöheZeigen(A, B);
  return "";
}

// A height that a station lacks would be missing in the mean: the point is then stored without one.
void TVVorwaertsschnittForm::HöheZeigen(const VorwStation& A, const VorwStation& B) {
  VorwaertsschnittHoehe(A, B, Werte);
  HöheFeld.Text = Längentext(Werte.VorwNeuHoehe);
  ParallaxeFeld.Text = Längentext(Werte.VorwParallaxe);
  std::string Ohne;
  for (const Stand& Station : S) {
    if (Station.Ort.Hoehe() == 0) Ohne += (Ohne.empty() ? "" : ", ") + Station.Ort.Nummer();
  }
  HöheFeld.Fehlerhaft = ParallaxeFeld.Fehlerhaft = !Ohne.empty();
  if (Ohne.empty()) {
    Neu.Hoehe = Werte.VorwNeuHoehe;
  } else {
    StatusHilfeSetzen("Höhe von " + Ohne + " fehlt");
  }
}

Block TVVorwaertsschnittForm::Protokollieren() {
  const bool MitHöhe = Optionen.FStatMitHoehe;
  return MitNotiz(VorwaertsBlock(
      Optionen.OptNachkommastellen,
      {S[0].AlsProtstation(), S[1].AlsProtstation(), Neu.AlsProtpunkt(), Werte.TauGon,
       MitHöhe ? Wert(Werte.VorwNeuHoehe) : Wert(), MitHöhe ? Wert(Werte.VorwParallaxe) : Wert()},
      Optionen.OptWarnstufe));
}

Block TVVorwaertsschnittForm::Streichzeile(const Fallpunkt& L) {
  return VorwaertsZeile(Optionen.OptNachkommastellen, L.AlsProtpunkt(), Werte.TauGon, MarkeGelöscht);
}

std::vector<std::string> TVVorwaertsschnittForm::Sätze() {
  const Neupunkteingabe E = Neu.Eingabe();
  return StapelVorwaertsschnitt({{S[0].Eingabe(), S[1].Eingabe()}, E.Pnr, E.Symbol});
}

int TVVorwaertsschnittForm::StapelLesen() {
  Vorwaertseingabe E;
  if (StapelLeseVorwaertsschnitt(E) < 0) return -1;
  for (std::size_t i = 0; i < S.size(); ++i) S[i].Setzen(E.Stand[i]);
  Neu.Setzen({E.NeuPnr, E.Symbol});
  return 0;
}

void TVVorwaertsschnittForm::Zeichnen(Markierung& Bild) {
  for (const Stand& Station : S) {
    if (!Station.Ort.Gesetzt()) continue;
    const Lage A = Station.Ort.Ort(), F = Station.Fern.Ort();
    if (Station.Fern.Gesetzt()) Bild.Linie({A.RW, A.HW, F.RW, F.HW, FarbeRot});
    if (Neu.Da()) Bild.Linie({A.RW, A.HW, Neu.Ort.RW, Neu.Ort.HW, FarbeRot});
  }
}

}  // namespace tavorena
