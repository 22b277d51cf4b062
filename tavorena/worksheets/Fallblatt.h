#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include <tavorena/calc/Lage.h>
#include <tavorena/graphics/Markierung.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/worksheets/Messfeld.h>
#include <tavorena/worksheets/Punktablage.h>
#include <tavorena/worksheets/Punktfeld.h>

namespace tavorena {

/// A solution of a case: where it lies, and the number that it is stored under if one is typed.
class Fallpunkt {
 public:
  /// @param[in] Welcher  end of its control names, "1" for "Intbl_NeuPnr1"
  /// @param[in] MitSymbol  the point has one
  Fallpunkt(Rechenblatt& Blatt, const std::string& Welcher, const char* Label, int Zeile, bool MitSymbol);
  Fallpunkt(const Fallpunkt&) = delete;
  Fallpunkt& operator=(const Fallpunkt&) = delete;

  Feld &NeuPnr, &NeuSym;
  std::string Name;  ///< that tells it from another one in the graphics view
  Lage Ort;          ///< [m]
  Wert Hoehe;        ///< [m]; not given: none

  /// It was computed from what is typed.
  [[nodiscard]] bool Da() const { return Gerechnet; }
  /// A number is typed; "0" is none.
  [[nodiscard]] bool Benannt() const { return !NeuPnr.Text->empty() && *NeuPnr.Text != "0"; }
  /// It has a number to be stored under.
  [[nodiscard]] bool Gewählt() const { return Gerechnet && Benannt(); }
  /// Without a number if it is not to be stored.
  [[nodiscard]] Protpunkt AlsProtpunkt() const { return {Ort.RW, Ort.HW, Gewählt() ? *NeuPnr.Text : ""}; }
  [[nodiscard]] Neupunkteingabe Eingabe() const;
  void Setzen(const Neupunkteingabe& E);

  /// Shows it as computed.
  void Zeigen(Lage Wo);
  /// Shows two words where the coordinates stand: there is none.
  void Zeigen(const char* Links, const char* Rechts);
  /// There is none, and nothing to be said of it.
  void Entfällt();
  /// What stands there does not belong to what is typed.
  void Veraltet();
  /// Whether a number can be typed.
  void Öffnen(bool An) { NeuPnr.Aktiv = NeuSym.Aktiv = An; }
  void Leeren();

 private:
  Feld &Rechts, &Hoch;
  bool Gerechnet = false;
};

/// A worksheet without rows: fields, and no, one or two solutions. The case is computed whenever the focus
/// comes to the number of a new point; Return in the last of its fields commits it: what has a number is
/// stored, and the case is a block of its own in protocol and batch file. For the next one only the known
/// points stay.
class Fallblatt : public Rechenblatt {
 public:
  // ---- the parts of a case, in the order of the keyboard

  /// A known point. @param[in] Nötig  there is no case without it
  Punktfeld& PunktAnlegen(const std::string& Welcher, const char* Label, const char* Rahmen, int Zeile,
                          bool Nötig = true, const std::string& Nach = "");
  Messfeld& MaßAnlegen(const std::string& Rest, const char* Label, Platz Ort, const char* Rahmen,
                       bool Nötig = true);

 protected:
  explicit Fallblatt(const Blattart& BlattArt);

  /// @param[in] Welcher  end of its control names; also its name in the view
  Fallpunkt& LösungAnlegen(const char* Welcher, const char* Label, bool MitSymbol = true);
  /// A figure beside the solutions. @param[in] Rest  of its control name
  Feld& ErgebnisAnlegen(const std::string& Rest, const char* Label, int Spalte, int Zeile = 0);
  /// The buttons: the last controls.
  void FallAnlegen();

  std::deque<Punktfeld> Punkte;
  std::deque<Messfeld> Maße;
  std::deque<Fallpunkt> Lösungen;

  // ---- what a kind answers

