#include <cmath>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
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
    OkUndAbbruch([this] { Übernehmen(); }, "OptEnd", "OptAbbruch");
  }

 protected:
  // Return is "OK" wherever it is pressed.
  bool TasteUnten(Steuerelement& S, Taste T) override {
    if (T != Taste::Return || dynamic_cast<Knopf*>(&S) != nullptr) return false;
    auto* E = dynamic_cast<Eingabeelement*>(&S);
    if (E == nullptr || Lesen(*E)) Übernehmen();
    return true;
  }

 private:
  Auswahl& Zahlenliste(const char* Name, const char* Label, int Zeile, int Zahl) {
    std::vector<std::string> Einträge = {"0", "1", "2", "3", "4", "5"};
    if (Zahl < 0 || Zahl > 5)
      Einträge.push_back(std::to_string(Zahl));  // from an edited file: stays choosable
    BeschriftungAnlegen(Label, {Zeile, 0}, Ausgabe);
    Auswahl& A = ListeAnlegen(Name, Einträge, std::to_string(Zahl), {Zeile, 1}, Ausgabe);
    A.Zeichen = 6;
    return A;
  }

  Auswahl& Haken(const char* Name, const char* Label, int Zeile, bool An, const std::string& Rahmen) {
    Auswahl& A = KästchenAnlegen(Name, Label, {Zeile, 0, 4}, Rahmen);
    A.Gewählt = An;
    return A;
  }

  Auswahl& Wahl(const char* Name, const char* Label, int Spalte, bool An) {
    Auswahl& A = OptionAnlegen(Name, Label, {0, Spalte}, "Grafikfenster");
    A.Gewählt = An;
    return A;
  }

  Auswahl& Warnliste() {
    BeschriftungAnlegen("Ausgabe von &Warnungen ins Protokoll ?", {2, 0}, Ausgabe);
    Auswahl& A = ListeAnlegen("OptWarnstufe", {"Keine", "Alle"},
                              Optionen.OptWarnstufe == 0 ? "Keine" : "Alle", {2, 1}, Ausgabe);
    A.Zeichen = 8;
    return A;
  }

  Feld& Vorgabe(const char* Name, const char* Label, int Spalte, double Wert) {
    const char* const Rahmen = "Vorgabewerte Koordinateneingabe:";
    BeschriftungAnlegen(Label, {0, Spalte}, Rahmen);
    Feld& F = ZahlenfeldAnlegen(Name, {0, Spalte + 1}, Rahmen);
    F.Text = ZahlNachText(Wert).Text();
    F.BeiVerlassen = [&F] { return IstZahlText(*F.Text); };
    return F;
  }

  Feld& Edbs() {
    BeschriftungAnlegen("&EDBS: Name der Information:", {0, 0}, "EDBS");
    Feld& F = FeldAnlegen("OptEDBSInfo", {0, 1}, "EDBS", 8);
    BeschriftungAnlegen("(8 Stellen)", {0, 2}, "EDBS");
    F.Text = Optionen.EDBSInfo;
    return F;
  }

  void Übernehmen() {
    auto& O = Optionen;
    O.OptNachkommastellen = static_cast<std::int16_t>(ZahlAusText(*OptNachkommastellen.Text));
    O.OptNachkommaSpeichern = static_cast<std::int16_t>(ZahlAusText(*OptNachkommaSpeichern.Text));
    O.OptWarnstufe = OptWarnstufe.Text == "Keine" ? 0 : 3;
    O.AbfrageRiss = OptAbfrRiß.Gewählt;
    O.AbfrageDruck = OptAbfrDruck.Gewählt;
    O.FStatMitHoehe = OptFStatHöhen.Gewählt;
    O.GKreduzierteFlaechen = OptGKRed.Gewählt;
    O.FStatPAAnschluss = OptFStatAnschluss.Gewählt;
    O.VorgabeRechts = ZahlAusText(*OptVorgabeRechts.Text);
    O.VorgabeHoch = ZahlAusText(*OptVorgabeHoch.Text);
    O.EDBSInfo = TextTeil(*OptEDBSInfo.Text, 0, 8);
    O.ProtokollfensterAn = OptProtokoll0.Gewählt;
    const bool WarAn = std::exchange(O.GrafikfensterAn, *OptProtokoll2.Gewählt);
    O.CondorfensterAn = false;
    if (OptProtokoll1.Gewählt) {
      O.FormularZoomX = O.FormularZoomY = 1.0;
    } else {
      FormularZoomRechnen(false);
    }
    std::string Grund;
    if (OptionenSchreiben(&Grund) < 0)  // they hold for this run
      SpeichernMißlungen(DateinameOptionen, Grund);
    AnzeigePort().HauptfensterGeändert();
    // A view that was opened by its command stays.
    if (WarAn != O.GrafikfensterAn && !KoordinatendateiName.empty())
      AnzeigePort().GrafikMitDatei(O.GrafikfensterAn);
    Schließen();
  }

  const std::string Ausgabe = "Formular und Protokoll", Rechnen = "Berechnung";

  Auswahl& OptNachkommastellen = Zahlenliste(
      "OptNachkommastellen", "&Nachkommastellen für Formular und Protokoll", 0, Optionen.OptNachkommastellen);
  Auswahl& OptNachkommaSpeichern = Zahlenliste("OptNachkommaSpeichern", "Nachkommastellen beim &Speichern", 1,
                                               Optionen.OptNachkommaSpeichern);
  Auswahl& OptWarnstufe = Warnliste();
  Auswahl& OptAbfrRiß =
      Haken("OptAbfrRiß", "Abfrage &Rißbezeichnung und Berechnungsnummer / Ausgabe ins Protokoll", 3,
            Optionen.AbfrageRiss, Ausgabe);
  Auswahl& OptAbfrDruck =
      Haken("OptAbfrDruck", "Aus&druck nach jeder Berechnung", 4, Optionen.AbfrageDruck, Ausgabe);
  Auswahl& OptProtokoll0 = Wahl("OptProtokoll(0)", "&Protokollfenster", 0, Optionen.ProtokollfensterAn);
  Auswahl& OptProtokoll1 = Wahl("OptProtokoll(1)", "nur auf &Kommando", 1,
                                !Optionen.ProtokollfensterAn && !Optionen.GrafikfensterAn);
  Auswahl& OptProtokoll2 =
      Wahl("OptProtokoll(2)", "&immer", 2, Optionen.GrafikfensterAn && !Optionen.ProtokollfensterAn);
  Auswahl& OptFStatHöhen =
      Haken("OptFStatHöhen", "&Freie Stationierung / polarer Anschluß / Vorw.schnitt mit Höhen", 0,
            Optionen.FStatMitHoehe, Rechnen);
  Auswahl& OptGKRed =
      Haken("OptGKRed", "Flächenberechnung: &zusätzlich Anzeige/Protokoll GK-reduzierte Flächen", 1,
            Optionen.GKreduzierteFlaechen, Rechnen);
  Auswahl& OptFStatAnschluss = Haken(
      "OptFStatAnschluss", "Freie Stationierung: Anschlußp&unkte aus Rohdaten (GSI)  interaktiv auswählen", 2,
      Optionen.FStatPAAnschluss, Rechnen);
  Feld& OptVorgabeRechts = Vorgabe("OptVorgabeRechts", "Re&chts:", 0, Optionen.VorgabeRechts);
  Feld& OptVorgabeHoch = Vorgabe("OptVorgabeHoch", "&Hoch:", 2, Optionen.VorgabeHoch);
  Feld& OptEDBSInfo = Edbs();
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
