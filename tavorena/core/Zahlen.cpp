#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

constexpr int Stellen = 15;  // significant decimal digits that every double of the trade carries

bool IstZiffer(char z) { return z >= '0' && z <= '9'; }

// Tells overflow from underflow for a number text that no double can hold: the sign of its decimal
// exponent.
bool IstÜberlauf(std::string_view Text) {
  const std::size_t e = Text.find_first_of("eE");
  int Exponent = 0;
  if (e != std::string_view::npos) {
    const char* Ab = Text.data() + e + 1 + (Text.substr(e + 1).starts_with('+') ? 1 : 0);
    if (std::from_chars(Ab, Text.data() + Text.size(), Exponent).ec != std::errc{}) return Text[e + 1] != '-';
  }
  const std::string_view Mantisse = Text.substr(0, e);
  const std::size_t Punkt = std::min(Mantisse.find('.'), Mantisse.size());
  const std::size_t Erste = std::min(Mantisse.find_first_of("123456789"), Mantisse.size());
  return static_cast<double>(Punkt) - static_cast<double>(Erste) + Exponent > 0;
}

// Reads an unsigned number; Ende is set behind it.
double BetragLesen(std::string_view Text, const char*& Ende) {
  double Zahl = 0;
  if (Text.empty() || !(IstZiffer(Text.front()) || Text.front() == '.')) return 0;
  const auto Ergebnis = std::from_chars(Text.data(), Text.data() + Text.size(), Zahl);
  Ende = Ergebnis.ptr;
  if (Ergebnis.ec == std::errc::result_out_of_range) {
    const std::string_view Gelesen = Text.substr(0, static_cast<std::size_t>(Ende - Text.data()));
    return IstÜberlauf(Gelesen) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return Ergebnis.ec == std::errc{} ? Zahl : 0.0;
}

// A value taken to 15 significant digits: 0.d1d2...d15 * 10^Exponent.
struct Dezimal {
  bool Negativ = false;
  std::array<char, Stellen> Ziffern{};
  int Exponent = 0;

  explicit Dezimal(double Zahl) : Negativ(std::signbit(Zahl)) {
    std::array<char, Stellen + 10> Puffer{};  // d.dddddddddddddde+ddd
    const auto Ende = std::to_chars(Puffer.data(), Puffer.data() + Puffer.size(), std::fabs(Zahl),
                                    std::chars_format::scientific, Stellen - 1)
                          .ptr;
    Ziffern[0] = Puffer[0];
    std::copy_n(Puffer.begin() + 2, Stellen - 1, Ziffern.begin() + 1);
    const char* Zehner = Puffer.data() + Stellen + 2;  // behind the "e"
    std::from_chars(Zehner + (*Zehner == '+' ? 1 : 0), Ende, Exponent);
    ++Exponent;
  }

  // Digit at decimal place 10^Stelle; 0 outside the 15 digits.
  [[nodiscard]] char Ziffer(int Stelle) const {
    const int i = Exponent - 1 - Stelle;
    return i >= 0 && i < Stellen ? Ziffern[static_cast<std::size_t>(i)] : '0';
  }

  // Rounds half away from zero to Nachkomma decimals; a zero loses its sign.
  void Runden(int Nachkomma) {
    const int Behalten = Exponent + Nachkomma;
    if (Behalten < Stellen) {
      const bool Auf = Behalten >= 0 && Ziffern[static_cast<std::size_t>(Behalten)] >= '5';
      std::fill(Ziffern.begin() + std::max(Behalten, 0), Ziffern.end(), '0');
      if (Auf) Erhöhen(Behalten - 1);
    }
    if (std::all_of(Ziffern.begin(), Ziffern.end(), [](char z) { return z == '0'; })) Negativ = false;
  }

 private:
  void Erhöhen(int i) {
    for (; i >= 0; --i) {
      char& z = Ziffern[static_cast<std::size_t>(i)];
      if (z != '9') {
        ++z;
        return;
      }
      z = '0';
    }
    std::copy_backward(Ziffern.begin(), Ziffern.end() - 1, Ziffern.end());
    Ziffern[0] = '1';
    ++Exponent;
  }
};

// Renders with at least MinVor integer digits and exactly Nachkomma decimals.
void DezimalSchreiben(std::string& Ziel, double Zahl, int MinVor, int Nachkomma) {
  Dezimal D(Zahl);
  D.Runden(Nachkomma);
  if (D.Negativ) Ziel += '-';
  const bool Null = D.Ziffern[0] == '0';
  for (int s = std::max(MinVor, Null ? 0 : D.Exponent) - 1; s >= 0; --s) Ziel += D.Ziffer(s);
  if (Nachkomma > 0) Ziel += '.';
  for (int s = -1; s >= -Nachkomma; --s) Ziel += D.Ziffer(s);
}

// 10^n for the overflow tests.
double Zehnerpotenz(int n) {
  constexpr std::array Genaue = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};
  return n >= 0 && n < std::ssize(Genaue) ? Genaue[static_cast<std::size_t>(n)] : std::pow(10.0, n);
}

