#include <algorithm>
#include <string>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
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

// The reader of a line; it holds what the views of a point lie in.
class Gsizeile {
 public:
  bool Lesen(std::string_view Zeile, Rohform Form, KorSatz& S, KorInfoSatz& Info) {
    if (RohzeileLesen(Zeile, Form, M, Block) != Messzeile || !M.Nummer.Da || !Gilt(M.Rechts) || !Gilt(M.Hoch))
      return false;
    Pnr = Rohnummer(M.Nummer.Text, {});
    Symbol = IstCode(M.Code) ? M.Code.Text : "";
    ZeichenErsetzen(Pnr, ' ', '_');
    ZeichenErsetzen(Symbol, ' ', '_');
    Info = {};
    Info.Punktart = KurzAusText(Symbol);
    S = {Pnr, M.Rechts.Wert, M.Hoch.Wert, Gilt(M.Höhe) ? M.Höhe.Wert : 0, Symbol, &Info};
    return !Pnr.empty();
  }

 private:
  Messsatz M;
  Codeblock Block;
  std::string Pnr, Symbol;
};

int GsiLesen(const Punktquelle& Quelle, const Punktnehmer& Nehmen, Lesebericht& B) {
  const Rohform Form = RohformVon(Quelle.Dateiname, Rohform::NachEndung);
  Gsizeile Punkt;
  KorSatz S;
  KorInfoSatz Info;
  Zeilenleser Leser(Quelle.Inhalt);
  std::string_view Zeile;
  for (int Nummer = 1; Leser.Nächste(Zeile); ++Nummer) {
    if (!Punkt.Lesen(Zeile, Form, S, Info)) {
      ZeileÜbergehen(Zeile, Nummer, B);
    } else if (!Nehmen(S)) {
      break;
    }
  }
  return 0;
}

bool GsiZurückLesen(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
  static Gsizeile Punkt;
  return Punkt.Lesen(Zeile, Rohform::GSI, S, Info);
}

// Letters and digits that fit 16 places.
bool PasstInsWort(std::string_view Text) {
  return Text.size() <= 16 && std::all_of(Text.begin(), Text.end(), [](char z) {
           return (z >= '0' && z <= '9') || (z >= 'A' && z <= 'Z') || (z >= 'a' && z <= 'z');
         });
}

Rückkehr GsiVoraussage(const KorSatz& S, int /*Nachkomma*/) {
  const bool Gut =
      IstSchlicht(S) && PasstInsWort(S.Pnr) && PasstInsWort(S.Symbol) && !Nullenlos(S.Pnr).empty();
  return Gut ? Rückkehr::OhneNullen : Rückkehr::Unklar;
}

template <GSIAusgabe Art>
Formatzugang Schreiber(Punktformat Nummer, unsigned Angesagt = 0) {
  Formatzugang F{Nummer};
  F.ZurückLesen = GsiZurückLesen;
  F.Voraussage = GsiVoraussage;
  F.Angesagt = Angesagt;
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
Formatzugang GsiMitHöheZugang() {
  return Schreiber<GSIAusgabe::MitHöhe>(Punktformat::GsiMitHöhe, Verlustbit(Verlustart::Symbole));
}
Formatzugang GsiOhneHöheZugang() {
  return Schreiber<GSIAusgabe::NurLage>(Punktformat::GsiOhneHöhe,
                                        Verlustbit(Verlustart::Symbole) | Verlustbit(Verlustart::Höhen));
}

}  // namespace tavorena
