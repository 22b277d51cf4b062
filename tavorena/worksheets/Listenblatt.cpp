#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Listenblatt.h>
#include <tavorena/worksheets/Punktablage.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr double KeinWert = std::numeric_limits<double>::quiet_NaN();

// Two results that look alike; none is like none.
bool Gleich(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }
bool Gleich(const Zeileneingabe& A, const Zeileneingabe& B) {
  return A.Pnr == B.Pnr && A.Symbol == B.Symbol && A.Wort == B.Wort &&
         std::ranges::equal(A.Maße, B.Maße, [](double a, double b) { return Gleich(a, b); });
}

}  // namespace

std::string Listenmangel::Meldung() const {
  return Zeile < 0 ? Text : "Zeile " + std::to_string(Zeile + 1) + ": " + Text;
}

// ---- the controls ----------------------------------------------------------------------------------

Feld& Listenblatt::Ergebnisfeld(const char* Rest, const char* Label, Platz Ort, const char* Rahmen) {
  BeschriftungAnlegen(Label, Ort, Rahmen);
  return ErgebnisfeldAnlegen(Mit(Rest), {Ort.Zeile, Ort.Spalte + 1}, Rahmen, Längenbreite(5));
}

Gitter& Listenblatt::ListeAnlegen(const std::vector<Zeilenspalte>& Spalten, const Listenart& Was) {
  Liste = Was;
  Eingaben.emplace(*this, Spalten,
                   Gitterverhalten{{},
                                   [this](int) {
                                     Zellen().Fehlerhaft = !ZelleVerlassen();
                                     return !Zellen().Fehlerhaft;
                                   },
                                   [this](int z) { Zurückzeigen(z); },
                                   {},  // a row that is begun has the next one below it
                                   [this] { FokusWeiter(); }});
  Eingaben->LeerIstNull = false;
  Zellen().Hilfe = "Return führt von Zelle zu Zelle und aus der leeren letzten Zeile weiter";
  Zellen().BeiVerlassen = [this] { return ZelleVerlassen(); };
  if (Liste.BekanntePunkte) Zellen().BeiAbgriff = [this](const std::string& Pnr) { Abgreifen(Pnr); };
  LeereEndzeile();
  return Zellen();
}

void Listenblatt::ListenknöpfeAnlegen(std::initializer_list<Weiterer> Weitere) {
  int Spalte = 0;
  const auto Neu = [&](const char* Rest, const char* Text, std::function<void()> Aktion) -> Knopf& {
    return KnopfAnlegen(Mit(Rest), Text, std::move(Aktion), {0, Spalte++});
  };
  Neu(Liste.Knopfname, Liste.Knopftext, [this] { static_cast<void>(Schreiben()); }).Hilfe = Liste.Knopfhilfe;
  for (const Weiterer& W : Weitere) Neu(W.Rest, W.Text, W.Aktion);
  Neu("GitterInsert", "Zeile einfü&gen", [this] { GitterInsert(); }).Hilfe = "Leere Zeile vor dieser";
  Knopf& Löschen = Neu("GitterDelete", "Zeile lösc&hen", [this] { GitterDelete(); });
  Knopf& Clear = Neu("FelderClear", "Felder &leeren", [this] { Leeren(); });
  Löschen.OhnePrüfung = Clear.OhnePrüfung = true;
  Löschen.Hilfe = "Zeile aus der Liste nehmen";
  Clear.Hilfe = "Alles leeren für die nächste Berechnung";
  KnöpfeAnlegen(Spalte);
}

// ---- rows ------------------------------------------------------------------------------------------

// One empty row stands at the end, with the symbol of the row above.
void Listenblatt::LeereEndzeile() {
  const auto Leer = [&](int z) { return !Eingaben->HatEingabe(z); };
  while (Zellen().Zeilen() > 1 && Leer(Zellen().Zeilen() - 1) && Leer(Zellen().Zeilen() - 2)) {
    Zellen().ZeileLöschen(Zellen().Zeilen() - 1);
    Reihen.pop_back();
  }
  if (Zellen().Zeilen() == 0 || !Leer(Zellen().Zeilen() - 1)) {
    Eingaben->Anhängen();
    Reihen.emplace_back();
  }
  Eingaben->SymbolÜbernehmen(Anzahl());
  static_cast<Zeileneingabe&>(Reihen.back()) = Eingaben->Eingabe(Anzahl());
}

