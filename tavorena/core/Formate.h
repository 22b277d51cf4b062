#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include <tavorena/core/TVKoordinatenmodul.h>

// The formats that points are read from and written to. KOR and LT4 stand in the table from the start; what
// lies above this folder adds its own when the program starts.

namespace tavorena {

/// What a file of points is written in. The numbers are those of the commands that import and export.
enum class Punktformat : std::int16_t {
  Kor = 0,
  Lfs = 1,  ///< also ASC
  Coo = 2,
  GeoMap = 3,
  Gsi = 4,
  Frei = 5,
  Geograf = 6,
  Edbs = 10,
  Lt4 = 11,  ///< also ALK
  GsiMitCode = 41,
  GsiMitHöhe = 42,
  GsiOhneHöhe = 43,
  GeografAus = 51,
  Höhenliste = 60,
  Csv = 70,
  Nas = 71,
};

/// That of a coordinate file; a number of a foreign history stays what nothing reads.
[[nodiscard]] Punktformat PunktformatVon(Dateiformat Format);

/// What reading a file came to, beside its points.
struct Lesebericht {
  int Gelesen = 0;           ///< points that the table took
  int Übergangen = 0;        ///< lines (objects) that are no points; empty lines do not count
  int ErsteÜbergangene = 0;  ///< number of the first of them, from 1; 0: there is none
  int Überzählig = 0;        ///< points that found the table full
  bool Gestoppt =
      false;  ///< by the stop button, also where a reader of whole files saw it: nothing was taken
  bool Abgeschnitten = false;  ///< the file ends inside a record
  std::string Zusatz;          ///< what else is to be told about this file, a sentence; "" nothing
};

/// Takes a point; its views need to live during the call only. @return false: no more are wanted
using Punktnehmer = std::function<bool(const KorSatz&)>;

/// What a reader of whole files gets.
struct Punktquelle {
  const std::string& Dateiname;
  std::string_view Inhalt;  ///< as Formatzugang::Was says
  /// It takes the place of the table: what it holds besides points belongs to the open file from now on.
  bool AlsKoordinatendatei = false;
};

/// What is known of a row before it is written.
enum class Rückkehr {
  Unklar,      ///< it has to be written and read back to see
  OhneNullen,  ///< all of it comes back, the number perhaps with other zeros in front
  Ganz,        ///< all of it comes back, the number to the letter
};

/// One format. What it can not do is left nullptr.
struct Formatzugang {
  enum class Zufuhr {
    Text,   ///< the whole file as UTF-8
    Bytes,  ///< the whole file as it stands
    Name,   ///< nothing: it opens the file itself
  };
  Punktformat Nummer = Punktformat::Kor;
  /// Cuts one line; the views lie in the line or in Info. @return false: it is no point
  bool (*ZeileLesen)(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) = nullptr;
  /// Reads a whole file where lines are not enough. @return 0; -1 can not be read, with a message
  int (*Lesen)(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) = nullptr;
  Zufuhr Was = Zufuhr::Text;  ///< what Lesen gets
  /// Appends one point without a line end; nothing appended: the format leaves it out.
  void (*ZeileSchreiben)(const KorSatz& S, int Nachkomma, std::string& Ziel) = nullptr;
  /// Appends the whole table where lines are not enough.
  void (*Schreiben)(int Nachkomma, std::string& Ziel) = nullptr;
  // What a file would not give back is found by writing a line and reading it (Verlust.h).
  /// Reads a line of ZeileSchreiben, where that is not ZeileLesen.
  bool (*ZurückLesen)(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) = nullptr;
  /// Spares that for the rows that surely come back; asked for every row, so it must be quick.
  Rückkehr (*Voraussage)(const KorSatz& S, int Nachkomma) = nullptr;
  /// How many attributes the columns of the format did not keep; nullptr: it has none.
  int (*AttributeVerloren)(const KorInfoSatz& Vorher, const KorInfoSatz& Zurück) = nullptr;
  unsigned Angesagt = 0;  ///< losses that the caption of its command announces, by Verlustbit
};

/// Adds a format, or replaces the one of its number.
void FormatAnmelden(const Formatzugang& F);

/// The format of a number; nullptr if there is none.
[[nodiscard]] const Formatzugang* FormatFinden(Punktformat Nummer);

}  // namespace tavorena
