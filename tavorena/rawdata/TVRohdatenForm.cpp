#include <algorithm>
#include <memory>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dialogform.h>
#include <tavorena/rawdata/Rohbericht.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena {
namespace {

constexpr const char *RahmenWahl = "Lesen :", *RahmenBericht = "Bericht :",
                     *RahmenListe = "Auffällige Zeilen :";
constexpr int MaxWert = 9;  // of a code block

int GsiOderGreLesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Daten) {
  std::string Grund;
  const int Ergebnis = RohdatenLesen(Datei, Wahl, Daten, &Grund);
  if (Ergebnis == -1) LesefehlerMelden(Datei, Grund);
  return Ergebnis;
}

std::vector<std::string> Codeliste(const std::string& Text) {
  std::vector<std::string> Codes;
  std::string Worte = Text;
  ZeichenErsetzen(Worte, ',', ' ');
  std::string_view Rest = Worte;
  for (std::string_view W = Wortnehmen(Rest); !W.empty(); W = Wortnehmen(Rest)) Codes.emplace_back(W);
  return Codes;
}

std::string Codetext(const std::vector<std::string>& Codes) {
  std::string Text;
  for (const std::string& Code : Codes) Text += (Text.empty() ? "" : ",") + Code;
  return Text;
}

std::string Zählung(const Rohdaten& D) {
  std::size_t Messungen = 0;
  for (const Rohblock& B : D.Blöcke) Messungen += B.Punkte.size();
  const auto Zahl = [](std::size_t n, const char* Eins, const char* Viele) {
    return Anzahltext(static_cast<int>(n), Eins, Viele);
  };
  return Zahl(Messungen, "Messung", "Messungen") + " in " + Zahl(D.Blöcke.size(), "Block", "Blöcken") + ", " +
         Zahl(D.Koordinaten.size(), "Punkt", "Punkte") + " mit Koordinaten, " +
         Zahl(D.Befund.ZweifelAnzahl, "auffällige Zeile", "auffällige Zeilen");
}

class TVRohdatenForm final : public Dialogform {
 public:
  TVRohdatenForm(std::string Name, Rohdatenwahl W, Rohdaten D, Rohleser L, bool MitCodes)
      : Dialogform("TVRohdatenForm", "Rohdaten"),
        Wahl(std::move(W)),
        Daten(std::move(D)),
        Datei(std::move(Name)),
        Leser(std::move(L)) {
    Hilfenummer = Rohdatenseite;
    Ungefragt = true;  // a Return behind the file dialog would take it over unseen
    FelderAnlegen(MitCodes);
    Anzahl = &BeschriftungAnlegen("", {0, 0}, RahmenBericht);
    Bericht = &GitterAnlegen("RohdatenBericht", {{"Was verstanden wurde", 100, false, false}}, {1, 0},
                             RahmenBericht);
    Liste = &GitterAnlegen("RohdatenListe",
                           {{"Zeile", 7}, {"Text", 52, false, false}, {"Grund", 40, false, false}}, {0, 0},
                           RahmenListe);
    Bericht->NurLesen = Liste->NurLesen = true;
    Nehmen = &KnopfAnlegen("RohdatenÜbernehmen", "&Übernehmen", [this] { Fertig(0); });
    Protokollieren = &KnopfAnlegen("RohdatenProtokoll", "&Protokoll", [this] { InsProtokoll(); }, {0, 1});
    Protokollieren->Hilfe = "schreibt den Bericht in das Protokoll";
    AbbruchAnlegen("RohdatenAbbrechen", "Abbrechen", {0, 2});
    Darstellen();
  }

  Rohdatenwahl Wahl;
  Rohdaten Daten;

 protected:
  void BeiÖffnen() override { FokusSetzen(*Nehmen); }

 private:
  void FelderAnlegen(bool MitCodes) {
    Codes = &Wahlfeld("RohdatenStationscode", "Stationscode:", 0, 16);
    Codes->Hilfe = "Codes, mit denen eine Station beginnt, durch Kommas getrennt";
    Nummer = &Wahlfeld("RohdatenStandpunktnummer", "Standpunktnummer im Wert:", 2, 4);
    Nummer->Hilfe = "der wievielte Wert der Codezeile die Standpunktnummer ist; der Code ist der erste";
    Höhe = &Wahlfeld("RohdatenInstrumentenhöhe", "Instrumentenhöhe im Wert:", 4, 4);
    Höhe->Hilfe = "der wievielte Wert der Codezeile die Instrumentenhöhe in mm ist; 0: keiner";
    Nullen = &Wahlkasten("RohdatenNummern", "Nummern ohne führende Nullen", 0);
    Lagen = &Wahlkasten("RohdatenLagen", "Lagen mitteln", 2);
    Einheiten = &Wahlkasten("RohdatenWinkel", "Winkel und Längen aller Einheiten lesen", 4);
    for (Steuerelement* S : std::initializer_list<Steuerelement*>{Codes, Nummer, Höhe}) S->Aktiv = MitCodes;
  }

