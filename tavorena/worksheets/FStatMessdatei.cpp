#include <set>
#include <utility>
#include <vector>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/worksheets/Anschlusswahl.h>
#include <tavorena/worksheets/FStatMessdatei.h>
#include <tavorena/worksheets/TVFStatForm.h>

namespace tavorena {
namespace {

constexpr const char* RahmenDatei = "Meßdatei";

// Row of the table, -1: none. A number that the surveyor did not supply is not asked for again.
int PunktSuchen(std::string& Pnr, Unbekannte Wie, std::set<std::string>& Fehlende) {
  Wert Nummer(Pnr);
  int Zeile = KorSucheMitPunkt(Nummer);
  if (Zeile < 0 && Wie == Unbekannte::Fragen && !Fehlende.contains(Pnr)) {
    Zeile = KorFind(Nummer);
    if (Zeile < 0) Fehlende.insert(Pnr);
  }
  if (Zeile >= 0) Pnr = Trimmen(Nummer);
  return Zeile;
}

}  // namespace

void StationEintragen(TVFStatForm& Form, Rohstation& S, Unbekannte Wie) {
  std::vector<Stationsanschluß> Anschlüsse;
  std::vector<bool> Bekannt;
  std::set<std::string> Fehlende;
  for (const Rohpunkt& P : S.Anschluss) {
    Kleinpunkteingabe K = KleinpunktAus(P);
    const int Zeile = PunktSuchen(K.Pnr, Wie, Fehlende);
    Bekannt.push_back(Zeile >= 0);
    if (Zeile < 0) continue;
    const KorSatz T = KorPunkt(Zeile);
    Anschlüsse.push_back({K.Pnr, std::string(T.Symbol), {T.Rechts, T.Hoch}, T.Hoehe, K.M, true});
  }
  AnschlussTrennen(S, Bekannt);
  Form.AnschlüsseSetzen(Anschlüsse);
  Form.Kleinpunkte().Setzen(KleinpunkteAus(S.Messung));
}

FStatMessdatei::FStatMessdatei(TVFStatForm& Für)
    : Form(Für),
      KnopfDatei(Für.KnopfAnlegen("FstatAusGSI", "aus &Meßdatei", [this] { FstatAusGSI(); }, {1, 0})),
      KnopfEnde(Für.KnopfAnlegen("FstatMeßdateiEnde", "Meßdatei schließen", [this] { Schließen(); }, {1, 1})),
      Stand(Für.BeschriftungAnlegen("", {0, 0}, RahmenDatei)) {
  Stand.Name = "FstatMeßdateiStand";
  KnopfDatei.Hilfe = "Nächste Station aus einer Rohdatendatei (GSI, GRE) oder Meßwertdatei (dat)";
  KnopfEnde.Hilfe = "Nicht weiter in dieser Meßdatei; die nächste wird erfragt";
}

void FStatMessdatei::ZustandZeigen(bool Zeigen) {
  const Messdatei& M = LaufendeMessdatei;
  KnopfDatei.Text = M.Offen() && !M.AmEnde() ? "weiter aus &Meßdatei" : "aus &Meßdatei";
  KnopfDatei.Aktiv = !Form.ImStapel();
  KnopfDatei.Sichtbar = Zeigen;
  KnopfEnde.Sichtbar = Stand.Sichtbar = Zeigen && M.Offen();
  if (!M.Offen()) return;
  const std::string Weg = M.AmEnde() ? "(Dateiende Meßdatei)" : "weiter aus Meßdatei";
  Stand.Text = (Zuletzt.empty() ? "" : Zuletzt + "   ") + Weg + ": " + M.Name;
}

void FStatMessdatei::FstatAusGSI() {
  Messdatei& M = LaufendeMessdatei;
  if (M.Offen() && M.AmEnde()) {
    Hinweis("Dateiende erreicht !");
    return Schließen();
  }
  if (!M.Offen() && !MessdateiFragen()) return;
  Weiter();
  Form.ZustandZeigen();
}

void FStatMessdatei::Schließen() {
  LaufendeMessdatei = {};
  Zuletzt.clear();
  Form.ZustandZeigen();
}

void FStatMessdatei::Weiter() {
  Messdatei& M = LaufendeMessdatei;
  Rohstation S = M.Folge[M.Nächste];
  const bool Hier = Form.Status() == FStatStatus::StpErzeugt && Form.Standpunkt() == S.Standpunkt;
  if (S.Wiederholt && Hier) {
    if (!Form.Doppelmessung().FStatDoppelteMessung(KleinpunkteAus(S.Messung))) return;
  } else if (S.Wiederholt) {
    Hinweis("Weitere Messung ohne Standpunkt: " + Zitat(S.Standpunkt));  // nothing to compute it from
  } else if (!FStatMeßblockLesen(S)) {
    return;
  }
  Zuletzt = Stationstext(S, Stationszahl(M.Folge));
  ++M.Nächste;
}

// @return false: broken off, the position stays
bool FStatMessdatei::FStatMeßblockLesen(Rohstation& S) {
  if (!Form.NeueStation()) return false;
  if (!S.Getrennt) {
    std::vector<bool> Ein(S.Anschluss.size(), true);
    if (Optionen.FStatPAAnschluss) {
      Ein = AnschlussVorschlag(S);
      if (AnschlussWählen(S, Stationsname(S, Stationszahl(LaufendeMessdatei.Folge)), Ein) < 0) return false;
    }
    AnschlussTrennen(S, Ein);
  }
  static_cast<void>(Form.StandpunktSetzen(S.Standpunkt, S.Symbol, S.Instrumentenhöhe));
  StationEintragen(Form, S, Unbekannte::Fragen);
  const int Anzahl = Form.Anschlüsse().Anzahl();
  if (Anzahl == 0) Hinweis("Kein Anschlußpunkt vorhanden !");
  if (Anzahl == 1 && !Form.StandpunktBekannt()) Hinweis("Nur ein Anschlußpunkt vorhanden !");
  return true;
}

}  // namespace tavorena
