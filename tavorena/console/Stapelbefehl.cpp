#include <map>
#include <ostream>

#include <tavorena/console/PlattformKonsole.h>
#include <tavorena/console/Stapelbefehl.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/TVHauptmodul.h>

namespace tavorena {
namespace {

const std::map<std::string, Konfliktwort> Antworten = {{"abbruch", Konfliktwort::Abbrechen},
                                                       {"alt-loeschen", Konfliktwort::AltenErsetzen},
                                                       {"mittel", Konfliktwort::Mitteln},
                                                       {"neu-loeschen", Konfliktwort::NeuenVerwerfen}};

// A line per block, written when the next one begins.
class Blockzeilen {
 public:
  explicit Blockzeilen(std::ostream& Ausgabe) : Ziel(Ausgabe) {}

  void Schritt(const std::string& Nächster) {
    if (!Titel.empty()) {
      Ziel << Titel << ": " << Stapel.Bilanz.Zeilen - Zeilen << " Zeilen, " << Prot.Marken - Marken
           << " Marken\n";
    }
    Titel = Nächster;
    Zeilen = Stapel.Bilanz.Zeilen;
    Marken = Prot.Marken;
  }

 private:
  std::ostream& Ziel;
  std::string Titel;
  int Zeilen = 0, Marken = 0;
};

void Übergangene(std::ostream& Ausgabe) {
  std::map<std::string, int> Anzahl;
  for (const std::string& Kennung : Stapel.Bilanz.Übergangen) ++Anzahl[Kennung];
  for (const auto& [Kennung, n] : Anzahl) Ausgabe << "übergangen: " << Kennung << " (" << n << " mal)\n";
}

bool Speichern(const std::string& Name) {
  if (Name.empty()) return true;
  return KoordinatenExportieren(Name, FormatNachEndung(Name)) == 0;
}

}  // namespace

int StapelAusführen(const Stapelauftrag& Auftrag, std::ostream& Ausgabe, std::ostream& Meldungen,
                    const std::string& Programmordner) {
  PlattformKonsole Konsole(Meldungen, Programmordner);
  const Ports Vorher = PortsSetzen({&Konsole, &Konsole, nullptr, &Konsole});
  HauptAnschließen();
  HauptInitialisierung();
  DateinameProtokollTemp.clear();  // nothing is printed afterwards
  if (const auto Antwort = Antworten.find(Auftrag.Vorhanden); Antwort != Antworten.end()) {
    Haken.PunktVorhandenBehandeln = [Wort = Antwort->second](const Konflikt&) {
      return Konfliktantwort{Wort, ""};
    };
  }
  KoordinatendateiName = Auftrag.Koordinaten;
  const bool Gelesen =
      KorLesen(Auftrag.Koordinaten, Lesemodus::Ersetzen, FormatNachEndung(Auftrag.Koordinaten)) == 0;
  bool Gut = Gelesen;
  if (Gelesen) {
    ProtokollNehmen(Auftrag.Protokoll);
    Blockzeilen Zeilen(Ausgabe);
    StapelHaken.Schritt = [&](const std::string& Titel) { Zeilen.Schritt(Titel); };
    StapelStarten(Auftrag.Stapel);
    Übergangene(Ausgabe);
    Ausgabe << "Punkte: " << KorAnzahl << "  Zeilen: " << Stapel.Bilanz.Zeilen << "  Marken: " << Prot.Marken
            << '\n';
    Gut = !Stapel.Bilanz.Fehler && !Konsole.Unbeantwortet();
    // After an error the table may be half done: the file stays as it is.
    if (Gut) Gut = Speichern(Auftrag.Speichern);
  }
  StapelHaken.Schritt = {};
  PortsSetzen(Vorher);
  return Gut ? 0 : 1;
}

}  // namespace tavorena
