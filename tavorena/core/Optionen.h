#pragma once

#include <cstdint>
#include <string>

namespace tavorena {

/// The settings of the program, read everywhere. The values here stand until the configuration file has
/// been read.
struct OptionenSatz {
  std::int16_t OptNachkommastellen = 3;    ///< decimals of coordinates in forms and protocol
  std::int16_t OptNachkommaSpeichern = 3;  ///< decimals written to a coordinate file
  bool ProtokollfensterAn = false;         ///< the protocol window stays open
  bool GrafikfensterAn = true;             ///< the graphics window stays open
  bool CondorfensterAn = false;            ///< third window variant
  bool AbfrageRiss = true;    ///< ask for plan name and calculation number, print them in the protocol
  bool AbfrageDruck = false;  ///< ask to print after each calculation
  double VorgabeRechts = 0, VorgabeHoch = 0;  ///< presets of point input [m]
  int OptWarnstufe = 3;              ///< marks in the protocol: 0 only full ones, above 1 also early ones
  bool FStatMitHoehe = true;         ///< free stationing and forward intersection with heights
  bool GKreduzierteFlaechen = true;  ///< areas also reduced from the Gauss-Krüger plane
  bool FStatPAAnschluss = true;      ///< free stationing: connection points chosen from raw data
  double FormularZoomX = 1, FormularZoomY = 1;  ///< size of the main window against the design size
  int SchriftgroesseProtokoll = 8;              ///< font size of the protocol window [pt]
  std::string DateinameEditor31, DateinameEditorNT;
  std::string DateinameSetzung = "c:\\tavverm\\setzung1.txt";
  std::string DateinameVerformung = "c:\\tavverm\\verformu.txt";
  std::string DateinameTagebuch = "i:\\datenbnk\\tagebuch.mdb";
  std::string DateinameTagebuchVorlage = "i:\\datenbnk\\tagevor.mdb";
  std::string VerzeichnisRohdatenQuelle = "c:\\";
  std::string VerzeichnisRohdatenEdit = "c:\\";
  std::string VerzeichnisRohdatenKor = "c:\\";
  std::string VerzeichnisLetztes = "c:\\";  ///< last chosen folder, where every file dialog starts
  std::string DateinameWinword31, DateinameWinwordNT;
  std::string EDBSInfo = "ULPUHESS";  ///< name of the information in EDBS output
};

extern OptionenSatz Optionen;

}  // namespace tavorena
