#include <ostream>

#include <tavorena/console/PlattformKonsole.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {

int PlattformKonsole::Meldung(const std::string& Text, Knoepfe Art, const std::string& /*Titel*/) {
  if (Art != Knoepfe::OK) Ohne(Text);
  if (Art == Knoepfe::OK) Ziel << Text << '\n';
  return Art == Knoepfe::OK ? 1 : KnopfAbbruch;
}

void PlattformKonsole::FormularZeigen(Formular& Form, bool Modal) {
  if (Modal) return Ohne(Form.Titel);
  Form.Oeffnen();
}

void PlattformKonsole::Ohne(const std::string& Frage) {
  if (!FrageOffen) {
    Ziel << "Frage ohne Antwort";
    if (StapelAktiv) Ziel << " (" << Stapellauf.Datei << ", Zeile " << StapelZeilennummer << ")";
    Ziel << ": " << Frage << '\n';
  }
  FrageOffen = true;
  StapelAnhalten();
}

}  // namespace tavorena
