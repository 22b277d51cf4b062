#pragma once

#include <functional>
#include <string>

#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// A field for a measured value, which may be left empty.
class Messfeld {
 public:
  /// @param[in] Rest  of its control name
  Messfeld(Rechenblatt& Blatt, const std::string& Rest, const char* Label, Platz Ort, const char* Rahmen);
  Messfeld(const Messfeld&) = delete;
  Messfeld& operator=(const Messfeld&) = delete;

  Feld& Eingabe;
  std::function<void()> BeiWechsel;  ///< another value was typed

  /// 0 while nothing is typed.
  [[nodiscard]] double Zahl() const { return Gelesen; }
  [[nodiscard]] bool Gegeben() const { return !Eingabe.Text->empty(); }
  /// Sets the value from outside, such as from a record.
  void Setzen(double Neu);
  void Leeren();

 private:
  [[nodiscard]] bool Nehmen();

  double Gelesen = 0;
  std::string Vorher;  // the text that was read last
};

}  // namespace tavorena
