#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/rawdata/Epochenliste.h>
#include <tavorena/rawdata/Gesamtdatei.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Druckbefehle.h>
#include <tavorena/shell/Epochenbefehle.h>
#include <tavorena/shell/Konfiguration.h>

namespace tavorena {
namespace {

constexpr int Epochenseite = 6040;  // of the handbook
const char* const FilterGes = "Gesamtdatei (*.ges)|*.ges";

std::string Messungstitel(bool MitLage) {
  return std::string("Tavorena ") + (MitLage ? "Verformungsmessung" : "Setzungsmessung");
}

// The parameter file. As long as nobody named another one, it lies in the application folder where the folder
// of the first choice is missing.
std::string Parameterdatei(bool MitLage) {
  const std::string OptionenSatz::*Name =
      MitLage ? &OptionenSatz::DateinameVerformung : &OptionenSatz::DateinameSetzung;
  const Dateiname Teile = DateinameZerlegen(Optionen.*Name);
  if (Optionen.*Name != OptionenSatz().*Name || OrdnerVorhanden(Teile.Ordner)) return Optionen.*Name;
  return PfadVerbinden(Anwendungsordner, Teile.Grundname + "." + Teile.Endung);
}

bool QuelleLesen(const std::string& Name, Epochenquelle& Q) {
  Q.Name = Name;
  Q.Höhenliste = Großtext(DateinameZerlegen(Name).Endung) != "KOR";
  return VergleichspunkteLesen(Name, Q.Höhenliste, Q.Punkte, Q.Andere) == 0;
}

std::string Berichtstext(const std::string& Tag, const Epochenzugang& Z, const Epochenquelle& Q,
                         bool MitLage) {
  std::string Text =
      Tag + ": " + Anzahltext(Z.Punkte, "Punkt", "Punkte") + ", davon " + std::to_string(Z.Neue) + " neu";
  if (Z.OhneWert > 0)
    Text += ", " + Anzahltext(Z.OhneWert, "Punkt", "Punkte") + " ohne Höhe" +
            (MitLage ? "" : ", nicht aufgenommen");
  if (Q.Andere > 0) Text += ", " + Anzahltext(Q.Andere, "Zeile", "Zeilen") + " der Datei ohne Punkt";
  return Text;
}

bool ErsetzenFragen(const Gesamtdatei& G, const std::string& Datum) {
  return EpocheFinden(G, Datum) < 0 ||
         FrageJaNein("Die Epoche " + Datum + " ist schon vorhanden. Alle ihre Werte ersetzen ?", "Tavorena",
                     KnopfNein) == KnopfJa;
}

// @return false: cancelled
bool DatumFragen(const std::string& Titel, std::string& Datum) {
  Datum = Zeitstempel().substr(0, 10);
  for (;;) {
    if (EinWert(Titel, "Datum der Messung:", Datum) < 0) return false;
    if (DatumLesen(Datum, Datum)) return true;
    FehlerMeldung("Kein Datum: " + Zitat(Datum));
  }
}

void Hinzufügen(bool MitLage) {
  Dateifeld Felder[] = {{MitLage ? "KOR-Datei" : "HLI-Datei", "",
                         MitLage ? "CADdy (*.kor)|*.kor" : "Höhenliste (*.hli)|*.hli|CADdy (*.kor)|*.kor"},
                        {"Gesamtdatei", "", FilterGes}};
  Felder[1].Fortgeschrieben = true;
  if (ZweiDateinamen(Messungstitel(MitLage), Felder) < 0) return;
  EndungErgänzen(Felder[1].Name, "*.ges");
  VerzeichnisMerken(Felder[1].Name);
  Epochenquelle Quelle;
  if (!QuelleLesen(Felder[0].Name, Quelle)) return;
  std::string Datum, Bericht;
  if (!DatumFragen(Messungstitel(MitLage), Datum)) return;
  const int Ergebnis = EpocheHinzufügen(Felder[1].Name, Datum, MitLage, Quelle, Bericht);
  if (Ergebnis == 0) StatusHilfeSetzen(Bericht);
  if (Ergebnis == 1) Hinweis(Bericht, Messungstitel(MitLage));
}

void Drucken(bool MitLage) {
  const std::string Datei = DateiFragen(Messungstitel(MitLage), FilterGes, "*.ges", false);
  if (Datei.empty()) return;
  const std::string Ziel = EpochenlisteName(Datei);
  if (EpochenlisteErzeugen(Datei, Ziel) == 0) DateiDrucken(Ziel);
}

void ParameterZeigen(bool MitLage) {
  const std::string Datei = Parameterdatei(MitLage);
  std::string Grund;
  if (!DateiVorhanden(Datei) &&
      (OrdnerAnlegen(DateinameZerlegen(Datei).Ordner) < 0 ||
       DateiErsetzen(Datei, EpochenparameterText(EpochenparameterVorgabe(MitLage)), &Grund) < 0))
    return SpeicherfehlerMelden(Datei, Grund, "Haupt.Parameter");
  Ansehen(Datei);
}

Befehl Messbefehl(const char* Eintrag, void (*Tun)(bool), bool MitLage) {
  return {Eintrag, true, [=] { Tun(MitLage); }, false, nullptr, Epochenseite};
}

}  // namespace

int EpocheHinzufügen(const std::string& Gesamt, const std::string& Datum, bool MitLage,
                     const Epochenquelle& Quelle, std::string& Bericht) {
  const auto Ablehnen = [](const std::string& Text) {
    FehlerMeldung(Text);
    return -1;
  };
  std::string Tag;
  if (!DatumLesen(Datum, Tag)) return Ablehnen("Kein Datum: " + Zitat(Datum));
  if (SelbeDatei(Gesamt, Quelle.Name))
    return Ablehnen("Dateiname für Ein- und Ausgabe ist gleich:\n" + Gesamt);
  Gesamtdatei G{MitLage, {}, {}};
  Dateistand Stand = DateistandVon(Gesamt);
  if (DateiVorhanden(Gesamt) && GesamtdateiLesen(Gesamt, G, &Stand) < 0) return -1;
  if (G.MitLage && Quelle.Höhenliste)
    return Ablehnen("Die Gesamtdatei braucht Koordinaten, die Höhenliste hat keine:\n" + Quelle.Name);
  if (!ErsetzenFragen(G, Tag)) return -1;
  Epochenzugang Z;
  if (EpocheEintragen(G, Tag, Quelle.Punkte, Quelle.Höhenliste, Z) < 0)
    return Ablehnen("Punkt " + Zitat(Z.Mehrfache) + " steht mehrfach mit verschiedenen Werten:\n" +
                    Quelle.Name);
  if (Z.Punkte == 0) return Ablehnen("Keine Punkte für eine Epoche:\n" + Quelle.Name);
  if (GesamtdateiSchreiben(Gesamt, G, Stand) < 0) return -1;
  Bericht = Berichtstext(Tag, Z, Quelle, G.MitLage);
  return (Z.OhneWert > 0 && !G.MitLage) || Quelle.Andere > 0 ? 1 : 0;
}

int EpochenlisteErzeugen(const std::string& Gesamt, const std::string& Ziel) {
  Gesamtdatei G;
  Epochenparameter P;
  if (GesamtdateiLesen(Gesamt, G) < 0) return -1;
  if (EpochenparameterLesen(Parameterdatei(G.MitLage), G.MitLage, P) < 0) return -1;
  return EpochenlisteSchreiben(Ziel, Gesamt, G, P);
}

std::span<const Befehl> Epochenbefehle() {
  static const std::vector<Befehl> Alle = {
      Messbefehl("MenüFunktSetzungsmessung(3)", Hinzufügen, false),
      Messbefehl("MenüFunktSetzungsmessung(4)", Drucken, false),
      Messbefehl("MenüFunktSetzungsmessung(6)", ParameterZeigen, false),
      Messbefehl("MenüFunktVerformungsmessung(0)", Hinzufügen, true),
      Messbefehl("MenüFunktVerformungsmessung(1)", Drucken, true),
      Messbefehl("MenüFunktVerformungsmessung(3)", ParameterZeigen, true),
  };
  return Alle;
}

}  // namespace tavorena
