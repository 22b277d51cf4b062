// The instrument link: what becomes of a line, and the form with a line that a script plays.
#include "Formulartest.h"

#include <cmath>
#include <cstdio>
#include <random>

#include <tavorena/core/Winkel.h>
#include <tavorena/rawdata/Messempfaenger.h>
#include <tavorena/rawdata/TVTheoForm.h>

namespace tavorena::test {
namespace {

std::string Wort(const char* Kopf, double Wert, double Teiler, int Stellen) {
  char Text[40];
  std::snprintf(Text, sizeof Text, "%s+%0*.0f ", Kopf, Stellen, Wert * Teiler);
  return Text;
}

// The laser stands e square above the line of sight: its point is known from plane coordinates.
TEST(Zeilenreduktion, EbeneGeometrie) {
  struct Form {
    const char *Anfang, *Ende;
    int Stellen;
  };
  const Form Formen[] = {
      {"110007+0000BP04 ", "58..16-00000344 71....+00000015", 8},
      {"*110007+0000000000000101 ", "58..16-0000000000000344 51....+0000000000000000", 16}};
  struct Einheit {
    char z, d;
    double zTeiler, dTeiler;
  };
  const Einheit Einheiten[] = {{'2', '0', 1e5, 1e3}, {'3', '6', 0.9e5, 1e4}, {'2', '8', 1e5, 1e5}};
  for (const Form& F : Formen) {
    for (const Einheit& U : Einheiten) {
      for (const double z : {98.5, 100.0, 120.3, 65.25}) {
        for (const int Modus : {1, 2}) {
          const double d = 55.43, e = -0.125;
          const double xQ = d * SinGon(z) - e * CosGon(z), hQ = d * CosGon(z) + e * SinGon(z);
          const double zSoll = Modus == 1 ? std::atan2(xQ, hQ) * 200 / Pi() : z;
          const double dSoll = Modus == 1 ? std::hypot(xQ, hQ) : xQ / SinGon(z);
          const auto Zeile = [&](double V, double D, char Drittes) {
            return F.Anfang + Wort((std::string("22.32") + U.z).c_str(), V, U.zTeiler, F.Stellen) +
                   Wort((std::string("31.") + '.' + Drittes + U.d).c_str(), D, U.dTeiler, F.Stellen) + F.Ende;
          };
          std::string Ist = Zeile(z, d, '0');
          EXPECT_EQ(RohdatenZeileReduzieren(Ist, e, Modus), Reduktionsbefund::Reduziert);
          const std::string Soll = Zeile(zSoll, dSoll, '9');
          EXPECT_EQ(Ist, Soll);
          EXPECT_EQ(RohdatenZeileReduzieren(Ist, e, Modus), Reduktionsbefund::BereitsReduziert);
          EXPECT_EQ(RohdatenZeileReduzieren(Ist, e, 0), Reduktionsbefund::ImGerätReduziert);
          EXPECT_EQ(Ist, Soll);
        }
      }
    }
  }
  for (const char* Ohne :
       {"110001+00000001 22.322+00000000 31..00+00055430", "110001+00000001 31..00+00055430",
        "110001+00000001 22.322+09850000 31..00+00000000", "@W127",
        "110001+00000001 22.324+09850000 31..00+00055430", "110001+00000001 22.322+09850000 31..00+0005543X",
        "110001+00000001 22.322+00000001 31..06+99999999",
        "110001+00000001 22.322+09850000 31..00+0005543"}) {
    std::string Ist = Ohne;
    EXPECT_EQ(RohdatenZeileReduzieren(Ist, -0.125, 2), Reduktionsbefund::Unverändert) << Ohne;
    EXPECT_EQ(Ist, Ohne);
  }
}

// The pieces in which the bytes come decide nothing, and no byte is lost.
TEST(Antwortpuffer, StückeSindGleich) {
  std::mt19937 Zufall(20261122);
  const std::string Alles = "a\r\n\nbc" + std::string(2 * Antwortpuffer::Grenze, 'x') + "\n" +
                            std::string(Antwortpuffer::Grenze - 1, 'y') + "\nrest";
  for (const std::size_t Größtes : {Alles.size(), std::size_t(4096), std::size_t(7)}) {
    Antwortpuffer P;
    std::vector<std::string> Ist;
    std::string Antwort;
    for (std::size_t i = 0, n = 0; i < Alles.size(); i += n) {
      n = std::uniform_int_distribution<std::size_t>(1, Größtes)(Zufall);
      P.Nehmen(std::string_view(Alles).substr(i, n));
      while (P.Nächste(Antwort)) Ist.push_back(Antwort);
    }
    std::vector<std::size_t> Längen;
    std::string Zusammen;
    for (const std::string& A : Ist) Längen.push_back(A.size()), Zusammen += A;
    EXPECT_EQ(Längen, (std::vector<std::size_t>{3, 1, Antwortpuffer::Grenze, Antwortpuffer::Grenze, 3,
                                                Antwortpuffer::Grenze}));
    EXPECT_EQ(Zusammen + P.Rest(), Alles);
  }
  for (const auto& [Ein, Aus] :
       {std::pair{"ab", "ab"}, {"?\r\n", ""}, {"ab?\r\n", "ab"}, {"?ab\r\n", "?ab\r\n"}}) {
    std::string Antwort = Ein;
    TVTheoFragezeichenWeg(Antwort);
    EXPECT_EQ(Antwort, Aus);
  }
}

// What the script and the form's line share.
struct Draht {
  std::string Gesendet, Wartet;
  bool Da = true;
};
class Skriptleitung final : public Leitung {
 public:
  explicit Skriptleitung(Draht& Gemeinsam) : D(Gemeinsam) {}
  int Senden(std::string_view Bytes) override { return D.Gesendet += Bytes, D.Da ? 0 : -1; }
  std::string Lesen() override { return std::exchange(D.Wartet, ""); }
  [[nodiscard]] bool Offen() const override { return D.Da; }

