#include <cmath>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVOptionenform.h>

namespace tavorena {
namespace {

constexpr int TwipsJePixel = 15;
constexpr double EntwurfBreite = 19200, EntwurfHoehe = 14550;  // twips

class TVOptionenform final : public Formular {
 public:
  TVOptionenform() : Formular("TVOptionenform") {
    Titel = "Tavorena Optionen";
    Hilfenummer = 8020;
    Knopf("OptEnd", "&OK");
    Steuerelement& Nein = Knopf("OptAbbruch", "&Abbrechen", {0, 1});
    Nein.Abbruch = Nein.OhnePrüfung = true;
  }

 protected:
  bool FokusVerloren(Steuerelement& S) override {
    S.Fehlerhaft = (&S == &OptVorgabeRechts || &S == &OptVorgabeHoch) && !IstZahlText(S.Text);
    return !S.Fehlerhaft;
  }

  void Geklickt(Steuerelement& S) override {
    if (S.Name == "OptEnd") Übernehmen();
    Schließen();
  }

 private:
  Steuerelement& Zahlenliste(const char* Name, const char* Label, int Zeile, int Zahl,
                             const std::string& Rahmen) {
    Beschriftung(Label, {Zeile, 0}, Rahmen);
    Steuerelement& S = Steuer(Steuerart::Liste, Name, std::to_string(Zahl), {Zeile, 1}, Rahmen);
    for (int i = 0; i <= 5; ++i) S.Einträge.push_back(std::to_string(i));
    if (Zahl < 0 || Zahl > 5) S.Einträge.push_back(S.Text);  // a value from an edited file stays choosable
    S.Zeichen = 6;
    return S;
  }

  Steuerelement& Haken(const char* Name, const char* Label, int Zeile, bool An, const std::string& Rahmen) {
    Steuerelement& S = Steuer(Steuerart::Kontrollkaestchen, Name, Label, {Zeile, 0, 4}, Rahmen);
    S.Gewählt = An;
    return S;
  }

  Steuerelement& Wahl(const char* Name, const char* Label, int Spalte, bool An) {
    Steuerelement& S = Steuer(Steuerart::Option, Name, Label, {0, Spalte}, "Grafikfenster");
    S.Gewählt = An;
    return S;
  }

  Steuerelement& Warnliste() {
    Beschriftung("Ausgabe von Warnungen ins Protokoll ?", {2, 0}, Ausgabe);
    Steuerelement& S = Steuer(Steuerart::Liste, "OptWarnstufe", Optionen.OptWarnstufe == 0 ? "Keine" : "Alle",
                              {2, 1}, Ausgabe);
    S.Einträge = {"Keine", "Alle"};
    S.Zeichen = 8;
    return S;
  }

  Steuerelement& Vorgabe(const char* Name, const char* Label, int Spalte, double Wert) {
    Beschriftung(Label, {0, Spalte}, "Vorgabewerte Koordinateneingabe:");
    Steuerelement& S = Zahlenfeld(Name, {0, Spalte + 1}, "Vorgabewerte Koordinateneingabe:");
    S.Text = ZahlNachText(Wert).Text();
    return S;
  }

  Steuerelement& Edbs() {
    Beschriftung("EDBS: Name der Information:", {0, 0}, "EDBS");
    Steuerelement& S = Feld("OptEDBSInfo", {0, 1}, "EDBS", 8);
    Beschriftung("(8 Stellen)", {0, 2}, "EDBS");
    S.Text = Optionen.EDBSInfo;
    return S;
  }

