#include <array>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/rawdata/Flg.h>

namespace tavorena {
namespace {

constexpr std::string_view Titel = "Leica VIP Freie Station", Nummer = "Station-Nr.";
constexpr std::size_t Titellänge = 25, Nummernstelle = 15;
constexpr std::array Breiten = {2, 10, 12, 15, 16, 10};

bool Enthält(std::string_view Zeile, std::string_view Was) {
  return Zeile.find(Was) != std::string_view::npos;
}

// A line of six fields in its columns, which never touch; any other one as it stands.
std::string Gesetzt(std::string_view Zeile) {
  std::string Text;
  std::string_view Rest = Zeile;
  for (const int Breite : Breiten) {
    const std::string_view Feld = Wortnehmen(Rest);
    if (Feld.empty()) return std::string(Zeile);
    Text += RechtsBündig((Text.empty() ? "" : " ") + std::string(Feld), Breite);
  }
  return Wortnehmen(Rest).empty() ? Text : std::string(Zeile);
}

}  // namespace

int FlgLesen(std::string_view Text, std::vector<FlgBlock>& Blöcke) {
  Blöcke.clear();
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    if (ZeichenAnzahl(Zeile) >= Titellänge && Enthält(Zeile, Titel)) {
      Blöcke.emplace_back();
    } else if (Blöcke.empty()) {
      continue;
    } else if (Enthält(Zeile, Nummer)) {
      Blöcke.back().Standpunkt = TrimmenSicht(TextTeil(Zeile, Nummernstelle));
    } else {
      Blöcke.back().Zeilen.emplace_back(Zeile);
    }
  }
  return Blöcke.empty() ? -1 : 0;
}

std::vector<std::string> FlgZeilen(const FlgBlock& B) {
  const std::string Rand = Leerzeichen(6);
  std::vector<std::string> Zeilen = {Rand + "Standpunktbestimmung: Leica- Online- Protokolldatei"};
  for (const std::string& Zeile : B.Zeilen) Zeilen.push_back(Rand + Gesetzt(Zeile));
  return Zeilen;
}

}  // namespace tavorena
