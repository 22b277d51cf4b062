#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Markierung.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {

std::string PDoppErgebnis;

namespace {

Punktreihe* Reihe = nullptr;  // the innermost one

// Where an answer for all numbers to come is kept; nullptr: each one is asked.
std::optional<Konfliktwort>* FürAlleJetzt() {
  if (Stapel.Läuft()) return &Stapel.FürAlle;
  return Reihe != nullptr ? &Reihe->FürAlle : nullptr;
}

constexpr double Grenze = 0.06;  // dS above it is red [m]

const char* Kürzel(Konfliktwort Wort) {
  switch (Wort) {
    case Konfliktwort::AltenErsetzen:
      return "ALÖ";
    case Konfliktwort::Mitteln:
      return "MIT";
    case Konfliktwort::AltenNeunum:
      return "ANN";
    case Konfliktwort::NeuenVerwerfen:
      return "NLÖ";
    case Konfliktwort::NeuenNeunum:
      return "NNN";
    case Konfliktwort::Nochmal:
      return "RÜC";
    case Konfliktwort::Abbrechen:
      break;
  }
  return "ABB";
}

std::string Zahlentext(const Wert& Zahl) {
  return Trimmen(ZahlFormat(Zahl, 7, Optionen.OptNachkommastellen));
}

class TVPDoppForm final : public Dialogform {
 public:
  explicit TVPDoppForm(const Konflikt& Frage)
      : Dialogform("TVPDoppForm", "Tavorena Punkt vorhanden"), Nummer(Frage.Pnr) {
    Hilfenummer = 4020;
    Ungefragt = true;
    Fest = {1000, 1000, 9600};
    const auto z = static_cast<std::size_t>(Frage.Zeile);
    const char* const Spalten[] = {"Punktnr.", "Rechts", "Hoch", "Höhe", "Sy."};
    for (int i = 0; i < 5; ++i) BeschriftungAnlegen(Spalten[i], {0, i + 1}).Rechtsbündig = i < 4;
    AlterPnr = &Punktzeile("Alter Punkt:", "AlterPunkt", 1, KorPnr(Frage.Zeile), KorRechts[z], KorHoch[z],
                           KorHoehe[z], KorSymbol[z]);
    NeuerPnr = &Punktzeile("Neuer Punkt:", "NeuerPunkt", 2, Frage.Pnr, Frage.Rechts, Frage.Hoch, Frage.Hoehe,
                           Frage.Symbol);
    BeschriftungAnlegen("Abweichungen (alt minus neu):", {3, 0, 2});
    const double dR = AchtStellen(KorRechts[z] - Frage.Rechts), dH = AchtStellen(KorHoch[z] - Frage.Hoch);
    const bool MitHoehe = KorHoehe[z] != 0 && Frage.Hoehe.Zahl() != 0;
    ErgebnisfeldAnlegen("DeltaRechts", {3, 2}, "", PnrZeichen).Text = Zahlentext(dR);
    ErgebnisfeldAnlegen("DeltaHoch", {3, 3}, "", PnrZeichen).Text = Zahlentext(dH);
    ErgebnisfeldAnlegen("DeltaHöhe", {3, 4}, "", 11).Text =
        MitHoehe ? Zahlentext(AchtStellen(KorHoehe[z] - Frage.Hoehe.Zahl())) : "";
    BeschriftungAnlegen("dS:", {4, 2});
    const double dS = AchtStellen(Strecke(0, 0, dR, dH));
    Feld& DeltaS = ErgebnisfeldAnlegen("DeltaS", {4, 3}, "", PnrZeichen);
    DeltaS.Bezeichnung = "dS";
    DeltaS.Text = Zahlentext(dS);
    DeltaS.Fehlerhaft = dS > Grenze;
    if (FürAlleJetzt() != nullptr)
      FürAlle = &KästchenAnlegen(
          "PDoppFürAlle",
          std::string("&für alle weiteren Punkte") + (Stapel.Läuft() ? " dieses Stapels" : " dieses Laufs"),
          {5, 0, 6});
    KnöpfeAnlegen();
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

  void KnöpfeAnlegen() {
    Antwortknopf("PDoppAltenLöschen", "&Alten Punkt löschen", Konfliktwort::AltenErsetzen, {0, 0});
    Antwortknopf("PDoppNeuenLöschen", "&Neuen Punkt löschen", Konfliktwort::NeuenVerwerfen, {0, 1});
    Antwortknopf("PDoppMitteln", "&Mitteln", Konfliktwort::Mitteln, {0, 2});
    AltenNeunum = &Antwortknopf("PDoppAltenNeunum", "Alten Punkt &umnumerieren", Konfliktwort::AltenNeunum,
                                {1, 0}, AlterPnr);
    NeuenNeunum = &Antwortknopf("PDoppNeuenNeunum", "Neuen &Punkt umnumerieren", Konfliktwort::NeuenNeunum,
                                {1, 1}, NeuerPnr);
    AltenNeunum->Aktiv = NeuenNeunum->Aktiv = false;
    Antwortknopf("PDoppRückgängig", "&Rückgängig", Konfliktwort::Nochmal, {1, 2}).OhnePrüfung = true;
    Abbrechen = &AbbruchAnlegen("PDoppAbbruch", "- A&bbrechen -", {1, 3});
  }

  // A button that ends the question with its word, and with the number in a field.
  Knopf& Antwortknopf(const char* Name, const char* Text, Konfliktwort Wort, Platz Ort,
                      const Feld* NeueNummer = nullptr) {
    return KnopfAnlegen(
        Name, Text,
        [this, Wort, NeueNummer] {
          Antwort = {Wort, NeueNummer != nullptr ? *NeueNummer->Text : ""};
          if (FürAlle != nullptr && FürAlle->Gewählt && GiltFürAlle(Wort)) *FürAlleJetzt() = Wort;
          Fertig(0);
        },
        Ort);
  }

  static bool GiltFürAlle(Konfliktwort Wort) {
    return Wort == Konfliktwort::AltenErsetzen || Wort == Konfliktwort::Mitteln ||
           Wort == Konfliktwort::NeuenVerwerfen;
  }

  // A new number must differ from the taken one and be free.
  bool NummerLesen(Feld& F) const {
    F.Text = Trimmen(*F.Text);
    if (!NummerTaugt(F.Text)) return false;
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
  Auswahl* FürAlle = nullptr;  // only where many points come
};

// Has the view show both places, at least a third of the picture apart.
void FensterUmBeide(const KorSatz& Alter, const Konflikt& Frage) {
  const Grafikzustand& G = GrafikFenster;
  const double dR = std::abs(Alter.Rechts - Frage.Rechts), dH = std::abs(Alter.Hoch - Frage.Hoch);
  const double Breite = std::max({3 * dR, 3 * dH * G.BildBreite / G.BildHoehe, 0.01});
  GrafikFensterSetzen(Frage.Rechts, Frage.Hoch, Breite);
  GrafikMitte((Alter.Rechts + Frage.Rechts) / 2, (Alter.Hoch + Frage.Hoch) / 2);
}

// A view that is open shows both places and the line between them until the user has seen them.
void OrteAnsehen(const Konflikt& Frage) {
  const Grafikzustand Vorher = GrafikFenster;
  if (!Vorher.GrafikOffen || Vorher.Massstab == 0) return;
  const KorSatz Alter = KorPunkt(Frage.Zeile);
  Markierung Beide;
  Beide.Linie({Alter.Rechts, Alter.Hoch, Frage.Rechts, Frage.Hoch, FarbeBlau});
  Beide.Punkt({"", Alter.Rechts, Alter.Hoch, "MARK", FarbeRot});
  Beide.Punkt({Frage.Pnr + " (neu)", Frage.Rechts, Frage.Hoch, ZeichenNeu, FarbeBlau});
  FensterUmBeide(Alter, Frage);
  StatusHilfeSetzen("Alter Punkt rot, neuer Punkt blau: weiter mit Klick in die Grafik oder Esc");
  AnzeigePort().GrafikAnsehen();
  StatusHilfeSetzen("");
  GrafikFensterSetzen(Vorher.FensterRechts, Vorher.FensterHoch, Vorher.FensterBreite);
}

}  // namespace

Punktreihe::Punktreihe() : Davor(std::exchange(Reihe, this)) {}
Punktreihe::~Punktreihe() { Reihe = Davor; }

Konfliktantwort PunktVorhandenBehandeln(const Konflikt& Frage) {
  Konfliktantwort Antwort;
  if (const auto* FürAlle = FürAlleJetzt(); FürAlle != nullptr && *FürAlle) {
    Antwort.Wort = **FürAlle;
    Dialogergebnis = 0;
  } else {
    TVPDoppForm Form(Frage);
    static_cast<void>(Form.Zeigen());  // what was broken off has its word
    Antwort = Form.Antwort;
  }
  PDoppErgebnis = Kürzel(Antwort.Wort);
  if (Antwort.Wort == Konfliktwort::Nochmal) OrteAnsehen(Frage);
  return Antwort;
}

}  // namespace tavorena
