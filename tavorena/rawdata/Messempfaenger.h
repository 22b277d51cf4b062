#pragma once

#include <string>

#include <tavorena/rawdata/Messsatz.h>

namespace tavorena {

class Formular;

/// Where the focus of a worksheet stands, as far as a measurement is concerned.
enum class Messort { Außerhalb, Nummernspalte, Anschlussgitter, Polargitter, Schnurgerüst };

/// What the instrument link asks of the open worksheet. Without one a measurement only goes into the raw-data
/// file.
class Messempfänger {
 public:
  virtual ~Messempfänger() = default;
  /// The form itself, to which "{ENTER}" is sent.
  [[nodiscard]] virtual Formular& Blatt() = 0;
  /// Lower-case name of the form, such as "tvfstatform".
  [[nodiscard]] virtual std::string Formname() const = 0;
  [[nodiscard]] virtual Messort Fokus() const = 0;
  /// Number of the station in the form; "" as long as there is none.
  [[nodiscard]] virtual std::string Standpunkt() const = 0;
  /// The form holds what a measurement needs: a station number and, with heights, an instrument height.
  [[nodiscard]] virtual bool StandpunktVollständig() const = 0;
  /// Station number and instrument height that came from the instrument; what is absent stays.
  virtual void StandpunktNehmen(const std::string& Nummer, const Messwert& Instrumentenhöhe) = 0;
  /// Puts a measurement where the focus is; the caller sends "{ENTER}" behind it.
  /// @return 0; -1 when the place takes none now
  [[nodiscard]] virtual int MessungNehmen(const Messsatz& Satz) = 0;
};

/// The one that takes measurements now; nullptr: none.
Messempfänger* MessempfängerJetzt();
/// This one takes them from now on, as long as no other does: whenever the user turns to it.
void MessempfängerAnmelden(Messempfänger& E);
/// It takes none any more; the one that did before it goes on.
void MessempfängerAbmelden(Messempfänger& E);

}  // namespace tavorena
