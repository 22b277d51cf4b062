#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/points/TVPDoppForm.h>

namespace tavorena {
namespace {

constexpr double Grenze = 0.06;  // dS above it is red [m]

std::string Zahlentext(const Wert& Zahl) {
  return Trimmen(ZahlFormat(Zahl, 7, Optionen.OptNachkommastellen));
}

class TVPDoppForm final : public Formular {
 public:
  explicit TVPDoppForm(const Konflikt& Frage) : Formular("TVPDoppForm"), Nummer(Frage.Pnr) {
    Titel = "Tavorena Punkt vorhanden";
    Ungefragt = true;
    const auto z = static_cast<std::size_t>(Frage.Zeile);
    const char* const Spalten[] = {"Punktnr.", "Rechts", "Hoch", "Höhe", "Sy."};
    for (int i = 0; i < 5; ++i) BeschriftungAnlegen(Spalten[i], {0, i + 1}).Rechtsbündig = i < 4;
    AlterPnr = &Punktzeile("Alter Punkt:", "AlterPunkt", 1, KorPnr(Frage.Zeile), KorRechts[z], KorHoch[z],
                           KorHoehe[z], KorSymbol[z]);
    NeuerPnr = &Punktzeile("Neuer Punkt:", "NeuerPunkt", 2, Frage.Pnr, Frage.Rechts, Frage.Hoch, Frage.Hoehe,
                           Frage.Symbol);
    BeschriftungAnlegen("Abweichungen (alt minus neu):", {3, 0, 2});
    const double dR = KorRechts[z] - Frage.Rechts, dH = KorHoch[z] - Frage.Hoch;
    const bool MitHoehe = KorHoehe[z] != 0 && Frage.Hoehe.Zahl() != 0;
    ErgebnisfeldAnlegen("DeltaRechts", {3, 2}, "", PnrZeichen).Text = Zahlentext(dR);
    ErgebnisfeldAnlegen("DeltaHoch", {3, 3}, "", PnrZeichen).Text = Zahlentext(dH);
    ErgebnisfeldAnlegen("DeltaHöhe", {3, 4}, "", 11).Text =
        MitHoehe ? Zahlentext(KorHoehe[z] - Frage.Hoehe.Zahl()) : "";
    BeschriftungAnlegen("dS:", {4, 2});
    const double dS = Strecke(0, 0, dR, dH);
    Feld& DeltaS = ErgebnisfeldAnlegen("DeltaS", {4, 3}, "", PnrZeichen);
    DeltaS.Text = Zahlentext(dS);
    DeltaS.Fehlerhaft = dS > Grenze;
    Antwortknopf("PDoppAltenLöschen", "&Alten löschen", Konfliktwort::AltenErsetzen, {0, 0});
    Antwortknopf("PDoppNeuenLöschen", "&Neuen löschen", Konfliktwort::NeuenVerwerfen, {0, 1});
    Antwortknopf("PDoppMitteln", "&Mitteln", Konfliktwort::Mitteln, {0, 2});
    AltenNeunum = &Antwortknopf("PDoppAltenNeunum", "A&lten neu numerieren", Konfliktwort::AltenNeunum,
                                {1, 0}, AlterPnr);
    NeuenNeunum = &Antwortknopf("PDoppNeuenNeunum", "Ne&uen neu numerieren", Konfliktwort::NeuenNeunum,
                                {1, 1}, NeuerPnr);
    AltenNeunum->Aktiv = NeuenNeunum->Aktiv = false;
    Antwortknopf("PDoppRückgängig", "&Rückgängig", Konfliktwort::Nochmal, {1, 2}).OhnePrüfung = true;
    Abbrechen = &AbbruchAnlegen("PDoppAbbruch", "- A&bbrechen -", {1, 3});
  }

  Konfliktantwort Antwort;

 protected:
  void BeiÖffnen() override { FokusSetzen(*Abbrechen); }

 private:
  Feld& Punktzeile(const char* Label, const std::string& Name, int Zeile, const std::string& Pnr, double R,
                   double H, const Wert& Z, const std::string& Sy) {
    BeschriftungAnlegen(Label, {Zeile, 0});
    Feld& F = FeldAnlegen(Name + "Pnr", {Zeile, 1}, "", PnrZeichen);
    F.Text = Trimmen(Pnr);
    F.Rechtsbündig = F.IstPnr = true;
    F.BeiVerlassen = [this, &F] { return NummerLesen(F); };
    F.BeiText = [this, &F] { NummerGeändert(F); };
    F.BeiReturn = [this, &F] { NachNummer(F); };
    ErgebnisfeldAnlegen(Name + "Rechts", {Zeile, 2}, "", PnrZeichen).Text = Zahlentext(R);
    ErgebnisfeldAnlegen(Name + "Hoch", {Zeile, 3}, "", PnrZeichen).Text = Zahlentext(H);
    ErgebnisfeldAnlegen(Name + "Höhe", {Zeile, 4}, "", 11).Text = Zahlentext(Z);
    Feld& Symbol = ErgebnisfeldAnlegen(Name + "Symbol", {Zeile, 5}, "", 5);
    Symbol.Text = Sy;
    Symbol.Rechtsbündig = false;
    return F;
  }

  // A button that ends the question with its word, and with the number in a field.
  Knopf& Antwortknopf(const char* Name, const char* Text, Konfliktwort Wort, Platz Ort,
                      const Feld* NeueNummer = nullptr) {
    return KnopfAnlegen(
        Name, Text,
        [this, Wort, NeueNummer] {
          Antwort = {Wort, NeueNummer != nullptr ? *NeueNummer->Text : ""};
          Schließen();
        },
        Ort);
  }

  // A new number must differ from the taken one and be free.
  bool NummerLesen(Feld& F) const {
    F.Text = Trimmen(*F.Text);
    if (F.Text->empty() || F.Text->find_first_of(" \t") != std::string::npos) return false;
    Wert Neue(*F.Text);
    if (F.Text == Trimmen(Nummer) || KorSucheMitPunkt(Neue) < 0) return true;
    PunktVorhandenMeldung(F.Text);
    return false;
  }

  // Only one of the two gets a new number.
  void NummerGeändert(const Feld& F) {
    const bool Alt = &F == AlterPnr;
    (Alt ? NeuerPnr : AlterPnr)->Text = Trimmen(Nummer);
    const bool Anders = Trimmen(*F.Text) != Trimmen(Nummer);
    AltenNeunum->Aktiv = Alt && Anders;
    NeuenNeunum->Aktiv = !Alt && Anders;
  }

  // Return leads to the button that takes the new number; without one nothing is answered by accident.
  void NachNummer(const Feld& F) {
    Knopf& Sein = &F == AlterPnr ? *AltenNeunum : *NeuenNeunum;
    FokusSetzen(Sein.Aktiv ? Sein : *Abbrechen);
  }

  std::string Nummer;
  Feld *AlterPnr = nullptr, *NeuerPnr = nullptr;
  Knopf *AltenNeunum = nullptr, *NeuenNeunum = nullptr, *Abbrechen = nullptr;
};

}  // namespace

Konfliktantwort PunktVorhandenBehandeln(const Konflikt& Frage) {
  TVPDoppForm Form(Frage);
  AnzeigePort().FormularZeigen(Form, true);
  return Form.Antwort;
}

}  // namespace tavorena
