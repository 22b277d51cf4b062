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

std::string Zahlentext(const Wert& Zahl) {
  return Trimmen(ZahlFormat(Zahl, 7, Optionen.OptNachkommastellen));
}

class TVPDoppForm final : public Formular {
 public:
  explicit TVPDoppForm(const Konflikt& Frage) : Formular("TVPDoppForm"), Nummer(Frage.Pnr) {
    Titel = "Tavorena Punkt vorhanden";
    const auto z = static_cast<std::size_t>(Frage.Zeile);
    const char* const Spalten[] = {"Punktnr.", "Rechts", "Hoch", "Höhe", "Sy."};
    for (int i = 0; i < 5; ++i) Beschriftung(Spalten[i], {0, i + 1}).Rechtsbündig = i < 4;
    AlterPnr = &Punktzeile("Alter Punkt:", "AlterPunkt", 1, KorPnr(Frage.Zeile), KorRechts[z], KorHoch[z],
                           KorHoehe[z], KorSymbol[z]);
    NeuerPnr = &Punktzeile("Neuer Punkt:", "NeuerPunkt", 2, Frage.Pnr, Frage.Rechts, Frage.Hoch, Frage.Hoehe,
                           Frage.Symbol);
    Beschriftung("Abweichungen (alt minus neu):", {3, 0, 2});
    const double dR = KorRechts[z] - Frage.Rechts, dH = KorHoch[z] - Frage.Hoch;
    const bool MitHoehe = KorHoehe[z] != 0 && Frage.Hoehe.Zahl() != 0;
    Ergebnisfeld("DeltaRechts", {3, 2}).Text = Zahlentext(dR);
    Ergebnisfeld("DeltaHoch", {3, 3}).Text = Zahlentext(dH);
    Ergebnisfeld("DeltaHöhe", {3, 4}).Text = MitHoehe ? Zahlentext(KorHoehe[z] - Frage.Hoehe.Zahl()) : "";
    Beschriftung("dS:", {4, 2});
    Ergebnisfeld("DeltaS", {4, 3}).Text = Zahlentext(Strecke(0, 0, dR, dH));
    Knopf("PDoppAltenLöschen", "&Alten löschen", {0, 0});
    Knopf("PDoppNeuenLöschen", "&Neuen löschen", {0, 1});
    Knopf("PDoppMitteln", "&Mitteln", {0, 2});
    Knopf("PDoppAltenNeunum", "A&lten neu numerieren", {1, 0}).Aktiv = false;
    Knopf("PDoppNeuenNeunum", "Ne&uen neu numerieren", {1, 1}).Aktiv = false;
    Knopf("PDoppRückgängig", "&Rückgängig", {1, 2}).OhnePrüfung = true;
    Steuerelement& Abbrechen = Knopf("PDoppAbbruch", "- A&bbrechen -", {1, 3});
    Abbrechen.Abbruch = Abbrechen.OhnePrüfung = true;
  }

  Konfliktantwort Antwort;

 protected:
  void BeiÖffnen() override { FokusSetzen(*Finde("PDoppAbbruch")); }

  // A new number must differ from the taken one and be free.
  bool FokusVerloren(Steuerelement& S) override {
    if (&S != AlterPnr && &S != NeuerPnr) return true;
    S.Text = Trimmen(S.Text);
    S.Fehlerhaft = S.Text.empty() || S.Text.find_first_of(" \t") != std::string::npos;
    if (!S.Fehlerhaft && S.Text != Trimmen(Nummer) && KorSuche(Wert(S.Text)) >= 0) {
      S.Fehlerhaft = true;
      PunktVorhandenMeldung(S.Text);
    }
    return !S.Fehlerhaft;
  }

  void TextGeändert(Steuerelement& S) override {
    const bool Alt = &S == AlterPnr;
    (Alt ? NeuerPnr : AlterPnr)->Text = Trimmen(Nummer);
    const bool Anders = Trimmen(S.Text) != Trimmen(Nummer);
    Finde("PDoppAltenNeunum")->Aktiv = Alt && Anders;
    Finde("PDoppNeuenNeunum")->Aktiv = !Alt && Anders;
  }

  void Geklickt(Steuerelement& S) override {
    struct Knopfwort {
      const char *Knopf, *Wort;
    };
    constexpr Knopfwort Worte[] = {{"PDoppAltenLöschen", "ALÖ"}, {"PDoppNeuenLöschen", "NLÖ"},
                                   {"PDoppMitteln", "MIT"},      {"PDoppAltenNeunum", "ANN"},
                                   {"PDoppNeuenNeunum", "NNN"},  {"PDoppRückgängig", "RÜC"}};
    for (const Knopfwort& W : Worte) {
      if (S.Name == W.Knopf) Antwort.Wort = W.Wort;
    }
    if (Antwort.Wort == "ANN") Antwort.NeuePnr = AlterPnr->Text;
    if (Antwort.Wort == "NNN") Antwort.NeuePnr = NeuerPnr->Text;
    Schließen();
  }

 private:
  Steuerelement& Punktzeile(const char* Label, const std::string& Name, int Zeile, const std::string& Pnr,
                            double R, double H, const Wert& Z, const std::string& Sy) {
    Beschriftung(Label, {Zeile, 0});
    Steuerelement& Feldnummer = Feld(Name + "Pnr", {Zeile, 1});
    Feldnummer.Text = Trimmen(Pnr);
    Feldnummer.Rechtsbündig = Feldnummer.IstPnr = true;
    Ergebnisfeld(Name + "Rechts", {Zeile, 2}).Text = Zahlentext(R);
    Ergebnisfeld(Name + "Hoch", {Zeile, 3}).Text = Zahlentext(H);
    Ergebnisfeld(Name + "Höhe", {Zeile, 4}, "", 9).Text = Zahlentext(Z);
    Steuerelement& Symbol = Ergebnisfeld(Name + "Symbol", {Zeile, 5}, "", 5);
    Symbol.Text = Sy;
    Symbol.Rechtsbündig = false;
    return Feldnummer;
  }

  std::string Nummer;
  Steuerelement *AlterPnr = nullptr, *NeuerPnr = nullptr;
};

}  // namespace

Konfliktantwort PunktVorhandenBehandeln(const Konflikt& Frage) {
  TVPDoppForm Form(Frage);
  AnzeigePort().FormularZeigen(Form, true);
  return Form.Antwort;
}

}  // namespace tavorena
