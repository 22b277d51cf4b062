
#include <algorithm>
#include <map>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {

Nachlauf Stapel;
Nachlaufhaken StapelHaken;

namespace {

constexpr int StapelGrenze = 10001;

bool NächsteZeile(Stapelzeile& Z) {
  if (Stapel.Zeiger >= Stapel.Anzahl()) return false;
  Z.Zeile = Z.Rest = Stapel.Zeilen[static_cast<std::size_t>(Stapel.Zeiger++)];
  ++Stapel.Zeilennummer;
  Z.Schlüssel = Großtext(Wortnehmen(Z.Rest));
  return true;
}

bool IstKommentar(const Stapelzeile& Z) {
  return Z.Schlüssel.empty() || Z.Schlüssel == "C" || Z.Zeile.starts_with('C');
}
bool IstEnde(const Stapelzeile& Z) { return Z.Schlüssel == "E" || Z.Schlüssel == "EM"; }

std::string InZeile(int Nummer) { return "Zeile " + std::to_string(Nummer); }

void OhneEndeMerken() {
  Stapel.Bilanz.OhneEnde.push_back("Block " + std::to_string(Stapel.Block) + ", " + Stapel.Art + ", " +
                                   InZeile(Stapel.Zeilennummer));
}

void Auslassen(int Nummer, const std::string& Grund) {
  Stapel.Bilanz.OhneErgebnis.push_back("ohne Ergebnis: " + Stapel.Art + ", " + InZeile(Nummer) + ": " +
                                       Grund);
  StatusHilfeSetzen(Stapel.Bilanz.OhneErgebnis.back());
}

void Beenden() {
  Stapel.Aktiv = Stapel.Ablauf = false;
  if (AktenSichern() < 0) Stapel.Bilanz.Fehler = true;
  if (Stapel.Blatt.Stand) Stapel.Blatt.Stand();
  if (StapelHaken.Schritt) StapelHaken.Schritt("");
}

void Abbrechen() {
  Stapel.Bilanz.Fehler = Stapel.Bilanz.Abgebrochen = true;
  Beenden();
}

// The line that was read last is read again.
void ZeileZurück() {
  --Stapel.Zeiger;
  --Stapel.Zeilennummer;
}

// A block that no worksheet takes is passed over up to its end, or to the next head.
void BlockÜbergehen() {
  Stapelzeile Z;
  while (NächsteZeile(Z)) {
    if (!IstKommentar(Z) && IstEnde(Z)) return;
    if (Z.Schlüssel != "M") continue;
    return ZeileZurück();
  }
}

void BlockZeigen(const std::function<void()>& BlattZeigen) {
  Stapel.Aktiv = true;
  Stapel.Ablauf = Stapel.Zerrissen = false;
  if (StapelHaken.Schritt) StapelHaken.Schritt(Stapel.Art);
  AblaufPort().EreignisseAbarbeiten();
  if (!Stapel.Aktiv) return;  // somebody stopped it
  ++Stapel.Bilanz.Blöcke;
  if (const auto Schließen = std::exchange(Stapel.Blatt, {}).Schließen) Schließen();
  BlattZeigen();
}

// What stands behind a lone end record is not replayed.
void VorzeitigesEnde() {
  if (Stapel.Block == Stapel.Blöcke) return Beenden();
  StapelFehlerMeldung("E ohne Block, nicht gerechnet: " +
                      Anzahltext(Stapel.Blöcke - Stapel.Block, "Block", "Blöcke"));
}

void NächsterBlock() {
  Stapel.Aktiv = false;  // for the time of the search
  std::string Kennung;
  for (;;) {
    const int Art = StapelLeseKopf(Kennung);
    if (Art == -1 && !Kennung.empty()) return StapelFehlerMeldung("Modulkopf fehlerhaft");
    if (Art == -2) return VorzeitigesEnde();
    if (Art < 0) return Beenden();
    if (Art == 1) Kennung.insert(0, "3D ");
    if (StapelHaken.BlattFür) {
      if (const auto BlattZeigen = StapelHaken.BlattFür(Kennung)) return BlockZeigen(BlattZeigen);
    }
    Stapel.Bilanz.Übergangen.push_back(Kennung);
    BlockÜbergehen();
  }
}

}  // namespace

void StapelStarten(const std::string& Dateiname) {
  if (Dateiname.empty()) return;
  Nachlaufblatt Letztes = std::move(Stapel.Blatt);
  Stapel = {};
  Stapel.Blatt = std::move(Letztes);
  Stapel.Bilanz.Datei = Dateiname;
  std::string Text, Grund;
  if (TextdateiLesen(Dateiname, Text, &Grund) < 0) {
    Stapel.Bilanz.Fehler = true;
    return LaufzeitFehlerMeldung(Laufzeitfehler::DateiNichtGefunden, "Stapelmodul.StapelStarten",
                                 Dateiname + InKlammern(Grund) + "\n");
  }
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  while (Leser.Nächste(Zeile)) {
    if (Stapel.Zeilen.size() == StapelGrenze) {
      Stapel.Zeilen.clear();
      Stapel.Bilanz.Fehler = true;
      return LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Stapelmodul.StapelStarten");
    }
    Stapel.Zeilen.emplace_back(Zeile);
    if (Großtext(Wortnehmen(Zeile)) == "M") ++Stapel.Blöcke;
  }
  Stapel.Aktiv = true;
  StapelWeiter();
}

