#include "Formulartest.h"

#include <random>

#include <tavorena/forms/Bezeichnung.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena::test {
namespace {

using Namen = std::vector<std::string>;

// A form with one control of each kind; Zahl takes digits only.
class Probeform final : public Dialogform {
 public:
  Probeform() : Dialogform("Probeform", "Probe") {
    Zahl.BeiVerlassen = [this] { return Zahl.Text->find_first_not_of("0123456789") == std::string::npos; };
    Tabelle.BeiVerlassen = [this] { return Tabelle.Inhalt(Tabelle.Zeile, 0) != "x"; };
    Tabelle.Leeren(3);
    OkUndAbbruch([this] { Fertig(7); });
  }

  Beschriftung& Label = BeschriftungAnlegen("Zahl:", {0, 0});
  tavorena::Feld& Zahl = ZahlenfeldAnlegen("Zahl", {0, 1});
  tavorena::Feld& Summe = ErgebnisfeldAnlegen("Summe", {0, 2});
  Gitter& Tabelle = GitterAnlegen("Tabelle", {{"a", 5, true}, {"b"}}, {1, 0});
  Auswahl& Haken = KästchenAnlegen("Haken", "&Haken", {2, 0});
  tavorena::Feld& Text = FeldAnlegen("Text", {3, 0});
};

// Notes what it is told, and keeps a copy of the grid by that alone.
class Zuschauer final : public FormularBeobachter {
 public:
  explicit Zuschauer(Probeform& Gesehen) : Form(Gesehen) { Form.Beobachten(this); }
  ~Zuschauer() override { Form.Beobachten(nullptr); }
  void SteuerelementGeändert(Steuerelement& S) override { Gehört.push_back(S.Name); }
  void GitterGeändert(Gitter& G, const Gitteränderung& Was) override {
    if (Was.Von < Was.Bis)
      Gehört.push_back("Zeilen " + std::to_string(Was.Von) + "-" + std::to_string(Was.Bis));
    if (Was.Zelle) Gehört.emplace_back("Zelle");
    if (Was.Spalten) Gehört.emplace_back("Spalten");
    if (Was.Zeilenzahl) Zeilen.resize(static_cast<std::size_t>(G.Zeilen()));
    for (int z = Was.Von; z < Was.Bis; ++z)
      Zeilen.at(static_cast<std::size_t>(z)) = G.Inhalt(z, 0) + "," + G.Inhalt(z, 1);
  }
  void TitelGeändert() override { Gehört.push_back(Form.Titel); }
  void FormularGeschlossen() override { Gehört.emplace_back("geschlossen"); }
  Namen Neues() { return std::exchange(Gehört, {}); }

  Namen Zeilen{3, ","};

