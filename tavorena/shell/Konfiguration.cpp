#include <algorithm>
#include <initializer_list>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/System.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/shell/Konfiguration.h>

namespace tavorena {

std::string Anwendungsordner, DateinameOptionen, DateinameExtra;
std::array<HistorieEintrag, 11> Historie;

namespace {

std::string OrdnerSuchen() {
  if (std::string Gesetzt = Umgebungswert("TAVORENA_ORDNER"); !Gesetzt.empty()) return Gesetzt;
  std::string Programm = UmgebungPort().ProgrammOrdner();
  if (!Programm.empty() && DateiVorhanden(PfadVerbinden(Programm, "\\Tavorena.ini"))) return Programm;
  return Einstellungsordner();
}

// An open configuration file, read line by line.
class Einstellungsleser {
 public:
  explicit Einstellungsleser(const std::string& Dateiname)
      : Gut(TextdateiLesen(Dateiname, Text) == 0), Leser(Text) {}

  // Goes behind the first line whose upper-case text holds Abschnitt.
  bool Suchen(std::string_view Abschnitt) {
    std::string Gelesen;
    while (Zeile(Gelesen)) {
      Überlaufen = false;
      // Every section has its bracket; most lines have none.
      if (Gelesen.find('[') != std::string::npos && Großtext(Gelesen).find(Abschnitt) != std::string::npos)
        return true;
    }
    return false;
  }

  bool Zeile(std::string& Gelesen) {
    std::string_view Sicht;
    if (!Gut || !Leser.Nächste(Sicht)) return false;
    Gelesen = Sicht;
    ++Nummer;
    Überlaufen = Überlaufen || Gelesen.starts_with('[');
    return true;
  }

  // A whole number from 0 to Größte out of the line that was read last. What runs over into the next section
  // is read as it comes; in its own section any other value is noted. Both leave the default.
  std::int16_t Ganz(const std::string& Wort, int Größte, int Vorgabe) {
    const bool Ziffern = !Wort.empty() && Wort.find_first_not_of("0123456789") == std::string::npos;
    const int Zahl = KurzAusText(Wort);
    const bool Gilt = Zahl >= 0 && Zahl <= Größte && (Ziffern ? ZahlAusText(Wort) <= Größte : Überlaufen);
    if (!Gilt && !Überlaufen) {
      Mängel += "\nZeile " + std::to_string(Nummer) + ": " + Zitat(Wort) +
                " ist keine ganze Zahl von 0 bis " + std::to_string(Größte) + ", es gilt " +
                std::to_string(Vorgabe);
    }
    return static_cast<std::int16_t>(Gilt ? Zahl : Vorgabe);
  }

  // What Ganz noted.
  [[nodiscard]] const std::string& Beanstandet() const { return Mängel; }

  [[nodiscard]] bool AmEnde() const { return Leser.AmEnde(); }

  // The first token of the next line.
  bool ZeileLesen(std::string& Wert) {
    std::string Gelesen;
    if (!Zeile(Gelesen)) return false;
    std::string_view Rest = Gelesen;
    Wert = Wortnehmen(Rest);
    return true;
  }

