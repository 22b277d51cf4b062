#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <string_view>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/GRE.h>
#include <tavorena/rawdata/Rohumwandlung.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

constexpr std::array Koordinatenworte{81, 82, 84, 85};

int Gescheitert(std::string* Grund, const char* Warum) {
  if (Grund != nullptr) *Grund = Warum;
  return -1;
}

// An output that is not there yet, or that may be replaced.
int ZielPrüfen(const std::string& Quelle, const std::string& Ziel, bool Ersetzen, std::string* Grund) {
  if (Ziel.empty()) return Gescheitert(Grund, "ohne Namen");
  if (SelbeDatei(Quelle, Ziel)) return Gescheitert(Grund, "ist die Quelle");
  return DateiVorhanden(Ziel) && !Ersetzen ? Gescheitert(Grund, "ist schon vorhanden") : 0;
}

// A data field in place; its view lies in the content of the file.
using Feldtat = std::function<void(int Wort, char Einheit, std::string_view Feld)>;

// Each whole word of a measurement line, also those that the reader leaves.
void GSIFelder(std::string_view Zeile, bool Utf8, const Feldtat& Tat) {
  const bool Sechzehn = GSISechzehn(Zeile);
  const GSIForm& Form = Sechzehn ? Form16 : Form8;
  if ((Sechzehn ? GSIZeilenart16(Zeile) : GSIZeilenart8(Zeile)) != Messzeile) return;
  const Zeichenzeile Z(Zeile, Utf8);
  for (std::size_t k = 2; Z.Erreicht(Form.Beginn(k) + Form.Mindestlänge()); ++k) {
    const std::string_view Info = Form.Info(Z, k);
    Tat(Wortindex(Form.Wort(Z, k)), Info.back(), Form.Daten(Z, k));
  }
}

void GREFelder(std::string_view Zeile, const Feldtat& Tat) {
  if (GREZeilenart(Zeile) != Messzeile) return;
  if (GleichesWort(Wortnehmen(Zeile), "NR")) Wortnehmen(Zeile);
  while (true) {
    const std::string_view Wort = Wortnehmen(Zeile), Wert = Wortnehmen(Zeile);
    if (Wert.empty()) return;
    Tat(GREWort(Wort), '.', Wert);
  }
}

// The file with its fields changed in place, written anew.
class Feldumwandlung {
 public:
  Feldumwandlung(std::string& Dateiinhalt, Rohform Dateiform)
      : Inhalt(Dateiinhalt), Form(Dateiform), Utf8(IstUtf8(Dateiinhalt)) {}

  // @return false: the stop button
  [[nodiscard]] bool Alle(const Feldtat& Tat) const {
    std::string_view Text = Inhalt;
    if (Text.starts_with("\xEF\xBB\xBF")) Text.remove_prefix(3);
    return ZeilenDurchgehen(Text, [&](std::string_view Zeile) {
      if (Form == Rohform::GRE) return GREFelder(Zeile, Tat);
      GSIFelder(Zeile, Utf8, Tat);
    });
  }
  // Puts a text of the same length into the place of a field.
  void Ersetzen(std::string_view Feld, std::string_view Neu) {
    const auto Ab = static_cast<std::size_t>(Feld.data() - Inhalt.data());
    std::copy(Neu.begin(), Neu.end(), Inhalt.begin() + static_cast<std::ptrdiff_t>(Ab));
  }

 private:
  std::string& Inhalt;
  Rohform Form;
  bool Utf8;
};

// The digits behind a sign, which may be blank or missing; "" if the field is no number.
std::string_view Ziffern(std::string_view Feld) {
  if (!Feld.empty() && (Feld[0] == '+' || Feld[0] == '-' || Feld[0] == ' ')) Feld.remove_prefix(1);
  return Feld.find_first_not_of("0123456789") == std::string_view::npos ? Feld : std::string_view();
}

double Faktor(char Einheit) {
  return Einheit == '0' ? 1000 : Einheit == '6' ? 10000 : Einheit == '8' ? 100000 : 0;
}

bool IstRechts(int Wort) { return Wort == 81 || Wort == 84; }
bool IstKoordinate(int Wort) {
  return std::find(Koordinatenworte.begin(), Koordinatenworte.end(), Wort) != Koordinatenworte.end();
}

// A coordinate field as metres; false where it holds none. 0 stands for a coordinate that was not computed.
bool KoordinateAus(char Einheit, std::string_view Feld, Rohform Form, double& Meter) {
  if (Form == Rohform::GRE) {
    Meter = ZahlAusText(Feld);
    return IstZahlwort(Feld) && std::isfinite(Meter) && Meter != 0;
  }
  const bool Zahl = GanzesFeld(Feld, Meter) && Faktor(Einheit) > 0;
  if (Zahl) Meter /= Faktor(Einheit);
  return Zahl && Meter != 0;
}

