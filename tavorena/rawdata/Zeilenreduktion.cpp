#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/rawdata/Zeilenreduktion.h>

namespace tavorena {
namespace {

// A word of a line: two characters of index, four of info, sign and digits. Empty where the line has none.
struct GSIWort {
  std::size_t Ab = 0;     // byte of its first character in the line
  std::string_view Text;  // index, info, sign and digits
  double Teiler = 0;      // of the data field; 0: unit or field is not understood
  double Wert = 0;        // gon or m

  [[nodiscard]] std::string_view Ziffern() const { return Text.substr(7); }
};

double TeilerVon(std::string_view Index, char Einheit) {
  constexpr double GradJeGon = 0.9;
  if (Index == "22") return Einheit == '2' ? 1e5 : Einheit == '3' ? 1e5 * GradJeGon : 0;
  return Einheit == '0' ? 1e3 : Einheit == '6' ? 1e4 : Einheit == '8' ? 1e5 : 0;
}

void WertLesen(GSIWort& W, std::string_view Index) {
  std::int64_t Zahl = 0;
  const std::string_view Z = W.Ziffern();
  const auto [Ende, Fehler] = std::from_chars(Z.data(), Z.data() + Z.size(), Zahl);
  if (Fehler != std::errc() || Ende != Z.data() + Z.size() || Zahl < 0) return;
  W.Teiler = TeilerVon(Index, W.Text[5]);
  if (W.Teiler > 0) W.Wert = (W.Text[6] == '-' ? -1 : 1) * static_cast<double>(Zahl) / W.Teiler;
}

GSIWort WortSuchen(std::string_view Zeile, std::string_view Index) {
  const bool Sechzehn = Zeile.size() > 1 && Zeile[0] == '*';
  const std::size_t Anfang = Sechzehn ? 1 : 0, Breite = Sechzehn ? 24 : 16, Letztes = Sechzehn ? 9 : 11;
  const bool Mehrbyte = IstUtf8(Zeile);  // of a line that is none each byte is a character
  GSIWort W;
  if (Zeile.substr(Anfang, 2) != "11") return W;
  for (std::size_t k = 1; k < Letztes; ++k) {
    const std::size_t Ab = Anfang + k * Breite;
    const std::string_view Text = Mehrbyte            ? TextTeil(Zeile, Ab, Breite - 1)
                                  : Ab < Zeile.size() ? Zeile.substr(Ab, Breite - 1)
                                                      : std::string_view();
    if (Text.size() < Breite - 1) return W;
    if (Text.size() != Breite - 1 || !Text.starts_with(Index)) continue;
    W.Text = Text;
    W.Ab = static_cast<std::size_t>(Text.data() - Zeile.data());
    WertLesen(W, Index);
    return W;
  }
  return W;
}

// Sign and digits of a new value; "" if the field can not hold it.
std::string Datenfeld(const GSIWort& W, double Wert) {
  const double Zahl = std::floor(std::fabs(Wert) * W.Teiler + 0.5);
  if (!(Zahl < 1e15)) return "";
  const std::string Ziffern = std::to_string(static_cast<std::int64_t>(Zahl));
  const std::size_t Breite = W.Ziffern().size();
  if (Ziffern.size() > Breite) return "";
  return (Wert < 0 && Zahl > 0 ? "-" : "+") + std::string(Breite - Ziffern.size(), '0') + Ziffern;
}

// Zenith angle [gon] and slope distance [m] after a reduction by e [m].
void Reduzieren(double& z, double& d, double e, int Modus) {
  if (Modus == 1) {
    const double Gemessen = d;
    d = std::hypot(Gemessen, e);
    z -= WinkelGon(e / Gemessen, 1);
    GonReduzieren(z);
  } else if (z != 100) {
    d -= e / TanGon(z);
  }
}

}  // namespace

Reduktionsbefund RohdatenZeileReduzieren(std::string& Zeile, double Parameter, int Modus) {
  const GSIWort V = WortSuchen(Zeile, "22"), D = WortSuchen(Zeile, "31");
  if (D.Text.empty()) return Reduktionsbefund::Unverändert;
  if (D.Text[4] != '0' && D.Text[4] != '.')
    return Modus != 0 ? Reduktionsbefund::BereitsReduziert : Reduktionsbefund::ImGerätReduziert;
  double z = V.Wert, d = D.Wert;
  if (Modus == 0 || z == 0 || d == 0) return Reduktionsbefund::Unverändert;
  Reduzieren(z, d, Parameter, Modus);
  const std::string Winkel = Datenfeld(V, z), Länge = Datenfeld(D, d);
  if (Winkel.empty() || Länge.empty()) return Reduktionsbefund::Unverändert;
  const std::size_t VAb = V.Ab, DAb = D.Ab;  // the words look into the line
  Zeile.replace(VAb + 6, Winkel.size(), Winkel);
  Zeile.replace(DAb + 6, Länge.size(), Länge);
  Zeile[DAb + 4] = '9';
  return Reduktionsbefund::Reduziert;
}

}  // namespace tavorena
