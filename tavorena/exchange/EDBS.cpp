#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/EDBS.h>

namespace tavorena {

EDBSRahmen EDBSOffen;

namespace {

constexpr std::size_t KürzesterSatz = 91, GanzerSatz = 104;
constexpr std::string_view Satzende = "0001", Bom = "\xEF\xBB\xBF";

// Kinds of points: the code of a symbol and the letters that stand for it, the one that is written first.
struct Punktartcode {
  std::string_view Code, Buchstaben;
};
constexpr Punktartcode Punktarten[] = {
    {"005", "AWYE"}, {"010", "SIL"}, {"015", "T"}, {"020", "R"}, {"025", "K"}, {"030", "P"}, {"035", "F"},
    {"040", "B"},    {"045", "V"},   {"050", "J"}, {"055", "D"}, {"060", "M"}, {"065", "N"}, {"070", "COQ"},
    {"080", "H"},    {"085", "X"},   {"090", "U"}, {"095", "Z"}, {"099", "_"}};

// The class of a point by the first two characters of a number of seven and more.
constexpr std::pair<std::string_view, char> Klassen[] = {{"01", '1'}, {"02", '2'}, {"66", '2'},
                                                         {"03", '3'}, {"63", '3'}, {"64", '3'}};

bool IstZiffer(char c) { return c >= '0' && c <= '9'; }
bool NurZiffern(std::string_view Text) { return std::all_of(Text.begin(), Text.end(), IstZiffer); }

// Each character of a text is one byte.
bool EinByteJeZeichen(std::string_view Text) {
  std::array<std::uint64_t, 4> Worte{};
  std::uint64_t Oben = 0;
  std::size_t i = 0;
  for (; i + sizeof Worte <= Text.size(); i += sizeof Worte) {
    std::memcpy(Worte.data(), Text.data() + i, sizeof Worte);
    Oben |= (Worte[0] | Worte[1]) | (Worte[2] | Worte[3]);
  }
  for (; i < Text.size(); ++i) Oben |= static_cast<unsigned char>(Text[i]);
  return (Oben & 0x8080808080808080U) == 0;
}

// The columns of a line, counted from 1.
class Spalten {
 public:
  explicit Spalten(std::string_view Z) : Spalten(Z, EinByteJeZeichen(Z)) {}
  /// Of a text that is known.
  Spalten(std::string_view Z, bool EinByteJeZeichen) : Zeile(Z), EinByte(EinByteJeZeichen) {}
  [[nodiscard]] std::size_t Anzahl() const { return EinByte ? Zeile.size() : ZeichenAnzahl(Zeile); }
  [[nodiscard]] std::string_view Teil(std::size_t Von, std::size_t Bis) const {
    if (!EinByte) return TextTeil(Zeile, Von - 1, Bis - Von + 1);
    const std::size_t Ab = std::min(Von - 1, Zeile.size());
    return {Zeile.data() + Ab, std::min(Bis, Zeile.size()) - Ab};
  }

