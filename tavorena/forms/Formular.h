#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/forms/Steuerelement.h>

namespace tavorena {

/// The keys a form looks at; all others belong to the text of the field.
enum class Taste { Return, Escape, Plus, Minus, Auf, Ab };

/// Whoever shows a form. Called after each event, when the controls have their new state.
class FormularBeobachter {
 public:
  virtual ~FormularBeobachter() = default;
  virtual void FormularGeändert() = 0;
  virtual void FormularGeschlossen() = 0;
};

/// A form as a model: named controls, one of them with the focus, and the events of the user. The window,
/// a test and a replay enter through the same functions; none of them needs a screen.
class Formular {
 public:
  explicit Formular(std::string Objekt) : FormName(std::move(Objekt)) {}
  virtual ~Formular() = default;
  Formular(const Formular&) = delete;
  Formular& operator=(const Formular&) = delete;

  const std::string FormName;  ///< name of the class, and of the one running window
  std::string Titel;
  int Hilfenummer = 0;  ///< page of the handbook

  [[nodiscard]] const std::vector<std::unique_ptr<Steuerelement>>& Steuerelemente() const { return Liste; }
  /// The control of that name, nullptr if there is none.
  [[nodiscard]] Steuerelement* Finde(std::string_view Gesucht) const;
  /// The control with the focus, nullptr before the form was opened.
  [[nodiscard]] Steuerelement* Fokus() const { return Aktuell; }
  [[nodiscard]] bool Offen() const { return IstOffen; }

  FormularBeobachter* Beobachter = nullptr;
  std::function<void()> NachSchließen;  ///< for whoever opened the form

  /// An event of the form is still running: it must not be destroyed.
  [[nodiscard]] bool InArbeit() const { return Tiefe > 0; }

  // ---- what the user does ---------------------------------------------------------------------------

  /// The form appears: its activation runs and the first control takes the focus.
  void Öffnen();
  /// The user moved to another control. The one before is read first; if its value fails, the focus
  /// stays there.
  void FokusWechseln(Steuerelement& Neu);
  /// The text of a field or of the current cell of a grid as it now stands.
  void Tippen(Steuerelement& S, const std::string& Text);
  /// A key in the control with the focus. @return false: the key belongs to the text
  bool TasteDrücken(Taste T);
  void Klicken(Steuerelement& S);
  /// The user chose an entry of a list, a check box or an option.
  void Wählen(Steuerelement& S, const std::string& Eintrag, bool An);
  /// The user moved to another cell of a grid.
  void ZelleWechseln(Gitter& G, int Zeile, int Spalte);
  /// The user closes the window.
  void SchließenVerlangen();

  /// Closes the form without a question.
  void Schließen();

  /// An event that came in from outside, such as a replay: runs Tun, shows what it changed.
  template <typename Arbeit>
  void Ereignis(Arbeit Tun) {
    Ausführen(Tun);
  }

 protected:
  Steuerelement& Beschriftung(std::string Text, Platz Ort, std::string Rahmen = "");
  Steuerelement& Feld(std::string FeldName, Platz Ort, std::string Rahmen = "", int Zeichen = 12);
  Steuerelement& Zahlenfeld(std::string FeldName, Platz Ort, std::string Rahmen = "", int Zeichen = 12);
  Steuerelement& Ergebnisfeld(std::string FeldName, Platz Ort, std::string Rahmen = "", int Zeichen = 12);
  Steuerelement& Knopf(std::string KnopfName, std::string Text, Platz Ort = {}, std::string Rahmen = "#");
  Steuerelement& Steuer(Steuerart Art, std::string SteuerName, std::string Text, Platz Ort,
                        std::string Rahmen);
  Gitter& NeuesGitter(std::string GitterName, std::vector<Gitterspalte> Spalten, Platz Ort,
                      std::string Rahmen = "");

  /// Moves the focus; inactive and hidden controls never get it.
  void FokusSetzen(Steuerelement& S);
  /// Moves the focus to the next control that the user can type into or press.
  void FokusWeiter();

  virtual void BeiÖffnen() {}
  virtual void FokusErhalten(Steuerelement& /*S*/) {}
  /// Reads a field that is left. @return false: its value failed, the focus stays
  virtual bool FokusVerloren(Steuerelement& /*S*/) { return true; }
  virtual void TextGeändert(Steuerelement& /*S*/) {}
  /// Return moves on by itself unless this takes the key.
  virtual bool TasteUnten(Steuerelement& /*S*/, Taste /*T*/) { return false; }
  virtual void Geklickt(Steuerelement& /*S*/) {}
  virtual void Gewählt(Steuerelement& /*S*/) {}
  /// Reads the current cell before another one is taken. @return false: the cell stays
  virtual bool ZelleVerlassen(Gitter& /*G*/) { return true; }
  /// @return false: the form stays open
  virtual bool DarfSchließen() { return true; }
  virtual void BeiSchließen() {}

 private:
  template <typename Arbeit>
  void Ausführen(Arbeit Tun);
  void FehlerZeigen(const char* Was);
  void Melden();
  void ReturnDrücken(Steuerelement& S);
  [[nodiscard]] static bool NimmtFokus(const Steuerelement& S);

  std::vector<std::unique_ptr<Steuerelement>> Liste;
  Steuerelement* Aktuell = nullptr;
  bool IstOffen = false;
  int Tiefe = 0;  // events running inside each other
};

template <typename Arbeit>
void Formular::Ausführen(Arbeit Tun) {
  ++Tiefe;
  try {
    Tun();
  } catch (const std::exception& Fehler) {
    FehlerZeigen(Fehler.what());
  }
  Melden();
  --Tiefe;
}

}  // namespace tavorena
