#include <string>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Gsipunkte.h>
#include <tavorena/exchange/Textformate.h>
#include <tavorena/rawdata/Rohdaten.h>
#include <tavorena/rawdata/Rohumwandlung.h>

namespace tavorena {
namespace {

bool Gilt(const Messwert& W) { return W.Da && W.Gelesen; }

// A code of dashes or a zero stands for none.
bool IstCode(const Messtext& Code) {
  return Code.Da && Code.Text != "0" && Code.Text.find_first_not_of('-') != std::string::npos;
}

int GsiLesen(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) {
  const Rohform Form = RohformVon(Quelle.Dateiname, Rohform::NachEndung);
  const Rohdatenwahl Wahl;
  Messsatz M;
  Codeblock Block;
  KorInfoSatz Info;
  std::string Pnr, Symbol;
  Zeilenleser Leser(Quelle.Inhalt);
  std::string_view Zeile;
  for (int Nummer = 1; Leser.Nächste(Zeile); ++Nummer) {
    const bool Gemessen = RohzeileLesen(Zeile, Form, M, Block) == Messzeile;
    if (Gemessen) Pnr = M.Nummer.Da ? Rohnummer(M.Nummer.Text, Wahl) : std::string_view();
    if (!Gemessen || Pnr.empty() || !Gilt(M.Rechts) || !Gilt(M.Hoch)) {
      ZeileÜbergehen(Zeile, Nummer, B);
      continue;
    }
    Symbol = IstCode(M.Code) ? M.Code.Text : "";
    ZeichenErsetzen(Pnr, ' ', '_');
    ZeichenErsetzen(Symbol, ' ', '_');
    Info.Punktart = KurzAusText(Symbol);
    if (!Nehmen({Pnr, M.Rechts.Wert, M.Hoch.Wert, Gilt(M.Höhe) ? M.Höhe.Wert : 0, Symbol, &Info})) break;
  }
  return 0;
}

template <GSIAusgabe Art>
Formatzugang Schreiber(Punktformat Nummer) {
  Formatzugang F{Nummer};
  F.ZeileSchreiben = [](const KorSatz& S, int, std::string& Ziel) {
    Ziel += KoordinateAlsGSI(Art, 1, S.Pnr, S.Rechts, S.Hoch, S.Hoehe, S.Symbol);
  };
  F.Schreiben = [](int, std::string& Ziel) { Ziel += TabelleAlsGSI(Art); };  // counts its lines
  return F;
}

}  // namespace

Formatzugang GsiZugang() {
  Formatzugang F{Punktformat::Gsi};
  F.Lesen = GsiLesen;
  return F;
}

Formatzugang GsiMitCodeZugang() { return Schreiber<GSIAusgabe::MitHöheUndCode>(Punktformat::GsiMitCode); }
Formatzugang GsiMitHöheZugang() { return Schreiber<GSIAusgabe::MitHöhe>(Punktformat::GsiMitHöhe); }
Formatzugang GsiOhneHöheZugang() { return Schreiber<GSIAusgabe::NurLage>(Punktformat::GsiOhneHöhe); }

}  // namespace tavorena
