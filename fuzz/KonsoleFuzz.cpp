#include "Fuzzhilfe.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Datei.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::fuzz {
namespace {

const char* const Antworten[] = {"", "abbruch", "alt-loeschen", "mittel", "neu-loeschen"};

// The next of the files of a run; the code 30 stands between them.
std::string_view Teil(std::string_view& Rest) {
  const std::string_view T = Rest.substr(0, Rest.find('\x1e'));
  Rest.remove_prefix(std::min(T.size() + 1, Rest.size()));
  return T;
}

bool Harmlos(const std::string& Text) {
  return std::none_of(Text.begin(), Text.end(), [](char z) {
    return (static_cast<unsigned char>(z) < 0x20 && z != '\n') || z == 0x7F;
  });
}

void Lauf(Eingabe E) {
  Aufruf A;
  A.Vorhanden = Antworten[E.Zahl(0, 4)];
  A.Trotzdem = E.Zahl(0, 1) == 1;
  std::string_view Rest = E.Rest();
  A.Koordinaten = Datei("a.kor", Teil(Rest));
  A.Datei = Datei("a.sta", Teil(Rest));
  Datei("Tavorena.ini", Teil(Rest));
  A.Protokoll = Ordner() + "/a.dru";
  A.Speichern = Ordner() + "/b.kor";
  for (const std::string& Name : {A.Protokoll, A.Speichern})
    Prüfen(DateiLöschen(Name) == 0, "kein alter Rest");

  std::ostringstream Aus, Meldungen;
  const Rückgabe R = SitzungFühren(Stapelbefehl(), A, {Aus, Meldungen, ""});
  Prüfen(R == Getan || R == NichtGetan, "der Aufruf ist gültig");
  Prüfen(!Stapel.Aktiv, "der Lauf ist zu Ende");
  Prüfen(DateiVorhanden(A.Speichern) == (R == Getan), "gespeichert wird nach einem Lauf ohne Fehler");
  Prüfen(R == Getan || !Meldungen.str().empty(), "was nicht getan ist, wird gesagt");
  Prüfen(Harmlos(Aus.str()) && Harmlos(Meldungen.str()), "kein Steuerzeichen erreicht den Bildschirm");
  std::istringstream Zeilen(Meldungen.str());
  for (std::string Zeile; std::getline(Zeilen, Zeile);) {
    Prüfen(Zeile.starts_with(Ordner()), "eine Meldung beginnt mit ihrer Datei");
  }
  TabellePrüfen();
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*Anzahl*/, char*** /*Worte*/) {
  setenv("TAVORENA_ORDNER", tavorena::fuzz::Ordner().c_str(), 1);
  unsetenv("windir");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
