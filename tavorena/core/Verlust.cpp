#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <unordered_map>
#include <unordered_set>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>

namespace tavorena {
namespace {

// What "Ja" was said to for a file.
struct Zustimmung {
  std::string Dateiname;
  std::array<int, Verlustarten> Anzahl{};
};
std::vector<Zustimmung> Zugestimmt;

std::array<int, Verlustarten>& ZustimmungZu(const std::string& Dateiname) {
  for (Zustimmung& Z : Zugestimmt) {
    if (Z.Dateiname == Dateiname || SelbeDatei(Z.Dateiname, Dateiname)) return Z.Anzahl;
  }
  return Zugestimmt.emplace_back(Zustimmung{Dateiname, {}}).Anzahl;
}

std::string Verlusttext(Verlustart Art, const Verlustposten& P, Zeichensatz Satz) {
  const auto Zeile = [&P](const std::string& Eins, const std::string& Viele) {
    const std::string Wo = P.Erste.empty() ? "" : " (Punkt " + Zitat(P.Erste) + ")";
    return Anzahltext(P.Anzahl, Eins, Viele) + Wo;
  };
  switch (Art) {
    case Verlustart::Koordinaten:
      return Zeile("Koordinate paßt nicht in ihr Feld", "Koordinaten passen nicht in ihr Feld");
    case Verlustart::Höhen:
      return Zeile("Höhe geht verloren", "Höhen gehen verloren");
    case Verlustart::NummernAnders:
      return Zeile("Punktnummer ändert sich", "Punktnummern ändern sich");
    case Verlustart::NummernGleich:
      return Zeile("Punktnummer fällt zusammen", "Punktnummern fallen zusammen");
    case Verlustart::Symbole:
      return Zeile("Symbol geht verloren", "Symbole gehen verloren");
    case Verlustart::Attribute:
      return Zeile("Attribut geht verloren", "Attribute gehen verloren");
    case Verlustart::Zeichen: {
      const std::string Ende = std::string(" im Zeichensatz ") + ZeichensatzName(Satz) + " keinen Platz";
      return Zeile("Zeichen hat" + Ende, "Zeichen haben" + Ende);
    }
    case Verlustart::Punkte:
      return Zeile("Punkt der Datei steht nicht in der Tabelle",
                   "Punkte der Datei stehen nicht in der Tabelle");
    case Verlustart::Zeilen:
      return Zeile("Zeile der Datei ist kein Punkt", "Zeilen der Datei sind keine Punkte");
  }
  return "";
}

// Numbers that rise from row to row stay apart whatever becomes of their zeros.
class Nummernfolge {
 public:
  void Nummer(std::string_view Pnr) {
    std::uint64_t Wert = 0;
    bool Ziffern = !Pnr.empty() && Pnr.size() <= 18;
    for (const char z : Pnr) {
      Ziffern = Ziffern && z >= '0' && z <= '9';
      Wert = Wert * 10 + static_cast<std::uint64_t>(z - '0');
    }
    Steigt = Steigt && Ziffern && (Wert > Letzter || Erste || Pnr == LetzterText);
    Letzter = Wert;
    LetzterText = Pnr;
    Erste = false;
  }
  [[nodiscard]] bool Steigend() const { return Steigt; }

