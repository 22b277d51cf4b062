#include "Fuzzhilfe.h"

#include <tavorena/ta/TA.h>

namespace tavorena::fuzz {
namespace {

// A coordinate file and a passpoint file out of the two halves of the bytes. Unless the methods report that
// they wrote, both files are as they were; the passpoint file is in any case.
void Lauf(TA& Ta, Eingabe E) {
  const bool Affin = E.Zahl(0, 1) == 1;
  const bool Massstab = E.Zahl(0, 1) == 1;
  const int Nachkomma = E.Zahl(-1, 16);
  const std::string_view Bytes = E.Rest();
  const std::size_t Schnitt = Bytes.find('#');
  const std::string Punkte(Bytes.substr(0, Schnitt));
  const std::string Passpunkte(Schnitt < Bytes.size() ? Bytes.substr(Schnitt + 1) : "");
  const std::string PunktDatei = Datei("punkte.kor", Punkte);
  const std::string PasspunktDatei = Datei("pass.kor", Passpunkte);

  const enmResult Ergebnis =
      Affin ? Ta.AffinTransformationKoordinatendateiPasspunktdatei(PunktDatei, PasspunktDatei, Nachkomma)
            : Ta.HelmertTransformationKoordinatendateiPasspunktdatei(PunktDatei, PasspunktDatei, Massstab,
                                                                     Nachkomma);
  Prüfen(Inhalt(PasspunktDatei) == Passpunkte, "die Paßpunktdatei bleibt");
  const bool Geschrieben =
      Ergebnis == enmResult::ok || Ergebnis == enmResult::Hinweis_PunktAusserhalbDesPasspunktfeldes;
  Prüfen(Geschrieben || Inhalt(PunktDatei) == Punkte, "nach einer Absage ist die Datei heil");
  TabellePrüfen();
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  static tavorena::TA Ta;
  tavorena::fuzz::Lauf(Ta, {Daten, Laenge});
  return 0;
}
