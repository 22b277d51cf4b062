#include <algorithm>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Absteckung.h>
#include <tavorena/rawdata/Rohzeichen.h>
#include <tavorena/rawdata/Stationsfolge.h>
#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/records/FStat.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena {
namespace {

using Zeilen = std::vector<std::string>;

constexpr const char *TitelStation = "Berechnung fs     Freie Stationierung",
                     *TitelPunkte = "Berechnung fs     Absteckung / Kontrollaufnahme";

// The lines of the report on their pages, each with its head.
class Seiten {
 public:
  explicit Seiten(std::string Soll) { Kopf.SollDatei = std::move(Soll); }

  // What comes stands below this title; below it on each page stand the lines of Spalten.
  void Beginnen(const char* Titel, Zeilen Spalten = {}) {
    Kopf.Titel = Titel;
    Kopf.Riß = LetzterPlan;
    Tabelle = std::move(Spalten);
    NeueSeite();
  }

  // Lines that stay together.
  void Schreiben(const Zeilen& Gruppe) {
    if (Belegt + Gruppe.size() > ZeilenJeSeite && Belegt > Kopfhöhe) NeueSeite();
    for (const std::string& Zeile : Gruppe) {
      if (Belegt >= ZeilenJeSeite) NeueSeite();
      Anhängen(Zeile);
    }
  }

  // Lines of which each may begin a page.
  void Reihe(const Zeilen& Viele) {
    for (const std::string& Zeile : Viele) Schreiben({Zeile});
  }

  std::string Text;

 private:
  void Anhängen(const std::string& Zeile) {
    Text += Zeile + "\r\n";
    ++Belegt;
  }

  void NeueSeite() {
    if (Seite++ > 0) Text += '\f';
    Belegt = 0;
    for (const std::string& Zeile : ProtKopfzeilen(Kopf, Kopf.SollDatei, Seite)) Anhängen(Zeile);
    for (const std::string& Zeile : Tabelle) Anhängen(Zeile);
    Kopfhöhe = Belegt;
  }

  static constexpr std::size_t ZeilenJeSeite = 60;
  Verbindung Kopf;
  Zeilen Tabelle;
  std::size_t Belegt = 0, Kopfhöhe = 0;
  int Seite = 0;
};

// A station with what it is computed from.
struct Standort {
  Stationsaufgabe Aufgabe;
  Stationsergebnis Ergebnis;
  std::string Hindernis = "Kein Anschlußpunkt vorhanden !";  // why it was not computed; "" it was
};

Wert Höhenwert(double Höhe) { return Höhe != 0 ? Wert(Höhe) : Wert(); }

class Bericht {
 public:
  Bericht(const Absteckauftrag& A, Absteckzahlen& Z) : Auftrag(A), Zahlen(Z), Aus(A.SollDatei) {
    for (const Vergleichspunkt& P : A.Soll) Soll.try_emplace(P.Pnr, &P);
    for (const FlgBlock& B : A.Flg) Log[OhneFührendeNullen(B.Standpunkt)].push_back(&B);
  }

  [[nodiscard]] int Schreiben(std::string& Text) {
    const Beschäftigung Lang;
    Atempause Pause(0.5);
    const std::vector<Rohstation> Folge = Stationsfolge(Auftrag.Roh.Blöcke);
    const int Anzahl = Stationszahl(Folge);
    for (const Rohstation& S : Folge) {
      if (Pause.Fällig()) {
        StatusHilfeSetzen("Absteckung: " + Stationsname(S, Anzahl));
        AblaufPort().EreignisseAbarbeiten();
      }
      if (std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop) {
        StatusHilfeSetzen("angehalten, nichts geschrieben");
        return -1;
      }
      Station(S);
    }
    StatusHilfeSetzen("");
    if (Zahlen.Stationen == 0) {
      Aus.Beginnen(TitelStation);
      Aus.Schreiben({Leerzeichen(6) + "Keine Messungen vorhanden !"});
    }
    Text = std::move(Aus.Text);
    return 0;
  }

