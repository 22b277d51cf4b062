#pragma once

#include "Testhilfe.h"

#include <string>

#include <tavorena/forms/Formular.h>

namespace tavorena::test {

/// Types into a control as the surveyor does: it gets the focus, each "\n" is Return, "+" and "-" alone
/// are the keys of the number pad. A grid takes the text in its current cell.
void Tippe(Formular& Form, const std::string& Name, const std::string& Text);

/// Presses a button.
void Drücke(Formular& Form, const std::string& Name);

/// A control, which must be there.
Steuerelement& Feld(const Formular& Form, const std::string& Name);

/// Texts of controls, "|" between them.
template <typename... T>
std::string Text(const Formular& Form, const T&... Namen) {
  return Reihe(Feld(Form, Namen).Text...);
}

/// The grid of a worksheet.
Gitter& Gitterfeld(const Formular& Form);

/// What a scripted platform does in a modal form: opens it, types and presses.
struct Handgriff {
  std::string Name, Text;  ///< an empty text presses the button
};
std::function<void(Formular&)> Bediene(std::vector<Handgriff> Griffe);

}  // namespace tavorena::test
