#include <initializer_list>
#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Text.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

const TVKernMDIForm& Kern() { return TVKernMDIForm::Fenster(); }

// An entry of a hidden menu is not to be seen either.
bool Gezeigt(const Menüeintrag& E) {
  const Menüeintrag* Eltern = MenüFinden(E.Eltern);
  return Kern().Sichtbar(E) && (Eltern == nullptr || Gezeigt(*Eltern));
}

void Zeile(std::ostream& Ziel, std::initializer_list<std::string_view> Teile) {
  const char* Trenner = "";
  for (const std::string_view Teil : Teile) {
    Ziel << Trenner << Sichtbar(Teil);
    Trenner = "\t";
  }
  Ziel << '\n';
}

bool Zeigen(const Aufruf& /*A*/, const Umfeld& U) {
  for (const Menüeintrag& E : Menübaum()) {
    const std::string Titel = Kern().Titel(E);
    const bool Strich = *E.Titel == '\0';
    const std::string_view Grund = Strich ? "" : Kern().Grund(E);
    const char* Zustand = !Gezeigt(E) ? "verborgen" : Strich ? "Strich" : Grund.empty() ? "frei" : "gesperrt";
    Zeile(U.Ausgabe, {E.Name, Titel, E.Eltern, Zustand, Grund});
  }
  for (const Werkzeug& W : Symbolleiste()) {
    const std::string_view Grund = Kern().Grund(W);
    Zeile(U.Ausgabe, {W.Name, W.Hinweis, "Symbolleiste", Grund.empty() ? "frei" : "gesperrt", Grund});
  }
  return true;
}

}  // namespace

Konsolenbefehl Menübefehl() {
  return {"menue", "Auskunft", "Menü und Symbolleiste, wie das Fenster sie zeigt", nullptr, false, Zeigen};
}

}  // namespace tavorena
