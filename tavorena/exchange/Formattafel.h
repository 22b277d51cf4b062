#pragma once

namespace tavorena {

/// Adds the formats of this folder to those of the coordinate files; once, when the program starts.
void FormateAnmelden();

}  // namespace tavorena
