#pragma once

#include "Formulartest.h"

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/records/TVProtokollmodul.h>
#include <tavorena/worksheets/TVDisForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>
#include <tavorena/worksheets/TVLinelForm.h>
#include <tavorena/worksheets/TVPolelForm.h>

namespace tavorena::test {

/// A small job: a base line of 100 m, a few points beside it, all records of the program in a folder.
class Blatttest : public TabellenTest {
 protected:
  Blatttest() {
    ProtokollLeeren();
    StapelschreiberLeeren();
    StapelleserLeeren();
    LetztePunktnummer.clear();
    Optionen.AbfrageRiss = false;
    KoordinatendateiName = "/daten/auftrag/musterdorf.kor";
    ProtokollNehmen(Ordner.Pfad("a.dru"));
    StapeldateiName = Ordner.Pfad("a.sta");
    DateinameProtokollTemp = Ordner.Pfad("prot.tmp");
    Haken.FormEinzelKorein = FormEinzelKorein;
    Punkt("1001", 3500100, 5600200, 12.5, "015");
    Punkt("1002", 3500160, 5600280);
    Punkt("2003", 3500130, 5600230);
    Punkt("2004", 3500100, 5600275);
    Punkt("2005", 3500220, 5600360, 0, "020");
  }

  template <typename Form>
  std::unique_ptr<Form> Öffne() {
    auto Blatt = std::make_unique<Form>();
    Blatt->Öffnen();
    return Blatt;
  }

  /// The files of a worksheet that is done are the approved ones, and replaying the batch file on the same
  /// points gives the same protocol.
  void PrüfeDateien(const std::string& Name, int Zeilen) {
    const std::string Protokoll = Inhalt(ProtokolldateiName), Stapel = Inhalt(StapeldateiName);
    EXPECT_TRUE(GleichSoll(Protokoll, "worksheets/soll/" + Name + ".dru"));
    EXPECT_TRUE(GleichSoll(Stapel, "worksheets/soll/" + Name + ".sta"));
    // The second target holds the blocks without the head.
    const std::string Zweites = Inhalt(DateinameProtokollTemp);
    EXPECT_TRUE(!Zweites.empty() && Protokoll.ends_with(Zweites));
    EXPECT_EQ(Nachlauf(), Protokoll);
    EXPECT_EQ(Inhalt(StapeldateiName), Stapel);  // a replay never grows its own file
    EXPECT_EQ(Stapellauf.Zeilen, Zeilen);
  }

  /// Replays the batch file into a new protocol.
  std::string Nachlauf() {
    Starten();
    EXPECT_FALSE(StapelAktiv);
    return Inhalt(ProtokolldateiName);
  }

  void Starten() {
    ProtokollNehmen(Ordner.Pfad("nachlauf.dru"));
    Anmelden<TVLinelForm>("24.40");
    Anmelden<TVPolelForm>("08.40");
    Anmelden<TVDisForm>("22.10");
    StapelStarten(StapeldateiName);
  }

  std::vector<std::unique_ptr<Formular>> Blätter;

 private:
  template <typename Form>
  void Anmelden(const char* Kennung) {
    StapelBlattAnmelden({Kennung}, [this] {
      Blätter.push_back(std::make_unique<Form>());
      Blätter.back()->Öffnen();
    });
  }
};

}  // namespace tavorena::test