 private:
  [[nodiscard]] const Vergleichspunkt* Finden(const std::string& Pnr) const {
    const auto P = Soll.find(Pnr);
    return P != Soll.end() ? P->second : nullptr;
  }

  void Station(const Rohstation& S) {
    if (!S.Wiederholt) StationBestimmen(S);
    std::vector<const Rohpunkt*> Punkte;
    for (const Rohpunkt& P : S.Anschluss) {
      if (!S.Getrennt || Finden(P.Nummer) == nullptr) Punkte.push_back(&P);
    }
    for (const Rohpunkt& P : S.Messung) Punkte.push_back(&P);
    if (Punkte.empty()) return;
    if (Stand.Hindernis.empty()) return Vergleichen(Punkte);
    Zahlen.NichtGerechnet += static_cast<int>(Punkte.size());
    for (const Rohpunkt* P : Punkte)
      Aus.Schreiben({Leerzeichen(61) + PnrFormat(P->Nummer) + " nicht gerechnet"});
  }

  void StationBestimmen(const Rohstation& S) {
    ++Zahlen.Stationen;
    Aus.Beginnen(TitelStation);
    if (const auto B = Log.find(OhneFührendeNullen(S.Standpunkt)); B != Log.end()) {
      for (const FlgBlock* Stück : B->second) Aus.Reihe(FlgZeilen(*Stück));
    }
    Rechnen(S);
    if (Stand.Hindernis.empty()) {
      const bool Anschluß = Stand.Aufgabe.Art == Stationsart::Anschluß;
      return Aus.Reihe((Anschluß ? Anschlußblock(S) : Stationsblock(S)).Zeilen);
    }
    ++Zahlen.OhneStation;
    Aus.Schreiben({Leerzeichen(6) + "Standpunkt " + S.Standpunkt + ": " + Stand.Hindernis});
  }

  void Rechnen(const Rohstation& S) {
    Stand = {};
    Stationsaufgabe& A = Stand.Aufgabe;
    A.MitHöhen = Optionen.FStatMitHoehe;
    A.Instrumentenhöhe = S.Instrumentenhöhe.Zahl();
    bool Mehrere = false;
    for (const Rohpunkt& P : S.Anschluss) {
      const Vergleichspunkt* Punkt = Finden(P.Nummer);
      if (Punkt == nullptr) continue;
      A.Zeilen.push_back({P.Nummer,
                          P.Code,
                          {Punkt->Rechts, Punkt->Hoch},
                          Punkt->Hoehe,
                          {P.Hz, P.V, P.Strecke, P.Reflektorhöhe}});
      Mehrere = Mehrere || P.Nummer != A.Zeilen.front().Pnr;
    }
    const Vergleichspunkt* Bekannt = Finden(S.Standpunkt);
    if (!Mehrere && Bekannt != nullptr) {
      A.Art = Stationsart::Anschluß;
      A.Bekannt = {Bekannt->Rechts, Bekannt->Hoch};
      // Without that of the instrument it says nothing about the points; theirs still hold among themselves.
      A.BekannteHöhe = S.Instrumentenhöhe.IstGegeben() ? Bekannt->Hoehe : 0;
    }
    Stand.Hindernis = StationRechnen(A, Stand.Ergebnis);
  }

