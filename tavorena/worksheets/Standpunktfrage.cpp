#include <tavorena/forms/Dialogform.h>
#include <tavorena/worksheets/Standpunktfrage.h>

namespace tavorena {
namespace {

class Standpunktdialog final : public Dialogform {
 public:
  explicit Standpunktdialog(const std::string& Pnr) : Dialogform("TVFStatPunktForm", "Tavorena") {
    Hilfenummer = 4230;
    Ungefragt = true;
    BeschriftungAnlegen("Punkt schon vorhanden:", {0, 0});
    Feld& F = ErgebnisfeldAnlegen("FStatPunktPnr", {0, 1}, "", PnrZeichen);
    F.Text = Pnr;
    Knopf& Bekannt = KnopfAnlegen("FStatPunktOrientierung", "&Orientierung", [this] { Fertig(0); });
    Bekannt.Hilfe = "Der Standpunkt ist bekannt: ein Anschlußpunkt gibt die Orientierung";
    KnopfAnlegen("FStatPunktZurück", "&Zurück", [this] { Fertig(1); }, {0, 1}).Hilfe =
        "Eine andere Nummer eingeben";
    AbbruchAnlegen("FStatPunktAbbruch", "&Abbruch", {0, 2});
  }
};

}  // namespace

Standpunktantwort StandpunktFragen(const std::string& Pnr) {
  const int Antwort = Standpunktdialog(Pnr).Zeigen();
  if (Antwort == 0) return Standpunktantwort::Orientierung;
  return Antwort == 1 ? Standpunktantwort::Zurück : Standpunktantwort::Abbruch;
}

}  // namespace tavorena
