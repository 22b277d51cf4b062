#include <algorithm>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Fallblatt.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const RahmenNeu = "Neupunkt";
const char* const RahmenErgebnis = "Ergebnis";

}  // namespace

// ---- a solution ------------------------------------------------------------------------------------

Fallpunkt::Fallpunkt(Rechenblatt& Blatt, const std::string& Welcher, const char* Label, int Zeile,
                     bool MitSymbol)
    : NeuPnr((Blatt.BeschriftungAnlegen(Label, {Zeile, 0}, RahmenNeu),
              Blatt.ZahlenfeldAnlegen(Blatt.Mit("_NeuPnr" + Welcher), {Zeile, 1}, RahmenNeu, PnrZeichen))),
      NeuSym(Blatt.FeldAnlegen(Blatt.Mit("_NeuSym" + Welcher), {Zeile, 4}, RahmenNeu, 5)),
      Name(Welcher),
      Rechts(Blatt.ErgebnisfeldAnlegen(Blatt.Mit("_NeuRechts" + Welcher), {Zeile, 2}, RahmenNeu,
                                       Längenbreite(8))),
      Hoch(Blatt.ErgebnisfeldAnlegen(Blatt.Mit("_NeuHoch" + Welcher), {Zeile, 3}, RahmenNeu,
                                     Längenbreite(8))) {
  NeuPnr.IstPnr = NeuPnr.OhneAbgriff = true;
  NeuPnr.Hilfe = "Nummer, unter der die Lösung gespeichert wird; leer: nicht speichern";
  NeuSym.Sichtbar = MitSymbol;
}

void Fallpunkt::Zeigen(Lage Wo) {
  Ort = Wo;
  Gerechnet = true;
  Rechts.Text = Längentext(Wo.RW);
  Hoch.Text = Längentext(Wo.HW);
  Rechts.Fehlerhaft = Hoch.Fehlerhaft = false;
}

void Fallpunkt::Zeigen(const char* Links, const char* Daneben) {
  Gerechnet = false;
  Rechts.Text = Links;
  Hoch.Text = Daneben;
  Rechts.Fehlerhaft = Hoch.Fehlerhaft = true;
}

void Fallpunkt::Entfällt() {
  Zeigen("", "");
  Rechts.Fehlerhaft = Hoch.Fehlerhaft = false;
}

void Fallpunkt::Veraltet() {
  Gerechnet = false;
  Rechts.Fehlerhaft = Hoch.Fehlerhaft = !Rechts.Text->empty();
}

Neupunkteingabe Fallpunkt::Eingabe() const {
  return Gewählt() ? Neupunkteingabe{NeuPnr.Text, NeuSym.Text} : Neupunkteingabe{};
}

void Fallpunkt::Setzen(const Neupunkteingabe& E) {
  NeuPnr.Text = E.Pnr;
  NeuSym.Text = E.Symbol;
}

void Fallpunkt::Leeren() {
  Entfällt();
  Hoehe = {};
  NeuPnr.Text = NeuSym.Text = "";
  NeuPnr.Fehlerhaft = false;
}

// ---- the parts of a case ---------------------------------------------------------------------------

Fallblatt::Fallblatt(const Blattart& BlattArt) : Rechenblatt(BlattArt) {}

void Fallblatt::Anschließen(Feld& F) {
  F.BeiReturn = [this, &F] { ReturnIn(F); };
}

Punktfeld& Fallblatt::PunktAnlegen(const std::string& Welcher, const char* Label, const char* Rahmen,
                                   int Zeile, bool Nötig, const std::string& Nach) {
  Punktfeld& P = Punkte.emplace_back(*this, Welcher, Label, Rahmen, Zeile, Nach);
  P.BeiWechsel = [this] { EingabeGeändert(); };
  if (Nötig) Nötige.push_back(&P.Pnr);
  Anschließen(P.Pnr);
  return P;
}

Messfeld& Fallblatt::MaßAnlegen(const std::string& Rest, const char* Label, Platz Ort, const char* Rahmen,
                                bool Nötig) {
  Messfeld& M = Maße.emplace_back(*this, Rest, Label, Ort, Rahmen);
  M.BeiWechsel = [this] { EingabeGeändert(); };
  if (Nötig) Nötige.push_back(&M.Eingabe);
  Anschließen(M.Eingabe);
  return M;
}

