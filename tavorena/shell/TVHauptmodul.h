#pragma once

#include <string>

#include <tavorena/core/Punkt.h>

// Start, end, and the commands on the coordinate file.

namespace tavorena {

/// Plugs the point dialogs, the protocol of means and the worksheets in. Once, before anything else.
void HauptAnschließen();

/// The start sequence of settings and window state; also when a file is closed or replaced.
void HauptInitialisierung();

/// Settles what is typed and not written in the worksheets, asks whether the open file is to be saved (also
/// when nothing changed: settled behaviour; the default is then "Nein"), closes the worksheets and empties
/// the table. Nachfragen false leaves the question about saving out.
/// @return 0; -1 cancelled, everything stays
int HauptKoordinatendateiWechseln(bool Nachfragen);

/// Reads KoordinatendateiName (Nachfragen false: a new file, nothing is read) and takes the protocol and
/// batch files beside it. @return 0; -1 failed; -2 cancelled
int HauptLesenUndDateinamenSetzen(bool Nachfragen);

/// Opens a file by its name, as the command "lesen" and the recent files do.
/// @return 0; -1, the state is then "no coordinates"; the title names a file that could not be read
int HauptDateiÖffnen(const std::string& Name, Dateiformat Format);

/// Writes the table to KoordinatendateiName in its format. @return 0; -1 with a message
int HauptDateiSpeichern();

/// Everything is set for work on a file: menus, last folder, history.
void HauptDateiOffenSetzen();

/// "Tavorena beenden ?" and the change of file behind it. @return 0 the program may end; -1 it goes on
int HauptBeenden();

/// Size of the screen when the main window was last activated [pixels].
extern int BildschirmBreite, BildschirmHoehe;

/// The main window was activated: its size gives the zoom of the worksheets.
void HauptfensterAktiviert();

/// Does nothing: kept so that the order of the start sequence stays.
void HauptOptionsmenüSetzen();

/// The name in the title of the main window and in the status bar. Behind the title stands a mark while the
/// table differs from its file.
void TitelSetzen(const std::string& Dateiname);

}  // namespace tavorena
