#include <algorithm>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/TVProtokollmodul.h>

namespace tavorena {

std::vector<std::string> StapelZeilen;
int StapelAnzahl = 0, StapelZeiger = 0, StapelZeilennummer = 0;
bool StapelAktiv = false, StapelAblauf = false;
StapelBilanz Stapellauf;
std::function<void(const std::string&)> StapelSchritt;

namespace {

constexpr int StapelGrenze = 10001;

struct Anmeldung {
  std::vector<std::string> Kennungen;
  std::function<void()> Zeigen;
};
std::vector<Anmeldung> Blätter;
bool ImVerteiler = false, Nochmal = false;

// A record: keyword in upper case and the rest of its line.
struct Satz {
  std::string Schlüssel;
  std::string_view Rest;
  std::string_view Zeile;
};

bool NächsteZeile(Satz& S) {
  if (StapelZeiger >= StapelAnzahl) return false;
  S.Zeile = S.Rest = StapelZeilen[static_cast<std::size_t>(StapelZeiger++)];
  ++StapelZeilennummer;
  S.Schlüssel = Großtext(Wortnehmen(S.Rest));
  return true;
}

bool IstKommentar(const Satz& S) {
  return S.Schlüssel.empty() || S.Schlüssel == "C" || S.Zeile.starts_with('C');
}
bool IstEnde(const Satz& S) { return S.Schlüssel == "E" || S.Schlüssel == "EM"; }

bool RissNehmen(const Satz& S) {
  if (S.Schlüssel != "RISS" && S.Schlüssel != "BERNR") return false;
  (S.Schlüssel == "RISS" ? Riss : BerNr) = TrimmenSicht(S.Rest);
  return true;
}

// The next record that is no comment; -1 with a message at the end of the file, -2 at the end of the block.
int NächsterSatz(Satz& S) {
  do {
    if (!NächsteZeile(S)) {
      StapelFehlerMeldung("Unerwartetes Dateiende");
      return -1;
    }
  } while (IstKommentar(S));
  return IstEnde(S) ? -2 : 0;
}

void Beenden() {
  StapelAktiv = StapelAblauf = false;
  if (StapelSchritt) StapelSchritt("");
}

int Ablehnen(const Satz& S) {
  Hinweis("Fehler " + std::to_string(StapelZeilennummer) + " beim Lesen der Stapeldatei:\n" +
          std::string(S.Zeile));
  Stapellauf.Fehler = true;
  Beenden();
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
    --StapelZeiger;
    --StapelZeilennummer;
    return;
  }
}

void BlockZeigen(const Anmeldung& Blatt) {
  StapelAktiv = true;
  StapelAblauf = false;
  ++Stapellauf.Blöcke;
  if (StapelSchritt) StapelSchritt(ProtArt);
  AblaufPort().EreignisseAbarbeiten();
  Blatt.Zeigen();
}

void NächsterBlock() {
  StapelAktiv = false;  // for the time of the search
  std::string Kennung;
  for (;;) {
    const int Art = StapelLeseKopf(Kennung);
    if (Art == -1 && !Kennung.empty()) return StapelFehlerMeldung("Modulkopf fehlerhaft");
    if (Art < 0) return Beenden();
    const auto Blatt = std::find_if(Blätter.begin(), Blätter.end(), [&](const Anmeldung& B) {
      return std::find(B.Kennungen.begin(), B.Kennungen.end(), Kennung) != B.Kennungen.end();
    });
    if (Art == 0 && Blatt != Blätter.end()) return BlockZeigen(*Blatt);
    Stapellauf.Übergangen.push_back(Art == 1 ? "3D " + Kennung : Kennung);
    BlockÜbergehen();
  }
}

}  // namespace

void StapelBlattAnmelden(const std::vector<std::string>& Kennungen, std::function<void()> Zeigen) {
  std::erase_if(Blätter, [&](const Anmeldung& B) { return B.Kennungen == Kennungen; });
  Blätter.push_back({Kennungen, std::move(Zeigen)});
}

void StapelleserLeeren() {
  StapelZeilen.clear();
  StapelAnzahl = StapelZeiger = StapelZeilennummer = 0;
  StapelAktiv = StapelAblauf = false;
  Stapellauf = {};
}

void StapelStarten(const std::string& Dateiname) {
  if (Dateiname.empty()) return;
  StapelleserLeeren();
  Stapellauf.Datei = Dateiname;
  std::string Text;
  if (TextdateiLesen(Dateiname, Text) < 0) {
    Stapellauf.Fehler = true;
    return LaufzeitFehlerMeldung(Laufzeitfehler::DateiNichtGefunden, "Stapelmodul.StapelStarten");
  }
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  while (Leser.Nächste(Zeile)) {
    if (StapelZeilen.size() == StapelGrenze) {
      StapelZeilen.clear();
      Stapellauf.Fehler = true;
      return LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Stapelmodul.StapelStarten");
    }
    StapelZeilen.emplace_back(Zeile);
  }
  StapelAnzahl = static_cast<int>(StapelZeilen.size());
  StapelAktiv = true;
  StapelWeiter();
}

void StapelWeiter() {
  if (ImVerteiler) {
    Nochmal = true;  // the worksheet was done at once: no recursion over the blocks of a long file
    return;
  }
  struct Verteiler {
    Verteiler() { ImVerteiler = true; }
    ~Verteiler() { ImVerteiler = false; }
  } const Läuft;
  do {
    Nochmal = false;
    NächsterBlock();
  } while (Nochmal);
}

void StapelAnhalten() {
  if (StapelAktiv) Beenden();
}

void StapelFehlerMeldung(const std::string& Text) {
  Hinweis("Fehler aufgetreten im Stapel\n" + Stapellauf.Datei +
          "\nZeile: " + std::to_string(StapelZeilennummer) + "\n" + Text);
  Stapellauf.Fehler = true;
  Beenden();
}

int StapelLeseKopf(std::string& Kennung) {
  Kennung.clear();
  Satz S;
  while (NächsteZeile(S)) {
    if (IstKommentar(S)) continue;
    if (S.Schlüssel == "E") return -2;
    if (S.Schlüssel != "M") continue;  // lines between blocks
    ProtArt = TrimmenSicht(S.Rest);
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
    --StapelZeiger;
    --StapelZeilennummer;
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
