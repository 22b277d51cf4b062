#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/worksheets/Anschlussgitter.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

enum Spalten { SEin, SPnr, SSy, SHz, SVk, SsD, St, SRechts, SHoch, SHöhe };
constexpr const char* Rahmen = "Anschlußpunkte";

std::vector<Zeilenspalte> Zeilenspalten(bool MitHöhen) {
  return {{"Ein", 3, Zellart::Marke},
          {"Punktnr.", 9, Zellart::Nummer},
          {"Sy.", 3},
          {"Hz", 8, Zellart::Maß},
          {"Vk", 8, Zellart::Maß},
          {"sD", Längenbreite(4), Zellart::Maß},
          {"t", 5, Zellart::Maß, MitHöhen},
          {"Rechts", Längenbreite(8)},
          {"Hoch", Längenbreite(8)},
          {"Höhe", Längenbreite(4), Zellart::Ergebnis, MitHöhen}};
}

std::vector<Gitterspalte> Abweichungsspalten(bool MitHöhen) {
  return {{"Punktnr.", 8},
          {"vY", 6},
          {"vX", 6},
          {"WL", 6},
          {"dHo", 6, false, true, false, Gezeigt<bool>(MitHöhen)}};
}

}  // namespace

Anschlussgitter::Anschlussgitter(Rechenblatt& Für, bool MitHöhen, Anschlussverhalten Wie)
    : Eingaben(Für, Zeilenspalten(MitHöhen), Verhalten(), {"FStatGitter", {0, 0, 7}, Rahmen}),
      Zellen(Eingaben.Zellen),
      Abweichungen(Für.GitterAnlegen("FStatAbwGitter", Abweichungsspalten(MitHöhen), {0, 7, 5}, Rahmen)),
      Blatt(Für),
      Meldungen(std::move(Wie)) {
  Zellen.Hilfe = "Return führt von Zelle zu Zelle; Leertaste oder Klick auf \"Ein\": Punkt ein, aus";
  Zellen.BeiVerlassen = [this] { return ZelleVerlassen(); };
  Zellen.BeiText = [this] { TextGeändert(); };
  Zellen.BeiMarke = [this] { Markiert(); };
  Zellen.BeiZelle = [this] {
    if (Zellen.Zeile < Abweichungen.Zeilen()) Abweichungen.Zeile = *Zellen.Zeile;
  };
  Zellen.Markierbar = [this](int z) { return Reihen[static_cast<std::size_t>(z)].Gilt; };
  Abweichungen.Bezeichnung = "Abweichungen";
  Abweichungen.Hilfe =
      "vY, vX bekannt minus gerechnet, dHo gerechnet minus bekannt; hervorgehoben: die größte WL";
  Abweichungen.NurLesen = true;
  Abweichungen.Auffällig = [this](int z, int) { return Größte && z == *Größte; };
  Setzen({});
}

Gitterverhalten Anschlussgitter::Verhalten() {
  return {{},
          [this](int z) { return ZeileNehmen(z); },
          [this](int z) { ZeileZeigen(z); },
          [this] { Anhängen(); },
          [this] { Meldungen.Hinaus(); }};
}

// ---- the rows --------------------------------------------------------------------------------------

std::vector<Stationsanschluß> Anschlussgitter::Zeilen() const {
  std::vector<Stationsanschluß> Alle;
  for (const Reihe& R : Reihen) {
    if (R.Gilt) Alle.push_back(R.Punkt);
  }
  return Alle;
}

int Anschlussgitter::Anzahl() const {
  return static_cast<int>(
      std::count_if(Reihen.begin(), Reihen.end(), [](const Reihe& R) { return R.Gilt && R.Punkt.Ein; }));
}

std::size_t Anschlussgitter::Gewählte() const {
  const auto Hier = static_cast<std::size_t>(*Zellen.Zeile);
  if (Hier >= Reihen.size() || !Reihen[Hier].Gilt) return 0;
  return static_cast<std::size_t>(
      std::count_if(Reihen.begin(), Reihen.begin() + *Zellen.Zeile, [](const Reihe& R) { return R.Gilt; }));
}

void Anschlussgitter::Setzen(const std::vector<Stationsanschluß>& Neue) {
  Reihen.clear();
  for (const Stationsanschluß& P : Neue) Reihen.push_back({P, true, P});
  Reihen.emplace_back();
  Zellen.Leeren(static_cast<int>(Reihen.size()));
  Zellen.Fehlerhaft = false;
  Zellen.Spalte = SPnr;
  for (int z = 0; z < std::ssize(Neue); ++z) ZeileZeigen(z);
  AbweichungenFüllen(nullptr);
}

