#include <algorithm>
#include <cmath>
#include <memory>
#include <unordered_set>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/GRE.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Rohdaten.h>
#include <tavorena/rawdata/Rohpruefung.h>

namespace tavorena {
namespace {

constexpr double Höchste = 20;  // reflector or instrument [m]; above, a surveyor should look

bool Gilt(const Messwert& W) { return W.Da && W.Gelesen; }

// Dashes and a lone zero stand for no code.
std::string_view Symbol(const Messtext& Code) {
  const bool Keiner = Code.Text == "0" || Code.Text.find_first_not_of('-') == std::string::npos;
  return Keiner ? std::string_view() : std::string_view(Code.Text);
}

// Where the code line holds a station code: 1 as first of its values, 2 as data of word 1, 0 not at all.
int Stationscode(const Codeblock& Block, const Rohdatenwahl& Wahl) {
  const auto IstCode = [&](std::string_view Code) {
    return std::any_of(Wahl.Stationscodes.begin(), Wahl.Stationscodes.end(), [&](const std::string& C) {
      return !C.empty() && OhneFührendeNullen(C) == OhneFührendeNullen(Code);
    });
  };
  if (Block.Anzahl > 0 && IstCode(Block.Werte[0])) return 1;
  return Block.Wort1 != "0" && IstCode(Block.Wort1) ? 2 : 0;
}

// The extent of the point table.
struct Ausdehnung {
  double MinR = 0, MaxR = 0, MinH = 0, MaxH = 0, Rand = 0;
  bool Da = KorAnzahl > 0;

  Ausdehnung() {
    if (!Da) return;
    MinR = MaxR = KorRechts[0];
    MinH = MaxH = KorHoch[0];
    for (std::size_t i = 1; i < static_cast<std::size_t>(KorAnzahl); ++i) {
      MinR = std::min(MinR, KorRechts[i]), MaxR = std::max(MaxR, KorRechts[i]);
      MinH = std::min(MinH, KorHoch[i]), MaxH = std::max(MaxH, KorHoch[i]);
    }
    Rand = std::max({1000.0, MaxR - MinR, MaxH - MinH});
  }
  [[nodiscard]] bool Innen(double R, double H) const {
    return R >= MinR - Rand && R <= MaxR + Rand && H >= MinH - Rand && H <= MaxH + Rand;
  }
  // What is wrong with a coordinate pair; "" if nothing is.
  [[nodiscard]] std::string_view Einwand(double R, double H) const {
    constexpr std::string_view ZuGroß = "Koordinaten 1000mal zu groß";
    if (!Da) return std::max(std::abs(R), std::abs(H)) > 1e8 ? ZuGroß : "";
    if (Innen(R, H)) return "";
    if (Innen(H, R)) return "Koordinaten vertauscht";
    return Innen(R / 1000, H / 1000) ? ZuGroß : "Koordinaten außerhalb der Punkttabelle";
  }
};

// One pass over the lines of a file.
class Rohlesung {
 public:
  // StationNachKoordinaten: the file holds no station code, a line with the station's coordinates opens it.
  Rohlesung(const Rohdatenwahl& Auswahl, bool StationNachKoordinaten, Rohdaten& Ziel)
      : Wahl(Auswahl), NachKoordinaten(StationNachKoordinaten), Roh(Ziel), Prüfung(Ziel.Befund, Auswahl) {}

  void Zeile(std::string_view Z);
  void Ende(std::string_view Text);
  [[nodiscard]] bool HatStationscode() const { return MitCode; }
  [[nodiscard]] bool HatStationskoordinaten() const { return MitKoordinaten; }

 private:
  void Code();
  void Messung(std::string_view Z);
  void Höhen();
  bool Stationszeile(std::string_view Nummer);
  void Koordinate(std::string_view Nummer);
  void Punkt(std::string_view Nummer);
  [[nodiscard]] std::string_view Hindernis(std::string_view Nummer) const;
  Rohblock& Beginnen(std::string Nummer, const Wert& Ih);
  void Mitteln(Rohblock& Block);
  void OhneStandpunkt();

