#include <charconv>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/DxfSchreiber.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {
namespace {

constexpr int Vorkomma = 8, Nachkomma = 6;

// For a message: a value may be far beyond any field.
std::string Kurztext(double Wert) {
  char Puffer[32];
  const auto E = std::to_chars(Puffer, Puffer + sizeof Puffer, Wert, std::chars_format::general, 15);
  return {Puffer, E.ptr};
}

}  // namespace

// By hand: a file has some hundred thousand of them, all below 100.
void DxfSchreiber::Codezeile(int Code) {
  const bool Zwei = Code >= 10;
  if (!Schmal) Ziel += Zwei ? " " : "  ";
  if (Zwei) Ziel += static_cast<char>('0' + Code / 10);
  (Ziel += static_cast<char>('0' + Code % 10)) += "\r\n";
}

void DxfSchreiber::Feldende(std::size_t Ab) {
  if (Schmal) Ziel.erase(Ab, Ziel.find_first_not_of(' ', Ab) - Ab);
  Ziel += "\r\n";
}

void DxfSchreiber::Text(int Code, std::string_view Wert) {
  Codezeile(Code);
  (Ziel += Wert) += "\r\n";
}

void DxfSchreiber::Ganz(int Code, int Wert) {
  Codezeile(Code);
  const std::size_t Ab = Ziel.size();
  Ziel += ZahlFeld(Wert, 6);
  Feldende(Ab);
}

void DxfSchreiber::Zahl(int Code, double Wert) {
  Codezeile(Code);
  const std::size_t Ab = Ziel.size();
  ZahlFormatAnhängen(Ziel, Wert, Vorkomma, Nachkomma);
  // Just below the limit the field still grows when it is rounded.
  if (Ziel.back() == '*' || Ziel.size() - Ab > Vorkomma + 1 + Nachkomma) AllesPaßt = false;
  Feldende(Ab);
}

bool DxfSchreiber::Linie(const GrafikLinie& L, std::string_view Ebene) {
  Text(0, "LINE");
  if (!Ebene.empty()) Text(8, Ebene);
  Zahl(10, L.Rechts1);
  Zahl(20, L.Hoch1);
  Zahl(11, L.Rechts2);
  Zahl(21, L.Hoch2);
  return AllesPaßt;
}

bool DxfSchreiber::Bogen(const GrafikBogen& B, std::string_view Ebene) {
  Text(0, "ARC");
  if (!Ebene.empty()) Text(8, Ebene);
  Zahl(10, B.Rechts);
  Zahl(20, B.Hoch);
  Zahl(40, B.Radius);
  Zahl(50, B.Anfang);
  Zahl(51, B.Ende);
  return AllesPaßt;
}

int DxfFreieElemente(DxfSchreiber& S, std::string_view Linienebene, std::string_view Bogenebene) {
  for (const GrafikLinie& L : GrafikFreieLinien()) {
    if (!S.Linie(L, Linienebene)) {
      return DxfUnpassend("Linie", {L.Rechts1, L.Hoch1, L.Rechts2, L.Hoch2});
    }
  }
  for (const GrafikBogen& B : GrafikFreieBogen()) {
    if (!S.Bogen(B, Bogenebene)) {
      return DxfUnpassend("Bogen", {B.Rechts, B.Hoch, B.Radius, B.Anfang, B.Ende});
    }
  }
  return 0;
}

int DxfUnpassend(const std::string& Was, std::initializer_list<double> Werte) {
  std::string Text = Was + " paßt nicht in eine DXF-Datei:";
  const char* Trenner = "\n";
  for (const double w : Werte) {
    Text += Trenner + Kurztext(w);
    Trenner = "  ";
  }
  FehlerMeldung(Text);
  return -1;
}

}  // namespace tavorena
