#include <algorithm>
#include <cctype>
#include <cmath>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/rawdata/GRE.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Lagenmittel.h>
#include <tavorena/rawdata/Rohpruefung.h>

namespace tavorena {
namespace {

constexpr double HzSpanne = 0.01, StreckenSpanne = 0.02;  // of both faces [gon], [m]
constexpr std::size_t MaxArten = 60, MaxText = 200;

bool HatBuchstaben(std::string_view Text) {
  return std::any_of(Text.begin(), Text.end(), [](char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) > 127;
  });
}

bool IstWinkel(int Wort) { return Wort == 21 || Wort == 22 || Wort == 25; }

// The text where it stands in the line, which outlives it.
std::string_view InZeile(std::string_view Zeile, std::string_view Text) {
  const std::size_t Ab = Zeile.find(Text);
  return Ab != std::string_view::npos ? Zeile.substr(Ab, Text.size()) : "0";
}

std::string Wortname(int Wort) { return "Wort " + std::to_string(Wort); }

}  // namespace

void Rohprüfung::ZeileBeginnen(std::string_view Zeile) {
  B.Zeilen = ++Zeilennummer;
  Text = Zeile;
}

void Rohprüfung::Art(int Zeilenart, bool Sechzehn) {
  switch (Zeilenart) {
    case Messzeile:
      ++B.Messzeilen;
      break;
    case Codezeile:
      ++B.Codezeilen;
      break;
    case ZuKurz:
      if (IstLeerText(Text)) {
        ++B.Leere;
      } else {
        ++B.ZuKurze;
        Melden(B.NichtGelesen, "Zeile zu kurz");
      }
      break;
    default:
      ++B.Andere;
      Melden(B.NichtGelesen, "Zeile anderer Art");
  }
  if (Zeilenart >= 0 && Sechzehn) ++B.Sechzehner;
  if (Text.find('\0') != std::string_view::npos) Zweifel("Zeichen mit dem Code 0");
}

void Rohprüfung::Feld(int Wort, char Einheit, std::string_view Daten) {
  double Zahl = 0;
  if (!GanzesFeld(Daten, Zahl)) {
    Melden(B.NichtGelesen,
           Wortname(Wort) + (HatBuchstaben(Daten) ? " mit Buchstaben im Wert" : " ohne Zahl"));
  }
  const std::string_view Eigene = IstWinkel(Wort) ? "23" : "068", Fremd = IstWinkel(Wort) ? "45" : "17";
  const bool Fremde = Fremd.find(Einheit) != std::string_view::npos;
  B.FremdeEinheiten = B.FremdeEinheiten || Fremde;
  if (Eigene.find(Einheit) != std::string_view::npos || (Fremde && AlleEinheiten)) return;
  const std::string Was = "Einheit " + Sichtbar(std::string(1, Einheit)) + " in " + Wortname(Wort);
  if (Wort == 87 || Wort == 88) {
    Melden(B.Auffällig, Was + ": Feld als Meter gelesen");
  } else {
    Melden(B.NichtGelesen, Was);
  }
}

void Rohprüfung::GSIWörter(std::string_view Zeile, const GSIForm& Form) {
  const Zeichenzeile Z(Zeile.substr(0, Zeile.find_last_not_of(" \t") + 1));
  std::size_t k = 2;
  for (; k <= Form.Letztes && Form.Hat(Z, k); ++k) {
    const std::string_view Name = Form.Wort(Z, k), Info = Form.Info(Z, k);
    const int Wort = Wortindex(Name);
    const char Einheit = Info.size() == 4 ? Info[3] : '?';
    const bool AlsText = Wort == 51 || Wort == 71;
    if (AlsText || MesswertVon(Leer, Wort) != nullptr || (Wort == 25 && Form.Ziffern == 8)) {
      ++Einheiten[static_cast<std::size_t>(Wort)][static_cast<unsigned char>(Einheit) & 0x7FU];
      if (!AlsText) Feld(Wort, Einheit, Form.Daten(Z, k));
    } else {
      MeldenSelten(B.NichtGelesen, "Wort " + Sichtbar(Name) + " unbekannt");
    }
  }
  const std::size_t Bis = Form.Beginn(k);
  if (k > Form.Letztes && Form.Hat(Z, k)) {
    MeldenSelten(B.NichtGelesen, "Wörter hinter dem " + std::to_string(Form.Letztes) + ".");
  } else if (Z.Länge() > Bis) {
    Melden(B.NichtGelesen, "Wort am Zeilenende abgeschnitten");
  }
}

