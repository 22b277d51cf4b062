#include <array>
#include <string>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/points/Editorspalten.h>
#include <tavorena/points/TVEDBSPunktForm.h>

namespace tavorena {
namespace {

constexpr int Wertspalte = 1;

class TVEDBSPunktForm final : public Dialogform {
 public:
  TVEDBSPunktForm(const EDBSPunktzugriff& Punkte, int Anfang)
      : Dialogform("TVEDBSPunktForm", ""), Platz(Anfang), Z(Punkte) {
    Hilfenummer = 2015;
    EDBSFlexgitter.NimmtZeilen = false;
    EDBSFlexgitter.NurLesen = !Z.Ändern;
    EDBSFlexgitter.Hilfe =
        Z.Ändern ? "Return geht weiter; was geändert ist, gilt mit \"Übernehmen\"" : "Attribute des Punktes";
    EDBSFlexgitter.BeiTaste = [this](Taste T) { return TasteNehmen(T); };
    EDBSFlexgitter.BeiVerlassen = [this] { return ZelleGut(EDBSFlexgitter.Zeile); };
    EDBSFlexgitter.BeiText = [this] { KnöpfeStellen(); };
    for (const Zeile& A : Zeilen) EDBSFlexgitter.ZeileAnhängen({A.Titel, ""});
    Knopf& Fertige = KnopfAnlegen("EDBSUebernehmen", "&Übernehmen", [this] { Übernehmen(); }, {0, 0});
    Fertige.Sichtbar = bool(Z.Ändern);
    Nehmen = &Fertige;
    Vor = &KnopfAnlegen("EDBSVorheriger", "&vorheriger", [this] { Gehe(-1); }, {0, 1});
    Nach = &KnopfAnlegen("EDBSNaechster", "&nächster", [this] { Gehe(1); }, {0, 2});
    Knopf& Ende = KnopfAnlegen("EDBSEnd", "S&chließen", [this] { SchließenVerlangen(); }, {0, 3});
    Ende.Abbruch = Ende.OhnePrüfung = true;
    EDBSPunktSetzeFelder();
  }

  int Platz;

 protected:
  void BeiÖffnen() override { EDBSFlexgitter.Spalte = Wertspalte; }
  bool DarfSchließen() override { return Geklärt(); }

 private:
  // A row: its label, and which column of the point editor reads and writes it.
  struct Zeile {
    const char* Titel;
    std::size_t Spalte;
  };
  static constexpr std::array<Zeile, 13> Zeilen = {{{"Punktnummer", EditorPnr},
                                                    {"Rechts", EditorRechts},
                                                    {"Hoch", EditorHoch},
                                                    {"Höhe", EditorHoehe},
                                                    {"Punktart(Symbol)", EditorSymbol + 1},
                                                    {"Punktstatus", EditorSymbol + 2},
                                                    {"Aktualität", EditorSymbol + 3},
                                                    {"Vermarkungsart", EditorSymbol + 4},
                                                    {"Bem.zur Verm.", EditorSymbol + 5},
                                                    {"Entstehung", EditorSymbol + 6},
                                                    {"Lagestatus", EditorSymbol + 7},
                                                    {"Lagegenauigk.", EditorSymbol + 8},
                                                    {"Art d.Höhenb.", EditorSymbol + 9}}};

  // Table to grid.
  void EDBSPunktSetzeFelder() {
    const KorSatz S = Z.Satz(Platz);
    for (std::size_t z = 0; z < Zeilen.size(); ++z) {
      Gezeigt[z] = Zellentext(z, S);
      EDBSFlexgitter.InhaltSetzen(static_cast<int>(z), Wertspalte, Gezeigt[z]);
    }
    EDBSFlexgitter.Fehlerhaft = false;
    Titel = "Tavorena Punktattribute  " + Trimmen(std::string(S.Pnr)) + "  (" + std::to_string(Platz + 1) +
            " von " + std::to_string(Z.Anzahl) + ")";
    KnöpfeStellen();
  }

  // Grid to table: what was typed; a length that is shown with fewer decimals than it has stays.
  bool EDBSPunktSetzeInfo() {
    const KorSatz S = Z.Satz(Platz);
    Punktsatz P{std::string(S.Pnr), S.Rechts, S.Hoch, S.Hoehe, std::string(S.Symbol), *S.Info};
    for (std::size_t z = 0; z < Zeilen.size(); ++z) {
      if (Geändert(z) && !ZelleNehmen(z, P)) return false;
    }
    return Z.Ändern(Platz, P);
  }

