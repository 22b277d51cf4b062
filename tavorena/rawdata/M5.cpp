#include <algorithm>
#include <cmath>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tavorena/calc/FreieStationierung.h>
#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/M5.h>
#include <tavorena/rawdata/M5Zeile.h>
#include <tavorena/rawdata/Rohpruefung.h>
#include <tavorena/rawdata/Rohumwandlung.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

// Marks that say nothing about a point.
bool IstNebensache(std::string_view Marke) {
  constexpr std::string_view Nebensachen[] = {"Om", "T_", "P", "PC", "A", "m", "dl", "dq"};
  return std::find(std::begin(Nebensachen), std::end(Nebensachen), Marke) != std::end(Nebensachen);
}

// The values of a line that were understood; empty ones are missing.
struct Werte {
  Wert Hz, V, Schräg, Horizontal, X, Y, Z, th, ih;

  Wert* Ziel(std::string_view Marke) {
    const std::pair<std::string_view, Wert*> Ziele[] = {{"Hz", &Hz},         {"V1", &V},  {"SD", &Schräg},
                                                        {"HD", &Horizontal}, {"X", &X},   {"Y", &Y},
                                                        {"Z", &Z},           {"th", &th}, {"ih", &ih}};
    for (const auto& [Name, Platz] : Ziele) {
      if (Name == Marke) return Platz;
    }
    return nullptr;
  }
  [[nodiscard]] bool IstMessung() const {
    return Hz.IstGegeben() || V.IstGegeben() || Schräg.IstGegeben() || Horizontal.IstGegeben();
  }
};

// One pass over the lines of a file.
class M5Lesung {
 public:
  M5Lesung(const Rohdatenwahl& Auswahl, bool NummerHinten, Rohdaten& Ziel)
      : Wahl(Auswahl), Hinten(NummerHinten), Roh(Ziel), Prüfung(Ziel.Befund, Auswahl) {}

  void Zeile(std::string_view Text) {
    Prüfung.ZeileBeginnen(Text);
    const M5Zeile Z = M5Zerlegen(Text);
    if (IstLeerText(Text)) return Prüfung.Art(ZuKurz, false);
    if (Z.Art == M5Art::Keine && !Text.starts_with("END")) return Prüfung.Art(AndereZeile, false);
    Prüfung.Art(Z.Art == M5Art::Punkt ? Messzeile : Codezeile, false);
    Werte W = WerteVon(Z);
    Höhen(W);
    if (Z.Art == M5Art::Punkt) Punktzeile(Text, Z, W);
  }

  void Ende(std::string_view Text) {
    BlockAbschließen();
    StandpunkteErgänzen();
    Roh.Befund.Stationen = Standpunkte.size();
    for (const M5Abweichung& A : M5Vergleichen(Roh)) {
      if (!M5Auffällig(A)) continue;
      Prüfung.MeldenAn(Roh.Befund.Auffällig, "Gerät weicht über 2 mm ab", A.Zeile);
    }
    Prüfung.Abschließen(Text);
  }

 private:
  Werte WerteVon(const M5Zeile& Z) {
    Werte W;
    for (std::size_t i = 0; i < Z.Anzahl; ++i) {
      const M5Feld& F = Z.Felder[i];
      Wert* Ziel = W.Ziel(F.Marke);
      if (Ziel == nullptr) {
        if (Z.Art == M5Art::Punkt && !IstNebensache(F.Marke)) Unverstanden("Kennung " + std::string(F.Marke));
        continue;
      }
      double Zahl = 0;
      const bool IstWinkel = Ziel == &W.Hz || Ziel == &W.V;
      if (IstWinkel ? M5Winkel(F, Zahl) : M5Länge(F, Zahl)) {
        *Ziel = Zahl;
      } else {
        Unverstanden(std::string(F.Marke) +
                     (F.Zahl.empty() ? " ohne Wert" : " mit Einheit " + std::string(F.Einheit)));
      }
    }
    return W;
  }

