#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// The one place where files are opened. Names carry "\" or "/" and may begin with a drive letter; texts
// are UTF-8 in memory, and the code page of a file is converted here and nowhere else.

namespace tavorena {

/// Name as the file system takes it: "\" becomes the separator, a drive letter is dropped.
std::filesystem::path Systempfad(std::string_view Name);

/// The parts of a file name, split at "/" and "\". Ordner ends in its separator or is empty, Endung has
/// no point.
struct Dateiname {
  std::string Ordner, Grundname, Endung;
};
Dateiname DateinameZerlegen(std::string_view Name);

bool DateiVorhanden(std::string_view Name);
bool OrdnerVorhanden(std::string_view Name);

/// Makes a folder and those above it. @return 0 (also if it was there); -1
[[nodiscard]] int OrdnerAnlegen(std::string_view Name);

/// Reads a whole regular file as it stands. @return 0; -1 if it can not be opened or read
[[nodiscard]] int DateiLesen(std::string_view Name, std::string& Inhalt);

/// Reads a text file: valid UTF-8 is taken as such (a byte-order mark is dropped), any other content as
/// Windows-1252. @return 0; -1 if it can not be opened or read
[[nodiscard]] int TextdateiLesen(std::string_view Name, std::string& Text);

/// Replaces a file as a whole: written beside it, flushed to the disk, renamed over it. On any failure the
/// old file is as it was. A link is followed, the permissions of an old file are kept. @return 0 or -1
[[nodiscard]] int DateiErsetzen(std::string_view Name, std::string_view Inhalt);

/// Appends Text in one piece; the file is made if it is missing and keeps the coding that it has
/// (UTF-8 or Windows-1252). A write that fails leaves it at its old length. @return 0 or -1
[[nodiscard]] int TextAnhängen(std::string_view Name, std::string_view Text);

/// By what a file shows that somebody wrote in it. A missing file has the state {}.
struct Dateistand {
  std::uintmax_t Länge = 0;  ///< [bytes]
  std::filesystem::file_time_type Zeit;
  bool operator==(const Dateistand&) const = default;
};
Dateistand DateistandVon(std::string_view Name);

/// Removes a file. @return 0 (also if there was none); -1 if it stays
[[nodiscard]] int DateiLöschen(std::string_view Name);

bool IstUtf8(std::string_view Text);
std::string AusWindows1252(std::string_view Bytes);
/// Characters without a place in Windows-1252 become "?".
std::string NachWindows1252(std::string_view Text);

/// Cuts a text into lines. Carriage return, line feed or both end a line. From the first line feed without
/// carriage return on, the file counts as one with Unix line ends, and a code 0 ends a line as well.
class Zeilenleser {
 public:
  explicit Zeilenleser(std::string_view Text) : Rest(Text) {}

  /// The next line without its end. @return false at the end of the text
  [[nodiscard]] bool Nächste(std::string_view& Zeile);
  /// Nothing is left to read.
  [[nodiscard]] bool AmEnde() const { return Rest.empty(); }

 private:
  std::string_view Rest;
  bool Unix = false;
};

}  // namespace tavorena
