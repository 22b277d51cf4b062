#pragma once

#include <ctime>
#include <string>
#include <vector>

// What the machine around tells the program: SystemPosix.cpp and SystemWindows.cpp are the two answers.
// All texts are UTF-8, where the system has it so.

namespace tavorena {

/// A variable of the environment; "" where there is none.
std::string Umgebungswert(const std::string& Name);

/// Where the user's programs keep their settings: the folder of this one; it need not be there yet.
std::string Einstellungsordner();

/// The folder of the running program; the current folder must not count, whatever the call says.
std::string Programmordner();

/// A serial port as the system calls it. @param[in] Nummer  from 1
std::string Anschlußname(int Nummer);

/// Makes a font that lies in the folder of the program known to it, where the system need not have it.
/// @return false: there is none, or the system looks after its fonts itself
bool SchriftAnmelden(const std::string& Datei);

/// Local date and time.
std::tm Ortszeit(std::time_t Sekunden);

/// The words of the command line. @param[in] Anzahl,Worte  as main got them
std::vector<std::string> Programmworte(int Anzahl, const char* const* Worte);

/// While there is one, and there is only one, the bytes that are written reach screen and file as they are,
/// UTF-8.
class Ausgabebetrieb {
 public:
  Ausgabebetrieb();
  ~Ausgabebetrieb();
  Ausgabebetrieb(const Ausgabebetrieb&) = delete;
  Ausgabebetrieb& operator=(const Ausgabebetrieb&) = delete;
};

}  // namespace tavorena