// A coordinate of 0.
bool NichtGerechnet(std::string_view Feld) {
  return IstZahlwort(TrimmenSicht(Feld)) && ZahlAusText(Feld) == 0;
}

// The number in as many characters as the field has, with the decimals that it has; stars if it is too long.
std::string FeldMit(double Meter, char Einheit, std::string_view Feld, Rohform Form) {
  const std::size_t Breite = Feld.size();
  std::string Text;
  if (Form == Rohform::GRE) {
    const std::size_t Punkt = Feld.find_first_of(".,");
    Text = ZahlFormat(Meter, -1, Punkt == std::string_view::npos ? 0 : static_cast<int>(Breite - Punkt - 1));
    return Text.size() > Breite ? std::string(Breite, '*') : RechtsBündig(Text, static_cast<int>(Breite));
  }
  const double Ganz = std::round(Meter * Faktor(Einheit));
  Text = std::to_string(std::llabs(static_cast<long long>(Ganz)));
  const std::string Zeichen = Ganz < 0 ? "-" : "+";
  return Text.size() >= Breite ? Zeichen + std::string(Breite - 1, '*')
                               : Zeichen + std::string(Breite - 1 - Text.size(), '0') + Text;
}

bool BasisVon(int Modus, double Wert, double& Basis) {
  const double Einheit = Modus == 1 ? 100000 : Modus == 2 ? 10000 : Modus == 3 ? 1000 : 0;
  Basis = Einheit > 0 && Wert >= Einheit ? std::floor(Wert / Einheit) * Einheit : 0;
  return Basis > 0;
}

// The smallest Rechts and Hoch; 0 where there is none.
bool KleinsteFinden(const Feldumwandlung& Datei, Rohform Form, double& Rechts, double& Hoch) {
  constexpr double Keine = std::numeric_limits<double>::infinity();
  Rechts = Hoch = Keine;
  const bool Fertig = Datei.Alle([&](int Wort, char Einheit, std::string_view Feld) {
    double Meter = 0;
    if (!IstKoordinate(Wort) || !KoordinateAus(Einheit, Feld, Form, Meter)) return;
    double& Kleinste = IstRechts(Wort) ? Rechts : Hoch;
    Kleinste = std::min(Kleinste, Meter);
  });
  if (Rechts == Keine) Rechts = 0;
  if (Hoch == Keine) Hoch = 0;
  return Fertig;
}

// Words of a line that were there and are not written, as stars or not at all.
void ZeileZählen(const Messsatz& Satz, std::string_view Geschrieben, Umwandlung& U) {
  ++U.Zeilen;
  for (const int Wort : {21, 22, 31, 32, 33, 81, 82, 83, 84, 85, 86, 87, 88}) {
    const Messwert& W = *MesswertVon(Satz, Wort);
    if (W.Da && !W.Gelesen) ++U.Ohne;
  }
  for (std::string_view W = Wortnehmen(Geschrieben); !W.empty(); W = Wortnehmen(Geschrieben)) {
    if (W.ends_with("***")) ++U.Sterne;
  }
}

}  // namespace

int RohdatenKonvertieren(const std::string& Quelle, const std::string& Ziel, Umwandlung& U,
                         std::string* Grund, bool Ersetzen) {
  U = {};
  std::string Inhalt, Neu;
  if (ZielPrüfen(Quelle, Ziel, Ersetzen, Grund) < 0 || TextdateiLesen(Quelle, Inhalt, Grund) < 0) return -1;
  Messsatz Satz;
  Codeblock Block;
  const bool Fertig = ZeilenDurchgehen(Inhalt, [&](std::string_view Zeile) {
    const int Art = RohzeileLesen(Zeile, Rohform::GSI, Satz, Block);
    if (Art < 0) {
      U.Ohne += IstLeerText(Zeile) ? 0 : 1;
      return;
    }
    const std::size_t Ab = Neu.size();
    Neu += Art == Codezeile ? GRECodeblockSchreiben(Block) : GREZeileSchreiben(Satz);
    if (Art == Codezeile) Satz.Leeren();
    ZeileZählen(Satz, std::string_view(Neu).substr(Ab), U);
    Neu += "\r\n";
  });
  return Fertig ? DateiErsetzen(Ziel, Neu, Grund) : -2;
}

