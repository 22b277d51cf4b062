#include <algorithm>
#include <utility>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/FStat.h>
#include <tavorena/records/Linel.h>
#include <tavorena/worksheets/FStatSchnur.h>
#include <tavorena/worksheets/TVFStatForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr const char* Rahmen = "Schnurgerüst";

Feld& EingabeAnlegen(TVFStatForm& Form, const char* Name, const char* Label, Platz Ort, int Zeichen) {
  Form.BeschriftungAnlegen(Label, Ort, Rahmen);
  return Form.ZahlenfeldAnlegen(Name, {Ort.Zeile, Ort.Spalte + 1}, Rahmen, Zeichen);
}

}  // namespace

std::string FStatSchnur::Bezugslinie::Text() const {
  return Anf ? Anf->Pnr + " - " + (End ? End->Pnr : "") : "";
}

Feld& FStatSchnur::ErgebnisAnlegen(const char* Name, const char* Label, Platz Ort, int Zeichen) {
  Form.BeschriftungAnlegen(Label, Ort, Rahmen);
  return Form.ErgebnisfeldAnlegen(Name, {Ort.Zeile, Ort.Spalte + 1}, Rahmen, Zeichen);
}

FStatSchnur::FStatSchnur(TVFStatForm& Für, std::function<void()> BeiEnde)
    : Form(Für),
      Ende(std::move(BeiEnde)),
      Davor(Für.Steuerelemente().size()),
      LiniePnr(EingabeAnlegen(Für, "FStatSchnurLiniePnr", "Linie, Punktnr.:", {0, 0}, PnrZeichen)),
      Jetzige(ErgebnisAnlegen("FStatSchnurBezug", "Linie:", {0, 2}, PnrZeichen + 6)),
      Vorige(ErgebnisAnlegen("FStatSchnurBezugVorige", "Vorige:", {0, 4}, PnrZeichen + 6)),
      Pnr(EingabeAnlegen(Für, "FStatSchnurPnr", "Punktnr.:", {1, 0}, PnrZeichen)),
      Hz(Für, "SchnurHz", "Hz:", {1, 2}, Rahmen),
      Vk(Für, "SchnurVk", "Vk:", {1, 4}, Rahmen),
      sD(Für, "SchnursD", "sD:", {2, 0}, Rahmen),
      Sy(EingabeAnlegen(Für, "FStatSchnurSy", "Sy.:", {2, 2}, 5)),
      Übernehmen(Für.KnopfAnlegen(
          "FStatSchnurÜbernehmen", "Übernehmen", [this] { FStatSchnurÜbernehmen(); }, {2, 4, 2}, Rahmen)),
      Rechts(ErgebnisAnlegen("FStatSchnurRechts", "Rechts:", {3, 0}, Längenbreite(8))),
      Hoch(ErgebnisAnlegen("FStatSchnurHoch", "Hoch:", {3, 2}, Längenbreite(8))),
      Hoehe(ErgebnisAnlegen("FStatSchnurHöhe", "Höhe:", {3, 4}, Längenbreite(5))),
      Linie(ErgebnisAnlegen("FStatSchnurLinie", "Linie:", {4, 0}, Längenbreite(6))),
      Seitw(ErgebnisAnlegen("FStatSchnurSeitw", "Seitw.:", {4, 2}, Längenbreite(6))),
      LinieVorige(ErgebnisAnlegen("FStatSchnurLinieVorige", "Linie (vorige):", {5, 0}, Längenbreite(6))),
      SeitwVorige(ErgebnisAnlegen("FStatSchnurSeitwVorige", "Seitw. (vorige):", {5, 2}, Längenbreite(6))),
      NeueLinie(Für.KnopfAnlegen(
          "FStatSchnurNeueLinie", "Neue Linie", [this] { FStatSchnurNeueLinie(); }, {6, 0, 2}, Rahmen)),
      Rücknehmen(Für.KnopfAnlegen(
          "FStatSchnurZurück", "Letzten zurücknehmen", [this] { Zurück(); }, {6, 2, 2}, Rahmen)),
      Beenden(Für.KnopfAnlegen(
          "FStatSchnurEnde", "Schnurgerüst beenden", [this] { FStatSchnurEnde(); }, {6, 4, 2}, Rahmen)) {
  Jetzige.Bezeichnung = "Bezugslinie";
  Vorige.Bezeichnung = "vorige Bezugslinie";
  Verhalten();
  Sichtbar(false);
}