// A point that is clicked goes into its row; behind the number of the last one it begins the next.
void Listenblatt::Abgreifen(const std::string& Pnr) {
  Gitter& G = Zellen();
  if (G.NurLesen) return;
  const bool Nächste = G.Spalte != G.Nummernspalte() && G.Zeile + 1 == Anzahl();
  ZelleWechseln(G, Nächste ? Anzahl() : *G.Zeile, G.Nummernspalte());
  Tippen(G, Pnr);
  TasteDrücken(Taste::Return);
}

// A point of the table, asked for where it is missing. @return 0; -1: there is none
int Listenblatt::PunktHolen(std::string& Pnr, Lage& Ort) const {
  Wert Gesucht(Pnr);
  const int Tabellenzeile = KorFind(Gesucht);
  if (Tabellenzeile < 0) return -1;
  const KorSatz P = KorPunkt(Tabellenzeile);
  Pnr = Trimmen(Gesucht);
  Ort = {P.Rechts, P.Hoch};
  return 0;
}

bool Listenblatt::ZelleVerlassen() {
  const int z = Zellen().Zeile;
  if (z >= std::ssize(Reihen)) return true;
  if (!Eingaben->ZelleLesen(z, Zellen().Spalte)) return false;
  VorgabeLesen(z, Zellen().Spalte);
  Zeileneingabe Neu = Eingaben->Eingabe(z);
  if (Gleich(Neu, Reihe(z))) return true;
  if (z == Anzahl() && z == Liste.Höchstzahl && Eingaben->HatEingabe(z)) {
    StatusHilfeSetzen(Liste.Zuviel);
    return false;
  }
  if (Neu.Pnr != Reihe(z).Pnr && !Neu.Pnr.empty()) {
    if (Liste.BekanntePunkte && PunktHolen(Neu.Pnr, Eigene(z).Ort) < 0) return false;
    LetztePunktnummer = Neu.Pnr;
  }
  static_cast<Zeileneingabe&>(Eigene(z)) = std::move(Neu);
  Eingaben->EingabeZeigen(z, Reihe(z));
  Eigene(z).Ergebnisse.clear();
  LeereEndzeile();
  NeuRechnen();
  return true;
}

double Listenblatt::VorgabeFür(const std::string& /*Pnr*/, bool /*Verlangt*/) { return KeinWert; }

// A row was ticked, its number was typed, or its result was typed over, which ticks it, or emptied.
void Listenblatt::VorgabeLesen(int z, int s) {
  const int Marke = Eingaben->SpalteVon(Zellart::Fest), Vorgabe = Eingaben->SpalteVon(Zellart::Vorgabe);
  if (Vorgabe < 0) return;
  const Listenreihe& Alt = Reihe(z);
  const auto Setzen = [&](const std::string& Neue, const std::string& Wie) {
    Zellen().InhaltSetzen(z, Marke, Neue);
    Zellen().InhaltSetzen(z, Vorgabe, Wie);
  };
  const std::string Pnr = Zellen().Inhalt(z, Zellen().Nummernspalte()), Text = Zellen().Inhalt(z, Vorgabe);
  const bool War = !Alt.Maße.empty() && !std::isnan(Alt.Maße.back()),
             Ist = !Eingaben->ZeigtErgebnis(z, Vorgabe);
  const std::string Gezeigt =
      Alt.Ergebnisse.empty() ? "" : Eingaben->Ergebnistext(Vorgabe, Alt.Ergebnisse.front());
  const bool Verlangt = s == Marke && Ist && !War;
  if (Verlangt || (Eingaben->Art(s) == Zellart::Nummer && Pnr != Alt.Pnr)) {
    const double x = VorgabeFür(Pnr, Verlangt);
    if (!std::isnan(x)) return Setzen("*", Eingaben->Maßtext(Vorgabe, x));
    if (Verlangt) Setzen("", Gezeigt);
  }
  if (s != Vorgabe || (War && Ist && !Text.empty())) return;
  if (Text.empty() || ZahlAusText(Text) == ZahlAusText(Gezeigt)) return Setzen("", War ? "" : Gezeigt);
  Setzen("*", Text);
}

// What the row holds, in place of what was typed.
void Listenblatt::Zurückzeigen(int z) {
  Eingaben->EingabeZeigen(z, Reihe(z));
  Eigene(z).Ergebnisse.clear();
  static_cast<void>(ErgebnisseZeigen(z));
}

