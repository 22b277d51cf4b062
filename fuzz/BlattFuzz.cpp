// A user who types anything into the worksheets: every byte is an event, or what it is about.
#include "Fuzzhilfe.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena::fuzz {
namespace {

constexpr const char* Worte[] = {"",        "1001",   "1002",      "2003",       "2004",  "2005",
                                 "77",      "0",      "99.8",      "-3,5",       "abc",   "12A",
                                 "78",      "1e9",    "100000000", "1001.5",     "1,5",   "2003",
                                 "ü",       "- -",    "400",       "12345678.9", " 1002", "123456789012345",
                                 "3500130", "5600230"};
constexpr const char* Protokolle[] = {"a.dru", "b.dru", "c.dru"};
constexpr std::size_t MeisteBlätter = 4;

// The names of a list are counted by int; the lists of forms are short.
template <typename Liste>
auto& Eines(Eingabe& E, const Liste& L) {
  return L[static_cast<std::size_t>(E.Zahl(0, static_cast<int>(std::size(L)) - 1))];
}

// Answers every question by the next byte. In a replay none is foreseen.
class Bediener final : public Rückfragen,
                       public Anzeige,
                       public Ablauf,
                       public Umgebung,
                       public Leitungen,
                       public Druckwerk {
 public:
  explicit Bediener(Eingabe& Bytes) : E(Bytes), Vorher(PortsSetzen(PortsVon(*this))) {}
  ~Bediener() override { PortsSetzen(Vorher); }
  Bediener(const Bediener&) = delete;
  Bediener& operator=(const Bediener&) = delete;

  int Meldung(const std::string& Text, Knöpfe Art, const std::string& /*Titel*/, int /*Vorgabe*/) override {
    Prüfen(!Stapel.Aktiv, "der Nachlauf fragt nichts");
    // Parallel rays are told so.
    Prüfen(Text.find("wurde ausgelöst") == std::string::npos || Text.find("Calc") != std::string::npos,
           "kein Laufzeitfehler");
    if (Art == Knöpfe::OK) return 1;
    constexpr int Antworten[] = {KnopfJa, KnopfNein, KnopfAbbruch};
    if (!E.Rest().empty()) return Eines(E, Antworten);
    return Letzte = Letzte == KnopfNein ? KnopfJa : KnopfNein;  // in turn, so that everything closes
  }
  // A dialog gets a few events of its own; what is still open then is closed.
  void FormularZeigen(Formular& Form, bool Modal) override {
    if (!Modal) {
      Blätter.push_back(&Form);
      return Form.Öffnen();
    }
    Prüfen(!Stapel.Aktiv, "der Nachlauf findet seine Punkte");
    Form.Öffnen();
    for (int i = E.Zahl(0, 9); i > 0 && Form.Offen(); --i) Bedienen(Form);
    Form.Schließen();
  }
  Zeitpunkt Jetzt() override { return {2003, 2, 1, 10, 15}; }

  void Ereignis() {
    std::erase_if(Blätter, [](const Formular* B) { return !B->Offen(); });
    const int Art = E.Zahl(0, 31);
    if (Blätter.empty() || (Art == 0 && Blätter.size() < MeisteBlätter)) {
      const Blattart& Neue = Eines(E, Blattarten());
      return BlattZeigen(Neue.Neu(Neue));
    }
    if (Art == 1) return ProtokollNehmen(Ordner() + "/" + Eines(E, Protokolle));
    if (Art == 2) return Eines(E, Blätter)->SchließenVerlangen();
    if (Art < 6) std::rotate(Blätter.begin(), Blätter.begin() + 1, Blätter.end());
    Bedienen(*Blätter.front());
  }

 private:
  void Bedienen(Formular& Form) {
    const int Art = E.Zahl(0, 15);
    Steuerelement* S = Form.Fokus();
    if (Art < 3) S = Eines(E, Form.Steuerelemente()).get();
    if (Art == 0) return Form.FokusWechseln(*S);
    if (auto* K = dynamic_cast<Knopf*>(S)) return Form.Klicken(*K);
    if (auto* A = dynamic_cast<Auswahl*>(S)) return Form.Wählen(*A, "", true);
    if (Art == 3) return static_cast<void>(Form.TasteDrücken(static_cast<Taste>(E.Zahl(0, 5))));
    if (auto* G = dynamic_cast<Gitter*>(S); G != nullptr && Art == 4)
      return Form.ZelleWechseln(*G, E.Zahl(0, 9), E.Zahl(0, 4));
    // What a surveyor does nearly always: a word, and Return.
    if (auto* F = dynamic_cast<Eingabeelement*>(S); F != nullptr && Art != 5)
      Form.Tippen(*F, Eines(E, Worte));
    if (Art != 6) static_cast<void>(Form.TasteDrücken(Taste::Return));
  }

  Eingabe& E;
  Ports Vorher;
  int Letzte = KnopfJa;
  std::vector<Formular*> Blätter;
};

// How often each row stands, by kind and point numbers.
using Zählung = std::map<std::string, int>;

// A kind whose rows are new points: long numbers run into the column before them, so that they count as such.
bool MitNeuenPunkten(std::string_view Art) { return Art == "VR 22.00" || Art == "VR 19.70"; }
// Its rows are counted, others are cases and lists.
bool MitZeilen(std::string_view Art) {
  return MitNeuenPunkten(Art) || Art == "VR 24.40" || Art == "VR 08.40" || Art == "VR 22.10";
}

// The rows of a protocol that were not struck.
void ProtokollZählen(const std::string& Text, Zählung& Zeilen) {
  constexpr std::size_t Rechts = 6, Werte = 32, Nummer = 58;  // columns
  std::string Art, Anfang;
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    if (Zeile.starts_with('\f')) Zeile.remove_prefix(1);
    if (Zeile.starts_with('|') && Zeile.find("Seite") != std::string_view::npos) Art = Zeile.substr(1, 8);
    if (!MitZeilen(Art)) continue;
    if (Zeile.size() <= Nummer || Zeile.find_first_not_of(' ') < Rechts) continue;
    const std::string_view Zahlen = Zeile.substr(Rechts, Nummer - Rechts);
    if (Zahlen.find_first_not_of(" -.*0123456789") != std::string_view::npos) continue;
    if (TrimmenSicht(Zahlen.substr(0, 13)).empty()) continue;  // the second line of an entry
    std::string_view Rest = Zeile.substr(Nummer);
    const std::string Pnr(Wortnehmen(Rest));
    const std::string_view Marke = TrimmenSicht(Rest);
    if (Marke == "PA") Anfang = Pnr;
    if (Art == "VR 22.10" && Marke == "PE") ++Zeilen[Art + " " + Anfang + " " + Pnr];
    if (Art == "VR 22.10" || TrimmenSicht(Zeile.substr(Werte, Nummer - Werte)).empty()) continue;
    if (MitNeuenPunkten(Art)) {
      const std::string_view Ganz = TrimmenSicht(Zeile);
      if (Ganz.find(" PA") == std::string_view::npos && !Ganz.ends_with(" PE"))
        Zeilen[Art] += Ganz.ends_with("***gelöscht") ? -1 : 1;
      continue;
    }
    if (Marke.empty()) ++Zeilen[Art + " " + Pnr];
    if (Marke == "***gelöscht") --Zeilen[Art + " " + Pnr];
  }
}

