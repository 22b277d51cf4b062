#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Punktgitter.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

namespace {

std::vector<Gitterspalte> Gitterspalten(const std::vector<Zeilenspalte>& Spalten) {
  std::vector<Gitterspalte> Alle;
  for (const Zeilenspalte& S : Spalten)
    Alle.push_back({S.Titel, S.Zeichen, S.Art != Zellart::Ergebnis, true, S.Art == Zellart::Nummer,
                    Gezeigt<bool>(S.Sichtbar)});
  return Alle;
}

}  // namespace

Punktgitter::Punktgitter(Rechenblatt& Für, Anschluss& Von, const std::vector<Zeilenspalte>& Spalten,
                         Zeilenkunde Wissen)
    : Zellen(Für.GitterAnlegen(Für.Mit("Gitter"), Gitterspalten(Spalten), {0, 0}, "Zeilen")),
      Blatt(Für),
      Kopf(Von),
      Kunde(std::move(Wissen)) {
  for (const Zeilenspalte& S : Spalten) {
    if (S.Art == Zellart::Maß) Rechenspalte = static_cast<int>(Arten.size());
    Arten.push_back(S.Art);
  }
  Zellen.IstPnr = true;
  Zellen.Hilfe = Rechenspalte == 0
                     ? "Punktnummer, Return rechnet und schreibt die Zeile"
                     : "Return führt von Zelle zu Zelle und schreibt hinter der letzten die Zeile";
  Zellen.BeiTaste = [this](Taste T) { return TasteNehmen(T); };
  Zellen.BeiVerlassen = [this] { return ZelleVerlassen(); };
  Zellen.BeiText = [this] { TextGeändert(); };
}

void Punktgitter::KnöpfeAnlegen(std::function<void()> Öffnen) {
  KnopfAn = &Blatt.KnopfAnlegen(Blatt.Mit("An"), "Anschluß re&chnen", std::move(Öffnen), {0, 0});
  KnopfEnd10 =
      &Blatt.KnopfAnlegen(Blatt.Mit("End10"), "A&nschluß beenden", [this] { AnschlussSchließen(); }, {0, 1});
  Knopf& KnopfDelete =
      Blatt.KnopfAnlegen(Blatt.Mit("Delete"), "Zeile &löschen", [this] { Delete(); }, {0, 2});
  KnopfEnd10->OhnePrüfung = KnopfDelete.OhnePrüfung = true;
  KnopfAn->Hilfe = "Anschluß rechnen und Zeilen öffnen";
  KnopfEnd10->Hilfe = "Zurück zum Anschluß";
  KnopfDelete.Hilfe = "Zeile aus Gitter und Stapeldatei nehmen, im Protokoll streichen";
  MitÖffnen({&Zellen, KnopfEnd10, &KnopfDelete});
  AnschlussAnAus(true);
}

void Punktgitter::MitÖffnen(std::initializer_list<Steuerelement*> Weitere) {
  Offene.insert(Offene.end(), Weitere);
}

// ---- the connection above the rows -----------------------------------------------------------------

void Punktgitter::AnschlussAnAus(bool An) {
  Anschlussan = !An;
  Kopf.AnschlussAnAus(An);
  KnopfAn->Aktiv = An;
  for (Steuerelement* S : Offene) S->Aktiv = !An;
}

int Punktgitter::Verbinden() {
  Verbindung V = Blatt.NeueVerbindung();
  Kunde.Verbinden(V);
  return Blatt.Akten.Beginnen(std::move(V));
}

int Punktgitter::AnschlussEinzel() {
  if (!Kopf.Gesetzt() || Verbinden() < 0) return -1;
  AnschlussAnAus(false);
  GrafikKleinpunktLöschen();
  Reihen.clear();
  Reihen.emplace_back();
  Zellen.Leeren(1);
  return 0;
}

