#include <algorithm>
#include <iterator>
#include <ostream>
#include <utility>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Worte.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {
namespace {

bool Leer() {
  if (KorAnzahl == 0) Hinweis("Noch keine Koordinaten vorhanden !");
  return KorAnzahl == 0;
}

bool Bericht(const Umfeld& U, bool Getan) {
  if (Getan) U.Ausgabe << "Punkte: " << KorAnzahl << '\n';
  return Getan;
}

// One of two ways to name points, and not both.
bool EinesVon(const Aufruf& A, const char* Eines, const char* Anderes) {
  if (A.Wert(Eines).empty() != A.Wert(Anderes).empty()) return true;
  FehlerMeldung(std::string("entweder ") + Eines + " oder " + Anderes);
  return false;
}

bool Löschen(const Aufruf& A, const Umfeld& U) {
  if (Leer() || !EinesVon(A, "--nummer", "--bereich")) return false;
  std::vector<int> Zeilen;
  std::string Von, Bis;
  const std::string Nummer = A.Wert("--nummer"), Bereich = A.Wert("--bereich");
  if (!Nummer.empty() && NummerZeilen(Nummer, Zeilen) < 0) return false;
  if (Nummer.empty() && (!BereichLesen(Bereich, Von, Bis) || BereichZeilen(Von, Bis, Zeilen) < 0))
    return false;
  Rücknahme R;
  return Bericht(U, PunkteLöschen(R, Zeilen) == 0);
}

bool Umnumerieren(const Aufruf& A, const Umfeld& U) {
  if (Leer() || !EinesVon(A, "--alt", "--bereich")) return false;
  Rücknahme R;
  if (const std::string Alt = A.Wert("--alt"); !Alt.empty())
    return Bericht(U, NummerBerichtigen(R, Alt, A.Wert("--neu")) == 0);
  std::string Von, Bis;
  return BereichLesen(A.Wert("--bereich"), Von, Bis) &&
         Bericht(U, BereichBerichtigen(R, Von, Bis, A.Wert("--start")) == 0);
}

bool AlleDoppeltenMitteln(const Aufruf& /*A*/, const Umfeld& U) {
  if (Leer()) return false;
  const std::vector<std::vector<int>> Gruppen = Doppelgruppen();
  if (Gruppen.empty()) {
    Hinweis("Keine doppelten Punkte vorhanden !");
    return false;
  }
  Rücknahme R;
  return Bericht(U, DoppelteMitteln(R, Gruppen) == 0);
}

bool Mitteln(const Aufruf& A, const Umfeld& U) {
  if (Leer()) return false;
  const std::string Art = A.Wert("--art"), Neu = A.Wert("--neu");
  if (Art != "L" && Art != "S") {
    FehlerMeldung("--art " + Art + " gibt es nicht, nur L, S");
    return false;
  }
  Rücknahme R;
  const int Ergebnis = PunkteMitteln(
      R, {Art == "L" ? Mittelart::Ersetzen : Mittelart::Schwerpunkt, Neu, Wortliste(A.Wert("--alt")), 0, ""});
  if (Ergebnis == -2) PunktVorhandenMeldung(Neu);
  return Bericht(U, Ergebnis == 0);
}

bool Verschieben(const Aufruf& A, const Umfeld& U) {
  if (Leer()) return false;
  const bool Tauschen = !A.Wert("--tauschen").empty();
  const std::string Text = A.Wert("--versatz");
  double d[3] = {0, 0, 0};
  if (Text.empty() && !Tauschen) {
    FehlerMeldung("--tauschen oder --versatz fehlt");
    return false;
  }
  if (!Text.empty() && !LängenLesen(Text, "--versatz", d)) return false;
  Rücknahme R;
  return Bericht(U, TabelleVerschieben(R, "Verschieben", {d[0], d[1], d[2]}, Tauschen) == 0);
}

constexpr std::pair<const char*, Übernahme> Übernahmen[] = {{"punktnummern", Übernahme::Punktnummern},
                                                            {"koordinaten", Übernahme::Koordinaten},
                                                            {"hoehen", Übernahme::Höhen},
                                                            {"hoehenliste", Übernahme::Höhenliste},
                                                            {"versatz", Übernahme::Versatz}};

bool Übernehmen(const Aufruf& A, const Umfeld& U) {
  if (Leer()) return false;
  const std::string Was = A.Wert("--was"), Datei = A.Wert("--aus"), fsText = A.Wert("--fs");
  const auto i = std::find_if(std::begin(Übernahmen), std::end(Übernahmen),
                              [&](const auto& Ü) { return Ü.first == Was; });
  if (i == std::end(Übernahmen)) {
    FehlerMeldung("--was " + Was +
                  " gibt es nicht, nur punktnummern, koordinaten, hoehen, hoehenliste, versatz");
    return false;
  }
  const Übernahme Art = i->second;
  double fs = 0.03;
  if (!fsText.empty() && Art != Übernahme::Punktnummern) {
    FehlerMeldung("--fs gehört zu --was punktnummern");
    return false;
  }
  if (!fsText.empty() && !LängeLesen(fsText, "--fs", fs)) return false;
  Übernahmeplan Plan;
  if (!IstVergleichsdatei(Art, Datei) || ÜbernahmePlanen(Art, Datei, fs, Plan) < 0) return false;
  if (const std::string Text = ÜbernahmeText(Plan); !Text.empty()) U.Ausgabe << Text << '\n';
  Rücknahme R;
  if (ÜbernahmeAusführen(R, Plan) < 0) return false;
  U.Ausgabe << Anzahltext(Plan.Anzahl(), "Punkt", "Punkte") << " geändert\n";
  return true;
}

constexpr const char* Thema = "Punkte ändern";
constexpr Angabe Bereich = {"--bereich", "VON,BIS", "erste und letzte Nummer"};

}  // namespace

