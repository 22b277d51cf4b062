#include <utility>
#include <vector>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena {

Protokoll Prot;
Plan LetzterPlan;
std::string DateinameProtokollTemp;

namespace {

constexpr int ZeilenJeSeite = 50;
const std::string ProtRahmen = "|";

std::string Zweistellig(int Zahl) { return ZahlFeldNull(Zahl, 2); }

std::string Artzeile(const Verbindung& V, int Seite) {
  std::string Text = V.Titel;
  if (Text.starts_with("VR") && ZeichenAnzahl(Text) > 8) {
    Text = FeldLinks(V.Titel, 8) + "  " + Trimmen(TextTeil(V.Titel, 9));
  }
  if (Optionen.AbfrageRiss) Text += "  (" + V.Riß.Riss + ") " + V.Riß.BerNr;
  return ProtRahmen + FeldLinks(Text, 62) + "Seite" + ZahlFeld(Seite, 3) + ProtRahmen;
}

// One entry: its lines are gathered, reach the file in one piece, and only then count.
class Eintrag {
 public:
  explicit Eintrag(Protokoll& Ziel) : Alt(Ziel), Neu(Ziel) {
    Eben = DateiAnsehen(Neu.Datei);
    if (!Neu.HatInhalt || Eben.Stand == Neu.Stand) return;
    // Somebody else was in the file: what stands above the next line is not known any more.
    Neu.Darüber.reset();
    Fremd = true;
  }

  // The one output primitive. Vorschub 0: without a line end, the next line goes on behind it.
  void ProtZeile(const std::string& Text, int Vorschub = 1) {
    Puffer += Text;
    if (Vorschub > 0) {
      if (Neu.ZeilenNummern) Puffer += Leerzeichen(10) + PnrFormat(Neu.Zeilen);
      Puffer += "\r\n";
    }
    // The window needs no print margin.
    const bool OhneRand = !Neu.NeueZeile && Text.starts_with("      ") && ZeichenAnzahl(Text) >= 7;
    if (Neu.ImFenster && Optionen.ProtokollfensterAn) Fenster.emplace_back(OhneRand ? Text.substr(6) : Text);
    Neu.HatInhalt = true;
    Neu.NeueZeile = Neu.SeiteFrisch = false;
  }

  void ProtZaehlen(int Anzahl) {
    Neu.Zeilen += Anzahl;
    if (!Neu.OhneUmbruch && Neu.Zeilen > ZeilenJeSeite) ProtNeueSeite();
  }

  void ProtNeueSeite() {
    Puffer += '\f';
    Neu.Zeilen = 1;
    ++Neu.Seite;
    Neu.NeueZeile = Neu.SeiteFrisch = true;
  }

  void ProtKopf(const Verbindung& V) {
    const bool InDatei = !Neu.OhneKopf || Neu.HatKopf;
    // A fresh page has its number already: ProtNeueSeite raised it.
    const int Seite = Neu.SeiteFrisch ? Neu.Seite - 1 : Neu.Seite++;
    for (const std::string& Zeile : ProtKopfzeilen(V, KoordinatendateiName, Seite)) {
      if (InDatei) ProtZeile(Zeile);
      ++Neu.Zeilen;  // a head is never broken
    }
    Neu.HatKopf = true;
  }

  void ProtBlock(const Block& B) {
    for (int i = 0; i < std::ssize(B.Zeilen); ++i) {
      if (i == B.NeueSeiteVor && !Neu.SeiteFrisch) ProtNeueSeite();
      ProtZeile(B.Zeilen[static_cast<std::size_t>(i)]);
      ProtZaehlen(1);
    }
  }

  // What has to stand above the next line.
  void Stellen(const std::shared_ptr<const Verbindung>& V) {
    if (V == Neu.Darüber) return;
    if (!Neu.Darüber || !UnterDemKopf(*V)) {
      if (!IstAnfang() && !Neu.SeiteFrisch) ProtNeueSeite();
      ProtKopf(*V);
    }
    ProtBlock(V->Zeilen);
    Neu.Darüber = V;
  }

