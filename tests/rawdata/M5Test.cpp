#include "Testhilfe.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>

#include <tavorena/core/Winkel.h>
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

// Points observed from two stations come back, whatever the order of the number, the unit, the face and the
// distance; each "th" and "ih" counts until the next, and one coordinate of the instrument is off.
TEST_F(M5Test, KonstruierteDatei) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> W(-80, 80);
  for (const bool Hinten : {true, false}) {
    std::string Text;
    const auto Schreiben = [&](const char* Form, auto... Werte) {
      char Puffer[200];
      std::snprintf(Puffer, sizeof Puffer, Form, Werte...);
      Text += Puffer + std::string("| $\r\n");
    };
    const char* const Kopf =
        Hinten ? "For M5|Adr 00001|PI1 %10s%-5s%12d" : "For M5|Adr 00001|PI1 %8s%12d%-5s";
    const auto Punktzeile = [&](int Nummer, const char* Code, const std::string& Felder) {
      char Anfang[100];
      Hinten ? std::snprintf(Anfang, sizeof Anfang, Kopf, "", Code, Nummer)
             : std::snprintf(Anfang, sizeof Anfang, Kopf, "", Nummer, Code);
      Text += Anfang + Felder + "| $\r\n";
    };
    const auto Feld = [](const char* Marke, double Zahl, const char* Einheit, int Stellen) {
      char Puffer[60];
      std::snprintf(Puffer, sizeof Puffer, "|%-2s %14.*f %-4s", Marke, Stellen, Zahl, Einheit);
      return std::string(Puffer);
    };
    std::vector<Rohkoordinate> Soll;
    for (int s = 0; s < 2; ++s) {
      const double R = 3456000 + s * 50, H = 5612000, Z = 120;
      double ih = 1.6 + s * 0.1;
      Punktzeile(1 + s, "S", Feld("Y", R, "m", 3) + Feld("X", H, "m", 3) + Feld("Z", Z, "m", 3));
      Schreiben("For M5|Adr 00001|TI  INPUT                      |ih %14.3f m   ", ih);
      for (int i = 0; i < 8; ++i) {
        if (i == 4) Schreiben("For M5|Adr 00001|TI  INPUT                      |ih %14.3f m   ", ih += 0.02);
        const double dR = W(Zufall), dH = W(Zufall), dZ = W(Zufall) / 10, th = 1.3 + 0.01 * i;
        const double Waag = std::hypot(dR, dH), Ziel = dZ - ih + th, Gon = Richtungswinkel(0, 0, dR, dH);
        const double V = WinkelGon(Waag, Ziel), Schräg = std::hypot(Waag, Ziel);
        const bool Zweite = i % 4 == 3;
        if (i % 2 == 0)
          Schreiben("For M5|Adr 00001|TI  INPUT                      |th %14.3f m   ", th + 0.01);
        Schreiben("For M5|Adr 00001|TI  PR                         |th %14.3f m   ", th);
        const double Hz = std::fmod(Gon + (Zweite ? 200 : 0), 400), Vz = Zweite ? 400 - V : V;
        const bool Deg = i % 3 == 1;
        Punktzeile(100 * (s + 1) + i, "B",
                   (i % 2 == 1 && !Zweite ? Feld("HD", Waag, "m", 5) : Feld("SD", Schräg, "m", 5)) +
                       Feld("Hz", Deg ? Hz * 0.9 : Hz, Deg ? "DEG" : "gon", 7) +
                       Feld("V1", Deg ? Vz * 0.9 : Vz, Deg ? "DEG" : "gon", 7));
        Soll.push_back({std::to_string(100 * (s + 1) + i), "B", R + dR, H + dH, Z + dZ, 0});
        Punktzeile(100 * (s + 1) + i, "B",
                   Feld("Y", R + dR + (i == 5 ? 0.0025 : 0.001), "m", 4) + Feld("X", H + dH, "m", 4) +
                       Feld("Z", Z + dZ, "m", 4));
      }
    }
    Punktzeile(900, "H", Feld("HD", 10, "m", 3) + Feld("Hz", 100, "gon", 4));
    Punktzeile(901, "H", Feld("SD", 10, "m", 3) + Feld("Hz", 100, "gon", 4));
    Punktzeile(902, "K", Feld("Y", 1, "m", 3) + Feld("X", 2, "m", 3));
    Punktzeile(903, "K", Feld("SD", 10, "ft", 3) + Feld("Hz", 100, "gon", 4) + Feld("V1", 100, "gon", 4));
    Rohdaten Roh;
    ASSERT_EQ(M5TextLesen(Text, {}, Roh), 0);
    const std::vector<Rohkoordinate> Ist = M5Punkte(Roh);
    ASSERT_EQ(Ist.size(), Soll.size() + 4)
        << "two stations, a horizontal distance, a lone pair of coordinates";
    for (const Rohkoordinate& S : Soll) {
      const auto P =
          std::find_if(Ist.begin(), Ist.end(), [&](const Rohkoordinate& K) { return K.Nummer == S.Nummer; });
      ASSERT_NE(P, Ist.end()) << S.Nummer;
      EXPECT_NEAR(std::hypot(P->Rechts - S.Rechts, P->Hoch - S.Hoch), 0, 1e-4) << S.Nummer;
      EXPECT_NEAR(P->Höhe.Zahl(), S.Höhe.Zahl(), 1e-4) << S.Nummer;
    }
    EXPECT_TRUE(Gleich(Ist[Ist.size() - 2].Rechts, 3456060, Ist[Ist.size() - 2].Höhe.IstGegeben(), false,
                       Ist.back().Nummer, "902"));
    const Rohbefund& B = Roh.Befund;
    ASSERT_TRUE(Gleich(B.Auffällig.size(), 1U, B.NichtGenommen.size(), 2U, B.NichtGelesen.size(), 1U));
    EXPECT_TRUE(Gleich(B.Auffällig[0].Anzahl, 2U, B.NichtGenommen[0].Was, "ohne Zenitwinkel",
                       B.NichtGenommen[1].Was, "ohne Strecke", B.NichtGelesen[0].Was, "SD mit Einheit ft",
                       B.Stationen, 2U, B.ZweiteLage, 4U));
  }
}

}  // namespace
}  // namespace tavorena::test