void Listenblatt::GitterInsert() {
  const int z = Zellen().Zeile;
  FokusSetzen(Zellen());
  if (Anzahl() == Liste.Höchstzahl) return StatusHilfeSetzen(Liste.Zuviel);
  if (z == Anzahl()) return;  // it is empty
  Reihen.emplace(Reihen.begin() + z);
  Zellen().ZeileEinfügen(z);
  Eingaben->SymbolÜbernehmen(z);
  static_cast<Zeileneingabe&>(Eigene(z)) = Eingaben->Eingabe(z);
  Zellen().Spalte = Eingaben->ErsteSpalte();
  NeuRechnen();
}

void Listenblatt::GitterDelete() {
  const int z = Zellen().Zeile;
  Reihen.erase(Reihen.begin() + z);
  Zellen().ZeileLöschen(z);
  Zellen().Fehlerhaft = false;
  LeereEndzeile();
  FokusSetzen(Zellen());
  NeuRechnen();
}

int Listenblatt::ReihenSetzen(std::vector<Zeileneingabe> Neue) {
  std::string Grund = std::ssize(Neue) > Liste.Höchstzahl ? Liste.Zuviel : "";
  std::vector<Listenreihe> Geholte;
  for (Zeileneingabe& E : Neue) {
    if (!Grund.empty()) break;
    Listenreihe& Z = Geholte.emplace_back();
    static_cast<Zeileneingabe&>(Z) = std::move(E);
    if (Liste.BekanntePunkte && PunktHolen(Z.Pnr, Z.Ort) < 0) Grund = "Punkt " + Zitat(Z.Pnr) + " fehlt";
  }
  if (!Grund.empty()) {
    ImStapel() ? StapelFehlerMeldung(Grund) : StatusHilfeSetzen(Grund);
    return -1;
  }
  Reihen = std::move(Geholte);
  Zellen().Leeren(Anzahl() + 1);
  for (int z = 0; z < std::ssize(Reihen); ++z) Eingaben->EingabeZeigen(z, Reihe(z));
  LeereEndzeile();
  return 0;
}

void Listenblatt::NummerSetzen(int z, const std::string& Pnr) {
  Eigene(z).Pnr = Pnr;
  Eingaben->EingabeZeigen(z, Reihe(z));
}

// ---- results ---------------------------------------------------------------------------------------

void Listenblatt::NeuRechnen() {
  Unverändert = false;
  Auffrischen();
}

void Listenblatt::Auffrischen() {
  Mangel = Rechnen();
  const bool Alle = std::exchange(Nachkomma, Optionen.OptNachkommastellen) != Nachkomma;
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (Alle) Eigene(z).Ergebnisse.clear();
    if (ErgebnisseZeigen(z)) Unverändert = false;
  }
  ZeigeBerechnung();
  // Where a row is being typed there is something missing anyway.
  if (!Mangel.Text.empty() && !Mangel.Unfertig && !ImStapel()) StatusHilfeSetzen(Mangel.Meldung());
}

// Texts are made of what is new. @return true: something is
bool Listenblatt::ErgebnisseZeigen(int z) {
  Listenreihe& Z = Eigene(z);
  if (!Z.Ergebnisse.empty() && ZeileBleibt(z)) return false;
  Zeilenwerte.clear();
  if (z < Anzahl()) Zeilenergebnis(z, Zeilenwerte);
  auto Neu = Zeilenwerte.begin();
  auto Alt = Z.Ergebnisse.begin();
  bool Anders = false;
  for (int s = 0; s < Eingaben->Spalten(); ++s) {
    if (Eingaben->Art(s) != Zellart::Ergebnis && Eingaben->Art(s) != Zellart::Vorgabe) continue;
    const double Zahl = Neu == Zeilenwerte.end() ? KeinWert : *Neu++;
    const double Vorige = Alt == Z.Ergebnisse.end() ? KeinWert : *Alt++;
    if (Gleich(Zahl, Vorige)) continue;
    if (Eingaben->ZeigtErgebnis(z, s)) Zellen().InhaltSetzen(z, s, Eingaben->Ergebnistext(s, Zahl));
    Anders = true;
  }
  if (Anders) Z.Ergebnisse = Zeilenwerte;
  return Anders;
}

// The table may have moved what the list stands on.
void Listenblatt::BeiTabelle() {
  PunkteNachsehen();
  for (Listenreihe& Z : Reihen) {
    const int Tabellenzeile = Liste.BekanntePunkte ? KorSuche(std::string_view(Z.Pnr)) : -1;
    if (Tabellenzeile < 0) continue;  // a number that is gone keeps its place
    const KorSatz P = KorPunkt(Tabellenzeile);
    Z.Ort = {P.Rechts, P.Hoch};
  }
  Auffrischen();
}

