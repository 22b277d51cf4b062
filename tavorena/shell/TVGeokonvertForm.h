#pragma once

#include <string>
#include <vector>

#include <tavorena/exchange/Umrechnung.h>
#include <tavorena/forms/Dialogform.h>

namespace tavorena {

/// What a conversion goes from and to.
enum class Umrechenrichtung { NachEbene, NachGeographisch, Wechsel };

/// What is to be converted, and how: asked for as a whole.
struct Umrechenwahl {
  Umrechnung Was;
  std::string Ein, Aus;
};

/// Ellipsoid, grid, strip or zone and the two files of a conversion, with a line that says in words what will
/// happen.
class TVGeokonvertForm final : public Dialogform {
 public:
  /// @param[in,out] W  shown at first; what was chosen, once the form ended with 0
  TVGeokonvertForm(Umrechenrichtung R, std::string FormTitel, Umrechenwahl& W);

 private:
  void EllipsoidAnlegen();
  void NetzeAnlegen();
  void DateienAnlegen();
  Auswahl& NummernlisteAnlegen(const char* Name, const char* Label, std::vector<std::string> Einträge,
                               int Gewählte, Platz Ort, const char* Rahmen);
  Feld& DateifeldAnlegen(const char* Name, const char* Label, int Zeile, const std::string& Datei);
  void DateiWählen(Feld& F, bool Ausgabe);
  void EllipsoidWählen(int Nummer);
  [[nodiscard]] bool HalbachsenFragen();
  void Lesen();
  void QuelleAnsehen();
  void Darstellen();
  void Übernehmen();

  Umrechenrichtung Richtung;
  Umrechenwahl& Ziel;
  Umrechenwahl Neu;                ///< what the controls say
  std::vector<int> Quellstreifen;  ///< of the input
  std::string Angesehen;           ///< the file that they stand in, and how it was understood
  std::vector<Auswahl*> Körper, Netz, Zielnetz;
  Beschriftung *Halbachsen = nullptr, *Satz = nullptr, *Ausweg = nullptr;
  Auswahl *AusZone = nullptr, *Streifen = nullptr, *Zone = nullptr, *Kartesisch = nullptr;
  Feld *Ein = nullptr, *Aus = nullptr;
};

}  // namespace tavorena
