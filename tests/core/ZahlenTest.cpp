#include "Testhilfe.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale>
#include <random>
#include <sstream>

#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena::test {
namespace {

constexpr double Unendlich = std::numeric_limits<double>::infinity();

const Wert Leer, Null(NullWert{});

TEST(ZahlFormat, Tabelle) {
  // A sign takes a place; the overflow looks at the unrounded value.
  EXPECT_TRUE(
      Gleich(ZahlFormat(-1000000.0, 7, 3), "*******.***", ZahlFormat(-999999.0, 7, 3), "-999999.000"));
  EXPECT_TRUE(Gleich(ZahlFormat(9999999.9999, 7, 3), "10000000.000", ZahlFormat(1000.0, 3, 0), "***."));
  EXPECT_TRUE(Gleich(ZahlFormat(Leer, 3, 1), "     ", ZahlFormat(Null, 3, 1), "     "));
  EXPECT_TRUE(Gleich(ZahlFormat(true, 3, 0), "  -1", ZahlFormat("12,5", 3, 1), " 12.5"));
  // No decimals keep the place of the point.
  EXPECT_TRUE(Gleich(ZahlFormat(std::int16_t{7}, 3, 0), "   7", ZahlFormat(12.5, 7, 0), "      13"));
  EXPECT_TRUE(Gleich(ZahlFormat(0.5, 0, 2), ".50", ZahlFormat(-0.2, 0, 2), ".**"));  // no room for a sign
  EXPECT_TRUE(Gleich(ZahlFormat(std::nan(""), 3, 1), "***.*", ZahlFormat(-Unendlich, 3, 1), "***.*"));
}

TEST(ZahlFormat, KaufmännischAufDemDezimaltext) {
  const auto Gerundet = [](int N, std::initializer_list<double> Zahlen) {
    std::string Text;
    for (const double Zahl : Zahlen) Text += ZahlFormat(Zahl, -1, N) + " ";
    return Text;
  };
  EXPECT_EQ(Gerundet(0, {0.5, 2.5, 0.4999}), "1 3 0 ");
  EXPECT_EQ(Gerundet(2, {0.125, -0.125, 2.675, -1.005}), "0.13 -0.13 2.68 -1.01 ");
  EXPECT_EQ(Gerundet(3, {1.0005, -0.0004, -0.0005, 999.9995, 1e-20}), "1.001 0.000 -0.001 1000.000 0.000 ");
  // The 15th digit still tells a number from a half.
  EXPECT_EQ(Gerundet(3, {3500100.1235, 3500100.12349999}), "3500100.124 3500100.123 ");
  EXPECT_EQ(Gerundet(5, {0.1 + 0.2, 123456789012345678.0}), "0.30000 123456789012346000.00000 ");
}

TEST(ZahlFormat, KenntKeineLandessprache) {
  struct Komma final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
  };
  const std::string Vorher = std::setlocale(LC_ALL, nullptr);
  const std::locale Alte = std::locale::global(std::locale(std::locale::classic(), new Komma));
  for (const char* Name : {"de_DE.UTF-8", "de_DE.utf8"})
    std::setlocale(LC_ALL, Name);  // where it is installed
  EXPECT_TRUE(Gleich((std::ostringstream() << 1.5).str(), "1,5", ZahlFormat(1234.5, 7, 3), "   1234.500",
                     ZahlAusText("1234.5"), 1234.5, ZahlNachText(0.5), Wert("0.5")));
  std::locale::global(Alte);
  std::setlocale(LC_ALL, Vorher.c_str());
}

TEST(ZahlFeld, Tabelle) {
  EXPECT_TRUE(Gleich(ZahlFormatNull(5.5, 3, 1), "005.5", ZahlFormatNull(-5.5, 3, 1), "-005.5"));
  EXPECT_TRUE(Gleich(ZahlFormatFest(1234.5), "    1234.500", ZahlFormatFest(123456789.0), "123456789.000"));
  EXPECT_TRUE(Gleich(ZahlFeld("abcde", 4), "abcde", ZahlFeld(Null, 3), "***", ZahlFeld(Null, 0), "*"));
  EXPECT_TRUE(Gleich(ZahlFeld(Leer, 3), "  0", ZahlFeld(999, 3), "999", ZahlFeld(1000, 3), "***"));
  EXPECT_TRUE(Gleich(ZahlFeld(1000, 0), "1000", ZahlFeld(-1234.5, 3), "-1235"));  // no overflow below zero
  EXPECT_TRUE(
      Gleich(ZahlFeldNull("12", 6), "000012", ZahlFeldNull(1000, 3), "***", ZahlFeldNull(-5, 3), "-005"));
  EXPECT_TRUE(Gleich(PnrFormat(Leer), "*", PnrFormat(Null), "        ", PnrFormat("123456789"), "123456789"));
  EXPECT_TRUE(Gleich(PnrFormat("Grün"), "    Grün", PnrFormat(4711.6), "    4712"));  // characters, not bytes
}