void FStatSchnur::Verhalten() {
  const auto& Alle = Form.Steuerelemente();
  for (std::size_t i = Davor; i < Alle.size(); ++i) Eigene.push_back(Alle[i].get());
  Hz.Eingabe.Name = "FStatSchnurHz";
  Vk.Eingabe.Name = "FStatSchnurVk";
  sD.Eingabe.Name = "FStatSchnursD";
  LiniePnr.IstPnr = Pnr.IstPnr = true;
  Pnr.OhneAbgriff = true;
  Sy.Rechtsbündig = Jetzige.Rechtsbündig = Vorige.Rechtsbündig = false;
  LiniePnr.Hilfe = "Anfangs- und Endpunkt der Linie, nacheinander";
  Übernehmen.Hilfe = "Punkt speichern und ins Protokoll schreiben; in der Stapeldatei steht nur ein Hinweis";
  NeueLinie.OhnePrüfung = Rücknehmen.OhnePrüfung = Beenden.OhnePrüfung = true;
  LiniePnr.BeiVerlassen = [this] { return FStatSchnurSetzeLinienPunkt(); };
  LiniePnr.BeiReturn = [this] { Form.FokusSetzen(Bezug.Ganz() ? Pnr : LiniePnr); };
  for (Feld* F : {&Pnr, &Sy}) {
    F->BeiVerlassen = [F] {
      F->Text = Trimmen(*F->Text);
      return WortPrüfen(F->Text);
    };
  }
  for (Messfeld* M : {&Hz, &Vk, &sD}) M->BeiWechsel = [this] { Rechnen(); };
  Sy.BeiReturn = [this] { Form.FokusSetzen(Übernehmen); };
}

void FStatSchnur::Sichtbar(bool Zeigen) {
  An = Zeigen;
  for (Steuerelement* S : Eigene) S->Sichtbar = Zeigen;
}

void FStatSchnur::Beginnen() {
  Verbunden = false;
  Sichtbar(true);
  Zeigen();
  Form.FokusSetzen(Bezug.Ganz() ? Pnr : LiniePnr);
}

void FStatSchnur::FStatSchnurEnde() {
  Sichtbar(false);
  Punkte.clear();  // what is written now stands below another head
  Ende();
}

void FStatSchnur::Leeren() {
  GrafikLöschen();
  Bezug = VorigerBezug = {};
  Punkte.clear();
  Gespeichert = 0;
  LiniePnr.Text = "";
  LiniePnr.Fehlerhaft = false;
  MessungLeeren();
  Sichtbar(false);
}

bool FStatSchnur::HatFokus() const {
  return An && std::find(Eigene.begin(), Eigene.end(), Form.Fokus()) != Eigene.end();
}

bool FStatSchnur::HatOffenes() const { return An && Punkt && !Pnr.Text->empty(); }

// ---- the line --------------------------------------------------------------------------------------

bool FStatSchnur::FStatSchnurSetzeLinienPunkt() {
  Wert Nummer(Trimmen(*LiniePnr.Text));
  if (Nummer.Text().empty()) return true;
  const int Zeile = KorFind(Nummer);
  if (Zeile < 0) return false;
  const KorSatz P = KorPunkt(Zeile);
  const Linienpunkt Neu{Trimmen(Nummer), {P.Rechts, P.Hoch}};
  if (Bezug.Anf) {
    double Längs = 0, Quer = 0;
    if (Linienelemente(Bezug.Anf->Ort, Neu.Ort, Neu.Ort, Längs, Quer) < 0) {
      StatusHilfeSetzen("Anfangs- und Endpunkt liegen an derselben Stelle");
      return false;
    }
    Bezug.End = Neu;
    const Lage A = Bezug.Anf->Ort;
    Linienbild.Linie({A.RW, A.HW, Neu.Ort.RW, Neu.Ort.HW, FarbeRot});
  } else {
    Bezug.Anf = Neu;
  }
  LetztePunktnummer = Neu.Pnr;
  LiniePnr.Text = "";
  Zeigen();
  return true;
}

