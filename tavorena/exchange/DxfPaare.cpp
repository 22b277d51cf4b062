#include <array>
#include <bitset>
#include <charconv>
#include <cmath>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {
namespace {

constexpr int Codes = 256;  // higher ones are extended data

// Flags are small; what is none has none set.
int Merkmale(double Wert) { return Wert >= 0 && Wert < 32768 ? static_cast<int>(Wert) : 0; }

// The numbers of an element by their codes; a value that is no number counts as missing.
struct Satz {
  std::string Art;
  std::array<double, Codes> Werte{};
  std::bitset<Codes> Da;

  void Nimm(int Code, std::string_view Wert) {
    const auto c = static_cast<std::size_t>(Code);
    Wert = TrimmenSicht(Wert);
    Da[c] = IstZahlwort(Wert);
    Werte[c] = Da[c] ? ZahlAusText(Wert) : 0;
    if (!std::isfinite(Werte[c])) Da[c] = false;
  }
  [[nodiscard]] double operator[](int Code) const { return Werte[static_cast<std::size_t>(Code)]; }
  [[nodiscard]] bool Hat(std::initializer_list<int> Alle) const {
    for (const int c : Alle) {
      if (!Da[static_cast<std::size_t>(c)]) return false;
    }
    return true;
  }
  [[nodiscard]] bool Merkmal(int Maske) const { return (Merkmale(Werte[70]) & Maske) != 0; }
  // Lies on a sheet beside the world.
  [[nodiscard]] bool AufPapier() const { return Werte[67] != 0; }
};

struct Ecke {
  double Rechts, Hoch,
      Bauch;  // Bauch: tangent of a quarter of the arc to the next corner, positive leftwards
  bool Gut;
};

enum class Lage { Eben, Gespiegelt, Schräg };

// Direction of the axis that the element's plane stands on.
Lage LageVon(const Satz& S) {
  constexpr double Null = 1e-9;
  if (!S.Da[210] && !S.Da[220] && !S.Da[230]) return Lage::Eben;
  const double Z = S.Da[230] ? S[230] : 1;
  if (std::hypot(S[210], S[220]) > Null * std::fabs(Z)) return Lage::Schräg;
  return Z > 0 ? Lage::Eben : Z < 0 ? Lage::Gespiegelt : Lage::Schräg;
}

class Paarleser {
 public:
  Paarleser(std::string_view Text, DxfErgebnis& Ergebnis) : Leser(Text), E(Ergebnis) { E = {}; }

  // @return the line that is no code; 0
  int Lesen() {
    std::string_view Wort, Wert;
    for (int Zeile = 1; !E.Voll; Zeile += 2) {
      if (!Leser.Nächste(Wort)) break;
      Wort = TrimmenSicht(Wort);
      int Code = 0;
      const auto Zahl = std::from_chars(Wort.data(), Wort.data() + Wort.size(), Code);
      const bool IstCode = Zahl.ec == std::errc{} && Zahl.ptr == Wort.data() + Wort.size();
      if (!IstCode && Leser.AmEnde()) break;  // an empty line at the end, or a code that is torn
      if (!IstCode) return Zeile;
      if (!Leser.Nächste(Wert)) break;
      Paar(Code, Wert);
    }
    // The end of the section or a next element shows that an element is whole.
    E.Abgerissen = Stand == Ort::Elemente && !E.Voll;
    return 0;
  }

 private:
  enum class Ort { Draußen, Abschnittsname, Elemente };

  void Paar(int Code, std::string_view Wert) {
    if (Code == 0) {
      Wert = TrimmenSicht(Wert);
      if (Stand == Ort::Elemente) Neues(Wert);
      if (Wert == "SECTION") Stand = Ort::Abschnittsname;
      if (Wert == "ENDSEC" || Wert == "EOF") Stand = Ort::Draußen;
      if (Stand != Ort::Elemente) S.Art.clear();
    } else if (Stand == Ort::Abschnittsname) {
      Stand = Code == 2 && TrimmenSicht(Wert) == "ENTITIES" ? Ort::Elemente : Ort::Draußen;
      if (Stand == Ort::Elemente) E.MitElementen = true;
    } else if (Stand == Ort::Elemente && Code > 0 && Code < Codes) {
      Wertpaar(Code, Wert);
    }
  }

  void Wertpaar(int Code, std::string_view Wert) {
    S.Nimm(Code, Wert);
    if (S.Art != "LWPOLYLINE") return;
    if (Code == 10) Ecken.push_back({S[10], 0, 0, false});
    if (Ecken.empty()) return;
    if (Code == 20) {
      Ecken.back().Hoch = S[20];
      Ecken.back().Gut = S.Hat({10, 20});
      S.Da[10] = S.Da[20] = false;
    }
    if (Code == 42) Ecken.back().Bauch = S[42];
  }

  // The element before is whole. The corners of a POLYLINE are elements of their own.
  void Neues(std::string_view Art) {
    if (S.Art == "VERTEX" && ImZug) {
      constexpr int Stützpunkt = 16;  // of a spline, not on its line
      if (!S.Merkmal(Stützpunkt)) Ecken.push_back({S[10], S[20], S[42], S.Hat({10, 20})});
    } else if (S.Art == "POLYLINE") {
      Zug = S;
      ImZug = true;
    } else {
      Fertig();
    }
    if (ImZug && Art != "VERTEX") {
      Polygon(Zug);
      ImZug = false;
    }
    if (!ImZug || S.Art == "POLYLINE") Ecken.clear();
    S.Art = Art;
    S.Da.reset();
    S.Werte.fill(0);
  }

