#pragma once

#include <QString>

namespace tavorena {

/// Page of the handbook that belongs to a help number, as a file name; the first page for an unknown one.
QString Handbuchseite(int Hilfenummer);

/// Opens the handbook at the page of a help number, in a window of its own with contents, the way back and
/// forward, and a search over all pages.
void HandbuchZeigen(int Hilfenummer);

}  // namespace tavorena
