#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/GRE.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

// Keys and the value that they stand for; the first one of a value is the one that is written. Vorn is what
// the first info character of the height difference becomes, which tells the kind of a height; "." leaves it.
struct Schlüssel {
  std::string_view Wort;
  int Gruppe;
  char Vorn = '.';
};
constexpr Schlüssel AlleSchlüssel[] = {
    {"Hz", 21},          {"V ", 22},          {"sD", 31},        {"hD", 32},         {"dH", 33, '1'},
    {"Rw", 81},          {"Hw", 82},          {"Ho", 83},        {"Ho_RB", 83, '1'}, {"Ho_VB", 83, '2'},
    {"Ho_ZB", 83, '3'},  {"H_VB", 83, '2'},   {"H_ZB", 83, '3'}, {"H_AP", 83},       {"Rw(Station)", 84},
    {"Hw(Station)", 85}, {"Ho(Station)", 86}, {"InstrH", 88},    {"ReflH", 87},
};

const Schlüssel* SchlüsselFinden(std::string_view Wort) {
  const auto* Gefunden =
      std::find_if(std::begin(AlleSchlüssel), std::end(AlleSchlüssel),
                   [&](const Schlüssel& S) { return GleichesWort(TrimmenSicht(S.Wort), Wort); });
  return Gefunden != std::end(AlleSchlüssel) ? Gefunden : nullptr;
}

// Four decimals make it tenths of a millimetre.
char Streckeneinheit(std::string_view Wert) {
  const auto Punkt = [&](std::size_t VonHinten) {
    return Wert.size() >= VonHinten &&
           (Wert[Wert.size() - VonHinten] == '.' || Wert[Wert.size() - VonHinten] == ',');
  };
  return !Punkt(4) && Punkt(5) ? '6' : '0';
}

void WertNehmen(const Schlüssel& S, std::string_view Text, Messsatz& Satz) {
  Messwert& W = *MesswertVon(Satz, S.Gruppe);
  W.Da = true;
  W.Gelesen = IstZahlwort(Text);
  W.Wert = ZahlAusText(Text);
  if (!std::isfinite(W.Wert)) W.Wert = 0, W.Gelesen = false;
  if (S.Gruppe == 21 || S.Gruppe == 22) {
    W.Info = {'.', '3', '2', '2'};
  } else if (S.Gruppe >= 31 && S.Gruppe <= 33) {
    W.Info = {W.Info[0], '.', '0', Streckeneinheit(Text)};
  }
  if (S.Vorn != '.') Satz.Höhenunterschied.Info[0] = S.Vorn;
}

// "0034)" -> "+00000034"
void KonstanteNehmen(std::string_view Text, Messtext& Ziel) {
  const std::size_t n = ZeichenAnzahl(Text);
  if (n < 5) return;
  Ziel.Da = true;
  Ziel.Info = {'.', '.', '1', '.'};
  Ziel.Text.assign("+0000").append(TextTeil(Text, n - 5, 4));
}

// What follows a word that the line begins with, whether a blank stands between them or not.
std::string_view NachWort(std::string_view& Zeile, std::size_t Länge) {
  const std::string_view Wort = Wortnehmen(Zeile);
  return Wort.size() > Länge ? Wort.substr(Länge) : Wortnehmen(Zeile);
}

std::string Wertfeld(const Messwert& W, bool Winkel) {
  switch (W.Info[3]) {
    case '0':
    case '1':
      return ZahlFormat(W.Wert, 4, 3);
    case '6':
    case '7':
      return ZahlFormat(W.Wert, 4, 4);
    case '2':
    case '3':
    case '8':
      return ZahlFormat(W.Wert, 3, 5);
    default:
      return Winkel ? ZahlFormat(W.Wert, 3, 5) : ZahlNachText(W.Wert).Text();
  }
}

// The mark of a height follows the kind of the reading.
std::string_view Höhenmarke(char Vorn) {
  const auto* Marke = std::find_if(std::begin(AlleSchlüssel), std::end(AlleSchlüssel),
                                   [&](const Schlüssel& S) { return S.Gruppe == 83 && S.Vorn == Vorn; });
  return Marke != std::end(AlleSchlüssel) ? Marke->Wort : "Ho";
}

std::string_view MarkeVon(int Gruppe, const Messsatz& Satz) {
  if (Gruppe == 83) return Höhenmarke(Satz.Höhenunterschied.Info[0]);
  return std::find_if(std::begin(AlleSchlüssel), std::end(AlleSchlüssel),
                      [&](const Schlüssel& S) { return S.Gruppe == Gruppe; })
      ->Wort;
}

