#include <algorithm>
#include <cmath>

#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

constexpr double Fleck = 1e-4;  // points nearer than this are one spot: below the last decimal of the records

// Rows as the columns of the engine.
struct Spaltensatz {
  std::vector<double> RW, HW, Höhe, Hz, Vk, Strecke, Zielhöhe;

  explicit Spaltensatz(const std::vector<Stationsanschluß>& Zeilen) {
    for (const Stationsanschluß& Z : Zeilen) {
      RW.push_back(Z.Ort.RW);
      HW.push_back(Z.Ort.HW);
      Höhe.push_back(Z.Höhe);
      Hz.push_back(Z.M.Hz);
      Vk.push_back(Z.M.Vk);
      Strecke.push_back(Z.M.Strecke);
      Zielhöhe.push_back(Z.M.Zielhöhe);
    }
  }
  [[nodiscard]] Stationshoehe Höhen(double Instrumentenhöhe) const {
    Stationshoehe H;
    static_cast<void>(FStatRechneMittlereHöhe({Höhe, Zielhöhe, Vk, Strecke, Instrumentenhöhe}, H));
    return H;  // the columns are of one length
  }
};

bool AufEinemFleck(const std::vector<Lage>& Orte) {
  return std::all_of(Orte.begin(), Orte.end(),
                     [&](Lage P) { return std::hypot(P.RW - Orte[0].RW, P.HW - Orte[0].HW) < Fleck; });
}

// Why the rows give no free station.
std::string Hindernis(const std::vector<Stationsanschluß>& Zeilen) {
  if (Zeilen.empty()) return "Kein Anschlußpunkt vorhanden !";
  const bool EinPunkt = std::all_of(Zeilen.begin(), Zeilen.end(),
                                    [&](const Stationsanschluß& Z) { return Z.Pnr == Zeilen[0].Pnr; });
  if (EinPunkt) return "Nur ein Anschlußpunkt vorhanden !";
  std::vector<Lage> Bekannte, Gemessene;
  for (const Stationsanschluß& Z : Zeilen) {
    Bekannte.push_back(Z.Ort);
    Gemessene.push_back(FreieStationierungKleinpunkt({}, 0, Z.M.Hz, Z.M.Strecke, Z.M.Vk));
  }
  if (AufEinemFleck(Gemessene)) return "Versuchte Division durch Null !";
  return AufEinemFleck(Bekannte) ? "Alle Anschlußpunkte liegen an derselben Stelle !" : "";
}

std::string Frei(const Stationsaufgabe& A, const std::vector<Stationsanschluß>& Zeilen,
                 Stationsergebnis& Neu) {
  if (std::string Grund = Hindernis(Zeilen); !Grund.empty()) return Grund;
  const Spaltensatz S(Zeilen);
  const int Art = A.Art == Stationsart::Kongruent ? TransformationsartKongruent : TransformationsartHelmert;
  FreieStation F;
  if (FreieStationierung({S.RW, S.HW, S.Hz, S.Vk, S.Strecke}, Art, F) < 0)
    return "Keine Berechnung möglich !";
  Neu.Ort = F.StandPunkt;
  Neu.Massstab = F.Massstab;
  Neu.Epsilon = F.EpsilonGon;
  Neu.MK = F.StandardabwMK;
  Neu.ML = F.StandardabwML;
  if (A.MitHöhen) Neu.Höhe = S.Höhen(A.Instrumentenhöhe).StandHoehe;
  std::size_t i = 0;
  for (std::size_t z = 0; z < A.Zeilen.size(); ++z) {
    if (!A.Zeilen[z].Ein) continue;
    Neu.Abweichungen[z] = {F.VRechts[i], F.VHoch[i], F.WL[i], {}};
    if (F.WL[i] > (Neu.Größte ? Neu.Abweichungen[*Neu.Größte].WL : 0)) Neu.Größte = z;
    ++i;
  }
  return "";
}