  void Unverstanden(const std::string& Was) { Prüfung.Melden(Roh.Befund.NichtGelesen, Was); }
  void Verworfen(std::string_view Warum) { Prüfung.Melden(Roh.Befund.NichtGenommen, Warum); }

  // Heights stay in force. Rows with another instrument height are a block of their own.
  void Höhen(const Werte& W) {
    if (W.th.IstGegeben()) Reflektorhöhe = W.th.Zahl();
    if (!W.ih.IstGegeben()) return;
    Ih = W.ih;
    if (Roh.Blöcke.empty() || Roh.Blöcke.back().Instrumentenhöhe == Ih) return;
    if (!Roh.Blöcke.back().Punkte.empty()) {
      BlockAbschließen();
      Rohblock Weiter = Roh.Blöcke.back();
      Weiter.Punkte.clear();
      Weiter.Zeile = Prüfung.Zeile();
      Roh.Blöcke.push_back(std::move(Weiter));
    }
    Roh.Blöcke.back().Instrumentenhöhe = Ih;
  }

  void Punktzeile(std::string_view Text, const M5Zeile& Z, const Werte& W) {
    std::string_view Nummer, Code;
    M5Nummer(Z, Hinten, Nummer, Code);
    if (Nummer.empty()) return Verworfen("Zeile ohne Punktnummer");
    Nummer = Rohnummer(Nummer, Wahl);
    Prüfung.Nummer(Text, Nummer, Code);
    const bool Station = Code == "S";
    if (Station) Standpunkt(std::string(Nummer), W);
    if (W.IstMessung())
      Station ? Verworfen("Messung auf der Zeile des Standpunkts") : Messung(Nummer, Code, W);
    Koordinate(Nummer, Code, W, Station);
  }

  // A further line of a station adds to it as long as nothing was measured there.
  void Standpunkt(std::string Nummer, const Werte& W) {
    Standpunkte.insert(Nummer);
    Rohblock& B =
        !Roh.Blöcke.empty() && Roh.Blöcke.back().Standpunkt == Nummer && Roh.Blöcke.back().Punkte.empty()
            ? Roh.Blöcke.back()
            : Beginnen(std::move(Nummer));
    if (W.X.IstGegeben() && W.Y.IstGegeben()) {
      B.StandRechts = W.Y;
      B.StandHoch = W.X;
    }
    if (W.Z.IstGegeben()) B.StandHöhe = W.Z;
  }

  Rohblock& Beginnen(std::string Nummer) {
    BlockAbschließen();
    Rohblock B;
    B.Standpunkt = std::move(Nummer);
    B.Instrumentenhöhe = Ih;
    B.Zeile = Prüfung.Zeile();
    return Roh.Blöcke.emplace_back(std::move(B));
  }

  // Why a measurement can not be a row; "" if it can.
  static std::string_view Hindernis(const Werte& W) {
    if (!W.Hz.IstGegeben()) return "ohne Richtung";
    if (W.Schräg.IstGegeben() && !W.V.IstGegeben() && !W.Horizontal.IstGegeben()) return "ohne Zenitwinkel";
    const Wert& Strecke = W.Schräg.IstGegeben() ? W.Schräg : W.Horizontal;
    if (!Strecke.IstGegeben()) return "ohne Strecke";
    return Strecke.Zahl() > 0 ? "" : "Strecke 0 (nur Richtungen)";
  }