 private:
  Probeform& Form;
  Namen Gehört;
};

class Formulare : public TabellenTest {
 protected:
  Formulare() { Form.Öffnen(); }
  std::string Fokus() const { return Form.Fokus()->Name; }
  Probeform Form;
};

TEST_F(Formulare, FokusGehtAnAllenVorbeiDieGeschlossenSind) {
  EXPECT_EQ(Fokus(), "Zahl");
  Form.Haken.Sichtbar = false;
  Namen Vor, Zurück;
  const Steuerelement* S = &Form.Zahl;
  for (int i = 0; i < 5; ++i) Vor.push_back((S = Form.Nachbar(*S, true))->Name);
  for (int i = 0; i < 5; ++i) Zurück.push_back((S = Form.Nachbar(*S, false))->Name);
  EXPECT_EQ(Vor, (Namen{"Tabelle", "Text", "OK", "Abbrechen", "Zahl"}));  // round the end
  EXPECT_EQ(Zurück, (Namen{"Abbrechen", "OK", "Text", "Tabelle", "Zahl"}));
  EXPECT_EQ(Form.Nachbar(Form.Haken, true), &Form.Text);  // from one that was closed with the focus in it
  for (const char* Zu : {"Summe", "Haken", ""}) {
    Form.FokusSetzen(Element(Form, Zu));
    Form.FokusWechseln(Element(Form, Zu));
    EXPECT_EQ(Fokus(), "Zahl");
  }
  for (int i = 0; i < 9; ++i) Form.FokusWeiter();
  EXPECT_EQ(Fokus(), "Abbrechen");  // Return does not go round
}

TEST_F(Formulare, AbgewiesenerWertHältDenFokus) {
  Tippe(Form, "Zahl", "1a");
  Form.FokusWechseln(Form.Text);
  EXPECT_TRUE(Gleich(Fokus(), "Zahl", Form.Zahl.Fehlerhaft, true));
  Drücke(Form, "OK");
  EXPECT_TRUE(Form.Offen());
  Form.Tippen(Form.Zahl, "1");
  EXPECT_FALSE(Form.Zahl.Fehlerhaft);
  Form.FokusWechseln(Form.Tabelle);
  Form.Tippen(Form.Tabelle, "x");
  Form.ZelleWechseln(Form.Tabelle, 2, 0);
  EXPECT_TRUE(Gleich(Form.Tabelle.Zeile, 0, Form.Tabelle.Fehlerhaft, true));
  Form.FokusWechseln(Element(Form, "Abbrechen"));  // a way out is always open
  EXPECT_EQ(Fokus(), "Abbrechen");
  Form.FokusSetzen(Form.Tabelle);
  Drücke(Form, "Abbrechen");
  EXPECT_FALSE(Form.Offen());
}

TEST_F(Formulare, TastenFührenDurchDasFormular) {
  EXPECT_EQ(Tippe(Form, "Zahl", "12\n"), "Tabelle");
  Form.Tabelle.BeiTaste = [&](Taste T) { return T == Taste::Return && Form.Tabelle.Zeile == 0; };
  EXPECT_EQ(Tippe(Form, "Tabelle", "\n"), "Tabelle");
  Form.ZelleWechseln(Form.Tabelle, 1, 0);
  EXPECT_EQ(Tippe(Form, "Tabelle", "\n\n"), "Text");  // on to the check box, and on
  EXPECT_FALSE(Form.TasteDrücken(Taste::Plus));       // it belongs to the text
  Namen Getan;
  Form.Text.BeiVerlassen = [&] { return Getan.emplace_back("gelesen"), true; };
  Form.Text.BeiReturn = [&] { Getan.emplace_back("Return"); };
  Form.TasteDrücken(Taste::Return);
  EXPECT_EQ(Getan, (Namen{"gelesen", "Return"}));
  Form.Text.BeiReturn = {};
  Skript.Formulare.push_back([](Formular& F) { F.TasteDrücken(Taste::Return); });
  EXPECT_EQ(Form.Zeigen(), 7);  // from the last field Return presses the default
  Skript.Formulare.push_back([this](Formular& F) {
    F.Öffnen();
    Skript.Formulare.push_back(Bediene({{"Knopf(0)", ""}}));
    EXPECT_EQ(PunktVorhandenFrage("7"), 0);  // a question inside leaves its own result
    F.FokusWechseln(Form.Tabelle);
    EXPECT_TRUE(F.TasteDrücken(Taste::Escape));
    EXPECT_FALSE(F.Offen() || F.TasteDrücken(Taste::Escape));
  });
  EXPECT_TRUE(Gleich(Form.Zeigen(), -1, Dialogergebnis, -1));
}

TEST_F(Formulare, GeschlossenesNimmtNichtsAn) {
  auto& Ok = Element<Knopf>(Form, "OK");
  Tippe(Form, "Zahl", "1a");
  Form.Haken.Aktiv = false;
  bool Gelesen = false;
  Form.Zahl.BeiVerlassen = [&] {
    Form.Zahl.Aktiv = Ok.Aktiv = false;
    return !std::exchange(Gelesen, true);
  };
  Form.Klicken(Ok);  // closed by the reading, with the focus and a wrong value
  EXPECT_FALSE(Form.TasteDrücken(Taste::Return));
  Form.Tippen(Form.Zahl, "2");
  Form.Tippen(Form.Summe, "2");
  Form.Wählen(Form.Haken, "", true);
  Form.Tabelle.Spalte = 1;  // not typed into
  Form.Tippen(Form.Tabelle, "2");
  EXPECT_EQ(*Form.Zahl.Text + *Form.Summe.Text + Form.Tabelle.Inhalt(0, 1), "1a");
  EXPECT_TRUE(Form.Offen() && !Form.Haken.Gewählt);
  Form.FokusWechseln(Form.Text);  // there is nothing to read in it
  EXPECT_EQ(Fokus(), "Text");
  Form.Tabelle.Sichtbar = false;
  Form.ZelleWechseln(Form.Tabelle, 2, 0);
  EXPECT_EQ(Form.Tabelle.Zeile, 0);
  Form.TasteDrücken(Taste::Return);
  EXPECT_TRUE(Form.Offen());  // the default button is closed too
}

TEST_F(Formulare, NurWasSichÄnderteWirdGesagt) {
  Form.Text.Text = "vorher";  // what was before is not told
  Zuschauer Z(Form);
  Form.Ereignis([this] { Form.Summe.Text = ""; });  // nor what is as it was
  EXPECT_EQ(Z.Neues(), Namen{});
  Form.Zahl.BeiText = [this] {
    Form.Wählen(Form.Haken, "", true);  // an event inside
    Form.Summe.Text = *Form.Zahl.Text + "!";
  };
  Form.Tippen(Form.Zahl, "5");
  EXPECT_EQ(Z.Neues(), (Namen{"Zahl", "Summe", "Haken"}));
  Form.Ereignis([this] {
    Form.Tabelle.Spalten[1].Sichtbar = false;
    Form.Titel = "neu";
  });
  EXPECT_EQ(Z.Neues(), (Namen{"Spalten", "neu"}));
  Form.ZelleWechseln(Form.Tabelle, 1, 0);
  EXPECT_EQ(Z.Neues(), Namen{"Zelle"});
  Form.FokusSetzen(Form.Tabelle);
  Form.Tippen(Form.Tabelle, "x");
  Form.TasteDrücken(Taste::Return);  // refused: the cell is marked
  EXPECT_EQ(Z.Neues(), (Namen{"Zeilen 1-2", "Tabelle"}));
  Skript.Erwarte("Fehler 9 in Probeform (");  // what is thrown ends its event only
  Form.Ereignis([this] {
    Form.Text.Text = "a";
    Form.Tabelle.InhaltSetzen(99, 0, "a");
  });
  EXPECT_EQ(Z.Neues(), Namen{"Text"});
  EXPECT_FALSE(Form.InArbeit());
  Form.Ereignis([this] {
    Form.Zahl.Text = "9";
    Form.SchließenVerlangen();
  });
  EXPECT_EQ(Z.Neues(), Namen{"geschlossen"});
}

TEST_F(Formulare, GitterBleibtDurchDasGesagteGleich) {
  std::mt19937 Zufall(19700101);
  const auto Würfel = [&](int Seiten) { return static_cast<int>(Zufall() % static_cast<unsigned>(Seiten)); };
  Zuschauer Z(Form);
  Gitter& G = Form.Tabelle;
  for (int i = 0; i < 3000; ++i) {
    Form.Ereignis([&] {
      for (int k = Würfel(6); k > 0; --k) {
        const int Was = Würfel(11), z = Würfel(G.Zeilen() + 1);
        if (Was < 4) G.ZeileAnhängen();
        if (Was == 4) G.Leeren(Würfel(4));
        if (Was == 5) G.ZeileLöschen(z);
        if (Was == 6 && z < G.Zeilen()) G.Zeile = z;
        if (Was > 6 && z < G.Zeilen()) G.InhaltSetzen(z, Würfel(2), std::to_string(Würfel(3)));
      }
    });
    Namen Soll;
    for (int z = 0; z < G.Zeilen(); ++z) Soll.push_back(G.Inhalt(z, 0) + "," + G.Inhalt(z, 1));
    ASSERT_EQ(Z.Zeilen, Soll) << i;
    ASSERT_TRUE(G.Zeile >= 0 && (G.Zeile == 0 || G.Zeile < G.Zeilen()));
  }
}

// What is read aloud: rows with a heading, fields behind each other, and what two frames have alike.
TEST(Bezeichnung, AusBeschriftungUndPlatz) {
  struct Abstandsform final : public Formular {
    Abstandsform() : Formular("Abstandsform") {
      Titel = "Abstand";
      for (const char* Gerade : {"Gerade 1", "Gerade 2"}) {
        BeschriftungAnlegen("Punktnr.", {0, 1}, Gerade);
        BeschriftungAnlegen("Rechts", {0, 2}, Gerade);
        BeschriftungAnlegen("&Anf.pkt.:", {1, 0}, Gerade);
        FeldAnlegen("Pnr", {1, 1}, Gerade);
        ErgebnisfeldAnlegen("Rechts", {1, 2}, Gerade);
        BeschriftungAnlegen("Abstand", {2, 3}, Gerade);
        FeldAnlegen("Abstand", {2, 4}, Gerade);
        FeldAnlegen("Dahinter", {2, 5}, Gerade);
      }
      BeschriftungAnlegen("Datei:", {0, 0});
      FeldAnlegen("Datei", {0, 1});
      KnopfAnlegen(
          "Wahl", "...", [] {}, {0, 2}, "");
      KnopfAnlegen("Ende", "&Schließen ...", [] {});
    }
  } Form;
  Namen Alle;
  const auto Wie = Bezeichnungen(Form);
  for (const auto& S : Form.Steuerelemente()) {
    if (Wie.contains(S.get())) Alle.push_back(Wie.at(S.get()));
  }
  EXPECT_EQ(Alle, (Namen{"Anf.pkt. Punktnr., Gerade 1", "Anf.pkt. Rechts, Gerade 1", "Abstand, Gerade 1",
                         "Gerade 1", "Anf.pkt. Punktnr., Gerade 2", "Anf.pkt. Rechts, Gerade 2",
                         "Abstand, Gerade 2", "Gerade 2", "Datei", "Datei wählen", "Schließen"}));
}

}  // namespace
}  // namespace tavorena::test