std::string Bekannt(const Stationsaufgabe& A, const std::vector<Stationsanschluß>& Zeilen,
                    Stationsergebnis& Neu) {
  if (Zeilen.empty()) return "Kein Anschlußpunkt vorhanden !";
  const auto Erste =
      std::find_if(A.Zeilen.begin(), A.Zeilen.end(), [](const Stationsanschluß& Z) { return Z.Ein; });
  const bool Gewählte = A.Orientierung < A.Zeilen.size() && A.Zeilen[A.Orientierung].Ein;
  Neu.Orientierung = Gewählte ? A.Orientierung : static_cast<std::size_t>(Erste - A.Zeilen.begin());
  const Stationsanschluß& Z = A.Zeilen[Neu.Orientierung];
  if (AufEinemFleck({A.Bekannt, Z.Ort})) return "Standpunkt und Anschlußpunkt liegen an derselben Stelle !";
  Neu.Ort = A.Bekannt;
  Neu.Epsilon = FStatPolarerAnschluss(A.Bekannt, Z.Ort, Z.M.Hz);
  if (A.MitHöhen)
    Neu.Höhe = A.BekannteHöhe != 0 ? A.BekannteHöhe : Spaltensatz({Z}).Höhen(A.Instrumentenhöhe).StandHoehe;
  return "";
}

// Rows that the fit does not know: seen from the station that it gave.
void Restliche(const Stationsaufgabe& A, Stationsergebnis& Neu) {
  const Stationshoehe H = Spaltensatz(A.Zeilen).Höhen(A.Instrumentenhöhe);
  const bool Anschluß = A.Art == Stationsart::Anschluß;
  const bool MitHöhe = A.MitHöhen && (Anschluß ? A.BekannteHöhe : Neu.Höhe) != 0;
  for (std::size_t z = 0; z < A.Zeilen.size(); ++z) {
    const Stationsanschluß& Z = A.Zeilen[z];
    Stationsabweichung& V = Neu.Abweichungen[z];
    if (Anschluß || !Z.Ein) {
      const Lage P = StationspunktRechnen(Neu, A.Instrumentenhöhe, Z.M).Ort;
      V = {Z.Ort.RW - P.RW, Z.Ort.HW - P.HW, std::hypot(Z.Ort.RW - P.RW, Z.Ort.HW - P.HW), {}};
    }
    if (MitHöhe && Z.Höhe != 0) V.dHo = Anschluß ? H.Hoehe[z] - Neu.Höhe : Neu.Höhe - H.Hoehe[z];
  }
}

}  // namespace

std::string StationRechnen(const Stationsaufgabe& A, Stationsergebnis& Ergebnis) {
  std::vector<Stationsanschluß> Zeilen;
  std::copy_if(A.Zeilen.begin(), A.Zeilen.end(), std::back_inserter(Zeilen),
               [](const Stationsanschluß& Z) { return Z.Ein; });
  Stationsergebnis Neu;
  Neu.Anzahl = static_cast<int>(Zeilen.size());
  Neu.Abweichungen.resize(A.Zeilen.size());
  const bool Anschluß = A.Art == Stationsart::Anschluß;
  if (std::string Grund = Anschluß ? Bekannt(A, Zeilen, Neu) : Frei(A, Zeilen, Neu); !Grund.empty())
    return Grund;
  if (!StapelZahlPaßt(Neu.Ort.RW) || !StapelZahlPaßt(Neu.Ort.HW) || !StapelZahlPaßt(Neu.Höhe))
    return "Der Standpunkt liegt zu fern: mehr als 7 Stellen vor dem Komma";
  Restliche(A, Neu);
  Ergebnis = std::move(Neu);
  return "";
}

Stationspunkt StationspunktRechnen(const Stationsergebnis& Von, double Instrumentenhöhe,
                                   const Stationsmessung& M) {
  const double Strecke = Von.Massstab * M.Strecke;
  const double Höhe =
      Von.Höhe != 0 ? FStatPolarpunktHoehe(Von.Höhe, Instrumentenhöhe, Strecke, M.Vk, M.Zielhöhe) : 0;
  return {FreieStationierungKleinpunkt(Von.Ort, Von.Epsilon, M.Hz, Strecke, M.Vk), Höhe};
}

}  // namespace tavorena