void Punktgitter::AnschlussSchließen() {
  if (!Blatt.OffenesKlären() || Blatt.Akten.Beenden() < 0) return Blatt.FokusSetzen(Zellen);
  GrafikKleinpunktLöschen();
  Reihen.clear();
  Zellen.Leeren(0);
  AnschlussAnAus(true);
  Blatt.FokusSetzen(Kopf.Anf.Pnr);
}

// ---- what a row goes through -----------------------------------------------------------------------

// Return: on to the next typed cell, and behind the last one the row is committed.
void Punktgitter::GitterReturn() {
  const int z = Zellen.Zeile, Nächste = Zellen.Eingabespalte(1);
  if (!HatEingabe(z)) {
    if (z + 1 == Zellen.Zeilen()) Blatt.FokusSetzen(*KnopfEnd10);
    return;
  }
  if (Nächste >= 0) {
    // What can not be computed is mended here, and not behind the symbol.
    if (Zellen.Spalte == Rechenspalte && GitterEinzel(z) < 0) return;
    return Blatt.ZelleWechseln(Zellen, z, Nächste);
  }
  Zeileneingabe E;
  if (Reihe(z).Wo.Geschrieben && EingabeLesen(z, E) && E == static_cast<Zeileneingabe&>(Reihe(z))) {
    ZeileZeigen(z);
  } else if (ZeileSchreiben(z) < 0) {
    return;
  }
  if (z + 1 == Zellen.Zeilen()) return GitterInkrement();
  Zellen.Zeile = z + 1;
  Zellen.Spalte = 0;
}

// Brings what was typed into its normal form. @return false: it can not be read
bool Punktgitter::ZelleLesen(int z, int s) {
  std::string Text = Trimmen(Zellen.Inhalt(z, s));
  double Zahl = 0;
  if (Art(s) == Zellart::Maß && !Text.empty() && !MesswertLesen(Text, Zahl)) {
    StatusHilfeSetzen("Zahl erwartet");
    return false;
  }
  if (Art(s) == Zellart::Maß && !StapelZahlPaßt(Zahl)) {
    StatusHilfeSetzen("Der Wert muß zwischen -999999.9999 und 9999999.9999 liegen");
    return false;
  }
  if (Art(s) != Zellart::Maß && Text.find_first_of(" \t") != std::string::npos) {
    StatusHilfeSetzen("Punktnummer und Symbol ohne Leerzeichen");
    return false;
  }
  Zellen.InhaltSetzen(z, s, Art(s) == Zellart::Maß ? Messwerttext(Zahl) : Text);
  return true;
}

bool Punktgitter::EingabeLesen(int z, Zeileneingabe& E) {
  for (int s = 0; s < std::ssize(Arten); ++s) {
    if (Art(s) == Zellart::Ergebnis) continue;
    if (!ZelleLesen(z, s)) {
      Zellen.Spalte = s;
      return false;
    }
    const std::string& Text = Zellen.Inhalt(z, s);
    if (Art(s) == Zellart::Nummer) E.Pnr = Text;
    if (Art(s) == Zellart::Symbol) E.Symbol = Text;
    if (Art(s) == Zellart::Maß) E.Maße.push_back(ZahlAusText(Text));
  }
  return true;
}

// A row as it is typed: a known point is looked up, or asked for. @return 0; -1: it can not be computed
int Punktgitter::Berechnen(Rechenzeile& Neu) {
  Zellen.Fehlerhaft = true;
  if (Neu.Pnr.empty()) {
    StatusHilfeSetzen("Punktnummer fehlt");
    Zellen.Spalte = 0;
    return -1;
  }
  Wert Gesucht(Neu.Pnr);
  const int Tabellenzeile = Kunde.NeuePunkte ? -1 : KorFind(Gesucht);
  if (!Kunde.NeuePunkte && Tabellenzeile < 0) return -1;
  Zellen.Fehlerhaft = false;
  // Where a point of the connection was moved meanwhile, the rows from here on have another head.
  if (Kopf.Nachsehen() && Verbinden() < 0) return -1;
  if (Tabellenzeile >= 0) {
    const KorSatz P = KorPunkt(Tabellenzeile);
    Neu.Pnr = Trimmen(Gesucht);
    Neu.Ort = {P.Rechts, P.Hoch};
  }
  return Kunde.Rechnen(Neu);
}

