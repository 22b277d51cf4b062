#include <tavorena/core/Atempause.h>
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

// A label and, behind it, the result field that it names.
Feld& Planfeld(Formular& Form, const char* Label, const std::string& Name, int Spalte, int Zeichen) {
  Beschriftung& B = Form.BeschriftungAnlegen(Label, {0, Spalte}, RahmenPlan);
  Feld& F = Form.FeldAnlegen(Name, {0, Spalte + 1}, RahmenPlan, Zeichen);
  F.NurLesen = true;
  B.Sichtbar = F.Sichtbar = Optionen.AbfrageRiss;
  return F;
}

}  // namespace

Rechenblatt::Rechenblatt(const Blattart& BlattArt)
    : Formular(BlattArt.Formname),
      Art(BlattArt),
      ProtTitel(BlattArt.VR),
      Ri_bez(Planfeld(*this, "Rißbezeichnung:", Mit("Ri_bez"), 0, 20)),
      Bernr(Planfeld(*this, "Berechnungsnummer:", Mit("Bernr"), 2, 8)) {
  Titel = Art.VR;
  Hilfenummer = Art.Hilfenummer;
}

// The keys of the buttons are those that the menu bar leaves free.
void Rechenblatt::KnöpfeAnlegen() {
  KnopfEnd = &KnopfAnlegen(Mit("End"), "&Schließen", [this] { SchließenVerlangen(); }, {0, 3});
  KnopfStop = &KnopfAnlegen(Mit("Stop"), "- Sto&p - ", [this] { Stop(); }, {0, 4});
  KnopfWeiter = &KnopfAnlegen(Mit("Weiter"), "&Weiter", [this] { StapelZeilenRechnen(); }, {0, 5});
  KnopfEnd->OhnePrüfung = KnopfStop->OhnePrüfung = true;
  KnopfEnd->Hilfe = "Rechenblatt schließen";
  KnopfStop->Hilfe = "Stapel nach der laufenden Zeile beenden";
  KnopfWeiter->Hilfe = "Zeilen des Stapels rechnen";
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = false;
}

void Rechenblatt::BeiÖffnen() {
  VomStapel = Stapel.Aktiv && !Stapel.Ablauf;
  Akten.Öffnen(VomStapel);
  if (VomStapel) return StapelBeginnen();
  RissFragen();
}

void Rechenblatt::RissFragen() {
  // After a cancel the plan typed last stays.
  if (Optionen.AbfrageRiss) {
    static_cast<void>(
        ZweiWerte(Art.VR, "Rißbezeichnung:", LetzterPlan.Riss, "Berechnungsnummer:", LetzterPlan.BerNr));
  }
  RissZeigen();
}

void Rechenblatt::RissZeigen() {
  Riß = LetzterPlan;
  Ri_bez.Text = Riß.Riss;
  Bernr.Text = Riß.BerNr;
}

Verbindung Rechenblatt::NeueVerbindung() {
  if (VomStapel) RissZeigen();  // its block told the plan
  Verbindung V;
  V.Titel = ProtTitel;
  V.Riß = Riß;
  return V;
}

void Rechenblatt::StapelBeginnen() {
  Stapel.Ablauf = true;
  Titel = Art.Stapeltitel;
  if (FeldLinks(Stapel.Art, 8) == FeldLinks(ProtTitel, 8)) ProtTitel = Stapel.Art;
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = true;
  KnopfEnd->Sichtbar = false;
  const int Ergebnis = StapelAnschluss();
  if (Ergebnis < 0) {
    KnopfStop->Text = "- Abbruch -";
    if (Stapel.Aktiv) StapelFehlerMeldung("Anschluß fehlt");
    return StapelBlattEnde();
  }
  Hält = AblaufPort().StapelHält();
  if (Hält) {
    AktenSichern();  // somebody may look at it for long
    return FokusSetzen(*KnopfWeiter);
  }
  StapelZeilenRechnen();
}

void Rechenblatt::StapelZeilenRechnen() {
  Hält = false;
  KnopfWeiter->Aktiv = false;
  Atempause Pause(0.1);
  while (Stapel.Aktiv && Offen() && StapelZeile() == 0) {
    if (Pause.Fällig()) AblaufPort().EreignisseAbarbeiten();
  }
  StapelBlattEnde();
}

void Rechenblatt::StapelBlattEnde() {
  Stapel.Ablauf = Hält = false;
  Schließen();
  if (Stapel.Aktiv) StapelWeiter();
}

bool Rechenblatt::TasteUnten(Steuerelement& S, Taste T) {
  auto* const E = dynamic_cast<Eingabeelement*>(&S);
  if (E == nullptr || !E->IstPnr || (T != Taste::Plus && T != Taste::Minus)) return false;
  const std::string Neu = PunktnummerSchritt(T == Taste::Plus ? 1 : -1);
  if (Neu.empty()) return false;
  LetztePunktnummer = Neu;
  Tippen(*E, Neu);
  return true;
}

void Rechenblatt::Stop() {
  StapelAnhalten();
  if (Hält) StapelBlattEnde();
}

bool Rechenblatt::DarfSchließen() {
  if (!VomStapel) return OffenesKlären();
  StapelAnhalten();
  return true;
}

bool Rechenblatt::OffenesKlären() {
  if (!HatOffenes()) return true;
  if (FrageJaNein("Protokoll und Stapel schreiben ? ", Art.Fragetitel) == KnopfJa) return OffenesSchreiben();
  return FrageJaNein("ohne Protokollausdruck und Stapel beenden ? ", Art.Fragetitel) == KnopfJa;
}

void Rechenblatt::BeiSchließen() {
  // A block that can not be ended was told; the worksheet closes all the same.
  static_cast<void>(Akten.Beenden());
}

}  // namespace tavorena
