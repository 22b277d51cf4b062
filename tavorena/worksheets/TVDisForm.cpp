#include <cmath>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Dis.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVDisForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

TVDisForm::TVDisForm(const Blattart& BlattArt)
    : Rechenblatt(BlattArt),
      Kopf(*this, [this] { ZeigeAnschluss(); }),
      Strecke(Kopf.Messfeld("Strecke", "Strecke", {2, 6}, Gemessen)),
      L(Kopf.Ergebnis("L", "L:", 0)),
      D(Kopf.Ergebnis("D", "D:", 2)),
      Ws(Kopf.Ergebnis("Ws", "WS:", 4)) {
  Strecke.Hilfe = "Gemessene Strecke; Return schreibt die Kontrolle";
  Strecke.BeiReturn = [this] {
    if (Kopf.Prüfen() && AnschlussEinzel() == 0) NächsteKontrolle();
  };
  KnöpfeAnlegen();
}

void TVDisForm::ZeigeAnschluss() {
  if (!Kopf.Gesetzt()) return;
  const bool MitMessung = Entfernungskontrolle(Kopf.Anf.Ort(), Kopf.End.Ort(), Gemessen, Werte) == 0;
  L.Text = Längentext(Werte.EntfGerechnet);
  D.Text = MitMessung ? Längentext(Werte.AbweichungZulaessig) : "";
  Ws.Text = MitMessung ? Längentext(Werte.Abweichung) : "";
  Ws.Fehlerhaft = MitMessung && std::fabs(Werte.Abweichung) > std::fabs(Werte.AbweichungZulaessig);
}

int TVDisForm::AnschlussEinzel() {
  if (!Kopf.Gesetzt()) return -1;
  ZeigeAnschluss();
  if (KontrolleSchreiben() < 0) return -1;
  const Lage A = Kopf.Anf.Ort(), E = Kopf.End.Ort();
  Geprüft.Linie({A.RW, A.HW, E.RW, E.HW, FarbeRot});
  if (ImStapel()) ++Stapel.Bilanz.Zeilen;
  return 0;
}

int TVDisForm::KontrolleSchreiben() {
  std::string Satz = DisSatz(Kopf.Anf.Nummer(), Kopf.End.Nummer(), Gemessen);
  if (!Akten.BlockOffen()) {  // the head of the block holds the check
    Verbindung V = NeueVerbindung();
    V.Sätze = StapelKopfLinie(Kopf.Anf.Nummer(), 0, Kopf.End.Nummer(), Gemessen);
    V.EndeMitZeilen = false;
    if (Akten.Beginnen(std::move(V)) < 0) return -1;
    Satz.clear();
  }
  const Block Zeilen = DisZeile(Optionen.OptNachkommastellen,
                                {Kopf.Anf.AlsProtpunkt(),
                                 Kopf.End.AlsProtpunkt(),
                                 {},
                                 {},
                                 Gemessen != 0 ? Wert(Gemessen) : Wert(),
                                 Werte.EntfGerechnet,
                                 Werte.Abweichung,
                                 Werte.AbweichungZulaessig},
                                Gemessen != 0);
  Aufzeichnung::Spur Wo;
  return Akten.Zeile(Zeilen, Satz, Wo);
}

void TVDisForm::NächsteKontrolle() {
  Kopf.Anf.Übernehmen(Kopf.End);
  Gemessen = 0;
  Strecke.Text = Messwerttext(0);
  FokusSetzen(Kopf.End.Pnr);
}

int TVDisForm::StapelAnschluss() {
  std::string AnfPnr, EndPnr;
  double AnfWert = 0, EndWert = 0;
  const int Ergebnis = StapelLesenPnrMitWerte(AnfPnr, AnfWert, EndPnr, EndWert);
  if (Ergebnis < 0) return Ergebnis;
  if (Kopf.AusStapel(AnfPnr, EndPnr) < 0) return -1;
  Anschluss::MesswertSetzen(Strecke, EndWert);
  return AnschlussEinzel();
}

int TVDisForm::StapelZeile() {
  std::string AnfPnr, EndPnr;
  double Entfernung = 0;
  const int Ergebnis = StapelLeseDis(AnfPnr, EndPnr, Entfernung);
  if (Ergebnis < 0) return Ergebnis;
  Kopf.Anf.Pnr.Text = AnfPnr;
  Kopf.End.Pnr.Text = EndPnr;
  // A point that the user does not supply drops its check, the replay goes on.
  for (Punktfeld* P : {&Kopf.Anf, &Kopf.End}) {
    if (P->Setzen() == 0) continue;
    StapelZeileAuslassen("Punkt " + Zitat(*P->Pnr.Text) + " fehlt");
    return 0;
  }
  if (!Kopf.Gesetzt()) {
    StapelZeileAuslassen("Anfangs- und Endpunkt sind gleich");
    return 0;
  }
  Anschluss::MesswertSetzen(Strecke, Entfernung);
  if (AnschlussEinzel() == 0) return 0;
  StapelFehlerMeldung("Zeile nicht geschrieben");
  return -1;
}

// A point that is not known yet is asked for when the check is written.
bool TVDisForm::HatOffenes() const {
  return !TrimmenSicht(*Kopf.End.Pnr.Text).empty() && ZahlAusText(*Strecke.Text) != 0;
}

bool TVDisForm::OffenesSchreiben() {
  if (!Kopf.Prüfen() || AnschlussEinzel() < 0) return false;
  NächsteKontrolle();  // it is not written a second time
  return true;
}

}  // namespace tavorena
