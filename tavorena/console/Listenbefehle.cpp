#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Worte.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Punktlisten.h>

namespace tavorena {
namespace {

// Prints a list, or why there is none, which is an answer too.
bool Drucken(const Umfeld& U, const Listentext& Liste, const char* Keine) {
  if (Liste.Zeilen.empty()) {
    U.Ausgabe << (KorAnzahl == 0 ? "Noch keine Koordinaten eingelesen !" : Keine) << '\n';
    return true;
  }
  for (const std::string& Zeile : Liste.Kopf) U.Ausgabe << Zeile << '\n';
  for (const std::string& Zeile : Liste.Zeilen) U.Ausgabe << Sichtbar(Zeile) << '\n';
  return true;
}

bool Doppelte(const Aufruf& /*A*/, const Umfeld& U) {
  return Drucken(U, PunktlisteText(DoppelteListe(), Optionen.OptNachkommastellen),
                 "Keine doppelten Punkte vorhanden !");
}

bool Quasi(const Aufruf& A, const Umfeld& U) {
  double fs = 0;
  if (!LängeLesen(A.Wert("--fs"), "--fs", fs)) return false;
  const bool MitEinzelpunkten = A.Wert("--ohne-einzelpunkte").empty();
  return Drucken(U, PunktlisteText(QuasiListe(fs, MitEinzelpunkten), Optionen.OptNachkommastellen),
                 "Keine quasiidentischen Punkte vorhanden !");
}

bool Belegung(const Aufruf& A, const Umfeld& U) {
  std::string Von, Bis;
  if (!BereichLesen(A.Wert("--bereich"), Von, Bis)) return false;
  std::int64_t Erste = 0, Letzte = 0;
  if (!GanzePunktnummer(Von, Erste) || !GanzePunktnummer(Bis, Letzte)) {
    FehlerMeldung("Die Punktnummern des Bereichs müssen ganze Zahlen sein.");
    return false;
  }
  const Listentext Läufe = KorAnzahl > 0 ? BelegungText(Punktnummernbelegung(Erste, Letzte)) : Listentext{};
  return Drucken(U, Läufe, "");
}

constexpr const char* Thema = "Punktlisten";

}  // namespace

Konsolenbefehl DoppelteBefehl() {
  return {"doppelte", Thema, "Punkte, deren Nummer mehrfach vorkommt", nullptr, true, Doppelte};
}

Konsolenbefehl QuasiBefehl() {
  return {"quasi",
          Thema,
          "Punkte, die fast an einem Ort liegen",
          nullptr,
          true,
          Quasi,
          {{"--fs", "METER", "größter Abstand, zum Beispiel 0.01", true},
           {"--ohne-einzelpunkte", nullptr, "nur Gruppen von zwei und mehr Punkten"}}};
}

Konsolenbefehl BelegungBefehl() {
  return {"belegung",
          Thema,
          "belegte und freie Punktnummern eines Bereichs",
          nullptr,
          true,
          Belegung,
          {{"--bereich", "VON,BIS", "erste und letzte Nummer", true}}};
}

}  // namespace tavorena
