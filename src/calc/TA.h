#pragma once

#include <cstdint>
#include <string>

#include <tavorena/core/Wert.h>

namespace tavorena {

/// Result of nearly every method of TA. Values and names are published and stay.
enum class enmResult : std::int32_t {
  ok = 0,
  Fehler_Allgemein = 1,
  Fehler_AnfangsUndEndpunktGleich = 2,
  Hinweis_GeradenParallel = 3,
  Hinweis_GeradeSchneidetKreisNicht = 4,
  Hinweis_KreiseSchneidenNicht = 5,
  Fehler_PunktNichtVorhanden = 6,
  Fehler_ZweiRichtungenGleich = 7,
  Hinweis_GefaehrlicherKreis = 8,
  Hinweis_PunktAusserhalbDesPasspunktfeldes = 9,
  Fehler_GefaehrlicherKreis = 10,
  Fehler_DateiNichtVorhanden = 11,
  Fehler_ZuweningePunkte = 12,
  Fehler_ZuvielePunkte = 13,
};

class Plattform;

/// The calculations of the package for other programs.
///
/// Units and frame: coordinates in metres, RW = Rechts (east), HW = Hoch (north); angles in gon,
/// clockwise from north. Point numbers (v...) are numbers or texts. Optional results are pointers and may
/// be left out.
///
/// A method never shows a dialog; its result is the only report. A coordinate or distance that is not
/// finite gives Fehler_Allgemein with all outputs untouched. A ...Pnr twin looks its points up in the
/// point table in the order of its parameters and stops at the first missing one with
/// Fehler_PunktNichtVorhanden; the table is filled by KoordinatendateiLesen and stays between calls.
///
/// One thread, one object: the table belongs to the process.
class TA {
 public:
  /// Empties the point table, sets the default settings and silences every question.
  TA();
  ~TA();
  TA(const TA&) = delete;
  TA& operator=(const TA&) = delete;

  /// Distance between two points against a measured one.
  /// @param[out] dEntfGerechnet       distance from the coordinates; written in every case
  /// @param[in]  dEntfGemessen        measured distance; 0 means not measured
  /// @param[out] dAbweichungZulaessig permitted discrepancy D = 0.05 + 0.0003 s + 0.008 sqrt(s)
  /// @param[out] dAbweichung          computed minus measured
  /// @return ok; Fehler_Allgemein without a measured distance, although dEntfGerechnet is valid then
  enmResult Entfernungskontrolle(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                 double& dEntfGerechnet, double dEntfGemessen = 0.0,
                                 double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr);
  /// Entfernungskontrolle by point numbers.
  enmResult EntfernungskontrollePnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                    double dEntfGemessen = 0.0, double* dAbweichungZulaessig = nullptr,
                                    double* dAbweichung = nullptr);

  /// Tie-in of line elements.
  /// @param[in]  dAnlegemass, dEndmass  tape readings on start and end; a dEndmass of 0 means not measured
  /// @param[out] dAbweichungZulaessig   D, in every case
  /// @param[out] dMassstab              (dEndmass - dAnlegemass) / dEntfGerechnet; 1 when not measured
  /// @return ok; Fehler_AnfangsUndEndpunktGleich if the points coincide and dEndmass is given
  enmResult LinienelementeAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                    double& dEntfGerechnet, double dAnlegemass = 0.0, double dEndmass = 0.0,
                                    double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                                    double* dMassstab = nullptr);
  /// LinienelementeAnschluss by point numbers.
  enmResult LinienelementeAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                       double dAnlegemass = 0.0, double dEndmass = 0.0,
                                       double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                                       double* dMassstab = nullptr);

  /// Orthogonal elements of a point against the line start -> end.
  /// @param[out] dLinie       along the line from the start; negative behind it
  /// @param[out] dSeitwaerts  offset; positive to the right of start -> end
  /// @return ok; Fehler_AnfangsUndEndpunktGleich, the outputs are then untouched
  enmResult Linienelemente(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dLinelRW,
                           double dLinelHW, double& dLinie, double& dSeitwaerts);
  /// Linienelemente by point numbers.
  enmResult LinienelementePnr(const Wert& vPnr1, const Wert& vPnr2, const Wert& vLinelpnr, double& dLinie,
                              double& dSeitwaerts);

  /// Tie-in of polar elements.
  /// @param[out] dAnschlussrichtung  clockwise intermediate of the bearing (bearing + 300, not reduced)
  /// @param[out] dNordrichtungGon    bearing start -> end
  /// @return ok; Fehler_AnfangsUndEndpunktGleich
  enmResult PolarelementeAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                   double& dEntfGerechnet, double* dAnschlussrichtung = nullptr,
                                   double* dNordrichtungGon = nullptr);
  /// PolarelementeAnschluss by point numbers.
  enmResult PolarelementeAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                      double* dAnschlussrichtung = nullptr,
                                      double* dNordrichtungGon = nullptr);

  /// Direction and distance from the start to a point.
  /// @param[in]  dAnschlussrichtungGemessen  circle reading on the end point (a Wert in spite of its prefix)
  /// @param[out] dPolelWinkelGon   reading on the point, 0 up to below 400
  /// @param[out] dNordrichtung     bearing start -> end; written even if the points coincide
  /// @return ok; Fehler_AnfangsUndEndpunktGleich
  enmResult Polarelemente(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dPolelRW,
                          double dPolelHW, double& dPolelWinkelGon, double& dPolelStrecke,
                          const Wert& dAnschlussrichtungGemessen = Wert(0.0),
                          double* dNordrichtung = nullptr);
  /// Polarelemente by point numbers.
  enmResult PolarelementePnr(const Wert& vPnr1, const Wert& vPnr2, const Wert& vPolelpnr,
                             double& dPolelWinkelGon, double& dPolelStrecke,
                             const Wert& dAnschlussrichtungGemessen = Wert(0.0),
                             double* dNordrichtung = nullptr);

  /// Reads a KOR file into the point table, which it replaces; at most 20000 points.
  /// @return number of points; -1 if the file can not be read
  std::int32_t KoordinatendateiLesen(const std::string& strKoordinatendateiName);
  /// Writes the point table as a KOR file; an old file is replaced safely.
  /// @param[in] lNachkomma  decimals, 0 to 15
  /// @return number of rows; -1 if the file can not be written or lNachkomma is out of range
  std::int32_t KoordinatendateiSchreiben(const std::string& strKoordinatendateiName,
                                         std::int32_t lNachkomma = 3);

 private:
  Plattform* Vorher;
};

}  // namespace tavorena