// Computes and shows a row that is typed; it waits for Return.
int Punktgitter::GitterEinzel(int z) {
  Rechenzeile Neu;
  Zellen.Fehlerhaft = true;
  if (!EingabeLesen(z, Neu) || Berechnen(Neu) < 0) return -1;
  LetztePunktnummer = Neu.Pnr;
  if (Reihe(z).Wo.Geschrieben) {
    EingabeZeigen(z, Neu);
    ZeigeErgebnisse(z, Neu);
    return 0;
  }
  PunktZurück(Reihe(z));
  Neu.Wo = Reihe(z).Wo;
  Reihe(z) = std::move(Neu);
  ZeileZeigen(z);
  Markieren(z, FarbeBlau);
  return 0;
}

// Commits a row; what was written in it before is taken back.
// @return 0; -1: no such point, or not to be computed; -2: not written; -3: not to be stored
int Punktgitter::ZeileSchreiben(int z) {
  Rechenzeile Neu;
  Zellen.Fehlerhaft = true;
  return EingabeLesen(z, Neu) ? ZeileSchreiben(z, std::move(Neu)) : -1;
}

int Punktgitter::ZeileSchreiben(int z, Rechenzeile Neu) {
  if (Berechnen(Neu) < 0) return -1;
  if (Reihe(z).Wo.Geschrieben && Streichen(z) < 0) return -1;
  PunktZurück(Reihe(z));
  Reihe(z).Bild.Löschen();
  Neu.Wo = Reihe(z).Wo;
  Reihe(z) = std::move(Neu);
  const int Ergebnis = GitterEnde(z);
  LetztePunktnummer = Reihe(z).Pnr;
  ZeileZeigen(z);
  return Ergebnis;
}

// The end of a row: table, protocol and batch file. @return as ZeileSchreiben
int Punktgitter::GitterEnde(int z) {
  Rechenzeile& Z = Reihe(z);
  if (Kunde.NeuePunkte) {
    Markieren(z, FarbeBlau);
    Z.Ablage = std::make_unique<Punktablage>();
    if (Z.Ablage->Eintragen(Blatt.Akten, Z.Pnr, Z.Ort, Z.Hoehe, Z.Symbol) < 0) return -3;
  }
  Block B = Kunde.Protokollieren(Z, "");
  if (Kunde.NeuePunkte) {
    const std::vector<std::string> Notiz = Z.Ablage->Notiz();
    B.Zeilen.insert(B.Zeilen.end(), Notiz.begin(), Notiz.end());
  }
  const std::string Satz = Blatt.ImStapel() ? "" : Kunde.Satz(Z);  // a replay records none
  const bool Geschrieben = Blatt.Akten.Zeile(B, Satz, Z.Wo) == 0;
  Markieren(z, Geschrieben ? FarbeRot : FarbeBlau);
  return Geschrieben ? 0 : -2;
}

void Punktgitter::PunktZurück(Rechenzeile& Z) {
  if (Z.Ablage && Z.Ablage->Zurück() < 0)
    StatusHilfeSetzen("Punkt " + Z.Pnr + " bleibt: inzwischen geändert");
}

// The row under work is blue, the committed one red with its number.
void Punktgitter::Markieren(int z, int Farbe) {
  Rechenzeile& Z = Reihe(z);
  const Lage Von = Kunde.Herkunft(Z);
  Z.Bild.Löschen();
  Z.Bild.Linie({Von.RW, Von.HW, Z.Ort.RW, Z.Ort.HW, Farbe});
  Z.Bild.Punkt({Farbe == FarbeRot ? Z.Pnr : "", Z.Ort.RW, Z.Ort.HW, "", Farbe});
}

void Punktgitter::GrafikKleinpunktLöschen() {
  Beiwerk.Löschen();
  for (Rechenzeile& Z : Reihen) Z.Bild.Löschen();
}

