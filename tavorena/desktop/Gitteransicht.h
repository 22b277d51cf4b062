#pragma once

#include <functional>

#include <QTableView>

#include <tavorena/forms/Steuerelement.h>

namespace tavorena {

class Eingabefeld;
class Gittermodell;

/// Shows a grid. The current cell holds a field of its own while the grid can be typed into, so that the
/// first key already goes where it belongs.
class Gitteransicht final : public QTableView {
 public:
  Gitteransicht(Gitter& Zeigt, Eingabefeld* Feld, QWidget* Eltern = nullptr);

  /// Takes over what changed in cells, rows and columns.
  void Übernehmen(const Gitteränderung& Was);
  /// Takes over the state of the grid as a whole.
  void ZustandZeigen();
  /// What takes the keys: the field of the current cell, if it is there.
  [[nodiscard]] QWidget* Fokusziel();
  /// The row that a key leads to, up to the first or the last one with Ganz; Home and End lead to the first
  /// and the last one that is seen. @return -1: no such key
  [[nodiscard]] int Zielzeile(Qt::Key Taste, bool Ganz) const;
  /// Widths of the columns [pixels], and behind them that of 100 characters: in letters of another size they
  /// follow. Those of another number of columns are not taken.
  [[nodiscard]] QList<int> Breiten() const;
  void BreitenSetzen(const QList<int>& Neue);
  /// Marks one more row above or below the current one, for copying.
  void AuswahlErweitern(int Schritt);
  /// The marked cells, tabs between columns and a line for each row; "" if none is marked.
  [[nodiscard]] QString Auswahltext() const;
  /// The form is closed: its grid must not be looked at any more.
  void Lösen();

  std::function<void(int Zeile, int Spalte)> BeiZelle;  ///< the user clicked a cell
  std::function<void(int Zeile)> BeiDoppelklick;
  std::function<void(int Spalte)> BeiTitel;
  std::function<void()> BeiEinfügen;  ///< the user wants the clipboard as rows

 protected:
  void contextMenuEvent(QContextMenuEvent* Ereignis) override;
  void focusInEvent(QFocusEvent* Ereignis) override;
  void resizeEvent(QResizeEvent* Ereignis) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  [[nodiscard]] QSize sizeHint() const override;

 private:
  void SpaltenZeigen();
  [[nodiscard]] int Spaltenbreite(const Gitterspalte& S) const;
  void ZeilenMarkieren(int Von, int Bis);
  [[nodiscard]] QString Zeilentext(int Zeile, int Von, int Bis) const;
  void FeldSetzen();
  void ZelleZeigen(const QModelIndex& Zelle);
  void FeldZeigen();
  void FeldRücken();

  Gitter& Daten;
  Gittermodell* Modell;
  Eingabefeld* Zellfeld;
  QPersistentModelIndex Feldzelle;
  int Markende = 0;  // row that the marking has come to
};

}  // namespace tavorena
