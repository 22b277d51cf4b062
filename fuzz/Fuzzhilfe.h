#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavorena::fuzz {

/// The bytes of one run.
class Eingabe {
 public:
  Eingabe(const std::uint8_t* Daten, std::size_t Laenge)
      : Offen(reinterpret_cast<const char*>(Daten), Laenge) {}

  /// A number from Von to Bis out of the next byte; Von at the end of the input.
  int Zahl(int Von, int Bis);
  [[nodiscard]] std::string_view Rest() const { return Offen; }
  /// The rest bears the mark of UTF-16: readers of texts refuse it.
  [[nodiscard]] bool IstUtf16() const {
    return Offen.starts_with("\xFF\xFE") || Offen.starts_with("\xFE\xFF");
  }

 private:
  std::string_view Offen;
};

/// A broken promise is a finding: the run ends.
void Prüfen(bool Gilt, const char* Versprechen);

/// The folder of this process, removed with it.
const std::string& Ordner();

/// Writes a file into the folder. @return its full name
std::string Datei(const char* Name, std::string_view Bytes);
/// The bytes of a file, which must be there.
std::string Inhalt(const std::string& Name);

/// The promises of a table in any state: the search finds each number, at the first row that holds it.
void TabellePrüfen();

}  // namespace tavorena::fuzz
