#include <algorithm>
#include <cmath>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/points/Punktraster.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/rawdata/Hoehenliste.h>
#include <tavorena/records/Punktblock.h>

namespace tavorena {
namespace {

// A number as the table holds it after a sort.
std::string Nummer(std::string_view Pnr) {
  std::string Text(TrimmenSicht(Pnr));
  ZeichenErsetzen(Text, ',', '.');
  return Text;
}

Vergleichspunkt TabellenPunkt(int Zeile) {
  const KorSatz S = KorPunkt(Zeile);
  return {std::string(S.Pnr), S.Rechts, S.Hoch, S.Hoehe};
}

// A line without a number and all its values gives none.
bool ZeileLesen(std::string_view Zeile, bool Höhenliste, Vergleichspunkt& P) {
  if (Höhenliste) {
    Höhenpunkt H;
    if (!HöhenzeileLesen(Zeile, H)) return false;
    P = {Nummer(H.Pnr), 0, 0, H.Höhe};
    return true;
  }
  P.Pnr = Nummer(Wortnehmen(Zeile));
  const std::string_view Erstes = Wortnehmen(Zeile), Zweites = Wortnehmen(Zeile), Drittes = Wortnehmen(Zeile);
  if (P.Pnr.empty() || !IstZahlwort(Erstes) || !IstZahlwort(Zweites)) return false;
  P.Rechts = ZahlAusText(Erstes);
  P.Hoch = ZahlAusText(Zweites);
  P.Hoehe = ZahlAusText(Drittes);
  return std::isfinite(P.Rechts) && std::isfinite(P.Hoch) && std::isfinite(P.Hoehe);
}

using Dateipunkte = std::vector<Vergleichspunkt>;

// ---- the comparisons -------------------------------------------------------------------------------

// Points whose number stands in the table take something of the first point of the file.
template <typename Änderung>
void GleicheNummern(const Dateipunkte& Datei, Übernahmeplan& Plan, const Änderung& Ändert) {
  std::unordered_map<std::string, const Vergleichspunkt*> Erste;
  for (const Vergleichspunkt& P : Datei) Erste.try_emplace(P.Pnr, &P);
  for (int z = 0; z < KorAnzahl; ++z) {
    const auto Soll = Erste.find(Nummer(KorPnr(z)));
    if (Soll != Erste.end() && Ändert(*Soll->second, KorPunkt(z))) Plan.Zeilen.push_back({z, *Soll->second});
  }
}

void Höhenvergleich(const Dateipunkte& Datei, Übernahmeplan& Plan) {
  GleicheNummern(Datei, Plan, [](const Vergleichspunkt& Soll, const KorSatz& Ist) {
    return Soll.Hoehe != 0 && Soll.Hoehe != Ist.Hoehe;
  });
}

// The one point of the file near a row; nullptr if there is none or another one.
const Vergleichspunkt* EinzigerNaher(const Dateipunkte& Datei, const Punktraster& Raster, int Zeile,
                                     double fs) {
  const KorSatz S = KorPunkt(Zeile);
  const Vergleichspunkt* Naher = nullptr;
  bool Mehrere = false;
  if (!std::isfinite(S.Rechts) || !std::isfinite(S.Hoch)) return nullptr;
  Raster.Umkreis(S.Rechts, S.Hoch, [&](int i) {
    const Vergleichspunkt& P = Datei[static_cast<std::size_t>(i)];
    if (PunktIstNah(S.Rechts, S.Hoch, P.Rechts, P.Hoch, fs) == 0) return true;
    Mehrere = Naher != nullptr;
    Naher = &P;
    return !Mehrere;
  });
  return Mehrere ? nullptr : Naher;
}

// A number goes to the first of the rows that want it, and to none if it is taken.
void NaheNummern(const Dateipunkte& Datei, double fs, Übernahmeplan& Plan) {
  std::vector<double> R, H;
  for (const Vergleichspunkt& P : Datei) {
    R.push_back(P.Rechts);
    H.push_back(P.Hoch);
  }
  const Punktraster Raster(Suchweite(fs), R, H);
  std::unordered_set<std::string> Vergeben;
  for (int z = 0; z < KorAnzahl; ++z) Vergeben.insert(Nummer(KorPnr(z)));
  for (int z = 0; z < KorAnzahl; ++z) {
    const Vergleichspunkt* Soll = EinzigerNaher(Datei, Raster, z, fs);
    if (Soll == nullptr || Soll->Pnr == Nummer(KorPnr(z))) continue;
    if (Vergeben.insert(Soll->Pnr).second) {
      Plan.Zeilen.push_back({z, *Soll});
    } else {
      ++Plan.Vergeben;
    }
  }
}

// The points of numbers that stand once; nullptr for the others.
template <typename Punkte>
std::unordered_map<std::string, const Vergleichspunkt*> Einmalige(const Punkte& Alle) {
  std::unordered_map<std::string, const Vergleichspunkt*> Einmal;
  for (const Vergleichspunkt& P : Alle) {
    const auto [Stelle, Neu] = Einmal.try_emplace(Nummer(P.Pnr), &P);
    if (!Neu) Stelle->second = nullptr;
  }
  return Einmal;
}

void Differenzen(const Dateipunkte& Datei, Übernahmeplan& Plan) {
  const Dateipunkte Tabelle = Tabellenpunkte();
  const auto Hier = Einmalige(Tabelle), Dort = Einmalige(Datei);
  std::vector<double> dR, dH;
  for (const Vergleichspunkt& P : Tabelle) {
    const auto Soll = Dort.find(Nummer(P.Pnr));
    if (Soll == Dort.end() || Soll->second == nullptr || Hier.at(Nummer(P.Pnr)) == nullptr) continue;
    dR.push_back(Soll->second->Rechts - P.Rechts);
    dH.push_back(Soll->second->Hoch - P.Hoch);
  }
  Plan.Gleiche = static_cast<int>(dR.size());
  if (Schwerpunkt(dR, dH, Plan.Gleiche, Plan.d.Rechts, Plan.d.Hoch) < 0) return;
  for (std::size_t i = 0; i < dR.size(); ++i)
    Plan.Rest = std::max(Plan.Rest, AchtStellen(Strecke(dR[i], dH[i], Plan.d.Rechts, Plan.d.Hoch)));
}

// ---- the deed --------------------------------------------------------------------------------------

Punktsatz Übernommen(Übernahme Art, const Punktsatz& Alter, const Vergleichspunkt& Soll) {
  Punktsatz Neuer = Alter;
  if (Art == Übernahme::Punktnummern) Neuer.Pnr = Soll.Pnr;
  if (Art == Übernahme::Höhen || Art == Übernahme::Höhenliste) Neuer.Hoehe = Soll.Hoehe;
  if (Art == Übernahme::Koordinaten) {
    Neuer.Rechts = Soll.Rechts;
    Neuer.Hoch = Soll.Hoch;
  }
  return Neuer;
}

// What the protocol tells when it is taken back: the old numbers, or the points as they were.
Punkteintrag Rückeintrag(const Übernahmeplan& Plan) {
  const bool Nummern = Plan.Art == Übernahme::Punktnummern;
  Punkteintrag E{Nummern ? TitelBerichtigung : TitelEingabe, {}};
  for (const auto& Z : Plan.Zeilen) {
    const KorSatz S = KorPunkt(Z.Zeile);
    E.Punkte.push_back(
        {{S.Rechts, S.Hoch, std::string(S.Pnr)}, Nummern ? " ***bericht. alt:" + PnrFormat(Z.Soll.Pnr) : ""});
  }
  return E;
}

std::string MitStellen(double Meter) { return ZahlFormat(Meter, -1, Optionen.OptNachkommastellen); }

}  // namespace

const char* Übernahmename(Übernahme Art) {
  switch (Art) {
    case Übernahme::Punktnummern:
      return "Punktnummernberichtigung aus Datei";
    case Übernahme::Höhen:
      return "Höhenübernahme aus Koordinatendatei";
    case Übernahme::Höhenliste:
      return "Höhenübernahme aus Höhenliste";
    case Übernahme::Versatz:
      return "ðx ðy zu Punkten in Koordinatendatei";
    default:
      return "Koordinatenberichtigung aus Datei";
  }
}

int VergleichspunkteLesen(const std::string& Datei, bool Höhenliste, std::vector<Vergleichspunkt>& Punkte,
                          int& Andere) {
  Punkte.clear();
  Andere = 0;
  std::string Inhalt, Grund;
  if (TextdateiLesen(Datei, Inhalt, &Grund) < 0) {
    LesefehlerMelden(Datei, Grund);
    return -1;
  }
  Zeilenleser Leser(Inhalt);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    Vergleichspunkt P;
    if (ZeileLesen(Zeile, Höhenliste, P)) {
      Punkte.push_back(std::move(P));
    } else if (!TrimmenSicht(Zeile).empty()) {
      ++Andere;
    }
  }
  return 0;
}

