#pragma once

#include <array>
#include <string>
#include <string_view>

#include <tavorena/shell/Menuebaum.h>

namespace tavorena {

/// The main window as a model: which entries of the menu and images of the tool bar are there, can be
/// used, and what they do. The window only shows it.
class TVKernMDIForm {
 public:
  /// The one main window.
  static TVKernMDIForm& Fenster();

  // ---- states
  /// No coordinates: after the start and when the file was closed. The recent files and the start page are
  /// offered.
  void OhneKoordinaten();
  /// The recent files changed.
  void HistorieZeigen();
  /// A file is open; changing files goes through closing first.
  void DateiOffen();
  /// A long read or loop runs: only the stop button works.
  void Beschäftigt(bool An) { Lang = An; }
  [[nodiscard]] bool IstBeschäftigt() const { return Lang; }

  // ---- what the window shows
  /// Why an entry is not shown; "" if it is, or stands in a menu that comes with an open file.
  [[nodiscard]] std::string_view VerborgenWeil(const Menüeintrag& E) const;
  [[nodiscard]] bool Sichtbar(const Menüeintrag& E) const { return VerborgenWeil(E).empty(); }
  /// @{
  /// Why an entry or an image can not be used, in words for the user; "" if it can. Menus, tool tips, the
  /// help text of the status bar and the console all tell this one. A hidden entry can not be used.
  [[nodiscard]] std::string_view Grund(const Menüeintrag& E) const;
  [[nodiscard]] std::string_view Grund(const Werkzeug& W) const;
  /// @}
  [[nodiscard]] bool Aktiv(const Menüeintrag& E) const { return Grund(E).empty(); }
  [[nodiscard]] std::string Titel(const Menüeintrag& E) const;
  [[nodiscard]] bool WerkzeugAktiv(const Werkzeug& W) const { return Grund(W).empty(); }
  /// Tool tip and help text of an image, with the reason why it can not be used.
  [[nodiscard]] std::string Hinweis(const Werkzeug& W) const;
  /// Help number of an entry: its own, that of its worksheet, else that of its menu.
  [[nodiscard]] int Hilfe(const Menüeintrag& E) const;
  /// Help number of the command that runs, such as one that asks something; 0: none runs.
  [[nodiscard]] int LaufendeHilfe() const { return Laufend; }

  // ---- what the user does
  /// Runs the command of an entry. Errors end in the run-time message.
  void Ausführen(std::string_view Name);
  void WerkzeugAusführen(const Werkzeug& W);

  /// Index into the history of a recent-file entry 1 to 10; -1 if it is hidden.
  [[nodiscard]] int HistIndex(int Eintrag) const { return Hist[static_cast<std::size_t>(Eintrag)]; }

 private:
  TVKernMDIForm() { Hist.fill(-1); }

  bool Offen = false;  // a file is open
  bool Lang = false;
  int Laufend = 0;
  std::array<int, 11> Hist{};
};

/// The entry of that name, nullptr if there is none.
const Menüeintrag* MenüFinden(std::string_view Name);

}  // namespace tavorena
