#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Punkt.h>
#include <tavorena/core/Wert.h>

// The point table: the one store of coordinates in the running program. Parallel columns, rows 0 to
// KorAnzahl - 1 in use, kept in the order of KorSortieren. Coordinates in metres, Rechts = east,
// Hoch = north; a height of 0 stands for a missing one.
//
// Everybody reads the columns; only the operations of this header write them. Each of them keeps the keys of
// search and sort fresh, tells Haken.VorÄnderung before it touches a row, and raises KorStand.

namespace tavorena {

inline constexpr int KorGrenze = 20000;          ///< a read fills the rows below this one
inline constexpr int KorZeilen = KorGrenze + 1;  ///< rows there are; the last is room for one Neupunkt

extern const int& KorAnzahl;
extern const std::vector<double>&KorRechts, &KorHoch, &KorHoehe;
/// Symbols and attributes of the rows, as columns.
inline constexpr struct KorSymbolSpalte { const std::string& operator[](std::size_t Zeile) const; } KorSymbol;
inline constexpr struct KorInfoSpalte { const KorInfoSatz& operator[](std::size_t Zeile) const; } KorInfo;
extern const bool& KoordinatenGeaendert;  ///< the table differs from the file
extern const std::uint64_t& KorStand;     ///< raised by every change: for who keeps a picture of the table

/// The point number of a row.
const std::string& KorPnr(int Zeile);

/// A row as a view: what KorPunkt gives, until the next change, and what the operations take.
struct KorSatz {
  std::string_view Pnr;
  double Rechts = 0, Hoch = 0, Hoehe = 0;
  std::string_view Symbol = {};
  const KorInfoSatz* Info = nullptr;  ///< nullptr: all empty
};

/// A row, 0 to KorZeilen - 1. Behind the last point it holds what a longer table left there, symbol and
/// attributes perhaps of another row.
KorSatz KorPunkt(int Zeile);

extern std::string KoordinatendateiName;    ///< path of the current file, empty if none
extern Dateiformat Koordinatendateiformat;  ///< of the current file

/// The wish of the stop button; long loops look at it, and put it back when they end.
enum class Laufwunsch { Weiter, Stop };
extern Laufwunsch KorStop;

// ---- the door --------------------------------------------------------------------------------------

/// Writes a row. @return 0; -1 if Zeile is outside the table
[[nodiscard]] int KorZeileSetzen(int Zeile, const KorSatz& Satz);

/// Writes the row behind the last one; sorting is left to the caller. @return 0; -1 if the table is full
[[nodiscard]] int KorAnhängen(const KorSatz& Satz);

/// Keeps the first Anzahl rows; nothing happens if there are no more. The others keep their contents, but are
/// outside the table.
void KorAbschneiden(int Anzahl);

/// The coordinates of all rows, to be written [m].
struct KorSpalten {
  std::span<double> Rechts, Hoch, Hoehe;
};

/// Hands the coordinates of the whole table to a function that maps them, as one change.
/// @return what the function answers
int KorAbbilden(const std::function<int(const KorSpalten&)>& Abbildung);

/// Says whether the table differs from its file: false after one was read or written.
void KorGeaendertSetzen(bool Geaendert);

/// Puts the table aside with its counter, its file and the stop, and an empty one in its place, until it goes
/// out of scope: for a guest who works on a table of its own. Nothing is told to VorÄnderung.
class KorBeiseite {
 public:
  KorBeiseite();
  ~KorBeiseite();
  KorBeiseite(const KorBeiseite&) = delete;
  KorBeiseite& operator=(const KorBeiseite&) = delete;

