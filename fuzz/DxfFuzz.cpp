#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena::fuzz {
namespace {

// What was added, counted by the store.
void BestandPrüfen(const DxfErgebnis& E) {
  const auto Linien = GrafikFreieLinien();
  const auto Bogen = GrafikFreieBogen();
  Prüfen(std::ssize(Linien) == E.Linien && std::ssize(Bogen) == E.Bogen, "was gezählt ist, ist da");
  for (const GrafikLinie& L : Linien) {
    for (const double w : {L.Rechts1, L.Hoch1, L.Rechts2, L.Hoch2}) {
      Prüfen(std::isfinite(w), "Linien sind endlich");
    }
  }
  for (const GrafikBogen& B : Bogen) {
    for (const double w : {B.Rechts, B.Hoch, B.Radius, B.Anfang, B.Ende}) {
      Prüfen(std::isfinite(w), "Bögen sind endlich");
    }
  }
}

void Lauf(Eingabe E) {
  const bool AusCad = E.Zahl(0, 1) == 1;
  if (E.IstUtf16()) return;
  GrafikLeeren();
  DxfErgebnis Gelesen;
  const int Ergebnis = DxfLesen(Datei("a.dxf", E.Rest()), AusCad, Gelesen);
  BestandPrüfen(Gelesen);
  Prüfen(Ergebnis >= 0 || Gelesen.Linien + Gelesen.Bogen == 0, "nach einer Absage ist nichts gelesen");

  const std::string Eigen = Ordner() + "/b.dxf", FürCad = Ordner() + "/c.dxf";
  for (const auto& [Name, MitPunkten] : {std::pair{Eigen, false}, {FürCad, true}}) {
    if (DxfSpeichern(Name, MitPunkten) < 0) continue;  // too large for its fields
    GrafikLeeren();
    DxfErgebnis Wieder;
    Prüfen(DxfLesen(Name, MitPunkten, Wieder) == 0, "was geschrieben ist, wird gelesen");
    Prüfen(!Wieder.Fremd && Wieder.Andere.empty(), "die eigene Form ist nicht fremd");
    Prüfen(Wieder.Linien == Gelesen.Linien, "jede Linie kommt wieder");
    Prüfen(MitPunkten || Wieder.Bogen == Gelesen.Bogen, "jeder Bogen kommt wieder");
    Gelesen = Wieder;
  }
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
