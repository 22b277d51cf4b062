#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Nivrohdaten.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

constexpr double Höchste = 10000, HöchsteAblesung = 100;  // beyond them it is something else [m]
constexpr double Doppelgrenze = 0.001;  // two readings of one sight may differ by so much [m]

// A number as a field book can hold it: one word that is no keyword of it.
std::string Nivnummer(std::string_view Text) {
  std::string Pnr(OhneFührendeNullen(Text));
  for (char& z : Pnr) z = static_cast<unsigned char>(z) <= 32 || z == 127 ? '_' : z;
  return Pnr == "C" || Pnr == "NIV" || Pnr == "-" ? Pnr + "_" : Pnr;
}

// Back- or foresight of a set-up.
struct Blick {
  std::string Pnr;
  int Anzahl = 0;
  double Wert = 0, Weite = KeineAblesung;
};

// Puts readings together to set-ups and those to lines.
class Nivsammler {
 public:
  explicit Nivsammler(Nivfund& Fund) : F(Fund) {}

  void Nehmen(char Art, const Messsatz& Satz, double Wert);
  void Höhe(const Messsatz& Satz);
  void Trennen() {
    Ablegen();
    Neu = true;
  }
  void Hinweisen(const std::string& Text) {
    F.Hinweise.push_back("Zeile " + std::to_string(Zeile) + ": " + Text);
  }

  std::size_t Zeile = 0;  // that is read

 private:
  void Ablegen();
  void Mitteln(Blick& B, const Blick& Zweiter, const char* Name);
  [[nodiscard]] std::vector<Nivzeile>& Rückzeilen();

  Nivfund& F;
  Blick R, V;
  std::vector<Nivzeile> Zwischen;
  bool Neu = true;  // the next set-up begins a line
  std::unordered_map<std::string, double> Höhen;
};

void Nivsammler::Mitteln(Blick& B, const Blick& Zweiter, const char* Name) {
  const double d = Zweiter.Wert - B.Wert / B.Anzahl;
  if (B.Pnr != Zweiter.Pnr)
    Hinweisen(std::string("zweiter ") + Name + " zu " + Zweiter.Pnr + " statt " + B.Pnr);
  if (std::fabs(d) > Doppelgrenze)
    Hinweisen(std::string("zweiter ") + Name + " zu " + B.Pnr + " weicht " + ZahlFormat(1000 * d, -1, 2) +
              " mm ab");
  B.Wert += Zweiter.Wert;
  B.Weite += Zweiter.Weite;  // none if one is missing
  ++B.Anzahl;
}

void Nivsammler::Nehmen(char Art, const Messsatz& Satz, double Wert) {
  const bool MitWeite = Satz.Horizontal.Da && Satz.Horizontal.Gelesen && Satz.Horizontal.Wert > 0 &&
                        Satz.Horizontal.Wert < Höchste;
  const Blick Neuer{Nivnummer(Satz.Nummer.Text), 1, Wert, MitWeite ? Satz.Horizontal.Wert : KeineAblesung};
  ++F.Ablesungen;
  if (Art == '3') {
    Nivzeile& Z = Zwischen.emplace_back();
    Z.Pnr = Neuer.Pnr;
    Z.Z = Wert;
    return;
  }
  Blick& B = Art == '1' || Art == '5' ? R : V;
  const bool Zweiter = Art == '5' || Art == '6';
  if (Zweiter && B.Anzahl > 0) return Mitteln(B, Neuer, Art == '5' ? "Rückblick" : "Vorblick");
  if (B.Anzahl > 0) Ablegen();
  B = Neuer;
}

// Where the backsight goes: behind the last foresight, or into a line of its own.
std::vector<Nivzeile>& Nivsammler::Rückzeilen() {
  const bool Weiter = !Neu && !F.Linien.empty() && F.Linien.back().Zeilen.back().Pnr == R.Pnr &&
                      std::isnan(F.Linien.back().Zeilen.back().R) &&
                      !std::isnan(F.Linien.back().Zeilen.back().V);
  Neu = false;
  if (Weiter) return F.Linien.back().Zeilen;
  std::vector<Nivzeile>& Zeilen = F.Linien.emplace_back().Zeilen;
  Zeilen.emplace_back().Pnr = R.Pnr;
  return Zeilen;
}

// The set-up is done.
void Nivsammler::Ablegen() {
  if (R.Anzahl + V.Anzahl == 0 && Zwischen.empty()) return;
  if (R.Anzahl == 0) {
    Hinweisen("davor fehlt ein Rückblick");
    R.Pnr = V.Anzahl > 0 ? V.Pnr : Zwischen.front().Pnr;
    if (F.Linien.empty()) F.Linien.emplace_back();
  } else {
    Nivzeile& Z = Rückzeilen().back();
    Z.R = R.Wert / R.Anzahl;
    Z.sR = R.Weite / R.Anzahl;
  }
  std::vector<Nivzeile>& Zeilen = F.Linien.back().Zeilen;
  Zeilen.insert(Zeilen.end(), Zwischen.begin(), Zwischen.end());
  if (V.Anzahl > 0) {
    Nivzeile& Z = Zeilen.emplace_back();
    Z.Pnr = V.Pnr;
    Z.V = V.Wert / V.Anzahl;
    Z.sV = V.Weite / V.Anzahl;
  } else if (Zwischen.empty()) {
    Hinweisen("davor fehlt ein Vorblick");
  }
  R = V = {};
  Zwischen.clear();
}