Fallpunkt& Fallblatt::LösungAnlegen(const char* Welcher, const char* Label, bool MitSymbol) {
  if (Lösungen.empty()) {
    const char* const Überschriften[] = {"Punktnr.", "Rechts", "Hoch"};
    for (int i = 0; i < 3; ++i)
      BeschriftungAnlegen(Überschriften[i], {0, i + 1}, RahmenNeu).Rechtsbündig = true;
    if (MitSymbol) BeschriftungAnlegen("Sy.", {0, 4}, RahmenNeu);
  }
  Fallpunkt& L =
      Lösungen.emplace_back(*this, Welcher, Label, static_cast<int>(Lösungen.size()) + 1, MitSymbol);
  L.NeuPnr.BeiFokus = [this] { FallRechnen(); };
  L.NeuPnr.BeiVerlassen = [this, &L] { return NummerNehmen(L); };
  L.NeuSym.BeiVerlassen = [&L] {
    L.NeuSym.Text = Trimmen(*L.NeuSym.Text);
    return WortPrüfen(L.NeuSym.Text);
  };
  Anschließen(L.NeuPnr);
  Anschließen(L.NeuSym);
  return L;
}

Feld& Fallblatt::ErgebnisAnlegen(const std::string& Rest, const char* Label, int Spalte, int Zeile) {
  BeschriftungAnlegen(Label, {Zeile, Spalte}, RahmenErgebnis);
  Feld& F = ErgebnisfeldAnlegen(Mit(Rest), {Zeile, Spalte + 1}, RahmenErgebnis, Längenbreite(6));
  Figuren.push_back(&F);
  return F;
}

void Fallblatt::FallAnlegen() {
  Knopf& Clear = KnopfAnlegen(Mit("FelderClear"), "Felder &leeren", [this] { FelderClear(); }, {0, 0});
  KnopfZurück = &KnopfAnlegen(Mit("Zurück"), "Letzten Fall zurück&nehmen", [this] { Zurück(); }, {0, 1});
  Clear.OhnePrüfung = KnopfZurück->OhnePrüfung = true;
  Clear.Hilfe = "Alle Felder leeren, auch die bekannten Punkte";
  KnopfZurück->Hilfe = "Punkte zurücknehmen, im Protokoll streichen";
  KnopfZurück->Aktiv = false;
  KnöpfeAnlegen();
}

std::vector<std::string> Fallblatt::Notiz(std::size_t Lösung) const {
  return Lösung < Getan.size() ? Getan[Lösung].Notizzeilen() : std::vector<std::string>();
}

Block Fallblatt::MitNotiz(Block B) const {
  const std::vector<std::string> Zeilen = Notiz(0);
  B.Zeilen.insert(B.Zeilen.end(), Zeilen.begin(), Zeilen.end());
  return B;
}

// ---- what is typed ---------------------------------------------------------------------------------

void Fallblatt::EingabeGeändert() {
  Gerechnet = Geschrieben = false;
  Neubild.Löschen();
  for (Fallpunkt& L : Lösungen) L.Veraltet();
  Bildzeichnen();
  if (Lösungen.empty()) FallRechnen();
}

void Fallblatt::OptionGeändert() {
  EingabeGeändert();
  if (Fehlt() == nullptr) FallRechnen();
}

void Fallblatt::BeiTabelle() {
  bool Bewegt = false;
  for (Punktfeld& P : Punkte) {
    const double Höhe = P.Hoehe();
    Bewegt = P.Nachsehen() || P.Hoehe() != Höhe || Bewegt;
  }
  if (Bewegt) EingabeGeändert();
}

void Fallblatt::Bildzeichnen() {
  Nachführen();
  Figurbild.Löschen();
  for (const Punktfeld& P : Punkte) {
    if (P.Gesetzt()) Figurbild.Punkt({P.Nummer(), P.Ort().RW, P.Ort().HW, "MARK", FarbeRot});
  }
  Zeichnen(Figurbild);
}

// What the case needs and does not have.
const Eingabeelement* Fallblatt::Fehlt() const {
  const auto i = std::find_if(Nötige.begin(), Nötige.end(),
                              [](const Eingabeelement* E) { return TrimmenSicht(*E->Text).empty(); });
  return i != Nötige.end() ? *i : nullptr;
}

