#include <algorithm>
#include <cmath>
#include <limits>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

std::string StapelZahl(double Zahl) { return ZahlFormat(Zahl, 7, 4); }
std::string StapelLangzahl(double Zahl) { return ZahlFormat(Zahl, 10, 4); }
std::string StapelAblesung(double Zahl) {
  constexpr int Breite = 13;
  return std::isnan(Zahl) ? RechtsBündig("-", Breite) : ZahlFormat(Zahl, 7, 5);
}

// How many words of the line the keyword is; 0 if it does not stand there. Rest is what follows.
int Worte(std::string_view Schlüssel, const Stapelzeile& Z, std::string_view& Rest) {
  if (Wortnehmen(Schlüssel) != Z.Schlüssel) return 0;
  Rest = Z.Rest;
  int Anzahl = 1;
  for (std::string_view W; !(W = Wortnehmen(Schlüssel)).empty(); ++Anzahl) {
    if (Großtext(Wortnehmen(Rest)) != W) return 0;
  }
  return Anzahl;
}

// The form of S that a line is: the longest of several keywords that begin alike. @return the words of the
// keyword; 0 if the line is another record
int Treffer(const Stapelsatz& S, const Stapelzeile& Z, std::size_t& Form, std::string_view& Rest) {
  int Meiste = 0;
  for (std::size_t i = 0; i < S.Formen.size(); ++i) {
    std::string_view Hinter;
    const int Anzahl = Worte(S.Formen[i].Schlüssel, Z, Hinter);
    if (Anzahl <= Meiste) continue;
    Meiste = Anzahl;
    Form = i;
    Rest = Hinter;
  }
  return Meiste;
}

void Nehmen(const Stapelsatz& S, std::size_t Form, std::string_view Rest) {
  if (S.Wählen) S.Wählen(Form);
  for (const Satzfeld& F : S.Formen[Form].Felder) F.Nehmen(Rest);
}

Satzfolge Anschlusssätze(std::string& AnfPnr, double& AnfWert, std::string& EndPnr, double& EndWert) {
  Satzfolge F;
  F.Pflicht({"PAN ", {satz::Pnr(AnfPnr), satz::Zahl(AnfWert)}});
  F.Pflicht({"PEN ", {satz::Pnr(EndPnr), satz::Zahl(EndWert)}});
  return F;
}

Stapelsatz PnrSatz(std::string_view Schlüssel, std::string& Pnr) { return {Schlüssel, {satz::Pnr(Pnr)}}; }

Stapelsatz ZweiPnrSatz(std::string_view Schlüssel, std::string& Pnr1, std::string& Pnr2, double& Wert) {
  return {Schlüssel, {satz::Pnr(Pnr1), satz::Pnr(Pnr2), satz::Zahl(Wert)}};
}

bool IstSteuerzeichen(char z) { return static_cast<unsigned char>(z) < 32 || z == 127; }

}  // namespace

void Satzfeld::Anfügen(std::string& Zeile, bool Erstes) const {
  if (Form == Art::Messzahl || Form == Art::Langzahl) {
    Zeile += Form == Art::Messzahl ? ZahlFormat(*Wert, 9, 4) : StapelLangzahl(*Wert);
    return;
  }
  if ((Form == Art::WeiterePnr || Form == Art::WeitererText) && Worte->empty()) return;
  if (!Erstes) Zeile += "  ";
  if (Wert != nullptr) {
    Zeile += Form == Art::Zahl       ? StapelZahl(*Wert)
             : Form == Art::Ablesung ? StapelAblesung(*Wert)
                                     : Trimmen(*Wert);
    return;
  }
  if (Form == Art::Neupunkt) {
    Zeile +=
        Worte->empty() ? "       0  -   -" : PnrFormat(*Worte) + "  " + (Symbol->empty() ? "-" : *Symbol);
    return;
  }
  const bool MitStrich = Worte->empty() && (Form == Art::Wort || Form == Art::NeuePnr);
  const std::string Text = MitStrich ? "-" : *Worte;
  const bool IstNummer = Form == Art::Pnr || Form == Art::NeuePnr || Form == Art::WeiterePnr;
  Zeile += IstNummer ? PnrFormat(Text) : Text;
}

void Satzfeld::Nehmen(std::string_view& Rest) const {
  if (Form == Art::Text || Form == Art::WeitererText) {
    *Worte = TrimmenSicht(std::exchange(Rest, {}));
    return;
  }
  const std::string_view Wort = Wortnehmen(Rest);
  if (Wert != nullptr) {
    const bool Keins = Form == Art::Ablesung && (Wort.empty() || Wort == "-");
    *Wert = Keins ? std::numeric_limits<double>::quiet_NaN() : ZahlAusText(Wort);
    return;
  }
  const bool Keine =
      (Wort == "-" && (Form == Art::Wort || Form == Art::NeuePnr)) || (Wort == "0" && Form == Art::Neupunkt);
  *Worte = Keine ? std::string_view() : Wort;
  if (Symbol != nullptr) Satzfeld(Art::Wort, *Symbol).Nehmen(Rest);
}

std::string SatzZeile(const Stapelsatz& S) {
  const Satzform& Form = S.Form();
  std::string Zeile(Form.Schlüssel);
  for (const Satzfeld& F : Form.Felder) F.Anfügen(Zeile, &F == &Form.Felder.front());
  return Zeile;
}

