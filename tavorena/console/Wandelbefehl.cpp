#include <algorithm>
#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zeichensatz.h>
#include <tavorena/exchange/CSV.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/EDBSWandler.h>
#include <tavorena/exchange/Freiformat.h>
#include <tavorena/exchange/NAS.h>
#include <tavorena/shell/Austausch.h>

namespace tavorena {
namespace {

constexpr auto Keins = static_cast<Punktformat>(-1);
using P = Punktformat;

/// A word of --von and --nach.
struct Wandelformat {
  const char* Wort;
  Punktformat Von, Nach;
  Dateiformat Datei = Dateiformat::Kor;  ///< tells whether the table has attributes
};
constexpr Wandelformat Wandelformate[] = {
    {"kor", P::Kor, P::Kor},
    {"lt4", P::Lt4, P::Lt4, Dateiformat::Lt4},
    {"alk", P::Lt4, P::Lt4, Dateiformat::Lt4},
    {"edbs", P::Edbs, P::Edbs, Dateiformat::Edbs},
    {"lfs", P::Lfs, P::Lfs},
    {"asc", P::Lfs, P::Lfs},
    {"coo", P::Coo, Keins},
    {"geomap", P::GeoMap, Keins},
    {"gsi", P::Gsi, P::GsiMitCode},
    {"gsi-ohne-code", Keins, P::GsiMitHöhe},
    {"gsi-ohne-hoehe", Keins, P::GsiOhneHöhe},
    {"geograf", P::Geograf, P::GeografAus},
    {"frei", P::Frei, P::Frei},
    {"csv", P::Csv, P::Csv},
    {"nas", P::Nas, Keins},
    {"hli", Keins, P::Höhenliste},
};

std::string Worte(Punktformat Wandelformat::*Seite) {
  std::string Alle;
  for (const Wandelformat& F : Wandelformate) {
    if (F.*Seite != Keins) Alle += (Alle.empty() ? "" : ", ") + std::string(F.Wort);
  }
  return Alle;
}

const Wandelformat* FormatVon(const std::string& Wort, Punktformat Wandelformat::*Seite) {
  const auto i = std::find_if(std::begin(Wandelformate), std::end(Wandelformate),
                              [&](const Wandelformat& F) { return F.Wort == Wort && F.*Seite != Keins; });
  return i != std::end(Wandelformate) ? i : nullptr;
}

bool Gegeben(const Aufruf& A, const char* Option) { return !A.Wert(Option).empty(); }

// An option that takes one of a few words.
std::string Worteinwand(const Aufruf& A, const char* Option, std::initializer_list<const char*> Erlaubt) {
  const std::string Wort = A.Wert(Option);
  if (Wort.empty() || std::find(Erlaubt.begin(), Erlaubt.end(), Wort) != Erlaubt.end()) return "";
  std::string Alle;
  for (const char* E : Erlaubt) Alle += (Alle.empty() ? "" : ", ") + std::string(E);
  return std::string(Option) + " " + Wort + " gibt es nicht, nur " + Alle;
}

std::string Freieinwände(const Aufruf& A) {
  const bool Frei = A.Wert("--von") == "frei" || A.Wert("--nach") == "frei";
  Freiformat F;
  std::string Grund;
  if (!Gegeben(A, "--frei")) return Frei ? "--frei fehlt" : "";
  if (!Frei && A.Wert("--von") != "csv") return "--frei gehört zum Format frei";
  if (FreiformatLesen(A.Wert("--frei"), F, Grund) < 0) return "--frei: " + Grund;
  Grund = FreiformatEinwand(F, A.Wert("--nach") == "frei").Text;
  return Grund.empty() ? "" : "--frei: " + Grund;
}

// The converter, past the table.
bool IstEdbsWandlung(const Aufruf& A) {
  return A.Wert("--von") == "edbs" && A.Wert("--nach") == "kor" && Gegeben(A, "--nummer");
}

std::string Nummerneinwand(const Aufruf& A) {
  const bool Nas = A.Wert("--von") == "nas" && A.Wert("--nummer") == "km2";
  if (Gegeben(A, "--nummer") && !IstEdbsWandlung(A) && !Nas)
    return "--nummer gehört zu --von edbs --nach kor, mit km2 auch zu --von nas";
  return Gegeben(A, "--kataster") && !IstEdbsWandlung(A) ? "--kataster braucht --nummer und --von edbs" : "";
}

std::string Einwand(const Aufruf& A) {
  const std::string Von = A.Wert("--von"), Nach = A.Wert("--nach"), Stellen = A.Wert("--nachkomma");
  Zeichensatz Satz = Zeichensatz::Utf8;
  if (FormatVon(Von, &Wandelformat::Von) == nullptr)
    return "--von " + Von + " gibt es nicht, nur " + Worte(&Wandelformat::Von);
  if (FormatVon(Nach, &Wandelformat::Nach) == nullptr)
    return "--nach " + Nach + " gibt es nicht, nur " + Worte(&Wandelformat::Nach);
  if (Gegeben(A, "--zeichensatz") &&
      (!ZeichensatzAus(A.Wert("--zeichensatz"), Satz) || Satz == Zeichensatz::Automatisch))
    return "--zeichensatz " + A.Wert("--zeichensatz") + " gibt es nicht, nur utf8, utf8-bom, 1252, 850";
  if (!Stellen.empty() && (Stellen.size() != 1 || Stellen[0] < '0' || Stellen[0] > '6'))
    return "--nachkomma " + Stellen + ": erwartet wird 0 bis 6";
  for (const std::string& Text :
       {Worteinwand(A, "--achsen", {"yx", "xy"}), Worteinwand(A, "--nummer", {"art", "km2", "lfs"}),
        Nummerneinwand(A), Freieinwände(A),
        std::string(Gegeben(A, "--achsen") && Von != "csv" ? "--achsen gehört zum Format csv" : "")}) {
    if (!Text.empty()) return Text;
  }
  return "";
}

// What the options say for this run.
void Einstellen(const Aufruf& A, const Wandelformat& Von) {
  std::string Grund;
  Koordinatendateiformat = Von.Datei;
  CsvAchsen = A.Wert("--achsen") == "xy"   ? Csvachsen::XY
              : A.Wert("--achsen") == "yx" ? Csvachsen::YX
                                           : Csvachsen::Ablehnen;
  NasNummer = A.Wert("--nummer") == "km2" ? Nasnummer::Km2 : Nasnummer::Kurz;
  if (Gegeben(A, "--nachkomma"))
    Optionen.OptNachkommaSpeichern = static_cast<std::int16_t>(A.Wert("--nachkomma")[0] - '0');
  if (Gegeben(A, "--frei")) static_cast<void>(FreiformatLesen(A.Wert("--frei"), LetztesFreiformat, Grund));
}

bool EdbsNachKor(const Aufruf& A, const Umfeld& U) {
  const std::string Art = A.Wert("--nummer");
  const EDBSAuftrag Auftrag{A.Datei, A.Ziel, A.Wert("--kataster"),
                            Art == "art"   ? EDBSNummer::Klasse
                            : Art == "km2" ? EDBSNummer::KmQuadrat
                                           : EDBSNummer::Tabelle};
  EDBSWandlung W;
  // A file that was cut is a failure by now, unless the call takes it.
  if (EDBSWandeln(Auftrag, W) < 0 || U.Beendet() || EDBSWandlungSchreiben(Auftrag, W) < 0) return false;
  U.Ausgabe << "Punkte: " << W.Punkte << "  übergangen: " << W.Übergangen << '\n';
  return true;
}

// That of the call, else for EDBS the coding of the file it comes from.
Zeichensatz ZeichensatzFür(const Aufruf& A, Punktformat Nach) {
  Zeichensatz Satz = Zeichensatz::Utf8;
  if (Gegeben(A, "--zeichensatz")) {
    static_cast<void>(ZeichensatzAus(A.Wert("--zeichensatz"), Satz));
  } else if (Nach == P::Edbs && EDBSOffen.Windows1252) {
    Satz = Zeichensatz::Windows1252;
  }
  return Satz;
}

bool Wandeln(const Aufruf& A, const Umfeld& U) {
  const Wandelformat &Von = *FormatVon(A.Wert("--von"), &Wandelformat::Von),
                     &Nach = *FormatVon(A.Wert("--nach"), &Wandelformat::Nach);
  Einstellen(A, Von);
  if (IstEdbsWandlung(A)) return EdbsNachKor(A, U);
  Punktformat Format = Von.Von;
  Freiformat Vermutet;  // given by the option
  if (Gegeben(A, "--frei")) CsvFormatKlären(A.Datei, Format, Vermutet);
  Lesebericht B;
  // A file that was cut is a failure by now, unless the call takes it.
  if (PunkteEinlesen(A.Datei, Lesemodus::Ersetzen, Format, B) < 0 || U.Beendet()) return false;
  if (TabelleAusgeben(A.Ziel, Nach.Nach, ZeichensatzFür(A, Nach.Nach)) < 0) return false;
  U.Ausgabe << "Punkte: " << B.Gelesen << "  übergangen: " << B.Übergangen << '\n';
  if (!B.Zusatz.empty()) U.Ausgabe << Sichtbar(B.Zusatz) << '\n';
  return true;
}

}  // namespace

Konsolenbefehl WandelBefehl() {
  static const std::string Quellen = Worte(&Wandelformat::Von), Ziele = Worte(&Wandelformat::Nach);
  return {"wandeln",
          "Austausch",
          "liest Punkte in einem Format und schreibt sie in einem anderen",
          "Eingabedatei",
          false,
          Wandeln,
          {{"--von", "FORMAT", Quellen.c_str(), true},
           {"--nach", "FORMAT", Ziele.c_str(), true},
           {"--frei", "STELLEN",
            "wo im freien Format was steht: \"trenner=; pnr=1 rechts=2 hoch=3 hoehe=4 symbol=5 zeilen=1\"; "
            "trenner: leer, tab, \";\" oder \",\"; Spalten als pnr=1-8; zeichensatz der Eingabe"},
           {"--zeichensatz", "NAME", "der Ausgabe: utf8, utf8-bom, 1252, 850; sonst utf8"},
           {"--nachkomma", "STELLEN", "Nachkommastellen der Ausgabe"},
           {"--achsen", "yx|xy",
            "CSV mit den Überschriften x und y: ist x der Hochwert (yx) oder der Rechtswert"},
           {"--nummer", "ART", "Punktnummern aus edbs: art, km2, lfs; aus nas: km2"},
           {"--kataster", "DATEI", "KOR-Datei: ihre Punkte kommen hinzu, deren Nummern fehlen", false,
            Dateirolle::Eingabe}},
          "Ausgabedatei",
          Einwand};
}

}  // namespace tavorena
