#include <functional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Bezeichnung.h>
#include <tavorena/points/Punktzeile.h>

namespace tavorena {
namespace {

std::size_t Schlüssel(const KorSatz& P) {
  const std::hash<double> Zahl;
  return std::hash<std::string_view>()(P.Pnr) ^ (31 * Zahl(P.Rechts)) ^ (961 * Zahl(P.Hoch));
}

constexpr const char* Spaltentitel[] = {"Punktnr.", "Rechts", "Hoch", "Höhe", "Sy."};

// Width of a field with so many integer places, the sign included [characters].
int Breite(int Vorkomma) { return Vorkomma + 1 + Optionen.OptNachkommastellen; }

}  // namespace

std::string Koordinatentext(double Zahl) { return ZahlFormat(Zahl, -1, Optionen.OptNachkommastellen); }

std::string Hoehentext(double Zahl) { return Zahl == 0 ? "" : Koordinatentext(Zahl); }

Punktzeile::Punktzeile(Formular& Form, const std::string& Name, const std::string& Index, Platz Ort,
                       const std::string& Rahmen, const std::string& Symbolname)
    : Pnr(Form.ZahlenfeldAnlegen(Name + "Pnr" + Index, Ort, Rahmen, PnrZeichen)),
      Rechts(
          Form.ErgebnisfeldAnlegen(Name + "Rechts" + Index, {Ort.Zeile, Ort.Spalte + 1}, Rahmen, Breite(8))),
      Hoch(Form.ErgebnisfeldAnlegen(Name + "Hoch" + Index, {Ort.Zeile, Ort.Spalte + 2}, Rahmen, Breite(8))),
      Hoehe(Form.ErgebnisfeldAnlegen(Name + "Höhe" + Index, {Ort.Zeile, Ort.Spalte + 3}, Rahmen, Breite(5))),
      Sym(Form.ErgebnisfeldAnlegen(Name + Symbolname + Index, {Ort.Zeile, Ort.Spalte + 4}, Rahmen, 5)) {
  Pnr.IstPnr = true;
  Sym.Rechtsbündig = false;
  if (Rahmen.empty() || !Index.empty()) return;
  // The only row of its frame, which may have no headings.
  Feld* const Felder[] = {&Pnr, &Rechts, &Hoch, &Hoehe, &Sym};
  for (std::size_t i = 0; i < std::size(Felder); ++i)
    Felder[i]->Bezeichnung = Gesprochen(Rahmen) + " " + Spaltentitel[i];
}

void Punktzeile::Zeigen(const Punktsatz& P) {
  Pnr.Text = P.Pnr;
  Rechts.Text = Koordinatentext(P.Rechts);
  Hoch.Text = Koordinatentext(P.Hoch);
  Hoehe.Text = Hoehentext(P.Hoehe);
  Sym.Text = P.Symbol;
}

void Punktzeile::Leeren() {
  for (Feld* F : {&Pnr, &Rechts, &Hoch, &Hoehe, &Sym}) F->Text = "";
  Pnr.Fehlerhaft = false;
}

void Punktzeile::SichtbarSetzen(bool An) {
  for (Feld* F : {&Pnr, &Rechts, &Hoch, &Hoehe, &Sym}) F->Sichtbar = An;
}

void Punktzeile::PlatzHalten() {
  for (Feld* F : {&Pnr, &Rechts, &Hoch, &Hoehe, &Sym}) F->PlatzHalten = true;
}

void PunktzeileKopf(Formular& Form, Platz Ort, const std::string& Rahmen) {
  for (int i = 0; i < 5; ++i)
    Form.BeschriftungAnlegen(Spaltentitel[i], {Ort.Zeile, Ort.Spalte + i}, Rahmen).Rechtsbündig = i < 4;
}

std::vector<Gitterspalte> Punktwahlspalten() {
  return {{"M.", 4, false, false}, {Spaltentitel[0], PnrZeichen}, {Spaltentitel[1], 14},
          {Spaltentitel[2], 14},   {Spaltentitel[3], 10},         {Spaltentitel[4], 6, false, false}};
}

void Punktsammlung::Hinzu(const std::vector<int>& Zeilen) {
  static_cast<void>(Nachsehen());
  Stand = KorStand;
  std::unordered_set<int> Da;
  for (const Punkt& P : Gesammelt) Da.insert(P.Zeile);
  for (const int z : Zeilen) {
    if (Da.insert(z).second) Gesammelt.push_back({z, PunktsatzVon(z)});
  }
}

std::vector<std::size_t> Punktsammlung::Nachsehen() {
  std::vector<std::size_t> Weg;
  if (std::exchange(Stand, KorStand) == KorStand || Gesammelt.empty()) return Weg;
  std::unordered_multimap<std::size_t, int> Zeilen;
  for (int z = KorAnzahl; z-- > 0;) Zeilen.emplace(Schlüssel(KorPunkt(z)), z);
  std::vector<Punkt> Noch;
  for (std::size_t i = 0; i < Gesammelt.size(); ++i) {
    Punkt& P = Gesammelt[i];
    auto [Erste, Ende] = Zeilen.equal_range(Schlüssel(P.Satz.Satz()));
    while (Erste != Ende && PunktsatzVon(Erste->second) != P.Satz) ++Erste;
    if (Erste == Ende) {
      Weg.push_back(i);
      continue;
    }
    Noch.push_back({Erste->second, std::move(P.Satz)});
    Zeilen.erase(Erste);
  }
  Gesammelt = std::move(Noch);
  return Weg;
}

}  // namespace tavorena
