#include <string>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Grafikbefehle.h>

namespace tavorena {
namespace {

constexpr const char* Filter = "DXF (*.dxf)|*.dxf";

// @return the name chosen, "" none. @param[out] Angehakt  the check box
std::string DxfWählen(const char* Titel, bool NurVorhandene, const char* Kästchen, bool& Angehakt) {
  Dateiauftrag Auftrag{Titel,    Filter, Startordner(), "*.dxf",     NurVorhandene,
                       Kästchen, false,  true,          GrafDXFHilfe};
  const std::string Name = FragenPort().DateiWählen(Auftrag);
  Angehakt = Auftrag.ZusatzGewählt;
  if (!Name.empty()) VerzeichnisMerken(Name);
  return Name;
}

}  // namespace

int GrafDXFSpeichern() {
  bool MitPunkten = false;
  const std::string Name =
      DxfWählen("DXF-Datei speichern", false, "Mit Punkten und Ebenen (für CAD)", MitPunkten);
  if (Name.empty() || !ÜberschreibenFragen(Name) || DxfSpeichern(Name, MitPunkten) < 0) return -1;
  StatusHilfeSetzen("Gespeichert: " + Name);
  return 0;
}

void GrafDXFLesen() {
  bool AusCad = false;
  const std::string Name = DxfWählen("DXF-Datei lesen", true, "Aus CAD (paarweise lesen)", AusCad);
  DxfErgebnis Gelesen;
  if (!Name.empty()) static_cast<void>(DxfLesen(Name, AusCad, Gelesen));  // what was left out is told
}

int GrafikSichern() {
  if (!GrafikUngesichert) return 0;
  const int Antwort = FrageJaNeinAbbruch("Gezeichnete Linien und Bögen als DXF speichern ?");
  if (Antwort == KnopfNein) return 0;
  return Antwort == KnopfJa ? GrafDXFSpeichern() : -1;
}

}  // namespace tavorena
