#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/DxfSchreiber.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {
namespace {

void TabellenSchreiben(DxfSchreiber& S) {
  S.Text(0, "SECTION");
  S.Text(2, "TABLES");
  S.Text(0, "TABLE");
  S.Text(2, "LTYPE");
  S.Ganz(70, 1);
  S.Text(0, "LTYPE");
  S.Text(2, "CONTINUOUS");
  S.Ganz(70, 64);
  S.Text(3, "Solid line");
  S.Ganz(72, 65);
  S.Ganz(73, 0);
  S.Zahl(40, 0);
  S.Text(0, "ENDTAB");
  S.Text(0, "TABLE");
  S.Text(2, "STYLE");
  S.Ganz(70, 0);
  S.Text(0, "ENDTAB");
  S.Text(0, "TABLE");
  S.Text(2, "LAYER");
  S.Ganz(70, 1);
  S.Text(0, "LAYER");
  S.Text(2, "FOREGROUND");
  S.Ganz(70, 64);
  S.Ganz(62, 1);
  S.Text(6, "CONTINUOUS");
  S.Text(0, "ENDTAB");
  S.Text(0, "ENDSEC");
}

bool Hält(std::string_view Zeile, std::string_view Wort) {
  return Zeile.find(Wort) != std::string_view::npos;
}

struct Wertplatz {
  std::string_view Code;
  double Wert = 0;
  bool Da = false;
};

// The values of an element, each behind a line that holds its code; found twice the later one counts.
// @return false at the end of the file
bool WerteLesen(Zeilenleser& Leser, std::span<Wertplatz> Plätze) {
  std::size_t Offen = Plätze.size();
  std::string_view Zeile;
  while (Offen > 0) {
    if (!Leser.Nächste(Zeile)) return false;
    const auto Platz =
        std::find_if(Plätze.begin(), Plätze.end(), [&](const Wertplatz& P) { return Hält(Zeile, P.Code); });
    if (Platz == Plätze.end()) continue;
    if (!Leser.Nächste(Zeile)) return false;
    Platz->Wert = ZahlAusText(Zeile);
    if (!std::exchange(Platz->Da, true)) --Offen;
  }
  return true;
}

bool Endlich(std::span<const Wertplatz> Plätze) {
  return std::all_of(Plätze.begin(), Plätze.end(), [](const Wertplatz& P) { return std::isfinite(P.Wert); });
}

// The readers of the two kinds. @return 0; -1: reading ends, at the end of the file or with no room left
int LinieLesen(Zeilenleser& Leser, DxfErgebnis& E) {
  std::array<Wertplatz, 4> P{{{"10"}, {"20"}, {"11"}, {"21"}}};
  if (!WerteLesen(Leser, P)) return -1;
  if (!Endlich(P)) return ++E.Unbrauchbar, 0;
  GrafikLinie L{P[0].Wert, P[1].Wert, P[2].Wert, P[3].Wert};
  L.Frei = true;
  E.Voll = GrafikLinieHinzu(L) < 0;
  E.Linien += E.Voll ? 0 : 1;
  return E.Voll ? -1 : 0;
}

int BogenLesen(Zeilenleser& Leser, DxfErgebnis& E) {
  std::array<Wertplatz, 5> P{{{"10"}, {"20"}, {"40"}, {"50"}, {"51"}}};
  if (!WerteLesen(Leser, P)) return -1;
  if (!Endlich(P)) return ++E.Unbrauchbar, 0;
  GrafikBogen B{P[0].Wert, P[1].Wert, P[2].Wert, P[3].Wert, P[4].Wert};
  B.Frei = true;
  E.Voll = GrafikBogenHinzu(B) < 0;
  E.Bogen += E.Voll ? 0 : 1;
  return E.Voll ? -1 : 0;
}

// Behind ENTITIES stands a code that our own files do not have.
bool FremdeCodes(Zeilenleser Leser) {
  constexpr std::string_view Eigene[] = {"0", "10", "11", "20", "21", "40", "50", "51", ""};
  std::string_view Code, Wert;
  while (Leser.Nächste(Code) && Leser.Nächste(Wert)) {
    if (std::find(std::begin(Eigene), std::end(Eigene), TrimmenSicht(Code)) == std::end(Eigene)) return true;
  }
  return false;
}

std::string Vorspann(const std::string& Datei, const std::string& Grund) {
  return Datei + "\n" + (Grund.empty() ? "" : Grund + "\n");
}

int DxfTextLesen(const std::string& Datei, std::string& Text) {
  std::string Grund;
  if (TextdateiLesen(Datei, Text, &Grund) < 0) {
    LaufzeitFehlerMeldung(Grund.empty() ? Laufzeitfehler::DateiNichtGefunden : Laufzeitfehler::Zugriff,
                          "DXFModul.Lesen", Vorspann(Datei, Grund));
    return -1;
  }
  if (Text.find('\0') != std::string::npos) {
    FehlerMeldung("Die Datei ist binär und keine DXF-Datei in Textform:\n" + Datei);
    return -1;
  }
  return 0;
}

// What does not show in the picture.
void AusgelassenMelden(const DxfErgebnis& E) {
  constexpr int Höchstens = 10;
  std::string Text;
  int Arten = 0;
  for (const auto& [Art, Anzahl] : E.Andere) {
    if (++Arten > Höchstens) break;
    Text += (Text.empty() ? "" : ", ") + std::to_string(Anzahl) + " " + Zitat(Art);
  }
  if (Arten > Höchstens) Text += ", …";
  if (!Text.empty()) Text = "Nicht gelesen: " + Text;
  if (E.Unbrauchbar > 0) {
    Text +=
        (Text.empty() ? "" : "\n") +
        Anzahltext(E.Unbrauchbar, "Element mit unbrauchbaren Werten", "Elemente mit unbrauchbaren Werten") +
        " ausgelassen";
  }
  if (!Text.empty()) Hinweis(Text);
}

}  // namespace

