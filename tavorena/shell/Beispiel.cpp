#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/shell/Beispiel.h>
#include <tavorena/shell/TVHauptmodul.h>

namespace tavorena {
namespace {

// Under which names the files of the example come to the user. The batch file of the job has a name of its
// own: what is recorded beside musterdorf.kor must not be written behind it. The coordinates come last, so
// that they are there with all that belongs to them.
struct Beispieldatei {
  const char *Name, *Kopie;
};
constexpr Beispieldatei Dateien[] = {{"musterdorf.sta", "beispiel.sta"},
                                     {"passpunkte.kor", "passpunkte.kor"},
                                     {"musterdorf.kor", "musterdorf.kor"}};

int Kopieren(const std::string& Von, const std::string& Nach) {
  if (DateiVorhanden(Nach)) return 0;
  std::string Bytes, Grund;
  if (DateiLesen(Von, Bytes, &Grund) < 0) {
    LesefehlerMelden(Von, Grund);
    return -1;
  }
  const Dateistand Fehlt;
  // -2: it came in the meantime.
  if (DateiErsetzen(Nach, Bytes, &Grund, &Fehlt) != -1) return 0;
  SchreibfehlerMelden(Nach, Grund);
  return -1;
}

// @return 0; -1 with a message
int BeispielKopieren(const std::string& Ordner) {
  const std::string Quelle = UmgebungPort().ProgrammOrdner() + "/../share/tavorena/beispiel/";
  if (OrdnerAnlegen(Ordner) < 0) {
    Hinweis("Fehler aufgetreten beim Anlegen von\n" + Ordner);
    return -1;
  }
  for (const auto& [Name, Kopie] : Dateien) {
    if (Kopieren(Quelle + Name, Ordner + Kopie) < 0) return -1;
  }
  return 0;
}

}  // namespace

void BeispielÖffnen() {
  const std::string Dokumente = UmgebungPort().Dokumentordner();
  if (Dokumente.empty()) return Hinweis("Der Ordner Ihrer Dokumente ist nicht bekannt.");
  const std::string Ordner = Dokumente + "/Tavorena-Beispiel/";
  if (BeispielKopieren(Ordner) < 0 || HauptKoordinatendateiWechseln(true) < 0) return;
  HauptInitialisierung();
  HauptDateiÖffnen(Ordner + Dateien[std::size(Dateien) - 1].Kopie, Dateiformat::Kor);
}

}  // namespace tavorena
