#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/records/Seiten.h>
#include <tavorena/shell/Befehle.h>

namespace tavorena {
namespace {

bool SeitenNehmen(const Aufruf& A, Druckseiten& Seiten) {
  if (!A.Datei.empty()) return DruckdateiLesen(A.Datei, Seiten) == 0;
  if (KorAnzahl == 0) {
    Hinweis(A.Koordinaten + "\n" + NichtVorhanden);
    return false;
  }
  Seiten = SeitenTeilen(Koordinatenseiten(Optionen.OptNachkommastellen));
  return true;
}

bool AlsPdf(const Aufruf& A, const Umfeld& U) {
  Druckseiten Seiten;
  const std::string Name = A.Datei.empty() ? A.Koordinaten : A.Datei,
                    Titel = Name.substr(DateinameZerlegen(Name).Ordner.size());
  if (!SeitenNehmen(A, Seiten) || DruckwerkPort().Drucken(Seiten, Titel, A.Ziel) < 0) return false;
  U.Ausgabe << "Seiten: " << Seiten.Seiten.size() << '\n';
  return true;
}

}  // namespace

Konsolenbefehl PdfBefehl() {
  Konsolenbefehl B = {
      "pdf",       "Drucken", "macht aus einem Text oder, mit --koordinaten, aus der Punktliste ein PDF",
      "Textdatei", false,     AlsPdf};
  B.OderKoordinaten = true;
  B.Ziel = "PDF-Datei";
  return B;
}

}  // namespace tavorena
