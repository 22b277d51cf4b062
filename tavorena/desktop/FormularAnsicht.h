#pragma once

#include <unordered_map>

#include <QWidget>

#include <tavorena/forms/Formular.h>

class QGridLayout;
class QHBoxLayout;
class QVBoxLayout;

namespace tavorena {

class Eingabefeld;
class Gitteransicht;

/// Shows any form, once for all worksheets, dialogs and editors. It knows the form's model only: what the
/// user does goes to the form as an event, and after each event the controls are taken over from it.
class FormularAnsicht final : public QWidget, public FormularBeobachter {
 public:
  explicit FormularAnsicht(Formular& Gezeigt, QWidget* Eltern = nullptr);
  ~FormularAnsicht() override;

  void FormularGeändert() override;
  void FormularGeschlossen() override;

  /// The form that is shown; nullptr after it was closed.
  [[nodiscard]] Formular* Form() const { return Modell; }
  /// Gives the focus to the control that has it in the form.
  void FokusZeigen();

  std::function<void()> BeiGeschlossen;

 protected:
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

 private:
  void Aufbauen();
  QGridLayout* Rahmenplatz(const std::string& Titel);
  QWidget* Erzeugen(Steuerelement& S);
  QWidget* FeldErzeugen(Steuerelement& S);
  QWidget* GitterErzeugen(Gitter& G);
  QWidget* AuswahlErzeugen(Steuerelement& S);
  void FeldAnschließen(Eingabefeld& Feld, Steuerelement& S);
  void Zeigen(Steuerelement& S, QWidget& W);
  void FeldZeigen(const Steuerelement& S, Eingabefeld& Feld);
  bool TasteGeben(Steuerelement& S, const QKeyEvent& Ereignis);
  bool TabWeiter(const Steuerelement& S, bool Vor);
  void FokusMelden(Steuerelement& S);
  [[nodiscard]] QWidget* FokusWidget(const Steuerelement& S) const;

  Formular* Modell;
  std::unordered_map<const Steuerelement*, QWidget*> Widgets;
  std::unordered_map<std::string, QGridLayout*> Rahmen;
  QVBoxLayout* Kästen;
  QGridLayout* Knopfleiste = nullptr;
  bool Auffrischend = false;
};

}  // namespace tavorena
