#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>

namespace tavorena {
namespace {

const char* Beschreibung(Laufzeitfehler Fehler) {
  switch (Fehler) {
    case Laufzeitfehler::Überlauf:
      return "Überlauf";
    case Laufzeitfehler::Speicher:
      return "Nicht genügend Speicher";
    case Laufzeitfehler::Index:
      return "Index außerhalb des gültigen Bereichs";
    case Laufzeitfehler::DivisionDurchNull:
      return "Division durch Null";
    case Laufzeitfehler::Typen:
      return "Typen unverträglich";
    case Laufzeitfehler::DateiNichtGefunden:
      return "Datei nicht gefunden";
    case Laufzeitfehler::EinAusgabe:
      return "E/A-Fehler";
    case Laufzeitfehler::Zugriff:
      return "Zugriff verweigert";
    case Laufzeitfehler::Pfad:
      return "Pfad nicht gefunden";
  }
  return "";
}

const char* const Fehlertitel = "Tavorena Fehlermeldung";
const char* const Schreibfehler = "Fehler aufgetreten beim Schreiben in";

std::string Fehlertext(Laufzeitfehler Fehler, const std::string& Ort) {
  return "Fehler " + std::to_string(static_cast<int>(Fehler)) + " in " + Ort +
         " wurde ausgelöst durch Tavorena\n" + Beschreibung(Fehler);
}

}  // namespace

int Dialogergebnis = 0;

int FrageJaNeinAbbruch(const std::string& Text, int Vorgabe) {
  AktenSichern();
  return FragenPort().Meldung(Text, Knöpfe::JaNeinAbbruch, "Tavorena", Vorgabe);
}

int FrageJaNein(const std::string& Text, const std::string& Titel, int Vorgabe) {
  AktenSichern();
  return FragenPort().Meldung(Text, Knöpfe::JaNein, Titel, Vorgabe);
}

void Hinweis(const std::string& Text, const std::string& Titel) {
  FragenPort().Meldung(Text, Knöpfe::OK, Titel);
}

void FehlerMeldung(const std::string& Text) { Hinweis("Fehler aufgetreten:\n" + Text); }

void DateiendeMeldung(const std::string& Datei) {
  FragenPort().Meldung("Unerwartetes Dateiende in:\n" + Datei, Knöpfe::OK, "Tavorena", KnopfNein);
}

void PunktVorhandenMeldung(const std::string& Pnr) { Hinweis("Punkt " + Zitat(Pnr) + "schon vorhanden !"); }

int AktenSichern() {
  std::string Name;
  if (AnhängeSichern(&Name) == 0) return 0;
  SchreibfehlerMelden(Name);
  return -1;
}

void StatusHilfeSetzen(const std::string& Text) {
  AnzeigePort().StatusSetzen(Statusfeld::StatusHilfe, Text.empty() ? "" : "   " + Text + "   ");
}

void LaufzeitFehlerMeldung(Laufzeitfehler Fehler, const std::string& Ort, const std::string& Vorspann) {
  Hinweis(Vorspann + Fehlertext(Fehler, Ort), Fehlertitel);
}

std::string InKlammern(const std::string& Grund) { return Grund.empty() ? "" : " (" + Grund + ")"; }

int SchreibfehlerFrage(const std::string& Datei, const std::string& Grund, const std::string& Stelle) {
  const std::string Was = "\n" + Datei + (Grund.empty() ? "" : "\n(" + Grund + ")");
  if (Stelle.empty()) {
    return FragenPort().Meldung(Schreibfehler + Was, Knöpfe::NochmalsOhneProtokoll, "Tavorena",
                                KnopfNochmals);
  }
  return FragenPort().Meldung(Fehlertext(Laufzeitfehler::EinAusgabe, Stelle) + Was,
                              Knöpfe::NochmalsOhneStapel, Fehlertitel, KnopfNochmals);
}

void LesefehlerMelden(const std::string& Datei, const std::string& Grund) {
  Hinweis("Datei nicht gefunden:\n" + Datei + InKlammern(Grund));
}

void KoordinatendateiFehlt(const std::string& Datei, const std::string& Grund) {
  Hinweis("Koordinatendatei\n" + Datei + "\nnicht vorhanden !" + InKlammern(Grund));
}

void SpeichernMißlungen(const std::string& Datei, const std::string& Grund) {
  Hinweis("Fehler aufgetreten beim Speichern der Datei " + Datei + InKlammern(Grund));
}

void SchreibfehlerMelden(const std::string& Datei, const std::string& Grund) {
  Hinweis(Schreibfehler + ("\n" + Datei) + InKlammern(Grund));
}

void SpeicherfehlerMelden(const std::string& Datei, const std::string& Grund, const std::string& Ort) {
  const bool MitOrdner = OrdnerVorhanden(DateinameZerlegen(GanzerName(Datei)).Ordner);
  LaufzeitFehlerMeldung(MitOrdner ? Laufzeitfehler::Zugriff : Laufzeitfehler::Pfad, Ort,
                        Datei + "\n" + (Grund.empty() ? "" : Grund + "\n"));
}

}  // namespace tavorena
