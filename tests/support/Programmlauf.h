#pragma once

#include "Testhilfe.h"

namespace tavorena::test {

/// Runs a program in a folder, without a display and the settings of the user as far as variables tell them.
/// What it prints lies there in "aus" and "meldungen".
/// @return its exit status; -1: killed, or not to be started
int ProgrammLaufen(const std::string& Ordner, const std::string& Programm, const std::string& Worte);

}  // namespace tavorena::test
