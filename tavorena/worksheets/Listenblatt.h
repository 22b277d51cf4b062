#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/worksheets/Eingabegitter.h>
#include <tavorena/worksheets/Punktfeld.h>

namespace tavorena {

/// What the list of a kind is.
struct Listenart {
  bool BekanntePunkte;     ///< its rows are points of the table
  int Höchstzahl;          ///< most rows that count
  const char* Zuviel;      ///< told for one more
  const char* Knopfname;   ///< of the button that writes, behind the prefix
  const char* Knopftext;   ///< its caption
  const char* Knopfhilfe;  ///< its text for the status bar
};

/// Why a list can not be computed, and where that is to be mended.
struct Listenmangel {
  std::string Text;              ///< the reason; "": there is none
  int Zeile = -1, Spalte = 0;    ///< cell at fault; -1: no row is
  Eingabeelement* Wo = nullptr;  ///< field at fault
  bool Unfertig = false;         ///< something is not typed yet: only told when the list is to be written

  /// With its row: "Zeile 3: Strecke fehlt".
  [[nodiscard]] std::string Meldung() const;
};

/// A row of a list.
struct Listenreihe : Zeileneingabe {
  Lage Ort;                        ///< of a known point [m]
  std::vector<double> Ergebnisse;  ///< that are shown
};

/// What a list leaves in protocol and batch file.
struct Listenakte {
  std::vector<std::string> Sätze;  ///< of its batch block; none: there is no block
  std::string Kommentar;           ///< between the blocks of the batch file; "": none
  Block Zeilen;                    ///< of the protocol
};

/// A worksheet that is written as a whole: fields, rows that are inserted and deleted, results that follow
/// every change, and one button that writes. The last row stands empty and does not count. A kind reads its
/// fields, computes, shows what stands beside the rows, and says what is to be written.
///
/// A second press without a change writes nothing. In a replay the list is shown as it was computed and waits
/// for "Weiter".
class Listenblatt : public Rechenblatt {
 protected:
  using Rechenblatt::Rechenblatt;

  /// A result with its label.
  Feld& Ergebnisfeld(const char* Rest, const char* Label, Platz Ort, const char* Rahmen);
  /// A button of the kind's own.
  struct Weiterer {
    const char *Rest, *Text;  ///< of its name; its caption
    std::function<void()> Aktion;
  };
  /// The rows. They stand where they are made among the fields.
  Gitter& ListeAnlegen(const std::vector<Zeilenspalte>& Spalten, const Listenart& Was);
  /// All buttons: the last controls.
  void ListenknöpfeAnlegen(std::initializer_list<Weiterer> Weitere = {});

  /// @name What a kind answers
  /// @{
  /// Computes the list from fields and rows. What can not be computed is not shown any more.
  [[nodiscard]] virtual Listenmangel Rechnen() = 0;
  /// The results of a row as lengths [m], column by column; not a number: the cell stays empty.
  virtual void Zeilenergebnis(int z, std::vector<double>& Werte) const = 0;
  /// It knows that they are those that are shown: for lists of which only few rows change at a time.
  [[nodiscard]] virtual bool ZeileBleibt(int /*z*/) const { return false; }
  /// Shows the results beside the rows, and all in the graphics view.
  virtual void ZeigeBerechnung() = 0;
  /// What is to be written of the list as it was computed.
  [[nodiscard]] virtual Listenakte Akte() const = 0;
  /// Stores the computed points and puts into A what became of them.
  /// @return 0; -1: the surveyor broke off before anything was stored
  [[nodiscard]] virtual int PunkteEintragen(Listenakte& /*A*/) { return 0; }
  /// Empties the fields beside the rows.
  virtual void FelderLeeren() = 0;
  /// Reads its batch block into fields and rows; a kind without a block has none.
  /// @return 0; -1 error, already told
  [[nodiscard]] virtual int BlockLesen() { return -1; }
  /// The value that a row takes as its Vorgabe when it is ticked, or (Verlangt false) when its number was
  /// typed; not a number: there is none, which is told if it was asked for.
  [[nodiscard]] virtual double VorgabeFür(const std::string& Pnr, bool Verlangt);
  /// Looks the points in its fields up again.
  virtual void PunkteNachsehen() {}
  /// @}

  /// Something was changed: computes and shows all anew.
  void NeuRechnen();
  /// What is shown was written and has not been changed since.
  [[nodiscard]] bool Steht() const { return Unverändert; }
  /// What stands there is written, or may go. @return false: it stays
  [[nodiscard]] bool LeerenErlaubt();
  /// Fills the rows from outside. @return 0; -1 with a message: too many, or a known point is missing; the
  /// rows stay
  [[nodiscard]] int ReihenSetzen(std::vector<Zeileneingabe> Neue);
  /// Sets the number of a row, such as the one under which its point was stored.
  void NummerSetzen(int z, const std::string& Pnr);
  /// Stores a computed point; Pnr and Ort become what the records show. One that is refused is told.
  /// @param[out] Notiz  lines below its row
  /// @return 0; -1: the surveyor broke off
  [[nodiscard]] int PunktEintragen(std::string& Pnr, Lage& Ort, const Wert& Hoehe, const std::string& Symbol,
                                   std::vector<std::string>& Notiz);

  [[nodiscard]] int Anzahl() const { return static_cast<int>(Reihen.size()) - 1; }  ///< rows that count
  [[nodiscard]] const Listenreihe& Reihe(int z) const { return Reihen[static_cast<std::size_t>(z)]; }
  [[nodiscard]] Gitter& Zellen() { return Eingaben->Zellen; }
  [[nodiscard]] bool Gerechnet() const { return Mangel.Text.empty(); }

  void BeiTabelle() final;
  [[nodiscard]] int StapelAnschluss() final;
  [[nodiscard]] int StapelZeile() final;
  [[nodiscard]] bool HatOffenes() const final;
  [[nodiscard]] bool OffenesSchreiben() final;

 private:
  [[nodiscard]] int Schreiben();
  [[nodiscard]] bool IstGeschrieben() const;
  void Leeren();
  void Abgreifen(const std::string& Pnr);
  void GitterInsert();
  void GitterDelete();
  void LeereEndzeile();
  void Auffrischen();
  [[nodiscard]] bool ErgebnisseZeigen(int z);
  [[nodiscard]] bool ZelleVerlassen();
  void VorgabeLesen(int z, int s);
  void Zurückzeigen(int z);
  [[nodiscard]] int PunktHolen(std::string& Pnr, Lage& Ort) const;
  void MangelZeigen();
  Listenreihe& Eigene(int z) { return Reihen[static_cast<std::size_t>(z)]; }

  Listenart Liste{};
  std::optional<Eingabegitter> Eingaben;
  std::vector<Listenreihe> Reihen;  // the empty one at the end included
  Listenmangel Mangel;
  std::optional<Listenakte> Geschrieben;  // as it was written last
  std::vector<double> Zeilenwerte;        // of the row that is shown
  int Nachkomma = -1;                     // decimals of the results that are shown
  bool Unverändert = false;               // since then, as far as it is seen
  bool Nachgerechnet = false;             // a replay is done with its block
};

}  // namespace tavorena
