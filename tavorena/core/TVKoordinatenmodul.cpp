#include <algorithm>
#include <cstring>

#include <tavorena/core/Ports.h>
#include <tavorena/core/Sortierung.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {

int KorAnzahl = 0;
std::vector<double> KorRechts(KorZeilen), KorHoch(KorZeilen), KorHoehe(KorZeilen);
std::vector<std::string> KorSymbol(KorZeilen);
std::vector<KorInfoSatz> KorInfo(KorZeilen);
std::string KoordinatendateiName;
std::int16_t Koordinatendateiformat = 0;
bool KoordinatenGeaendert = false;
std::string KorStop;
KoordinatenHaken Haken;

namespace {

std::vector<std::string> Nummern(KorZeilen);
std::vector<double> Zahlwerte(KorZeilen);             // ZahlAusText of each number, for the sort
std::vector<std::uint64_t> Suchschlüssel(KorZeilen);  // of each trimmed number, for the search
bool MitKomma = false;                                // a number may hold a ","

std::size_t Reihe(int Zeile) { return static_cast<std::size_t>(Zeile); }

// Up to eight bytes stand for themselves, so that equal keys mean equal numbers nearly always.
std::uint64_t SchlüsselVon(std::string_view Getrimmt) {
  std::uint64_t Schlüssel = 0;
  if (Getrimmt.size() > sizeof Schlüssel) return std::hash<std::string_view>{}(Getrimmt);
  std::memcpy(&Schlüssel, Getrimmt.data(), Getrimmt.size());
  return Schlüssel;
}

void ZeileKopieren(int Nach, int Von, bool MitSymbol, bool MitInfo) {
  const std::size_t n = Reihe(Nach), v = Reihe(Von);
  Nummern[n] = Nummern[v];
  Zahlwerte[n] = Zahlwerte[v];
  Suchschlüssel[n] = Suchschlüssel[v];
  KorRechts[n] = KorRechts[v];
  KorHoch[n] = KorHoch[v];
  KorHoehe[n] = KorHoehe[v];
  if (MitSymbol) KorSymbol[n] = KorSymbol[v];
  if (MitInfo) KorInfo[n] = KorInfo[v];
}

}  // namespace

KorSatz KorPunkt(int Zeile) {
  const std::size_t z = Reihe(Zeile);
  return {Nummern[z], KorRechts[z], KorHoch[z], KorHoehe[z], KorSymbol[z], &KorInfo[z]};
}

const std::string& KorPnr(int Zeile) { return Nummern[Reihe(Zeile)]; }

void KorPnrSetzen(int Zeile, std::string_view Pnr) {
  Nummern[Reihe(Zeile)].assign(Pnr);
  Zahlwerte[Reihe(Zeile)] = ZahlAusText(Pnr);
  Suchschlüssel[Reihe(Zeile)] = SchlüsselVon(TrimmenSicht(Pnr));
  if (Pnr.find(',') != std::string_view::npos) MitKomma = true;
}

void KorLeeren() {
  for (int i = 0; i < KorZeilen; ++i) KorPnrSetzen(i, "");
  for (auto* Spalte : {&KorRechts, &KorHoch, &KorHoehe}) std::fill(Spalte->begin(), Spalte->end(), 0.0);
  std::fill(KorSymbol.begin(), KorSymbol.end(), std::string());
  std::fill(KorInfo.begin(), KorInfo.end(), KorInfoSatz());
  KorAnzahl = 0;
  MitKomma = false;
  KoordinatendateiName.clear();
  Koordinatendateiformat = 0;
  KoordinatenGeaendert = false;
  KorStop.clear();
}

int KorSuche(std::string_view Pnr) {
  const std::string_view Gesucht = TrimmenSicht(Pnr);
  const std::uint64_t Schlüssel = SchlüsselVon(Gesucht);
  const auto Ende = Suchschlüssel.begin() + KorAnzahl;
  for (auto i = Suchschlüssel.begin(); (i = std::find(i, Ende, Schlüssel)) != Ende; ++i) {
    const auto Zeile = static_cast<int>(i - Suchschlüssel.begin());
    if (TrimmenSicht(KorPnr(Zeile)) == Gesucht) return Zeile;
  }
  return -1;
}

