#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavorena {

/// What came over a line and is no whole reply yet. Each line feed ends a reply; so do 64 KB without one.
/// Which replies come out does not depend on the pieces in which the bytes came in.
class Antwortpuffer {
 public:
  static constexpr std::size_t Grenze = 65536;  ///< [bytes]

  void Nehmen(std::string_view Bytes);
  /// Takes the next reply out, with its line feed; without one, it was 64 KB long.
  /// @return false: none is whole
  [[nodiscard]] bool Nächste(std::string& Antwort);
  /// Takes out what is left, at the end of a connection.
  [[nodiscard]] std::string Rest();

 private:
  std::string Inhalt;
  std::size_t Ab = 0;       // what stands before was taken out
  std::size_t Gesucht = 0;  // no line feed from Ab up to here
};

/// If the third character from the end is "?", the last three are dropped; a shorter reply stays.
void TVTheoFragezeichenWeg(std::string& Antwort);

/// Takes the line end off, if there is one: line feed, carriage return, or both.
void OhneZeilenende(std::string& Antwort);

}  // namespace tavorena