void Rohprüfung::GREWörter(std::string_view Zeile, const Messsatz& Satz) {
  if (GleichesWort(Wortnehmen(Zeile), "NR")) Wortnehmen(Zeile);
  for (int i = 0;; ++i) {
    const std::string_view Schlüssel = Wortnehmen(Zeile), Wert = Wortnehmen(Zeile);
    if (Schlüssel.empty()) return;
    if (i == GREPaare)
      return MeldenSelten(B.NichtGelesen, "Angaben hinter der " + std::to_string(GREPaare) + ".");
    const int Wort = GREWort(Schlüssel);
    const std::string Name(TextTeil(Schlüssel, 0, 12));
    if (Wort < 0) {
      MeldenSelten(B.NichtGelesen, Sichtbar(Name) + " unbekannt");
    } else if (Wert.empty()) {
      Melden(B.NichtGelesen, Name + " ohne Wert");
    } else if (const Messwert* W = MesswertVon(Satz, Wort); W != nullptr) {
      ++Einheiten[static_cast<std::size_t>(Wort)][static_cast<unsigned char>(W->Info[3])];
      if (!W->Gelesen)
        Melden(B.NichtGelesen, Name + (HatBuchstaben(Wert) ? " mit Buchstaben im Wert" : " ohne Zahl"));
    } else if (Wort == 51) {
      ++Einheiten[51]['.'];
    }
  }
}

void Rohprüfung::Nummer(std::string_view Zeile, std::string_view Nummer, std::string_view Code) {
  if (Nummer.empty()) return Melden(B.Auffällig, "Messung ohne Punktnummer");
  if (Nummer.find(' ') != std::string_view::npos) Melden(B.Auffällig, "Punktnummer mit Leerzeichen");
  Code = Code.empty() ? Code : InZeile(Zeile, Code);
  const auto [Stelle, Neu] = Nummern.try_emplace(InZeile(Zeile, Nummer), Bekannt{Code});
  if (Neu || Code.empty() || Stelle->second.Gemeldet) return;
  if (Stelle->second.Code.empty()) {
    Stelle->second.Code = Code;
  } else if (Stelle->second.Code != Code) {
    Stelle->second.Gemeldet = true;
    Melden(B.Auffällig, "Nummer mit zwei Codes");
  }
}

std::size_t Rohprüfung::Eintragen(std::vector<Fundstelle>& Liste, std::string_view Was, std::size_t Zeile) {
  constexpr std::string_view Rest = "Weiteres";
  auto Stelle = std::find_if(Liste.begin(), Liste.end(), [&](const Fundstelle& F) { return F.Was == Was; });
  if (Stelle == Liste.end()) {
    if (Liste.size() >= MaxArten && Was != Rest) return Eintragen(Liste, Rest, Zeile);
    Stelle = Liste.insert(Liste.end(), {std::string(Was), 0, {}});
  }
  for (std::size_t& n : Stelle->Zeilen) {
    if (n == 0) n = Zeile;
    if (n == Zeile) break;
  }
  return ++Stelle->Anzahl;
}

void Rohprüfung::Melden(std::vector<Fundstelle>& Liste, std::string_view Was) {
  Eintragen(Liste, Was, Zeilennummer);
  Zweifel(Was);
}

