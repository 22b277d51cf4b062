#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/TVDreiDForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const RahmenPunkte = "Punkte";

// What the points of a kind are, and the one that it makes.
struct Namen {
  const char *Punkte[3], *Neu;
};
const Namen& NamenVon(DreiDArt Art) {
  static constexpr Namen Alle[] = {
      {{"von", "nach"}, ""},
      {{"Punkt 1", "Punkt 2"}, "Mitte"},
      {{"Punkt 1", "Punkt 2", "Punkt 3"}, "Schwerpunkt"},
      {{"Gerade von", "Gerade nach", "Lot von"}, "Fußpunkt"},
      {{"oberes Ziel", "unteres Ziel"}, "Spitze"},
      {{"Schenkel von", "Scheitel", "Schenkel nach"}, ""},
  };
  return Alle[static_cast<std::size_t>(Art)];
}

}  // namespace

TVDreiDForm::TVDreiDForm(const Blattart& BlattArt)
    : Fallblatt(BlattArt), Wie(DreiDVon(BlattArt.VR).value_or(DreiDArt::Raumstrecke)) {
  PunkteAnlegen();
  if (DreiDMitNeupunkt(Wie)) LösungAnlegen("", NamenVon(Wie).Neu, false);
  WerteAnlegen();
  FallAnlegen();
}

void TVDreiDForm::PunkteAnlegen() {
  const int Anzahl = DreiDPunkte(Wie);
  for (int i = 1; i <= Anzahl; ++i)
    PunktAnlegen("_", NamenVon(Wie).Punkte[i - 1], RahmenPunkte, i, true, std::to_string(i));
  PunktfeldKopf(*this, RahmenPunkte);
  if (Wie != DreiDArt::Kanalmessstab) return;
  Feld& Abstand = MaßAnlegen("Abstand", "Abstand", {Anzahl + 1, 0}, RahmenPunkte).Eingabe;
  Abstand.Bezeichnung = "Abstand";
  Abstand.Hilfe = "Vom unteren Ziel zur Spitze; negativ: zurück zum oberen";
}

void TVDreiDForm::WerteAnlegen() {
  int Zeile = 0;
  if (DreiDMitNeupunkt(Wie)) HöheFeld = &ErgebnisAnlegen("_NeuHoehe", "Höhe (m):", 0, Zeile++);
  if (Wie == DreiDArt::Kanalmessstab) return;  // its value is typed
  for (const DreiDWert& W : DreiDWerte(Wie)) {
    const std::string Label = std::string(W.Name) + (W.Gon ? " (gon):" : " (m):");
    Wertfelder.push_back(&ErgebnisAnlegen(W.Name, Label.c_str(), 0, Zeile++));
  }
}

// @return 0; -1: points coincide
int TVDreiDForm::Engine(Raumlage& Neu) {
  std::vector<Raumlage> P;
  for (const Punktfeld& F : Punkte) P.push_back({F.Ort(), F.Hoehe()});
  Werte.assign(DreiDWerte(Wie).size(), 0);
  switch (Wie) {
    case DreiDArt::Raumstrecke: {
      Raumstreckenwerte W;
      const int Ergebnis = RaumstreckeBerechnung(P[0], P[1], W);
      Werte = {W.Raumstrecke, W.Horizontalstrecke, W.Hoehenunterschied, W.Richtungswinkel, W.Zenitwinkel};
      return Ergebnis;
    }
    case DreiDArt::Lotabstand:
      return RaumlotBerechnung(P[0], P[1], P[2], Neu, Werte[0]);
    case DreiDArt::Kanalmessstab:
      Werte[0] = Maße[0].Zahl();
      return KanalmessstabBerechnung(P[0], P[1], Werte[0], Neu);
    case DreiDArt::Winkel:
      return RaumwinkelBerechnung(P[0], P[1], P[2], Werte[0], Werte[1]);
    default:
      Neu = Raumschwerpunkt(P);
      return 0;
  }
}

