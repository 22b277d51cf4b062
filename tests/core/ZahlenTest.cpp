#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

constexpr double Unendlich = std::numeric_limits<double>::infinity();

TEST(ZahlFormat, Tabelle) {
  struct Fall {
    const char* Name;
    Wert Zahl;
    int V, N;
    const char* Soll;
  };
  const Fall Faelle[] = {
      {"plain", 1234.5, 7, 3, "   1234.500"},
      {"negative one place short", -1000000.0, 7, 3, "*******.***"},
      {"negative that just fits", -999999.0, 7, 3, "-999999.000"},
      {"overflow looks at the unrounded value", 9999999.9999, 7, 3, "10000000.000"},
      {"overflow", 10000000.0, 7, 3, "*******.***"},
      {"free", 5.25, -1, 2, "5.25"},
      {"free negative", -5.25, -1, 2, "-5.25"},
      {"empty", Wert(), 7, 3, "           "},
      {"null", NullWert{}, 7, 3, "           "},
      {"zero", 0.0, 7, 3, "      0.000"},
      {"true is -1", true, 3, 0, "  -1"},
      {"text with comma", "12,5", 3, 1, " 12.5"},
      {"16 bits", std::int16_t{7}, 3, 0, "   7"},
      {"no decimals keep the place of the point", 12.5, 7, 0, "      13"},
      {"no integer places", 0.5, 0, 2, ".50"},
      {"no integer places, overflow", 1.0, 0, 2, ".**"},
      {"no integer places, no room for a sign", -0.2, 0, 2, ".**"},
      {"preset field", 1000.0, 3, 0, "***."},
      {"infinite", Unendlich, 3, 1, "***.*"},
      {"not a number", std::nan(""), 3, 1, "***.*"},
      {"minus infinite", -Unendlich, 3, 1, "***.*"},
  };
  for (const Fall& f : Faelle) EXPECT_EQ(ZahlFormat(f.Zahl, f.V, f.N), f.Soll) << f.Name;
  EXPECT_EQ(ZahlFormatNull(5.5, 3, 1), "005.5");
  EXPECT_EQ(ZahlFormatNull(-5.5, 3, 1), "-005.5");
  EXPECT_EQ(ZahlFormatFest(1234.5), "    1234.500");
  EXPECT_EQ(ZahlFormatFest(123456789.0), "123456789.000");
}

TEST(ZahlFormat, KaufmaennischAufDemDezimaltext) {
  struct Fall {
    double Zahl;
    int N;
    const char* Soll;
  };
  constexpr Fall Faelle[] = {
      {0.125, 2, "0.13"},
      {-0.125, 2, "-0.13"},
      {1.0005, 3, "1.001"},
      {2.675, 2, "2.68"},
      {1.005, 2, "1.01"},
      {-1.005, 2, "-1.01"},
      {0.5, 0, "1"},
      {1.5, 0, "2"},
      {2.5, 0, "3"},
      {0.4999, 0, "0"},
      {-0.0004, 3, "0.000"},
      {-0.0005, 3, "-0.001"},
      {999.9995, 3, "1000.000"},
      {3500100.1235, 3, "3500100.124"},
      {3500100.12349999, 3, "3500100.123"},  // the 15th digit still tells it from a half
      {0.1 + 0.2, 5, "0.30000"},
      {1e-20, 3, "0.000"},
      {123456789012345678.0, 1, "123456789012346000.0"},
  };
  for (const Fall& f : Faelle) EXPECT_EQ(ZahlFormat(f.Zahl, -1, f.N), f.Soll) << f.Zahl;
}

TEST(ZahlFormat, KenntKeineLandessprache) {
  const std::string Vorher = std::setlocale(LC_ALL, nullptr);
  for (const char* Name : {"de_DE.UTF-8", "de_DE.utf8"}) std::setlocale(LC_ALL, Name);
  EXPECT_EQ(ZahlFormat(1234.5, 7, 3), "   1234.500");
  EXPECT_EQ(ZahlAusText("1234.5"), 1234.5);
  std::setlocale(LC_ALL, Vorher.c_str());
}

