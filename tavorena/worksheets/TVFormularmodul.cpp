#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

namespace {

std::string Gespeichert(const Wert& Zahl) { return ZahlFormat(Zahl, -1, Optionen.OptNachkommaSpeichern); }

}  // namespace

std::string Längentext(const Wert& Zahl) { return ZahlFormat(Zahl, -1, Optionen.OptNachkommastellen); }

int Längenbreite(int Vorkomma) { return 1 + Vorkomma + 1 + Optionen.OptNachkommastellen; }

double VierStellen(double Zahl) { return ZahlAusText(ZahlFormat(Zahl, -1, Messdezimalen)); }

std::string Messwerttext(double Zahl, int Dezimalen) {
  std::string Text = ZahlFormat(Zahl, -1, Dezimalen);
  if (Optionen.OptNachkommastellen < Dezimalen && Text.ends_with('0')) Text.pop_back();
  return Text;
}

bool MesswertLesen(std::string& Text, double& Zahl, int Dezimalen) {
  if (!IstZahlText(Text)) return false;
  Zahl = ZahlAusText(ZahlFormat(Text, -1, Dezimalen));
  Text = Messwerttext(Zahl, Dezimalen);
  return true;
}

bool MesswertPrüfen(std::string& Text, double& Zahl, int Dezimalen) {
  std::string Normal = Text;
  double Neu = 0;
  if (!MesswertLesen(Normal, Neu, Dezimalen)) {
    StatusHilfeSetzen("Zahl erwartet");
    return false;
  }
  if (!StapelZahlPaßt(Neu)) {
    StatusHilfeSetzen("Der Wert muß zwischen -999999.9999 und 9999999.9999 liegen");
    return false;
  }
  Zahl = Neu;
  Text = Normal;
  return true;
}

bool WortPrüfen(const std::string& Text) {
  if (StapelWortPaßt(Text)) return true;
  StatusHilfeSetzen(Text == "-" ? "\"-\" steht für keine Punktnummer und kein Symbol"
                                : "Punktnummer und Symbol ohne Leerzeichen");
  return false;
}

int NeupunktEintragen(Wert& Pnr, double Rechts, double Hoch, const Wert& Hoehe, const std::string& Symbol,
                      const KorInfoSatz* Info, Punktnotiz& Notiz) {
  Notiz = {};
  Notiz.Rechts = Rechts;
  Notiz.Hoch = Hoch;
  const int Zeile = KorSucheMitPunkt(Pnr);
  if (Zeile >= 0) {
    const auto z = static_cast<std::size_t>(Zeile);
    const bool Lage =
        Gespeichert(KorRechts[z]) == Gespeichert(Rechts) && Gespeichert(KorHoch[z]) == Gespeichert(Hoch);
    if (Lage && (Hoehe.Zahl() == 0 || Gespeichert(KorHoehe[z]) == Gespeichert(Hoehe.Zahl()))) return Zeile;
  }
  NeupunktErgebnis Ergebnis;
  Notiz.Code = Neupunkt(Pnr, Rechts, Hoch, Hoehe, Symbol, Info, Ergebnis);
  if (Notiz.Code == NeupunktCode::Nichts) return -1;
  Notiz.Nummer = Notiz.Code == NeupunktCode::NeuerNeunum ? Ergebnis.Pnr : Ergebnis.AlterPnr;
  Notiz.DeltaRechts = Ergebnis.DeltaRechts;
  Notiz.DeltaHoch = Ergebnis.DeltaHoch;
  Notiz.Rechts = Ergebnis.Rechts;
  Notiz.Hoch = Ergebnis.Hoch;
  return KorSuche(Pnr);
}

}  // namespace tavorena
