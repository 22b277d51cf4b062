#pragma once

namespace tavorena {

/// Opens the handbook at the page of a help number, in a window of its own with contents, the way back and
/// forward, and a search over all pages.
void HandbuchZeigen(int Hilfenummer);

}  // namespace tavorena
