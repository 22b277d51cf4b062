#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

// The values of an option, which commas separate.

namespace tavorena {

/// "1, 2" -> {"1", "2"}: the words between the commas without blanks around them.
[[nodiscard]] std::vector<std::string> Wortliste(std::string_view Text);

/// A range of point numbers, "VON,BIS". @return false with a message: there are not two numbers without
/// blanks
[[nodiscard]] bool BereichLesen(std::string_view Text, std::string& Von, std::string& Bis);

/// A length of 0 or more [m], with point or comma. @return false with a message
[[nodiscard]] bool LängeLesen(std::string_view Text, const char* Option, double& Länge);

/// So many lengths [m] with decimal points. @return false with a message
[[nodiscard]] bool LängenLesen(std::string_view Text, const char* Option, std::span<double> Längen);

}  // namespace tavorena
