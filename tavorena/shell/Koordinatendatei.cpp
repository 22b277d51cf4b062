#include <algorithm>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
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
std::string Dateiinhalt(std::string Alt, const std::string& Neu, Dateiformat Format, Zeichensatz Satz) {
  if (Format == Dateiformat::Edbs)
    return Alt.empty() ? EDBSVerschlüsseln(EDBSOffen, Neu) : EDBSFortsetzen(Alt);
  if (!Alt.empty() && !Alt.ends_with('\n') && !Alt.ends_with('\r')) Alt += "\r\n";
  return Alt + NachZeichensatz(Neu, Satz);
}

// A file that is extended keeps the coding that it has, and so does an EDBS file that is replaced.
Zeichensatz SatzDerDatei(const std::string& Alt, Dateiformat Format) {
  const bool Offene = Format == Dateiformat::Edbs && Alt.empty();
  return (Offene ? EDBSOffen.Windows1252 : !IstUtf8(Alt)) ? Zeichensatz::Windows1252 : Zeichensatz::Utf8;
}

// Another program wrote the file that was read here: its points are not in the table.
bool FremdGeändert(const std::string& Dateiname) {
  const Dateistand Jetzt = DateistandVon(Dateiname);
  return SelbeDatei(Dateiname, Bekannt.Name) && Jetzt != Bekannt.Stand && Jetzt != Dateistand{};
}

}  // namespace

int Speicherstellen() {
  const int Gewählt = Optionen.OptNachkommaSpeichern;
  return Gewählt >= 0 && Gewählt <= 6 ? Gewählt : OptionenSatz().OptNachkommaSpeichern;
}

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
  AusgelassenMerken(Name, Befund.Andere + Befund.Bemerkungen, Bericht.Überzählig);
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

void AusgelassenMerken(const std::string& Dateiname, int Zeilen, int Punkte) {
  Verlust = {Dateiname, Zeilen, Punkte};
  VerlusteVergessen();
}

bool SpeichernErlaubt(const std::string& Dateiname, Punktformat Format, bool Anhängen, Zeichensatz Satz,
                      const std::vector<int>* Zeilen) {
  const bool Fremd = !Anhängen && FremdGeändert(Dateiname);
  if (Fremd &&
      FrageJaNein(
          "Die Datei wurde inzwischen von einem anderen Programm geändert. Überschreiben ?\n\n" + Dateiname,
          "Tavorena", KnopfNein) != KnopfJa)
    return false;
  const Formatzugang* Zugang = FormatFinden(Format);
  if (Zugang == nullptr) return true;  // nothing is written
  Verlustliste V = TabellenVerlust(*Zugang, Speicherstellen(), Satz, Zeilen);
  const bool Selbe = SelbeDatei(Dateiname, Verlust.Name);
  // What a foreign file holds now, nobody here knows: that question was enough.
  if (Selbe && !Anhängen && !Fremd) V[Verlustart::Zeilen].Anzahl = Verlust.Zeilen;
  if (!Selbe || (!Anhängen && !Fremd)) V[Verlustart::Punkte].Anzahl = Verlust.Punkte;
  return VerlustErlaubt(Dateiname, V, Satz);
}

int KoordinatenExportieren(const std::string& Dateiname, Dateiformat Format, bool Anhängen) {
  const Dateistand Eben = DateistandVon(Dateiname);
  std::string Alt, Neu, Grund;
  bool Gut = !Anhängen || DateiLesen(Dateiname, Alt, &Grund) == 0;
  const Zeichensatz Satz = SatzDerDatei(Alt, Format);
  if (Gut && !SpeichernErlaubt(Dateiname, PunktformatVon(Format), Anhängen, Satz)) return -1;
  Gut = Gut && KorText(Format, Speicherstellen(), Neu) == 0;
  if (Gut) {
    const int Ergebnis =
        DateiErsetzen(Dateiname, Dateiinhalt(std::move(Alt), Neu, Format, Satz), &Grund, &Eben);
    // Written by somebody else since the question: what it said does not hold any more.
    if (Ergebnis == -2) return KoordinatenExportieren(Dateiname, Format, Anhängen);
    Gut = Ergebnis == 0;
  }
  if (!Gut) {
    SpeichernMißlungen(Dateiname, Grund);
    return -1;
  }
  if (SelbeDatei(Dateiname, Bekannt.Name)) Bekannt.Stand = DateistandVon(Dateiname);
  if (!Anhängen && SelbeDatei(Dateiname, Verlust.Name)) Verlust = {};
  StatusHilfeSetzen(Anzahltext(KorAnzahl, "Punkt", "Punkte") + " gespeichert");
  return 0;
}

}  // namespace tavorena