int SatzLesen(const Stapelsatz& S) {
  Stapelzeile Z;
  const int Ergebnis = StapelNächsterSatz(Z);
  if (Ergebnis < 0) return Ergebnis;
  std::size_t Form = 0;
  std::string_view Rest;
  if (Treffer(S, Z, Form, Rest) == 0) return StapelAblehnen(Z);
  Nehmen(S, Form, Rest);
  return 0;
}

std::vector<std::string> Satzfolge::Zeilen() const {
  std::vector<std::string> Ziel;
  for (const Platz& P : Plätze) {
    if (P.Schreiben) {
      P.Schreiben(Ziel);
      continue;
    }
    const auto& Felder = P.Satz.Form().Felder;
    if (P.Art != Bedarf::Wahl || (P.An != nullptr ? *P.An : Felder.front().Gefüllt()))
      Ziel.push_back(SatzZeile(P.Satz));
  }
  return Ziel;
}

const Satzfolge::Platz* Satzfolge::Fehlender() const {
  const auto P = std::find_if(Plätze.begin(), Plätze.end(),
                              [](const Platz& X) { return X.Art == Bedarf::Pflicht && !X.Gelesen; });
  return P != Plätze.end() ? &*P : nullptr;
}

int Satzfolge::EinenLesen() {
  Stapelzeile Z;
  const int Ergebnis = StapelNächsterSatz(Z);
  if (Ergebnis < 0 || StapelRissNehmen(Z)) return Ergebnis;
  Platz* Bester = nullptr;
  int Meiste = 0;
  std::size_t Form = 0;
  std::string_view Rest;
  for (Platz& P : Plätze) {
    if (P.Gelesen) continue;
    std::size_t f = 0;
    std::string_view r;
    const int Anzahl = Treffer(P.Satz, Z, f, r);
    if (Anzahl <= Meiste) continue;
    Bester = &P;
    Meiste = Anzahl;
    Form = f;
    Rest = r;
  }
  if (Bester == nullptr) return StapelAblehnen(Z);
  if (Bester->Art == Bedarf::Liste) {
    Nehmen(Bester->NeueZeile(), Form, Rest);
    return 0;
  }
  Bester->Gelesen = true;
  if (Bester->An != nullptr) *Bester->An = true;
  Nehmen(Bester->Satz, Form, Rest);
  return 0;
}

int Satzfolge::KopfLesen() {
  while (Fehlender() != nullptr) {
    const int Ergebnis = EinenLesen();
    if (Ergebnis < 0) return Ergebnis;
  }
  return 0;
}

int Satzfolge::BlockLesen() {
  int Ergebnis = 0;
  while ((Ergebnis = EinenLesen()) == 0) {
  }
  if (Ergebnis == -1) return -1;
  const Platz* const P = Fehlender();
  if (P == nullptr) return 0;
  StapelFehlerMeldung(std::string(TrimmenSicht(P->Satz.Formen.front().Schlüssel)) + " fehlt");
  return -1;
}

bool StapelZahlPaßt(double Zahl) { return StapelZahl(Zahl).find('*') == std::string::npos; }

bool StapelAblesungPaßt(double Zahl) { return StapelAblesung(Zahl).find('*') == std::string::npos; }

bool StapelLangzahlPaßt(double Zahl) { return StapelLangzahl(Zahl).starts_with(' '); }

bool StapelWortPaßt(std::string_view Wort) {
  return Wort != "-" && Wort.find(' ') == std::string_view::npos && StapelTextPaßt(Wort);
}

bool StapelTextPaßt(std::string_view Text) {
  return TrimmenSicht(Text) == Text && std::none_of(Text.begin(), Text.end(), IstSteuerzeichen);
}

std::vector<std::string> StapelKopfLinie(std::string AnfPnr, double AnfWert, std::string EndPnr,
                                         double EndWert) {
  return Anschlusssätze(AnfPnr, AnfWert, EndPnr, EndWert).Zeilen();
}

int StapelLesenPnrMitWerte(std::string& AnfPnr, double& AnfWert, std::string& EndPnr, double& EndWert) {
  return Anschlusssätze(AnfPnr, AnfWert, EndPnr, EndWert).KopfLesen();
}

std::string StapelPnr(std::string_view Schlüssel, std::string Pnr) {
  return SatzZeile(PnrSatz(Schlüssel, Pnr));
}

int StapelLesePnr(std::string_view Schlüssel, std::string& Pnr) { return SatzLesen(PnrSatz(Schlüssel, Pnr)); }

std::string StapelZweiPnr(std::string_view Schlüssel, std::string Pnr1, std::string Pnr2, double Wert) {
  return SatzZeile(ZweiPnrSatz(Schlüssel, Pnr1, Pnr2, Wert));
}

int StapelLeseZweiPnr(std::string_view Schlüssel, std::string& Pnr1, std::string& Pnr2, double& Wert) {
  return SatzLesen(ZweiPnrSatz(Schlüssel, Pnr1, Pnr2, Wert));
}

Stapelsatz Neupunktsatz(std::string& Pnr, std::string& Symbol) {
  return {"NEUPUNKT   ", {satz::Neupunkt(Pnr, Symbol)}};
}

std::string StapelNeupunkt(std::string Pnr, std::string Symbol) {
  return SatzZeile(Neupunktsatz(Pnr, Symbol));
}

int StapelLeseNeupunkt(std::string& Pnr, std::string& Symbol) { return SatzLesen(Neupunktsatz(Pnr, Symbol)); }

}  // namespace tavorena
