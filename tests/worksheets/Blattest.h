#pragma once

#include "Aktentest.h"
#include "Formulartest.h"

#include <tavorena/forms/Punktnummer.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/worksheets/Blattart.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena::test {

/// A small job: a base line of 100 m, a few points beside it, all records of the program in a folder.
class Blatttest : public Aktentest {
 protected:
  Blatttest() {
    LetztePunktnummer.clear();
    GrafikWahl = {true, false, false};
    KoordinatendateiName = "/daten/auftrag/musterdorf.kor";
    ProtokollNehmen(Ordner.Pfad("a.dru"));
    StapelDatei.Name = Ordner.Pfad("a.sta");
    DateinameProtokollTemp = Ordner.Pfad("prot.tmp");
    Haken.FormEinzelKorein = FormEinzelKorein;
    Punkt("1001", 3500100, 5600200, 12.5, "015");
    Punkt("1002", 3500160, 5600280);
    Punkt("2003", 3500130, 5600230);
    Punkt("2004", 3500100, 5600275);
    Punkt("2005", 3500220, 5600360, 0, "020");
    StapelHaken.BlattFür = [this](const std::string& Kennung) -> std::function<void()> {
      const Blattart* Art = BlattartVonKennung(Kennung);
      if (Art == nullptr) return {};
      return [this, Art] {
        Blätter.push_back(Art->Neu(*Art));
        Blätter.back()->Öffnen();
      };
    };
  }

  /// Opens a worksheet by one of its Kennungen.
  static std::unique_ptr<Formular> Öffne(const char* Kennung) {
    const Blattart* Art = BlattartVonKennung(Kennung);
    auto Blatt = Art->Neu(*Art);
    Blatt->Öffnen();
    return Blatt;
  }
  /// The same, the connection from 1001 to 1002 typed, nothing measured.
  static std::unique_ptr<Formular> Verbinde(const char* Kennung) {
    auto Blatt = Öffne(Kennung);
    Tippe(*Blatt, BlattartVonKennung(Kennung)->Präfix + std::string("AnfPnr"), "1001\n1002\n0\n0\n");
    return Blatt;
  }

  /// The second targets of the worksheets that are there.
  [[nodiscard]] std::vector<std::string> ZweiteZiele() const {
    std::vector<std::string> Namen;
    for (const auto& Datei : fs::directory_iterator(Ordner.Pfad(""))) {
      if (Datei.path().string().starts_with(DateinameProtokollTemp)) Namen.push_back(Datei.path().string());
    }
    return Namen;
  }

  static std::string Protokoll() { return Inhalt(Prot.Datei); }
  static std::string Stapeltext() { return Inhalt(StapelDatei.Name); }

  /// The files of a worksheet that is done are the approved ones, and replaying the batch file on the same
  /// points gives the same protocol.
  void PrüfeDateien(const std::string& Name, int Zeilen) {
    const std::string Prots = Protokoll(), Sta = Stapeltext();
    EXPECT_TRUE(GleichSoll(Prots, "worksheets/soll/" + Name + ".dru"));
    EXPECT_TRUE(GleichSoll(Sta, "worksheets/soll/" + Name + ".sta"));
    // The second target holds the blocks without the head.
    ASSERT_EQ(ZweiteZiele().size(), 1U);
    const std::string Zweites = Inhalt(ZweiteZiele().front());
    EXPECT_FALSE(Zweites.empty());
    EXPECT_TRUE(Prots.ends_with(Zweites));
    EXPECT_EQ(Nachlauf(), Prots);
    EXPECT_EQ(Stapeltext(), Sta);  // a replay never grows its own file
    EXPECT_EQ(Stapel.Bilanz.Zeilen, Zeilen);
  }

  /// Replays the batch file into a new protocol.
  std::string Nachlauf() {
    Starten();
    EXPECT_FALSE(Stapel.Aktiv);
    return Protokoll();
  }

  void Starten() {
    ProtokollNehmen(Ordner.Pfad("nachlauf.dru"));
    StapelStarten(StapelDatei.Name);
  }

  std::vector<std::unique_ptr<Formular>> Blätter;  ///< opened by a replay
};

}  // namespace tavorena::test
