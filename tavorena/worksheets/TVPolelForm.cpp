#include <cmath>

#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVPolelForm.h>

namespace tavorena {
namespace {

constexpr Blattart Polel = {"TVPolelForm",
                            "Polel",
                            "VR 08.40 Polarelemente",
                            "Tavorena Polarelemente [Stapel]",
                            "Berechnung Polarelemente",
                            4120};

std::string Gontext(double Gon) { return ZahlFormat(Gon, -1, 4); }

}  // namespace

TVPolelForm::TVPolelForm()
    : Gitterblatt(Polel),
      Orientierung(Messfeld("Orientierung", "Richtung (gon)", {2, 6}, Ablesung)),
      Strecke(Messfeld("Strecke", "Strecke", {2, 8}, Gemessen)),
      L(Anschlussergebnis("L", "L:", 0)),
      M(Anschlussergebnis("M", "M:", 2)),
      D(Anschlussergebnis("D", "D:", 4)),
      Ws(Anschlussergebnis("Ws", "WS:", 6)) {
  GitterAufbauen({{"Punktnr.", 10, true}, {"Rechts", 12}, {"Hoch", 12}, {"Richtung", 12}, {"Strecke", 12}});
}

void TVPolelForm::AnschlussRechnen() {
  double Zwischen = 0;
  if (!AnschlussGesetzt() || PolarelementeAnschluss(Anf.Ort, End.Ort, Gemessen, Zwischen, Nord, Werte) < 0)
    return;
  L.Text = Längentext(Werte.EntfGerechnet);
  M.Text = ZahlFormat(Gemessen != 0 ? Werte.EntfGerechnet / Gemessen : 1.0, -1, 6);
  D.Text = Längentext(Werte.AbweichungZulaessig);
  Ws.Text = Gemessen != 0 ? Längentext(Werte.Abweichung) : "";
  Ws.Fehlerhaft = std::fabs(Werte.Abweichung) > std::fabs(Werte.AbweichungZulaessig);
}

void TVPolelForm::KopfwerteSetzen(double AnfWert, double EndWert) {
  MesswertSetzen(Orientierung, AnfWert);
  MesswertSetzen(Strecke, EndWert);
}

void TVPolelForm::Kopfwerte(double& AnfWert, double& EndWert) const {
  AnfWert = Ablesung;
  EndWert = Gemessen;
}

int TVPolelForm::ZeileRechnen(Zeile& Z) const {
  double Nordrichtung = 0;
  return Polarelemente(Anf.Ort, End.Ort, Z.Ort, Ablesung, Z.Wert1, Z.Wert2, Nordrichtung);
}

std::vector<std::string> TVPolelForm::Zellen(const Zeile& Z) const {
  return {Längentext(Z.Ort.RW), Längentext(Z.Ort.HW), Gontext(Z.Wert1), Längentext(Z.Wert2)};
}

void TVPolelForm::AnschlussProtokollieren() const {
  ProtPolelAnschluss({Zeilenpunkt(Anf), Zeilenpunkt(End), Nord, Werte.EntfGerechnet, Ablesung,
                      Gemessen != 0 ? Wert(Gemessen) : Wert(), Werte.Abweichung, Werte.AbweichungZulaessig});
}

void TVPolelForm::ZeileProtokollieren(const Zeile& Z, const std::string& Marke) const {
  ProtPolelZeile({Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Wert1, Z.Wert2, Marke);
}

}  // namespace tavorena
