#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

// What all commands of the console share: the files of a call, the answers it gives, and its exit status.

namespace tavorena {

/// Exit status of both programs.
enum Rückgabe : int {
  Getan = 0,
  NichtGetan = 1,      ///< not done, or not wholly
  FalscherAufruf = 2,  ///< nothing was touched
};

/// What the command line asks for. A name that is "" was not given.
struct Aufruf {
  std::string Koordinaten;
  std::string Protokoll;  ///< an existing file is extended
  std::string Vorhanden;  ///< answer to a taken number: abbruch, alt-loeschen, mittel, neu-loeschen,
                          ///< alt-umnumerieren=NR, neu-umnumerieren=NR: the next free number from NR on
  std::string Speichern;  ///< file for the table afterwards
  bool Trotzdem = false;  ///< "Ja" to the questions that warn of a loss
  std::string Datei;      ///< the file that the command itself works on
  std::string Ziel = {};  ///< the file that it writes
  std::map<std::string, std::string> Werte = {};  ///< of the command's own options; "ja" of a switch

  /// The value of an option; "" if it was not given.
  [[nodiscard]] std::string Wert(const std::string& Name) const {
    const auto Gefunden = Werte.find(Name);
    return Gefunden != Werte.end() ? Gefunden->second : "";
  }
};

/// What a file of an option is to its command.
enum class Dateirolle { Keine, Eingabe, Ausgabe };

/// An option that one command has.
struct Angabe {
  const char* Name;          ///< such as "--fs"
  const char* Art;           ///< what its value is, for --help; nullptr: a switch
  const char* Beschreibung;  ///< for --help
  bool Nötig = false;
  Dateirolle Rolle = Dateirolle::Keine;  ///< an output must not be a file that is read or written besides
  const char* Statt = nullptr;           ///< another option that can not be given with it
};

/// Where results and messages go, and the folder of the executable.
struct Umfeld {
  std::ostream& Ausgabe;
  std::ostream& Meldungen;
  std::string Programmordner;
  /// Something failed, or a question met no answer: the command is to end.
  std::function<bool()> Beendet = [] { return false; };
};

/// A file that a command takes beside the common ones.
struct Dateioption {
  const char* Name;  ///< "--lesen"
  const char* Beschreibung;
  bool Ausgabe;                 ///< is written, and must not be a file that is read or written besides
  const char* Statt = nullptr;  ///< another option that can not be given with it
};

/// A command of the program. Its source defines it, Kommandozeile.cpp lists it.
struct Konsolenbefehl {
  const char* Name;          ///< "" works where none is named
  const char* Thema;         ///< heading in the list of --help
  const char* Beschreibung;  ///< for --help
  const char* Datei;    ///< tells what Aufruf::Datei is, which then must be given; nullptr: it takes none
  bool MitKoordinaten;  ///< must be given a coordinate file
  /// Works on the table that was read. @return false if it was not done wholly
  std::function<bool(const Aufruf& A, const Umfeld& U)> Tun;
  std::vector<Angabe> Angaben = {};
  const char* Ziel = nullptr;  ///< tells what Aufruf::Ziel is, which then must be given; nullptr: it has none
  /// What is wrong with the values of a call; "": nothing. Nothing was read before.
  std::function<std::string(const Aufruf& A)> Prüfen = {};
  bool OderKoordinaten = false;  ///< the coordinate file can stand for Datei, which is then ""
};

/// Runs a command: looks at the call, reads the coordinates, takes the protocol, works, and saves the table
/// if all went well. @return the exit status; each cause of another than 0 is told in one message
[[nodiscard]] Rückgabe SitzungFühren(const Konsolenbefehl& B, const Aufruf& A, const Umfeld& U);

}  // namespace tavorena
