#include <cmath>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Messlinie.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVOrthoForm.h>

namespace tavorena {
namespace {

const char* const GleicheMaße = "Anlegemaß und Endmaß sind gleich";

}  // namespace

TVOrthoForm::TVOrthoForm(const Blattart& BlattArt)
    : Rechenblatt(BlattArt),
      Kopf(*this, [this] { ZeigeAnschluss(); }),
      Anlegemass(Kopf.Messfeld("Anlegemass", "Anlegemaß", {1, 6}, a)),
      Endmass(Kopf.Messfeld("Endmass", "Endmaß", {2, 6}, e)),
      L(Kopf.Ergebnis("L", "L:", 0)),
      E(Kopf.Ergebnis("E", "E:", 2)),
      M(Kopf.Ergebnis("M", "M:", 4)),
      D(Kopf.Ergebnis("D", "D:", 6)),
      Ws(Kopf.Ergebnis("Ws", "WS:", 8)),
      Zeilen(*this, Kopf,
             {{"Punktnr.", PnrZeichen, Zellart::Nummer},
              {"Rechts", Längenbreite(8)},
              {"Hoch", Längenbreite(8)},
              {"Linie", Längenbreite(6), Zellart::Maß},
              {"Seitw.", Längenbreite(6), Zellart::Maß},
              {"Sy.", 6, Zellart::Symbol}},
             Kunde()) {
  Endmass.BeiReturn = [this] { AnschlussÖffnen(); };
  Zeilen.KnöpfeAnlegen([this] { AnschlussÖffnen(); });
  KnöpfeAnlegen();
}

Zeilenkunde TVOrthoForm::Kunde() {
  return {
      true,
      [this](Rechenzeile& Z) {
        Z.Ort = MesslinieBerechnungPunkt(Kopf.Anf.Ort(), a, Werte, Z.Maße[0], Z.Maße[1]);
        return 0;
      },
      [](const Rechenzeile& Z) -> std::vector<std::string> {
        return {Längentext(Z.Ort.RW), Längentext(Z.Ort.HW)};
      },
      [this](const Rechenzeile& Z, const std::string& Marke) { return Protokollieren(Z, Marke); },
      [](const Rechenzeile& Z) {
        return MesslinieSatz({Z.Pnr, Z.Maße[0], Z.Maße[1], Z.Symbol});
      },
      [](Zeileneingabe& Zeile) {
        MesslinieEingabe Gelesen;
        const int Ergebnis = StapelLeseMesslinie(Gelesen);
        Zeile = {Gelesen.Pnr, {Gelesen.Linie, Gelesen.Seitwaerts}, Gelesen.Symbol};
        return Ergebnis;
      },
      [this](Verbindung& V) { Verbinden(V); },
      [this](const Rechenzeile& Z) {
        Lage Fuss = Kopf.Anf.Ort();
        static_cast<void>(Fusspunkt(Kopf.Anf.Ort(), Kopf.End.Ort(), Z.Ort, Fuss));
        return Fuss;
      },
  };
}

Block TVOrthoForm::Protokollieren(const Rechenzeile& Z, const std::string& Marke) const {
  std::vector<std::string> Marken{Marke};
  if (Marke.empty())
    Marken = MesslinieMarken(a, Z.Maße[0], Z.Maße[1], Werte.EntfGerechnet, Optionen.OptWarnstufe);
  return MesslinieZeile(Optionen.OptNachkommastellen, {Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Maße[0], Z.Maße[1],
                        Marken);
}

void TVOrthoForm::Verbinden(Verbindung& V) const {
  V.Zeilen = MesslinieAnschluss(Optionen.OptNachkommastellen, {Kopf.Anf.AlsProtpunkt(),
                                                               Kopf.End.AlsProtpunkt(),
                                                               a,
                                                               {},
                                                               e != 0 ? e : a + Werte.EntfGerechnet,
                                                               {},
                                                               Werte.Abweichung,
                                                               Werte.AbweichungZulaessig});
  V.Sätze = StapelKopfLinie(Kopf.Anf.Nummer(), a, Kopf.End.Nummer(), e);
}

void TVOrthoForm::ZeigeAnschluss() {
  if (!Kopf.Gesetzt() || MesslinieBerechnungAnschluss(Kopf.Anf.Ort(), Kopf.End.Ort(), a, e, Werte) < 0)
    return;
  L.Text = Längentext(Werte.EntfGerechnet);
  E.Text = Längentext(a + Werte.EntfGerechnet);
  M.Text = ZahlFormat(Werte.Massstab, -1, 6);
  D.Text = Längentext(Werte.AbweichungZulaessig);
  Ws.Text = e != 0 ? Längentext(Werte.Abweichung) : "";
  Ws.Fehlerhaft = std::fabs(Werte.Abweichung) > std::fabs(Werte.AbweichungZulaessig);
}

void TVOrthoForm::AnschlussÖffnen() {
  if (Kopf.Prüfen() && AnschlussEinzel() == 0) FokusSetzen(Zeilen.Zellen);
}

int TVOrthoForm::AnschlussEinzel() {
  if (e == 0 || e != a) return Zeilen.AnschlussEinzel();
  Endmass.Fehlerhaft = true;
  StatusHilfeSetzen(GleicheMaße);
  FokusSetzen(Endmass);
  return -1;
}

int TVOrthoForm::StapelAnschluss() {
  std::string AnfPnr, EndPnr;
  double AnfWert = 0, EndWert = 0;
  const int Ergebnis = StapelLesenPnrMitWerte(AnfPnr, AnfWert, EndPnr, EndWert);
  if (Ergebnis < 0) return Ergebnis;
  if (Kopf.AusStapel(AnfPnr, EndPnr) < 0) return -1;
  Anschluss::MesswertSetzen(Anlegemass, AnfWert);
  Anschluss::MesswertSetzen(Endmass, EndWert);
  if (e != 0 && e == a) StapelFehlerMeldung(GleicheMaße);
  return AnschlussEinzel();
}

}  // namespace tavorena