void Rechtsstellen(std::string& Ziel, std::size_t Ab, int Breite) {
  const auto Laenge = static_cast<int>(Ziel.size() - Ab);
  if (Laenge < Breite) Ziel.insert(Ab, static_cast<std::size_t>(Breite - Laenge), ' ');
}

void FormatFüllen(std::string& Ziel, double Zahl, int Vorkomma, int Nachkomma, bool MitNullen) {
  const int V = std::max(Vorkomma, 0), N = Nachkomma;
  const std::size_t Ab = Ziel.size();
  if (!(Zahl < Zehnerpotenz(V)) || (Zahl < 0 && -Zahl >= Zehnerpotenz(V - 1))) {
    Ziel.append(static_cast<std::size_t>(V), '*') += '.';
    Ziel.append(static_cast<std::size_t>(std::max(N, 0)), '*');
    return;
  }
  const int MinVor = MitNullen ? std::max(V, N > 0 ? 0 : 1) : (V > 0 || N <= 0 ? 1 : 0);
  DezimalSchreiben(Ziel, Zahl, MinVor, std::max(N, 0));
  Rechtsstellen(Ziel, Ab, V + N + 1);
}

std::string FormatFüllen(const Wert& Zahl, int Vorkomma, int Nachkomma, bool MitNullen) {
  if (!Zahl.IstGegeben()) return Leerzeichen(std::max(Vorkomma, 0) + Nachkomma + 1);
  std::string Feld;
  FormatFüllen(Feld, Zahl.Zahl(), Vorkomma, Nachkomma, MitNullen);
  return Feld;
}

// Digits with a point among them at the most, nearly always: up to 15 of them are exact, and so is the power
// of ten, so that their quotient is the nearest value, which from_chars would take longer to find.
bool KurzeZahl(std::string_view Text, double& Zahl) {
  constexpr double Potenzen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};
  if (Text.size() > 15) return false;
  std::int64_t Ziffern = 0;
  std::size_t Nachkomma = 0;
  bool Punkt = false;
  for (const char z : Text) {
    if (IstZiffer(z)) {
      Ziffern = Ziffern * 10 + (z - '0');
      Nachkomma += Punkt ? 1 : 0;
    } else if (z != '.' || std::exchange(Punkt, true)) {
      return false;
    }
  }
  Zahl = static_cast<double>(Ziffern) / Potenzen[Nachkomma];
  return true;
}

std::string Sterne(int Breite) { return std::string(static_cast<std::size_t>(std::max(Breite, 1)), '*'); }

}  // namespace

double ZahlAusText(std::string_view Text) {
  if (!Text.empty() && IstZiffer(Text.front())) {
    double Zahl = 0;
    if (KurzeZahl(Text, Zahl)) return Zahl;
    const auto Ergebnis = std::from_chars(Text.data(), Text.data() + Text.size(), Zahl);
    if (Ergebnis.ec == std::errc{} && Ergebnis.ptr == Text.data() + Text.size()) return Zahl;
  }
  Text = TrimmenSicht(Text);
  const bool Negativ = Text.starts_with('-');
  if (Negativ || Text.starts_with('+')) Text.remove_prefix(1);
  const char* Ende = Text.data();
  double Betrag = 0;
  if (!Text.starts_with(',')) Betrag = BetragLesen(Text, Ende);
  const auto Gelesen = static_cast<std::size_t>(Ende - Text.data());
  if (Gelesen < Text.size() && Text[Gelesen] == ',' &&
      Text.substr(0, Gelesen).find_first_of(".eE") == std::string_view::npos) {
    std::string Kopie(Text.substr(0, Text.find_first_not_of("0123456789.,eE+-")));
    ZeichenErsetzen(Kopie, ',', '.');
    Betrag = BetragLesen(Kopie, Ende);
  }
  return Negativ ? -Betrag : Betrag;
}