 private:
  bool Steigt = true, Erste = true;
  std::uint64_t Letzter = 0;
  std::string_view LetzterText;
};

// The rows whose number comes back as that of a row with another one.
Verlustposten Zusammengefallene(Verlustprüfer& Prüfer, const std::vector<int>& Zeilen) {
  std::vector<std::string> Zurück;
  std::unordered_map<std::string, std::string_view> Nummern;
  std::unordered_set<std::string> Mehrfache;
  for (const int z : Zeilen) {
    Zurück.push_back(Prüfer.NummerZurück(KorPunkt(z)));
    if (Zurück.back().empty()) continue;
    const std::string_view Pnr = TrimmenSicht(KorPnr(z));
    if (Nummern.try_emplace(Zurück.back(), Pnr).first->second != Pnr) Mehrfache.insert(Zurück.back());
  }
  Verlustposten P;
  for (std::size_t i = 0; i < Zeilen.size(); ++i) {
    if (Mehrfache.contains(Zurück[i]) && P.Anzahl++ == 0) P.Erste = Trimmen(KorPnr(Zeilen[i]));
  }
  return P;
}

}  // namespace

bool IstSchlicht(const KorSatz& S) {
  const auto Passt = [](double Wert) { return Wert > -999999 && Wert < 9999999; };
  const auto Wort = [](std::string_view Text) {
    return std::all_of(Text.begin(), Text.end(), [](char z) { return static_cast<unsigned char>(z) > ' '; });
  };
  return !S.Pnr.empty() && Wort(S.Pnr) && Wort(S.Symbol) && Passt(S.Rechts) && Passt(S.Hoch) &&
         Passt(S.Hoehe);
}

bool TextVerloren(std::string_view Vorher, std::string_view Zurück) {
  return !Nullenlos(Vorher).empty() && Nullenlos(Vorher) != Nullenlos(Zurück);
}

void Verlustprüfer::Zählen(Verlustart Art, const KorSatz& S, int Anzahl) {
  if (Anzahl <= 0 || (F.Angesagt & Verlustbit(Art)) != 0) return;
  Verlustposten& P = Gezählt[Art];
  if (P.Anzahl == 0) P.Erste = TrimmenSicht(S.Pnr);
  P.Anzahl += Anzahl;
}

// A number may hold a line end: the file is read by lines.
bool Verlustprüfer::Zurück(const KorSatz& S, KorSatz& Neu, KorInfoSatz& Info) {
  Zeile.clear();
  F.ZeileSchreiben(S, n, Zeile);
  Zeilenleser Leser(Zeile);
  std::string_view Erste;
  const auto Lesen = F.ZurückLesen != nullptr ? F.ZurückLesen : F.ZeileLesen;
  if (Leser.Nächste(Erste) && Lesen(Erste, Neu, Info)) return true;
  Neu = {};
  return false;
}

std::string Verlustprüfer::NummerZurück(const KorSatz& S) {
  KorSatz Neu;
  KorInfoSatz Info;
  return Zurück(S, Neu, Info) ? std::string(TrimmenSicht(Neu.Pnr)) : "";
}

void Verlustprüfer::Vergleichen(const KorSatz& S) {
  KorSatz Neu;
  KorInfoSatz Info;
  const bool Da = Zurück(S, Neu, Info);
  if (Zeile.empty()) return;  // the format leaves such points out
  const double Rundung = 0.5 * std::pow(10, -std::clamp(n, 0, 3));
  // Fields are taken to 15 digits.
  const auto Anders = [&](double Alt, double Gelesen) {
    return !std::isfinite(Alt) || std::fabs(Alt - Gelesen) > Rundung + 1e-14 * std::fabs(Alt) + 1e-9;
  };
  const int Lage = int{Anders(S.Rechts, Neu.Rechts)} + int{Anders(S.Hoch, Neu.Hoch)};
  Zählen(Verlustart::Koordinaten, S, Lage);
  Zählen(Verlustart::Höhen, S, int{S.Hoehe != 0 && Anders(S.Hoehe, Neu.Hoehe)});
  const std::string_view Alt = TrimmenSicht(S.Pnr), Gelesen = TrimmenSicht(Neu.Pnr);
  if (Alt != Gelesen) Wörtlich = false;
  // A line that is no point at all is told by its coordinates.
  const bool Weg = Gelesen.empty() && Lage == 0;
  Zählen(Verlustart::NummernAnders, S,
         int{Da ? Gelesen.empty() || Nullenlos(Alt) != Nullenlos(Gelesen) : Weg});
  Zählen(Verlustart::Symbole, S, int{TextVerloren(S.Symbol, Neu.Symbol)});
  if (F.AttributeVerloren != nullptr && S.Info != nullptr)
    Zählen(Verlustart::Attribute, S, F.AttributeVerloren(*S.Info, Info));
}

void Verlustprüfer::ZeichenPrüfen(const KorSatz& S) {
  const auto Zähle = [&](std::string_view Text) {
    const auto OhnePlatz = [&] { return ZeichenOhnePlatz(Text, Kodierung); };
    for (std::string_view z = OhnePlatz(); !z.empty(); z = OhnePlatz()) {
      Zählen(Verlustart::Zeichen, S);
      Text.remove_prefix(static_cast<std::size_t>(z.data() - Text.data()) + z.size());
    }
  };
  Zähle(S.Pnr);
  Zähle(S.Symbol);
  if (F.AttributeVerloren == nullptr || S.Info == nullptr) return;
  for (const std::string* Text : {&S.Info->Entstehung, &S.Info->Lagestatus, &S.Info->Lagegenauigkeit})
    Zähle(*Text);
}

void Verlustprüfer::Punkt(const KorSatz& S) {
  if (Kodierung == Zeichensatz::Windows1252 || Kodierung == Zeichensatz::Dos850) ZeichenPrüfen(S);
  const Rückkehr Kommt = F.Voraussage != nullptr ? F.Voraussage(S, n) : Rückkehr::Unklar;
  if (Kommt == Rückkehr::Unklar) return Vergleichen(S);
  Wörtlich = Wörtlich && Kommt == Rückkehr::Ganz;
}

Verlustliste TabellenVerlust(const Formatzugang& Format, int Nachkomma, Zeichensatz Satz,
                             const std::vector<int>* Zeilen) {
  std::vector<int> Alle;
  if (Zeilen == nullptr) {
    Alle.resize(static_cast<std::size_t>(KorAnzahl));
    std::iota(Alle.begin(), Alle.end(), 0);
    Zeilen = &Alle;
  }
  Verlustprüfer Prüfer(Format, Nachkomma, Satz);
  Nummernfolge Folge;
  for (const int z : *Zeilen) {
    const KorSatz S = KorPunkt(z);
    Prüfer.Punkt(S);
    Folge.Nummer(TrimmenSicht(S.Pnr));
  }
  Verlustliste V = Prüfer.Liste();
  if (!Prüfer.NummernWörtlich() && (V[Verlustart::NummernAnders].Anzahl > 0 || !Folge.Steigend()))
    V[Verlustart::NummernGleich] = Zusammengefallene(Prüfer, *Zeilen);
  return V;
}

bool VerlustErlaubt(const std::string& Dateiname, const Verlustliste& V, Zeichensatz Satz) {
  const std::array<int, Verlustarten> Bisher = ZustimmungZu(Dateiname);
  std::string Zeilen;
  for (std::size_t i = 0; i < Verlustarten; ++i) {
    if (V.Posten[i].Anzahl > Bisher[i])
      Zeilen += Verlusttext(static_cast<Verlustart>(i), V.Posten[i], Satz) + "\n";
  }
  for (const std::string& W : V.Weitere) Zeilen += W + "\n";
  if (Zeilen.empty()) return true;
  if (FrageJaNein(
          "Beim Speichern gehen Angaben verloren:\n" + Zeilen + "\n" + Dateiname + "\n\nTrotzdem speichern ?",
          "Tavorena", KnopfNein) != KnopfJa)
    return false;
  std::array<int, Verlustarten>& Neu = ZustimmungZu(Dateiname);
  for (std::size_t i = 0; i < Verlustarten; ++i) Neu[i] = std::max(Bisher[i], V.Posten[i].Anzahl);
  return true;
}

void VerlusteVergessen() { Zugestimmt.clear(); }

}  // namespace tavorena
