#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Anschluss.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const RahmenAnschluss = "Anschluß";
const char* const RahmenErgebnis = "Ergebnis";
const char* const GleichePunkte = "Anfangs- und Endpunkt sind gleich";

}  // namespace

Anschluss::Anschluss(Rechenblatt& Für, std::function<void()> BeiWechsel)
    : Anf(Für, "Anf", "Anf.pkt.", RahmenAnschluss, 1),
      End(Für, "End", "Endpkt.", RahmenAnschluss, 2),
      Blatt(Für),
      Rechnen(std::move(BeiWechsel)) {
  for (Punktfeld* P : {&Anf, &End}) P->BeiWechsel = [this, P] { PunktGewechselt(*P); };
  PunktfeldKopf(Blatt, RahmenAnschluss);
}

Feld& Anschluss::Messfeld(const char* Rest, const char* Label, Platz Ort, double& Zahl) {
  Blatt.BeschriftungAnlegen(Label, {Ort.Zeile, Ort.Spalte}, RahmenAnschluss);
  Feld& F = Blatt.ZahlenfeldAnlegen(Blatt.Mit(Rest), {Ort.Zeile, Ort.Spalte + 1}, RahmenAnschluss, 12);
  F.Text = Messwerttext(Zahl);
  F.BeiVerlassen = [this, &F, &Zahl] { return MessungNehmen(F, Zahl); };
  Messfelder.push_back({F, Zahl});
  return F;
}

Feld& Anschluss::Ergebnis(const char* Rest, const char* Label, int Spalte) {
  Blatt.BeschriftungAnlegen(Label, {0, Spalte}, RahmenErgebnis);
  return Blatt.ErgebnisfeldAnlegen(Blatt.Mit(Rest), {0, Spalte + 1}, RahmenErgebnis, Längenbreite(6));
}

// What was measured to another point does not belong to this one. A dialog on the way may have moved points.
void Anschluss::PunktGewechselt(const Punktfeld& P) {
  if (!P.Vorher().empty() && P.Vorher() != P.Nummer()) {
    for (const Messung& M : Messfelder) {
      M.Zahl = 0;
      M.F.Text = Messwerttext(0);
    }
  }
  if (Nachsehen()) return;
  Markieren();
  Rechnen();
}

// The points are discs, with the line between them.
void Anschluss::Markieren() {
  Bild.Löschen();
  for (const Punktfeld* P : {&Anf, &End}) {
    if (P->Gesetzt()) Bild.Punkt({P->Nummer(), P->Ort().RW, P->Ort().HW, "MARK", FarbeRot});
  }
  if (Gesetzt()) Bild.Linie({Anf.Ort().RW, Anf.Ort().HW, End.Ort().RW, End.Ort().HW, FarbeRot});
}

bool Anschluss::Nachsehen() {
  const bool AnfBewegt = Anf.Nachsehen(), EndBewegt = End.Nachsehen();
  if (!AnfBewegt && !EndBewegt) return false;
  Markieren();
  Rechnen();
  return true;
}

bool Anschluss::MessungNehmen(Feld& F, double& Zahl) {
  std::string Text = F.Text;
  if (!MesswertPrüfen(Text, Zahl)) return false;
  F.Text = Text;
  if (!Nachsehen()) Rechnen();
  return true;
}

void Anschluss::MesswertSetzen(Feld& F, double Zahl) {
  F.Text = Messwerttext(Zahl);
  static_cast<void>(F.BeiVerlassen());  // a text of its own making is always read
}

double Anschluss::Länge() const { return Strecke(Anf.Ort().RW, Anf.Ort().HW, End.Ort().RW, End.Ort().HW); }

bool Anschluss::Gesetzt() const { return Anf.Gesetzt() && End.Gesetzt() && Länge() > 0; }

bool Anschluss::Prüfen() {
  for (Punktfeld* P : {&Anf, &End}) {
    if (P->Auffrischen()) continue;
    Blatt.FokusSetzen(P->Pnr);
    return false;
  }
  for (const Messung& M : Messfelder) {
    if (Formular::Lesen(M.F)) continue;
    Blatt.FokusSetzen(M.F);
    return false;
  }
  if (Gesetzt()) return true;
  StatusHilfeSetzen(GleichePunkte);
  Blatt.FokusSetzen(End.Pnr);
  return false;
}

int Anschluss::AusStapel(const std::string& AnfPnr, const std::string& EndPnr) {
  if (Anf.AusStapel(AnfPnr) < 0 || End.AusStapel(EndPnr) < 0) return -1;
  if (Gesetzt()) return 0;
  StapelFehlerMeldung(GleichePunkte);
  return -1;
}

void Anschluss::AnschlussAnAus(bool An) {
  Anf.Pnr.Aktiv = End.Pnr.Aktiv = An;
  for (const Messung& M : Messfelder) M.F.Aktiv = An;
}

}  // namespace tavorena
