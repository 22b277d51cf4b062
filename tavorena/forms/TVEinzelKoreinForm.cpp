#include <algorithm>
#include <cmath>
#include <limits>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
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
  [[nodiscard]] bool NurNummer() const { return Bekannt() && Rechts.Text->empty() && Hoch.Text->empty(); }

  Feld& Pnr = FeldAnlegen("EinzelPnr", {0, 1}, "", PnrZeichen);
  Feld& Rechts = ZahlenfeldAnlegen("EinzelRechts", {1, 1}, "", PnrZeichen);
  Feld& Hoch = ZahlenfeldAnlegen("EinzelHoch", {2, 1}, "", PnrZeichen);
  Feld& Hoehe = ZahlenfeldAnlegen("EinzelHöhe", {3, 1});
  Feld& Symbol = FeldAnlegen("EinzelSymbol", {4, 1});

 protected:
  void BeiÖffnen() override { FokusSetzen(Rechts); }  // the number is there already

 private:
  [[nodiscard]] bool Bekannt() const {
    Wert Nummer(*Pnr.Text);
    return KorSucheMitPunkt(Nummer) >= 0;
  }

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
    if (Bekannt() && PunktVorhandenFrage(Pnr.Text) != 0) return FokusSetzen(Pnr);
    if (!NurNummer() && !FernpunktFrage(Pnr.Text, ZahlAusText(*Rechts.Text), ZahlAusText(*Hoch.Text)))
      return FokusSetzen(Rechts);
    Fertig(0);
  }
};

// One coordinate of the table: its extent, and how near it comes to a value [m].
struct Ausdehnung {
  double Von = std::numeric_limits<double>::max(), Bis = std::numeric_limits<double>::lowest();
  double Nächster = std::numeric_limits<double>::max();

  void Nehmen(double Vorhanden, double Neu) {
    Von = std::min(Von, Vorhanden);
    Bis = std::max(Bis, Vorhanden);
    Nächster = std::min(Nächster, std::fabs(Vorhanden - Neu));
  }
};

}  // namespace

bool FernpunktFrage(const std::string& Pnr, double Rechts, double Hoch) {
  constexpr double Nähe = 10000;  // in both directions: nobody asks [m]
  Ausdehnung R, H;
  double Abstand = std::numeric_limits<double>::max();
  for (int z = 0; z < KorAnzahl; ++z) {
    const auto P = KorPunkt(z);
    if (P.Rechts == 0 && P.Hoch == 0) continue;
    if (std::fabs(P.Rechts - Rechts) <= Nähe && std::fabs(P.Hoch - Hoch) <= Nähe) return true;
    R.Nehmen(P.Rechts, Rechts);
    H.Nehmen(P.Hoch, Hoch);
    Abstand = std::min(Abstand, Strecke(P.Rechts, P.Hoch, Rechts, Hoch));
  }
  const bool Leer = R.Bis < R.Von;
  const double Grenze = Leer ? 0 : std::max({Nähe, 10 * (R.Bis - R.Von), 10 * (H.Bis - H.Von)});
  if (Leer || std::max(R.Nächster, H.Nächster) <= Grenze) return true;
  const std::string Km = Trimmen(ZahlFormat(Wert(Abstand / 1000), -1, 0));
  return FrageJaNein(
             "Punkt " + Zitat(Pnr) + " liegt " + Km + " km von allen anderen entfernt. Trotzdem aufnehmen ?",
             "Tavorena", KnopfNein) == KnopfJa;
}

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
