#include <algorithm>
#include <cstring>
#include <numeric>
#include <unordered_set>
#include <utility>

#include <tavorena/core/Ports.h>
#include <tavorena/core/Sortierung.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {

namespace {

std::size_t Reihe(int Zeile) { return static_cast<std::size_t>(Zeile); }

// Up to eight bytes stand for themselves, so that equal keys mean equal numbers nearly always.
std::uint64_t SchlüsselVon(std::string_view Getrimmt) {
  std::uint64_t Schlüssel = 0;
  if (Getrimmt.size() > sizeof Schlüssel) return std::hash<std::string_view>{}(Getrimmt);
  if (!Getrimmt.empty()) std::memcpy(&Schlüssel, Getrimmt.data(), Getrimmt.size());
  return Schlüssel;
}

struct Punkttabelle {
  int Anzahl = 0;
  int Benutzt = 0;  // rows behind this one are as the table was made
  bool Geändert = false;
  bool MitKomma = false;  // a number may hold a ","
  std::uint64_t Stand = 0;
  std::vector<std::string> Nummern = std::vector<std::string>(KorZeilen);
  std::vector<Sortierwert> Sortierwerte = std::vector<Sortierwert>(KorZeilen);       // of each number
  std::vector<std::uint64_t> Suchschlüssel = std::vector<std::uint64_t>(KorZeilen);  // of each trimmed number
  std::vector<double> Rechts = std::vector<double>(KorZeilen), Hoch = Rechts, Hoehe = Rechts;
  // What is found through its place, so that a sort need not move it.
  std::vector<std::string> Symbole = Nummern;
  std::vector<KorInfoSatz> Infosätze = std::vector<KorInfoSatz>(KorZeilen);
  std::vector<std::uint16_t> Platz = std::vector<std::uint16_t>(KorZeilen);

  Punkttabelle() { PlätzeOrdnen(); }
  // An empty table is filled in the order of the places.
  void PlätzeOrdnen() { std::iota(Platz.begin(), Platz.end(), std::uint16_t{0}); }
  std::string& Symbol(int Zeile) { return Symbole[Platz[Reihe(Zeile)]]; }
  KorInfoSatz& Info(int Zeile) { return Infosätze[Platz[Reihe(Zeile)]]; }

  void Schreiben(int Zeile, const KorSatz& S) {
    const std::size_t z = Reihe(Zeile);
    Nummern[z].assign(S.Pnr);
    Sortierwerte[z] = SortierwertVon(S.Pnr);
    Suchschlüssel[z] = SchlüsselVon(TrimmenSicht(S.Pnr));
    if (S.Pnr.find(',') != std::string_view::npos) MitKomma = true;
    Rechts[z] = S.Rechts;
    Hoch[z] = S.Hoch;
    Hoehe[z] = S.Hoehe;
    Symbol(Zeile).assign(S.Symbol);
    if (S.Info == nullptr) {
      Info(Zeile) = {};
    } else if (S.Info != &Info(Zeile)) {
      Info(Zeile) = *S.Info;
    }
    Benutzt = std::max(Benutzt, Zeile + 1);
  }

  void Kopieren(int Nach, int Von, bool MitSymbol, bool MitInfo) {
    const std::size_t n = Reihe(Nach), v = Reihe(Von);
    Nummern[n] = Nummern[v];
    Sortierwerte[n] = Sortierwerte[v];
    Suchschlüssel[n] = Suchschlüssel[v];
    Rechts[n] = Rechts[v];
    Hoch[n] = Hoch[v];
    Hoehe[n] = Hoehe[v];
    if (MitSymbol) Symbol(Nach) = Symbol(Von);
    if (MitInfo) Info(Nach) = Info(Von);
    Benutzt = std::max(Benutzt, Nach + 1);
  }
};

Punkttabelle Tabelle;

void GeändertSetzen(bool Geändert) {
  if (std::exchange(Tabelle.Geändert, Geändert) != Geändert && Haken.GeaendertGewechselt)
    Haken.GeaendertGewechselt();
}

// Every change comes by here before it happens. A sort alone asks for no saving.
void Vor(KorTat Tat, int Von, int Bis, std::span<const int> Folge = {}) {
  if (Haken.VorÄnderung) Haken.VorÄnderung({Tat, Von, Bis, Folge});
  ++Tabelle.Stand;
  if (Tat != KorTat::Ordnen) GeändertSetzen(true);
}

}  // namespace

