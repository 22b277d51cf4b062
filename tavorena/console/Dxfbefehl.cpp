#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {
namespace {

bool Austauschen(const Aufruf& A, const Umfeld& U) {
  GrafikLeeren();
  for (const bool Cad : {false, true}) {
    const std::string Datei = A.Wert(Cad ? "--lesen-cad" : "--lesen");
    if (Datei.empty()) continue;
    DxfErgebnis E;
    if (DxfLesen(Datei, Cad, E) != 0) return false;
    U.Ausgabe << Sichtbar(Datei) << ": " << DxfZählung(E) << '\n';
  }
  for (const bool MitPunkten : {false, true}) {
    const std::string Datei = A.Wert(MitPunkten ? "--punkte" : "--nach");
    if (Datei.empty()) continue;
    if (DxfSpeichern(Datei, MitPunkten) < 0) return false;
    U.Ausgabe << Sichtbar(Datei) << ": "
              << (MitPunkten ? Anzahltext(KorAnzahl, "Punkt", "Punkte") + ", " : "")
              << Anzahltext(static_cast<int>(GrafikFreieLinien().size()), "Linie", "Linien") << ", "
              << Anzahltext(static_cast<int>(GrafikFreieBogen().size()), "Bogen", "Bögen")
              << " geschrieben\n";
  }
  return true;
}

}  // namespace

Konsolenbefehl DxfBefehl() {
  return {"dxf",
          "Austausch",
          "Linien und Bögen aus einer DXF-Datei lesen, mit den Punkten als DXF schreiben",
          nullptr,
          false,
          Austauschen,
          {{"--lesen", "DATEI", "liest die eigene Form (*.dxf)", false, Dateirolle::Eingabe},
           {"--lesen-cad", "DATEI", "liest die Datei eines CAD-Programms, paarweise", false,
            Dateirolle::Eingabe, "--lesen"},
           {"--nach", "DATEI", "schreibt Linien und Bögen in der eigenen Form", false, Dateirolle::Ausgabe},
           {"--punkte", "DATEI", "schreibt Punkte, Linien und Bögen für CAD-Programme", false,
            Dateirolle::Ausgabe}}};
}

}  // namespace tavorena
