#include "Abschrift.h"
#include "Testhilfe.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Sortierung.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena::test {
namespace {

// The plain quicksort on numbers and the rows that go with them.
void Ordnen(std::vector<std::string>& Nr, std::vector<int>& Begleiter) {
  Abschrift(Nr, [&](std::size_t i, std::size_t j) {
    std::swap(Nr[i], Nr[j]);
    std::swap(Begleiter[i], Begleiter[j]);
  });
}

// Nearly all distinct, many duplicates (0, -0 and others below it among them), mixed with letters, with
// commas and letters, long ones that begin alike.
std::string Zufallsnummer(std::mt19937& Zufall, int Art) {
  const auto n = static_cast<int>(Zufall() % 40);
  const std::string Zahl = std::to_string(n);
  if (Art == 5) return (n % 2 == 0 ? "Nagel in " : "Nagel,in ") + Zahl;
  if (Art == 0) return std::to_string(Zufall());
  if (Art == 1 && n % 5 == 0) return "-" + Zahl;
  if (Art == 2 && n % 3 == 0) return {static_cast<char>('A' + n % 26)};
  if (Art < 3) return Zahl;
  if (Art == 3) return n % 2 == 0 ? Zahl + "," + std::to_string(n % 7) : Zahl + "A";
  return n % 4 == 0 ? "A," + Zahl : Zahl + ",5";
}

void GleichDerAbschrift(std::vector<std::string> Nr) {
  std::vector<std::string> Soll = Nr;
  std::vector<int> SollFolge(Nr.size()), Folge;
  std::iota(SollFolge.begin(), SollFolge.end(), 0);
  Ordnen(Soll, SollFolge);
  std::vector<Sortierwert> Werte;
  for (const auto& N : Nr) Werte.push_back(SortierwertVon(N));
  EXPECT_EQ(SortierfolgeErmitteln(Nr, Werte, KommaZeilen(Nr), Folge),
            std::is_sorted(SollFolge.begin(), SollFolge.end()));
  ASSERT_EQ(Folge, SollFolge);
  SpaltenOrdnen(Folge, Nr);
  ASSERT_EQ(Nr, Soll);
}

TEST(Sortierung, WieDieAbschrift) {
  std::mt19937 Zufall(19700101);
  for (int Lauf = 0; Lauf < 2000 && !HasFatalFailure(); ++Lauf) {
    SCOPED_TRACE(Lauf);
    std::vector<std::string> Nr(Lauf % 100 == 0 ? 2000 : Zufall() % 60);
    for (auto& N : Nr) N = Zufallsnummer(Zufall, Lauf % 6);
    if (Lauf % 3 == 0) std::sort(Nr.begin(), Nr.end());
    GleichDerAbschrift(Nr);
  }
}

// Each part is but two rows shorter than the one before.
TEST(Sortierung, SteigtUndFällt) {
  for (const int Anzahl : {2000, 20000}) {
    std::vector<std::string> Nr(static_cast<std::size_t>(Anzahl));
    for (int i = 1; i <= Anzahl / 2; ++i) *(Nr.begin() + i - 1) = *(Nr.end() - i) = std::to_string(i);
    if (Anzahl == 2000) GleichDerAbschrift(Nr);
    std::vector<Sortierwert> Werte(Nr.size());
    std::transform(Nr.begin(), Nr.end(), Werte.begin(), SortierwertVon);
    std::vector<int> Folge;
    EXPECT_FALSE(SortierfolgeErmitteln(Nr, Werte, {}, Folge));
    SpaltenOrdnen(Folge, Werte);
    EXPECT_TRUE(std::is_sorted(Werte.begin(), Werte.end(),
                               [](const Sortierwert& a, const Sortierwert& b) { return a.Zahl < b.Zahl; }));
  }
}

using Punkttabelle = TabellenTest;

// One table against a plain list through a long row of new points: order, columns and search stay together.
TEST_F(Punkttabelle, NeupunktHältDieSpaltenZusammen) {
  std::mt19937 Zufall(7);
  for (int Art = 0; Art < 4; ++Art) {
    KorLeeren();
    std::vector<std::string> Soll;
    std::vector<int> Begleiter;
    for (int i = 0; i < 120; ++i) {
      const std::string Pnr = Zufallsnummer(Zufall, Art);
      Wert Vorhanden(Pnr);
      if (KorSucheMitPunkt(Vorhanden) >= 0) continue;
      Punkt(Pnr.c_str(), i, 2 * i, 3 * i, std::to_string(i).c_str());
      Soll.push_back(Pnr);
      Begleiter.push_back(i);
      Ordnen(Soll, Begleiter);
    }
    ASSERT_EQ(KorAnzahl, static_cast<int>(Soll.size()));
    for (int z = 0; z < KorAnzahl; ++z) {
      const std::string& Nr = Soll[static_cast<std::size_t>(z)];
      const int B = Begleiter[static_cast<std::size_t>(z)];
      const KorSatz S = KorPunkt(z);
      ASSERT_TRUE(Gleich(S.Pnr, Nr, S.Rechts, B, S.Hoch, 2 * B, S.Hoehe, 3 * B, S.Symbol, std::to_string(B),
                         S.Info->Punktart, B));
      const int Gefunden = KorSuche(std::string_view(Nr));
      ASSERT_TRUE(Gefunden >= 0 && KorPnr(Gefunden) == Nr);
    }
  }
}

TEST_F(Punkttabelle, OrdnungNachZahlenwert) {
  for (const char* Pnr : {"10", "2", "1,5"}) Punkt(Pnr, 1, 1);
  EXPECT_TRUE(Gleich(KorPnr(0), "1.5", KorPnr(1), "2"));  // the comma has become a point
  EXPECT_EQ(KorSuche(std::string_view()), -1);            // what a record without a number asks for
  EXPECT_TRUE(Gleich(KorSuche(Wert(1.5)), 0, KorSuche(Wert(" 10\t")), 2, KorSuche(Wert("1,5")), -1,
                     KorSuche(Wert("010")), -1));
}

// What is handed back is found: as text it may keep its comma, in a comparison of values it loses it.
TEST_F(Punkttabelle, KommaWieInDerTabelle) {
  NeupunktErgebnis E;
  for (const char* Pnr : {"1,5", "Nagel", "Nagel,1", "Nagel,2", "7"}) {
    Wert Nummer(Pnr);
    ASSERT_EQ(Neupunkt(Nummer, 1, 1, 0, "", nullptr, E), NeupunktCode::Neu);
    EXPECT_TRUE(Gleich(Nummer, Wert(E.Pnr), KorSuche(Nummer) >= 0, true)) << Pnr;
  }
  Wert Gefragt("1,5");
  EXPECT_TRUE(Gleich(KorFind(Gefragt), KorSuche(Wert("1.5")), Gefragt, Wert("1.5")));
  Haken.FormEinzelKorein = [](Wert& Pnr) {
    NeupunktErgebnis Eines;
    Pnr = Wert("2,5");
    return Neupunkt(Pnr, 8, 9, 0, "", nullptr, Eines) == NeupunktCode::Neu ? 1 : -1;
  };
  Gefragt = Wert("9,9");
  EXPECT_TRUE(Gleich(KorPnr(std::max(KorFind(Gefragt), 0)), "2.5", Gefragt, Wert("2.5")));
  for (const Konfliktwort Wort : {Konfliktwort::NeuenNeunum, Konfliktwort::AltenNeunum}) {
    const bool Neuer = Wort == Konfliktwort::NeuenNeunum;
    Haken.PunktVorhandenBehandeln = [&](const Konflikt& K) {
      EXPECT_EQ(K.Pnr, "1.5");
      return Konfliktantwort{Wort, Neuer ? "3,5" : "4,5"};
    };
    Wert Pnr("1,5");
    EXPECT_GT(static_cast<int>(Neupunkt(Pnr, 2, 2, 0, "", nullptr, E)), 2);
    EXPECT_TRUE(Gleich(Pnr, Wert(E.Pnr), E.Pnr, Neuer ? "3.5" : "1.5", E.AlterPnr, Neuer ? "1.5" : "4.5"));
  }
}

TEST_F(Punkttabelle, SiebenAntworten) {
  struct Fall {
    Konfliktwort Wort;
    int Code, Punkte;  // points of the table
    const char* Pnr;   // handed back
    double Rechts;     // of the result
    const char* AlterPnr;
    KorSatz Zeile;  // point 5 in the table
  };
  const Fall Fälle[] = {
      {Konfliktwort::Abbrechen, -1, 1, "5", 104, "", {"5", 100, 200, 10, "015"}},
      {Konfliktwort::AltenErsetzen, 1, 1, "5", 104, "", {"5", 104, 196, 12.5, "020"}},
      {Konfliktwort::Mitteln, 2, 1, "5", 102, "", {"5", 102, 198, 11.25, "015"}},
      {Konfliktwort::AltenNeunum, 3, 2, "5", 100, "77", {"5", 104, 196, 12.5, "020"}},
      {Konfliktwort::NeuenVerwerfen, 11, 1, "5", 100, "", {"5", 100, 200, 10, "015"}},
      {Konfliktwort::NeuenNeunum, 13, 2, "77", 104, "5", {"5", 100, 200, 10, "015"}},
  };
  for (const Fall& f : Fälle) {
    SCOPED_TRACE(f.Code);
    KorLeeren();
    Punkt("5", 100, 200, 10, "015");
    int Gefragt = 0, Gemittelt = 0;
    Haken.PunktVorhandenBehandeln = [&](const Konflikt& K) {
      EXPECT_EQ(K.Zeile, 0);
      return Konfliktantwort{++Gefragt == 1 ? Konfliktwort::Nochmal : f.Wort, " 77 "};
    };
    Haken.MittelEintragen = [&](const Mittelpunkt& M) {
      ++Gemittelt;
      EXPECT_EQ(M.AltRechts + M.NeuRechts, 2 * M.Rechts);
    };
    Wert Pnr("5");
    NeupunktErgebnis E;
    EXPECT_EQ(static_cast<int>(Neupunkt(Pnr, 104, 196, 12.5, "020", nullptr, E)), f.Code);
    EXPECT_TRUE(Gleich(Gefragt, 2, Gemittelt, f.Code == 2, E.DeltaRechts, 4, E.DeltaHoch, -4, KorAnzahl,
                       f.Punkte, Pnr.Text(), f.Pnr, E.Rechts, f.Rechts, E.AlterPnr, f.AlterPnr));
    const KorSatz S = KorPunkt(KorSuche(Wert("5")));
    EXPECT_TRUE(Gleich(S.Rechts, f.Zeile.Rechts, S.Hoch, f.Zeile.Hoch, S.Hoehe, f.Zeile.Hoehe, S.Symbol,
                       f.Zeile.Symbol));
  }
}

TEST_F(Punkttabelle, MittelDerHoehe) {
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{Konfliktwort::Mitteln, ""}; };
  using Fall = std::tuple<double, Wert, double>;  // old, new, mean
  for (const auto& [Alt, Neu, Soll] : {Fall{0, 12.5, 12.5}, Fall{10, 12.5, 11.25}, Fall{10, NullWert{}, 10},
                                       Fall{10, 0.0, 10}, Fall{0, NullWert{}, 0}}) {
    KorLeeren();
    Punkt("5", 0, 0, Alt);
    Wert Pnr(5);
    NeupunktErgebnis E;
    EXPECT_EQ(Neupunkt(Pnr, 0, 0, Neu, "020", nullptr, E), NeupunktCode::Gemittelt);
    EXPECT_EQ(KorHoehe[0], Soll);
    EXPECT_EQ(KorSymbol[0], "020");  // only an empty symbol takes the new one
  }
}

