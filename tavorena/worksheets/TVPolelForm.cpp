#include <tavorena/core/Optionen.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Linel.h>
#include <tavorena/records/Polel.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVPolelForm.h>

namespace tavorena {
namespace {

std::string Gontext(double Gon) { return ZahlFormat(Gon, -1, 4); }

}  // namespace

TVPolelForm::TVPolelForm(const Blattart& BlattArt)
    : Zeilenblatt(BlattArt, {"Orientierung", "Richtung (gon)", {2, 6}}, {"Strecke", "Strecke", {2, 8}},
                  false) {
  ZeilenAnlegen({{"Punktnr.", PnrZeichen, Zellart::Nummer},
                 {"Rechts", Längenbreite(8)},
                 {"Hoch", Längenbreite(8)},
                 {"Richtung", 12},
                 {"Strecke", Längenbreite(6)}},
                Kunde());
}

Zeilenkunde TVPolelForm::Kunde() {
  return {
      false,
      [this](Rechenzeile& Z) {
        double Nordrichtung = 0;
        return Polarelemente(Kopf.Anf.Ort(), Kopf.End.Ort(), Z.Ort, Ablesung, Z.Wert1, Z.Wert2, Nordrichtung);
      },
      [](const Rechenzeile& Z) -> std::vector<std::string> {
        return {Längentext(Z.Ort.RW), Längentext(Z.Ort.HW), Gontext(Z.Wert1), Längentext(Z.Wert2)};
      },
      [](const Rechenzeile& Z, const std::string& Marke) {
        return PolelZeile(Optionen.OptNachkommastellen, {Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Wert1, Z.Wert2, Marke);
      },
      [](const Rechenzeile& Z) { return LinelSatz(Z.Pnr); },
      [](Zeileneingabe& Zeile) { return StapelLeseLinel(Zeile.Pnr); },
      [this](Verbindung& V) {
        V.Zeilen = PolelAnschluss(
            Optionen.OptNachkommastellen,
            {Kopf.Anf.AlsProtpunkt(), Kopf.End.AlsProtpunkt(), Nord, Werte.EntfGerechnet, Ablesung,
             Gemessen != 0 ? Wert(Gemessen) : Wert(), Werte.Abweichung, Werte.AbweichungZulaessig});
        V.Sätze = StapelKopfLinie(Kopf.Anf.Nummer(), Ablesung, Kopf.End.Nummer(), Gemessen);
      },
      [this](const Rechenzeile&) { return Kopf.Anf.Ort(); },
  };
}

void TVPolelForm::ZeigeAnschluss() {
  double Zwischen = 0;
  if (!Kopf.Gesetzt() ||
      PolarelementeAnschluss(Kopf.Anf.Ort(), Kopf.End.Ort(), Gemessen, Zwischen, Nord, Werte) < 0)
    return;
  WerteZeigen(Werte, Gemessen != 0 ? Werte.EntfGerechnet / Gemessen : 1.0);
}

}  // namespace tavorena
