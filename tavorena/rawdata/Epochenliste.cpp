#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Epochenliste.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena {
namespace {

constexpr std::size_t ZeilenJeSeite = 50;
constexpr int MarkeBreite = 11;  // a blank and the longest mark

using Absatz = std::vector<std::string>;

// ---- parameters ------------------------------------------------------------------------------------

// A line up to its comment.
std::string_view OhneBemerkung(std::string_view Zeile) {
  return TrimmenSicht(Zeile.substr(0, Zeile.find("  ")));
}

bool MillimeterLesen(std::string_view Wort, double& mm) {
  if (Wort.empty()) return true;
  const double Zahl = ZahlAusText(Wort);
  if (!IstZahlwort(Wort) || !std::isfinite(Zahl) || Zahl < 0) return false;
  mm = Zahl;
  return true;
}

void NummernLesen(std::string_view Zeile, std::vector<std::string>& Nummern) {
  for (std::string_view Wort = Wortnehmen(Zeile); !Wort.empty(); Wort = Wortnehmen(Zeile)) {
    std::string Nummer(Wort);
    ZeichenErsetzen(Nummer, ',', '.');  // as in the file of all epochs
    if (std::find(Nummern.begin(), Nummern.end(), Nummer) == Nummern.end())
      Nummern.push_back(std::move(Nummer));
  }
}

std::string Kurz(double Zahl) { return ZahlNachText(Zahl).Text(); }

// ---- rows ------------------------------------------------------------------------------------------

Wert WertVon(const std::optional<double>& Zahl) { return Zahl ? Wert(*Zahl) : Wert(); }
std::string Mm(const std::optional<double>& Zahl) { return ZahlFormat(WertVon(Zahl), 5, 1); }

std::string Marke(Bewegungsstufe Stufe) {
  switch (Stufe) {
    case Bewegungsstufe::UeberZulaessig:
      return "******>zul";
    case Bewegungsstufe::DreiSigma:
      return "******";
    case Bewegungsstufe::ZweiSigma:
      return Optionen.OptWarnstufe > 1 ? "***" : "";
    default:
      return "";
  }
}

std::string Differenzspalten(const Epochendifferenz& D, bool MitLage) {
  std::string Text = MitLage ? Mm(D.dR) + Mm(D.dH) : "";
  Text += Mm(D.dZ);
  if (MitLage) Text += Mm(D.dS);
  return Text + FeldLinks(" " + Marke(D.Stufe), MarkeBreite);
}

std::string Wertspalten(const Epochenwert& W, bool MitLage, int n) {
  const std::string Höhe = ZahlFormat(WertVon(W.Hoehe), 5, n);
  if (!MitLage) return Höhe;
  return " " + ZahlFormat(W.Ort ? Wert(W.Ort->RW) : Wert(), 7, n) + " " +
         ZahlFormat(W.Ort ? Wert(W.Ort->HW) : Wert(), 7, n) + " " + Höhe;
}

std::string OhneRand(std::string Zeile) {
  Zeile.erase(Zeile.find_last_not_of(' ') + 1);
  return Zeile;
}

Absatz Punktzeilen(const Gesamtdatei& G, const Gesamtpunkt& P, const std::vector<Epochenschritt>& S) {
  Absatz Zeilen;
  for (std::size_t e = 0; e < G.Epochen.size(); ++e) {
    Zeilen.push_back(OhneRand(Leerzeichen(6) + PnrFormat(P.Nummer) + "  " + G.Epochen[e] +
                              Wertspalten(P.Werte[e], G.MitLage, Optionen.OptNachkommastellen) +
                              Differenzspalten(S[e].ZurErsten, G.MitLage) +
                              Differenzspalten(S[e].ZurVorigen, G.MitLage)));
  }
  return Zeilen;
}

// The captions above the columns, which are as wide as the columns.
Absatz Spaltenkopf(bool MitLage) {
  const int n = Optionen.OptNachkommastellen;
  std::string Namen = Leerzeichen(7) + "Pkt.Nr.  Datum     ", Maße = Leerzeichen(26);
  const auto Spalte = [&](const char* Name, const char* Maß, int Breite) {
    Namen += RechtsBündig(Name, Breite);
    Maße += RechtsBündig(Maß, Breite);
  };
  if (MitLage) {
    Spalte("Rechts", "(m)", 9 + n);
    Spalte("Hoch", "(m)", 9 + n);
  }
  Spalte("Höhe", "(m)", (MitLage ? 7 : 6) + n);
  for (const char* Gegen : {" zur ersten", " zur vorigen"}) {
    if (MitLage) {
      Spalte("dR", "(mm)", 7);
      Spalte("dH", "(mm)", 7);
    }
    Spalte("dZ", "(mm)", 7);
    if (MitLage) Spalte("dS", "(mm)", 7);
    Namen += FeldLinks(Gegen, std::max(MarkeBreite, static_cast<int>(ZeichenAnzahl(Gegen))));
    Maße += Leerzeichen(MarkeBreite);
  }
  return {OhneRand(Namen), OhneRand(Maße), ""};
}

// ---- what it rests on ------------------------------------------------------------------------------

// The reference points that the file holds, and a line of the numbers that it lacks.
std::vector<std::size_t> BezugFinden(const Gesamtdatei& G, const std::vector<std::string>& Nummern,
                                     Absatz& A) {
  std::vector<std::size_t> Bezug;
  std::string Namen, Fehlende;
  for (const std::string& Nummer : Nummern) {
    const auto i = std::find_if(G.Punkte.begin(), G.Punkte.end(),
                                [&](const Gesamtpunkt& P) { return P.Nummer == Nummer; });
    if (i == G.Punkte.end()) {
      Fehlende += " " + Nummer;
    } else {
      Bezug.push_back(static_cast<std::size_t>(i - G.Punkte.begin()));
      Namen += " " + Nummer;
    }
  }
  if (Nummern.empty()) Namen = " keine";
  if (!Namen.empty()) A.push_back("      Bezugspunkte:" + Namen);
  if (!Fehlende.empty()) A.push_back("      ****** Bezugspunkte nicht in der Datei:" + Fehlende);
  return Bezug;
}

void BezugBeschreiben(const std::string& Datum, const Epochenbezug& B, bool MitLage, Absatz& A) {
  const std::string Rand = "      " + Datum;
  if (B.Höhenpunkte > 0) {
    A.push_back(Rand + "  dZ =" + Mm(B.dZ) + " mm im Mittel von " +
                Anzahltext(B.Höhenpunkte, "Bezugspunkt", "Bezugspunkten"));
  } else {
    A.push_back(Rand + "  ****** Höhen nicht reduziert, kein gemeinsamer Bezugspunkt");
  }
  if (!MitLage) return;
  if (B.Lagepunkte < 2) {
    A.push_back(Rand + "  ****** Lage nicht reduziert, weniger als 2 gemeinsame Bezugspunkte");
    return;
  }
  A.push_back(Rand + "  dR =" + Mm(B.dR) + " mm  dH =" + Mm(B.dH) + " mm  Drehung =" +
              ZahlFormat(B.DrehungMgon, 6, 1) + " mgon  Klaffung" + Mm(B.KlaffungMm) + " mm");
}

Absatz Vorspann(const Gesamtdatei& G, const Epochenparameter& P, std::vector<std::size_t>& Bezug) {
  Absatz A;
  if (!P.Titel.empty()) A.push_back("      " + P.Titel);
  std::string Grenzen = "      Standardabweichung " + Kurz(P.Grenzen.Sigma) + " mm";
  if (P.Grenzen.Zulaessig > 0) Grenzen += ", zulässige Bewegung " + Kurz(P.Grenzen.Zulaessig) + " mm";
  A.push_back(std::move(Grenzen));
  Bezug = BezugFinden(G, P.Bezugspunkte, A);
  return A;
}

// ---- pages -----------------------------------------------------------------------------------------

// A block is kept on one page unless it is longer than a page.
class Seiten {
 public:
  Seiten(std::string Name, Verbindung Kopf, Absatz Spalten)
      : Quelle(std::move(Name)), V(std::move(Kopf)), Spaltennamen(std::move(Spalten)) {}

