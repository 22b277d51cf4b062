#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include <tavorena/worksheets/Anschluss.h>
#include <tavorena/worksheets/Eingabegitter.h>
#include <tavorena/worksheets/Punktablage.h>

namespace tavorena {

/// A row of a Punktgitter: what was typed, the point that is known or comes of it, and what is computed
/// besides.
struct Rechenzeile : Zeileneingabe {
  Lage Ort;    ///< [m]
  Wert Hoehe;  ///< of a computed point [m]; not given: none
  double Wert1 = 0, Wert2 = 0;
  Aufzeichnung::Spur Wo;
  std::unique_ptr<Punktablage> Ablage;  ///< what storing it did; null: it is not stored by this row
  Markierung Bild;                      ///< in the graphics view
};

/// What a worksheet knows of its rows.
struct Zeilenkunde {
  bool NeuePunkte = false;  ///< the rows are computed points, which are stored; else known ones
  /// Computes a row from its point or its measures. @return 0; -1: it can not be computed
  std::function<int(Rechenzeile&)> Rechnen;
  /// The texts of its results, column by column.
  std::function<std::vector<std::string>(const Rechenzeile&)> Zellen;
  /// Its lines in the protocol; a Marke that is not empty stands at their end in place of the flags.
  std::function<Block(const Rechenzeile&, const std::string& Marke)> Protokollieren;
  /// Its record in the batch file, and how one is read: 0, -1 error, -2 end of the block.
  std::function<std::string(const Rechenzeile&)> Satz;
  std::function<int(Zeileneingabe&)> Lesen;
  /// Completes what stands above the rows.
  std::function<void(Verbindung&)> Verbinden;
  /// Where the line in the graphics view comes from that leads to the point of a row [m].
  std::function<Lage(const Rechenzeile&)> Herkunft;
};

/// The rows of a worksheet, seen from a connection. Return leads from typed cell to typed cell; behind the
/// last measure the row is computed, behind the last cell it is committed: a computed point is stored, and
/// the row written to protocol and batch file. A committed row that is typed anew or deleted is struck in the
/// protocol by a line with " ***gelöscht", its point taken back, and its record replaced or taken out of the
/// batch file, which holds what is to be calculated again.
class Punktgitter {
  Eingabegitter Eingaben;

 public:
  Punktgitter(Rechenblatt& Für, Anschluss& Von, const std::vector<Zeilenspalte>& Spalten, Zeilenkunde Wissen);
  Punktgitter(const Punktgitter&) = delete;
  Punktgitter& operator=(const Punktgitter&) = delete;

  Gitter& Zellen;
  Markierung Beiwerk;  ///< marks that go with the rows

  /// Makes its three buttons. @param[in] Öffnen  opens the connection that was typed
  void KnöpfeAnlegen(std::function<void()> Öffnen);
  /// Controls that are open together with the rows.
  void MitÖffnen(std::initializer_list<Steuerelement*> Weitere);

  /// Closes the head and opens the rows. @return 0; -1: the connection is not there
  [[nodiscard]] int AnschlussEinzel();
  /// Ends the connection: back to the head.
  void AnschlussSchließen();
  /// Removes the marks of the rows from the graphics view.
  void GrafikKleinpunktLöschen();
  [[nodiscard]] bool Offen() const { return Anschlussan; }

  /// Takes what would be typed into the last row, computes and commits it.
  /// @return 0; -1: no such point, it can not be computed or was not to be stored, the row is then empty
  /// again;
  ///         -2: not written
  [[nodiscard]] int Eintragen(const Zeileneingabe& E);
  /// Takes the next row of a batch block. @return 0; -1 error; -2 end of the block
  [[nodiscard]] int StapelZeile();

  /// Commits a row that was typed and not confirmed. @return false: it stays, and has the focus
  [[nodiscard]] bool OffeneZeileSchreiben();
  [[nodiscard]] bool HatOffenes() const;
  [[nodiscard]] bool OffenesSchreiben();

 private:
  [[nodiscard]] int Verbinden();
  [[nodiscard]] Gitterverhalten Verhalten();
  [[nodiscard]] int Berechnen(Rechenzeile& Neu);
  [[nodiscard]] int GitterEinzel(int z);
  [[nodiscard]] int GitterEnde(int z);
  [[nodiscard]] int ZeileSchreiben(int z);
  [[nodiscard]] int ZeileSchreiben(int z, Rechenzeile Neu);
  static void PunktZurück(Rechenzeile& Z);
  void GitterInkrement();
  [[nodiscard]] bool ZeileAbschließen(int z);
  [[nodiscard]] bool ZelleVerlassen();
  void TextGeändert();
  void ZeigeErgebnisse(int z, const Rechenzeile& Z);
  void ZeileZeigen(int z);
  void Markieren(int z, bool Geschrieben);
  void Delete();
  [[nodiscard]] int Streichen(int z);
  void AnschlussAnAus(bool An);
  Rechenzeile& Reihe(int z) { return Reihen[static_cast<std::size_t>(z)]; }
  [[nodiscard]] const Rechenzeile& Reihe(int z) const { return Reihen[static_cast<std::size_t>(z)]; }

  Rechenblatt& Blatt;
  Anschluss& Kopf;
  Zeilenkunde Kunde;
  std::vector<Rechenzeile> Reihen;
  std::vector<Steuerelement*> Offene;  // controls that work while the connection is on
  bool Anschlussan = false;
  Knopf* KnopfAn = nullptr;
  Knopf* KnopfEnd10 = nullptr;
};

}  // namespace tavorena
