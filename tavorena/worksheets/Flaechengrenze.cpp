#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/worksheets/Flaechengrenze.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

bool IstInnen(Kantenart A) { return A == Kantenart::Innen || A == Kantenart::InnenLang; }

// The kind as the calculation counts it.
std::int16_t Rechenart(Kantenart A) {
  if (A == Kantenart::Linie) return 0;
  const int Lang = IstLang(A) ? 2 : 1;
  return static_cast<std::int16_t>(IstInnen(A) ? -Lang : Lang);
}

}  // namespace

std::string Radiustext(Kantenart Art, double Radius) {
  if (Art == Kantenart::Linie || Radius == 0) return "";
  return Messwerttext(IstInnen(Art) ? -Radius : Radius) + (IstLang(Art) ? "G" : "");
}

bool RadiusPrüfen(std::string& Text, Kantenart& Art, double& Radius) {
  std::string Zahlteil = Trimmen(Text);
  const bool Lang = Zahlteil.ends_with('G') || Zahlteil.ends_with('g');
  if (Lang) Zahlteil = Trimmen(Zahlteil.substr(0, Zahlteil.size() - 1));
  double Zahl = 0;
  if (!Zahlteil.empty() && !MesswertPrüfen(Zahlteil, Zahl)) return false;
  if (Lang && Zahl == 0) {
    StatusHilfeSetzen("Radius fehlt");
    return false;
  }
  Art = KantenartVon(Zahl, Lang);
  Radius = std::fabs(Zahl);
  Text = Radiustext(Art, Radius);
  return true;
}

Zeileneingabe Grenzzeile(const Kanteneingabe& K) {
  const double Gemessen = K.Grenzlaenge == 0 ? std::numeric_limits<double>::quiet_NaN() : K.Grenzlaenge;
  return {K.Pnr, {Gemessen}, "", Radiustext(K.Art, std::fabs(K.Radius))};
}

void Flaechengrenze::AnzahlSetzen(std::size_t n) {
  Punkte.resize(n);
  for (auto* Spalte : {&RW, &HW, &Radien, &Gemessen}) Spalte->resize(n);
  Arten.resize(n);
  if (n == 0) *this = {};
}

void Flaechengrenze::Setzen(std::size_t i, Lage Wo, Grenzpunkt P, double Grenzlaenge) {
  RW[i] = Wo.RW;
  HW[i] = Wo.HW;
  Radien[i] = P.Radius;
  Arten[i] = Rechenart(P.Art);
  Gemessen[i] = Grenzlaenge;
  Punkte[i] = std::move(P);
}

void Flaechengrenze::Rechnen() {
  const int n = static_cast<int>(Anzahl());
  // It fails for kinds that it does not know alone.
  static_cast<void>(FlaecheBerechnen(RW, HW, Radien, Arten, n, W));
  Ganze = std::fabs(W.Polygonflaeche) + W.Bogenflaeche;
  double Kleiner = 0;
  Reduziert = FlaecheGKReduziert(RW, HW, n, Ganze, Kleiner) == 0 ? Wert(Kleiner) : Wert();
}

bool Flaechengrenze::MitBogen() const {
  return std::any_of(W.Kanten.begin(), W.Kanten.end(), [](const Flaechenkante& K) { return K.Bogen; });
}

bool Flaechengrenze::Abweichung(std::size_t i, double& WS, double& D) const {
  if (Gemessen[i] == 0 || W.Kanten[i].SehneZuLang) return false;
  WS = W.Kanten[i].Laenge - Gemessen[i];
  D = AbweichungZulaessig(W.Kanten[i].Laenge);
  return true;
}

bool Flaechengrenze::WeichtAb(std::size_t i) const {
  double WS = 0, D = 0;
  return Abweichung(i, WS, D) && std::fabs(WS) > D;
}

std::string Flaechengrenze::Bogenfehler() const {
  for (std::size_t i = 0; i < Anzahl(); ++i) {
    if (W.Kanten[i].SehneZuLang)
      return "Zeile " + std::to_string(i + 1) + ": Sehne länger als der Durchmesser, der Bogen zählt nicht";
  }
  return "";
}

std::string Flaechengrenze::Urteil() const {
  std::string Text = Bogenfehler();
  for (std::size_t i = 0; i < Anzahl() && Text.empty(); ++i) {
    if (WeichtAb(i)) Text = "Zeile " + std::to_string(i + 1) + ": WS größer als D";
  }
  return Text;
}

bool Flaechengrenze::Linksherum(std::size_t i) const { return IstInnen(Punkte[i].Art) == Rechtsum(); }

Lage Flaechengrenze::Mitte(std::size_t i) const {
  Lage M = Ort(i);
  static_cast<void>(
      BogenMitte(M, Ort(Danach(i)), Punkte[i].Radius, Linksherum(i), IstLang(Punkte[i].Art), M));
  return M;
}

Protflaeche Flaechengrenze::Protokoll(const std::string& Name, const std::string& Bemerkung) const {
  Protflaeche F{Name, Bemerkung, {}, W.Umring, MitBogen() ? Wert(W.Bogenflaeche) : Wert(), Ganze, {}};
  if (Optionen.GKreduzierteFlaechen) F.FlaecheGKred = Reduziert;
  for (std::size_t i = 0; i < Anzahl(); ++i) {
    const Grenzpunkt& P = Punkte[i];
    Protkante& K = F.Kanten.emplace_back();
    K.Punkt = {RW[i], HW[i], P.Pnr};
    K.Laenge = W.Kanten[i].Laenge;
    K.Art = P.Art;
    K.Radius = P.Radius;
    K.SehneZuLang = W.Kanten[i].SehneZuLang;
    if (Gemessen[i] != 0) K.Gemessen = Gemessen[i];
    double WS = 0, D = 0;
    if (!Abweichung(i, WS, D)) continue;
    K.WS = WS;
    K.D = D;
  }
  return F;
}

Flaecheneingabe Flaechengrenze::Eingabe(const std::string& Name, const std::string& Bemerkung) const {
  Flaecheneingabe E{Name, Bemerkung, {}};
  for (std::size_t i = 0; i < Anzahl(); ++i)
    E.Kanten.push_back({Punkte[i].Pnr, Punkte[i].Art, Punkte[i].Radius, Gemessen[i]});
  return E;
}

std::vector<Polkante> Flaechengrenze::Polkanten() const {
  std::vector<Polkante> Kanten;
  for (std::size_t i = 0; i < Anzahl(); ++i) {
    const Grenzpunkt& P = Punkte[i];
    Polkante K{{RW[i], HW[i], P.Pnr}, W.Kanten[i].Laenge, P.Art, P.Radius, 0, 0, W.Kanten[i].Sehne};
    if (P.Art != Kantenart::Linie) {
      const Lage M = Mitte(i);
      K.MitteRechts = M.RW;
      K.MitteHoch = M.HW;
    }
    Kanten.push_back(std::move(K));
  }
  return Kanten;
}

}  // namespace tavorena
