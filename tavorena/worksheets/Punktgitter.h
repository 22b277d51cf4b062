#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include <tavorena/worksheets/Anschluss.h>

namespace tavorena {

/// A row of a Punktgitter: the known point and the two values computed for it.
struct Punktzeile {
  std::string Pnr;  ///< "" while the row is empty or its number is not looked up
  Lage Ort;         ///< [m]
  double Wert1 = 0, Wert2 = 0;
  Aufzeichnung::Spur Wo;
  Markierung Bild;  ///< in the graphics view
};

/// What a worksheet knows of its rows.
struct Zeilenkunde {
  /// Computes Wert1 and Wert2 of a point. @return 0 or -1
  std::function<int(Punktzeile&)> Rechnen;
  /// The cells behind the point number.
  std::function<std::vector<std::string>(const Punktzeile&)> Zellen;
  /// Its lines in the protocol, Marke at their end.
  std::function<Block(const Punktzeile&, const std::string& Marke)> Protokollieren;
  /// Completes what stands above the rows.
  std::function<void(Verbindung&)> Verbinden;
  /// Where the line in the graphics view comes from that leads to the point of a row [m].
  std::function<Lage(const Punktzeile&)> Herkunft;
};

/// The rows of a worksheet whose rows are known points seen from a connection. A row is typed as one point
/// number, and Return commits it to protocol and batch file. A committed row that is typed anew or deleted is
/// struck in the protocol by a line with " ***gelöscht" and taken out of the batch file, which holds what is
/// to be calculated again.
class Punktgitter {
 public:
  Punktgitter(Rechenblatt& Für, Anschluss& Von, std::vector<Gitterspalte> Spalten, Zeilenkunde Wissen);
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

  /// Takes a point number into the last row, computes and commits it.
  /// @return 0; -1: no such point, or it can not be computed, the row is then empty again; -2: not written
  [[nodiscard]] int Eintragen(const std::string& Nummer);
  /// Takes the next row of a batch block. @return 0; -1 error; -2 end of the block
  [[nodiscard]] int StapelZeile();

  /// Commits a row that was typed and not confirmed. @return false: it stays, and has the focus
  [[nodiscard]] bool OffeneZeileSchreiben();
  [[nodiscard]] bool HatOffenes() const;
  [[nodiscard]] bool OffenesSchreiben();

 private:
  [[nodiscard]] int Verbinden();
  [[nodiscard]] int GitterEinzel(int z);
  [[nodiscard]] int GitterEnde(int z);
  void GitterInkrement();
  void GitterPunktnummer();
  [[nodiscard]] bool TasteNehmen(Taste T);
  [[nodiscard]] bool ZelleVerlassen();
  void TextGeändert();
  void ZeileZeigen(int z);
  void Markieren(int z, int Farbe);
  void Delete();
  [[nodiscard]] int Streichen(int z);
  void AnschlussAnAus(bool An);
  [[nodiscard]] std::string Nummer(int z) const;
  Punktzeile& Reihe(int z) { return Reihen[static_cast<std::size_t>(z)]; }

  Rechenblatt& Blatt;
  Anschluss& Kopf;
  Zeilenkunde Kunde;
  std::vector<Punktzeile> Reihen;
  std::vector<Steuerelement*> Offene;  // controls that work while the connection is on
  bool Anschlussan = false;
  Knopf* KnopfAn = nullptr;
  Knopf* KnopfEnd10 = nullptr;
};

}  // namespace tavorena
