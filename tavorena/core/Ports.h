#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the lower layers ask of the program around them: six small doors, each silent by itself. The window,
// the console and the tests open the ones that they have an answer for.

namespace tavorena {

class Formular;  // tavorena/forms; passed through here and never looked into

/// The last two: a file can not be written, try again or go on without the protocol or the batch file.
enum class Knöpfe { OK, JaNein, JaNeinAbbruch, NochmalsOhneProtokoll, NochmalsOhneStapel };

/// Button codes of a message box.
inline constexpr int KnopfAbbruch = 2, KnopfNochmals = 4, KnopfOhne = 5, KnopfJa = 6, KnopfNein = 7;

/// What a file dialog is asked for.
struct Dateiauftrag {
  std::string Titel;
  std::string Filter;            ///< "text|pattern|text|pattern", patterns of one entry separated by ";"
  std::string Ordner;            ///< folder to start in
  std::string Vorgabe;           ///< name or pattern to start with, such as "*.kor"
  bool NurVorhandene = true;     ///< the file must exist
  std::string Zusatz;            ///< caption of a check box below the list; none if empty
  bool ZusatzGewählt = false;    ///< out: the check box was set
  bool ZusatzIstWahl = false;    ///< it says something about the file; else it stands for no file at all
  int Hilfenummer = 0;           ///< of its page in the handbook; 0: that of what is open
  std::string Listentitel = {};  ///< caption of a list below that; none if empty
  std::vector<std::string> Liste = {};  ///< its entries
  int ListeGewählt = 0;                 ///< in and out: the chosen one, from 0
};

/// Questions to the user. Silent: every one is broken off.
class Rückfragen {
 public:
  virtual ~Rückfragen() = default;
  /// Message box. @param[in] Vorgabe  code of the default button; 0 the first one
  /// @return the code of the button; 1 for OK
  virtual int Meldung(const std::string& /*Text*/, Knöpfe /*Art*/, const std::string& /*Titel*/,
                      int /*Vorgabe*/ = 0) {
    return KnopfAbbruch;
  }
  /// File dialog. @return the chosen name; "" if cancelled
  virtual std::string DateiWählen(Dateiauftrag& /*Auftrag*/) { return {}; }
};

/// The panels of the status bar. Datei is the first one, which has no key of its own.
enum class Statusfeld { Datei, StatusKordanz, StatusVersion, StatusUhr, StatusHilfe };

/// What is shown. Silent: nothing.
class Anzeige {
 public:
  virtual ~Anzeige() = default;
  /// Shows a form; with Modal the call returns when the form is closed.
  virtual void FormularZeigen(Formular& /*Form*/, bool /*Modal*/) {}
  /// Fills the work area with a form until it closes; one that is there is opened once more.
  virtual void FüllendZeigen(Formular& /*Form*/) {}
  virtual void StatusSetzen(Statusfeld /*Feld*/, const std::string& /*Text*/) {}
  /// Title of the main window.
  virtual void FenstertitelSetzen(const std::string& /*Titel*/) {}
  /// Menus, tool bar or windows changed.
  virtual void HauptfensterGeändert() {}
  /// Lines of the protocol window changed; called for each line.
  virtual void ProtokollGeändert() {}
  /// The handbook, at the page of a help number; 0: of what the user is in.
  virtual void HandbuchZeigen(int /*Hilfenummer*/) {}
  /// The graphics view: opens it, or lets it fill the work area, or gives that back.
  virtual void GrafikZeigen() {}
  /// Brings a place [m] into the middle of the graphics view, which opens where it is closed.
  virtual void GrafikPunktZeigen(double /*Rechts*/, double /*Hoch*/) {}
  /// Brings the graphics view, where it is open, to the front until the user clicks into it or presses
  /// Escape.
  virtual void GrafikAnsehen() {}
  /// A file was opened that the graphics view is to show, or is closed.
  virtual void GrafikMitDatei(bool /*Offen*/) {}
  /// Size of the main window [pixels].
  virtual void HauptfensterGröße(int& Breite, int& Hoehe) { Breite = Hoehe = 0; }
  virtual void BildschirmGröße(int& Breite, int& Hoehe) { Breite = Hoehe = 0; }
};

struct Zeitpunkt {
  int Jahr = 1970, Monat = 1, Tag = 1, Stunde = 0, Minute = 0;
};

/// The course of the program: events, clock, busy, end. Silent: the clock goes, nothing else happens.
class Ablauf {
 public:
  virtual ~Ablauf() = default;
  /// Lets waiting events run (stop button, redraw).
  virtual void EreignisseAbarbeiten() {}
  /// Lets events run for so long, and takes no processor time while there are none.
  virtual void Warten(double Sekunden);
  /// Local date and time.
  virtual Zeitpunkt Jetzt();
  /// Seconds from any start; never runs back.
  virtual double Zeitgeber();
  /// Busy pointer, menus of the main window locked; the stop button stays alive.
  virtual void Beschäftigt(bool /*An*/) {}
  /// A replay holds after each connection until "Weiter" is pressed.
  virtual bool StapelHält() { return false; }
  /// Ends the program, after the event that runs.
  virtual void ProgrammBeenden() {}
};

/// The machine around the program: its folders, other programs. Silent: there are none.
class Umgebung {
 public:
  virtual ~Umgebung() = default;
  /// Starts a program with a file; an empty program means the desktop's own. @return 0 or -1
  [[nodiscard]] virtual int ProgrammStarten(const std::string& /*Programm*/, const std::string& /*Datei*/) {
    return -1;
  }
  /// Runs a program to its end, without a shell in between; a name without a folder is looked for where
  /// programs are. @param[out] Meldungen  what it wrote
  /// @return its exit status, 1 also where it took more than half a minute; -1: it does not start
  [[nodiscard]] virtual int ProgrammAusführen(const std::string& /*Programm*/,
                                              const std::vector<std::string>& /*Worte*/,
                                              std::string& /*Meldungen*/) {
    return -1;
  }
  /// Folder of the executable.
  virtual std::string ProgrammOrdner() { return {}; }
  /// Folders of the user.
  virtual std::string Heimordner() { return {}; }
  virtual std::string Dokumentordner() { return Heimordner(); }
};

/// An open serial line. It ends with the object.
class Leitung {
 public:
  virtual ~Leitung() = default;
  /// Sends bytes. @return 0, or -1 when they did not go out
  [[nodiscard]] virtual int Senden(std::string_view Bytes) = 0;
  /// What came since the last call; never waits. "": nothing
  virtual std::string Lesen() = 0;
  /// False from the first failure on: the device is gone.
  [[nodiscard]] virtual bool Offen() const = 0;
};

/// Serial lines. Silent: there is none.
class Leitungen {
 public:
  virtual ~Leitungen() = default;
  /// @param[in] Gerät          path of the device
  /// @param[in] Einstellungen  "9600,N,8,1": baud, parity, data bits, stop bits
  /// @return the open line; nullptr when it is missing, busy or not allowed
  virtual std::unique_ptr<Leitung> LeitungÖffnen(const std::string& /*Gerät*/,
                                                 const std::string& /*Einstellungen*/) {
    return nullptr;
  }
};

/// A text as pages of paper: A4 upright, six characters of left margin, 12 points from line to line.
struct Druckseiten {
  double Schrift = 10;                           ///< size of all its lines [points], 6 to 10
  std::vector<std::vector<std::string>> Seiten;  ///< the lines of each page
};

/// Paper and PDF. Silent: nothing is printed.
class Druckwerk {
 public:
  virtual ~Druckwerk() = default;
  /// Shows pages and lets them go to a printer or into a PDF file; without a screen they become one.
  /// @param[in] Titel      of window and document: a file name without its folder
  /// @param[in] Vorschlag  name that is proposed for the PDF file
  /// @return 0; -1: nothing was printed
  [[nodiscard]] virtual int Drucken(const Druckseiten& /*Seiten*/, const std::string& /*Titel*/,
                                    const std::string& /*Vorschlag*/) {
    return -1;
  }
};

/// The doors in use; nullptr: the silent one.
struct Ports {
  Rückfragen* Fragen = nullptr;
  Anzeige* Schirm = nullptr;
  Ablauf* Takt = nullptr;
  Umgebung* Rechner = nullptr;
  Leitungen* Draht = nullptr;
  Druckwerk* Presse = nullptr;
};

/// @{
/// The door in use.
Rückfragen& FragenPort();
Anzeige& AnzeigePort();
Ablauf& AblaufPort();
Umgebung& UmgebungPort();
Leitungen& LeitungenPort();
Druckwerk& DruckwerkPort();
/// @}

/// Sets all doors and gives the ones before.
Ports PortsSetzen(const Ports& Neue);

/// The doors of an object that answers all of them.
template <typename Plattform>
Ports PortsVon(Plattform& P) {
  return {&P, &P, &P, &P, &P, &P};
}

}  // namespace tavorena
