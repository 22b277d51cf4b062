#pragma once

#include <string>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Wert.h>

// The block writers of the protocol, one per kind of calculation. Values are Werte: a missing one leaves
// its field blank in its full width. Columns start at the same place for 0 to 5 decimals.

namespace tavorena {

/// A point of a block: coordinates [m] and number.
struct Protpunkt {
  double Rechts = 0, Hoch = 0;
  std::string Pnr;
};

/// Start, end and check of a connection.
struct Protanschluss {
  Protpunkt Anf, End;
  Wert AnfWert1, AnfWert2;         ///< third and fourth column of the start point
  Wert EndWert1, EndWert2;         ///< third and fourth column of the end point
  double Abweichung = 0;           ///< WS [m]
  double AbweichungZulaessig = 0;  ///< D [m]
};

/// Flag of a connection: " ******(>D)" if WS exceeds D, " ***(>1/3D)" if it exceeds a third, else "".
std::string AnschlussMarke(double Abweichung, double AbweichungZulaessig);

/// VR 24.40: connection with Anlegemass and Endmass [m], then WS and D.
int ProtLinelAnschluss(const Protanschluss& A);
/// VR 24.40: one row; the reduced values [m] stand on a line of their own when they are given.
int ProtLinelZeile(const Protpunkt& P, double Linie, double Seitwaerts, const Wert& LinieRed,
                   const Wert& SeitwaertsRed, const std::string& Marke = "");

/// VR 08.40: connection with bearing and S at the start, circle reading [gon] and measured distance at the
/// end, then WS and D.
int ProtPolelAnschluss(const Protanschluss& A);
/// VR 08.40: one row, direction [gon] and distance [m].
int ProtPolelZeile(const Protpunkt& P, double Richtung, double Entfernung, const std::string& Marke = "");

/// VR 22.10: one check; WS and D only with a measured distance.
int ProtEntfernungskontrolle(const Protanschluss& A, bool Gemessen);

/// VR 25.50 within the running page: old point, new point, mean.
int ProtMittel(const Mittelpunkt& M);

/// What the point dialog did with a calculated point, below its row: codes 1, 2, 3, 11 and 13 of Neupunkt;
/// nothing for any other.
/// @param[in] Nummer  code 3: new number of the old point; code 13: number of the new one
/// @param[in] DeltaRechts, DeltaHoch  new minus old [m]
int Bearbeitungsnotiz(int Code, const std::string& Nummer, double DeltaRechts, double DeltaHoch);

}  // namespace tavorena
