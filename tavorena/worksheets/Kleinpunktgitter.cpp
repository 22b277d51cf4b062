#include <algorithm>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/records/FStat.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/Kleinpunktgitter.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

enum Spalten { SPnr, SHz, SVk, SsD, St, SSy, SLinie };

std::vector<Zeilenspalte> Zeilenspalten(bool MitHöhen) {
  return {{"Punktnr.", 9, Zellart::Nummer},
          {"Hz", 8, Zellart::Maß},
          {"Vk", 8, Zellart::Maß},
          {"sD", Längenbreite(4), Zellart::Maß},
          {"t", 5, Zellart::Maß, MitHöhen},
          {"Sy.", 3, Zellart::Symbol},
          {"Linie", 8, Zellart::Wort, true, [](std::string& Text) { return WortPrüfen(Text); }},
          {"Rechts", Längenbreite(8)},
          {"Hoch", Längenbreite(8)},
          {"Höhe", Längenbreite(4), Zellart::Ergebnis, MitHöhen}};
}

Stationsmessung Messung(const Zeileneingabe& E) { return {E.Maße[0], E.Maße[1], E.Maße[2], E.Maße[3]}; }

Zeileneingabe Zeile(const Kleinpunkteingabe& K) {
  return {K.Pnr, {K.M.Hz, K.M.Vk, K.M.Strecke, K.M.Zielhöhe}, K.Symbol, K.Linie};
}

}  // namespace

Kleinpunktgitter::Kleinpunktgitter(Rechenblatt& Für, bool MitHöhen, Kleinpunktverhalten Wie)
    : Eingaben(Für, Zeilenspalten(MitHöhen), Verhalten(), {"FStatPolarGitter", {0, 0}, "Polare Punkte"}),
      Zellen(Eingaben.Zellen),
      Blatt(Für),
      Kunde(std::move(Wie)) {
  Zellen.Spalten[SLinie].Rechtsbündig = true;
  Zellen.Spalten[SLinie].IstPnr = true;  // "+" and "-" step it, and a point can be picked for it
  Zellen.Hilfe = "Return führt von Zelle zu Zelle und rechnet; \"Pkte übernehmen\" speichert und schreibt";
  Zellen.BeiVerlassen = [this] { return ZelleVerlassen(); };
  Zellen.BeiText = [this] { TextGeändert(); };
  Setzen({});
}

Gitterverhalten Kleinpunktgitter::Verhalten() {
  return {[this](int z) {
            Rechenzeile Neu;  // one that was stored stands as it was written until it is committed again
            return Reihe(z).Wo.Geschrieben ? ZeileRechnen(z, Neu) : ZeileAbschließen(z);
          },
          [this](int z) { return ZeileAbschließen(z); }, [this](int z) { ZeileZeigen(z); },
          [this] { Anhängen(); }, [this] { Kunde.Hinaus(); }};
}

// ---- the rows --------------------------------------------------------------------------------------

void Kleinpunktgitter::Setzen(const std::vector<Kleinpunkteingabe>& Neue) {
  Beiseite.reset();
  Reihen.clear();
  Reihen.resize(Neue.size() + 1);
  Zellen.Leeren(static_cast<int>(Reihen.size()));
  Zellen.Fehlerhaft = false;
  for (std::size_t i = 0; i < Neue.size(); ++i) {
    static_cast<Zeileneingabe&>(Reihen[i]) = Zeile(Neue[i]);
    Eingaben.EingabeZeigen(static_cast<int>(i), Reihen[i]);
  }
}

std::vector<Kleinpunkteingabe> Kleinpunktgitter::Zeilen() const {
  std::vector<Kleinpunkteingabe> Alle;
  for (const Rechenzeile& Z : Reihen) {
    if (!Z.Pnr.empty()) Alle.push_back({Z.Pnr, Messung(Z), Z.Symbol, Z.Wort});
  }
  return Alle;
}

void Kleinpunktgitter::AllesRechnen() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    Rechenzeile& Z = Reihe(z);
    if (Z.Pnr.empty() || Z.Wo.Geschrieben) continue;
    const Stationspunkt P = Kunde.Rechnen(Messung(Z));
    Z.Ort = P.Ort;
    Z.Hoehe = P.Höhe != 0 ? Wert(P.Höhe) : Wert();
    ErgebnisseZeigen(z, Z);
    Markieren(z);
  }
}

