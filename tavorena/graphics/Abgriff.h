#pragma once

#include <tavorena/forms/Formular.h>

namespace tavorena {

/// Whether a form is one of those that take points from the graphics view.
[[nodiscard]] bool NimmtAbgriffe(const Formular& Form);

/// Whether a point that is clicked in the graphics view goes to this control of a form: a field for a point
/// number, or a grid of them.
[[nodiscard]] bool NimmtAbgriff(const Formular& Form, const Steuerelement& S);

/// Takes a point number into the control of the form that has the focus, as if it had been typed, with Return
/// behind it: in a grid into the current cell if that can be typed into, else into the number of its row. A
/// control with a way of its own takes it so (BeiAbgriff).
/// @return false: the control takes none
bool AbgriffNehmen(Formular& Form, const std::string& Pnr);

}  // namespace tavorena
