#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

struct NeuerPunkt {
  double Rechts, Hoch;
  const Wert& Hoehe;
  const std::string& Symbol;
  const KorInfoSatz* Info;
};

// A number that was just sorted in, as the table holds it.
void Nachlesen(std::string& Pnr) {
  if (Pnr.find(',') == std::string::npos) return;
  Wert Gesucht(Pnr);
  if (KorSucheMitPunkt(Gesucht) >= 0) Pnr = Gesucht.Text();
}

// @return Wie; Nichts if the table is full
NeupunktCode Anfügen(std::string& Pnr, const NeuerPunkt& P, NeupunktCode Wie) {
  KorInfoSatz Ohne;
  Ohne.Punktart = KurzAusText(P.Symbol);
  if (KorAnhängen({Pnr, P.Rechts, P.Hoch, P.Hoehe.Zahl(), P.Symbol, P.Info != nullptr ? P.Info : &Ohne}) <
      0) {
    LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Koordinatenmodul.Neupunkt");
    return NeupunktCode::Nichts;
  }
  KorAnzahlAnzeigen();
  KorSortieren();
  Nachlesen(Pnr);
  return Wie;
}

int AltenErsetzen(int Zeile, const NeuerPunkt& P) {
  KorSatz Satz = KorPunkt(Zeile);
  Satz.Rechts = P.Rechts;
  Satz.Hoch = P.Hoch;
  Satz.Hoehe = P.Hoehe.Zahl();
  Satz.Symbol = P.Symbol;
  return KorZeileSetzen(Zeile, Satz);
}

int Mitteln(int Zeile, const NeuerPunkt& P) {
  KorSatz Satz = KorPunkt(Zeile);
  Mittelpunkt Mittel{std::string(Satz.Pnr), Satz.Rechts, Satz.Hoch, P.Rechts, P.Hoch};
  Mittel.Rechts = Satz.Rechts = (Satz.Rechts + P.Rechts) / 2;
  Mittel.Hoch = Satz.Hoch = (Satz.Hoch + P.Hoch) / 2;
  if (Satz.Hoehe == 0) {
    if (P.Hoehe.IstGegeben()) Satz.Hoehe = P.Hoehe.Zahl();
  } else if (P.Hoehe.Zahl() != 0) {
    Satz.Hoehe = (Satz.Hoehe + P.Hoehe.Zahl()) / 2;
  }
  if (Satz.Symbol.empty()) Satz.Symbol = P.Symbol;
  if (KorZeileSetzen(Zeile, Satz) < 0) return -1;
  if (Haken.MittelEintragen) Haken.MittelEintragen(Mittel);
  return 0;
}

Konfliktantwort Fragen(const Konflikt& Frage) {
  Konfliktantwort Antwort;
  do {
    Antwort = Haken.PunktVorhandenBehandeln ? Haken.PunktVorhandenBehandeln(Frage) : Konfliktantwort{};
  } while (Antwort.Wort == Konfliktwort::Nochmal);
  Antwort.NeuePnr = std::string(TrimmenSicht(Antwort.NeuePnr));
  return Antwort;
}

NeupunktCode AlterNeueNummer(int Zeile, const NeuerPunkt& P, const std::string& NeuePnr,
                             NeupunktErgebnis& Ergebnis) {
  // A full table is reported, and stays as it is.
  if (KorAnzahl >= KorZeilen) return Anfügen(Ergebnis.Pnr, P, NeupunktCode::Nichts);
  KorSatz Satz = KorPunkt(Zeile);
  Ergebnis.Rechts = Satz.Rechts;
  Ergebnis.Hoch = Satz.Hoch;
  Ergebnis.AlterPnr = NeuePnr;
  Satz.Pnr = NeuePnr;
  if (KorZeileSetzen(Zeile, Satz) < 0) return NeupunktCode::Nichts;
  KorSortieren();
  const NeupunktCode Code = Anfügen(Ergebnis.Pnr, P, NeupunktCode::AlterNeunum);
  Nachlesen(Ergebnis.AlterPnr);
  return Code;
}