void FStatSchnur::FStatSchnurNeueLinie() {
  if (Bezug.Ganz()) VorigerBezug = Bezug;
  Bezug = {};
  Verbunden = false;
  for (Schnurpunkt& P : Punkte) Fertige.Punkt({P.Punkt.Pnr, P.Punkt.Rechts, P.Punkt.Hoch, "", FarbeRot});
  Punkte.clear();
  LiniePnr.Text = "";
  LiniePnr.Fehlerhaft = false;
  Zeigen();
  Form.FokusSetzen(LiniePnr);
}

// ---- the measurement -------------------------------------------------------------------------------

void FStatSchnur::MessungNehmen(const std::string& Nummer, const Stationsmessung& M,
                                const std::string& Symbol) {
  if (!Nummer.empty()) Pnr.Text = Nummer;
  if (!Symbol.empty()) Sy.Text = Symbol;
  Hz.Setzen(M.Hz);
  Vk.Setzen(M.Vk);
  sD.Setzen(M.Strecke);
  Rechnen();
  Form.FokusSetzen(Sy);
}

void FStatSchnur::Rechnen() {
  Punkt.reset();
  if (Hz.Gegeben() && Vk.Zahl() != 0 && sD.Zahl() > 0)
    Punkt = StationspunktRechnen(Form.Ergebnis(), Form.Instrumentenhöhe().Zahl(),
                                 {Hz.Zahl(), Vk.Zahl(), sD.Zahl(), Form.Reflektorhöhe()});
  Zeigen();
}

void FStatSchnur::ElementeZeigen(const Bezugslinie& L, Feld& Längs, Feld& Quer) const {
  double l = 0, q = 0;
  const bool Da = Punkt && L.Ganz() && Linienelemente(L.Anf->Ort, L.End->Ort, Punkt->Ort, l, q) == 0;
  Längs.Text = Da ? Längentext(l) : "";
  Quer.Text = Da ? Längentext(q) : "";
}

void FStatSchnur::Zeigen() {
  Jetzige.Text = Bezug.Text();
  Vorige.Text = VorigerBezug.Text();
  Rechts.Text = Punkt ? Längentext(Punkt->Ort.RW) : "";
  Hoch.Text = Punkt ? Längentext(Punkt->Ort.HW) : "";
  Hoehe.Text = Punkt && Punkt->Höhe != 0 ? Längentext(Punkt->Höhe) : "";
  ElementeZeigen(Bezug, Linie, Seitw);
  ElementeZeigen(VorigerBezug, LinieVorige, SeitwVorige);
  LiniePnr.Aktiv = !Bezug.Ganz();
  Rücknehmen.Aktiv = !Punkte.empty();
  Bild.Löschen();
  if (Punkt) Bild.Punkt({*Pnr.Text, Punkt->Ort.RW, Punkt->Ort.HW, ZeichenNeu, FarbeBlau});
}

void FStatSchnur::MessungLeeren() {
  Pnr.Text = "";
  Pnr.Fehlerhaft = false;
  for (Messfeld* M : {&Hz, &Vk, &sD}) M->Leeren();
  Punkt.reset();
  Zeigen();
}

// ---- what is taken over ----------------------------------------------------------------------------

Verbindung FStatSchnur::Linienverbindung() const {
  Verbindung V = Form.NeueVerbindung();
  V.Titel = TitelSchnur;
  Anschlusswerte W;
  if (LinienelementeAnschluss(Bezug.Anf->Ort, Bezug.End->Ort, 0, 0, W) < 0) return V;
  const auto AlsPunkt = [](const Linienpunkt& P) { return Protpunkt{P.Ort.RW, P.Ort.HW, P.Pnr}; };
  V.Zeilen = LinelAnschluss(Optionen.OptNachkommastellen, {AlsPunkt(*Bezug.Anf),
                                                           AlsPunkt(*Bezug.End),
                                                           0.0,
                                                           {},
                                                           W.EntfGerechnet,
                                                           {},
                                                           W.Abweichung,
                                                           W.AbweichungZulaessig});
  return V;
}

