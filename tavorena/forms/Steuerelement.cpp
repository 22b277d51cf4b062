#include <algorithm>

#include <tavorena/forms/Steuerelement.h>

namespace tavorena {
namespace {

std::size_t Stelle(int i) { return static_cast<std::size_t>(i); }

}  // namespace

// Every note is fetched, hence no "||".
bool Steuerelement::Abholen() {
  const bool Neu[] = {Text.Abholen(), Aktiv.Abholen(), Sichtbar.Abholen()};
  return Neu[0] || Neu[1] || Neu[2];
}

bool Eingabeelement::Abholen() {
  const bool Neu[] = {Fehlerhaft.Abholen(), NurLesen.Abholen()};
  return Steuerelement::Abholen() || Neu[0] || Neu[1];
}

bool Auswahl::Abholen() {
  const bool Neu = Gewählt.Abholen();
  return Steuerelement::Abholen() || Neu;
}

std::string Gitter::Inhalt(int z, int s) const {
  if (s == Markenspalte && Markiert(z)) return "*";
  if (Quelle && z != Entwurfzeile) return Quelle(z, s);
  return Zellen.at(Quelle ? 0 : Stelle(z)).at(Stelle(s));
}

bool Gitter::Markiert(int z) const { return Stelle(z) < Marken.size() && Marken[Stelle(z)]; }

void Gitter::MarkeSetzen(int z, bool An) {
  Anker = z;
  if (z < 0 || z >= Zeilen() || Markiert(z) == An || (An && Markierbar && !Markierbar(z))) return;
  Marken.resize(Stelle(Zeilen()));
  Marken[Stelle(z)] = An;
  Merken(z, z + 1);
}

std::vector<int> Gitter::Markierte() const {
  std::vector<int> Alle;
  for (int z = 0; z < std::ssize(Marken); ++z) {
    if (Markiert(z)) Alle.push_back(z);
  }
  return Alle;
}

void Gitter::MarkenBis(int z) {
  const int Von = std::clamp(Anker, 0, std::max(Zeilen() - 1, 0));
  for (int i = std::min(Von, z); i <= std::max(Von, z); ++i) MarkeSetzen(i, true);
  Anker = Von;
  Zeile = z;
}

void Gitter::InhaltSetzen(int z, int s, std::string Neu) {
  if (Quelle && z != Entwurfzeile) {
    if (Quelle(z, s) == Neu) return;
    EntwurfVerwerfen();
    Zellen.assign(1, {});
    for (int i = 0; i < std::ssize(Spalten); ++i) Zellen[0].push_back(Quelle(z, i));
    Entwurfzeile = z;
  }
  std::string& Zelle = Zellen.at(Quelle ? 0 : Stelle(z)).at(Stelle(s));
  if (Zelle == Neu) return;
  Zelle = std::move(Neu);
  Merken(z, z + 1);
}

void Gitter::ZeilenSetzen(int Anzahl) {
  Neues.Zeilenzahl = Neues.Zeilenzahl || Anzahl != Quellzeilen;
  Quellzeilen = Anzahl;
  Merken(0, Anzahl);
  if (Entwurfzeile >= Anzahl) Entwurfzeile = -1;
  Zeile = std::clamp(*Zeile, 0, std::max(Anzahl - 1, 0));
}

void Gitter::ZeileUmziehen(int Von, int Nach) {
  const auto Neu = [&](int z) {
    if (z == Von) return Nach;
    return Von < z && z <= Nach ? z - 1 : Nach <= z && z < Von ? z + 1 : z;
  };
  Zeile = Neu(Zeile);
  Ziel = Neu(Ziel);
  Entwurfzeile = Neu(Entwurfzeile);
  Merken(std::min(Von, Nach), std::max(Von, Nach) + 1);
}

void Gitter::EntwurfVerwerfen() {
  const int z = std::exchange(Entwurfzeile, -1);
  if (z >= 0) Merken(z, z + 1);
}

void Gitter::ZeileAnhängen() { ZeileAnhängen(std::vector<std::string>(Spalten.size())); }

void Gitter::ZeileAnhängen(std::vector<std::string> Texte) {
  Zellen.push_back(std::move(Texte));
  Neues.Zeilenzahl = true;
  Merken(Zeilen() - 1, Zeilen());
}

void Gitter::ZeileEinfügen(int z) {
  Zellen.emplace(Zellen.begin() + z, Spalten.size());
  if (Stelle(z) < Marken.size()) Marken.insert(Marken.begin() + z, false);
  Neues.Zeilenzahl = true;
  Merken(z, Zeilen());
}

void Gitter::ZeileLöschen(int z) {
  if (z < 0 || z >= Zeilen()) return;
  Zellen.erase(Zellen.begin() + z);
  if (Stelle(z) < Marken.size()) Marken.erase(Marken.begin() + z);
  Neues.Zeilenzahl = true;
  Merken(z, Zeilen());
  Zeile = std::clamp(*Zeile, 0, std::max(Zeilen() - 1, 0));
}

void Gitter::Leeren(int ZeilenDanach) {
  Zellen.assign(Stelle(ZeilenDanach), std::vector<std::string>(Spalten.size()));
  Marken.clear();
  Neues.Zeilenzahl = true;
  Merken(0, ZeilenDanach);
  Zeile = Spalte = 0;
}

bool Gitter::ZelleOffen() const {
  return !NurLesen && Zeile < Zeilen() && Spalten.at(Stelle(Spalte)).Eingabe;
}

int Gitter::Nummernspalte() const {
  const auto Nummern = [](const Gitterspalte& S) { return S.IstPnr; };
  if (Nummern(Spalten.at(Stelle(Spalte)))) return Spalte;
  const auto i = std::find_if(Spalten.begin(), Spalten.end(), Nummern);
  return i == Spalten.end() ? 0 : static_cast<int>(i - Spalten.begin());
}

int Gitter::Eingabespalte(int Schritt) const {
  for (int s = Spalte + Schritt; s >= 0 && s < std::ssize(Spalten); s += Schritt) {
    if (Spalten[Stelle(s)].Eingabe && Spalten[Stelle(s)].Sichtbar) return s;
  }
  return -1;
}

void Gitter::Merken(int Von, int Bis) {
  if (Von >= Bis) return;
  const bool Erstes = Neues.Von >= Neues.Bis;
  Neues.Von = Erstes ? Von : std::min(Neues.Von, Von);
  Neues.Bis = Erstes ? Bis : std::max(Neues.Bis, Bis);
}

Gitteränderung Gitter::ÄnderungAbholen() {
  Gitteränderung Ä = std::exchange(Neues, {});
  Ä.Bis = std::min(Ä.Bis, Zeilen());
  for (Gezeigt<int>* G : {&Zeile, &Spalte}) Ä.Zelle = G->Abholen() || Ä.Zelle;
  for (Gitterspalte& S : Spalten) Ä.Spalten = S.Sichtbar.Abholen() || Ä.Spalten;
  return Ä;
}

}  // namespace tavorena