void Fallblatt::FallRechnen() {
  if (Gerechnet && Stand == KorStand) return;
  BeiTabelle();
  for (Fallpunkt& L : Lösungen) L.Veraltet();
  Neubild.Löschen();
  Grund = "Eingabe unvollständig";
  Grundfeld = nullptr;
  const bool Ganz = Fehlt() == nullptr;
  if (Ganz) {
    Grund = Rechnen();
    const auto Fern = [](const Fallpunkt& L) {
      return L.Da() && !(StapelZahlPaßt(L.Ort.RW) && StapelZahlPaßt(L.Ort.HW));
    };
    if (Grund.empty() && std::any_of(Lösungen.begin(), Lösungen.end(), Fern))
      Grund = "Der Punkt liegt zu fern: mehr als 7 Stellen vor dem Komma";
  } else {
    Unvollständig();
  }
  Gerechnet = true;
  Stand = KorStand;
  Bildzeichnen();
  for (const Fallpunkt& L : Lösungen) {
    if (L.Da()) Neubild.Punkt({L.Name, L.Ort.RW, L.Ort.HW, ZeichenNeu, FarbeBlau});
  }
  if (!Grund.empty() && (Ganz || !Schweigt())) StatusHilfeSetzen(Grund);
}

void Fallblatt::NichtsZeigen() {
  for (Fallpunkt& L : Lösungen) L.Entfällt();
  for (Feld* F : Figuren) {
    F->Text = "";
    F->Fehlerhaft = false;
  }
}

bool Fallblatt::ErstmalsGesagt() {
  if (ImStapel()) return false;
  std::vector<double> Zahlen;
  for (const Punktfeld& P : Punkte) Zahlen.insert(Zahlen.end(), {P.Ort().RW, P.Ort().HW});
  for (const Messfeld& M : Maße) Zahlen.push_back(M.Zahl());
  return std::exchange(Gesagt, Zahlen) != Zahlen;
}

// A number of a known point of the case, or of its other solution, would overwrite what it comes from.
bool Fallblatt::NummerNehmen(Fallpunkt& L) {
  const std::string Pnr = Trimmen(*L.NeuPnr.Text);
  L.NeuPnr.Text = Pnr;
  if (!L.Benannt()) return true;
  if (!WortPrüfen(Pnr)) return false;
  std::string Fehler;
  for (const Punktfeld& P : Punkte) {
    if (P.Gesetzt() && P.Nummer() == Pnr) Fehler = "Punkt " + Pnr + " ist ein bekannter Punkt dieses Falls";
  }
  for (const Fallpunkt& Andere : Lösungen) {
    if (&Andere != &L && Andere.NeuPnr.Aktiv && *Andere.NeuPnr.Text == Pnr)
      Fehler = "Punkt " + Pnr + " ist schon die andere Lösung";
  }
  if (Fehler.empty()) {
    LetztePunktnummer = Pnr;
    return true;
  }
  StatusHilfeSetzen(Fehler);
  return false;
}

bool Fallblatt::Prüfen() {
  EingabeGeändert();  // an option may have changed since
  for (Punktfeld& P : Punkte) {
    if (TrimmenSicht(*P.Pnr.Text).empty() || P.Auffrischen()) continue;
    FokusSetzen(P.Pnr);
    return false;
  }
  for (const auto& S : Steuerelemente()) {
    auto* const F = dynamic_cast<Feld*>(S.get());
    if (F == nullptr || Lesen(*F)) continue;
    FokusSetzen(*F);
    return false;
  }
  const auto Fehlendes = std::find(Nötige.begin(), Nötige.end(), Fehlt());
  if (Fehlendes == Nötige.end()) return true;
  StatusHilfeSetzen((*Fehlendes)->IstPnr ? "Punktnummer fehlt" : "Wert fehlt");
  FokusSetzen(**Fehlendes);
  return false;
}

// ---- the commit ------------------------------------------------------------------------------------

