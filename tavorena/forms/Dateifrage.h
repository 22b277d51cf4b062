#pragma once

#include <string>

#include <tavorena/core/Ports.h>
#include <tavorena/core/Zeichensatz.h>

// The chooser of files that are no coordinate files, and what all choosers share.

namespace tavorena {

/// Folder in which a file dialog starts.
[[nodiscard]] std::string Startordner();

/// A name without an ending gets the one of the default, such as "*.kor".
void EndungErgänzen(std::string& Name, const std::string& Vorgabe);

/// Asks before a file that is there is replaced, default "Nein". @return whether it may be
[[nodiscard]] bool ÜberschreibenFragen(const std::string& Name);

/// The list "Zeichensatz:" of an export.
void ZeichensatzAnbieten(Dateiauftrag& Auftrag);
/// What was chosen in it.
[[nodiscard]] Zeichensatz ZeichensatzGewählt(const Dateiauftrag& Auftrag);

/// Asks for a file, and keeps its folder for the next dialog. With Schreiben the ending is added where it was
/// not typed, and a file that is there is asked about.
/// @param[in] Vorgabe  name or pattern to start with; one with a folder starts there
/// @param[out] Anhängen  the file is there and is to be extended; left out: it is only replaced
/// @param[out] Satz      of an export: the code page
/// @return its name; "" if cancelled
[[nodiscard]] std::string DateiFragen(const std::string& Titel, const std::string& Filter,
                                      const std::string& Vorgabe, bool Schreiben, bool* Anhängen = nullptr,
                                      Zeichensatz* Satz = nullptr);

}  // namespace tavorena
