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

int Anfügen(const std::string& Pnr, const NeuerPunkt& P) {
  KorInfoSatz Ohne;
  Ohne.Punktart = PunktartVon(P.Symbol);
  if (KorAnhängen({Pnr, P.Rechts, P.Hoch, P.Hoehe.Zahl(), P.Symbol, P.Info != nullptr ? P.Info : &Ohne}) <
      0) {
    LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Koordinatenmodul.Neupunkt");
    return -1;
  }
  KorAnzahlAnzeigen();
  KorSortieren();
  return 0;
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
  } while (Antwort.Wort == "RÜC");
  Antwort.NeuePnr = std::string(TrimmenSicht(Antwort.NeuePnr));
  return Antwort;
}

int AlterNeueNummer(int Zeile, const NeuerPunkt& P, const Konfliktantwort& Antwort,
                    NeupunktErgebnis& Ergebnis) {
  if (KorAnzahl >= KorZeilen) return Anfügen(Ergebnis.Pnr, P);  // reports the full table, changes nothing
  KorSatz Satz = KorPunkt(Zeile);
  Ergebnis.Rechts = Satz.Rechts;
  Ergebnis.Hoch = Satz.Hoch;
  Ergebnis.AlterPnr = Satz.Pnr = Antwort.NeuePnr;
  if (KorZeileSetzen(Zeile, Satz) < 0) return -1;
  KorSortieren();
  return Anfügen(Ergebnis.Pnr, P) < 0 ? -1 : 3;
}

int AntwortAusführen(int Zeile, const NeuerPunkt& P, const Konfliktantwort& Antwort,
                     NeupunktErgebnis& Ergebnis) {
  if (Antwort.Wort == "ALÖ") return AltenErsetzen(Zeile, P) < 0 ? -1 : 1;
  if (Antwort.Wort == "MIT" || Antwort.Wort == "NLÖ") {
    if (Antwort.Wort == "MIT" && Mitteln(Zeile, P) < 0) return -1;
    Ergebnis.Rechts = KorPunkt(Zeile).Rechts;
    Ergebnis.Hoch = KorPunkt(Zeile).Hoch;
    if (Antwort.Wort == "MIT") return 2;
    Ergebnis.Pnr = KorPnr(Zeile);
    return 11;
  }
  if (Antwort.NeuePnr.empty()) return -1;
  if (Antwort.Wort == "ANN") return AlterNeueNummer(Zeile, P, Antwort, Ergebnis);
  if (Antwort.Wort == "NNN") {
    Ergebnis.AlterPnr = std::exchange(Ergebnis.Pnr, Antwort.NeuePnr);
    return Anfügen(Ergebnis.Pnr, P) < 0 ? -1 : 13;
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
  KorGeaendertSetzen(true);  // also if nothing is stored: settled behaviour
  Ergebnis = {0, 0, Pnr.IstText() ? Pnr.Text() : ZahlNachText(Pnr).Text(), Rechts, Hoch, {}};
  if (TrimmenSicht(Ergebnis.Pnr).empty()) return -1;
  const NeuerPunkt P{Rechts, Hoch, Hoehe, Symbol, Info};
  const int Zeile = KorSuche(Pnr);
  if (Zeile < 0) return Anfügen(Ergebnis.Pnr, P);
  Ergebnis.DeltaRechts = Rechts - KorPunkt(Zeile).Rechts;
  Ergebnis.DeltaHoch = Hoch - KorPunkt(Zeile).Hoch;
  const Konfliktantwort Antwort = Fragen({Ergebnis.Pnr, Zeile, Rechts, Hoch, Hoehe, Symbol});
  const int Code = AntwortAusführen(Zeile, P, Antwort, Ergebnis);
  if (Code == 11 || Code == 13) Pnr = Wert(Ergebnis.Pnr);
  return Code;
}

}  // namespace tavorena