  void Anhängen(const Absatz& A, bool MitSpalten) {
    if (Nummer == 0 || (Zeile + A.size() > ZeilenJeSeite && Zeile > Erste)) Beginnen(MitSpalten);
    for (const std::string& Text : A) {
      if (Zeile >= ZeilenJeSeite) Beginnen(MitSpalten);
      Schreiben(Text);
    }
  }
  void Schreiben(const std::string& Text) {
    Alles += Text + "\r\n";
    ++Zeile;
  }
  void Spalten() {
    for (const std::string& Text : Spaltennamen) Schreiben(Text);
    Erste = Zeile;
  }
  [[nodiscard]] const std::string& Text() const { return Alles; }

 private:
  void Beginnen(bool MitSpalten) {
    if (Nummer > 0) Alles += '\f';
    Zeile = 0;
    for (const std::string& Text : ProtKopfzeilen(V, Quelle, ++Nummer)) Schreiben(Text);
    Erste = Zeile;
    if (MitSpalten) Spalten();
  }

  std::string Quelle;
  Verbindung V;
  Absatz Spaltennamen;
  std::string Alles;
  int Nummer = 0;
  std::size_t Zeile = 0, Erste = 0;
};

}  // namespace

Epochenparameter EpochenparameterVorgabe(bool MitLage) {
  return {MitLage ? "Verformungsmessung" : "Setzungsmessung", {MitLage ? 3.0 : 0.5, 0}, {}};
}