Konsolenbefehl LöschBefehl() {
  return {"loeschen",
          Thema,
          "löscht Punkte, ohne zu fragen",
          nullptr,
          true,
          Löschen,
          {{"--nummer", "NR", "alle Punkte dieser Nummer"}, Bereich}};
}

Konsolenbefehl UmnumerierBefehl() {
  return {"umnumerieren",
          Thema,
          "gibt Punkten andere Nummern",
          nullptr,
          true,
          Umnumerieren,
          {{"--alt", "NR", "bisherige Nummer"},
           {"--neu", "NR", "ihre neue"},
           Bereich,
           {"--start", "NR", "neue Nummer der ersten im Bereich, die anderen zählen weiter"}}};
}

Konsolenbefehl VerschiebeBefehl() {
  return {"verschieben",
          Thema,
          "verschiebt alle Punkte, danach tauscht es Rechts und Hoch",
          nullptr,
          true,
          Verschieben,
          {{"--tauschen", nullptr, "Rechts und Hoch tauschen"},
           {"--versatz", "dR,dH,dZ", "was zu Rechts, Hoch und Höhe kommt, in m"}}};
}

Konsolenbefehl ÜbernahmeBefehl() {
  return {
      "uebernehmen",
      Thema,
      "übernimmt etwas aus einer anderen Datei",
      nullptr,
      true,
      Übernehmen,
      {{"--aus", "DATEI", "KOR-Datei oder Höhenliste (*.hli)", true, Dateirolle::Eingabe},
       {"--was", "WAS",
        "punktnummern (des einen Punktes nahebei), koordinaten, hoehen oder hoehenliste (gleicher Nummern), "
        "versatz (die mittlere Differenz gleicher Nummern, für alle Punkte)",
        true},
       {"--fs", "METER", "größter Abstand für punktnummern, sonst 0.03"}}};
}

Konsolenbefehl DoppelteMittelnBefehl() {
  return {"doppelte-mitteln",  Thema, "macht aus den Punkten jeder mehrfachen Nummer einen", nullptr, true,
          AlleDoppeltenMitteln};
}

Konsolenbefehl MittelBefehl() {
  return {"mitteln",
          Thema,
          "mittelt 2 bis 8 Punkte",
          nullptr,
          true,
          Mitteln,
          {{"--art", "L|S", "L: das Mittel ersetzt die Punkte, S: es kommt hinzu", true},
           {"--neu", "NR", "Nummer des Mittels", true},
           {"--alt", "NR,NR,...", "Punkte, die gemittelt werden", true}}};
}

}  // namespace tavorena
