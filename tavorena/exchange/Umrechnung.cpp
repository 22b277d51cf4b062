#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Umrechnung.h>

namespace tavorena {
namespace {

// A point on its way. The views lie in the line.
struct Wegpunkt {
  std::string_view Pnr, Symbol;
  double Laenge = 0, Breite = 0;  // [degrees]
  double Rechts = 0, Hoch = 0;    // [m], Rechts of UTM without its zone
  double Hoehe = 0;
  std::int32_t Streifen = 0;  // of Rechts and Hoch
};

bool ZahlLesen(std::string_view Wort, double& Zahl) {
  if (!IstZahlwort(Wort)) return false;
  Zahl = ZahlAusText(Wort);
  return std::isfinite(Zahl);
}

// Degrees, minutes and seconds. A minus counts for all three, that of "-0" too; degrees with a fraction are
// some other column.
bool GMSLesen(const std::string_view* Worte, double& Grad) {
  double Minuten = 0, Sekunden = 0;
  if (!ZahlLesen(Worte[0], Grad) || !ZahlLesen(Worte[1], Minuten) || !ZahlLesen(Worte[2], Sekunden))
    return false;
  const auto Teil = [](double x) { return x >= 0 && x < 60; };
  if (!Teil(Minuten) || !Teil(Sekunden) || Grad != std::trunc(Grad)) return false;
  const double Betrag = std::fabs(Grad) + Minuten / 60 + Sekunden / 3600;
  Grad = std::signbit(Grad) ? -Betrag : Betrag;
  return true;
}

bool GeographischLesen(std::string_view Zeile, Wegpunkt& P) {
  std::array<std::string_view, 8> Worte;
  std::size_t Anzahl = 0;
  for (std::string_view W = Wortnehmen(Zeile); !W.empty(); W = Wortnehmen(Zeile)) {
    if (Anzahl == Worte.size()) return false;
    Worte[Anzahl++] = W;
  }
  const bool Gms = Anzahl >= 7;
  if (!Gms && Anzahl != 3 && Anzahl != 4) return false;
  const bool Gelesen = Gms ? GMSLesen(&Worte[1], P.Laenge) && GMSLesen(&Worte[4], P.Breite)
                           : ZahlLesen(Worte[1], P.Laenge) && ZahlLesen(Worte[2], P.Breite);
  P.Pnr = Worte[0];
  P.Symbol = "015";
  P.Hoehe = 0;
  if (Anzahl == 8 || Anzahl == 4) {
    if (!ZahlLesen(Worte[Anzahl - 1], P.Hoehe)) return false;
  }
  return Gelesen && std::fabs(P.Laenge) <= 180;  // the grid refuses latitudes
}

bool EbenLesen(std::string_view Zeile, const Koordinatenform& Von, Wegpunkt& P) {
  P.Pnr = Wortnehmen(Zeile);
  if (!ZahlLesen(Wortnehmen(Zeile), P.Rechts) || !ZahlLesen(Wortnehmen(Zeile), P.Hoch)) return false;
  P.Hoehe = ZahlAusText(Wortnehmen(Zeile));
  P.Symbol = Wortnehmen(Zeile);
  const bool Utm = Von.Art == Koordinatenart::UTM;
  P.Streifen = Von.Nummer;
  if (Utm && Von.Nummer > 0) return true;
  // One digit is a strip, two are a zone.
  if (!(P.Rechts >= (Utm ? 1e7 : 1e6)) || !(P.Rechts < (Utm ? 6.1e7 : 1e7))) return false;
  P.Streifen = static_cast<std::int32_t>(P.Rechts / 1e6);
  if (Utm) P.Rechts -= P.Streifen * 1e6;
  return true;
}

void GanzzahlAnhängen(std::string& Ziel, std::int32_t Zahl, std::size_t Breite) {
  std::array<char, 12> Puffer{};
  const auto Ende = std::to_chars(Puffer.data(), Puffer.data() + Puffer.size(), Zahl).ptr;
  const auto Länge = static_cast<std::size_t>(Ende - Puffer.data());
  Ziel.append(Länge < Breite ? Breite - Länge : 0, ' ').append(Puffer.data(), Länge);
}

// Rounded to the decimals of the seconds first: no field ever shows 60.
void GMSAnhängen(std::string& Ziel, double Wert) {
  constexpr double JeGrad = 3600e5;
  std::int32_t Grad = 0, Minuten = 0;
  double Sekunden = 0;
  const bool OhneGrad = GradInGMS(std::round(Wert * JeGrad) / JeGrad, Grad, Minuten, Sekunden) == 1;
  if (OhneGrad) {
    Ziel += "   -0";
  } else {
    GanzzahlAnhängen(Ziel, Grad, 5);
  }
  GanzzahlAnhängen(Ziel, Minuten, 4);
  Ziel += ' ';
  ZahlFormatAnhängen(Ziel, Sekunden, 3, 5);
}

void GeographischAnhängen(std::string& Ziel, const Wegpunkt& P) {
  Ziel += PnrFormat(P.Pnr);
  GMSAnhängen(Ziel, P.Laenge);
  GMSAnhängen(Ziel, P.Breite);
  Ziel += ' ';
  ZahlFormatAnhängen(Ziel, P.Hoehe, 5, 3);
}

// A number that its field shows as stars; the sign takes one of its places.
bool ZuGroß(double Zahl, double Grenze) { return !(Zahl < Grenze) || !(Zahl > -Grenze / 10); }

constexpr double Grenze7 = 1e7, Grenze5 = 1e5;

Streifennetz NetzVon(const Umrechnung& U) {
  const Koordinatenart Eben = U.Nach.Art == Koordinatenart::Geographisch ? U.Von.Art : U.Nach.Art;
  return Eben == Koordinatenart::UTM ? Streifennetz() : Streifennetz(U.Körper);
}

constexpr std::string_view Kopfwort = "@%Reference ellipsoid:";

// One run over a text.
class Umrechenlauf {
 public:
  Umrechenlauf(const Umrechnung& U, std::string& Neu, Umrechenbericht& B)
      : Was(U), Ziel(Neu), Bericht(B), Netz(NetzVon(U)) {}

