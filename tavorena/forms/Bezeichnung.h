#pragma once

#include <string>
#include <unordered_map>

namespace tavorena {

class Formular;
struct Steuerelement;

/// What each control of a form is called when it is read aloud: its own Bezeichnung, or its caption, or the
/// label before it together with the heading above it, "Endpkt. Rechts"; where there is neither, the frame or
/// the form. Controls that would have the same name bear their frame behind it, and then their row. Labels
/// have none.
[[nodiscard]] std::unordered_map<const Steuerelement*, std::string> Bezeichnungen(const Formular& Form);

/// A caption as it is spoken: without the mark of its key, dashes around it, colon or dots behind it.
[[nodiscard]] std::string Gesprochen(const std::string& Beschriftungstext);

}  // namespace tavorena