 private:
  Draht& D;
};

// A worksheet of one grid with the columns number, value, t; its state is set by the test.
class Empfängerblatt final : public Formular, public Messempfänger {
 public:
  Empfängerblatt() : Formular("TVFStatForm"), G(GitterAnlegen("G", {{"Nr", 8, true}, {"Hz", 8, true}}, {})) {
    G.Leeren(1);
    G.Spalte = 1;
    G.BeiTaste = [this](Taste T) {
      return T == Taste::Return && (G.ZeileAnhängen(), G.Zeile = G.Zeilen() - 1, true);
    };
    Öffnen();
    MessempfängerAnmelden(*this);
  }
  ~Empfängerblatt() override { MessempfängerAbmelden(*this); }
  Formular& Blatt() override { return *this; }
  [[nodiscard]] std::string Formname() const override { return "tvfstatform"; }
  [[nodiscard]] Messort Fokus() const override { return Ort; }
  [[nodiscard]] std::string Standpunkt() const override { return Stand; }
  [[nodiscard]] bool StandpunktVollständig() const override { return !Stand.empty() && Ih > 0; }
  void StandpunktNehmen(const std::string& Nummer, const Messwert& H) override {
    if (!Nummer.empty()) Stand = Nummer;
    if (H.Da) Ih = H.Wert;
  }
  int MessungNehmen(const Messsatz& S) override {
    const std::string Hz = std::to_string(S.Hz.Wert), t = std::to_string(S.Reflektorhöhe.Wert);
    G.InhaltSetzen(G.Zeile, 1, Hz.substr(0, 7) + "/" + t.substr(0, 4));
    return 0;
  }
  Messort Ort = Messort::Polargitter;
  std::string Stand;
  double Ih = 0;
  Gitter& G;
};

class Theodolit : public TabellenTest {
 protected:
  Theodolit() {
    TheoHaken = {[this](TheoOptionen& T) { return T = Einstellungen, 0; },
                 [this](const TheoOptionen& T) { Einstellungen = T; }};
    Einstellungen.Rohdatendatei = Ordner.Pfad("roh.gsi");
    Umgebungsvariable("TAVORENA_COM2", "/dev/gerät");
    Skript.BeiLeitung = [this](const std::string& Wie) {
      Geöffnet += Wie + ";";
      return D.Da ? std::make_unique<Skriptleitung>(D) : nullptr;
    };
    Skript.BeiEreignissen = [this] {
      if (Schritt == Schritte.size()) return static_cast<void>(Drücke(Form, "TVTheoEnde"));
      Schritte[Schritt++]();
    };
  }
  ~Theodolit() override { TheoHaken = {}; }
  // Opens the form, connects, and plays the steps; behind the last one the form is closed.
  void Spielen(std::vector<std::function<void()>> Neue) {
    Schritte = std::move(Neue);
    Schritt = 0;
    Form.Öffnen();
    Drücke(Form, "TVTheoIO");
  }
  std::function<void()> Kommt(const std::string& Bytes, const std::string& Meldung = "") {
    return [=, this] {
      if (!Meldung.empty()) Skript.Erwarte(Meldung);
      D.Wartet += Bytes;
      Gekommen += Bytes;
    };
  }
  std::function<void()> Status(const std::string& Soll) {
    return [=, this] { EXPECT_EQ(Text(Form, "TheoStatus"), Soll); };
  }
  [[nodiscard]] std::string Datei() const { return Inhalt(Ordner.Pfad("roh.gsi")); }

