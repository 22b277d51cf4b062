#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Rohangaben.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Nivrohdaten.h>
#include <tavorena/rawdata/Rohbericht.h>
#include <tavorena/rawdata/Rohumwandlung.h>
#include <tavorena/shell/Koordinatendatei.h>

namespace tavorena {
namespace {

bool Ersetzen(const std::string& Datei, const std::string& Text) {
  std::string Grund;
  if (DateiErsetzen(Datei, Text, &Grund) == 0) return true;
  Hinweis(Datei + "\nläßt sich nicht schreiben !" + InKlammern(Grund));
  return false;
}

bool Umwandeln(const std::string& Ziel, int Ergebnis, const Umwandlung& U, const std::string& Grund,
               std::ostream& Ausgabe) {
  if (Ergebnis != 0) {
    Hinweis(Ziel + "\nwird nicht geschrieben !" + InKlammern(Grund));
    return false;
  }
  Ausgabe << Sichtbar(Ziel) << ": "
          << (U.Zeilen > 0 ? Anzahltext(static_cast<int>(U.Zeilen), "Zeile", "Zeilen")
                           : Anzahltext(static_cast<int>(U.Werte), "Wert", "Werte"))
          << " geschrieben";
  if (U.Sterne > 0) Ausgabe << ", " << U.Sterne << " zu lang für ihr Feld (\"*\")";
  if (U.Ohne > 0) Ausgabe << ", " << U.Ohne << " nicht lesbar";
  Ausgabe << '\n';
  return true;
}

bool Satzliste(const Aufruf& A, const Rohdatenwahl& Wahl, const Rohdaten& Roh) {
  const std::string Datei = A.Wert("--satzliste");
  std::string Text;
  if (Datei.empty()) return true;
  if (TextdateiLesen(A.Datei, Text) < 0) return false;  // it could be read a moment ago
  return Ersetzen(Datei, RohdatenSatzliste(Text, Roh.Form, Wahl.AlleEinheiten));
}

bool Punktdatei(const Aufruf& A, const Umfeld& U, const Rohdaten& Roh) {
  const std::string Datei = A.Wert("--punkte");
  if (Datei.empty()) return true;
  int Anzahl = 0;
  if (!Ersetzen(Datei, RohkoordinatenAlsKor(Roh, Optionen.OptNachkommaSpeichern, Anzahl))) return false;
  U.Ausgabe << Sichtbar(Datei) << ": " << Anzahltext(Anzahl, "Punkt", "Punkte") << " geschrieben\n";
  return true;
}

bool Umwandlungen(const Aufruf& A, const Umfeld& U, const Rohdaten& Roh) {
  const std::string Gre = A.Wert("--gre"), Zehn = A.Wert("--zehn-zu-eins");
  if ((!Gre.empty() || !Zehn.empty()) && Roh.Form == Rohform::GRE) {
    Hinweis(A.Datei + "\nist GRE; umgewandelt wird GSI.");
    return false;
  }
  Umwandlung Was;
  std::string Grund;
  if (!Gre.empty() && !Umwandeln(Gre, RohdatenKonvertieren(A.Datei, Gre, Was, &Grund), Was, Grund, U.Ausgabe))
    return false;
  return Zehn.empty() ||
         Umwandeln(Zehn, RohdatenZehnZuEins(A.Datei, Zehn, Was, &Grund), Was, Grund, U.Ausgabe);
}

bool Nivellementdatei(const Aufruf& A, const Umfeld& U, const Rohdaten& Roh) {
  const std::string Datei = A.Wert("--niv");
  Nivfund F;
  std::string Grund;
  if (Datei.empty()) return true;
  const bool Gut = NivellementAusRohdaten(A.Datei, Datei, Roh.Form, F, &Grund) == 0;
  for (const std::string& Hinweis : F.Hinweise) U.Ausgabe << Hinweis << '\n';
  if (!Gut) {
    FehlerMeldung(Datei + "\nwird nicht geschrieben !" + InKlammern(Grund));
    return false;
  }
  U.Ausgabe << Sichtbar(Datei) << ": " << Anzahltext(F.Ablesungen, "Ablesung", "Ablesungen") << ", "
            << Anzahltext(static_cast<int>(F.Höhen.size()), "Höhe", "Höhen") << " geschrieben\n";
  return true;
}

bool Berichten(const Aufruf& A, const Umfeld& U) {
  Rohdatenwahl Wahl;
  Rohdaten Roh;
  if (!RohdatenHolen(A, Wahl, Roh)) return false;
  for (const std::string& Zeile : RohdatenBericht(Roh)) U.Ausgabe << Zeile << '\n';
  return Satzliste(A, Wahl, Roh) && Punktdatei(A, U, Roh) && Umwandlungen(A, U, Roh) &&
         Nivellementdatei(A, U, Roh);
}

bool Ausgeben(const Aufruf& A, const Umfeld& U) {
  const std::string Art = A.Wert("--art");
  if (Art != "41" && Art != "42" && Art != "43") {
    FehlerMeldung("--art " + Art + " gibt es nicht, nur 41, 42, 43");
    return false;
  }
  if (SelbeDatei(A.Datei, A.Koordinaten)) {
    Hinweis(A.Datei + "\nist auch die Koordinatendatei.");
    return false;
  }
  const auto Form = static_cast<GSIAusgabe>(Art[1] - '0' + 40);
  if (!SpeichernErlaubt(A.Datei, static_cast<Punktformat>(Form), false) ||
      !Ersetzen(A.Datei, TabelleAlsGSI(Form)))
    return false;
  U.Ausgabe << Sichtbar(A.Datei) << ": " << Anzahltext(KorAnzahl, "Punkt", "Punkte") << " geschrieben\n";
  return true;
}

constexpr const char* Thema = "Rohdaten";

}  // namespace

Konsolenbefehl RohdatenBefehl() {
  return {
      "rohdaten",
      Thema,
      "Bericht über eine Rohdatendatei; schreibt sie in anderer Form",
      "Rohdatendatei (*.gsi, *.gre)",
      false,
      Berichten,
      MitRohangaben(
          {{"--satzliste", "DATEI", "schreibt jede Zeile, wie sie gelesen wird", false, Dateirolle::Ausgabe},
           {"--gre", "DATEI", "schreibt eine neue GRE-Datei", false, Dateirolle::Ausgabe},
           {"--zehn-zu-eins", "DATEI", "schreibt eine neue GSI-Datei, Längen und Koordinaten mal 10", false,
            Dateirolle::Ausgabe},
           {"--niv", "DATEI",
            "schreibt ein neues Feldbuch eines Nivelliers (*.niv), daneben die Höhen (*.hli)", false,
            Dateirolle::Ausgabe},
           {"--punkte", "DATEI", "schreibt die Punkte mit Koordinaten (*.kor)", false,
            Dateirolle::Ausgabe}})};
}

Konsolenbefehl GsiAusgabeBefehl() {
  return {"gsi-ausgabe",
          Thema,
          "die Punkte als GSI-Datei mit 16 Stellen für das Instrument",
          "GSI-Datei, die geschrieben wird",
          true,
          Ausgeben,
          {{"--art", "ART", "41 mit Höhe und Code, 42 mit Höhe, 43 nur Lage", true}}};
}

}  // namespace tavorena