  [[nodiscard]] std::string Zellentext(std::size_t z, const KorSatz& S) const {
    const std::size_t s = Zeilen[z].Spalte;
    const double Länge = s == EditorRechts ? S.Rechts : s == EditorHoch ? S.Hoch : S.Hoehe;
    const bool IstLänge = s >= EditorRechts && s <= EditorHoehe && !(s == EditorHoehe && Länge == 0);
    return IstLänge ? ZahlFormat(Länge, -1, Optionen.OptNachkommastellen) : Spalten[s].Text(S);
  }

  [[nodiscard]] bool Geändert(std::size_t z) const {
    return EDBSFlexgitter.Inhalt(static_cast<int>(z), Wertspalte) != Gezeigt[z];
  }
  [[nodiscard]] bool EtwasGeändert() const {
    for (std::size_t z = 0; z < Zeilen.size(); ++z) {
      if (Geändert(z)) return true;
    }
    return false;
  }

  bool ZelleNehmen(std::size_t z, Punktsatz& P) {
    const std::string Text = Trimmen(EDBSFlexgitter.Inhalt(static_cast<int>(z), Wertspalte));
    const std::string Fehler = Spalten[Zeilen[z].Spalte].Nehmen(Text, P);
    if (Fehler.empty()) return true;
    EDBSFlexgitter.Zeile = static_cast<int>(z);
    FehlerMeldung(std::string(Zeilen[z].Titel) + (Text.empty() ? "" : " \"" + Zitat(Text) + "\"") + ": " +
                  Fehler);
    return false;
  }

  bool ZelleGut(int z) {
    Punktsatz Probe;
    return !Geändert(static_cast<std::size_t>(z)) || ZelleNehmen(static_cast<std::size_t>(z), Probe);
  }

  bool TasteNehmen(Taste T) {
    const int z = EDBSFlexgitter.Zeile;
    if (T == Taste::Escape && Geändert(static_cast<std::size_t>(z))) {
      EDBSFlexgitter.Fehlerhaft = false;
      EDBSFlexgitter.InhaltSetzen(z, Wertspalte, Gezeigt[static_cast<std::size_t>(z)]);
      KnöpfeStellen();
      return true;
    }
    if (T != Taste::Return && T != Taste::Auf && T != Taste::Ab) return false;
    if (T == Taste::Return && z + 1 == EDBSFlexgitter.Zeilen()) {
      if (Lesen(EDBSFlexgitter)) FokusSetzen(*(NimmtFokus(*Nehmen) ? Nehmen : Nach));
      return true;
    }
    ZelleWechseln(EDBSFlexgitter, z + (T == Taste::Auf ? -1 : 1), Wertspalte);
    return true;
  }

  void KnöpfeStellen() {
    Nehmen->Aktiv = Z.Ändern && EtwasGeändert();
    Vor->Aktiv = Platz > 0;
    Nach->Aktiv = Platz + 1 < Z.Anzahl;
  }

  void Übernehmen() {
    if (!EDBSPunktSetzeInfo()) return FokusSetzen(EDBSFlexgitter);
    EDBSPunktSetzeFelder();
    FokusSetzen(EDBSFlexgitter);
  }

  // What was typed and not taken over is asked about. @return false: the point stays
  bool Geklärt() {
    if (!EtwasGeändert()) return true;
    const int Antwort = FrageJaNeinAbbruch("Änderungen an Punkt " +
                                           Zitat(Trimmen(std::string(Z.Satz(Platz).Pnr))) + " übernehmen ?");
    if (Antwort == KnopfNein || (Antwort == KnopfJa && EDBSPunktSetzeInfo())) return true;
    FokusSetzen(EDBSFlexgitter);
    return false;
  }

  void Gehe(int Schritt) {
    if (!Geklärt()) return;
    Platz = std::clamp(Platz + Schritt, 0, Z.Anzahl - 1);
    EDBSPunktSetzeFelder();
  }

  const EDBSPunktzugriff& Z;
  const std::vector<Editorspalte> Spalten = Editorspalten(Koordinatendateiformat);
  std::array<std::string, Zeilen.size()> Gezeigt;
  Gitter& EDBSFlexgitter =
      GitterAnlegen("EDBSFlexgitter", {{"Angabe", 20, false, false}, {"Wert", 24, true}}, {0, 0});
  Knopf *Nehmen = nullptr, *Vor = nullptr, *Nach = nullptr;
};

}  // namespace

void EDBSPunktZeigen(const EDBSPunktzugriff& Zugriff, int& i) {
  TVEDBSPunktForm Form(Zugriff, i);
  Form.Zeigen();
  i = Form.Platz;
}

}  // namespace tavorena
