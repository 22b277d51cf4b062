#pragma once

namespace tavorena {

/// Makes a KOR file of local coordinates beside an M5 file that is chosen, through the report. A station
/// without coordinates is asked for.
void M5Umformen();

}  // namespace tavorena
