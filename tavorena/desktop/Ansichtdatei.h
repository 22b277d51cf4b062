#pragma once

#include <string>

namespace tavorena {

/// Writes what the graphics view shows, in light colours, as PDF, SVG (in both text stays text) or PNG, by
/// the end of the name. The file appears as a whole.
/// @return 0; -1 with a message: another end, nothing to be seen, or the file can not be written
int AnsichtSchreiben(const std::string& Name);

/// The command "Ansicht speichern ...": asks for the name, and before it replaces a file.
void AnsichtSpeichern();

}  // namespace tavorena