  [[nodiscard]] Block Stationsblock(const Rohstation& S) const {
    const Stationsergebnis& E = Stand.Ergebnis;
    ProtFStat P;
    P.MitHoehen = E.Höhe != 0;
    P.Massstab = E.Massstab;
    P.Epsilon = E.Epsilon;
    P.MK = E.MK;
    P.ML = E.ML;
    P.Stand = {E.Ort.RW, E.Ort.HW, S.Standpunkt};
    P.StandHoehe = S.Instrumentenhöhe.IstGegeben() ? Höhenwert(E.Höhe) : Wert();
    for (std::size_t i = 0; i < Stand.Aufgabe.Zeilen.size(); ++i) {
      const Stationsanschluß& Z = Stand.Aufgabe.Zeilen[i];
      const Stationsabweichung& V = E.Abweichungen[i];
      P.Punkte.push_back({V.vY,
                          V.vX,
                          V.WL,
                          V.dHo ? Wert(*V.dHo) : Wert(),
                          {{Z.Ort.RW, Z.Ort.HW, Z.Pnr},
                           P.MitHoehen ? Höhenwert(Z.Höhe) : Wert(),
                           Z.M.Hz,
                           Z.M.Vk,
                           Z.M.Strecke,
                           0}});
    }
    return FStatBlock(Optionen.OptNachkommastellen, P);
  }

  [[nodiscard]] Block Anschlußblock(const Rohstation& S) const {
    const Stationsergebnis& E = Stand.Ergebnis;
    const Stationsanschluß& Z = Stand.Aufgabe.Zeilen[E.Orientierung];
    const double Gemessen = Z.M.Strecke * SinGon(Z.M.Vk), Gerechnet = Abstand(E.Ort, Z.Ort);
    Protanschluss A;
    A.Anf = {E.Ort.RW, E.Ort.HW, S.Standpunkt};
    A.End = {Z.Ort.RW, Z.Ort.HW, Z.Pnr};
    A.AnfWert1 = E.Epsilon;
    A.EndWert1 = Z.M.Hz;
    A.EndWert2 = Gemessen;
    A.Abweichung = Gerechnet - Gemessen;
    A.AbweichungZulaessig = AbweichungZulaessig(Gerechnet);
    const std::optional<double> dHo = E.Abweichungen[E.Orientierung].dHo;
    Block B = FStatAnschluss(Optionen.OptNachkommastellen, A, dHo ? Wert(*dHo) : Wert());
    Zeilen Kopf = Tabellenkopf(TitelFStatAnschluss, false, "");
    Kopf.resize(2);  // that of the connection alone
    B.Zeilen.insert(B.Zeilen.begin(), Kopf.begin(), Kopf.end());
    return B;
  }

  // Three lines a point, and two for the mean of two successive rows of one number.
  void Vergleichen(const std::vector<const Rohpunkt*>& Punkte) {
    const int n = Optionen.OptNachkommastellen;
    // The head of any comparison.
    Aus.Beginnen(TitelPunkte, Tabellenkopf("Koordinaten", false, Auftrag.SollDatei));
    std::optional<Vergleichspunkt> Davor;
    for (const Rohpunkt* P : Punkte) {
      const Stationspunkt Q = StationspunktRechnen(Stand.Ergebnis, Stand.Aufgabe.Instrumentenhöhe,
                                                   {P->Hz, P->V, P->Strecke, P->Reflektorhöhe});
      const Vergleichspunkt Ist{P->Nummer, Q.Ort.RW, Q.Ort.HW, Q.Höhe};
      const Vergleichspunkt* Punkt = Finden(P->Nummer);
      Zeilen Gruppe;
      if (Punkt == nullptr) {
        ++Zahlen.NichtVorhanden;
        Gruppe = {Vergleichszeile(n, Ist, "Ist nicht vorhanden")};
      } else {
        ++Zahlen.Punkte;
        Gruppe = Vergleichsblock(n, {{*Punkt, Ist}}, false).Zeilen;
      }
      if (Davor && Davor->Pnr == Ist.Pnr) {
        const Vergleichspunkt Mittel = MittelVon(*Davor, Ist);
        Gruppe.push_back(Vergleichszeile(n, Mittel, "Mittel"));
        if (Punkt != nullptr) Gruppe.push_back(Differenzzeile(n, {*Punkt, Mittel}));
      }
      Aus.Schreiben(Zahlenblock(n, std::move(Gruppe)).Zeilen);
      Davor = Ist;
    }
  }