  void Zeile(std::string_view Text, int Nummer) {
    const std::string_view Inhalt = TrimmenSicht(Text);
    if (Inhalt.empty()) return;
    if (!VonEbene() && Inhalt.starts_with('@')) return KopfLesen(Inhalt);
    const bool Gelesen = VonEbene() ? EbenLesen(Text, Was.Von, P) : GeographischLesen(Text, P);
    if (Gelesen && Rechnen() == 0) return Schreiben();
    if (Bericht.Andere++ == 0) Bericht.ErsteAndere = Nummer;
  }

 private:
  void KopfLesen(std::string_view Zeile) {
    if (Zeile.starts_with(Kopfwort)) Bericht.Kopfellipsoid = Trimmen(Zeile.substr(Kopfwort.size()));
  }

  [[nodiscard]] bool VonEbene() const { return Was.Von.Art != Koordinatenart::Geographisch; }
  [[nodiscard]] bool NachEbene() const { return Was.Nach.Art != Koordinatenart::Geographisch; }

  [[nodiscard]] int Rechnen() {
    if (VonEbene() && StreifenRueckwaerts(Netz, P.Streifen, P.Rechts, P.Hoch, P.Laenge, P.Breite) < 0)
      return -1;
    if (P.Laenge >= 180) P.Laenge -= 360;
    if (!NachEbene()) return 0;
    std::int32_t Neuer = Was.Nach.Nummer;
    if (Neuer == 0 && StreifenNachLaenge(Netz.Art, P.Laenge, Neuer) < 0) return -1;
    // What is there already stays as it stands: no formula is as good.
    if (VonEbene() && Neuer == P.Streifen) return 0;
    P.Streifen = Neuer;
    return StreifenVorwaerts(Netz, Neuer, P.Laenge, P.Breite, P.Rechts, P.Hoch);
  }

  void Zählen(Verlustposten& V) {
    if (V.Anzahl++ == 0) V.Erste = P.Pnr;
  }
  void Verlieren(Verlustart Art) { Zählen(Bericht.Verluste[Art]); }

  void Schreiben() {
    ++Bericht.Punkte;
    ++Bericht.Streifen[P.Streifen];
    const double Abstand = std::fabs(Mittenabstand(Netz.Art, P.Streifen, P.Laenge));
    if (Bericht.Punkte == 1 || Abstand > Bericht.Abstand) {
      Bericht.Abstand = Abstand;
      Bericht.Fernster = P.Pnr;
    }
    if (!NachEbene() && Bericht.Punkte == 1) Kopf();
    if (ZuGroß(P.Hoehe, NachEbene() ? Grenze7 : Grenze5)) Verlieren(Verlustart::Höhen);
    if (NachEbene()) {
      // A Rechts whose first digit is that of another strip, be it by rounding, looks like one of that strip.
      const bool Fremd =
          Netz.Art == Netzart::GK && !(std::fabs(P.Rechts - P.Streifen * 1e6 - 500000) < 499999);
      if (ZuGroß(P.Rechts, Grenze7)) {
        Verlieren(Verlustart::Koordinaten);
      } else if (Fremd) {
        Zählen(Bericht.Fremde);
      }
      if (ZuGroß(P.Hoch, Grenze7)) Verlieren(Verlustart::Koordinaten);
      KorZeileAnhängen(Ziel, P.Pnr, P.Rechts, P.Hoch, P.Hoehe, P.Symbol, Was.Nachkomma);
    } else {
      if (P.Pnr.starts_with('@')) Verlieren(Verlustart::NummernAnders);
      GeographischAnhängen(Ziel, P);
    }
    Ziel += "\r\n";
  }

