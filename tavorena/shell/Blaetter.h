#pragma once

#include <functional>
#include <memory>
#include <string>

#include <tavorena/forms/Formular.h>

// The open worksheets.

namespace tavorena {

/// Shows a new worksheet and keeps it until it is closed.
void BlattZeigen(std::unique_ptr<Formular> Blatt);

/// A worksheet is open.
bool BlätterOffen();

/// Closes all open worksheets; one with something unwritten asks first. @return false: one stayed open
bool BlätterSchließen();

/// A replay runs: no other worksheet may be opened.
bool StapelSchreibenOffen();

/// What shows the worksheet that takes a block of the batch file; empty if there is none.
std::function<void()> BlattFür(const std::string& Kennung);

}  // namespace tavorena
