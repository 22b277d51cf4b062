#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/rawdata/Nivellementdatei.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVNivForm.h>

namespace tavorena {
namespace {

constexpr const char *RahmenHöhen = "Festpunkte", *RahmenErgebnis = "Abschluß";
constexpr const char* FilterHöhen = "Höhenliste (*.hli)|*.hli";
constexpr int MeisteZeilen = 4900;  // a longer block, with the heights of its points, could not be replayed
constexpr int Lesestellen = 5, Höhenstellen = 4;
enum Spalte { SpaltePnr, SpalteR, SpalteZ, SpalteV, SpaltesR, SpaltesV, SpalteFest, SpalteHöhe, Spaltev };
enum Maß { MaßR, MaßZ, MaßV, MaßsR, MaßsV, MaßFest };

constexpr struct {
  const char *Rest, *Label;
  Platz Ort;
} Felder[] = {{"FH", "FH (m):", {0, 0}},          {"FHzul", "FH(zul) (m):", {1, 0}},
              {"L", "L (km):", {0, 2}},           {"s0", "s0 (mm/km):", {1, 2}},
              {"SummeR", "Summe R (m):", {0, 4}}, {"SummeV", "Summe V (m):", {1, 4}}};

// The cell where a fault is mended.
int Fehlerspalte(const Nivmangel& M) {
  switch (M.Fehler) {
    case NivellementWertFalsch:
      return SpaltesR;
    case NivellementZwischenAllein:
      return SpalteZ;
    case NivellementFestVerschieden:
    case NivellementFestpunktFehlt:
      return SpalteFest;
    default:
      return SpalteR;
  }
}

// The closed section that comes nearest to its tolerance, or exceeds it most.
const NivellementAbschnitt* Schlechtester(const Nivrechnung& R) {
  const auto Anteil = [](const NivellementAbschnitt& A) {
    return A.Geschlossen ? std::fabs(A.FH) / A.FHZulaessig : -1;
  };
  const auto A = std::ranges::max_element(R.Werte.Abschnitte, {}, Anteil);
  return A == R.Werte.Abschnitte.end() || !A->Geschlossen ? nullptr : &*A;
}

bool BemerkungPrüfen(std::string& Text) {
  if (StapelTextPaßt(Text)) return true;
  StatusHilfeSetzen("Bemerkung ohne Steuerzeichen");
  return false;
}

}  // namespace

TVNivForm::TVNivForm(const Blattart& BlattArt)
    : Listenblatt(BlattArt),
      HöhenDatei((BeschriftungAnlegen("Höhenliste:", {0, 0}, RahmenHöhen),
                  FeldAnlegen(Mit("HöhenDatei"), {0, 1, 3}, RahmenHöhen, 38))),
      Klasse((KnopfAnlegen(
                  Mit("Wahl"), "...", [this] { HöhendateiWählen(); }, {0, 4}, RahmenHöhen),
              BeschriftungAnlegen("FH(zul) für 1 km (mm):", {0, 5}, RahmenHöhen),
              Formular::ListeAnlegen(Mit("Klasse"), {"5", "10", "15"}, "15", {0, 6}, RahmenHöhen))),
      NivGitter(Listenblatt::ListeAnlegen(
          {{"Punktnr.", 11, Zellart::Nummer},
           {"Rück", 8, Zellart::Maß, true, nullptr, Lesestellen},
           {"Zwischen", 8, Zellart::Maß, true, nullptr, Lesestellen},
           {"Vor", 8, Zellart::Maß, true, nullptr, Lesestellen},
           {"sR", 7, Zellart::Maß},
           {"sV", 7, Zellart::Maß},
           {"Fest", 4, Zellart::Fest},
           {"Höhe", 9, Zellart::Vorgabe, true, nullptr, Höhenstellen},
           {"v", 7, Zellart::Ergebnis, true, nullptr, Höhenstellen},
           {"Bem.", 13, Zellart::Wort, true, BemerkungPrüfen}},
          {false, MeisteZeilen, "Mehr als 4900 Zeilen nimmt ein Nivellement nicht", "Rechnen", "&Rechnen",
           "Nivellement in Protokoll und Stapeldatei schreiben"})) {
  for (const auto& F : Felder) Ergebnisse.push_back(&Ergebnisfeld(F.Rest, F.Label, F.Ort, RahmenErgebnis));
  HöhenDatei.Hilfe =
      "Festpunkte sind die Punkte dieser Liste; ohne Liste im Gitter bei Fest ein Zeichen tippen";
  HöhenDatei.BeiVerlassen = [this] { return HöhendateiLesen(); };
  HöhenDatei.BeiReturn = [this] { FokusSetzen(NivGitter); };
  Klasse.BeiWahl = [this] { NeuRechnen(); };
  NivGitter.Hilfe =
      "Fest: die Höhe kommt aus der Höhenliste oder der Tabelle; eine getippte Höhe gilt als fest";
  NivGitter.Spalten.back().Rechtsbündig = false;
  NivGitter.Auffällig = [this](int z, int s) { return Auffällig(z, s); };
  ListenknöpfeAnlegen({{"AusDatei", "aus &Datei", [this] { AusDatei(); }},
                       {"Übernehmen", "&Übernehmen", [this] { Übernehmen(); }}});
}

// ---- the known heights -----------------------------------------------------------------------------

void TVNivForm::HöhendateiWählen() {
  const std::string Neue = DateiFragen("Höhenliste", FilterHöhen, "*.hli", false);
  if (Neue.empty()) return;
  HöhenDatei.Text = Neue;
  if (Lesen(HöhenDatei)) FokusSetzen(NivGitter);
}

// Every point of a list that is read becomes a known one.
bool TVNivForm::HöhendateiLesen() {
  std::string Neue = Trimmen(*HöhenDatei.Text);
  if (!Neue.empty()) EndungErgänzen(Neue, "*.hli");
  HöhenDatei.Text = Neue;
  if (Neue == HöhenGelesen) return true;
  std::vector<Höhenpunkt> Punkte;
  int Andere = 0;
  if (!Neue.empty() && HöhenlisteLesen(Neue, Punkte, Andere) < 0) return false;
  HöhenGelesen = Neue;
  Höhen = std::move(Punkte);
  if (Neue.empty()) return true;
  std::vector<Zeileneingabe> Zeilen;
  for (int z = 0; z < Anzahl(); ++z) {
    Zeilen.push_back(Reihe(z));
    if (const double x = VorgabeFür(Reihe(z).Pnr, false); !std::isnan(x)) Zeilen.back().Maße[MaßFest] = x;
  }
  StatusHilfeSetzen(
      Anzahltext(static_cast<int>(Höhen.size()), "Höhe gelesen", "Höhen gelesen") +
      (Andere > 0 ? ", " + Anzahltext(Andere, "Zeile ist kein Punkt", "Zeilen sind keine Punkte") : ""));
  if (ReihenSetzen(std::move(Zeilen)) == 0) NeuRechnen();
  return true;
}

double TVNivForm::VorgabeFür(const std::string& Pnr, bool Verlangt) {
  const auto P = std::ranges::find(Höhen, Pnr, &Höhenpunkt::Pnr);
  if (P != Höhen.end()) return ZahlAusText(ZahlFormat(P->Höhe, -1, Höhenstellen));
  if (!Verlangt) return NAN;
  const int Zeile = KorSuche(std::string_view(Pnr));
  const double Höhe = Zeile < 0 ? 0 : KorPunkt(Zeile).Hoehe;
  if (Höhe != 0) return ZahlAusText(ZahlFormat(Höhe, -1, Höhenstellen));
  StatusHilfeSetzen("Keine Höhe von " + Zitat(Pnr) + " in Liste und Tabelle: in der Spalte Höhe tippen");
  return NAN;
}

// ---- the field book --------------------------------------------------------------------------------

Listenmangel TVNivForm::Rechnen() {
  Eingabe = {};
  Eingabe.Klasse = ZahlAusText(*Klasse.Text);
  std::set<std::pair<std::string_view, double>> Feste;
  for (int z = 0; z < Anzahl(); ++z) {
    const Listenreihe& L = Reihe(z);
    const std::vector<double>& M = L.Maße;
    Eingabe.Zeilen.push_back({L.Pnr, M[MaßR], M[MaßZ], M[MaßV], M[MaßsR], M[MaßsV], L.Wort});
    if (!std::isnan(M[MaßFest]) && Feste.emplace(L.Pnr, M[MaßFest]).second)
      Eingabe.Feste.push_back({L.Pnr, M[MaßFest]});
  }
  const Nivmangel M = NivRechnen(Eingabe, Rechnung);
  if (M.Text.empty()) return {};
  const bool Leer = M.Fehler == NivellementLeer;
  return {M.Text, M.Zeile, Leer ? SpaltePnr : Fehlerspalte(M), nullptr, M.Unfertig};
}

void TVNivForm::Zeilenergebnis(int z, std::vector<double>& Werte) const {
  const auto i = static_cast<std::size_t>(z);
  if (i < Rechnung.Zeilen.size()) Werte = {Rechnung.Werte.Zeilen[i].Hoehe, Rechnung.Werte.Zeilen[i].v};
}

bool TVNivForm::Auffällig(int z, int s) const {
  if (s != Spaltev) return false;
  return std::ranges::any_of(Rechnung.Werte.Abschnitte, [&](const NivellementAbschnitt& A) {
    return A.Von < z && z <= A.Bis && std::fabs(A.FH) > A.FHZulaessig;
  });
}

void TVNivForm::ZeigeBerechnung() {
  const NivellementAbschnitt* const A = Schlechtester(Rechnung);
  double SummeR = 0, SummeV = 0;
  for (const NivellementLinie& L : Rechnung.Werte.Linien) {
    SummeR += L.SummeR;
    SummeV += L.SummeV;
  }
  const auto Text = [](bool Da, double x, int Stellen) {
    return Da ? ZahlFormat(x, -1, Stellen) : std::string();
  };
  const bool Da = !Rechnung.Zeilen.empty();
  const std::string Texte[] = {Text(A != nullptr, A != nullptr ? A->FH : 0, Höhenstellen),
                               Text(A != nullptr, A != nullptr ? A->FHZulaessig : 0, Höhenstellen),
                               Text(A != nullptr, A != nullptr ? A->L : 0, 3),
                               Text(!Rechnung.Paare.empty(), Rechnung.s0, 2),
                               Text(Da, SummeR, Höhenstellen),
                               Text(Da, SummeV, Höhenstellen)};
  for (std::size_t i = 0; i < Ergebnisse.size(); ++i) Ergebnisse[i]->Text = Texte[i];
  Ergebnisse[0]->Fehlerhaft = A != nullptr && std::fabs(A->FH) > A->FHZulaessig;
}

Listenakte TVNivForm::Akte() const {
  return {StapelNivellement(Eingabe), "",
          NivellementBlock(Optionen.OptNachkommastellen, ProtnivVon(Rechnung), Optionen.OptWarnstufe)};
}

void TVNivForm::FelderLeeren() {
  HöhenDatei.Text = HöhenGelesen = "";
  HöhenDatei.Fehlerhaft = false;
  Höhen.clear();
}

int TVNivForm::Füllen(Niveingabe E) {
  const std::vector<NivellementZeile> Feste = NivellementZeilen(E);
  std::vector<Zeileneingabe> Zeilen;
  for (std::size_t i = 0; i < E.Zeilen.size(); ++i) {
    Nivzeile& Z = E.Zeilen[i];
    const double Höhe = std::isnan(Feste[i].Fest) ? VorgabeFür(Z.Pnr, false) : Feste[i].Fest;
    Zeilen.push_back({std::move(Z.Pnr), {Z.R, Z.Z, Z.V, Z.sR, Z.sV, Höhe}, "", std::move(Z.Bemerkung)});
  }
  return ReihenSetzen(std::move(Zeilen));
}

int TVNivForm::BlockLesen() {
  Niveingabe E;
  if (StapelLeseNivellement(E) < 0) return -1;
  if (!(E.Klasse > 0)) {
    StapelFehlerMeldung("PARAM KLASSE ist keine Zahl über 0");
    return -1;
  }
  const std::string Text = Trimmen(E.Klasse);
  if (std::ranges::find(Klasse.Einträge, Text) == Klasse.Einträge.end()) Klasse.Einträge.push_back(Text);
  Klasse.Text = Text;
  return Füllen(std::move(E));
}

void TVNivForm::AusDatei() {
  const std::string Name = DateiFragen("Nivellement", "NIV |*.niv", "*.niv", false);
  std::vector<Nivlinie> Linien;
  if (Name.empty() || NivDateiLesen(Name, Linien) < 0 || !LeerenErlaubt()) return;
  if (Füllen({{}, NivZeilen(std::move(Linien))}) < 0) return;
  NeuRechnen();
  FokusSetzen(NivGitter);
}

// ---- the heights -----------------------------------------------------------------------------------

void TVNivForm::Übernehmen() {
  if (!Gerechnet()) return StatusHilfeSetzen("Das Nivellement ist nicht zu rechnen");
  InTabelle();
  InHöhenliste();
}

// Known points keep their height.
void TVNivForm::InTabelle() {
  std::vector<Vergleichspunkt> Neue;
  for (const NivellementPunkt& P : Rechnung.Punkte) {
    if (!P.Fest) Neue.push_back({P.Punkt, 0, 0, ZahlAusText(ZahlFormat(P.Hoehe, -1, Höhenstellen))});
  }
  const Übernahmeplan Plan = HöhenPlanen(Titel, Neue);
  if (Plan.Anzahl() == 0 || FrageJaNein("Höhen in die Punkttabelle übernehmen ?") != KnopfJa) return;
  if (ÜbernahmeAusführen(Übernommen, Plan) == 0)
    StatusHilfeSetzen(Anzahltext(Plan.Anzahl(), "Höhe übernommen", "Höhen übernommen"));
}

void TVNivForm::InHöhenliste() {
  const std::string Name = DateiFragen("Höhenliste schreiben", FilterHöhen, "*.hli", true);
  if (Name.empty() || HöhenlisteSchreiben(Name, NivHöhen(Eingabe.Zeilen, Rechnung)) < 0) return;
  double Spanne = 0;
  for (const NivellementPunkt& P : Rechnung.Punkte) Spanne = std::max(Spanne, P.Spanne);
  StatusHilfeSetzen(Anzahltext(static_cast<int>(Rechnung.Punkte.size()), "Höhe", "Höhen") +
                    " geschrieben; mehrfach bestimmte weichen höchstens " +
                    ZahlFormat(Spanne, -1, Höhenstellen) + " m voneinander ab");
}

bool TVNivForm::Zurücknehmen() {
  if (Übernommen.Leer()) return false;
  static_cast<void>(Übernommen.Zurück());
  return true;
}

}  // namespace tavorena
