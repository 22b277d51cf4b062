#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Punktnummer.h>

namespace tavorena {

std::string LetztePunktnummer;

std::string PunktnummerSchritt(int Schritt) {
  const double Letzte = ZahlAusText(LetztePunktnummer);
  return Letzte == 0 ? std::string() : ZahlNachText(Letzte + Schritt).Text();
}

}  // namespace tavorena