int Kleinpunktgitter::MessungNehmen(const Stationsmessung& M, const std::string& Symbol) {
  const int z = Zellen.Zeile;
  Kleinpunkteingabe K{Trimmen(Zellen.Inhalt(z, SPnr)), M, Symbol, Trimmen(Zellen.Inhalt(z, SLinie))};
  if (K.Pnr.empty()) return -1;
  if (K.Symbol.empty()) K.Symbol = Trimmen(Zellen.Inhalt(z, SSy));
  Eingaben.EingabeZeigen(z, Zeile(K));
  Zellen.Spalte = SLinie;  // Return takes the row
  return 0;
}

bool Kleinpunktgitter::Lesen() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (!Reihe(z).Pnr.empty() || !Eingaben.HatEingabe(z)) continue;
    Zellen.Zeile = z;
    if (!ZeileAbschließen(z)) return false;
    if (z + 1 == Zellen.Zeilen()) Anhängen();
  }
  return true;
}

int Kleinpunktgitter::Platz(std::size_t n) const {
  int z = 0;
  while (Reihe(z).Pnr.empty() || n-- > 0) ++z;
  return z;
}

int Kleinpunktgitter::Ändern(std::size_t n, const Kleinpunkteingabe& K) {
  const int z = Platz(n);
  const Zeileneingabe& Alte = Reihe(z);
  const Zeileneingabe Vorher = Alte;  // what was typed, without its result
  if (Vorher == Zeile(K)) return 0;
  Eingaben.EingabeZeigen(z, Zeile(K));
  if (ZeileAbschließen(z)) return 0;
  ZeileZeigen(z);
  return static_cast<const Zeileneingabe&>(Reihe(z)) == Vorher ? -1 : 1;
}

bool Kleinpunktgitter::Entfernen(std::size_t n) { return Herausnehmen(Platz(n)); }

bool Kleinpunktgitter::Hinzufügen(const Kleinpunkteingabe& K) {
  const int z = static_cast<int>(Reihen.size()) - 1;
  Eingaben.EingabeZeigen(z, Zeile(K));
  if (!ZeileAbschließen(z)) return false;
  Anhängen();
  return true;
}

void Kleinpunktgitter::BeiseiteLegen(const std::vector<Kleinpunkteingabe>& Neue) {
  std::vector<Rechenzeile> Alte = std::move(Reihen);
  Setzen(Neue);
  Beiseite = std::move(Alte);
}

std::vector<Kleinpunkteingabe> Kleinpunktgitter::Zurückholen() {
  std::vector<Kleinpunkteingabe> Neue = Zeilen();
  std::vector<Rechenzeile> Alte = std::move(*Beiseite);
  Setzen({});
  Reihen = std::move(Alte);
  Zellen.Leeren(static_cast<int>(Reihen.size()));
  for (int z = 0; z < std::ssize(Reihen); ++z) ZeileZeigen(z);
  return Neue;
}

bool Kleinpunktgitter::HatOffenes() const {
  if (Beiseite && std::any_of(Beiseite->begin(), Beiseite->end(),
                              [](const Rechenzeile& Z) { return !Z.Pnr.empty() && !Z.Wo.Geschrieben; }))
    return true;
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (!Reihe(z).Wo.Geschrieben && Eingaben.HatEingabe(z)) return true;
  }
  return false;
}

bool Kleinpunktgitter::HatGespeichertes() const {
  return std::any_of(Reihen.begin(), Reihen.end(), [](const Rechenzeile& Z) { return Z.Wo.Geschrieben; });
}

void Kleinpunktgitter::Anhängen() {
  if (std::ssize(Reihen) > Grenze) return;
  Reihen.emplace_back();
  Eingaben.Anhängen();
}

// ---- what a row goes through -----------------------------------------------------------------------

// Reads and computes a row that is typed, and shows what comes of it. @return false with a reason
bool Kleinpunktgitter::ZeileRechnen(int z, Rechenzeile& Neu) {
  Zellen.Fehlerhaft = true;
  if (!Eingaben.EingabeLesen(z, Neu) || !Berechnen(z, Neu)) return false;
  Zellen.Fehlerhaft = false;
  LetztePunktnummer = Neu.Pnr;
  ErgebnisseZeigen(z, Neu);
  return true;
}

// @return false with a reason
bool Kleinpunktgitter::Berechnen(int z, Rechenzeile& Neu) {
  const auto Fehlt = [&](int Spalte, const char* Was) {
    StatusHilfeSetzen(Was);
    Zellen.Spalte = Spalte;
    return false;
  };
  const Stationsmessung M = Messung(Neu);
  if (z >= Grenze) return Fehlt(SPnr, "höchstens 10001 polare Punkte");
  if (Neu.Pnr.empty()) return Fehlt(SPnr, "Punktnummer fehlt");
  if (M.Vk == 0) return Fehlt(SVk, "Zenitdistanz fehlt");
  if (M.Strecke <= 0) return Fehlt(SsD, "Strecke fehlt");
  const Stationspunkt P = Kunde.Rechnen(M);
  if (!StapelZahlPaßt(P.Ort.RW) || !StapelZahlPaßt(P.Ort.HW))
    return Fehlt(SsD, "Der Punkt liegt zu fern: mehr als 7 Stellen vor dem Komma");
  Neu.Ort = P.Ort;
  if (P.Höhe != 0) Neu.Hoehe = P.Höhe;
  return true;
}

