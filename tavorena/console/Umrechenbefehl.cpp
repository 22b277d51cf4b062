#include <algorithm>
#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Worte.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Umrechnung.h>
#include <tavorena/shell/Umrechenbefehle.h>

namespace tavorena {
namespace {

struct Formwort {
  const char* Wort;
  Koordinatenform Form;
  bool Quelle = true;  ///< can be a source too
};
constexpr Formwort Formworte[] = {
    {"geo", {}},
    {"gk", {Koordinatenart::GK, 0}},
    {"gk1", {Koordinatenart::GK, 1}, false},
    {"gk2", {Koordinatenart::GK, 2}, false},
    {"gk3", {Koordinatenart::GK, 3}, false},
    {"gk4", {Koordinatenart::GK, 4}, false},
    {"gk5", {Koordinatenart::GK, 5}, false},
    {"utm", {Koordinatenart::UTM, 0}},
    {"utm31", {Koordinatenart::UTM, 31}},
    {"utm32", {Koordinatenart::UTM, 32}},
    {"utm33", {Koordinatenart::UTM, 33}},
};

std::string Worte(bool Quellen) {
  std::string Alle;
  for (const Formwort& F : Formworte) {
    if (F.Quelle || !Quellen) Alle += (Alle.empty() ? "" : ", ") + std::string(F.Wort);
  }
  return Alle;
}

// "bessel", "international" or the two semi-axes.
bool EllipsoidLesen(const std::string& Wort, Umrechnung& U) {
  if (Wort.empty() || Wort == "bessel") return true;
  if (Wort == "international") {
    U.Körper = Ellipsoide[1];
    U.Ellipsoidname = "International";
    return true;
  }
  const std::vector<std::string> Achsen = Wortliste(Wort);
  if (Achsen.size() != 2 || !std::all_of(Achsen.begin(), Achsen.end(), IstZahlwort)) return false;
  const double a = ZahlAusText(Achsen[0]), b = ZahlAusText(Achsen[1]);
  if (!HalbachsenMöglich(a, b)) return false;
  U.Körper = Ellipsoid(a, b);
  U.Ellipsoidname = "Eingabe";
  return true;
}

// What the options ask for. @return what is wrong with them; "": nothing
std::string Lesen(const Aufruf& A, Umrechnung& U) {
  const std::string Stellen = A.Wert("--nachkomma"), Körper = A.Wert("--ellipsoid");
  for (const bool Quelle : {true, false}) {
    const char* const Option = Quelle ? "--von" : "--nach";
    const auto F = std::find_if(std::begin(Formworte), std::end(Formworte), [&](const Formwort& W) {
      return W.Wort == A.Wert(Option) && (W.Quelle || !Quelle);
    });
    if (F == std::end(Formworte))
      return std::string(Option) + " " + A.Wert(Option) + " gibt es nicht, nur " + Worte(Quelle);
    (Quelle ? U.Von : U.Nach) = F->Form;
  }
  if (U.Von.Art == Koordinatenart::Geographisch && U.Nach.Art == Koordinatenart::Geographisch)
    return "--von geo --nach geo: da ist nichts umzurechnen";
  const bool Utm = U.Von.Art == Koordinatenart::UTM || U.Nach.Art == Koordinatenart::UTM;
  if (Utm && !Körper.empty()) return "--ellipsoid: UTM hat sein eigenes (GRS 80)";
  if (!EllipsoidLesen(Körper, U))
    return "--ellipsoid " + Körper + ": erwartet wird bessel, international oder A,B in Metern";
  if (!Stellen.empty() && (Stellen.size() != 1 || Stellen[0] < '0' || Stellen[0] > '6'))
    return "--nachkomma " + Stellen + ": erwartet wird 0 bis 6";
  U.Nachkomma = Stellen.empty() ? Optionen.OptNachkommaSpeichern : Stellen[0] - '0';
  return "";
}

bool Umrechnen(const Aufruf& A, const Umfeld& U) {
  Umrechnung Was;
  Umrechenbericht B;
  static_cast<void>(Lesen(A, Was));  // looked at before
  if (VerschiedeneBezugssysteme(Was)) {
    FehlerMeldung(Bezugssystemtext());
    return false;
  }
  if (DateiUmrechnen(A.Datei, A.Ziel, Was, B) < 0) return false;
  U.Ausgabe << "Punkte: " << B.Punkte << "  übergangen: " << B.Andere << '\n';
  if (B.Fremde.Anzahl > 0) U.Ausgabe << Sichtbar(Umrechenhinweis(B)) << '\n';
  return true;
}

}  // namespace

Konsolenbefehl UmrechenBefehl() {
  static const std::string Quellen = Worte(true) + "; utm: die Zone steht im Rechtswert",
                           Ziele = Worte(false) + "; gk und utm: nach der Länge";
  return {"umrechnen",
          "Austausch",
          "rechnet geographische Koordinaten, Gauß-Krüger-Streifen und UTM-Zonen ineinander um",
          "Eingabedatei",
          false,
          Umrechnen,
          {{"--von", "FORM", Quellen.c_str(), true},
           {"--nach", "FORM", Ziele.c_str(), true},
           {"--ellipsoid", "KÖRPER",
            "bessel, international oder die Halbachsen A,B in Metern (bessel); "
            "nicht mit UTM"},
           {"--nachkomma", "STELLEN", "Nachkommastellen ebener Koordinaten, 0 bis 6"}},
          "Ausgabedatei",
          [](const Aufruf& A) {
            Umrechnung Was;
            return Lesen(A, Was);
          }};
}

}  // namespace tavorena