  Feld& Wahlfeld(const char* Name, const char* Label, int Spalte, int Zeichen) {
    BeschriftungAnlegen(Label, {0, Spalte}, RahmenWahl);
    Feld& F = FeldAnlegen(Name, {0, Spalte + 1}, RahmenWahl, Zeichen);
    F.BeiVerlassen = [this] { return FelderLesen(); };
    return F;
  }

  Auswahl& Wahlkasten(const char* Name, const char* Text, int Spalte) {
    Auswahl& A = KästchenAnlegen(Name, Text, {1, Spalte, 2}, RahmenWahl);
    A.BeiWahl = [this] { FelderLesen(); };
    return A;
  }

  static bool WertLesen(const Feld& F, int Kleinster, int& Ziel) {
    const std::string Text = Trimmen(*F.Text);
    if (Text.size() != 1 || Text[0] < '0' + Kleinster || Text[0] > '0' + MaxWert) return false;
    Ziel = Text[0] - '0';
    return true;
  }

  // What the fields say, if it differs from what was read: the file is read anew.
  bool FelderLesen() {
    Rohdatenwahl Neu = Wahl;
    Neu.Stationscodes = Codeliste(*Codes->Text);
    Neu.OhneNullen = Nullen->Gewählt;
    Neu.LagenMitteln = Lagen->Gewählt;
    Neu.AlleEinheiten = Einheiten->Gewählt;
    if (Neu.Stationscodes.empty() || !WertLesen(*Nummer, 2, Neu.Stationswert) ||
        !WertLesen(*Höhe, 0, Neu.Ihwert)) {
      StatusHilfeSetzen("erwartet: Codes durch Kommas getrennt, Nummern von Werten bis " +
                        std::to_string(MaxWert));
      return false;
    }
    if (Neu == Wahl) return true;
    Rohdaten Gelesen;
    if (Leser(Datei, Neu, Gelesen) == 0) {
      Wahl = std::move(Neu);
      Daten = std::move(Gelesen);
    }
    Darstellen();  // what could not be read again, or was stopped, stands as it was
    return true;
  }

  void Darstellen() {
    Codes->Text = Codetext(Wahl.Stationscodes);
    Nummer->Text = std::to_string(Wahl.Stationswert);
    Höhe->Text = std::to_string(Wahl.Ihwert);
    Nullen->Gewählt = Wahl.OhneNullen;
    Lagen->Gewählt = Wahl.LagenMitteln;
    Einheiten->Gewählt = Wahl.AlleEinheiten;
    Einheiten->Aktiv = Daten.Befund.FremdeEinheiten || Wahl.AlleEinheiten;
    Anzahl->Text = Zählung(Daten);
    Bericht->Leeren(0);
    for (std::string& Zeile : RohdatenBericht(Daten)) Bericht->ZeileAnhängen({std::move(Zeile)});
    Liste->Leeren(0);
    for (const Zweifelszeile& Z : Daten.Befund.Zweifel)
      Liste->ZeileAnhängen({std::to_string(Z.Zeile), Sichtbar(Z.Text), Z.Grund});
    Protokollieren->Aktiv = !Prot.Datei.empty();
  }

  // Once as it stands.
  void InsProtokoll() {
    Verbindung V;
    V.Titel = "Rohdaten";
    V.Riß = LetzterPlan;
    Block B;
    for (const std::string& Zeile : RohdatenBericht(Daten)) B.Zeilen.push_back(Leerzeichen(6) + Zeile);
    if (Schreiben(Prot, std::make_shared<const Verbindung>(std::move(V)), B) < 0) return;
    Protokollieren->Aktiv = false;
    FokusSetzen(*Nehmen);
  }

  const std::string Datei;
  const Rohleser Leser;
  Feld *Codes = nullptr, *Nummer = nullptr, *Höhe = nullptr;
  Auswahl *Nullen = nullptr, *Lagen = nullptr, *Einheiten = nullptr;
  Beschriftung* Anzahl = nullptr;
  Gitter *Bericht = nullptr, *Liste = nullptr;
  Knopf *Nehmen = nullptr, *Protokollieren = nullptr;
};

}  // namespace

bool RohdatenFragen(const std::string& Datei, Rohdatenwahl& Wahl, Rohdaten& Daten, const Rohleser& Leser) {
  const Rohleser Lesen = Leser ? Leser : GsiOderGreLesen;
  Rohdaten Neu;
  if (Lesen(Datei, Wahl, Neu) != 0) return false;
  TVRohdatenForm Form(Datei, Wahl, std::move(Neu), Lesen, !Leser);
  if (Form.Zeigen() < 0) return false;
  Wahl = std::move(Form.Wahl);
  Daten = std::move(Form.Daten);
  return true;
}

}  // namespace tavorena
