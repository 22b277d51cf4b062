#include <cmath>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVLinelForm.h>

namespace tavorena {
namespace {

constexpr Blattart Linel = {"TVLinelForm",
                            "Linel",
                            "VR 24.40 Linienelemente",
                            "Tavorena Linienelemente [Stapel]",
                            "Berechnung Linienelemente",
                            4110};
constexpr std::size_t SpalteRed = 5;  // first of the two grid columns with the reduced values
constexpr double Atempause = 0.5;     // s between two looks at the stop button

}  // namespace

TVLinelForm::TVLinelForm()
    : Gitterblatt(Linel),
      Anlegemass(Messfeld("Anlegemass", "Anlegemaß", {1, 6}, a)),
      Endmass(Messfeld("Endmass", "Endmaß", {2, 6}, e)),
      L(Anschlussergebnis("L", "L:", 0)),
      E(Anschlussergebnis("E", "E:", 2)),
      M(Anschlussergebnis("M", "M:", 4)),
      D(Anschlussergebnis("D", "D:", 6)),
      Ws(Anschlussergebnis("Ws", "WS:", 8)) {
  const char* const Rahmen = "Streifen";
  BeschriftungAnlegen("Von Punktnr.:", {0, 0}, Rahmen);
  Pnrvon = &FeldAnlegen(Mit("Pnrvon"), {0, 1}, Rahmen, 10);
  BeschriftungAnlegen("Bis Punktnr.:", {0, 2}, Rahmen);
  Pnrbis = &FeldAnlegen(Mit("Pnrbis"), {0, 3}, Rahmen, 10);
  BeschriftungAnlegen("Breite (0 = alle):", {0, 4}, Rahmen);
  Breite = &ZahlenfeldAnlegen(Mit("Streifen"), {0, 5}, Rahmen, 8);
  Breite->Text = "0";
  for (Feld* S : {Pnrvon, Pnrbis}) S->IstPnr = S->Rechtsbündig = true;
  Breite->Hilfe = "Return nimmt alle Punkte des Bereichs im Streifen als Zeilen auf";
  GitterAufbauen({{"Punktnr.", 10, true},
                  {"Rechts", 12},
                  {"Hoch", 12},
                  {"Linie", 10},
                  {"Seitw.", 10},
                  {"S-red", 10, false, true, false},
                  {"A-red", 10, false, true, false}});
}

void TVLinelForm::AnschlussAnAus(bool An) {
  Gitterblatt::AnschlussAnAus(An);
  for (Feld* S : {Pnrvon, Pnrbis, Breite}) S->Aktiv = !An;
}

void TVLinelForm::AnschlussRechnen() {
  if (!AnschlussGesetzt()) return;
  if (LinienelementeAnschluss(Anf.Ort, End.Ort, a, e, Werte) < 0) return;
  ZeigeAnschluss();
}

void TVLinelForm::ZeigeAnschluss() {
  L.Text = Längentext(Werte.EntfGerechnet);
  E.Text = Längentext(a + Werte.EntfGerechnet);
  // The worksheet shows computed over measured, as the measured line does.
  M.Text = Gemessen() != 0 ? ZahlFormat(Laenge() / Gemessen(), -1, 6) : "";
  D.Text = Längentext(Werte.AbweichungZulaessig);
  Ws.Text = e != 0 ? Längentext(Werte.Abweichung) : "";
  Ws.Fehlerhaft = std::fabs(Werte.Abweichung) > std::fabs(Werte.AbweichungZulaessig);
}

int TVLinelForm::AnschlussEinzel() {
  if (Gemessen() == 0) {
    Endmass.Fehlerhaft = true;
    Melde("Anlegemaß und Endmaß sind gleich");
    FokusSetzen(Endmass);
    return -1;
  }
  if (Gitterblatt::AnschlussEinzel() < 0) return -1;
  for (const std::size_t s : {SpalteRed, SpalteRed + 1}) Rechengitter->Spalten[s].Sichtbar = MitRed();
  return 0;
}

void TVLinelForm::KopfwerteSetzen(double AnfWert, double EndWert) {
  MesswertSetzen(Anlegemass, AnfWert);
  MesswertSetzen(Endmass, EndWert);
}

void TVLinelForm::Kopfwerte(double& AnfWert, double& EndWert) const {
  AnfWert = a;
  EndWert = e;
}

int TVLinelForm::ZeileRechnen(Zeile& Z) const {
  return Linienelemente(Anf.Ort, End.Ort, Z.Ort, Z.Wert1, Z.Wert2);
}

std::vector<std::string> TVLinelForm::Zellen(const Zeile& Z) const {
  return {Längentext(Z.Ort.RW), Längentext(Z.Ort.HW),         Längentext(Z.Wert1),
          Längentext(Z.Wert2),  Längentext(a + Red(Z.Wert1)), Längentext(Red(Z.Wert2))};
}

void TVLinelForm::AnschlussProtokollieren() const {
  ProtLinelAnschluss({Zeilenpunkt(Anf),
                      Zeilenpunkt(End),
                      a,
                      {},
                      e != 0 ? e : a + Werte.EntfGerechnet,
                      {},
                      Werte.Abweichung,
                      Werte.AbweichungZulaessig});
}

void TVLinelForm::ZeileProtokollieren(const Zeile& Z, const std::string& Marke) const {
  const Wert LinieRed = MitRed() ? Wert(a + Red(Z.Wert1)) : Wert(),
             SeitwRed = MitRed() ? Wert(Red(Z.Wert2)) : Wert();
  ProtLinelZeile({Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Wert1, Z.Wert2, LinieRed, SeitwRed, Marke);
}

bool TVLinelForm::TasteUnten(Steuerelement& S, Taste T) {
  if (&S == Breite && T == Taste::Return) {
    Streifen();
    return true;
  }
  return Gitterblatt::TasteUnten(S, T);
}

void TVLinelForm::Streifen() {
  double Grenze = 0;
  std::string Text = Breite->Text;
  Breite->Fehlerhaft = !MesswertLesen(Text, Grenze);
  Breite->Text = Text;
  if (Breite->Fehlerhaft || Pnrvon->Text->empty()) return FokusSetzen(Breite->Fehlerhaft ? *Breite : *Pnrvon);
  if (Pnrbis->Text->empty()) Pnrbis->Text = Pnrvon->Text;
  AblaufPort().Beschäftigt(true);
  double Zuletzt = AblaufPort().Zeitgeber();
  int Anzahl = 0;
  for (int z = KorBereichSuche(*Pnrvon->Text, *Pnrbis->Text, -1); z >= 0 && KorStop != "Stop";
       z = KorBereichSuche(*Pnrvon->Text, *Pnrbis->Text, z)) {
    Zeile Z;
    Z.Ort = {KorRechts[static_cast<std::size_t>(z)], KorHoch[static_cast<std::size_t>(z)]};
    if (ZeileRechnen(Z) < 0 || (Grenze != 0 && std::fabs(Z.Wert2) > std::fabs(Grenze))) continue;
    if (ZeileEintragen(KorPnr(z)) == 0) ++Anzahl;
    const double Jetzt = AblaufPort().Zeitgeber();
    if (Jetzt - Zuletzt < Atempause) continue;
    Zuletzt = Jetzt;
    Melde(std::to_string(Anzahl) + " Zeilen");
    AblaufPort().EreignisseAbarbeiten();
  }
  KorStop.clear();
  AblaufPort().Beschäftigt(false);
  Melde(std::to_string(Anzahl) + " Punkte im Streifen");
  FokusSetzen(*Rechengitter);
}

}  // namespace tavorena
