#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/TVFStatForm.h>

namespace tavorena {

int TVFStatForm::StapelAnschluss() {
  FStatEingabe E;
  if (StapelLeseFStat(E) < 0) return -1;
  std::string Grund = BlockNehmen(E);
  if (Grund.empty()) Grund = StationBerechnen();
  if (Grund.empty()) return 0;
  StapelFehlerMeldung(Grund);
  return -1;
}

// @return "", or why it can not be calculated
std::string TVFStatForm::BlockNehmen(const FStatEingabe& E) {
  const bool Polar = E.NeuPnr.empty() && E.Anschluesse.size() == 1;
  Kongruent = E.Kongruent;
  if (Polar) {
    Wert Nummer(E.StandPnr);
    if (KorFind(Nummer) < 0) return "Standpunkt " + Zitat(E.StandPnr) + " fehlt";
    static_cast<void>(StandpunktSetzen(Trimmen(Nummer), "", E.Instrumentenhoehe, Standpunktwahl::Bekannt));
  } else {
    static_cast<void>(StandpunktSetzen(E.NeuPnr, E.NeuSymbol, E.Instrumentenhoehe, Standpunktwahl::Neu));
  }
  std::vector<Stationsanschluß> Alle;
  for (const FStatBeobachtung& B : E.Anschluesse) {
    Wert Nummer(B.Pnr);
    const int Zeile = KorFind(Nummer);
    if (Zeile < 0) return "Anschlußpunkt " + Zitat(B.Pnr) + " fehlt";
    const KorSatz P = KorPunkt(Zeile);
    Alle.push_back({Trimmen(Nummer),
                    std::string(P.Symbol),
                    {P.Rechts, P.Hoch},
                    P.Hoehe,
                    {B.Richtung, B.Vertikal, B.Strecke, B.Zielhoehe},
                    true});
  }
  AnschlüsseSetzen(Alle);
  return "";
}

// The station counts as a row; without it those that follow are read and left out.
int TVFStatForm::StapelZeile() {
  if (Vorher() && !Verweigert) {
    const int Genommen = StandpunktNehmen();
    if (Genommen == -2) {
      StapelFehlerMeldung("Standpunkt nicht geschrieben");
      return -1;
    }
    Verweigert = Genommen < 0;
    if (Verweigert) {
      StapelFallAuslassen("Standpunkt " + Zitat(*StandPnr.Text) + " nicht gespeichert");
    } else {
      ++Stapel.Bilanz.Zeilen;
      StandpunktZeigen();
    }
    return 0;
  }
  FStatPolareingabe E;
  const int Gelesen = StapelLeseFStatPolar(E);
  if (Gelesen < 0 || Verweigert) return Gelesen;
  const FStatBeobachtung& B = E.Messung;
  const int Ergebnis =
      Polare.Eintragen({B.Pnr, {B.Richtung, B.Vertikal, B.Strecke, B.Zielhoehe}, E.Symbol, E.LinieNach});
  if (Ergebnis == 0) ++Stapel.Bilanz.Zeilen;
  if (Ergebnis == -1) StapelZeileAuslassen("Punkt " + Zitat(B.Pnr) + " nicht gespeichert");
  if (Ergebnis != -2) return 0;
  StapelFehlerMeldung("Zeile nicht geschrieben");
  return -1;
}

}  // namespace tavorena
