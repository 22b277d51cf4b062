#include <QSize>
#include <QStringList>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/desktop/Fensterplatz.h>
#include <tavorena/shell/Konfiguration.h>

namespace tavorena {
namespace {

QString Ablagedatei() {
  return QString::fromStdString(
      Systempfad(PfadVerbinden(Anwendungsordner, "\\TavorenaFenster.ini")).string());
}

}  // namespace

Fensterplatz::Fensterplatz() : Ablage(Ablagedatei(), QSettings::IniFormat) {}

void Fensterplatz::Merken(const QString& Name, const QList<int>& Zahlen) {
  QStringList Texte;
  for (const int z : Zahlen) Texte << QString::number(z);
  Ablage.setValue(Name, Texte.join(' '));
}

QList<int> Fensterplatz::Zahlen(const QString& Name) const {
  QList<int> Alle;
  for (const QString& Text : Ablage.value(Name).toString().split(' ', Qt::SkipEmptyParts))
    Alle << Text.toInt();
  return Alle;
}

}  // namespace tavorena
