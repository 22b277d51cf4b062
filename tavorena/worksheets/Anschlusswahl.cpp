#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/worksheets/Anschlusswahl.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

// -1: the table does not know it.
int Tabellenzeile(const Rohpunkt& P) {
  Wert Nummer(P.Nummer);
  return KorSucheMitPunkt(Nummer);
}

class TVAnschlusswahl final : public Dialogform {
 public:
  TVAnschlusswahl(const Rohstation& S, const std::string& Worum, std::vector<bool>& Haken)
      : Dialogform("TVAnschlusswahl", "Anschlußpunkte wählen"), Ein(Haken) {
    Hilfenummer = 4230;
    Kopf.Text = Worum + ": angehakte Zeilen sind Anschlußpunkte, die anderen polare Punkte";
    Liste.Markenspalte = 0;
    Liste.NurLesen = true;
    Liste.Hilfe = "Leertaste, Return und Klick wählen; mit Umschalt bis zur Zeile";
    Liste.BeiMarke = [this] { StandZeigen(); };
    Füllen(S);
    KnopfAnlegen("OK", "&OK", [this] { Übernehmen(); }).Vorgabe = true;
    KnopfAnlegen("Alle", "&Alle", [this] { AlleWählen(true); }, {0, 1});
    KnopfAnlegen("Keine", "&Keine", [this] { AlleWählen(false); }, {0, 2});
    AbbruchAnlegen("Abbrechen", "A&bbrechen", {0, 3});
    StandZeigen();
  }

 private:
  void Füllen(const Rohstation& S) {
    Liste.Leeren(0);
    for (const Rohpunkt& P : S.Anschluss) {
      const int z = Tabellenzeile(P);
      const auto Ort = [&](const std::vector<double>& Spalte) {
        return z < 0 ? std::string() : Längentext(Spalte[static_cast<std::size_t>(z)]);
      };
      Liste.ZeileAnhängen({"", P.Nummer, ZahlFormat(P.Hz, -1, 4), ZahlFormat(P.V, -1, 4),
                           Längentext(P.Strecke), Längentext(P.Reflektorhöhe), P.Code, Ort(KorRechts),
                           Ort(KorHoch)});
    }
    for (int z = 0; z < Liste.Zeilen(); ++z) Liste.MarkeSetzen(z, Ein[static_cast<std::size_t>(z)]);
  }

  void StandZeigen() {
    Stand.Text = std::to_string(Liste.Markierte().size()) + " von " +
                 Anzahltext(Liste.Zeilen(), "Zeile", "Zeilen") + " als Anschluß";
  }

  void AlleWählen(bool An) {
    for (int z = 0; z < Liste.Zeilen(); ++z) Liste.MarkeSetzen(z, An);
    StandZeigen();
  }

  void Übernehmen() {
    for (int z = 0; z < Liste.Zeilen(); ++z) Ein[static_cast<std::size_t>(z)] = Liste.Markiert(z);
    Fertig(0);
  }

  std::vector<bool>& Ein;
  Beschriftung& Kopf = BeschriftungAnlegen("", {0, 0});
  Gitter& Liste = GitterAnlegen("FStatPAGitter",
                                {{"Ein", 4, false, false},
                                 {"Punktnr.", PnrZeichen, false, true, true},
                                 {"Hz", 9},
                                 {"Vk", 9},
                                 {"sD", 9},
                                 {"t", 7},
                                 {"Sy.", 6, false, false},
                                 {"Rechts", Längenbreite(7)},
                                 {"Hoch", Längenbreite(7)}},
                                {1, 0});
  Beschriftung& Stand = BeschriftungAnlegen("", {2, 0});
};

}  // namespace

std::vector<bool> AnschlussVorschlag(const Rohstation& S) {
  std::vector<bool> Ein;
  for (const Rohpunkt& P : S.Anschluss) Ein.push_back(Tabellenzeile(P) >= 0);
  return Ein;
}

int AnschlussWählen(const Rohstation& S, const std::string& Stand, std::vector<bool>& Ein) {
  Ein.resize(S.Anschluss.size());
  return TVAnschlusswahl(S, Stand, Ein).Zeigen();
}

}  // namespace tavorena
