#include "Aktentest.h"

#include <algorithm>
#include <random>

#include <tavorena/records/DreiD.h>
#include <tavorena/records/FStat.h>
#include <tavorena/records/Flaeche.h>
#include <tavorena/records/Kreismitte.h>
#include <tavorena/records/Messlinie.h>
#include <tavorena/records/Nivellement.h>
#include <tavorena/records/Polar.h>
#include <tavorena/records/Rueckwaerts.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/records/Transformation.h>
#include <tavorena/records/Vorwaerts.h>
#include <tavorena/records/Zug.h>

// The records of all kinds of calculations in the batch file.

namespace tavorena::test {
namespace {

using Zeilen = std::vector<std::string>;

// Input as it may be typed: whatever is not left out is another figure each time.
struct Wurf {
  std::mt19937 Zufall{19700101};
  int Aus(int n) { return static_cast<int>(Zufall() % static_cast<unsigned>(n)); }
  bool Ja() { return Aus(2) == 1; }
  double Zahl() { return (Aus(2000000) - 1000000) / 10000.0 * (Ja() ? 1 : 50); }
  std::string Pnr() { return std::to_string(1 + Aus(Ja() ? 9999 : 1000000000)); }
  std::string Oder() { return Ja() ? Pnr() : ""; }
  std::string Text() { return Ja() ? "flurstück " + Pnr() + " ost" : ""; }
};

Geradeneingabe Gerade(Wurf& W) {
  const auto Art = static_cast<Linienart>(W.Aus(4));
  return {W.Pnr(), W.Pnr(), Art, Art == Linienart::Abstand ? W.Zahl() : 0,
          Art > Linienart::Abstand ? W.Pnr() : ""};
}
Kreiseingabe Kreis(Wurf& W) { return {W.Pnr(), W.Zahl(), W.Zahl(), W.Oder()}; }
Neupunkteingabe Neu(Wurf& W) { return W.Ja() ? Neupunkteingabe{W.Pnr(), W.Oder()} : Neupunkteingabe{}; }
Richtungseingabe Richtung(Wurf& W) { return {W.Pnr(), W.Zahl()}; }
Standeingabe Stand(Wurf& W) { return {W.Pnr(), W.Zahl(), W.Pnr(), W.Zahl(), W.Zahl()}; }

MesslinieEingabe Messlinie(Wurf& W) { return {W.Pnr(), W.Zahl(), W.Zahl(), W.Oder()}; }
PolarEingabe Polar(Wurf& W) { return {W.Pnr(), W.Zahl(), W.Zahl(), W.Zahl(), W.Oder()}; }
Geradenschnitteingabe Geraden(Wurf& W) { return {{Gerade(W), Gerade(W)}, Neu(W)}; }
KreisGeradeEingabe KreisGerade(Wurf& W) { return {Kreis(W), Gerade(W), {Neu(W), Neu(W)}}; }
Bogenschnitteingabe Kreise(Wurf& W) { return {{Kreis(W), Kreis(W)}, {Neu(W), Neu(W)}}; }
Kreismitteeingabe Mitte(Wurf& W) { return {{W.Pnr(), W.Pnr(), W.Pnr()}, W.Pnr(), W.Oder()}; }
Vorwaertseingabe Vorwaerts(Wurf& W) { return {{Stand(W), Stand(W)}, W.Pnr(), W.Oder()}; }
Rueckwaertseingabe Rueckwaerts(Wurf& W) {
  return {W.Ja(), {Richtung(W), Richtung(W), Richtung(W)}, W.Pnr(), W.Oder()};
}
DreiDEingabe Fuss(Wurf& W) { return {{W.Pnr(), W.Pnr(), W.Pnr()}, W.Oder(), 0}; }

Zugeingabe Zug(Wurf& W) {
  Zugeingabe E{W.Text(), static_cast<Zugklasse>(W.Aus(3)),
               W.Ja(),   W.Ja(),
               W.Ja(),   W.Ja(),
               W.Oder(), W.Pnr(),
               W.Zahl(), W.Zahl(),
               {},       W.Pnr(),
               W.Zahl(), W.Oder()};
  for (int i = W.Aus(4); i > 0; --i) E.Zeilen.push_back({W.Pnr(), W.Zahl(), W.Zahl(), W.Oder()});
  return E;
}

Niveingabe Nivellement(Wurf& W) {
  const auto Oder = [&W] { return W.Ja() ? W.Zahl() / 10 : KeineAblesung; };
  Niveingabe E;
  E.Klasse = 5 * (1 + W.Aus(3));
  for (int i = W.Aus(3); i > 0; --i) E.Feste.push_back({W.Pnr(), W.Zahl()});
  for (int i = W.Aus(6); i > 0; --i)
    E.Zeilen.push_back({W.Pnr(), Oder(), Oder(), Oder(), Oder(), Oder(), W.Text()});
  return E;
}

Flaecheneingabe Flaeche(Wurf& W) {
  Flaecheneingabe E{W.Text(), W.Text(), {}};
  for (int i = W.Aus(6); i > 0; --i)
    E.Kanten.push_back({W.Pnr(), static_cast<Kantenart>(W.Aus(5)), W.Zahl(), W.Zahl()});
  return E;
}

FStatBeobachtung Beobachtung(Wurf& W) { return {W.Pnr(), W.Zahl(), W.Zahl(), W.Zahl(), W.Zahl()}; }
FStatPolareingabe FStatPolar(Wurf& W) { return {Beobachtung(W), W.Oder(), W.Oder()}; }
FStatEingabe Station(Wurf& W) {
  FStatEingabe E{W.Ja(), W.Pnr(), W.Zahl(), {}, W.Pnr(), W.Oder()};
  for (int i = W.Aus(5); i > 0; --i) E.Anschluesse.push_back(Beobachtung(W));
  return E;
}

Transformationseingabe Transformation(Wurf& W) {
  Transformationseingabe E{"/daten/neu " + W.Pnr(), {}, W.Oder(), W.Ja(), W.Ja()};
  for (int i = W.Aus(5); i > 0; --i) E.Passpunkte.push_back({W.Ja(), W.Pnr(), W.Oder()});
  return E;
}

// A kind: a block of thrown input, and how a block is read and written again.
struct Art {
  std::function<Zeilen(Wurf&)> Werfen;
  std::function<int(Zeilen& Wieder)> Lesen;
};

template <class T, class Schreiber, class Leser>
Art Fall(Schreiber Schreiben, Leser Lesen, T (*Werfen)(Wurf&)) {
  return {[=](Wurf& W) -> Zeilen { return {Schreiben(Werfen(W))}; },
          [=](Zeilen& Wieder) {
            T E;
            const int Ergebnis = Lesen(E);
            Wieder = {Schreiben(E)};
            return Ergebnis;
          }};
}

const Art Arten[] = {
    Fall(MesslinieSatz, StapelLeseMesslinie, Messlinie),
    Fall(PolarSatz, StapelLesePolar, Polar),
    Fall(FStatPolarSatz, StapelLeseFStatPolar, FStatPolar),
    Fall(StapelFStat, StapelLeseFStat, Station),
    Fall(StapelGeradenschnitt, StapelLeseGeradenschnitt, Geraden),
    Fall(StapelKreisGerade, StapelLeseKreisGerade, KreisGerade),
    Fall(StapelBogenschnitt, StapelLeseBogenschnitt, Kreise),
    Fall(StapelKreismittelpunkt, StapelLeseKreismittelpunkt, Mitte),
    Fall(StapelVorwaertsschnitt, StapelLeseVorwaertsschnitt, Vorwaerts),
    Fall(StapelRueckwaertsschnitt, StapelLeseRueckwaertsschnitt, Rueckwaerts),
    Fall(StapelPolygon, StapelLesePolygon, Zug),
    Fall(StapelNivellement, StapelLeseNivellement, Nivellement),
    Fall(StapelFlaeche, StapelLeseFlaeche, Flaeche),
    Fall(StapelTransformation, StapelLeseTransformation, Transformation),
    Fall([](const DreiDEingabe& E) { return StapelDreiD(DreiDArt::Lotabstand, E); },
         [](DreiDEingabe& E) { return StapelLeseDreiD(DreiDArt::Lotabstand, E); }, Fuss),
};

class Artensatz : public Aktentest {
 protected:
  // Hands the records of a block, which is the only one, to a reader.
  void Block(const Zeilen& Sätze, const std::string& Ende, const std::function<void()>& Lesen) {
    std::string Text = "M VR XX\r\n";
    for (const std::string& Satz : Sätze) Text += Satz + "\r\n";
    bool Gelesen = false;
    StapelHaken.BlattFür = [&](const std::string&) -> std::function<void()> {
      if (Gelesen) return {};
      return [&] {
        Gelesen = true;
        Lesen();
        if (Stapel.Aktiv) StapelWeiter();
      };
    };
    Schreibe(Ordner.Pfad("a.sta"), Text + Ende);
    StapelStarten(Ordner.Pfad("a.sta"));
    EXPECT_TRUE(Gelesen);
  }
};

TEST_F(Artensatz, WasGeschriebenIstLiestSichZurück) {
  Wurf W;
  for (const Art& A : Arten) {
    for (int i = 0; i < 12; ++i) {
      const Zeilen Geschrieben = A.Werfen(W);
      Zeilen Andere = Geschrieben, Gelesen, Anders;
      Block(Geschrieben, "E Ende\r\nEM\r\n", [&] { EXPECT_EQ(A.Lesen(Gelesen), 0) << Geschrieben.front(); });
      ASSERT_EQ(Gelesen, Geschrieben);
      if (&A < &Arten[4]) continue;  // a row, or a head above rows: plan name and order belong to its head
      // Another order, lower case, commas, comments, plan name.
      const auto Zeile = [&](const char* Satz) {
        return !Andere.empty() && Andere.front().starts_with(Satz);
      };
      if (!Andere.empty() && !Zeile("PN") && !Zeile("NIV") && !Zeile("FEST"))
        std::rotate(Andere.begin(), Andere.begin() + 1, Andere.end());
      for (std::string& Z : Andere) {
        for (char& z : Z) z = z == '.' ? ',' : z >= 'A' && z <= 'Z' ? static_cast<char>(z + 32) : z;
      }
      Andere.insert(Andere.begin(), {"riss R 7", "C Kommentar", ""});
      Block(Andere, "E  (Ende)\r\nEM\r\n", [&] { EXPECT_EQ(A.Lesen(Anders), 0) << Geschrieben.front(); });
      ASSERT_EQ(Anders, Geschrieben);
      EXPECT_EQ(LetzterPlan.Riss, "R 7");
    }
  }
}

TEST_F(Artensatz, WieGedruckt) {
  const Geradeneingabe Par{"1001", "1002", Linienart::Abstand, 2.5, ""};
  const auto L = [](Linienart Art) { return Geradeneingabe{"1001", "1002", Art, 0, "1009"}; };
  const Kreiseingabe K{"1002", 80, 0.5, "1009"};
  Zugeingabe Z{"7",
               Zugklasse::TP,
               true,
               true,
               true,
               true,
               "1030",
               "1031",
               127.5291,
               128.082,
               {{"2021", 267.1799, 107.713, "015"}},
               "1032",
               171.8376,
               "1033"};
  const std::vector<Kanteneingabe> Kanten = {{"1001", Kantenart::Linie, 0, 30.02},
                                             {"1002", Kantenart::Außen, 25, 0},
                                             {"1003", Kantenart::Innen, 25, 0},
                                             {"1004", Kantenart::AußenLang, 25, 0},
                                             {"1005", Kantenart::InnenLang, 25, 0}};
  std::string Text =
      MesslinieSatz({"2001", 30, 5, "015"}) + "\r\n" + PolarSatz({"2004", 80.25, 98.4, 70, "015"}) + "\r\n";
  for (const Zeilen& Block : {
           StapelGeradenschnitt({{Par, L(Linienart::Original)}, {"2006", "015"}}),
           StapelGeradenschnitt({{L(Linienart::Parallele), L(Linienart::Senkrechte)}, {"", ""}}),
           StapelKreisGerade({{"1002", 80, 0, ""}, L(Linienart::Senkrechte), {}}),
           StapelBogenschnitt({{K, K}, {}}),
           StapelKreismittelpunkt({{"1", "2", "3"}, "2011", "015"}),
           StapelVorwaertsschnitt({{{{"1006", 10, "1001", 39.5167, 98.4}, {"8", 20, "7", 1, 0}}}, "12", ""}),
           StapelRueckwaertsschnitt({false, {{{"1021", 305.5502}, {"1022", 1}, {"1023", 2}}}, "2013", ""}),
           StapelRueckwaertsschnitt({true, {}, "2013", ""}),
           StapelPolygon(Z),
           StapelPolygon({"", Zugklasse::Frei, false, false, false, false, "", "1", 0, 1, {}, "", 0, ""}),
           StapelNivellement(
               {{{"101", 182.3051}},
                {{"101", 1.23456, KeineAblesung, KeineAblesung, 25.3},
                 {"9001", KeineAblesung, 2.5, KeineAblesung, KeineAblesung, KeineAblesung, "Schacht 7"}},
                10}),
           StapelFlaeche({"Flurstück 12/3", "Ost", Kanten}),
           StapelTransformation(
               {"/daten/auftrag/neu.kor", {{false, "1002", "5002"}, {true, "1003", ""}}, "1001", true, true}),
           StapelFStat({false, "2031", 1.55, {{"1001", 23.4567, 99.1234, 55.43, 1.6}}, "2031", "015"}),
           {FStatPolarSatz({{"2032", 311.2, 98.7654, 33.21, 1.6}, "015", ""})},
           StapelFStat({true, "2031", 0, {}, "", ""}),
           StapelDreiD(DreiDArt::Kanalmessstab, {{"1001", "1002"}, "2050", 0.85}),
           StapelDreiD(DreiDArt::Lotabstand, {{"1001", "1002", "1003"}, "", 0}),
       }) {
    for (const std::string& Satz : Block) Text += Satz + "\r\n";
  }
  EXPECT_TRUE(GleichSoll(Text, "records/soll/arten.sta"));
}

TEST_F(Artensatz, WasFehltUndWasNichtHineingehört) {
  const auto Lesen = [this](const char* Meldung, const Zeilen& Sätze, const std::string& Ende = "E\r\n") {
    if (*Meldung != 0) Skript.Erwarte(Meldung);
    Geradenschnitteingabe E;
    Block(Sätze, Ende, [&] { EXPECT_EQ(StapelLeseGeradenschnitt(E), *Meldung != 0 ? -1 : 0); });
    EXPECT_EQ(Stapel.Bilanz.Fehler, *Meldung != 0);
    return E;
  };
  const Zeilen Ganz = {"G1PAN 1", "G1PEN 2", "G1DIST", "G2PAN 3", "G2PEN 4", "G2ORIG", "NEUPUNKT 5"};
  const auto Ohne = [&](std::ptrdiff_t i) {
    Zeilen Z = Ganz;
    Z.erase(Z.begin() + i);
    return Z;
  };
  const auto Mit = [&](const char* Satz) {
    Zeilen Z = Ganz;
    Z.emplace_back(Satz);
    return Z;
  };
  const Geradenschnitteingabe E = Lesen("", Ganz);
  EXPECT_TRUE(Gleich(E.G[0].Art, Linienart::Abstand, E.G[0].Abstand, 0, E.Neu.Pnr, "5", E.Neu.Symbol, ""));
  Lesen("Zeile: 8\nG1PEN fehlt", Ohne(1));
  Lesen("Zeile: 8\nG2ORIG fehlt", Ohne(5));
  Lesen("Zeile: 8\nNEUPUNKT fehlt", Ohne(6));
  Lesen("Fehler 9 beim Lesen der Stapeldatei:\nG1PAN 7", Mit("G1PAN 7"));
  Lesen("Fehler 9 beim Lesen der Stapeldatei:\nG1PLPN 7", Mit("G1PLPN 7"));  // two ways to build a line
  Lesen("Fehler 9 beim Lesen der Stapeldatei:\nAO 7", Mit("AO 7"));
  Lesen("Fehler 9 beim Lesen der Stapeldatei:\nM VR", Ganz, "M VR");
  Lesen("Zeile: 8\nUnerwartetes Dateiende", Ganz, "");
  // One solution alone, as in older files.
  Bogenschnitteingabe B;
  Block({"K1PNR 1 5", "K2PNR 2 6,5 1", "NEUPUNKT 7 015"}, "EM\r\n",
        [&] { EXPECT_EQ(StapelLeseBogenschnitt(B), 0); });
  EXPECT_TRUE(Gleich(B.K[1].Radius, 6.5, B.K[1].Pll, 1, B.Neu[0].Symbol, "015", B.Neu[1].Pnr, ""));
}

TEST_F(Artensatz, WasSichNichtZurückläseWirdErkannt) {
  EXPECT_TRUE(Gleich(StapelZahlPaßt(9999999.9999), true, StapelZahlPaßt(1e7), false, StapelZahlPaßt(-1e6),
                     false, StapelZahlPaßt(std::nan("")), false));
  // A field of 10 integer places that is full would grow together with the one before.
  EXPECT_TRUE(Gleich(StapelLangzahlPaßt(999999999.9999), true, StapelLangzahlPaßt(1e9), false,
                     StapelLangzahlPaßt(-99999999.9999), true, StapelLangzahlPaßt(-1e8), false));
  for (const char* Wort : {"", "1001", "ä-1", "0"}) EXPECT_TRUE(StapelWortPaßt(Wort)) << Wort;
  for (const char* Wort : {"-", "1 2", " 1", "1\t2", "1\r"}) EXPECT_FALSE(StapelWortPaßt(Wort)) << Wort;
  EXPECT_TRUE(
      Gleich(StapelTextPaßt("a b"), true, StapelTextPaßt("a "), false, StapelTextPaßt("a\nb"), false));
}

// Between blocks, so that a replay passes it over.
TEST_F(Artensatz, KommentarStehtZwischenBlöcken) {
  StapelDatei.Name = Ordner.Pfad("a.sta");
  Stapelblock S;
  Verbindung V;
  V.Titel = "VR 24.40 Linienelemente";
  int Griff = -1;
  ASSERT_EQ(S.Beginnen(std::make_shared<const Verbindung>(V)) + S.Anfügen("NR 1", Griff), 0);
  ASSERT_EQ(StapelKommentar("Ausgleichende Gerade: 2041 -"), 0);
  EXPECT_TRUE(Inhalt(StapelDatei.Name)
                  .ends_with("C ________________________\r\nC  Ausgleichende Gerade: 2041 -\r\n"));
  EXPECT_FALSE(S.Offen());
}

}  // namespace
}  // namespace tavorena::test