const int& KorAnzahl = Tabelle.Anzahl;
const std::vector<double>&KorRechts = Tabelle.Rechts, &KorHoch = Tabelle.Hoch, &KorHoehe = Tabelle.Hoehe;
const bool& KoordinatenGeaendert = Tabelle.Geändert;
const std::uint64_t& KorStand = Tabelle.Stand;
std::string KoordinatendateiName;
Dateiformat Koordinatendateiformat = Dateiformat::Kor;
Laufwunsch KorStop = Laufwunsch::Weiter;
KoordinatenHaken Haken;

const std::string& KorPnr(int Zeile) { return Tabelle.Nummern[Reihe(Zeile)]; }

KorSatz KorPunkt(int Zeile) {
  const Punkttabelle& T = Tabelle;
  const std::size_t z = Reihe(Zeile);
  return {T.Nummern[z], T.Rechts[z], T.Hoch[z], T.Hoehe[z], KorSymbol[z], &KorInfo[z]};
}

const std::string& KorSymbolSpalte::operator[](std::size_t Zeile) const {
  return Tabelle.Symbole[Tabelle.Platz[Zeile]];
}

const KorInfoSatz& KorInfoSpalte::operator[](std::size_t Zeile) const {
  return Tabelle.Infosätze[Tabelle.Platz[Zeile]];
}

int KorZeileSetzen(int Zeile, const KorSatz& Satz) {
  if (Zeile < 0 || Zeile >= KorAnzahl) return -1;
  Vor(KorTat::Setzen, Zeile, Zeile + 1);
  Tabelle.Schreiben(Zeile, Satz);
  return 0;
}

int KorAnhängen(const KorSatz& Satz) {
  if (KorAnzahl >= KorZeilen) return -1;
  Vor(KorTat::Erweitern, KorAnzahl, KorAnzahl + 1);
  Tabelle.Schreiben(Tabelle.Anzahl++, Satz);
  return 0;
}

void KorAbschneiden(int Anzahl) {
  if (Anzahl < 0 || Anzahl >= KorAnzahl) return;
  Vor(KorTat::Streichen, Anzahl, KorAnzahl);
  Tabelle.Anzahl = Anzahl;
  if (Anzahl == 0) Tabelle.PlätzeOrdnen();
}

int KorAbbilden(const std::function<int(const KorSpalten&)>& Abbildung) {
  Punkttabelle& T = Tabelle;
  const std::size_t n = Reihe(T.Anzahl);
  if (n > 0) Vor(KorTat::Abbilden, 0, T.Anzahl);
  return Abbildung({std::span(T.Rechts).first(n), std::span(T.Hoch).first(n), std::span(T.Hoehe).first(n)});
}

void KorGeaendertSetzen(bool Geaendert) { GeändertSetzen(Geaendert); }

struct KorBeiseite::Inhalt {
  Punkttabelle Punkte;
  std::string Name;
  Dateiformat Format = Dateiformat::Kor;
  Laufwunsch Stop = Laufwunsch::Weiter;

  void Tauschen() {
    std::swap(Punkte, Tabelle);
    std::swap(Name, KoordinatendateiName);
    std::swap(Format, Koordinatendateiformat);
    std::swap(Stop, KorStop);
  }
};

KorBeiseite::KorBeiseite() : Beiseite(std::make_unique<Inhalt>()) { Beiseite->Tauschen(); }

KorBeiseite::~KorBeiseite() { Beiseite->Tauschen(); }

void KorLeeren() {
  KorAbschneiden(0);
  for (int i = 0; i < Tabelle.Benutzt; ++i) Tabelle.Schreiben(i, {});
  Tabelle.Benutzt = 0;
  Tabelle.MitKomma = false;
  GeändertSetzen(false);
  KoordinatendateiName.clear();
  Koordinatendateiformat = Dateiformat::Kor;
  KorStop = Laufwunsch::Weiter;
}

int KorSuche(std::string_view Pnr) {
  const std::string_view Gesucht = TrimmenSicht(Pnr);
  const std::uint64_t Schlüssel = SchlüsselVon(Gesucht);
  const auto Anfang = Tabelle.Suchschlüssel.cbegin(), Ende = Anfang + KorAnzahl;
  for (auto i = Anfang; (i = std::find(i, Ende, Schlüssel)) != Ende; ++i) {
    const auto Zeile = static_cast<int>(i - Anfang);
    if (TrimmenSicht(KorPnr(Zeile)) == Gesucht) return Zeile;
  }
  return -1;
}

