#include "Testhilfe.h"

#include <algorithm>
#include <cmath>
#include <random>

#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/M5.h>
#include <tavorena/rawdata/M5Zeile.h>

namespace tavorena::test {
namespace {

using M5Test = TabellenTest;

TEST_F(M5Test, NummerUndCodeInAllenFormen) {
  struct Fall {
    const char* Zeile;
    bool Hinten;
    const char *Nummer, *Code;
    std::size_t Felder;
  };
  for (const Fall& f :
       {Fall{"For M5|Adr 00009|PI1           S              17|Y           0.000 m   |X           0.000 m   "
             "| $",
             true, "17", "S", 2},
        {"For M5|Adr 00009|PI1                   17S", false, "17", "S", 0},
        {"For M5|Adr 00009|PI1  Süd    1234567890123Baum |                      |SD          1.000 m   |",
         false, "123456789012", "3Baum", 1},
        {"For R4|KR  A61111|X       10.750 m   |Y       51.494 m   |Z       11.246 m   |$", false, "1111",
         "A6", 3},
        {"For R5|Adr 00001|KR SOS  12|X       10.750 m   |$", false, "12", "SOS", 1},
        {"   0007                   1SOS     X       -0.472                 Z     0.004 $", false, "1", "SOS",
         2}}) {
    std::string_view Nummer, Code;
    const M5Zeile Z = M5Zerlegen(f.Zeile);
    EXPECT_TRUE(Gleich(Z.Art, M5Art::Punkt, Z.Anzahl, f.Felder, M5NummerHinten(Z), f.Hinten)) << f.Zeile;
    M5Nummer(Z, f.Hinten, Nummer, Code);
    EXPECT_TRUE(Gleich(Nummer, f.Nummer, Code, f.Code)) << f.Zeile;
  }
  for (const char* Text :
       {"For M5|Adr 00009|TI  INPUT                      |th          1.459 m   |",
        "For R4|TR INPUT  |th       1.500 m   |", "   0005 INPUT                       th       1.500 $",
        "   0003                                            Om     397.0370             $"}) {
    EXPECT_TRUE(Gleich(M5Zerlegen(Text).Art, M5Art::Text, M5Zerlegen(Text).Anzahl, 1U)) << Text;
  }
  for (const char* Text : {"", "For ", "For M5|Adr 1", "For M5||", "1001 3500100 5600200", "   12x4 "})
    EXPECT_EQ(M5Zerlegen(Text).Art, M5Art::Keine) << Text;
}

TEST_F(M5Test, Einheiten) {
  struct Fall {
    const char *Zahl, *Einheit;
    double Gon;  // below -900: not understood
  };
  for (const Fall& f : {Fall{"110.0849", "DMS", (110 + 8 / 60.0 + 49 / 3600.0) / 0.9},
                        {"89.5960", "DMS", -999},
                        {"0.6000", "DMS", -999},
                        {"-0.3000", "DMS", -0.5 / 0.9},
                        {"29.5959", "DMS", (30 - 1 / 3600.0) / 0.9},
                        {"90", "DEG", 100},
                        {"99,5", "grd", 99.5},
                        {"99.5", "gon", 99.5},
                        {"99.5", "", 99.5},
                        {"99.5", "mil", -999},
                        {"9x", "gon", -999}}) {
    double Gon = -999;
    EXPECT_EQ(M5Winkel({"Hz", f.Zahl, f.Einheit}, Gon), f.Gon > -900) << f.Zahl;
    EXPECT_NEAR(Gon, f.Gon, 1e-9) << f.Zahl << f.Einheit;
  }
}

std::string Feld(const char* Marke, double Zahl, const char* Einheit = "m", int Stellen = 4) {
  return "|" + FeldLinks(Marke, 3) + RechtsBündig(ZahlFormat(Zahl, -1, Stellen), 14) + " " +
         FeldLinks(Einheit, 4);
}

// A file that is written line by line, the number last or in its columns.
struct M5Schreiber {
  bool Hinten;
  std::string Text;
  void Ti(const std::string& Felder) {
    Text += "For M5|Adr 00001|TI  " + Leerzeichen(27) + Felder + "| $\r\n";
  }
  void Pi(int Nummer, const char* Code, const std::string& Felder) {
    const std::string Nr = RechtsBündig(std::to_string(Nummer), 12);
    Text += "For M5|Adr 00001|PI1 " +
            (Hinten ? RechtsBündig(Code, 15) + Nr : Leerzeichen(8) + Nr + FeldLinks(Code, 7)) + Felder +
            "| $\r\n";
  }
};

// Points observed from two stations come back, whatever the order of the number, the unit, the face and the
// distance; each "th" and "ih" counts until the next, and one coordinate of the instrument is off.
TEST_F(M5Test, KonstruierteDatei) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> W(-80, 80);
  for (const bool Hinten : {true, false}) {
    M5Schreiber M{Hinten, {}};
    std::vector<Rohkoordinate> Soll;
    for (int s = 1; s <= 2; ++s) {
      const double R = 3456000 + s * 50, H = 5612000, Z = 120;
      double ih = 1.6 + s * 0.1;
      M.Pi(s, "S", Feld("Y", R) + Feld("X", H) + Feld("Z", Z));
      M.Ti(Feld("ih", ih));
      for (int i = 0; i < 8; ++i) {
        if (i == 4) M.Ti(Feld("ih", ih += 0.02));
        const double dR = W(Zufall), dH = W(Zufall), dZ = W(Zufall) / 10, th = 1.3 + 0.01 * i;
        const double Waag = std::hypot(dR, dH), Ziel = dZ - ih + th, V = WinkelGon(Waag, Ziel);
        const bool Zweite = i % 4 == 3, Waagerecht = i % 2 == 1 && !Zweite;
        const double Hz = std::fmod(Richtungswinkel(0, 0, dR, dH) + (Zweite ? 200 : 0), 400);
        const double Grad = i % 3 == 1 ? 0.9 : 1;
        const char* const Einheit = i % 3 == 1 ? "DEG" : "gon";
        if (i % 2 == 0) M.Ti(Feld("th", th + 0.01));
        M.Ti(Feld("th", th));
        M.Pi(100 * s + i, "B",
             (Waagerecht ? Feld("HD", Waag) : Feld("SD", std::hypot(Waag, Ziel))) +
                 Feld("Hz", Hz * Grad, Einheit, 7) + Feld("V1", (Zweite ? 400 - V : V) * Grad, Einheit, 7));
        M.Pi(100 * s + i, "B",
             Feld("Y", R + dR + (i == 5 ? 0.0025 : 0.001)) + Feld("X", H + dH) + Feld("Z", Z + dZ));
        Soll.push_back({std::to_string(100 * s + i), "B", R + dR, H + dH, Z + dZ, 0});
      }
    }
    M.Pi(2, "S", "");  // once more, with the coordinates that it has
    M.Pi(900, "H", Feld("HD", 10) + Feld("Hz", 100, "gon"));
    M.Pi(901, "H", Feld("SD", 10) + Feld("Hz", 100, "gon"));
    M.Pi(901, "H", Feld("SD", 10) + Feld("Hz", 100, "gon") + Feld("V1", 0, "gon"));
    M.Pi(902, "K", Feld("Y", 1) + Feld("X", 2));
    M.Pi(903, "K", Feld("SD", 10, "ft") + Feld("Hz", 100, "gon") + Feld("V1", 100, "gon"));
    Rohdaten Roh;
    ASSERT_EQ(M5TextLesen(M.Text, {}, Roh), 0);
    const std::vector<Rohkoordinate> Ist = M5Punkte(Roh);
    ASSERT_EQ(Ist.size(), Soll.size() + 4)
        << "two stations, a horizontal distance, a lone pair of coordinates";
    for (const Rohkoordinate& S : Soll) {
      const auto P =
          std::find_if(Ist.begin(), Ist.end(), [&](const auto& K) { return K.Nummer == S.Nummer; });
      ASSERT_NE(P, Ist.end()) << S.Nummer;
      EXPECT_NEAR(std::hypot(P->Rechts - S.Rechts, P->Hoch - S.Hoch), 0, 1.5e-4) << S.Nummer;
      EXPECT_NEAR(P->Höhe.Zahl(), S.Höhe.Zahl(), 1.5e-4) << S.Nummer;
    }
    const Rohkoordinate& Vorletzte = Ist[Ist.size() - 2];
    EXPECT_TRUE(
        Gleich(Vorletzte.Rechts, 3456110, Vorletzte.Höhe.IstGegeben(), false, Ist.back().Nummer, "902"));
    const Rohbefund& B = Roh.Befund;
    ASSERT_TRUE(Gleich(B.Auffällig.size(), 1U, B.NichtGenommen.size(), 3U, B.NichtGelesen.size(), 1U));
    EXPECT_TRUE(Gleich(B.Auffällig[0].Anzahl, 2U, B.NichtGenommen[0].Was, "ohne Zenitwinkel",
                       B.NichtGenommen[1].Was, "Zenitwinkel 0", B.NichtGenommen[2].Was, "ohne Strecke",
                       B.NichtGelesen[0].Was, "SD mit Einheit ft", B.Stationen, 2U, B.ZweiteLage, 4U));
  }
}

}  // namespace
}  // namespace tavorena::test
