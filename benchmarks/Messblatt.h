#pragma once

#include "Messdaten.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <tavorena/core/Optionen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena::messung {

/// A worksheet on the table, opened, with protocol, batch file and second target.
class Messblatt {
 public:
  /// @param[in] Kopf  what is typed first, word by word
  Messblatt(const char* Kennung, const std::vector<std::string>& Kopf) {
    Optionen = {};
    Optionen.AbfrageRiss = false;
    std::filesystem::remove_all(Ort);
    std::filesystem::create_directories(Ort);
    DateinameProtokollTemp = Ort + "/prot.tmp";
    ProtokollNehmen(Ort + "/a.dru");
    StapelDatei = {};
    StapelDatei.Name = Ort + "/a.sta";
    const Blattart* Art = BlattartVonKennung(Kennung);
    Form = Art->Neu(*Art);
    Form->Öffnen();
    for (const std::string& Wort : Kopf) Tippe(Wort);
  }
  ~Messblatt() {
    Form->SchließenVerlangen();
    ProtokollNehmen("");
    StapelDatei = {};
    std::filesystem::remove_all(Ort);
  }
  Messblatt(const Messblatt&) = delete;
  Messblatt& operator=(const Messblatt&) = delete;

  /// Takes a text into what has the focus.
  void Schreibe(const std::string& Wort) {
    if (auto* E = dynamic_cast<Eingabeelement*>(Form->Fokus())) Form->Tippen(*E, Wort);
  }
  void Return() { Form->TasteDrücken(Taste::Return); }
  /// The same, with Return.
  void Tippe(const std::string& Wort) {
    Schreibe(Wort);
    Return();
  }
  void Drücke(const char* Name) { Form->Klicken(dynamic_cast<Knopf&>(*Form->Finde(Name))); }
  void Feld(const char* Name) { Form->FokusWechseln(*Form->Finde(Name)); }

  /// Brings all three files to a size; the rows to come go behind.
  void Strecken(std::size_t Größe) {
    const std::string Zeile = std::string(78, ' ') + "\r\n";
    for (const auto& D : Akten()) {
      std::ofstream Datei(D.path(), std::ios::binary | std::ios::app);
      for (std::size_t n = D.file_size(); n < Größe; n += Zeile.size()) Datei << Zeile;
    }
  }
  /// Rows were written, each into all three files.
  [[nodiscard]] bool Geschrieben(int Zeilen) const {
    int Dateien = 0;
    for (const auto& D : Akten()) {
      Dateien += D.file_size() > static_cast<std::uintmax_t>(Zeilen) * 14 ? 1 : 0;
    }
    return Dateien == 3;
  }
  [[nodiscard]] std::filesystem::directory_iterator Akten() const {
    return std::filesystem::directory_iterator(Ort);
  }

 private:
  const std::string Ort = Messpfad("blatt");
  std::unique_ptr<Formular> Form;
};

}  // namespace tavorena::messung
