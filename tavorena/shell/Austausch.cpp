#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/exchange/CSV.h>
#include <tavorena/shell/Austausch.h>
#include <tavorena/shell/Koordinatendatei.h>

namespace tavorena {
namespace {

// The coding in which a file goes on: the one it has, where it shows one.
Zeichensatz FortgesetztIn(const std::string& Alt, Zeichensatz Gewählt) {
  bool NurAscii = true;
  for (const char z : Alt) NurAscii = NurAscii && static_cast<unsigned char>(z) < 0x80U;
  const bool Acht = Gewählt == Zeichensatz::Windows1252 || Gewählt == Zeichensatz::Dos850;
  if (!NurAscii && !IstUtf8(Alt)) return Acht ? Gewählt : Zeichensatz::Windows1252;
  if (!NurAscii || !Acht) return Zeichensatz::Utf8;  // and no second byte-order mark
  return Gewählt;
}

}  // namespace

int PunkteEinlesen(const std::string& Dateiname, Lesemodus Modus, Punktformat Format, Lesebericht& Bericht) {
  const bool Geändert = KoordinatenGeaendert;
  const int Ergebnis = KorLesen(
      Dateiname, Modus, Format, {}, [&](const Dateibefund& B) { return DarfGelesenWerden(Dateiname, B); },
      &Bericht);
  if (Ergebnis == 0 && Modus == Lesemodus::Ersetzen)
    AusgelassenMerken(Dateiname, Bericht.Übergangen, Bericht.Überzählig);
  if (Ergebnis == 0 && Bericht.Gelesen > 0) return 0;
  // That the table is full was told.
  if (Ergebnis == 0 && !Bericht.Gestoppt && Bericht.Überzählig == 0) FehlerMeldung("Format nicht erkannt");
  KorGeaendertSetzen(Geändert);
  return Ergebnis == -2 ? -2 : -1;
}

void CsvFormatKlären(const std::string& Dateiname, Punktformat& Format, Freiformat& Frei) {
  std::string Text;
  if (Format != Punktformat::Csv || TextdateiLesen(Dateiname, Text) < 0) return;
  const Csvkopf Kopf = CsvKopf(Text);
  if (Kopf.Erkannt() || Kopf.Felder == 0 || Text.find('\0') != std::string::npos) return;
  Format = Punktformat::Frei;
  Frei = CsvAlsFreiformat(Kopf);
}

std::string LeseberichtText(const Lesebericht& B) {
  std::string Text = Anzahltext(B.Gelesen, "Punkt", "Punkte") + " gelesen";
  if (B.Übergangen > 0) Text += ", " + Anzahltext(B.Übergangen, "Zeile", "Zeilen") + " übergangen";
  if (B.ErsteÜbergangene > 0) Text += " (erste: Zeile " + std::to_string(B.ErsteÜbergangene) + ")";
  return B.Zusatz.empty() ? Text : Text + ". " + B.Zusatz;
}

int TabelleAusgeben(const std::string& Dateiname, Punktformat Format, Zeichensatz Satz, bool Anhängen) {
  const Dateistand Eben = DateistandVon(Dateiname);
  std::string Alt, Neu, Grund;
  bool Gut =
      KorText(Format, Speicherstellen(), Neu) == 0 && (!Anhängen || DateiLesen(Dateiname, Alt, &Grund) == 0);
  if (Gut && Anhängen) Satz = FortgesetztIn(Alt, Satz);
  if (Gut && !SpeichernErlaubt(Dateiname, Format, Anhängen, Satz)) return -1;
  Neu = NachZeichensatz(Neu, Satz);
  if (Gut && Anhängen && Format == Punktformat::Csv && CsvFortsetzen(Alt, Neu) < 0) {
    Hinweis("Die Datei hat andere Überschriften, angehängt wird nichts:\n" + Dateiname);
    return -1;
  }
  if (!Alt.empty() && !Alt.ends_with('\n') && !Alt.ends_with('\r')) Alt += "\r\n";
  if (Gut) {
    const int Ergebnis = DateiErsetzen(Dateiname, Alt + Neu, &Grund, &Eben);
    if (Ergebnis == -2) return TabelleAusgeben(Dateiname, Format, Satz, Anhängen);
    Gut = Ergebnis == 0;
  }
  if (Gut) return 0;
  SpeichernMißlungen(Dateiname, Grund);
  return -1;
}

}  // namespace tavorena
