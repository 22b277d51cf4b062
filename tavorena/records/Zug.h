#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 19.10 Polygonzüge in the records. A traverse is written as a whole, one block of the batch file.

namespace tavorena {

/// A point of a traverse with what was measured on it; a value that was not measured is not given.
struct Protzugpunkt {
  Protpunkt Punkt;
  Wert Winkel;                     ///< breaking angle [gon]
  Wert Strecke;                    ///< to the next point [m]
  std::vector<std::string> Notiz;  ///< of a number that was taken; stands below the row
};

/// A misclosure and its tolerance; without one (null) nothing is judged.
struct Zugabweichung {
  double Ist = 0;
  Wert Zulaessig;
};

/// A traverse as it was computed.
struct Protzug {
  std::string Nummer;
  bool Anschluss = false, Abschluss = false;  ///< direction connections
  bool FreiesEnde = false;                    ///< no end point: points only
  bool WinkelVerteilt = false;
  bool RingUnverteilt = false;  ///< a ring, while the distribution of WY and WX was asked for
  Protpunkt PFA, PFE;           ///< targets; only with their connections
  Protzugpunkt PA, PE;
  std::vector<Protzugpunkt> Neue;
  double S = 0, SummeS = 0;  ///< [m]
  Zugabweichung FW;          ///< [gon]; only with the connection at the end
  Zugabweichung FL, FQ;      ///< [m]
};

/// The flag of a misclosure: "******>FL(zul)", above warning level 1 also "***>1/3FL(zul)", or "".
/// @param[in] Name  "FW", "FL" or "FQ"
[[nodiscard]] std::string ZugMarke(const char* Name, const Zugabweichung& A, int Warnstufe);

/// Number, kind, points, misclosures.
[[nodiscard]] Block ZugBlock(int Nachkomma, const Protzug& Z, int Warnstufe);

/// Tolerance class.
enum class Zugklasse { TP, NP, Frei };

/// A row as it was typed [gon, m].
struct Zugzeileneingabe {
  std::string Pnr;
  double Winkel = 0, Strecke = 0;
  std::string Symbol;
};

/// A traverse as it was typed. An empty number of a target or of the end point: there is none.
struct Zugeingabe {
  std::string Nummer;
  Zugklasse Klasse = Zugklasse::TP;
  bool Anschluss = false, Abschluss = false;  // direction connections
  bool LinearVerteilen = false, WinkelVerteilen = false;
  std::string AnfZielPnr, AnfPnr;
  double AnfWinkel = 0, AnfStrecke = 0;
  std::vector<Zugzeileneingabe> Zeilen;
  std::string EndPnr;
  double EndWinkel = 0;
  std::string EndZielPnr;
};
/// Its records.
[[nodiscard]] std::vector<std::string> StapelPolygon(Zugeingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLesePolygon(Zugeingabe& E);

}  // namespace tavorena
