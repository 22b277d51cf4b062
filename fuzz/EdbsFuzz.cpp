#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/EDBSWandler.h>
#include <tavorena/exchange/Formattafel.h>

namespace tavorena::fuzz {
namespace {

std::string Text() {
  std::string Alles;
  Prüfen(KorText(Punktformat::Edbs, 3, Alles) == 0, "die Tabelle wird geschrieben");
  return EDBSVerschlüsseln(EDBSOffen, Alles);
}

// What was written is read again, and written as it was: no point, no column goes on the second way.
void HinUndZurückPrüfen() {
  int Anzahl = 0;  // of those whose coordinates have room, in millimetres
  for (std::size_t i = 0; i < static_cast<std::size_t>(KorAnzahl); ++i) {
    const bool Platz =
        (ZahlFormat(KorRechts[i] * 1000, 10, 0) + ZahlFormat(KorHoch[i] * 1000, 10, 0)).find('*') ==
        std::string::npos;
    Anzahl += Platz ? 1 : 0;
  }
  const std::string Eins = Text(), Name = Datei("b.eds", Eins);
  if (KorLesen(Name, Lesemodus::Ersetzen, Punktformat::Edbs) < 0)
    return Prüfen(Eins.empty(), "es wird gelesen");
  Prüfen(KorAnzahl == Anzahl, "kein Punkt geht verloren");
  for (std::size_t i = 0; i < static_cast<std::size_t>(KorAnzahl); ++i)
    Prüfen(std::isfinite(KorRechts[i]) && std::isfinite(KorHoch[i]), "Koordinaten sind Zahlen");
}

void WandelnPrüfen(const std::string& Ein, const std::string& Kataster, EDBSNummer Nummer) {
  EDBSWandlung W;
  if (EDBSWandeln({Ein, Ordner() + "/w.kor", Kataster, Nummer}, W) < 0) return;
  Prüfen(W.Punkte >= 0 && (W.Punkte > 0 || W.Protokoll.empty()), "das Protokoll gehört zu Punkten");
}

void Lauf(Eingabe E) {
  static const bool Angemeldet = (FormateAnmelden(), true);
  static_cast<void>(Angemeldet);
  KorLeeren();
  EDBSOffen = {};
  const auto Modus = static_cast<Lesemodus>(E.Zahl(-1, 1));
  Optionen.EDBSInfo = E.Zahl(0, 1) == 0 ? "ULPUHESS" : "";
  const auto Nummer = static_cast<EDBSNummer>(E.Zahl(0, 2));
  const std::string Name = Datei("a.eds", E.Rest());
  if (KorLesen(Name, Modus, Punktformat::Edbs) == 0) {
    TabellePrüfen();
    static_cast<void>(EDBSFortsetzen(E.Rest()));
    HinUndZurückPrüfen();
  }
  WandelnPrüfen(Name, Name, Nummer);
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
