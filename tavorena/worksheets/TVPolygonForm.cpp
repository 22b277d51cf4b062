#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVPolygonForm.h>

namespace tavorena {
namespace {

const char *const RahmenZug = "Zug", *const RahmenAnfang = "Anfang", *const RahmenEnde = "Ende";

// The measures of a row.
enum : std::size_t { MaßWinkel, MaßStrecke };

// The fields of ZugWerte.
constexpr struct {
  const char *Rest, *Label;
  Platz Ort;
} Abweichungen[] = {
    {"S", "S:", {0, 0}},           {"SummeS", "Summe s:", {1, 0}}, {"WY", "WY:", {0, 2}},
    {"WX", "WX:", {1, 2}},         {"FW", "FW:", {0, 4}},          {"FWzul", "FW(zul):", {1, 4}},
    {"FL", "FL:", {0, 6}},         {"FLzul", "FL(zul):", {1, 6}},  {"FQ", "FQ:", {0, 8}},
    {"FQzul", "FQ(zul):", {1, 8}},
};

// What stands in a field; not a number: nothing does.
double Zahl(const Messfeld& M) { return M.Gegeben() ? M.Zahl() : NAN; }

}  // namespace

TVPolygonForm::TVPolygonForm(const Blattart& BlattArt)
    : Listenblatt(BlattArt),
      ZugNr((BeschriftungAnlegen("Zug-Nr.:", {0, 0}, RahmenZug),
             FeldAnlegen(Mit("ZugNr"), {0, 1}, RahmenZug, 8))),
      OptionAnschluss(KästchenAnlegen(Mit("OptionAnschluss"), "Richtungsanschluß", {0, 2}, RahmenZug)),
      OptionAbschluss(KästchenAnlegen(Mit("OptionAbschluss"), "Richtungsabschluß", {0, 3}, RahmenZug)),
      OptionKlasse{&OptionAnlegen(Mit("OptionTP"), "TP-Netz", {0, 4}, RahmenZug),
                   &OptionAnlegen(Mit("OptionNP"), "NP-Netz", {0, 5}, RahmenZug),
                   &OptionAnlegen(Mit("OptionFrei"), "freier Zug", {0, 6}, RahmenZug)},
      OptionWinkel(
          KästchenAnlegen(Mit("OptionWinkelabweichungAnAus"), "Winkel verteilen", {1, 2}, RahmenZug)),
      OptionMit(OptionAnlegen(Mit("OptionMitVerteilung"), "Längen verteilen", {1, 4, 2}, RahmenZug)),
      OptionOhne(OptionAnlegen(Mit("OptionOhneVerteilung"), "nicht verteilen", {1, 6}, RahmenZug)),
      AnfZiel(*this, "AnfZiel", "Zielpkt.", RahmenAnfang, 1),
      Anf(*this, "Anf", "Anf.pkt.", RahmenAnfang, 2),
      AnfWinkel(*this, "AnfWinkel", "Winkel", {1, 6}, RahmenAnfang),
      AnfStrecke(*this, "AnfStrecke", "Strecke", {2, 6}, RahmenAnfang),
      PolygonGitter(
          ListeAnlegen({{"Punktnr.", PnrZeichen, Zellart::Nummer},
                        {"Brech.winkel", 11, Zellart::Maß},
                        {"Strecke", Längenbreite(5), Zellart::Maß},
                        {"Verbess.RW", 10},
                        {"Verbess.HW", 10},
                        {"Rechts", Längenbreite(8)},
                        {"Hoch", Längenbreite(8)},
                        {"Symbol", 6, Zellart::Symbol}},
                       {false, PolygonMaxSeiten - 1, "Höchstens 1000 Strecken in einem Zug", "Erzeugen",
                        "&Punkte erzeugen", "Neue Punkte speichern, Zug in Protokoll und Stapel schreiben"})),
      End(*this, "End", "Endpkt.", RahmenEnde, 0),
      EndWinkel(*this, "EndWinkel", "Winkel", {0, 6}, RahmenEnde),
      EndZiel(*this, "EndZiel", "Zielpkt.", RahmenEnde, 1) {
  for (const auto& A : Abweichungen)
    Ergebnisse.push_back(&Ergebnisfeld(A.Rest, A.Label, A.Ort, "Abweichungen"));
  for (Auswahl* A : {&OptionAnschluss, &OptionAbschluss, OptionKlasse[0], &OptionWinkel, &OptionMit})
    A->Gewählt = true;
  OptionMit.Gruppe = OptionOhne.Gruppe = 1;
  for (const auto& S : Steuerelemente()) {
    if (auto* A = dynamic_cast<Auswahl*>(S.get())) A->BeiWahl = [this] { ZielAnAus(); };
  }
  for (Punktfeld* P : {&AnfZiel, &Anf, &End, &EndZiel}) P->BeiWechsel = [this] { NeuRechnen(); };
  for (Messfeld* M : {&AnfWinkel, &AnfStrecke, &EndWinkel}) M->BeiWechsel = [this] { NeuRechnen(); };
  PunktfeldKopf(*this, RahmenAnfang);
  ZugNr.BeiReturn = [this] { FokusSetzen(OptionAnschluss.Gewählt ? AnfZiel.Pnr : Anf.Pnr); };
  AnfWinkel.Eingabe.Hilfe = EndWinkel.Eingabe.Hilfe =
      "Brechungswinkel in gon, rechtsläufig vom rückwärtigen Ziel";
  ListenknöpfeAnlegen();
}

// A target and its angle belong to the direction connection; that at the end needs the one at the start.
void TVPolygonForm::ZielAnAus() {
  const bool Anschluss = OptionAnschluss.Gewählt;
  if (!Anschluss) OptionAbschluss.Gewählt = false;
  OptionAbschluss.Aktiv = Anschluss && !ImStapel();
  AnfZiel.Pnr.Aktiv = AnfWinkel.Eingabe.Aktiv = Anschluss;
  EndZiel.Pnr.Aktiv = EndWinkel.Eingabe.Aktiv = *OptionAbschluss.Gewählt;
  NeuRechnen();
}

Listenmangel TVPolygonForm::Rechnen() {
  const auto Klasse =
      std::find_if(OptionKlasse.begin(), OptionKlasse.end(), [](const Auswahl* A) { return *A->Gewählt; });
  Bekannte = {AnfZiel.OrtWenn(), Anf.OrtWenn(), End.OrtWenn(), EndZiel.OrtWenn()};
  Eingabe = {Trimmen(*ZugNr.Text),
             static_cast<Zugklasse>(Klasse - OptionKlasse.begin()),
             OptionAnschluss.Gewählt,
             OptionAbschluss.Gewählt,
             OptionMit.Gewählt,
             OptionWinkel.Gewählt,
             AnfZiel.Nummer(),
             Anf.Nummer(),
             Zahl(AnfWinkel),
             Zahl(AnfStrecke),
             {},
             End.Nummer(),
             Zahl(EndWinkel),
             EndZiel.Nummer()};
  for (int z = 0; z < Anzahl(); ++z)
    Eingabe.Zeilen.push_back(
        {Reihe(z).Pnr, Reihe(z).Maße[MaßWinkel], Reihe(z).Maße[MaßStrecke], Reihe(z).Symbol});
  ZugBereinigen(Eingabe, Bekannte);
  const Zugmangel M = ZugRechnen(Eingabe, Bekannte, Rechnung);
  Eingabeelement* const Stellen[] = {&AnfZiel.Pnr,   &Anf.Pnr, &AnfWinkel.Eingabe, &AnfStrecke.Eingabe,
                                     &PolygonGitter, &End.Pnr, &EndWinkel.Eingabe, &EndZiel.Pnr};
  return {M.Text, M.Zeile, M.Spalte, Stellen[static_cast<int>(M.Wo)], M.Unfertig};
}

void TVPolygonForm::Zeilenergebnis(int z, std::vector<double>& Zellwerte) const {
  if (!Gerechnet()) return;
  const auto i = static_cast<std::size_t>(z);
  const Lage Ort = Rechnung.Kette[i];
  const std::vector<PolygonSeite>& Seiten = Rechnung.Werte.Seiten;
  Zellwerte = {Seiten.empty() ? NAN : Seiten[i].vR, Seiten.empty() ? NAN : Seiten[i].vH, Ort.RW, Ort.HW};
}

void TVPolygonForm::ZeigeBerechnung() {
  const std::array<Zugwert, 10> Werte = ZugWerte(Eingabe, Rechnung);
  for (std::size_t i = 0; i < Werte.size(); ++i) {
    const Zugwert& W = Werte[i];
    Ergebnisse[i]->Text = W.Gon ? ZahlFormat(W.Zahl, -1, 4) : Längentext(W.Zahl);
    Ergebnisse[i]->Fehlerhaft = W.Über;
  }
  ZugZeichnen(Eingabe, Bekannte, Rechnung, Steht(), Bild);
}

Listenakte TVPolygonForm::Akte() const {
  return {
      ZugSätze(Eingabe), "",
      ZugBlock(Optionen.OptNachkommastellen, ProtzugVon(Eingabe, Bekannte, Rechnung), Optionen.OptWarnstufe)};
}

// Where the surveyor breaks off, the points behind it are neither stored nor in the protocol; the batch file
// keeps the traverse as it was measured.
int TVPolygonForm::PunkteEintragen(Listenakte& A) {
  Protzug Z = ProtzugVon(Eingabe, Bekannte, Rechnung);
  std::size_t i = 0;
  for (; i < Z.Neue.size(); ++i) {
    Protzugpunkt& P = Z.Neue[i];
    Zugzeileneingabe& Zeile = Eingabe.Zeilen[i];
    Lage Neu{P.Punkt.Rechts, P.Punkt.Hoch};
    if (PunktEintragen(Zeile.Pnr, Neu, {}, Zeile.Symbol, P.Notiz) < 0) break;
    P.Punkt = {Neu.RW, Neu.HW, Zeile.Pnr};
    NummerSetzen(static_cast<int>(i), Zeile.Pnr);
  }
  if (i == 0) return -1;
  Z.Neue.resize(i);
  A.Sätze = ZugSätze(Eingabe);
  A.Zeilen = ZugBlock(Optionen.OptNachkommastellen, Z, Optionen.OptWarnstufe);
  return 0;
}

void TVPolygonForm::FelderLeeren() {
  ZugNr.Text = "";
  for (Messfeld* M : {&AnfWinkel, &AnfStrecke, &EndWinkel}) M->Leeren();
  for (Punktfeld* P : {&AnfZiel, &Anf, &End, &EndZiel}) {
    P->Pnr.Text = "";
    static_cast<void>(P->Setzen());  // there is none
  }
}

int TVPolygonForm::BlockLesen() {
  Zugeingabe E;
  if (StapelLesePolygon(E) < 0) return -1;
  ZugNr.Text = E.Nummer;
  OptionAnschluss.Gewählt = E.Anschluss;
  OptionAbschluss.Gewählt = E.Abschluss;
  for (std::size_t i = 0; i < OptionKlasse.size(); ++i)
    OptionKlasse[i]->Gewählt = E.Klasse == static_cast<Zugklasse>(i);
  OptionWinkel.Gewählt = E.WinkelVerteilen;
  OptionMit.Gewählt = E.LinearVerteilen;
  OptionOhne.Gewählt = !E.LinearVerteilen;
  AnfWinkel.Setzen(E.AnfWinkel);
  AnfStrecke.Setzen(E.AnfStrecke);
  EndWinkel.Setzen(E.EndWinkel);
  ZielAnAus();
  if (E.Anschluss && AnfZiel.AusStapel(E.AnfZielPnr) < 0) return -1;
  if (Anf.AusStapel(E.AnfPnr) < 0 || (!E.EndPnr.empty() && End.AusStapel(E.EndPnr) < 0)) return -1;
  if (*OptionAbschluss.Gewählt && EndZiel.AusStapel(E.EndZielPnr) < 0) return -1;
  std::vector<Zeileneingabe> Zeilen;
  for (const Zugzeileneingabe& Z : E.Zeilen) Zeilen.push_back({Z.Pnr, {Z.Winkel, Z.Strecke}, Z.Symbol});
  return ReihenSetzen(std::move(Zeilen));
}

}  // namespace tavorena
