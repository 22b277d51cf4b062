#include "Messdaten.h"

#include <sstream>
#include <string>

#include <benchmark/benchmark.h>

#include <tavorena/console/Kommandozeile.h>
#include <tavorena/core/Datei.h>
#include <tavorena/exchange/Umrechnung.h>

namespace tavorena::messung {
namespace {

constexpr Koordinatenform Geo{}, Gk{Koordinatenart::GK, 0}, Gk4{Koordinatenart::GK, 4},
    Utm{Koordinatenart::UTM, 32}, Utm33{Koordinatenart::UTM, 33};

Umrechnung Von(const Koordinatenform& Quelle, const Koordinatenform& Ziel) {
  Umrechnung U;
  U.Von = Quelle;
  U.Nach = Ziel;
  return U;
}

// All points in Gauss-Krüger, in degrees (without a head, which would name an ellipsoid), or in a zone.
// @return the name of their file; "" if it could not be made
std::string Messdatei(const Koordinatenform& Form) {
  const std::string Kor = Kordatei(false), Name = Messpfad("umrechnen.ein");
  Umrechenbericht B;
  std::string Text, Grad, Zone;
  if (Form.Art == Koordinatenart::GK) return Kor;
  if (TextdateiLesen(Kor, Text) < 0 || TextUmrechnen(Text, Von(Gk, Geo), Grad, B) < 0) return "";
  Grad.erase(0, Grad.find("\r\n ") + 2);
  const bool Eben = Form.Art == Koordinatenart::UTM;
  if (Eben && TextUmrechnen(Grad, Von(Geo, Form), Zone, B) < 0) return "";
  return DateiErsetzen(Name, Eben ? Zone : Grad) == 0 ? Name : "";
}

void UmrechnenMessen(benchmark::State& Stand, const Koordinatenform& Quelle, const Koordinatenform& Ziel) {
  const std::string Ein = Messdatei(Quelle), Aus = Messpfad("umrechnen.aus");
  Umrechenbericht B;
  for (auto _ : Stand) {
    if (DateiUmrechnen(Ein, Aus, Von(Quelle, Ziel), B) < 0 || B.Punkte != static_cast<int>(Punktzahl))
      return Stand.SkipWithError("Es wurde nicht alles umgerechnet.");
  }
}

void KorHinUndHerMessen(benchmark::State& Stand) {
  const std::string Ein = Kordatei(false), Aus = Messpfad("umrechnen.aus");
  for (auto _ : Stand) {
    if (KorLesen(Ein, Lesemodus::Ersetzen, Dateiformat::Kor) != 0 ||
        KorSchreiben(Aus, Dateiformat::Kor, 3) != static_cast<int>(Punktzahl))
      return Stand.SkipWithError("Die Datei stimmt nicht.");
  }
}

// A whole run of the console.
void LaufMessen(benchmark::State& Stand) {
  const std::string Ein = Kordatei(false), Aus = Messpfad("umrechnen.aus");
  const char* const Worte[] = {"tavorena-stapel", "umrechnen", "--von",     "gk",
                               "--nach",          "gk4",       Ein.c_str(), Aus.c_str()};
  for (auto _ : Stand) {
    std::ostringstream Ausgabe, Meldungen;
    if (KommandozeileAusführen(static_cast<int>(std::size(Worte)), Worte, {Ausgabe, Meldungen, ""}) != 0)
      return Stand.SkipWithError("Der Lauf scheitert.");
  }
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(KorHinUndHerMessen)->Name("KorHinUndHer")->Unit(ms);
BENCHMARK_CAPTURE(UmrechnenMessen, geogk, Geo, Gk)->Name("Umrechnen/geo-gk")->Unit(ms);
BENCHMARK_CAPTURE(UmrechnenMessen, gkgeo, Gk, Geo)->Name("Umrechnen/gk-geo")->Unit(ms);
BENCHMARK_CAPTURE(UmrechnenMessen, gkgk4, Gk, Gk4)->Name("Umrechnen/gk-gk4")->Unit(ms);
BENCHMARK_CAPTURE(UmrechnenMessen, geoutm, Geo, Utm)->Name("Umrechnen/geo-utm")->Unit(ms);
BENCHMARK_CAPTURE(UmrechnenMessen, utmgeo, Utm, Geo)->Name("Umrechnen/utm-geo")->Unit(ms);
BENCHMARK_CAPTURE(UmrechnenMessen, utmutm, Utm, Utm33)->Name("Umrechnen/utm-utm")->Unit(ms);
BENCHMARK(LaufMessen)->Name("Umrechnen/Konsole")->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
