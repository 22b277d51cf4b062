#pragma once

#include <string>

#include <tavorena/core/Ports.h>
#include <tavorena/desktop/Druckquelle.h>

namespace tavorena {

inline constexpr int Textdruckhilfe = 1100;  ///< help number

/// The pages of a text, line for line as they go into a PDF.
class Textdruck final : public Druckquelle {
 public:
  /// @param[in] Was        must stay while this lives
  /// @param[in] Dokument   title: a file name without its folder
  /// @param[in] Vorgeschlagen  name for the PDF file
  Textdruck(const Druckseiten& Was, const std::string& Dokument, std::string Vorgeschlagen)
      : Seiten(Was), Name(Dokument), Vorschlag(std::move(Vorgeschlagen)) {}

  [[nodiscard]] QString Fenstertitel() const override { return Titel() + " drucken"; }
  [[nodiscard]] int Hilfenummer() const override { return Textdruckhilfe; }
  [[nodiscard]] int Blätter() const override { return static_cast<int>(Seiten.Seiten.size()); }
  [[nodiscard]] QString Grund() const override { return "Es gibt keine Zeile zu drucken."; }
  [[nodiscard]] QString Titel() const override { return QString::fromStdString(Name); }
  [[nodiscard]] QPageLayout Papier() const override;
  [[nodiscard]] bool Übersicht() const override { return false; }
  void Zeichnen(QPainter& Maler, int Blatt) const override;
  [[nodiscard]] int AlsPdf(Blattbereich Welche) const override;

 private:
  const Druckseiten& Seiten;
  std::string Name, Vorschlag;
};

}  // namespace tavorena
