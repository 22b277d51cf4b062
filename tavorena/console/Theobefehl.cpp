#include <cmath>
#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Leitungswerte.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Messleitung.h>

namespace tavorena {
namespace {

constexpr double Blickabstand = 0.02;  // [s]

struct Theoauftrag {
  int Anzahl = 1;
  double Zeitlimit = 30;  // for each reply [s]
  std::string Einstellungen = "9600,N,8,1";
};

// A number of an option; one that was not given keeps its default. @return false with a message
bool ZahlNehmen(const Aufruf& A, const char* Option, double Von, double Bis, double& Zahl) {
  const std::string Wort = A.Wert(Option);
  if (Wort.empty()) return true;
  const double Neue = ZahlAusText(Wort);
  if (IstZahlwort(Wort) && Neue >= Von && Neue <= Bis) return Zahl = Neue, true;
  FehlerMeldung(std::string(Option) + " " + Wort + " geht nicht");
  return false;
}

bool AuftragLesen(const Aufruf& A, Theoauftrag& T, Messablage& Ablage) {
  double Anzahl = T.Anzahl, Reduktion = 0;
  if (!ZahlNehmen(A, "--anzahl", 1, 1e6, Anzahl) || !ZahlNehmen(A, "--zeitlimit", 0, 86400, T.Zeitlimit) ||
      !ZahlNehmen(A, "--reduktion", 0, 2, Reduktion) ||
      !ZahlNehmen(A, "--parameter", -100, 100, Ablage.Parameter))
    return false;
  T.Anzahl = static_cast<int>(Anzahl);
  Ablage.Reduktion = static_cast<int>(Reduktion);
  Ablage.Datei = A.Wert("--rohdatendatei");
  if (!A.Wert("--einstellungen").empty()) T.Einstellungen = A.Wert("--einstellungen");
  Leitungswerte W;
  const bool Ganz = std::floor(Anzahl) == Anzahl && std::floor(Reduktion) == Reduktion;
  if (Ganz && LeitungswerteLesen(T.Einstellungen, W) == 0) return true;
  FehlerMeldung(Ganz ? "--einstellungen " + T.Einstellungen + " geht nicht, nur wie 9600,N,8,1"
                     : "--anzahl und --reduktion sind ganze Zahlen");
  return false;
}

void Zeigen(const std::vector<Antwortzeile>& Zeilen, std::size_t Ab, const Umfeld& U) {
  for (std::size_t i = Ab; i < Zeilen.size(); ++i) {
    const Antwortzeile& Z = Zeilen[i];
    U.Ausgabe << Sichtbar(IstUtf8(Z.Text) ? Z.Text : AusWindows1252(Z.Text)) << std::endl;
    if (Z.Befund == Reduktionsbefund::BereitsReduziert)
      Hinweis("Fehler: Rohdaten bereits im Gerät reduziert !");
    if (Z.Befund == Reduktionsbefund::ImGerätReduziert)
      Hinweis("Achtung: Rohdaten werden im Gerät reduziert !");
    if (Z.Überlang) Hinweis("64 KB ohne Zeilenende stehen als eine Zeile in der Rohdatendatei");
  }
}

// Waits until so many lines are there. @return false with a message
bool Abwarten(Messleitung& M, std::vector<Antwortzeile>& Zeilen, std::size_t Anzahl, double Frist,
              const Umfeld& U) {
  const double Ende = AblaufPort().Zeitgeber() + Frist;
  while (true) {
    const std::size_t Bisher = Zeilen.size();
    const bool Da = M.Holen(Zeilen) == 0;
    Zeigen(Zeilen, Bisher, U);
    if (!M.Ungesichert().empty()) return false;  // told
    if (Zeilen.size() >= Anzahl) return true;
    if (!Da) return false;
    if (AblaufPort().Zeitgeber() >= Ende) {
      FehlerMeldung("keine Antwort in " + Trimmen(ZahlFormat(Wert(Frist), -1, 1)) + " s");
      return false;
    }
    AblaufPort().Warten(Blickabstand);
  }
}

bool Messen(const Aufruf& A, const Umfeld& U) {
  Theoauftrag T;
  Messleitung M;
  if (!AuftragLesen(A, T, M.Ablage)) return false;
  std::string Grund;
  if (BytesAnhängen(M.Ablage.Datei, "", &Grund) < 0) {  // told before the instrument measures
    SpeicherfehlerMelden(M.Ablage.Datei, Grund, "Theodolit");
    return false;
  }
  if (M.Verbinden(A.Datei, T.Einstellungen) < 0) return false;
  std::vector<Antwortzeile> Zeilen;
  bool Gut = true;
  for (int i = 1; Gut && i <= T.Anzahl; ++i)
    Gut = M.Anfordern() == 0 && Abwarten(M, Zeilen, static_cast<std::size_t>(i), T.Zeitlimit, U);
  M.Trennen();
  for (const Antwortzeile& Z : M.Ungesichert()) U.Ausgabe << Sichtbar(Z.Text) << '\n';  // at least here
  return Gut && M.Ungesichert().empty();
}

}  // namespace

Konsolenbefehl TheoBefehl() {
  return {"theo",
          "Rohdaten",
          "mißt mit dem Theodoliten an einer seriellen Leitung; die Zeilen kommen in die Rohdatendatei",
          "Gerätedatei, zum Beispiel /dev/ttyS0",
          false,
          Messen,
          {{"--rohdatendatei", "DATEI", "GSI-Datei; eine vorhandene wird fortgeschrieben", true,
            Dateirolle::Ausgabe},
           {"--anzahl", "N", "so viele Antworten, sonst 1"},
           {"--einstellungen", "TEXT", "Baud, Parität, Datenbits, Stopbits, sonst 9600,N,8,1"},
           {"--reduktion", "0|1|2", "keine, auf LASER-Punkte, auf optische Punkte; sonst 0"},
           {"--parameter", "METER", "der Reduktion, sonst 0.087"},
           {"--zeitlimit", "S", "so lange wird auf jede Antwort gewartet, sonst 30"}}};
}

}  // namespace tavorena
