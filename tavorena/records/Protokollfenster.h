#pragma once

#include <string>

namespace tavorena {

/// Text of the protocol window; its first line goes out beyond 32000 characters.
extern std::string ProtokollfensterText;

void ProtokollfensterZeile(const std::string& Text);

}  // namespace tavorena
