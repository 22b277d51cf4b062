#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Hoehenliste.h>

namespace tavorena {
namespace {

// Hands each line that is not empty to Nehmen. @return 0; -1 with a message
template <typename Funktion>
int ZeilenLesen(const std::string& Datei, const Funktion& Nehmen) {
  std::string Inhalt, Grund;
  if (TextdateiLesen(Datei, Inhalt, &Grund) < 0) {
    LesefehlerMelden(Datei, Grund);
    return -1;
  }
  Zeilenleser Leser(Inhalt);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    if (!TrimmenSicht(Zeile).empty()) Nehmen(Zeile);
  }
  return 0;
}

int Schreiben(const std::string& Datei, const std::string& Text) {
  std::string Grund;
  if (DateiErsetzen(Datei, Text, &Grund) == 0) return 0;
  SpeicherfehlerMelden(Datei, Grund, "Höhenliste");
  return -1;
}

int KeineHöhe(const std::string& Datei) {
  Hinweis("Keine Höhe in der Datei:\n" + Datei);
  return -1;
}

bool ZahlNehmen(std::string_view Wort, double& Zahl) {
  const double Neu = IstZahlwort(Wort) ? ZahlAusText(Wort) : NAN;
  if (!std::isfinite(Neu)) return false;
  Zahl = Neu;
  return true;
}

}  // namespace

bool HöhenzeileLesen(std::string_view Zeile, Höhenpunkt& P) {
  const std::string_view Pnr = Wortnehmen(Zeile);
  double Höhe = 0;
  if (Pnr.empty() || !ZahlNehmen(Wortnehmen(Zeile), Höhe)) return false;
  P = {std::string(Pnr), Höhe, std::string(TrimmenSicht(Zeile))};
  return true;
}

std::string Höhenzeile(const Höhenpunkt& P) {
  const std::string Zeile = PnrFormat(P.Pnr) + "  " + ZahlFormat(P.Höhe, 5, 4);
  return P.Bemerkung.empty() ? Zeile : Zeile + "  " + P.Bemerkung;
}

int HöhenlisteLesen(const std::string& Datei, std::vector<Höhenpunkt>& Punkte, int& Andere) {
  Punkte.clear();
  Andere = 0;
  return ZeilenLesen(Datei, [&](std::string_view Zeile) {
    Höhenpunkt P;
    if (HöhenzeileLesen(Zeile, P)) {
      Punkte.push_back(std::move(P));
    } else {
      ++Andere;
    }
  });
}

std::string HöhenlisteText(const std::vector<Höhenpunkt>& Punkte) {
  std::string Text;
  for (const Höhenpunkt& P : Punkte) Text += Höhenzeile(P) + "\r\n";
  return Text;
}

int HöhenlisteSchreiben(const std::string& Datei, const std::vector<Höhenpunkt>& Punkte) {
  return Schreiben(Datei, HöhenlisteText(Punkte));
}

int HöhenlisteAddieren(const std::string& Datei, double Wert, int& Anzahl) {
  Anzahl = 0;
  std::string Text;
  const int Gelesen = ZeilenLesen(Datei, [&](std::string_view Zeile) {
    Höhenpunkt P;
    const bool IstPunkt = HöhenzeileLesen(Zeile, P);
    P.Höhe += Wert;
    Anzahl += IstPunkt ? 1 : 0;
    Text += (IstPunkt ? Höhenzeile(P) : std::string(Zeile)) + "\r\n";
  });
  if (Gelesen < 0) return -1;
  return Anzahl > 0 ? Schreiben(Datei, Text) : KeineHöhe(Datei);
}

int HöhenlisteAusLT5(const std::string& Quelle, const std::string& Ziel, int& Anzahl, int& Andere) {
  std::vector<Höhenpunkt> Punkte;
  Andere = 0;
  const int Gelesen = ZeilenLesen(Quelle, [&](std::string_view Zeile) {
    Höhenpunkt P{std::string(Wortnehmen(Zeile)), 0, ""};
    bool Da = false;
    for (std::string_view Wort; !(Wort = Wortnehmen(Zeile)).empty();) Da = ZahlNehmen(Wort, P.Höhe) || Da;
    if (Da) {
      Punkte.push_back(std::move(P));
    } else {
      ++Andere;
    }
  });
  Anzahl = static_cast<int>(Punkte.size());
  if (Gelesen < 0) return -1;
  return Anzahl > 0 ? HöhenlisteSchreiben(Ziel, Punkte) : KeineHöhe(Quelle);
}

}  // namespace tavorena