  TheoOptionen Einstellungen;
  Draht D;
  std::string Geöffnet, Gekommen;
  std::vector<std::function<void()>> Schritte;
  std::size_t Schritt = 0;
  TVTheoForm Form;
};

const std::string Messung = "110001+00000101 21.322+12345678 22.322+09876543 31..00+00055430 87...0+00001600",
                  Ohnet = Messung.substr(0, 63), Im = "110001+00000101 22.322+09876543 31..10+00055430";

TEST_F(Theodolit, ZeilenKommenInDieDateiUndDannInsBlatt) {
  Empfängerblatt Blatt;
  const char* const Vorher =
      "Vor einer Messung \nStandpunktnummer und Instr.- / Refl.- Höhe\nam Gerät oder in der";
  Skript.BeiMeldung = [this](const std::string&) { EXPECT_NE(Datei().find(Messung), std::string::npos); };
  Spielen(
      {Status("Verbindung geöffnet"), Kommt(Messung + "\r\n", Vorher),
       [&] {
         EXPECT_EQ(Text(Form, "TVTheoIO"), "&Messen");
         Drücke(Form, "TVTheoIO");
       },
       Kommt("410002+00000000 42....+00000060 43....+00002031\r\n"),
       Kommt("410002+00000060 42....+00002031\r\n410001+?..+00000000\r\n"),
       Kommt("110003+00002031 84...0+03500100 85...0+05600200 88...0+00001550\n"),
       Kommt(Messung.substr(0, 20)), Kommt(Messung.substr(20) + "?\r\n@W127\r\n"), Kommt("*11"),
       Kommt(
           "0001+0000000000000102 21.322+0000000012300000 22.322+0000000010000000 31..00+0000000000055430\n"),
       [&] { Blatt.Ort = Messort::Außerhalb; },
       Kommt(Ohnet + "\n", "Sie müssen sich in einem Gitterfeld befinden !"),
       [&] { Blatt.Ort = Messort::Nummernspalte; },
       Kommt(Ohnet + "\n", "Punktnummerneingabe nur manuell oder aus der Grafik !"),
       Kommt("410004+00000060 42....+00002032\n", "Für neuen Standpunkt bitte Formular verlassen und \n"),
       Kommt("@E" + std::string(60, '1') + "\n"), Status("@E" + std::string(42, '1') + "…"), Kommt("halb")});
  EXPECT_EQ(Geöffnet, "/dev/gerät 9600,N,8,1;");
  EXPECT_EQ(D.Gesendet, "Wrzlbrmpft\r");
  EXPECT_EQ(Blatt.Stand + "/" + std::to_string(Blatt.Ih), "2031/1.550000");
  ASSERT_EQ(Blatt.G.Zeilen(), 3);
  EXPECT_TRUE(Gleich(Blatt.G.Inhalt(0, 1), "123.456/1.60", Blatt.G.Inhalt(1, 1), "123.000/1.60"));
  std::string Ist = Datei();  // all that came, in its order
  std::erase(Ist, '\r');
  std::erase(Gekommen, '\r');
  Gekommen.erase(Gekommen.find("?\n"), 1);
  EXPECT_EQ(Ist, Gekommen + "\n");
  EXPECT_FALSE(Form.Offen());
}

TEST_F(Theodolit, Reduktion) {
  Spielen(
      {Kommt(Im + "\n", "Achtung: Rohdaten werden im Gerät reduziert !"), Kommt(Im + "\n"),
       [&] { Form.Wählen(Element<Auswahl>(Form, "TheoReduktion"), "Reduktion auf optische Punkte", true); },
       Kommt(Im + "\n", "Fehler: Rohdaten bereits im Gerät reduziert !"), Kommt(Messung + "\n")});
  EXPECT_EQ(Datei(),
            Im + "\r\n" + Im + "\r\n" + Im + "\r\n" +
                "110001+00000101 21.322+12345678 22.322+09876543 31..90+00055428 87...0+00001600\r\n");
  EXPECT_EQ(Einstellungen.Reduktion, 2);
}

TEST_F(Theodolit, LeitungUndDateiVersagen) {
  Spielen({Kommt("halb"), [&] { Skript.Erwarte("Fehler 57 in Theodolit /dev/gerät"), D.Da = false; }});
  EXPECT_EQ(Datei(), "halb\r\n");
  EXPECT_TRUE(Gleich(Text(Form, "TheoStatus"), "keine Verbindung", Text(Form, "TVTheoIO"), "&Verbinden"));
  Skript.Erwarte("Fehler 57");
  Drücke(Form, "TVTheoIO");
  Drücke(Form, "TVTheoEnde");
  D.Da = true;
  Einstellungen.Rohdatendatei = Ordner.Pfad("fehlt/roh.gsi");
  const std::string Meldung =
      "Rohdatendatei\n" + Einstellungen.Rohdatendatei +
      "\nkann nicht geöffnet werden !\nÜberprüfen Sie, ob das Verzeichnis existiert, und die "
      "Schreibrechte !";
  // What no file took is kept until one does, or until the surveyor gives it up.
  Spielen({Kommt("@1\n", Meldung), Status("1 Zeile noch in keiner Datei"), [&] {
             Skript.Erwarte("1 Zeile vom Theodoliten noch in keiner Datei", KnopfNein);
             Drücke(Form, "TVTheoEnde");
           }});
  EXPECT_TRUE(Form.Offen());
  fs::create_directory(Ordner.Pfad("fehlt"));
  Schritte.clear();
  Schritt = 0;
  Drücke(Form, "TVTheoIO");
  EXPECT_TRUE(Gleich(Inhalt(Einstellungen.Rohdatendatei), "@1\r\n", Form.Offen(), false));
}

TEST_F(Theodolit, Emulation) {
  TheoEmulationsdatei = Ordner.Pfad("e.gsi");
  Schreibe(TheoEmulationsdatei, "eins\r\nzwei");
  Form.Öffnen();
  Form.Wählen(Element<Auswahl>(Form, "TheoEmulation"), "", true);
  Drücke(Form, "TVTheoIO");
  EXPECT_EQ(Datei(), "eins\r\n");
  Drücke(Form, "TVTheoIO");
  Skript.Erwarte("Emulationsdatei zuende !");
  Drücke(Form, "TVTheoIO");
  EXPECT_TRUE(Gleich(Datei(), "eins\r\nzwei\r\n", Form.Offen(), false, Geöffnet, ""));
}

}  // namespace
}  // namespace tavorena::test
