#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Punktfeld.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

Punktfeld::Punktfeld(Rechenblatt& Blatt, const std::string& Welcher, const char* Label, const char* Rahmen,
                     int Zeile, const std::string& Nach)
    : Pnr((Blatt.BeschriftungAnlegen(Label, {Zeile, 0}, Rahmen),
           Blatt.ZahlenfeldAnlegen(Blatt.Mit(Welcher + "Pnr" + Nach), {Zeile, 1}, Rahmen, PnrZeichen))),
      Rechts(Blatt.ErgebnisfeldAnlegen(Blatt.Mit(Welcher + "Rechts" + Nach), {Zeile, 2}, Rahmen,
                                       Längenbreite(8))),
      Hoch(
          Blatt.ErgebnisfeldAnlegen(Blatt.Mit(Welcher + "Hoch" + Nach), {Zeile, 3}, Rahmen, Längenbreite(8))),
      H_he(
          Blatt.ErgebnisfeldAnlegen(Blatt.Mit(Welcher + "H_he" + Nach), {Zeile, 4}, Rahmen, Längenbreite(4))),
      Sym(Blatt.ErgebnisfeldAnlegen(Blatt.Mit(Welcher + "Sym" + Nach), {Zeile, 5}, Rahmen, 5)) {
  Pnr.IstPnr = true;
  Pnr.Hilfe = "Punktnummer; + und - zählen weiter";
  Pnr.BeiVerlassen = [this] { return Setzen() == 0; };
  Sym.Rechtsbündig = false;
  // The rows below the first frame have no headings.
  const std::pair<Feld*, const char*> Spalten[] = {
      {&Pnr, "Punktnr."}, {&Rechts, "Rechts"}, {&Hoch, "Hoch"}, {&H_he, "Höhe"}, {&Sym, "Sy."}};
  for (const auto& [F, Spalte] : Spalten) F->Bezeichnung = std::string(Label) + " " + Spalte;
}

void Punktfeld::Leeren() {
  for (Feld* F : {&Rechts, &Hoch, &H_he, &Sym}) F->Text = "";
  if (Gesetzt()) Alter = Gesucht;
  Gesucht.clear();
}

void Punktfeld::Nehmen(int Zeile) {
  const KorSatz P = KorPunkt(Zeile);
  Punkt = {P.Rechts, P.Hoch};
  Höhe = P.Hoehe;
  Stand = KorStand;
  Sym.Text = std::string(P.Symbol);
  Zeigen();
}

void Punktfeld::Zeigen() {
  Rechts.Text = Längentext(Punkt.RW);
  Hoch.Text = Längentext(Punkt.HW);
  H_he.Text = Höhe == 0 ? "" : Längentext(Höhe);
}

int Punktfeld::Setzen() {
  Pnr.Text = Trimmen(*Pnr.Text);
  if (*Pnr.Text == Gesucht) return 0;
  Leeren();
  if (!Pnr.Text->empty()) {
    Wert Nummer(*Pnr.Text);
    const int Zeile = KorFind(Nummer);
    if (Zeile < 0) return -1;
    Gesucht = LetztePunktnummer = Trimmen(Nummer);
    Pnr.Text = Gesucht;
    Nehmen(Zeile);
  }
  if (BeiWechsel) BeiWechsel();
  return 0;
}

bool Punktfeld::Auffrischen() {
  if (Gesetzt() && Stand == KorStand && *Pnr.Text == Gesucht) {
    Zeigen();  // the decimals may be other ones
    LetztePunktnummer = Gesucht;
    Pnr.Fehlerhaft = false;
    return true;
  }
  Leeren();
  return Formular::Lesen(Pnr) && Gesetzt();
}

void Punktfeld::Übernehmen(Punktfeld& Von) {
  Leeren();
  Pnr.Text = *Von.Pnr.Text;
  Gesucht = LetztePunktnummer = Von.Gesucht;
  Punkt = Von.Punkt;
  Höhe = Von.Höhe;
  Stand = Von.Stand;
  Sym.Text = *Von.Sym.Text;
  Zeigen();
  Von.Pnr.Text = "";
  Von.Leeren();
  if (BeiWechsel) BeiWechsel();
}

int Punktfeld::AusStapel(const std::string& Nummer) {
  Pnr.Text = Nummer;
  if (Setzen() == 0 && Gesetzt()) return 0;
  StapelFehlerMeldung("Anschlußpunkt " + Zitat(*Pnr.Text) + " fehlt");
  return -1;
}

bool Punktfeld::Nachsehen() {
  if (!Gesetzt() || Stand == KorStand) return false;
  const int Zeile = KorSuche(std::string_view(Gesucht));
  if (Zeile < 0) return false;
  const Lage Vorige = Punkt;
  Nehmen(Zeile);
  return Punkt.RW != Vorige.RW || Punkt.HW != Vorige.HW;
}

void PunktfeldKopf(Rechenblatt& Blatt, const char* Rahmen) {
  const char* const Überschriften[] = {"Punktnr.", "Rechts", "Hoch", "Höhe", "Sy."};
  for (int i = 0; i < 5; ++i)
    Blatt.BeschriftungAnlegen(Überschriften[i], {0, i + 1}, Rahmen).Rechtsbündig = i < 4;
}

}  // namespace tavorena
