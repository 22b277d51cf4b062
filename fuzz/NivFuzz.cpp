#include "Fuzzhilfe.h"

#include <tavorena/core/Ports.h>
#include <tavorena/rawdata/Nivrechnung.h>
#include <tavorena/rawdata/Nivrohdaten.h>

namespace tavorena::fuzz {
namespace {

// What was read is written so that it reads back, and each height that comes out is a number.
void Prüflauf(const std::vector<Nivlinie>& Linien) {
  std::vector<Nivlinie> Wieder;
  const std::string Text = NivText(Linien), Name = Datei("b.niv", Text);
  Prüfen(NivDateiLesen(Name, Wieder) == 0 && NivText(Wieder) == Text, "ein Feldbuch liest sich zurück");
  Niveingabe E;
  E.Zeilen = NivZeilen(Linien);
  if (!E.Zeilen.empty()) E.Feste.push_back({E.Zeilen[E.Zeilen.size() / 2].Pnr, 100});
  Nivrechnung R;
  const Nivmangel M = NivRechnen(E, R);
  int Anzahl = 0;
  if (!M.Text.empty()) return;
  for (const NivellementWert& W : R.Werte.Zeilen) Prüfen(W.Hoehe == W.Hoehe, "jede Zeile hat ihre Höhe");
  Prüfen(DatSchreiben(Ordner() + "/b.dat", E.Zeilen, Anzahl) == 0, "was Höhen hat, hat Stände");
  Prüfen(NivHöhen(E.Zeilen, R).size() <= E.Zeilen.size(), "jeder Punkt steht einmal");
}

void Lauf(Eingabe E) {
  const int Art = E.Zahl(0, 2);
  if (E.IstUtf16()) return;
  std::vector<Nivlinie> Linien;
  if (Art == 0) {
    if (NivDateiLesen(Datei("a.niv", E.Rest()), Linien) == 0) Prüflauf(Linien);
    return;
  }
  Nivfund F;
  Prüfen(NivellementLesen(Datei("a.gsi", E.Rest()), Art == 1 ? Rohform::GSI : Rohform::GRE, F) == 0,
         "jede Datei wird gelesen");
  Prüflauf(F.Linien);
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
