#pragma once

#include <functional>
#include <memory>
#include <string>

#include <tavorena/forms/Formular.h>

// The open worksheets.

namespace tavorena {

/// Shows a new worksheet and keeps it until it is closed; with Modal it returns then.
void BlattZeigen(std::unique_ptr<Formular> Blatt, bool Modal = false);

/// A worksheet is open.
bool BlätterOffen();

/// Each open worksheet asks what is to become of something not yet written.
/// @return false: one of them stays as it is
[[nodiscard]] bool BlätterKlären();

/// Closes all open worksheets without a question; a replay ends.
void BlätterSchließen();

/// A replay runs: no other worksheet may be opened.
bool StapelSchreibenOffen();

/// What shows the worksheet that takes a block of the batch file; empty if there is none.
std::function<void()> BlattFür(const std::string& Kennung);

}  // namespace tavorena
