#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <tavorena/calc/Lage.h>

/// @file
/// Movements of points between epochs of a settlement or deformation measurement. Coordinates and heights in
/// metres, movements and limits in millimetres. No dialog, no file, no table.
/// Source: W. Welsch, O. Heunecke, H. Kuhlmann, Auswertung geodätischer Überwachungsmessungen (comparison of
/// two epochs point by point, the datum held by stable points); the fit of positions as in
/// TVBerechnungsmodulHelmertAffin.

namespace tavorena {

/// What was measured of a point in one epoch; the rest is empty. A settlement measurement has heights alone.
struct Epochenwert {
  std::optional<Lage> Ort;      ///< Rechts and Hoch [m]
  std::optional<double> Hoehe;  ///< [m]
};

/// A point in all epochs, the first epoch first.
using Epochenreihe = std::vector<Epochenwert>;

/// What a movement is held against.
struct Epochengrenzen {
  double Sigma = 0.5;    ///< standard deviation of a height or coordinate of one epoch [mm]
  double Zulaessig = 0;  ///< permitted movement [mm]; 0: none
};

/// How far a movement is beyond its limits. With σd = σ·√2, that of a difference.
enum class Bewegungsstufe {
  Keine,           ///< at most 2σd
  ZweiSigma,       ///< a component is above 2σd
  DreiSigma,       ///< a component is above 3σd
  UeberZulaessig,  ///< the planar amount or the height is above the permitted movement
};

/// A movement, later minus earlier [mm]. A component is there if both epochs hold it.
struct Epochendifferenz {
  std::optional<double> dR;                      ///< Rechts
  std::optional<double> dH;                      ///< Hoch
  std::optional<double> dS;                      ///< their amount
  std::optional<double> dZ;                      ///< height
  Bewegungsstufe Stufe = Bewegungsstufe::Keine;  ///< how far it is beyond the limits
};

/// A point in one epoch against others, each time those that hold the value.
struct Epochenschritt {
  Epochendifferenz ZurErsten;   ///< against the first one
  Epochendifferenz ZurVorigen;  ///< against the one before
};

/// What the reference points took off an epoch: their differences to the first epoch that holds each of them.
struct Epochenbezug {
  int Höhenpunkte = 0;     ///< that hold a height here and before; 0: the heights stay as they are
  double dZ = 0;           ///< mean difference of their heights [mm]
  int Lagepunkte = 0;      ///< that hold a position here and before; below 2 the positions stay
  double dR = 0;           ///< shift of their centroid, Rechts [mm]
  double dH = 0;           ///< the same, Hoch [mm]
  double DrehungMgon = 0;  ///< clockwise from before to now [mgon], -200000 to 200000
  double KlaffungMm = 0;   ///< largest distance of one of them from its old place afterwards [mm]
};

/// The comparison, point by point and epoch by epoch.
struct Epochenergebnis {
  std::vector<Epochenreihe> Werte;                    ///< as they are compared: with the references' part off
  std::vector<std::vector<Epochenschritt>> Schritte;  ///< the movements
  std::vector<Epochenbezug> Bezug;                    ///< epoch by epoch
};

/// Compares epochs. With reference points each epoch is first brought onto the earlier ones: heights by the
/// mean difference of the reference points, positions by a congruent fit (shift and rotation, scale 1)
/// through them.
/// @param[in]  Punkte   all of one length, the number of epochs
/// @param[in]  Bezug    indices into Punkte; empty: the values are compared as they are
/// @param[in]  Grenzen  what the movements are judged by
/// @param[out] E        an epoch in which too few reference points stand is left as it is, which
///                      E.Bezug tells
/// @return 0; -1 for rows of different lengths or an index beyond Punkte, E is then untouched
/// Accuracy: 1e-5 mm, and 2e-4 mm for positions that references moved in coordinates of millions. Differences
/// are taken to 8 decimals of a metre before they are held against a limit, so that a movement of exactly the
/// limit is not above it.
[[nodiscard]] int Epochenvergleich(std::span<const Epochenreihe> Punkte, std::span<const std::size_t> Bezug,
                                   const Epochengrenzen& Grenzen, Epochenergebnis& E);

}  // namespace tavorena