TEST(ZahlFeld, Tabelle) {
  EXPECT_EQ(ZahlFeld("ab", 4), "  ab");
  EXPECT_EQ(ZahlFeld("abcde", 4), "abcde");
  EXPECT_EQ(ZahlFeld(NullWert{}, 3), "***");
  EXPECT_EQ(ZahlFeld(NullWert{}, 0), "*");
  EXPECT_EQ(ZahlFeld(Wert(), 3), "  0");
  EXPECT_EQ(ZahlFeld(999, 3), "999");
  EXPECT_EQ(ZahlFeld(1000, 3), "***");
  EXPECT_EQ(ZahlFeld(1000, 0), "1000");
  EXPECT_EQ(ZahlFeld(-1234.5, 3), "-1235");  // no overflow test below zero
  EXPECT_EQ(ZahlFeldNull("12", 6), "000012");
  EXPECT_EQ(ZahlFeldNull(1000, 3), "***");
  EXPECT_EQ(ZahlFeldNull(-5, 3), "-005");
  EXPECT_EQ(PnrFormat(Wert()), "*");
  EXPECT_EQ(PnrFormat(NullWert{}), "        ");
  EXPECT_EQ(PnrFormat("12"), "      12");
  EXPECT_EQ(PnrFormat("123456789"), "123456789");
  EXPECT_EQ(PnrFormat("Grün"), "    Grün");  // four characters, five bytes
  EXPECT_EQ(PnrFormat(4711.6), "    4712");
}

TEST(ZahlVonText, NumerischerAnfang) {
  struct Fall {
    const char* Text;
    double Soll;
  };
  constexpr Fall Faelle[] = {
      {"", 0},
      {"abc", 0},
      {" \t12A", 12},
      {"+5", 5},
      {"-5.5x", -5.5},
      {"+-5", 0},
      {"1,5", 1.5},
      {",5", 0.5},
      {"1.234,56", 1.234},
      {"1,234,5", 1.234},
      {"1e3", 1000},
      {"1E+2,5", 100},
      {"12e", 12},
      {"nan", 0},
      {"inf", 0},
      {"0x10", 0},
      {".5", 0.5},
      {"5.", 5},
      {"1e-999", 0},
      {"1e999", Unendlich},
      {"-1e999", -Unendlich},
      {"1 234", 1},
      {"3500100,123456789", 3500100.123456789},
  };
  for (const Fall& f : Faelle) EXPECT_EQ(ZahlAusText(f.Text), f.Soll) << f.Text;
  std::string Text = "1,2,3";
  EXPECT_EQ(ZahlVonText(Text), 1.2);
  EXPECT_EQ(Text, "1.2.3");  // replaced in the caller's text
  Wert Nummer("4711,2");
  EXPECT_EQ(ZahlVonText(Nummer), 4711.2);
  EXPECT_EQ(Nummer, Wert("4711.2"));
}

TEST(ZahlNachText, ZustandBleibt) {
  EXPECT_EQ(ZahlNachText("012"), Wert("012"));
  EXPECT_EQ(ZahlNachText(NullWert{}), Wert(""));
  EXPECT_EQ(ZahlNachText(Wert()), Wert());
  EXPECT_EQ(ZahlNachText(true), Wert(true));
  EXPECT_EQ(ZahlNachText(0.5), Wert("0.5"));
  EXPECT_EQ(ZahlNachText(-4711.25), Wert("-4711.25"));
  EXPECT_EQ(ZahlNachText(1e15), Wert("1000000000000000"));
  EXPECT_EQ(ZahlNachText(0.1 + 0.2), Wert("0.3"));
  EXPECT_EQ(ZahlNachText(1e-7), Wert("0.0000001"));
}

TEST(Text, ZaehltZeichenStattBytes) {
  EXPECT_EQ(FeldLinks("Meßlinie", 4), "Meßl");
  EXPECT_EQ(FeldLinks("ß", 3), "ß  ");
  EXPECT_EQ(FeldRechts("Höhe", 3), "öhe");
  EXPECT_EQ(FeldRechts("ö", 3), "  ö");
  EXPECT_EQ(Leerzeichen(-3), "");
  EXPECT_EQ(TeilVonRechts("abcdef", 3, 2), "de");
  EXPECT_EQ(TeilVonRechts("abcdef", 3, 9), "def");
  EXPECT_EQ(TeilVonRechts("abcdef", 7, 1), "");
  EXPECT_EQ(TeilVonRechts("abcdef", 0, 1), "");
  EXPECT_EQ(KuerzenMitPunkten("Gänsefüßchen", 8), "...ßchen");
  EXPECT_EQ(KuerzenMitPunkten("abcdef", 3), "abcdef");
  EXPECT_EQ(Grosstext("kanalmeßstäb"), "KANALMEßSTÄB");
}

