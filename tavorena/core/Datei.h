#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// The one place where files are opened. Names carry "\" or "/" and may begin with a drive letter; texts
// are UTF-8 in memory, and the code page of a file is converted here and nowhere else.

namespace tavorena {

/// Name as the file system takes it: "\" and "/" become its separator, and where it has no drives, the letter
/// of one is dropped.
std::filesystem::path Systempfad(std::string_view Name);

/// The parts of a file name, split at "/" and "\". Ordner ends in its separator or is empty, Endung has
/// no point.
struct Dateiname {
  std::string Ordner, Grundname, Endung;
};
Dateiname DateinameZerlegen(std::string_view Name);

/// The name with its folder, also where it was told beside the current one.
std::string GanzerName(const std::string& Name);

/// The same file, whatever it is called: links and names of a folder that does not exist yet included.
bool SelbeDatei(std::string_view A, std::string_view B);

bool DateiVorhanden(std::string_view Name);
bool OrdnerVorhanden(std::string_view Name);

/// The names of the regular files in a folder, without it, in the order of their letters; none where it can
/// not be read.
std::vector<std::string> DateienIm(std::string_view Ordner);

/// Makes a folder and those above it. @return 0 (also if it was there); -1
[[nodiscard]] int OrdnerAnlegen(std::string_view Name);

/// By what a file shows that somebody wrote in it. A missing file has the state {}.
struct Dateistand {
  std::uintmax_t Länge = 0;  ///< [bytes]
  std::int64_t Zeit = 0;     ///< of the last writing [ns]
  bool operator==(const Dateistand&) const = default;
};
Dateistand DateistandVon(std::string_view Name);

/// What a name leads to: the state, and which file it is. Nothing there: {}.
struct Dateiblick {
  Dateistand Stand;
  std::uint64_t Gerät = 0, Nummer = 0;
  std::uint32_t Rechte = 0;
  bool operator==(const Dateiblick&) const = default;
};
Dateiblick DateiAnsehen(std::string_view Name);

// The functions below answer -1 with the reason in a few words ("Datenträger voll"), where one is wanted.
// They open regular files and nothing else: a folder, a pipe or a device is refused at once.

/// Reads a whole file as it stands.
/// @param[out] Grund  why not; "" if there is no such file
/// @return 0; -1 if it can not be opened or read, or is too large for the memory
[[nodiscard]] int DateiLesen(std::string_view Name, std::string& Inhalt, std::string* Grund = nullptr);

/// Reads a file of any size as it stands, a piece at a time.
/// @param[in] Nehmen  takes a piece, and "" once at the end of the file; false: no more is wanted
/// @return 0, also where no more was wanted; -1 as DateiLesen
[[nodiscard]] int DateiStückweise(std::string_view Name, const std::function<bool(std::string_view)>& Nehmen,
                                  std::string* Grund = nullptr);

/// Reads a text file: valid UTF-8 is taken as such (a byte-order mark is dropped), any other content as
/// Windows-1252. @return 0; -1 as DateiLesen, and for UTF-16
[[nodiscard]] int TextdateiLesen(std::string_view Name, std::string& Text, std::string* Grund = nullptr);

/// Replaces a file as a whole: written beside it under a name of its own, flushed to the disk, renamed over
/// it. On any failure the old file is as it was. Links are followed, a file with several names keeps them;
/// mode, owner and group stay where the system allows. A file that is protected against writing is refused,
/// and so is a link without a file at its end.
/// @param[in] Solange  what was seen of the file: one that somebody wrote since is left alone
/// @return 0; -1; -2: it is not as in Solange any more
[[nodiscard]] int DateiErsetzen(std::string_view Name, std::string_view Inhalt, std::string* Grund = nullptr,
                                const Dateistand* Solange = nullptr);

/// Makes an empty file beside Name that nobody else has or may read.
/// @param[in,out] Name  the name of the new file; "" if there is none @return 0 or -1
[[nodiscard]] int EigeneDateiAnlegen(std::string& Name);

/// Appends Text in one piece; the file is made if it is missing and keeps the coding that it has
/// (UTF-8 or Windows-1252). A write that fails leaves it at its old length.
/// @param[out] Danach  the state in which the file is left, where it is wanted
/// @param[in] Eben     what was seen of the file just now: it is not looked at once more
/// @return 0 or -1
[[nodiscard]] int TextAnhängen(std::string_view Name, std::string_view Text, std::string* Grund = nullptr,
                               Dateistand* Danach = nullptr, const Dateiblick* Eben = nullptr);

/// The same for a file that other programs extend too: one that somebody wrote since it was seen is left
/// alone.
/// @return 0; -1; -2: it is not as in Eben any more
[[nodiscard]] int TextAnhängenSolange(std::string_view Name, std::string_view Text, const Dateiblick& Eben,
                                      std::string* Grund = nullptr, Dateistand* Danach = nullptr);

/// The same for bytes that stay as they are, whatever the coding of the file.
[[nodiscard]] int BytesAnhängen(std::string_view Name, std::string_view Bytes, std::string* Grund = nullptr);

/// What was appended so far reaches the disk.
/// @param[out] Name  a file that did not get there
/// @return 0 or -1
int AnhängeSichern(std::string* Name = nullptr);

/// Removes a file. @return 0 (also if there was none); -1 if it stays
[[nodiscard]] int DateiLöschen(std::string_view Name);

bool IstUtf8(std::string_view Text);
std::string AusWindows1252(std::string_view Bytes);
/// Characters without a place in Windows-1252 become "?".
std::string NachWindows1252(std::string_view Text);
/// The code page of DOS, for files in its look.
std::string AusCodepage850(std::string_view Bytes);
/// Characters without a place in it become "?".
std::string NachCodepage850(std::string_view Text);

/// Cuts a text into lines. Carriage return, line feed or both end a line. From the first line feed without
/// carriage return on, the file counts as one with Unix line ends, and a code 0 ends a line as well.
class Zeilenleser {
 public:
  explicit Zeilenleser(std::string_view Inhalt) : Text(Inhalt) {}

  /// The next line without its end. @return false at the end of the text
  [[nodiscard]] bool Nächste(std::string_view& Zeile);
  /// Nothing is left to read.
  [[nodiscard]] bool AmEnde() const { return Ab == Text.size(); }

 private:
  /// A character that ends lines, and where it comes next: looked for again only once it is passed.
  struct Zeilenende {
    char Zeichen;
    std::size_t Stelle = std::string_view::npos;  // not looked for yet
  };
  std::size_t Nächstes(Zeilenende& Ende) const;

  std::string_view Text;
  std::size_t Ab = 0;
  bool Unix = false;
  Zeilenende Cr{'\r'}, Lf{'\n'}, Null{'\0'};
};

}  // namespace tavorena
