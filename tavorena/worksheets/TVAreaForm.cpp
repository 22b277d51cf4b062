#include <cmath>
#include <limits>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/Flaechennachweis.h>
#include <tavorena/worksheets/TVAreaForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr const char *RahmenFläche = "Fläche", *RahmenErgebnis = "Ergebnisse";
constexpr int MeistePunkte = 9990;  // a longer block could not be replayed
enum Spalte { SpaltePnr, SpalteRechts, SpalteHoch, SpalteRadius, SpalteGemessen, SpalteGerechnet, SpalteWS };

std::size_t Stelle(int z) { return static_cast<std::size_t>(z); }

}  // namespace

TVAreaForm::TVAreaForm(const Blattart& BlattArt)
    : Listenblatt(BlattArt),
      Name(Textfeld("Name", "Name:", 0)),
      Bemerkung(Textfeld("Bemerkung", "Bemerkung:", 1)) {
  Nachweis.NachkommaKoordinaten = std::min<int>(Optionen.OptNachkommastellen, 5);
  Gitter& G = ListeAnlegen({{"Punktnr.", PnrZeichen, Zellart::Nummer},
                            {"Rechts", Längenbreite(8)},
                            {"Hoch", Längenbreite(8)},
                            {"Radius", Längenbreite(6), Zellart::Wort, true,
                             [](std::string& Text) {
                               Grenzpunkt P;
                               return RadiusPrüfen(Text, P.Art, P.Radius);
                             }},
                            {"Grenzl.", Längenbreite(5), Zellart::Maß},
                            {"S(ger)", Längenbreite(5)},
                            {"WS", Längenbreite(3)},
                            {"D", Längenbreite(2)}},
                           {true, MeistePunkte, "Mehr als 9990 Punkte nimmt eine Fläche nicht", "Schreiben",
                            "Fläche s&chreiben", "Fläche in Protokoll und Stapeldatei schreiben"});
  G.Hilfe =
      "Radius der Kante zum nächsten Punkt: außen positiv, innen negativ, G dahinter für den langen Bogen";
  G.Auffällig = [this](int z, int s) { return Auffällig(z, s); };
  const auto Ergebnis = [this](const char* Rest, const char* Label, Platz Ort) {
    Feld& F = Ergebnisfeld(Rest, Label, Ort, RahmenErgebnis);
    F.Zeichen = Längenbreite(11);
    return &F;
  };
  Flaeche = Ergebnis("Flaeche", "Fläche (m²):", {0, 0});
  Umring = Ergebnis("Umring", "Umring (m):", {0, 2});
  GKred = Ergebnis("GKred", "GK-reduziert (m²):", {1, 0});
  Bogen = Ergebnis("Bogen", "Bogenfläche (m²):", {1, 2});
  ListenknöpfeAnlegen();
  KnopfAnlegen(
      "AreaPol", "&POL schreiben", [this] { Pol(); }, {0, 2}, RahmenFläche)
      .Hilfe = "Flächennachweis in eine POL-Datei schreiben";
  KnopfAnlegen(
      "AreaPolLesen", "POL lese&n", [this] { PolLesen(); }, {1, 2}, RahmenFläche)
      .Hilfe = "Grenze aus dem Flächennachweis einer POL-Datei nehmen";
}

Feld& TVAreaForm::Textfeld(const char* Rest, const char* Label, int Zeile) {
  BeschriftungAnlegen(Label, {Zeile, 0}, RahmenFläche);
  Feld& F = FeldAnlegen(Mit(Rest), {Zeile, 1}, RahmenFläche, 50);
  F.BeiVerlassen = [&F] {
    F.Text = Trimmen(*F.Text);
    if (StapelTextPaßt(*F.Text)) return true;
    StatusHilfeSetzen("Eine Zeile ohne Steuerzeichen erwartet");
    return false;
  };
  return F;
}

// ---- the boundary ----------------------------------------------------------------------------------

Listenmangel TVAreaForm::Rechnen() {
  Grenze.Punkte.resize(Stelle(Anzahl()));
  Listenmangel M;
  if (Anzahl() == 0) M = {"Punkte fehlen", 0, SpaltePnr, nullptr, true};
  for (int z = 0; z < Anzahl() && M.Text.empty(); ++z) {
    const Listenreihe& Z = Reihe(z);
    Grenzpunkt& P = Grenze.Punkte[Stelle(z)];
    if (Z.Pnr.empty()) M = {"Punktnummer fehlt", z, SpaltePnr, nullptr, true};
    P.Pnr = Z.Pnr;
    P.Ort = Z.Ort;
    P.Gemessen = std::isnan(Z.Maße[0]) ? 0 : Z.Maße[0];
    if (P.Gemessen < 0) M = {"Grenzlänge ist negativ", z, SpalteGemessen};
    if (P.Getippt == Z.Wort) continue;
    P.Getippt = Z.Wort;
    std::string Radius = Z.Wort;
    static_cast<void>(RadiusPrüfen(Radius, P.Art, P.Radius));  // it was good when the cell was read
  }
  if (M.Text.empty()) {
    Grenze.Rechnen();
  } else {
    Grenze.Leeren();
  }
  return M;
}

