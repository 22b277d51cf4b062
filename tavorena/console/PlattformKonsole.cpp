#include <ostream>

#include <tavorena/console/PlattformKonsole.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {

int PlattformKonsole::Meldung(const std::string& Text, Knöpfe Art, const std::string& /*Titel*/,
                              int /*Vorgabe*/) {
  if (Art != Knöpfe::OK) Ohne(Text);
  if (Art == Knöpfe::OK) Ziel << Text << '\n';
  return Art == Knöpfe::OK ? 1 : KnopfAbbruch;
}

void PlattformKonsole::FormularZeigen(Formular& Form, bool Modal) {
  if (Modal) return Ohne(Form.Titel);
  Form.Öffnen();
}

void PlattformKonsole::Ohne(const std::string& Frage) {
  if (!FrageOffen) {
    Ziel << "Frage ohne Antwort";
    if (Stapel.Aktiv) Ziel << " (" << Stapel.Bilanz.Datei << ", Zeile " << Stapel.Zeilennummer << ")";
    Ziel << ": " << Frage << '\n';
  }
  FrageOffen = true;
  StapelAnhalten();
}

}  // namespace tavorena
