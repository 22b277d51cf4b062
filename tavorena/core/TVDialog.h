#pragma once

#include <string>

// The general message boxes. Each is modal, carries the title "Tavorena" unless told otherwise, and goes
// through the platform. The dialogs with fields stand in forms/TVWertdialog.h.

namespace tavorena {

/// Result of the last modal dialog: 0 or higher go on, -1 cancelled.
extern int Dialogergebnis;

/// @return the button code: 6 Ja, 7 Nein, 2 Abbruch; Vorgabe is that of the default button, 0 the first
[[nodiscard]] int FrageJaNeinAbbruch(const std::string& Text, int Vorgabe = 0);
/// @return the button code: 6 Ja, 7 Nein; Vorgabe is that of the default button, 0 the first. A question that
/// stands on "Nein" warns of a loss: the console takes it on with --trotzdem alone.
[[nodiscard]] int FrageJaNein(const std::string& Text, const std::string& Titel = "Tavorena",
                              int Vorgabe = 0);
void Hinweis(const std::string& Text, const std::string& Titel = "Tavorena");
void FehlerMeldung(const std::string& Text);
/// A file ends too early. It warns of a loss as a question that stands on "Nein" does: for the console it is
/// a failure without --trotzdem.
void DateiendeMeldung(const std::string& Datei);
void PunktVorhandenMeldung(const std::string& Pnr);

/// What was recorded in protocol and batch file reaches the disk: at the end of a typed block, before a
/// question, at the end of a replay. @return 0; -1 with a message that names the file
int AktenSichern();

/// Shows a text in the help panel of the status bar, three blanks before and behind it; an empty one clears
/// the panel.
void StatusHilfeSetzen(const std::string& Text);

/// Numbers of run-time faults.
enum class Laufzeitfehler : int {
  Überlauf = 6,
  Speicher = 7,
  Index = 9,
  DivisionDurchNull = 11,
  Typen = 13,
  DateiNichtGefunden = 53,
  EinAusgabe = 57,
  Zugriff = 70,
  Pfad = 76,
};

/// A reason behind a told text: " (ist ein Ordner)"; "" without one.
std::string InKlammern(const std::string& Grund);

/// The protocol or the batch file can not be written: what to do now.
/// @param[in] Stelle  where, as for LaufzeitFehlerMeldung; "": the message of the protocol
/// @return KnopfNochmals; KnopfOhne; anything else: the question was broken off
[[nodiscard]] int SchreibfehlerFrage(const std::string& Datei, const std::string& Grund,
                                     const std::string& Stelle);

/// "Fehler <number> in <Ort> wurde ausgelöst durch Tavorena" and the description, under the title
/// "Tavorena Fehlermeldung". Ort names module and routine, such as "Koordinatenmodul.KorFind"; Vorspann
/// stands in front of all.
void LaufzeitFehlerMeldung(Laufzeitfehler Fehler, const std::string& Ort, const std::string& Vorspann = "");

/// A file can not be read: "Datei nicht gefunden:", its name and the reason.
void LesefehlerMelden(const std::string& Datei, const std::string& Grund);
/// A file of points can not be read: its name, "nicht vorhanden !" and the reason.
void KoordinatendateiFehlt(const std::string& Datei, const std::string& Grund);
/// A file of the user was not saved: its name and the reason.
void SpeichernMißlungen(const std::string& Datei, const std::string& Grund = "");
/// What was to go into a file did not: "Fehler aufgetreten beim Schreiben in", its name and the reason.
void SchreibfehlerMelden(const std::string& Datei, const std::string& Grund = "");
/// A file could not be written: its name and the reason, and number 70, or 76 where its folder is missing.
void SpeicherfehlerMelden(const std::string& Datei, const std::string& Grund, const std::string& Ort);

}  // namespace tavorena