  [[nodiscard]] int Abschließen() {
    if (Puffer.empty()) return 0;
    std::string Grund;
    const Dateiblick* Blick = &Eben;
    while (TextAnhängen(Neu.Datei, Puffer, &Grund, &Neu.Stand, std::exchange(Blick, nullptr)) < 0) {
      const int Antwort = SchreibfehlerFrage(Neu.Datei, Grund, "");
      if (Antwort == KnopfOhne) Alt.Datei.clear();
      if (Antwort != KnopfNochmals) return Antwort == KnopfOhne ? 0 : -1;
    }
    for (const std::string& Zeile : Fenster) {
      Protokollfenster.Anhängen(Zeile + "\n");
      AnzeigePort().ProtokollGeändert();
    }
    Alt = std::move(Neu);
    return 0;
  }

 private:
  // The head above the next line is that of V.
  [[nodiscard]] bool UnterDemKopf(const Verbindung& V) const {
    const Verbindung& D = *Neu.Darüber;
    return D.Titel == V.Titel && D.SollDatei == V.SollDatei && (!Optionen.AbfrageRiss || D.Riß == V.Riß);
  }

  // No head of this protocol stands above, or nothing at all.
  [[nodiscard]] bool IstAnfang() const { return !Neu.HatKopf || (Fremd && Eben.Stand.Länge == 0); }

  Protokoll& Alt;
  Protokoll Neu;
  Dateiblick Eben;  // of the file before the entry
  std::string Puffer;
  std::vector<std::string> Fenster;
  bool Fremd = false;
};

template <typename Arbeit>
int Eintragen(Protokoll& P, Arbeit Tun) {
  if (P.Datei.empty()) return 0;
  Eintrag E(P);
  Tun(E);
  return E.Abschließen();
}

}  // namespace

std::vector<std::string> ProtKopfzeilen(const Verbindung& V, const std::string& Name, int Seite) {
  const std::string Strich(72, '-'), Stempel = Zeitstempel();
  std::vector<std::string> Zeilen = {
      "",
      Strich,
      ProtRahmen + FeldLinks("Tavorena", 29) + RechtsBündig(Stempel, 40) + " " + ProtRahmen,
      ProtRahmen + FeldLinks(KuerzenMitPunkten(Name, 70), 70) + ProtRahmen,
      Artzeile(V, Seite),
      Strich,
      Leerzeichen(6),
  };
  for (std::string& Zeile : Tabellenkopf(V.Titel, V.HoehenRechnen, V.SollDatei))
    Zeilen.push_back(std::move(Zeile));
  return Zeilen;
}

void ProtokollNehmen(const std::string& Dateiname) {
  AktenSichern();
  Prot = {};
  Prot.Datei = Dateiname;
  Prot.ImFenster = true;
}

std::string Zeitstempel() {
  const Zeitpunkt t = AblaufPort().Jetzt();
  return Zweistellig(t.Tag) + "." + Zweistellig(t.Monat) + "." + ZahlFeldNull(t.Jahr, 4) + "   " +
         Zweistellig(t.Stunde) + ":" + Zweistellig(t.Minute);
}

int Schreiben(Protokoll& P, const std::shared_ptr<const Verbindung>& V, const Block& B) {
  return Eintragen(P, [&](Eintrag& E) {
    if (V) E.Stellen(V);
    E.ProtBlock(B);
  });
}

int ProtNeueSeite(Protokoll& P) {
  return Eintragen(P, [](Eintrag& E) { E.ProtNeueSeite(); });
}

int ProtLeerzeile(Protokoll& P) {
  return Eintragen(P, [](Eintrag& E) { E.ProtZeile(""); });
}

int ProtKopfAusgabe(const std::string& Datei, const Verbindung& V, const std::string& Name, int Seite) {
  std::string Text;
  for (const std::string& Zeile : ProtKopfzeilen(V, Name, Seite > 0 ? Seite : Prot.Seite))
    Text += Zeile + "\r\n";
  std::string Grund;
  if (TextAnhängen(Datei, Text, &Grund) == 0) return 0;
  SchreibfehlerMelden(Datei, Grund);
  return -1;
}

}  // namespace tavorena
