#include <algorithm>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/shell/Koordinatendatei.h>

namespace tavorena {
namespace {

// The coordinate file as this program knows it.
struct {
  std::string Name;
  Dateistand Stand;
} Bekannt;

// What the file that was read last holds and the table does not. It stays when the job goes on under another
// name.
struct {
  std::string Name;
  int Zeilen = 0;  // that are no points
  int Punkte = 0;  // behind the last row of the table
} Verlust;

void ZeilenMelden(const Dateibefund& B) {
  const int Anzahl = B.Andere + B.Bemerkungen;
  if (Anzahl == 0) return;
  int Erste = B.ErsteAndere;
  if (Erste == 0 || (B.ErsteBemerkung > 0 && B.ErsteBemerkung < Erste)) Erste = B.ErsteBemerkung;
  StatusHilfeSetzen(
      Anzahltext(Anzahl, "Zeile der Datei ist kein Punkt", "Zeilen der Datei sind keine Punkte") +
      ", die erste ist Zeile " + std::to_string(Erste));
}

// Of a file that is mostly something else besides points, only its reading tells what they are.
void Ergänzen(Dateibefund& Befund, const Lesebericht& B, Dateiformat Format) {
  if (Format != Dateiformat::Edbs) return;
  Befund.Andere = B.Übergangen;
  Befund.ErsteAndere = B.ErsteÜbergangene;
}

// What a file becomes: the table, behind what it holds.
std::string Dateiinhalt(std::string Alt, const std::string& Neu, Dateiformat Format) {
  if (Format == Dateiformat::Edbs)
    return Alt.empty() ? EDBSVerschlüsseln(EDBSOffen, Neu) : EDBSFortsetzen(Alt);
  if (!Alt.empty() && !Alt.ends_with('\n') && !Alt.ends_with('\r')) Alt += "\r\n";
  // A file that is extended keeps the coding that it has.
  return Alt + (IstUtf8(Alt) ? Neu : NachWindows1252(Neu));
}

bool Trotzdem(const std::string& Was, const std::string& Dateiname) {
  return FrageJaNein(Was + ". Trotzdem speichern ?\n\n" + Dateiname, "Tavorena", KnopfNein) == KnopfJa;
}

// Another program wrote the file that was read here: its points are not in the table.
bool FremdGeändert(const std::string& Dateiname) {
  const Dateistand Jetzt = DateistandVon(Dateiname);
  return SelbeDatei(Dateiname, Bekannt.Name) && Jetzt != Bekannt.Stand && Jetzt != Dateistand{};
}

bool DarfÜberschreiben(const std::string& Dateiname) {
  // What it holds now, nobody here knows: one question is enough.
  if (FremdGeändert(Dateiname)) {
    return FrageJaNein("Die Datei wurde inzwischen von einem anderen Programm geändert. Überschreiben ?\n\n" +
                           Dateiname,
                       "Tavorena", KnopfNein) == KnopfJa;
  }
  if (!SelbeDatei(Dateiname, Verlust.Name)) return true;
  if (Verlust.Zeilen > 0 && !Trotzdem(Anzahltext(Verlust.Zeilen, "Zeile der Datei ist kein Punkt",
                                                 "Zeilen der Datei sind keine Punkte"),
                                      Dateiname))
    return false;
  return Verlust.Punkte == 0 ||
         Trotzdem(Anzahltext(Verlust.Punkte, "Punkt der Datei steht nicht in der Tabelle und geht verloren",
                             "Punkte der Datei stehen nicht in der Tabelle und gehen verloren"),
                  Dateiname);
}

}  // namespace

// A file of whatever kind gives some points; taken for a job, it would be saved over.
bool DarfGelesenWerden(const std::string& Dateiname, const Dateibefund& B) {
  if (!B.MitNull && B.Lesbar >= B.Andere) return true;
  const int Zeilen = B.Lesbar + B.Andere;
  const std::string Warum = Zeilen > 0 ? std::to_string(B.Lesbar) + " von " + std::to_string(Zeilen) +
                                             " Zeilen sind lesbar (erste andere: Zeile " +
                                             std::to_string(B.ErsteAndere) + ")."
                                       : "Sie enthält das Zeichen 0, das in keinem Text steht.";
  return FrageJaNein("Die Datei sieht nicht wie eine Koordinatendatei aus:\n" + Dateiname + "\n" + Warum +
                         "\n\nTrotzdem lesen ?",
                     "Tavorena", KnopfNein) == KnopfJa;
}

int KoordinatendateiLesen(bool Fragen) {
  const std::string Name = KoordinatendateiName;
  if (Koordinatendateiformat < Dateiformat::Kor || Koordinatendateiformat > Dateiformat::Lt4) {
    Hinweis("Es wird versucht, die Datei " + Name + "als Koordinatendatei einzulesen", "Interner Fehler");
    KoordinatendateiName.clear();
    return -1;
  }
  KoordinatendateiStandMerken(Name);
  EDBSOffen = {};
  Dateibefund Befund;
  Lesebericht Bericht;
  const auto Prüfen = [&](const Dateibefund& Neu) {
    Befund = Neu;
    return !Fragen || DarfGelesenWerden(Name, Neu);
  };
  const int Ergebnis =
      KorLesen(Name, Lesemodus::Ersetzen, PunktformatVon(Koordinatendateiformat), {}, Prüfen, &Bericht);
  if (Ergebnis < 0) {
    KoordinatendateiName.clear();
    return Ergebnis;
  }
  Ergänzen(Befund, Bericht, Koordinatendateiformat);
  Verlust = {Name, Befund.Andere + Befund.Bemerkungen, std::max(Befund.Punkte - KorGrenze, 0)};
  ZeilenMelden(Befund);
  return 0;
}

void KoordinatenHinzulesen(const std::string& Dateiname, Lesemodus Modus, Dateiformat Format,
                           const std::function<bool(std::string_view)>& Nimmt) {
  Dateibefund Befund;
  Lesebericht Bericht;
  const auto Prüfen = [&](const Dateibefund& Neu) {
    Befund = Neu;
    return DarfGelesenWerden(Dateiname, Neu);
  };
  if (KorLesen(Dateiname, Modus, PunktformatVon(Format), Nimmt, Prüfen, &Bericht) < 0) return;
  Ergänzen(Befund, Bericht, Format);
  ZeilenMelden(Befund);
}

void KoordinatendateiStandMerken(const std::string& Dateiname) {
  Bekannt = {Dateiname, DateistandVon(Dateiname)};
  if (SelbeDatei(Dateiname, Verlust.Name)) Verlust = {};
}

bool SpeichernErlaubt(const std::string& Dateiname, Dateiformat Format, bool Anhängen) {
  if (!Anhängen && !DarfÜberschreiben(Dateiname)) return false;
  if (Format != Dateiformat::Lt4) return true;
  const Nummernverlust V = Lt4Nummernverlust();
  return V.Anzahl == 0 || Trotzdem(Anzahltext(V.Anzahl, "Punktnummer geht", "Punktnummern gehen") +
                                       " im Format LT4 verloren (erste: " + Zitat(V.Erste) + ")",
                                   Dateiname);
}

int KoordinatenExportieren(const std::string& Dateiname, Dateiformat Format, bool Anhängen) {
  const Dateistand Eben = DateistandVon(Dateiname);
  if (!SpeichernErlaubt(Dateiname, Format, Anhängen)) return -1;
  std::string Alt, Neu, Grund;
  // Whatever an option came to, coordinates are not rounded to metres by it.
  const int Gewählt = Optionen.OptNachkommaSpeichern;
  const int Nachkomma = Gewählt >= 0 && Gewählt <= 6 ? Gewählt : OptionenSatz().OptNachkommaSpeichern;
  bool Gut = KorText(Format, Nachkomma, Neu) == 0 && (!Anhängen || DateiLesen(Dateiname, Alt, &Grund) == 0);
  if (Gut) {
    const int Ergebnis = DateiErsetzen(Dateiname, Dateiinhalt(std::move(Alt), Neu, Format), &Grund, &Eben);
    // Written by somebody else since the question: what it said does not hold any more.
    if (Ergebnis == -2) return KoordinatenExportieren(Dateiname, Format, Anhängen);
    Gut = Ergebnis == 0;
  }
  if (!Gut) {
    Hinweis("Fehler aufgetreten beim Speichern der Datei " + Dateiname + InKlammern(Grund));
    return -1;
  }
  if (SelbeDatei(Dateiname, Bekannt.Name)) Bekannt.Stand = DateistandVon(Dateiname);
  if (!Anhängen && SelbeDatei(Dateiname, Verlust.Name)) Verlust = {};
  StatusHilfeSetzen(Anzahltext(KorAnzahl, "Punkt", "Punkte") + " gespeichert");
  return 0;
}

}  // namespace tavorena
