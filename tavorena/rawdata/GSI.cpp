#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

constexpr double Fuß = 0.3048;

Messinfo InfoAus(std::string_view Text) {
  return Text.size() == 4 ? Messinfo{Text[0], Text[1], Text[2], Text[3]} : Messinfo{'.', '.', '.', '?'};
}

int ZeilenartVon(std::string_view Zeile, const GSIForm& Form) {
  // A character has at most four bytes.
  const bool Lang = Zeile.size() >= 4 * Form.Mindestlänge() ||
                    (Zeile.size() >= Form.Mindestlänge() && ZeichenAnzahl(Zeile) >= Form.Mindestlänge());
  if (!Lang) return ZuKurz;
  return Zeile.starts_with("11") ? Messzeile : Zeile.starts_with("41") ? Codezeile : AndereZeile;
}

// ddd.mmsss with five decimals in the field.
bool SexagesimalNachGon(double Feld, double& Gon) {
  const auto a = static_cast<std::int64_t>(std::min(std::abs(Feld), 1e15));
  const std::int64_t Ganze = a / 100000, Minuten = a / 1000 % 100, Zehntel = a % 1000;
  if (Minuten >= 60 || Zehntel >= 600) return false;
  const double Grad =
      static_cast<double>(Ganze) + static_cast<double>(Minuten) / 60 + static_cast<double>(Zehntel) / 36000;
  Gon = std::copysign(Grad, Feld) / 0.9;
  return true;
}

bool WinkelAus(double Feld, char Einheit, bool Alle, double& Gon) {
  switch (Einheit) {
    case '2':
      Gon = Feld / 100000;
      return true;
    case '3':
      Gon = Feld / 100000 / 0.9;
      return true;
    case '4':
      return Alle && SexagesimalNachGon(Feld, Gon);
    case '5':
      Gon = Alle ? Feld / 10000 * 400 / 6400 : 0;
      return Alle;
    default:
      return false;
  }
}

bool LängeAus(double Feld, char Einheit, bool Alle, double& Meter) {
  switch (Einheit) {
    case '0':
      Meter = Feld / 1000;
      return true;
    case '6':
      Meter = Feld / 10000;
      return true;
    case '8':
      Meter = Feld / 100000;
      return true;
    case '1':
      Meter = Alle ? Feld / 1000 * Fuß : 0;
      return Alle;
    case '7':
      Meter = Alle ? Feld / 10000 * Fuß : 0;
      return Alle;
    default:
      return false;
  }
}

void WertLesen(int Wort, std::string_view Info, std::string_view Daten, bool Alle, Messwert& Ziel) {
  Ziel = {true, false, InfoAus(Info), 0};
  double Feld = 0;
  const bool Zahl = GanzesFeld(Daten, Feld);
  const bool Bekannt = Wort < 30 ? WinkelAus(Feld, Ziel.Info[3], Alle, Ziel.Wert)
                                 : LängeAus(Feld, Ziel.Info[3], Alle, Ziel.Wert);
  Ziel.Gelesen = Zahl && Bekannt;
  if (Bekannt || Wort < 87) return;
  Ziel.Wert = Feld;
  Ziel.Gelesen = Zahl || (IstZahlwort(TrimmenSicht(Daten)) && std::isfinite(ZahlAusText(Daten)));
}

// Digits behind a sign lose their zeros, anything else stays as a whole.
std::string_view Nummer8(std::string_view Daten) {
  const bool Zeichen = Daten.starts_with('+') || Daten.starts_with('-') || Daten.starts_with(' ');
  const std::string_view Ziffern = Daten.substr(Zeichen ? 1 : 0);
  if (Ziffern.empty() || Ziffern.find_first_not_of("0123456789") != std::string_view::npos)
    return TrimmenSicht(Daten);
  return OhneFührendeNullen(Ziffern);
}

std::string_view NummerAus(std::string_view Daten, const GSIForm& Form) {
  return Form.Ziffern == 8 ? Nummer8(Daten) : OhneFührendeNullen(Daten);
}

void TextLesen(std::string_view Info, std::string_view Text, Messtext& Ziel) {
  Ziel.Da = true;
  Ziel.Info = InfoAus(Info);
  Ziel.Text.assign(Text);
}

