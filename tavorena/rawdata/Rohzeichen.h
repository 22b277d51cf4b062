#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string_view>

/// @file
/// What the readers of raw data share below a line: characters, words, fields.

namespace tavorena {

/// A line by characters. Plain ASCII takes the short way; nothing is allocated.
class Zeichenzeile {
 public:
  /// @param[in] Utf8  false: each byte is a character
  explicit Zeichenzeile(std::string_view Zeile, bool Utf8 = true);
  /// Characters of the whole line.
  [[nodiscard]] std::size_t Länge() const { return Anzahl; }
  /// So many characters from the 0-based character Ab on. In lines that are not plain ASCII they must be
  /// among the first `Grenze`.
  [[nodiscard]] std::string_view Teil(std::size_t Ab, std::size_t Zeichen) const {
    if (Ascii) return Text.substr(Ab, Zeichen);
    return Text.substr(Anfang[Ab], Anfang[Ab + Zeichen] - Anfang[Ab]);
  }
  /// Teil can reach that far.
  [[nodiscard]] bool Erreicht(std::size_t Bis) const { return Bis <= Anzahl && (Ascii || Bis <= Grenze); }
  static constexpr std::size_t Grenze = 512;

 private:
  std::string_view Text;
  std::size_t Anzahl;
  bool Ascii;
  std::array<std::size_t, Grenze + 1> Anfang;  // bytes; only filled where Ascii does not hold
};

/// Measures of a GSI line in characters; words are counted from 1.
struct GSIForm {
  std::size_t Ziffern;  ///< of a data field
  std::size_t Letztes;  ///< word that is still read
  [[nodiscard]] constexpr std::size_t Datenbreite() const { return Ziffern + 1; }
  [[nodiscard]] constexpr std::size_t Wortbreite() const { return Ziffern + 8; }
  [[nodiscard]] constexpr std::size_t Mindestlänge() const { return Ziffern + 7; }
  /// Where word k begins, from 0.
  [[nodiscard]] constexpr std::size_t Beginn(std::size_t k) const { return Wortbreite() * (k - 1); }
  /// The line is long enough for word k.
  [[nodiscard]] bool Hat(const Zeichenzeile& Z, std::size_t k) const {
    return Z.Länge() >= Wortbreite() * k - 1;
  }
  [[nodiscard]] std::string_view Wort(const Zeichenzeile& Z, std::size_t k) const {
    return Z.Teil(Beginn(k), 2);
  }
  [[nodiscard]] std::string_view Info(const Zeichenzeile& Z, std::size_t k) const {
    return Z.Teil(Beginn(k) + 2, 4);
  }
  [[nodiscard]] std::string_view Daten(const Zeichenzeile& Z, std::size_t k) const {
    return Z.Teil(Beginn(k) + 6, Datenbreite());
  }
};
inline constexpr GSIForm Form8{8, 11}, Form16{16, 9};

/// The number of a word index; -1 for two characters that are none.
[[nodiscard]] int Wortindex(std::string_view Wort);

/// A field of a sign, which may be blank or missing, and digits up to its end.
/// @return false if it holds anything else, Zahl is then the number in front, or 0
[[nodiscard]] bool GanzesFeld(std::string_view Feld, double& Zahl);

/// Without leading blanks, "+" and "0", and without blanks behind; "0" if nothing is left.
[[nodiscard]] std::string_view OhneFührendeNullen(std::string_view Text);

/// Does something with each line of a file; shows the progress, and ends at the stop button.
/// @return false if it was stopped
[[nodiscard]] bool ZeilenDurchgehen(std::string_view Text, const std::function<void(std::string_view)>& Tun);

/// The two texts are the same apart from the case of ASCII letters.
[[nodiscard]] bool GleichesWort(std::string_view A, std::string_view B);

}  // namespace tavorena
