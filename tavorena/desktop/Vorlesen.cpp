#include <QStringList>
#include <QWidget>

#include <tavorena/desktop/Vorlesen.h>
#include <tavorena/forms/Steuerelement.h>

namespace tavorena {

void BeschreibungSetzen(QWidget& W, const Steuerelement& S, const QString& Ganz) {
  QStringList Teile;
  const auto* A = dynamic_cast<const Auswahl*>(&S);
  if (A != nullptr && A->Art == Auswahlart::Liste)  // its name comes from its label alone
    Teile << QString::fromStdString(S.Bezeichnung);
  const auto* E = dynamic_cast<const Eingabeelement*>(&S);
  if (E != nullptr && E->Fehlerhaft) Teile << (E->NurLesen ? Auffälliges : NichtAngenommen);
  Teile << Ganz << QString::fromStdString(S.Hilfe) << QString::fromStdString(S.Tipp);
  Teile.removeAll(QString());
  if (const QString Neu = Teile.join("; "); W.accessibleDescription() != Neu) W.setAccessibleDescription(Neu);
}

}  // namespace tavorena
