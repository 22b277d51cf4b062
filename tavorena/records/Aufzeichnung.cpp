#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Aufzeichnung.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {
namespace {

// A typed block is over: it is not lost any more.
int Gesichert(int Ergebnis) { return AktenSichern() < 0 ? -1 : Ergebnis; }

}  // namespace

void Aufzeichnung::Öffnen(bool Nachlauf) {
  ImNachlauf = Nachlauf;
  Eigenes = {};
  Eigenes.OhneKopf = true;
  // Without a second target the worksheet works as well.
  EigeneDateiEntfernen();
  std::string Neue = DateinameProtokollTemp;
  if (OrdnerAnlegen(DateinameZerlegen(Neue).Ordner) == 0 && EigeneDateiAnlegen(Neue) == 0)
    Eigenes.Datei = EigeneDatei = Neue;
}

Aufzeichnung::~Aufzeichnung() { EigeneDateiEntfernen(); }

void Aufzeichnung::EigeneDateiEntfernen() {
  if (!EigeneDatei.empty()) static_cast<void>(DateiLöschen(EigeneDatei));
  EigeneDatei.clear();
}

int Aufzeichnung::Beginnen(Verbindung Neue) {
  Über = std::make_shared<const Verbindung>(std::move(Neue));
  Gezählt = false;
  return ImNachlauf ? 0 : Gesichert(Sätze.Beginnen(Über));
}

void Aufzeichnung::Fortsetzen(Verbindung Neue) {
  Über = std::make_shared<const Verbindung>(std::move(Neue));
  Gezählt = false;
}

int Aufzeichnung::Protokollieren(const Block& Zeile) {
  if (Prot.Datei.empty()) return 0;
  const int Ergebnis = Schreiben(Prot, Über, Zeile);
  if (!Erste) Erste = Über;
  if (Schreiben(Eigenes, Über, Zeile) < 0) Eigenes.Datei.clear();  // told once, and then done without
  return Ergebnis;
}

int Aufzeichnung::Zeile(const Block& Zeile, const std::string& Satz, Spur& Wo) {
  return Eintragen(Zeile, Wo, [&](int& Griff) { return Sätze.Anfügen(Satz, Griff); });
}

int Aufzeichnung::Ganzes(Verbindung Neue, const Block& Zeilen, Spur& Wo) {
  if (Beginnen(std::move(Neue)) < 0) return -1;
  std::function<int(int&)> InStapel;
  if (!Über->Sätze.empty()) InStapel = [&](int& Griff) { return Sätze.Ganz(Griff); };
  const int Ergebnis = Eintragen(Zeilen, Wo, InStapel);
  if (!ImNachlauf) static_cast<void>(AktenSichern());  // a failure was told; what was written stays
  return Ergebnis;
}

int Aufzeichnung::Eintragen(const Block& Zeile, Spur& Wo, const std::function<int(int& Griff)>& InStapel) {
  Wo.Geschrieben = false;
  const bool MitProtokoll = !Prot.Datei.empty(),
             MitStapel = InStapel && !ImNachlauf && !StapelDatei.Name.empty();
  if (!MitStapel) Wo.Griff = -1;
  const bool ImStapel = MitStapel && InStapel(Wo.Griff) == 0;
  const bool ImProtokoll = MitProtokoll && Protokollieren(Zeile) == 0;
  Wo.Geschrieben = ImStapel || ImProtokoll || (!MitProtokoll && !MitStapel);
  if (!Wo.Geschrieben) return -1;
  const int Marken = Zeile.Marken + (std::exchange(Gezählt, true) ? 0 : Über->Zeilen.Marken);
  Prot.Marken += Marken;
  if (ImNachlauf) Stapel.Bilanz.Marken += Marken;
  return 0;
}

int Aufzeichnung::Streichen(const Block& Gestrichen, Spur& Wo) {
  if (Wo.Griff >= 0 && Stapelblock::Entfernen(Wo.Griff) < 0) return -1;
  // A protocol that can not be written was told; what is not calculated again is struck all the same.
  static_cast<void>(Protokollieren(Gestrichen));
  Wo.Geschrieben = false;
  return 0;
}

int Aufzeichnung::GanzesStreichen(const Block& Gestrichen, Spur& Wo) {
  const bool Bleibt =
      Wo.Griff >= 0 && (!Stapelblock::AmEnde(Wo.Griff) || Stapelblock::Entfernen(Wo.Griff) < 0);
  static_cast<void>(Protokollieren(Gestrichen));
  Wo.Geschrieben = false;
  return Bleibt ? 1 : 0;
}

int Aufzeichnung::BlockStreichen(const Block& Gestrichen) {
  const bool Bleibt = !ImNachlauf && Sätze.Verwerfen() < 0;
  static_cast<void>(Protokollieren(Gestrichen));
  return Bleibt ? 1 : 0;
}

std::string Aufzeichnung::Drucktext() const {
  std::string Zeilen, Text;
  if (!Eigenes.HatInhalt || TextdateiLesen(EigeneDatei, Zeilen) < 0 || Zeilen.empty()) return "";
  for (const std::string& Zeile : ProtKopfzeilen(*Erste, KoordinatendateiName, 1)) Text += Zeile + "\r\n";
  return Text + Zeilen;
}

int Aufzeichnung::Beenden() {
  Über.reset();
  return ImNachlauf ? 0 : Gesichert(Sätze.Beenden());
}

}  // namespace tavorena
