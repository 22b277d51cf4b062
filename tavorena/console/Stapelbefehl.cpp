#include <algorithm>
#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Seiten.h>
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

// What stands in a protocol behind its first bytes, as pages.
bool AlsPdf(const std::string& Protokoll, std::size_t Ab, const std::string& Pdf) {
  std::string Bytes, Grund;
  if (DateiLesen(Protokoll, Bytes, &Grund) < 0) {
    Hinweis(Protokoll + "\nDas Protokoll läßt sich nicht wieder lesen" + InKlammern(Grund));
    return false;
  }
  const std::string_view Neues = std::string_view(Bytes).substr(std::min(Ab, Bytes.size()));
  // The coding is that of the whole file.
  const Druckseiten Seiten = SeitenTeilen(IstUtf8(Bytes) ? std::string(Neues) : AusWindows1252(Neues));
  if (Seiten.Seiten.empty()) {
    Hinweis(Protokoll + "\nDieser Lauf schrieb nichts ins Protokoll: kein PDF");
    return false;
  }
  const std::string Titel = Protokoll.substr(DateinameZerlegen(Protokoll).Ordner.size());
  return DruckwerkPort().Drucken(Seiten, Titel, Pdf) == 0;
}

bool Abspielen(const Aufruf& A, const Umfeld& U) {
  const Blockzeilen Zeilen(U.Ausgabe);
  const std::size_t Vorher = DateistandVon(A.Protokoll).Länge;
  StapelStarten(A.Datei);
  const StapelBilanz& B = Stapel.Bilanz;
  if (!B.Fehler && B.Blöcke == 0 && B.Übergangen.empty()) {
    Hinweis("In der Stapeldatei steht kein Block:\n" + A.Datei);
    return false;
  }
  for (const std::string& Zeile : StapelBericht()) U.Ausgabe << Sichtbar(Zeile) << '\n';
  U.Ausgabe << "Punkte: " << KorAnzahl << "  Zeilen: " << B.Zeilen << "  Marken: " << B.Marken << '\n';
  if (B.Fehler || U.Beendet()) return false;
  const std::string Pdf = A.Wert("--pdf");
  return Pdf.empty() || AlsPdf(A.Protokoll, Vorher, Pdf);
}

}  // namespace

Konsolenbefehl Stapelbefehl() {
  return {"",
          "",
          "Spielt eine Stapeldatei (*.sta) auf einer Koordinatendatei ab.",
          "Stapeldatei (*.sta)",
          true,
          Abspielen,
          {{"--pdf", "DATEI", "was dieser Lauf ins Protokoll schreibt, auch als PDF (*.pdf)", false,
            Dateirolle::Ausgabe}}};
}

}  // namespace tavorena