void TVAreaForm::Zeilenergebnis(int z, std::vector<double>& Ziel) const {
  const Listenreihe& Z = Reihe(z);
  if (Z.Pnr.empty()) return;
  Ziel.assign({Z.Ort.RW, Z.Ort.HW});
  if (Stelle(z) >= Grenze.Punkte.size()) return;
  Ziel.push_back(Grenze.Werte().Kanten[Stelle(z)].Laenge);
  double WS = 0, D = 0;
  if (Grenze.Abweichung(Stelle(z), WS, D)) Ziel.insert(Ziel.end(), {WS, D});
}

bool TVAreaForm::Auffällig(int z, int s) const {
  if (Stelle(z) >= Grenze.Punkte.size()) return false;
  if (s == SpalteRadius || s == SpalteGerechnet) return Grenze.Werte().Kanten[Stelle(z)].SehneZuLang;
  return s == SpalteWS && Grenze.WeichtAb(Stelle(z));
}

void TVAreaForm::ZeigeBerechnung() {
  const bool Da = Gerechnet();
  Flaeche->Text = Da ? Längentext(Grenze.Flaeche()) : "";
  Umring->Text = Da ? Längentext(Grenze.Werte().Umring) : "";
  Bogen->Text = Da && Grenze.MitBogen() ? Längentext(Grenze.Werte().Bogenflaeche) : "";
  GKred->Text = "";
  if (Da && !Grenze.GKred().IstGegeben()) GKred->Text = "keine GK-Koord.";
  if (Da && Grenze.GKred().IstGegeben() && Optionen.GKreduzierteFlaechen)
    GKred->Text = Längentext(Grenze.GKred());
  Bild.Zeigen(Grenze);
  const std::string Text = Grenze.Urteil();
  if (!ImStapel() && Text != Gemeldet) StatusHilfeSetzen(Text);
  Gemeldet = Text;
}

// ---- the records -----------------------------------------------------------------------------------

Listenakte TVAreaForm::Akte() const {
  return {StapelFlaeche(Grenze.Eingabe(Name.Text, Bemerkung.Text)), "",
          FlaechenBlock(Optionen.OptNachkommastellen, Grenze.Protokoll(Name.Text, Bemerkung.Text),
                        Optionen.OptWarnstufe)};
}

void TVAreaForm::FelderLeeren() { Name.Text = Bemerkung.Text = ""; }

int TVAreaForm::Füllen(const Flaecheneingabe& E) {
  Name.Text = E.Name;
  Bemerkung.Text = E.Bemerkung;
  std::vector<Zeileneingabe> Zeilen;
  for (const Kanteneingabe& K : E.Kanten) {
    const double Gemessen = K.Grenzlaenge == 0 ? std::numeric_limits<double>::quiet_NaN() : K.Grenzlaenge;
    const Kantenart Gebaut = K.Radius == 0 ? Kantenart::Linie : K.Art;
    Zeilen.push_back({K.Pnr, {Gemessen}, "", Radiustext(Gebaut, std::fabs(K.Radius))});
  }
  return ReihenSetzen(std::move(Zeilen));
}

int TVAreaForm::BlockLesen() {
  Flaecheneingabe E;
  return StapelLeseFlaeche(E) < 0 ? -1 : Füllen(E);
}

// ---- the proof -------------------------------------------------------------------------------------

void TVAreaForm::Pol() {
  BeiTabelle();
  if (!Gerechnet()) return StatusHilfeSetzen("Die Fläche ist nicht zu rechnen");
  // A proof has no mark that would tell it.
  if (const std::string Fehler = Grenze.Bogenfehler(); !Fehler.empty()) return StatusHilfeSetzen(Fehler);
  Nachweis.Name = Name.Text;
  Nachweis.Bemerkung = Bemerkung.Text;
  Nachweis.Flaeche = Grenze.Flaeche();
  Nachweis.Kanten = Grenze.Polkanten();
  if (NachweisSchreiben(Nachweis) == 0) StatusHilfeSetzen("Flächennachweis geschrieben");
}

void TVAreaForm::PolLesen() {
  Polnachweis N;
  if (NachweisWählen(N) < 0) return;
  if (std::ssize(N.Kanten) > MeistePunkte) return StatusHilfeSetzen("Der Nachweis hat mehr als 9990 Punkte");
  if (!LeerenErlaubt() || FehlendePunkteSpeichern(N, Gespeichert) < 0) return;
  Flaecheneingabe E{N.Name, N.Bemerkung, {}};
  for (const Polkante& K : N.Kanten) E.Kanten.push_back({K.Punkt.Pnr, K.Art, K.Radius, 0});
  static_cast<void>(Füllen(E));  // its points are there
  NeuRechnen();
  FokusSetzen(Zellen());
}

bool TVAreaForm::Zurücknehmen() {
  if (Gespeichert.Leer()) return false;
  static_cast<void>(Gespeichert.Zurück());  // what hinders it is told
  return true;
}

}  // namespace tavorena