int ZeileLesen(std::string_view Zeile, const GSIForm& Form, bool Alle, Messsatz& Satz) {
  Satz.Leeren();
  if (const int Art = ZeilenartVon(Zeile, Form); Art != Messzeile) return Art < 0 ? Art : AndereZeile;
  const Zeichenzeile Z(Zeile);
  TextLesen(Form.Info(Z, 1), NummerAus(Form.Daten(Z, 1), Form), Satz.Nummer);
  for (std::size_t k = 2; k <= Form.Letztes && Form.Hat(Z, k); ++k) {
    int Wort = Wortindex(Form.Wort(Z, k));
    const std::string_view Info = Form.Info(Z, k), Daten = Form.Daten(Z, k);
    if (Wort == 25 && Form.Ziffern == 8) Wort = 21;
    if (Wort == 51) {
      TextLesen(Info, Daten, Satz.Konstante);
    } else if (Wort == 71) {
      TextLesen(Info, OhneFührendeNullen(Daten), Satz.Code);
    } else if (Messwert* Wert = MesswertVon(Satz, Wort); Wert != nullptr) {
      WertLesen(Wort, Info, Daten, Alle, *Wert);
    }
  }
  return 0;
}

int CodeblockLesen(std::string_view Zeile, const GSIForm& Form, Codeblock& Block) {
  Block.Leeren();
  if (const int Art = ZeilenartVon(Zeile, Form); Art != Codezeile) return Art < 0 ? Art : AndereZeile;
  const Zeichenzeile Z(Zeile);
  Block.Nummer.assign(Form.Info(Z, 1));
  Block.Wort1.assign(NummerAus(Form.Daten(Z, 1), Form));
  for (std::string& Wert : Block.Werte) {
    const auto k = static_cast<std::size_t>(Block.Anzahl) + 2;
    if (!Form.Hat(Z, k)) break;
    Wert.assign(NummerAus(Form.Daten(Z, k), Form));
    ++Block.Anzahl;
  }
  return 0;
}

// A number of up to four digits, filled with "0"; "...." otherwise.
std::string Blocknummer(std::string_view Text) {
  Text = TrimmenSicht(Text);
  const bool Gut =
      !Text.empty() && Text.size() <= 4 && Text.find_first_not_of("0123456789") == std::string_view::npos;
  return Gut ? std::string(4 - Text.size(), '0').append(Text) : "....";
}

// A text as field: filled with "0", a whole field of sign and digits as it stands.
std::string Textfeld(std::string_view Text, std::size_t Ziffern) {
  const std::size_t n = ZeichenAnzahl(Text);
  if (n == Ziffern + 1 && (Text[0] == '+' || Text[0] == '-')) return std::string(Text);
  if (n > Ziffern) return "+" + std::string(Ziffern, '*');
  return ("+" + std::string(Ziffern - n, '0')).append(Text);
}

// floor(x + 0.5) as sign and digits, stars where they are too many.
std::string Zahlfeld(double x, std::size_t Ziffern) {
  const double Ganz = std::floor(x + 0.5);
  const std::string Zeichen = Ganz < 0 ? "-" : "+";
  if (!(std::abs(Ganz) < std::pow(10.0, static_cast<double>(Ziffern))))
    return Zeichen + std::string(Ziffern, '*');
  const std::string Text = std::to_string(std::llabs(static_cast<long long>(Ganz)));
  return Zeichen + std::string(Ziffern - Text.size(), '0') + Text;
}

// The digit under which a value in gon or m is written. Other units than ours were converted when they were
// read.
char Schreibeinheit(char Einheit, bool Winkel) {
  if (Winkel) return Einheit >= '2' && Einheit <= '5' ? '2' : Einheit;
  return Einheit == '1' ? '0' : Einheit == '7' ? '6' : Einheit;
}

std::string Wertfeld(double Wert, char Einheit) {
  switch (Einheit) {
    case '0':
      return Zahlfeld(Wert * 1000, 8);
    case '6':
      return Zahlfeld(Wert * 10000, 8);
    case '2':
    case '8':
      return Zahlfeld(Wert * 100000, 8);
    default:
      break;
  }
  const std::string Text = ZahlNachText(std::abs(Wert)).Text();
  return Wert < 0 ? "-" + Textfeld(Text, 8).substr(1) : Textfeld(Text, 8);
}