  void Fertig() {
    if (S.Art.empty() || S.Art == "SEQEND") return;
    if (S.AufPapier()) return Übergehen(S);
    if (S.Art == "LWPOLYLINE") return Polygon(S);
    if (S.Art == "LINE") {
      if (!S.Hat({10, 20, 11, 21})) return Unbrauchbar();
      return Linie(S[10], S[20], S[11], S[21]);
    }
    const bool Bogen = S.Art == "ARC";
    if ((!Bogen && S.Art != "CIRCLE") || LageVon(S) == Lage::Schräg) return Übergehen(S);
    if (!S.Hat({10, 20, 40}) || !(S[40] > 0) || (Bogen && !S.Hat({50, 51}))) return Unbrauchbar();
    Rund(Bogen);
  }

  // Mirrored the plane is seen from behind: Rechts runs the other way, and so do the angles.
  void Rund(bool Bogen) {
    const bool Spiegel = LageVon(S) == Lage::Gespiegelt;
    const double Rechts = Spiegel ? -S[10] : S[10];
    double Anfang = Bogen ? S[50] : 0, Ende = Bogen ? S[51] : 0;
    if (Spiegel) {
      const double Erster = 180 - Ende;
      Ende = 180 - Anfang;
      Anfang = Erster;
    }
    GradReduzieren(Anfang);
    GradReduzieren(Ende);
    if (Anfang != Ende) return BogenHinzu(Rechts, S[20], S[40], Anfang, Ende);
    BogenHinzu(Rechts, S[20], S[40], 0, 180);
    BogenHinzu(Rechts, S[20], S[40], 180, 0);
  }

  void Polygon(const Satz& Z) {
    constexpr int Geschlossen = 1, Räumlich = 8, Netz = 16 + 64;
    const bool Eben = Z.Art == "LWPOLYLINE" || !Z.Merkmal(Räumlich);
    const Lage L = Eben ? LageVon(Z) : Lage::Eben;
    if (Z.AufPapier() || L == Lage::Schräg || (Z.Art == "POLYLINE" && Z.Merkmal(Netz))) return Übergehen(Z);
    for (Ecke& P : Ecken) {
      if (!P.Gut) return Unbrauchbar();
      if (L == Lage::Gespiegelt) P = {-P.Rechts, P.Hoch, -P.Bauch, true};
    }
    for (std::size_t i = 1; i < Ecken.size() && !E.Voll; ++i) Seite(Ecken[i - 1], Ecken[i]);
    if (Z.Merkmal(Geschlossen) && Ecken.size() > 1 && !E.Voll) Seite(Ecken.back(), Ecken.front());
  }

  void Seite(const Ecke& P, const Ecke& Q) {
    const double dR = Q.Rechts - P.Rechts, dH = Q.Hoch - P.Hoch, b = P.Bauch;
    if (dR == 0 && dH == 0) return;
    if (std::fabs(b) < 1e-9) return Linie(P.Rechts, P.Hoch, Q.Rechts, Q.Hoch);
    const double Faktor = (1 - b * b) / (4 * b), Mitte = (P.Rechts + Q.Rechts) / 2 - dH * Faktor,
                 Höhe = (P.Hoch + Q.Hoch) / 2 + dR * Faktor;
    const Ecke &Von = b > 0 ? P : Q, &Bis = b > 0 ? Q : P;
    BogenHinzu(Mitte, Höhe, std::hypot(dR, dH) * (1 + b * b) / (4 * std::fabs(b)),
               WinkelGrad(Von.Hoch - Höhe, Von.Rechts - Mitte),
               WinkelGrad(Bis.Hoch - Höhe, Bis.Rechts - Mitte));
  }

  void Linie(double R1, double H1, double R2, double H2) {
    GrafikLinie L{R1, H1, R2, H2};
    L.Frei = true;
    if (E.Voll) return;
    E.Voll = GrafikLinieHinzu(L) < 0;
    if (!E.Voll) ++E.Linien;
  }

  void BogenHinzu(double Rechts, double Hoch, double Radius, double Anfang, double Ende) {
    GrafikBogen B{Rechts, Hoch, Radius, Anfang, Ende};
    B.Frei = true;
    if (!std::isfinite(Rechts) || !std::isfinite(Hoch) || !std::isfinite(Radius)) return Unbrauchbar();
    if (E.Voll) return;
    E.Voll = GrafikBogenHinzu(B) < 0;
    if (!E.Voll) ++E.Bogen;
  }

  void Übergehen(const Satz& Z) { ++E.Andere[Z.AufPapier() ? Z.Art + " (Papierbereich)" : Z.Art]; }
  void Unbrauchbar() { ++E.Unbrauchbar; }

  Zeilenleser Leser;
  DxfErgebnis& E;
  Ort Stand = Ort::Draußen;
  Satz S, Zug;
  bool ImZug = false;
  std::vector<Ecke> Ecken;
};

}  // namespace

int DxfPaare(std::string_view Text, DxfErgebnis& E) { return Paarleser(Text, E).Lesen(); }

}  // namespace tavorena
