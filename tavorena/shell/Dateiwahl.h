#pragma once

#include <string>

#include <tavorena/forms/Dateifrage.h>

namespace tavorena {

enum class Dateisorte { Kor, Dru, Sta, Hli };

/// "r" read an existing file, "w" write, "a" append, "n" a new one.
enum class Wahlmodus : char { Lesen = 'r', Schreiben = 'w', Anhängen = 'a', Neu = 'n' };

inline const char* const FilterKor = "CADdy (*.kor)|*.kor|KAFKA (*.lt4)|*.lt4";
inline const char* const FilterEdbs = "EDBS- Dateien |*.ed?";

/// The chooser of the commands: starts in the last folder, keeps the folder of the name chosen. In mode
/// "w" and "n" an existing file is asked about; it is not deleted, saving replaces it as a whole.
/// @param[out] Anhängen  the file exists and is to be extended; may be left out
/// @param[in,out] Satz   of an export: the code page that is chosen beside the name; may be left out
/// @return 0; -1 if cancelled (also left in Dialogergebnis)
[[nodiscard]] int DateiWahl(Dateisorte Sorte, Wahlmodus Modus, const std::string& Filter,
                            const std::string& Vorgabe, std::string& Name, bool* Anhängen = nullptr,
                            Zeichensatz* Satz = nullptr);

/// The chooser of the protocol, with a check box for no protocol at all; Name is then empty.
[[nodiscard]] int ProtokollWahl(std::string& Name, const std::string& Ordner = Startordner());

/// VerzeichnisLetztes becomes the folder of Name, if it has one; the settings are written.
void VerzeichnisMerken(const std::string& Name);

}  // namespace tavorena
