#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tavorena/forms/Gezeigt.h>

// The parts of a form. A view shows them and tells the form what the user does with them; nothing here
// knows how they look on a screen.

namespace tavorena {

/// The keys a form looks at; all others belong to the text of the field. Leer, the space bar, only comes
/// where rows are chosen; F2 opens what belongs to the current row. Entf and the digits, Ziffer0 and the nine
/// behind it, only come from a control that is not typed into, and mean nothing but what the form says.
enum class Taste { Return, Escape, Plus, Minus, Auf, Ab, Leer, F2, Entf, Ziffer0, Ziffer9 = Ziffer0 + 9 };

/// Place of a control inside its frame, counted in rows and columns of that frame.
struct Platz {
  int Zeile = 0, Spalte = 0;
  int Breite = 1;  ///< columns that it spans
};

/// Width of a point number, as long as the files hold it.
inline constexpr int PnrZeichen = 14;

/// The frame of the buttons at the foot of a form.
inline constexpr const char* Knopfleiste = "#";

struct Gitter;

/// What all controls have.
struct Steuerelement {
  Steuerelement() = default;
  virtual ~Steuerelement() = default;
  Steuerelement(const Steuerelement&) = delete;
  Steuerelement& operator=(const Steuerelement&) = delete;

  std::string Name;         ///< name in the code; a control of an array bears its index, "OptProtokoll(0)"
  std::string Rahmen;       ///< caption of the frame around it
  std::string Bezeichnung;  ///< how it is read aloud, where caption, label and heading do not say it
  Platz Ort;
  int Zeichen = 12;           ///< width in characters
  std::string Hilfe;          ///< text for the status bar
  bool PlatzHalten = false;   ///< its room stays while it is not visible: nothing moves when it comes
  std::string Tipp;           ///< tool tip, such as why the control is closed
  Gezeigt<std::string> Text;  ///< caption ("&" marks the key) or contents; of a list the chosen entry
  Gezeigt<bool> Aktiv{true}, Sichtbar{true};

  /// @return whether something that is shown was changed since the last call
  [[nodiscard]] virtual bool Abholen();
  /// This one if it is a grid: asked after each event of each control.
  [[nodiscard]] virtual Gitter* AlsGitter() { return nullptr; }
};

struct Beschriftung final : Steuerelement {
  bool Rechtsbündig = false;
};

/// A control that is typed into.
struct Eingabeelement : Steuerelement {
  bool IstPnr = false;             ///< a point number: "+" and "-" step it
  Gezeigt<bool> NurLesen;          ///< a result, or a grid to be looked at: shown, never typed into
  Gezeigt<bool> Fehlerhaft;        ///< the value failed; shown in the warning colour
  std::function<void()> BeiText;   ///< the user changed the text
  std::function<void()> BeiFokus;  ///< the focus came to it
  /// Reads the value when the control, or the current cell, is left. @return false: it failed and stays
  std::function<bool()> BeiVerlassen;
  bool OhneAbgriff = false;  ///< a number to be given: no point of the graphics view is meant
  /// Takes a point that was clicked in the graphics view; empty: its number is typed, with Return behind it
  std::function<void(const std::string& Pnr)> BeiAbgriff;

  [[nodiscard]] bool Abholen() override;
};

struct Feld final : Eingabeelement {
  bool Rechtsbündig = false;        ///< numbers
  std::function<void()> BeiReturn;  ///< what Return does when the field was read; empty: on to the next
};

struct Knopf final : Steuerelement {
  std::function<void()> BeiDruck;
  bool OhnePrüfung = false;  ///< works although the control with the focus has failed
  bool Vorgabe = false;      ///< Return presses it from the last field
  bool Abbruch = false;      ///< Escape presses it
};

enum class Auswahlart { Kästchen, Option, Liste };

/// A check box, one of the options of a frame, or a list with one chosen entry.
struct Auswahl final : Steuerelement {
  Auswahlart Art = Auswahlart::Kästchen;
  std::vector<std::string> Einträge;  ///< of a list
  int Gruppe = 0;                     ///< of the options of a frame one of each group is chosen
  Gezeigt<bool> Gewählt;              ///< of a check box or an option
  std::function<void()> BeiWahl;