TEST(ZahlVonText, NumerischerAnfang) {
  using Zahlen = std::vector<double>;
  const auto Gelesen = [](std::initializer_list<const char*> Texte) {
    Zahlen Werte;
    for (const char* Text : Texte) Werte.push_back(ZahlAusText(Text));
    return Werte;
  };
  EXPECT_EQ(Gelesen({"", "abc", "+-5", "nan", "inf", "0x10"}), Zahlen(6));
  EXPECT_EQ(Gelesen({" \t12A", "+5", "-5.5x", ".5", "5.", "1 234"}), (Zahlen{12, 5, -5.5, 0.5, 5, 1}));
  EXPECT_EQ(Gelesen({"1,5", ",5", "1.234,56", "1,234,5", "3500100,123456789"}),
            (Zahlen{1.5, 0.5, 1.234, 1.234, 3500100.123456789}));
  EXPECT_EQ(Gelesen({"1e3", "1E+2,5", "12e", "1e-999", "1e999", "-1e999"}),
            (Zahlen{1000, 100, 12, 0, Unendlich, -Unendlich}));
  std::mt19937_64 Zufall(3);  // every way to read gives the nearest value
  for (int i = 0; i < 20000; ++i) {
    std::string Zahl = std::to_string(Zufall()).substr(0, 1 + Zufall() % 17);
    if (i % 5 > 0) Zahl.insert(1 + Zufall() % Zahl.size(), ".");
    ASSERT_EQ(ZahlAusText(Zahl), std::strtod(Zahl.c_str(), nullptr)) << Zahl;
  }
  std::string Text = "1,2,3";
  EXPECT_TRUE(Gleich(ZahlVonText(Text), 1.2, Text, "1.2.3"));  // replaced in the caller's text
  Wert Nummer("4711,2");
  EXPECT_TRUE(Gleich(ZahlVonText(Nummer), 4711.2, Nummer, Wert("4711.2")));
}

TEST(ZahlNachText, ZustandBleibt) {
  const std::pair<Wert, Wert> Fälle[] = {{"012", "012"},         {Null, ""},
                                         {Leer, Leer},           {true, true},
                                         {-4711.25, "-4711.25"}, {1e15, "1000000000000000"},
                                         {0.1 + 0.2, "0.3"},     {1e-7, "0.0000001"}};
  for (const auto& [Zahl, Soll] : Fälle) EXPECT_EQ(ZahlNachText(Zahl), Soll) << Soll.Text();
}

TEST(Text, ZuschnittNachZeichen) {
  EXPECT_TRUE(Gleich(FeldLinks("Meßlinie", 4), "Meßl", FeldLinks("ß", 3), "ß  ", Leerzeichen(-3), ""));
  EXPECT_TRUE(Gleich(FeldRechts("Höhe", 3), "öhe", FeldRechts("ö", 3), "  ö"));
  EXPECT_TRUE(Gleich(TeilVonRechts("abcdef", 3, 2), "de", TeilVonRechts("abcdef", 3, 9), "def",
                     TeilVonRechts("abcdef", 7, 1), "", TeilVonRechts("abcdef", 0, 1), ""));
  EXPECT_TRUE(
      Gleich(KuerzenMitPunkten("Gänsefüßchen", 8), "...ßchen", KuerzenMitPunkten("abcdef", 3), "abcdef"));
  EXPECT_TRUE(Gleich(Trimmen("\t \t"), "", Trimmen(" 12A\t"), "12A", Trimmen(12.5), "12.5"));
  EXPECT_EQ(Großtext("kanalmeßstäb"), "KANALMEßSTÄB");
}

TEST(Text, Zeichenarten) {
  EXPECT_TRUE(Gleich(IstLeerText(""), true, IstLeerText("\t"), false));
  EXPECT_TRUE(Gleich(IstZahlText(""), true, IstZahlText("+1 2.\t"), true, IstZahlText("1e3"), false));
  EXPECT_TRUE(Gleich(ZeichenKlasse('7'), 1, ZeichenKlasse('+'), -1, ZeichenKlasse(127), -1, ZeichenKlasse(9),
                     -1, ZeichenKlasse('A'), 0));
}

