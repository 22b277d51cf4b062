#pragma once

#include <map>
#include <unordered_map>

#include <QTimer>
#include <QWidget>

#include <tavorena/forms/Formular.h>

class QButtonGroup;
class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QVBoxLayout;

namespace tavorena {

class Eingabefeld;
class Gitteransicht;

/// Shows any form, once for all worksheets, dialogs and editors. It knows the form's model only: what the
/// user does goes to the form as an event, and after each event what it changed is taken over.
class FormularAnsicht final : public QWidget, public FormularBeobachter {
 public:
  explicit FormularAnsicht(Formular& Gezeigt, QWidget* Eltern = nullptr);
  ~FormularAnsicht() override;

  void SteuerelementGeändert(Steuerelement& S) override;
  void GitterGeändert(Gitter& G, const Gitteränderung& Was) override;
  void TitelGeändert() override;
  void FokusGeändert() override;
  void FormularGeschlossen() override;

  /// The form that is shown; nullptr after it was closed.
  [[nodiscard]] Formular* Form() const { return Modell; }
  /// Gives the focus to the control that has it in the form. A form beside the worksheets only moves the
  /// focus that it has.
  void FokusZeigen();
  /// The same, wherever the focus is.
  void FokusHolen();
  /// Selects the text in the control with the focus: what is typed next replaces it.
  void FokusMarkieren();

  /// A point was clicked in the graphics view: the control with the focus takes it, if it takes points.
  void PunktNehmen(const std::string& Pnr);

  /// A field or a row of any form is being read: nobody asked for a question that comes now.
  [[nodiscard]] static bool LiestEingabe() { return Lesetiefe > 0; }

  std::function<void()> BeiGeschlossen;

 protected:
  bool event(QEvent* Ereignis) override;
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

 private:
  /// What shows a control.
  struct Bild {
    QWidget* Widget;
    std::function<void()> Zeigen;  ///< takes the state of the control over
  };

  void Aufbauen();
  void ListenNennen();
  void NamenSetzen();
  void Einsetzen(const Steuerelement& S, QWidget* W);
  QGridLayout* Rahmenplatz(const std::string& Titel);
  Bild Erzeugen(Steuerelement& S);
  Bild BeschriftungErzeugen(Beschriftung& B);
  Bild FeldErzeugen(Feld& F);
  Bild GitterErzeugen(Gitter& G);
  Bild KnopfErzeugen(Knopf& K);
  Bild AuswahlErzeugen(Auswahl& A);
  Bild ListeErzeugen(Auswahl& A);
  void FeldAnschließen(Eingabefeld& Zeile, Eingabeelement& E);
  void RahmenZeigen(const std::string& Titel);
  [[nodiscard]] bool TasteGeben(Steuerelement& S, const QKeyEvent& Ereignis);
  [[nodiscard]] bool MarkenZiehen(Gitter& G, const QKeyEvent& Ereignis);
  [[nodiscard]] bool Zurücknehmen(const QLineEdit* Zeile);
  [[nodiscard]] bool Kopieren(const Steuerelement& S, const QKeyEvent& Ereignis);
  [[nodiscard]] bool Einfügen(Gitter& G, const QString& Text);
  [[nodiscard]] bool ZeileTippen(Gitter& G, const QStringList& Worte);
  [[nodiscard]] Gitteransicht& Tabelle(const Gitter& G) const;
  [[nodiscard]] bool ZeileWechseln(Steuerelement& S, const QKeyEvent& Ereignis);
  [[nodiscard]] bool TabWeiter(Steuerelement& S, bool Vor);
  void FokusMelden(Steuerelement& S);
  [[nodiscard]] QWidget* FokusWidget(const Steuerelement& S) const;
  void KlickOhneFokus(QWidget& W) const;

  inline static int Lesetiefe = 0;  // readings that run inside each other
  Formular* Modell;
  std::unordered_map<const Steuerelement*, Bild> Bilder;
  std::unordered_map<const QObject*, Steuerelement*> Elemente;
  std::unordered_map<std::string, QGridLayout*> Rahmen;
  std::map<std::pair<std::string, int>, QButtonGroup*> Gruppen;  // options by frame and group
  QVBoxLayout* Kästen;
  QGridLayout* Knöpfe = nullptr;
  QTimer Benennung;  // a caption changed, the names follow when the event is done
  bool Auffrischend = false;
};

}  // namespace tavorena
