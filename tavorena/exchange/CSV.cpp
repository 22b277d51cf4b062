#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/CSV.h>
#include <tavorena/exchange/Textformate.h>

namespace tavorena {

Csvachsen CsvAchsen = Csvachsen::Fragen;

namespace {

using Csvfelder = std::vector<std::string_view>;
constexpr std::size_t MaxFelder = 1000;  // of a record: what follows in a line of 200 MB is not kept

// ---- headings --------------------------------------------------------------------------------------

// The words of a column, in capitals; where a file has several of them, the one named first counts.
using Kopfworte = std::span<const std::string_view>;
constexpr std::string_view WortePnr[] = {"PUNKTNUMMER", "PUNKTNR", "PNR",  "NUMMER",
                                         "NR",          "PUNKT",   "NAME", "ID"};
constexpr std::string_view WorteRechts[] = {"RECHTS",  "RECHTSWERT", "OST", "OSTWERT",
                                            "EASTING", "EAST",       "E",   "Y"};
constexpr std::string_view WorteHoch[] = {"HOCH",     "HOCHWERT", "NORD", "NORDWERT",
                                          "NORTHING", "NORTH",    "N",    "X"};
constexpr std::string_view WorteHöhe[] = {"HÖHE", "HOEHE", "HEIGHT", "H", "Z"};
constexpr std::string_view WorteSymbol[] = {"SYMBOL", "SY", "CODE", "PUNKTART"};

// The attributes, in the order of the record.
struct Merkmal {
  const char* Kopf;
  std::string_view Wort;
  std::variant<std::int16_t KorInfoSatz::*, double KorInfoSatz::*, std::string KorInfoSatz::*> Wo;
};
constexpr std::array<Merkmal, 8> Merkmale = {
    {{"Punktstatus", "PUNKTSTATUS", &KorInfoSatz::Punktstatus},
     {"Aktualität", "AKTUALITÄT", &KorInfoSatz::Aktualitaet},
     {"Vermarkungsart", "VERMARKUNGSART", &KorInfoSatz::Vermarkungsart},
     {"Bem.zur Verm.", "BEMZURVERM", &KorInfoSatz::BemZurVerm},
     {"Entstehung", "ENTSTEHUNG", &KorInfoSatz::Entstehung},
     {"Lagestatus", "LAGESTATUS", &KorInfoSatz::Lagestatus},
     {"Lagegenauigk.", "LAGEGENAUIGK", &KorInfoSatz::Lagegenauigkeit},
     {"Art d.Höhenb.", "ARTDHÖHENB", &KorInfoSatz::ArtHoehenbestimmung}}};

// A heading without its unit, its blanks and its marks, in capitals.
std::string Kopfwort(std::string_view Feld) {
  std::string Wort;
  char Schluß = '\0';  // of the bracket that is open
  for (const char z : Feld) {
    if (Schluß != '\0') {
      if (z == Schluß) Schluß = '\0';
    } else if (z == '(' || z == '[' || z == '{') {
      Schluß = z == '(' ? ')' : z == '[' ? ']' : '}';
    } else if (z != ' ' && z != '.' && z != '-' && z != '_') {
      Wort += z;
    }
  }
  return Großtext(Wort);
}

int Spalte(const std::vector<std::string>& Kopf, Kopfworte Namen) {
  for (const std::string_view Name : Namen) {
    const auto i = std::find(Kopf.begin(), Kopf.end(), Name);
    if (i != Kopf.end()) return static_cast<int>(i - Kopf.begin());
  }
  return -1;
}

// The first of the three that stands in the line, not counting what is quoted.
char TrennerVon(std::string_view Zeile) {
  for (const char Trenner : {';', '\t', ','}) {
    bool Innen = false;
    for (const char z : Zeile) {
      if (z == '"') Innen = !Innen;
      if (z == Trenner && !Innen) return Trenner;
    }
  }
  return ';';
}

bool Leer(const Csvfelder& F) {
  return std::all_of(F.begin(), F.end(), [](std::string_view Wort) { return Wort.empty(); });
}

// The line of headings as words; the reader then stands behind it.
Csvkopf KopfLesen(Csvleser& Leser, char Trenner, std::vector<std::string>& Kopf) {
  Csvfelder F;
  bool Da = false;
  do Da = Leser.Nächster(F);
  while (Da && Leer(F));
  Kopf.clear();
  if (Da) std::transform(F.begin(), F.end(), std::back_inserter(Kopf), Kopfwort);
  Csvkopf K{Trenner};
  K.Pnr = Spalte(Kopf, WortePnr);
  K.Rechts = Spalte(Kopf, WorteRechts);
  K.Hoch = Spalte(Kopf, WorteHoch);
  K.Hoehe = Spalte(Kopf, WorteHöhe);
  K.Symbol = Spalte(Kopf, WorteSymbol);
  K.Zeile = Leser.Zeile();
  K.Felder = static_cast<int>(Kopf.size());
  K.Punkt = std::count_if(Kopf.begin(), Kopf.end(), IstZahlwort) >= 2;
  K.NurXY = K.Rechts >= 0 && K.Hoch >= 0 && Kopf[static_cast<std::size_t>(K.Rechts)] == "Y" &&
            Kopf[static_cast<std::size_t>(K.Hoch)] == "X";
  return K;
}

// That of the first line that holds anything else.
char TrennerDesTextes(std::string_view Text) {
  const std::size_t Erstes = std::min(Text.find_first_not_of(" \t\r\n;,"), Text.size());
  const std::size_t Ab = Text.find_last_of("\r\n", Erstes) + 1;
  return TrennerVon(Text.substr(Ab, Text.find_first_of("\r\n", Erstes) - Ab));
}

// ---- rows ------------------------------------------------------------------------------------------

class Csvtabelle {
 public:
  explicit Csvtabelle(std::string_view Inhalt)
      : Text(Inhalt), Trenner(TrennerDesTextes(Inhalt)), Leser(Inhalt, Trenner) {
    std::vector<std::string> Worte;
    Kopf = KopfLesen(Leser, Trenner, Worte);
    for (std::size_t i = 0; i < Merkmale.size(); ++i) Attribute[i] = Spalte(Worte, {&Merkmale[i].Wort, 1});
  }