void Nivsammler::Höhe(const Messsatz& Satz) {
  Höhenpunkt P{Nivnummer(Satz.Nummer.Text), Satz.Höhe.Wert, ""};
  const auto [Erste, Ist] = Höhen.try_emplace(P.Pnr, P.Höhe);
  if (Ist) {
    F.Höhen.push_back(std::move(P));
  } else if (std::fabs(Erste->second - P.Höhe) > Doppelgrenze) {
    Hinweisen("zweite Höhe von " + P.Pnr + " bleibt aus: " + ZahlFormat(P.Höhe, -1, 4));
  }
}

// What kind of reading a line holds; '.': none. The height differences of a total station are none.
char Ablesungsart(const Messsatz& Satz, Rohform Form) {
  const char Art = Satz.Höhenunterschied.Info[0];
  if (Form == Rohform::GRE)
    return Satz.Höhe.Da && !Satz.Höhenunterschied.Da && Art >= '1' && Art <= '3' ? Art : '.';
  const bool Ist = Art == '1' || Art == '2' || Art == '3' || Art == '5' || Art == '6';
  return Satz.Höhenunterschied.Da && Ist ? Art : '.';
}

void ZeileNehmen(std::string_view Zeile, Rohform Form, Messsatz& Satz, Codeblock& Block, Nivsammler& S) {
  const int Klasse = RohzeileLesen(Zeile, Form, Satz, Block);
  if (Klasse == Codezeile && Block.Wort1.find('?') != std::string::npos) S.Trennen();
  if (Klasse != Messzeile) return;
  const char Art = Ablesungsart(Satz, Form);
  const Messwert& W = Form == Rohform::GRE || Art == '.' ? Satz.Höhe : Satz.Höhenunterschied;
  if (!W.Da) return;
  const bool Möglich = std::fabs(W.Wert) < (Art == '.' ? Höchste : HöchsteAblesung);
  if (!W.Gelesen || !Möglich) return S.Hinweisen("nicht verstanden: " + Zitat(Sichtbar(TrimmenSicht(Zeile))));
  if (Art == '.') return S.Höhe(Satz);
  S.Nehmen(Art, Satz, W.Wert);
}

// A list of heights that somebody made is not to be lost.
bool AndersVorhanden(const std::string& Name, const std::string& Text) {
  std::string Inhalt;
  return DateiVorhanden(Name) && (DateiLesen(Name, Inhalt) < 0 || Inhalt != Text);
}

int Gescheitert(std::string* Grund, const char* Warum) {
  if (Grund != nullptr) *Grund = Warum;
  return -1;
}

}  // namespace

int NivellementLesen(const std::string& Quelle, Rohform Form, Nivfund& F, std::string* Grund) {
  F = {};
  std::string Inhalt;
  if (TextdateiLesen(Quelle, Inhalt, Grund) < 0) return -1;
  const Rohform Gewählt = RohformVon(Quelle, Form);
  Nivsammler S(F);
  Messsatz Satz;
  Codeblock Block;
  const bool Fertig = ZeilenDurchgehen(Inhalt, [&](std::string_view Zeile) {
    ++S.Zeile;
    ZeileNehmen(Zeile, Gewählt, Satz, Block, S);
  });
  S.Trennen();
  return Fertig ? 0 : -2;
}

std::string NivHöhenliste(const std::string& Ziel) {
  const Dateiname N = DateinameZerlegen(Ziel);
  return N.Ordner + N.Grundname + ".hli";
}

int NivellementAusRohdaten(const std::string& Quelle, const std::string& Ziel, Rohform Form, Nivfund& F,
                           std::string* Grund, bool Ersetzen) {
  const std::string Liste = NivHöhenliste(Ziel);
  if (SelbeDatei(Quelle, Ziel)) return Gescheitert(Grund, "ist die Quelle");
  if (!Ersetzen && DateiVorhanden(Ziel)) return Gescheitert(Grund, "ist schon vorhanden");
  if (const int Ergebnis = NivellementLesen(Quelle, Form, F, Grund); Ergebnis < 0) return Ergebnis;
  if (F.Ablesungen == 0) return Gescheitert(Grund, "keine Ablesung eines Nivelliers");
  const std::string Höhen = HöhenlisteText(F.Höhen);
  if (!F.Höhen.empty() && AndersVorhanden(Liste, Höhen))
    return Gescheitert(Grund, "daneben steht eine andere Höhenliste");
  if (DateiErsetzen(Ziel, NivText(F.Linien), Grund) < 0) return -1;
  return F.Höhen.empty() ? 0 : DateiErsetzen(Liste, Höhen, Grund);
}

}  // namespace tavorena