// Return in the last field that is typed ends the case.
void Fallblatt::ReturnIn(const Feld& F) {
  const auto Hier = std::find_if(Steuerelemente().begin(), Steuerelemente().end(),
                                 [&](const auto& S) { return S.get() == &F; });
  const bool Letztes = std::none_of(Hier + 1, Steuerelemente().end(), [](const auto& S) {
    return dynamic_cast<const Feld*>(S.get()) != nullptr && NimmtFokus(*S);
  });
  if (Letztes) return FallAbschließen();
  FokusWeiter();
}

void Fallblatt::FallAbschließen() {
  if (Geschrieben) return StatusHilfeSetzen("Der Fall ist schon geschrieben");
  if (!Prüfen() || FallSchreiben() < 0) return;
  Reset();
  Geschrieben = Lösungen.empty();
  const auto Erstes = std::find_if(Steuerelemente().begin(), Steuerelemente().end(), [](const auto& S) {
    return dynamic_cast<const Feld*>(S.get()) != nullptr && NimmtFokus(*S);
  });
  FokusSetzen(**Erstes);
}

// Stores the solutions that have a number. Of two the one that is refused is left out.
// @return 0; -1: all were refused
int Fallblatt::Speichern() {
  std::vector<Fallpunkt*> Verweigert;
  bool Etwas = false;
  for (Fallpunkt& L : Lösungen) {
    Punktablage& Ablage = Getan.emplace_back();
    if (!L.Gewählt()) continue;
    std::string Pnr = L.NeuPnr.Text;
    if (Ablage.Eintragen(Akten, Pnr, L.Ort, L.Hoehe, L.NeuSym.Text) < 0) {
      Verweigert.push_back(&L);
      continue;
    }
    L.NeuPnr.Text = LetztePunktnummer = Pnr;
    Etwas = true;
  }
  if (!Etwas && !Verweigert.empty()) {
    FokusSetzen(Verweigert.front()->NeuPnr);
    return -1;
  }
  for (Fallpunkt* L : Verweigert) L->NeuPnr.Text = "";
  return 0;
}

// @return 0; -1: there is nothing to write, with the reason; -2: not written, the points stay; -3: refused
int Fallblatt::FallSchreiben() {
  FallRechnen();
  const bool Benannt =
      std::any_of(Lösungen.begin(), Lösungen.end(), [](const Fallpunkt& L) { return L.Gewählt(); });
  if (Grund.empty() && !Benannt && !OhneNummer()) {
    StatusHilfeSetzen("Ohne Punktnummer wird nichts gespeichert und nichts geschrieben");
    FokusSetzen(Lösungen.front().NeuPnr);
    return -1;
  }
  if (!Grund.empty()) {
    StatusHilfeSetzen(Grund);
    if (Grundfeld != nullptr) FokusSetzen(*Grundfeld);
    return -1;
  }
  Verbindung V = NeueVerbindung();
  V.EndeMitZeilen = false;
  Verbinden(V);
  if (Akten.Beginnen(V) < 0) return -2;
  PunkteZurück(Getan, {});  // of a case that could not be written
  Getan.clear();
  if (Speichern() < 0) return -3;
  V.Sätze = Sätze();
  Aufzeichnung::Spur Wo;
  if (Akten.Ganzes(std::move(V), Protokollieren(), Wo) < 0) return -2;
  Merken(Wo);
  return 0;
}

void Fallblatt::Merken(Aufzeichnung::Spur Wo) {
  Fall F;
  F.Wo = Wo;
  Neubild.Löschen();
  for (const Fallpunkt& L : Lösungen) {
    F.Pnr.push_back(L.NeuPnr.Text);
    if (!L.Gewählt()) continue;
    F.Bild.Punkt({L.NeuPnr.Text, L.Ort.RW, L.Ort.HW, "", FarbeRot});
    const Block Zeile = Streichzeile(L);
    F.Gestrichen.Zeilen.insert(F.Gestrichen.Zeilen.end(), Zeile.Zeilen.begin(), Zeile.Zeilen.end());
  }
  if (F.Gestrichen.Zeilen.empty()) F.Gestrichen = StreichzeilenOhnePunkt();
  F.Ablagen = std::exchange(Getan, {});
  Fälle.push_back(std::move(F));
  KnopfZurück->Aktiv = true;
}

// ---- taking back, clearing -------------------------------------------------------------------------

