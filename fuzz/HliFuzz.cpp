#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/points/Uebernahme.h>

namespace tavorena::fuzz {
namespace {

void LesenPrüfen(const std::string& Name, bool Höhenliste) {
  std::vector<Vergleichspunkt> Punkte;
  int Andere = 0;
  Prüfen(VergleichspunkteLesen(Name, Höhenliste, Punkte, Andere) == 0 && Andere >= 0,
         "eine Datei wird immer gelesen");
  for (const Vergleichspunkt& P : Punkte) {
    Prüfen(!P.Pnr.empty() && P.Pnr.find_first_of(" \t,") == std::string::npos, "jeder Punkt hat eine Nummer");
    Prüfen(std::isfinite(P.Rechts) && std::isfinite(P.Hoch) && std::isfinite(P.Hoehe), "Werte sind endlich");
  }
}

// What is taken over from any file can be taken back.
void Übernehmen(const std::string& Name, Übernahme Art) {
  Rücknahme R;
  Übernahmeplan Plan;
  std::vector<Punktsatz> Vorher, Danach;
  const auto Abschreiben = [](std::vector<Punktsatz>& Ziel) {
    for (int z = 0; z < KorAnzahl; ++z) Ziel.push_back(PunktsatzVon(z));
  };
  Abschreiben(Vorher);
  if (ÜbernahmePlanen(Art, Name, 0.03, Plan) < 0) return;
  Prüfen(ÜbernahmeAusführen(R, Plan) == 0 && KorAnzahl == 3, "kein Punkt geht verloren");
  TabellePrüfen();
  Prüfen(R.Leer() || R.Zurück() == 0, "alles läßt sich zurücknehmen");
  Abschreiben(Danach);
  Prüfen(Vorher == Danach, "danach ist die Tabelle, wie sie war");
}

void Lauf(Eingabe E) {
  const auto Art = static_cast<Übernahme>(E.Zahl(0, 4));
  if (E.IstUtf16()) return;
  const std::string Name = Datei("a.hli", E.Rest());
  LesenPrüfen(Name, Art == Übernahme::Höhenliste);
  KorLeeren();
  for (const char* Pnr : {"1", "2", "A7"})
    Prüfen(KorAnhängen({Pnr, 1, *Pnr == 'A' ? 2.0 : 1.02, 5}) == 0, "Platz ist da");
  Übernehmen(Name, Art);
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
