#include <functional>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {

Rücknahme TabellenRücknahme;

namespace {

bool Fragen(const std::string& Name, const std::string& Text, int Anzahl) {
  const std::string Frage = Anzahltext(Anzahl, "Punkt", "Punkte") + " ändern ?";
  return FrageJaNein(Text.empty() ? Frage : Text + "\n\n" + Frage, "Tavorena " + Name) == KnopfJa;
}

bool PunktZuSehen() {
  const Grafikzustand& G = GrafikFenster;
  for (std::size_t z = 0; z < static_cast<std::size_t>(KorAnzahl); ++z) {
    const double R = KorRechts[z] - G.FensterRechts, H = KorHoch[z] - G.FensterHoch;
    if (R >= 0 && R <= G.FensterBreite && H >= 0 && H <= G.FensterHoehe) return true;
  }
  return false;
}

void Ändern(const std::string& Name, int Anzahl, const std::string& Text, const std::function<int()>& Tun) {
  if (Fragen(Name, Text, Anzahl)) TabellenBericht(Tun(), Anzahltext(Anzahl, "Punkt", "Punkte") + " geändert");
}

bool VersatzFragen(const std::string& Name, Versatz& d) {
  Wertfeld Felder[] = {{"dRechts:", "0", 10, 5}, {"dHoch:", "0", 10, 5}, {"dHöhe:", "0", 10, 5}};
  if (DreiWerte("Tavorena " + Name, Felder) < 0) return false;
  double* const Ziele[] = {&d.Rechts, &d.Hoch, &d.Hoehe};
  for (std::size_t i = 0; i < 3; ++i) {
    if (!IstZahlwort(Felder[i].Wert)) {  // the field overflowed
      FehlerMeldung(Felder[i].Label + " zu groß");
      return false;
    }
    *Ziele[i] = ZahlAusText(Felder[i].Wert);
  }
  return true;
}

bool AbstandFragen(const std::string& Name, double& fs) {
  Wertfeld Feld{"fs:", "0.03", -1, -1, true};
  if (EinWert("Tavorena " + Name, Feld) < 0) return false;
  fs = ZahlAusText(Feld.Wert);
  return true;
}

}  // namespace

void TabellenBericht(int Ergebnis, const std::string& Text) {
  AnzeigePort().HauptfensterGeändert();
  if (GrafikFenster.GrafikOffen && !PunktZuSehen()) GrafikZoomAnpassen();
  if (Ergebnis == 0) StatusHilfeSetzen(Text);
}

void TabelleTauschen(bool Tauschen, bool MitVersatz) {
  const std::string Name = !MitVersatz ? "Koordinaten tauschen"
                           : Tauschen  ? "Koordinaten tauschen mit Koordinatenoffset"
                                       : "Koordinatenoffset";
  Versatz d;
  if (MitVersatz && !VersatzFragen(Name, d)) return;
  Ändern(Name, KorAnzahl, "", [&] { return TabelleVerschieben(TabellenRücknahme, Name, d, Tauschen); });
}

void TabelleÜbernehmen(Übernahme Art) {
  const bool Höhenliste = Art == Übernahme::Höhenliste;
  std::string Datei;
  if (DateiWahl(Höhenliste ? Dateisorte::Hli : Dateisorte::Kor, Wahlmodus::Lesen,
                Höhenliste ? "Höhenliste (*.hli)|*.hli" : "CADdy (*.kor)|*.kor",
                Höhenliste ? "*.hli" : "*.kor", Datei) < 0 ||
      !IstVergleichsdatei(Art, Datei))
    return;
  double fs = 0;
  if (Art == Übernahme::Punktnummern && !AbstandFragen(Übernahmename(Art), fs)) return;
  Übernahmeplan Plan;
  if (ÜbernahmePlanen(Art, Datei, fs, Plan) < 0) return;
  Ändern(Übernahmename(Art), Plan.Anzahl(), ÜbernahmeText(Plan),
         [&] { return ÜbernahmeAusführen(TabellenRücknahme, Plan); });
}

void TabelleZurücknehmen() {
  const std::string Name = TabellenRücknahme.Name();
  TabellenBericht(TabellenRücknahme.Zurück(), "Zurückgenommen: " + Name);
}

bool IstVergleichsdatei(Übernahme Art, const std::string& Datei) {
  if (Art == Übernahme::Höhenliste || FormatNachEndung(Datei) == Dateiformat::Kor) return true;
  FehlerMeldung("Verglichen wird nur mit KOR-Dateien:\n" + Datei);
  return false;
}

}  // namespace tavorena
