#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Linel.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Punktgitter.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

Punktgitter::Punktgitter(Rechenblatt& Für, Anschluss& Von, std::vector<Gitterspalte> Spalten,
                         Zeilenkunde Wissen)
    : Zellen(Für.GitterAnlegen(Für.Mit("Gitter"), std::move(Spalten), {0, 0}, "Zeilen")),
      Blatt(Für),
      Kopf(Von),
      Kunde(std::move(Wissen)) {
  Zellen.IstPnr = true;
  Zellen.Hilfe = "Punktnummer, Return rechnet und schreibt die Zeile";
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

// Return in the number column: commits the row and goes on to the next one.
void Punktgitter::GitterPunktnummer() {
  const int z = Zellen.Zeile;
  if (Nummer(z).empty()) {
    if (z + 1 == Zellen.Zeilen()) Blatt.FokusSetzen(*KnopfEnd10);
    return;
  }
  if (Reihe(z).Wo.Geschrieben && Nummer(z) == Reihe(z).Pnr) {
    ZeileZeigen(z);
  } else if (GitterEinzel(z) < 0 || GitterEnde(z) < 0) {
    return;
  }
  if (z + 1 == Zellen.Zeilen()) return GitterInkrement();
  Zellen.Zeile = z + 1;
}

// The point of a row: looked up, or asked for; computed; shown. What was written under another number in
// this row is taken back.
int Punktgitter::GitterEinzel(int z) {
  Wert Gesucht(Nummer(z));
  const int Tabellenzeile = KorFind(Gesucht);
  Zellen.Fehlerhaft = Tabellenzeile < 0;
  if (Tabellenzeile < 0) return -1;
  // Where a point of the connection was moved meanwhile, the rows from here on have another head.
  if (Kopf.Nachsehen() && Verbinden() < 0) return -1;
  const auto P = KorPunkt(Tabellenzeile);
  Punktzeile Neu{Trimmen(Gesucht), {P.Rechts, P.Hoch}, 0, 0, {}, {}};
  if (Kunde.Rechnen(Neu) < 0) return -1;
  if (Reihe(z).Wo.Geschrieben && Streichen(z) < 0) return -1;
  LetztePunktnummer = Neu.Pnr;
  Reihe(z) = std::move(Neu);
  ZeileZeigen(z);
  return 0;
}

// The end of a row: protocol and batch file.
int Punktgitter::GitterEnde(int z) {
  Punktzeile& Z = Reihe(z);
  const int Ergebnis = Blatt.Akten.Zeile(Kunde.Protokollieren(Z, ""), LinelSatz(Z.Pnr), Z.Wo);
  Markieren(z, Ergebnis == 0 ? FarbeRot : FarbeBlau);
  return Ergebnis;
}

// The row under work is blue, the committed one red with its number.
void Punktgitter::Markieren(int z, int Farbe) {
  Punktzeile& Z = Reihe(z);
  const Lage Von = Kunde.Herkunft(Z);
  Z.Bild.Löschen();
  Z.Bild.Linie({Von.RW, Von.HW, Z.Ort.RW, Z.Ort.HW, Farbe});
  Z.Bild.Punkt({Farbe == FarbeRot ? Z.Pnr : "", Z.Ort.RW, Z.Ort.HW, "", Farbe});
}

void Punktgitter::GrafikKleinpunktLöschen() {
  Beiwerk.Löschen();
  for (Punktzeile& Z : Reihen) Z.Bild.Löschen();
}

void Punktgitter::GitterInkrement() {
  Zellen.ZeileAnhängen();
  Reihen.emplace_back();
  Zellen.Zeile = Zellen.Zeilen() - 1;
  Zellen.Spalte = 0;
}

int Punktgitter::Eintragen(const std::string& Gesucht) {
  const int z = Zellen.Zeilen() - 1;
  Zellen.InhaltSetzen(z, 0, Gesucht);
  if (GitterEinzel(z) < 0) {
    ZeileZeigen(z);
    return -1;
  }
  if (GitterEnde(z) < 0) return -2;
  GitterInkrement();
  return 0;
}

int Punktgitter::StapelZeile() {
  std::string Gelesen;
  const int Ergebnis = StapelLeseLinel(Gelesen);
  if (Ergebnis < 0) return Ergebnis;
  // A point that the user does not supply drops its row, the replay goes on.
  const int Eingetragen = Eintragen(Gelesen);
  if (Eingetragen == 0) ++Stapel.Bilanz.Zeilen;
  if (Eingetragen == -1)
    StapelAuslassen("Punkt " + Zitat(Gelesen) +
                    (KorSuche(std::string_view(Gelesen)) < 0 ? " fehlt" : " ist nicht zu rechnen"));
  if (Eingetragen != -2) return 0;
  StapelFehlerMeldung("Zeile nicht geschrieben");
  return -1;
}

int Punktgitter::Streichen(int z) {
  Punktzeile& Z = Reihe(z);
  if (Blatt.Akten.Streichen(Kunde.Protokollieren(Z, " ***gelöscht"), Z.Wo) < 0) {
    StatusHilfeSetzen("Die Zeile bleibt: die Stapeldatei wurde von anderer Seite geändert");
    ZeileZeigen(z);
    return -1;
  }
  Z.Wo = {};
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

void Punktgitter::ZeileZeigen(int z) {
  const Punktzeile& Z = Reihe(z);
  Zellen.InhaltSetzen(z, 0, Z.Pnr);
  std::vector<std::string> Texte;
  if (Z.Pnr.empty()) {
    Texte.resize(Zellen.Spalten.size() - 1);
  } else {
    Texte = Kunde.Zellen(Z);
  }
  for (int s = 0; s < std::ssize(Texte); ++s)
    Zellen.InhaltSetzen(z, s + 1, Texte[static_cast<std::size_t>(s)]);
}

// What stands in the grid is what was written: a committed row that was not confirmed shows its number
// again, a new row is computed and waits for Return.
bool Punktgitter::ZelleVerlassen() {
  const int z = Zellen.Zeile;
  if (z >= std::ssize(Reihen)) return true;
  if (Reihe(z).Wo.Geschrieben) {
    ZeileZeigen(z);
  } else if (!Nummer(z).empty() && Nummer(z) != Reihe(z).Pnr) {
    if (GitterEinzel(z) < 0) return false;
    Markieren(z, FarbeBlau);
  }
  return true;
}

void Punktgitter::TextGeändert() {
  // Results that do not belong to the number above them would mislead.
  for (int s = 1; s < std::ssize(Zellen.Spalten); ++s) Zellen.InhaltSetzen(Zellen.Zeile, s, "");
  Punktzeile& Z = Reihe(Zellen.Zeile);
  if (Z.Wo.Geschrieben) return;
  Z.Pnr.clear();
  Z.Bild.Löschen();
}

bool Punktgitter::TasteNehmen(Taste T) {
  switch (T) {
    case Taste::Return:
      GitterPunktnummer();
      return true;
    case Taste::Escape:
      ZeileZeigen(Zellen.Zeile);
      return true;
    case Taste::Auf:
    case Taste::Ab:
      Blatt.ZelleWechseln(Zellen, Zellen.Zeile + (T == Taste::Auf ? -1 : 1), 0);
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
  if (Nummer(z).empty() || Reihe(z).Wo.Geschrieben) return true;
  Zellen.Zeile = z;
  if (GitterEinzel(z) < 0 || GitterEnde(z) < 0) {
    Blatt.FokusSetzen(Zellen);
    return false;
  }
  GitterInkrement();
  return true;
}

bool Punktgitter::HatOffenes() const {
  for (int z = 0; Offen() && z < std::ssize(Reihen); ++z) {
    if (!Reihen[static_cast<std::size_t>(z)].Wo.Geschrieben && !Nummer(z).empty()) return true;
  }
  return false;
}

bool Punktgitter::OffenesSchreiben() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (Reihe(z).Wo.Geschrieben || Nummer(z).empty()) continue;
    if (GitterEinzel(z) < 0 || GitterEnde(z) < 0) return false;
  }
  return true;
}

}  // namespace tavorena