std::string TVDreiDForm::Rechnen() {
  NichtsZeigen();
  Raumlage Neu;
  if (Engine(Neu) < 0) return "Punkte sind gleich";
  for (std::size_t i = 0; i < Wertfelder.size(); ++i)
    Wertfelder[i]->Text = DreiDWerte(Wie)[i].Gon ? ZahlFormat(Werte[i], -1, 4) : Längentext(Werte[i]);
  if (Lösungen.empty()) return "";
  Lösungen[0].Zeigen(Neu.Ort);
  Lösungen[0].Hoehe = Neu.Hoehe;
  HöheFeld->Text = Längentext(Neu.Hoehe);
  return "";
}

// What is measured is worth its lines without a point.
bool TVDreiDForm::OhneNummer() const { return Lösungen.empty() || Wie == DreiDArt::Lotabstand; }

// As the table has it: an answer to a taken number may have changed it.
Raumpunkt TVDreiDForm::NeuerPunkt() const {
  const Protpunkt P = Lösungen[0].AlsProtpunkt();
  Raumpunkt R{P.Pnr, P.Rechts, P.Hoch, Lösungen[0].Hoehe.Zahl(), ""};
  if (const int z = P.Pnr.empty() ? -1 : KorSuche(std::string_view(P.Pnr)); z >= 0)
    R.Hoehe = KorPunkt(z).Hoehe;
  return R;
}

ProtdreiD TVDreiDForm::AlsProt() const {
  ProtdreiD D{Wie, {}, Werte, {}};
  for (const Punktfeld& P : Punkte)
    D.Punkte.push_back({P.Nummer(), P.Ort().RW, P.Ort().HW, P.Hoehe(), P.Symbol()});
  if (!Lösungen.empty()) D.Neu = NeuerPunkt();
  return D;
}

Block TVDreiDForm::Protokollieren() { return MitNotiz(DreiDBlock(Optionen.OptNachkommastellen, AlsProt())); }

Block TVDreiDForm::Streichzeile(const Fallpunkt& /*L*/) {
  return DreiDZeile(Optionen.OptNachkommastellen, NeuerPunkt(), MarkeGelöscht);
}

Block TVDreiDForm::StreichzeilenOhnePunkt() {
  return DreiDWertzeilen(Optionen.OptNachkommastellen, AlsProt(), MarkeGelöscht);
}

std::vector<std::string> TVDreiDForm::Sätze() {
  DreiDEingabe E;
  for (const Punktfeld& P : Punkte) E.Pnr.push_back(P.Nummer());
  if (!Lösungen.empty()) E.NeuPnr = Lösungen[0].Eingabe().Pnr;
  if (!Maße.empty()) E.Abstand = Maße[0].Zahl();
  return StapelDreiD(Wie, E);
}

int TVDreiDForm::StapelLesen() {
  DreiDEingabe E;
  if (StapelLeseDreiD(Wie, E) < 0) return -1;
  for (std::size_t i = 0; i < Punkte.size(); ++i) Punkte[i].Pnr.Text = E.Pnr[i];
  if (!Lösungen.empty()) Lösungen[0].Setzen({E.NeuPnr, ""});
  if (!Maße.empty()) Maße[0].Setzen(E.Abstand);
  return 0;
}

void TVDreiDForm::Zeichnen(Markierung& Bild) {
  for (std::size_t i = 1; i < Punkte.size(); ++i) {
    const Lage A = Punkte[i - 1].Ort(), B = Punkte[i].Ort();
    if (Punkte[i - 1].Gesetzt() && Punkte[i].Gesetzt()) Bild.Linie({A.RW, A.HW, B.RW, B.HW, FarbeRot});
  }
  if (Lösungen.empty() || !Lösungen[0].Da() || Wie == DreiDArt::Mitte) return;
  const Lage A = Punkte.back().Ort(), N = Lösungen[0].Ort;
  Bild.Linie({A.RW, A.HW, N.RW, N.HW, FarbeRot});
}

}  // namespace tavorena