int KorSuche(const Wert& Pnr) {
  if (Pnr.IstText()) return KorSuche(std::string_view(Pnr.Text()));
  return KorSuche(std::string_view(Trimmen(Pnr)));
}

int KorSucheMitPunkt(Wert& Pnr) {
  const int Zeile = KorSuche(Pnr);
  if (Zeile >= 0 || Pnr.Text().find(',') == std::string::npos) return Zeile;
  std::string MitPunkt = Pnr.Text();
  ZeichenErsetzen(MitPunkt, ',', '.');
  const int Andere = KorSuche(std::string_view(MitPunkt));
  if (Andere >= 0) Pnr = Wert(std::move(MitPunkt));
  return Andere;
}

int KorLoeschen(int Zeile) {
  if (KorAnzahl == 0 || Zeile < 0 || Zeile > KorAnzahl - 1) return -1;
  Vor(KorTat::Streichen, Zeile, KorAnzahl);
  for (int i = Zeile; i < KorAnzahl - 1; ++i) Tabelle.Kopieren(i, i + 1, true, true);
  --Tabelle.Anzahl;
  KorAnzahlAnzeigen();
  return 0;
}

void KorBereichLoeschen(int Von, int Bis) {
  if (KorAnzahl == 0 || Von < 0 || Von > KorAnzahl - 1 || Bis > KorAnzahl - 1 || Von > Bis) return;
  Vor(KorTat::Streichen, Von, KorAnzahl);
  int Ziel = Von;
  // The symbols stay where they are on purpose: other jobs expect this table.
  for (int i = Bis + 1; i < KorAnzahl; ++i) Tabelle.Kopieren(Ziel++, i, false, true);
  Tabelle.Anzahl = Ziel;
  KorAnzahlAnzeigen();
}

void KorEinfuegen(int Zeile, const Wert& Pnr, double Rechts, double Hoch, double Hoehe,
                  const std::string& Symbol, const KorInfoSatz& Info) {
  if (KorAnzahl == 0 || Zeile < 0 || Zeile > KorAnzahl) return;
  if (KorAnzahl >= KorZeilen)
    return LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Koordinatenmodul.KorEinfuegen");
  const bool MitInfo = Koordinatendateiformat != Dateiformat::Kor;
  Vor(KorTat::Einschieben, Zeile, KorAnzahl + 1);
  for (int i = KorAnzahl; i > Zeile; --i) Tabelle.Kopieren(i, i - 1, true, MitInfo);
  Tabelle.Schreiben(
      Zeile, {ZahlNachText(Pnr).Text(), Rechts, Hoch, Hoehe, Symbol, MitInfo ? &Info : &Tabelle.Info(Zeile)});
  ++Tabelle.Anzahl;
  KorAnzahlAnzeigen();
}

void KorSortieren() {
  static std::vector<int> Folge;  // kept between calls: a sort runs after every new point
  Punkttabelle& T = Tabelle;
  const std::size_t n = Reihe(T.Anzahl);
  const auto Nummern = std::span(T.Nummern).first(n);
  const std::vector<int> Kommas = T.MitKomma ? KommaZeilen(Nummern) : std::vector<int>();
  if (!Kommas.empty()) Vor(KorTat::Ordnen, 0, T.Anzahl);  // on the way a comma becomes a point
  const bool Geordnet = SortierfolgeErmitteln(Nummern, std::span(T.Sortierwerte).first(n), Kommas, Folge);
  T.MitKomma = false;
  for (const int z : Kommas) {
    T.Sortierwerte[Reihe(z)] = SortierwertVon(T.Nummern[Reihe(z)]);
    T.Suchschlüssel[Reihe(z)] = SchlüsselVon(TrimmenSicht(T.Nummern[Reihe(z)]));
    T.MitKomma = T.MitKomma || T.Nummern[Reihe(z)].find(',') != std::string::npos;
  }
  if (Geordnet) return;
  if (Kommas.empty()) Vor(KorTat::Ordnen, 0, T.Anzahl, Folge);
  SpaltenOrdnen(Folge, T.Nummern, T.Sortierwerte, T.Suchschlüssel, T.Rechts, T.Hoch, T.Hoehe, T.Platz);
}

int AnzahlDoppelte() {
  int Anzahl = 0;
  for (int i = 1; i < KorAnzahl; ++i) {
    if (KorPnr(i) == KorPnr(i - 1)) ++Anzahl;
  }
  return Anzahl;
}

