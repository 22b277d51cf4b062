#include "Blattest.h"

#include <tavorena/worksheets/Anschlusswahl.h>
#include <tavorena/worksheets/TVMMittForm.h>

namespace tavorena::test {
namespace {

class Stationsdatei : public Blatttest {};

struct Liste final : Messliste {
  std::vector<Punktsatz> Alle;
  [[nodiscard]] std::vector<Punktsatz> Messpunkte() const override { return Alle; }
  void MesspunkteMitteln(const std::vector<int>& Zeilen) override {
    for (auto z = Zeilen.rbegin(); z + 1 != Zeilen.rend(); ++z) Alle.erase(Alle.begin() + *z);
    Alle[static_cast<std::size_t>(Zeilen.front())].Symbol = std::to_string(Zeilen.size());
  }
  void MesspunktLöschen(int Zeile) override { Alle.erase(Alle.begin() + Zeile); }
  bool MesspunktUmnummern(int Zeile, const std::string& Pnr) override {
    if (Pnr.empty()) return false;
    Alle[static_cast<std::size_t>(Zeile)].Pnr = Pnr;
    return true;
  }
};

TEST_F(Stationsdatei, MittelNurUnterDenMessungen) {
  Liste L;
  for (const char* Pnr : {"7", "8", "7", "9", "8", "7", "8", "9", "9"})
    L.Alle.push_back({Pnr, 100 + 0.1 * static_cast<double>(L.Alle.size()), 200, 0, ""});
  TVMMittForm Form(L);
  Form.Öffnen();
  EXPECT_TRUE(Gleich(Text(Form, "NeuerPunktPnr"), "7", Text(Form, "NeuerPunktRechts"), "100.233",
                     Text(Form, "AlterPunktBem(0)"), "W>D(max)", Text(Form, "AlterPunktBem(1)"), "W>D"));
  Drücke(Form, "MMittMitteln");
  EXPECT_EQ(L.Alle.size(), 7U);
  Drücke(Form, "MMittWeiter");  // the 8 stay
  Skript.Erwarte("Messung 9 löschen ?", KnopfJa);
  Drücke(Form, "AlterPunktLöschen(0)");
  Tippe(Form, "AlterPunktPnr(1)", "10\n");
  std::string Rest;
  for (const Punktsatz& P : L.Alle) Rest += P.Pnr + P.Symbol + " ";
  EXPECT_EQ(Rest, "73 8 8 8 9 10 ");
  EXPECT_FALSE(Form.Offen());
  EXPECT_EQ(KorAnzahl, 5);
}

TEST_F(Stationsdatei, VorgeschlagenIstWasDieTabelleKennt) {
  Rohstation S;
  for (const char* Pnr : {"1001", "9001", "2005"}) S.Anschluss.push_back({Pnr, "", 12.5, 100, 20, 1.5, 1});
  std::vector<bool> Ein = AnschlussVorschlag(S);
  EXPECT_EQ(Ein, (std::vector<bool>{true, false, true}));
  Skript.Formulare.emplace_back([](Formular& Form) {
    Form.Öffnen();
    auto& G = Gitterfeld(Form);
    EXPECT_TRUE(Gleich(G.Markiert(0), true, G.Inhalt(0, 7), "3500100.000", G.Inhalt(1, 7), ""));
    Form.Markieren(G, 1, false);
    Form.Markieren(G, 0, false);
    Drücke(Form, "OK");
  });
  EXPECT_EQ(AnschlussWählen(S, "Station 1 von 1", Ein), 0);
  EXPECT_EQ(Ein, (std::vector<bool>{false, true, true}));
}

}  // namespace
}  // namespace tavorena::test
