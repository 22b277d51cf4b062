#include "Lesetest.h"

#include <algorithm>

#include <tavorena/exchange/NAS.h>

namespace tavorena::test {
namespace {

class NasTest : public Lesetest {
 protected:
  NasTest() : Lesetest(NasZugang()) {}
  ~NasTest() override { NasNummer = {}; }

  static std::string Punktobjekt(const std::string& Id, const std::string& Kennung,
                                 const std::string& Marke = "", const char* Art = "AX_Grenzpunkt",
                                 const std::string& Ende = "") {
    return "<" + std::string(Art) + " gml:id=\"" + Id +
           "\">\n <lebenszeitintervall><AA_Lebenszeitintervall><beginnt>2010-01-01T00:00:00Z</beginnt>" +
           Ende + "</AA_Lebenszeitintervall></lebenszeitintervall>\n <punktkennung>" + Kennung +
           "</punktkennung>" + (Marke.empty() ? "" : "<abmarkung_Marke>" + Marke + "</abmarkung_Marke>") +
           "</" + Art + ">\n";
  }
  static std::string Ort(const std::string& Id, const std::string& Punkt, const std::string& System,
                         const std::string& Pos, const std::string& Status = "1000",
                         const char* Art = "AX_PunktortTA") {
    return "<" + std::string(Art) + " gml:id=\"" + Id +
           "\">\n <istTeilVon xlink:href=\"urn:adv:oid:" + Punkt +
           "\"/>\n <position><gml:Point srsName=\"urn:adv:crs:" + System + "\"><gml:pos>" + Pos +
           "</gml:pos></gml:Point></position>\n <koordinatenstatus>" + Status +
           "</koordinatenstatus><qualitaetsangaben><AX_DQPunktort><genauigkeitsstufe>2100</genauigkeitsstufe>"
           "</AX_DQPunktort></qualitaetsangaben></" +
           Art + ">\n";
  }
  static std::string Auszug(const std::string& Objekte) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<AX_Bestandsdatenauszug xmlns=\"a\" xmlns:gml=\"g\" "
           "xmlns:xlink=\"x\"><gml:featureMember>\n" +
           Objekte + "</gml:featureMember></AX_Bestandsdatenauszug>";
  }
  const std::string Utm = "ETRS89_UTM32", Gk = "DE_DHDN_3GK3";
  const std::string Einer = Punktobjekt("P1", "324775600100012", "1110") +
                            Ort("", "P1", "ETRS89_Lat-Lon", "50.5 8.5") +
                            Ort("", "P1", "ETRS89_X-Y-Z", "3990000 580000 4920000") +
                            Ort("", "P1", "ETRS89_X-Y-Z", "3990000 580000 4920000") +
                            Ort("O1", "P1", Utm, "477000.123 5600000.456");
};

TEST_F(NasTest, PunkteFindenIhreOrte) {
  const std::string Vor =
      Ort("O1", "P1", Gk, "3477000 5601000") + Ort("O2", "P1", Utm, "32477000.123\n 5600000.456", "2000") +
      Ort("O3", "P1", Utm, "32477001.5 5600001.5 12.25") + Ort("O4", "P1", Utm, "32477009 5600009");
  const std::string Nach = Ort("O5", "P2", "DE_DHHN2016_NH", "101.125", "2000", "AX_PunktortAU") +
                           Ort("O6", "P2", "DE_DHHN2016_NH", "101.5", "1000", "AX_PunktortAG") +
                           Ort("O7", "P2", Utm + "*DE_DHHN2016_NH", "32478000 5600002");
  const std::string Text =
      Auszug(Vor + Punktobjekt("P1", "324775600100012", "1110") + Punktobjekt("P3", "324775600000008") +
             Punktobjekt("P3", "324775600000009", "1600") +  // a later version
             Punktobjekt("P3", "324775600000010", "1700", "AX_Sicherungspunkt",
                         "<endet>2020-01-01T00:00:00Z</endet>") +
             Punktobjekt("P2", "324775600200007", "", "AX_Aufnahmepunkt") + Nach +
             Ort("O8", "P3", "ETRS89_Lat-Lon", "50.5 8.5") + Ort("O9", "P3", Utm, "32478001 5600003") +
             Punktobjekt("P4", "324775600100013") + Ort("O10", "P4", Gk, "3477000 5601000") +
             Ort("O11", "P4", Utm, "33477000 5600000") +  // of the other zone
             Punktobjekt("P5", "") + Ort("O12", "P5", Utm, "32477000 5600000") +
             Ort("O13", "weg", Utm, "32477000 5600000"));
  const std::string Soll =
      "9 478001 5600003 0 [1600]|100012 477001.5 5600001.5 12.25 [1110]|"
      "200007 478000 5600002 101.5 []";
  EXPECT_EQ(Lies(Text), 0);
  EXPECT_EQ(Tabelle(), Soll);
  EXPECT_EQ(KorPunkt(1).Info->Lagegenauigkeit, "2100");
  EXPECT_TRUE(Gleich(
      B.Gelesen, 3, B.Übergangen, 3, B.ErsteÜbergangene,
      1 + static_cast<int>(std::count(Text.begin(),
                                      Text.begin() + static_cast<std::ptrdiff_t>(Text.find("\"P4\"")), '\n')),
      B.Zusatz,
      "Lagesystem ETRS89_UTM32, Zonennummer 32 von den Rechtswerten abgetrennt, 1 Punkt ohne Ort darin, "
      "1 Punkt ohne Punktkennung, 1 Ort ohne Punkt"));
  // Any prefix, and any place where one piece of the file ends and the next begins.
  std::string Anders = Text;
  for (const char* Name : {"<AX_", "</AX_"})
    for (std::size_t p = 0; (p = Anders.find(Name, p)) != std::string::npos; p += 8)
      Anders.insert(p + std::string_view(Name).find('A'), "adv:");
  for (std::size_t p = Anders.find("<adv:AX_PunktortTA"); p < Anders.find("\"O3\""); p += 5) {
    std::string Verschoben = Anders;
    ASSERT_EQ(
        Lies(Verschoben.insert(Anders.find("<gml:f"), "<!--" + std::string(65536 - p - 7, ' ') + "-->")), 0);
    ASSERT_EQ(Tabelle(), Soll) << p;
  }
}

TEST_F(NasTest, NummernDieSichTreffen) {
  const std::string Text =
      Auszug(Einer + Punktobjekt("P2", "324785600100012") + Ort("O2", "P2", Utm, "478000 5600000") +
             Punktobjekt("P3", "TP 7") + Ort("O3", "P3", Utm, "478001 5600000"));
  for (const int Antwort : {KnopfJa, KnopfNein, KnopfAbbruch}) {
    Skript.Erwarte("2 Punkte haben die gleiche Punktnummer", Antwort);
    if (Antwort == KnopfNein) Skript.Erwarte("doppelte Punkte");
    EXPECT_EQ(Lies(Text), Antwort == KnopfAbbruch ? -1 : 0);
    EXPECT_TRUE(Gleich(KorAnzahl, Antwort == KnopfAbbruch ? 0 : 3, KorSuche(Wert("324785600100012")) >= 0,
                       Antwort == KnopfJa, KorSuche(Wert("TP 7")) >= 0, Antwort != KnopfAbbruch));
  }
  NasNummer = Nasnummer::Kurz;
  Skript.Erwarte("doppelte Punkte");
  EXPECT_EQ(Lies(Text), 0);
  EXPECT_TRUE(Gleich(KorPnr(0), "TP 7", KorPnr(1), "100012", KorPnr(2), "100012", B.Zusatz,
                     "Lagesystem ETRS89_UTM32, 2 Punkte mit der Nummer eines anderen"));
}

TEST_F(NasTest, WasKeinGanzesXmlIstGibtNichts) {
  const std::string Text = Auszug(Einer);
  ASSERT_EQ(Lies(Text), 0);
  EXPECT_EQ(Tabelle(), "100012 477000.123 5600000.456 0 [1110]");
  for (std::size_t n = 0; n < Text.size(); n += 3) {
    Skript.Erwarte(n > Text.find("<AX_B") + 80 ? "Unerwartetes Dateiende in:\n" + Datei : "");
    ASSERT_TRUE(Gleich(Lies(Text.substr(0, n)), -1, KorAnzahl, 0)) << n;
  }
  Schreibe(Ordner.Pfad("fremd"), "geheim");
  std::string Tief;
  for (int i = 0; i < 100'000; ++i) Tief += "<a>";
  for (const std::string& Schlecht :
       {std::string("\0\1", 2), "<!--" + std::string(6 << 20, ' ') + "-->" + Text,
        Tief, "<!DOCTYPE a [<!ENTITY a \"" + std::string(5000, 'x') + "\"><!ENTITY b \"" + [] {
          std::string s;
          for (int i = 0; i < 5000; ++i) s += "&a;";
          return s;
        }() + "\">]><a>&b;</a>"}) {
    Skript.Erwarte("Format nicht erkannt");
    EXPECT_EQ(Lies(Schlecht), -1) << Schlecht.substr(0, 20);
  }
  std::string Verweis = Text;
  Verweis.insert(Verweis.find("<AX_B"), "<!DOCTYPE a [<!ENTITY f SYSTEM \"" + Ordner.Pfad("fremd") + "\">]>");
  Verweis.insert(Verweis.find("1110"), "&f;");
  EXPECT_EQ(Lies(Verweis), 0);
  EXPECT_EQ(Tabelle(), "100012 477000.123 5600000.456 0 [1110]");
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  EXPECT_EQ(Lies(Text), 0);
  EXPECT_TRUE(Gleich(B.Gestoppt, true, KorAnzahl, 0, KorStop, Laufwunsch::Weiter));
  Skript.Erwarte("nicht vorhanden ! (ist ein Ordner)");
  EXPECT_EQ(KorLesen(Ordner.Pfad(""), Lesemodus::Alle, Punktformat::Nas), -1);
}

}  // namespace
}  // namespace tavorena::test
