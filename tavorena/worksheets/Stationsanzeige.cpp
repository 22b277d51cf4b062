#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/Stationsanzeige.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr const char* Rahmen = "Ergebnis";

Feld& Anlegen(Rechenblatt& Blatt, const char* Name, const char* Label, Platz Ort, int Zeichen) {
  Blatt.BeschriftungAnlegen(Label, Ort, Rahmen);
  return Blatt.ErgebnisfeldAnlegen(Name, {Ort.Zeile, Ort.Spalte + 1}, Rahmen, Zeichen);
}

const char* Arttext(Stationsart Art) {
  switch (Art) {
    case Stationsart::Helmert:
      return "Helmert";
    case Stationsart::Kongruent:
      return "kongruent (m=1)";
    case Stationsart::Anschluß:
      break;
  }
  return "polarer Anschluß";
}

}  // namespace

Stationsanzeige::Stationsanzeige(Rechenblatt& Blatt)
    : Rechts(Anlegen(Blatt, "FstatStandRechts", "Rechts:", {0, 0}, Längenbreite(8))),
      Hoch(Anlegen(Blatt, "FstatStandHoch", "Hoch:", {0, 2}, Längenbreite(8))),
      Höhe(Anlegen(Blatt, "FStatStandHöhe", "Höhe:", {0, 4}, Längenbreite(4))),
      Artfeld(Anlegen(Blatt, "FStatArtText", "Art:", {2, 0}, 16)),
      Anzahl(Anlegen(Blatt, "FStatAnzahl", "Beobachtungen:", {2, 2}, 5)),
      Massstab(Anlegen(Blatt, "FStatMaßstab", "M:", {1, 0}, Längenbreite(8))),
      Drehwinkel(Anlegen(Blatt, "FStatDrehwinkel", "Epsilon (gon):", {1, 2}, Längenbreite(8))),
      MK(Anlegen(Blatt, "FStatMK", "MK:", {1, 4}, Längenbreite(4))),
      ML(Anlegen(Blatt, "FStatML", "ML:", {1, 6}, Längenbreite(4))) {
  Artfeld.Rechtsbündig = false;
}

void Stationsanzeige::Zeigen(const Stationsergebnis& E, Stationsart Art) {
  Rechts.Text = Längentext(E.Ort.RW);
  Hoch.Text = Längentext(E.Ort.HW);
  Höhe.Text = E.Höhe == 0 ? "" : Längentext(E.Höhe);
  Artfeld.Text = Arttext(Art);
  Anzahl.Text = std::to_string(E.Anzahl);
  Massstab.Text = ZahlFormat(E.Massstab, -1, 6);
  Drehwinkel.Text = ZahlFormat(E.Epsilon, -1, 5);
  MK.Text = ZahlFormat(E.MK, -1, 3);
  ML.Text = ZahlFormat(E.ML, -1, 3);
}

void Stationsanzeige::Leeren() {
  for (Feld* F : {&Rechts, &Hoch, &Höhe, &Artfeld, &Anzahl, &Massstab, &Drehwinkel, &MK, &ML}) F->Text = "";
}

}  // namespace tavorena