 private:
  struct Inhalt;
  std::unique_ptr<Inhalt> Beiseite;
};

/// Empties table, columns and file name. Called at start and when a file is closed.
void KorLeeren();

/// Row of the first point with that number, -1 if none. Numbers are equal character by character after
/// Trimmen of both sides. Linear, so that it finds a point in a table in any state; never asks.
[[nodiscard]] int KorSuche(const Wert& Pnr);
[[nodiscard]] int KorSuche(std::string_view Pnr);

/// As KorSuche. A number with a "," that is not there is looked for with a ".", which is how a sort leaves
/// it.
/// @param[in,out] Pnr  the number as the table holds it; as it was if it is not found
[[nodiscard]] int KorSucheMitPunkt(Wert& Pnr);

/// As KorSucheMitPunkt, but asks for a missing point until it is there.
/// @param[in,out] Pnr  the number as the table holds it; the user may type another one
/// @return the row; negative if the user cancels
[[nodiscard]] int KorFind(Wert& Pnr);

/// Removes one row. @return 0; -1 if Zeile is outside the table
[[nodiscard]] int KorLoeschen(int Zeile);

/// Removes the rows Von to Bis, both included; nothing happens with bounds outside the table. The column
/// KorSymbol stays where it is: symbols do not follow their points here, on purpose.
void KorBereichLoeschen(int Von, int Bis);

/// Inserts before Zeile. Nothing happens in an empty table or behind its end; the first point comes
/// through Neupunkt. A full table is a run-time fault, the table then stays as it was.
void KorEinfuegen(int Zeile, const Wert& Pnr, double Rechts, double Hoch, double Hoehe,
                  const std::string& Symbol, const KorInfoSatz& Info);

/// Sorts the table (see SortierfolgeErmitteln); a "," in a point number becomes a ".".
void KorSortieren();

/// Number of neighbouring rows with the same point number.
int AnzahlDoppelte();

/// A number stands in two rows, neighbours or not; compared as KorSuche does.
bool DoppelteVorhanden();

/// Bounding box of all points [m]. The two sentinels of an empty table, 999999999.999 and -99999999.999,
/// differ by a factor of ten on purpose.
void KorBereich(double& MinRechts, double& MinHoch, double& MaxRechts, double& MaxHoch);

/// Next row after Start whose numeric value lies between Von and Bis.
/// @return the row; -1 if there is none; -3 if the table is empty or Start is at or past the last row
[[nodiscard]] int KorBereichSuche(const Wert& Von, const Wert& Bis, int Start);

/// Negates the axes that are asked for, adds the shifts [m], and exchanges two axes: Tausch 0 none,
/// 1 Rechts and Hoch, 2 Hoch and Hoehe, 3 Rechts and Hoehe.
void KorVerschieben(double dRechts, double dHoch, double dHoehe, int NegRechts, int NegHoch, int NegHoehe,
                    int Tausch);

/// Writes the number of points to the status bar, Zusatz in front of it.
void KorAnzahlAnzeigen(const std::string& Zusatz = "");

/// First index of a value in a list, -1 if none; compared as KorSuche does.
[[nodiscard]] int ListeFind(std::string_view Pnr, const std::vector<std::string>& Liste, int Anzahl);

/// All indices of a value. @return -1 if none, -2 if more than Maximum (0: no limit), else the count
[[nodiscard]] int ListeFindAlle(const std::vector<std::string>& Liste, int Anzahl, std::string_view Wert,
                                std::vector<int>& Indizes, int Maximum = 0);

// ---- the way of a result into the table ------------------------------------------------------------

/// What Neupunkt did. Protocol and worksheets know it by these numbers.
enum class NeupunktCode {
  Nichts = -1,          ///< nothing stored: no number, broken off, table full
  Neu = 0,              ///< the number was free
  AlterErsetzt = 1,     ///< the old point has the new values
  Gemittelt = 2,        ///< the old point has the mean
  AlterNeunum = 3,      ///< the old point has another number
  NeuerVerworfen = 11,  ///< the old point stays
  NeuerNeunum = 13,     ///< the new point has another number
};

/// What Neupunkt hands back besides its code.
struct NeupunktErgebnis {
  double DeltaRechts = 0, DeltaHoch = 0;  ///< new minus old [m]
  std::string Pnr;                        ///< number under which the result now stands in the table
  double Rechts = 0, Hoch = 0;
  std::string AlterPnr;  ///< new number of the old point; with NeuerNeunum the number asked for first
};

/// Stores a calculated point. A taken number (see KorSucheMitPunkt) is asked about, see Konfliktantwort.
/// @param[in,out] Pnr    empty or null stores nothing; on return the final number as the table holds it
/// @param[in]     Hoehe  null or empty if there is none; stored as 0
/// @param[in]     Info   attributes; nullptr: all empty, Punktart the number in the symbol
[[nodiscard]] NeupunktCode Neupunkt(Wert& Pnr, double Rechts, double Hoch, const Wert& Hoehe,
                                    const std::string& Symbol, const KorInfoSatz* Info,
                                    NeupunktErgebnis& Ergebnis);

/// The two points that want the same number.
struct Konflikt {
  std::string Pnr;
  int Zeile = 0;  ///< row of the old point
  double Rechts = 0, Hoch = 0;
  Wert Hoehe;
  std::string Symbol;
};

/// The seven answers, each with its short word.
enum class Konfliktwort {
  Abbrechen,       ///< ABB: the calculation stops
  AltenErsetzen,   ///< ALÖ: delete the old point
  Mitteln,         ///< MIT
  AltenNeunum,     ///< ANN: the old point takes NeuePnr
  NeuenVerwerfen,  ///< NLÖ: delete the new point
  NeuenNeunum,     ///< NNN: the new point takes NeuePnr
  Nochmal,         ///< RÜC: ask again
};

/// What the surveyor answers.
struct Konfliktantwort {
  Konfliktwort Wort = Konfliktwort::Abbrechen;
  std::string NeuePnr;
};

/// Called when two points become one mean: old, new, mean.
struct Mittelpunkt {
  std::string Pnr;
  double AltRechts = 0, AltHoch = 0, NeuRechts = 0, NeuHoch = 0, Rechts = 0, Hoch = 0;
};

/// What is about to happen to the table.
enum class KorTat { Setzen, Erweitern, Einschieben, Streichen, Ordnen, Abbilden };

/// A change before it happens. Rows Von to Bis - 1 are the only ones that can differ afterwards; those that
/// the table does not have yet are new.
struct KorÄnderung {
  KorTat Tat;
  int Von, Bis;
  /// Ordnen: the present row of what comes to each row. Empty where numbers change on the way, and otherwise.
  std::span<const int> Folge;
};

/// What the table needs from above. Unplugged hooks answer as a break-off and do nothing.
struct KoordinatenHaken {
  std::function<int(Wert& Pnr)> FormEinzelKorein;  ///< asks for one point and stores it: 1, or -1
  std::function<Konfliktantwort(const Konflikt&)> PunktVorhandenBehandeln;
  std::function<void(const Mittelpunkt&)> MittelEintragen;  ///< protocol entry of a mean
  std::function<void(const KorÄnderung&)> VorÄnderung;      ///< may look at the table, not change it
  std::function<void()> GeaendertGewechselt;                ///< KoordinatenGeaendert has another value
};
extern KoordinatenHaken Haken;

}  // namespace tavorena
