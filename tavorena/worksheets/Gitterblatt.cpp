#include <algorithm>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/worksheets/Gitterblatt.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

void Gitterblatt::GitterAufbauen(std::vector<Gitterspalte> Spalten) {
  Rechengitter = &GitterAnlegen(Mit("Gitter"), std::move(Spalten), {0, 0}, "Zeilen");
  Rechengitter->IstPnr = true;
  Rechengitter->Hilfe = "Punktnummer, Return rechnet und schreibt die Zeile";
  KnopfAn = &KnopfAnlegen(Mit("An"), "Anschluß re&chnen", [this] { AnschlussÖffnen(); }, {0, 0});
  KnopfEnd10 = &KnopfAnlegen(Mit("End10"), "A&nschluß beenden", [this] { AnschlussSchließen(); }, {0, 1});
  KnopfDelete = &KnopfAnlegen(Mit("Delete"), "Zeile &löschen", [this] { Delete(); }, {0, 2});
  KnopfEnd10->OhnePrüfung = KnopfDelete->OhnePrüfung = true;
  KnopfAn->Hilfe = "Anschluß rechnen und Zeilen öffnen";
  KnopfEnd10->Hilfe = "Zurück zum Anschluß";
  KnopfDelete->Hilfe = "Zeile aus Gitter und Stapeldatei nehmen, im Protokoll streichen";
  KnöpfeAnlegen();
  AnschlussAnAus(true);
}

void Gitterblatt::AnschlussAnAus(bool An) {
  Anschlussblatt::AnschlussAnAus(An);
  Anschlussan = !An;
  KnopfAn->Aktiv = An;
  Rechengitter->Aktiv = KnopfEnd10->Aktiv = KnopfDelete->Aktiv = !An;
}

int Gitterblatt::AnschlussEinzel() {
  if (!AnschlussGesetzt()) return -1;
  AnschlussRechnen();
  AnschlussAnAus(false);
  Kopfgeschrieben = false;
  Reihen.assign(1, {});
  Rechengitter->Leeren(1);
  return 0;
}

void Gitterblatt::AnschlussÖffnen() {
  if (AnschlussPrüfen() && AnschlussEinzel() == 0) FokusSetzen(*Rechengitter);
}

void Gitterblatt::AnschlussSchließen() {
  if (!OffenesKlaeren()) return FokusSetzen(*Rechengitter);
  BlockBeenden();
  Reihen.clear();
  Rechengitter->Leeren(0);
  AnschlussAnAus(true);
  FokusSetzen(Anf.Pnr);
}

void Gitterblatt::BlockBeenden() {
  if (!ImStapel() && Kopfgeschrieben) StapelEnde(true);
  Kopfgeschrieben = false;
  Sätze = 0;
}

bool Gitterblatt::FokusVerloren(Eingabeelement& S) {
  return &S == Rechengitter ? ZelleVerlassen(*Rechengitter) : Anschlussblatt::FokusVerloren(S);
}

// What stands in the grid is what was written: a committed row that was not confirmed shows its number
// again, a new row is computed and waits for Return.
bool Gitterblatt::ZelleVerlassen(const Gitter& G) {
  const int z = G.Zeile;
  if (z >= std::ssize(Reihen) || Nummer(z) == Reihe(z).Pnr) return true;
  if (Reihe(z).Geschrieben) {
    ZeileZeigen(z);
  } else if (!Nummer(z).empty()) {
    return GitterEinzel(z) == 0;
  }
  return true;
}

bool Gitterblatt::TasteUnten(Steuerelement& S, Taste T) {
  if (Anschlussblatt::TasteUnten(S, T)) return true;
  if (&S != Rechengitter) {
    if (T != Taste::Return || !IstLetztesFeld(S)) return false;
    AnschlussÖffnen();
    return true;
  }
  if (T == Taste::Return) {
    GitterPunktnummer();
  } else if (T == Taste::Escape) {
    ZeileZeigen(Rechengitter->Zeile);
  } else if (T == Taste::Auf || T == Taste::Ab) {
    ZelleWechseln(*Rechengitter, Rechengitter->Zeile + (T == Taste::Auf ? -1 : 1), 0);
  } else {
    return false;
  }
  return true;
}

void Gitterblatt::TextGeändert(Eingabeelement& S) {
  if (&S != Rechengitter) return;
  // Results that do not belong to the number above them would mislead.
  for (int s = 1; s < std::ssize(Rechengitter->Spalten); ++s)
    Rechengitter->InhaltSetzen(Rechengitter->Zeile, s, "");
  Zeile& Z = Reihe(Rechengitter->Zeile);
  if (!Z.Geschrieben) Z.Pnr.clear();
}

std::string Gitterblatt::Nummer(int z) const { return Trimmen(Rechengitter->Inhalt(z, 0)); }

void Gitterblatt::ZeileZeigen(int z) {
  const Zeile& Z = Reihe(z);
  Rechengitter->InhaltSetzen(z, 0, Z.Pnr);
  std::vector<std::string> Texte(Rechengitter->Spalten.size() - 1);
  if (!Z.Pnr.empty()) Texte = Zellen(Z);
  for (int s = 0; s < std::ssize(Texte); ++s)
    Rechengitter->InhaltSetzen(z, s + 1, Texte[static_cast<std::size_t>(s)]);
}

