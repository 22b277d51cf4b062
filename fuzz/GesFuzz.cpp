#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/core/Text.h>
#include <tavorena/rawdata/Epochenliste.h>
#include <tavorena/rawdata/Gesamtdatei.h>

namespace tavorena::fuzz {
namespace {

bool GleicheMenge(const Gesamtdatei& A, const Gesamtdatei& B) {
  return A.MitLage == B.MitLage && A.Epochen == B.Epochen && A.Punkte.size() == B.Punkte.size();
}

// What was read is written and read again, and an epoch more loses no value of the others.
void Lauf(Eingabe E) {
  const int Tag = E.Zahl(1, 31);
  std::string Fehler;
  Epochenparameter P = EpochenparameterVorgabe(Tag % 2 == 0);
  if (EpochenparameterAusText(E.Rest(), P, Fehler) == 0)
    Prüfen(P.Grenzen.Sigma >= 0 && std::isfinite(P.Grenzen.Zulaessig), "Grenzen sind Zahlen");
  Gesamtdatei G, Wieder;
  if (GesamtdateiAusText(E.Rest(), G, Fehler) < 0)
    return Prüfen(Fehler.starts_with("Zeile "), "die Zeile wird genannt");
  for (const Gesamtpunkt& Punkt : G.Punkte)
    Prüfen(!Punkt.Nummer.empty() && Punkt.Werte.size() == G.Epochen.size(), "jeder Punkt hat alle Epochen");
  const std::string Text = GesamtdateiText(G);
  Prüfen(GesamtdateiAusText(Text, Wieder, Fehler) == 0 && GleicheMenge(G, Wieder) &&
             GesamtdateiText(Wieder) == Text,
         "Geschriebenes wird wieder gelesen");
  std::vector<std::vector<std::string>> Absätze;
  Prüfen(Epochenzeilen(G, P, Absätze) == 0, "niemand hält an");
  for (const auto& Absatz : Absätze) {
    for (const std::string& Zeile : Absatz)
      Prüfen(Zeile.find('\n') == std::string::npos, "eine Zeile ist eine Zeile");
  }
  std::vector<Vergleichspunkt> Neue = {{"neu", 1, 2, 3}};
  if (!G.Punkte.empty()) Neue.push_back({G.Punkte.front().Nummer, 4, 5, 6});
  const bool Vorhanden = EpocheFinden(G, "15.01.2003") >= 0;
  Epochenzugang Z;
  Prüfen(EpocheEintragen(G, "15.01.2003", Neue, true, Z) == 0 || Z.Mehrfache == "neu", "die Epoche ist neu");
  Prüfen(G.Epochen.size() == Wieder.Epochen.size() + (Vorhanden || !Z.Mehrfache.empty() ? 0 : 1),
         "eine Epoche mehr");
  Prüfen(GesamtdateiAusText(GesamtdateiText(G), Wieder, Fehler) == 0, "auch danach");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
