#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/Systemfeld.h>

namespace tavorena {
namespace {

// A file that is not where it was told may lie beside another one.
std::string Auffinden(const std::string& Name, const std::string& Bei) {
  if (DateiVorhanden(Name)) return Name;
  const Dateiname N = DateinameZerlegen(Name);
  std::string Daneben = DateinameZerlegen(Bei).Ordner + N.Grundname;
  EndungErgänzen(Daneben, "." + N.Endung);
  return DateiVorhanden(Daneben) ? Daneben : Name;
}

}  // namespace

Systemfeld::Systemfeld(Rechenblatt& Für, const char* Rahmen, NeuesSystem& Ziel,
                       std::function<void()> BeiWechsel, std::function<void()> BeiReturn)
    : Datei((Für.BeschriftungAnlegen("Neues System", {0, 0}, Rahmen),
             Für.FeldAnlegen(Für.Mit("Datei"), {0, 1, 5}, Rahmen, 62))),
      Blatt(Für),
      System(Ziel),
      Wechsel(std::move(BeiWechsel)),
      Weiter(std::move(BeiReturn)),
      Punktzahl((Für.KnopfAnlegen(
                     Für.Mit("Wahl"), "...", [this] { Wählen(); }, {0, 6}, Rahmen),
                 Für.BeschriftungAnlegen("", {0, 7}, Rahmen))) {
  Datei.Hilfe = "KOR-Datei mit den Paßpunkten im neuen System";
  Datei.BeiVerlassen = [this] { return Lesen(); };
  Datei.BeiReturn = [this] { Weiter(); };
}

void Systemfeld::Wählen() {
  const std::string Neue = DateiFragen("Neues System", "CADdy (*.kor)|*.kor", "*.kor", false);
  if (Neue.empty()) return;
  Datei.Text = Neue;
  Blatt.FokusSetzen(Datei);
  if (Formular::Lesen(Datei)) Weiter();
}

// The open file itself is looked for where it lies.
bool Systemfeld::Lesen() {
  std::string Neue = Trimmen(*Datei.Text);
  if (!Neue.empty()) {
    EndungErgänzen(Neue, "*.kor");
    Neue = Auffinden(Neue, KoordinatendateiName);
  }
  Datei.Text = Neue;
  if (Neue == Name) return true;
  if (!StapelTextPaßt(Neue)) {
    StatusHilfeSetzen("Dateiname mit Steuerzeichen");
    return false;
  }
  System.Leeren();
  const bool Gut = Neue.empty() || System.Lesen(Neue) == 0;
  Nehmen(Gut ? Neue : "");
  return Gut;
}

void Systemfeld::Leeren() {
  Datei.Text = "";
  Datei.Fehlerhaft = false;
  System.Leeren();
  Nehmen("");
}

std::string Systemfeld::AusSatz(const std::string& Dateiname) {
  Datei.Text = Auffinden(Dateiname, Stapel.Bilanz.Datei);
  if (!DateiVorhanden(*Datei.Text)) return "Neues System nicht gefunden: " + Dateiname;
  if (System.Lesen(*Datei.Text) < 0) return "Neues System nicht gelesen: " + Dateiname;
  Nehmen(*Datei.Text);
  return "";
}

void Systemfeld::Nehmen(const std::string& Neuer) {
  Name = Neuer;
  Punktzahl.Text = System.Anzahl() > 0 ? Anzahltext(System.Anzahl(), "Punkt", "Punkte") : "";
  Wechsel();
}

}  // namespace tavorena