  void Messung(std::string_view Nummer, std::string_view Code, const Werte& W) {
    if (const std::string_view Warum = Hindernis(W); !Warum.empty()) return Verworfen(Warum);
    const double Neigung = std::abs(SinGon(W.V.Zahl()));
    double V = W.V.Zahl(), Strecke = W.Schräg.Zahl();
    if (W.V.IstGegeben() && V == 0) return Verworfen("Zenitwinkel 0");  // a row of 0 has none
    if (!W.Schräg.IstGegeben() || !W.V.IstGegeben()) {
      if (W.V.IstGegeben() && Neigung < 1e-6) return Verworfen("Zenitwinkel zu steil");
      Strecke = W.V.IstGegeben() ? W.Horizontal.Zahl() / Neigung : W.Horizontal.Zahl();
      if (!W.V.IstGegeben()) V = 0;
    }
    if (Roh.Blöcke.empty()) Beginnen("");
    if (V > 200) ++Roh.Befund.ZweiteLage;
    Roh.Blöcke.back().Punkte.push_back(
        {std::string(Nummer), std::string(Code), W.Hz.Zahl(), V, Strecke, Reflektorhöhe, Prüfung.Zeile()});
  }

  void Koordinate(std::string_view Nummer, std::string_view Code, const Werte& W, bool Station) {
    if (!W.X.IstGegeben() && !W.Y.IstGegeben() && (Station || !W.Z.IstGegeben())) return;
    if (!W.X.IstGegeben() || !W.Y.IstGegeben()) return Verworfen("Koordinaten unvollständig");
    Roh.Koordinaten.push_back({std::string(Nummer), std::string(Station ? "" : Code), W.Y.Zahl(), W.X.Zahl(),
                               W.Z, Prüfung.Zeile()});
  }

  // A station that is named once more without its coordinates has those that it had before.
  void StandpunkteErgänzen() {
    std::unordered_map<std::string, const Rohblock*> Bekannte;
    for (Rohblock& B : Roh.Blöcke) {
      const Rohblock*& Vorige = Bekannte[B.Standpunkt];
      if (Vorige != nullptr && !B.StandRechts.IstGegeben()) {
        B.StandRechts = Vorige->StandRechts;
        B.StandHoch = Vorige->StandHoch;
        if (!B.StandHöhe.IstGegeben()) B.StandHöhe = Vorige->StandHöhe;
      }
      if (B.StandRechts.IstGegeben()) Vorige = &B;
    }
  }

  void BlockAbschließen() {
    if (!Roh.Blöcke.empty() && Wahl.LagenMitteln) Prüfung.LagenZusammenfassen(Roh.Blöcke.back().Punkte);
  }

  const Rohdatenwahl& Wahl;
  const bool Hinten;
  Rohdaten& Roh;
  Rohprüfung Prüfung;
  Wert Ih;                   // in force
  double Reflektorhöhe = 0;  // in force
  std::unordered_set<std::string> Standpunkte;
};

// The order of the 27 characters in this file.
bool NummerStehtHinten(std::string_view Text) {
  std::string_view Zeile;
  for (Zeilenleser Leser(Text); Leser.Nächste(Zeile);) {
    if (M5NummerHinten(M5Zerlegen(Zeile))) return true;
  }
  return false;
}

Rohkoordinate Polarpunkt(const Rohblock& B, const Rohpunkt& P) {
  const Lage Stand{B.StandRechts.Zahl(), B.StandHoch.Zahl()};
  const bool Horizontal = P.V == 0;
  const Lage Ort = FreieStationierungKleinpunkt(Stand, 0, P.Hz, P.Strecke, Horizontal ? 100 : P.V);
  Rohkoordinate K{P.Nummer, P.Code, Ort.RW, Ort.HW, {}, P.Zeile};
  const bool StandMitHöhe = B.StandHöhe.IstGegeben() || !B.StandRechts.IstGegeben();
  if (!Horizontal && StandMitHöhe && B.Instrumentenhöhe.IstGegeben())
    K.Höhe =
        FStatPolarpunktHoehe(B.StandHöhe.Zahl(), B.Instrumentenhöhe.Zahl(), P.Strecke, P.V, P.Reflektorhöhe);
  return K;
}

