#include "Fuzzhilfe.h"

#include <algorithm>
#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena::fuzz {
namespace {

std::string Ohne(std::string_view Text, std::string_view Zeichen) {
  std::string Rest(Text);
  std::erase_if(Rest, [&](char z) { return Zeichen.find(z) != std::string_view::npos; });
  return Rest;
}

void ZeilenPrüfen(std::string_view Bytes) {
  std::string Alle;
  std::string_view Zeile;
  Zeilenleser Leser(Bytes);
  while (Leser.Nächste(Zeile)) {
    Prüfen(Zeile.find_first_of("\r\n") == std::string_view::npos, "eine Zeile ist eine Zeile");
    Alle += Zeile;
  }
  constexpr std::string_view Enden("\r\n\0", 3);
  Prüfen(Leser.AmEnde() && Ohne(Alle, Enden) == Ohne(Bytes, Enden), "die Zeilen sind der ganze Text");
}

void KodierungPrüfen(std::string_view Bytes) {
  const std::string Gewandelt = AusWindows1252(Bytes);
  Prüfen(IstUtf8(Gewandelt) && NachWindows1252(Gewandelt) == Bytes, "Windows-1252 hin und zurück");
  if (IstUtf8(Bytes)) Prüfen(NachWindows1252(Bytes).size() == ZeichenAnzahl(Bytes), "ein Byte je Zeichen");
}

void DateiPrüfen(std::string_view Bytes) {
  // A text with the mark of UTF-16 is refused.
  if (Bytes.starts_with("\xFF\xFE") || Bytes.starts_with("\xFE\xFF")) return;
  // The module remembers the file extended last.
  Prüfen(TextAnhängen(Datei("b.txt", ""), "x") == 0, "der Text wird angehängt");
  const std::string Name = Datei("a.txt", "");
  std::string Vorher, Nachher;
  Prüfen(DateiErsetzen(Name, Bytes) == 0 && Inhalt(Name) == Bytes, "die Datei ist ersetzt");
  Prüfen(TextdateiLesen(Name, Vorher) == 0 && IstUtf8(Vorher), "ein Text ist UTF-8");
  Prüfen(TextAnhängen(Name, "äß\r\n") == 0, "der Text wird angehängt");
  Prüfen(TextdateiLesen(Name, Nachher) == 0 && Nachher == Vorher + "äß\r\n",
         "die Datei behält ihre Kodierung");
}

void NamenPrüfen(std::string_view Name) {
  const Dateiname D = DateinameZerlegen(Name);
  std::string Ganz = D.Ordner + D.Grundname;
  if (Ganz != Name) Ganz += "." + D.Endung;
  Prüfen(Ganz == Name, "ein Name ist die Summe seiner Teile");
  Systempfad(Name);
  PfadVerbinden("c:\\x", Name);
}

void FelderPrüfen(std::string_view Text, int Breite, int Stelle) {
  const auto Soll = static_cast<std::size_t>(std::max(Breite, 0));
  const std::size_t L = ZeichenAnzahl(Text);
  for (const std::string& Feld : {FeldLinks(Text, Breite), FeldRechts(Text, Breite)})
    Prüfen(ZeichenAnzahl(Feld) == Soll && IstUtf8(Feld), "ein Feld hat seine Breite");
  Prüfen(ZeichenAnzahl(RechtsBündig(Text, Breite)) == std::max(Soll, L), "nichts wird abgeschnitten");
  Prüfen(Breite <= 3 || ZeichenAnzahl(KuerzenMitPunkten(Text, Breite)) <= Soll, "gekürzt ist kürzer");
  Prüfen(ZeichenAnzahl(TeilVonRechts(Text, Stelle, Breite)) <= Soll, "ein Teil ist nicht länger");
  Prüfen(std::string(TextTeil(Text, 0, Soll)).append(TextTeil(Text, Soll)) == Text, "zwei Teile, ein Text");
  const std::string Gross = Großtext(Text);
  Prüfen(IstUtf8(Gross) && Gross.size() == Text.size() && Großtext(Gross) == Gross, "Großtext");
  std::string Worte;
  std::string_view Rest = Text, Wort;
  while (!(Wort = Wortnehmen(Rest)).empty()) Worte += Wort;
  Prüfen(Ohne(Text.substr(0, Text.size() - Rest.size()), std::string_view(" \t\0", 3)) == Worte,
         "die Worte sind der ganze Text");
}

void FormatPrüfen(double x, int Vor, int Nach) {
  const std::string Feld = ZahlFormat(x, Vor, Nach);
  const bool Sterne = x >= std::pow(10, Vor) || -x >= std::pow(10, Vor - 1);
  std::string Angehängt = "a";
  ZahlFormatAnhängen(Angehängt, x, Vor, Nach);
  Prüfen(Angehängt == "a" + Feld, "Anhängen gibt dasselbe Feld");
  Prüfen(Sterne == (Feld.find('*') != std::string::npos), "Sterne für das, was nicht paßt");
  // A value that rounds up to the next power of ten, and the sign where no place is left for it, widen.
  const bool Breiter =
      (x < 0 && Vor < 2) || std::fabs(x) >= std::pow(10, x < 0 ? Vor - 1 : Vor) - std::pow(10, -Nach);
  Prüfen(Breiter || Feld.size() == static_cast<std::size_t>(Vor + Nach + 1), "ein Feld hat seine Breite");
  if (Sterne) return;
  const double Fehler = 0.500001 * std::pow(10, -Nach) + std::fabs(x) * 1e-14;
  Prüfen(std::fabs(ZahlAusText(Feld) - x) <= Fehler, "ein Feld zeigt seinen Wert");
}

void ZahlenPrüfen(std::string_view Text, int Vor, int Nach) {
  std::string Kopie(Text);
  const double x = ZahlAusText(Text);
  Prüfen(!std::isnan(x) && ZahlVonText(Kopie) == x, "das Komma ist ein Punkt");
  if (Vor >= 0 && Nach >= 0 && Vor + Nach > 0) FormatPrüfen(x, Vor, Nach);
  if (x == 0 || (std::fabs(x) > 1e-300 && std::fabs(x) < 1e300)) {
    const double Zurück = ZahlAusText(ZahlNachText(x).Text());
    Prüfen(std::fabs(Zurück - x) <= std::fabs(x) * 1e-14, "eine Zahl wird Text und wieder Zahl");
  }
  const auto Ganz = static_cast<std::int32_t>(std::fabs(x) < 2e9 ? x : 0);
  for (const Wert& W : {Wert(x), Wert(Text), Wert(Ganz), Wert(static_cast<std::int16_t>(Ganz % 30000)),
                        Wert(x > 0), Wert(NullWert{}), Wert()}) {
    for (const std::string& Feld : {ZahlFormat(W, Vor, Nach), ZahlFormatNull(W, Vor, Nach), ZahlFormatFest(W),
                                    ZahlFeld(W, Vor), ZahlFeldNull(W, Vor), PnrFormat(W), Trimmen(W)}) {
      Prüfen(IstUtf8(Feld), "ein Feld ist Text");
    }
  }
  GonText(x);
}

void Lauf(Eingabe E) {
  const int Vor = E.Zahl(-3, 20), Nach = E.Zahl(-3, 20);
  const std::string_view Bytes = E.Rest();
  ZeilenPrüfen(Bytes);
  KodierungPrüfen(Bytes);
  DateiPrüfen(Bytes);
  NamenPrüfen(Bytes);
  const std::string Text = IstUtf8(Bytes) ? std::string(Bytes) : AusWindows1252(Bytes);
  FelderPrüfen(Text, Vor, Nach);
  ZahlenPrüfen(Text, Vor, Nach);
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
