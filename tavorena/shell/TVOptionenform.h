#pragma once

namespace tavorena {

/// The options dialog, modal. OK takes all fields over and writes the configuration file; Escape closes
/// without a change.
void TVOptionenformZeigen();

/// Scale of the worksheets against the design size, from the size of the main window.
/// @param[in] Begrenzt  the vertical zoom is capped: 0.8 or more becomes 0.77
void FormularZoomRechnen(bool Begrenzt);

}  // namespace tavorena