void Fallblatt::PunkteZurück(std::vector<Punktablage>& Ablagen, const std::vector<std::string>& Pnr) const {
  for (std::size_t i = Ablagen.size(); i-- > 0;) {
    if (Ablagen[i].Zurück() < 0 && i < Pnr.size())
      StatusHilfeSetzen("Punkt " + Pnr[i] + " bleibt: inzwischen geändert");
  }
}

void Fallblatt::Zurück() {
  if (Fälle.empty()) return;
  Fall F = std::move(Fälle.back());
  Fälle.pop_back();
  Geschrieben = false;
  KnopfZurück->Aktiv = !Fälle.empty();
  if (Akten.GanzesStreichen(F.Gestrichen, F.Wo) > 0)
    StatusHilfeSetzen("Der Fall bleibt in der Stapeldatei: dahinter steht schon anderes");
  PunkteZurück(F.Ablagen, F.Pnr);
}

// The next case: only the known points stay, and what is shown of a case that stores nothing.
void Fallblatt::Reset() {
  for (Messfeld& M : Maße) M.Leeren();
  for (Fallpunkt& L : Lösungen) L.Leeren();
  if (!Lösungen.empty()) NichtsZeigen();
  Getan.clear();
  Gerechnet = false;
  Neubild.Löschen();
  Bildzeichnen();
}

void Fallblatt::FelderClear() {
  for (Punktfeld& P : Punkte) {
    P.Pnr.Text = "";
    P.Pnr.Fehlerhaft = false;
    P.Leeren();
  }
  Gesagt.clear();
  Geschrieben = false;
  NichtsZeigen();
  Reset();
  FokusSetzen(Punkte.front().Pnr);
}

void Fallblatt::GrafikLöschen() {
  Figurbild.Löschen();
  Neubild.Löschen();
  for (Fall& F : Fälle) F.Bild.Löschen();
}

// ---- leaving, replay -------------------------------------------------------------------------------

// A case that has its number is worth a question also while a change of its figures waits to be computed.
bool Fallblatt::HatOffenes() const {
  const bool Benannt =
      std::any_of(Lösungen.begin(), Lösungen.end(), [](const Fallpunkt& L) { return L.Benannt(); });
  if (!Gerechnet) return Benannt && Fehlt() == nullptr;
  return Grund.empty() && (Benannt || OhneNummer());
}

bool Fallblatt::OffenesSchreiben() {
  if (!Prüfen() || FallSchreiben() < 0) return false;
  Reset();  // it is not written a second time
  return true;
}

int Fallblatt::StapelAnschluss() {
  if (StapelLesen() < 0) return -1;
  for (Punktfeld& P : Punkte) {
    if (P.Setzen() == 0) continue;
    Grund = "Punkt " + Zitat(*P.Pnr.Text) + " fehlt";
    return 0;  // without this case
  }
  FallRechnen();
  return 0;
}

int Fallblatt::StapelZeile() {
  if (std::exchange(StapelErledigt, true)) return -2;
  const bool AllesDa = std::all_of(Punkte.begin(), Punkte.end(),
                                   [](const Punktfeld& P) { return P.Gesetzt() || P.Pnr.Text->empty(); });
  std::vector<std::string> Nummern;  // that the block gives
  for (const Fallpunkt& L : Lösungen) Nummern.push_back(L.Benannt() ? *L.NeuPnr.Text : "");
  const int Ergebnis = AllesDa ? FallSchreiben() : -1;
  if (Ergebnis == 0) ++Stapel.Bilanz.Zeilen;
  std::string Warum = Grund;
  if (Warum.empty() && std::all_of(Nummern.begin(), Nummern.end(), [](const auto& N) { return N.empty(); }))
    Warum = "keine Punktnummer";
  if (Ergebnis == -1 && !Warum.empty()) StapelFallAuslassen(Warum);
  if (Ergebnis == -3) StapelFallAuslassen("Punkt nicht gespeichert");
  for (std::size_t i = 0; Ergebnis >= -1 && i < Nummern.size(); ++i) {
    if (Grund.empty() && !Nummern[i].empty() && !Lösungen[i].Gewählt())
      StapelFallAuslassen("Punkt " + Nummern[i] + " nicht gespeichert");
  }
  if (Ergebnis != -2) return 0;
  StapelFehlerMeldung("Zeile nicht geschrieben");
  return -1;
}

}  // namespace tavorena