  Csvkopf Kopf;

  // The next row that is a point; those before it that are none are counted.
  bool Nächste(KorSatz& S, Lesebericht& B) {
    while (Leser.Nächster(F)) {
      if (Punkt(S)) return true;
      if (Leer(F)) continue;
      if (B.Übergangen++ == 0) B.ErsteÜbergangene = Leser.Zeile();
    }
    B.Abgeschnitten = Leser.Abgeschnitten();
    return false;
  }

  // More than half of the points have the Hoch of Germany for their Rechts.
  [[nodiscard]] bool SiehtVertauschtAus() const {
    const auto Deutsch = [](double Wert) { return Wert >= 5200000 && Wert <= 6200000; };
    Csvtabelle Probe(Text);
    KorSatz S;
    Lesebericht B;
    int Alle = 0, Vertauschte = 0;
    for (; Probe.Nächste(S, B); ++Alle) Vertauschte += Deutsch(S.Rechts) && !Deutsch(S.Hoch) ? 1 : 0;
    return 2 * Vertauschte > Alle;
  }

 private:
  [[nodiscard]] std::string_view Wort(int i) const {
    return i >= 0 && i < static_cast<int>(F.size()) ? F[static_cast<std::size_t>(i)] : std::string_view();
  }

  bool Punkt(KorSatz& S) {
    // More fields than headings: a comma of a number was taken for a separator.
    const bool Zuviel = std::any_of(F.begin() + std::min(Kopf.Felder, static_cast<int>(F.size())), F.end(),
                                    [](std::string_view Überzähliges) { return !Überzähliges.empty(); });
    const Punktfelder Felder{Wort(Kopf.Pnr), Wort(Kopf.Rechts), Wort(Kopf.Hoch), Wort(Kopf.Hoehe),
                             Wort(Kopf.Symbol)};
    if (Zuviel || !PunktAusFeldern(Felder, S, Info)) return false;
    for (std::size_t i = 0; i < Merkmale.size(); ++i) {
      if (Attribute[i] >= 0) MerkmalSetzen(Merkmale[i], Wort(Attribute[i]));
    }
    return true;
  }

  void MerkmalSetzen(const Merkmal& M, std::string_view Wert) {
    if (const auto* Ganz = std::get_if<0>(&M.Wo)) Info.*(*Ganz) = KurzAusText(Wert);
    if (const auto* Zahl = std::get_if<1>(&M.Wo)) Info.*(*Zahl) = ZahlAusText(Wert);
    if (const auto* Worte = std::get_if<2>(&M.Wo)) Info.*(*Worte) = Wert;
  }