  /// Computes the case and shows its solutions; all that it needs is there.
  /// @return "" if there is something to store or to write; else why there is not
  [[nodiscard]] virtual std::string Rechnen() = 0;
  /// The field in which the reason lies, if it is one; Rechnen sets it.
  Feld* Grundfeld = nullptr;
  /// Something that it needs is missing.
  virtual void Unvollständig() {}
  /// That is not even told before Return asks for it.
  [[nodiscard]] virtual bool Schweigt() const { return false; }
  /// Its lines in the protocol.
  [[nodiscard]] virtual Block Protokollieren() = 0;
  /// The row of a solution alone, with what stands behind it: the case is taken back.
  [[nodiscard]] virtual Block Streichzeile(const Fallpunkt& L) = 0;
  /// What is struck of a case of which nothing was stored.
  [[nodiscard]] virtual Block StreichzeilenOhnePunkt() { return {}; }
  /// Its records.
  [[nodiscard]] virtual std::vector<std::string> Sätze() = 0;
  /// Reads the block of a case into the fields. @return 0; -1 error, already told
  [[nodiscard]] virtual int StapelLesen() = 0;
  /// Completes what stands above the case.
  virtual void Verbinden(Verbindung& /*V*/) {}
  /// Shows what follows from the known points alone, such as a radius.
  virtual void Nachführen() {}
  /// Draws what leads to the solutions; all known points are discs already.
  virtual void Zeichnen(Markierung& /*Bild*/) {}
  /// A case is written although nothing is stored.
  [[nodiscard]] virtual bool OhneNummer() const { return false; }
  /// What stands below the row of a solution whose number was taken.
  [[nodiscard]] std::vector<std::string> Notiz(std::size_t Lösung) const;
  /// Lines that end with the row of the only solution, and its note.
  [[nodiscard]] Block MitNotiz(Block B) const;

  /// Empties solutions and figures, but for what is typed there.
  void NichtsZeigen();
  /// A box about the figures as they are typed is due: once, and never in a replay.
  [[nodiscard]] bool ErstmalsGesagt();
  /// What is typed was changed: the case is not computed any more.
  void EingabeGeändert();
  /// An option was changed: what is shown follows at once.
  void OptionGeändert();
  /// Computes it anew if something has changed since.
  void FallRechnen();

  // ---- the frame

  void BeiTabelle() override;
  [[nodiscard]] int StapelAnschluss() final;
  [[nodiscard]] int StapelZeile() final;
  [[nodiscard]] bool HatOffenes() const final;
  [[nodiscard]] bool OffenesSchreiben() final;
  void GrafikLöschen() final;

 private:
  /// A case that was written.
  struct Fall {
    std::vector<Punktablage> Ablagen;  // of its solutions, in their order
    std::vector<std::string> Pnr;
    Aufzeichnung::Spur Wo;
    Block Gestrichen;  // its rows, struck
    Markierung Bild;
  };

  void Anschließen(Feld& F);
  void ReturnIn(const Feld& F);
  [[nodiscard]] const Eingabeelement* Fehlt() const;
  [[nodiscard]] bool Prüfen();
  [[nodiscard]] bool NummerNehmen(Fallpunkt& L);
  [[nodiscard]] int Speichern();
  [[nodiscard]] int FallSchreiben();
  void FallAbschließen();
  void Merken(Aufzeichnung::Spur Wo);
  void PunkteZurück(std::vector<Punktablage>& Ablagen, const std::vector<std::string>& Pnr) const;
  void Zurück();
  void Reset();
  void FelderClear();
  void Bildzeichnen();

  std::vector<Eingabeelement*> Nötige;
  std::vector<Feld*> Figuren;      // what is shown beside the solutions
  std::string Grund;               // why there is nothing to write; "": there is
  bool Gerechnet = false;          // Grund and solutions belong to what is typed
  bool Geschrieben = false;        // what is shown, of a case without solutions
  std::vector<double> Gesagt;      // figures that a box told of
  std::uint64_t Stand = 0;         // of the table when it was computed
  bool StapelErledigt = false;     // the case of a replay is written or left out
  std::vector<Punktablage> Getan;  // what storing the solutions did
  std::vector<Fall> Fälle;
  Markierung Figurbild, Neubild;
  Knopf* KnopfZurück = nullptr;
};

}  // namespace tavorena
