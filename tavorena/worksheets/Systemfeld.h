#pragma once

#include <functional>
#include <string>

#include <tavorena/worksheets/Passpaare.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// The file of the new system in the head of a transformation, typed or chosen.
class Systemfeld {
 public:
  /// @param[in] BeiWechsel  another system, or none, was read
  /// @param[in] BeiReturn   it is read, the user goes on
  Systemfeld(Rechenblatt& Für, const char* Rahmen, NeuesSystem& Ziel, std::function<void()> BeiWechsel,
             std::function<void()> BeiReturn);
  Systemfeld(const Systemfeld&) = delete;
  Systemfeld& operator=(const Systemfeld&) = delete;

  Feld& Datei;

  /// The file that was read; "": none.
  [[nodiscard]] const std::string& Gelesen() const { return Name; }
  void Leeren();
  /// Takes the file of a record; where it is not there, one of that name beside the batch file.
  /// @return "", or why it can not be had
  [[nodiscard]] std::string AusSatz(const std::string& Dateiname);

 private:
  void Wählen();
  [[nodiscard]] bool Lesen();
  void Nehmen(const std::string& Neuer);

  Rechenblatt& Blatt;
  NeuesSystem& System;
  std::function<void()> Wechsel, Weiter;
  std::string Name;
  Beschriftung& Punktzahl;
};

}  // namespace tavorena
