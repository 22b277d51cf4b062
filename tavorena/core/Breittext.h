#pragma once

#include <string>
#include <string_view>

// Windows takes and gives text in 16 bits; here it becomes UTF-8 and back. Its sources alone use this.

namespace tavorena {

/// Text that is no UTF-8 is taken as Windows-1252, as in files.
std::wstring Breittext(std::string_view Text);
/// Halves of a character without their other half become the sign for that.
std::string AusBreittext(std::wstring_view Text);

}  // namespace tavorena
