#pragma once

#include <string>
#include <vector>

// The protocol (.dru): a printable stream of lines in the layout of a line printer. Each block is opened
// for append, written and closed, so that the file is complete after every calculation. A form feed
// without line end stands between pages.

namespace tavorena {

extern std::string ProtokolldateiName;      ///< path; empty: no protocol is written
extern std::string ProtArt;                 ///< current title, such as "VR 24.40 Linienelemente"
extern std::string ProtLetzteArt;           ///< title of the last head in this protocol
extern int ProtSeite;                       ///< page number of the next head
extern int ProtZeilen;                      ///< lines on the current page; starts at 1
extern bool ProtNeueZeile;                  ///< the next line is the first on the page
extern bool ProtSeiteFrisch;                ///< ProtNeueSeite was the last that happened to this target
extern bool ProtOhneUmbruch;                ///< no page break by line count
extern bool ProtZeilenNummern;              ///< line numbers behind each line; false in normal work
extern bool ProtZielWechsel;                ///< the writer is on its second target
extern bool ProtHatInhalt;                  ///< something was written since the protocol was taken
extern int ProtMarken;                      ///< tolerance marks since the start
extern bool HoehenRechnen;                  ///< heights are carried by the worksheet
extern std::string Riss, BerNr;             ///< current plan name and calculation number
extern std::string ProtSollDatei;           ///< file compared against, for the heads of the comparisons
extern std::string DateinameProtokollTemp;  ///< second target of the worksheets

/// Text of the protocol window; its first line goes out beyond 32000 characters.
extern std::string ProtokollfensterText;

/// Start values of all of the above.
void ProtokollLeeren();

/// Takes a protocol file into use: page 1, nothing written yet.
void ProtokollNehmen(const std::string& Dateiname);

/// "dd.mm.yyyy   hh:mm" of now.
std::string Zeitstempel();

/// An opened target: lines are gathered and reach the file in one piece.
struct ProtKanal {
  std::string Name;
  std::string Puffer;
};

ProtKanal ProtÖffnen();
/// @return 0; -1 with a message if the file could not be written
int ProtSchließen(ProtKanal& Kanal);

/// The one output primitive. Vorschub 0: without a line end, the next line goes on behind it.
void ProtZeile(ProtKanal& Kanal, const std::string& Text, int Vorschub = 1);

/// Adds Anzahl to the lines of the page; above 50 a new page begins. @return as ProtSchließen
int ProtZaehlen(ProtKanal& Kanal, int Anzahl);

/// Form feed, new page number; writes no head. Nothing without a protocol.
void ProtNeueSeite();

/// Page head and table head of ProtArt. Nothing without a protocol.
void ProtKopf();

/// The same head, for the title Titel and the coordinate file Name, in front of another file.
void ProtKopfAusgabe(const std::string& Datei, const std::string& Titel, const std::string& Name);

/// Head of a new kind of calculation: a new page first, unless the protocol or the page is fresh. Nothing
/// if the kind is that of the last head.
void ProtKopfBeiWechsel(const std::string& Art);

void ProtLeerzeile();

/// A target of a worksheet's own.
struct ProtZielsatz {
  std::string Datei;
  int Zeilen = 1, Seite = 1;
  bool Frisch = false;
};

/// Haupt false: to the worksheet's target; true: back to the protocol.
void ProtZiel(bool Haupt, ProtZielsatz& Eigenes);

/// Writes the lines of a block, each counted. With more than 5 decimals only the line
/// "      #Fehler: Zu viele Nachkommastellen#". Marken is the number of tolerance marks in them, counted for
/// the protocol only. @return 0; -1 if the file could not be written
int ProtBlock(const std::vector<std::string>& Zeilen, int Marken = 0);

}  // namespace tavorena
