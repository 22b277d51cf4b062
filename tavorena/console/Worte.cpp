#include <algorithm>
#include <cmath>

#include <tavorena/console/Worte.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {

std::vector<std::string> Wortliste(std::string_view Text) {
  std::vector<std::string> Worte;
  for (std::size_t Komma = 0; Komma != std::string_view::npos;) {
    Komma = Text.find(',');
    Worte.emplace_back(TrimmenSicht(Text.substr(0, Komma)));
    if (Komma != std::string_view::npos) Text.remove_prefix(Komma + 1);
  }
  return Worte;
}

bool BereichLesen(std::string_view Text, std::string& Von, std::string& Bis) {
  const std::vector<std::string> Worte = Wortliste(Text);
  if (Worte.size() != 2 || !IstZahlwort(Worte[0]) || !IstZahlwort(Worte[1])) {
    FehlerMeldung("--bereich " + std::string(Text) + ": zwei Punktnummern, VON,BIS");
    return false;
  }
  Von = Worte[0];
  Bis = Worte[1];
  return true;
}

bool LängeLesen(std::string_view Text, const char* Option, double& Länge) {
  Länge = IstZahlwort(Text) ? ZahlAusText(Text) : -1;
  if (Länge >= 0 && std::isfinite(Länge)) return true;
  FehlerMeldung(std::string(Option) + " " + std::string(Text) + ": eine Länge in m, 0 oder mehr");
  return false;
}

bool LängenLesen(std::string_view Text, const char* Option, std::span<double> Längen) {
  const std::vector<std::string> Worte = Wortliste(Text);
  if (Worte.size() != Längen.size() || !std::all_of(Worte.begin(), Worte.end(), IstZahlwort)) {
    FehlerMeldung(std::string(Option) + " " + std::string(Text) + ": " + std::to_string(Längen.size()) +
                  " Zahlen, durch Kommas getrennt");
    return false;
  }
  std::transform(Worte.begin(), Worte.end(), Längen.begin(), ZahlAusText);
  return true;
}

}  // namespace tavorena