  void Kopf() {
    const bool Utm = Netz.Art == Netzart::UTM;
    const int Projektion =
        Utm ? P.Streifen : static_cast<int>(std::lround(Mittelmeridian(Netz.Art, P.Streifen)));
    Ziel += "@%Unit:                    m\r\n@%Coordinate type:         ";
    Ziel += Was.Kartesisch ? "Cartesian" : "Grid";
    Ziel.append("\r\n").append(Kopfwort).append(5, ' ').append(Ellipsoidname(Was));
    Ziel += "\r\n@%Projection set:          " + std::string(Utm ? "UTM-" : "GK-");
    Ziel += std::to_string(Projektion) + "\r\n";
  }

  const Umrechnung& Was;
  std::string& Ziel;
  Umrechenbericht& Bericht;
  const Streifennetz Netz;
  Wegpunkt P;
};

// Degrees on one ellipsoid are another place on another one.
bool EllipsoidErlaubt(const Umrechnung& U, const std::string& ImKopf) {
  return ImKopf.empty() || ImKopf == Ellipsoidname(U) ||
         FrageJaNein("Die Eingabe nennt das Ellipsoid " + Zitat(ImKopf) + ", gerechnet wird mit " +
                         Ellipsoidname(U) + ".\n\nTrotzdem umrechnen ?",
                     "Tavorena", KnopfNein) == KnopfJa;
}

}  // namespace

std::string Ellipsoidname(const Umrechnung& U) {
  const bool Utm = U.Von.Art == Koordinatenart::UTM || U.Nach.Art == Koordinatenart::UTM;
  return Utm ? "GRS 80" : U.Ellipsoidname;
}

bool VerschiedeneBezugssysteme(const Umrechnung& U) {
  return U.Von.Art != Koordinatenart::Geographisch && U.Nach.Art != Koordinatenart::Geographisch &&
         U.Von.Art != U.Nach.Art;
}

bool HalbachsenMöglich(double a, double b) { return a < 6.5e6 && b > 6.2e6 && a >= b; }

int TextUmrechnen(std::string_view Text, const Umrechnung& U, std::string& Ziel, Umrechenbericht& Bericht) {
  const Beschäftigung Lang;
  Atempause Pause(0.5);
  Bericht = {};
  Ziel.clear();
  Ziel.reserve(Text.size() + Text.size() / 4);
  Umrechenlauf Lauf(U, Ziel, Bericht);
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  bool Gezeigt = false, Gestoppt = false;
  for (int Nummer = 1; !Gestoppt && Leser.Nächste(Zeile); ++Nummer) {
    Lauf.Zeile(Zeile, Nummer);
    if (Nummer % 256 != 0 || !Pause.Fällig()) continue;
    const auto Gelesen = static_cast<std::size_t>(Zeile.data() - Text.data());
    StatusHilfeSetzen("Umgerechnet: " + std::to_string(Gelesen / (Text.size() / 100 + 1)) + " %");
    Gezeigt = true;
    AblaufPort().EreignisseAbarbeiten();
    Gestoppt = std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop;
  }
  if (Gezeigt) StatusHilfeSetzen("");
  return Gestoppt ? -2 : Bericht.Punkte > 0 ? 0 : -1;
}

int DateiUmrechnen(const std::string& Ein, const std::string& Aus, const Umrechnung& U,
                   Umrechenbericht& Bericht) {
  if (SelbeDatei(Ein, Aus)) {
    Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Aus);
    return -1;
  }
  std::string Text, Neu, Grund;
  if (TextdateiLesen(Ein, Text, &Grund) < 0) {
    LesefehlerMelden(Ein, Grund);
    return -1;
  }
  // A code 0 stands in no text.
  const bool Binär = Text.find('\0') != std::string::npos;
  const int Ergebnis = Binär ? -1 : TextUmrechnen(Text, U, Neu, Bericht);
  if (Ergebnis == -1) FehlerMeldung("Format nicht erkannt");
  if (Ergebnis == -2) StatusHilfeSetzen("angehalten, nichts geschrieben");
  if (Ergebnis < 0 || !EllipsoidErlaubt(U, Bericht.Kopfellipsoid) ||
      !VerlustErlaubt(Aus, Umrechenverlust(U, Bericht)))
    return -1;
  if (DateiErsetzen(Aus, Neu, &Grund) == 0) return 0;
  SpeicherfehlerMelden(Aus, Grund, "Umrechnung.Schreiben");
  return -1;
}

std::vector<int> StreifenDerDatei(const std::string& Name, const Koordinatenform& Von) {
  constexpr std::uintmax_t Höchstens = 1 << 22;  // read in no time
  std::string Text;
  std::map<int, int> Streifen;
  if (DateistandVon(Name).Länge > Höchstens || TextdateiLesen(Name, Text) < 0) return {};
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  Wegpunkt P;
  while (Leser.Nächste(Zeile)) {
    if (EbenLesen(Zeile, Von, P)) ++Streifen[P.Streifen];
  }
  std::vector<int> Nummern;
  for (const auto& [Nummer, Anzahl] : Streifen) Nummern.push_back(Nummer);
  return Nummern;
}

}  // namespace tavorena