bool IstZahlwort(std::string_view Wort) {
  const auto Ziffern = [&Wort] {
    const auto Ende = std::find_if_not(Wort.begin(), Wort.end(), IstZiffer);
    const auto Anzahl = static_cast<std::size_t>(Ende - Wort.begin());
    Wort.remove_prefix(Anzahl);
    return Anzahl;
  };
  const auto EinesVon = [&Wort](char A, char B) {
    const bool Da = Wort.starts_with(A) || Wort.starts_with(B);
    if (Da) Wort.remove_prefix(1);
    return Da;
  };
  EinesVon('+', '-');
  std::size_t Anzahl = Ziffern();
  if (EinesVon('.', ',')) Anzahl += Ziffern();
  if (Anzahl == 0) return false;
  if (EinesVon('e', 'E')) {
    EinesVon('+', '-');
    if (Ziffern() == 0) return false;
  }
  return Wort.empty();
}

std::int16_t KurzAusText(std::string_view Text) {
  const double Zahl = std::floor(ZahlAusText(Text));
  return std::fabs(Zahl) <= 32767 ? static_cast<std::int16_t>(Zahl) : std::int16_t{0};
}

double ZahlVonText(std::string& Text) {
  ZeichenErsetzen(Text, ',', '.');
  return ZahlAusText(Text);
}

double ZahlVonText(Wert& Text) {
  if (Text.IstText() && Text.Text().find(',') != std::string::npos) {
    std::string Punktiert = Text.Text();
    ZeichenErsetzen(Punktiert, ',', '.');
    Text = Wert(std::move(Punktiert));
  }
  return Text.Zahl();
}

Wert ZahlNachText(const Wert& Zahl) {
  switch (Zahl.Art()) {
    case WertArt::Null:
      return "";
    case WertArt::Ganz16:
    case WertArt::Ganz32:
    case WertArt::Gleit:
      break;
    default:
      return Zahl;
  }
  const double x = Zahl.Zahl();
  if (!std::isfinite(x)) return Sterne(8);  // no decimal text exists
  const Dezimal D(x);
  const auto Letzte =
      D.Ziffern.rend() - std::find_if(D.Ziffern.rbegin(), D.Ziffern.rend(), [](char z) { return z != '0'; });
  std::string Text;
  DezimalSchreiben(Text, x, 1, std::max(static_cast<int>(Letzte) - D.Exponent, 0));
  return Text;
}

std::string ZahlFormat(const Wert& Zahl, int Vorkomma, int Nachkomma) {
  if (Vorkomma >= 0) return FormatFüllen(Zahl, Vorkomma, Nachkomma, false);
  return std::string(TrimmenSicht(FormatFüllen(Zahl, 20, Nachkomma, false)));
}

std::string ZahlFormatNull(const Wert& Zahl, int Vorkomma, int Nachkomma) {
  return FormatFüllen(Zahl, Vorkomma, Nachkomma, true);
}

std::string ZahlFormatFest(const Wert& Zahl) {
  std::string Feld;
  if (Zahl.IstGegeben() && std::isfinite(Zahl.Zahl())) DezimalSchreiben(Feld, Zahl.Zahl(), 1, 3);
  return RechtsBündig(Feld, 12);
}

void ZahlFormatAnhängen(std::string& Ziel, double Zahl, int Vorkomma, int Nachkomma) {
  FormatFüllen(Ziel, Zahl, Vorkomma, Nachkomma, false);
}

std::string ZahlFeld(const Wert& Zahl, int Breite) {
  if (Zahl.IstText()) return RechtsBündig(Zahl.Text(), Breite);
  if (Zahl.IstNull() || !std::isfinite(Zahl.Zahl())) return Sterne(Breite);
  if (Breite > 0 && Zahl.Zahl() >= Zehnerpotenz(Breite)) return Sterne(Breite);
  std::string Feld;
  DezimalSchreiben(Feld, Zahl.Zahl(), 1, 0);
  return RechtsBündig(Feld, Breite);
}

std::string ZahlFeldNull(const Wert& Zahl, int Breite) {
  const double x = Zahl.Zahl();
  if (!(x < Zehnerpotenz(Breite)) || !std::isfinite(x)) return Sterne(Breite);
  std::string Feld;
  DezimalSchreiben(Feld, x, std::max(Breite, 0), 0);
  return RechtsBündig(Feld, Breite);
}

std::string PnrFormat(const Wert& Pnr) {
  if (Pnr.IstLeer()) return "*";
  if (Pnr.IstNull()) return Leerzeichen(8);
  if (Pnr.IstText()) return RechtsBündig(Pnr.Text(), 8);
  if (!std::isfinite(Pnr.Zahl())) return Sterne(8);
  std::string Feld;
  DezimalSchreiben(Feld, Pnr.Zahl(), 1, 0);
  return RechtsBündig(Feld, 8);
}

std::string GonText(double Grad) { return ZahlFormat(Grad / 0.9, 3, 4) + " gon"; }

}  // namespace tavorena
