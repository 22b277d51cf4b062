#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Seiten.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Druckbefehle.h>

namespace tavorena {
namespace {

void PunkteDrucken() {
  const Dateiname Teile = DateinameZerlegen(KoordinatendateiName);
  static_cast<void>(DruckwerkPort().Drucken(SeitenTeilen(Koordinatenseiten(Optionen.OptNachkommastellen)),
                                            KoordinatendateiName.substr(Teile.Ordner.size()),
                                            Teile.Ordner + Teile.Grundname + "-punkte.pdf"));
}

// Prints a file that is chosen, the open one where nothing else is said.
void Wählen(const char* Titel, const std::string& Filter, const char* Muster, const std::string& Offene) {
  const std::string Name = DateiFragen(Titel, Filter, Offene.empty() ? Muster : Offene, false);
  if (Name.empty()) return;
  VerzeichnisMerken(Name);
  DateiDrucken(Name);
}

}  // namespace

std::string PdfVorschlag(const std::string& Name) {
  const Dateiname Teile = DateinameZerlegen(Name);
  return Teile.Ordner + Teile.Grundname + (Teile.Endung.empty() ? "" : "-" + Teile.Endung) + ".pdf";
}

int DateiDrucken(const std::string& Name) {
  Druckseiten Seiten;
  if (DruckdateiLesen(Name, Seiten) < 0) return -1;
  return DruckwerkPort().Drucken(Seiten, Name.substr(DateinameZerlegen(Name).Ordner.size()),
                                 PdfVorschlag(Name));
}

std::span<const Befehl> Druckbefehle() {
  static const std::vector<Befehl> Alle = {
      {"MenüDateiDrucken(0)", true, PunkteDrucken, false, NichtVorhanden},
      {"MenüDateiDrucken(10)", false,
       [] {
         Wählen("Koordinatendatei zum Drucken", std::string(FilterKor) + "|" + FilterEdbs, "*.kor",
                KoordinatendateiName);
       }},
      {"MenüDateiDrucken(11)", false,
       [] { Wählen("Stapeldatei zum Drucken", "Stapeldateien (*.sta)|*.sta", "*.sta", StapelDatei.Name); }},
      {"MenüDateiDrucken(12)", false,
       [] { Wählen("Protokolldatei zum Drucken", "Protokolldateien (*.dru)|*.dru", "*.dru", Prot.Datei); }},
      {"MenüDateiDrucken(20)", false,
       [] { Wählen("Text-Datei zum Drucken", "Textdateien (*.txt)|*.txt", "*", ""); }},
      {"MenüDateiDrucken(30)", false, DruckdateiSenden},
  };
  return Alle;
}

}  // namespace tavorena
