#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <map>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Ruecknahme.h>
#include <tavorena/points/Satzsuche.h>

namespace tavorena {
namespace {

std::size_t Stelle(int i) { return static_cast<std::size_t>(i); }

// Listens at the door. A few rows that are only written it copies one by one, as in an editor each cell does;
// before any other change it copies the table.
class Wache {
 public:
  Wache() : Vorige(Haken.VorÄnderung), Stand(KorStand), Geändert(KoordinatenGeaendert) {
    Haken.VorÄnderung = [this](const KorÄnderung& Neue) {
      if (!Ganz) Kopieren(Neue);
      if (Vorige) Vorige(Neue);
    };
  }
  ~Wache() { Haken.VorÄnderung = Vorige; }
  Wache(const Wache&) = delete;
  Wache& operator=(const Wache&) = delete;

  [[nodiscard]] bool Verändert() const { return KorStand != Stand; }
  /// The rows that can differ now: the first one, what stood there, and how many they are.
  struct Ausschnitt {
    int Von = 0;
    std::vector<Punktsatz> Vorher;
    int Länge = 0;
  };
  [[nodiscard]] Ausschnitt Berührt() {
    if (Ganz) return {0, std::move(Alle), KorAnzahl};
    const int Von = Einzelne.begin()->first, Bis = Einzelne.rbegin()->first + 1;
    Ausschnitt A{Von, {}, Bis - Von};
    for (int z = Von; z < Bis; ++z) A.Vorher.push_back(Einzelne.contains(z) ? Einzelne[z] : PunktsatzVon(z));
    return A;
  }

  std::function<void(const KorÄnderung&)> Vorige;
  std::uint64_t Stand;
  bool Geändert;

 private:
  void Kopieren(const KorÄnderung& Neue) {
    constexpr std::size_t Wenige = 16;
    if (Neue.Tat == KorTat::Setzen && Einzelne.size() < Wenige) {
      for (int z = Neue.Von; z < Neue.Bis; ++z) Einzelne.try_emplace(z, PunktsatzVon(z));
      return;
    }
    Ganz = true;
    Alle.reserve(Stelle(KorAnzahl));
    for (int z = 0; z < KorAnzahl; ++z) Alle.push_back(PunktsatzVon(z));
    for (auto& [z, P] : Einzelne) Alle[Stelle(z)] = std::move(P);
  }

