#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

Punktgitter::Punktgitter(Rechenblatt& Für, Anschluss& Von, const std::vector<Zeilenspalte>& Spalten,
                         Zeilenkunde Wissen)
    : Eingaben(Für, Spalten, Verhalten()),
      Zellen(Eingaben.Zellen),
      Blatt(Für),
      Kopf(Von),
      Kunde(std::move(Wissen)) {
  Zellen.Hilfe = Eingaben.Rechenspalte() == 0
                     ? "Punktnummer, Return rechnet und schreibt die Zeile"
                     : "Return führt von Zelle zu Zelle und schreibt hinter der letzten die Zeile";
  Zellen.BeiVerlassen = [this] { return ZelleVerlassen(); };
  Zellen.BeiText = [this] { TextGeändert(); };
}

Gitterverhalten Punktgitter::Verhalten() {
  return {[this](int z) { return GitterEinzel(z) == 0; }, [this](int z) { return ZeileAbschließen(z); },
          [this](int z) { ZeileZeigen(z); }, [this] { GitterInkrement(); },
          [this] { Blatt.FokusSetzen(*KnopfEnd10); }};
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

// Behind its last cell the row is committed, unless it stands as it was written.
bool Punktgitter::ZeileAbschließen(int z) {
  Zeileneingabe E;
  if (!Reihe(z).Wo.Geschrieben || !Eingaben.EingabeLesen(z, E) || E != static_cast<Zeileneingabe&>(Reihe(z)))
    return ZeileSchreiben(z) == 0;
  ZeileZeigen(z);
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
  if (!Eingaben.EingabeLesen(z, Neu) || Berechnen(Neu) < 0) return -1;
  LetztePunktnummer = Neu.Pnr;
  if (Reihe(z).Wo.Geschrieben) {
    Eingaben.EingabeZeigen(z, Neu);
    ZeigeErgebnisse(z, Neu);
    return 0;
  }
  PunktZurück(Reihe(z));
  Neu.Wo = Reihe(z).Wo;
  Reihe(z) = std::move(Neu);
  ZeileZeigen(z);
  Markieren(z, false);
  return 0;
}

// Commits a row; what was written in it before is taken back.
// @return 0; -1: no such point, or not to be computed; -2: not written; -3: not to be stored
int Punktgitter::ZeileSchreiben(int z) {
  Rechenzeile Neu;
  Zellen.Fehlerhaft = true;
  return Eingaben.EingabeLesen(z, Neu) ? ZeileSchreiben(z, std::move(Neu)) : -1;
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
    Markieren(z, false);
    Z.Ablage = std::make_unique<Punktablage>();
    if (Z.Ablage->Eintragen(Blatt.Akten, Z.Pnr, Z.Ort, Z.Hoehe, Z.Symbol) < 0) return -3;
  }
  Block B = Kunde.Protokollieren(Z, "");
  if (Kunde.NeuePunkte) {
    const std::vector<std::string> Notiz = Z.Ablage->Notizzeilen();
    B.Zeilen.insert(B.Zeilen.end(), Notiz.begin(), Notiz.end());
  }
  const std::string Satz = Blatt.ImStapel() ? "" : Kunde.Satz(Z);  // a replay records none
  const bool Geschrieben = Blatt.Akten.Zeile(B, Satz, Z.Wo) == 0;
  Markieren(z, Geschrieben);
  return Geschrieben ? 0 : -2;
}

void Punktgitter::PunktZurück(Rechenzeile& Z) {
  if (Z.Ablage && Z.Ablage->Zurück() < 0)
    StatusHilfeSetzen("Punkt " + Z.Pnr + " bleibt: inzwischen geändert");
}

void Punktgitter::Markieren(int z, bool Geschrieben) {
  Rechenzeile& Z = Reihe(z);
  const Lage Von = Kunde.Herkunft(Z);
  Z.Bild.Löschen();
  Z.Bild.Zeilenlinie(Geschrieben, Von, Z.Ort);
  Z.Bild.Zeilenpunkt(Geschrieben, Z.Pnr, Z.Ort);
}

void Punktgitter::GrafikKleinpunktLöschen() {
  Beiwerk.Löschen();
  for (Rechenzeile& Z : Reihen) Z.Bild.Löschen();
}

void Punktgitter::GitterInkrement() {
  Eingaben.Anhängen();
  Reihen.emplace_back();
  Zellen.Zeile = Zellen.Zeilen() - 1;
  Zellen.Spalte = 0;
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

void Punktgitter::ZeigeErgebnisse(int z, const Rechenzeile& Z) {
  Eingaben.ErgebnisseZeigen(z, Z.Pnr.empty() ? std::vector<std::string>() : Kunde.Zellen(Z));
}

void Punktgitter::ZeileZeigen(int z) {
  Eingaben.EingabeZeigen(z, Reihe(z));
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
  if (!Eingaben.HatEingabe(z)) return true;
  if (!Eingaben.ZelleLesen(z, s)) return false;
  const bool Fertig = Eingaben.Vollständig(z) && (s == Eingaben.Rechenspalte() || !Bleibt);
  return !Fertig || !Reihe(z).Pnr.empty() || GitterEinzel(z) == 0 || Bleibt;
}

// Results that do not belong to what was typed would mislead.
void Punktgitter::TextGeändert() {
  const int z = Zellen.Zeile;
  if (Eingaben.Art(Zellen.Spalte) == Zellart::Symbol) return;
  if (!Kunde.NeuePunkte || Eingaben.Art(Zellen.Spalte) != Zellart::Nummer) ZeigeErgebnisse(z, {});
  Rechenzeile& Z = Reihe(z);
  if (Z.Wo.Geschrieben) return;
  Z.Pnr.clear();
  Z.Bild.Löschen();
}

// ---- leaving ---------------------------------------------------------------------------------------

bool Punktgitter::OffeneZeileSchreiben() {
  const int z = Zellen.Zeilen() - 1;
  if (!Eingaben.HatEingabe(z) || Reihe(z).Wo.Geschrieben) return true;
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
    if (!Reihe(z).Wo.Geschrieben && Eingaben.HatEingabe(z)) return true;
  }
  return false;
}

bool Punktgitter::OffenesSchreiben() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (Reihe(z).Wo.Geschrieben || !Eingaben.HatEingabe(z)) continue;
    Zellen.Zeile = z;
    if (ZeileSchreiben(z) < 0) return false;
  }
  return true;
}

}  // namespace tavorena
