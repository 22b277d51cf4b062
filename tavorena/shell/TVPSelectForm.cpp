#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/shell/TVPSelectForm.h>

namespace tavorena {
namespace {

class TVPSelectForm final : public Formular {
 public:
  explicit TVPSelectForm(const Punktlisten& Punkte) : Formular("TVPSelectForm"), Listen(Punkte) {
    Titel = "Tavorena Auswahl Punkte";
    Hilfenummer = 1030;
    Liste = &NeuesGitter("PSelectGitter",
                         {{"M.", 4, true, false},
                          {"Punktnr.", 12},
                          {"Rechts", 14},
                          {"Hoch", 14},
                          {"Höhe", 10},
                          {"Sy.", 6, false, false}},
                         {0, 0});
    Liste->Leeren(static_cast<int>(Listen.Pnr.size()));
    for (int z = 0; z < Liste->Zeilen(); ++z) {
      const auto i = static_cast<std::size_t>(z);
      Liste->InhaltSetzen(z, 1, Listen.Pnr[i]);
      Liste->InhaltSetzen(z, 2, Zahl(Listen.Rechts[i]));
      Liste->InhaltSetzen(z, 3, Zahl(Listen.Hoch[i]));
      Liste->InhaltSetzen(z, 4, Zahl(Listen.Hoehe[i]));
      Liste->InhaltSetzen(z, 5, Listen.Symbol[i]);
    }
    Knopf("OK", "&OK");
    Knopf("Alle", "&Alle", {0, 1});
    Steuerelement& Nein = Knopf("Abbrechen", "A&bbrechen", {0, 2});
    Nein.Abbruch = Nein.OhnePrüfung = true;
  }

  std::vector<std::string> Gewählt;
  bool Bestätigt = false;

 protected:
  bool TasteUnten(Steuerelement& S, Taste T) override {
    if (&S != Liste || T == Taste::Escape || Liste->Zeilen() == 0) return false;
    if (T == Taste::Return) Markieren(Liste->Zeile, Liste->Inhalt(Liste->Zeile, 0).empty());
    if (T == Taste::Return || T == Taste::Ab) Liste->Zeile = std::min(Liste->Zeile + 1, Liste->Zeilen() - 1);
    if (T == Taste::Auf) Liste->Zeile = std::max(Liste->Zeile - 1, 0);
    return true;
  }

  // Whatever is typed into the mark column is a mark, a blank takes it away.
  void TextGeändert(Steuerelement& S) override {
    if (&S == Liste)
      Markieren(Liste->Zeile, Liste->Inhalt(Liste->Zeile, 0).find_first_not_of(' ') != std::string::npos);
  }

  void Geklickt(Steuerelement& S) override {
    if (S.Name == "Alle") {
      for (int z = 0; z < Liste->Zeilen(); ++z) Markieren(z, true);
      return;
    }
    Bestätigt = S.Name == "OK";
    for (int z = 0; Bestätigt && z < Liste->Zeilen(); ++z) {
      if (!Liste->Inhalt(z, 0).empty()) Gewählt.push_back(Listen.Pnr[static_cast<std::size_t>(z)]);
    }
    Schließen();
  }

 private:
  static std::string Zahl(double x) { return ZahlFormat(x, -1, Optionen.OptNachkommastellen); }
  void Markieren(int z, bool An) { Liste->InhaltSetzen(z, 0, An ? "*" : ""); }

  const Punktlisten& Listen;
  Gitter* Liste;
};

}  // namespace

int PunkteAuswählen(const Punktlisten& Listen, std::vector<std::string>& Gewählt) {
  TVPSelectForm Form(Listen);
  AnzeigePort().FormularZeigen(Form, true);
  Gewählt = std::move(Form.Gewählt);
  return Dialogergebnis = Form.Bestätigt ? 0 : -1;
}

}  // namespace tavorena
