#include <tavorena/core/Optionen.h>
#include <tavorena/records/Messlinie.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVOrthoForm.h>

namespace tavorena {

TVOrthoForm::TVOrthoForm(const Blattart& BlattArt)
    : Zeilenblatt(BlattArt, {"Anlegemass", "Anlegemaß", {1, 6}}, {"Endmass", "Endmaß", {2, 6}}, true) {
  ZeilenAnlegen({{"Punktnr.", PnrZeichen, Zellart::Nummer},
                 {"Rechts", Längenbreite(8)},
                 {"Hoch", Längenbreite(8)},
                 {"Linie", Längenbreite(6), Zellart::Maß},
                 {"Seitw.", Längenbreite(6), Zellart::Maß},
                 {"Sy.", 6, Zellart::Symbol}},
                Kunde());
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
  WerteZeigen(Werte, Werte.Massstab);
}

}  // namespace tavorena