// The symbol of the row above stands in the new one.
void Punktgitter::GitterInkrement() {
  Zellen.ZeileAnhängen();
  Reihen.emplace_back();
  const int z = Zellen.Zeilen() - 1;
  Zellen.Zeile = z;
  Zellen.Spalte = 0;
  for (int s = 0; s < std::ssize(Arten); ++s) {
    if (Art(s) == Zellart::Symbol) Zellen.InhaltSetzen(z, s, Reihe(z - 1).Symbol);
  }
}

int Punktgitter::Eintragen(const Zeileneingabe& E) {
  const int z = Zellen.Zeilen() - 1;
  Zellen.InhaltSetzen(z, 0, E.Pnr);
  Rechenzeile Neu;
  static_cast<Zeileneingabe&>(Neu) = E;
  const int Ergebnis = ZeileSchreiben(z, std::move(Neu));
  if (Ergebnis == -2) return -2;
  if (Ergebnis < 0) {
    Reihe(z) = {};
    ZeileZeigen(z);
    return -1;
  }
  GitterInkrement();
  return 0;
}

int Punktgitter::StapelZeile() {
  Zeileneingabe E;
  const int Ergebnis = Kunde.Lesen(E);
  if (Ergebnis < 0) return Ergebnis;
  // A row that can not be had is dropped, the replay goes on.
  const int Eingetragen = Eintragen(E);
  if (Eingetragen == 0) ++Stapel.Bilanz.Zeilen;
  if (Eingetragen == -1)
    StapelZeileAuslassen(
        "Punkt " + Zitat(E.Pnr) +
        (!Kunde.NeuePunkte && KorSuche(std::string_view(E.Pnr)) < 0 ? " fehlt" : " ist nicht zu rechnen"));
  if (Eingetragen != -2) return 0;
  StapelFehlerMeldung("Zeile nicht geschrieben");
  return -1;
}

int Punktgitter::Streichen(int z) {
  Rechenzeile& Z = Reihe(z);
  if (Blatt.Akten.Streichen(Kunde.Protokollieren(Z, " ***gelöscht"), Z.Wo) < 0) {
    StatusHilfeSetzen("Die Zeile bleibt: die Stapeldatei wurde von anderer Seite geändert");
    ZeileZeigen(z);
    return -1;
  }
  PunktZurück(Z);
  Z.Bild.Löschen();
  return 0;
}

void Punktgitter::Delete() {
  const int z = Zellen.Zeile;
  Blatt.FokusSetzen(Zellen);
  if (Reihe(z).Wo.Geschrieben && Streichen(z) < 0) return;
  Reihe(z) = {};
  if (z + 1 < Zellen.Zeilen()) {
    Reihen.erase(Reihen.begin() + z);
    Zellen.ZeileLöschen(z);
  } else {
    ZeileZeigen(z);
  }
  Zellen.Fehlerhaft = false;
}

// ---- the cells -------------------------------------------------------------------------------------

std::string Punktgitter::Nummer(int z) const { return Trimmen(Zellen.Inhalt(z, 0)); }

bool Punktgitter::HatEingabe(int z) const {
  for (int s = 0; s < std::ssize(Arten); ++s) {
    const bool Zählt = Art(s) == Zellart::Nummer || Art(s) == Zellart::Maß;
    if (Zählt && !TrimmenSicht(Zellen.Inhalt(z, s)).empty()) return true;
  }
  return false;
}

bool Punktgitter::Vollständig(int z) const {
  for (int s = 0; s <= Rechenspalte; ++s) {
    if (Art(s) != Zellart::Ergebnis && TrimmenSicht(Zellen.Inhalt(z, s)).empty()) return false;
  }
  return true;
}

