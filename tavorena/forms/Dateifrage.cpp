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

void ZeichensatzAnbieten(Dateiauftrag& Auftrag) {
  Auftrag.Listentitel = "Zeichensatz:";
  Auftrag.Liste = Ausgabezeichensätze();
  Auftrag.ListeGewählt = 0;
}

Zeichensatz ZeichensatzGewählt(const Dateiauftrag& Auftrag) {
  Zeichensatz Satz = Zeichensatz::Utf8;
  const auto i = static_cast<std::size_t>(Auftrag.ListeGewählt);
  if (i < Auftrag.Liste.size()) static_cast<void>(ZeichensatzAus(Auftrag.Liste[i], Satz));
  return Satz;
}

std::string DateiFragen(const std::string& Titel, const std::string& Filter, const std::string& Vorgabe,
                        bool Schreiben, bool* Anhängen, Zeichensatz* Satz) {
  const std::string Bei = DateinameZerlegen(Vorgabe).Ordner;
  Dateiauftrag Auftrag{
      Titel, Filter, Bei.empty() ? Startordner() : Bei, Vorgabe.substr(Bei.size()), !Schreiben, "", false};
  if (Satz != nullptr) ZeichensatzAnbieten(Auftrag);
  std::string Name = FragenPort().DateiWählen(Auftrag);
  if (Name.empty()) return "";
  if (Satz != nullptr) *Satz = ZeichensatzGewählt(Auftrag);
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