// The records of a batch file; the connection of a distance check is one.
Zählung StapelZählen(const std::string& Text) {
  Zählung Sätze;
  std::string Art, Anfang;
  Zeilenleser Leser(Text);
  for (std::string_view Rest; Leser.Nächste(Rest);) {
    const std::string_view Wort = Wortnehmen(Rest);
    if (Wort == "M") Art = TrimmenSicht(Rest).substr(0, 8);
    if (Art == "VR 19.50") Art = "VR 19.70";  // its rows stand under another title
    const std::string Pnr(Wortnehmen(Rest));
    if (!MitZeilen(Art)) continue;
    if (Wort == "PAN") Anfang = Pnr;
    if (Wort == "PEN" && Art == "VR 22.10") ++Sätze[Art + " " + Anfang + " " + Pnr];
    if (Wort == "NND") ++Sätze[Art + " " + Pnr + " " + std::string(Wortnehmen(Rest))];
    if (Wort == "NR") ++Sätze[Art + " " + Pnr];
    if (Wort == "AO" || Wort == "PWS") ++Sätze[Art];
  }
  return Sätze;
}

// A batch file of blocks that store points, or transform them.
bool MitPunkten(const std::string& Sta) {
  Zeilenleser Leser(Sta);
  for (std::string_view Rest; Leser.Nächste(Rest);) {
    if (Wortnehmen(Rest) != "M") continue;
    const std::string_view Art = TrimmenSicht(Rest).substr(0, 8);
    if (!MitZeilen(Art) || MitNeuenPunkten(Art)) return true;
  }
  return false;
}

