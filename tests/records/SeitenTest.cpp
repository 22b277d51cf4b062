#include "Testhilfe.h"

#include <tavorena/records/Seiten.h>

namespace tavorena::test {
namespace {

// Lines joined with "|", pages with "/".
std::string Gezeigt(const Druckseiten& D) {
  std::string Text;
  for (const auto& Seite : D.Seiten) {
    Text += Text.empty() ? "" : "/";
    for (const std::string& Zeile : Seite) Text += Zeile + "|";
  }
  return Text;
}

std::string Mal(int Anzahl, const std::string& Text) {
  std::string Alles;
  for (int i = 0; i < Anzahl; ++i) Alles += Text;
  return Alles;
}

TEST(Seiten, Zeilen) {
  const std::string Volle = Mal(60, "z\r\n"), Voll = Mal(60, "z|"), Breit = Mal(146, "ä");
  const struct {
    std::string Text, Seiten;
  } Fälle[] = {
      {"", ""},
      {"a", "a|"},
      {"a\r\n\r\nb\nc\r", "a||b|c|"},
      {"\f\fa\r\n\f\fb\f", "a|/b|"},  // no empty page at the start, between or at the end
      {"a\fb\r\nc", "a|/b|c|"},       // a form feed ends its line
      {"a\r\n\f\r\nb", "a|/|b|"},     // the line end behind it ends an empty one
      {Volle + "\fb", Voll + "/b|"},  // not behind 60 lines either
      {Volle + "b", Voll + "/b|"},
      {Volle, Voll},
      {"ä\tb\t\tc  \r\n\f1234567\tx", "ä       b               c|/1234567 x|"},
      {"a\x1b" + std::string(1, '\0') + "b\r\n \x1a", "a??b||"},
      {"a\r\n\x1a", "a|"},
      {Breit + Breit + "x", Breit + "|" + Breit + "|x|"},
      {Mal(59, "z\r\n") + Breit + "x", Mal(59, "z|") + Breit + "|/x|"},  // goes on on the next page
      {Breit + "     \r\n", Breit + "|"},
  };
  for (const auto& f : Fälle) {
    SCOPED_TRACE(f.Text.substr(0, 20));
    EXPECT_EQ(Gezeigt(SeitenTeilen(f.Text)), f.Seiten);
  }
}

TEST(Seiten, Schriftgröße) {
  const std::tuple<int, double> Fälle[] = {{0, 10},  {88, 10},   {89, 9.5}, {92, 9.5}, {93, 9},  {117, 7.5},
                                           {118, 7}, {135, 6.5}, {136, 6},  {146, 6},  {5000, 6}};
  for (const auto& [Breite, Schrift] : Fälle)
    EXPECT_EQ(SeitenTeilen("kurz\r\n" + Mal(Breite, "ß") + "   \r\n\tx").Schrift, Schrift) << Breite;
}

TEST(Seiten, Dateien) {
  const Testordner Ordner;
  PlattformSkript Skript;
  std::string Gesagt;
  Skript.BeiMeldung = [&Gesagt](const std::string& Text) { Gesagt = Text.substr(0, Text.find(':')); };
  const std::string Meldungen[] = {"Datei nicht gefunden", "In der Datei steht nichts zu drucken",
                                   "Der Text hat mehr als 10000 Seiten"};
  const struct {
    const char* Name;
    std::string Bytes, Seiten;
  } Fälle[] = {
      {"a.POL", "\xDA\xC4 \xE1\xFD", "┌─ ß²|"},
      {"a.pol", "┌─ ß²", "┌─ ß²|"},
      {"a.dru", "\xDF \xB2", "ß ²|"},
      {"a.dru", "\f", Meldungen[1]},
      {"a.dru", Mal(10000, "a\f") + "b", Meldungen[2]},
      {"", "", Meldungen[0]},
  };
  for (const auto& f : Fälle) {
    if (*f.Name != '\0') Schreibe(Ordner.Pfad(f.Name), f.Bytes);
    Druckseiten D;
    Gesagt.clear();
    if (f.Seiten.back() != '|') Skript.Erwarte(f.Seiten);
    const bool Gut = DruckdateiLesen(Ordner.Pfad(f.Name), D) == 0;
    EXPECT_EQ(Gut ? Gezeigt(D) : D.Seiten.empty() ? Gesagt : "halbe Seiten", f.Seiten);
  }
}

}  // namespace
}  // namespace tavorena::test
