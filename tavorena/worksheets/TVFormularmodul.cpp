#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

std::string LetztePunktnummer;

namespace {

constexpr int Messdezimalen = 4;  // decimals of a value in the batch file

std::string Gespeichert(const Wert& Zahl) { return ZahlFormat(Zahl, -1, Optionen.OptNachkommaSpeichern); }

// One point: its number and values, as the surveyor has them in the field book.
class TVEinzelKoreinForm final : public Formular {
 public:
  explicit TVEinzelKoreinForm(const std::string& Nummer) : Formular("TVEinzelKoreinForm") {
    Titel = "Punkt " + Nummer + " nicht vorhanden";
    Hilfenummer = 4010;
    const char* const Namen[] = {"Punktnr.:", "Rechts:", "Hoch:", "Höhe:", "Symbol:"};
    for (int i = 0; i < 5; ++i) Beschriftung(Namen[i], {i, 0});
    Pnr.Text = Nummer;
    Pnr.IstPnr = true;
    Symbol.Zeichen = 6;
    Knopf("OK", "&OK").Vorgabe = true;
    Steuerelement& Nein = Knopf("Abbrechen", "&Abbrechen", {0, 1});
    Nein.Abbruch = Nein.OhnePrüfung = true;
  }

  bool Bestätigt = false;
  bool Vorhanden = false;  // the number typed is a known point, no coordinates go with it
  Steuerelement& Pnr = Feld("EinzelPnr", {0, 1});
  Steuerelement& Rechts = Zahlenfeld("EinzelRechts", {1, 1});
  Steuerelement& Hoch = Zahlenfeld("EinzelHoch", {2, 1});
  Steuerelement& Hoehe = Zahlenfeld("EinzelHöhe", {3, 1});
  Steuerelement& Symbol = Feld("EinzelSymbol", {4, 1});

 protected:
  void BeiÖffnen() override { FokusSetzen(Rechts); }  // the number is there already

  bool FokusVerloren(Steuerelement& S) override {
    S.Text = Trimmen(S.Text);
    if (&S == &Pnr || &S == &Symbol) {
      S.Fehlerhaft = S.Text.find_first_of(" \t") != std::string::npos;  // a file could not hold it
    } else if (S.Art == Steuerart::Feld) {
      S.Fehlerhaft = !IstZahlText(S.Text);
      if (!S.Fehlerhaft && !S.Text.empty()) S.Text = Gespeichert(S.Text);
    }
    return !S.Fehlerhaft;
  }

  void Geklickt(Steuerelement& S) override {
    if (S.Name == "Abbrechen") return Schließen();
    for (Steuerelement* F : {&Pnr, &Rechts, &Hoch, &Hoehe, &Symbol}) {
      if (!FokusVerloren(*F)) return FokusSetzen(*F);
    }
    if (Pnr.Text.empty()) return FokusSetzen(Pnr);
    const bool Bekannt = KorSuche(Wert(Pnr.Text)) >= 0;
    Vorhanden = Bekannt && Rechts.Text.empty() && Hoch.Text.empty();
    for (Steuerelement* F : {&Rechts, &Hoch}) {
      if (!Vorhanden && F->Text.empty()) return FokusSetzen(*F);
    }
    if (Bekannt && PunktVorhandenFrage(Pnr.Text) != 0) return FokusSetzen(Pnr);
    Bestätigt = true;
    Schließen();
  }
};

}  // namespace

std::string PunktnummerSchritt(int Schritt) {
  const double Letzte = ZahlAusText(LetztePunktnummer);
  return Letzte == 0 ? std::string() : ZahlNachText(Letzte + Schritt).Text();
}

std::string Längentext(const Wert& Zahl) { return ZahlFormat(Zahl, -1, Optionen.OptNachkommastellen); }

std::string Messwerttext(double Zahl) {
  std::string Text = ZahlFormat(Zahl, -1, Messdezimalen);
  if (Optionen.OptNachkommastellen < Messdezimalen && Text.ends_with('0')) Text.pop_back();
  return Text;
}

bool MesswertLesen(std::string& Text, double& Zahl) {
  if (!IstZahlText(Text)) return false;
  Zahl = ZahlAusText(ZahlFormat(Text, -1, Messdezimalen));
  Text = Messwerttext(Zahl);
  return true;
}

int FormEinzelKorein(Wert& Pnr) {
  TVEinzelKoreinForm Form(Trimmen(Pnr));
  AnzeigePort().FormularZeigen(Form, true);
  Dialogergebnis = Form.Bestätigt ? 0 : -1;
  if (!Form.Bestätigt) return -1;
  Pnr = Wert(Form.Pnr.Text);
  if (Form.Vorhanden) return 1;
  NeupunktErgebnis Ergebnis;
  const Wert Hoehe = Form.Hoehe.Text.empty() ? Wert(NullWert{}) : Wert(ZahlAusText(Form.Hoehe.Text));
  return Neupunkt(Pnr, ZahlAusText(Form.Rechts.Text), ZahlAusText(Form.Hoch.Text), Hoehe, Form.Symbol.Text,
                  nullptr, Ergebnis) < 0
             ? -1
             : 1;
}

int NeupunktEintragen(Wert& Pnr, double Rechts, double Hoch, const Wert& Hoehe, const std::string& Symbol,
                      const KorInfoSatz* Info, Punktnotiz& Notiz) {
  Notiz = {};
  const int Zeile = KorSuche(Pnr);
  if (Zeile >= 0) {
    const auto z = static_cast<std::size_t>(Zeile);
    const bool Lage =
        Gespeichert(KorRechts[z]) == Gespeichert(Rechts) && Gespeichert(KorHoch[z]) == Gespeichert(Hoch);
    if (Lage && (Hoehe.Zahl() == 0 || Gespeichert(KorHoehe[z]) == Gespeichert(Hoehe.Zahl()))) return Zeile;
  }
  NeupunktErgebnis Ergebnis;
  Notiz.Code = Neupunkt(Pnr, Rechts, Hoch, Hoehe, Symbol, Info, Ergebnis);
  if (Notiz.Code < 0) return -1;
  Notiz.Nummer = Notiz.Code == 13 ? Ergebnis.Pnr : Ergebnis.AlterPnr;
  Notiz.DeltaRechts = Ergebnis.DeltaRechts;
  Notiz.DeltaHoch = Ergebnis.DeltaHoch;
  return KorSuche(Pnr);
}

}  // namespace tavorena