TEST_F(Punkttabelle, WasKeinNeupunktWird) {
  NeupunktErgebnis E;
  for (Wert Keine : {Wert(), Wert(NullWert{}), Wert("  ")})
    EXPECT_EQ(Neupunkt(Keine, 1, 1, 0, "", nullptr, E), NeupunktCode::Nichts);
  EXPECT_EQ(KorAnzahl, 0);
  for (int i = 1; i <= KorZeilen; ++i) ASSERT_EQ(KorAnhängen({std::to_string(i)}), 0);
  for (const char* Wort : {"Neupunkt", "Neupunkt", "KorEinfuegen"})
    Skript.Erwarte(std::string("Fehler 9 in Koordinatenmodul.") + Wort);
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) {
    return Konfliktantwort{Konfliktwort::AltenNeunum, "99999"};
  };
  for (Wert Pnr : {Wert("99999"), Wert("7")})
    EXPECT_EQ(Neupunkt(Pnr, 1, 1, 0, "", nullptr, E), NeupunktCode::Nichts);
  EXPECT_EQ(KorPnr(6), "7");  // the table is as before
  KorEinfuegen(3, "x", 1, 1, 1, "", {});
  EXPECT_EQ(KorAnzahl, KorZeilen);
}

TEST_F(Punkttabelle, ZeilenInDerMitte) {
  KorEinfuegen(0, "1", 1, 1, 1, "", {});
  EXPECT_EQ(KorAnzahl, 0);  // the first point comes through Neupunkt
  for (int i = 1; i <= 6; ++i) Punkt(std::to_string(i).c_str(), i, i, i, std::to_string(i).c_str());
  KorBereichLoeschen(2, 9);
  KorBereichLoeschen(-1, 2);
  EXPECT_TRUE(Gleich(KorLoeschen(6), -1, KorLoeschen(-1), -1, KorAnzahl, 6));
  KorBereichLoeschen(1, 2);
  EXPECT_TRUE(Gleich(KorPnr(1), "4", KorSymbol[1], "2"));  // symbols do not follow here
  EXPECT_EQ(KorLoeschen(0), 0);
  EXPECT_TRUE(Gleich(KorPnr(0), "4", KorSymbol[0], "2"));  // here they do
  KorInfoSatz Info;
  Info.Entstehung = "alt";
  EXPECT_EQ(KorZeileSetzen(1, {"5", 5, 5, 5, "5", &Info}), 0);
  KorEinfuegen(1, 45, 9, 9, 9, "neu", {});
  // Attributes only for EDBS and LT4.
  EXPECT_TRUE(Gleich(KorPnr(1), "45", KorInfo[1].Entstehung, "alt", KorSuche(Wert("6")), 3, Skript.Status[1],
                     "4 Punkte"));
}

