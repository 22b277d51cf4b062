#include "Fuzzhilfe.h"

#include <algorithm>
#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/rawdata/GRE.h>
#include <tavorena/rawdata/Rohbericht.h>
#include <tavorena/rawdata/Rohumwandlung.h>

// FORM says which reader is meant: GSI, GRE, or CODE for the code lines of both.

namespace tavorena::fuzz {
namespace {

enum Ziel { GSI, GRE, CODE };
constexpr Rohform Form = FORM == GRE ? Rohform::GRE : Rohform::GSI;

// What was written once is read and written alike ever after.
[[maybe_unused]] void Zeilenprobe(std::string_view Zeile) {
  Messsatz Satz;
  Codeblock Block;
  if (RohzeileLesen(Zeile, Form, Satz, Block, true) != Messzeile) return;
  const auto Schreiben = [&] {
    return Form == Rohform::GRE ? GREZeileSchreiben(Satz) : GSIZeileSchreiben(Satz);
  };
  const std::string Eins = Schreiben();
  if (Eins.empty() || Eins.find('*') != std::string::npos) return;
  Prüfen(RohzeileLesen(Eins, Form, Satz, Block) == Messzeile, "was geschrieben wird, ist eine Meßzeile");
  Prüfen(Schreiben() == Eins, "und hält dasselbe");
}

[[maybe_unused]] void Codeprobe(std::string_view Zeile) {
  Codeblock A, B;
  const bool Sechzehn = GSISechzehn(Zeile);
  if ((Sechzehn ? GSICodeblockLesen16 : GSICodeblockLesen8)(Zeile, A) == 0) {
    const std::string Eins = GSICodeblockSchreiben(A);
    Prüfen(GSICodeblockLesen8(Eins, B) == 0 && B.Anzahl == A.Anzahl, "jeder Wert kommt wieder");
    Prüfen(Eins.find('*') != std::string::npos || GSICodeblockSchreiben(B) == Eins, "mit demselben Inhalt");
    Prüfen(GRECodeblockLesen(GRECodeblockSchreiben(A), B) == 0 && B.Anzahl >= A.Anzahl,
           "auch in Schlüsselworten");
  }
  if (GRECodeblockLesen(Zeile, A) != 0) return;
  Prüfen(GRECodeblockLesen(GRECodeblockSchreiben(A), B) == 0 && B.Anzahl == std::max(A.Anzahl, 1),
         "jeder Wert kommt wieder");
}

[[maybe_unused]] void Dateiprobe(std::string_view Text, int Wie) {
  Rohdatenwahl Wahl;
  Wahl.Form = Form;
  Wahl.OhneNullen = (Wie & 1) != 0;
  Wahl.LagenMitteln = (Wie & 2) != 0;
  Wahl.AlleEinheiten = (Wie & 4) != 0;
  Wahl.Ihwert = Wie % 4;
  Rohdaten Roh;
  Prüfen(RohtextLesen(Text, Wahl, Roh) == 0, "jeder Text wird gelesen");
  const Rohbefund& B = Roh.Befund;
  Prüfen(B.Messzeilen + B.Codezeilen + B.Andere + B.ZuKurze + B.Leere == B.Zeilen, "jede Zeile hat eine Art");
  std::size_t Zeilen = 0, Vorher = 0;
  for (const Rohblock& Block : Roh.Blöcke) {
    for (const Rohpunkt& P : Block.Punkte)
      Prüfen(!P.Nummer.empty() && std::isfinite(P.Hz) && std::isfinite(P.V) && P.Strecke > 0 &&
                 P.Zeile <= B.Zeilen,
             "Zeilen sind ganz");
  }
  for (const Rohkoordinate& K : Roh.Koordinaten)
    Prüfen(!K.Nummer.empty() && std::isfinite(K.Rechts) && std::isfinite(K.Hoch), "Koordinaten sind ganz");
  for (const Zweifelszeile& Z : B.Zweifel) {
    Prüfen(Z.Zeile > Vorher && Z.Zeile <= B.Zeilen && !Z.Grund.empty(),
           "Zweifel stehen in der Folge der Datei");
    Vorher = Z.Zeile;
  }
  Prüfen(!RohdatenBericht(Roh).empty(), "einen Bericht gibt es immer");
  for (const char c : RohdatenSatzliste(Text, Form, Wahl.AlleEinheiten)) Zeilen += c == '\n' ? 1 : 0;
  Prüfen(Zeilen == B.Zeilen, "jede Zeile hat ihren Satz");
}

[[maybe_unused]] void Umwandlungsprobe(std::string_view Bytes, int Wie) {
  const std::string Quelle = Datei("a.gsi", Bytes), Nach = Ordner() + "/b.gsi";
  Umwandlung U;
  Koordinatenbasis Basis;
  const int Ergebnis = Wie < 8
                           ? RohdatenZehnZuEins(Quelle, Nach, U, nullptr, true)
                           : RohdatenBasisAbziehen(Quelle, Nach, 1 + Wie % 3, Form, Basis, U, nullptr, true);
  Prüfen(Ergebnis >= 0, "jede Datei läßt sich umwandeln");
  if (Ergebnis == 0) Prüfen(Inhalt(Nach).size() == Bytes.size(), "und behält ihre Länge");
}

void Lauf(Eingabe E) {
  [[maybe_unused]] const int Wie = E.Zahl(0, 127);
  const std::string Text = IstUtf8(E.Rest()) ? std::string(E.Rest()) : AusWindows1252(E.Rest());
  const std::string_view Zeile = std::string_view(Text).substr(0, Text.find_first_of("\r\n"));
  if constexpr (FORM == CODE) {
    Codeprobe(Zeile);
  } else {
    Zeilenprobe(Zeile);
    Dateiprobe(Text, Wie % 8);
    if (Wie >= 112) Umwandlungsprobe(E.Rest(), Wie - 112);
  }
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