 private:
  std::string_view Zeile;
  bool EinByte;
};

std::string_view OhneLeerzeichenHinten(std::string_view Zeile) {
  return Zeile.substr(0, Zeile.find_last_not_of(' ') + 1);  // npos + 1 is 0
}

// What nearly every column holds: digits alone. @return -1: anything else
double NurGanzzahl(std::string_view Feld) {
  static constexpr std::int64_t Wert[] = {
      1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000, 10000000000, 100000000000};
  if (Feld.empty() || Feld.size() > std::size(Wert)) return -1;
  std::int64_t Zahl = 0;
  bool Ziffern = true;
  for (std::size_t i = 0; i < Feld.size(); ++i) {  // no digit waits for the one before it
    Ziffern &= IstZiffer(Feld[i]);
    Zahl += (Feld[i] - '0') * Wert[Feld.size() - 1 - i];
  }
  return Ziffern ? static_cast<double>(Zahl) : -1;
}

std::string_view OhneLeerzeichenVorn(std::string_view Feld) {
  while (Feld.starts_with(' ')) Feld.remove_prefix(1);
  return Feld;
}

double Ganzzahl(std::string_view Feld) {
  const double Zahl = NurGanzzahl(Feld.substr(Feld.starts_with('+') ? 1 : 0));
  return Zahl >= 0 ? Zahl : ZahlAusText(Feld);
}

std::int16_t Kurzzahl(std::string_view Feld) {
  if (Feld.size() == 1 && IstZiffer(Feld.front())) return static_cast<std::int16_t>(Feld.front() - '0');
  if (Feld.empty()) return 0;
  const double Zahl = Feld.size() < 5 ? NurGanzzahl(Feld) : -1;
  return Zahl >= 0 ? static_cast<std::int16_t>(Zahl) : KurzAusText(Feld);
}

// Millimetres. @return false: there is no number
bool MillimeterLesen(std::string_view Feld, double& Meter) {
  Feld = OhneLeerzeichenVorn(Feld);
  const double Zahl = NurGanzzahl(Feld);
  if (Zahl < 0) Feld = TrimmenSicht(Feld);
  if (Zahl < 0 && !IstZahlwort(Feld)) return false;
  Meter = (Zahl >= 0 ? Zahl : ZahlAusText(Feld)) / 1000;
  return std::isfinite(Meter);
}

// Height and what follows it: in their columns, or behind a longer height from the right end.
void HöheLesen(const Spalten& Z, EDBSSatz& S) {
  const std::size_t n = Z.Anzahl();
  const bool Verschoben = n > GanzerSatz && Z.Teil(n - 3, n) == Satzende;
  const std::size_t Bis = Verschoben ? n - 6 : 98;  // last column of the height
  S.Hoehe = n >= Bis ? Ganzzahl(OhneLeerzeichenVorn(Z.Teil(93, Bis))) / 1000 : 0;
  S.Info.ArtHoehenbestimmung = n >= Bis + 2 ? Kurzzahl(Z.Teil(Bis + 1, Bis + 2)) : std::int16_t{0};
}

// Stars are a text that had no room. What the record before had is seldom another text.
void TextspalteLesen(std::string_view Feld, std::string& Text) {
  if (Feld.find_first_not_of('*') == std::string_view::npos) Feld = {};
  if (Text != Feld) Text = Feld;
}

std::string_view SymbolVon(std::string_view Art) {
  if (Art.size() != 1 || Art == "0") return {};
  if (IstZiffer(Art.front())) return Art;
  const auto Gefunden =
      std::find_if(std::begin(Punktarten), std::end(Punktarten),
                   [Art](const Punktartcode& P) { return P.Buchstaben.find(Art) != std::string_view::npos; });
  return Gefunden != std::end(Punktarten) ? Gefunden->Code : std::string_view();
}

std::string_view OhneFührendeNullen(std::string_view Nummer) {
  Nummer = TrimmenSicht(Nummer);
  Nummer.remove_prefix(std::min(Nummer.find_first_not_of('0'), Nummer.size()));
  return Nummer.empty() ? "0" : Nummer;
}

// ---- writing ---------------------------------------------------------------------------------------

// A whole number with zeros in front, stars where it has no room.
void GanzzahlAnhängen(std::string& Ziel, double Zahl, std::size_t Breite) {
  std::array<char, 8> Ziffern;
  if (Zahl >= 0 && Zahl < 1e7 && Zahl == std::floor(Zahl)) {
    const char* const Ende =
        std::to_chars(Ziffern.data(), Ziffern.data() + Ziffern.size(), static_cast<int>(Zahl)).ptr;
    const auto n = static_cast<std::size_t>(Ende - Ziffern.data());
    if (n <= Breite) {
      Ziel.append(Breite - n, '0').append(Ziffern.data(), n);
      return;
    }
  }
  std::string Feld = ZahlFeldNull(Zahl, static_cast<int>(Breite));
  if (Feld.size() != Breite) Feld.assign(Breite, '*');  // a sign
  Ziel += Feld;
}

char EineStelle(double Zahl) {
  const double Ganz = std::round(Zahl);
  return Ganz >= 0 && Ganz <= 9 ? static_cast<char>('0' + static_cast<int>(Ganz)) : '*';
}

void TextfeldAnhängen(std::string& Ziel, std::string_view Text, std::size_t Breite) {
  const std::size_t n = ZeichenAnzahl(Text);
  Ziel.append(n > Breite ? Breite : Breite - n, n > Breite ? '*' : '0');
  if (n <= Breite) Ziel += Text;
}

// Kilometres in five digits.
std::string Kilometer(double Meter, double Grenze) {
  std::string Feld;
  GanzzahlAnhängen(Feld, std::floor((Meter < Grenze ? Meter + Grenze : Meter) / 1000), 5);
  return Feld;
}

void KmQuadratAnhängen(std::string& Ziel, double Rechts, double Hoch) {
  const std::string R = Kilometer(Rechts, 3000000), H = Kilometer(Hoch, 5000000);
  Ziel.append(R, 1, 2).append(H, 1, 2).append(R, 3, 2).append(H, 3, 2);
}

char KlasseVon(std::string_view Pnr, std::size_t Zeichen) {
  if (Zeichen < 6) return '0';
  if (Zeichen == 6) return IstZiffer(Pnr.front()) ? Pnr.front() : '0';
  const auto Gefunden = std::find_if(std::begin(Klassen), std::end(Klassen),
                                     [Pnr](const auto& K) { return Pnr.starts_with(K.first); });
  return Gefunden != std::end(Klassen) ? Gefunden->second : '0';
}

void NummerAnhängen(std::string& Ziel, std::string_view Pnr) {
  Pnr = TrimmenSicht(Pnr);
  const std::size_t n = ZeichenAnzahl(Pnr);
  Ziel += KlasseVon(Pnr, n);
  if (n > 5) Pnr = TextTeil(Pnr, n - 5);
  if (NurZiffern(Pnr)) {
    Ziel.append(5 - Pnr.size(), '0').append(Pnr);
  } else {
    GanzzahlAnhängen(Ziel, ZahlAusText(Pnr), 5);
  }
}

// Over the last 14 characters of Ziel.
char Prüfziffer(std::string_view Ziel) {
  constexpr std::array<int, 4> Gewichte = {1, 3, 7, 9};
  const std::string_view Kennzeichen = Ziel.substr(Ziel.size() - 14);
  int Summe = 0;
  for (std::size_t i = 0; i < Kennzeichen.size(); ++i) {
    if (IstZiffer(Kennzeichen[i])) Summe += (Kennzeichen[i] - '0') * Gewichte[i % Gewichte.size()];
  }
  return static_cast<char>('0' + Summe % 10);
}

char BuchstabeVon(std::string_view Symbol) {
  const auto Suchen = [](std::string_view Code) {
    const auto i = std::find_if(std::begin(Punktarten), std::end(Punktarten),
                                [Code](const Punktartcode& P) { return P.Code == Code; });
    return i != std::end(Punktarten) ? i->Buchstaben.front() : '*';
  };
  const char Gleich = Suchen(Symbol);
  const std::int16_t Zahl = KurzAusText(Symbol);
  if (Gleich != '*') return Gleich;
  return Zahl >= 0 && Zahl <= 9 ? EineStelle(Zahl) : Suchen(ZahlFeldNull(std::int32_t{Zahl}, 3));
}

void HöheAnhängen(std::string& Ziel, double Hoehe) {
  std::string Text = ZahlFormat(Hoehe * 1000, -1, 0);
  if (Text == "0") {
    Text = "0000";
  } else if (!Text.starts_with('-')) {
    Text.insert(0, 1, '+');
  }
  Ziel += RechtsBündig(Text, 6);
}

void TabelleAnhängen(std::string& Ziel, int Vorher) {
  Ziel.reserve(Ziel.size() + static_cast<std::size_t>(KorAnzahl) * (GanzerSatz + 6));
  for (int i = 0; i < KorAnzahl; ++i) {
    EDBSSatzAnhängen(Ziel, Vorher + i + 1, KorPunkt(i));
    Ziel += "\r\n";
  }
}

// ---- reading ---------------------------------------------------------------------------------------

EDBSZeile ArtVon(const Spalten& Z) {
  const std::string_view Kennung = Z.Teil(13, 16), Information = Z.Teil(29, 36);
  if (Kennung == "AKND") return EDBSZeile::Anfang;
  if (Kennung == "AEND") return EDBSZeile::Ende;
  const auto Eigene = [Information] {
    return !Information.empty() && Information == FeldLinks(Optionen.EDBSInfo, 8);
  };
  return Information.starts_with("ULP") || Eigene() ? EDBSZeile::Punkt : EDBSZeile::Andere;
}

int SatzLesen(const Spalten& Z, EDBSSatz& S) {
  if (Z.Anzahl() < KürzesterSatz || !MillimeterLesen(Z.Teil(70, 80), S.Rechts) ||
      !MillimeterLesen(Z.Teil(81, 91), S.Hoch))
    return -1;
  S.KmQuadrat = Z.Teil(45, 52);
  S.Kennung = Z.Teil(53, 58);
  const bool MitKlasse = IstZiffer(S.Kennung.front()) && S.Kennung.front() != '0';
  S.Pnr = MitKlasse ? S.Kennung : OhneFührendeNullen(Z.Teil(54, 58));
  S.Art = Z.Teil(60, 60);
  S.Symbol = SymbolVon(S.Art);
  S.Info.Punktart = Kurzzahl(S.Symbol);
  S.Info.Punktstatus = Kurzzahl(Z.Teil(61, 61));
  S.Info.Aktualitaet = Kurzzahl(Z.Teil(62, 62));
  S.Info.Vermarkungsart = Kurzzahl(Z.Teil(63, 63));
  S.Info.BemZurVerm = Kurzzahl(Z.Teil(64, 64));
  TextspalteLesen(Z.Teil(65, 65), S.Info.Entstehung);
  TextspalteLesen(Z.Teil(66, 68), S.Info.Lagestatus);
  TextspalteLesen(Z.Teil(69, 69), S.Info.Lagegenauigkeit);
  HöheLesen(Z, S);
  return 0;
}

}  // namespace

EDBSZeile EDBSZeileArt(std::string_view Zeile) { return ArtVon(Spalten(Zeile)); }

int EDBSSatzLesen(std::string_view Zeile, EDBSSatz& S) {
  return SatzLesen(Spalten(OhneLeerzeichenHinten(Zeile)), S);
}

void EDBSSatzAnhängen(std::string& Ziel, int Nummer, const KorSatz& S) {
  const KorInfoSatz& Info = *S.Info;
  const std::string Laufend = std::to_string(Nummer);
  Ziel.append("EDBS01080000BSPE").append(6 - std::min<std::size_t>(Laufend.size(), 6), '0').append(Laufend);
  Ziel.append("  0000").append(FeldLinks(Optionen.EDBSInfo, 8)).append("00010001");
  KmQuadratAnhängen(Ziel, S.Rechts, S.Hoch);
  NummerAnhängen(Ziel, S.Pnr);
  Ziel += Prüfziffer(Ziel);
  Ziel += BuchstabeVon(S.Symbol);
  for (const std::int16_t Zahl : {Info.Punktstatus, Info.Aktualitaet, Info.Vermarkungsart})
    Ziel += EineStelle(Zahl);
  Ziel += EineStelle(Info.BemZurVerm);
  TextfeldAnhängen(Ziel, Info.Entstehung, 1);
  TextfeldAnhängen(Ziel, Info.Lagestatus, 3);
  TextfeldAnhängen(Ziel, Info.Lagegenauigkeit, 1);
  ZahlFormatAnhängen(Ziel, S.Rechts * 1000, 10, 0);
  ZahlFormatAnhängen(Ziel, S.Hoch * 1000, 10, 0);
  Ziel += '2';
  HöheAnhängen(Ziel, S.Hoehe);
  GanzzahlAnhängen(Ziel, Info.ArtHoehenbestimmung, 2);
  Ziel += Satzende;
}

void EDBSSatzSchreiben(int Nummer, std::string_view Pnr, double Rechts, double Hoch, double Hoehe,
                       std::string_view Symbol, const KorInfoSatz& Info, std::string& Zeile) {
  Zeile.clear();
  EDBSSatzAnhängen(Zeile, Nummer, {Pnr, Rechts, Hoch, Hoehe, Symbol, &Info});
}

// ---- whole files -----------------------------------------------------------------------------------

namespace {

// The text of a file, in its bytes or in Ablage, and its coding.
std::string_view Entschlüsselt(std::string_view Bytes, EDBSRahmen& R, std::string& Ablage) {
  if (Bytes.ends_with('\x1A')) Bytes.remove_suffix(1);
  R.Windows1252 = !EinByteJeZeichen(Bytes) && !IstUtf8(Bytes);
  R.MitBom = !R.Windows1252 && Bytes.starts_with(Bom);
  if (R.Windows1252) return Ablage = AusWindows1252(Bytes);
  return Bytes.substr(R.MitBom ? Bom.size() : 0);
}

// One reading of a file: its points, and what stands around them.
class EDBSLesung {
 public:
  EDBSLesung(const std::function<bool(const EDBSSatz&)>& N, Lesebericht& Lesebericht)
      : Nehmen(N), B(Lesebericht) {}

