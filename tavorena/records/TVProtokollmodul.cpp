#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/TVProtokollmodul.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena {

std::string ProtokolldateiName, ProtArt, ProtLetzteArt, Riss, BerNr, ProtSollDatei, DateinameProtokollTemp;
std::string ProtokollfensterText;
int ProtSeite = 1, ProtZeilen = 1, ProtMarken = 0;
bool ProtNeueZeile = true, ProtSeiteFrisch = false, ProtOhneUmbruch = false, ProtZeilenNummern = false;
bool ProtZielWechsel = false, ProtHatInhalt = false, HoehenRechnen = false;

namespace {

constexpr int ZeilenJeSeite = 50;
constexpr std::size_t FensterGrenze = 32000;
const std::string ProtRahmen = "|";

// The saved values of the protocol while a worksheet's own target is in use.
ProtZielsatz Hauptziel;

std::string Zweistellig(int Zahl) { return ZahlFeldNull(Zahl, 2); }

void InsFenster(const std::string& Text, bool Zeilenende) {
  if (ProtokollfensterText.size() > FensterGrenze) {
    ProtokollfensterText.erase(0, ProtokollfensterText.find('\n') + 1);
  }
  const bool OhneRand = !ProtNeueZeile && Text.starts_with("      ") && ZeichenAnzahl(Text) >= 7;
  ProtokollfensterText += OhneRand ? Text.substr(6) : Text;
  if (Zeilenende) ProtokollfensterText += '\n';
  AnzeigePort().ProtokollGeändert();
}

std::string Artzeile(const std::string& Titel, int Seite) {
  std::string Text = Titel;
  if (Titel.starts_with("VR") && ZeichenAnzahl(Titel) > 8) {
    Text = FeldLinks(Titel, 8) + "  " + Trimmen(TextTeil(Titel, 9));
  }
  if (Optionen.AbfrageRiss) Text += "  (" + Riss + ") " + BerNr;
  return ProtRahmen + FeldLinks(Text, 62) + "Seite" + ZahlFeld(Seite, 3) + ProtRahmen;
}

std::vector<std::string> Kopfzeilen(const std::string& Titel, const std::string& Dateiname, int Seite) {
  const std::string Strich(72, '-'), Stempel = Zeitstempel();
  std::vector<std::string> Zeilen = {
      "",
      Strich,
      ProtRahmen + FeldLinks("Tavorena", 29) + RechtsBündig(Stempel, 40) + " " + ProtRahmen,
      ProtRahmen + FeldLinks(KuerzenMitPunkten(Dateiname, 70), 70) + ProtRahmen,
      Artzeile(Titel, Seite),
      Strich,
      Leerzeichen(6),
  };
  for (std::string& Zeile : Tabellenkopf(Titel, HoehenRechnen, ProtSollDatei))
    Zeilen.push_back(std::move(Zeile));
  return Zeilen;
}

}  // namespace

void ProtokollLeeren() {
  for (std::string* Text : {&ProtArt, &Riss, &BerNr, &ProtSollDatei, &ProtokollfensterText}) Text->clear();
  ProtokollNehmen("");
  ProtMarken = 0;
  ProtOhneUmbruch = ProtZeilenNummern = ProtZielWechsel = HoehenRechnen = false;
}

void ProtokollNehmen(const std::string& Dateiname) {
  ProtokolldateiName = Dateiname;
  ProtLetzteArt.clear();
  ProtSeite = ProtZeilen = 1;
  ProtNeueZeile = true;
  ProtSeiteFrisch = ProtHatInhalt = false;
}

std::string Zeitstempel() {
  const Zeitpunkt t = AblaufPort().Jetzt();
  return Zweistellig(t.Tag) + "." + Zweistellig(t.Monat) + "." + ZahlFeldNull(t.Jahr, 4) + "   " +
         Zweistellig(t.Stunde) + ":" + Zweistellig(t.Minute);
}

ProtKanal ProtÖffnen() { return {ProtokolldateiName, {}}; }

int ProtSchließen(ProtKanal& Kanal) {
  const std::string Puffer = std::exchange(Kanal.Puffer, {});
  if (Puffer.empty() || TextAnhängen(Kanal.Name, Puffer) == 0) return 0;
  Hinweis("Fehler aufgetreten beim Schreiben in\n" + Kanal.Name);
  return -1;
}