void Punktgitter::EingabeZeigen(int z, const Zeileneingabe& E) {
  auto Maß = E.Maße.begin();
  for (int s = 0; s < std::ssize(Arten); ++s) {
    if (Art(s) == Zellart::Nummer) Zellen.InhaltSetzen(z, s, E.Pnr);
    if (Art(s) == Zellart::Symbol) Zellen.InhaltSetzen(z, s, E.Symbol);
    if (Art(s) == Zellart::Maß) Zellen.InhaltSetzen(z, s, Maß == E.Maße.end() ? "" : Messwerttext(*Maß++));
  }
}

void Punktgitter::ZeigeErgebnisse(int z, const Rechenzeile& Z) {
  const std::vector<std::string> Texte = Z.Pnr.empty() ? std::vector<std::string>() : Kunde.Zellen(Z);
  auto Text = Texte.begin();
  for (int s = 0; s < std::ssize(Arten); ++s) {
    if (Art(s) == Zellart::Ergebnis) Zellen.InhaltSetzen(z, s, Text == Texte.end() ? "" : *Text++);
  }
}

void Punktgitter::ZeileZeigen(int z) {
  EingabeZeigen(z, Reihe(z));
  ZeigeErgebnisse(z, Reihe(z));
}

// What stands in the grid is what was written: a committed row that was not confirmed shows what it holds
// again, a new row that is complete is computed and waits for Return. Within a row every way is open.
bool Punktgitter::ZelleVerlassen() {
  const int z = Zellen.Zeile, s = Zellen.Spalte;
  if (z >= std::ssize(Reihen)) return true;
  const bool Bleibt = Zellen.Ziel == z;  // for another cell of the row
  if (Reihe(z).Wo.Geschrieben && !Bleibt) {
    ZeileZeigen(z);
    return true;
  }
  if (!HatEingabe(z)) return true;
  if (!ZelleLesen(z, s)) return false;
  const bool Fertig = Vollständig(z) && (s == Rechenspalte || !Bleibt);
  return !Fertig || !Reihe(z).Pnr.empty() || GitterEinzel(z) == 0 || Bleibt;
}

// Results that do not belong to what was typed would mislead.
void Punktgitter::TextGeändert() {
  const int z = Zellen.Zeile;
  if (Art(Zellen.Spalte) == Zellart::Symbol) return;
  if (!Kunde.NeuePunkte || Art(Zellen.Spalte) != Zellart::Nummer) ZeigeErgebnisse(z, {});
  Rechenzeile& Z = Reihe(z);
  if (Z.Wo.Geschrieben) return;
  Z.Pnr.clear();
  Z.Bild.Löschen();
}

bool Punktgitter::TasteNehmen(Taste T) {
  switch (T) {
    case Taste::Return:
      GitterReturn();
      return true;
    case Taste::Escape:
      ZeileZeigen(Zellen.Zeile);
      return true;
    case Taste::Auf:
    case Taste::Ab:
      Blatt.ZelleWechseln(Zellen, Zellen.Zeile + (T == Taste::Auf ? -1 : 1), Zellen.Spalte);
      return true;
    case Taste::Plus:
    case Taste::Minus:
    case Taste::Leer:
      break;
  }
  return false;
}

// ---- leaving ---------------------------------------------------------------------------------------

bool Punktgitter::OffeneZeileSchreiben() {
  const int z = Zellen.Zeilen() - 1;
  if (!HatEingabe(z) || Reihe(z).Wo.Geschrieben) return true;
  Zellen.Zeile = z;
  if (ZeileSchreiben(z) < 0) {
    Blatt.FokusSetzen(Zellen);
    return false;
  }
  GitterInkrement();
  return true;
}

bool Punktgitter::HatOffenes() const {
  for (int z = 0; Offen() && z < std::ssize(Reihen); ++z) {
    if (!Reihe(z).Wo.Geschrieben && HatEingabe(z)) return true;
  }
  return false;
}

bool Punktgitter::OffenesSchreiben() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (Reihe(z).Wo.Geschrieben || !HatEingabe(z)) continue;
    Zellen.Zeile = z;
    if (ZeileSchreiben(z) < 0) return false;
  }
  return true;
}

}  // namespace tavorena
