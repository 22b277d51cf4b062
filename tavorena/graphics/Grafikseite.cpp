#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/Grafikinhalt.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/graphics/Grafikseite.h>
#include <tavorena/graphics/Punktzeichen.h>

namespace tavorena {
namespace {

constexpr double mm = 1440 / 25.4;  // twips
constexpr double Rand = 10 * mm, Streifen = 18 * mm, Maßstabsfeld = 62 * mm, Nordfeld = 14 * mm,
                 Seitenfeld = 34 * mm;
constexpr int Titelgrad = 12;  // points

// Width and height of upright sheets [mm].
constexpr std::array<std::array<double, 2>, 2> Formate{{{210, 297}, {297, 420}}};

// A part of the world that is to be seen on paper, with room around it for signs and numbers [twips].
struct Inhalt {
  double Rechts = 0, Hoch = 0, Breite = 0, Hoehe = 0;
  double Zugabe = 0;  // to each side
};

// @return false: there is nothing
bool InhaltVon(bool AllePunkte, Inhalt& I) {
  if (!AllePunkte) {
    const Grafikzustand& G = GrafikFenster;
    I = {G.FensterRechts, G.FensterHoch, G.FensterBreite, G.FensterHoehe};
    return G.Massstab != 0;
  }
  if (KorAnzahl == 0) return false;
  double RechtsBis = 0, HochBis = 0;
  KorBereich(I.Rechts, I.Hoch, RechtsBis, HochBis);
  I.Breite = RechtsBis - I.Rechts;
  I.Hoehe = HochBis - I.Hoch;
  if (I.Breite == 0 && I.Hoehe == 0) {  // as in the window, one point has 20 m around it
    I.Rechts -= 10;
    I.Hoch -= 10;
    I.Breite = I.Hoehe = 20;
  }
  I.Zugabe = Nummernabstand + 8 * Nummernzeichen;
  return std::isfinite(I.Breite) && std::isfinite(I.Hoehe);
}

// Twips on paper to a metre.
double MassstabVon(double Zahl) { return 1000 * mm / Zahl; }

// The next round number from a scale on: surveyors measure on paper.
double RundeZahl(double Mindestens) {
  const double Zehner = std::pow(10, std::floor(std::log10(Mindestens)));
  for (const double f : {1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 7.5}) {
    if (f * Zehner >= Mindestens * (1 - 1e-12)) return f * Zehner;
  }
  return 10 * Zehner;
}

double EingepaßteZahl(const Inhalt& I, const Bildausschnitt& Karte) {
  const double Breite = Karte.Breite - 2 * I.Zugabe, Hoehe = Karte.Hoehe - 2 * I.Zugabe;
  return RundeZahl(std::max({1000 * mm * I.Breite / Breite, 1000 * mm * I.Hoehe / Hoehe, 1.0}));
}

double BlätterFür(double Bedarf, double Platz) { return std::max(1.0, std::ceil(Bedarf / Platz - 1e-9)); }

std::string Zahltext(double Zahl) { return ZahlFormat(Zahl, -1, Zahl == std::floor(Zahl) ? 0 : 2); }

// As much of a text as has room.
std::string Gekürzt(const std::string& Text, double Breite, int Schriftgrad) {
  const auto Platz = static_cast<std::size_t>(Breite / Textbreite(" ", Schriftgrad));
  if (ZeichenAnzahl(Text) <= Platz) return Text;
  return std::string(TextTeil(Text, 0, Platz - 3)) + "...";
}

void Strichzug(Zeichenfläche& Auf, double x1, double y1, double x2, double y2) {
  Auf.Linie(x1, y1, x2, y2, FarbeSchwarz, Strich::Durchgezogen);
}

void Rahmen(Zeichenfläche& Auf, double x, double y, double Breite, double Hoehe) {
  Strichzug(Auf, x, y, x + Breite, y);
  Strichzug(Auf, x + Breite, y, x + Breite, y + Hoehe);
  Strichzug(Auf, x + Breite, y + Hoehe, x, y + Hoehe);
  Strichzug(Auf, x, y + Hoehe, x, y);
}

void Nordpfeil(Zeichenfläche& Auf, double x, double Oben, double Unten) {
  Strichzug(Auf, x, Unten, x, Oben);
  for (const double Seite : {-1.0, 1.0}) Strichzug(Auf, x, Oben, x + Seite * 1.2 * mm, Oben + 4 * mm);
  Auf.Text(x + 2 * mm, (Oben + Unten) / 2, "N", Nummerngrad, FarbeSchwarz);
}

// The strip below the map, field after field from the right.
void StreifenZeichnen(Zeichenfläche& Auf, const Seitenauftrag& A, const Seitenplan& P, int Seite) {
  const double Links = P.Karte.Links, Oben = P.Karte.Oben + P.Karte.Hoehe, Unten = Oben + Streifen;
  const auto Zeile = [&](double x, double Tiefe, const std::string& Text, int Grad = Nummerngrad) {
    Auf.Text(x + 2 * mm, Oben + Tiefe * mm, Text, Grad, FarbeSchwarz);
  };
  Rahmen(Auf, Links, Oben, P.Karte.Breite, Streifen);
  double x = Links + P.Karte.Breite - Seitenfeld;
  Strichzug(Auf, x, Oben, x, Unten);
  Zeile(x, 6, "Seite " + std::to_string(Seite + 1) + " von " + std::to_string(P.Seiten()));
  if (P.Seiten() > 1)
    Zeile(x, 12,
          "Reihe " + std::to_string(Seite / P.Spalten + 1) + " Spalte " +
              std::to_string(Seite % P.Spalten + 1));
  x -= Nordfeld;
  Strichzug(Auf, x, Oben, x, Unten);
  Nordpfeil(Auf, x + Nordfeld / 2, Oben + 2 * mm, Unten - 2 * mm);
  x -= Maßstabsfeld;
  Strichzug(Auf, x, Oben, x, Unten);
  Zeile(x, 5, "Maßstab 1:" + Zahltext(P.Maßstabszahl), Titelgrad);
  Bildausschnitt Leiste = P.Karte;
  Leiste.Links = x - 3 * mm;
  Leiste.Oben = Unten - Leiste.Hoehe;
  GrafikLeisteZeichnen(Auf, Leiste);
  const double Breite = x - Links - 4 * mm;
  Zeile(Links, 5, Gekürzt(A.Titel, Breite, Titelgrad), Titelgrad);
  Zeile(Links, 10.5, Gekürzt("Datei: " + A.Datei, Breite, Nummerngrad));
  Zeile(Links, 14.5, A.Zeit);
}

}  // namespace

bool BlattVon(std::string_view Name, Blatt& Ergebnis) {
  const auto Gefunden = std::find(std::begin(Blattnamen), std::end(Blattnamen), Name);
  if (Gefunden == std::end(Blattnamen)) return false;
  Ergebnis = static_cast<Blatt>(Gefunden - std::begin(Blattnamen));
  return true;
}

int SeitenPlanen(const Seitenauftrag& A, Seitenplan& Plan, std::string& Grund) {
  Inhalt I;
  if (!InhaltVon(A.AllePunkte, I)) {
    Grund = "Es ist nichts zu sehen, was gedruckt werden könnte.";
    return -1;
  }
  if (!(A.Maßstabszahl >= 0) || A.Maßstabszahl > 1e9) {
    Grund = "Der Maßstab ist keine brauchbare Zahl.";
    return -1;
  }
  const auto& Format = Formate[A.Papier == Blatt::A3 || A.Papier == Blatt::A3quer ? 1 : 0];
  const bool Quer = A.Papier == Blatt::A4quer || A.Papier == Blatt::A3quer;
  Seitenplan P;
  P.Breite = Format[Quer ? 1 : 0] * mm;
  P.Hoehe = Format[Quer ? 0 : 1] * mm;
  P.Karte.Links = P.Karte.Oben = Rand;
  P.Karte.Breite = P.Breite - 2 * Rand;
  P.Karte.Hoehe = P.Hoehe - 2 * Rand - Streifen;
  P.Maßstabszahl = A.Maßstabszahl > 0 ? A.Maßstabszahl : EingepaßteZahl(I, P.Karte);
  const double M = P.Karte.Massstab = MassstabVon(P.Maßstabszahl);
  const double Spalten = BlätterFür(I.Breite * M + 2 * I.Zugabe, P.Karte.Breite),
               Zeilen = BlätterFür(I.Hoehe * M + 2 * I.Zugabe, P.Karte.Hoehe);
  if (Spalten * Zeilen > GrafikSeitenGrenze) {
    Grund = "Im Maßstab 1:" + Zahltext(P.Maßstabszahl) + " wären es " + Zahltext(Spalten * Zeilen) +
            " Blätter, gedruckt werden höchstens " + std::to_string(GrafikSeitenGrenze) + ".";
    return 1;
  }
  P.Spalten = static_cast<int>(Spalten);
  P.Zeilen = static_cast<int>(Zeilen);
  // In the middle of all sheets.
  P.Karte.Rechts = I.Rechts + I.Breite / 2 - Spalten * P.Karte.Breite / M / 2;
  P.Karte.Hoch = I.Hoch + I.Hoehe / 2 - Zeilen * P.Karte.Hoehe / M / 2;
  Plan = P;
  return 0;
}

void SeiteZeichnen(Zeichenfläche& Auf, const Seitenauftrag& A, const Seitenplan& P, int Seite) {
  Bildausschnitt Karte = P.Karte;
  const int Spalte = Seite % P.Spalten, Zeile = P.Zeilen - 1 - Seite / P.Spalten;
  Karte.Rechts += Spalte * Karte.Breite / Karte.Massstab;
  Karte.Hoch += Zeile * Karte.Hoehe / Karte.Massstab;
  Auf.Begrenzen(Karte.Links, Karte.Oben, Karte.Breite, Karte.Hoehe);
  GrafikZeichnen(Auf, Karte);
  Auf.Begrenzen(0, 0, 0, 0);
  Rahmen(Auf, Karte.Links, Karte.Oben, Karte.Breite, Karte.Hoehe);
  StreifenZeichnen(Auf, A, P, Seite);
}

}  // namespace tavorena
