#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavorena {

/// The text of the protocol window. It only grows at its end and loses lines in front, so that a reader who
/// looks now and then needs to take over what came and went since.
struct Fenstertext {
  std::string Text;
  int Beginn = 0;             ///< how often it was begun anew
  std::size_t Angehängt = 0;  ///< bytes that came since then
  int Entfallen = 0;          ///< lines that went out in front since then

  /// Adds a piece, its line end included. When the text has passed 32000 characters, its first line goes out
  /// before.
  void Anhängen(std::string_view Stück);
  /// Begins anew.
  void Leeren();

 private:
  std::size_t Zeichen = 0;  // in Text
};

extern Fenstertext Protokollfenster;

/// Shows the end of a protocol that exists, without its print margin; of any other name nothing.
void FensterAusDatei(const std::string& Protokolldatei);

/// How far a reader has come.
struct Fensterstand {
  int Beginn = -1;
  std::size_t Angehängt = 0;
  int Entfallen = 0;
};

/// What a reader has to do to show the text as it stands now.
struct Fensterwechsel {
  bool VonVorn = false;    ///< drop all that was shown
  int Entfallen = 0;       ///< lines that go out in front
  std::string_view Neues;  ///< text that comes at the end; valid until the text changes
};

/// Compares with the last look and brings Stand up to date.
[[nodiscard]] Fensterwechsel FensterLesen(const Fenstertext& Fenster, Fensterstand& Stand);

}  // namespace tavorena
