#include <string>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/points/Punktzeile.h>
#include <tavorena/points/Selektion.h>
#include <tavorena/points/TVPSelectForm.h>

namespace tavorena {
namespace {

constexpr const char* RahmenBereich = "Punktbereich";
constexpr const char *FilterSel = "Selektionen (*.sel)|*.sel", *VorgabeSel = "*.sel";

class TVPSelectForm final : public Dialogform {
 public:
  explicit TVPSelectForm(const Punktlisten& Punkte)
      : Dialogform("TVPSelectForm", "Tavorena Auswahl Punkte"), Listen(Punkte) {
    Hilfenummer = 1035;
    Liste.Markenspalte = 0;
    Liste.NurLesen = true;
    Liste.Hilfe = "Leertaste, Return und Klick wählen; mit Umschalt bis zur Zeile";
    Liste.BeiMarke = [this] { StandZeigen(); };
    ListeFüllen();
    BeschriftungAnlegen("&Von Punktnr.", {0, 0}, RahmenBereich);
    Von = &BereichsfeldAnlegen("PSelectPnrvon", 1);
    BeschriftungAnlegen("Bis Punktnr.", {0, 2}, RahmenBereich);
    Bis = &BereichsfeldAnlegen("PSelectPnrbis", 3);
    Bis->BeiReturn = [this] { BereichWählen(); };
    KnopfAnlegen(
        "Bereich", "&Dazuwählen", [this] { BereichWählen(); }, {0, 4}, RahmenBereich);
    KnopfAnlegen("OK", "&OK", [this] { Übernehmen(); });
    KnopfAnlegen("Alle", "&Alle", [this] { AlleWählen(true); }, {0, 1});
    KnopfAnlegen("Keine", "&Keine", [this] { AlleWählen(false); }, {0, 2});
    KnopfAnlegen("SelLesen", "Selektion &lesen ...", [this] { SelektionHolen(); }, {0, 3});
    KnopfAnlegen("SelSpeichern", "Selektion s&peichern ...", [this] { SelektionAblegen(); }, {0, 4});
    AbbruchAnlegen("Abbrechen", "A&bbrechen", {0, 5});
    StandZeigen();
  }

  std::vector<int> Gewählt;

 private:
  Feld& BereichsfeldAnlegen(const char* Name, int Spalte) {
    Feld& F = ZahlenfeldAnlegen(Name, {0, Spalte}, RahmenBereich, PnrZeichen);
    F.IstPnr = true;
    return F;
  }

  void ListeFüllen() {
    Liste.Leeren(static_cast<int>(Listen.Pnr.size()));
    for (int z = 0; z < Liste.Zeilen(); ++z) {
      const auto i = static_cast<std::size_t>(z);
      Liste.InhaltSetzen(z, 1, Listen.Pnr[i]);
      Liste.InhaltSetzen(z, 2, Koordinatentext(Listen.Rechts[i]));
      Liste.InhaltSetzen(z, 3, Koordinatentext(Listen.Hoch[i]));
      Liste.InhaltSetzen(z, 4, Hoehentext(Listen.Hoehe[i]));
      Liste.InhaltSetzen(z, 5, Listen.Symbol[i]);
    }
  }

  void StandZeigen() {
    Stand.Text = std::to_string(Liste.Markierte().size()) + " von " +
                 Anzahltext(Liste.Zeilen(), "Punkt", "Punkten") + " gewählt";
  }

  void AlleWählen(bool An) {
    for (int z = 0; z < Liste.Zeilen(); ++z) Liste.MarkeSetzen(z, An);
    StandZeigen();
  }

  void BereichWählen() {
    if (Trimmen(*Von->Text).empty()) return FokusSetzen(*Von);
    if (Trimmen(*Bis->Text).empty()) return FokusSetzen(*Bis);
    const double Unten = ZahlAusText(*Von->Text), Oben = ZahlAusText(*Bis->Text);
    if (Unten > Oben) {
      FehlerMeldung("Punktbereich " + Zitat(*Von->Text) + " - " + Zitat(*Bis->Text) +
                    ": die erste Nummer ist größer als die letzte");
      return FokusSetzen(*Von);
    }
    for (int z = 0; z < Liste.Zeilen(); ++z) {
      const double Nummer = ZahlAusText(Listen.Pnr[static_cast<std::size_t>(z)]);
      if (Nummer >= Unten && Nummer <= Oben) Liste.MarkeSetzen(z, true);
    }
    StandZeigen();
    FokusSetzen(*Von);
  }

  // What the file names is chosen besides.
  void SelektionHolen() {
    const std::string Name = DateiFragen("Selektion lesen", FilterSel, VorgabeSel, false);
    std::vector<std::string> Nummern;
    if (Name.empty() || SelektionLesen(Name, Nummern) < 0) return;
    int Fremde = 0;
    for (const int z : SelektionZeilen(Nummern, Listen.Pnr, Fremde)) Liste.MarkeSetzen(z, true);
    StandZeigen();
    if (Fremde > 0)
      Hinweis(Anzahltext(Fremde, "Zeile nennt keinen Punkt", "Zeilen nennen keinen Punkt") + ":\n" + Name);
  }

  void SelektionAblegen() {
    const std::string Name = DateiFragen("Selektion speichern", FilterSel, VorgabeSel, true);
    if (Name.empty()) return;
    std::vector<std::string> Nummern;
    for (const int z : Liste.Markierte()) Nummern.push_back(Listen.Pnr[static_cast<std::size_t>(z)]);
    if (SelektionSchreiben(Name, Nummern) == 0) StatusHilfeSetzen("Gespeichert: " + Name);
  }

  void Übernehmen() {
    Gewählt = Liste.Markierte();
    Fertig(0);
  }

  const Punktlisten& Listen;
  Gitter& Liste = GitterAnlegen("PSelectGitter", Punktwahlspalten(), {0, 0});
  Beschriftung& Stand = BeschriftungAnlegen("", {1, 0});
  Feld *Von = nullptr, *Bis = nullptr;
};

}  // namespace

int PunkteAuswählen(const Punktlisten& Listen, std::vector<int>& Zeilen) {
  TVPSelectForm Form(Listen);
  const int Ergebnis = Form.Zeigen();
  Zeilen = std::move(Form.Gewählt);
  return Ergebnis;
}

int TabellenpunkteAuswählen(std::vector<int>& Zeilen) {
  Punktlisten L;
  for (int z = 0; z < KorAnzahl; ++z) {
    const KorSatz P = KorPunkt(z);
    L.Pnr.emplace_back(P.Pnr);
    L.Rechts.push_back(P.Rechts);
    L.Hoch.push_back(P.Hoch);
    L.Hoehe.push_back(P.Hoehe);
    L.Symbol.emplace_back(P.Symbol);
  }
  return PunkteAuswählen(L, Zeilen);
}

}  // namespace tavorena
