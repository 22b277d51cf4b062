#include <algorithm>
#include <cmath>

#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Textformate.h>
#include <tavorena/rawdata/Hoehenliste.h>

namespace tavorena {
namespace {

bool IstBlank(char z) { return z == ' ' || z == '\t'; }

// Where a field in '"' ends; npos: it is not closed, or something else follows.
std::size_t GequotetesEnde(std::string_view Feld, char Trenner) {
  std::size_t i = 1;
  for (; i < Feld.size(); ++i) {
    if (Feld[i] != '"') continue;
    if (i + 1 == Feld.size() || Feld[i + 1] != '"') break;
    ++i;
  }
  const std::size_t Danach = Feld.find_first_not_of(' ', i + 1);
  return i < Feld.size() && (Danach == std::string_view::npos || Feld[Danach] == Trenner)
             ? i
             : std::string_view::npos;
}

// The lists differ in where their symbol stands, and whether "," may separate.
template <bool SymbolVorn, bool MitKomma>
bool ListenzeileLesen(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
  Zeile = TrimmenSicht(Zeile);
  Feldschnitt Felder(Zeile, TrennerVon(Zeile, MitKomma));
  Punktfelder F;
  F.Pnr = Felder.Nächstes();
  if (SymbolVorn) F.Symbol = Felder.Nächstes();
  F.Rechts = Felder.Nächstes();
  F.Hoch = Felder.Nächstes();
  F.Hoehe = Felder.Nächstes();
  if (!SymbolVorn) F.Symbol = Felder.Nächstes();
  return PunktAusFeldern(F, S, Info);
}

void OhneBlanksAmEnde(std::string& Ziel) { Ziel.erase(Ziel.find_last_not_of(' ') + 1); }

void LfsZeileSchreiben(const KorSatz& S, int Nachkomma, std::string& Ziel) {
  Ziel += PnrFormat(S.Pnr);
  for (const double Wert : {S.Rechts, S.Hoch, S.Hoehe}) {
    Ziel += ' ';
    ZahlFormatAnhängen(Ziel, Wert, 7, Nachkomma);
  }
  Ziel.append(1, ' ').append(S.Symbol);
  OhneBlanksAmEnde(Ziel);
}

void GeografZeileSchreiben(const KorSatz& S, int Nachkomma, std::string& Ziel) {
  Ziel.append(TrimmenSicht(PnrFormat(S.Pnr))).append(1, ',').append(TrimmenSicht(S.Symbol));
  for (const double Wert : {S.Rechts, S.Hoch, S.Hoehe})
    Ziel.append(1, ',').append(TrimmenSicht(ZahlFormat(Wert, 7, Nachkomma)));
}

void HöheSchreiben(const KorSatz& S, int, std::string& Ziel) {
  if (S.Hoehe == 0) return;
  Ziel += Höhenzeile({std::string(S.Pnr), S.Hoehe, std::string(S.Symbol)});
  OhneBlanksAmEnde(Ziel);
}

// A word that no separator cuts.
bool OhneTrenner(std::string_view Wort) { return Wort.find_first_of(";,\"") == std::string_view::npos; }

Rückkehr ListeVoraussage(const KorSatz& S, int /*Nachkomma*/) {
  return IstSchlicht(S) && OhneTrenner(S.Pnr) && OhneTrenner(S.Symbol) ? Rückkehr::Ganz : Rückkehr::Unklar;
}

bool HöheZurückLesen(std::string_view Zeile, KorSatz& S, KorInfoSatz& /*Info*/) {
  S.Pnr = Wortnehmen(Zeile);
  const bool Gut = FeldzahlLesen(Wortnehmen(Zeile), S.Hoehe);
  S.Symbol = TrimmenSicht(Zeile);
  return Gut;
}

Formatzugang Leser(Punktformat Nummer, decltype(Formatzugang::ZeileLesen) ZeileLesen) {
  Formatzugang F{Nummer};
  F.ZeileLesen = ZeileLesen;
  return F;
}

Formatzugang Schreiber(Punktformat Nummer, decltype(Formatzugang::ZeileSchreiben) ZeileSchreiben) {
  Formatzugang F{Nummer};
  F.ZeileSchreiben = ZeileSchreiben;
  return F;
}

}  // namespace

Feldschnitt::Feldschnitt(std::string_view Zeile, char Trennzeichen) : Rest(Zeile), Trenner(Trennzeichen) {}

bool Feldschnitt::Nächstes(std::string_view& Feld) {
  Feld = {};
  if (AmEnde) return false;
  if (Trenner == ' ') {
    const auto Ab = std::find_if_not(Rest.begin(), Rest.end(), IstBlank);
    const auto Bis = std::find_if(Ab, Rest.end(), IstBlank);
    Feld = Rest.substr(static_cast<std::size_t>(Ab - Rest.begin()), static_cast<std::size_t>(Bis - Ab));
    Rest.remove_prefix(static_cast<std::size_t>(Bis - Rest.begin()));
    return !(AmEnde = Feld.empty());
  }
  const std::size_t Ab = std::min(Rest.find_first_not_of(' '), Rest.size());
  std::size_t Ende = std::string_view::npos;
  if (Ab < Rest.size() && Rest[Ab] == '"') {
    const std::size_t Zu = GequotetesEnde(Rest.substr(Ab), Trenner);
    if (Zu != std::string_view::npos) {
      Feld = Rest.substr(Ab + 1, Zu - 1);
      Ende = Rest.find(Trenner, Ab + Zu + 1);
      AmEnde = Ende == std::string_view::npos;
      Rest.remove_prefix(AmEnde ? Rest.size() : Ende + 1);
      return true;
    }
  }
  Ende = Rest.find(Trenner);
  AmEnde = Ende == std::string_view::npos;
  Feld = TrimmenSicht(Rest.substr(0, Ende));
  Rest.remove_prefix(AmEnde ? Rest.size() : Ende + 1);
  return true;
}

char TrennerVon(std::string_view Zeile, bool MitKomma) {
  const auto Hat = [Zeile](char z) { return Zeile.find(z) != std::string_view::npos; };
  return Hat(';') ? ';' : Hat('\t') ? '\t' : MitKomma && Hat(',') ? ',' : ' ';
}

bool FeldzahlLesen(std::string_view Feld, double& Zahl) {
  const bool MitExponent = Feld.find_first_of("eE") != std::string_view::npos;
  if (MitExponent || !IstZahlwort(Feld)) return false;
  const double Neu = ZahlAusText(Feld);
  if (!std::isfinite(Neu)) return false;
  Zahl = Neu;
  return true;
}

bool PunktAusFeldern(const Punktfelder& F, KorSatz& S, KorInfoSatz& Info) {
  S.Pnr = F.Pnr;
  S.Hoehe = 0;
  S.Symbol = F.Symbol;
  if (F.Pnr.empty() || !FeldzahlLesen(F.Rechts, S.Rechts) || !FeldzahlLesen(F.Hoch, S.Hoch)) return false;
  static_cast<void>(FeldzahlLesen(F.Hoehe, S.Hoehe));
  Info = {};
  Info.Punktart = KurzAusText(F.Symbol);
  S.Info = &Info;
  return true;
}

void ZeileÜbergehen(std::string_view Zeile, int Nummer, Lesebericht& B) {
  if (!TrimmenSicht(Zeile).empty() && B.Übergangen++ == 0) B.ErsteÜbergangene = Nummer;
}

Formatzugang LfsZugang() {
  Formatzugang F = Leser(Punktformat::Lfs, ListenzeileLesen<false, false>);
  F.ZeileSchreiben = LfsZeileSchreiben;
  F.Voraussage = ListeVoraussage;
  return F;
}
Formatzugang CooZugang() { return Leser(Punktformat::Coo, ListenzeileLesen<false, false>); }
Formatzugang GeoMapZugang() { return Leser(Punktformat::GeoMap, ListenzeileLesen<true, false>); }
Formatzugang GeografZugang() { return Leser(Punktformat::Geograf, ListenzeileLesen<true, true>); }
Formatzugang GeografAusZugang() {
  Formatzugang F = Schreiber(Punktformat::GeografAus, GeografZeileSchreiben);
  F.ZurückLesen = ListenzeileLesen<true, true>;
  F.Voraussage = ListeVoraussage;
  return F;
}
Formatzugang HöhenlisteZugang() {
  Formatzugang F = Schreiber(Punktformat::Höhenliste, HöheSchreiben);
  F.ZurückLesen = HöheZurückLesen;
  F.Angesagt = Verlustbit(Verlustart::Koordinaten);
  return F;
}

}  // namespace tavorena
