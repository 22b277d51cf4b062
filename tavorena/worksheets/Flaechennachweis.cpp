#include <set>
#include <string>
#include <vector>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/worksheets/Flaechennachweis.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const Dateititel = "POL- Datei (Flächennachweis)";
const char* const Filter = "POL- Datei |*.pol";

bool Nehmen(const std::string& Text, int Von, int Bis, int& Zahl) {
  const double x = ZahlAusText(Text);
  if (!(x >= Von && x <= Bis)) return false;
  Zahl = static_cast<int>(x);
  return true;
}

}  // namespace

int SeitenangabenFragen(int& Seite, int* NachkommaKoordinaten, int& NachkommaFlaeche) {
  std::vector<Wertfeld> Felder = {{"Start bei:", std::to_string(Seite), -1, 0}};
  if (NachkommaKoordinaten != nullptr)
    Felder.push_back({"NK Koord.:", std::to_string(*NachkommaKoordinaten), -1, 0});
  Felder.push_back({"NK Fläche:", std::to_string(NachkommaFlaeche), -1, 0});
  while (Wertdialog("Start der Seitennumerierung und Nachkommastellen", Felder) == 0) {
    const bool Koordinaten =
        NachkommaKoordinaten == nullptr || Nehmen(Felder[1].Wert, 0, 5, *NachkommaKoordinaten);
    if (Nehmen(Felder.front().Wert, 1, 999, Seite) && Koordinaten &&
        Nehmen(Felder.back().Wert, 0, 5, NachkommaFlaeche))
      return 0;
    Hinweis("Die erste Seite muß zwischen 1 und 999 liegen, die Nachkommastellen zwischen 0 und 5.");
  }
  return -1;
}

int NachweisSchreiben(Polnachweis& N) {
  if (SeitenangabenFragen(N.Seite, &N.NachkommaKoordinaten, N.NachkommaFlaeche) < 0) return -1;
  bool Anhängen = false;
  const std::string Name = DateiFragen(Dateititel, Filter, "*.pol", true, &Anhängen);
  if (Name.empty()) return -1;
  const int Seiten = PolSchreiben(Name, N, Anhängen);
  if (Seiten < 0) return -1;
  N.Seite += Seiten;
  return 0;
}

int NachweisWählen(Polnachweis& N) {
  const std::string Name =
      DateiFragen(Dateititel, std::string(Filter) + "|Druckdatei- Datei |*.dru", "*.pol", false);
  std::vector<Polnachweis> Alle;
  if (Name.empty() || PolDateiLesen(Name, Alle) < 0) return -1;
  int Gewählt = 0;
  if (Alle.size() > 1) {
    std::vector<std::string> Namen;
    for (const Polnachweis& P : Alle) Namen.push_back(std::to_string(Namen.size() + 1) + ": " + P.Name);
    Gewählt = AuswahlListe("Flächennachweis auswählen", Namen);
  }
  if (Gewählt < 0) return -1;
  N = std::move(Alle[static_cast<std::size_t>(Gewählt)]);
  return 0;
}

Flaecheneingabe AlsEingabe(const Polnachweis& N) {
  Flaecheneingabe E{N.Name, N.Bemerkung, {}};
  for (const Polkante& K : N.Kanten) E.Kanten.push_back({K.Punkt.Pnr, K.Art, K.Radius, 0});
  return E;
}

int FehlendePunkteSpeichern(const Polnachweis& N, Rücknahme& R) {
  std::vector<Protpunkt> Fehlende;
  std::set<std::string> Nummern;
  for (const Polkante& K : N.Kanten) {
    if (KorSuche(std::string_view(K.Punkt.Pnr)) < 0 && Nummern.insert(K.Punkt.Pnr).second)
      Fehlende.push_back(K.Punkt);
  }
  if (Fehlende.empty()) return 0;
  const std::string Anzahl =
      Anzahltext(static_cast<int>(Fehlende.size()), "Punkt fehlt", "Punkte fehlen") + " in der Tabelle. ";
  if (FrageJaNein(Anzahl + "Mit den Koordinaten der Datei speichern ?") != KnopfJa) return -1;
  Punkttat Tat{"Punkte des Flächennachweises", {}};
  return R.Ausführen(Tat, [&] {
    for (const Protpunkt& P : Fehlende) {
      Wert Pnr(P.Pnr);
      Punktnotiz Notiz;
      if (NeupunktEintragen(Pnr, P.Rechts, P.Hoch, NullWert{}, "", nullptr, Notiz) < 0) return -1;
    }
    return 0;
  });
}

bool PunkteZurück(Rücknahme& R) {
  if (R.Leer()) return false;
  static_cast<void>(R.Zurück());
  return true;
}

}  // namespace tavorena
