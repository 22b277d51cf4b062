
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

// A record: keyword in upper case and the rest of its line.
struct Satz {
  std::string Schlüssel;
  std::string_view Rest;
  std::string_view Zeile;
};

bool NächsteZeile(Satz& S) {
  if (Stapel.Zeiger >= Stapel.Anzahl()) return false;
  S.Zeile = S.Rest = Stapel.Zeilen[static_cast<std::size_t>(Stapel.Zeiger++)];
  ++Stapel.Zeilennummer;
  S.Schlüssel = Großtext(Wortnehmen(S.Rest));
  return true;
}

bool IstKommentar(const Satz& S) {
  return S.Schlüssel.empty() || S.Schlüssel == "C" || S.Zeile.starts_with('C');
}
bool IstEnde(const Satz& S) { return S.Schlüssel == "E" || S.Schlüssel == "EM"; }

bool RissNehmen(const Satz& S) {
  if (S.Schlüssel != "RISS" && S.Schlüssel != "BERNR") return false;
  (S.Schlüssel == "RISS" ? LetzterPlan.Riss : LetzterPlan.BerNr) = TrimmenSicht(S.Rest);
  return true;
}

std::string InZeile() { return "Zeile " + std::to_string(Stapel.Zeilennummer); }

void OhneEndeMerken() {
  Stapel.Bilanz.OhneEnde.push_back("Block " + std::to_string(Stapel.Block) + ", " + Stapel.Art + ", " +
                                   InZeile());
}

// The next record that is no comment; -1 with a message at the end of the file, -2 at the end of the block.
int NächsterSatz(Satz& S) {
  do {
    if (!NächsteZeile(S)) {
      OhneEndeMerken();
      StapelFehlerMeldung("Unerwartetes Dateiende");
      return -1;
    }
  } while (IstKommentar(S));
  return IstEnde(S) ? -2 : 0;
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

// A record that does not belong here. Where it is the head of the next block, the run goes on with that.
int Ablehnen(const Satz& S) {
  Hinweis("Fehler " + std::to_string(Stapel.Zeilennummer) + " beim Lesen der Stapeldatei:\n" +
          std::string(S.Zeile));
  if (S.Schlüssel != "M") {
    Abbrechen();
    return -1;
  }
  OhneEndeMerken();
  Stapel.Bilanz.Fehler = Stapel.Zerrissen = true;
  ZeileZurück();
  return -1;
}

int SatzLesen(const std::string& Schlüssel, Satz& S) {
  const int Ergebnis = NächsterSatz(S);
  if (Ergebnis < 0) return Ergebnis;
  return S.Schlüssel == Schlüssel ? 0 : Ablehnen(S);
}

std::string PnrNehmen(Satz& S) { return std::string(Wortnehmen(S.Rest)); }
double ZahlNehmen(Satz& S) { return ZahlAusText(Wortnehmen(S.Rest)); }

// A block that no worksheet takes is passed over up to its end, or to the next head.
void BlockÜbergehen() {
  Satz S;
  while (NächsteZeile(S)) {
    if (!IstKommentar(S) && IstEnde(S)) return;
    if (S.Schlüssel != "M") continue;
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
    if (Art == 0 && StapelHaken.BlattFür) {
      if (const auto BlattZeigen = StapelHaken.BlattFür(Kennung)) return BlockZeigen(BlattZeigen);
    }
    Stapel.Bilanz.Übergangen.push_back(Art == 1 ? "3D " + Kennung : Kennung);
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

void StapelAuslassen(const std::string& Grund) {
  Stapel.Bilanz.Ausgelassen.push_back(InZeile() + ": " + Grund);
}

std::string StapelStand() {
  const StapelBilanz& B = Stapel.Bilanz;
  const std::string Block = "Block " + std::to_string(Stapel.Block) + " von " + std::to_string(Stapel.Blöcke);
  if (Stapel.Aktiv) return Block + ", " + Stapel.Art + ", " + InZeile();
  std::string Text = B.Abgebrochen ? "Stapel abgebrochen bei " + Block : "Stapel beendet";
  Text += ": " + Anzahltext(B.Blöcke, "Block", "Blöcke") + ", " + Anzahltext(B.Zeilen, "Zeile", "Zeilen");
  if (!B.Ausgelassen.empty()) Text += ", " + std::to_string(B.Ausgelassen.size()) + " ausgelassen";
  Text += ", " + Anzahltext(B.Marken, "Marke", "Marken");
  if (!B.Übergangen.empty()) Text += ", übergangen: " + std::to_string(B.Übergangen.size());
  return Text;
}

std::vector<std::string> StapelBericht() {
  const StapelBilanz& B = Stapel.Bilanz;
  std::vector<std::string> Zeilen;
  for (const std::string& Zeile : B.Ausgelassen) Zeilen.push_back("ausgelassen: " + Zeile);
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
  Satz S;
  while (NächsteZeile(S)) {
    if (IstKommentar(S)) continue;
    if (S.Schlüssel == "E") return -2;
    if (S.Schlüssel != "M") continue;  // lines between blocks
    ++Stapel.Block;
    Stapel.Art = TrimmenSicht(S.Rest);
    const std::string Art = Großtext(Wortnehmen(S.Rest));
    Kennung = Großtext(Wortnehmen(S.Rest));
    if (Art == "VR") return 0;
    if (Art == "3D") return 1;
    if (Kennung.empty()) Kennung = "?";
    return -1;
  }
  return -1;
}

int StapelLesenPnrMitWerte(std::string& AnfPnr, double& AnfWert, std::string& EndPnr, double& EndWert) {
  bool MitAnfang = false, MitEnde = false;
  while (!MitAnfang || !MitEnde) {
    Satz S;
    const int Ergebnis = NächsterSatz(S);
    if (Ergebnis < 0) return Ergebnis;
    if (RissNehmen(S)) continue;
    if (S.Schlüssel != "PAN" && S.Schlüssel != "PEN") return Ablehnen(S);
    const bool Anfang = S.Schlüssel == "PAN";
    (Anfang ? AnfPnr : EndPnr) = PnrNehmen(S);
    (Anfang ? AnfWert : EndWert) = ZahlNehmen(S);
    (Anfang ? MitAnfang : MitEnde) = true;
  }
  return 0;
}

int StapelLeseRisszeilen() {
  Satz S;
  while (NächsteZeile(S)) {
    if (IstKommentar(S) || RissNehmen(S)) continue;
    ZeileZurück();
    return 0;
  }
  return -1;
}

int StapelLesePnr(const std::string& Schlüssel, std::string& Pnr) {
  Satz S;
  const int Ergebnis = SatzLesen(Schlüssel, S);
  if (Ergebnis == 0) Pnr = PnrNehmen(S);
  return Ergebnis;
}

int StapelLeseZweiPnr(const std::string& Schlüssel, std::string& Pnr1, std::string& Pnr2, double& Wert) {
  Satz S;
  const int Ergebnis = SatzLesen(Schlüssel, S);
  if (Ergebnis < 0) return Ergebnis;
  Pnr1 = PnrNehmen(S);
  Pnr2 = PnrNehmen(S);
  Wert = ZahlNehmen(S);
  return 0;
}

int StapelLeseNeupunkt(std::string& Pnr, std::string& Symbol) {
  Satz S;
  const int Ergebnis = SatzLesen("NEUPUNKT", S);
  if (Ergebnis < 0) return Ergebnis;
  Pnr = PnrNehmen(S);
  Symbol = Wortnehmen(S.Rest);
  if (Symbol == "-") Symbol.clear();
  if (Pnr == "0") Pnr.clear();
  return 0;
}

}  // namespace tavorena
