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

const std::string& Gitter::Inhalt(int z, int s) const { return Zellen.at(Stelle(z)).at(Stelle(s)); }

void Gitter::InhaltSetzen(int z, int s, std::string Neu) {
  std::string& Zelle = Zellen.at(Stelle(z)).at(Stelle(s));
  if (Zelle == Neu) return;
  Zelle = std::move(Neu);
  Merken(z, z + 1);
}

void Gitter::ZeileAnhängen() {
  Zellen.emplace_back(Spalten.size());
  Neues.Zeilenzahl = true;
  Merken(Zeilen() - 1, Zeilen());
}

void Gitter::ZeileLöschen(int z) {
  if (z < 0 || z >= Zeilen()) return;
  Zellen.erase(Zellen.begin() + z);
  Neues.Zeilenzahl = true;
  Merken(z, Zeilen());
  Zeile = std::clamp(*Zeile, 0, std::max(Zeilen() - 1, 0));
}

void Gitter::Leeren(int ZeilenDanach) {
  Zellen.assign(Stelle(ZeilenDanach), std::vector<std::string>(Spalten.size()));
  Neues.Zeilenzahl = true;
  Merken(0, ZeilenDanach);
  Zeile = Spalte = 0;
}

bool Gitter::ZelleOffen() const {
  return !NurLesen && Zeile < Zeilen() && Spalten.at(Stelle(Spalte)).Eingabe;
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
