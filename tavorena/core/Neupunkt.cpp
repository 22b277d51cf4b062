#include <cmath>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

std::size_t Reihe(int Zeile) { return static_cast<std::size_t>(Zeile); }

struct NeuerPunkt {
  double Rechts, Hoch;
  const Wert& Hoehe;
  const std::string& Symbol;
  const KorInfoSatz* Info;
};

int Anhängen(const std::string& Pnr, const NeuerPunkt& P) {
  if (KorAnzahl >= KorZeilen) {
    LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Koordinatenmodul.Neupunkt");
    return -1;
  }
  const std::size_t z = Reihe(KorAnzahl);
  KorPnrSetzen(KorAnzahl, Pnr);
  KorRechts[z] = P.Rechts;
  KorHoch[z] = P.Hoch;
  KorHoehe[z] = P.Hoehe.Zahl();
  KorSymbol[z] = P.Symbol;
  KorInfo[z] = P.Info != nullptr ? *P.Info : KorInfoSatz{};
  if (P.Info == nullptr) KorInfo[z].Punktart = PunktartVon(P.Symbol);
  ++KorAnzahl;
  KorAnzahlAnzeigen();
  KorSortieren();
  return 0;
}

void AltenErsetzen(int Zeile, const NeuerPunkt& P) {
  KorRechts[Reihe(Zeile)] = P.Rechts;
  KorHoch[Reihe(Zeile)] = P.Hoch;
  KorHoehe[Reihe(Zeile)] = P.Hoehe.Zahl();
  KorSymbol[Reihe(Zeile)] = P.Symbol;
}

void Mitteln(int Zeile, const NeuerPunkt& P) {
  const std::size_t z = Reihe(Zeile);
  Mittelpunkt Mittel{KorPnr(Zeile), KorRechts[z], KorHoch[z], P.Rechts, P.Hoch};
  Mittel.Rechts = KorRechts[z] = (KorRechts[z] + P.Rechts) / 2;
  Mittel.Hoch = KorHoch[z] = (KorHoch[z] + P.Hoch) / 2;
  if (KorHoehe[z] == 0) {
    if (P.Hoehe.IstGegeben()) KorHoehe[z] = P.Hoehe.Zahl();
  } else if (P.Hoehe.Zahl() != 0) {
    KorHoehe[z] = (KorHoehe[z] + P.Hoehe.Zahl()) / 2;
  }
  if (KorSymbol[z].empty()) KorSymbol[z] = P.Symbol;
  if (Haken.MittelEintragen) Haken.MittelEintragen(Mittel);
}

Konfliktantwort Fragen(const Konflikt& Frage) {
  Konfliktantwort Antwort;
  do {
    Antwort = Haken.PunktVorhandenBehandeln ? Haken.PunktVorhandenBehandeln(Frage) : Konfliktantwort{};
  } while (Antwort.Wort == "RÜC");
  Antwort.NeuePnr = std::string(TrimmenSicht(Antwort.NeuePnr));
  return Antwort;
}

int AlterNeueNummer(int Zeile, const NeuerPunkt& P, const Konfliktantwort& Antwort,
                    NeupunktErgebnis& Ergebnis) {
  if (KorAnzahl >= KorZeilen) return Anhängen(Ergebnis.Pnr, P);  // reports the full table, changes nothing
  Ergebnis.Rechts = KorRechts[Reihe(Zeile)];
  Ergebnis.Hoch = KorHoch[Reihe(Zeile)];
  Ergebnis.AlterPnr = Antwort.NeuePnr;
  KorPnrSetzen(Zeile, Antwort.NeuePnr);
  KorSortieren();
  Anhängen(Ergebnis.Pnr, P);
  return 3;
}

int AntwortAusführen(int Zeile, const NeuerPunkt& P, const Konfliktantwort& Antwort,
                     NeupunktErgebnis& Ergebnis) {
  if (Antwort.Wort == "ALÖ") {
    AltenErsetzen(Zeile, P);
    return 1;
  }
  if (Antwort.Wort == "MIT" || Antwort.Wort == "NLÖ") {
    if (Antwort.Wort == "MIT") Mitteln(Zeile, P);
    Ergebnis.Rechts = KorRechts[Reihe(Zeile)];
    Ergebnis.Hoch = KorHoch[Reihe(Zeile)];
    if (Antwort.Wort == "MIT") return 2;
    Ergebnis.Pnr = KorPnr(Zeile);
    return 11;
  }
  if (Antwort.NeuePnr.empty()) return -1;
  if (Antwort.Wort == "ANN") return AlterNeueNummer(Zeile, P, Antwort, Ergebnis);
  if (Antwort.Wort == "NNN") {
    Ergebnis.AlterPnr = std::exchange(Ergebnis.Pnr, Antwort.NeuePnr);
    return Anhängen(Ergebnis.Pnr, P) < 0 ? -1 : 13;
  }
  return -1;
}

}  // namespace

int KorFind(Wert& Pnr) {
  for (;;) {
    const int Zeile = KorSuche(Pnr);
    if (Zeile >= 0) return Zeile;
    const int Ergebnis = Haken.FormEinzelKorein ? Haken.FormEinzelKorein(Pnr) : -1;
    if (Ergebnis < 0) return Ergebnis;
  }
}

int Neupunkt(Wert& Pnr, double Rechts, double Hoch, const Wert& Hoehe, const std::string& Symbol,
             const KorInfoSatz* Info, NeupunktErgebnis& Ergebnis) {
  KoordinatenGeaendert = true;
  Ergebnis = {0, 0, Pnr.IstText() ? Pnr.Text() : ZahlNachText(Pnr).Text(), Rechts, Hoch, {}};
  if (TrimmenSicht(Ergebnis.Pnr).empty()) return -1;
  const NeuerPunkt P{Rechts, Hoch, Hoehe, Symbol, Info};
  const int Zeile = KorSuche(Pnr);
  if (Zeile < 0) return Anhängen(Ergebnis.Pnr, P);
  Ergebnis.DeltaRechts = Rechts - KorRechts[Reihe(Zeile)];
  Ergebnis.DeltaHoch = Hoch - KorHoch[Reihe(Zeile)];
  const Konfliktantwort Antwort = Fragen({Ergebnis.Pnr, Zeile, Rechts, Hoch, Hoehe, Symbol});
  const int Code = AntwortAusführen(Zeile, P, Antwort, Ergebnis);
  if (Code == 11 || Code == 13) Pnr = Wert(Ergebnis.Pnr);
  return Code;
}

}  // namespace tavorena
