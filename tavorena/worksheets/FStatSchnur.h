#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/worksheets/Messfeld.h>
#include <tavorena/worksheets/Punktablage.h>

namespace tavorena {

class TVFStatForm;

/// The Schnurgerüst of a station: each measurement is a polar point, shown by its line elements on the
/// present line and on the one before. What is taken over is stored and stands in the protocol, in the batch
/// file only as a comment.
class FStatSchnur {
 public:
  /// @param[in] BeiEnde  it is left
  FStatSchnur(TVFStatForm& Für, std::function<void()> BeiEnde);
  FStatSchnur(const FStatSchnur&) = delete;
  FStatSchnur& operator=(const FStatSchnur&) = delete;

  /// Shows its fields; the focus goes to the line, or to the next measurement.
  void Beginnen();
  /// The station is another one: lines and measurements are forgotten.
  void Leeren();
  [[nodiscard]] bool Offen() const { return An; }
  /// The focus stands in one of its fields.
  [[nodiscard]] bool HatFokus() const;
  /// A measurement of the instrument. @param[in] Nummer, Symbol  "": that which is typed stays
  void MessungNehmen(const std::string& Nummer, const Stationsmessung& M, const std::string& Symbol);
  /// The point of the measurement that is typed, with the reflector height as it is now.
  void Rechnen();
  /// A measurement with a number was not taken over.
  [[nodiscard]] bool HatOffenes() const;
  /// Points of this station were taken over.
  [[nodiscard]] bool HatGespeichertes() const { return Gespeichert > 0; }
  /// Stores and writes the measurement. @return false with a reason: it stays
  bool FStatSchnurÜbernehmen();
  void GrafikLöschen();

 private:
  struct Linienpunkt {
    std::string Pnr;
    Lage Ort;  // [m]
  };
  struct Bezugslinie {
    std::optional<Linienpunkt> Anf, End;
    [[nodiscard]] bool Ganz() const { return Anf && End; }
    [[nodiscard]] std::string Text() const;
  };
  // What was taken over.
  struct Schnurpunkt {
    Protpunkt Punkt;
    double Linie = 0, Seitwaerts = 0;
    Punktablage Ablage;
    Aufzeichnung::Spur Wo;
    Markierung Bild;
  };
  Feld& ErgebnisAnlegen(const char* Name, const char* Label, Platz Ort, int Zeichen);
  void Verhalten();
  void Sichtbar(bool Zeigen);
  [[nodiscard]] bool FStatSchnurSetzeLinienPunkt();
  void FStatSchnurNeueLinie();
  void FStatSchnurEnde();
  void Zeigen();
  void ElementeZeigen(const Bezugslinie& L, Feld& Längs, Feld& Quer) const;
  void MessungLeeren();
  [[nodiscard]] Verbindung Linienverbindung() const;
  [[nodiscard]] int Schreiben(Schnurpunkt& P);
  void Zurück();

  TVFStatForm& Form;
  std::function<void()> Ende;
  bool An = false;
  std::size_t Davor;  // controls of the form that are none of its own
  Feld& LiniePnr;
  Feld &Jetzige, &Vorige;  // lines by their numbers
  Feld& Pnr;
  Messfeld Hz, Vk, sD;
  Feld& Sy;
  Knopf& Übernehmen;
  Feld &Rechts, &Hoch, &Hoehe;
  Feld &Linie, &Seitw, &LinieVorige, &SeitwVorige;
  Knopf &NeueLinie, &Rücknehmen, &Beenden;
  std::vector<Steuerelement*> Eigene;
  Bezugslinie Bezug, VorigerBezug;
  bool Verbunden = false;              // the line stands above the next row of the protocol
  std::optional<Stationspunkt> Punkt;  // of the measurement that is typed
  std::vector<Schnurpunkt> Punkte;     // on the present line
  int Gespeichert = 0;                 // points of this station
  Markierung Linienbild, Bild, Fertige;
};

}  // namespace tavorena