std::vector<Vergleichspunkt> Tabellenpunkte() {
  std::vector<Vergleichspunkt> Punkte;
  for (int z = 0; z < KorAnzahl; ++z) Punkte.push_back(TabellenPunkt(z));
  return Punkte;
}

int Übernahmeplan::Anzahl() const {
  if (Art == Übernahme::Versatz) return d.Rechts != 0 || d.Hoch != 0 ? KorAnzahl : 0;
  return static_cast<int>(Zeilen.size());
}

int ÜbernahmePlanen(Übernahme Art, const std::string& Datei, double fs, Übernahmeplan& Plan) {
  Plan = {};
  Plan.Art = Art;
  Plan.Datei = Datei;
  Dateipunkte Punkte;
  if (VergleichspunkteLesen(Datei, Art == Übernahme::Höhenliste, Punkte, Plan.Andere) < 0) return -1;
  switch (Art) {
    case Übernahme::Punktnummern:
      NaheNummern(Punkte, fs, Plan);
      break;
    case Übernahme::Koordinaten:
      GleicheNummern(Punkte, Plan, [](const Vergleichspunkt& Soll, const KorSatz& Ist) {
        return Soll.Rechts != Ist.Rechts || Soll.Hoch != Ist.Hoch;
      });
      break;
    case Übernahme::Höhen:
    case Übernahme::Höhenliste:
      Höhenvergleich(Punkte, Plan);
      break;
    case Übernahme::Versatz:
      Differenzen(Punkte, Plan);
      break;
  }
  if (Plan.Anzahl() > 0) return 0;
  const std::string Text = ÜbernahmeText(Plan);
  Hinweis("Kein Punkt ist zu ändern:\n" + Datei + (Text.empty() ? "" : "\n\n" + Text));
  return -1;
}

