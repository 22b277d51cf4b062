#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include <tavorena/core/TVDialog.h>
#include <tavorena/desktop/Ansichtdatei.h>
#include <tavorena/desktop/Grafikdruck.h>
#include <tavorena/forms/Dateifrage.h>

namespace tavorena {
namespace {

template <typename Widget>
Widget* Zeile(QFormLayout& Felder, const char* Text, const char* Name) {
  auto* W = new Widget;
  W->setObjectName(Name);
  Felder.addRow(Text, W);
  return W;
}

}  // namespace

QString Grafikdruck::Zusatz() const { return QString("Maßstab 1:%1").arg(Plan.Maßstabszahl, 0, 'g', 9); }

QPageLayout Grafikdruck::Papier() const { return Papierformat(Auftrag.Papier); }

void Grafikdruck::Zeichnen(QPainter& Maler, int Blatt) const { SeiteMalen(Maler, Auftrag, Plan, Blatt); }

int Grafikdruck::AlsPdf(Blattbereich Welche) const {
  const std::string Name = DateiFragen("Grafik als PDF speichern", "PDF (*.pdf)|*.pdf", "*.pdf", true);
  if (Name.empty() || SeitenSchreiben(Name, Auftrag, &Welche) < 0) return -1;
  StatusHilfeSetzen("Gespeichert: " + Name);
  return 0;
}

void Grafikdruck::FelderAnlegen(QFormLayout& Felder, const std::function<void()>& Geändert) {
  GrafInhalt = Zeile<QComboBox>(Felder, "&Inhalt:", "GrafInhalt");
  GrafBlatt = Zeile<QComboBox>(Felder, "&Blatt:", "GrafBlatt");
  GrafMassstab = Zeile<QLineEdit>(Felder, "&Maßstab 1:", "GrafMassstab");
  GrafTitel = Zeile<QLineEdit>(Felder, "&Titel:", "GrafTitel");
  GrafInhalt->addItems({"Alle Punkte", "Ausschnitt der Grafik"});
  GrafBlatt->addItems({"A4 hoch", "A4 quer", "A3 hoch", "A3 quer"});
  GrafBlatt->setCurrentIndex(static_cast<int>(Blatt::A4quer));
  GrafMassstab->setPlaceholderText("eingepaßt");
  GrafMassstab->setToolTip(
      "Zahl hinter 1: ; leer: der größte runde Maßstab, in dem alles auf ein Blatt paßt");
  GrafMassstab->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,9}"), GrafMassstab));
  SeitenkopfSetzen(Auftrag);
  GrafTitel->setText(Titel());
  const auto Neu = [this, Geändert] {
    Planen();
    Geändert();
  };
  for (QComboBox* Liste : {GrafInhalt.data(), GrafBlatt.data()})
    QObject::connect(Liste, &QComboBox::currentIndexChanged, Liste, Neu);
  for (QLineEdit* Feld : {GrafTitel.data(), GrafMassstab.data()})
    QObject::connect(Feld, &QLineEdit::textChanged, Feld, Neu);
  Planen();
}

void Grafikdruck::Planen() {
  SeitenkopfSetzen(Auftrag);
  Auftrag.Papier = static_cast<Blatt>(GrafBlatt->currentIndex());
  Auftrag.AllePunkte = GrafInhalt->currentIndex() == 0;
  Auftrag.Maßstabszahl = GrafMassstab->text().toDouble();
  Auftrag.Titel = GrafTitel->text().toStdString();
  Warum.clear();
  static_cast<void>(SeitenPlanen(Auftrag, Plan, Warum));  // a failure stands in Warum
}

}  // namespace tavorena
