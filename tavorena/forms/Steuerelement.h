#pragma once

#include <string>
#include <vector>

namespace tavorena {

enum class Steuerart { Beschriftung, Feld, Knopf, Kontrollkaestchen, Option, Liste, Gitter };

/// Place of a control inside its frame, counted in rows and columns of that frame.
struct Platz {
  int Zeile = 0, Spalte = 0;
  int Breite = 1;  ///< columns that it spans
};

/// One control of a form. The view shows it and tells the form what the user does with it; nothing here
/// knows how it looks on a screen.
struct Steuerelement {
  virtual ~Steuerelement() = default;

  std::string Name;  ///< name in the code; a control of an array bears its index, "OptProtokoll(0)"
  Steuerart Art = Steuerart::Beschriftung;
  std::string Text;    ///< caption ("&" marks the key) or contents; of a list the chosen entry
  std::string Rahmen;  ///< caption of the frame around it
  Platz Ort;
  int Zeichen = 12;                   ///< width in characters
  std::string Hilfe;                  ///< text for the status bar
  std::vector<std::string> Einträge;  ///< of a list
  bool Gewählt = false;               ///< of a check box or an option
  bool Aktiv = true;
  bool Sichtbar = true;
  bool NurLesen = false;      ///< a result: shown, never typed into
  bool Rechtsbündig = false;  ///< numbers
  bool IstPnr = false;        ///< a point number: "+" and "-" step it
  bool Fehlerhaft = false;    ///< the value failed; the view shows it in its warning colour
  bool OhnePrüfung = false;   ///< a button that works although the field with the focus has failed
  bool Vorgabe = false;       ///< the button that Return presses from the last field
  bool Abbruch = false;       ///< the button that Escape presses
};

/// A column of a grid.
struct Gitterspalte {
  std::string Titel;
  int Zeichen = 12;
  bool Eingabe = false;  ///< the user types here
  bool Rechtsbündig = true;
  bool Sichtbar = true;
};

/// A grid of texts with one current cell. Rows and columns count from 0.
struct Gitter : Steuerelement {
  std::vector<Gitterspalte> Spalten;
  int Zeile = 0, Spalte = 0;  ///< the current cell

  [[nodiscard]] int Zeilen() const { return static_cast<int>(Zellen.size()); }
  [[nodiscard]] const std::string& Inhalt(int z, int s) const;
  void InhaltSetzen(int z, int s, std::string Neu);
  void ZeileAnhängen();
  void ZeileLöschen(int z);
  /// Empties the grid cell by cell and leaves that many rows.
  void Leeren(int ZeilenDanach);

 private:
  std::vector<std::vector<std::string>> Zellen;
};

}  // namespace tavorena