// A text as one token: blanks would cut it, and nothing would take the next key for it.
std::string Token(std::string_view Text) {
  std::string Wort = Text.empty() ? "0" : std::string(Text);
  std::replace_if(
      Wort.begin(), Wort.end(), [](char c) { return c >= 0 && c <= ' '; }, '_');
  return Wort;
}

// A whole number of millimetres gets its point; what has one, or is no number, stays as a token.
std::string MitPunkt(const std::string& Wert) {
  const bool Ganz = IstZahlwort(Wert) && Wert.find_first_of(".,eE") == std::string::npos;
  return Ganz ? ZahlFormat(ZahlAusText(Wert) / 1000, 4, 3) : Token(Wert);
}

}  // namespace

int GREZeilenart(std::string_view Zeile) {
  Zeile = TrimmenSicht(Zeile);
  if (Zeile.size() < 2) return ZuKurz;
  if (GleichesWort(Zeile.substr(0, 4), "CODE")) return Codezeile;
  return GleichesWort(Zeile.substr(0, 2), "NR") ? Messzeile : AndereZeile;
}

int GREWort(std::string_view Schlüssel) {
  if (GleichesWort(Schlüssel, "NR")) return 11;
  if (GleichesWort(Schlüssel, "(R")) return 51;
  const auto* S = SchlüsselFinden(Schlüssel);
  return S != nullptr ? S->Gruppe : -1;
}

int GREZeileLesen(std::string_view Zeile, Messsatz& Satz) {
  Satz.Leeren();
  if (const int Art = GREZeilenart(Zeile); Art != Messzeile) return Art < 0 ? Art : AndereZeile;
  const auto NummerNehmen = [&](std::string_view Text) {
    Satz.Nummer.Da = !Text.empty();
    Satz.Nummer.Text.assign(Text);
  };
  NummerNehmen(NachWort(Zeile, 2));
  for (int i = 0; i < GREPaare; ++i) {
    const std::string_view Wort = Wortnehmen(Zeile), Wert = Wortnehmen(Zeile);
    if (Wert.empty()) break;
    if (GleichesWort(Wort, "NR")) {
      NummerNehmen(Wert);
    } else if (GleichesWort(Wort, "(R")) {
      KonstanteNehmen(Wert, Satz.Konstante);
    } else if (const Schlüssel* S = SchlüsselFinden(Wort); S != nullptr) {
      WertNehmen(*S, Wert, Satz);
    }
  }
  return 0;
}

int GRECodeblockLesen(std::string_view Zeile, Codeblock& Block) {
  Block.Leeren();
  if (const int Art = GREZeilenart(Zeile); Art != Codezeile) return Art < 0 ? Art : AndereZeile;
  std::string_view Wert = NachWort(Zeile, 4);
  while (!Wert.empty() && Block.Anzahl < static_cast<int>(Block.Werte.size())) {
    Block.Werte[static_cast<std::size_t>(Block.Anzahl++)].assign(Wert);
    Wortnehmen(Zeile);  // "I1", "I2" ...
    Wert = Wortnehmen(Zeile);
  }
  return 0;
}

std::string GREZeileSchreiben(const Messsatz& Satz) {
  std::string Zeile = " Nr" + RechtsBündig(Token(Satz.Nummer.Text), 9);
  for (const int Gruppe : {21, 22, 31, 32, 33, 51, 81, 82, 83, 84, 85, 86, 88, 87}) {
    if (const Messwert* W = MesswertVon(Satz, Gruppe); W != nullptr) {
      if (W->Da && W->Gelesen)
        Zeile.append(" ").append(MarkeVon(Gruppe, Satz)) += ' ' + Wertfeld(*W, Gruppe < 30);
    } else if (Satz.Konstante.Da) {
      Zeile += " (R " + TeilVonRechts(Satz.Konstante.Text, 4, 4) + ") ";
    }
  }
  return Zeile;
}

std::string GRECodeblockSchreiben(const Codeblock& Block) {
  std::vector<std::string> Werte(Block.Werte.begin(), Block.Werte.begin() + Block.Anzahl);
  if (!Block.Wort1.empty() && Block.Wort1 != "0") Werte.insert(Werte.begin(), Block.Wort1);
  if (Werte.empty()) Werte.emplace_back("0");
  const std::string& Code = Werte[0];
  const std::size_t Meter = Code == "61" || Code == "62"   ? Werte.size()
                            : Code == "75" || Code == "76" ? 2
                                                           : 0;
  std::string Zeile = " Code" + RechtsBündig(Token(Code), 9);
  for (std::size_t i = 1; i < Werte.size(); ++i)
    Zeile += " I" + std::to_string(i) + ' ' + (i < Meter ? MitPunkt(Werte[i]) : Token(Werte[i]));
  return Zeile;
}

}  // namespace tavorena
