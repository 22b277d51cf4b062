#include <algorithm>
#include <charconv>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Freiformat.h>

namespace tavorena {

Freiformat LetztesFreiformat;

namespace {

constexpr std::array<const char*, Freiwerte> Schlüsselwörter = {"pnr", "rechts", "hoch", "hoehe", "symbol"};

// ---- what is wrong -----------------------------------------------------------------------------------

bool ImBereich(int Zahl) { return Zahl >= 1 && Zahl <= FreiMaxFeld; }

std::string Wertname(std::size_t i) { return Freinamen[i]; }

std::string Platzfehler(const Freiformat& F, std::size_t i) {
  const Freispalte& S = F.Werte[i];
  const bool Nötig = i == FreiPnr || i == FreiRechts || i == FreiHoch;
  if (S.Von == 0 && S.Bis == 0) return Nötig ? Wertname(i) + " fehlt" : "";
  if (F.InSpalten && (S.Von == 0 || S.Bis == 0))
    return Wertname(i) + ": \"" + (S.Von == 0 ? "von" : "bis") + "\" fehlt";
  if (!ImBereich(S.Von) || (F.InSpalten && !ImBereich(S.Bis)))
    return Wertname(i) + ": erwartet wird eine Zahl von 1 bis " + std::to_string(FreiMaxFeld);
  if (F.InSpalten && S.Bis < S.Von) return Wertname(i) + ": \"bis\" liegt vor \"von\"";
  return "";
}

bool Überdecken(const Freiformat& F, const Freispalte& A, const Freispalte& B) {
  if (A.Von == 0 || B.Von == 0) return false;
  return F.InSpalten ? A.Von <= B.Bis && B.Von <= A.Bis : A.Von == B.Von;
}

// The last field; 0 without any.
int LetztesFeld(const Freiformat& F) {
  int Letztes = 0;
  for (const Freispalte& S : F.Werte) Letztes = std::max(Letztes, S.Von);
  return Letztes;
}

// Why what is written would not come back; Wert: because of which value.
std::string Schreibfehler(const Freiformat& F, std::size_t& Wert) {
  for (Wert = 0; Wert < Freiwerte; ++Wert) {
    for (std::size_t k = 0; k < Wert; ++k) {
      if (Überdecken(F, F.Werte[Wert], F.Werte[k]))
        return Wertname(Wert) + " und " + Wertname(k) + " stehen an derselben Stelle";
    }
  }
  if (F.InSpalten || F.Trenner != ' ') return "";
  const auto Da = std::count_if(F.Werte.begin(), F.Werte.end(), [](const auto& S) { return S.Von > 0; });
  for (Wert = 0; Wert < Freiwerte; ++Wert) {
    if (F.Werte[Wert].Von > Da) return Wertname(Wert) + ": zwischen Leerzeichen darf kein Feld leer bleiben";
  }
  Wert = FreiSymbol;
  if (F.Werte[Wert].Von > 0 && F.Werte[Wert].Von < LetztesFeld(F))
    return "Symbol: es kann leer sein und muß zwischen Leerzeichen das letzte Feld sein";
  return "";
}

// ---- the definition as a text ------------------------------------------------------------------------

bool GanzeZahl(std::string_view Text, int Größte, int& Zahl) {
  int Neu = 0;
  const auto [Ende, Fehler] = std::from_chars(Text.data(), Text.data() + Text.size(), Neu);
  if (Fehler != std::errc{} || Ende != Text.data() + Text.size() || Neu < 0 || Neu > Größte) return false;
  Zahl = Neu;
  return true;
}

bool TrennerLesen(std::string_view Wort, char& Trenner) {
  for (const auto& [Name, Zeichen] : {std::pair{"leer", ' '}, {"tab", '\t'}, {";", ';'}, {",", ','}}) {
    if (Wort != Name) continue;
    Trenner = Zeichen;
    return true;
  }
  return false;
}

bool StelleLesen(std::string_view Text, Freispalte& S, bool& InSpalten) {
  const std::size_t Strich = Text.find('-');
  InSpalten = Strich != std::string_view::npos;
  S = {};
  return GanzeZahl(Text.substr(0, Strich), FreiMaxFeld, S.Von) && S.Von > 0 &&
         (!InSpalten || GanzeZahl(Text.substr(Strich + 1), FreiMaxFeld, S.Bis));
}

// Takes the words of a definition one by one.
class Freileser {
 public:
  Freileser() { Neu.Werte = {}; }

