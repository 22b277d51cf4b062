#include <tavorena/calc/Messlinie.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/worksheets/Stationsakten.h>

namespace tavorena {
namespace {

Wert Getragen(bool MitHöhe, double Höhe) { return MitHöhe && Höhe != 0 ? Wert(Höhe) : Wert(); }

FStatBeobachtung Beobachtung(const Stationsanschluß& Z) {
  return {Z.Pnr, Z.M.Hz, Z.M.Vk, Z.M.Strecke, Z.M.Zielhöhe};
}

ProtFStat Freie(const Stationsaufgabe& A, const Stationsergebnis& E, const std::string& Pnr) {
  ProtFStat S;
  S.Kongruent = A.Art == Stationsart::Kongruent;
  S.MitHoehen = E.Höhe != 0;
  S.Massstab = E.Massstab;
  S.Epsilon = E.Epsilon;
  S.MK = E.MK;
  S.ML = E.ML;
  S.Stand = {E.Ort.RW, E.Ort.HW, Pnr};
  S.StandHoehe = Getragen(S.MitHoehen, E.Höhe);
  for (std::size_t z = 0; z < A.Zeilen.size(); ++z) {
    const Stationsanschluß& Z = A.Zeilen[z];
    const Stationsabweichung& V = E.Abweichungen[z];
    if (!Z.Ein) continue;
    S.Punkte.push_back(
        {V.vY, V.vX, V.WL, V.dHo ? Wert(*V.dHo) : Wert(),
         Protpolar{
             {Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Getragen(S.MitHoehen, Z.Höhe), Z.M.Hz, Z.M.Vk, Z.M.Strecke, 0}});
  }
  return S;
}

Protanschluss Bekannte(const Stationsaufgabe& A, const Stationsergebnis& E, const std::string& Pnr) {
  const Stationsanschluß& Z = A.Zeilen[E.Orientierung];
  const double Horizontal = Z.M.Strecke * SinGon(Z.M.Vk);
  PolarAnschlusswerte W;
  static_cast<void>(PolarBerechnungAnschluss(E.Ort, Z.Ort, Horizontal, W));  // the distance was measured
  return {
      {E.Ort.RW, E.Ort.HW, Pnr}, {Z.Ort.RW, Z.Ort.HW, Z.Pnr}, E.Epsilon, {}, Z.M.Hz, Horizontal, W.Abweichung,
      W.AbweichungZulaessig};
}

}  // namespace

Block StationBlock(int Nachkomma, const Stationsaufgabe& A, const Stationsergebnis& E,
                   const std::string& Pnr) {
  if (A.Art != Stationsart::Anschluß) return FStatBlock(Nachkomma, Freie(A, E, Pnr));
  const std::optional<double> dHo = E.Abweichungen[E.Orientierung].dHo;
  return FStatAnschluss(Nachkomma, Bekannte(A, E, Pnr), dHo ? Wert(*dHo) : Wert());
}

Block StationStreichzeile(int Nachkomma, const Stationsaufgabe& A, const Stationsergebnis& E,
                          const std::string& Pnr) {
  const Protpunkt P{E.Ort.RW, E.Ort.HW, Pnr};
  if (A.Art != Stationsart::Anschluß)
    return PolarZeile(Nachkomma, {P, Getragen(true, E.Höhe), {}, 0, {}, 0}, MarkeGelöscht);
  Block B = FStatPolarAnschluss(Nachkomma, P, E.Epsilon);
  B.Zeilen.back() += MarkeGelöscht;
  return B;
}

std::vector<std::string> StationSätze(const Stationsaufgabe& A, const Stationsergebnis& E,
                                      const std::string& Pnr, const std::string& Symbol) {
  FStatEingabe S;
  S.StandPnr = Pnr;
  S.Instrumentenhoehe = A.Instrumentenhöhe;
  if (A.Art == Stationsart::Anschluß) {
    S.Anschluesse = {Beobachtung(A.Zeilen[E.Orientierung])};
    return StapelFStat(S);
  }
  S.Kongruent = A.Art == Stationsart::Kongruent;
  S.NeuPnr = Pnr;
  S.NeuSymbol = Symbol;
  for (const Stationsanschluß& Z : A.Zeilen) {
    if (Z.Ein) S.Anschluesse.push_back(Beobachtung(Z));
  }
  return StapelFStat(S);
}

}  // namespace tavorena
