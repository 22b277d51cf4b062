#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Rechenblatt.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const RahmenPlan = "Plan";
constexpr double Atempause = 0.1;  // s between two looks at the event queue during a replay

}  // namespace

Rechenblatt::Rechenblatt(const Blattart& BlattArt)
    : Formular(BlattArt.Formname),
      Art(BlattArt),
      ProtTitel(BlattArt.VR),
      Ri_bez(
          (Beschriftung("Rißbezeichnung:", {0, 0}, RahmenPlan), Feld(Mit("Ri_bez"), {0, 1}, RahmenPlan, 20))),
      Bernr((Beschriftung("Berechnungsnummer:", {0, 2}, RahmenPlan),
             Feld(Mit("Bernr"), {0, 3}, RahmenPlan, 8))) {
  Titel = Art.VR;
  Hilfenummer = Art.Hilfenummer;
  for (const auto& S : Steuerelemente()) {
    S->NurLesen = true;
    S->Sichtbar = Optionen.AbfrageRiss;
  }
}

// The keys of the buttons are those that the menu bar leaves free.
void Rechenblatt::KnöpfeAnlegen() {
  KnopfEnd = &Knopf(Mit("End"), "&Schließen", {0, 3});
  KnopfStop = &Knopf(Mit("Stop"), "- Sto&p - ", {0, 4});
  KnopfWeiter = &Knopf(Mit("Weiter"), "&Weiter", {0, 5});
  KnopfEnd->OhnePrüfung = KnopfStop->OhnePrüfung = true;
  KnopfEnd->Hilfe = "Rechenblatt schließen";
  KnopfStop->Hilfe = "Stapel nach der laufenden Zeile beenden";
  KnopfWeiter->Hilfe = "Zeilen des Stapels rechnen";
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = false;
}

void Rechenblatt::BeiÖffnen() {
  EigenesZiel = {DateinameProtokollTemp};
  OrdnerAnlegen(DateinameZerlegen(DateinameProtokollTemp).Ordner);
  if (DateiErsetzen(DateinameProtokollTemp, "") < 0) EigenesZiel.Datei.clear();
  if (StapelAktiv && !StapelAblauf) return StapelBeginnen();
  RissFragen();
}

void Rechenblatt::RissFragen() {
  if (Optionen.AbfrageRiss) ZweiWerte(Art.VR, "Rißbezeichnung:", Riss, "Berechnungsnummer:", BerNr);
  RissZeigen();
}

void Rechenblatt::RissZeigen() {
  Ri_bez.Text = Riss;
  Bernr.Text = BerNr;
}

void Rechenblatt::StapelBeginnen() {
  VomStapel = StapelAblauf = true;
  Titel = Art.Stapeltitel;
  if (FeldLinks(ProtArt, 8) == FeldLinks(ProtTitel, 8)) ProtTitel = ProtArt;
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = true;
  KnopfEnd->Sichtbar = false;
  const int Ergebnis = StapelAnschluss();
  RissZeigen();
  if (Ergebnis < 0) {
    KnopfStop->Text = "- Abbruch -";
    if (StapelAktiv) StapelFehlerMeldung("Anschluß fehlt");
    return StapelBlattEnde();
  }
  Hält = AblaufPort().StapelHält();
  if (Hält) return FokusSetzen(*KnopfWeiter);
  StapelZeilenRechnen();
}

void Rechenblatt::StapelZeilenRechnen() {
  Hält = KnopfWeiter->Aktiv = false;
  double Zuletzt = AblaufPort().Zeitgeber();
  while (StapelAktiv && Offen() && StapelZeile() == 0) {
    const double Jetzt = AblaufPort().Zeitgeber();
    if (Jetzt - Zuletzt < Atempause) continue;
    Zuletzt = Jetzt;
    AblaufPort().EreignisseAbarbeiten();
  }
  StapelBlattEnde();
}

void Rechenblatt::StapelBlattEnde() {
  StapelAblauf = Hält = false;
  Schließen();
  if (StapelAktiv) StapelWeiter();
}

bool Rechenblatt::TasteUnten(Steuerelement& S, Taste T) {
  if (!S.IstPnr || (T != Taste::Plus && T != Taste::Minus)) return false;
  const std::string Neu = PunktnummerSchritt(T == Taste::Plus ? 1 : -1);
  if (Neu.empty()) return false;
  LetztePunktnummer = Neu;
  Tippen(S, Neu);
  return true;
}

void Rechenblatt::Geklickt(Steuerelement& S) {
  if (&S == KnopfEnd && DarfSchließen()) return Schließen();
  if (&S == KnopfWeiter && Hält) return StapelZeilenRechnen();
  if (&S != KnopfStop) return;
  StapelAnhalten();
  if (Hält) StapelBlattEnde();
}

bool Rechenblatt::DarfSchließen() {
  if (VomStapel) {
    StapelAnhalten();
    return true;
  }
  return OffenesKlaeren();
}

bool Rechenblatt::OffenesKlaeren() {
  if (!HatOffenes()) return true;
  if (FrageJaNein("Protokoll und Stapel schreiben ? ", Art.Fragetitel) == KnopfJa) return OffenesSchreiben();
  return FrageJaNein("ohne Protokollausdruck und Stapel beenden ? ", Art.Fragetitel) == KnopfJa;
}

void Rechenblatt::BeiSchließen() { BlockBeenden(); }

void Rechenblatt::Protokollieren(const std::function<void()>& Block) {
  Block();
  if (ProtokolldateiName.empty() || EigenesZiel.Datei.empty()) return;
  ProtZiel(false, EigenesZiel);
  Block();
  ProtZiel(true, EigenesZiel);
}

void Rechenblatt::Melde(const std::string& Text) {
  AnzeigePort().StatusSetzen(Statusfeld::StatusHilfe, "   " + Text + "   ");
}

}  // namespace tavorena
