#pragma once

namespace tavorena {

/// Page of the handbook that belongs to a help number, as a file name; the first page for an unknown one.
[[nodiscard]] const char* Handbuchseite(int Hilfenummer);

}  // namespace tavorena