void StapelWeiter() {
  if (Stapel.ImVerteiler) {
    Stapel.Nochmal = true;  // the worksheet was done at once: no recursion over the blocks of a long file
    return;
  }
  struct Verteiler {
    Verteiler() { Stapel.ImVerteiler = true; }
    ~Verteiler() { Stapel.ImVerteiler = false; }
  } const Läuft;
  do {
    Stapel.Nochmal = false;
    NächsterBlock();
  } while (Stapel.Nochmal);
}

void StapelAnhalten() {
  if (!Stapel.Aktiv) return;
  Stapel.Bilanz.Abgebrochen = true;
  Beenden();
  if (Stapel.Blatt.Anhalten) Stapel.Blatt.Anhalten();
}

void StapelZeileAuslassen(const std::string& Grund) { Auslassen(Stapel.Zeilennummer, Grund); }

void StapelFallAuslassen(const std::string& Grund) { Auslassen(Stapel.Kopfzeile, Grund); }

std::string StapelStand() {
  const StapelBilanz& B = Stapel.Bilanz;
  const std::string Block = "Block " + std::to_string(Stapel.Block) + " von " + std::to_string(Stapel.Blöcke);
  if (Stapel.Aktiv) return Block + ", " + Stapel.Art + ", " + InZeile(Stapel.Zeilennummer);
  std::string Text = B.Abgebrochen ? "Stapel abgebrochen bei " + Block : "Stapel beendet";
  Text += ": " + Anzahltext(B.Blöcke, "Block", "Blöcke") + ", " + Anzahltext(B.Zeilen, "Zeile", "Zeilen");
  if (!B.OhneErgebnis.empty()) Text += ", " + std::to_string(B.OhneErgebnis.size()) + " ohne Ergebnis";
  Text += ", " + Anzahltext(B.Marken, "Marke", "Marken");
  if (!B.Übergangen.empty()) Text += ", übergangen: " + std::to_string(B.Übergangen.size());
  return Text;
}

std::vector<std::string> StapelBericht() {
  const StapelBilanz& B = Stapel.Bilanz;
  std::vector<std::string> Zeilen = B.OhneErgebnis;
  for (const std::string& Zeile : B.OhneEnde) Zeilen.push_back("ohne Ende: " + Zeile);
  std::map<std::string, int> Anzahl;
  for (const std::string& Kennung : B.Übergangen) ++Anzahl[Kennung];
  for (const auto& [Kennung, n] : Anzahl)
    Zeilen.push_back("übergangen: " + Kennung + " (" + std::to_string(n) + " mal)");
  return Zeilen;
}

void StapelFehlerMeldung(const std::string& Text) {
  Hinweis("Fehler aufgetreten im Stapel\n" + Stapel.Bilanz.Datei +
          "\nZeile: " + std::to_string(Stapel.Zeilennummer) + "\n" + Text);
  Abbrechen();
}

int StapelLeseKopf(std::string& Kennung) {
  Kennung.clear();
  Stapelzeile Z;
  while (NächsteZeile(Z)) {
    if (IstKommentar(Z)) continue;
    if (Z.Schlüssel == "E") return -2;
    if (Z.Schlüssel != "M") continue;  // lines between blocks
    ++Stapel.Block;
    Stapel.Kopfzeile = Stapel.Zeilennummer;
    Stapel.Art = TrimmenSicht(Z.Rest);
    const std::string Art = Großtext(Wortnehmen(Z.Rest));
    Kennung = Großtext(Wortnehmen(Z.Rest));
    if (Art == "VR") return 0;
    if (Art == "3D") return 1;
    if (Kennung.empty()) Kennung = "?";
    return -1;
  }
  return -1;
}

int StapelLeseRisszeilen() {
  Stapelzeile Z;
  while (NächsteZeile(Z)) {
    if (IstKommentar(Z) || StapelRissNehmen(Z)) continue;
    ZeileZurück();
    return 0;
  }
  return -1;
}

int StapelNächsterSatz(Stapelzeile& Z) {
  do {
    if (!NächsteZeile(Z)) {
      OhneEndeMerken();
      StapelFehlerMeldung("Unerwartetes Dateiende");
      return -1;
    }
  } while (IstKommentar(Z));
  return IstEnde(Z) ? -2 : 0;
}

bool StapelRissNehmen(const Stapelzeile& Z) {
  if (Z.Schlüssel != "RISS" && Z.Schlüssel != "BERNR") return false;
  (Z.Schlüssel == "RISS" ? LetzterPlan.Riss : LetzterPlan.BerNr) = TrimmenSicht(Z.Rest);
  return true;
}

int StapelAblehnen(const Stapelzeile& Z) {
  Hinweis("Fehler " + std::to_string(Stapel.Zeilennummer) + " beim Lesen der Stapeldatei:\n" +
          std::string(Z.Zeile));
  if (Z.Schlüssel != "M") {
    Abbrechen();
    return -1;
  }
  OhneEndeMerken();
  Stapel.Bilanz.Fehler = Stapel.Zerrissen = true;
  ZeileZurück();
  return -1;
}

}  // namespace tavorena
