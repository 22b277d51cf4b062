#include <algorithm>
#include <string>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/records/Flt.h>
#include <tavorena/records/Seiten.h>
#include <tavorena/shell/Druckaufbereitung.h>
#include <tavorena/shell/Druckbefehle.h>
#include <tavorena/worksheets/Flaechengrenze.h>
#include <tavorena/worksheets/Flaechennachweis.h>

namespace tavorena {
namespace {

// Writes pages into a print file that is asked for, and shows them as they are printed.
void Ausgeben(const std::string& Quelle, const char* Zusatz, const std::string& Text) {
  bool Anhängen = false;
  const std::string Name = DateiFragen("Druckdatei zum Schreiben auswählen", "Druckdatei- Datei |*.dru",
                                       DateinameZerlegen(Quelle).Grundname + Zusatz, true, &Anhängen);
  if (Name.empty()) return;
  if (SelbeDatei(Quelle, Name)) return Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Name);
  // As a whole in UTF-8: the box has no characters in the other coding of protocols.
  std::string Vorher, Grund;
  if (Anhängen && TextdateiLesen(Name, Vorher, &Grund) < 0) return LesefehlerMelden(Name, Grund);
  if (!Vorher.empty() && !Vorher.ends_with('\f')) Vorher += '\f';
  if (DateiErsetzen(Name, Vorher + Text, &Grund) < 0) return SchreibfehlerMelden(Name, Grund);
  static_cast<void>(DruckwerkPort().Drucken(
      SeitenTeilen(Text), Name.substr(DateinameZerlegen(Name).Ordner.size()), PdfVorschlag(Name)));
}

void FltAufbereiten() {
  const std::string Name =
      DateiFragen("FLT- Datei (Flächenliste)", "FLT- Datei |*.flt|Alle Dateien |*.*", "*.flt", false);
  std::string Text, Grund;
  if (Name.empty()) return;
  if (TextdateiLesen(Name, Text, &Grund) < 0) return LesefehlerMelden(Name, Grund);
  const Flurstücksliste L = FltLesen(Text);
  if (L.Stücke.empty()) return FehlerMeldung("Format nicht erkannt");
  // What is passed over is missing in the sum.
  if (L.Übergangen > 0)
    Hinweis(Anzahltext(static_cast<int>(L.Stücke.size()), "Flurstück", "Flurstücke") + " gelesen, " +
            Anzahltext(L.Übergangen, "Zeile", "Zeilen") + " übergangen (erste: Zeile " +
            std::to_string(L.ErsteÜbergangene) + ")");
  int Seite = 1, Nachkomma = 0;
  if (SeitenangabenFragen(Seite, nullptr, Nachkomma) < 0) return;
  Ausgeben(Name, "-flt.dru",
           FltSeiten(L, Name.substr(DateinameZerlegen(Name).Ordner.size()), Seite, Nachkomma));
}

// The area of a proof from the coordinates that it shows [m²].
double Nachgerechnet(const Polnachweis& N) {
  Flaechengrenze G;
  G.AnzahlSetzen(N.Kanten.size());
  for (std::size_t i = 0; i < N.Kanten.size(); ++i) {
    const Polkante& K = N.Kanten[i];
    G.Setzen(i, {K.Punkt.Rechts, K.Punkt.Hoch}, {K.Punkt.Pnr, K.Art, K.Radius, ""}, 0);
  }
  G.Rechnen();
  return G.Flaeche();
}

void PolAufbereiten() {
  const std::string Name = DateiFragen("POL- Datei (Flächennachweis)",
                                       "POL- Datei |*.pol|Druckdatei- Datei |*.dru", "*.pol", false);
  std::vector<Polnachweis> Alle;
  int Unlesbar = 0;
  if (Name.empty() || PolDateiLesen(Name, Alle, &Unlesbar) < 0) return;
  if (Unlesbar > 0)
    return Hinweis(Anzahltext(Unlesbar, "Zeile ist", "Zeilen sind") + " nicht lesbar (Sterne):\n" + Name);
  Polnachweis Wahl = Alle.front();
  if (SeitenangabenFragen(Wahl.Seite, &Wahl.NachkommaKoordinaten, Wahl.NachkommaFlaeche) < 0) return;
  std::string Text;
  for (Polnachweis& N : Alle) {
    // Decimals that the file does not have follow from its coordinates.
    if (N.Flaeche == 0 || Wahl.NachkommaFlaeche > N.NachkommaFlaeche) N.Flaeche = Nachgerechnet(N);
    N.NachkommaKoordinaten = Wahl.NachkommaKoordinaten;
    N.NachkommaFlaeche = Wahl.NachkommaFlaeche;
    N.Seite = Wahl.Seite;
    const std::string Seiten = PolSeiten(N);
    Wahl.Seite += static_cast<int>(std::count(Seiten.begin(), Seiten.end(), '\f'));
    Text += Seiten;
  }
  Ausgeben(Name, "-pol.dru", Text);
}

void DruckdateiEditieren() {
  Ansehen(DateiFragen("Druckdatei auswählen", "Druckdatei- Datei |*.dru|Alle Dateien |*.*", "*.dru", false));
}

}  // namespace

std::span<const Befehl> Druckaufbereitungsbefehle() {
  constexpr int Hilfe = 6060;
  static const std::vector<Befehl> Alle = {
      {"MenüFunktionalitätenDruckaufbereitungFlt", true, FltAufbereiten, false, nullptr, Hilfe},
      {"MenüFunktionalitätenDruckaufbereitungPol", true, PolAufbereiten, false, nullptr, Hilfe},
      {"MenüFunktionalitätenDruckaufbereitungDru", true, DruckdateiEditieren, false, nullptr, Hilfe},
  };
  return Alle;
}

}  // namespace tavorena