  // @return false: the word is none of a definition
  bool Nehmen(std::string_view Wort) {
    const std::size_t Gleich = std::min(Wort.find('='), Wort.size());
    const std::string_view Name = Wort.substr(0, Gleich),
                           Wert = Wort.substr(std::min(Gleich + 1, Wort.size()));
    if (Name == "trenner") return MitTrenner = TrennerLesen(Wert, Neu.Trenner);
    if (Name == "zeilen") return GanzeZahl(Wert, FreiMaxZeilen, Neu.Überspringen);
    if (Name == "zeichensatz") return ZeichensatzAus(Wert, Neu.Satz);
    const auto i = std::find(Schlüsselwörter.begin(), Schlüsselwörter.end(), Name);
    if (i == Schlüsselwörter.end()) return false;
    bool Spalten = false;
    if (!StelleLesen(Wert, Neu.Werte[static_cast<std::size_t>(i - Schlüsselwörter.begin())], Spalten))
      return false;
    ++(Spalten ? MitSpalten : MitFeldern);
    return true;
  }

  // @return "", or why the words do not fit together
  std::string Abschließen() {
    if (MitSpalten > 0 && (MitFeldern > 0 || MitTrenner))
      return "Spalten und Trennzeichen schließen sich aus";
    Neu.InSpalten = MitSpalten > 0;
    return FreiformatEinwand(Neu, false).Text;
  }

  Freiformat Neu;

