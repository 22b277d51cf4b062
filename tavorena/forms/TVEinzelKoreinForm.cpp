#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena {
namespace {

// One point: its number and values, as the surveyor has them in the field book.
class TVEinzelKoreinForm final : public Dialogform {
 public:
  explicit TVEinzelKoreinForm(const std::string& Nummer)
      : Dialogform("TVEinzelKoreinForm", "Punkt " + Zitat(Nummer) + " nicht vorhanden") {
    Hilfenummer = 4010;
    Ungefragt = true;
    const char* const Namen[] = {"Punktnr.:", "Rechts:", "Hoch:", "Höhe:", "Symbol:"};
    for (int i = 0; i < 5; ++i) BeschriftungAnlegen(Namen[i], {i, 0});
    Pnr.Text = Nummer;
    Pnr.IstPnr = true;
    Symbol.Zeichen = 6;
    for (Feld* F : {&Pnr, &Symbol}) F->BeiVerlassen = [F] { return WortLesen(*F); };
    for (Feld* F : {&Rechts, &Hoch, &Hoehe}) F->BeiVerlassen = [F] { return ZahlLesen(*F); };
    OkUndAbbruch([this] { Übernehmen(); });
  }

  /// The number typed is a known point, no coordinates go with it.
  [[nodiscard]] bool NurNummer() const {
    return KorSuche(Wert(*Pnr.Text)) >= 0 && Rechts.Text->empty() && Hoch.Text->empty();
  }

  Feld& Pnr = FeldAnlegen("EinzelPnr", {0, 1});
  Feld& Rechts = ZahlenfeldAnlegen("EinzelRechts", {1, 1});
  Feld& Hoch = ZahlenfeldAnlegen("EinzelHoch", {2, 1});
  Feld& Hoehe = ZahlenfeldAnlegen("EinzelHöhe", {3, 1});
  Feld& Symbol = FeldAnlegen("EinzelSymbol", {4, 1});

 protected:
  void BeiÖffnen() override { FokusSetzen(Rechts); }  // the number is there already

 private:
  static bool WortLesen(Feld& F) {
    F.Text = Trimmen(*F.Text);
    return F.Text->find_first_of(" \t") == std::string::npos;  // a file could not hold it
  }

  static bool ZahlLesen(Feld& F) {
    F.Text = Trimmen(*F.Text);
    if (!IstZahlText(*F.Text)) return false;
    if (!F.Text->empty()) F.Text = ZahlFormat(*F.Text, -1, Optionen.OptNachkommaSpeichern);
    return true;
  }

  void Übernehmen() {
    for (Feld* F : {&Pnr, &Rechts, &Hoch, &Hoehe, &Symbol}) {
      if (!Lesen(*F)) return FokusSetzen(*F);
    }
    if (Pnr.Text->empty()) return FokusSetzen(Pnr);
    for (Feld* F : {&Rechts, &Hoch}) {
      if (!NurNummer() && F->Text->empty()) return FokusSetzen(*F);
    }
    if (KorSuche(Wert(*Pnr.Text)) >= 0 && PunktVorhandenFrage(Pnr.Text) != 0) return FokusSetzen(Pnr);
    Fertig(0);
  }
};

}  // namespace

int FormEinzelKorein(Wert& Pnr) {
  TVEinzelKoreinForm Form(Trimmen(Pnr));
  if (Form.Zeigen() < 0) return -1;
  Pnr = Wert(*Form.Pnr.Text);
  if (Form.NurNummer()) return 1;
  NeupunktErgebnis Ergebnis;
  const Wert Hoehe = Form.Hoehe.Text->empty() ? Wert(NullWert{}) : Wert(ZahlAusText(*Form.Hoehe.Text));
  return Neupunkt(Pnr, ZahlAusText(*Form.Rechts.Text), ZahlAusText(*Form.Hoch.Text), Hoehe, Form.Symbol.Text,
                  nullptr, Ergebnis) == NeupunktCode::Nichts
             ? -1
             : 1;
}

}  // namespace tavorena