  bool Ganz = false;
  std::vector<Punktsatz> Alle;
  std::map<int, Punktsatz> Einzelne;
};

// Writes Neue in place of the rows Von to Von + Länge - 1. What only moves is always in its old or its new
// row.
void ZeilenErsetzen(int Von, int Länge, const std::vector<Punktsatz>& Neue) {
  std::vector<Punktsatz> Alle = Neue;
  const auto Setzen = [&](int z) {
    const KorSatz Satz = Alle[Stelle(z - Von)].Satz();
    if (!SatzGleich(Satz, KorPunkt(z))) static_cast<void>(KorZeileSetzen(z, Satz));
  };
  if (Länge == std::ssize(Neue)) {
    for (int z = Von; z < Von + Länge; ++z) Setzen(z);
    return;
  }
  for (int z = Von + Länge; z < KorAnzahl; ++z) Alle.push_back(PunktsatzVon(z));
  const int Alt = KorAnzahl, Anzahl = Von + static_cast<int>(Alle.size());
  for (int z = Alt; z < Anzahl; ++z) static_cast<void>(KorAnhängen(Alle[Stelle(z - Von)].Satz()));
  if (Anzahl > Alt) {
    for (int z = Alt - 1; z >= Von; --z) Setzen(z);
  } else {
    for (int z = Von; z < Anzahl; ++z) Setzen(z);
    KorAbschneiden(Anzahl);
  }
  KorAnzahlAnzeigen();
}

}  // namespace

Punktsatz PunktsatzVon(int Zeile) {
  const KorSatz S = KorPunkt(Zeile);
  return {std::string(S.Pnr), S.Rechts, S.Hoch, S.Hoehe, std::string(S.Symbol), *S.Info};
}

void ZeilenLöschen(const std::vector<int>& Zeilen) {
  if (Zeilen.empty()) return;
  int Ziel = Zeilen.front();
  auto Nächste = Zeilen.begin();
  for (int z = Ziel; z < KorAnzahl; ++z) {
    if (Nächste != Zeilen.end() && *Nächste == z) {
      ++Nächste;
    } else {
      static_cast<void>(KorZeileSetzen(Ziel++, KorPunkt(z)));
    }
  }
  KorAbschneiden(Ziel);
  KorAnzahlAnzeigen();
}

int ZeilenTauschen(const std::vector<Punktsatz>& Weg, const std::vector<Punktsatz>& Kommen) {
  const auto Alter = [&Kommen](int i) { return Kommen[Stelle(i)].Satz(); };
  Satzsuche Alte, Jetzige;
  for (std::size_t i = 0; i < Kommen.size(); ++i) Alte.Aufnehmen(Kommen[i].Satz(), static_cast<int>(i));
  for (int z = 0; z < KorAnzahl; ++z) Jetzige.Aufnehmen(KorPunkt(z), z);
  std::vector<int> Zeilen;
  for (const Punktsatz& P : Weg) {
    if (Alte.Nehmen(P.Satz(), Alter) >= 0) continue;
    const int z = Jetzige.Nehmen(P.Satz(), KorPunkt);
    if (z < 0) return -1;
    Zeilen.push_back(z);
  }
  const std::vector<int> Neue = Alte.Rest();
  if (KorAnzahl - static_cast<int>(Zeilen.size()) + static_cast<int>(Neue.size()) > KorZeilen) return -1;
  std::sort(Zeilen.begin(), Zeilen.end());
  const std::size_t Paare = std::min(Zeilen.size(), Neue.size());
  for (std::size_t i = 0; i < Paare; ++i) static_cast<void>(KorZeileSetzen(Zeilen[i], Alter(Neue[i])));
  for (std::size_t i = Paare; i < Neue.size(); ++i) static_cast<void>(KorAnhängen(Alter(Neue[i])));
  ZeilenLöschen({Zeilen.begin() + static_cast<std::ptrdiff_t>(Paare), Zeilen.end()});
  KorSortieren();
  KorAnzahlAnzeigen();
  return 0;
}

int Rücknahme::Ausführen(Punkttat& Tat, const std::function<int()>& Arbeit) {
  Wache W;
  const auto Verwerfen = [&W] {
    if (!W.Verändert()) return;
    const auto [Von, Vorher, Länge] = W.Berührt();
    ZeilenErsetzen(Von, Länge, Vorher);
    KorGeaendertSetzen(W.Geändert);
  };
  int Ergebnis = -1;
  try {
    Ergebnis = Arbeit();
  } catch (...) {
    Verwerfen();
    throw;
  }
  if (Ergebnis < 0) Verwerfen();
  if (Ergebnis < 0 || !W.Verändert()) return Ergebnis;
  // Only the rows between those that are alike at both ends are kept.
  Wache::Ausschnitt A = W.Berührt();
  const auto Vorher = static_cast<int>(A.Vorher.size());
  int Vorn = 0, Hinten = 0;
  const int Kürzer = std::min(Vorher, A.Länge);
  while (Vorn < Kürzer && SatzGleich(A.Vorher[Stelle(Vorn)].Satz(), KorPunkt(A.Von + Vorn))) ++Vorn;
  while (Hinten < Kürzer - Vorn &&
         SatzGleich(A.Vorher[Stelle(Vorher - 1 - Hinten)].Satz(), KorPunkt(A.Von + A.Länge - 1 - Hinten)))
    ++Hinten;
  if (Vorn + Hinten == Vorher && Vorn + Hinten == A.Länge) return Ergebnis;
  const int Von = A.Von + Vorn, Bis = A.Von + A.Länge - Hinten;
  Eintrag E{std::move(Tat), Von, std::move(A.Vorher), {}, W.Stand, KorStand, 0};
  if (Vorn + Hinten > 0) {  // a large table is moved, of a small deed no more is kept than it needs
    E.Vorher.erase(E.Vorher.end() - Hinten, E.Vorher.end());
    E.Vorher.erase(E.Vorher.begin(), E.Vorher.begin() + Vorn);
    E.Vorher.shrink_to_fit();
  }
  E.Nachher.reserve(Stelle(Bis - Von));
  for (int z = Von; z < Bis; ++z) E.Nachher.push_back(PunktsatzVon(z));
  Zusammenziehen(E);
  Taten.push_back(std::move(E));
  return Ergebnis;
}

// A new number moves its row past others, perhaps through the whole table: it is kept alone.
void Rücknahme::Zusammenziehen(Eintrag& E) {
  std::vector<Punktsatz>&V = E.Vorher, &N = E.Nachher;
  if (V.size() < 2 || V.size() != N.size()) return;
  const bool Hinab = std::equal(V.begin() + 1, V.end(), N.begin());
  if (!Hinab && !std::equal(N.begin() + 1, N.end(), V.begin())) return;
  const int Weg = static_cast<int>(V.size()) - 1;
  E.Weg = Hinab ? Weg : -Weg;
  V = {Hinab ? V.front() : V.back()};
  N = {Hinab ? N.back() : N.front()};
}

// Such a row takes its values back where it stands, and moves as a whole.
void Rücknahme::Zurückziehen(const Eintrag& E) {
  const int Länge = std::abs(E.Weg) + 1;
  std::vector<Punktsatz> Vorher;
  for (int z = E.Von; z < E.Von + Länge; ++z) Vorher.push_back(PunktsatzVon(z));
  const auto Jetzt = E.Weg > 0 ? Vorher.end() - 1 : Vorher.begin();
  *Jetzt = E.Vorher.front();
  static_cast<void>(KorZeileSetzen(E.Von + std::max(E.Weg, 0), Jetzt->Satz()));
  KorSortieren();
  std::rotate(Vorher.begin(), E.Weg > 0 ? Jetzt : Vorher.begin() + 1, Vorher.end());
  ZeilenErsetzen(E.Von, Länge, Vorher);  // a table that was in another order
}

int Rücknahme::Zurück() {
  if (Taten.empty()) return -1;
  const Eintrag& E = Taten.back();
  const bool Unberührt = KorStand == E.Stand;
  if (Unberührt && E.Weg != 0) {
    Zurückziehen(E);
  } else if (Unberührt) {
    ZeilenErsetzen(E.Von, static_cast<int>(E.Nachher.size()), E.Vorher);
  } else if (ZeilenTauschen(E.Nachher, E.Vorher) < 0) {
    FehlerMeldung("Die Punkte wurden inzwischen geändert: " + E.Tat.Name);
    return -1;
  }
  const Eintrag Getan = std::move(Taten.back());
  Taten.pop_back();
  // The table is again what the deed before left.
  if (Unberührt && !Taten.empty() && Taten.back().Stand == Getan.StandVorher) Taten.back().Stand = KorStand;
  // It is in the table; a protocol that can not be written was told.
  for (const Punkteintrag& P : Getan.Tat.BeiRücknahme) static_cast<void>(Eintragen(P));
  return 0;
}

}  // namespace tavorena