// Behind its last cell a row waits to be stored; one that was stored is written anew.
bool Kleinpunktgitter::ZeileAbschließen(int z) {
  Rechenzeile Neu;
  if (!ZeileRechnen(z, Neu)) return false;
  const bool Stand = Reihe(z).Wo.Geschrieben;
  if (Stand && static_cast<Zeileneingabe&>(Neu) == static_cast<Zeileneingabe&>(Reihe(z))) {
    ZeileZeigen(z);
    return true;
  }
  if (Stand && Streichen(z) < 0) return false;
  Neu.Wo = Reihe(z).Wo;
  Reihe(z) = std::move(Neu);
  ZeileZeigen(z);
  Markieren(z);
  return !Stand || Speichern(z) == 0;
}

int Kleinpunktgitter::Übernehmen(int& Gespeichert, int& Ausgelassen) {
  Gespeichert = Ausgelassen = 0;
  if (!Lesen()) return -1;
  const Punktreihe Lauf;
  const Beschäftigung Lang;
  Atempause Pause(0.5);
  KorStop = Laufwunsch::Weiter;
  for (int z = 0; z < std::ssize(Reihen) && KorStop != Laufwunsch::Stop; ++z) {
    if (Reihe(z).Pnr.empty() || Reihe(z).Wo.Geschrieben) continue;
    const int Ergebnis = Speichern(z);
    if (Ergebnis == -2) return -1;
    ++(Ergebnis == 0 ? Gespeichert : Ausgelassen);
    if (!Pause.Fällig()) continue;
    StatusHilfeSetzen(Anzahltext(Gespeichert, "Punkt", "Punkte"));
    AblaufPort().EreignisseAbarbeiten();
  }
  KorStop = Laufwunsch::Weiter;
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (!Reihe(z).Wort.empty()) Markieren(z);  // the point of its line may have come behind it
  }
  return 0;
}

// Table, protocol and batch file. @return 0; -2: not written; -3: not to be stored
int Kleinpunktgitter::Speichern(int z) {
  Rechenzeile& Z = Reihe(z);
  Z.Ablage = std::make_unique<Punktablage>();
  if (Z.Ablage->Eintragen(Blatt.Akten, Z.Pnr, Z.Ort, Z.Hoehe, Z.Symbol) < 0) return -3;
  LetztePunktnummer = Z.Pnr;
  Block B = Protokollieren(Z, "");
  const std::vector<std::string> Notiz = Z.Ablage->Notizzeilen();
  B.Zeilen.insert(B.Zeilen.end(), Notiz.begin(), Notiz.end());
  const Stationsmessung M = Messung(Z);
  const std::string Satz =
      Blatt.ImStapel() ? "" : FStatPolarSatz({{Z.Pnr, M.Hz, M.Vk, M.Strecke, M.Zielhöhe}, Z.Symbol, Z.Wort});
  const bool Geschrieben = Blatt.Akten.Zeile(B, Satz, Z.Wo) == 0;
  ZeileZeigen(z);
  Markieren(z);
  return Geschrieben ? 0 : -2;
}

Block Kleinpunktgitter::Protokollieren(const Rechenzeile& Z, const std::string& Marke) const {
  const Stationsmessung M = Messung(Z);
  return PolarZeile(Optionen.OptNachkommastellen,
                    {{Z.Ort.RW, Z.Ort.HW, Z.Pnr}, Z.Hoehe, M.Hz, M.Vk, M.Strecke, 0}, Marke);
}

int Kleinpunktgitter::Eintragen(const Kleinpunkteingabe& K) {
  const int z = Zellen.Zeilen() - 1;
  Rechenzeile Neu;
  static_cast<Zeileneingabe&>(Neu) = Zeile(K);
  int Ergebnis = -1;
  if (Berechnen(z, Neu)) {
    Reihe(z) = std::move(Neu);
    Ergebnis = Speichern(z);
  }
  if (Ergebnis == -2) return -2;
  if (Ergebnis < 0) {
    Reihe(z) = {};
    ZeileZeigen(z);
    return -1;
  }
  Anhängen();
  Zellen.Zeile = Zellen.Zeilen() - 1;
  return 0;
}

