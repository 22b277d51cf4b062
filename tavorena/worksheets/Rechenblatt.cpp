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
      Ri_bez((BeschriftungAnlegen("Rißbezeichnung:", {0, 0}, RahmenPlan),
              FeldAnlegen(Mit("Ri_bez"), {0, 1}, RahmenPlan, 20))),
      Bernr((BeschriftungAnlegen("Berechnungsnummer:", {0, 2}, RahmenPlan),
             FeldAnlegen(Mit("Bernr"), {0, 3}, RahmenPlan, 8))) {
  Titel = Art.VR;
  Hilfenummer = Art.Hilfenummer;
  Ri_bez.NurLesen = Bernr.NurLesen = true;
  for (const auto& S : Steuerelemente()) S->Sichtbar = Optionen.AbfrageRiss;
}

// The keys of the buttons are those that the menu bar leaves free.
void Rechenblatt::KnöpfeAnlegen() {
  const auto Ende = [this] {
    if (DarfSchließen()) Schließen();
  };
  const auto Stop = [this] {
    StapelAnhalten();
    if (Hält) StapelBlattEnde();
  };
  const auto Weiter = [this] {
    if (Hält) StapelZeilenRechnen();
  };
  KnopfEnd = &KnopfAnlegen(Mit("End"), "&Schließen", Ende, {0, 3});
  KnopfStop = &KnopfAnlegen(Mit("Stop"), "- Sto&p - ", Stop, {0, 4});
  KnopfWeiter = &KnopfAnlegen(Mit("Weiter"), "&Weiter", Weiter, {0, 5});
  KnopfEnd->OhnePrüfung = KnopfStop->OhnePrüfung = true;
  KnopfEnd->Hilfe = "Rechenblatt schließen";
  KnopfStop->Hilfe = "Stapel nach der laufenden Zeile beenden";
  KnopfWeiter->Hilfe = "Zeilen des Stapels rechnen";
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = false;
  for (const auto& S : Steuerelemente()) {
    if (auto* E = dynamic_cast<Eingabeelement*>(S.get())) {
      E->BeiVerlassen = [this, E] { return FokusVerloren(*E); };
      E->BeiText = [this, E] { TextGeändert(*E); };
    }
  }
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
  auto* E = dynamic_cast<Eingabeelement*>(&S);
  if (E == nullptr || !E->IstPnr || (T != Taste::Plus && T != Taste::Minus)) return false;
  const std::string Neu = PunktnummerSchritt(T == Taste::Plus ? 1 : -1);
  if (Neu.empty()) return false;
  LetztePunktnummer = Neu;
  Tippen(*E, Neu);
  return true;
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

void Rechenblatt::Melde(const std::string& Text) { StatusHilfeSetzen(Text); }

}  // namespace tavorena
