#pragma once

#include <string>

namespace tavorena {

/// The point number entered last; the keys "+" and "-" step it. Shared by all open forms.
extern std::string LetztePunktnummer;

/// The last point number raised by Schritt, as a plain number; "" if its numeric prefix is 0.
std::string PunktnummerSchritt(int Schritt);

}  // namespace tavorena
