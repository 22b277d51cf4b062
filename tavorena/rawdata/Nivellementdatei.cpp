#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Nivellementdatei.h>
#include <tavorena/rawdata/Nivrechnung.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

constexpr int Lesedezimalen = 5, Weitendezimalen = 4;

// @return false: the word is no number
bool WertNehmen(std::string_view Wort, int Dezimalen, double& x) {
  if (Wort.empty() || Wort == "-") return true;
  const double Neu = IstZahlwort(Wort) ? ZahlAusText(Wort) : NAN;
  if (!std::isfinite(Neu) || !StapelAblesungPaßt(Neu)) return false;
  x = ZahlAusText(ZahlFormat(Neu, -1, Dezimalen));
  return true;
}

// A remark as the batch file can hold it.
std::string Bemerkungstext(std::string_view Rest) {
  std::string Text(Rest);
  for (char& z : Text) z = static_cast<unsigned char>(z) < 32 || z == 127 ? ' ' : z;
  return Trimmen(Text);
}

std::string Spalte(double x, int Dezimalen) {
  const std::string Text = std::isnan(x) ? "-" : ZahlFormat(x, -1, Dezimalen);
  return "  " + RechtsBündig(Text, 9);
}

std::string Punktzeile(const Nivzeile& Z) {
  std::string Zeile = PnrFormat(Z.Pnr);
  for (const double x : {Z.R, Z.Z, Z.V}) Zeile += Spalte(x, Lesedezimalen);
  for (const double x : {Z.sR, Z.sV}) Zeile += Spalte(x, Weitendezimalen);
  return Z.Bemerkung.empty() ? Zeile : Zeile + "  " + Z.Bemerkung;
}

}  // namespace

Nivzeilenart NivzeileLesen(std::string_view Zeile, Nivzeile& P, std::string& Name) {
  const std::string_view Pnr = Wortnehmen(Zeile);
  if (Pnr.empty() || Pnr == "C")
    return TrimmenSicht(Zeile).empty() || Pnr == "C" ? Nivzeilenart::Nichts : Nivzeilenart::Falsch;
  if (Pnr == "NIV") {
    Name = Bemerkungstext(Zeile);
    return Nivzeilenart::Name;
  }
  Nivzeile Neu;
  Neu.Pnr = Pnr;
  bool Gut = StapelWortPaßt(Pnr);
  for (double* x : {&Neu.R, &Neu.Z, &Neu.V}) Gut = Gut && WertNehmen(Wortnehmen(Zeile), Lesedezimalen, *x);
  for (double* x : {&Neu.sR, &Neu.sV}) Gut = Gut && WertNehmen(Wortnehmen(Zeile), Weitendezimalen, *x);
  if (!Gut) return Nivzeilenart::Falsch;
  Neu.Bemerkung = Bemerkungstext(Zeile);
  P = std::move(Neu);
  return Nivzeilenart::Punkt;
}

int NivDateiLesen(const std::string& Datei, std::vector<Nivlinie>& Linien) {
  std::string Inhalt, Grund;
  if (TextdateiLesen(Datei, Inhalt, &Grund) < 0) {
    LesefehlerMelden(Datei, Grund);
    return -1;
  }
  std::vector<Nivlinie> Neue(1);
  Zeilenleser Leser(Inhalt);
  std::string_view Zeile;
  for (int Nummer = 1; Leser.Nächste(Zeile); ++Nummer) {
    Nivzeile P;
    std::string Name;
    const Nivzeilenart Art = NivzeileLesen(Zeile, P, Name);
    if (Art == Nivzeilenart::Falsch) {
      Hinweis("NIV- Datei\n" + Datei + "\nZeile " + std::to_string(Nummer) + " ist nicht zu lesen:\n" +
              Zitat(Sichtbar(Zeile.substr(0, 200))));
      return -1;
    }
    if (Art == Nivzeilenart::Punkt) Neue.back().Zeilen.push_back(std::move(P));
    if (Art != Nivzeilenart::Name) continue;
    if (!Neue.back().Zeilen.empty()) Neue.emplace_back();
    Neue.back().Name = std::move(Name);
  }
  if (Neue.back().Zeilen.empty()) Neue.pop_back();
  Linien = std::move(Neue);
  return 0;
}

std::string NivText(const std::vector<Nivlinie>& Linien) {
  std::string Text = "C    Punkt       Rück   Zwischen        Vor         sR         sV  Bemerkung\r\n";
  for (const Nivlinie& L : Linien) {
    if (&L != &Linien.front() || !L.Name.empty()) Text += "NIV " + L.Name + "\r\n";
    for (const Nivzeile& Z : L.Zeilen) Text += Punktzeile(Z) + "\r\n";
  }
  return Text;
}

std::vector<Nivzeile> NivZeilen(std::vector<Nivlinie> Linien) {
  std::vector<Nivzeile> Alle;
  for (Nivlinie& L : Linien) {
    if (!L.Zeilen.empty() && L.Zeilen.front().Bemerkung.empty()) L.Zeilen.front().Bemerkung = L.Name;
    Alle.insert(Alle.end(), L.Zeilen.begin(), L.Zeilen.end());
  }
  return Alle;
}

int DatSchreiben(const std::string& Datei, const std::vector<Nivzeile>& Zeilen, int& Anzahl) {
  const std::vector<NivellementZeile> Feldbuch = NivellementZeilen({{}, Zeilen});
  std::vector<NivellementStand> Stände;
  int Zeile = 0;
  if (const int Fehler = NivellementStaende(Feldbuch, Stände, Zeile); Fehler != 0) {
    Hinweis("Zeile " + std::to_string(Zeile + 1) + " des Nivellements: " + NivellementFehlertext(Fehler));
    return -1;
  }
  std::string Text, Grund;
  for (const NivellementStand& S : Stände) {
    const auto Pnr = [&](int z) { return PnrFormat(Feldbuch[static_cast<std::size_t>(z)].Punkt) + "  "; };
    const Wert Länge = std::isnan(S.Laenge) ? Wert() : Wert(S.Laenge);
    Text += Pnr(S.Von) + Pnr(S.Nach) + ZahlFormat(S.dH, 4, 5) + "  " + ZahlFormat(Länge, 5, 1) + "\r\n";
  }
  Anzahl = static_cast<int>(Stände.size());
  if (DateiErsetzen(Datei, Text, &Grund) == 0) return 0;
  SpeicherfehlerMelden(Datei, Grund, "Nivellement.Dat");
  return -1;
}

}  // namespace tavorena