  std::string_view Text;
  char Trenner;
  Csvleser Leser;
  std::array<int, Merkmale.size()> Attribute{};
  Csvfelder F;
  KorInfoSatz Info;
};

// @return false: the file is not read, which was told
bool AchsenKlären(Csvtabelle& T, const std::string& Dateiname) {
  if (!T.Kopf.NurXY || CsvAchsen == Csvachsen::YX) return true;
  bool Tauschen = CsvAchsen == Csvachsen::XY;
  if (!Tauschen && T.SiehtVertauschtAus()) {
    const std::string Befund = "Nach ihren Werten ist in dieser Datei x der Rechtswert und y der Hochwert";
    if (CsvAchsen == Csvachsen::Ablehnen) {
      FehlerMeldung(Befund + ": --achsen xy, sonst --achsen yx\n" + Dateiname);
      return false;
    }
    const int Antwort = FrageJaNeinAbbruch(
        Befund + ":\n" + Dateiname + "\n\nx als Rechtswert lesen ?\n(Nein: x ist der Hochwert)",
        KnopfAbbruch);
    if (Antwort != KnopfJa && Antwort != KnopfNein) return false;
    Tauschen = Antwort == KnopfJa;
  }
  if (Tauschen) std::swap(T.Kopf.Rechts, T.Kopf.Hoch);
  return true;
}

int Lesen(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) {
  Csvtabelle T(Quelle.Inhalt);
  if (!T.Kopf.Erkannt()) {
    FehlerMeldung("Format nicht erkannt");
    return -1;
  }
  if (!AchsenKlären(T, Quelle.Dateiname)) return -1;
  KorSatz S;
  while (T.Nächste(S, B) && Nehmen(S)) {
  }
  return 0;
}

// ---- writing ---------------------------------------------------------------------------------------

void FeldAnhängen(std::string& Ziel, std::string_view Text) {
  if (Text.find_first_of(";\"\r\n") == std::string_view::npos) {
    Ziel += Text;
    return;
  }
  Ziel += '"';
  for (const char z : Text) Ziel.append(z == '"' ? 2 : 1, z);
  Ziel += '"';
}

void ZahlAnhängen(std::string& Ziel, double Zahl, int Nachkomma, std::string& Feld) {
  Feld.clear();
  ZahlFormatAnhängen(Feld, Zahl, 20, Nachkomma);
  Ziel += TrimmenSicht(Feld);
}

void MerkmaleAnhängen(std::string& Ziel, const KorInfoSatz& Info) {
  for (const Merkmal& M : Merkmale) {
    Ziel += ';';
    if (const auto* Ganz = std::get_if<0>(&M.Wo)) Ziel += std::to_string(Info.*(*Ganz));
    if (const auto* Zahl = std::get_if<1>(&M.Wo)) Ziel += ZahlNachText(Info.*(*Zahl)).Text();
    if (const auto* Worte = std::get_if<2>(&M.Wo)) FeldAnhängen(Ziel, Info.*(*Worte));
  }
}

void ZeileSchreiben(const KorSatz& S, int Nachkomma, std::string& Ziel, std::string& Feld) {
  FeldAnhängen(Ziel, TrimmenSicht(S.Pnr));
  Ziel += ';';
  ZahlAnhängen(Ziel, S.Rechts, Nachkomma, Feld);
  Ziel += ';';
  ZahlAnhängen(Ziel, S.Hoch, Nachkomma, Feld);
  Ziel += ';';
  if (S.Hoehe != 0) ZahlAnhängen(Ziel, S.Hoehe, Nachkomma, Feld);
  Ziel += ';';
  FeldAnhängen(Ziel, S.Symbol);
}

void Schreiben(int Nachkomma, std::string& Ziel) {
  const bool MitMerkmalen = Koordinatendateiformat != Dateiformat::Kor;
  std::string Feld;
  Ziel.reserve(Ziel.size() + static_cast<std::size_t>(KorAnzahl) * 56);
  Ziel += "Punktnummer;Rechts;Hoch;Höhe;Symbol";
  for (std::size_t i = 0; MitMerkmalen && i < Merkmale.size(); ++i) Ziel.append(";").append(Merkmale[i].Kopf);
  Ziel += "\r\n";
  for (int z = 0; z < KorAnzahl; ++z) {
    const KorSatz S = KorPunkt(z);
    ZeileSchreiben(S, Nachkomma, Ziel, Feld);
    if (MitMerkmalen) MerkmaleAnhängen(Ziel, *S.Info);
    Ziel += "\r\n";
  }
}

bool ZurückLesen(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
  static std::optional<Csvleser> Leser;  // the views of S lie in what it holds
  std::vector<std::string_view> W;
  Leser.emplace(Zeile, ';');
  if (!Leser->Nächster(W) || W.size() != 5) return false;
  Punktfelder F;
  F.Pnr = W[0];
  F.Rechts = W[1];
  F.Hoch = W[2];
  F.Hoehe = W[3];
  F.Symbol = W[4];
  return PunktAusFeldern(F, S, Info);
}

Rückkehr Voraussage(const KorSatz& S, int /*Nachkomma*/) {
  return IstSchlicht(S) && S.Pnr.find('"') == std::string_view::npos ? Rückkehr::Ganz : Rückkehr::Unklar;
}

}  // namespace

// ---- records and fields ----------------------------------------------------------------------------

std::size_t Csvleser::HinterLeeres(std::size_t i) const {
  while (i < Text.size() && (Text[i] == ' ' || Text[i] == '\t') && Text[i] != Trenner) ++i;
  return i;
}

bool Csvleser::Angeführt(std::size_t Von, std::size_t Stelle, std::string_view& Feld) {
  std::size_t Bis = Von + 1;
  while ((Bis = Text.find('"', Bis)) != std::string_view::npos && Text.substr(Bis + 1).starts_with('"'))
    Bis += 2;
  if (Bis == std::string_view::npos) {
    Schlußlos = true;
    return false;
  }
  const std::size_t Danach = HinterLeeres(Bis + 1);
  if (Danach < Text.size() && !Endet(Text[Danach])) return false;
  Feld = Text.substr(Von + 1, Bis - Von - 1);
  Ab = Danach;
  if (Feld.find_first_of("\"\r\n") == std::string_view::npos) return true;
  if (Eigene.size() <= Stelle) Eigene.resize(Stelle + 1);
  std::string& Eigenes = Eigene[Stelle];
  Eigenes.clear();
  for (std::size_t i = 0; i < Feld.size(); ++i) {
    if (Feld[i] == '\n' || (Feld[i] == '\r' && !Feld.substr(i + 1).starts_with('\n'))) ++Nummer;
    Eigenes += Feld[i] == '\r' || Feld[i] == '\n' ? ' ' : Feld[i];
    if (Feld[i] == '"') ++i;  // two stand for one
  }
  Feld = Eigenes;
  return true;
}

std::string_view Csvleser::Feld(std::size_t Stelle) {
  const std::size_t Von = HinterLeeres(Ab);
  std::string_view Inneres;
  if (!Schlußlos && Von < Text.size() && Text[Von] == '"' && Angeführt(Von, Stelle, Inneres))
    return TrimmenSicht(Inneres);
  std::size_t Bis = Ab;
  while (Bis < Text.size() && !Endet(Text[Bis])) ++Bis;
  const std::string_view Wort = Text.substr(Ab, Bis - Ab);
  Ab = Bis;
  return TrimmenSicht(Wort);
}

bool Csvleser::Nächster(std::vector<std::string_view>& Felder) {
  Felder.clear();
  if (Ab >= Text.size()) return false;
  Beginn = Nummer;
  for (;;) {
    const std::string_view Neues = Feld(Felder.size());
    if (Felder.size() < MaxFelder) Felder.push_back(Neues);
    if (Ab >= Text.size()) return true;
    const char z = Text[Ab++];
    if (z == Trenner) continue;
    if (z == '\r' && Text.substr(Ab).starts_with('\n')) ++Ab;
    ++Nummer;
    return true;
  }
}

Csvkopf CsvKopf(std::string_view Text) {
  const char Trenner = TrennerDesTextes(Text);
  Csvleser Leser(Text, Trenner);
  std::vector<std::string> Worte;
  return KopfLesen(Leser, Trenner, Worte);
}

Freiformat CsvAlsFreiformat(const Csvkopf& Kopf) {
  const int Spalten[] = {Kopf.Pnr, Kopf.Rechts, Kopf.Hoch, Kopf.Hoehe, Kopf.Symbol};  // as Freiwert counts
  Freiformat F;
  F.Trenner = Kopf.Trenner;
  F.Überspringen = std::min(Kopf.Punkt ? Kopf.Zeile - 1 : Kopf.Zeile, FreiMaxZeilen);
  if (std::all_of(std::begin(Spalten), std::end(Spalten), [](int i) { return i < 0; })) return F;
  for (std::size_t i = 0; i < Freiwerte; ++i) F.Werte[i] = {Spalten[i] + 1, 0};
  return F;
}

int CsvFortsetzen(std::string_view Alt, std::string& Text) {
  if (Alt.starts_with("\xEF\xBB\xBF")) Alt.remove_prefix(3);
  const std::size_t Kopf = Text.find('\r');
  const std::string_view Dort = Alt.substr(0, Alt.find_first_of("\r\n"));
  if (Dort != std::string_view(Text).substr(0, Kopf)) return TrimmenSicht(Alt).empty() ? 0 : -1;
  Text.erase(0, Kopf + 2);
  return 0;
}

Formatzugang CsvZugang() {
  Formatzugang F;
  F.Nummer = Punktformat::Csv;
  F.Lesen = Lesen;
  F.Schreiben = Schreiben;
  F.ZeileSchreiben = [](const KorSatz& S, int Nachkomma, std::string& Ziel) {
    std::string Feld;
    ZeileSchreiben(S, Nachkomma, Ziel, Feld);
  };
  F.ZurückLesen = ZurückLesen;
  F.Voraussage = Voraussage;
  return F;
}

}  // namespace tavorena
