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
    Beschriftung(Überschriften[i], {0, i + 1}, RahmenAnschluss).Rechtsbündig = i < 4;
  Anf.Sym.Rechtsbündig = End.Sym.Rechtsbündig = false;
}

Anschlussblatt::Anschlusspunkt Anschlussblatt::Punktfelder(const char* Welcher, const char* Label,
                                                           int Zeile) {
  const auto Name = [&](const char* Rest) { return Mit(Welcher) + Rest; };
  Beschriftung(Label, {Zeile, 0}, RahmenAnschluss);
  Steuerelement& Pnr = Feld(Name("Pnr"), {Zeile, 1}, RahmenAnschluss, 10);
  Pnr.IstPnr = Pnr.Rechtsbündig = true;
  Pnr.Hilfe = "Punktnummer; + und - zählen weiter";
  const auto Ergebnis = [&](const char* Rest, int Spalte, int Zeichen) -> Steuerelement& {
    return Ergebnisfeld(Name(Rest), {Zeile, Spalte}, RahmenAnschluss, Zeichen);
  };
  return {Pnr,
          Ergebnis("Rechts", 2, 12),
          Ergebnis("Hoch", 3, 12),
          Ergebnis("H_he", 4, 9),
          Ergebnis("Sym", 5, 5),
          "",
          {}};
}

Steuerelement& Anschlussblatt::Messfeld(const char* Rest, const char* Label, Platz Ort, double& Zahl) {
  Beschriftung(Label, {Ort.Zeile, Ort.Spalte}, RahmenAnschluss);
  Steuerelement& S = Zahlenfeld(Mit(Rest), {Ort.Zeile, Ort.Spalte + 1}, RahmenAnschluss, 10);
  S.Text = Messwerttext(Zahl);
  Messwerte.push_back({&S, &Zahl});
  return S;
}

Steuerelement& Anschlussblatt::Anschlussergebnis(const char* Rest, const char* Label, int Spalte) {
  Beschriftung(Label, {0, Spalte}, RahmenErgebnis);
  return Ergebnisfeld(Mit(Rest), {0, Spalte + 1}, RahmenErgebnis, 10);
}

void Anschlussblatt::MesswertSetzen(Steuerelement& S, double Zahl) {
  S.Text = Messwerttext(Zahl);
  FokusVerloren(S);
}

bool Anschlussblatt::FokusVerloren(Steuerelement& S) {
  if (&S == &Anf.Pnr || &S == &End.Pnr) {
    S.Fehlerhaft = SetzePunkt(&S == &Anf.Pnr ? Anf : End) < 0;
    return !S.Fehlerhaft;
  }
  const auto M =
      std::find_if(Messwerte.begin(), Messwerte.end(), [&](const Messwert& W) { return W.Feld == &S; });
  if (M == Messwerte.end()) return true;
  S.Fehlerhaft = !MesswertLesen(S.Text, *M->Zahl);
  if (S.Fehlerhaft) {
    Melde("Zahl erwartet");
  } else {
    AnschlussRechnen();
  }
  return !S.Fehlerhaft;
}

void Anschlussblatt::PunktLeeren(Anschlusspunkt& P) {
  for (Steuerelement* F : {&P.Rechts, &P.Hoch, &P.H_he, &P.Sym}) F->Text.clear();
  P.Gesucht.clear();
}

int Anschlussblatt::SetzePunkt(Anschlusspunkt& P) {
  P.Pnr.Text = Trimmen(P.Pnr.Text);
  if (P.Pnr.Text == P.Gesucht) return 0;
  PunktLeeren(P);
  if (!P.Pnr.Text.empty()) {
    Wert Nummer(P.Pnr.Text);
    const int Zeile = KorFind(Nummer);
    if (Zeile < 0) return -1;
    const auto z = static_cast<std::size_t>(Zeile);
    P.Gesucht = P.Pnr.Text = LetztePunktnummer = Trimmen(Nummer);
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
    if (FokusVerloren(*W.Feld)) continue;
    FokusSetzen(*W.Feld);
    return false;
  }
  if (AnschlussGesetzt()) return true;
  Melde("Anfangs- und Endpunkt sind gleich");
  FokusSetzen(End.Pnr);
  return false;
}

int Anschlussblatt::StapelAnschluss() {
  double AnfWert = 0, EndWert = 0;
  const int Ergebnis = StapelLesenPnrMitWerte(Anf.Pnr.Text, AnfWert, End.Pnr.Text, EndWert);
  if (Ergebnis < 0) return Ergebnis;
  KopfwerteSetzen(AnfWert, EndWert);
  for (Anschlusspunkt* P : {&Anf, &End}) {
    if (SetzePunkt(*P) == 0 && !P->Gesucht.empty()) continue;
    StapelFehlerMeldung("Anschlußpunkt " + P->Pnr.Text + " fehlt");
    return -1;
  }
  return AnschlussEinzel();
}

void Anschlussblatt::AnschlussAnAus(bool An) {
  for (Steuerelement* S : {&Anf.Pnr, &End.Pnr}) S->Aktiv = An;
  for (const Messwert& W : Messwerte) W.Feld->Aktiv = An;
}

Protpunkt Anschlussblatt::Zeilenpunkt(const Anschlusspunkt& P) { return {P.Ort.RW, P.Ort.HW, P.Gesucht}; }

}  // namespace tavorena
