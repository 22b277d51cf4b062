#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Formate.h>
#include <tavorena/core/Zeichensatz.h>

// What a file would not give back of the points that are to be written to it: found before it is written, and
// asked about in one question. Rounding and leading zeros are no loss, nor is what the caption of a command
// announces.

namespace tavorena {

/// What can be lost, in the order of the question.
enum class Verlustart : unsigned {
  Koordinaten,    ///< Rechts and Hoch, each by itself
  Höhen,          ///< of points that have one
  NummernAnders,  ///< come back as others
  NummernGleich,  ///< come back as those of other points
  Symbole,
  Attribute,  ///< where the format has columns for them
  Zeichen,    ///< of numbers, symbols and attributes, without a place in the code page
  Punkte,     ///< of the file that was read: behind the last row of the table
  Zeilen,     ///< of the file that was read: are no points
};

inline constexpr std::size_t Verlustarten = 9;

/// The bit of a kind in Formatzugang::Angesagt.
constexpr unsigned Verlustbit(Verlustart Art) { return 1U << static_cast<unsigned>(Art); }

/// How often something is lost, and the number of the first point it is lost of; "" where no point is named.
struct Verlustposten {
  int Anzahl = 0;
  std::string Erste;
};

/// All that writing a file would lose.
struct Verlustliste {
  std::array<Verlustposten, Verlustarten> Posten;
  std::vector<std::string> Weitere;  ///< lines of the question for what only one command knows

  /// The entry of a kind.
  [[nodiscard]] Verlustposten& operator[](Verlustart Art) { return Posten[static_cast<std::size_t>(Art)]; }
  [[nodiscard]] const Verlustposten& operator[](Verlustart Art) const {
    return Posten[static_cast<std::size_t>(Art)];
  }
};

/// A text that a column did not keep; blanks and leading zeros are no text. For
/// Formatzugang::AttributeVerloren.
[[nodiscard]] bool TextVerloren(std::string_view Vorher, std::string_view Zurück);

/// A row of words without blanks, its number not empty, whose values fit fields of seven places.
[[nodiscard]] bool IstSchlicht(const KorSatz& S);

/// Looks at the points of a file, one after the other. Two numbers that become one are not seen here.
class Verlustprüfer {
 public:
  /// @param[in] Nachkomma  decimals of the file, where the format has no number of its own
  Verlustprüfer(const Formatzugang& Format, int Nachkomma, Zeichensatz Satz = Zeichensatz::Utf8)
      : F(Format), n(Nachkomma), Kodierung(Satz) {}

  /// Counts what the file would not give back of a point.
  void Punkt(const KorSatz& S);

  /// What was counted.
  [[nodiscard]] const Verlustliste& Liste() const { return Gezählt; }
  /// Each number so far comes back to the letter.
  [[nodiscard]] bool NummernWörtlich() const { return Wörtlich; }
  /// The number that a point comes back with; "" if it does not.
  [[nodiscard]] std::string NummerZurück(const KorSatz& S);

 private:
  bool Zurück(const KorSatz& S, KorSatz& Neu, KorInfoSatz& Info);
  void Vergleichen(const KorSatz& S);
  void ZeichenPrüfen(const KorSatz& S);
  void Zählen(Verlustart Art, const KorSatz& S, int Anzahl = 1);

  const Formatzugang& F;
  int n;
  Zeichensatz Kodierung;
  Verlustliste Gezählt;
  std::string Zeile;
  bool Wörtlich = true;
};

/// What a file of the table would not give back.
/// @param[in] Zeilen  the rows that are written; nullptr: all
[[nodiscard]] Verlustliste TabellenVerlust(const Formatzugang& Format, int Nachkomma,
                                           Zeichensatz Satz = Zeichensatz::Utf8,
                                           const std::vector<int>* Zeilen = nullptr);

/// Asks about losses before a file is written: once for a file and a kind, again when there are more of it.
/// @return false: it must not be written
[[nodiscard]] bool VerlustErlaubt(const std::string& Dateiname, const Verlustliste& V,
                                  Zeichensatz Satz = Zeichensatz::Utf8);

/// Every loss is asked about again: another job begins.
void VerlusteVergessen();

}  // namespace tavorena
