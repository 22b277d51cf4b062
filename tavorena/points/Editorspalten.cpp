#include <algorithm>
#include <cmath>
#include <limits>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Steuerelement.h>
#include <tavorena/points/Editorspalten.h>

namespace tavorena {
namespace {

constexpr int Vorkomma = 7;  // places that a coordinate file has for a length

int Nachkomma() { return Optionen.OptNachkommaSpeichern; }

std::string Längentext(double Meter) { return ZahlFormat(Meter, -1, Nachkomma()); }

std::string LängeNehmen(const std::string& Text, double& Meter) {
  if (!IstZahlwort(Text)) return Text.empty() ? "fehlt" : "keine Zahl";
  const double Gelesen = ZahlAusText(Text);
  if (ZahlFormat(Gelesen, Vorkomma, Nachkomma()).find('*') != std::string::npos)
    return "zu viele Stellen, in der Koordinatendatei ist Platz für 7 vor dem Komma";
  Meter = ZahlAusText(Längentext(Gelesen));  // as the file will give it back
  return "";
}

// A file reads words: what lies between blanks.
bool IstWort(const std::string& Text) {
  return std::none_of(Text.begin(), Text.end(), [](char c) { return static_cast<unsigned char>(c) <= ' '; });
}

std::string SymbolNehmen(const std::string& Text, Punktsatz& P) {
  if (!IstWort(Text)) return "mit Leerzeichen";
  P.Symbol = Text;
  P.Info.Punktart = KurzAusText(Text);
  return "";
}

std::string NummerNehmen(const std::string& Text, Punktsatz& P) {
  if (Text.empty()) return "fehlt";
  if (!IstWort(Text)) return "mit Leerzeichen";
  P.Pnr = Text;
  return "";
}

Editorspalte Längenspalte(const char* Titel, int Zeichen, double Punktsatz::*Wert, double KorSatz::*Gezeigt) {
  return {Titel, Zeichen, [Gezeigt](const KorSatz& S) { return Längentext(S.*Gezeigt); },
          [Wert](const std::string& Text, Punktsatz& P) { return LängeNehmen(Text, P.*Wert); }};
}

// @param[in] Größte  that the file has room for
Editorspalte Zahlspalte(const char* Titel, std::int16_t KorInfoSatz::*Wert, int Größte) {
  return {Titel, 10, [Wert](const KorSatz& S) { return std::to_string(S.Info->*Wert); },
          [Wert, Größte](const std::string& Text, Punktsatz& P) -> std::string {
            const bool Ziffern =
                std::all_of(Text.begin(), Text.end(), [](char c) { return c >= '0' && c <= '9'; });
            const double Zahl = ZahlAusText(Text);
            if (!Ziffern || Zahl > Größte)
              return "nur ganze Zahlen bis " + std::to_string(Größte) + ", " +
                     Anzahltext(static_cast<int>(std::to_string(Größte).size()), "Stelle", "Stellen");
            P.Info.*Wert = static_cast<std::int16_t>(Zahl);
            return "";
          }};
}

// @param[in] Zeichen  that the file has room for
Editorspalte Wortspalte(const char* Titel, std::string KorInfoSatz::*Wert, std::size_t Zeichen) {
  return {Titel, 10, [Wert](const KorSatz& S) { return S.Info->*Wert; },
          [Wert, Zeichen](const std::string& Text, Punktsatz& P) -> std::string {
            if (!IstWort(Text)) return "mit Leerzeichen";
            if (ZeichenAnzahl(Text) > Zeichen) return "höchstens " + std::to_string(Zeichen) + " Zeichen";
            P.Info.*Wert = Text;
            return "";
          }};
}

// Number and code of a symbol are one thing.
Editorspalte Punktartspalte() {
  Editorspalte S =
      Zahlspalte("Punktart(Symbol)", &KorInfoSatz::Punktart, std::numeric_limits<std::int16_t>::max());
  S.Nehmen = [Zahl = S.Nehmen](const std::string& Text, Punktsatz& P) {
    const std::int16_t Vorher = P.Info.Punktart;
    const std::string Fehler = Zahl(Text, P);
    if (P.Info.Punktart != Vorher) P.Symbol = std::to_string(P.Info.Punktart);
    return Fehler;
  };
  return S;
}

// @param[in] EineStelle  the file has room for one digit
Editorspalte Bemerkungsspalte(bool EineStelle) {
  return {"Bem.zur Verm.", 14, [](const KorSatz& S) { return ZahlNachText(S.Info->BemZurVerm).Text(); },
          [EineStelle](const std::string& Text, Punktsatz& P) -> std::string {
            const double Zahl = ZahlAusText(Text);
            if ((!Text.empty() && !IstZahlwort(Text)) || !std::isfinite(Zahl)) return "keine Zahl";
            if (EineStelle && (Zahl < 0 || Zahl > 9 || Zahl != std::floor(Zahl)))
              return "nur ganze Zahlen bis 9, 1 Stelle";
            P.Info.BemZurVerm = Zahl;
            return "";
          }};
}

}  // namespace

std::vector<Editorspalte> Editorspalten(Dateiformat Format) {
  const int Breite = Vorkomma + Nachkomma() + 3;
  std::vector<Editorspalte> Alle = {
      {"Punktnr.", PnrZeichen, [](const KorSatz& S) { return std::string(TrimmenSicht(S.Pnr)); },
       NummerNehmen},
      Längenspalte("Rechts", Breite, &Punktsatz::Rechts, &KorSatz::Rechts),
      Längenspalte("Hoch", Breite, &Punktsatz::Hoch, &KorSatz::Hoch),
      Längenspalte("Höhe", Breite - 2, &Punktsatz::Hoehe, &KorSatz::Hoehe),
      {"Symbol", 8, [](const KorSatz& S) { return std::string(S.Symbol); }, SymbolNehmen},
  };
  Alle[EditorHoehe].Text = [](const KorSatz& S) { return S.Hoehe == 0 ? "" : Längentext(S.Hoehe); };
  Alle[EditorHoehe].Nehmen = [](const std::string& Text, Punktsatz& P) {
    return LängeNehmen(Text.empty() ? "0" : Text, P.Hoehe);
  };
  if (Format == Dateiformat::Kor) return Alle;
  // The fixed columns of a file are narrower than the values; what LT4 has no column for stays as wide.
  const bool Lt4 = Format == Dateiformat::Lt4;
  constexpr int Ganz = std::numeric_limits<std::int16_t>::max();
  const std::vector<Editorspalte> Attribute = {
      Punktartspalte(),
      Zahlspalte("Punktstatus", &KorInfoSatz::Punktstatus, 9),
      Zahlspalte("Aktualität", &KorInfoSatz::Aktualitaet, Lt4 ? Ganz : 9),
      Zahlspalte("Vermarkungsart", &KorInfoSatz::Vermarkungsart, Lt4 ? 999 : 9),
      Bemerkungsspalte(!Lt4),
      Wortspalte("Entstehung", &KorInfoSatz::Entstehung, Lt4 ? 20 : 1),
      Wortspalte("Lagestatus", &KorInfoSatz::Lagestatus, 3),
      Wortspalte("Lagegenauigk.", &KorInfoSatz::Lagegenauigkeit, 1),
      Zahlspalte("Art d.Höhenb.", &KorInfoSatz::ArtHoehenbestimmung, Lt4 ? Ganz : 99),
  };
  Alle.insert(Alle.end(), Attribute.begin(), Attribute.end());
  for (Editorspalte& S : Alle) S.Zeichen = std::max(S.Zeichen, static_cast<int>(ZeichenAnzahl(S.Titel)) + 1);
  return Alle;
}

}  // namespace tavorena
