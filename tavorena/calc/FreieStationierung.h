#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <tavorena/calc/Lage.h>

/// @file
/// Free stationing: position, orientation and height of an instrument on an unknown point from polar
/// observations to known points. Metres, gon, Rechts = east, Hoch = north, directions clockwise. No dialog,
/// no file, no table. Accuracy: 1e-8 m for stations with coordinates in the millions.
/// Source: similarity of the polar observations in a local system onto the known points, as in
/// H. Kahmen, Angewandte Geodäsie: Vermessungskunde ("Freie Standpunktwahl").

namespace tavorena {

// Kinds of fit, as batch and protocol number them.
inline constexpr int TransformationsartHelmert = 2;    ///< scale free
inline constexpr int TransformationsartKongruent = 3;  ///< scale fixed to 1

/// Observations to the connection points as parallel columns of one length.
struct Anschlussbeobachtungen {
  std::span<const double> PunktRW;      ///< Rechts of the known points
  std::span<const double> PunktHW;      ///< Hoch of the known points
  std::span<const double> RichtungGon;  ///< circle readings
  std::span<const double> Vkgon;        ///< zenith angles; 0 gives a horizontal distance of 0
  std::span<const double> Strecke;      ///< slope distances

  /// Number of observations; 0 if the columns differ in length.
  [[nodiscard]] std::size_t Anzahl() const {
    const std::size_t n = PunktRW.size();
    return PunktHW.size() == n && RichtungGon.size() == n && Vkgon.size() == n && Strecke.size() == n ? n : 0;
  }
};

/// A free station. The residuals are known minus computed, in the order of the points.
struct FreieStation {
  Lage StandPunkt;              ///< the station
  double ParamA = 0;            ///< a of the similarity that takes the local system onto the known points
  double ParamB = 0;            ///< b of it
  double Massstab = 0;          ///< M; exactly 1 in the congruent case
  double EpsilonGon = 0;        ///< turns a direction into a bearing, 0 up to below 400
  std::vector<double> VRechts;  ///< vY
  std::vector<double> VHoch;    ///< vX
  std::vector<double> WL;       ///< length of (vY, vX)
  double StandardabwMK = 0;     ///< MK, standard deviation of a coordinate
  double StandardabwML = 0;     ///< ML, standard deviation of a point
};

/// Fits the local system of the instrument to the known points; the station is the image of its origin.
/// @param[in]  B  observations to the connection points
/// @param[in]  Transformationsart  2 scale free (Helmert), 3 scale fixed to 1 (congruent)
/// @param[out] Station  MK and ML are 0 where there is no redundancy: two points with a free scale, one
///                      point. If all local points fall on one spot (also with a single one), the calculation
///                      goes on with a = b = 0 on purpose: the station is then the centroid of the points,
///                      epsilon 100, and M is 0, or 1 in the congruent case.
/// @return 0; -1 without points or for columns of different lengths, Station is then untouched
[[nodiscard]] int FreieStationierung(const Anschlussbeobachtungen& B, int Transformationsart,
                                     FreieStation& Station);

/// Polar point from a free station.
/// @param[in] StandPunkt  the station
/// @param[in] EpsilonGon, RichtungGon  their sum is reduced by 400 once, on purpose: both are below 400
/// @param[in] Strecke  slope distance, already multiplied by the scale
/// @param[in] Vkgon    zenith angle
/// @return the point [m]
Lage FreieStationierungKleinpunkt(Lage StandPunkt, double EpsilonGon, double RichtungGon, double Strecke,
                                  double Vkgon);

/// Tie-in with one known point from a known station, scale 1.
/// @return orientation = bearing station -> point minus direction [gon, 0 up to below 400]
double FStatPolarerAnschluss(Lage StandPunkt, Lage Anschlusspunkt, double RichtungGon);

// ---- heights ---------------------------------------------------------------------------------------

/// What the height of the station is computed from; parallel columns of one length.
struct Hoehenbeobachtungen {
  std::span<const double> PunktHoehe;  ///< 0 means that the point has no height, although it could be real
  std::span<const double> Zielhoehe;   ///< of the target above the point
  std::span<const double> Vkgon;       ///< zenith angles
  std::span<const double> Strecke;     ///< slope distances
  double InstrumentenHoehe = 0;        ///< of the instrument above the station
};

/// Height of a station and what it was averaged from, in the order of the points.
struct Stationshoehe {
  double StandHoehe = 0;                   ///< 0 when no point has a weight
  std::vector<double> Hoehe;               ///< of the station as seen from each point
  std::vector<double> Gewicht;             ///< 1 / distance; 0 without height or distance
  std::vector<std::optional<double>> dHo;  ///< mean minus single height; empty without a height of the point
};

inline constexpr std::size_t HoehenmittelGrenze = 101;  ///< rows that enter the mean, the first ones

/// Height of the station as weighted mean over the connection points. Rows beyond HoehenmittelGrenze have the
/// weight 0, but a dHo.
/// @return 0; -1 for columns of different lengths, Ergebnis is then untouched
[[nodiscard]] int FStatRechneMittlereHöhe(const Hoehenbeobachtungen& B, Stationshoehe& Ergebnis);

/// Height of a polar point [m].
/// @param[in] StandHoehe, InstrumentenHoehe  of the station, and of the instrument above it
/// @param[in] Strecke    slope distance multiplied by the scale
/// @param[in] Vkgon      zenith angle
/// @param[in] Zielhoehe  of the target above the point
/// @return (StandHoehe + InstrumentenHoehe) + Strecke cos(Vkgon) - Zielhoehe; 0 (no height) for a Vkgon of 0
double FStatPolarpunktHoehe(double StandHoehe, double InstrumentenHoehe, double Strecke, double Vkgon,
                            double Zielhoehe);

}  // namespace tavorena