std::string InhaltOderNichts(const std::string& Name) { return DateiVorhanden(Name) ? Inhalt(Name) : ""; }

// No two points lie at the same place: each connection that was ever there is one still.
bool AllePunkteVerschieden() {
  for (int i = 0; i < KorAnzahl; ++i) {
    for (int j = 0; j < i; ++j) {
      if (KorPunkt(i).Rechts == KorPunkt(j).Rechts && KorPunkt(i).Hoch == KorPunkt(j).Hoch) return false;
    }
  }
  return true;
}

void Vorbereiten(Eingabe& E) {
  for (const char* Name : Protokolle) Prüfen(DateiLöschen(Ordner() + "/" + Name) == 0, "kein alter Rest");
  for (const char* Name : {"a.sta", "nachlauf.dru"})
    Prüfen(DateiLöschen(Ordner() + "/" + Name) == 0, "kein alter Rest");
  KorLeeren();
  Prüfen(KorLesen(Datei("a.kor",
                        "1001 3500100 5600200 12.5 015\n1002 3500160 5600280\n2003 3500130 5600230\n"
                        "2004 3500100 5600275\n2005 3500220 5600360\n"),
                  Lesemodus::Ersetzen, Dateiformat::Kor) == 0,
         "die Punkte sind lesbar");
  Optionen = {};
  Optionen.OptNachkommastellen = static_cast<std::int16_t>(E.Zahl(0, 5));
  Optionen.AbfrageRiss = E.Zahl(0, 1) == 1;
  LetzterPlan = {};
  LetztePunktnummer.clear();
  Protokollfenster.Leeren();
  Stapel = {};
  StapelDatei = {};
  StapelDatei.Name = Ordner() + "/a.sta";
  DateinameProtokollTemp = Ordner() + "/prot.tmp";
  ProtokollNehmen(Ordner() + "/" + Protokolle[0]);
}

void Lauf(Eingabe E) {
  Bediener Hand(E);
  Vorbereiten(E);
  while (!E.Rest().empty()) Hand.Ereignis();
  while (!BlätterKlären()) {
  }
  BlätterSchließen();
  Zählung Geschrieben;
  for (const char* Name : Protokolle) ProtokollZählen(InhaltOderNichts(Ordner() + "/" + Name), Geschrieben);
  std::erase_if(Geschrieben, [](const auto& Z) { return Z.second == 0; });
  const std::string Sta = InhaltOderNichts(StapelDatei.Name);
  const Zählung Sätze = StapelZählen(Sta);
  Prüfen(Geschrieben == Sätze, "was im Protokoll gilt, steht in der Stapeldatei, und nichts sonst");
  TabellePrüfen();
  // A point that a correction or an answer moved would be asked about again.
  if (Sta.empty() || MitPunkten(Sta) || !AllePunkteVerschieden()) return;

  ProtokollNehmen(Ordner() + "/nachlauf.dru");
  StapelStarten(StapelDatei.Name);
  int Zeilen = 0;
  for (const auto& [Zeile, n] : Sätze) Zeilen += n;
  Prüfen(!Stapel.Aktiv && !Stapel.Bilanz.Fehler && StapelBericht().empty(), "der Nachlauf läuft durch");
  BlätterSchließen();
  Prüfen(Stapel.Bilanz.Zeilen == Zeilen, "der Nachlauf rechnet jede Zeile");
  Zählung Nachlauf;
  ProtokollZählen(InhaltOderNichts(Prot.Datei), Nachlauf);
  Prüfen(Nachlauf == Sätze, "das Protokoll des Nachlaufs hat dieselben Zeilen");
  Prüfen(Inhalt(StapelDatei.Name) == Sta, "ein Nachlauf schreibt nicht in seine Datei");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*Anzahl*/, char*** /*Worte*/) {
  tavorena::HauptAnschließen();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
