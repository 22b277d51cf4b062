#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Seiten.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {
namespace {

const char* const RahmenPlan = "Plan";
const char* const RahmenStapel = "Stapel";

// A label and, behind it, the result field that it names.
Feld& Planfeld(Formular& Form, const char* Label, const std::string& Name, int Spalte, int Zeichen) {
  Beschriftung& B = Form.BeschriftungAnlegen(Label, {0, Spalte}, RahmenPlan);
  Feld& F = Form.FeldAnlegen(Name, {0, Spalte + 1}, RahmenPlan, Zeichen);
  F.NurLesen = true;
  B.Sichtbar = F.Sichtbar = Optionen.AbfrageRiss;
  return F;
}

// While it lives no other replay may begin: the rows would come from that one.
struct Zeilenlauf {
  Zeilenlauf() { Stapel.RechnetZeilen = true; }
  ~Zeilenlauf() { Stapel.RechnetZeilen = false; }
  Zeilenlauf(const Zeilenlauf&) = delete;
  Zeilenlauf& operator=(const Zeilenlauf&) = delete;
};

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
void Rechenblatt::KnöpfeAnlegen(int Spalte) {
  KnopfEnd = &KnopfAnlegen(Mit("End"), "&Schließen", [this] { SchließenVerlangen(); }, {0, Spalte});
  KnopfStop = &KnopfAnlegen(Mit("Stop"), "- Sto&p - ", [] { StapelAnhalten(); }, {0, Spalte + 1});
  KnopfWeiter = &KnopfAnlegen(Mit("Weiter"), "&Weiter", [this] { StapelZeilenRechnen(); }, {0, Spalte + 2});
  Stand = &BeschriftungAnlegen("", {0, 0}, RahmenStapel);
  JederBlock = &KästchenAnlegen(Mit("Halten"), "bei &jedem Block halten", {0, 1}, RahmenStapel);
  JederBlock->BeiWahl = [this] { Stapel.Halten = JederBlock->Gewählt; };
  KnopfEnd->OhnePrüfung = KnopfStop->OhnePrüfung = true;
  KnopfEnd->Hilfe = "Rechenblatt schließen";
  KnopfStop->Hilfe = "Stapel nach der laufenden Zeile beenden";
  KnopfWeiter->Hilfe = "Zeilen des Stapels rechnen";
  JederBlock->Hilfe = "Aus: der Stapel läuft durch, ohne bei jedem Anschluß zu warten";
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = Stand->Sichtbar = JederBlock->Sichtbar = false;
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

// In a replay there is nothing to type: what the surveyor can do is to look, to go on and to stop.
void Rechenblatt::StapelKnöpfe(bool Läuft) {
  for (const auto& S : Steuerelemente()) {
    if (auto* E = dynamic_cast<Eingabeelement*>(S.get())) {
      E->NurLesen = true;
    } else if (dynamic_cast<Auswahl*>(S.get()) != nullptr) {
      S->Aktiv = false;
    } else if (dynamic_cast<Beschriftung*>(S.get()) == nullptr) {
      S->Sichtbar = S.get() == KnopfEnd;
    }
  }
  KnopfStop->Sichtbar = KnopfWeiter->Sichtbar = JederBlock->Sichtbar = Läuft;
  JederBlock->Aktiv = Läuft;
  JederBlock->Gewählt = Stapel.Halten;
  Stand->Sichtbar = true;
}

void Rechenblatt::StandZeigen() {
  Stand->Text = StapelStand();
  StatusHilfeSetzen(Stand->Text);
}

void Rechenblatt::StapelBeginnen() {
  Stapel.Ablauf = true;
  Stapel.Blatt = {[this] { Schließen(); },
                  [this] {
                    Ereignis([this] {
                      if (Hält) StapelBlattEnde();
                    });
                  },
                  [this] { Ereignis([this] { StandZeigen(); }); }};
  Titel = Art.Stapeltitel;
  if (FeldLinks(Stapel.Art, 8) == FeldLinks(ProtTitel, 8)) ProtTitel = Stapel.Art;
  StapelKnöpfe(true);
  const int Ergebnis = StapelAnschluss();
  if (Ergebnis < 0) {
    KnopfStop->Text = "- Abbruch -";
    if (Stapel.Aktiv && !Stapel.Zerrissen) StapelFehlerMeldung("Anschluß fehlt");
    Schließen();
    return StapelBlattEnde();
  }
  Hält = Stapel.Halten && AblaufPort().StapelHält();
  StandZeigen();
  if (Hält) {
    AktenSichern();  // somebody may look at it for long
    return FokusSetzen(*KnopfWeiter);
  }
  StapelZeilenRechnen();
}

void Rechenblatt::StapelZeilenRechnen() {
  Hält = false;
  FokusSetzen(*KnopfStop);
  KnopfWeiter->Aktiv = false;
  int Ergebnis = 0;
  {
    const Zeilenlauf Läuft;
    Atempause Pause(0.1);
    while (Stapel.Aktiv && Offen() && (Ergebnis = StapelZeile()) == 0) {
      if (!Pause.Fällig()) continue;
      StandZeigen();
      Zwischenstand();
      AblaufPort().EreignisseAbarbeiten();
    }
  }
  if (Ergebnis == -1) Schließen();
  StapelBlattEnde();
}

// The block is done. The worksheet stays to be read, unless another block takes its place.
void Rechenblatt::StapelBlattEnde() {
  Stapel.Ablauf = Hält = false;
  if (Offen()) {
    static_cast<void>(Akten.Beenden());  // a replay has no block that could fail to end
    StapelKnöpfe(false);
    FokusSetzen(*KnopfEnd);
    for (const auto& S : Steuerelemente()) {
      if (dynamic_cast<Gitter*>(S.get()) != nullptr) FokusSetzen(*S);
    }
  }
  if (Stapel.Aktiv) StapelWeiter();
}

bool Rechenblatt::TasteUnten(Steuerelement& /*S*/, Taste T) {
  if (T == Taste::Escape && VomStapel && Stapel.Aktiv) {
    StapelAnhalten();
    return true;
  }
  return false;
}

bool Rechenblatt::DarfSchließen() {
  if (!VomStapel) return OffenesKlären();
  StapelAnhalten();
  return true;
}

bool Rechenblatt::OffenesKlären() {
  if (VomStapel || !HatOffenes()) return true;
  if (FrageJaNein("Protokoll und Stapel schreiben ? ", Art.Fragetitel) == KnopfJa) return OffenesSchreiben();
  return FrageJaNein("ohne Protokollausdruck und Stapel beenden ? ", Art.Fragetitel, KnopfNein) == KnopfJa;
}

void Rechenblatt::BeiSchließen() {
  if (VomStapel) Stapel.Blatt = {};
  // A block that can not be ended was told; the worksheet closes all the same.
  static_cast<void>(Akten.Beenden());
  GrafikLöschen();
  if (!VomStapel && Optionen.AbfrageDruck) DruckFragen();
}

// What it wrote goes with it, and can be printed before.
void Rechenblatt::DruckFragen() {
  const std::string Text = Akten.Drucktext();
  if (Text.empty() || FrageJaNein("Berechnung drucken ?") != KnopfJa) return;
  const std::string Name = Prot.Datei.empty() ? KoordinatendateiName : Prot.Datei;
  const Dateiname Teile = DateinameZerlegen(Name);
  static_cast<void>(DruckwerkPort().Drucken(SeitenTeilen(Text), Name.substr(Teile.Ordner.size()),
                                            Teile.Ordner + Teile.Grundname + "-" + Art.Präfix + ".pdf"));
}

}  // namespace tavorena