  const Rohdatenwahl& Wahl;
  const bool NachKoordinaten;
  Rohdaten& Roh;
  Rohprüfung Prüfung;
  const Ausdehnung Tabelle;
  Messsatz Satz;
  Codeblock Block;
  Wert Ih;                   // in force ahead of the first block
  double Reflektorhöhe = 0;  // in force
  bool MitCode = false, MitKoordinaten = false;
  std::unordered_set<std::string> Standpunkte;
};

void Rohlesung::Zeile(std::string_view Z) {
  Prüfung.ZeileBeginnen(Z);
  const int Art = RohzeileLesen(Z, Roh.Form, Satz, Block, Wahl.AlleEinheiten);
  const bool Sechzehn = Roh.Form == Rohform::GSI && GSISechzehn(Z);
  Prüfung.Art(Art, Sechzehn);
  if (Art == Codezeile) return Code();
  if (Art != Messzeile) return;
  if (Roh.Form == Rohform::GRE) {
    Prüfung.GREWörter(Z, Satz);
  } else {
    Prüfung.GSIWörter(Z, Sechzehn ? Form16 : Form8);
  }
  Messung(Z);
}

void Rohlesung::Code() {
  const bool InWort1 = !Block.Wort1.empty() && Block.Wort1 != "0";
  Prüfung.Zählen(Roh.Befund.Codes, InWort1 ? Block.Wort1 + " in Wort 1" : Block.Werte[0]);
  std::string Nummer;
  Wert NeueIh;
  if (!StationAusCodeblock(Block, Wahl, Nummer, NeueIh)) {
    if (Stationscode(Block, Wahl) != 0) Prüfung.Melden(Roh.Befund.Auffällig, "Stationscode ohne Nummer");
    return;
  }
  MitCode = true;
  Beginnen(std::move(Nummer), NeueIh);
}

Rohblock& Rohlesung::Beginnen(std::string Nummer, const Wert& NeueIh) {
  Rohblock Neu;
  Neu.Zeile = Prüfung.Zeile();
  if (Roh.Blöcke.empty()) {
    if (Nummer.empty()) Neu.Instrumentenhöhe = Ih;
  } else {
    Mitteln(Roh.Blöcke.back());
    if (Roh.Blöcke.back().Standpunkt == Nummer) Neu.Instrumentenhöhe = Roh.Blöcke.back().Instrumentenhöhe;
  }
  if (NeueIh.IstGegeben()) Neu.Instrumentenhöhe = NeueIh;
  if (!Nummer.empty()) Standpunkte.insert(Nummer);
  Neu.Standpunkt = std::move(Nummer);
  return Roh.Blöcke.emplace_back(std::move(Neu));
}

void Rohlesung::Messung(std::string_view Z) {
  const std::string_view Nummer = Satz.Nummer.Da ? Rohnummer(Satz.Nummer.Text, Wahl) : std::string_view();
  Prüfung.Nummer(Z, Nummer, Symbol(Satz.Code));
  const bool Station = Stationszeile(Nummer);
  Höhen();
  Koordinate(Nummer);
  if (!Station) Punkt(Nummer);
}

bool Rohlesung::Stationszeile(std::string_view Nummer) {
  const bool Lage = Gilt(Satz.StandRechts) && Gilt(Satz.StandHoch), GanzeLage = Lage && Gilt(Satz.StandHöhe);
  if (Lage && !Satz.Hz.Da && !Nummer.empty()) {
    MitKoordinaten = true;
    if (NachKoordinaten) Beginnen(std::string(Nummer), {});
  }
  if (Roh.Blöcke.empty()) return false;
  Rohblock& B = Roh.Blöcke.back();
  if (Nummer != B.Standpunkt || !(GanzeLage || (NachKoordinaten && Lage && !Satz.Hz.Da))) return false;
  B.StandRechts = Satz.StandRechts.Wert;
  B.StandHoch = Satz.StandHoch.Wert;
  if (GanzeLage) B.StandHöhe = Satz.StandHöhe.Wert;
  B.Symbol = Symbol(Satz.Code);
  return true;
}

// Heights stay in force from their line on.
void Rohlesung::Höhen() {
  if (Gilt(Satz.Reflektorhöhe)) Reflektorhöhe = Satz.Reflektorhöhe.Wert;
  for (const Messwert* H : {&Satz.Reflektorhöhe, &Satz.Instrumentenhöhe}) {
    if (Gilt(*H) && std::abs(H->Wert) > Höchste) Prüfung.Melden(Roh.Befund.Auffällig, "Höhe über 20 m");
  }
  if (!Gilt(Satz.Instrumentenhöhe)) return;
  const Wert Neu = Satz.Instrumentenhöhe.Wert;
  Wert& Jetzt = Roh.Blöcke.empty() ? Ih : Roh.Blöcke.back().Instrumentenhöhe;
  if (Jetzt.IstGegeben() && Jetzt.Zahl() != Neu.Zahl() && !Roh.Blöcke.empty() &&
      !Roh.Blöcke.back().Punkte.empty()) {
    Prüfung.Melden(Roh.Befund.Auffällig, "Instrumentenhöhe wechselt auf einem Standpunkt");
  }
  Jetzt = Neu;
}

void Rohlesung::Koordinate(std::string_view Nummer) {
  if (!Satz.Rechts.Da && !Satz.Hoch.Da) return;
  if (!Gilt(Satz.Rechts) || !Gilt(Satz.Hoch) || Nummer.empty()) {
    return Prüfung.Melden(Roh.Befund.NichtGenommen,
                          Nummer.empty() ? "Koordinaten ohne Punktnummer" : "Koordinaten unvollständig");
  }
  Rohkoordinate K{std::string(Nummer), std::string(Symbol(Satz.Code)), Satz.Rechts.Wert, Satz.Hoch.Wert, {},
                  Prüfung.Zeile()};
  if (Gilt(Satz.Höhe)) K.Höhe = Satz.Höhe.Wert;
  if (const std::string_view Einwand = Tabelle.Einwand(K.Rechts, K.Hoch); !Einwand.empty()) {
    Prüfung.Melden(Roh.Befund.Auffällig, Einwand);
  }
  Roh.Koordinaten.push_back(std::move(K));
}

// Why a measurement can not be a row.
std::string_view Rohlesung::Hindernis(std::string_view Nummer) const {
  if (Nummer.empty()) return "Messung ohne Punktnummer";
  if (!Satz.Hz.Da) return "ohne Richtung";
  if (!Gilt(Satz.Hz)) return "Richtung nicht lesbar";
  if (!Satz.V.Da) return "ohne Zenitwinkel";
  if (!Gilt(Satz.V)) return "Zenitwinkel nicht lesbar";
  if (!Satz.Strecke.Da) return "ohne Strecke";
  if (!Gilt(Satz.Strecke)) return "Strecke nicht lesbar";
  return Satz.Strecke.Wert > 0 ? "" : "Strecke 0 (nur Richtungen)";
}

void Rohlesung::Punkt(std::string_view Nummer) {
  if (!Satz.Hz.Da && !Satz.V.Da && !Satz.Strecke.Da) return;
  if (const std::string_view Warum = Hindernis(Nummer); !Warum.empty()) {
    return Prüfung.Melden(Roh.Befund.NichtGenommen, Warum);
  }
  if (Roh.Blöcke.empty()) Beginnen("", {});
  if (Satz.V.Wert > 200) ++Roh.Befund.ZweiteLage;
  Roh.Blöcke.back().Punkte.push_back({std::string(Nummer), std::string(Symbol(Satz.Code)), Satz.Hz.Wert,
                                      Satz.V.Wert, Satz.Strecke.Wert, Reflektorhöhe, Prüfung.Zeile()});
}

void Rohlesung::Mitteln(Rohblock& B) {
  if (Wahl.LagenMitteln) Prüfung.LagenZusammenfassen(B.Punkte);
}

// Rows ahead of the first station belong to none.
void Rohlesung::OhneStandpunkt() {
  if (Roh.Blöcke.size() < 2 || !Roh.Blöcke[0].Standpunkt.empty()) return;
  for (const Rohpunkt& P : Roh.Blöcke[0].Punkte)
    Prüfung.MeldenAn(Roh.Befund.NichtGenommen, "vor dem ersten Standpunkt", P.Zeile);
  Roh.Blöcke.erase(Roh.Blöcke.begin());
}

void Rohlesung::Ende(std::string_view Text) {
  if (!Roh.Blöcke.empty()) Mitteln(Roh.Blöcke.back());
  OhneStandpunkt();
  Roh.Befund.Stationen = Standpunkte.size();
  Roh.Befund.OhneStationscode = NachKoordinaten && !Standpunkte.empty();
  Prüfung.Abschließen(Text);
}

}  // namespace

Rohform RohformVon(std::string_view Datei, Rohform Wahl) {
  if (Wahl != Rohform::NachEndung) return Wahl;
  return GleichesWort(DateinameZerlegen(Datei).Endung, "gre") ? Rohform::GRE : Rohform::GSI;
}

int RohzeileLesen(std::string_view Zeile, Rohform Form, Messsatz& Satz, Codeblock& Block,
                  bool AlleEinheiten) {
  if (Form == Rohform::GRE) {
    const int Art = GREZeilenart(Zeile);
    if (Art == Codezeile) GRECodeblockLesen(Zeile, Block);
    if (Art == Messzeile) GREZeileLesen(Zeile, Satz);
    return Art;
  }
  const bool Sechzehn = GSISechzehn(Zeile);
  const int Art = Sechzehn ? GSIZeilenart16(Zeile) : GSIZeilenart8(Zeile);
  if (Art == Codezeile) (Sechzehn ? GSICodeblockLesen16 : GSICodeblockLesen8)(Zeile, Block);
  if (Art == Messzeile) (Sechzehn ? GSIZeileLesen16 : GSIZeileLesen8)(Zeile, Satz, AlleEinheiten);
  return Art;
}

std::string_view Rohnummer(std::string_view Nummer, const Rohdatenwahl& Wahl) {
  return Wahl.OhneNullen && !Nummer.empty() ? OhneFührendeNullen(Nummer) : Nummer;
}

bool StationAusCodeblock(const Codeblock& Block, const Rohdatenwahl& Wahl, std::string& Nummer,
                         Wert& Instrumentenhöhe) {
  const int Code = Stationscode(Block, Wahl);
  if (Code == 0) return false;
  // Value k, the code being value 1.
  const auto Nummernwert = [&](int k) -> std::string_view {
    const int i = k - Code;
    return i >= 0 && i < Block.Anzahl ? std::string_view(Block.Werte[static_cast<std::size_t>(i)])
                                      : std::string_view();
  };
  const std::string_view Text = Rohnummer(Nummernwert(Wahl.Stationswert), Wahl);
  if (Text.empty()) return false;
  Nummer = Text;
  Instrumentenhöhe = {};
  const std::string_view Höhe = Wahl.Ihwert > 0 ? Nummernwert(Wahl.Ihwert) : std::string_view();
  if (IstZahlwort(Höhe) && std::isfinite(ZahlAusText(Höhe))) {
    const bool Meter = Höhe.find_first_of(".,") != std::string_view::npos;
    Instrumentenhöhe = ZahlAusText(Höhe) / (Meter ? 1 : 1000);
  }
  return true;
}

int RohtextLesen(std::string_view Text, const Rohdatenwahl& Wahl, Rohdaten& Roh) {
  const Rohform Form = RohformVon(Roh.Datei, Wahl.Form);
  const std::string Datei = Roh.Datei;
  bool Fertig = false, MitCode = false, MitKoordinaten = false;
  for (const bool NachKoordinaten : {false, true}) {
    Roh = {Datei, Form, {}, {}, {}};
    const auto Lesung = std::make_unique<Rohlesung>(Wahl, NachKoordinaten, Roh);
    Fertig = ZeilenDurchgehen(Text, [&](std::string_view Zeile) { Lesung->Zeile(Zeile); });
    if (Fertig) Lesung->Ende(Text);
    MitCode = Lesung->HatStationscode();
    MitKoordinaten = Lesung->HatStationskoordinaten();
    if (!Fertig || MitCode || !MitKoordinaten) break;
  }
  if (!Fertig) Roh = {Datei, Form, {}, {}, {}};
  return Fertig ? 0 : -2;
}

int RohdatenLesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Roh, std::string* Grund) {
  Roh = {};
  Roh.Datei = Datei;
  Roh.Form = RohformVon(Datei, Wahl.Form);
  std::string Text;
  return TextdateiLesen(Datei, Text, Grund) < 0 ? -1 : RohtextLesen(Text, Wahl, Roh);
}

int RohdatenOrientierungsblock(const Rohdaten& Roh, int& Block) {
  const auto Erster = Roh.Blöcke.begin();
  auto B = Block < 0 ? Erster : Erster + Block;
  if (Block >= 0)
    B = std::find_if(B, Roh.Blöcke.end(),
                     [&, Alt = B->Standpunkt](const Rohblock& X) { return X.Standpunkt != Alt; });
  if (B == Roh.Blöcke.end() || B->Standpunkt.empty()) return 1;
  Block = static_cast<int>(B - Erster);
  return B->StandRechts.IstGegeben() && B->StandHöhe.IstGegeben() ? 0 : 2;
}

std::string StandpunktzeileFehlt(const Rohdaten& Roh, const std::string& Standpunkt) {
  return "Im Orientierungsblock in\r" + Roh.Datei + "\rfehlt die Standpunktzeile für Standpunkt " +
         Standpunkt;
}

}  // namespace tavorena
