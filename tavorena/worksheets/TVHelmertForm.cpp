#include <algorithm>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVHelmertForm.h>

namespace tavorena {
namespace {

constexpr const char *RahmenArt = "Transformation", *RahmenPaare = "Paßpunkte";

}  // namespace

TVHelmertForm::TVHelmertForm(const Blattart& BlattArt)
    : Rechenblatt(BlattArt),
      Kopf(
          *this, RahmenArt, System,
          [this] {
            Freigeben();
            Zeilen.Setzen({});
          },
          [this] { FokusSetzen(KnopfGleich); }),
      Helmert(OptionAnlegen(Mit("OptionHelmert"), "Helmert", {1, 0}, RahmenArt)),
      Affin(OptionAnlegen(Mit("OptionAffin"), "Affin", {1, 1}, RahmenArt)),
      MasstabFest(KästchenAnlegen(Mit("MasstabFest"), "Maßstab fest (M=1)", {1, 2}, RahmenArt)),
      Verteilen(KästchenAnlegen(Mit("Verteilen"), "Restklaffen verteilen", {1, 3}, RahmenArt)),
      FixPnr((BeschriftungAnlegen("Fixpunkt", {1, 4}, RahmenArt),
              ZahlenfeldAnlegen(Mit("FixPnr"), {1, 5}, RahmenArt, 10))),
      KnopfGleich(KnopfAnlegen(
          Mit("Gleich"), "Gleiche N&ummern", [this] { Suchen(false); }, {0, 0}, RahmenPaare)),
      KnopfLage(KnopfAnlegen(
          Mit("Lage"), "Nach La&ge ...", [this] { Suchen(true); }, {0, 1}, RahmenPaare)),
      Zeilen(
          *this, RahmenPaare, System, Fit, [this] { Rechnen(); },
          [this] { FokusSetzen(*KnopfTransformieren); }),
      Figuren(*this, Fit) {
  SystemAnlegen();
  KnopfTransformieren = &KnopfAnlegen(Mit("Transformieren"), "Koordinaten transfor&mieren",
                                      [this] { static_cast<void>(Transformieren()); });
  KnopfTransformieren->Hilfe = "Alle Punkte der Tabelle in das neue System";
  KnopfZurück = &KnopfAnlegen(Mit("Zurück"), "Transformation zurück&nehmen",
                              [this] { static_cast<void>(Zurücknehmen()); }, {0, 1});
  KnopfAnlegen(Mit("FelderClear"), "Felder &leeren", [this] { FelderClear(); }, {0, 2});
  KnöpfeAnlegen();
  const bool IstAffin = BlattartVonKennung("24.30") == &BlattArt;
  (IstAffin ? Affin : Helmert).Gewählt = true;
  ZustandZeigen();
}

// ---- the new system and the choice -----------------------------------------------------------------

void TVHelmertForm::SystemAnlegen() {
  KnopfGleich.Hilfe = "Paßpunkte sind die Punkte, deren Nummer in beiden Systemen steht";
  KnopfLage.Hilfe = "Paßpunkte sind die Punkte, die in beiden Systemen am selben Ort liegen";
  FixPnr.IstPnr = true;
  FixPnr.Hilfe = "Punkt an der Stelle der Schwerpunkte; leer: keiner";
  FixPnr.BeiVerlassen = [this] {
    FixPnr.Text = Trimmen(*FixPnr.Text);
    Rechnen();
    if (!FestFehlt()) return true;
    Hinweis("Fixpunkt nicht in beiden Systemen vorhanden !");
    return false;
  };
  for (Auswahl* A : {&Helmert, &Affin, &MasstabFest}) {
    A->BeiWahl = [this] { Rechnen(); };
  }
}

void TVHelmertForm::Suchen(bool NachLage) {
  if (Kopf.Gelesen().empty()) {
    StatusHilfeSetzen("Datei des neuen Systems fehlt");
    return FokusSetzen(Kopf.Datei);
  }
  Passsuche Gefunden;
  int Ergebnis = 0;
  if (NachLage) {
    Wertfeld Radius{"Radius:", "0.05", -1, -1, true};
    if (EinWert("Tavorena Paßpunkte nach Lage", Radius) < 0) return;
    Ergebnis = PaareNachLage(System, ZahlAusText(Radius.Wert), Gefunden);
  } else {
    Ergebnis = PaareGleicherNummer(System, Gefunden);
  }
  if (Ergebnis == -2) StatusHilfeSetzen("Angehalten");
  if (Ergebnis < 0) return;
  std::string Text = Anzahltext(static_cast<int>(Gefunden.Paare.size()), "Paßpunkt", "Paßpunkte");
  if (Gefunden.Mehrfach > 0) Text += ", mehrfach und ausgelassen: " + std::to_string(Gefunden.Mehrfach);
  Freigeben();
  Zeilen.Setzen(std::move(Gefunden.Paare));
  FokusSetzen(Zeilen.Zellen);
  StatusHilfeSetzen(Text);
}

std::optional<Festpunkt> TVHelmertForm::FestSuchen() const {
  if (Affin.Gewählt || FixPnr.Text->empty()) return {};
  return FestpunktSuchen(FixPnr.Text, Zeilen.Paare, System);
}

bool TVHelmertForm::FestFehlt() const {
  return !Affin.Gewählt && !FixPnr.Text->empty() && !Kopf.Gelesen().empty() && !FestSuchen();
}

// ---- the fit ---------------------------------------------------------------------------------------

void TVHelmertForm::Rechnen() {
  Fit.Rechnen(Zeilen.Paare, {Affin.Gewählt, MasstabFest.Gewählt, FestSuchen()});
  Zeilen.Zeigen();
  Figuren.Zeigen(Zeilen.Paare, Hindernis());
  ZustandZeigen();
}

// The kind names the worksheet and its records. What was done stays as it was chosen.
void TVHelmertForm::ZustandZeigen() {
  if (!ImStapel()) Titel = BlattartVonKennung(Affin.Gewählt ? "24.30" : "24.00")->VR;
  Helmert.Aktiv = Affin.Aktiv = Verteilen.Aktiv = !Getan;
  MasstabFest.Aktiv = FixPnr.Aktiv = !Getan && !Affin.Gewählt;
  KnopfTransformieren->Aktiv = !Getan && Fit.Ergebnis() != Passergebnis::AufGerader;
  KnopfZurück->Aktiv = !Taten.Leer();
}

// Why the table can not be transformed; "" if it can.
std::string TVHelmertForm::Hindernis() const {
  switch (Fit.Ergebnis()) {
    case Passergebnis::ZuWenig:
      return "zu wenig Paßpunkte !";
    case Passergebnis::DivisionDurchNull:
      return "Versuchte Division durch Null !\nAnzahl der Paßpunkte:  " + std::to_string(Fit.Anzahl());
    case Passergebnis::AufGerader:
      return Trimmen(Fit.Protokoll(Optionen.OptNachkommastellen, {}).Zeilen.front());
    case Passergebnis::Gut:
      break;
  }
  return FestFehlt() ? "Fixpunkt nicht in beiden Systemen vorhanden !" : "";
}

void TVHelmertForm::BeiTabelle() {
  if (!Getan) Zeilen.Nachsehen();
}

// ---- the deed --------------------------------------------------------------------------------------

bool TVHelmertForm::HatOffenes() const { return !Getan && !Zeilen.Paare.empty() && Hindernis().empty(); }

Transformationseingabe TVHelmertForm::Eingabe() const {
  Transformationseingabe E{Kopf.Gelesen(),
                           {},
                           Affin.Gewählt ? "" : *FixPnr.Text,
                           !Affin.Gewählt && MasstabFest.Gewählt,
                           Verteilen.Gewählt};
  for (const Passpaar& P : Zeilen.Paare)
    E.Passpunkte.push_back({!P.Ein, P.Pnr, P.NeuPnr == P.Pnr ? "" : P.NeuPnr});
  return E;
}

// @return false: nothing was done
bool TVHelmertForm::Transformieren() {
  if (Getan) return false;
  if (const std::string Grund = Hindernis(); !Grund.empty()) {
    const bool Gut = Fit.Ergebnis() == Passergebnis::Gut;
    const bool Null = Fit.Ergebnis() == Passergebnis::DivisionDurchNull;
    Hinweis(Gut || Null ? Grund : "Fehler bei der Transformationsberechnung:\n" + Grund);
    FokusSetzen(Gut ? static_cast<Steuerelement&>(FixPnr) : Zeilen.Zellen);
    return false;
  }
  if (!ImStapel() && FrageJaNein("Alle Koordinaten transformieren ?", "Tavorena", KnopfNein) != KnopfJa)
    return false;
  Umformung U;
  {
    const Beschäftigung Lang;
    if (Fit.TabelleUmformen(Zeilen.Paare, Verteilen.Gewählt, U) < 0) {
      StatusHilfeSetzen("Angehalten, nichts ist transformiert");
      return false;
    }
  }
  if ((ImStapel() ? Schreiben(U) : Ausführen(U)) < 0) return false;
  Getan = true;
  Zeilen.Sperren();
  Figuren.Getan();
  ZustandZeigen();
  if (GrafikFenster.GrafikOffen) GrafikZoomAnpassen();
  if (ImStapel()) return true;
  FokusSetzen(*KnopfZurück);
  StatusHilfeSetzen(Anzahltext(KorAnzahl, "Punkt", "Punkte") + " transformiert");
  return true;
}

// A table that stays as it is leaves nothing to take back.
int TVHelmertForm::Ausführen(Umformung& U) {
  Punkttat Tat{"Transformation " + std::to_string(Spuren.size() + 1), {}};
  const std::string Name = Tat.Name;
  const int Ergebnis = Taten.Ausführen(Tat, [&] { return Schreiben(U); });
  if (Ergebnis == 0 && !Taten.Leer() && Taten.Name() == Name) Spuren.push_back(Letzte);
  return Ergebnis;
}

// The records first: what is not recorded is not done.
int TVHelmertForm::Schreiben(Umformung& U) {
  Verbindung V = NeueVerbindung();
  if (!ImStapel()) {
    V.Titel = *Titel;
    V.Sätze = StapelTransformation(Eingabe());
  }
  Block B = Fit.Protokoll(Optionen.OptNachkommastellen, Zeilen.Paare);
  B.NeueSeiteVor = static_cast<int>(B.Zeilen.size());
  B.Marken += U.Listen.Marken;
  std::move(U.Listen.Zeilen.begin(), U.Listen.Zeilen.end(), std::back_inserter(B.Zeilen));
  Letzte = {};
  if (Akten.Ganzes(std::move(V), B, Letzte) < 0) return -1;
  return KorAbbilden([&](const KorSpalten& S) {
    std::copy(U.Rechts.begin(), U.Rechts.end(), S.Rechts.begin());
    std::copy(U.Hoch.begin(), U.Hoch.end(), S.Hoch.begin());
    return 0;
  });
}

bool TVHelmertForm::Zurücknehmen() {
  if (Taten.Leer()) return false;
  if (Taten.Zurück() < 0) return true;  // told
  const Block Zeile{{"      *** Transformation zurückgenommen ***"}};
  const bool Bleibt = Akten.GanzesStreichen(Zeile, Spuren.back()) == 1;
  Spuren.pop_back();
  Freigeben();
  Zeilen.Nachsehen();
  Rechnen();
  if (GrafikFenster.GrafikOffen) GrafikZoomAnpassen();
  FokusSetzen(Zeilen.Zellen);
  StatusHilfeSetzen(Bleibt ? "Transformation zurückgenommen; ihr Block bleibt in der Stapeldatei"
                           : "Transformation zurückgenommen");
  return true;
}

void TVHelmertForm::Freigeben() {
  Getan = false;
  Zeilen.Öffnen();
}

void TVHelmertForm::FelderClear() {
  if (HatOffenes() && FrageJaNein("Felder leeren, ohne zu schreiben ? ", Titel, KnopfNein) != KnopfJa) return;
  FixPnr.Text = "";
  FixPnr.Fehlerhaft = MasstabFest.Gewählt = Verteilen.Gewählt = false;
  Figuren.Leeren();
  Kopf.Leeren();
  FokusSetzen(Kopf.Datei);
}

// ---- replay ----------------------------------------------------------------------------------------

int TVHelmertForm::StapelAnschluss() {
  Transformationseingabe E;
  if (StapelLeseTransformation(E) < 0) return -1;
  const std::string Grund = BlockNehmen(E);
  Rechnen();
  if (Fit.Ergebnis() == Passergebnis::AufGerader && Grund.empty()) KeineBerechnung();
  const std::string Warum = Grund.empty() ? Hindernis() : Grund;
  if (Warum.empty()) return 0;
  StapelFehlerMeldung(Warum);
  return -1;
}

// @return "", or why it can not be calculated
std::string TVHelmertForm::BlockNehmen(const Transformationseingabe& E) {
  if (std::string Grund = Kopf.AusSatz(E.NeuesSystem); !Grund.empty()) return Grund;
  Zeilen.Sperren();
  Verteilen.Gewählt = E.Anpassung;
  MasstabFest.Gewählt = E.MasstabFest;
  FixPnr.Text = E.FixPnr;
  return PaareAusSätzen(E.Passpunkte, System, Zeilen.Paare);
}

// Of passpoints on a line the protocol keeps that there was no calculation.
void TVHelmertForm::KeineBerechnung() {
  static_cast<void>(Akten.Ganzes(NeueVerbindung(), Fit.Protokoll(Optionen.OptNachkommastellen, {}), Letzte));
}

int TVHelmertForm::StapelZeile() {
  if (Getan) return -2;
  if (Transformieren()) {
    Stapel.Bilanz.Zeilen += static_cast<int>(Zeilen.Paare.size());
    return 0;
  }
  if (Stapel.Aktiv) StapelFehlerMeldung("Transformation nicht geschrieben");
  return -1;
}

}  // namespace tavorena
