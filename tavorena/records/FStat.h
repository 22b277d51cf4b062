#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Polar.h>

// VR 19.50 Freie Stationierung in the records: the station with its connection points, the connection of a
// known station to one point, polar rows. The rows of the Schnurgerüst are those of the line elements
// (LinelAnschluss, LinelZeile). In the batch file all of it is one block headed TitelFStat.

namespace tavorena {

/// @name Titles
/// @{
inline constexpr const char *TitelFStat = "VR 19.50 Freie Stationierung",
                            *TitelFStatAnschluss = "VR 19.70 Polare Punkte: Anschluß",
                            *TitelFStatPolar = "VR 19.70 Polare Punkte",
                            *TitelSchnur = "VR 24.40 Linienelemente (Schnurgerüst)";
/// @}

/// A connection point: its residuals [m], its coordinates and the observation to it.
struct ProtFStatPunkt {
  double VY = 0, VX = 0, WL = 0;
  Wert dHo;           ///< blank when not given
  Protpolar Messung;  ///< coordinates of the point; height blank when it is not carried
};

/// A station as it was computed.
struct ProtFStat {
  bool Kongruent = false;
  bool MitHoehen = false;  ///< for the head of the points
  std::vector<ProtFStatPunkt> Punkte;
  double Massstab = 1, Epsilon = 0;  ///< Epsilon in gon
  double MK = 0, ML = 0;             ///< [m]
  Protpunkt Stand;
  Wert StandHoehe;  ///< [m]; blank when it is not carried
};
/// Residuals, scale and orientation, standard deviations, connection points and station.
[[nodiscard]] Block FStatBlock(int Nachkomma, const ProtFStat& S);

/// The connection of a known station to one point: Anf is the station with its orientation [gon], End the
/// point with reading [gon] and horizontal distance [m]; then WS and D, and dHo [m] if it is given.
[[nodiscard]] Block FStatAnschluss(int Nachkomma, const Protanschluss& A, const Wert& dHo);

/// What stands above the polar rows of a station (PolarZeile): its coordinates and orientation [gon].
[[nodiscard]] Block FStatPolarAnschluss(int Nachkomma, const Protpunkt& Stand, double Epsilon);

/// The comment for the batch file, for StapelKommentar: the Schnurgerüst has no block there.
[[nodiscard]] std::string SchnurKommentar(const std::string& Pnr);

/// An observation to a connection point as it was typed [gon, m].
struct FStatBeobachtung {
  std::string Pnr;
  double Richtung = 0, Vertikal = 0, Strecke = 0, Zielhoehe = 0;
};

/// A station as it was typed. One observation means the connection of the known station StandPnr; there is
/// then no new point (NeuPnr is empty).
struct FStatEingabe {
  bool Kongruent = false;
  std::string StandPnr;
  double Instrumentenhoehe = 0;  ///< [m]
  std::vector<FStatBeobachtung> Anschluesse;
  std::string NeuPnr, NeuSymbol;  ///< as which the station was stored
};
/// Its records: all that stands above the polar rows.
[[nodiscard]] std::vector<std::string> StapelFStat(FStatEingabe E);
/// Reads them; NEUPUNKT is the last. A block that does not say so is not congruent.
/// @return 0; -1 error, already told; -2 end of the block
[[nodiscard]] int StapelLeseFStat(FStatEingabe& E);

/// A polar row as it was typed.
struct FStatPolareingabe {
  FStatBeobachtung Messung;
  std::string Symbol;
  std::string LinieNach;  ///< number of the point to which a line is drawn; empty: none
};
/// Its record, "PWS".
[[nodiscard]] std::string FStatPolarSatz(FStatPolareingabe Z);
/// Reads it. @return 0; -1 error, already told; -2 end of the block
[[nodiscard]] int StapelLeseFStatPolar(FStatPolareingabe& Z);

}  // namespace tavorena
