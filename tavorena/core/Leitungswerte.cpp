#include <array>
#include <charconv>
#include <string>

#include <tavorena/core/Leitungswerte.h>
#include <tavorena/core/Text.h>

namespace tavorena {
namespace {

// A whole number from Von to Bis and nothing behind it.
bool Ganz(std::string_view Wort, int Von, int Bis, int& Zahl) {
  const auto [Ende, Fehler] = std::from_chars(Wort.data(), Wort.data() + Wort.size(), Zahl);
  return Fehler == std::errc() && Ende == Wort.data() + Wort.size() && Zahl >= Von && Zahl <= Bis;
}

}  // namespace

int LeitungswerteLesen(std::string_view Einstellungen, Leitungswerte& Werte) {
  std::array<std::string_view, 4> Worte;
  for (std::size_t i = 0; i < Worte.size(); ++i) {
    const std::size_t Komma = i + 1 < Worte.size() ? Einstellungen.find(',') : Einstellungen.size();
    if (Komma == std::string_view::npos) return -1;
    Worte.at(i) = TrimmenSicht(Einstellungen.substr(0, Komma));
    if (i + 1 < Worte.size()) Einstellungen.remove_prefix(Komma + 1);
  }
  Leitungswerte Neu;
  const std::string Parität = Großtext(Worte[1]);
  if (!Ganz(Worte[0], 50, 4000000, Neu.Baud) || !Ganz(Worte[2], 5, 8, Neu.Datenbits) ||
      !Ganz(Worte[3], 1, 2, Neu.Stopbits) || (Parität != "N" && Parität != "E" && Parität != "O"))
    return -1;
  Neu.Parität = Parität[0];
  Werte = Neu;
  return 0;
}

}  // namespace tavorena