  EDBSRahmen R;

  void Laufen(std::string_view Text) {
    Schlicht = EinByteJeZeichen(Text);
    Zeilenleser Leser(Text);
    std::string_view Zeile, Letzte;
    while (Leser.Nächste(Zeile)) {
      ++Zeilennummer;
      ZeileNehmen(Zeile);
      Letzte = Zeile;
    }
    const bool OhneZeilenende = !Letzte.empty() && Letzte.data() + Letzte.size() == Text.data() + Text.size();
    const bool Kurz = OhneZeilenende && !TrimmenSicht(Letzte).empty() &&
                      ZeichenAnzahl(OhneLeerzeichenHinten(Letzte)) < KürzesterSatz;
    B.Abgeschnitten =
        (Kurz && EDBSZeileArt(Letzte) != EDBSZeile::Ende) || (!R.Anfang.empty() && R.Ende.empty());
  }
  /// Nothing in it is of this format.
  [[nodiscard]] bool Fremd() const {
    return Punktzeilen == 0 && B.Übergangen > 0 && R.Anfang.empty() && R.Ende.empty();
  }

 private:
  void ZeileNehmen(std::string_view Zeile) {
    const std::string_view Kurz = OhneLeerzeichenHinten(Zeile);
    const Spalten Z(Kurz, Schlicht || EinByteJeZeichen(Kurz));
    switch (ArtVon(Z)) {
      case EDBSZeile::Anfang:
        return RahmenNehmen(R.Anfang, Zeile);
      case EDBSZeile::Ende:
        return RahmenNehmen(R.Ende, Zeile);
      case EDBSZeile::Punkt:
        ++Punktzeilen;
        if (!Weiter) return;  // the closing record is still looked for
        if (SatzLesen(Z, S) < 0) return Übergehen();
        Weiter = Nehmen(S);
        return;
      case EDBSZeile::Andere:
        if (!TrimmenSicht(Zeile).empty()) Übergehen();
    }
  }
  void RahmenNehmen(std::string& Ziel, std::string_view Zeile) {
    if (!Ziel.empty()) return Übergehen();  // there is one of each
    Ziel = Zeile;
  }
  void Übergehen() {
    if (B.Übergangen++ == 0) B.ErsteÜbergangene = Zeilennummer;
  }

