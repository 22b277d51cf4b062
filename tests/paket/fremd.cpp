// Another program with the installed library: a 3-4-5 triangle, a point number as a number and as a text.
#include <cmath>
#include <cstdio>

#include <tavorena/TA.h>

int main() {
  tavorena::TA Ta;
  double S = 0.0;
  double D = 0.0;
  const tavorena::enmResult Kontrolle =
      Ta.Entfernungskontrolle(4500000.0, 5500000.0, 4500003.0, 5500004.0, S, 5.01, &D);
  const tavorena::enmResult Fehlt = Ta.EntfernungskontrollePnr(17, "18", S, 5.0);
  const bool Gut = Kontrolle == tavorena::enmResult::ok && S == 5.0 &&
                   std::abs(D - 0.069388543819998) < 1e-12 &&
                   Fehlt == tavorena::enmResult::Fehler_PunktNichtVorhanden;
  std::printf("%d %.4f %.4f %d\n", static_cast<int>(Kontrolle), S, D, static_cast<int>(Fehlt));
  return Gut ? 0 : 1;
}
