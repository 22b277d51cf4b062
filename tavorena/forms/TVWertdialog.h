#pragma once

#include <span>
#include <string>
#include <vector>

namespace tavorena {

/// One line of a value dialog.
struct Wertfeld {
  std::string Label;
  std::string Wert;     ///< default on call, what the user typed on return
  int Vorkomma = -1;    ///< number format that a number is brought into when the field is left
  int Nachkomma = -1;   ///< below 0: the field is a text
  bool AbNull = false;  ///< the text is a number of 0 or more, and stays as it was typed
};

/// Two choices below the values, one of which holds.
struct Wahlpaar {
  const char *Erste, *Zweite;
  bool ZweiteGewählt = false;  ///< on call and on return
};

/// Asks for up to as many values as there are fields, modal. Escape and "Abbrechen" cancel.
/// @return 0; -1 if cancelled, the fields are then as they were (also left in Dialogergebnis)
[[nodiscard]] int Wertdialog(const std::string& Titel, std::span<Wertfeld> Felder, Wahlpaar* Wahl = nullptr);

[[nodiscard]] int EinWert(const std::string& Titel, const std::string& Label, std::string& Wert);
[[nodiscard]] int EinWert(const std::string& Titel, Wertfeld& Feld, Wahlpaar* Wahl = nullptr);
[[nodiscard]] int ZweiWerte(const std::string& Titel, const std::string& Label1, std::string& Wert1,
                            const std::string& Label2, std::string& Wert2);
[[nodiscard]] int DreiWerte(const std::string& Titel, std::span<Wertfeld, 3> Felder);

/// One file name of a file dialog with several.
struct Dateifeld {
  std::string Label;
  std::string Name;
  std::string Filter;            ///< of its file-choosing button
  bool Ausgabe = false;          ///< an existing file is asked about; must differ from the inputs
  bool Fortgeschrieben = false;  ///< an output that is extended: it need not exist, and is not asked about
  bool Leerbar = false;          ///< need not be given
  bool Ordner = false;           ///< a folder that is there, chosen by VerzeichnisWahl
  std::string Endung = {};       ///< while it is empty, the first name with this ending is proposed; "" none
};

/// Asks for the file names, each with a button that chooses one. @return 0; -1 if cancelled
[[nodiscard]] int EinDateiname(const std::string& Titel, Dateifeld& Feld);
[[nodiscard]] int ZweiDateinamen(const std::string& Titel, std::span<Dateifeld, 2> Felder);
[[nodiscard]] int DreiDateinamen(const std::string& Titel, std::span<Dateifeld, 3> Felder);

/// A list of entries. @return 0-based index of the chosen one; -1 if cancelled
[[nodiscard]] int AuswahlListe(const std::string& Titel, const std::vector<std::string>& Einträge);

/// Asks "Von Punktnr." and "Bis Punktnr.". @return 0; -1 if cancelled
[[nodiscard]] int PunktbereichFrage(const std::string& Titel, std::string& Von, std::string& Bis);

/// Asks for an existing folder. @return 0; -1 if cancelled
[[nodiscard]] int VerzeichnisWahl(const std::string& Titel, std::string& Verzeichnis);

/// "Datei schon vorhanden:" and the name. @return 0 Anhängen, 1 Überschreiben, -1 Abbruch
[[nodiscard]] int DateiVorhandenFrage(const std::string& Dateiname);

/// A connection point typed under a number that exists. @return 0 Weiter, 1 Zurück
[[nodiscard]] int PunktVorhandenFrage(const std::string& Pnr);

/// A station whose number exists. @return 0 Orientierung, 1 Zurück, 2 Abbruch
[[nodiscard]] int PunktVorhandenOrientierungFrage(const std::string& Pnr);

}  // namespace tavorena