  const std::function<bool(const EDBSSatz&)>& Nehmen;
  Lesebericht& B;
  EDBSSatz S;
  int Zeilennummer = 0, Punktzeilen = 0;
  bool Weiter = true;
  bool Schlicht = false;  // the whole text has one byte for each character
};

int EDBSLesen(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) {
  return EDBSPunkteLesen(
      Quelle.Inhalt, [&Nehmen](const EDBSSatz& S) { return Nehmen(S.Satz()); }, B,
      Quelle.AlsKoordinatendatei ? &EDBSOffen : nullptr);
}

std::string MitZeilenende(const std::string& Satz) { return Satz.empty() ? "" : Satz + "\r\n"; }

void EDBSTabelleSchreiben(int /*Nachkomma*/, std::string& Ziel) {
  Ziel += MitZeilenende(EDBSOffen.Anfang);
  TabelleAnhängen(Ziel, 0);
  Ziel += MitZeilenende(EDBSOffen.Ende);
}

// The running number of a record; 0 where there is none.
int SatznummerVon(std::string_view Zeile) {
  const std::string_view Feld = TextTeil(Zeile, 16, 6);
  return NurZiffern(Feld) ? static_cast<int>(ZahlAusText(Feld)) : 0;
}

}  // namespace

int EDBSPunkteLesen(std::string_view Bytes, const std::function<bool(const EDBSSatz&)>& Nehmen,
                    Lesebericht& B, EDBSRahmen* R) {
  std::string Ablage;
  EDBSLesung Lesung(Nehmen, B);
  Lesung.Laufen(Entschlüsselt(Bytes, Lesung.R, Ablage));
  if (Lesung.Fremd()) {
    FehlerMeldung("Format nicht erkannt");
    return -1;
  }
  if (R != nullptr) *R = std::move(Lesung.R);
  return 0;
}

std::string EDBSVerschlüsseln(const EDBSRahmen& R, const std::string& Text) {
  if (R.Windows1252) return NachWindows1252(Text);
  return R.MitBom ? std::string(Bom) + Text : Text;
}

std::string EDBSFortsetzen(std::string_view Bytes) {
  EDBSRahmen R;
  std::string Ablage;
  std::string Text(Entschlüsselt(Bytes, R, Ablage));
  int Letzter = 0;
  std::string_view Zeile;
  Zeilenleser Leser(Text);
  std::size_t EndeAb = std::string::npos, EndeBis = 0;  // of the closing record, its line end included
  while (Leser.Nächste(Zeile)) {
    const EDBSZeile Art = EDBSZeileArt(Zeile);
    if (Art == EDBSZeile::Punkt) Letzter = std::max(Letzter + 1, SatznummerVon(Zeile));
    if (Art != EDBSZeile::Ende || EndeAb != std::string::npos) continue;
    R.Ende = Zeile;
    EndeAb = static_cast<std::size_t>(Zeile.data() - Text.data());
    EndeBis = EndeAb + Zeile.size();
    EndeBis += std::string_view(Text).substr(EndeBis).starts_with("\r\n") ? 2 : 1;
  }
  if (EndeAb != std::string::npos) Text.erase(EndeAb, EndeBis - EndeAb);
  if (!Text.empty() && !Text.ends_with('\n') && !Text.ends_with('\r')) Text += "\r\n";
  TabelleAnhängen(Text, Letzter);
  return EDBSVerschlüsseln(R, Text + MitZeilenende(R.Ende));
}

namespace {

// Comes back as what it says: no text, a digit, or a code of the list.
bool SymbolBleibt(std::string_view Symbol) {
  if (!NurZiffern(Symbol)) return false;
  if (Symbol.size() <= 1) return true;
  const int Code = Symbol.size() == 3 && Symbol[0] == '0' ? (Symbol[1] - '0') * 10 + Symbol[2] - '0' : 0;
  return Code == 99 || (Code > 0 && Code % 5 == 0 && Code != 75);
}

Rückkehr Voraussage(const KorSatz& S, int /*Nachkomma*/) {
  const KorInfoSatz& I = *S.Info;
  const auto Stelle = [](double Zahl) { return Zahl >= 0 && Zahl <= 9; };
  const auto Text = [](const std::string& T, std::size_t n) { return T.size() <= n && NurZiffern(T); };
  const bool Gut = IstSchlicht(S) && S.Pnr.size() <= 6 && NurZiffern(S.Pnr) && SymbolBleibt(S.Symbol) &&
                   Stelle(I.Punktstatus) && Stelle(I.Aktualitaet) && Stelle(I.Vermarkungsart) &&
                   Stelle(I.BemZurVerm) && I.BemZurVerm == std::floor(I.BemZurVerm) &&
                   Text(I.Entstehung, 1) && Text(I.Lagestatus, 3) && Text(I.Lagegenauigkeit, 1) &&
                   I.ArtHoehenbestimmung >= 0 && I.ArtHoehenbestimmung <= 99;
  if (!Gut) return Rückkehr::Unklar;
  return S.Pnr.front() != '0' ? Rückkehr::Ganz : Rückkehr::OhneNullen;
}

int AttributeVerloren(const KorInfoSatz& Vorher, const KorInfoSatz& Zurück) {
  const auto Zahl = [](double Alt, double Neu) { return int{Alt != 0 && Alt != Neu}; };
  return Zahl(Vorher.Punktstatus, Zurück.Punktstatus) + Zahl(Vorher.Aktualitaet, Zurück.Aktualitaet) +
         Zahl(Vorher.Vermarkungsart, Zurück.Vermarkungsart) + Zahl(Vorher.BemZurVerm, Zurück.BemZurVerm) +
         Zahl(Vorher.ArtHoehenbestimmung, Zurück.ArtHoehenbestimmung) +
         int{TextVerloren(Vorher.Entstehung, Zurück.Entstehung)} +
         int{TextVerloren(Vorher.Lagestatus, Zurück.Lagestatus)} +
         int{TextVerloren(Vorher.Lagegenauigkeit, Zurück.Lagegenauigkeit)};
}

}  // namespace

Formatzugang EDBSZugang() {
  Formatzugang F{Punktformat::Edbs};
  F.Lesen = EDBSLesen;
  F.Was = Formatzugang::Zufuhr::Bytes;
  F.Schreiben = EDBSTabelleSchreiben;
  F.ZeileLesen = [](std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
    EDBSSatz Satz;
    if (EDBSZeileArt(Zeile) != EDBSZeile::Punkt || EDBSSatzLesen(Zeile, Satz) < 0) return false;
    S = Satz.Satz();
    Info = Satz.Info;
    S.Info = &Info;
    return true;
  };
  F.ZeileSchreiben = [](const KorSatz& S, int, std::string& Ziel) { EDBSSatzAnhängen(Ziel, 1, S); };
  F.Voraussage = Voraussage;
  F.AttributeVerloren = AttributeVerloren;
  return F;
}

}  // namespace tavorena