 private:
  int MitSpalten = 0, MitFeldern = 0;
  bool MitTrenner = false;
};

// ---- lines -------------------------------------------------------------------------------------------

std::string_view& Feldvon(Punktfelder& P, std::size_t i) {
  std::string_view* const Ziele[] = {&P.Pnr, &P.Rechts, &P.Hoch, &P.Hoehe, &P.Symbol};
  return *Ziele[i];
}

std::string_view Spaltentext(std::string_view Zeile, const Freispalte& S) {
  return TextTeil(Zeile, static_cast<std::size_t>(S.Von - 1), static_cast<std::size_t>(S.Bis - S.Von + 1));
}

void FelderLesen(std::string_view Zeile, const Freiformat& F, Punktfelder& P) {
  const int Letztes = LetztesFeld(F);
  Feldschnitt Felder(Zeile, F.Trenner);
  std::string_view Feld;
  for (int n = 1; n <= Letztes && Felder.Nächstes(Feld); ++n) {
    for (std::size_t i = 0; i < Freiwerte; ++i) {
      if (F.Werte[i].Von == n) Feldvon(P, i) = Feld;
    }
  }
}

bool FreizeileLesen(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
  return PunktAusFeldern(FreizeileZerlegen(Zeile, LetztesFreiformat), S, Info);
}

int FreiLesen(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) {
  std::string Text(Quelle.Inhalt), Grund;
  if (AusZeichensatz(Text, LetztesFreiformat.Satz, &Grund) < 0) {
    Hinweis("Koordinatendatei\n" + Quelle.Dateiname + "\nnicht lesbar !" + InKlammern(Grund));
    return -1;
  }
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  KorInfoSatz Info;
  for (int Nummer = 1; Leser.Nächste(Zeile); ++Nummer) {
    if (Nummer <= LetztesFreiformat.Überspringen) continue;
    KorSatz S;
    if (!FreizeileLesen(Zeile, S, Info)) {
      ZeileÜbergehen(Zeile, Nummer, B);
    } else if (!Nehmen(S)) {
      break;
    }
  }
  return 0;
}

std::array<std::string, Freiwerte> Werttexte(const KorSatz& S, int Nachkomma) {
  return {Trimmen(std::string(S.Pnr)), ZahlFormat(S.Rechts, -1, Nachkomma), ZahlFormat(S.Hoch, -1, Nachkomma),
          ZahlFormat(S.Hoehe, -1, Nachkomma), Trimmen(std::string(S.Symbol))};
}

void SpaltenAnhängen(const Freiformat& F, const std::array<std::string, Freiwerte>& Texte,
                     std::string& Ziel) {
  std::array<std::size_t, Freiwerte> Folge = {FreiPnr, FreiRechts, FreiHoch, FreiHoehe, FreiSymbol};
  std::sort(Folge.begin(), Folge.end(), [&F](auto a, auto b) { return F.Werte[a].Von < F.Werte[b].Von; });
  int Spalte = 0;
  for (const std::size_t i : Folge) {
    const Freispalte& S = F.Werte[i];
    if (S.Von == 0) continue;
    const int Breite = S.Bis - S.Von + 1;
    Ziel += Leerzeichen(S.Von - 1 - Spalte);
    Ziel += static_cast<int>(ZeichenAnzahl(Texte[i])) > Breite
                ? std::string(static_cast<std::size_t>(Breite), '*')
                : RechtsBündig(Texte[i], Breite);
    Spalte = S.Bis;
  }
}

void FelderAnhängen(const Freiformat& F, const std::array<std::string, Freiwerte>& Texte, std::string& Ziel) {
  const int Letztes = LetztesFeld(F);
  for (int n = 1; n <= Letztes; ++n) {
    if (n > 1) Ziel += F.Trenner;
    for (std::size_t i = 0; i < Freiwerte; ++i) {
      if (F.Werte[i].Von == n) Ziel += Texte[i];
    }
  }
}

void FreiSchreiben(int Nachkomma, std::string& Ziel) {
  for (int z = 0; z < LetztesFreiformat.Überspringen; ++z) Ziel += "\r\n";
  for (int z = 0; z < KorAnzahl; ++z) {
    FreizeileAnhängen(LetztesFreiformat, KorPunkt(z), Nachkomma, Ziel);
    Ziel += "\r\n";
  }
}

}  // namespace

Freieinwand FreiformatEinwand(const Freiformat& F, bool Schreiben) {
  Freieinwand E;
  for (E.Wert = 0; E.Wert < Freiwerte; ++E.Wert) {
    if (E.Text = Platzfehler(F, E.Wert); !E.Text.empty()) return E;
  }
  E.Wert = FreiPnr;
  if (Schreiben) E.Text = Schreibfehler(F, E.Wert);
  return E;
}

int FreiformatLesen(std::string_view Text, Freiformat& F, std::string& Grund) {
  Freileser Leser;
  for (std::string_view Wort = Wortnehmen(Text); !Wort.empty(); Wort = Wortnehmen(Text)) {
    if (Leser.Nehmen(Wort)) continue;
    Grund = "\"" + std::string(Wort) + "\" ist nicht zu verstehen";
    return -1;
  }
  Grund = Leser.Abschließen();
  if (!Grund.empty()) return -1;
  F = Leser.Neu;
  return 0;
}

Punktfelder FreizeileZerlegen(std::string_view Zeile, const Freiformat& F) {
  Punktfelder P;
  if (F.InSpalten) {
    for (std::size_t i = 0; i < Freiwerte; ++i) {
      if (F.Werte[i].Von > 0) Feldvon(P, i) = TrimmenSicht(Spaltentext(Zeile, F.Werte[i]));
    }
  } else {
    FelderLesen(Zeile, F, P);
  }
  if (P.Pnr.find_first_not_of('*') == std::string_view::npos) P.Pnr = {};
  return P;
}

bool FreispalteZerschneidet(std::string_view Zeile, const Freiformat& F, std::size_t Wert) {
  const Freispalte& S = F.Werte[Wert];
  if (!F.InSpalten || S.Von == 0) return false;
  const auto Vergeben = [&F](int Spalte) {
    return std::any_of(F.Werte.begin(), F.Werte.end(),
                       [Spalte](const auto& A) { return A.Von <= Spalte && Spalte <= A.Bis; });
  };
  const auto Zusammen = [Zeile, &Vergeben](int Außen, int Innen) {
    if (Außen < 1 || Vergeben(Außen)) return false;
    const auto Zeichen = [Zeile](int n) {
      return TrimmenSicht(TextTeil(Zeile, static_cast<std::size_t>(n - 1), 1));
    };
    return !Zeichen(Außen).empty() && !Zeichen(Innen).empty();
  };
  return Zusammen(S.Von - 1, S.Von) || Zusammen(S.Bis + 1, S.Bis);
}

void FreizeileAnhängen(const Freiformat& F, const KorSatz& S, int Nachkomma, std::string& Ziel) {
  const auto Texte = Werttexte(S, Nachkomma);
  F.InSpalten ? SpaltenAnhängen(F, Texte, Ziel) : FelderAnhängen(F, Texte, Ziel);
  Ziel.erase(Ziel.find_last_not_of(" \t") + 1);
}

Formatzugang FreiZugang() {
  Formatzugang F{Punktformat::Frei};
  F.ZeileLesen = FreizeileLesen;
  F.Lesen = FreiLesen;
  F.Was = Formatzugang::Zufuhr::Bytes;
  F.ZeileSchreiben = [](const KorSatz& S, int Nachkomma, std::string& Ziel) {
    FreizeileAnhängen(LetztesFreiformat, S, Nachkomma, Ziel);
  };
  F.Schreiben = FreiSchreiben;
  return F;
}

}  // namespace tavorena
