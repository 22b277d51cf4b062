#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include <tavorena/graphics/Elemente.h>

namespace tavorena {

/// Puts the pairs of a DXF text together, a code and a value on a line each.
class DxfSchreiber {
 public:
  /// @param[in] OhneBlanks  numbers and codes of the file stand without the blanks that fill a field
  explicit DxfSchreiber(std::string& Text, bool OhneBlanks = false) : Ziel(Text), Schmal(OhneBlanks) {}

  void Text(int Code, std::string_view Wert);
  void Ganz(int Code, int Wert);
  /// Six decimals and at most eight digits before the point.
  void Zahl(int Code, double Wert);
  /// @{
  /// An element; a layer of "" is left out. @return false: a value does not fit
  [[nodiscard]] bool Linie(const GrafikLinie& L, std::string_view Ebene = "");
  [[nodiscard]] bool Bogen(const GrafikBogen& B, std::string_view Ebene = "");
  /// @}
  /// All numbers fitted so far.
  [[nodiscard]] bool Paßt() const { return AllesPaßt; }

 private:
  void Codezeile(int Code);
  void Feldende(std::size_t Ab);

  std::string& Ziel;
  bool Schmal, AllesPaßt = true;
};

/// All free elements. @return 0; -1 after the message of DxfUnpassend
[[nodiscard]] int DxfFreieElemente(DxfSchreiber& S, std::string_view Linienebene,
                                   std::string_view Bogenebene);

/// Tells that values of an element, named by Was, fit no DXF file. @return -1
int DxfUnpassend(const std::string& Was, std::initializer_list<double> Werte);

}  // namespace tavorena
