#pragma once

#include <cmath>
#include <string>
#include <vector>

#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena::test {

/// Writes down what is drawn, in whole twips.
class Mitschrift final : public Zeichenfläche {
 public:
  void Linie(double x1, double y1, double x2, double y2, int Farbe, Strich Stil) override {
    Schreibe(Stil == Strich::Durchgezogen ? "Linie"
             : Stil == Strich::Breit      ? "Breite Linie"
                                          : "Strichlinie",
             {x1, y1, x2, y2}, Farbe);
  }
  void Bogen(double x, double y, double r, double Anfang, double Ende, int Farbe, Strich Stil) override {
    Schreibe(Stil == Strich::Breit ? "Breiter Bogen" : "Bogen", {x, y, r, Anfang, Ende}, Farbe);
  }
  void Scheibe(double x, double y, double r, int Farbe) override { Schreibe("Scheibe", {x, y, r}, Farbe); }
  void Text(double x, double y, std::string_view Inhalt, int, int Farbe) override {
    Schreibe("Text " + std::string(Inhalt), {x, y}, Farbe);
  }
  void Begrenzen(double x, double y, double Breite, double Hoehe) override {
    Schreibe("Grenze", {x, y, Breite, Hoehe}, 0);
  }

  std::vector<std::string> Liste;

 private:
  void Schreibe(std::string Zeile, std::initializer_list<double> Werte, int Farbe) {
    for (const double w : Werte) Zeile += " " + std::to_string(std::lround(w));
    Liste.push_back(Zeile + " f" + std::to_string(Farbe));
  }
};

/// What the view shows now.
inline std::vector<std::string> Gezeichnet() {
  Mitschrift M;
  GrafikZeichnen(M);
  return M.Liste;
}

}  // namespace tavorena::test
