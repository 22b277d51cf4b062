#pragma once

#include <array>

#include <tavorena/calc/Einschnitte.h>
#include <tavorena/records/Vorwaerts.h>
#include <tavorena/worksheets/Fallblatt.h>

namespace tavorena {

/// VR 10.00 Vorwärtsschnitt: a new point, sighted from two stations that are oriented by a far point each.
class TVVorwaertsschnittForm final : public Fallblatt {
 public:
  explicit TVVorwaertsschnittForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] std::string Rechnen() override;
  void Unvollständig() override { NichtsZeigen(); }
  [[nodiscard]] bool Schweigt() const override { return true; }
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Zeichnen(Markierung& Bild) override;

 private:
  // A station and its far point.
  struct Stand {
    Stand(TVVorwaertsschnittForm& Blatt, const std::string& Nummer, const char* Rahmen);

    Punktfeld& Fern;
    Messfeld& FernRichtung;
    Punktfeld& Ort;
    Messfeld &NeuRichtung, &Vertikal;

    [[nodiscard]] VorwStation AlsStation() const;
    [[nodiscard]] Protstation AlsProtstation() const;
    [[nodiscard]] Standeingabe Eingabe() const;
    void Setzen(const Standeingabe& E);
  };
  [[nodiscard]] std::string Standfehler();
  void HöheZeigen(const VorwStation& A, const VorwStation& B);

  std::array<Stand, 2> S;
  Fallpunkt& Neu;
  Feld &TauFeld, &HöheFeld, &ParallaxeFeld;
  Vorwaertsschnittwerte Werte;
};

}  // namespace tavorena
