#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/Passanzeige.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr const char *RahmenErgebnis = "Ergebnis", *RahmenEinzel = "Einzelner Punkt";

Feld& Figur(Rechenblatt& Blatt, const char* Text, const char* Rest, Platz Ort, int Zeichen) {
  Blatt.BeschriftungAnlegen(Text, Ort, RahmenErgebnis);
  return Blatt.ErgebnisfeldAnlegen(Blatt.Mit(Rest), {Ort.Zeile, Ort.Spalte + 1}, RahmenErgebnis, Zeichen);
}

Feld& Einzel(Rechenblatt& Blatt, const char* Text, const char* Rest, int Spalte) {
  Blatt.BeschriftungAnlegen(Text, {0, Spalte}, RahmenEinzel);
  return Blatt.ZahlenfeldAnlegen(Blatt.Mit(Rest), {0, Spalte + 1}, RahmenEinzel, 12);
}

// 1, 2 or 5 times a power of ten, so that the greatest residual is drawn up to a quarter of the field.
double Vergrößerung(double Klaffe, double Rand) {
  if (!(Klaffe > 0) || !(Rand > 0)) return 1;
  const double Faktor = Rand / Klaffe / 4, Zehner = std::pow(10, std::floor(std::log10(Faktor)));
  return std::max(1.0, Faktor >= 5 * Zehner ? 5 * Zehner : Faktor >= 2 * Zehner ? 2 * Zehner : Zehner);
}

}  // namespace

Passanzeige::Passanzeige(Rechenblatt& Blatt, const Passung& Fit)
    : Anpassung(Fit),
      M(Figur(Blatt, "M", "M", {0, 0}, 9)),
      Epsilon(Figur(Blatt, "Epsilon", "Epsilon", {0, 2}, 9)),
      MK(Figur(Blatt, "MK", "MK", {0, 4}, 7)),
      WS(Figur(Blatt, "WS", "WS", {0, 6}, 7)),
      M2(Figur(Blatt, "M2", "M2", {1, 0}, 9)),
      Epsilon2(Figur(Blatt, "Epsilon2", "Epsilon2", {1, 2}, 9)),
      ML(Figur(Blatt, "ML", "ML", {1, 4}, 7)),
      D(Figur(Blatt, "D", "D", {1, 6}, 7)),
      Hinweis(Blatt.FeldAnlegen(Blatt.Mit("Hinweis"), {0, 8}, RahmenErgebnis, 36)),
      EinzelRechts(Einzel(Blatt, "Rechts", "EinzelRechts", 0)),
      EinzelHoch(Einzel(Blatt, "Hoch", "EinzelHoch", 2)),
      EinzelY(Einzel(Blatt, "Y", "EinzelY", 4)),
      EinzelX(Einzel(Blatt, "X", "EinzelX", 6)),
      EinzelWo(Blatt.BeschriftungAnlegen("", {0, 8}, RahmenEinzel)) {
  Hinweis.Bezeichnung = "Hinweis";
  Hinweis.NurLesen = EinzelY.NurLesen = EinzelX.NurLesen = true;
  for (Feld* F : {&EinzelRechts, &EinzelHoch}) {
    F->BeiVerlassen = [this] { return EinzelRechnen(); };
    F->Hilfe = "Zeigt einen Punkt im neuen System; gespeichert wird er nicht";
  }
  EinzelHoch.BeiReturn = [this, &Blatt] { Blatt.FokusSetzen(EinzelRechts); };
}

void Passanzeige::Zeigen(const std::vector<Passpaar>& Paare, const std::string& Mangel) {
  Brauchbar = Mangel.empty();
  FigurenZeigen();
  static_cast<void>(EinzelRechnen());
  const double Faktor = Zeichnen(Paare);
  Hinweis.Fehlerhaft = !Brauchbar;
  Hinweis.Text = "";
  if (Anpassung.Ergebnis() == Passergebnis::AufGerader) {
    Hinweis.Text = "Paßpunkte liegen auf einer Geraden";
  } else if (!Brauchbar && !Paare.empty()) {
    Hinweis.Text = Mangel.substr(0, Mangel.find('\n'));
  } else if (Faktor > 0) {
    Hinweis.Text = "Restklaffen in der Grafik " + ZahlFormat(Faktor, -1, 0) + "fach";
  }
}