bool DoppelteVorhanden() {
  // Numbers whose values rise from row to row, nearly every file, are all different.
  const auto Anfang = Tabelle.Sortierwerte.begin(), Ende = Anfang + KorAnzahl;
  const auto SteigtNicht = [](const Sortierwert& A, const Sortierwert& B) { return A.Zahl >= B.Zahl; };
  if (std::adjacent_find(Anfang, Ende, SteigtNicht) == Ende) return false;
  std::vector<std::uint64_t> Schlüssel(Tabelle.Suchschlüssel.begin(),
                                       Tabelle.Suchschlüssel.begin() + KorAnzahl);
  std::sort(Schlüssel.begin(), Schlüssel.end());
  if (std::adjacent_find(Schlüssel.begin(), Schlüssel.end()) == Schlüssel.end()) return false;
  // Equal keys are equal numbers nearly always.
  std::unordered_set<std::string_view> Nummern;
  for (int i = 0; i < KorAnzahl; ++i) {
    if (!Nummern.insert(TrimmenSicht(KorPnr(i))).second) return true;
  }
  return false;
}

void KorBereich(double& MinRechts, double& MinHoch, double& MaxRechts, double& MaxHoch) {
  MinRechts = MinHoch = 999999999.999;
  MaxRechts = MaxHoch = -99999999.999;  // smaller than the other by a factor of ten on purpose
  for (std::size_t i = 0; i < Reihe(KorAnzahl); ++i) {
    MinRechts = std::min(MinRechts, KorRechts[i]);
    MinHoch = std::min(MinHoch, KorHoch[i]);
    MaxRechts = std::max(MaxRechts, KorRechts[i]);
    MaxHoch = std::max(MaxHoch, KorHoch[i]);
  }
}

int KorBereichSuche(const Wert& Von, const Wert& Bis, int Start) {
  if (KorAnzahl == 0 || Start >= KorAnzahl - 1) return -3;
  const double Unten = Von.Zahl(), Oben = Bis.Zahl();
  for (int i = std::max(Start + 1, 0); i < KorAnzahl; ++i) {
    const double Nummer = Tabelle.Sortierwerte[Reihe(i)].Zahl;
    if (Nummer > Oben) return -1;  // the table is sorted
    if (Nummer >= Unten) return i;
  }
  return -1;
}

void KorVerschieben(double dRechts, double dHoch, double dHoehe, int NegRechts, int NegHoch, int NegHoehe,
                    int Tausch) {
  KorAbbilden([&](const KorSpalten& S) {
    for (std::size_t i = 0; i < S.Rechts.size(); ++i) {
      double r = (NegRechts == 1 ? -S.Rechts[i] : S.Rechts[i]) + dRechts;
      double h = (NegHoch == 1 ? -S.Hoch[i] : S.Hoch[i]) + dHoch;
      double z = (NegHoehe == 1 ? -S.Hoehe[i] : S.Hoehe[i]) + dHoehe;
      if (Tausch == 1) Tauschen(r, h);
      if (Tausch == 2) Tauschen(h, z);
      if (Tausch == 3) Tauschen(r, z);
      S.Rechts[i] = r;
      S.Hoch[i] = h;
      S.Hoehe[i] = z;
    }
    return 0;
  });
}

void KorAnzahlAnzeigen(const std::string& Zusatz) {
  AnzeigePort().StatusSetzen(Statusfeld::StatusKordanz, Zusatz + std::to_string(KorAnzahl) + " Punkte");
}

int ListeFind(std::string_view Pnr, const std::vector<std::string>& Liste, int Anzahl) {
  std::vector<int> Indizes;
  return ListeFindAlle(Liste, Anzahl, Pnr, Indizes) > 0 ? Indizes.front() : -1;
}

int ListeFindAlle(const std::vector<std::string>& Liste, int Anzahl, std::string_view Wert,
                  std::vector<int>& Indizes, int Maximum) {
  Indizes.clear();
  const auto Ende = std::min(Reihe(std::max(Anzahl, 0)), Liste.size());
  for (std::size_t i = 0; i < Ende; ++i) {
    if (TrimmenSicht(Liste[i]) != TrimmenSicht(Wert)) continue;
    if (Maximum > 0 && Indizes.size() == Reihe(Maximum)) return -2;
    Indizes.push_back(static_cast<int>(i));
  }
  return Indizes.empty() ? -1 : static_cast<int>(Indizes.size());
}

}  // namespace tavorena
