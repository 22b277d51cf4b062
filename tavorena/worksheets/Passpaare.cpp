#include <algorithm>
#include <cmath>
#include <span>
#include <unordered_set>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/Passpaare.h>

namespace tavorena {
namespace {

Lage TabellenOrt(int Zeile) {
  const auto z = static_cast<std::size_t>(Zeile);
  return {KorRechts[z], KorHoch[z]};
}

bool Endlich(Lage P) { return std::isfinite(P.RW) && std::isfinite(P.HW); }

// Takes a pair in. A number that stands twice could not be told by its record.
void Aufnehmen(Passsuche& Ziel, const Nummernverzeichnis& Alte, int Zeile, const NeuesSystem& N, int Stelle) {
  const std::string Pnr = Trimmen(KorPnr(Zeile));
  const std::string& NeuPnr = N.Punkte().Pnr[static_cast<std::size_t>(Stelle)];
  Passpaar P;
  if (Alte.Mehrfach(Pnr) || N.Nummern().Mehrfach(NeuPnr)) {
    ++Ziel.Mehrfach;
  } else if (PaarBilden(Zeile, Pnr, NeuPnr, N, P).empty()) {
    Ziel.Paare.push_back(std::move(P));
  }
}

std::string ZuViele() { return "zu viele Paßpunkte ! Maximalwert: " + std::to_string(PassGrenze); }

int Begrenzt(const Passsuche& Gefunden) {
  if (Gefunden.Paare.size() <= PassGrenze) return 0;
  Hinweis("Fehler bei der Transformationsberechnung:\n" + ZuViele());
  return -1;
}

}  // namespace

void Nummernverzeichnis::Aufnehmen(std::string_view Pnr, int Stelle) {
  const auto [P, Neu] = Plätze.try_emplace(TrimmenSicht(Pnr), Platz{Stelle, false});
  if (!Neu) P->second.Mehrfach = true;
}

int Nummernverzeichnis::Suche(std::string_view Pnr) const {
  if (const auto P = Plätze.find(TrimmenSicht(Pnr)); P != Plätze.end()) return P->second.Stelle;
  if (Pnr.find(',') == std::string_view::npos) return -1;
  std::string MitPunkt(Pnr);
  ZeichenErsetzen(MitPunkt, ',', '.');
  return Suche(MitPunkt);
}

bool Nummernverzeichnis::Mehrfach(std::string_view Pnr) const {
  const auto P = Plätze.find(TrimmenSicht(Pnr));
  return P != Plätze.end() && P->second.Mehrfach;
}

Nummernverzeichnis Tabellenverzeichnis() {
  Nummernverzeichnis V;
  for (int z = 0; z < KorAnzahl; ++z) V.Aufnehmen(KorPnr(z), z);
  return V;
}

void NeuesSystem::Leeren() {
  Listen = {};
  Verzeichnis = {};
}

int NeuesSystem::Lesen(const std::string& Dateiname) {
  Leeren();
  if (FormatNachEndung(Dateiname) != Dateiformat::Kor) {
    FehlerMeldung("Das neue System wird nur aus KOR-Dateien gelesen:\n" + Dateiname);
    return -1;
  }
  if (SelbeDatei(Dateiname, KoordinatendateiName)) {
    FehlerMeldung("Das neue System ist die geöffnete Koordinatendatei:\n" + Dateiname);
    return -1;
  }
  Punktlisten Neue;
  int Punkte = 0;
  if (KorDateiInListen(Dateiname, Neue, KorGrenze, Punkte) < 0) return -1;
  if (Punkte == 0) {
    FehlerMeldung("Keine Punkte in\n" + Dateiname);
    return -1;
  }
  Listen = std::move(Neue);
  for (int i = 0; i < Punkte; ++i) {
    std::string& Pnr = Listen.Pnr[static_cast<std::size_t>(i)];
    ZeichenErsetzen(Pnr, ',', '.');  // as the table holds it
    Verzeichnis.Aufnehmen(Pnr, i);
  }
  return 0;
}

Lage NeuesSystem::Ort(int Stelle) const {
  const auto i = static_cast<std::size_t>(Stelle);
  return {Listen.Rechts[i], Listen.Hoch[i]};
}

std::string PaarBilden(int Zeile, const std::string& Pnr, const std::string& NeuPnr, const NeuesSystem& N,
                       Passpaar& P) {
  if (Zeile < 0) return "Paßpunkt " + Zitat(Pnr) + " fehlt";
  const int Stelle = N.Suche(NeuPnr.empty() ? Pnr : NeuPnr);
  if (Stelle < 0) return "Paßpunkt " + Zitat(NeuPnr.empty() ? Pnr : NeuPnr) + " fehlt im neuen System";
  P = {true, Trimmen(KorPnr(Zeile)), N.Punkte().Pnr[static_cast<std::size_t>(Stelle)], TabellenOrt(Zeile),
       N.Ort(Stelle)};
  if (!StapelWortPaßt(P.Pnr) || !StapelWortPaßt(P.NeuPnr)) return "Punktnummer mit Leerzeichen";
  return Endlich(P.Alt) && Endlich(P.Neu) ? "" : "Paßpunkt " + Zitat(P.Pnr) + " hat keine Koordinaten";
}

std::string PaareAusSätzen(const std::vector<Passpunkteingabe>& Sätze, const NeuesSystem& N,
                           std::vector<Passpaar>& Paare) {
  if (Sätze.size() > PassGrenze) return ZuViele();
  const Nummernverzeichnis Alte = Tabellenverzeichnis();
  std::unordered_set<std::string> Hier, Dort;
  for (const Passpunkteingabe& Satz : Sätze) {
    Passpaar P;
    if (std::string Grund = PaarBilden(Alte.Suche(Satz.Pnr), Satz.Pnr, Satz.NeuPnr, N, P); !Grund.empty())
      return Grund;
    P.Ein = !Satz.Ausgeschaltet;
    if (!Hier.insert(P.Pnr).second || !Dort.insert(P.NeuPnr).second)
      return "Paßpunkt " + P.Pnr + " steht zweimal";
    Paare.push_back(std::move(P));
  }
  return "";
}

std::optional<Festpunkt> FestpunktSuchen(const std::string& Pnr, const std::vector<Passpaar>& Paare,
                                         const NeuesSystem& N) {
  Wert Nummer(Pnr);
  const int Zeile = KorSucheMitPunkt(Nummer);
  const std::string Gesucht = Trimmen(Nummer);
  const auto Paar =
      std::find_if(Paare.begin(), Paare.end(), [&](const Passpaar& P) { return P.Pnr == Gesucht; });
  Passpaar P;
  if (!PaarBilden(Zeile, Gesucht, Paar != Paare.end() ? Paar->NeuPnr : "", N, P).empty()) return {};
  return Festpunkt{P.Alt, P.Neu};
}

int PaareGleicherNummer(const NeuesSystem& N, Passsuche& Gefunden) {
  Gefunden = {};
  const Nummernverzeichnis Alte = Tabellenverzeichnis();
  for (int z = 0; z < KorAnzahl; ++z) {
    const int Stelle = N.Suche(KorPnr(z));
    if (Stelle >= 0 && Alte.Suche(KorPnr(z)) == z) Aufnehmen(Gefunden, Alte, z, N, Stelle);
  }
  return Begrenzt(Gefunden);
}

int PaareNachLage(const NeuesSystem& N, double Radius, Passsuche& Gefunden) {
  constexpr std::size_t Stück = 64;
  Gefunden = {};
  const Nummernverzeichnis Alte = Tabellenverzeichnis();
  const auto Zeilen = static_cast<std::size_t>(KorAnzahl);
  const std::span<const double> AltR(KorRechts.data(), Zeilen), AltH(KorHoch.data(), Zeilen);
  const std::span<const double> NeuR = N.Punkte().Rechts, NeuH = N.Punkte().Hoch;
  std::vector<bool> Vergeben(Zeilen);
  std::vector<Passpunktkandidat> Kandidaten;
  const Beschäftigung Lang;
  Atempause Pause(0.2);
  for (std::size_t Ab = 0; Ab < NeuR.size(); Ab += Stück) {
    const std::size_t n = std::min(Stück, NeuR.size() - Ab);
    static_cast<void>(
        HelmertQuasipass(AltR, AltH, NeuR.subspan(Ab, n), NeuH.subspan(Ab, n), Radius, Kandidaten));
    for (const Passpunktkandidat& K : Kandidaten) {
      // Two points of the new system at one of the table are as good as one number twice.
      const auto Zeile = static_cast<std::size_t>(K.Erster);
      if (Vergeben[Zeile]) {
        ++Gefunden.Mehrfach;
      } else {
        Aufnehmen(Gefunden, Alte, K.Erster, N, static_cast<int>(Ab) + K.Zweiter);
      }
      Vergeben[Zeile] = true;
    }
    if (!Pause.Fällig()) continue;
    StatusHilfeSetzen(Anzahltext(static_cast<int>(Gefunden.Paare.size()), "Paßpunkt", "Paßpunkte"));
    AblaufPort().EreignisseAbarbeiten();
    if (std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop) return -2;
  }
  return Begrenzt(Gefunden);
}

}  // namespace tavorena