int Kleinpunktgitter::Streichen(int z) {
  Rechenzeile& Z = Reihe(z);
  if (Blatt.Akten.Streichen(Protokollieren(Z, MarkeGelöscht), Z.Wo) < 0) {
    StatusHilfeSetzen("Die Zeile bleibt: die Stapeldatei wurde von anderer Seite geändert");
    ZeileZeigen(z);
    return -1;
  }
  if (Z.Ablage && Z.Ablage->Zurück() < 0)
    StatusHilfeSetzen("Punkt " + Z.Pnr + " bleibt: inzwischen geändert");
  Z.Bild.Löschen();
  return 0;
}

void Kleinpunktgitter::Delete() {
  Blatt.FokusSetzen(Zellen);
  static_cast<void>(Herausnehmen(Zellen.Zeile));
}

bool Kleinpunktgitter::Herausnehmen(int z) {
  if (Reihe(z).Wo.Geschrieben && Streichen(z) < 0) return false;
  Reihe(z) = {};
  if (z + 1 < Zellen.Zeilen()) {
    Reihen.erase(Reihen.begin() + z);
    Zellen.ZeileLöschen(z);
  } else {
    ZeileZeigen(z);
  }
  Zellen.Fehlerhaft = false;
  return true;
}

// ---- graphics --------------------------------------------------------------------------------------

// A stored row is joined besides with the point that its column "Linie" names.
void Kleinpunktgitter::Markieren(int z) {
  Rechenzeile& Z = Reihe(z);
  const Lage Von = Kunde.Standpunkt();
  Z.Bild.Löschen();
  Z.Bild.Zeilenlinie(Z.Wo.Geschrieben, Von, Z.Ort);
  Z.Bild.Zeilenpunkt(Z.Wo.Geschrieben, Z.Pnr, Z.Ort);
  const int Nach = Z.Wort.empty() || !Z.Wo.Geschrieben ? -1 : KorSuche(std::string_view(Z.Wort));
  if (Nach < 0) return;
  const KorSatz P = KorPunkt(Nach);
  Z.Bild.Linie({P.Rechts, P.Hoch, Z.Ort.RW, Z.Ort.HW, FarbeSchwarz, Strich::Breit});
}

void Kleinpunktgitter::GrafikKleinpunktLöschen() {
  for (Rechenzeile& Z : Reihen) Z.Bild.Löschen();
}

// ---- the cells -------------------------------------------------------------------------------------

void Kleinpunktgitter::ErgebnisseZeigen(int z, const Rechenzeile& Z) {
  Eingaben.ErgebnisseZeigen(
      z, Z.Pnr.empty()
             ? std::vector<std::string>()
             : std::vector<std::string>{Längentext(Z.Ort.RW), Längentext(Z.Ort.HW), Längentext(Z.Hoehe)});
}

void Kleinpunktgitter::ZeileZeigen(int z) {
  Eingaben.EingabeZeigen(z, Reihe(z));
  ErgebnisseZeigen(z, Reihe(z));
}

// What stands in the grid is what was written; a new row that is complete is computed when it is left.
bool Kleinpunktgitter::ZelleVerlassen() {
  const int z = Zellen.Zeile, s = Zellen.Spalte;
  if (z >= std::ssize(Reihen)) return true;
  const bool Bleibt = Zellen.Ziel == z;
  if (Reihe(z).Wo.Geschrieben && !Bleibt) {
    ZeileZeigen(z);
    return true;
  }
  if (!Eingaben.HatEingabe(z)) return true;
  if (!Eingaben.ZelleLesen(z, s)) return false;
  const bool Begonnen = s == SPnr && !Zellen.Inhalt(z, SPnr).empty();
  if (Begonnen && Zellen.Inhalt(z, St).empty())
    Zellen.InhaltSetzen(z, St, Messwerttext(Kunde.Reflektorhöhe()));
  if (Bleibt || !Reihe(z).Pnr.empty() || !Eingaben.Vollständig(z)) return true;
  if (!ZeileAbschließen(z)) return false;
  if (z + 1 == Zellen.Zeilen()) Anhängen();
  return true;
}

// Results that do not belong to what is typed would mislead.
void Kleinpunktgitter::TextGeändert() {
  const int z = Zellen.Zeile, s = Zellen.Spalte;
  if (s == SHz || s == SVk || s == SsD || s == St) ErgebnisseZeigen(z, {});
  Rechenzeile& Z = Reihe(z);
  if (Z.Wo.Geschrieben) return;
  Z.Pnr.clear();
  Z.Bild.Löschen();
}

}  // namespace tavorena
