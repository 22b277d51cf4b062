#pragma once

#include "Formulartest.h"

#include <cstdlib>

#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena::test {

/// The program with an application folder of its own, started and without a file.
class Shelltest : public TabellenTest {
 protected:
  Shelltest() {
    Umgebungsvariable("TAVORENA_ORDNER", Ordner.Pfad("app").c_str());
    Umgebungsvariable("windir");
    Prot = {};
    Stapel = {};
    Historie = {};
    Skript.BeiBlatt = [](Formular& Form) { Form.Öffnen(); };
    HauptAnschließen();
    HauptInitialisierung();
  }
  ~Shelltest() override {
    KoordinatendateiName.clear();
    StapelDatei = {};
    BlätterSchließen();
    Umgebungsvariable("TAVORENA_ORDNER");
  }

  const std::string A_kor = Ordner.Pfad("a.kor"), A_dru = Ordner.Pfad("a.dru");

  static void Befehl(const char* Name) { TVKernMDIForm::Fenster().Ausführen(Name); }
  /// With the file that is chosen in its dialog.
  void Befehl(const char* Name, const std::string& Datei) {
    Skript.Dateien.push_back(Datei);
    Befehl(Name);
  }
  /// The next modal form is left by one of its buttons.
  void Knopf(int Nummer) {
    Skript.Formulare.push_back(Bediene({{"Knopf(" + std::to_string(Nummer) + ")", ""}}));
  }
  static bool Aktiv(const char* Name) { return TVKernMDIForm::Fenster().Aktiv(*MenüFinden(Name)); }
  static std::string_view Grund(const char* Name) {
    return TVKernMDIForm::Fenster().Grund(*MenüFinden(Name));
  }
  static bool Sichtbar(const char* Name) { return TVKernMDIForm::Fenster().Sichtbar(*MenüFinden(Name)); }
  static bool BildAktiv(const std::string& Name) {
    for (const Werkzeug& W : Symbolleiste()) {
      if (Name == W.Name) return TVKernMDIForm::Fenster().WerkzeugAktiv(W);
    }
    return false;
  }

  /// A coordinate file of three points, opened by the command.
  void Öffne() {
    Schreibe(A_kor, "1001 3500100 5600200 12.5 015\r\n1002 3500160 5600280\r\n2003 3500130 5600230\r\n");
    Befehl("MenüDateiLesen(0)", A_kor);
  }
};

}  // namespace tavorena::test