int Anschlussgitter::MessungNehmen(const Stationsmessung& M) {
  const int z = Zellen.Zeile;
  if (Trimmen(Zellen.Inhalt(z, SPnr)).empty()) return -1;
  Eingaben.EingabeZeigen(z, {Trimmen(Zellen.Inhalt(z, SPnr)), {M.Hz, M.Vk, M.Strecke, M.Zielhöhe}, ""});
  Zellen.Spalte = Eingaben.Rechenspalte();
  TextGeändert();
  return 0;
}

// A row that is typed counts from now on, once its point is known. @return false with a reason
bool Anschlussgitter::ZeileNehmen(int z) {
  Zeileneingabe E;
  Zellen.Fehlerhaft = true;
  if (!Eingaben.EingabeLesen(z, E)) return false;
  const Stationsmessung M{E.Maße[0], E.Maße[1], E.Maße[2], E.Maße[3]};
  const auto Fehlt = [&](int Spalte, const char* Was) {
    StatusHilfeSetzen(Was);
    Zellen.Spalte = Spalte;
    return false;
  };
  if (z >= Grenze) return Fehlt(SPnr, "höchstens 1001 Anschlußpunkte");
  if (E.Pnr.empty()) return Fehlt(SPnr, "Punktnummer fehlt");
  if (M.Vk == 0) return Fehlt(SVk, "Zenitdistanz fehlt");
  if (M.Strecke <= 0) return Fehlt(SsD, "Strecke fehlt");
  if (!PunktSuchen(z)) return Fehlt(SPnr, "Der Punkt ist nicht vorhanden");
  Zellen.Fehlerhaft = false;
  Reihe& R = Von(z);
  const bool Gleich = R.Gilt && R.Punkt.M == M;
  R.Neue.M = M;
  R.Neue.Ein = R.Punkt.Ein;
  R.Punkt = R.Neue;
  R.Gilt = true;
  ZeileZeigen(z);
  if (!Gleich) Meldungen.Wechsel(false);
  return true;
}

// Takes the point of the number that stands there, or has it asked for. @return false: there is none
bool Anschlussgitter::PunktSuchen(int z) {
  Wert Nummer(Trimmen(Zellen.Inhalt(z, SPnr)));
  const int Zeile = KorFind(Nummer);
  if (Zeile < 0) return false;
  const KorSatz P = KorPunkt(Zeile);
  LetztePunktnummer = Trimmen(Nummer);
  Von(z).Neue = {LetztePunktnummer, std::string(P.Symbol), {P.Rechts, P.Hoch}, P.Hoehe, {}, true};
  Zellen.InhaltSetzen(z, SPnr, LetztePunktnummer);
  PunktZeigen(z, Von(z).Neue);
  return true;
}

void Anschlussgitter::Anhängen() {
  Reihen.emplace_back();
  Eingaben.Anhängen();
}

void Anschlussgitter::Delete() {
  const int z = Zellen.Zeile;
  Blatt.FokusSetzen(Zellen);
  Zellen.Fehlerhaft = false;
  if (z + 1 < Zellen.Zeilen()) {
    Reihen.erase(Reihen.begin() + z);
    Zellen.ZeileLöschen(z);
  } else {
    Von(z) = {};
    ZeileZeigen(z);
  }
  Zellen.Spalte = SPnr;
  Meldungen.Wechsel(false);
}

bool Anschlussgitter::Lesen() {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (Von(z).Gilt || !Eingaben.HatEingabe(z)) continue;
    Zellen.Zeile = z;
    if (!ZeileNehmen(z)) return false;
    if (z + 1 == Zellen.Zeilen()) Anhängen();
  }
  return true;
}

bool Anschlussgitter::HatUnfertiges() const {
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    if (!Reihen[static_cast<std::size_t>(z)].Gilt && Eingaben.HatEingabe(z)) return true;
  }
  return false;
}

void Anschlussgitter::Nachsehen() {
  bool Anders = false;
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    Stationsanschluß& A = Von(z).Punkt;
    const int Zeile = A.Pnr.empty() ? -1 : KorSuche(std::string_view(A.Pnr));
    if (Zeile < 0) continue;
    const KorSatz P = KorPunkt(Zeile);
    if (A.Ort.RW == P.Rechts && A.Ort.HW == P.Hoch && A.Höhe == P.Hoehe) continue;
    A.Ort = {P.Rechts, P.Hoch};
    A.Höhe = P.Hoehe;
    Anders = Anders || Von(z).Gilt;
    if (Von(z).Gilt) PunktZeigen(z, A);
  }
  if (Anders) Meldungen.Wechsel(false);
}

