#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace tavorena {

/// Marks a Wert that was set to "no value", which is not the same as never set.
struct NullWert {
  /// All are equal.
  bool operator==(const NullWert&) const = default;
};

/// State of a Wert, in the order of its alternatives.
enum class WertArt { Leer, Null, Ganz16, Ganz32, Gleit, Wahr, Text };

/// The tagged value that crosses nearly every interface: a point number may be typed as text or as a
/// number, a measured value may be missing. The state decides how a value is formatted and compared, so
/// it is never flattened into a double on the way.
class Wert {
 public:
  /// Never set.
  Wert() = default;
  /// Set to no value.
  Wert(NullWert) : Inhalt(NullWert{}) {}
  /// @{
  /// Set to a value; a null pointer counts as the empty text.
  Wert(std::int16_t Zahl) : Inhalt(Zahl) {}
  Wert(std::int32_t Zahl) : Inhalt(Zahl) {}
  Wert(double Zahl) : Inhalt(Zahl) {}
  Wert(bool Wahr) : Inhalt(Wahr) {}
  Wert(std::string Text) : Inhalt(std::move(Text)) {}
  Wert(std::string_view Text) : Inhalt(std::string(Text)) {}
  Wert(const char* Text) : Inhalt(std::string(Text != nullptr ? Text : "")) {}
  /// @}

  /// The state.
  [[nodiscard]] WertArt Art() const { return static_cast<WertArt>(Inhalt.index()); }
  /// Never set.
  [[nodiscard]] bool IstLeer() const { return Art() == WertArt::Leer; }
  /// Set to no value.
  [[nodiscard]] bool IstNull() const { return Art() == WertArt::Null; }
  /// A text, also an empty one.
  [[nodiscard]] bool IstText() const { return Art() == WertArt::Text; }
  /// Neither empty nor null: there is something to calculate or to write with.
  [[nodiscard]] bool IstGegeben() const { return !IstLeer() && !IstNull(); }

  /// The text of a Wert in state Text; of any other state the empty text.
  [[nodiscard]] const std::string& Text() const {
    static const std::string Kein;
    const auto* Gesetzt = std::get_if<std::string>(&Inhalt);
    return Gesetzt != nullptr ? *Gesetzt : Kein;
  }

  /// The numeric value: empty and null give 0, true gives -1, a text its numeric prefix (with "," read
  /// as "."), 0 if it has none. For the package itself: the shared library offers the class TA alone.
  [[nodiscard]] double Zahl() const;

  /// The same state and the same value: 1 and "1" are two things.
  bool operator==(const Wert&) const = default;

 private:
  // The order of the alternatives is the order of WertArt.
  std::variant<std::monostate, NullWert, std::int16_t, std::int32_t, double, bool, std::string> Inhalt;
};

}  // namespace tavorena
