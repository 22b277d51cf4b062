#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Gesamtdatei.h>

namespace tavorena {
namespace {

constexpr int Dezimalen = 4;

// "01.02.2003" as "20030201", which sorts like the days.
std::string Tagfolge(std::string_view Datum) {
  return std::string(Datum.substr(6)) + std::string(Datum.substr(3, 2)) + std::string(Datum.substr(0, 2));
}

std::string Punktname(std::string_view Wort) {
  std::string Text(Wort);
  ZeichenErsetzen(Text, ',', '.');  // as the table has it after a sort
  return Text;
}

// ---- reading ---------------------------------------------------------------------------------------

class Leser {
 public:
  explicit Leser(std::string_view Text) : Zeilen(Text) {}

  int Lesen(Gesamtdatei& Ziel, std::string& Fehler) {
    std::string_view Zeile;
    const bool Gut = Zeilen.Nächste(Zeile) && Kopf(Zeile) && Rest();
    if (!Gut) {
      Fehler = "Zeile " + std::to_string(Nummer) + ": " + Grund;
      return -1;
    }
    Ziel = std::move(G);
    return 0;
  }

 private:
  bool Ablehnen(std::string Warum) {
    Grund = std::move(Warum);
    return false;
  }

  bool Kopf(std::string_view Zeile) {
    if (Großtext(Wortnehmen(Zeile)) != "GES") return Ablehnen("keine Gesamtdatei, \"GES\" fehlt");
    const std::string Art = Großtext(Wortnehmen(Zeile).substr(0, 4));
    if (Art != "H" && Art != "RHZ") return Ablehnen("weder \"H\" noch \"RHZ\"");
    G.MitLage = Art == "RHZ";
    for (std::string_view Wort = Wortnehmen(Zeile); !Wort.empty(); Wort = Wortnehmen(Zeile)) {
      std::string Datum;
      if (!DatumLesen(Wort, Datum)) return Ablehnen("kein Datum: " + Zitat(Wort));
      if (!Tage.insert(Datum).second) return Ablehnen("Datum zweimal: " + Datum);
      G.Epochen.push_back(Datum);
    }
    return true;
  }

  bool Rest() {
    for (std::string_view Zeile; Zeilen.Nächste(Zeile);) {
      ++Nummer;
      if (!TrimmenSicht(Zeile).empty() && !Punkt(Zeile)) return false;
    }
    return true;
  }

  bool Punkt(std::string_view Zeile) {
    Gesamtpunkt P{Punktname(Wortnehmen(Zeile)), {}};
    if (P.Nummer.empty()) return Ablehnen("keine Punktnummer");
    if (!Namen.insert(P.Nummer).second) return Ablehnen("Punkt " + Zitat(P.Nummer) + " steht zweimal");
    for (std::size_t e = 0; e < G.Epochen.size(); ++e) {
      P.Werte.emplace_back();
      if (!Werte(Zeile, P.Werte.back())) return false;
    }
    if (!Wortnehmen(Zeile).empty()) return Ablehnen("mehr Werte als Epochen");
    G.Punkte.push_back(std::move(P));
    return true;
  }

  bool Werte(std::string_view& Zeile, Epochenwert& W) {
    std::optional<double> R, H;
    if (G.MitLage && (!Zahl(Zeile, R) || !Zahl(Zeile, H))) return false;
    if (R.has_value() != H.has_value()) return Ablehnen("Rechts oder Hoch fehlt");
    if (R) W.Ort = Lage{*R, *H};
    return Zahl(Zeile, W.Hoehe);
  }

  bool Zahl(std::string_view& Zeile, std::optional<double>& Z) {
    const std::string_view Wort = Wortnehmen(Zeile);
    if (Wort == "-") return true;
    if (Wort.empty()) return Ablehnen("weniger Werte als Epochen");
    Z = ZahlAusText(Wort);
    return (IstZahlwort(Wort) && std::isfinite(*Z)) || Ablehnen("keine Zahl: " + Zitat(Wort));
  }

