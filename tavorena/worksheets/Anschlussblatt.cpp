#include <algorithm>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Anschlussblatt.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const RahmenAnschluss = "Anschluß";
const char* const RahmenErgebnis = "Ergebnis";

}  // namespace

Anschlussblatt::Anschlussblatt(const Blattart& BlattArt)
    : Rechenblatt(BlattArt), Anf(Punktfelder("Anf", "Anf.pkt.", 1)), End(Punktfelder("End", "Endpkt.", 2)) {
  const char* const Überschriften[] = {"Punktnr.", "Rechts", "Hoch", "Höhe", "Sy."};
  for (int i = 0; i < 5; ++i)
    BeschriftungAnlegen(Überschriften[i], {0, i + 1}, RahmenAnschluss).Rechtsbündig = i < 4;
  Anf.Sym.Rechtsbündig = End.Sym.Rechtsbündig = false;
}

Anschlussblatt::Anschlusspunkt Anschlussblatt::Punktfelder(const char* Welcher, const char* Label,
                                                           int Zeile) {
  const auto Name = [&](const char* Rest) { return Mit(Welcher) + Rest; };
  BeschriftungAnlegen(Label, {Zeile, 0}, RahmenAnschluss);
  Feld& Pnr = FeldAnlegen(Name("Pnr"), {Zeile, 1}, RahmenAnschluss, 10);
  Pnr.IstPnr = Pnr.Rechtsbündig = true;
  Pnr.Hilfe = "Punktnummer; + und - zählen weiter";
  const auto Ergebnis = [&](const char* Rest, int Spalte, int Zeichen) -> Feld& {
    return ErgebnisfeldAnlegen(Name(Rest), {Zeile, Spalte}, RahmenAnschluss, Zeichen);
  };
  return {Pnr,
          Ergebnis("Rechts", 2, 12),
          Ergebnis("Hoch", 3, 12),
          Ergebnis("H_he", 4, 9),
          Ergebnis("Sym", 5, 5),
          "",
          {}};
}

Feld& Anschlussblatt::Messfeld(const char* Rest, const char* Label, Platz Ort, double& Zahl) {
  BeschriftungAnlegen(Label, {Ort.Zeile, Ort.Spalte}, RahmenAnschluss);
  Feld& S = ZahlenfeldAnlegen(Mit(Rest), {Ort.Zeile, Ort.Spalte + 1}, RahmenAnschluss, 10);
  S.Text = Messwerttext(Zahl);
  Messwerte.push_back({&S, &Zahl});
  return S;
}

Feld& Anschlussblatt::Anschlussergebnis(const char* Rest, const char* Label, int Spalte) {
  BeschriftungAnlegen(Label, {0, Spalte}, RahmenErgebnis);
  return ErgebnisfeldAnlegen(Mit(Rest), {0, Spalte + 1}, RahmenErgebnis, 10);
}

void Anschlussblatt::MesswertSetzen(Feld& F, double Zahl) {
  F.Text = Messwerttext(Zahl);
  FokusVerloren(F);
}

bool Anschlussblatt::FokusVerloren(Eingabeelement& S) {
  if (&S == &Anf.Pnr || &S == &End.Pnr) {
    S.Fehlerhaft = SetzePunkt(&S == &Anf.Pnr ? Anf : End) < 0;
    return !S.Fehlerhaft;
  }
  const auto M =
      std::find_if(Messwerte.begin(), Messwerte.end(), [&](const Messwert& W) { return W.Messfeld == &S; });
  if (M == Messwerte.end()) return true;
  std::string Text = S.Text;
  S.Fehlerhaft = !MesswertLesen(Text, *M->Zahl);
  S.Text = Text;
  if (S.Fehlerhaft) {
    Melde("Zahl erwartet");
  } else {
    AnschlussRechnen();
  }
  return !S.Fehlerhaft;
}

void Anschlussblatt::PunktLeeren(Anschlusspunkt& P) {
  for (Feld* F : {&P.Rechts, &P.Hoch, &P.H_he, &P.Sym}) F->Text = "";
  P.Gesucht.clear();
}

int Anschlussblatt::SetzePunkt(Anschlusspunkt& P) {
  P.Pnr.Text = Trimmen(*P.Pnr.Text);
  if (P.Pnr.Text == P.Gesucht) return 0;
  PunktLeeren(P);
  if (!P.Pnr.Text->empty()) {
    Wert Nummer(*P.Pnr.Text);
    const int Zeile = KorFind(Nummer);
    if (Zeile < 0) return -1;
    const auto z = static_cast<std::size_t>(Zeile);
    P.Gesucht = LetztePunktnummer = Trimmen(Nummer);
    P.Pnr.Text = P.Gesucht;
    P.Ort = {KorRechts[z], KorHoch[z]};
    P.Rechts.Text = Längentext(KorRechts[z]);
    P.Hoch.Text = Längentext(KorHoch[z]);
    P.H_he.Text = KorHoehe[z] == 0 ? "" : Längentext(KorHoehe[z]);
    P.Sym.Text = KorSymbol[z];
  }
  AnschlussRechnen();
  return 0;
}

double Anschlussblatt::Laenge() const { return Strecke(Anf.Ort.RW, Anf.Ort.HW, End.Ort.RW, End.Ort.HW); }

bool Anschlussblatt::AnschlussGesetzt() const {
  return !Anf.Gesucht.empty() && !End.Gesucht.empty() && Laenge() > 0;
}

bool Anschlussblatt::AnschlussPrüfen() {
  for (Anschlusspunkt* P : {&Anf, &End}) {
    P->Gesucht.clear();  // the table may have changed since
    if (FokusVerloren(P->Pnr) && !P->Gesucht.empty()) continue;
    FokusSetzen(P->Pnr);
    return false;
  }
  for (const Messwert& W : Messwerte) {
    if (FokusVerloren(*W.Messfeld)) continue;
    FokusSetzen(*W.Messfeld);
    return false;
  }
  if (AnschlussGesetzt()) return true;
  Melde("Anfangs- und Endpunkt sind gleich");
  FokusSetzen(End.Pnr);
  return false;
}

int Anschlussblatt::StapelAnschluss() {
  double AnfWert = 0, EndWert = 0;
  std::string AnfNr = Anf.Pnr.Text, EndNr = End.Pnr.Text;
  const int Ergebnis = StapelLesenPnrMitWerte(AnfNr, AnfWert, EndNr, EndWert);
  if (Ergebnis < 0) return Ergebnis;
  Anf.Pnr.Text = AnfNr;
  End.Pnr.Text = EndNr;
  KopfwerteSetzen(AnfWert, EndWert);
  for (Anschlusspunkt* P : {&Anf, &End}) {
    if (SetzePunkt(*P) == 0 && !P->Gesucht.empty()) continue;
    StapelFehlerMeldung("Anschlußpunkt " + *P->Pnr.Text + " fehlt");
    return -1;
  }
  return AnschlussEinzel();
}

void Anschlussblatt::AnschlussAnAus(bool An) {
  for (Feld* F : {&Anf.Pnr, &End.Pnr}) F->Aktiv = An;
  for (const Messwert& W : Messwerte) W.Messfeld->Aktiv = An;
}

Protpunkt Anschlussblatt::Zeilenpunkt(const Anschlusspunkt& P) { return {P.Ort.RW, P.Ort.HW, P.Gesucht}; }

}  // namespace tavorena
