#include <string>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/exchange/TVFreiForm.h>
#include <tavorena/shell/Austausch.h>
#include <tavorena/shell/Austauschbefehle.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {
namespace {

/// A format in the menu.
struct Austauschart {
  const char* Eintrag;
  Punktformat Format;
  const char *Filter, *Vorgabe;
};

constexpr const char *FilterLfs = "Katasteramt (*.lfs)|*.lfs|Alle Dateien |*.*",
                     *FilterAsc = "Katasteramt (*.asc)|*.asc|Alle Dateien |*.*",
                     *FilterCsv = "CSV mit Kopfzeile (*.csv)|*.csv|Alle Dateien |*.*",
                     *FilterIn = "GEOGRAF (*.in)|*.in|Alle Dateien |*.*", *FilterAlle = "Alle Dateien |*.*";

constexpr Austauschart Importe[] = {
    {"MenüDateiImportieren(0)", Punktformat::Lfs, FilterLfs, "*.lfs"},
    {"MenüDateiImportieren(1)", Punktformat::Lfs, FilterAsc, "*.asc"},
    {"MenüDateiImportieren(2)", Punktformat::Coo, "Elcovision (*.coo)|*.coo|Alle Dateien |*.*", "*.coo"},
    {"MenüDateiImportieren(3)", Punktformat::GeoMap, FilterAlle, "*.*"},
    {"MenüDateiImportieren(5)", Punktformat::Frei, FilterAlle, "*.*"},
    {"MenüDateiImportieren(6)", Punktformat::Geograf, FilterIn, "*.in"},
    {"MenüDateiImportieren(30)", Punktformat::Csv, FilterCsv, "*.csv"},
    {"MenüDateiImportieren(31)", Punktformat::Nas, "ALKIS / NAS- Datei (*.xml)|*.xml|Alle Dateien |*.*",
     "*.xml"},
};

constexpr Austauschart Exporte[] = {
    {"MenüDateiExportieren(0)", Punktformat::Lfs, FilterLfs, "*.lfs"},
    {"MenüDateiExportieren(1)", Punktformat::Lfs, FilterAsc, "*.asc"},
    {"MenüDateiExportieren(50)", Punktformat::Frei, FilterAlle, "*.*"},
    {"MenüDateiExportieren(51)", Punktformat::GeografAus, FilterIn, "*.in"},
    {"MenüDateiExportieren(30)", Punktformat::Csv, FilterCsv, "*.csv"},
};

void Importieren(const Austauschart& A) {
  std::string Name;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Lesen, A.Filter, A.Vorgabe, Name) == 0)
    PunkteImportieren(Name, A.Format);
}

void Exportieren(const Austauschart& A) {
  std::string Name;
  bool Anhängen = false;
  Zeichensatz Satz = Zeichensatz::Utf8;
  Freiformat Frei = LetztesFreiformat;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Schreiben, A.Filter, A.Vorgabe, Name, &Anhängen, &Satz) < 0 ||
      (A.Format == Punktformat::Frei && FreiformatFragenSchreiben(Frei) < 0))
    return;
  if (TabelleAusgeben(Name, A.Format, Satz, Anhängen) == 0)
    StatusHilfeSetzen(Anzahltext(KorAnzahl, "Punkt", "Punkte") + " geschrieben");
}

}  // namespace

void PunkteImportieren(const std::string& Datei, Punktformat Format) {
  Freiformat Frei = LetztesFreiformat;
  CsvFormatKlären(Datei, Format, Frei);
  if (Format == Punktformat::Frei && FreiformatFragenLesen(Datei, Frei) < 0) return;
  const Dateiname Teile = DateinameZerlegen(Datei);
  Punkttat Tat{"Import " + Teile.Grundname + (Teile.Endung.empty() ? "" : "." + Teile.Endung), {}};
  Lesebericht B;
  const int Ergebnis =
      TabellenRücknahme.Ausführen(Tat, [&] { return PunkteEinlesen(Datei, Lesemodus::Alle, Format, B); });
  TabellenBericht(Ergebnis, LeseberichtText(B));
  if (B.Gestoppt) StatusHilfeSetzen("angehalten, nichts gelesen");
}

std::span<const Befehl> Austauschbefehle() {
  static const std::vector<Befehl> Alle = [] {
    std::vector<Befehl> B;
    for (const Austauschart& A : Importe) B.push_back({A.Eintrag, true, [&A] { Importieren(A); }, true});
    for (const Austauschart& A : Exporte)
      B.push_back({A.Eintrag, true, [&A] { Exportieren(A); }, false, NichtVorhanden, Austauschseite});
    return B;
  }();
  return Alle;
}

}  // namespace tavorena