void WortSchreiben(std::string& Zeile, int Wort, const Messinfo& Info, const std::string& Feld) {
  Zeile += std::to_string(Wort);
  Zeile.append(Info.data(), Info.size());
  Zeile += Feld + ' ';
}

}  // namespace

bool GSISechzehn(std::string_view& Zeile) {
  const bool Stern = Zeile.size() > 1 && Zeile[0] == '*';
  if (Stern) Zeile.remove_prefix(1);
  return Stern;
}

int GSIZeilenart8(std::string_view Zeile) { return ZeilenartVon(Zeile, Form8); }
int GSIZeilenart16(std::string_view Zeile) { return ZeilenartVon(Zeile, Form16); }

int GSIZeileLesen8(std::string_view Zeile, Messsatz& Satz, bool AlleEinheiten) {
  return ZeileLesen(Zeile, Form8, AlleEinheiten, Satz);
}
int GSIZeileLesen16(std::string_view Zeile, Messsatz& Satz, bool AlleEinheiten) {
  return ZeileLesen(Zeile, Form16, AlleEinheiten, Satz);
}

int GSICodeblockLesen8(std::string_view Zeile, Codeblock& Block) {
  return CodeblockLesen(Zeile, Form8, Block);
}
int GSICodeblockLesen16(std::string_view Zeile, Codeblock& Block) {
  return CodeblockLesen(Zeile, Form16, Block);
}

std::string GSIZeileSchreiben(const Messsatz& Satz) {
  std::string Zeile;
  if (Satz.Nummer.Da) {
    const std::string Block = Blocknummer({Satz.Nummer.Info.data(), Satz.Nummer.Info.size()});
    Zeile = "11" + Block + Textfeld(Satz.Nummer.Text, 8) + ' ';
  }
  for (const int Wort : {21, 22, 31, 32, 33, 51, 81, 82, 83, 84, 85, 86, 88, 87, 71}) {
    if (const Messwert* W = MesswertVon(Satz, Wort); W != nullptr) {
      if (!W->Da || !W->Gelesen) continue;
      Messinfo Info = W->Info;
      Info[3] = Schreibeinheit(Info[3], Wort < 30);
      WortSchreiben(Zeile, Wort, Info, Wertfeld(W->Wert, Info[3]));
    } else if (const Messtext& T = Wort == 51 ? Satz.Konstante : Satz.Code; T.Da) {
      WortSchreiben(Zeile, Wort, T.Info, Textfeld(T.Text, 8));
    }
  }
  return Zeile;
}

std::string GSICodeblockSchreiben(const Codeblock& Block) {
  std::string Zeile = "41" + Blocknummer(Block.Nummer) + Textfeld(Block.Wort1, 8) + ' ';
  for (int i = 0; i < Block.Anzahl; ++i)
    WortSchreiben(Zeile, 42 + i, Messwert().Info, Textfeld(Block.Werte[static_cast<std::size_t>(i)], 8));
  return Zeile;
}

std::string KoordinateAlsGSI(GSIAusgabe Art, int Laufnummer, std::string_view Pnr, double Rechts, double Hoch,
                             double Höhe, std::string_view Code) {
  const auto Ende = [](std::string_view Text) {
    const std::size_t n = ZeichenAnzahl(Text);
    return std::string(n < 16 ? 16 - n : 0, '0').append(TextTeil(Text, n > 16 ? n - 16 : 0));
  };
  std::string Zeile = "*11" + ZahlFeldNull((std::max(Laufnummer, 1) - 1) % 9999 + 1, 4) + "+" + Ende(Pnr);
  Zeile += " 81...0" + Zahlfeld(Rechts * 1000, 16) + " 82...0" + Zahlfeld(Hoch * 1000, 16);
  if (Art != GSIAusgabe::NurLage) Zeile += " 83...0" + Zahlfeld(Höhe * 1000, 16);
  if (Art == GSIAusgabe::MitHöheUndCode) Zeile += " 71....+" + Ende(Code);
  return Zeile;
}

}  // namespace tavorena
