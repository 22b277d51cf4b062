#include <tavorena/calc/Einschnitte.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/TVRueckwaertsschnittForm.h>

namespace tavorena {
namespace {

const char *const RahmenVerfahren = "Verfahren", *const RahmenPunkte = "Bekannte Punkte";

}  // namespace

TVRueckwaertsschnittForm::TVRueckwaertsschnittForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt),
      Cassini(VerfahrenAnlegen("Cassini", 0)),
      Collins(VerfahrenAnlegen("Collins", 1)),
      Z{ZielAnlegen(1), ZielAnlegen(2), ZielAnlegen(3)},
      Neu(LösungAnlegen("", "Neupunkt")),
      Tau1Feld(ErgebnisAnlegen("Tau1", "Tau1 (gon):", 0)),
      Tau2Feld(ErgebnisAnlegen("Tau2", "Tau2 (gon):", 2)) {
  Cassini.Gewählt = true;
  PunktfeldKopf(*this, RahmenPunkte);
  BeschriftungAnlegen("Richtung", {0, 7}, RahmenPunkte).Rechtsbündig = true;
  FallAnlegen();
}

Auswahl& TVRueckwaertsschnittForm::VerfahrenAnlegen(const char* Name, int Spalte) {
  Auswahl& A = OptionAnlegen(Mit(std::string("wOption") + Name), Name, {0, Spalte}, RahmenVerfahren);
  A.BeiWahl = [this] { OptionGeändert(); };
  return A;
}

TVRueckwaertsschnittForm::Ziel TVRueckwaertsschnittForm::ZielAnlegen(int Nummer) {
  constexpr const char* Namen[] = {"links", "Mitte", "rechts"};
  const std::string n = std::to_string(Nummer);
  Punktfeld& P = PunktAnlegen("_", Namen[Nummer - 1], RahmenPunkte, Nummer, true, n);
  Messfeld& R = MaßAnlegen("_Richtung" + n, "", {Nummer, 6}, RahmenPunkte);
  R.Eingabe.Hilfe = "Ablesung auf dem Punkt in gon";
  return {P, R};
}

// The method stands before the points, but the work begins with them.
void TVRueckwaertsschnittForm::BeiÖffnen() {
  Fallblatt::BeiÖffnen();
  if (!ImStapel()) FokusSetzen(Z[0].Punkt.Pnr);
}

std::string TVRueckwaertsschnittForm::Doppelt() {
  for (std::size_t i = 1; i < Z.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      if (Z[i].Punkt.Ort() != Z[k].Punkt.Ort()) continue;
      Grundfeld = &Z[i].Punkt.Pnr;
      const std::string &Dieser = Z[i].Punkt.Nummer(), &Anderer = Z[k].Punkt.Nummer();
      return "Punkt " + Dieser + (Dieser == Anderer ? " steht zweimal" : " liegt auf " + Anderer);
    }
  }
  return "";
}

// @return "", or why there is no point
std::string TVRueckwaertsschnittForm::Einschneiden() {
  const auto P = [this](std::size_t i) { return RueckPunkt{Z[i].Punkt.Ort(), Z[i].Richtung.Zahl()}; };
  Rueckwaertsschnittwerte W;
  const int Ergebnis = Collins.Gewählt ? RueckwaertsschnittCollins(P(0), P(1), P(2), W, RueckTau::Blatt)
                                       : RueckwaertsschnittCassini(P(0), P(1), P(2), W);
  Tau1 = W.TauGon1;
  Tau2 = W.TauGon2;
  if (Ergebnis == 0) {
    Neu.Zeigen({W.NeuRechts, W.NeuHoch});
    return "";
  }
  const bool MitBox = ErstmalsGesagt();
  if (Ergebnis == -1) {
    Grundfeld = &Z[1].Richtung.Eingabe;
    if (MitBox) Hinweis("Berechnung nicht möglich: Zwei Richtungen sind gleich !");
    return "Zwei Richtungen sind gleich";
  }
  if (Ergebnis == -2) {
    Grundfeld = &Z[2].Richtung.Eingabe;
    if (MitBox) {
      Hinweis(
          "Berechnung unter vorliegender Geometrie streng nach Cassini nicht möglich ! Verfälschen Sie bitte "
          "den 1. oder 3. Winkel um einen differenziellen Wert");
    }
    return "streng nach Cassini nicht möglich";
  }
  if (MitBox) LaufzeitFehlerMeldung(Laufzeitfehler::DivisionDurchNull, FormName + ".RueckCalcCollins");
  return "nach Collins nicht möglich";
}