  static Vergleichspunkt MittelVon(const Vergleichspunkt& A, const Vergleichspunkt& B) {
    const bool MitHöhe = A.Hoehe != 0 && B.Hoehe != 0;
    return {B.Pnr, (A.Rechts + B.Rechts) / 2, (A.Hoch + B.Hoch) / 2, MitHöhe ? (A.Hoehe + B.Hoehe) / 2 : 0};
  }

  const Absteckauftrag& Auftrag;
  Absteckzahlen& Zahlen;
  Seiten Aus;
  std::unordered_map<std::string, const Vergleichspunkt*> Soll;
  // By number, which may stand there as the instrument writes it, or as it was read.
  std::unordered_map<std::string_view, std::vector<const FlgBlock*>> Log;
  Standort Stand;
};

}  // namespace

int Absteckbericht(const Absteckauftrag& A, std::string& Text, Absteckzahlen& Zahlen) {
  Zahlen = {};
  return Bericht(A, Zahlen).Schreiben(Text);
}

std::string Absteckdatei(const std::string& Rohdatei) {
  const Dateiname Teile = DateinameZerlegen(Rohdatei);
  return Teile.Ordner + Teile.Grundname + "-absteckung.dru";
}

std::vector<FlgBlock> FlgDateiLesen(const std::string& Datei) {
  std::vector<FlgBlock> Blöcke;
  std::string Text;
  if (Datei.empty() || (TextdateiLesen(Datei, Text) == 0 && FlgLesen(Text, Blöcke) == 0)) return Blöcke;
  Hinweis("FLG- Datei\r" + Datei + "\rnicht in Ordnung !");
  return {};
}

std::string StandpunktzeilenFehlen(const Rohdaten& Roh) {
  constexpr std::size_t Genannte = 10;
  std::vector<std::string> Ohne;
  int Block = -1, Stationen = 0;
  for (int Art = 0; (Art = RohdatenOrientierungsblock(Roh, Block)) != 1; ++Stationen) {
    if (Art == 2) Ohne.push_back(Roh.Blöcke[static_cast<std::size_t>(Block)].Standpunkt);
  }
  if (Stationen == 0) Ohne = {""};
  std::string Text;
  for (std::size_t i = 0; i < std::min(Ohne.size(), Genannte); ++i) {
    const std::string Meldung = StandpunktzeileFehlt(Roh, Ohne[i]);
    Text += i == 0 ? Meldung : Meldung.substr(Meldung.find_last_of("\r\n"));
  }
  if (Ohne.size() > Genannte) Text += "\nund " + std::to_string(Ohne.size() - Genannte) + " weitere";
  return Text;
}

int RohdatenBerichtAbsteckung(const Absteckauftrag& A, const std::string& Datei, Absteckzahlen& Zahlen) {
  std::string Text, Grund;
  if (Absteckbericht(A, Text, Zahlen) < 0) return -1;
  if (DateiErsetzen(Datei, Text, &Grund) == 0) return 0;
  SchreibfehlerMelden(Datei, Grund);
  return -1;
}

std::string Absteckzählung(const Absteckzahlen& Z) {
  std::string Text = Anzahltext(Z.Stationen, "Station", "Stationen") + ", " +
                     Anzahltext(Z.Punkte, "Punkt", "Punkte") + " verglichen";
  if (Z.OhneStation > 0)
    Text += "\n" + Anzahltext(Z.OhneStation, "Station", "Stationen") + " nicht gerechnet, mit " +
            Anzahltext(Z.NichtGerechnet, "Punkt", "Punkten");
  if (Z.NichtVorhanden > 0)
    Text += "\n" + Anzahltext(Z.NichtVorhanden, "Punkt", "Punkte") + " nicht in der Koordinatendatei";
  return Text;
}

}  // namespace tavorena
