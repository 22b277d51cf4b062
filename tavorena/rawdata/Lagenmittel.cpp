#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <tavorena/rawdata/Lagenmittel.h>

namespace tavorena {
namespace {

constexpr double Zusammen = 0.1;  // [gon]

double AufKreis(double Gon) {
  Gon = std::fmod(Gon, 400);
  return Gon < 0 ? Gon + 400 : Gon;
}

// -200 to 200.
double Unterschied(double A, double B) { return std::remainder(A - B, 400); }

bool Gegenlage(const Rohpunkt& A, const Rohpunkt& B) {
  return (A.V > 200) != (B.V > 200) && std::abs(A.V + B.V - 400) <= Zusammen &&
         A.Reflektorhöhe == B.Reflektorhöhe;
}

Lagenpaar Verbinden(Rohpunkt& Erste, Rohpunkt& Andere) {
  Rohpunkt& I = Erste.V > 200 ? Andere : Erste;
  Rohpunkt& II = Erste.V > 200 ? Erste : Andere;
  const Lagenpaar Paar{Erste.Zeile, Unterschied(II.Hz - 200, I.Hz), I.V + II.V - 400, II.Strecke - I.Strecke};
  const double Hz = AufKreis(I.Hz + Paar.dHz / 2), V = I.V - Paar.dV / 2, s = (I.Strecke + II.Strecke) / 2;
  if (Erste.Code.empty()) Erste.Code = std::move(Andere.Code);
  Erste.Hz = Hz;
  Erste.V = V;
  Erste.Strecke = s;
  Andere.Zeile = 0;
  return Paar;
}

}  // namespace

std::vector<Lagenpaar> LagenMitteln(std::vector<Rohpunkt>& Punkte) {
  std::vector<Lagenpaar> Paare;
  std::unordered_map<std::string_view, Rohpunkt*> Offen;
  for (Rohpunkt& P : Punkte) {
    const auto [Stelle, Neu] = Offen.try_emplace(P.Nummer, &P);
    if (Neu) continue;
    if (Gegenlage(*Stelle->second, P)) {
      Paare.push_back(Verbinden(*Stelle->second, P));
      Offen.erase(Stelle);
    } else {
      Stelle->second = &P;
    }
  }
  Offen.clear();
  std::erase_if(Punkte, [](const Rohpunkt& P) { return P.Zeile == 0; });
  return Paare;
}

}  // namespace tavorena
