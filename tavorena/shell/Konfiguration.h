#pragma once

#include <array>
#include <string>
#include <string_view>

#include <tavorena/core/Punkt.h>
#include <tavorena/rawdata/TheoOptionen.h>

// The two configuration files of the application folder. Both are line-position files: a line has its
// meaning by its place, the words behind a value are comments for the reader. Missing or cut-off files are
// no error: what was not read keeps its default.

namespace tavorena {

extern std::string Anwendungsordner;   ///< without a separator at its end
extern std::string DateinameOptionen;  ///< <Anwendungsordner>\Tavorena.ini
extern std::string DateinameExtra;     ///< <Anwendungsordner>\TavorenaExtra.ini; only computed, never opened

/// Names that are kept for files of other programs; nothing reads or writes them.
inline constexpr std::string_view ReservierteNamen[] = {"Tavorenalv.ini", "Tavorenasy.ini", "Tavorenafo.ini",
                                                        "Tavorenali.ini"};

/// The folder named by TAVORENA_ORDNER, if set; else the folder of the executable, if it holds a
/// Tavorena.ini; else "tavorena" in the user's configuration folder. Sets the three names above and
/// DateinameProtokollTemp.
void DateinamenAbleiten();

/// The recent files; 0 to 9 are used.
struct HistorieEintrag {
  std::string Dateiname;
  Dateiformat Format = Dateiformat::Kor;
  bool operator==(const HistorieEintrag&) const = default;
};
extern std::array<HistorieEintrag, 11> Historie;
inline constexpr int HistorieAnzahl = 10;

// ---- readers; 0 good, -1 section missing, end of file or read error

/// Decimals that are no whole number from 0 to 6, and a warning level that is none from 0 to 3, take their
/// default; one message names lines and values.
int OptionenLesen();
int HistorieLesen();
/// Reads nothing and sets the font size to 8: the section "[Formular]" reports the last run only.
int FormularLesen();
int DateinamenLesen();
int EDBSLesen();

/// Rewrites Tavorena.ini whole. Called after every change. @return 0; -1 if it could not be written
[[nodiscard]] int OptionenSchreiben(std::string* Grund = nullptr);

/// The same beside other work: what can not be written holds for this run, and is told once.
void OptionenMerken();

/// Puts a file to the front of the history, and writes it.
void HauptHistSchreiben(const std::string& Dateiname, Dateiformat Format);

/// Takes a file off the history, and writes it; the file itself stays.
void HistorieStreichen(int Index);

/// Settings of the instrument link. @return 0; -1 when the file is missing or cut off, the record is then
/// untouched
int TheoOptionenLesen(TheoOptionen& Gelesen);
int TheoOptionenSchreiben(const TheoOptionen& T);
/// The same beside other work, as OptionenMerken.
void TheoOptionenMerken(const TheoOptionen& T);

}  // namespace tavorena