Übernahmeplan HöhenPlanen(const std::string& Datei, const std::vector<Vergleichspunkt>& Punkte) {
  Übernahmeplan Plan;
  Plan.Art = Übernahme::Höhenliste;
  Plan.Datei = Datei;
  Höhenvergleich(Punkte, Plan);
  return Plan;
}

std::string ÜbernahmeText(const Übernahmeplan& Plan) {
  std::string Text;
  const auto Zeile = [&](const std::string& Neue) { Text += (Text.empty() ? "" : "\n") + Neue; };
  if (Plan.Art == Übernahme::Versatz) {
    Zeile(Anzahltext(Plan.Gleiche, "gleiche Punktnummer", "gleiche Punktnummern"));
    if (Plan.Gleiche > 0) {
      Zeile("dRechts: " + MitStellen(Plan.d.Rechts));
      Zeile("dHoch: " + MitStellen(Plan.d.Hoch));
      Zeile("größte Restabweichung: " + MitStellen(Plan.Rest));
    }
  }
  if (Plan.Vergeben > 0)
    Zeile(Anzahltext(Plan.Vergeben, "Punktnummer ist vergeben und bleibt aus",
                     "Punktnummern sind vergeben und bleiben aus"));
  if (Plan.Andere > 0)
    Zeile(Anzahltext(Plan.Andere, "Zeile der Datei ist kein Punkt", "Zeilen der Datei sind keine Punkte"));
  return Text;
}

int ÜbernahmeAusführen(Rücknahme& R, const Übernahmeplan& Plan) {
  const char* const Name = Übernahmename(Plan.Art);
  if (Plan.Art == Übernahme::Versatz) return TabelleVerschieben(R, Name, Plan.d, false);
  std::vector<Vergleichspaar> Paare;
  for (const auto& Z : Plan.Zeilen) Paare.push_back({Z.Soll, TabellenPunkt(Z.Zeile)});
  Punkttat Tat{Name, {Rückeintrag(Plan)}};
  return R.Ausführen(Tat, [&] {
    for (const auto& Z : Plan.Zeilen) {
      const Punktsatz Neuer = Übernommen(Plan.Art, PunktsatzVon(Z.Zeile), Z.Soll);
      if (KorZeileSetzen(Z.Zeile, Neuer.Satz()) < 0) return -1;
    }
    if (Plan.Art == Übernahme::Punktnummern) KorSortieren();
    return VergleichEintragen(Name, Plan.Datei, Paare);
  });
}

}  // namespace tavorena