  void Übernehmen() {
    auto& O = Optionen;
    O.OptNachkommastellen = static_cast<std::int16_t>(ZahlAusText(OptNachkommastellen.Text));
    O.OptNachkommaSpeichern = static_cast<std::int16_t>(ZahlAusText(OptNachkommaSpeichern.Text));
    O.OptWarnstufe = OptWarnstufe.Text == "Keine" ? 0 : 3;
    O.AbfrageRiss = OptAbfrRiß.Gewählt;
    O.AbfrageDruck = OptAbfrDruck.Gewählt;
    O.FStatMitHoehe = OptFStatHöhen.Gewählt;
    O.GKreduzierteFlaechen = OptGKRed.Gewählt;
    O.FStatPAAnschluss = OptFStatAnschluss.Gewählt;
    O.VorgabeRechts = ZahlAusText(OptVorgabeRechts.Text);
    O.VorgabeHoch = ZahlAusText(OptVorgabeHoch.Text);
    O.EDBSInfo = TextTeil(OptEDBSInfo.Text, 0, 8);
    O.ProtokollfensterAn = OptProtokoll0.Gewählt;
    O.GrafikfensterAn = OptProtokoll2.Gewählt;
    O.CondorfensterAn = false;
    if (OptProtokoll1.Gewählt) {
      O.FormularZoomX = O.FormularZoomY = 1.0;
    } else {
      FormularZoomRechnen(false);
    }
    OptionenSchreiben();
    AnzeigePort().HauptfensterGeändert();
  }

  const std::string Ausgabe = "Formular und Protokoll", Rechnen = "Berechnung";

  Steuerelement& OptNachkommastellen =
      Zahlenliste("OptNachkommastellen", "Nachkommastellen für Formular und Protokoll", 0,
                  Optionen.OptNachkommastellen, Ausgabe);
  Steuerelement& OptNachkommaSpeichern = Zahlenliste(
      "OptNachkommaSpeichern", "Nachkommastellen beim Speichern", 1, Optionen.OptNachkommaSpeichern, Ausgabe);
  Steuerelement& OptWarnstufe = Warnliste();
  Steuerelement& OptAbfrRiß =
      Haken("OptAbfrRiß", "Abfrage Rißbezeichnung und Berechnungsnummer / Ausgabe ins Protokoll", 3,
            Optionen.AbfrageRiss, Ausgabe);
  Steuerelement& OptAbfrDruck =
      Haken("OptAbfrDruck", "Ausdruck nach jeder Berechnung", 4, Optionen.AbfrageDruck, Ausgabe);
  Steuerelement& OptProtokoll0 = Wahl("OptProtokoll(0)", "Protokollfenster", 0, Optionen.ProtokollfensterAn);
  Steuerelement& OptProtokoll1 = Wahl("OptProtokoll(1)", "nur auf Kommando", 1,
                                      !Optionen.ProtokollfensterAn && !Optionen.GrafikfensterAn);
  Steuerelement& OptProtokoll2 =
      Wahl("OptProtokoll(2)", "immer", 2, Optionen.GrafikfensterAn && !Optionen.ProtokollfensterAn);
  Steuerelement& OptFStatHöhen =
      Haken("OptFStatHöhen", "Freie Stationierung / polarer Anschluß / Vorw.schnitt mit Höhen", 0,
            Optionen.FStatMitHoehe, Rechnen);
  Steuerelement& OptGKRed =
      Haken("OptGKRed", "Flächenberechnung: zusätzlich Anzeige/Protokoll GK-reduzierte Flächen", 1,
            Optionen.GKreduzierteFlaechen, Rechnen);
  Steuerelement& OptFStatAnschluss = Haken(
      "OptFStatAnschluss", "Freie Stationierung: Anschlußpunkte aus Rohdaten (GSI)  interaktiv auswählen", 2,
      Optionen.FStatPAAnschluss, Rechnen);
  Steuerelement& OptVorgabeRechts = Vorgabe("OptVorgabeRechts", "Rechts:", 0, Optionen.VorgabeRechts);
  Steuerelement& OptVorgabeHoch = Vorgabe("OptVorgabeHoch", "Hoch:", 2, Optionen.VorgabeHoch);
  Steuerelement& OptEDBSInfo = Edbs();
};

}  // namespace

void TVOptionenformZeigen() {
  TVOptionenform Form;
  AnzeigePort().FormularZeigen(Form, true);
}

void FormularZoomRechnen(bool Begrenzt) {
  int Breite = 0, Hoehe = 0;
  AnzeigePort().HauptfensterGröße(Breite, Hoehe);
  Optionen.FormularZoomX = Breite * TwipsJePixel / EntwurfBreite;
  Optionen.FormularZoomY = Hoehe * TwipsJePixel / EntwurfHoehe;
  // A large window always has the same vertical zoom on purpose; the horizontal one has no cap.
  if (Begrenzt && Optionen.FormularZoomY >= 0.8) Optionen.FormularZoomY = 0.77;
}

}  // namespace tavorena
