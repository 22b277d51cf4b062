#include <algorithm>
#include <cmath>
#include <limits>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/DxfSchreiber.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {
namespace {

// All that is drawn, for the head of the file.
struct Ausdehnung {
  double MinR = std::numeric_limits<double>::infinity(), MinH = MinR, MaxR = -MinR, MaxH = -MinR;
  double MinZ = 0, MaxZ = 0;

  void Ort(double R, double H) {
    MinR = std::min(MinR, R);
    MinH = std::min(MinH, H);
    MaxR = std::max(MaxR, R);
    MaxH = std::max(MaxH, H);
  }
  void Bogen(const GrafikBogen& B) {
    double Weite = B.Ende - B.Anfang;
    if (Weite <= 0) Weite += 360;
    for (const double Grad : {B.Anfang, B.Ende, 0.0, 90.0, 180.0, 270.0}) {
      double Dahinter = Grad - B.Anfang;
      GradReduzieren(Dahinter);
      if (Grad != B.Ende && Dahinter > Weite) continue;
      Ort(B.Rechts + B.Radius * CosGrad(Grad), B.Hoch + B.Radius * SinGrad(Grad));
    }
  }
};

Ausdehnung AllesUmfassen() {
  Ausdehnung A;
  for (std::size_t i = 0; i < static_cast<std::size_t>(KorAnzahl); ++i) {
    A.Ort(KorRechts[i], KorHoch[i]);
    A.MinZ = i == 0 ? KorHoehe[i] : std::min(A.MinZ, KorHoehe[i]);
    A.MaxZ = i == 0 ? KorHoehe[i] : std::max(A.MaxZ, KorHoehe[i]);
  }
  for (const GrafikLinie& L : GrafikFreieLinien()) {
    A.Ort(L.Rechts1, L.Hoch1);
    A.Ort(L.Rechts2, L.Hoch2);
  }
  for (const GrafikBogen& B : GrafikFreieBogen()) A.Bogen(B);
  if (A.MinR > A.MaxR) A.MinR = A.MinH = A.MaxR = A.MaxH = 0;  // nothing is drawn
  return A;
}

void Umschreiben(std::string& Ziel, unsigned Zeichen) {
  constexpr const char* Ziffern = "0123456789ABCDEF";
  if (Zeichen > 0xFFFF) {  // four digits reach no further: the two halves of UTF-16
    Umschreiben(Ziel, 0xD800U + ((Zeichen - 0x10000U) >> 10U));
    return Umschreiben(Ziel, 0xDC00U + (Zeichen & 0x3FFU));
  }
  Ziel += "\\U+";
  for (unsigned Stelle = 16; Stelle > 0;) Ziel += Ziffern[(Zeichen >> (Stelle -= 4)) & 0xFU];
}

// The bytes of Windows-1252, what it does not have as \U+XXXX.
std::string DxfBytes(std::string_view Text) {
  std::string Ziel;
  while (!Text.empty()) {
    const auto Erstes = static_cast<unsigned char>(Text.front());
    const std::size_t Länge = Erstes < 0xC0 ? 1 : Erstes < 0xE0 ? 2 : Erstes < 0xF0 ? 3 : 4;
    const std::string_view Eines = Text.substr(0, Länge);
    unsigned Zeichen = Länge == 1 ? Erstes : Erstes & (0x7FU >> Länge);
    for (const char z : Eines.substr(1)) Zeichen = (Zeichen << 6U) | (static_cast<unsigned char>(z) & 0x3FU);
    Text.remove_prefix(Eines.size());
    const std::string Byte = Zeichen < 0x80 ? std::string(Eines) : NachWindows1252(Eines);
    const bool Steuert = Zeichen < 0x20 || (Zeichen >= 0x7F && Zeichen < 0xA0);
    if (Steuert || (Byte == "?" && Zeichen != '?')) {
      Umschreiben(Ziel, Zeichen);
    } else {
      Ziel += Byte;
    }
  }
  return Ziel;
}

constexpr const char* Ebenen[] = {"0", "PUNKTE", "NUMMERN", "HOEHEN", "SYMBOLE", "STRECKEN", "BOGEN"};

void Kopf(DxfSchreiber& S, const Ausdehnung& A) {
  S.Text(0, "SECTION");
  S.Text(2, "HEADER");
  S.Text(9, "$ACADVER");
  S.Text(1, "AC1009");
  S.Text(9, "$DWGCODEPAGE");
  S.Text(3, "ANSI_1252");
  S.Text(9, "$EXTMIN");
  S.Zahl(10, A.MinR);
  S.Zahl(20, A.MinH);
  S.Zahl(30, A.MinZ);
  S.Text(9, "$EXTMAX");
  S.Zahl(10, A.MaxR);
  S.Zahl(20, A.MaxH);
  S.Zahl(30, A.MaxZ);
  S.Text(0, "ENDSEC");
}

void TabelleBeginnen(DxfSchreiber& S, const char* Name, std::size_t Anzahl) {
  S.Text(0, "TABLE");
  S.Text(2, Name);
  S.Ganz(70, static_cast<int>(Anzahl));
}

void Tabellen(DxfSchreiber& S) {
  S.Text(0, "SECTION");
  S.Text(2, "TABLES");
  TabelleBeginnen(S, "LTYPE", 1);
  S.Text(0, "LTYPE");
  S.Text(2, "CONTINUOUS");
  S.Ganz(70, 0);
  S.Text(3, "Solid line");
  S.Ganz(72, 65);
  S.Ganz(73, 0);
  S.Zahl(40, 0);
  S.Text(0, "ENDTAB");
  TabelleBeginnen(S, "LAYER", std::size(Ebenen));
  for (const char* Ebene : Ebenen) {
    S.Text(0, "LAYER");
    S.Text(2, Ebene);
    S.Ganz(70, 0);
    S.Ganz(62, 7);
    S.Text(6, "CONTINUOUS");
  }
  S.Text(0, "ENDTAB");
  TabelleBeginnen(S, "STYLE", 1);
  S.Text(0, "STYLE");
  S.Text(2, "STANDARD");
  S.Ganz(70, 0);
  S.Zahl(40, 0);
  S.Zahl(41, 1);
  S.Zahl(50, 0);
  S.Ganz(71, 0);
  S.Zahl(42, 1);
  S.Text(3, "txt");
  S.Text(4, "");
  S.Text(0, "ENDTAB");
  S.Text(0, "ENDSEC");
  S.Text(0, "SECTION");
  S.Text(2, "BLOCKS");
  S.Text(0, "ENDSEC");
}

void Beschriften(DxfSchreiber& S, const char* Ebene, double R, double H, double Höhe, std::string_view Text) {
  S.Text(0, "TEXT");
  S.Text(8, Ebene);
  S.Zahl(10, R);
  S.Zahl(20, H);
  S.Zahl(40, Höhe);
  S.Text(1, Text);
}

// Its texts stand to the right of a point, below each other: number, symbol, height.
void PunktSchreiben(DxfSchreiber& S, std::size_t i, double Schrift) {
  const double R = KorRechts[i], H = KorHoch[i], Z = KorHoehe[i];
  S.Text(0, "POINT");
  S.Text(8, "PUNKTE");
  S.Zahl(10, R);
  S.Zahl(20, H);
  S.Zahl(30, Z);
  const double Neben = R + Schrift;
  Beschriften(S, "NUMMERN", Neben, H + Schrift, Schrift, DxfBytes(KorPnr(static_cast<int>(i))));
  if (!KorSymbol[i].empty()) {
    Beschriften(S, "SYMBOLE", Neben, H - Schrift / 2, Schrift, DxfBytes(KorSymbol[i]));
  }
  if (Z != 0) {
    Beschriften(S, "HOEHEN", Neben, H - 2 * Schrift, Schrift,
                ZahlFormat(Z, -1, Optionen.OptNachkommastellen));
  }
}

}  // namespace