std::string TVRueckwaertsschnittForm::Rechnen() {
  NichtsZeigen();
  std::string Fehler = Doppelt();
  if (Fehler.empty()) Fehler = Einschneiden();
  if (Fehler.empty()) Beurteilen();
  return Fehler;
}

// What the protocol will say of it is seen before it is stored.
void TVRueckwaertsschnittForm::Beurteilen() {
  Tau1Feld.Text = ZahlFormat(Tau1, -1, 4);
  Tau2Feld.Text = ZahlFormat(Tau2, -1, 4);
  const Rueckwaertsurteil U = RueckwaertsUrteil(AlsProtrueckwaerts());
  Tau1Feld.Fehlerhaft = U.Verteilung != Warnung::Keine;
  Tau2Feld.Fehlerhaft = U.Kreis != Warnung::Keine;
  if (!U.Texte.empty()) StatusHilfeSetzen(Trimmen(U.Texte.back()));
}

Protrueckwaerts TVRueckwaertsschnittForm::AlsProtrueckwaerts() const {
  Protrueckwaerts R{Collins.Gewählt, {}, Tau1, Tau2, Neu.AlsProtpunkt()};
  for (std::size_t i = 0; i < Z.size(); ++i) R.Punkte[i] = {Z[i].Punkt.AlsProtpunkt(), Z[i].Richtung.Zahl()};
  return R;
}

Block TVRueckwaertsschnittForm::Protokollieren() {
  return MitNotiz(RueckwaertsBlock(Optionen.OptNachkommastellen, AlsProtrueckwaerts()));
}

Block TVRueckwaertsschnittForm::Streichzeile(const Fallpunkt& L) {
  return RueckwaertsZeile(Optionen.OptNachkommastellen, L.AlsProtpunkt(), MarkeGelöscht);
}

std::vector<std::string> TVRueckwaertsschnittForm::Sätze() {
  const Neupunkteingabe N = Neu.Eingabe();
  Rueckwaertseingabe E{Collins.Gewählt, {}, N.Pnr, N.Symbol};
  for (std::size_t i = 0; i < Z.size(); ++i) E.Punkte[i] = {Z[i].Punkt.Nummer(), Z[i].Richtung.Zahl()};
  return StapelRueckwaertsschnitt(E);
}

int TVRueckwaertsschnittForm::StapelLesen() {
  Rueckwaertseingabe E;
  if (StapelLeseRueckwaertsschnitt(E) < 0) return -1;
  Collins.Gewählt = E.Collins;
  Cassini.Gewählt = !E.Collins;
  for (std::size_t i = 0; i < Z.size(); ++i) {
    Z[i].Punkt.Pnr.Text = E.Punkte[i].Pnr;
    Z[i].Richtung.Setzen(E.Punkte[i].Richtung);
  }
  Neu.Setzen({E.NeuPnr, E.Symbol});
  return 0;
}

void TVRueckwaertsschnittForm::Zeichnen(Markierung& Bild) {
  if (!Neu.Da()) return;
  for (const Ziel& Sicht : Z) {
    const Lage P = Sicht.Punkt.Ort();
    Bild.Linie({Neu.Ort.RW, Neu.Ort.HW, P.RW, P.HW, FarbeRot});
  }
}

}  // namespace tavorena