void Passanzeige::Getan() {
  Bild.Löschen();
  Hinweis.Text = "transformiert";
}

void Passanzeige::Leeren() {
  for (Feld* F : {&EinzelRechts, &EinzelHoch}) {
    F->Text = "";
    F->Fehlerhaft = false;
  }
}

void Passanzeige::FigurenZeigen() {
  const bool Da = Anpassung.Passt(), Affin = Anpassung.Wahl().Affin;
  const auto Setzen = [Da](Feld& F, bool Gilt, double Zahl, int Nachkomma) {
    F.Text = Da && Gilt ? ZahlFormat(Zahl, -1, Nachkomma) : "";
  };
  const HelmertErgebnis& H = Anpassung.Helmert();
  const AffinErgebnis& A = Anpassung.Affin();
  Setzen(M, true, Affin ? A.Massstab1 : H.Massstab, 6);
  Setzen(Epsilon, true, (Affin ? A.Drehwinkel1Gon : H.DrehwinkelGon) / 0.9, 5);
  Setzen(M2, Affin, A.Massstab2, 6);
  Setzen(Epsilon2, Affin, A.Drehwinkel2Gon / 0.9, 5);
  Setzen(WS, H.Rechenachse, H.WS, 3);
  Setzen(D, H.Rechenachse, H.D, 3);
  WS.Fehlerhaft = Da && H.Rechenachse && std::fabs(H.WS) > std::fabs(H.D);
  for (const auto& [F, Wie] : {std::pair{&MK, Anpassung.MK()}, std::pair{&ML, Anpassung.ML()}})
    F->Text = !Da || H.Rechenachse ? "" : Wie.IstGegeben() ? ZahlFormat(Wie, -1, 3) : "ohne";
}

bool Passanzeige::EinzelRechnen() {
  double Zahlen[2] = {};
  bool Gut = true, Leer = false;
  Feld* const Felder[] = {&EinzelRechts, &EinzelHoch};
  for (std::size_t i = 0; i < 2; ++i) {
    std::string Text = Trimmen(*Felder[i]->Text);
    Leer = Leer || Text.empty();
    const bool Zahl = Text.empty() || (MesswertLesen(Text, Zahlen[i]) && std::isfinite(Zahlen[i]));
    Felder[i]->Fehlerhaft = !Zahl;
    if (Zahl) Felder[i]->Text = Text;
    Gut = Gut && Zahl;
  }
  if (!Gut) StatusHilfeSetzen("Zahl erwartet");
  EinzelY.Text = EinzelX.Text = EinzelWo.Text = "";
  if (!Gut || Leer || !Brauchbar) return Gut;
  Lage Neu;
  if (!Anpassung.Umformen({Zahlen[0], Zahlen[1]}, Neu)) EinzelWo.Text = "außerhalb des Paßpunktfeldes";
  EinzelY.Text = Längentext(Neu.RW);
  EinzelX.Text = Längentext(Neu.HW);
  return true;
}

// @return how many times the residuals are enlarged; 0: there are none
double Passanzeige::Zeichnen(const std::vector<Passpaar>& Paare) {
  Bild.Löschen();
  double Größte = 0;
  for (const Passpaar& P : Paare) Größte = std::max(Größte, P.Ein ? P.WL : 0);
  const double Faktor = Vergrößerung(Größte, Anpassung.Rand());
  for (const Passpaar& P : Paare) {
    if (!P.Ein) continue;
    Bild.Punkt({"", P.Alt.RW, P.Alt.HW, "MARK", FarbeRot});
    if (!Brauchbar || P.WL == 0) continue;
    const Lage v = Anpassung.InsAlte({P.VY * Faktor, P.VX * Faktor});
    const bool Rot = Anpassung.ÜberGrenze(P, P.VY) || Anpassung.ÜberGrenze(P, P.VX);
    Bild.Linie({P.Alt.RW, P.Alt.HW, P.Alt.RW + v.RW, P.Alt.HW + v.HW, Rot ? FarbeRot : FarbeBlau,
                Rot ? Strich::Breit : Strich::Durchgezogen});
  }
  if (Brauchbar)
    Bild.Bogen({Anpassung.Mitte().RW, Anpassung.Mitte().HW, Anpassung.Rand(), 0, 360, FarbeBlau});
  return Brauchbar && Größte > 0 ? Faktor : 0;
}

}  // namespace tavorena
