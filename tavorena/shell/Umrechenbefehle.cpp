#include <vector>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/shell/TVGeokonvertForm.h>
#include <tavorena/shell/Umrechenbefehle.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

// Asks until a file was converted, or the user gives up.
void Umrechnen(Umrechenrichtung R, const char* Titel) {
  const bool Hin = R == Umrechenrichtung::NachEbene, Her = R == Umrechenrichtung::NachGeographisch;
  Umrechenwahl W;
  if (!Hin) W.Was.Von.Art = Koordinatenart::GK;
  if (!Her) W.Was.Nach.Art = Koordinatenart::GK;
  W.Was.Nachkomma = Optionen.OptNachkommaSpeichern;
  while (TVGeokonvertForm(R, Titel, W).Zeigen() == 0) {
    Umrechenbericht B;
    if (DateiUmrechnen(W.Ein, W.Aus, W.Was, B) == 0) return Hinweis(Umrechentext(W.Was, B, W.Aus));
  }
}

}  // namespace

std::string Bezugssystemtext() {
  return std::string(
             "Gauß-Krüger und UTM haben verschiedene Bezugssysteme. Über Paßpunkte transformieren: ") +
         BlattartVonMenü("MenüKatasterHelmert")->VR;
}

std::span<const Befehl> Umrechenbefehle() {
  using R = Umrechenrichtung;
  static const std::vector<Befehl> Alle = {
      {"MenüKonvertierenGeo", false,
       [] { Umrechnen(R::NachEbene, "Tavorena Geographische -> ebene Koordinaten"); }, false, nullptr,
       Umrechenseite},
      {"MenüKonvertierenKor(0)", false,
       [] { Umrechnen(R::NachGeographisch, "Tavorena Ebene -> geographische Koordinaten"); }, false, nullptr,
       Umrechenseite},
      {"MenüKonvertierenKor(1)", false, [] { Umrechnen(R::Wechsel, "Tavorena Streifen oder Zone wechseln"); },
       false, nullptr, Umrechenseite},
  };
  return Alle;
}

}  // namespace tavorena
