#include <cmath>
#include <memory>

#include <tavorena/calc/Flaeche.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/records/Abstandsflaeche.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Funktionsbefehle.h>
#include <tavorena/shell/Koordinatendatei.h>

namespace tavorena {
namespace {

constexpr int Hilfeseite = 6060;

void TagebuchDrucken() {
  Hinweis(DateiVorhanden(Optionen.DateinameTagebuch) ? "Tagebuch- Datenbank kann nicht gelesen werden !"
                                                     : "Tagebuch- Datenbank nicht vorhanden !");
}

// ---- clearance areas -------------------------------------------------------------------------------

constexpr const char* AbstandsflächenKasten = "Tavorena Abstandsflächen";

// A measure above 0 that has room in the protocol.
bool MaßLesen(const std::string& Was, const std::string& Text, double Grenze, double& Wert) {
  const std::string_view Wort = TrimmenSicht(Text);
  const double Neu = IstZahlwort(Wort) ? ZahlAusText(Wort) : NAN;
  if (Neu > 0 && Neu < Grenze) {
    Wert = Neu;
    return true;
  }
  FehlerMeldung(Was + " eine Zahl über 0 und unter " + ZahlFormat(Grenze, -1, 0) + ", nicht " + Zitat(Text));
  return false;
}

// @return false: cancelled
bool WandFragen(double& Länge, double& Höhe, double& Faktor) {
  std::string L, H, F = "1.0";
  do {
    if (ZweiWerte(AbstandsflächenKasten, "Wandlänge:", L, "Wandhöhe:", H) < 0) return false;
  } while (!MaßLesen("Wandlänge:", L, 10000, Länge) || !MaßLesen("Wandhöhe:", H, 10000, Höhe));
  do {
    if (EinWert(AbstandsflächenKasten, "Faktor:", F) < 0) return false;
  } while (!MaßLesen("Faktor:", F, 10, Faktor));
  return true;
}

void AbstandsflächeBerechnen() {
  double Länge = 0, Höhe = 0, Faktor = 0;
  if (!WandFragen(Länge, Höhe, Faktor)) return;
  const double Tiefe = Abstandstiefe(Höhe, Faktor);
  const Protabstandsfläche A{Länge, Höhe, Faktor, Tiefe, Länge * Tiefe};
  auto Kopf = std::make_shared<Verbindung>();
  Kopf->Titel = TitelAbstandsflächen;
  Kopf->Riß = LetzterPlan;
  const int n = Optionen.OptNachkommastellen;
  if (Schreiben(Prot, Kopf, AbstandsflächenBlock(n, A)) < 0) return;
  Hinweis("Tiefe: " + ZahlFormat(A.Tiefe, -1, n) +
              " m (Wandhöhe mal Faktor, mindestens 3 m)\nFläche: " + ZahlFormat(A.Fläche, -1, n) + " m²",
          AbstandsflächenKasten);
}

// ---- files beside the Condor window ----------------------------------------------------------------

enum class Inhaltsart { Unbekannt, Kor, Lt4, Edbs, Dxf };

// A file of pairs begins with the code 0 and the word SECTION, perhaps behind a comment (999).
bool IstDxf(std::string_view Text) {
  Zeilenleser Leser(Text);
  std::string_view Code, Wert;
  while (Leser.Nächste(Code) && Leser.Nächste(Wert)) {
    if (TrimmenSicht(Code) == "999") continue;
    return TrimmenSicht(Code) == "0" && TrimmenSicht(Wert) == "SECTION";
  }
  return false;
}

bool IstLt4Zeile(std::string_view Zeile) {
  const auto Spalte = [Zeile](std::size_t Ab, std::size_t n) { return TrimmenSicht(TextTeil(Zeile, Ab, n)); };
  return ZeichenAnzahl(Zeile) >= 64 && Zeile[3] == ' ' && IstZahlwort(Spalte(23, 11)) &&
         IstZahlwort(Spalte(35, 11));
}

bool IstKorZeile(std::string_view Zeile) {
  Wortnehmen(Zeile);
  const std::string_view Rechts = Wortnehmen(Zeile), Hoch = Wortnehmen(Zeile);
  return IstZahlwort(Rechts) && IstZahlwort(Hoch);
}

// By what most of the lines are; a line of LT4 could be one of KOR as well.
Inhaltsart InhaltsartVon(std::string_view Text) {
  if (IstDxf(Text)) return Inhaltsart::Dxf;
  int Kor = 0, Lt4 = 0, Alle = 0;
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    if (TrimmenSicht(Zeile).empty() || Zeile.starts_with('#')) continue;
    const EDBSZeile Art = EDBSZeileArt(Zeile);
    if (Art != EDBSZeile::Andere) return Inhaltsart::Edbs;
    ++Alle;
    if (IstLt4Zeile(Zeile)) {
      ++Lt4;
    } else if (IstKorZeile(Zeile)) {
      ++Kor;
    }
  }
  if (Lt4 > Kor && 2 * Lt4 >= Alle) return Inhaltsart::Lt4;
  return Kor > 0 && 2 * Kor >= Alle ? Inhaltsart::Kor : Inhaltsart::Unbekannt;
}

void CondorLesen(bool NurKor) {
  std::string Name, Text, Grund;
  const char* Filter = NurKor ? "CADdy (*.kor)|*.kor" : "Alle Dateien |*.*";
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Lesen, Filter, NurKor ? "*.kor" : "*.*", Name) < 0) return;
  if (TextdateiLesen(Name, Text, &Grund) < 0) return KoordinatendateiFehlt(Name, Grund);
  const Inhaltsart Art = Text.find('\0') == std::string::npos ? InhaltsartVon(Text) : Inhaltsart::Unbekannt;
  DxfErgebnis Gelesen;
  if (Art == Inhaltsart::Unbekannt || (NurKor && Art != Inhaltsart::Kor))
    return FehlerMeldung("Format nicht erkannt");
  if (Art == Inhaltsart::Dxf) return static_cast<void>(DxfLesen(Name, true, Gelesen));  // tells what it did
  KoordinatenHinzulesen(Name, Lesemodus::Alle,
                        Art == Inhaltsart::Edbs  ? Dateiformat::Edbs
                        : Art == Inhaltsart::Lt4 ? Dateiformat::Lt4
                                                 : Dateiformat::Kor);
}

const Befehl Befehle[] = {
    {"MenüDateiCondorLesen(0)", true, [] { CondorLesen(true); }, true, nullptr, Hilfeseite},
    {"MenüDateiCondorLesen(1)", true, [] { CondorLesen(false); }, true, nullptr, Hilfeseite},
    {"MenüFunktTagebuch", true, TagebuchDrucken, false, nullptr, Hilfeseite},
    {"MenüFunktionalitätenAbstandsflächen", true, AbstandsflächeBerechnen, false, nullptr, Hilfeseite},
};

}  // namespace

std::span<const Befehl> Funktionsbefehle() { return Befehle; }

}  // namespace tavorena