std::string EpochenparameterText(const Epochenparameter& P) {
  std::string Nummern;
  for (const std::string& Nummer : P.Bezugspunkte) Nummern += Nummer + " ";
  return P.Titel + "  Titel der Liste\r\n" + Kurz(P.Grenzen.Sigma) +
         "  Standardabweichung einer Höhe oder Koordinate in mm\r\n" + Kurz(P.Grenzen.Zulaessig) +
         "  zulässige Bewegung in mm, 0 = keine\r\n" + Nummern +
         "  Nummern der Bezugspunkte, durch Leerzeichen getrennt\r\n";
}

int EpochenparameterAusText(std::string_view Text, Epochenparameter& P, std::string& Fehler) {
  Epochenparameter Neu = P;
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  double* const Maße[] = {&Neu.Grenzen.Sigma, &Neu.Grenzen.Zulaessig};
  for (int i = 0; i < 4 && Leser.Nächste(Zeile); ++i) {
    const std::string_view Inhalt = OhneBemerkung(Zeile);
    if (i == 0 && !Inhalt.empty()) Neu.Titel = Inhalt;
    if (i == 3) NummernLesen(Inhalt, Neu.Bezugspunkte);
    if ((i != 1 && i != 2) || MillimeterLesen(Inhalt, *Maße[i - 1])) continue;
    Fehler = "Zeile " + std::to_string(i + 1) + ": keine Millimeter: " + Zitat(Inhalt);
    return -1;
  }
  P = std::move(Neu);
  return 0;
}

int EpochenparameterLesen(const std::string& Name, bool MitLage, Epochenparameter& P) {
  P = EpochenparameterVorgabe(MitLage);
  std::string Text, Grund;
  if (!DateiVorhanden(Name)) return 0;
  if (TextdateiLesen(Name, Text, &Grund) == 0 && EpochenparameterAusText(Text, P, Grund) == 0) return 0;
  FehlerMeldung(Grund + "\n" + Name);
  return -1;
}

int Epochenzeilen(const Gesamtdatei& G, const Epochenparameter& P, std::vector<Absatz>& Zeilen) {
  const Beschäftigung Lang;
  Atempause Pause(0.5);
  std::vector<std::size_t> Bezug;
  Zeilen = {Vorspann(G, P, Bezug)};
  std::vector<Epochenreihe> Reihen;
  for (const Gesamtpunkt& Punkt : G.Punkte) Reihen.push_back(Punkt.Werte);
  Epochenergebnis E;
  if (Epochenvergleich(Reihen, Bezug, P.Grenzen, E) < 0) return 0;
  for (std::size_t e = 1; e < E.Bezug.size() && !Bezug.empty(); ++e)
    BezugBeschreiben(G.Epochen[e], E.Bezug[e], G.MitLage, Zeilen[0]);
  Zeilen[0].emplace_back();
  const std::string Alle = " von " + Anzahltext(static_cast<int>(G.Punkte.size()), "Punkt", "Punkten");
  for (std::size_t i = 0; i < G.Punkte.size(); ++i) {
    Zeilen.push_back(Punktzeilen(G, G.Punkte[i], E.Schritte[i]));
    if (!Pause.Fällig()) continue;
    StatusHilfeSetzen(std::to_string(i + 1) + Alle);
    AblaufPort().EreignisseAbarbeiten();
    if (std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Weiter) continue;
    StatusHilfeSetzen("angehalten, nichts geschrieben");
    return -1;
  }
  StatusHilfeSetzen("");
  return 0;
}

int EpochenlisteSchreiben(const std::string& Ziel, const std::string& Quelle, const Gesamtdatei& G,
                          const Epochenparameter& P) {
  Verbindung V;
  V.Titel = G.MitLage ? "Verformungsmessung" : "Setzungsmessung";
  V.Riß = LetzterPlan;
  std::vector<Absatz> Absätze;
  if (Epochenzeilen(G, P, Absätze) < 0) return -1;
  Seiten S(Quelle, V, Spaltenkopf(G.MitLage));
  bool Erster = true;
  for (const Absatz& A : Absätze) {
    S.Anhängen(A, !Erster);
    if (Erster) S.Spalten();
    Erster = false;
  }
  std::string Grund;
  if (DateiErsetzen(Ziel, S.Text(), &Grund) == 0) return 0;
  SpeicherfehlerMelden(Ziel, Grund, "Gesamtdatei.Drucken");
  return -1;
}

std::string EpochenlisteName(const std::string& Quelle) {
  const Dateiname Teile = DateinameZerlegen(Quelle);
  return Teile.Ordner + Teile.Grundname + "-ges.dru";
}

}  // namespace tavorena
