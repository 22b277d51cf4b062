#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/forms/Steuerelement.h>

namespace tavorena {

/// Whoever shows a form. It is told after each event, when all controls have their new state, and only of
/// what the event changed.
class FormularBeobachter {
 public:
  virtual ~FormularBeobachter() = default;
  /// Text or state of a control, also of a grid as a whole.
  virtual void SteuerelementGeändert(Steuerelement& S) = 0;
  /// Cells, rows or columns of a grid.
  virtual void GitterGeändert(Gitter& G, const Gitteränderung& Was) = 0;
  virtual void TitelGeändert() = 0;
  /// A key that the program sent moved the focus, or what stands in the control with the focus.
  virtual void FokusGeändert() {}
  virtual void FormularGeschlossen() = 0;
};

/// Where a dialog stands, in twips from the upper left of the main window.
struct Dialogplatz {
  double Links = 0, Oben = 0, Breite = 0;
};

/// A form as a model: named controls, one of them with the focus, and the events of the user. The window,
/// a test and a replay enter through the same functions; none of them needs a screen. What a control does
/// stands in the control itself.
class Formular {
 public:
  explicit Formular(std::string Objekt) : FormName(std::move(Objekt)), Platzname(FormName) {}
  virtual ~Formular() = default;
  Formular(const Formular&) = delete;
  Formular& operator=(const Formular&) = delete;

  const std::string FormName;  ///< name of the class, and of the one running window
  std::string Platzname;       ///< under which size and widths of its window are kept
  Gezeigt<std::string> Titel;
  int Hilfenummer = 0;              ///< page of the handbook
  std::optional<Dialogplatz> Fest;  ///< a dialog of its own place, while which the tool bar is hidden
  bool Nebenher = false;   ///< stands beside the worksheets and leaves them the focus: a click on a button, a
                           ///< list or a choice never takes it
  bool Ungefragt = false;  ///< a row or a file opens it by itself: keys that were typed ahead are not meant
                           ///< for it

  [[nodiscard]] const std::vector<std::unique_ptr<Steuerelement>>& Steuerelemente() const { return Liste; }
  /// The control of that name, nullptr if there is none.
  [[nodiscard]] Steuerelement* Finde(std::string_view Gesucht) const;
  /// The control with the focus, nullptr before the form was opened.
  [[nodiscard]] Steuerelement* Fokus() const { return Aktuell; }
  [[nodiscard]] bool Offen() const { return IstOffen; }

  /// From now on Neuer is told what changes; nullptr: nobody.
  void Beobachten(FormularBeobachter* Neuer);
  std::function<void()> NachSchließen;  ///< for whoever opened the form

  /// An event of the form is still running: it must not be destroyed.
  [[nodiscard]] bool InArbeit() const { return Tiefe > 0; }

  // ---- the controls, in the order of the keyboard ----------------------------------------------------

  Beschriftung& BeschriftungAnlegen(std::string Text, Platz Ort, std::string Rahmen = "");
  Feld& FeldAnlegen(std::string Name, Platz Ort, std::string Rahmen = "", int Zeichen = 12);
  Feld& ZahlenfeldAnlegen(std::string Name, Platz Ort, std::string Rahmen = "", int Zeichen = 12);
  Feld& ErgebnisfeldAnlegen(std::string Name, Platz Ort, std::string Rahmen = "", int Zeichen = 12);
  Knopf& KnopfAnlegen(std::string Name, std::string Text, std::function<void()> Aktion, Platz Ort = {},
                      std::string Rahmen = Knopfleiste);
  /// The button that Escape presses, whatever stands in the fields; it closes the form.
  Knopf& AbbruchAnlegen(std::string Name, std::string Text, Platz Ort);
  /// The two buttons of a dialog. Return in its last field presses OK.
  void OkUndAbbruch(std::function<void()> BeiOk, std::string OkName = "OK",
                    std::string AbbruchName = "Abbrechen");
  Auswahl& KästchenAnlegen(std::string Name, std::string Text, Platz Ort, std::string Rahmen = "");
  /// Of the options in a frame one is chosen.
  Auswahl& OptionAnlegen(std::string Name, std::string Text, Platz Ort, std::string Rahmen = "");
  Auswahl& ListeAnlegen(std::string Name, std::vector<std::string> Einträge, std::string Gewählter, Platz Ort,
                        std::string Rahmen = "");
  Gitter& GitterAnlegen(std::string Name, std::vector<Gitterspalte> Spalten, Platz Ort,
                        std::string Rahmen = "");

  // ---- the focus -------------------------------------------------------------------------------------

