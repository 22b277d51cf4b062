#pragma once

#include "Formulartest.h"

#include <cstdlib>

#include <tavorena/core/Optionen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/records/TVProtokollmodul.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena::test {

/// The program with an application folder of its own, started and without a file.
class Shelltest : public TabellenTest {
 protected:
  Shelltest() {
    setenv("TAVORENA_ORDNER", Ordner.Pfad("app").c_str(), 1);
    unsetenv("windir");
    ProtokollLeeren();
    StapelleserLeeren();
    Historie = {};
    Skript.BeiBlatt = [](Formular& Form) { Form.Oeffnen(); };
    HauptAnschliessen();
    HauptInitialisierung();
  }
  ~Shelltest() override {
    KoordinatendateiName.clear();
    StapelschreiberLeeren();
    BlaetterSchliessen();
    unsetenv("TAVORENA_ORDNER");
  }

  static void Befehl(const char* Name) { TVKernMDIForm::Fenster().Ausfuehren(Name); }
  static bool Aktiv(const char* Name) { return TVKernMDIForm::Fenster().Aktiv(*MenueFinden(Name)); }
  static bool Sichtbar(const char* Name) { return TVKernMDIForm::Fenster().Sichtbar(*MenueFinden(Name)); }
  static bool BildAktiv(const std::string& Name) {
    for (const Werkzeug& W : Symbolleiste()) {
      if (Name == W.Name) return TVKernMDIForm::Fenster().WerkzeugAktiv(W);
    }
    return false;
  }

  /// A coordinate file of three points, opened by the command.
  void Oeffne(const char* Name = "a.kor") {
    Schreibe(Ordner.Pfad(Name),
             "1001 3500100 5600200 12.5 015\r\n1002 3500160 5600280\r\n2003 3500130 5600230\r\n");
    Skript.Dateien.push_back(Ordner.Pfad(Name));
    Befehl("MenüDateiLesen(0)");
  }
};

}  // namespace tavorena::test