NeupunktCode AntwortAusführen(int Zeile, const NeuerPunkt& P, const Konfliktantwort& Antwort,
                              NeupunktErgebnis& Ergebnis) {
  switch (Antwort.Wort) {
    case Konfliktwort::AltenErsetzen:
      return AltenErsetzen(Zeile, P) < 0 ? NeupunktCode::Nichts : NeupunktCode::AlterErsetzt;
    case Konfliktwort::Mitteln:
      if (Mitteln(Zeile, P) < 0) return NeupunktCode::Nichts;
      Ergebnis.Rechts = KorPunkt(Zeile).Rechts;
      Ergebnis.Hoch = KorPunkt(Zeile).Hoch;
      return NeupunktCode::Gemittelt;
    case Konfliktwort::NeuenVerwerfen:
      Ergebnis.Pnr = KorPnr(Zeile);
      Ergebnis.Rechts = KorPunkt(Zeile).Rechts;
      Ergebnis.Hoch = KorPunkt(Zeile).Hoch;
      return NeupunktCode::NeuerVerworfen;
    case Konfliktwort::AltenNeunum:
      if (Antwort.NeuePnr.empty()) break;
      return AlterNeueNummer(Zeile, P, Antwort.NeuePnr, Ergebnis);
    case Konfliktwort::NeuenNeunum:
      if (Antwort.NeuePnr.empty()) break;
      Ergebnis.AlterPnr = std::exchange(Ergebnis.Pnr, Antwort.NeuePnr);
      return Anfügen(Ergebnis.Pnr, P, NeupunktCode::NeuerNeunum);
    case Konfliktwort::Abbrechen:
    case Konfliktwort::Nochmal:
      break;
  }
  return NeupunktCode::Nichts;
}

}  // namespace

int KorFind(Wert& Pnr) {
  for (;;) {
    const int Zeile = KorSucheMitPunkt(Pnr);
    if (Zeile >= 0) return Zeile;
    const int Ergebnis = Haken.FormEinzelKorein ? Haken.FormEinzelKorein(Pnr) : -1;
    if (Ergebnis < 0) return Ergebnis;
  }
}

NeupunktCode Neupunkt(Wert& Pnr, double Rechts, double Hoch, const Wert& Hoehe, const std::string& Symbol,
                      const KorInfoSatz* Info, NeupunktErgebnis& Ergebnis) {
  KorGeaendertSetzen(true);  // also if nothing is stored: settled behaviour
  const int Zeile = KorSucheMitPunkt(Pnr);
  Ergebnis = {0, 0, Pnr.IstText() ? Pnr.Text() : ZahlNachText(Pnr).Text(), Rechts, Hoch, {}};
  if (TrimmenSicht(Ergebnis.Pnr).empty()) return NeupunktCode::Nichts;
  const NeuerPunkt P{Rechts, Hoch, Hoehe, Symbol, Info};
  const std::string Gegeben = Ergebnis.Pnr;
  NeupunktCode Code = NeupunktCode::Nichts;
  if (Zeile < 0) {
    Code = Anfügen(Ergebnis.Pnr, P, NeupunktCode::Neu);
  } else {
    Ergebnis.DeltaRechts = Rechts - KorPunkt(Zeile).Rechts;
    Ergebnis.DeltaHoch = Hoch - KorPunkt(Zeile).Hoch;
    const Konfliktantwort Antwort = Fragen({Ergebnis.Pnr, Zeile, Rechts, Hoch, Hoehe, Symbol});
    Code = AntwortAusführen(Zeile, P, Antwort, Ergebnis);
  }
  if (Code != NeupunktCode::Nichts && Ergebnis.Pnr != Gegeben) Pnr = Wert(Ergebnis.Pnr);
  return Code;
}

}  // namespace tavorena
