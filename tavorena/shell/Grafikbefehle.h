#pragma once

namespace tavorena {

inline constexpr int GrafDXFHilfe = 3110;  ///< help number of the two

/// The command "DXF speichern ...": the free lines and arcs, or with its check box points and layers for CAD
/// programs. @return 0; -1: broken off or not written, told then
int GrafDXFSpeichern();

/// The command "DXF lesen ...": adds the lines and arcs of a file to those that are there.
void GrafDXFLesen();

/// Asks about free elements that are in no file, before the coordinate file is closed.
/// @return 0: go on; -1: it stays open
[[nodiscard]] int GrafikSichern();

}  // namespace tavorena