TEST(Text, LeereUndRaender) {
  EXPECT_EQ(Trimmen("\t \t"), "");
  EXPECT_EQ(Trimmen(" 12A\t"), "12A");
  EXPECT_EQ(Trimmen(12.5), "12.5");
  EXPECT_TRUE(IstLeerText("") && IstZahlText(""));
  EXPECT_FALSE(IstLeerText("\t"));
  EXPECT_TRUE(IstZahlText("+1 2.\t"));
  EXPECT_FALSE(IstZahlText("1e3"));
  EXPECT_EQ(PfadVerbinden("", "a"), "");
  EXPECT_EQ(PfadVerbinden("c:\\", "\\a"), "c:\\a");
  EXPECT_EQ(PfadVerbinden("c:", "a"), "c:\\a");
  EXPECT_EQ(PfadVerbinden("c:", "\\a"), "c:\\a");
  EXPECT_EQ(PfadVerbinden("c:\\", ""), "c:\\");
  EXPECT_EQ(ZeichenKlasse('7'), 1);
  EXPECT_EQ(ZeichenKlasse('+') + ZeichenKlasse(127) + ZeichenKlasse(9), -3);
  EXPECT_EQ(ZeichenKlasse('A'), 0);
}

TEST(Winkel, Quadranten) {
  struct Fall {
    const char* Name;
    double dR, dH, Gon, Mathe;
  };
  const Fall Faelle[] = {
      {"north", 0, 10, 0, 90},       {"north-east", 10, 10, 50, 45},
      {"east", 10, 0, 100, 0},       {"south-east", 10, -10, 150, 315},
      {"south", 0, -10, 200, 270},   {"south-west", -10, -10, 250, 225},
      {"west", -10, 0, 300, 180},    {"north-west", -10, 10, 350, 135},
      {"equal points", 0, 0, 0, 90},
  };
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    EXPECT_NEAR(Richtungswinkel(3500000, 5600000, 3500000 + f.dR, 5600000 + f.dH), f.Gon, 1e-10);
    EXPECT_NEAR(WinkelGrad(f.dH, f.dR), f.Mathe, 1e-10);
  }
  EXPECT_EQ(RadNachGonVoll(0), 0);  // deliberate, not 400
  EXPECT_EQ(GonNachGradMath(0), 0);
  EXPECT_EQ(GonNachGradMath(100), 270);
  EXPECT_EQ(GradNachGonMath(0), 0);
  EXPECT_NEAR(GradNachGonMath(GonNachGradMath(123.4567)), 123.4567, 1e-12);
  EXPECT_NEAR(SinGon(100) + CosGon(200) + TanGon(50) - SinGrad(90), 0, 1e-12);
}

TEST(Winkel, Reduzieren) {
  struct Fall {
    double Ein, Aus;
  };
  constexpr Fall Faelle[] = {{400, 0}, {-0.0001, 399.9999}, {799.5, 399.5}, {-400, 0}, {-1e-20, 0}, {0, 0}};
  for (const Fall& f : Faelle) {
    double g = f.Ein;
    GonReduzieren(g);
    EXPECT_DOUBLE_EQ(g, f.Aus) << f.Ein;
  }
  double Gross = 1e300, Grad = -30, Keine = Unendlich;  // must end
  GonReduzieren(Gross);
  GradReduzieren(Grad);
  GonReduzieren(Keine);
  EXPECT_TRUE(Gross >= 0 && Gross < 400);
  EXPECT_EQ(Grad, 330);
}

TEST(Winkel, Listen) {
  const double R[] = {0, 10, 20}, H[] = {0, 0, 30}, Gewicht[] = {1, 3, 0}, Aus[] = {1, -1, 0};
  double r = -1, h = -1, m = -1;
  EXPECT_EQ(Schwerpunkt(R, H, 0, r, h), -1);
  EXPECT_EQ(Schwerpunkt(R, H, 4, r, h), -1);
  EXPECT_EQ(r, -1);
  EXPECT_EQ(Schwerpunkt(R, H, 3, r, h), 0);
  EXPECT_EQ(r + h, 20);
  EXPECT_EQ(MittelOhneNull(R, 3, m), 0);
  EXPECT_EQ(m, 15);
  EXPECT_EQ(MittelOhneNull(H, 2, m), 0);
  EXPECT_EQ(m, 0);
  EXPECT_EQ(MittelGewichtet(R, Gewicht, 3, m), 0);
  EXPECT_EQ(m, 7.5);
  EXPECT_EQ(MittelGewichtet(R, Aus, 3, m), 0);
  EXPECT_EQ(m, 0);
  std::vector<int> Indizes;
  int Treffer = 0;
  PunkteImKreis(0, 0, R, H, 3, Indizes, Treffer, 10);
  EXPECT_EQ(Treffer, 1);  // strictly nearer: the point at 10 m stays out
  EXPECT_EQ(PunktIstNah(0, 0, 10, 0, 10), 1);
}

}  // namespace
}  // namespace tavorena
