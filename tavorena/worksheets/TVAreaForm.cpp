#include <algorithm>
#include <cmath>
#include <limits>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelsatz.h>
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
  KnopfAnlegen(
      "AreaPol", "&POL schreiben", [this] { Pol(); }, {0, 2}, RahmenFläche)
      .Hilfe = "Flächennachweis in eine POL-Datei schreiben";
  KnopfAnlegen(
      "AreaPolLesen", "POL lese&n", [this] { PolLesen(); }, {1, 2}, RahmenFläche)
      .Hilfe = "Grenze aus dem Flächennachweis einer POL-Datei nehmen";
  Bemerkung.BeiReturn = [this] { FokusSetzen(Zellen()); };
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
  Grenze.AnzahlSetzen(Stelle(Anzahl()));
  Listenmangel M;
  if (Anzahl() == 0) M = {"Punkte fehlen", 0, SpaltePnr, nullptr, true};
  for (int z = 0; z < Anzahl() && M.Text.empty(); ++z) {
    const Listenreihe& Z = Reihe(z);
    PunktNehmen(Stelle(z), Z);
    if (Z.Pnr.empty()) M = {"Punktnummer fehlt", z, SpaltePnr, nullptr, true};
    if (Z.Maße[0] < 0) M = {"Grenzlänge ist negativ", z, SpalteGemessen};
  }
  if (M.Text.empty()) {
    Grenze.Rechnen();
  } else {
    Grenze.AnzahlSetzen(0);
    Andere.clear();
  }
  return M;
}

// A row as it is typed; most are as they were.
void TVAreaForm::PunktNehmen(std::size_t i, const Listenreihe& Z) {
  const Grenzpunkt& Alter = Grenze.Punkt(i);
  const double Gemessen = std::isnan(Z.Maße[0]) ? 0 : Z.Maße[0];
  if (Grenze.Ort(i) == Z.Ort && Grenze.Grenzlaenge(i) == Gemessen && Alter.Pnr == Z.Pnr &&
      Alter.Getippt == Z.Wort)
    return;
  Grenzpunkt P{Z.Pnr, Kantenart::Linie, 0, Z.Wort};
  std::string Radius = Z.Wort;
  static_cast<void>(RadiusPrüfen(Radius, P.Art, P.Radius));  // it was good when the cell was read
  Grenze.Setzen(i, Z.Ort, std::move(P), Gemessen);
  Andere.push_back(i);
}

// An edge lies between its point and the next one.
bool TVAreaForm::ZeileBleibt(int z) const {
  const std::size_t i = Stelle(z);
  const auto Anders = [&](std::size_t k) { return std::binary_search(Andere.begin(), Andere.end(), k); };
  return i < Grenze.Anzahl() && !Anders(i) && !Anders(Grenze.Danach(i));
}

void TVAreaForm::Zeilenergebnis(int z, std::vector<double>& Ziel) const {
  const std::size_t i = Stelle(z);
  if (i < Grenze.Anzahl()) {
    Ziel.resize(5, std::numeric_limits<double>::quiet_NaN());
    Ziel[0] = Grenze.Ort(i).RW;
    Ziel[1] = Grenze.Ort(i).HW;
    Ziel[2] = Grenze.Werte().Kanten[i].Laenge;
    static_cast<void>(Grenze.Abweichung(i, Ziel[3], Ziel[4]));
  } else if (const Listenreihe& Z = Reihe(z); !Z.Pnr.empty()) {
    Ziel = {Z.Ort.RW, Z.Ort.HW};
  }
}

bool TVAreaForm::Auffällig(int z, int s) const {
  if (Stelle(z) >= Grenze.Anzahl()) return false;
  if (s == SpalteRadius || s == SpalteGerechnet) return Grenze.Werte().Kanten[Stelle(z)].SehneZuLang;
  return s == SpalteWS && Grenze.WeichtAb(Stelle(z));
}

void TVAreaForm::ZeigeBerechnung() {
  const bool Da = Gerechnet();
  Flaeche->Text = Da ? Längentext(Grenze.Flaeche()) : "";
  Umring->Text = Da ? Längentext(Grenze.Werte().Umring) : "";
  Bogen->Text = Da && Grenze.MitBogen() ? Längentext(Grenze.Werte().Bogenflaeche) : "";
  const bool MitGK = Da && Grenze.GKred().IstGegeben();
  GKred->Text = Da && !MitGK ? "keine GK-Koord." : "";
  if (MitGK && Optionen.GKreduzierteFlaechen) GKred->Text = Längentext(Grenze.GKred());
  Bild.Zeigen(Grenze, Andere);
  Andere.clear();
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
  std::vector<Zeileneingabe> Zeilen;
  for (const Kanteneingabe& K : E.Kanten) Zeilen.push_back(Grenzzeile(K));
  if (ReihenSetzen(std::move(Zeilen)) < 0) return -1;
  Name.Text = E.Name;
  Bemerkung.Text = E.Bemerkung;
  return 0;
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
  if (Füllen(AlsEingabe(N)) == 0) NeuRechnen();
  FokusSetzen(Zellen());
}

}  // namespace tavorena
