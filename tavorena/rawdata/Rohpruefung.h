#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tavorena/rawdata/Messsatz.h>
#include <tavorena/rawdata/Rohdaten.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {

/// Gathers what the report says of the lines of a file while it is read. The text that is read must live as
/// long: numbers and lines are looked at where they stand.
class Rohprüfung {
 public:
  Rohprüfung(Rohbefund& Ziel, const Rohdatenwahl& Wahl) : B(Ziel), AlleEinheiten(Wahl.AlleEinheiten) {}

  /// What follows is about this line.
  void ZeileBeginnen(std::string_view Zeile);
  /// Counts the line by its class.
  void Art(int Zeilenart, bool Sechzehn);
  /// The words of a measurement line: units, fields, what is not read.
  void GSIWörter(std::string_view Zeile, const GSIForm& Form);
  void GREWörter(std::string_view Zeile, const Messsatz& Satz);
  /// A number and its code, as they are taken over.
  void Nummer(std::string_view Zeile, std::string_view Nummer, std::string_view Code);
  /// One more find of its kind; its line is in doubt.
  void Melden(std::vector<Fundstelle>& Liste, std::string_view Was);
  /// The same of a line that was read before.
  void MeldenAn(std::vector<Fundstelle>& Liste, std::string_view Was, std::size_t FrühereZeile);
  /// The same where the kind is harmless and may stand in every line: only its first lines are in doubt.
  void MeldenSelten(std::vector<Fundstelle>& Liste, std::string_view Was);
  /// Counts finds without calling the line in doubt.
  void Zählen(std::vector<Fundstelle>& Liste, std::string_view Was) { Eintragen(Liste, Was, Zeilennummer); }
  /// Joins both faces of a block's rows, and counts what that did.
  void LagenZusammenfassen(std::vector<Rohpunkt>& Punkte);
  /// At the end of the file, with all that was read.
  void Abschließen(std::string_view Gesamt);

  [[nodiscard]] std::size_t Zeile() const { return Zeilennummer; }

 private:
  struct Bekannt {
    std::string_view Code;
    bool Gemeldet = false;
  };
  static std::size_t Eintragen(std::vector<Fundstelle>& Liste, std::string_view Was, std::size_t Zeile);
  void Zweifel(std::string_view Grund);
  void TexteErgänzen(std::string_view Gesamt);
  void Feld(int Wort, char Einheit, std::string_view Daten);

  Rohbefund& B;
  bool AlleEinheiten;
  const Messsatz Leer;  // tells which word indexes there are
  std::size_t ZweifelZeile = 0;
  std::size_t Zeilennummer = 0;
  std::string_view Text;
  std::array<std::array<std::size_t, 128>, 100> Einheiten{};  // by word index and unit digit
  std::unordered_map<std::string_view, Bekannt> Nummern;
};

}  // namespace tavorena