  Zeilenleser Zeilen;
  Gesamtdatei G;
  std::unordered_set<std::string> Namen, Tage;
  std::size_t Nummer = 1;
  std::string Grund = "keine Gesamtdatei, die Datei ist leer";
};

// ---- writing ---------------------------------------------------------------------------------------

// As many digits as give the same number back.
std::string AlleStellen(double Zahl) {
  char Puffer[400];  // the largest number has 309 digits
  const auto Ende = std::to_chars(std::begin(Puffer), std::end(Puffer), Zahl, std::chars_format::fixed).ptr;
  return {Puffer, Ende};
}

void WertAnhängen(std::string& Text, const std::optional<double>& Wert, int Breite) {
  std::string Feld = "-";
  if (Wert) {
    Feld = ZahlFormat(*Wert, -1, Dezimalen);
    if (ZahlAusText(Feld) != *Wert) Feld = AlleStellen(*Wert);
  }
  Text += "  " + RechtsBündig(Feld, Breite);
}

// ---- an epoch --------------------------------------------------------------------------------------

Epochenwert WertVon(const Vergleichspunkt& P, bool MitLage, bool NullIstWert) {
  Epochenwert W;
  if (MitLage) W.Ort = Lage{P.Rechts, P.Hoch};
  if (NullIstWert || P.Hoehe != 0) W.Hoehe = P.Hoehe;
  return W;
}

// Where the epoch of a date begins: emptied, or made ahead of the first later one.
std::size_t EpocheÖffnen(Gesamtdatei& G, const std::string& Datum) {
  if (const int Alt = EpocheFinden(G, Datum); Alt >= 0) {
    for (Gesamtpunkt& P : G.Punkte) P.Werte[static_cast<std::size_t>(Alt)] = {};
    return static_cast<std::size_t>(Alt);
  }
  const auto Vor = std::find_if(G.Epochen.begin(), G.Epochen.end(),
                                [&](const std::string& D) { return Tagfolge(D) > Tagfolge(Datum); });
  const auto Stelle = Vor - G.Epochen.begin();
  G.Epochen.insert(Vor, Datum);
  for (Gesamtpunkt& P : G.Punkte) P.Werte.insert(P.Werte.begin() + Stelle, Epochenwert{});
  return static_cast<std::size_t>(Stelle);
}

}  // namespace

bool DatumLesen(std::string_view Text, std::string& Datum) {
  int Teil[3] = {};  // day, month, year
  const char *p = Text.data(), *const Ende = p + Text.size();
  for (int i = 0; i < 3; ++i) {
    const auto [Nach, Fehler] = std::from_chars(p, Ende, Teil[i]);
    const bool Letzter = i == 2;
    if (Fehler != std::errc() || (Letzter ? Nach != Ende : Nach == Ende || *Nach != '.')) return false;
    p = Nach + (Letzter ? 0 : 1);
  }
  const auto [Tag, Monat, Jahr] = Teil;
  if (Tag < 1 || Tag > 31 || Monat < 1 || Monat > 12 || Jahr < 1000 || Jahr > 9999) return false;
  const auto Im = [](int Zahl) { return static_cast<unsigned>(Zahl); };
  if (!std::chrono::year_month_day(std::chrono::year(Jahr), std::chrono::month(Im(Monat)),
                                   std::chrono::day(Im(Tag)))
           .ok())
    return false;
  Datum = ZahlFeldNull(Tag, 2) + "." + ZahlFeldNull(Monat, 2) + "." + ZahlFeldNull(Jahr, 4);
  return true;
}

int GesamtdateiAusText(std::string_view Text, Gesamtdatei& G, std::string& Fehler) {
  return Leser(Text).Lesen(G, Fehler);
}

std::string GesamtdateiText(const Gesamtdatei& G) {
  std::string Text = G.MitLage ? "GES RHZ" : "GES H";
  for (const std::string& Datum : G.Epochen) Text += " " + Datum;
  Text += "\r\n";
  for (const Gesamtpunkt& P : G.Punkte) {
    Text += PnrFormat(P.Nummer);
    for (const Epochenwert& W : P.Werte) {
      if (G.MitLage) {
        WertAnhängen(Text, W.Ort ? std::optional(W.Ort->RW) : std::nullopt, 12);
        WertAnhängen(Text, W.Ort ? std::optional(W.Ort->HW) : std::nullopt, 12);
      }
      WertAnhängen(Text, W.Hoehe, 10);
    }
    Text += "\r\n";
  }
  return Text;
}

int GesamtdateiLesen(const std::string& Name, Gesamtdatei& G, Dateistand* Stand) {
  const Dateistand Vorher = DateistandVon(Name);
  std::string Text, Grund;
  if (TextdateiLesen(Name, Text, &Grund) < 0) {
    LesefehlerMelden(Name, Grund);
    return -1;
  }
  if (GesamtdateiAusText(Text, G, Grund) < 0) {
    FehlerMeldung(Grund + "\n" + Name);
    return -1;
  }
  if (Stand != nullptr) *Stand = Vorher;
  return 0;
}

int GesamtdateiSchreiben(const std::string& Name, const Gesamtdatei& G, const Dateistand& Solange) {
  std::string Grund;
  const int Ergebnis = DateiErsetzen(Name, GesamtdateiText(G), &Grund, &Solange);
  if (Ergebnis < 0) SpeicherfehlerMelden(Name, Grund, "Gesamtdatei.Schreiben");
  return Ergebnis < 0 ? -1 : 0;
}

int EpocheFinden(const Gesamtdatei& G, std::string_view Datum) {
  const auto i = std::find(G.Epochen.begin(), G.Epochen.end(), Datum);
  return i != G.Epochen.end() ? static_cast<int>(i - G.Epochen.begin()) : -1;
}

int EpocheEintragen(Gesamtdatei& G, const std::string& Datum, std::span<const Vergleichspunkt> Punkte,
                    bool NullIstWert, Epochenzugang& Zugang) {
  Zugang = {};
  std::unordered_map<std::string, const Vergleichspunkt*> Gemessene;
  std::vector<const Vergleichspunkt*> Folge;
  for (const Vergleichspunkt& P : Punkte) {
    const auto [Stelle, Erster] = Gemessene.try_emplace(P.Pnr, &P);
    if (Erster) {
      Folge.push_back(&P);
      continue;
    }
    const Vergleichspunkt& Q = *Stelle->second;
    if (P.Hoehe == Q.Hoehe && (!G.MitLage || (P.Rechts == Q.Rechts && P.Hoch == Q.Hoch))) continue;
    Zugang.Mehrfache = P.Pnr;
    return -1;
  }
  const std::size_t Epoche = EpocheÖffnen(G, Datum);
  std::unordered_map<std::string, std::size_t> Zeilen;
  for (std::size_t i = 0; i < G.Punkte.size(); ++i) Zeilen.emplace(G.Punkte[i].Nummer, i);
  for (const Vergleichspunkt* P : Folge) {
    const Epochenwert W = WertVon(*P, G.MitLage, NullIstWert);
    if (!W.Hoehe) ++Zugang.OhneWert;
    if (!W.Hoehe && !W.Ort) continue;
    const auto [Zeile, Neu] = Zeilen.try_emplace(P->Pnr, G.Punkte.size());
    if (Neu) G.Punkte.push_back({P->Pnr, Epochenreihe(G.Epochen.size())});
    G.Punkte[Zeile->second].Werte[Epoche] = W;
    ++Zugang.Punkte;
    if (Neu) ++Zugang.Neue;
  }
  return 0;
}

}  // namespace tavorena
