#pragma once

#include <string>
#include <vector>

#include <tavorena/worksheets/Anschlussblatt.h>

namespace tavorena {

/// A worksheet whose rows are known points seen from a connection: a row is typed as one point number, and
/// Return commits it to protocol and batch file. A committed row that is typed anew or deleted is struck in
/// the protocol by a line with " ***gelöscht" and taken out of the batch file, which holds what is to be
/// calculated again.
class Gitterblatt : public Anschlussblatt {
 public:
  explicit Gitterblatt(const Blattart& BlattArt) : Anschlussblatt(BlattArt) {}

 protected:
  /// A row: the known point and the two values computed for it.
  struct Zeile {
    std::string Pnr;  ///< "" while the row is empty or its number is not looked up
    Lage Ort;
    double Wert1 = 0, Wert2 = 0;
    bool Geschrieben = false;
    int Satz = -1;  ///< its record in the open batch block; -1 none
  };

  bool FokusVerloren(Eingabeelement& S) override;
  bool TasteUnten(Steuerelement& S, Taste T) override;
  void TextGeändert(Eingabeelement& S) override;
  void AnschlussAnAus(bool An) override;
  int AnschlussEinzel() override;
  int StapelZeile() override;
  [[nodiscard]] bool HatOffenes() const override;
  bool OffenesSchreiben() override;
  void BlockBeenden() override;

  /// The values on start and end point for the batch head.
  virtual void Kopfwerte(double& AnfWert, double& EndWert) const = 0;
  /// Computes Wert1 and Wert2 of a point. @return 0 or -1
  virtual int ZeileRechnen(Zeile& Z) const = 0;
  /// The cells behind the point number.
  [[nodiscard]] virtual std::vector<std::string> Zellen(const Zeile& Z) const = 0;
  virtual void AnschlussProtokollieren() const = 0;
  virtual void ZeileProtokollieren(const Zeile& Z, const std::string& Marke) const = 0;

  /// Makes the grid and the buttons; called when the fields of the connection are there.
  void GitterAufbauen(std::vector<Gitterspalte> Spalten);
  /// Opens the connection that was typed; wrong fields get the focus.
  void AnschlussÖffnen();
  /// Ends the connection: back to the head fields.
  void AnschlussSchließen();
  [[nodiscard]] bool AnschlussOffen() const { return Anschlussan; }
  /// Takes a point number into the last row, computes and commits it.
  /// @return 0; -1: no such point, or the row failed; it is then empty again
  int ZeileEintragen(const std::string& Nummer);

  Gitter* Rechengitter = nullptr;

 private:
  int GitterEinzel(int z);
  void GitterEnde(int z);
  void GitterInkrement();
  void GitterPunktnummer();
  void ZeileZeigen(int z);
  bool ZelleVerlassen(const Gitter& G);
  void Delete();
  void Streichen(Zeile& Z);
  void KopfSchreiben();
  [[nodiscard]] std::string Nummer(int z) const;
  Zeile& Reihe(int z) { return Reihen[static_cast<std::size_t>(z)]; }

  std::vector<Zeile> Reihen;
  bool Anschlussan = false;      // the connection is on
  bool Kopfgeschrieben = false;  // its lines are in the protocol
  int Sätze = 0;                 // records in the open batch block
  Knopf* KnopfAn = nullptr;
  Knopf* KnopfEnd10 = nullptr;
  Knopf* KnopfDelete = nullptr;
};

}  // namespace tavorena