using Zeilen = std::vector<std::tuple<std::string, double, double, double, std::string, KorInfoSatz>>;

Zeilen Bild(int Von, int Bis) {
  Zeilen Z;
  for (; Von < std::min(Bis, KorAnzahl); ++Von) {
    const KorSatz S = KorPunkt(Von);
    Z.emplace_back(S.Pnr, S.Rechts, S.Hoch, S.Hoehe, S.Symbol, *S.Info);
  }
  return Z;
}

// What a listener keeps that knows no operation: the rows that a change may touch. Ganz is for the test.
struct Schritt {
  int Anzahl, z;
  Zeilen Alte, Ganz;
  void Zurücknehmen() {
    KorAbschneiden(Anzahl);
    for (const auto& [Pnr, R, H, Hoehe, Symbol, Info] : Alte) {
      const KorSatz S{Pnr, R, H, Hoehe, Symbol, &Info};
      ASSERT_EQ(z < KorAnzahl ? KorZeileSetzen(z, S) : KorAnhängen(S), 0);
      ++z;
    }
  }
};

TEST_F(Punkttabelle, JedeÄnderungLäßtSichZurücknehmen) {
  std::mt19937 Zufall(11);
  const auto Eine = [&](int Bis) { return static_cast<int>(Zufall() % static_cast<unsigned>(Bis)); };
  const auto Pnr = [&] { return Zufallsnummer(Zufall, Eine(5)); };
  const std::string Datei = Ordner.Pfad("dazu.kor");
  PortsSetzen({});  // what is asked and told on the way does not matter here
  Haken.PunktVorhandenBehandeln = [&](const Konflikt&) {
    return Konfliktantwort{static_cast<Konfliktwort>(Eine(6)), Pnr()};
  };
  for (int Lauf = 0; Lauf < 20; ++Lauf) {
    KorLeeren();
    std::vector<Schritt> Schritte;
    Zeilen Geordnet;  // as the sort has told it
    Haken.VorÄnderung = [&](const KorÄnderung& Neu) {
      Schritte.push_back({KorAnzahl, Neu.Von, Bild(Neu.Von, Neu.Bis), Bild(0, KorAnzahl)});
      Geordnet.clear();
      for (const int z : Neu.Folge) Geordnet.push_back(Bild(z, z + 1).front());
    };
    for (std::size_t i = 0; i < 60; ++i) {
      const std::uint64_t Stand = KorStand - Schritte.size();
      const int Tat = i < 20 ? 7 : Eine(9);
      Wert Neu(Pnr());
      NeupunktErgebnis E;
      if (Tat == 0) static_cast<void>(KorLoeschen(Eine(40)));
      if (Tat == 1) KorBereichLoeschen(Eine(40), Eine(40));
      if (Tat == 2) KorEinfuegen(Eine(40), Neu, 1, 2, 3, "ein", {});
      if (Tat == 3) KorVerschieben(Eine(9), 2, 3, 1, 0, 1, Eine(4));
      if (Tat == 4) KorSortieren();
      if (Tat == 5) KorAbschneiden(Eine(80));
      if (Tat == 6) {
        Schreibe(Datei, Pnr() + " 1.0 2 3 x\r\n" + Pnr() + " 4.0 5\r\n");
        static_cast<void>(KorLesen(Datei, static_cast<Lesemodus>(Eine(3) - 1), Dateiformat::Kor));
      }
      if (Tat > 6) static_cast<void>(Neupunkt(Neu, Eine(99), Eine(99), Eine(99), "neu", nullptr, E));
      ASSERT_EQ(KorStand, Stand + Schritte.size());
      ASSERT_TRUE(Geordnet.empty() || std::exchange(Geordnet, {}) == Bild(0, KorAnzahl));
    }
    Haken.VorÄnderung = {};
    for (; !Schritte.empty(); Schritte.pop_back()) {
      Schritte.back().Zurücknehmen();
      ASSERT_EQ(Bild(0, KorAnzahl), Schritte.back().Ganz) << Lauf << ' ' << Schritte.size();
    }
  }
}