bool FStatSchnur::FStatSchnurÜbernehmen() {
  const auto Fehlt = [&](Feld& F, const char* Was) {
    StatusHilfeSetzen(Was);
    Form.FokusSetzen(F);
    return false;
  };
  if (!Bezug.Ganz()) return Fehlt(LiniePnr, "Linie fehlt");
  if (Pnr.Text->empty()) return Fehlt(Pnr, "Punktnummer fehlt");
  if (!WortPrüfen(Pnr.Text)) return Form.FokusSetzen(Pnr), false;
  if (!Punkt) return Fehlt(Hz.Eingabe, "Messung fehlt");
  Schnurpunkt Neu;
  Neu.Punkt.Pnr = *Pnr.Text;
  if (Schreiben(Neu) < 0) return false;
  StatusHilfeSetzen("Punkt " + Neu.Punkt.Pnr +
                    " übernommen; das Schnurgerüst wird im Stapel nicht wiederholt");
  LetztePunktnummer = Neu.Punkt.Pnr;
  Punkte.push_back(std::move(Neu));
  MessungLeeren();
  Form.FokusSetzen(Pnr);
  return true;
}

// @return 0; -1: not stored, or not written
int FStatSchnur::Schreiben(Schnurpunkt& P) {
  if (!std::exchange(Verbunden, true)) Form.Akten.Fortsetzen(Linienverbindung());
  Lage Ort = Punkt->Ort;
  const Wert Höhe = Punkt->Höhe != 0 ? Wert(Punkt->Höhe) : Wert();
  if (P.Ablage.Eintragen(Form.Akten, P.Punkt.Pnr, Ort, Höhe, Sy.Text) < 0) return -1;
  P.Punkt.Rechts = Ort.RW;
  P.Punkt.Hoch = Ort.HW;
  static_cast<void>(Linienelemente(Bezug.Anf->Ort, Bezug.End->Ort, Ort, P.Linie, P.Seitwaerts));
  Block B = LinelZeile(Optionen.OptNachkommastellen, P.Punkt, P.Linie, P.Seitwaerts, {}, {});
  const std::vector<std::string> Notiz = P.Ablage.Notizzeilen();
  B.Zeilen.insert(B.Zeilen.end(), Notiz.begin(), Notiz.end());
  if (Form.Akten.Zeile(B, "C  " + SchnurKommentar(P.Punkt.Pnr), P.Wo) < 0) {
    static_cast<void>(P.Ablage.Zurück());  // just stored: nobody changed it since
    return -1;
  }
  P.Bild.Punkt({P.Punkt.Pnr, Ort.RW, Ort.HW, "", FarbeRot});
  ++Gespeichert;
  return 0;
}

void FStatSchnur::Zurück() {
  if (Punkte.empty()) return;
  Schnurpunkt& P = Punkte.back();
  const Block B =
      LinelZeile(Optionen.OptNachkommastellen, P.Punkt, P.Linie, P.Seitwaerts, {}, {}, MarkeGelöscht);
  if (Form.Akten.Streichen(B, P.Wo) < 0)
    return StatusHilfeSetzen("Der Punkt bleibt: die Stapeldatei wurde von anderer Seite geändert");
  if (P.Ablage.Zurück() < 0) StatusHilfeSetzen("Punkt " + P.Punkt.Pnr + " bleibt: inzwischen geändert");
  Punkte.pop_back();
  --Gespeichert;
  Zeigen();
  Form.FokusSetzen(Pnr);
}

void FStatSchnur::GrafikLöschen() {
  for (Markierung* M : {&Linienbild, &Bild, &Fertige}) M->Löschen();
  for (Schnurpunkt& P : Punkte) P.Bild.Löschen();
}

}  // namespace tavorena
