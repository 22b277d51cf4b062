#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {
namespace {

// A line per block, written when the next one begins.
class Blockzeilen {
 public:
  explicit Blockzeilen(std::ostream& Ausgabe) : Ziel(Ausgabe) {
    StapelHaken.Schritt = [this](const std::string& Nächster) { Schritt(Nächster); };
  }
  ~Blockzeilen() { StapelHaken.Schritt = {}; }
  Blockzeilen(const Blockzeilen&) = delete;
  Blockzeilen& operator=(const Blockzeilen&) = delete;

 private:
  void Schritt(const std::string& Nächster) {
    if (!Titel.empty()) {
      Ziel << Sichtbar(Titel) << ": " << Stapel.Bilanz.Zeilen - Zeilen << " Zeilen, "
           << Stapel.Bilanz.Marken - Marken << " Marken\n";
    }
    Titel = Nächster;
    Zeilen = Stapel.Bilanz.Zeilen;
    Marken = Stapel.Bilanz.Marken;
  }

  std::ostream& Ziel;
  std::string Titel;
  int Zeilen = 0, Marken = 0;
};

bool Abspielen(const Aufruf& A, const Umfeld& U) {
  const Blockzeilen Zeilen(U.Ausgabe);
  StapelStarten(A.Datei);
  const StapelBilanz& B = Stapel.Bilanz;
  if (!B.Fehler && B.Blöcke == 0 && B.Übergangen.empty()) {
    Hinweis("In der Stapeldatei steht kein Block:\n" + A.Datei);
    return false;
  }
  for (const std::string& Zeile : StapelBericht()) U.Ausgabe << Sichtbar(Zeile) << '\n';
  U.Ausgabe << "Punkte: " << KorAnzahl << "  Zeilen: " << B.Zeilen << "  Marken: " << B.Marken << '\n';
  return !B.Fehler;
}

}  // namespace

Konsolenbefehl Stapelbefehl() {
  return {
      "",   "",       "Spielt eine Stapeldatei (*.sta) auf einer Koordinatendatei ab.", "Stapeldatei (*.sta)",
      true, Abspielen};
}

}  // namespace tavorena
