#pragma once

#include <QList>
#include <QSettings>
#include <QSize>

namespace tavorena {

/// Where windows stood and how wide their columns were: a file of its own in the application folder. Reading
/// makes none.
class Fensterplatz {
 public:
  Fensterplatz();

  void Merken(const QString& Name, const QByteArray& Zustand) { Ablage.setValue(Name, Zustand); }
  void Merken(const QString& Name, int Zahl) { Ablage.setValue(Name, Zahl); }
  void Merken(const QString& Name, QSize Größe) { Ablage.setValue(Name, Größe); }
  void Merken(const QString& Name, const QList<int>& Zahlen);

  [[nodiscard]] bool Hat(const QString& Name) const { return Ablage.contains(Name); }
  /// @{
  /// What was kept under a name; empty, or 0, if there is nothing.
  [[nodiscard]] QByteArray Bytes(const QString& Name) const { return Ablage.value(Name).toByteArray(); }
  [[nodiscard]] int Zahl(const QString& Name) const { return Ablage.value(Name).toInt(); }
  [[nodiscard]] QSize Größe(const QString& Name) const { return Ablage.value(Name).toSize(); }
  [[nodiscard]] QList<int> Zahlen(const QString& Name) const;
  /// @}

 private:
  QSettings Ablage;
};

}  // namespace tavorena
