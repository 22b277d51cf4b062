#include "Testhilfe.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {
namespace {

struct Ziel {
  std::string Pnr;
  double R, H, Z;
};

// A day in a strip of millions: observations that follow from the coordinates, as an instrument writes them.
struct Tag {
  Tag(bool MitSechzehn, double M, bool BeideLagen)
      : Sechzehn(MitSechzehn), Maßstab(M), ZweiLagen(BeideLagen) {}
  const bool Sechzehn;
  const double Maßstab;
  const bool ZweiLagen;
  std::mt19937 Zufall{1950};
  std::string Gsi, Kor;
  std::vector<Ziel> Neue;

  double Aus(double Von, double Bis) { return std::uniform_real_distribution<>(Von, Bis)(Zufall); }
  std::string Wort(const std::string& Kopf, double Wert, double Faktor) const {
    const auto Ganz = static_cast<long long>(std::llround(std::fabs(Wert) * Faktor));
    return Kopf + (Wert < 0 ? "-" : "+") + FeldZiffern(std::to_string(Ganz)) + " ";
  }
  [[nodiscard]] std::string FeldZiffern(const std::string& Text) const {
    return std::string((Sechzehn ? 16 : 8) - Text.size(), '0') + Text;
  }
  std::string Anfang(const char* Index) const { return (Sechzehn ? "*" : "") + std::string(Index); }
  void Code(const std::string& Stand) {
    Gsi += Anfang("41....+") + FeldZiffern("0") + " 42....+" + FeldZiffern("60") + " 43....+" +
           FeldZiffern(Stand) + "\r\n";
  }
  void Messung(const std::string& Pnr, double Hz, double V, double s, bool ZweiteLage) {
    if (ZweiteLage) Hz += Hz < 200 ? 200 : -200, V = 400 - V;
    Gsi += Anfang("110001+") + FeldZiffern(Pnr) + " " + Wort("21...2", Hz, 1e5) + Wort("22...2", V, 1e5) +
           Wort("31...6", s, 1e4) + Wort("87...0", 1.3, 1e3) + Wort("88...0", 1.55, 1e3) + "\r\n";
  }
  // To 4 decimals, which is what the rows keep.
  double Vier(double Von, double Bis) { return std::round(Aus(Von, Bis) * 1e4) / 1e4; }
  void Station(int n) {
    const Ziel S{std::to_string(900 + n), Aus(3.4e6, 3.6e6), Aus(5.5e6, 5.7e6), Aus(50, 300)};
    const double Eps = Aus(0, 400);
    Code(S.Pnr);
    for (int i = 0; i < 12; ++i) {  // the scale is of no account in the height of the station
      const double Hz = Vier(0, 399), V = Vier(80, 120), s = Vier(10, 900), D = Maßstab * s;
      const Ziel P{std::to_string(n * 1000 + i), S.R + D * SinGon(V) * SinGon(Hz + Eps),
                   S.H + D * SinGon(V) * CosGon(Hz + Eps), S.Z + 1.55 + (i < 4 ? s : D) * CosGon(V) - 1.3};
      for (int Lage = 0; Lage < (ZweiLagen ? 2 : 1); ++Lage) Messung(P.Pnr, Hz, V, s, Lage == 1);
      if (i >= 4) {
        Neue.push_back(P);
        continue;
      }
      Kor += P.Pnr + " " + ZahlFormat(P.R, 7, 6) + " " + ZahlFormat(P.H, 7, 6) + " " + ZahlFormat(P.Z, 4, 6) +
             "\r\n";
    }
    Neue.push_back(S);
  }
};

class Stationieren : public TabellenTest {
 protected:
  Stationieren() {
    Umgebungsvariable("TAVORENA_ORDNER", Ordner.Pfad("app").c_str());
    Ruf.Koordinaten = Ordner.Pfad("a.kor");
    Ruf.Datei = Ordner.Pfad("a.gsi");
    Ruf.Protokoll = Ordner.Pfad("a.dru");
    Ruf.Werte = {{"--art", "helmert"}, {"--stapel-ausgabe", Ordner.Pfad("a.sta")}};
  }
  ~Stationieren() override { Umgebungsvariable("TAVORENA_ORDNER"); }
  int Laufen(const Konsolenbefehl& B) {
    Aus.str("");
    Meldungen.str("");
    return SitzungFühren(B, Ruf, {Aus, Meldungen, ""});
  }
  // Without its stamps.
  static std::string Akte(const std::string& Datei) {
    std::istringstream Zeilen(Inhalt(Datei));
    std::string Text;
    for (std::string Zeile; std::getline(Zeilen, Zeile);) {
      if (Zeile.find("Tavorena  ") == std::string::npos) Text += Zeile + "\n";
    }
    return Text;
  }
  // The batch replayed on the coordinates of the morning gives the same protocol.
  void NachlaufPrüfen() {
    Ruf.Datei = Ordner.Pfad("a.sta");
    Ruf.Protokoll = Ordner.Pfad("b.dru");
    Ruf.Werte.clear();
    EXPECT_EQ(Laufen(Stapelbefehl()), 0) << Meldungen.str();
    EXPECT_EQ(Akte(Ordner.Pfad("b.dru")), Akte(Ordner.Pfad("a.dru")));
  }
  Aufruf Ruf;
  std::ostringstream Aus, Meldungen;
};

TEST_F(Stationieren, TageKommenZurück) {
  for (const bool Sechzehn : {false, true}) {
    for (const bool Kongruent : {false, true}) {
      SCOPED_TRACE(std::string(Sechzehn ? "16" : "8") + (Kongruent ? " kongruent" : " helmert"));
      Tag T(Sechzehn, Kongruent ? 1 : 1.00012, Sechzehn == Kongruent);
      for (int n = 1; n <= 8; ++n) T.Station(n);
      for (const char* Alte : {"a.sta", "a.dru", "b.dru"}) std::remove(Ordner.Pfad(Alte).c_str());
      Schreibe(Ruf.Koordinaten, T.Kor);
      Ruf.Datei = Ordner.Pfad("a.gsi");
      Ruf.Protokoll = Ordner.Pfad("a.dru");
      Schreibe(Ruf.Datei, T.Gsi);
      Ruf.Werte = {{"--art", Kongruent ? "kongruent" : "helmert"},
                   {"--lagen", T.ZweiLagen ? "mitteln" : "einzeln"},
                   {"--stapel-ausgabe", Ordner.Pfad("a.sta")}};
      ASSERT_EQ(Laufen(StationierBefehl()), 0) << Aus.str() << Meldungen.str();
      EXPECT_NE(Aus.str().find("901: 4 Anschlußpunkte, MK 0.000"), std::string::npos) << Aus.str();
      EXPECT_NE(Aus.str().find(", 8 Punkte, 0 Marken\n"), std::string::npos);
      EXPECT_EQ(KorAnzahl, 8 * 13);
      for (const Ziel& P : T.Neue) {
        const int z = KorSuche(std::string_view(P.Pnr));
        ASSERT_GE(z, 0) << P.Pnr;
        const KorSatz K = KorPunkt(z);
        EXPECT_LT(std::max({std::fabs(K.Rechts - P.R), std::fabs(K.Hoch - P.H), std::fabs(K.Hoehe - P.Z)}),
                  1e-4)
            << P.Pnr;
      }
      NachlaufPrüfen();
    }
  }
}

}  // namespace
}  // namespace tavorena::test