int DxfPunkteText(std::string& Text) {
  const Ausdehnung A = AllesUmfassen();
  const double Schrift = std::max(0.05, std::max(A.MaxR - A.MinR, A.MaxH - A.MinH) / 500);
  std::string Elemente;
  DxfSchreiber S(Elemente, true);
  for (std::size_t i = 0; i < static_cast<std::size_t>(KorAnzahl); ++i) {
    PunktSchreiben(S, i, Schrift);
    if (!S.Paßt()) {
      return DxfUnpassend("Punkt " + KorPnr(static_cast<int>(i)), {KorRechts[i], KorHoch[i], KorHoehe[i]});
    }
  }
  if (DxfFreieElemente(S, "STRECKEN", "BOGEN") < 0) return -1;
  Text.clear();
  DxfSchreiber Anfang(Text, true);
  Kopf(Anfang, A);
  if (!Anfang.Paßt()) return DxfUnpassend("Die Ausdehnung", {A.MinR, A.MinH, A.MaxR, A.MaxH});
  Tabellen(Anfang);
  Anfang.Text(0, "SECTION");
  Anfang.Text(2, "ENTITIES");
  Text += Elemente;
  Anfang.Text(0, "ENDSEC");
  Anfang.Text(0, "EOF");
  return 0;
}

}  // namespace tavorena