  /// The user can type into it or press it: only such a control takes the focus, text or a click.
  [[nodiscard]] static bool NimmtFokus(const Steuerelement& S);
  /// Moves the focus, without reading the control that had it; one that can not take it never gets it.
  void FokusSetzen(Steuerelement& S);
  /// Moves the focus to the next control that takes it; behind the last one it stays.
  void FokusWeiter();
  /// The control that Tab leads to, backwards with Vor false; behind the last one comes the first.
  /// @return nullptr if none takes the focus
  [[nodiscard]] Steuerelement* Nachbar(const Steuerelement& S, bool Vor) const;
  /// Reads a control as if it were left, and marks it if its value fails. One that is closed holds nothing to
  /// read. @return false: the value failed
  [[nodiscard]] static bool Lesen(Eingabeelement& E);

  // ---- what the user does ----------------------------------------------------------------------------

  /// The form appears: its activation runs and the first control takes the focus.
  void Öffnen();
  /// The user is in this form: one of its controls has the focus.
  virtual void BeiFokus() {}
  /// The user moved to another control. The one before is read first; if its value fails, the focus
  /// stays there.
  void FokusWechseln(Steuerelement& Neu);
  /// The text of a field or of the current cell of a grid as it now stands.
  void Tippen(Eingabeelement& E, const std::string& Text);
  /// A key in the control with the focus. @return false: the key belongs to the text
  bool TasteDrücken(Taste T);
  /// A key that the program sends, such as Return behind a measurement: the view follows it.
  void TasteSenden(Taste T);
  void Klicken(Knopf& K);
  /// The user chose an entry of a list (Eintrag), a check box or an option (An).
  void Wählen(Auswahl& A, const std::string& Eintrag, bool An);
  /// The user moved to another cell of a grid.
  void ZelleWechseln(Gitter& G, int Zeile, int Spalte);
  /// The user clicked the mark of a row, or with Bereich drew the choice up to it.
  void Markieren(Gitter& G, int Zeile, bool Bereich);
  /// The user clicked a row twice.
  void Doppelklicken(Gitter& G, int Zeile);
  /// The user clicked the heading of a column.
  void TitelKlicken(Gitter& G, int Spalte);
  /// The user takes the last thing back that the form did. @return false: there is none
  bool RücknahmeVerlangen();
  /// The user closes the window.
  void SchließenVerlangen();

  /// Asks what is to become of something that is typed and not yet written; called within an event.
  /// @return false: the form stays as it is
  [[nodiscard]] virtual bool OffenesKlären() { return true; }
  /// Closes the form without a question.
  void Schließen();
  /// Between two events: lets the form follow what became of the point table.
  void Nachsehen();

  /// An event that came in from outside, such as a replay: runs Tun, shows what it changed.
  template <typename Arbeit>
  void Ereignis(Arbeit Tun) {
    Ausführen(Tun);
  }

 protected:
  virtual void BeiÖffnen() {}
  /// Keys that hold in all controls of the form. @return true: the key is done with
  virtual bool TasteUnten(Steuerelement& /*S*/, Taste /*T*/) { return false; }
  /// @return false: the form stays open
  virtual bool DarfSchließen() { return true; }
  virtual void BeiSchließen() {}
  /// The point table changed, by this form or another one.
  virtual void BeiTabelle() {}
  /// Tells what an event threw, while it is being handled.
  virtual void GeworfenesZeigen() { GeworfenesMelden(FormName, ""); }
  /// Takes the last thing back. @return false: there is none
  virtual bool Zurücknehmen() { return false; }
  /// Shows what a long event has done so far.
  void Zwischenstand();

 private:
  template <typename Arbeit>
  void Ausführen(Arbeit Tun);
  template <typename Art>
  Art& Anlegen(std::string Name, std::string Text, Platz Ort, std::string Rahmen);
  void Melden();
  [[nodiscard]] bool Verlassen();
  [[nodiscard]] bool NummerZählen(Taste T);
  bool GitterTaste(Gitter& G, Taste T);
  void ReturnDrücken();
  bool EscapeDrücken();
  static void Drücken(Knopf& K);

  std::vector<std::unique_ptr<Steuerelement>> Liste;
  Steuerelement* Aktuell = nullptr;
  const Eingabeelement* Nummernfeld = nullptr;  // a number was typed into it that is not read yet
  std::string NummerVorher;                     // what stood there
  FormularBeobachter* Beobachter = nullptr;
  bool IstOffen = false;
  int Tiefe = 0;            // events running inside each other
  std::uint64_t Stand = 0;  // of the point table that BeiTabelle knows
};

template <typename Arbeit>
void Formular::Ausführen(Arbeit Tun) {
  ++Tiefe;
  // After its message the form goes on as it stands.
  static_cast<void>(GeschütztMit(Tun, [this] { GeworfenesZeigen(); }));
  if (Tiefe == 1 && IstOffen) Melden();
  --Tiefe;
}

}  // namespace tavorena