// The polar points by number, each in the order of the file.
std::unordered_map<std::string, std::vector<Rohkoordinate>> NachNummern(const Rohdaten& Roh) {
  std::unordered_map<std::string, std::vector<Rohkoordinate>> Alle;
  for (const Rohblock& B : Roh.Blöcke) {
    for (const Rohpunkt& P : B.Punkte) Alle[P.Nummer].push_back(Polarpunkt(B, P));
  }
  return Alle;
}

}  // namespace

int M5TextLesen(std::string_view Text, const Rohdatenwahl& Wahl, Rohdaten& Roh) {
  const Beschäftigung Lang;
  const std::string Datei = Roh.Datei;
  Roh = {Datei, Rohform::M5, {}, {}, {}};
  const auto Lesung = std::make_unique<M5Lesung>(Wahl, NummerStehtHinten(Text), Roh);
  const bool Fertig = ZeilenDurchgehen(Text, [&](std::string_view Zeile) { Lesung->Zeile(Zeile); });
  if (!Fertig) {
    Roh = {Datei, Rohform::M5, {}, {}, {}};
    return -2;
  }
  Lesung->Ende(Text);
  return 0;
}

int M5Lesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Roh, std::string* Grund) {
  Roh = {Datei, Rohform::M5, {}, {}, {}};
  std::string Text;
  return TextdateiLesen(Datei, Text, Grund) < 0 ? -1 : M5TextLesen(Text, Wahl, Roh);
}

std::vector<M5Abweichung> M5Vergleichen(const Rohdaten& Roh) {
  const auto Alle = NachNummern(Roh);
  std::vector<M5Abweichung> Abweichungen;
  for (const Rohkoordinate& K : Roh.Koordinaten) {
    const auto Gemessene = Alle.find(K.Nummer);
    if (Gemessene == Alle.end()) continue;
    const Rohkoordinate* P = &Gemessene->second.front();
    for (const Rohkoordinate& Q : Gemessene->second) {
      if (Q.Zeile < K.Zeile) P = &Q;
    }
    M5Abweichung A{K.Nummer, K.Rechts - P->Rechts, K.Hoch - P->Hoch, {}, K.Zeile};
    if (K.Höhe.IstGegeben() && P->Höhe.IstGegeben()) A.dZ = K.Höhe.Zahl() - P->Höhe.Zahl();
    Abweichungen.push_back(std::move(A));
  }
  return Abweichungen;
}

bool M5Auffällig(const M5Abweichung& A) {
  return AchtStellen(std::max(std::hypot(A.dR, A.dH), std::abs(A.dZ.Zahl()))) > M5Grenze;
}

std::vector<Rohkoordinate> M5Punkte(const Rohdaten& Roh) {
  const auto Alle = NachNummern(Roh);
  std::vector<Rohkoordinate> Punkte;
  for (const auto& [Nummer, Gemessene] : Alle)
    Punkte.insert(Punkte.end(), Gemessene.begin(), Gemessene.end());
  for (const Rohkoordinate& K : Roh.Koordinaten) {
    if (Alle.count(K.Nummer) == 0) Punkte.push_back(K);
  }
  std::sort(Punkte.begin(), Punkte.end(),
            [](const Rohkoordinate& A, const Rohkoordinate& B) { return A.Zeile < B.Zeile; });
  return Punkte;
}

int M5PunkteSchreiben(const Rohdaten& Roh, const std::string& Ziel, int& Anzahl) {
  const Rohdaten Punkte{Roh.Datei, Rohform::M5, {}, M5Punkte(Roh), {}};
  std::string Grund;
  if (Punkte.Koordinaten.empty()) {
    FehlerMeldung("Keine Punkte in der Datei:\n" + Roh.Datei);
    return -1;
  }
  const std::string Text = RohkoordinatenAlsKor(Punkte, Optionen.OptNachkommaSpeichern, Anzahl);
  if (DateiErsetzen(Ziel, Text, &Grund) == 0) return 0;
  SpeicherfehlerMelden(Ziel, Grund, "M5.Schreiben");
  return -1;
}

}  // namespace tavorena
