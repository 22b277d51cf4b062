#include "Fuzzhilfe.h"

#include <algorithm>

#include <tavorena/core/Text.h>
#include <tavorena/records/Flt.h>
#include <tavorena/records/Seiten.h>

namespace tavorena::fuzz {
namespace {

void SeitenPrüfen(const Druckseiten& D) {
  Prüfen(D.Schrift >= 6 && D.Schrift <= 10, "die Schrift ist lesbar");
  const auto Spalten = static_cast<std::size_t>(Druckspalten(D.Schrift));
  for (const auto& Seite : D.Seiten) {
    Prüfen(!Seite.empty() && Seite.size() <= DruckzeilenJeSeite, "keine leere, keine zu lange Seite");
    for (const std::string& Zeile : Seite) {
      Prüfen(ZeichenAnzahl(Zeile) <= Spalten, "keine zu lange Zeile");
      Prüfen(
          std::none_of(Zeile.begin(), Zeile.end(), [](char c) { return static_cast<unsigned char>(c) < 32; }),
          "kein Steuerzeichen");
    }
  }
}

// What was divided once stays as it is.
void Teilen(std::string_view Text) {
  const Druckseiten D = SeitenTeilen(Text);
  SeitenPrüfen(D);
  if (D.Schrift == 6) return;  // where a line went on, its blanks are gone
  std::string Wieder;
  for (const auto& Seite : D.Seiten) {
    for (const std::string& Zeile : Seite) Wieder += Zeile + "\r\n";
    Wieder += '\f';
  }
  const Druckseiten E = SeitenTeilen(Wieder);
  Prüfen(E.Seiten == D.Seiten && E.Schrift == D.Schrift, "Seiten bleiben Seiten");
}

void Liste(std::string_view Text) {
  const Flurstücksliste L = FltLesen(Text);
  Prüfen((L.Übergangen > 0) == (L.ErsteÜbergangene > 0), "die erste Zeile ist genannt");
  std::size_t Zeilen = 0;
  for (const auto& Seite : SeitenTeilen(FltSeiten(L, "a.flt", 1, 2)).Seiten) Zeilen += Seite.size();
  Prüfen(Zeilen >= L.Stücke.size(), "jedes Flurstück steht auf dem Papier");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Eingabe E{Daten, Laenge};
  const bool AlsListe = E.Zahl(0, 1) == 1;
  AlsListe ? tavorena::fuzz::Liste(E.Rest()) : tavorena::fuzz::Teilen(E.Rest());
  return 0;
}
