#include <cstddef>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/Umrechnung.h>

// The words about a conversion.

namespace tavorena {
namespace {

// "a, b und c"
std::string Aufzählung(const std::vector<std::string>& Teile) {
  std::string Text;
  for (std::size_t i = 0; i < Teile.size(); ++i) {
    if (i > 0) Text += i + 1 < Teile.size() ? ", " : " und ";
    Text += Teile[i];
  }
  return Text;
}

// "32 (45) und 33 (15)"
std::string Anzahlen(const std::map<int, int>& Streifen) {
  std::vector<std::string> Teile;
  for (const auto& [Nummer, Anzahl] : Streifen)
    Teile.push_back(std::to_string(Nummer) + " (" + std::to_string(Anzahl) + ")");
  return Aufzählung(Teile);
}

const char* Netzname(Koordinatenart Art) { return Art == Koordinatenart::GK ? "Gauß-Krüger" : "UTM"; }

const char* Streifenwort(Koordinatenart Art, bool Mehrere) {
  if (Art == Koordinatenart::GK) return "Streifen ";
  return Mehrere ? "Zonen " : "Zone ";
}

// "Streifen 3", "Zonen 32 und 33"; Sonst where no number is known.
std::string Streifentext(Koordinatenart Art, const std::vector<int>& Nummern, const char* Sonst) {
  std::vector<std::string> Teile;
  for (const int Nummer : Nummern) Teile.push_back(std::to_string(Nummer));
  return Streifenwort(Art, Teile.size() > 1) + (Teile.empty() ? Sonst : Aufzählung(Teile));
}

std::vector<int> Gewählt(const Koordinatenform& Form) {
  return Form.Nummer > 0 ? std::vector{Form.Nummer} : std::vector<int>();
}

}  // namespace

Verlustliste Umrechenverlust(const Umrechnung& U, const Umrechenbericht& B) {
  Verlustliste V = B.Verluste;
  // The eastings bear no zone number.
  if (U.Nach.Art == Koordinatenart::UTM && U.Nach.Nummer == 0 && B.Streifen.size() > 1)
    V.Weitere.push_back("Punkte liegen in den Zonen " + Anzahlen(B.Streifen));
  return V;
}

std::string Umrechenhinweis(const Umrechenbericht& B) {
  if (B.Fremde.Anzahl == 0) return "";
  return Anzahltext(B.Fremde.Anzahl, "Rechtswert beginnt", "Rechtswerte beginnen") +
         " mit der Ziffer eines anderen Streifens (Punkt " + Zitat(B.Fremde.Erste) +
         "): über 500 km neben dem Mittelmeridian";
}

std::string Umrechentext(const Umrechnung& U, const Umrechenbericht& B, const std::string& Datei) {
  const Koordinatenart Eben = U.Nach.Art == Koordinatenart::Geographisch ? U.Von.Art : U.Nach.Art;
  std::string Text = Anzahltext(B.Punkte, "Punkt", "Punkte") + " geschrieben:\n" + Datei + "\n\n";
  if (B.Andere > 0)
    Text += Anzahltext(B.Andere, "Zeile", "Zeilen") + " übergangen (erste: Zeile " +
            std::to_string(B.ErsteAndere) + ")\n";
  Text += Streifenwort(Eben, B.Streifen.size() > 1) + Anzahlen(B.Streifen) + "\n";
  Text += "Am weitesten vom Mittelmeridian: Punkt " + Zitat(B.Fernster) + ", " +
          ZahlFormat(B.Abstand, -1, 2) + " Grad";
  return B.Fremde.Anzahl > 0 ? Text + "\n\n" + Umrechenhinweis(B) : Text;
}

std::string Umrechensatz(const Umrechnung& U, const std::vector<int>& Quellstreifen) {
  const std::string Körper = ", " + Ellipsoidname(U);
  const std::string Nach = Streifentext(U.Nach.Art, Gewählt(U.Nach), "nach Länge");
  if (U.Von.Art == Koordinatenart::Geographisch)
    return "geographisch" + Körper + " -> " + Netzname(U.Nach.Art) + ", " + Nach;
  const std::vector<int> Von = U.Von.Nummer > 0 ? Gewählt(U.Von) : Quellstreifen;
  return Netzname(U.Von.Art) + Körper + ", " + Streifentext(U.Von.Art, Von, "im Rechtswert") + " -> " +
         (U.Nach.Art == Koordinatenart::Geographisch ? "geographisch" : Nach);
}

}  // namespace tavorena
