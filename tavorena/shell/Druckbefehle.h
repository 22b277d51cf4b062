#pragma once

#include <span>
#include <string>

#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The commands that print the table and files.
[[nodiscard]] std::span<const Befehl> Druckbefehle();

/// Shows the pages of a text file in the preview. @return 0; -1: nothing was printed; a file that can not be
/// read gave a message
int DateiDrucken(const std::string& Name);

/// Asks for a file that is made for its printer and hands it on byte for byte: to the command of the house
/// where there is one, else to the print service of the system.
void DruckdateiSenden();

/// The name that is proposed for the PDF of a file: "a.dru" -> "a-dru.pdf", beside it.
[[nodiscard]] std::string PdfVorschlag(const std::string& Name);

}  // namespace tavorena
