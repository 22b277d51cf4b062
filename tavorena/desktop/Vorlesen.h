#pragma once

#include <QString>

class QWidget;

namespace tavorena {

struct Steuerelement;

/// What is said of a typed value that failed, and of a figure that passes its limit.
inline constexpr const char *NichtAngenommen = "nicht angenommen", *Auffälliges = "auffällig";

/// What a screen reader says of a control besides its name and its text: that its value failed, the whole of
/// a result that is shown in part, what it does, and why it is closed.
/// @param[in] Ganz  the whole text; empty where all of it is shown
void BeschreibungSetzen(QWidget& W, const Steuerelement& S, const QString& Ganz = {});

}  // namespace tavorena
