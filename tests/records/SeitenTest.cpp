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
  const std::string Pol = Ordner.Pfad("a.POL"), Dru = Ordner.Pfad("a.dru");
  Druckseiten D;
  std::string Grund;
  const auto Gelesen = [&](const std::string& Name, const std::string& Bytes) {
    Schreibe(Name, Bytes);
    Grund.clear();
    return DruckdateiLesen(Name, D, &Grund) == 0 ? Gezeigt(D) : Grund;
  };
  EXPECT_EQ(Gelesen(Pol, "\xDA\xC4 \xE1\xFD"), "┌─ ß²|");
  EXPECT_EQ(Gelesen(Pol, "┌─ ß²"), "┌─ ß²|");
  EXPECT_EQ(Gelesen(Dru, "\xDF \xB2"), "ß ²|");
  EXPECT_EQ(Gelesen(Dru, "\f"), "ist leer");
  EXPECT_EQ(Gelesen(Dru, Mal(10000, "a\f") + "b"), "mehr als 10000 Seiten");
  EXPECT_TRUE(D.Seiten.empty());
  EXPECT_TRUE(
      Gleich(DruckdateiLesen(Ordner.Pfad("fehlt"), D), -1, DruckdateiLesen(Ordner.Pfad(""), D, &Grund), -1));
}

}  // namespace
}  // namespace tavorena::test