 private:
  std::string Text;
  bool Gut;
  Zeilenleser Leser;
  int Nummer = 0;
  bool Überlaufen = false;
  std::string Mängel;
};

bool IstWahr(const std::string& Wort) {
  const std::string Gross = Großtext(Wort);
  return Gross == "TRUE" || Gross == "WAHR" || Wort == "1";
}

void FensterwahlLesen(const std::string& Wort) {
  // "1" is written for the protocol window and read as the graphics window; meant so.
  Optionen.GrafikfensterAn = Wort == "1" || Wort == "2";
  Optionen.CondorfensterAn = Wort == "3";
  Optionen.ProtokollfensterAn = !Optionen.GrafikfensterAn && !Optionen.CondorfensterAn && IstWahr(Wort);
}

// The lines that older files do not have. Each line is consumed in any case: an older, shorter section
// runs over into the next one, and its lines are read as values. Meant so.
bool SpätereZeile(Einstellungsleser& K, std::string& Wort, bool& Gilt) {
  std::string Zeile;
  if (!K.Zeile(Zeile)) return false;
  std::string_view Rest = Zeile;
  Wort = Wortnehmen(Rest);
  Gilt = !Zeile.starts_with('[') && !K.AmEnde();
  return true;
}

bool SpätereLesen(Einstellungsleser& K) {
  std::string Wort;
  bool Gilt = false;
  const auto Nächste = [&] { return SpätereZeile(K, Wort, Gilt); };
  if (!Nächste()) return false;
  Optionen.VorgabeRechts = Gilt ? ZahlAusText(Wort) : 0;
  if (!Nächste()) return false;
  Optionen.VorgabeHoch = Gilt ? ZahlAusText(Wort) : 0;
  if (!Nächste()) return false;
  Optionen.OptWarnstufe = Gilt ? K.Ganz(Wort, 3, 3) : std::int16_t{3};
  if (!Nächste()) return false;
  Optionen.OptNachkommaSpeichern = Gilt ? K.Ganz(Wort, 6, 4) : std::int16_t{4};
  if (!Nächste()) return false;
  Optionen.FStatMitHoehe = Gilt ? IstWahr(Wort) : true;
  if (!Nächste()) return false;
  Optionen.GKreduzierteFlaechen = Gilt && IstWahr(Wort);
  if (!Nächste()) return false;
  Optionen.FStatPAAnschluss = Gilt && IstWahr(Wort);
  return true;
}

int AbschnittLesen(Einstellungsleser& K) {
  std::string Wort;
  if (!K.Suchen("[OPTIONEN]")) return -1;
  if (!K.ZeileLesen(Wort)) return -1;
  Optionen.OptNachkommastellen = K.Ganz(Wort, 6, 3);
  if (!K.ZeileLesen(Wort)) return -1;
  FensterwahlLesen(Wort);
  if (!K.ZeileLesen(Wort)) return -1;
  Optionen.AbfrageRiss = IstWahr(Wort);
  if (!K.ZeileLesen(Wort)) return -1;
  Optionen.AbfrageDruck = IstWahr(Wort);
  return SpätereLesen(K) ? 0 : -1;
}

std::string Fensterzeile() {
  const char* Ziffer = Optionen.GrafikfensterAn      ? "2"
                       : Optionen.ProtokollfensterAn ? "1"
                       : Optionen.CondorfensterAn    ? "3"
                                                     : "0";
  return std::string(Ziffer) + "     (0:kein, 1=Protokoll- 2=Grafik- 3= Condorfenster)";
}

std::string Vorgabezeile(double Wert, const char* Kommentar) {
  return Wert == 0 ? std::string("  0  ") + Kommentar
                   : ZahlFormat(Wert, 3, 0);  // the field is narrow on purpose
}

// The irregular blanks behind "True" and "False" are part of the format.
std::string Wahlzeile(bool An, const char* Wahr, const char* Falsch) { return An ? Wahr : Falsch; }

int Schreiben(const std::string& Dateiname, const std::string& Text, std::string* Grund = nullptr) {
  return OrdnerAnlegen(Anwendungsordner) < 0 ? -1 : DateiErsetzen(Dateiname, Text, Grund);
}

std::string Gemeldet;  // the file that was told to be out of reach

// The text of the values that DateinamenLesen takes, in the order of the file.
struct Namenszeile {
  std::string OptionenSatz::*Wert;
  const char* Kommentar;
};
constexpr Namenszeile Namenszeilen[] = {
    {&OptionenSatz::DateinameEditor31, "  Text-Editor fuer Windows 3.1"},
    {&OptionenSatz::DateinameEditorNT, "  Text-Editor fuer Windows NT"},
    {&OptionenSatz::DateinameSetzung, "  Parameterdatei fuer Setzungsmessung"},
    {&OptionenSatz::DateinameVerformung, "  Parameterdatei fuer Verformungsmessung"},
    {&OptionenSatz::DateinameTagebuch, "  Tagebuch- Datenbank"},
    {&OptionenSatz::DateinameTagebuchVorlage, "  Tagebuch- Datenbank-Vorlage"},
    {&OptionenSatz::VerzeichnisRohdatenQuelle, "  Rohdaten entladen: Quell-Verzeichnis"},
    {&OptionenSatz::VerzeichnisRohdatenEdit, "  Rohdaten entladen: Ziel-Verzeichnis (Edit)"},
    {&OptionenSatz::VerzeichnisRohdatenKor, "  Rohdaten entladen: Ziel-Verzeichnis (Kor)"},
    {&OptionenSatz::VerzeichnisLetztes, "  Zuletzt gewähltes Verzeichnis"},
};

void NamenVorgeben() {
  const OptionenSatz Vorgabe;
  for (const Namenszeile& N : Namenszeilen) Optionen.*N.Wert = Vorgabe.*N.Wert;
  Optionen.DateinameEditor31 = Optionen.DateinameEditorNT = Umgebungswert("windir") + "\\Notepad.exe";
  Optionen.DateinameWinword31.clear();
  Optionen.DateinameWinwordNT.clear();
}

std::string Theodolitdatei() { return PfadVerbinden(Anwendungsordner, "\\TavorenaTh.ini"); }

}  // namespace

void DateinamenAbleiten() {
  Anwendungsordner = OrdnerSuchen();
  DateinameOptionen = PfadVerbinden(Anwendungsordner, "\\Tavorena.ini");
  DateinameExtra = PfadVerbinden(Anwendungsordner, "\\TavorenaExtra.ini");
  DateinameProtokollTemp = PfadVerbinden(Anwendungsordner, "\\TavorenaProt.tmp");
}

int OptionenLesen() {
  Optionen = {};
  Einstellungsleser K(DateinameOptionen);
  const int Ergebnis = AbschnittLesen(K);
  if (!K.Beanstandet().empty()) Hinweis("Einstellungen in\n" + DateinameOptionen + K.Beanstandet());
  return Ergebnis;
}

int HistorieLesen() {
  Historie = {};
  Einstellungsleser K(DateinameOptionen);
  if (!K.Suchen("[HISTORIE]")) return -1;
  std::string Zeile;
  for (int i = 0; i < HistorieAnzahl; ++i) {
    if (!K.Zeile(Zeile)) return -1;
    HistorieEintrag& H = Historie[static_cast<std::size_t>(i)];
    const std::size_t Stern = Zeile.find('*');
    H.Dateiname = Stern == std::string::npos ? Zeile : Trimmen(Zeile.substr(0, Stern));
    H.Format =
        static_cast<Dateiformat>(Stern == std::string::npos ? 0 : KurzAusText(Zeile.substr(Stern + 1)));
    // Older files kept LT4 under the number of KOR.
    if (H.Format == Dateiformat::Kor && Großtext(DateinameZerlegen(H.Dateiname).Endung) == "LT4")
      H.Format = Dateiformat::Lt4;
  }
  return 0;
}

int FormularLesen() {
  Optionen.SchriftgroesseProtokoll = 8;
  return 0;
}

int DateinamenLesen() {
  NamenVorgeben();
  Einstellungsleser K(DateinameOptionen);
  if (!K.Suchen("[DATEIN")) return -1;
  for (const Namenszeile& N : Namenszeilen) {
    if (!K.ZeileLesen(Optionen.*N.Wert)) return -1;
  }
  // The file has no lines for these two: they take what stands behind, "[EDBS]" and its value. Meant so.
  return K.ZeileLesen(Optionen.DateinameWinword31) && K.ZeileLesen(Optionen.DateinameWinwordNT) ? 0 : -1;
}

int EDBSLesen() {
  Einstellungsleser K(DateinameOptionen);
  if (K.Suchen("[EDBS") && K.ZeileLesen(Optionen.EDBSInfo)) return 0;
  DateinamenLesen();
  return -1;
}

int OptionenSchreiben(std::string* Grund) {
  const auto& O = Optionen;
  const auto Zahl = [](std::int32_t n) { return ZahlFeld(n, 3); };
  std::string Text;
  const auto Zeile = [&Text](const std::string& Inhalt) { Text += Inhalt + "\r\n"; };
  Zeile("[Optionen]");
  Zeile(Zahl(O.OptNachkommastellen) + "   Nachkommastellen");
  Zeile(Fensterzeile());
  Zeile(Wahlzeile(O.AbfrageRiss, "True  Abfrage nach Rissbezeichung ?",
                  "False  Abfrage nach Rissbezeichung ?"));
  Zeile(Wahlzeile(O.AbfrageDruck, "True  Druckabfrage nach jeder Berechnung ?",
                  "False Druckabfrage nach jeder Berechnung ?"));
  Zeile(Vorgabezeile(O.VorgabeRechts, "Vorgabe Rechtswert"));
  Zeile(Vorgabezeile(O.VorgabeHoch, "Vorgabe Hochwert"));
  Zeile(Zahl(O.OptWarnstufe) + "  Warnstufe für Prokoll");
  Zeile(Zahl(O.OptNachkommaSpeichern) + "  Nachkommastellen beim Speichern");
  Zeile(Wahlzeile(O.FStatMitHoehe, "True  Freie Stationierung mit Höhe ?",
                  "False  Freie Stationierung mit Höhe ?"));
  Zeile(Wahlzeile(O.GKreduzierteFlaechen, "True  GKreduz. Flächen ?", "False  GKreduz. Flächen ?"));
  Zeile(Wahlzeile(O.FStatPAAnschluss, "True Freie Stat. PA Anschl.?", "False Freie Stat. PA Anschl.?"));
  Zeile("[Historie]");
  for (int i = 0; i < HistorieAnzahl; ++i) {
    const HistorieEintrag& H = Historie[static_cast<std::size_t>(i)];
    Zeile(H.Dateiname + " * " + Zahl(static_cast<std::int16_t>(H.Format)));
  }
  Zeile("[Formular]");
  Zeile(ZahlFormat(O.FormularZoomX, 3, 4) + "  " + ZahlFormat(O.FormularZoomY, 3, 4) + "  Formularzoom");
  Zeile(Zahl(O.SchriftgroesseProtokoll) + "  Schriftgroesse Protokollfenster");
  Zeile("[Dateinamen]");
  for (const Namenszeile& N : Namenszeilen) Zeile(O.*N.Wert + N.Kommentar);
  Zeile("[EDBS]");
  Zeile(O.EDBSInfo);
  return Schreiben(DateinameOptionen, Text, Grund);
}

void OptionenMerken() {
  std::string Grund;
  if (OptionenSchreiben(&Grund) == 0) {
    Gemeldet.clear();
  } else if (std::exchange(Gemeldet, DateinameOptionen) != DateinameOptionen) {
    SpeichernMißlungen(DateinameOptionen, Grund);
  }
}

void HauptHistSchreiben(const std::string& Dateiname, Dateiformat Format) {
  int Stelle = HistorieAnzahl - 1;  // a new file pushes the oldest out
  for (int i = 0; i < HistorieAnzahl; ++i) {
    if (Historie[static_cast<std::size_t>(i)].Dateiname == Dateiname) Stelle = i;
  }
  const auto Vorn = Historie.begin();
  std::move_backward(Vorn, Vorn + Stelle, Vorn + Stelle + 1);
  Historie[0] = {Dateiname, Format};
  OptionenMerken();
}

void HistorieStreichen(int Index) {
  if (Index < 0 || Index >= HistorieAnzahl) return;
  std::move(Historie.begin() + Index + 1, Historie.begin() + HistorieAnzahl, Historie.begin() + Index);
  Historie[HistorieAnzahl - 1] = {};
  OptionenMerken();
}

int TheoOptionenLesen(TheoOptionen& Gelesen) {
  Einstellungsleser K(Theodolitdatei());
  TheoOptionen Neu;
  std::string Abschnitt, Port, Reduktion;
  for (std::string* Zeile : {&Abschnitt, &Port, &Neu.Settings, &Neu.Rohdatendatei, &Reduktion}) {
    if (!K.Zeile(*Zeile)) return -1;
  }
  Neu.Port = Port.starts_with("COM1") ? 1 : 2;
  Neu.Reduktion = std::clamp<int>(KurzAusText(Reduktion), 0, 2);
  Gelesen = Neu;
  return 0;
}

int TheoOptionenSchreiben(const TheoOptionen& T) {
  const char* const Reduktionen[] = {"0   (Keine Reduktion)", "1   (Reduktion auf LASER- Punkte)",
                                     "2   (Reduktion auf optische Punkte)"};
  const std::string Port = T.Port == 1 ? "COM1" : "COM2";
  return Schreiben(Theodolitdatei(), "[Optionen Theodolit]\r\n" + Port +
                                         "  (Serielle Schnittstelle, folgende Zeile: Settings)\r\n" +
                                         T.Settings + "\r\n" + T.Rohdatendatei + "\r\n" +
                                         Reduktionen[std::clamp(T.Reduktion, 0, 2)] + "\r\n");
}

void TheoOptionenMerken(const TheoOptionen& T) {
  static std::string Gemeldete;
  if (TheoOptionenSchreiben(T) == 0) {
    Gemeldete.clear();
  } else if (std::exchange(Gemeldete, Theodolitdatei()) != Theodolitdatei()) {
    SpeichernMißlungen(Theodolitdatei());
  }
}

}  // namespace tavorena
