#include <algorithm>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/shell/TVPSelectForm.h>

namespace tavorena {
namespace {

class TVPSelectForm final : public Dialogform {
 public:
  explicit TVPSelectForm(const Punktlisten& Punkte)
      : Dialogform("TVPSelectForm", "Tavorena Auswahl Punkte"), Listen(Punkte) {
    Hilfenummer = 1030;
    Liste = &GitterAnlegen("PSelectGitter",
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
    Liste->BeiTaste = [this](Taste T) { return GitterTaste(T); };
    // Whatever is typed into the mark column is a mark, a blank takes it away.
    Liste->BeiText = [this] {
      Markieren(Liste->Zeile, Liste->Inhalt(Liste->Zeile, 0).find_first_not_of(' ') != std::string::npos);
    };
    KnopfAnlegen("OK", "&OK", [this] { Übernehmen(); });
    KnopfAnlegen("Alle", "&Alle", [this] { AlleMarkieren(); }, {0, 1});
    AbbruchAnlegen("Abbrechen", "A&bbrechen", {0, 2});
  }

  std::vector<std::string> Gewählt;

 private:
  static std::string Zahl(double x) { return ZahlFormat(x, -1, Optionen.OptNachkommastellen); }
  bool GitterTaste(Taste T) {
    if (T == Taste::Escape || Liste->Zeilen() == 0) return false;
    if (T == Taste::Return) Markieren(Liste->Zeile, Liste->Inhalt(Liste->Zeile, 0).empty());
    if (T == Taste::Return || T == Taste::Ab) Liste->Zeile = std::min(Liste->Zeile + 1, Liste->Zeilen() - 1);
    if (T == Taste::Auf) Liste->Zeile = std::max(Liste->Zeile - 1, 0);
    return true;
  }

  void AlleMarkieren() {
    for (int z = 0; z < Liste->Zeilen(); ++z) Markieren(z, true);
  }

  void Übernehmen() {
    for (int z = 0; z < Liste->Zeilen(); ++z) {
      if (!Liste->Inhalt(z, 0).empty()) Gewählt.push_back(Listen.Pnr[static_cast<std::size_t>(z)]);
    }
    Fertig(0);
  }

  void Markieren(int z, bool An) { Liste->InhaltSetzen(z, 0, An ? "*" : ""); }

  const Punktlisten& Listen;
  Gitter* Liste;
};

}  // namespace

int PunkteAuswählen(const Punktlisten& Listen, std::vector<std::string>& Gewählt) {
  TVPSelectForm Form(Listen);
  const int Ergebnis = Form.Zeigen();
  Gewählt = std::move(Form.Gewählt);
  return Ergebnis;
}

}  // namespace tavorena