int KorSuche(const Wert& Pnr) {
  if (Pnr.IstText()) return KorSuche(std::string_view(Pnr.Text()));
  return KorSuche(std::string_view(Trimmen(Pnr)));
}

int KorLoeschen(int Zeile) {
  if (KorAnzahl == 0 || Zeile < 0 || Zeile > KorAnzahl - 1) return -1;
  KoordinatenGeaendert = true;
  for (int i = Zeile; i < KorAnzahl - 1; ++i) ZeileKopieren(i, i + 1, true, true);
  --KorAnzahl;
  KorAnzahlAnzeigen();
  return 0;
}

void KorBereichLoeschen(int Von, int Bis) {
  if (KorAnzahl == 0 || Von < 0 || Von > KorAnzahl - 1 || Bis > KorAnzahl - 1 || Von > Bis) return;
  KoordinatenGeaendert = true;
  int Ziel = Von;
  // The symbols stay where they are on purpose: other jobs expect this table.
  for (int i = Bis + 1; i < KorAnzahl; ++i) ZeileKopieren(Ziel++, i, false, true);
  KorAnzahl = Ziel;
  KorAnzahlAnzeigen();
}

void KorEinfuegen(int Zeile, const Wert& Pnr, double Rechts, double Hoch, double Hoehe,
                  const std::string& Symbol, const KorInfoSatz& Info) {
  if (KorAnzahl == 0 || Zeile < 0 || Zeile > KorAnzahl) return;
  if (KorAnzahl >= KorZeilen)
    return LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Koordinatenmodul.KorEinfuegen");
  const bool MitInfo = Koordinatendateiformat != 0;
  KoordinatenGeaendert = true;
  for (int i = KorAnzahl; i > Zeile; --i) ZeileKopieren(i, i - 1, true, MitInfo);
  KorPnrSetzen(Zeile, ZahlNachText(Pnr).Text());
  KorRechts[Reihe(Zeile)] = Rechts;
  KorHoch[Reihe(Zeile)] = Hoch;
  KorHoehe[Reihe(Zeile)] = Hoehe;
  KorSymbol[Reihe(Zeile)] = Symbol;
  if (MitInfo) KorInfo[Reihe(Zeile)] = Info;
  ++KorAnzahl;
  KorAnzahlAnzeigen();
}

void KorSortieren() {
  if (KorAnzahl == 0) return;
  static std::vector<int> Folge;  // kept between calls: a sort runs after every new point
  const int Ergebnis = SortierfolgeErmitteln(std::span(Nummern).first(Reihe(KorAnzahl)),
                                             std::span(Zahlwerte).first(Reihe(KorAnzahl)), MitKomma, Folge);
  if (Ergebnis < 0) LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Koordinatenmodul.KorSortieren");
  // A comma that became a point changes the key of the search.
  for (int i = 0; MitKomma && i < KorAnzahl; ++i)
    Suchschlüssel[Reihe(i)] = SchlüsselVon(TrimmenSicht(KorPnr(i)));
  if (Ergebnis == 0) {
    SpaltenOrdnen(Folge, Nummern, Zahlwerte, Suchschlüssel, KorRechts, KorHoch, KorHoehe, KorSymbol, KorInfo);
  }
}

int AnzahlDoppelte() {
  int Anzahl = 0;
  for (int i = 1; i < KorAnzahl; ++i) {
    if (KorPnr(i) == KorPnr(i - 1)) ++Anzahl;
  }
  return Anzahl;
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
    const double Nummer = Zahlwerte[Reihe(i)];
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

int KorAbbilden(const std::function<int(const KorSpalten&)>& Abbildung) {
  if (KorAnzahl > 0) KoordinatenGeaendert = true;
  const std::size_t n = Reihe(KorAnzahl);
  return Abbildung(
      {std::span(KorRechts).first(n), std::span(KorHoch).first(n), std::span(KorHoehe).first(n)});
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
