#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Neupunktblock.h>
#include <tavorena/records/Punktblock.h>
#include <tavorena/records/Spalten.h>

namespace tavorena {

Block MittelBlock(int Nachkomma, const Mittelpunkt& M) {
  return Punktblock(Nachkomma, {{{M.AltRechts, M.AltHoch, M.Pnr}, ""},
                                {{M.NeuRechts, M.NeuHoch, M.Pnr}, ""},
                                {{M.Rechts, M.Hoch, M.Pnr}, " ***Mittel"}});
}

Block Bearbeitungsnotiz(int Nachkomma, NeupunktCode Code, const std::string& Nummer, double DeltaRechts,
                        double DeltaHoch) {
  const char* Text = Code == NeupunktCode::AlterErsetzt     ? "*** letzte Berechnung eingeführt"
                     : Code == NeupunktCode::Gemittelt      ? "*** Mittel eingeführt"
                     : Code == NeupunktCode::AlterNeunum    ? "***  erste Berechnung umnumeriert"
                     : Code == NeupunktCode::NeuerVerworfen ? "***  erste Berechnung eingeführt"
                     : Code == NeupunktCode::NeuerNeunum    ? "*** letzte Berechnung umnumeriert"
                                                            : nullptr;
  if (Text == nullptr) return {};
  const Spalten S(Nachkomma);
  std::string Notiz = Leerzeichen(6) + FeldLinks(Text, 34) + "dRw=" + S.Zahl(DeltaRechts, 5) +
                      "  dHw=" + S.Zahl(DeltaHoch, 5);
  if (Code == NeupunktCode::AlterNeunum) Notiz += "  alt:" + PnrFormat(Nummer);
  if (Code == NeupunktCode::NeuerNeunum) Notiz += "  neu:" + PnrFormat(Nummer);
  return Zahlenblock(Nachkomma, {Notiz});
}

}  // namespace tavorena
