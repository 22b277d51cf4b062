#include <algorithm>
#include <initializer_list>
#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Text.h>
#include <tavorena/shell/Handbuchseiten.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

constexpr std::string_view OhneDatei = "keine Koordinatendatei offen";

const TVKernMDIForm& Kern() { return TVKernMDIForm::Fenster(); }

void Zeile(std::ostream& Ziel, std::initializer_list<std::string_view> Teile) {
  const char* Trenner = "";
  for (const std::string_view Teil : Teile) {
    Ziel << Trenner << Sichtbar(Teil);
    Trenner = "\t";
  }
  Ziel << '\n';
}

bool Zeigen(const Umfeld& U) {
  for (const Menüeintrag& E : Menübaum()) {
    const std::string Titel = Kern().Titel(E);
    const bool Strich = *E.Titel == '\0';
    const std::string_view Grund = Strich ? "" : Kern().Grund(E);
    const char* Zustand = !Kern().Sichtbar(E) ? "verborgen"
                          : Strich            ? "Strich"
                          : Grund.empty()     ? "frei"
                                              : "gesperrt";
    Zeile(U.Ausgabe, {E.Name, Titel, E.Eltern, Zustand, Grund});
  }
  for (const Werkzeug& W : Symbolleiste()) {
    const std::string_view Grund = Kern().Grund(W);
    Zeile(U.Ausgabe, {W.Name, W.Hinweis, "Symbolleiste", Grund.empty() ? "frei" : "gesperrt", Grund});
  }
  return true;
}

// A caption without its letter, as Markdown.
std::string Beschriftung(const Menüeintrag& E) {
  std::string Text;
  for (const char c : std::string_view(E.Titel)) {
    if (c == '*') Text += '\\';
    if (c != '&') Text += c;
  }
  return Text;
}

// "Importieren: Format GeoMap": an entry below the menu of its page.
std::string Weg(const Menüeintrag& E) {
  const Menüeintrag* Eltern = MenüFinden(E.Eltern);
  return Eltern != nullptr && *Eltern->Eltern != '\0' ? Weg(*Eltern) + ": " + Beschriftung(E)
                                                      : Beschriftung(E);
}

bool Unter(const Menüeintrag& E, const Menüeintrag& Menü) {
  const Menüeintrag* Eltern = MenüFinden(E.Eltern);
  return Eltern != nullptr && (Eltern == &Menü || Unter(*Eltern, Menü));
}

bool IstMenü(const Menüeintrag& E) {
  return std::any_of(Menübaum().begin(), Menübaum().end(),
                     [&](const Menüeintrag& U) { return std::string_view(U.Eltern) == E.Name; });
}

// An entry of the tree alone, and those of files that this user may have.
bool NieZuSehen(const Menüeintrag& E) {
  return E.Verborgen != nullptr || std::string_view(E.Name).starts_with("MenüDateiHist(");
}

// The page of the handbook that tells of all entries. It is the same whatever is open.
bool SeiteZeigen(const Umfeld& U) {
  U.Ausgabe
      << "# Was wohin gehört: alle Menüpunkte\n\n"
         "Wann ein Menüpunkt zu haben ist, und welche Seite von ihm handelt (F1 über dem Menüpunkt öffnet "
         "sie).\nEin gesperrter sagt in der Statuszeile, warum.\n";
  for (const Menüeintrag& Menü : Menübaum()) {
    if (*Menü.Eltern != '\0' || Menü.Verborgen != nullptr) continue;
    U.Ausgabe << "\n## " << Beschriftung(Menü) << "\n\n| Menüpunkt | zu haben | Seite |\n|---|---|---|\n";
    for (const Menüeintrag& E : Menübaum()) {
      const std::string_view Grund = Kern().Grund(E);
      if (!Unter(E, Menü) || *E.Titel == '\0' || IstMenü(E) || NieZuSehen(E)) continue;
      U.Ausgabe << "| " << Weg(E) << " | "
                << (Grund.empty()        ? "immer"
                    : Grund == OhneDatei ? "mit offener Koordinatendatei"
                                         : Grund)
                << " | [F1](" << Handbuchseite(Kern().Hilfe(E)) << ") |\n";
    }
  }
  return true;
}

}  // namespace

Konsolenbefehl Menübefehl() {
  return {
      "menue",
      "Auskunft",
      "Menü und Symbolleiste, wie das Fenster sie zeigt",
      nullptr,
      false,
      [](const Aufruf& A, const Umfeld& U) { return A.Wert("--seite").empty() ? Zeigen(U) : SeiteZeigen(U); },
      {{"--seite", nullptr, "statt dessen die Seite des Handbuchs von allen Menüpunkten", false,
        Dateirolle::Keine, "--koordinaten"}}};
}

}  // namespace tavorena