TEST(Text, PfadVerbinden) {
  for (const auto& [Pfad, Name] : {std::pair{"c:\\", "\\a"}, std::pair{"c:", "a"}, std::pair{"c:", "\\a"}})
    EXPECT_EQ(PfadVerbinden(Pfad, Name), "c:\\a");
  EXPECT_TRUE(Gleich(PfadVerbinden("", "a"), "", PfadVerbinden("c:\\", ""), "c:\\"));
}

TEST(Winkel, Quadranten) {
  // East and north of the target, direction in gon, mathematical angle in degrees.
  constexpr double Fälle[][4] = {{0, 10, 0, 90},      {10, 10, 50, 45},    {10, 0, 100, 0},
                                 {10, -10, 150, 315}, {0, -10, 200, 270},  {-10, -10, 250, 225},
                                 {-10, 0, 300, 180},  {-10, 10, 350, 135}, {0, 0, 0, 90}};
  for (const auto& [dR, dH, Gon, Mathe] : Fälle) {
    EXPECT_NEAR(Richtungswinkel(3500000, 5600000, 3500000 + dR, 5600000 + dH), Gon, 1e-10);
    EXPECT_NEAR(WinkelGrad(dH, dR), Mathe, 1e-10);
  }
  // A zero stays a zero on purpose, not 400 or 360.
  EXPECT_TRUE(
      Gleich(RadNachGonVoll(0), 0, GonNachGradMath(0), 0, GradNachGonMath(0), 0, GonNachGradMath(100), 270));
  EXPECT_NEAR(GradNachGonMath(GonNachGradMath(123.4567)), 123.4567, 1e-12);
  EXPECT_TRUE(Gleich(SinGon(100), 1, CosGon(200), -1, SinGrad(90), 1));
  EXPECT_NEAR(TanGon(50), 1, 1e-12);
}

TEST(Winkel, Reduzieren) {
  constexpr double Fälle[][2] = {{400, 0},  {-0.0001, 399.9999}, {799.5, 399.5},
                                 {-400, 0}, {-1e-20, 0},         {0, 0}};
  for (const auto& [Ein, Aus] : Fälle) {
    double g = Ein;
    GonReduzieren(g);
    EXPECT_DOUBLE_EQ(g, Aus) << Ein;
  }
  double Gross = 1e300, Grad = -30, Keine = Unendlich;  // must end
  GonReduzieren(Gross);
  GradReduzieren(Grad);
  GonReduzieren(Keine);
  EXPECT_TRUE(Gross >= 0 && Gross < 400) << Gross;
  EXPECT_EQ(Grad, 330);
}

TEST(Winkel, Listen) {
  const double R[] = {0, 10, 20}, H[] = {0, 0, 30}, Gewicht[] = {1, 3, 0}, Aus[] = {1, -1, 0};
  double r = -1, h = -1, m[4] = {};
  for (const int Anzahl : {0, 4}) EXPECT_EQ(Schwerpunkt(R, H, Anzahl, r, h), -1);
  EXPECT_TRUE(Gleich(r, -1, h, -1));
  EXPECT_TRUE(Gleich(Schwerpunkt(R, H, 3, r, h), 0, r, 10, h, 10));
  EXPECT_TRUE(Gleich(MittelOhneNull(R, 3, m[0]), 0, MittelOhneNull(H, 2, m[1]), 0, m[0], 15, m[1], 0));
  EXPECT_TRUE(Gleich(MittelGewichtet(R, Gewicht, 3, m[2]), 0, m[2], 7.5));
  EXPECT_TRUE(Gleich(MittelGewichtet(R, Aus, 3, m[3]), 0, m[3], 0));
  std::vector<int> Indizes;
  int Treffer = 0;
  PunkteImKreis(0, 0, R, H, 3, Indizes, Treffer, 10);
  // Strictly nearer: the point at 10 m stays out.
  EXPECT_TRUE(Gleich(Treffer, 1, PunktIstNah(0, 0, 10, 0, 10), 1));
  // A double at these coordinates carries 1e-9.
  EXPECT_EQ(PunktIstNah(3500100.01, 5600200, 3500100.02, 5600200, 0.01), 1);
  EXPECT_EQ(PunktIstNah(3500100, 5600200, 3500100, 5600200.0300001, 0.03), 0);
}

}  // namespace
}  // namespace tavorena::test