int RohdatenZehnZuEins(const std::string& Quelle, const std::string& Ziel, Umwandlung& U, std::string* Grund,
                       bool Ersetzen) {
  U = {};
  std::string Inhalt;
  if (ZielPrüfen(Quelle, Ziel, Ersetzen, Grund) < 0 || DateiLesen(Quelle, Inhalt, Grund) < 0) return -1;
  Feldumwandlung Datei(Inhalt, Rohform::GSI);
  const bool Fertig = Datei.Alle([&](int Wort, char /*Einheit*/, std::string_view Feld) {
    if (!(Wort >= 31 && Wort <= 33) && !(Wort >= 81 && Wort <= 86)) return;
    const std::string_view Z = Ziffern(Feld);
    if (Z.empty()) {
      ++U.Ohne;
      return;
    }
    ++U.Werte;
    if (Z[0] == '0') return Datei.Ersetzen(Z, std::string(Z.substr(1)) + "0");
    ++U.Sterne;
    Datei.Ersetzen(Z, std::string(Z.size(), '*'));
  });
  if (!Fertig) return -2;
  if (DateiErsetzen(Ziel, Inhalt, Grund) < 0) return -1;
  Hinweis("Bitte unbedingt einen Vermerk in der KAFKA- DAT- Datei anbringen !");
  return 0;
}

bool RohdatenReduktion(int Modus, double Rechts, double Hoch, Koordinatenbasis& Basis) {
  const bool R = BasisVon(Modus, Rechts, Basis.Rechts), H = BasisVon(Modus, Hoch, Basis.Hoch);
  return R || H;
}

int RohdatenBasisAbziehen(const std::string& Quelle, const std::string& Ziel, int Modus, Rohform Wahl,
                          Koordinatenbasis& Basis, Umwandlung& U, std::string* Grund, bool Ersetzen) {
  U = {};
  std::string Inhalt;
  if (ZielPrüfen(Quelle, Ziel, Ersetzen, Grund) < 0 || DateiLesen(Quelle, Inhalt, Grund) < 0) return -1;
  const Rohform Form = RohformVon(Quelle, Wahl);
  Feldumwandlung Datei(Inhalt, Form);
  double Rechts = 0, Hoch = 0;
  if (!KleinsteFinden(Datei, Form, Rechts, Hoch)) return -2;
  if (!RohdatenReduktion(Modus, Rechts, Hoch, Basis)) return 1;
  const bool Fertig = Datei.Alle([&](int Wort, char Einheit, std::string_view Feld) {
    double Meter = 0;
    if (!IstKoordinate(Wort)) return;
    if (!KoordinateAus(Einheit, Feld, Form, Meter)) {
      U.Ohne += NichtGerechnet(Feld) ? 0 : 1;  // it keeps a base that its neighbours lose
      return;
    }
    const std::string Neu =
        FeldMit(Meter - (IstRechts(Wort) ? Basis.Rechts : Basis.Hoch), Einheit, Feld, Form);
    ++U.Werte;
    U.Sterne += Neu.ends_with('*') ? 1 : 0;
    Datei.Ersetzen(Feld, Neu);
  });
  return Fertig ? DateiErsetzen(Ziel, Inhalt, Grund) : -2;
}

std::string RohkoordinatenAlsKor(const Rohdaten& Roh, int Nachkomma, int& Anzahl) {
  const auto Wort = [](std::string Text) {  // a file of words
    ZeichenErsetzen(Text, ' ', '_');
    return Text;
  };
  const auto Paßt = [&](double x) { return ZahlFormat(x, 7, Nachkomma).find('*') == std::string::npos; };
  std::string Text;
  Anzahl = 0;
  for (const Rohkoordinate& K : Roh.Koordinaten) {
    if (!Paßt(K.Rechts) || !Paßt(K.Hoch) || !Paßt(K.Höhe.Zahl())) continue;
    KorZeileAnhängen(Text, Wort(K.Nummer), K.Rechts, K.Hoch, K.Höhe.Zahl(), Wort(K.Code), Nachkomma);
    Text += "\r\n";
    ++Anzahl;
  }
  const int Ohne = static_cast<int>(Roh.Koordinaten.size()) - Anzahl;
  if (Ohne > 0)
    Hinweis(Anzahltext(Ohne, "Punkt fehlt", "Punkte fehlen") +
            " in der KOR-Datei: mehr als 7 Stellen vor dem Komma\n" + Roh.Datei);
  return Text;
}

std::string TabelleAlsGSI(GSIAusgabe Art) {
  std::vector<int> Zeilen(static_cast<std::size_t>(KorAnzahl));
  std::iota(Zeilen.begin(), Zeilen.end(), 0);
  return TabelleAlsGSI(Art, Zeilen);
}

std::string TabelleAlsGSI(GSIAusgabe Art, const std::vector<int>& Zeilen) {
  std::string Text;
  int Nummer = 0;
  for (const int z : Zeilen) {
    const KorSatz P = KorPunkt(z);
    Text += KoordinateAlsGSI(Art, ++Nummer, P.Pnr, P.Rechts, P.Hoch, P.Hoehe, P.Symbol) + "\r\n";
  }
  return Text;
}

}  // namespace tavorena