  [[nodiscard]] bool Abholen() override;
};

/// A column of a grid.
struct Gitterspalte {
  std::string Titel;
  int Zeichen = 12;
  bool Eingabe = false;  ///< the user types here
  bool Rechtsbündig = true;
  bool IstPnr = false;  ///< of point numbers; where no column says so, the first one is
  Gezeigt<bool> Sichtbar{true};
};

/// What changed in a grid.
struct Gitteränderung {
  int Von = 0, Bis = 0;     ///< the rows from Von to before Bis have new texts
  bool Zeilenzahl = false;  ///< rows came or went at the end
  bool Zelle = false;       ///< another cell is the current one
  bool Spalten = false;     ///< columns were shown or hidden

  [[nodiscard]] bool Etwas() const { return Von < Bis || Zeilenzahl || Zelle || Spalten; }
};

/// A grid of texts with one current cell. Rows and columns count from 0. Where it has a column of marks, rows
/// can be chosen: such a row shows "*" there in place of its text. The texts of a long list need not be kept
/// twice: with a Quelle only a row that is typed into, the draft, has texts of its own.
struct Gitter final : Eingabeelement {
  std::vector<Gitterspalte> Spalten;
  Gezeigt<int> Zeile, Spalte;                                ///< the current cell
  std::function<bool(Taste)> BeiTaste;                       ///< true: the key is done with
  std::function<void()> BeiZelle;                            ///< the user came to another cell
  std::function<std::string(int Zeile, int Spalte)> Quelle;  ///< of the texts; empty: the grid keeps them
  /// Which figures pass their limit: shown in the warning colour; empty: none
  std::function<bool(int Zeile, int Spalte)> Auffällig;
  int Ziel = -1;            ///< row that the user is on his way to while the current cell is read; else -1
  bool NimmtZeilen = true;  ///< rows of the clipboard are taken as if they had been typed
  int Markenspalte = -1;    ///< column of the marks; -1: there are none
  std::function<bool(int Zeile)> Markierbar;      ///< which rows can be chosen; empty: all
  std::function<void()> BeiMarke;                 ///< the user chose other rows
  std::function<void(int Zeile)> BeiDoppelklick;  ///< the user clicked a row twice
  std::function<void(int Spalte)> BeiTitel;       ///< the user clicked a heading; empty: they do nothing

  [[nodiscard]] Gitter* AlsGitter() override { return this; }
  [[nodiscard]] int Zeilen() const { return Quelle ? Quellzeilen : static_cast<int>(Zellen.size()); }
  [[nodiscard]] std::string Inhalt(int z, int s) const;
  void InhaltSetzen(int z, int s, std::string Neu);
  void ZeileAnhängen();
  /// With a text for each column.
  void ZeileAnhängen(std::vector<std::string> Texte);
  /// Before row z, empty.
  void ZeileEinfügen(int z);
  void ZeileLöschen(int z);
  /// Empties the grid cell by cell and leaves that many rows.
  void Leeren(int ZeilenDanach);

  /// @name Rows of a Quelle
  /// @{
  /// There are that many rows, and all texts are new.
  void ZeilenSetzen(int Anzahl);
  /// A row stands elsewhere now; current row, Ziel and draft go with their rows.
  void ZeileUmziehen(int Von, int Nach);
  /// The row that is typed into, -1: none.
  [[nodiscard]] int Entwurf() const { return Entwurfzeile; }
  /// The draft shows again what its source says.
  void EntwurfVerwerfen();
  /// @}

  [[nodiscard]] bool Markiert(int z) const;
  /// Chooses a row, or no more; one that can not be chosen never is.
  void MarkeSetzen(int z, bool An);
  /// The rows that are chosen, rising.
  [[nodiscard]] std::vector<int> Markierte() const;
  /// Chooses the rows from the one that was last chosen, or left, to this one, which becomes the current one.
  void MarkenBis(int z);
  /// The user can type into the current cell.
  [[nodiscard]] bool ZelleOffen() const;
  /// The column of point numbers: that of the current cell, if it is one, or the first.
  [[nodiscard]] int Nummernspalte() const;
  /// Next column that is typed into, before the current one with Schritt -1; -1 if there is none.
  [[nodiscard]] int Eingabespalte(int Schritt) const;

  /// What changed in cells, rows and columns since the last call. A row that went from the middle is told as
  /// new texts behind it and one row less.
  [[nodiscard]] Gitteränderung ÄnderungAbholen();

 private:
  void Merken(int Von, int Bis);

  std::vector<std::vector<std::string>> Zellen;  // with a Quelle the draft alone
  int Quellzeilen = 0, Entwurfzeile = -1;
  std::vector<bool> Marken;
  int Anker = 0;  // row from which MarkenBis goes
  Gitteränderung Neues;
};

}  // namespace tavorena