// Return in the number column: commits the row and goes on to the next one.
void Gitterblatt::GitterPunktnummer() {
  const int z = Rechengitter->Zeile;
  if (Nummer(z).empty()) {
    if (z + 1 == Rechengitter->Zeilen()) FokusSetzen(*KnopfEnd10);
    return;
  }
  const bool Steht = Reihe(z).Geschrieben && Nummer(z) == Reihe(z).Pnr;
  if (!Steht) {
    if (GitterEinzel(z) < 0) return;
    GitterEnde(z);
  }
  if (z + 1 == Rechengitter->Zeilen()) return GitterInkrement();
  Rechengitter->Zeile = z + 1;
}

int Gitterblatt::GitterEinzel(int z) {
  Wert Gesucht(Nummer(z));
  const int Tabellenzeile = KorFind(Gesucht);
  Rechengitter->Fehlerhaft = Tabellenzeile < 0;
  if (Tabellenzeile < 0) return -1;
  const auto t = static_cast<std::size_t>(Tabellenzeile);
  Zeile Neu{Trimmen(Gesucht), {KorRechts[t], KorHoch[t]}};
  if (ZeileRechnen(Neu) < 0) return -1;
  LetztePunktnummer = Neu.Pnr;
  if (Reihe(z).Geschrieben) Streichen(Reihe(z));
  Reihe(z) = Neu;
  ZeileZeigen(z);
  return 0;
}

void Gitterblatt::KopfSchreiben() {
  double AnfWert = 0, EndWert = 0;
  Kopfwerte(AnfWert, EndWert);
  if (!ImStapel()) StapelKopfLinie(ProtTitel, Anf.Gesucht, AnfWert, End.Gesucht, EndWert);
  ProtKopfBeiWechsel(ProtTitel);
  Protokollieren([&] { AnschlussProtokollieren(); });
  Kopfgeschrieben = true;
}

void Gitterblatt::GitterEnde(int z) {
  if (!Kopfgeschrieben) KopfSchreiben();
  Zeile& Z = Reihe(z);
  Protokollieren([&] { ZeileProtokollieren(Z, ""); });
  if (!ImStapel() && StapelBlockOffen() && StapelPunktzeile("NR  ", Z.Pnr) == 0) Z.Satz = Sätze++;
  Z.Geschrieben = true;
}

void Gitterblatt::GitterInkrement() {
  Rechengitter->ZeileAnhängen();
  Reihen.emplace_back();
  Rechengitter->Zeile = Rechengitter->Zeilen() - 1;
  Rechengitter->Spalte = 0;
}

int Gitterblatt::ZeileEintragen(const std::string& Gesucht) {
  const int z = Rechengitter->Zeilen() - 1;
  Rechengitter->InhaltSetzen(z, 0, Gesucht);
  if (GitterEinzel(z) < 0) {
    ZeileZeigen(z);
    return -1;
  }
  GitterEnde(z);
  GitterInkrement();
  return 0;
}

void Gitterblatt::Streichen(Zeile& Z) {
  Protokollieren([&] { ZeileProtokollieren(Z, " ***gelöscht"); });
  if (Z.Satz < 0 || StapelSatzEntfernen(Z.Satz) < 0) return;
  --Sätze;
  for (Zeile& Andere : Reihen) {
    if (Andere.Satz > Z.Satz) --Andere.Satz;
  }
  Z.Satz = -1;
}

void Gitterblatt::Delete() {
  const int z = Rechengitter->Zeile;
  if (Reihe(z).Geschrieben) Streichen(Reihe(z));
  Reihe(z) = {};
  if (z + 1 < Rechengitter->Zeilen()) {
    Reihen.erase(Reihen.begin() + z);
    Rechengitter->ZeileLöschen(z);
  } else {
    ZeileZeigen(z);
  }
  Rechengitter->Fehlerhaft = false;
  FokusSetzen(*Rechengitter);
}

int Gitterblatt::StapelZeile() {
  std::string Gelesen;
  const int Ergebnis = StapelLesePnr("NR", Gelesen);
  if (Ergebnis < 0) return Ergebnis;
  // A point that the user does not supply drops its row, the replay goes on.
  if (ZeileEintragen(Gelesen) == 0) ++Stapellauf.Zeilen;
  return 0;
}

bool Gitterblatt::HatOffenes() const {
  for (int z = 0; AnschlussOffen() && z < std::ssize(Reihen); ++z) {
    if (!Reihen[static_cast<std::size_t>(z)].Geschrieben && !Nummer(z).empty() &&
        KorSuche(Wert(Nummer(z))) >= 0)
      return true;
  }
  return false;
}

bool Gitterblatt::OffenesSchreiben() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (Reihe(z).Geschrieben || Nummer(z).empty()) continue;
    if (GitterEinzel(z) < 0) return false;
    GitterEnde(z);
  }
  return true;
}

}  // namespace tavorena