void Anschlussgitter::Sperren(bool An) { Zellen.NurLesen = An; }

// ---- the cells -------------------------------------------------------------------------------------

// Within a row every way is open; one that is complete counts when it is left.
bool Anschlussgitter::ZelleVerlassen() {
  const int z = Zellen.Zeile, s = Zellen.Spalte;
  if (z >= std::ssize(Reihen) || Von(z).Gilt || !Eingaben.HatEingabe(z)) return true;
  if (Eingaben.Getippt(s) && !Eingaben.ZelleLesen(z, s)) return false;
  const std::string Pnr = Zellen.Inhalt(z, SPnr);
  if (s == SPnr && !Pnr.empty()) {
    if (!PunktSuchen(z)) return false;
    if (Zellen.Inhalt(z, St).empty()) Zellen.InhaltSetzen(z, St, Messwerttext(Meldungen.Reflektorhöhe()));
  }
  if (Zellen.Ziel == z || !Eingaben.Vollständig(z)) return true;
  if (!ZeileNehmen(z)) return false;
  if (z + 1 == Zellen.Zeilen()) Anhängen();
  return true;
}

void Anschlussgitter::TextGeändert() {
  const int z = Zellen.Zeile;
  if (Zellen.Spalte == SPnr) {
    for (const int s : {SSy, SRechts, SHoch, SHöhe}) Zellen.InhaltSetzen(z, s, "");
  }
  if (std::exchange(Von(z).Gilt, false)) Meldungen.Wechsel(false);
}

void Anschlussgitter::Markiert() {
  bool Anders = false;
  for (int z = 0; z < std::ssize(Reihen); ++z) {
    Reihe& R = Von(z);
    if (!R.Gilt || R.Punkt.Ein == Zellen.Markiert(z)) continue;
    R.Punkt.Ein = Zellen.Markiert(z);
    Anders = true;
  }
  if (Anders) Meldungen.Wechsel(true);
}

// Shows a row as it counts, or empty.
void Anschlussgitter::ZeileZeigen(int z) {
  Reihe& R = Von(z);
  const Stationsmessung& M = R.Punkt.M;
  const bool Leer = R.Punkt.Pnr.empty();
  Eingaben.EingabeZeigen(
      z, Leer ? Zeileneingabe() : Zeileneingabe{R.Punkt.Pnr, {M.Hz, M.Vk, M.Strecke, M.Zielhöhe}, ""});
  PunktZeigen(z, R.Punkt);
  const bool Neu = !Leer && !std::exchange(R.Gilt, true);
  Zellen.MarkeSetzen(z, !Leer && R.Punkt.Ein);
  if (Neu) Meldungen.Wechsel(false);
}

void Anschlussgitter::PunktZeigen(int z, const Stationsanschluß& A) {
  Eingaben.ErgebnisseZeigen(
      z, A.Pnr.empty() ? std::vector<std::string>()
                       : std::vector<std::string>{A.Symbol, Längentext(A.Ort.RW), Längentext(A.Ort.HW),
                                                  A.Höhe == 0 ? "" : Längentext(A.Höhe)});
}

// ---- the residuals ---------------------------------------------------------------------------------

void Anschlussgitter::AbweichungenFüllen(const Stationsergebnis* E) {
  Größte.reset();
  Abweichungen.Leeren(E == nullptr ? 0 : static_cast<int>(Reihen.size()));
  std::size_t i = 0;
  for (int z = 0; E != nullptr && z < std::ssize(Reihen); ++z) {
    if (!Von(z).Gilt) continue;
    if (E->Größte == i) Größte = z;
    const Stationsabweichung& V = E->Abweichungen[i++];
    const std::string Texte[] = {Von(z).Punkt.Pnr, ZahlFormat(V.vY, -1, 3), ZahlFormat(V.vX, -1, 3),
                                 ZahlFormat(V.WL, -1, 3), V.dHo ? ZahlFormat(*V.dHo, -1, 3) : ""};
    for (int s = 0; s < 5; ++s) Abweichungen.InhaltSetzen(z, s, Texte[s]);
  }
  if (Zellen.Zeile < Abweichungen.Zeilen()) Abweichungen.Zeile = *Zellen.Zeile;
}

void Anschlussgitter::FStatAbwGitterAn(bool An) {
  Abweichungen.Sichtbar = An;
  Zellen.Spalten[SRechts].Sichtbar = Zellen.Spalten[SHoch].Sichtbar = !An;
  Zellen.Spalten[SHöhe].Sichtbar = !An && *Zellen.Spalten[St].Sichtbar;
}

}  // namespace tavorena
