#include <algorithm>
#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Seiten.h>

namespace tavorena {
namespace {

constexpr std::size_t JeSeite = DruckzeilenJeSeite, Tabulator = 8, MeisteSeiten = 10000;
constexpr double GrößteSchrift = 10, KleinsteSchrift = 6;  // [points]

// The pieces of a text that end in a line end or a form feed; Tun gets each and whether the page ends there.
template <typename Abnehmer>
void Zerlegen(std::string_view Text, Abnehmer Tun) {
  if (Text.ends_with('\x1a')) Text.remove_suffix(1);
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    const bool MitEnde = Zeile.data() + Zeile.size() != Text.data() + Text.size();
    bool Begonnen = true;  // nothing behind a form feed is a line only where a line end follows
    for (std::size_t Ff = 0; (Ff = Zeile.find('\f')) != std::string_view::npos; Begonnen = MitEnde) {
      Tun(Zeile.substr(0, Ff), Ff > 0, true);
      Zeile.remove_prefix(Ff + 1);
    }
    if (Begonnen || !Zeile.empty()) Tun(Zeile, true, false);
  }
}

// A line as it is printed: without tabs, control characters and the blanks at its end.
void Zeigen(std::string_view Stück, std::string& Zeile) {
  Zeile.clear();
  std::size_t Spalte = 0;
  for (const char c : Stück) {
    const auto Code = static_cast<unsigned char>(c);
    if (c == '\t') {
      const std::size_t Lücke = Tabulator - Spalte % Tabulator;
      Zeile.append(Lücke, ' ');
      Spalte += Lücke;
      continue;
    }
    Zeile += Code < 32 || Code == 127 ? '?' : c;
    if ((Code & 0xC0U) != 0x80U) ++Spalte;
  }
  Zeile.erase(Zeile.find_last_not_of(' ') + 1);
}

double Schriftgröße(std::size_t Längste) {
  double Schrift = GrößteSchrift;
  while (Schrift > KleinsteSchrift && Längste > static_cast<std::size_t>(Druckspalten(Schrift)))
    Schrift -= 0.5;
  return Schrift;
}

// @return false: there are more pages than Meiste
bool Teilen(std::string_view Text, Druckseiten& Ziel, std::size_t Meiste) {
  std::string Zeile;
  std::size_t Längste = 0;
  Zerlegen(Text, [&](std::string_view Stück, bool, bool) {
    if (Stück.size() <= Längste && Stück.find('\t') == std::string_view::npos) return;
    Zeigen(Stück, Zeile);
    Längste = std::max(Längste, ZeichenAnzahl(Zeile));
  });
  Ziel = {Schriftgröße(Längste), {}};
  const auto Spalten = static_cast<std::size_t>(Druckspalten(Ziel.Schrift));
  bool Neue = true, Gut = true;
  const auto Nehmen = [&](std::string_view Teil) {
    if (Neue || Ziel.Seiten.back().size() == JeSeite) {
      if (Ziel.Seiten.size() == Meiste) return Gut = false;
      Ziel.Seiten.emplace_back();
    }
    Neue = false;
    Ziel.Seiten.back().emplace_back(Teil);
    return true;
  };
  Zerlegen(Text, [&](std::string_view Stück, bool IstZeile, bool SeiteEndet) {
    if (!Gut) return;
    if (IstZeile) {
      Zeigen(Stück, Zeile);
      std::string_view Rest = Zeile;
      std::string_view Teil = TextTeil(Rest, 0, Spalten);
      while (Nehmen(Teil) && Teil.size() < Rest.size()) {
        Rest.remove_prefix(Teil.size());
        Teil = TextTeil(Rest, 0, Spalten);
      }
    }
    if (SeiteEndet) Neue = true;
  });
  return Gut;
}

}  // namespace

int Druckspalten(double Schrift) { return static_cast<int>(std::floor(880 / Schrift)); }

Druckseiten SeitenTeilen(std::string_view Text) {
  Druckseiten Seiten;
  if (IstUtf8(Text)) {
    static_cast<void>(Teilen(Text, Seiten, std::string_view::npos));
  } else {
    static_cast<void>(Teilen(AusWindows1252(Text), Seiten, std::string_view::npos));
  }
  return Seiten;
}

int DruckdateiLesen(const std::string& Name, Druckseiten& Seiten) {
  std::string Text, Grund;
  int Ergebnis = 0;
  if (Großtext(DateinameZerlegen(Name).Endung) == "POL") {
    Ergebnis = DateiLesen(Name, Text, &Grund);
    if (!IstUtf8(Text)) Text = AusCodepage850(Text);
  } else {
    Ergebnis = TextdateiLesen(Name, Text, &Grund);
  }
  if (Ergebnis < 0) {
    LesefehlerMelden(Name, Grund);
    return -1;
  }
  Grund.clear();
  if (!Teilen(Text, Seiten, MeisteSeiten)) Grund = "Der Text hat mehr als 10000 Seiten:\n";
  if (Seiten.Seiten.empty()) Grund = "In der Datei steht nichts zu drucken:\n";
  if (Grund.empty()) return 0;
  Seiten = {};
  Hinweis(Grund + Name);
  return -1;
}

}  // namespace tavorena