void Rohprüfung::MeldenAn(std::vector<Fundstelle>& Liste, std::string_view Was, std::size_t FrühereZeile) {
  Eintragen(Liste, Was, FrühereZeile);
  const auto Stelle = std::find_if(B.Zweifel.begin(), B.Zweifel.end(),
                                   [&](const Zweifelszeile& Z) { return Z.Zeile >= FrühereZeile; });
  if (Stelle != B.Zweifel.end() && Stelle->Zeile == FrühereZeile) {
    Stelle->Grund.append("; ").append(Was);
    return;
  }
  ++B.ZweifelAnzahl;
  if (B.Zweifel.size() < MaxZweifel) B.Zweifel.insert(Stelle, {FrühereZeile, "", std::string(Was)});
}

void Rohprüfung::MeldenSelten(std::vector<Fundstelle>& Liste, std::string_view Was) {
  if (Eintragen(Liste, Was, Zeilennummer) <= 3) Zweifel(Was);
}

void Rohprüfung::Zweifel(std::string_view Grund) {
  if (ZweifelZeile == Zeilennummer) {
    if (!B.Zweifel.empty() && B.Zweifel.back().Zeile == Zeilennummer)
      B.Zweifel.back().Grund.append("; ").append(Grund);
    return;
  }
  ZweifelZeile = Zeilennummer;
  ++B.ZweifelAnzahl;
  if (B.Zweifel.size() < MaxZweifel) {
    B.Zweifel.push_back(
        {Zeilennummer, std::string(TextTeil(Text.substr(0, 4 * MaxText), 0, MaxText)), std::string(Grund)});
  }
}

// Lines that were called in doubt later on get their text.
void Rohprüfung::TexteErgänzen(std::string_view Gesamt) {
  std::size_t Nr = 0;
  std::string_view Zeile;
  Zeilenleser Leser(Gesamt);
  for (Zweifelszeile& Z : B.Zweifel) {
    while (Nr < Z.Zeile && Leser.Nächste(Zeile)) ++Nr;
    if (Z.Text.empty() && Nr == Z.Zeile) Z.Text = TextTeil(Zeile.substr(0, 4 * MaxText), 0, MaxText);
  }
}

void Rohprüfung::LagenZusammenfassen(std::vector<Rohpunkt>& Punkte) {
  for (const Lagenpaar& P : LagenMitteln(Punkte)) {
    ++B.Gemittelte;
    B.SpanneHz = std::max(B.SpanneHz, std::abs(P.dHz));
    B.SpanneV = std::max(B.SpanneV, std::abs(P.dV));
    B.SpanneStrecke = std::max(B.SpanneStrecke, std::abs(P.dStrecke));
    if (std::abs(P.dHz) > HzSpanne || std::abs(P.dStrecke) > StreckenSpanne)
      MeldenAn(B.Auffällig, "Lagen weichen ab", P.Zeile);
  }
}

void Rohprüfung::Abschließen(std::string_view Gesamt) {
  if (std::any_of(B.Zweifel.begin(), B.Zweifel.end(), [](const Zweifelszeile& Z) { return Z.Text.empty(); }))
    TexteErgänzen(Gesamt);
  B.Punkte = Nummern.size();
  // A code 0 inside a line, or one that ended a line.
  if (const auto n = std::count(Gesamt.begin(), Gesamt.end(), '\0'); n > 0)
    B.NichtGelesen.push_back({"Zeichen mit dem Code 0", static_cast<std::size_t>(n), {}});
  for (std::size_t Wort = 0; Wort < Einheiten.size(); ++Wort) {
    for (std::size_t c = 0; c < Einheiten[Wort].size(); ++c) {
      if (Einheiten[Wort][c] == 0) continue;
      B.Wörter.push_back({static_cast<int>(Wort), static_cast<char>(c), Einheiten[Wort][c]});
    }
  }
}

}  // namespace tavorena
