#pragma once

#include <string>

#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// The result fields of a station.
class Stationsanzeige {
 public:
  explicit Stationsanzeige(Rechenblatt& Blatt);
  Stationsanzeige(const Stationsanzeige&) = delete;
  Stationsanzeige& operator=(const Stationsanzeige&) = delete;

  void Zeigen(const Stationsergebnis& E, Stationsart Art);
  void Leeren();

 private:
  Feld &Rechts, &Hoch, &Höhe, &Artfeld, &Anzahl, &Massstab, &Drehwinkel, &MK, &ML;
};

}  // namespace tavorena
