#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena {

std::string Startordner() {
  if (Optionen.VerzeichnisLetztes == "c:\\") return UmgebungPort().Heimordner();
  return OrdnerVorhanden(Optionen.VerzeichnisLetztes) ? Optionen.VerzeichnisLetztes
                                                      : UmgebungPort().Dokumentordner();
}

void EndungErgänzen(std::string& Name, const std::string& Vorgabe) {
  const std::string Endung = DateinameZerlegen(Vorgabe).Endung;
  if (DateinameZerlegen(Name).Endung.empty() && !Endung.empty()) Name += "." + Endung;
}

bool ÜberschreibenFragen(const std::string& Name) {
  return !DateiVorhanden(Name) || FrageJaNein("Die Datei ist schon vorhanden. Überschreiben ?\n\n" + Name,
                                              "Tavorena", KnopfNein) == KnopfJa;
}

std::string DateiFragen(const std::string& Titel, const std::string& Filter, const std::string& Vorgabe,
                        bool Schreiben, bool* Anhängen) {
  Dateiauftrag Auftrag{Titel, Filter, Startordner(), Vorgabe, !Schreiben, "", false};
  std::string Name = FragenPort().DateiWählen(Auftrag);
  if (Name.empty()) return "";
  if (Schreiben) EndungErgänzen(Name, Vorgabe);
  if (Anhängen != nullptr) {
    const int Antwort = DateiVorhanden(Name) ? DateiVorhandenFrage(Name) : 1;
    if (Antwort < 0) return "";
    *Anhängen = Antwort == 0;
  } else if (Schreiben && !ÜberschreibenFragen(Name)) {
    return "";
  }
  const std::string Ordner = DateinameZerlegen(Name).Ordner;
  if (!Ordner.empty()) Optionen.VerzeichnisLetztes = Ordner;
  return Name;
}

}  // namespace tavorena