void ProtZeile(ProtKanal& Kanal, const std::string& Text, int Vorschub) {
  Kanal.Puffer += Text;
  if (Vorschub > 0) {
    if (ProtZeilenNummern) Kanal.Puffer += Leerzeichen(10) + PnrFormat(ProtZeilen);
    Kanal.Puffer += "\r\n";
  }
  if (Optionen.ProtokollfensterAn && !ProtZielWechsel) InsFenster(Text, Vorschub > 0);
  ProtHatInhalt = true;
  ProtNeueZeile = ProtSeiteFrisch = false;
}

int ProtZaehlen(ProtKanal& Kanal, int Anzahl) {
  ProtZeilen += Anzahl;
  if (ProtOhneUmbruch || ProtZeilen <= ZeilenJeSeite) return 0;
  const int Ergebnis = ProtSchließen(Kanal);
  if (Ergebnis == 0) ProtNeueSeite();
  return Ergebnis;
}

void ProtNeueSeite() {
  if (ProtokolldateiName.empty()) return;
  ProtKanal Kanal{ProtokolldateiName, "\f"};
  if (ProtSchließen(Kanal) < 0) return;
  ProtZeilen = 1;
  ++ProtSeite;
  ProtNeueZeile = ProtSeiteFrisch = true;
}

void ProtKopf() {
  if (ProtokolldateiName.empty()) return;
  // A fresh page has its number already: ProtNeueSeite raised it.
  const int Seite = ProtSeiteFrisch ? ProtSeite - 1 : ProtSeite++;
  ProtKanal Kanal = ProtÖffnen();
  for (const std::string& Zeile : Kopfzeilen(ProtArt, KoordinatendateiName, Seite)) {
    ProtZeile(Kanal, Zeile);
    ++ProtZeilen;  // a head is never broken
  }
  ProtSchließen(Kanal);
  ProtLetzteArt = ProtArt;
}

void ProtKopfAusgabe(const std::string& Datei, const std::string& Titel, const std::string& Name) {
  ProtKanal Kanal{Datei, {}};
  for (const std::string& Zeile : Kopfzeilen(Titel, Name, ProtSeite)) Kanal.Puffer += Zeile + "\r\n";
  ProtSchließen(Kanal);
}

void ProtKopfBeiWechsel(const std::string& Art) {
  ProtArt = Art;
  if (ProtArt == ProtLetzteArt) return;
  if (!ProtLetzteArt.empty() && !ProtSeiteFrisch) ProtNeueSeite();
  ProtKopf();
}

void ProtLeerzeile() {
  if (ProtokolldateiName.empty()) return;
  ProtKanal Kanal = ProtÖffnen();
  ProtZeile(Kanal, "");
  ProtSchließen(Kanal);
}

void ProtZiel(bool Haupt, ProtZielsatz& Eigenes) {
  if (Haupt != ProtZielWechsel) return;  // already there
  ProtZielsatz& Alt = Haupt ? Eigenes : Hauptziel;
  const ProtZielsatz& Neu = Haupt ? Hauptziel : Eigenes;
  Alt = {ProtokolldateiName, ProtZeilen, ProtSeite, ProtSeiteFrisch};
  ProtokolldateiName = Neu.Datei;
  ProtZeilen = Neu.Zeilen;
  ProtSeite = Neu.Seite;
  ProtSeiteFrisch = Neu.Frisch;
  ProtZielWechsel = !Haupt;
}

int ProtBlock(const std::vector<std::string>& Zeilen, int Marken) {
  if (!ProtZielWechsel) ProtMarken += Marken;
  if (ProtokolldateiName.empty()) return 0;
  const bool ZuViele = Optionen.OptNachkommastellen > 5;
  ProtKanal Kanal = ProtÖffnen();
  for (const std::string& Zeile :
       ZuViele ? std::vector<std::string>{"      #Fehler: Zu viele Nachkommastellen#"} : Zeilen) {
    ProtZeile(Kanal, Zeile);
    if (ProtZaehlen(Kanal, 1) < 0) return -1;
  }
  return ProtSchließen(Kanal);
}

}  // namespace tavorena
