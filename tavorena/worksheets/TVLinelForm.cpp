#include <cmath>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Linel.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVLinelForm.h>

namespace tavorena {
namespace {

constexpr std::size_t SpalteRed = 5;  // first of the two grid columns with the reduced values

Feld& Streifenfeld(Rechenblatt& Blatt, const char* Label, const char* Rest, int Spalte, int Zeichen) {
  const char* const Rahmen = "Streifen";
  Blatt.BeschriftungAnlegen(Label, {0, Spalte}, Rahmen);
  return Blatt.ZahlenfeldAnlegen(Blatt.Mit(Rest), {0, Spalte + 1}, Rahmen, Zeichen);
}

}  // namespace

TVLinelForm::TVLinelForm(const Blattart& BlattArt)
    : Zeilenblatt(BlattArt, {"Anlegemass", "Anlegemaß", {1, 6}}, {"Endmass", "Endmaß", {2, 6}}, true),
      Pnrvon(Streifenfeld(*this, "Von Punktnr.:", "Pnrvon", 0, PnrZeichen)),
      Pnrbis(Streifenfeld(*this, "Bis Punktnr.:", "Pnrbis", 2, PnrZeichen)),
      Breite(Streifenfeld(*this, "Breite (0 = alle):", "Streifen", 4, 8)) {
  Pnrvon.IstPnr = Pnrbis.IstPnr = true;
  Breite.Text = "0";
  Breite.Hilfe = "Return nimmt alle Punkte des Bereichs im Streifen als Zeilen auf";
  Breite.BeiReturn = [this] { Streifen(); };
  ZeilenAnlegen({{"Punktnr.", PnrZeichen, Zellart::Nummer},
                 {"Rechts", Längenbreite(8)},
                 {"Hoch", Längenbreite(8)},
                 {"Linie", Längenbreite(6)},
                 {"Seitw.", Längenbreite(6)},
                 {"S-red", Längenbreite(6), Zellart::Ergebnis, false},
                 {"A-red", Längenbreite(6), Zellart::Ergebnis, false}},
                Kunde(), {&Pnrvon, &Pnrbis, &Breite});
}

Zeilenkunde TVLinelForm::Kunde() {
  return {
      false,
      [this](Rechenzeile& Z) {
        return Linienelemente(Kopf.Anf.Ort(), Kopf.End.Ort(), Z.Ort, Z.Wert1, Z.Wert2);
      },
      [this](const Rechenzeile& Z) -> std::vector<std::string> {
        std::vector<std::string> Texte = {Längentext(Z.Ort.RW), Längentext(Z.Ort.HW), Längentext(Z.Wert1),
                                          Längentext(Z.Wert2)};
        if (MitRed()) {
          Texte.push_back(Längentext(a + Red(Z.Wert1)));
          Texte.push_back(Längentext(Red(Z.Wert2)));
        }
        return Texte;
      },
      [this](const Rechenzeile& Z, const std::string& Marke) {
        const Wert LinieRed = MitRed() ? Wert(a + Red(Z.Wert1)) : Wert();
        const Wert SeitwRed = MitRed() ? Wert(Red(Z.Wert2)) : Wert();
        return LinelZeile(Optionen.OptNachkommastellen, {Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Wert1, Z.Wert2,
                          LinieRed, SeitwRed, Marke);
      },
      [](const Rechenzeile& Z) { return LinelSatz(Z.Pnr); },
      [](Zeileneingabe& Zeile) { return StapelLeseLinel(Zeile.Pnr); },
      [this](Verbindung& V) {
        V.Zeilen = LinelAnschluss(Optionen.OptNachkommastellen, {Kopf.Anf.AlsProtpunkt(),
                                                                 Kopf.End.AlsProtpunkt(),
                                                                 a,
                                                                 {},
                                                                 e != 0 ? e : a + Werte.EntfGerechnet,
                                                                 {},
                                                                 Werte.Abweichung,
                                                                 Werte.AbweichungZulaessig});
        V.Sätze = StapelKopfLinie(Kopf.Anf.Nummer(), a, Kopf.End.Nummer(), e);
      },
      [this](const Rechenzeile& Z) {  // the foot point
        const double Teil = Z.Wert1 / Werte.EntfGerechnet;
        const Lage Von = Kopf.Anf.Ort(), Bis = Kopf.End.Ort();
        return Lage{Von.RW + Teil * (Bis.RW - Von.RW), Von.HW + Teil * (Bis.HW - Von.HW)};
      },
  };
}

void TVLinelForm::ZeigeAnschluss() {
  if (!Kopf.Gesetzt() || LinienelementeAnschluss(Kopf.Anf.Ort(), Kopf.End.Ort(), a, e, Werte) < 0) return;
  // The worksheet shows computed over measured, as the measured line does.
  WerteZeigen(Werte, Gemessen() != 0 ? Wert(Kopf.Länge() / Gemessen()) : Wert());
}

void TVLinelForm::BeiAnschluss() {
  for (const std::size_t s : {SpalteRed, SpalteRed + 1}) Zeilen().Zellen.Spalten[s].Sichtbar = MitRed();
}

void TVLinelForm::Streifen() {
  std::string Text = Breite.Text;
  double Grenze = 0;
  Breite.Fehlerhaft = !MesswertLesen(Text, Grenze);
  if (Breite.Fehlerhaft) return FokusSetzen(Breite);
  Breite.Text = Text;
  if (Pnrvon.Text->empty()) return FokusSetzen(Pnrvon);
  if (Pnrbis.Text->empty()) Pnrbis.Text = *Pnrvon.Text;
  if (!Zeilen().OffeneZeileSchreiben()) return;
  ParallelenMarkieren(std::fabs(Grenze));
  const int Anzahl = StreifenAufnehmen(std::fabs(Grenze));
  StatusHilfeSetzen(Anzahltext(Anzahl, "Punkt", "Punkte") + " im Streifen");
  FokusSetzen(Zeilen().Zellen);
}

// The edges of the strip, as long as the base line.
void TVLinelForm::ParallelenMarkieren(double Abstand) {
  if (Abstand == 0) return;
  const Lage Von = Kopf.Anf.Ort(), Bis = Kopf.End.Ort();
  for (const double Seite : {-Abstand, Abstand}) {
    const double dR = (Bis.HW - Von.HW) / Kopf.Länge() * Seite, dH = (Von.RW - Bis.RW) / Kopf.Länge() * Seite;
    Zeilen().Beiwerk.Linie(
        {Von.RW + dR, Von.HW + dH, Bis.RW + dR, Bis.HW + dH, FarbeRot, Strich::Gestrichelt, false});
  }
}

int TVLinelForm::StreifenAufnehmen(double Grenze) {
  const Beschäftigung Lang;
  Atempause Pause(0.5);
  const Wert Von(*Pnrvon.Text), Bis(*Pnrbis.Text);
  int Anzahl = 0;
  for (int z = KorBereichSuche(Von, Bis, -1); z >= 0 && KorStop != Laufwunsch::Stop;
       z = KorBereichSuche(Von, Bis, z)) {
    const KorSatz P = KorPunkt(z);
    double Linie = 0, Seitwaerts = 0;
    if (Linienelemente(Kopf.Anf.Ort(), Kopf.End.Ort(), {P.Rechts, P.Hoch}, Linie, Seitwaerts) < 0 ||
        (Grenze != 0 && std::fabs(Seitwaerts) > Grenze))
      continue;
    const int Ergebnis = Zeilen().Eintragen({KorPnr(z), {}, ""});
    if (Ergebnis == -2) break;  // it reached no file, nor would the next one
    if (Ergebnis == 0) ++Anzahl;
    if (!Pause.Fällig()) continue;
    StatusHilfeSetzen(Anzahltext(Anzahl, "Zeile", "Zeilen"));
    AblaufPort().EreignisseAbarbeiten();
  }
  KorStop = Laufwunsch::Weiter;
  return Anzahl;
}

}  // namespace tavorena
