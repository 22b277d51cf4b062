#include "Testhilfe.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/EDBSWandler.h>
#include <tavorena/exchange/Formattafel.h>

namespace tavorena::test {
namespace {

// Columns:                  17    23    29      37      45            59      66 69 70         81         92
const std::string Satz1 =
    "EDBS01080000BSPE000001  0000ULPUHESS000100013556000000011235102001003 3500123456 "
    "56004567892  0000010001";
const std::string Satz2 =
    "EDBS01080000BSPE000002  0000ULPUHESS00010001355600001123451K102001003 3500123456 "
    "56004567892+345000010001";
const std::string Anfang = "EDBS00540000AKND000000  0000ULQA0000 Auftrag Gr\xFCn  ",
                  Ende = "EDBS00280000AEND000000  0000ULQA0000";
const KorInfoSatz Info1 = {5, 1, 0, 2, 0, "0", "100", "3", 1};

std::string Zeilen(std::initializer_list<std::string> Alle) {
  std::string Text;
  for (const std::string& Zeile : Alle) Text += Zeile + "\r\n";
  return Text;
}

// A record with other columns, counted from 1.
std::string Mit(std::size_t Ab, std::string_view Neu, std::string Satz = Satz1) {
  return Satz.replace(Ab - 1, Neu.size(), Neu);
}

class EdbsTest : public TabellenTest {
 protected:
  EdbsTest() { FormateAnmelden(); }
  ~EdbsTest() override { EDBSOffen = {}; }
  int Lies(const std::string& Bytes, Lesemodus Modus = Lesemodus::Ersetzen) {
    Schreibe(Datei, Bytes);
    return KorLesen(Datei, Modus, Punktformat::Edbs, {}, {}, &Bericht);
  }
  static std::string Text() {
    std::string Bytes;
    EXPECT_EQ(KorText(Punktformat::Edbs, 3, Bytes), 0);
    return EDBSVerschlüsseln(EDBSOffen, Bytes);
  }
  const std::string Datei = Ordner.Pfad("a.eds");
  Lesebericht Bericht;
};

TEST_F(EdbsTest, SatzHatSeineSpalten) {
  std::string Zeile;
  EDBSSatzSchreiben(1, "112", 3500123.456, 5600456.789, 0, "5", Info1, Zeile);
  EXPECT_EQ(Zeile, Satz1);
  KorInfoSatz Info2 = Info1;
  Info2.Punktart = 25;
  EDBSSatzSchreiben(2, "112345", 3500123.456, 5600456.789, 345, "025", Info2, Zeile);
  EXPECT_EQ(Zeile, Satz2);
  EDBSSatz S;  // its views lie in the line
  Zeile = Satz1 + "  ";
  ASSERT_EQ(EDBSSatzLesen(Zeile, S), 0);
  EXPECT_TRUE(Gleich(S.Pnr, "112", S.Rechts, 3500123.456, S.Hoch, 5600456.789, S.Hoehe, 0, S.Symbol, "5",
                     S.Info, Info1, S.KmQuadrat, "35560000"));
  ASSERT_EQ(EDBSSatzLesen(Satz2, S), 0);
  EXPECT_TRUE(Gleich(S.Pnr, "112345", S.Hoehe, 345, S.Symbol, "025", S.Info, Info2));
}

struct Spaltenfall {
  const char *Pnr, *Symbol;
  double Hoehe;
  const char *Kennung, *Art, *Höhe;  // columns 53 to 58, 60, and what lies between 92 and the last attribute
};
constexpr Spaltenfall Spaltenfälle[] = {
    {" 12345", "", 0, "012345", "0", "  0000"},
    {"A12345", "010", 0.0004, "012345", "S", "  0000"},  // a class is a digit
    {"0112345", "10", 0.345, "112345", "S", "  +345"},
    {"6600001", "5", -3.2, "200001", "5", " -3200"},
    {"6400001", "005", 12345.678, "300001", "A", "+12345678"},
    {"9900001", "99", 1, "000001", "_", " +1000"},
    {"12A", "12", 1, "000012", "*", " +1000"},  // twelve is no kind of a point
    {"-12", "x7", 1, "0*****", "0", " +1000"},
};

TEST_F(EdbsTest, SchreibtNummerSymbolUndHöhe) {
  std::string Zeile;
  for (const Spaltenfall& F : Spaltenfälle) {
    EDBSSatzSchreiben(1, F.Pnr, 2500000, 600000, F.Hoehe, F.Symbol, Info1, Zeile);
    EXPECT_TRUE(Gleich(Zeile.substr(52, 6), F.Kennung, Zeile.substr(59, 1), F.Art,
                       Zeile.substr(92, Zeile.size() - 98), F.Höhe, Zeile.substr(44, 8), "55560000",
                       Zeile.substr(69, 22), " 2500000000  600000000"))
        << F.Pnr;
  }
  KorInfoSatz Zuviel{0, 10, -1, 9, 9.5, "12", "7", "ab", 100};
  EDBSSatzSchreiben(1234567, "1", 32477000.123, 5600000, 0, "", Zuviel, Zeile);
  EXPECT_TRUE(Gleich(Zeile.substr(16, 7), "1234567", Zeile.substr(61, 9), "**9**007*", Zeile.substr(70, 11),
                     "**********.", Zeile.substr(93), "  0000**0001"));
}

struct Lesefall {
  const char* Name;
  std::string Zeile;
  const char *Pnr, *Symbol;  // no number: the line is passed over
  double Hoehe;
  int ArtHöhe;
};

TEST_F(EdbsTest, LiestWasAndereSchreiben) {
  const Lesefall Fälle[] = {
      {"anderer Buchstabe", Mit(60, "L"), "112", "010", 0, 1},
      {"kein Buchstabe der Liste", Mit(60, "q"), "112", "", 0, 1},
      {"Nummer nur Nullen", Mit(53, "000000"), "0", "5", 0, 1},
      {"Klasse keine Ziffer", Mit(53, "*00012"), "12", "5", 0, 1},
      {"endet hinter Hoch", Satz1.substr(0, 91), "112", "5", 0, 0},
      {"endet in der Höhe", Satz2.substr(0, 97), "112345", "025", 0, 0},
      {"ohne Satzende", Satz2.substr(0, 104) + "7", "112345", "025", 34.5, 0},
      {"Umlaut zählt einmal", std::string(Satz1).replace(64, 1, "\xC3\x84"), "112", "5", 0, 1},
      {"zu kurz", Satz1.substr(0, 90), nullptr, "", 0, 0},
      {"Leerzeichen sind keine Länge", Satz1.substr(0, 80) + std::string(24, ' '), nullptr, "", 0, 0},
      {"Stern in Rechts", Mit(70, "*"), nullptr, "", 0, 0},
      {"Hoch leer", Mit(81, std::string(11, ' ')), nullptr, "", 0, 0},
      {"Rechts keine Zahl", Mit(72, "Rechtswert"), nullptr, "", 0, 0},
  };
  EDBSSatz S;
  for (const Lesefall& F : Fälle) {
    SCOPED_TRACE(F.Name);
    ASSERT_EQ(EDBSSatzLesen(F.Zeile, S), F.Pnr != nullptr ? 0 : -1);
    if (F.Pnr == nullptr) continue;
    EXPECT_TRUE(Gleich(S.Pnr, F.Pnr, S.Symbol, F.Symbol, S.Hoehe, F.Hoehe, S.Info.ArtHoehenbestimmung,
                       F.ArtHöhe, S.Rechts, 3500123.456, S.Hoch, 5600456.789));
  }
  ASSERT_EQ(EDBSSatzLesen(Mit(61, "*A*** * *"), S), 0);  // stars stand for what had no room
  EXPECT_EQ(S.Info, (KorInfoSatz{5, 0, 0, 0, 0, "", " * ", "", 1}));
}

TEST_F(EdbsTest, DateiKommtBytegleichZurück) {
  std::string Bytes = Anfang + "\r\n", Zeile;
  KorInfoSatz Info = Info1;
  int Nummer = 0;
  for (const char Art : std::string_view("123456789ASTRKPFBVJDMNCHXUZ_0")) {
    const double Höhen[] = {0, 0.123, 1.234, -12.345, 123.456, -1234.567};
    EDBSSatz S;
    const std::string Satz = Mit(60, std::string(1, Art));
    ASSERT_EQ(EDBSSatzLesen(Satz, S), 0);
    Info.Punktart = S.Info.Punktart;
    ++Nummer;
    EDBSSatzSchreiben(Nummer, std::to_string(1000 * Nummer), 3500123.456, 5600456.789, Höhen[Nummer % 6],
                      S.Symbol, Info, Zeile);
    Bytes += Mit(65, "\xC4", Zeile) + "\r\n";  // Windows-1252
  }
  Bytes += Ende + "\r\n";
  ASSERT_EQ(Lies(Bytes + '\x1A'), 0);
  EXPECT_TRUE(Gleich(KorAnzahl, Nummer, KorInfo[0].Entstehung, "Ä", Bericht.Übergangen, 0));
  EXPECT_TRUE(Text() == Bytes) << Text();
  // Another file that is read into the table brings its points only.
  ASSERT_EQ(Lies(Zeilen({"EDBS00000000AKND", Satz2, "EDBS00000000AEND"}), Lesemodus::NurNeue), 0);
  EXPECT_TRUE(Text().starts_with(Anfang + "\r\n") && Text().ends_with(Ende + "\r\n"));
  // Unix, with a byte-order mark and the name of an information of our own.
  Optionen.EDBSInfo = "";
  const std::string Eigene = "\xEF\xBB\xBF" + Mit(29, "        ") + "\n";
  ASSERT_EQ(Lies(Eigene), 0);
  EXPECT_TRUE(Gleich(KorAnzahl, 1, Text(), "\xEF\xBB\xBF" + Mit(29, "        ") + "\r\n"));
}

TEST_F(EdbsTest, SagtWasKeinPunktWar) {
  EXPECT_EQ(Lies(Zeilen({Anfang, Satz1, "", "EDBS00000000XXXX", Mit(70, "*"), Ende, Anfang, Satz2})), 0);
  EXPECT_TRUE(Gleich(KorAnzahl, 2, Bericht.Übergangen, 3, Bericht.ErsteÜbergangene, 4));
  for (const std::string& Kopflos : {Satz1, Zeilen({Satz1}) + '\x1A', Zeilen({Ende + " 1"}), std::string()})
    EXPECT_EQ(Lies(Kopflos), 0);
  for (const std::string& Gerissen : {Zeilen({Anfang, Satz1}), Zeilen({Satz1}) + Satz1.substr(0, 60)}) {
    Skript.Erwarte("Unerwartetes Dateiende in:\n" + Datei);
    EXPECT_EQ(Lies(Gerissen), 0);
    EXPECT_EQ(KorAnzahl, 1);
  }
  for (const std::string& Fremd :
       {std::string("1 2 3 4\r\n"), std::string(3 << 20, 'x'), "\xFF\xFE" + std::string(7, '\0')}) {
    Skript.Erwarte("Fehler aufgetreten:\nFormat nicht erkannt");
    EXPECT_EQ(Lies(Fremd, Lesemodus::Alle), -1);
    EXPECT_EQ(KorAnzahl, 1);
  }
}

TEST_F(EdbsTest, ZwanzigtausendSindDieGrenze) {
  std::string Bytes = Anfang + "\r\n";
  for (int i = 0; i <= KorGrenze; ++i) Bytes += Mit(53, std::to_string(100000 + i)) + "\r\n";
  Skript.Erwarte("Maximale Anzahl von \n\n20000\n\nPunkten überschritten !");
  EXPECT_EQ(Lies(Bytes + Ende), 0);
  EXPECT_TRUE(Gleich(KorAnzahl, KorGrenze, EDBSOffen.Ende, Ende));  // it is found behind the limit
}

TEST_F(EdbsTest, AnhängenZähltWeiter) {
  Punkt("5", 3500123.456, 5600456.789, 0, "5");
  const std::string Neuer = EDBSFortsetzen(""), Erster = Mit(17, "000041");
  const auto Satz = [&](const char* Nummer) { return Mit(17, Nummer, Neuer); };
  EXPECT_EQ(EDBSFortsetzen(Zeilen({Anfang, Erster, Ende, "Rest"})),
            Zeilen({Anfang, Erster, "Rest"}) + Satz("000042") + Ende + "\r\n");
  EXPECT_EQ(EDBSFortsetzen(Satz1 + "\x1A"), Satz1 + "\r\n" + Satz("000002"));
}

TEST_F(EdbsTest, WandelnNachDreiArten) {
  const EDBSAuftrag Auftrag{Datei, Ordner.Pfad("aus.kor"), Ordner.Pfad("kataster.kor")};
  const std::string Sicherungspunkt = Mit(60, "U", Mit(53, "300007"));
  Schreibe(Datei, Zeilen({Anfang, Satz2, Sicherungspunkt, "Rest", Satz1, Ende}));
  Schreibe(Auftrag.Kataster, "112345 1 2 3\nKopf\n9,5 1,0 2\n");
  Schreibe(Ordner.Pfad("aus.dru"), "Job\r\n");
  const std::string Lage = "   3500123.456   5600456.789 ", Tief = "      0.000  ";
  const std::string Nummern[][4] = {{"  112345", "  300007", "  000112", "U"},
                                    {"35560000112345", "35560000300007", "35560000000112", "U"},
                                    {"  112345", "  300007", "     112", "090"}};
  for (const EDBSNummer Art : {EDBSNummer::Klasse, EDBSNummer::KmQuadrat, EDBSNummer::Tabelle}) {
    EDBSAuftrag A = Auftrag;
    A.Nummer = Art;
    EDBSWandlung W;
    ASSERT_EQ(EDBSWandeln(A, W), 0);
    const auto& N = Nummern[static_cast<int>(Art)];
    const std::string Rand(6, ' '), K = Art == EDBSNummer::Tabelle ? "025" : "K";
    EXPECT_EQ(W.Kor, Zeilen({Rand + N[0] + Lage + "    345.000  " + K, Rand + N[1] + Lage + Tief + N[3],
                             Rand + N[2] + Lage + Tief + "5"}) +
                         (Art == EDBSNummer::KmQuadrat ? "112345 1 2 3\r\n" : "") + "9,5 1,0 2\r\n");
    EXPECT_TRUE(Gleich(W.Punkte, 3, W.Übergangen, 1, W.ErsteÜbergangene, 4));
    EXPECT_TRUE(W.Protokoll.ends_with(Zeilen({Rand + N[1] + "  VA:  2 LG:3  Gemark.: 35560000  Sich.pkt.",
                                              Rand + N[2] + "  VA:  2 LG:3  Gemark.: 35560000"})));
    ASSERT_EQ(EDBSWandlungSchreiben(A, W), 0);
    EXPECT_EQ(Inhalt(A.Aus), W.Kor);
  }
  EXPECT_TRUE(Inhalt(Ordner.Pfad("aus.dru")).starts_with("Job\r\n\f\r\n----"));
}

TEST_F(EdbsTest, WandelnLäßtStehenWasNichtGeht) {
  EDBSWandlung W;
  const std::string Aus = Ordner.Pfad("aus.kor");
  Schreibe(Datei, Satz1);
  for (const EDBSAuftrag& A : {EDBSAuftrag{Datei, Datei}, EDBSAuftrag{Aus, Ordner.Pfad("aus.dru")}}) {
    Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:\n" + A.Aus);
    EXPECT_EQ(EDBSWandeln(A, W), -1);
  }
  Skript.Erwarte("Datei nicht gefunden:\n" + Aus);
  EXPECT_EQ(EDBSWandeln({Datei, Ordner.Pfad("b.kor"), Aus}, W), -1);
  fs::create_directory(Aus);
  ASSERT_EQ(EDBSWandeln({Datei, Aus}, W), 0);
  Skript.Erwarte("Fehler aufgetreten beim Anlegen von\n" + Aus);
  EXPECT_EQ(EDBSWandlungSchreiben({Datei, Aus}, W), -1);
  EXPECT_FALSE(fs::exists(Ordner.Pfad("aus.dru")));
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  EXPECT_EQ(EDBSWandeln({Datei, Ordner.Pfad("b.kor")}, W), -2);
}

}  // namespace
}  // namespace tavorena::test
