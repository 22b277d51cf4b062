#include <cmath>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/Zeilenblatt.h>

namespace tavorena {

Zeilenblatt::Zeilenblatt(const Blattart& BlattArt, const Messfeld& Erstes, const Messfeld& Zweites,
                         bool MitEnde)
    : Rechenblatt(BlattArt),
      Kopf(*this, [this] { ZeigeAnschluss(); }),
      Feld1(Kopf.Messfeld(Erstes.Rest, Erstes.Label, Erstes.Ort, Maß1)),
      Feld2(Kopf.Messfeld(Zweites.Rest, Zweites.Label, Zweites.Ort, Maß2)) {
  int Spalte = 0;
  const auto Ergebnis = [&](const char* Rest, const char* Label) {
    Feld& F = Kopf.Ergebnis(Rest, Label, Spalte);
    Spalte += 2;
    return &F;
  };
  L = Ergebnis("L", "L:");
  if (MitEnde) E = Ergebnis("E", "E:");
  M = Ergebnis("M", "M:");
  D = Ergebnis("D", "D:");
  Ws = Ergebnis("Ws", "WS:");
  Feld2.BeiReturn = [this] { AnschlussÖffnen(); };
}

void Zeilenblatt::ZeilenAnlegen(const std::vector<Zeilenspalte>& Spalten, Zeilenkunde Wissen,
                                std::initializer_list<Steuerelement*> Weitere) {
  Reihen.emplace(*this, Kopf, Spalten, std::move(Wissen));
  Reihen->MitÖffnen(Weitere);
  Reihen->KnöpfeAnlegen([this] { AnschlussÖffnen(); });
  KnöpfeAnlegen();
}

void Zeilenblatt::WerteZeigen(const Anschlusswerte& W, const Wert& Maßstab) {
  L->Text = Längentext(W.EntfGerechnet);
  if (E != nullptr) E->Text = Längentext(Maß1 + W.EntfGerechnet);
  M->Text = Maßstab.IstGegeben() ? ZahlFormat(Maßstab, -1, 6) : "";
  D->Text = Längentext(W.AbweichungZulaessig);
  Ws->Text = Maß2 != 0 ? Längentext(W.Abweichung) : "";
  Ws->Fehlerhaft = std::fabs(W.Abweichung) > std::fabs(W.AbweichungZulaessig);
}

const char* Zeilenblatt::GleicheMaße() const {
  return Maß2 != 0 && Maß1 == Maß2 ? "Anlegemaß und Endmaß sind gleich" : "";
}

void Zeilenblatt::AnschlussÖffnen() {
  if (Kopf.Prüfen() && AnschlussEinzel() == 0) FokusSetzen(Zeilen().Zellen);
}

int Zeilenblatt::AnschlussEinzel() {
  if (const std::string Grund = Hindernis(); !Grund.empty()) {
    Feld2.Fehlerhaft = true;
    StatusHilfeSetzen(Grund);
    FokusSetzen(Feld2);
    return -1;
  }
  if (Zeilen().AnschlussEinzel() < 0) return -1;
  BeiAnschluss();
  return 0;
}

int Zeilenblatt::StapelAnschluss() {
  std::string AnfPnr, EndPnr;
  double AnfWert = 0, EndWert = 0;
  const int Ergebnis = StapelLesenPnrMitWerte(AnfPnr, AnfWert, EndPnr, EndWert);
  if (Ergebnis < 0) return Ergebnis;
  if (Kopf.AusStapel(AnfPnr, EndPnr) < 0) return -1;
  Anschluss::MesswertSetzen(Feld1, AnfWert);
  Anschluss::MesswertSetzen(Feld2, EndWert);
  if (const std::string Grund = Hindernis(); !Grund.empty()) StapelFehlerMeldung(Grund);
  return AnschlussEinzel();
}

void Zeilenblatt::GrafikLöschen() {
  Kopf.GrafikAnschlußLöschen();
  Zeilen().GrafikKleinpunktLöschen();
}

}  // namespace tavorena