// ---- writing ---------------------------------------------------------------------------------------

bool Listenblatt::IstGeschrieben() const {
  if (!Geschrieben || !Gerechnet()) return false;
  const Listenakte A = Akte();
  return A.Sätze == Geschrieben->Sätze && A.Kommentar == Geschrieben->Kommentar &&
         A.Zeilen.Zeilen == Geschrieben->Zeilen.Zeilen;
}

void Listenblatt::MangelZeigen() {
  StatusHilfeSetzen(Mangel.Meldung());
  Eingabeelement* Wo = Mangel.Zeile >= 0 ? &Zellen() : Mangel.Wo;
  if (Wo == nullptr) return;
  if (Mangel.Zeile >= 0) {
    Zellen().Zeile = Mangel.Zeile;
    Zellen().Spalte = Mangel.Spalte;
  }
  Wo->Fehlerhaft = true;
  FokusSetzen(*Wo);
}

int Listenblatt::PunktEintragen(std::string& Pnr, Lage& Ort, const Wert& Hoehe, const std::string& Symbol,
                                std::vector<std::string>& Notiz) {
  Punktablage Ablage;
  const std::string Getippt = Pnr;
  if (Ablage.Eintragen(Akten, Pnr, Ort, Hoehe, Symbol) < 0) {
    const std::string Grund = "Punkt " + Getippt + " nicht gespeichert";
    ImStapel() ? StapelFallAuslassen(Grund) : StatusHilfeSetzen(Grund);
    return -1;
  }
  Notiz = Ablage.Notizzeilen();
  return 0;
}

// Table head of a new kind, points, and then all lines and the block in one piece.
// @return 0; -1: it can not be computed, or was not written; -2: the surveyor broke off
int Listenblatt::Schreiben() {
  BeiTabelle();
  if (!Gerechnet()) {
    MangelZeigen();
    return -1;
  }
  if (IstGeschrieben()) {
    StatusHilfeSetzen("Schon geschrieben, seither ist nichts geändert");
    return 0;
  }
  if (Akten.Beginnen(NeueVerbindung()) < 0) return -1;
  Listenakte A = Akte();
  if (PunkteEintragen(A) < 0) return -2;
  Verbindung V = NeueVerbindung();
  V.Sätze = A.Sätze;
  Aufzeichnung::Spur Wo;
  if (Akten.Ganzes(std::move(V), A.Zeilen, Wo) < 0) return -1;
  if (!A.Kommentar.empty() && !ImStapel() && StapelKommentar(A.Kommentar) < 0) return -1;
  Unverändert = true;
  Auffrischen();
  Geschrieben = Akte();
  return 0;
}

bool Listenblatt::LeerenErlaubt() {
  return !HatOffenes() || FrageJaNein("Felder leeren, ohne zu schreiben ? ", Titel, KnopfNein) == KnopfJa;
}

void Listenblatt::Leeren() {
  if (!LeerenErlaubt()) return;
  Reihen.clear();
  Zellen().Leeren(0);
  Zellen().Fehlerhaft = false;
  LeereEndzeile();
  FelderLeeren();
  Geschrieben.reset();
  NeuRechnen();
  for (const auto& S : Steuerelemente()) {
    if (!NimmtFokus(*S)) continue;
    return FokusSetzen(*S);
  }
}

bool Listenblatt::HatOffenes() const {
  return (Anzahl() > 0 || Eingaben->HatEingabe(Anzahl())) && !IstGeschrieben();
}

bool Listenblatt::OffenesSchreiben() {
  auto* const E = dynamic_cast<Eingabeelement*>(Fokus());
  return (E == nullptr || Lesen(*E)) && Schreiben() == 0;
}

// ---- replay ----------------------------------------------------------------------------------------

int Listenblatt::StapelAnschluss() {
  if (BlockLesen() < 0) return -1;
  NeuRechnen();
  if (Gerechnet()) return 0;
  StapelFehlerMeldung(Mangel.Meldung());
  return -1;
}

int Listenblatt::StapelZeile() {
  if (std::exchange(Nachgerechnet, true)) return -2;
  const int Ergebnis = Schreiben();
  if (Ergebnis == 0) Stapel.Bilanz.Zeilen += Anzahl();
  if (Ergebnis == 0 || Ergebnis == -2) return 0;
  StapelFehlerMeldung("Liste nicht geschrieben");
  return -1;
}

}  // namespace tavorena
