#pragma once

#include "Testhilfe.h"

#include <stdexcept>
#include <string>

#include <tavorena/forms/Formular.h>

namespace tavorena::test {

/// Types into a control as the surveyor does: it gets the focus, each "\n" is Return, "+" and "-" alone
/// are the keys of the number pad. A grid takes the text in its current cell.
/// @return the name of the control that has the focus afterwards
std::string Tippe(Formular& Form, const std::string& Name, const std::string& Text);

/// Presses a button. @return as above
std::string Drücke(Formular& Form, const std::string& Name);

/// A control, which must be there and of that kind.
template <typename Art = Steuerelement>
Art& Element(const Formular& Form, const std::string& Name) {
  auto* S = dynamic_cast<Art*>(Form.Finde(Name));
  if (S == nullptr) throw std::runtime_error("no such control " + Name + " in " + Form.FormName);
  return *S;
}
inline tavorena::Feld& Feld(const Formular& Form, const std::string& Name) {
  return Element<tavorena::Feld>(Form, Name);
}

inline const std::string& Text(const Formular& Form, const std::string& Name) {
  return *Element(Form, Name).Text;
}

/// The grid of a worksheet.
Gitter& Gitterfeld(const Formular& Form);
/// The texts of a row.
std::vector<std::string> Gitterzeile(const Gitter& G, int Zeile);

/// What a scripted platform does in a modal form: opens it, types and presses.
struct Handgriff {
  std::string Name, Text;  ///< an empty text presses the button
};
std::function<void(Formular&)> Bediene(std::vector<Handgriff> Griffe);

}  // namespace tavorena::test