TEST_F(Punkttabelle, BereichSucheVerschieben) {
  double a = 0, b = 0, c = 0, d = 0;
  KorBereich(a, b, c, d);
  EXPECT_TRUE(Gleich(a, 999999999.999, b, a, c, -99999999.999, d, c));
  EXPECT_EQ(KorBereichSuche(1, 9, -1), -3);
  for (const char* Pnr : {"10", "12A", "14", "20"}) Punkt(Pnr, std::stod(Pnr), 100, 7);
  constexpr int Nächste[] = {1, 1, 2, -1, -3};
  for (int Start = -1; Start <= 3; ++Start) EXPECT_EQ(KorBereichSuche("11", "15", Start), Nächste[Start + 1]);
  constexpr double Soll[][3] = {{-9, 102, 10}, {102, -9, 10}, {-9, 10, 102}, {10, 102, -9}};
  for (int Tausch = 0; Tausch < 4; ++Tausch) {
    EXPECT_EQ(KorZeileSetzen(0, {"10", 10, 100, 7}), 0);
    KorVerschieben(1, 2, 3, 1, 0, 0, Tausch);
    const auto& [R, H, Hoehe] = Soll[Tausch];
    EXPECT_TRUE(Gleich(KorRechts[0], R, KorHoch[0], H, KorHoehe[0], Hoehe)) << Tausch;
  }
  std::vector<int> Indizes;
  const std::vector<std::string> Liste{"1", " 2", "2", "2"};
  EXPECT_TRUE(Gleich(ListeFind("2", Liste, 4), 1, ListeFind("2", Liste, 1), -1));
  EXPECT_TRUE(Gleich(ListeFindAlle(Liste, 4, "2", Indizes), 3, ListeFindAlle(Liste, 4, "2", Indizes, 2), -2));
}

}  // namespace
}  // namespace tavorena::test
