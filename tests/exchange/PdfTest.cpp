#include "Testhilfe.h"

#include <cstdlib>

#include <tavorena/exchange/Pdf.h>
#include <tavorena/records/Seiten.h>

namespace tavorena::test {
namespace {

class PdfTest : public TabellenTest {
 protected:
#ifndef _WIN32
  // What a tool of the system says of the file.
  std::string Zeuge(const std::string& Befehl, const std::string& Ende = "") {
    const std::string Aus = Ordner.Pfad("zeuge.txt");
    EXPECT_EQ(std::system((Befehl + " '" + Pdf + "' " + Ende + " > '" + Aus + "'").c_str()), 0) << Befehl;
    return Inhalt(Aus);
  }
#endif
  const std::string Pdf = Ordner.Pfad("a.pdf");
};

#ifndef _WIN32  // the tools are the system's
TEST_F(PdfTest, DieselbenZeilenAufDenselbenSeiten) {
  std::string Text = "Fläche 12.345 m² Straße\r\n┌──┐│ x └┘   ÄÖÜ äöü\r\n\f";
  for (int i = 1; i <= 61; ++i) Text += "Zeile " + std::to_string(i) + "   ***\r\n";
  const std::pair<std::string, std::string> Breiten[] = {{"", "6.02"}, {std::string(145, 'w'), "3.612"}};
  for (const auto& [Breite, Zeichen] : Breiten) {
    const Druckseiten D = SeitenTeilen(Text + Breite + "/Ende\r\n");
    std::string Soll;
    for (const auto& Seite : D.Seiten) {
      for (const std::string& Zeile : Seite) Soll += "      " + Zeile + "\n";  // below the left margin
      Soll += '\f';
    }
    ASSERT_EQ(PdfSchreiben(Pdf, D, "Straße.dru"), 0);
    // Small lines stand far from each other, and the tool shows it.
    const std::string Gelesen = Zeuge("pdftotext -fixed " + Zeichen, "- | tr -s '\\n'");
    EXPECT_EQ(Gelesen, Soll);
  }
  const std::string Schriften = Zeuge("pdffonts"), Angaben = Zeuge("pdfinfo -isodates");
  EXPECT_NE(Schriften.find("DejaVuSansMono"), std::string::npos);
  EXPECT_TRUE(Gleich(Schriften.find(" no "), std::string::npos, Angaben.find("Straße.dru") > 0, true,
                     Angaben.find("2003-02-01T10:15:00") != std::string::npos, true,
                     Angaben.find("(A4)") != std::string::npos, true));
  const std::string Erstes = Inhalt(Pdf);
  ASSERT_EQ(PdfSchreiben(Pdf, SeitenTeilen("anders"), "\xE4.dru"), 0);  // a name in an old coding
  EXPECT_NE(Inhalt(Pdf), Erstes);
  ASSERT_EQ(PdfSchreiben(Pdf, SeitenTeilen(Text + Breiten[1].first + "/Ende\r\n"), "Straße.dru"), 0);
  EXPECT_EQ(Inhalt(Pdf), Erstes);  // the same bytes
}
#endif

TEST_F(PdfTest, WasNichtGeschriebenWirdLäßtDieAlteDatei) {
  Schreibe(Pdf, "alt");
  std::string Grund, Gezeigt;
  const Druckseiten D = SeitenTeilen("a\fb\fc");
  Skript.BeiEreignissen = [&] {
    Gezeigt = Skript.Status[static_cast<std::size_t>(Statusfeld::StatusHilfe)];
    KorStop = Laufwunsch::Stop;
  };
  EXPECT_TRUE(
      Gleich(PdfSchreiben(Pdf, D, "", &Grund), -2, Grund, "angehalten", Gezeigt, "   Seite 1 von 3   "));
  EXPECT_TRUE(Gleich(KorStop, Laufwunsch::Weiter, PdfSchreiben(Pdf, {}, "", &Grund), -1, Inhalt(Pdf), "alt"));
  Skript.BeiEreignissen = [] {};
  EXPECT_TRUE(
      Gleich(PdfSchreiben(Ordner.Pfad(""), SeitenTeilen("a"), "", &Grund), -1, Grund, "ist ein Ordner"));
}

}  // namespace
}  // namespace tavorena::test
