#pragma once

#include <tavorena/console/Sitzung.h>

// The commands of tavorena-stapel, each in the source of its name.

namespace tavorena {

/// Replays a batch file, with a line per block and a summary. Works where no command is named.
[[nodiscard]] Konsolenbefehl Stapelbefehl();

/// "menue": menu tree and tool bar as the window would show them, a line each: name, caption, parent, state
/// (frei, gesperrt, verborgen, Strich) and reason, with tabs between.
[[nodiscard]] Konsolenbefehl Menübefehl();

/// @name The lists of points, as they are saved but without page heads
/// @{
[[nodiscard]] Konsolenbefehl DoppelteBefehl();  ///< "doppelte"
[[nodiscard]] Konsolenbefehl QuasiBefehl();     ///< "quasi --fs 0.01 [--ohne-einzelpunkte]"
[[nodiscard]] Konsolenbefehl BelegungBefehl();  ///< "belegung --bereich VON,BIS"
/// @}
/// "dxf": reads free lines and arcs from a DXF file and writes DXF files, with the points of the table too.
[[nodiscard]] Konsolenbefehl DxfBefehl();
/// "gesamtdatei a.ges": adds an epoch of heights or coordinates, writes the list of movements.
[[nodiscard]] Konsolenbefehl GesamtdateiBefehl();
/// "m5 a.m5 --punkte b.kor": the report of a file, its points.
[[nodiscard]] Konsolenbefehl M5Befehl();

/// "pdf a.dru aus.pdf", "pdf --koordinaten a.kor aus.pdf": a text file or the list of points as PDF.
[[nodiscard]] Konsolenbefehl PdfBefehl();

/// @name Raw data
/// @{
[[nodiscard]] Konsolenbefehl AbsteckBefehl();  ///< "absteckung a.gsi --koordinaten soll.kor --bericht b.dru"
[[nodiscard]] Konsolenbefehl GsiAusgabeBefehl();   ///< "gsi-ausgabe b.gsi --koordinaten a.kor --art 41"
[[nodiscard]] Konsolenbefehl NivellementBefehl();  ///< "nivellement a.niv --hoehen fest.hli"
[[nodiscard]] Konsolenbefehl RohdatenBefehl();  ///< "rohdaten a.gsi": the report, and other forms of the file
[[nodiscard]] Konsolenbefehl TheoBefehl();      ///< "theo GERÄT --rohdatendatei b.gsi": measures
/// @}

/// @name What changes points; each is one deed, wholly done or not at all
/// @{
[[nodiscard]] Konsolenbefehl LöschBefehl();            ///< "loeschen --nummer NR" or "--bereich VON,BIS"
[[nodiscard]] Konsolenbefehl UmnumerierBefehl();       ///< "umnumerieren --alt NR --neu NR" or a range
[[nodiscard]] Konsolenbefehl DoppelteMittelnBefehl();  ///< "doppelte-mitteln"
[[nodiscard]] Konsolenbefehl MittelBefehl();           ///< "mitteln --art L --neu NR --alt NR,NR,..."
[[nodiscard]] Konsolenbefehl VerschiebeBefehl();       ///< "verschieben [--tauschen] [--versatz dR,dH,dZ]"
[[nodiscard]] Konsolenbefehl ÜbernahmeBefehl();        ///< "uebernehmen --aus b.kor --was koordinaten"
/// @}

/// "umrechnen --von gk --nach gk4 ein aus": a file into another strip or zone, or to the globe and back.
[[nodiscard]] Konsolenbefehl UmrechenBefehl();
/// "wandeln --von lfs --nach kor ein aus": a file of points in another format.
[[nodiscard]] Konsolenbefehl WandelBefehl();

/// "stationieren --art helmert|kongruent": a whole raw-data file, station by station.
[[nodiscard]] Konsolenbefehl StationierBefehl();

}  // namespace tavorena
