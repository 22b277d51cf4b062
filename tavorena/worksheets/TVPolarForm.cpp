#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Polar.h>
#include <tavorena/records/Polel.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVPolarForm.h>

namespace tavorena {
namespace {

// The measures of a row.
enum : std::size_t { MaßRichtung, MaßVk, MaßStrecke };

}  // namespace

TVPolarForm::TVPolarForm(const Blattart& BlattArt)
    : Zeilenblatt(BlattArt, {"Orientierung", "Orient.", {1, 6}}, {"GemStrecke", "Strecke", {2, 6}}, false),
      Vertikal(Kopf.Ergebnis("Vertikal", "Vk (gon):", 8)) {
  Feld1.Hilfe = "Ablesung auf dem Endpunkt in gon";
  ZeilenAnlegen({{"Punktnr.", PnrZeichen, Zellart::Nummer},
                 {"Rechts", Längenbreite(8)},
                 {"Hoch", Längenbreite(8)},
                 {"Höhe", Längenbreite(4)},
                 {"Richtung", 10, Zellart::Maß},
                 {"Vk", 10, Zellart::Maß},
                 {"Strecke", Längenbreite(6), Zellart::Maß},
                 {"Sy.", 6, Zellart::Symbol}},
                Kunde());
}

Zeilenkunde TVPolarForm::Kunde() {
  return {
      true,
      [this](Rechenzeile& Z) { return Rechnen(Z); },
      [](const Rechenzeile& Z) -> std::vector<std::string> {
        return {Längentext(Z.Ort.RW), Längentext(Z.Ort.HW), Längentext(Z.Hoehe)};
      },
      [this](const Rechenzeile& Z, const std::string& Marke) { return Protokollieren(Z, Marke); },
      [](const Rechenzeile& Z) {
        return PolarSatz({Z.Pnr, Z.Maße[MaßRichtung], Z.Maße[MaßVk], Z.Maße[MaßStrecke], Z.Symbol});
      },
      [](Zeileneingabe& Zeile) {
        PolarEingabe Gelesen;
        const int Ergebnis = StapelLesePolar(Gelesen);
        Zeile = {Gelesen.Pnr, {Gelesen.Richtung, Gelesen.Vertikal, Gelesen.Strecke}, Gelesen.Symbol};
        return Ergebnis;
      },
      [this](Verbindung& V) { Verbinden(V); },
      [this](const Rechenzeile&) { return Kopf.Anf.Ort(); },
  };
}

// Heights are carried from a station that has one, to points whose vertical angle was measured.
int TVPolarForm::Rechnen(Rechenzeile& Z) const {
  if (Z.Maße[MaßStrecke] == 0) {
    StatusHilfeSetzen("Strecke fehlt");
    return -1;
  }
  if (Kopf.Anf.Hoehe() != 0 && Z.Maße[MaßVk] != 0)
    Z.Hoehe = PolarhoeheBerechnen(Kopf.Anf.Hoehe(), 0, Z.Maße[MaßVk], Z.Maße[MaßStrecke], 0);
  return PolarBerechnungPunkt(Kopf.Anf.Ort(), Kopf.End.Ort(), GonNachGrad(Z.Maße[MaßRichtung]),
                              Z.Maße[MaßStrecke], 0, GonNachGrad(Ablesung), Werte.Massstab, Z.Ort);
}

Block TVPolarForm::Protokollieren(const Rechenzeile& Z, const std::string& Marke) const {
  return PolarZeile(
      Optionen.OptNachkommastellen,
      {{Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Hoehe, Z.Maße[MaßRichtung], Z.Maße[MaßVk], Z.Maße[MaßStrecke], 0},
      Marke.empty() ? PolarMarke(Z.Maße[MaßStrecke], Werte.EntfGerechnet, Optionen.OptWarnstufe) : Marke);
}

void TVPolarForm::Verbinden(Verbindung& V) const {
  V.HoehenRechnen = Kopf.Anf.Hoehe() != 0;
  V.Zeilen = PolelAnschluss(
      Optionen.OptNachkommastellen,
      {Kopf.Anf.AlsProtpunkt(), Kopf.End.AlsProtpunkt(), Werte.NordrichtungGon, Werte.EntfGerechnet, Ablesung,
       Gemessen != 0 ? Wert(Gemessen) : Wert(), Werte.Abweichung, Werte.AbweichungZulaessig});
  V.Sätze = StapelKopfLinie(Kopf.Anf.Nummer(), Ablesung, Kopf.End.Nummer(), Gemessen);
}

void TVPolarForm::ZeigeAnschluss() {
  if (!Kopf.Gesetzt() || PolarBerechnungAnschluss(Kopf.Anf.Ort(), Kopf.End.Ort(), Gemessen, Werte) < 0)
    return;
  WerteZeigen(Werte, Werte.Massstab);
  const bool MitHöhen = Kopf.Anf.Hoehe() != 0 && Kopf.End.Hoehe() != 0;
  const double Winkel = PolarVertikalAnschluss(Werte.EntfGerechnet, Kopf.Anf.Hoehe(), Kopf.End.Hoehe());
  Vertikal.Text = MitHöhen ? ZahlFormat(Winkel, -1, 4) : "";
}

}  // namespace tavorena