int DxfText(std::string& Text) {
  Text.clear();
  DxfSchreiber S(Text);
  S.Text(0, "SECTION");
  S.Text(2, "HEADER");  // left open on purpose: readers of this form expect it so
  TabellenSchreiben(S);
  S.Text(0, "SECTION");
  S.Text(2, "BLOCKS");
  S.Text(0, "ENDSEC");
  S.Text(0, "SECTION");
  S.Text(2, "ENTITIES");
  if (DxfFreieElemente(S, "", "") < 0) return -1;
  S.Text(0, "ENDSEC");
  S.Text(0, "EOF");
  return 0;
}

int DxfSpeichern(const std::string& Datei, bool MitPunkten) {
  std::string Text, Grund;
  if ((MitPunkten ? DxfPunkteText(Text) : DxfText(Text)) < 0) return -1;
  if (DateiErsetzen(Datei, Text, &Grund) < 0) {
    SpeicherfehlerMelden(Datei, Grund, "DXFModul.Speichern");
    return -1;
  }
  GrafikUngesichert = false;
  return 0;
}

// The tests are made in this order, and a line that one of them meets goes through no other.
void DxfSuchlauf(std::string Text, DxfErgebnis& E) {
  E = {};
  for (char& z : Text) z = static_cast<char>(z >= 'a' && z <= 'z' ? z - 'a' + 'A' : z);
  Zeilenleser Leser(Text);
  bool ImAbschnitt = false;
  int Weiter = 0;
  std::string_view Zeile;
  while (Weiter == 0 && Leser.Nächste(Zeile)) {
    if (!ImAbschnitt && Hält(Zeile, "SECTION")) {
      ImAbschnitt = true;
    } else if (ImAbschnitt && Hält(Zeile, "ENDSEC")) {
      ImAbschnitt = false;
    } else if (ImAbschnitt && Hält(Zeile, "ENTITIES")) {
      if (!std::exchange(E.MitElementen, true)) E.Fremd = FremdeCodes(Leser);
    } else if (E.MitElementen && Hält(Zeile, "LINE")) {
      Weiter = LinieLesen(Leser, E);
    } else if (E.MitElementen && Hält(Zeile, "ARC")) {
      Weiter = BogenLesen(Leser, E);
    }
  }
}

int DxfLesen(const std::string& Datei, bool AusCad, DxfErgebnis& E) {
  E = {};
  std::string Text;
  if (DxfTextLesen(Datei, Text) < 0) return -1;
  const bool Vorher = GrafikUngesichert || !GrafikFreieLinien().empty() || !GrafikFreieBogen().empty();
  int Zeile = 0;
  if (AusCad) {
    Zeile = DxfPaare(Text, E);
  } else {
    DxfSuchlauf(std::move(Text), E);
  }
  const bool Ganz = E.MitElementen && !E.Voll && !E.Abgerissen && Zeile == 0;
  if (!Vorher && Ganz && !E.Fremd && E.Andere.empty() && E.Unbrauchbar == 0) GrafikUngesichert = false;
  GrafikNeuZeichnen();
  StatusHilfeSetzen(DxfZählung(E));
  if (Zeile > 0) {
    FehlerMeldung("Keine DXF-Datei aus Paaren, Zeile " + std::to_string(Zeile) + ":\n" + Datei);
  } else if (!E.MitElementen) {
    FehlerMeldung("Die Datei hat keinen Abschnitt ENTITIES:\n" + Datei);
    return -1;
  }
  AusgelassenMelden(E);
  if (E.Abgerissen) DateiendeMeldung(Datei);
  if (E.Fremd) FehlerMeldung("Fremde DXF-Datei: Elemente prüfen oder mit \"Aus CAD\" lesen");
  if (E.Voll)
    Hinweis("Maximale Anzahl von " + std::to_string(GrafikFreieGrenze) + " Elementen überschritten !");
  return Ganz ? 0 : 1;
}

std::string DxfZählung(const DxfErgebnis& E) {
  return Anzahltext(E.Linien, "Linie", "Linien") + ", " + Anzahltext(E.Bogen, "Bogen", "Bögen") + " gelesen";
}

}  // namespace tavorena
