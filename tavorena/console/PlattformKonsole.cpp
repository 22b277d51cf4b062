#include <algorithm>
#include <ostream>

#include <tavorena/console/PlattformKonsole.h>
#include <tavorena/console/SerielleLeitung.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/exchange/Pdf.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Konfiguration.h>

namespace tavorena {

int PlattformKonsole::Meldung(const std::string& Text, Knöpfe Art, const std::string& Titel, int Vorgabe) {
  if (Art == Knöpfe::OK) {
    const bool Bisher = Fehler;
    Melden(Text);
    if (Titel == "Tavorena Fehlermeldung") Fehler = true;
    if (Vorgabe == KnopfNein) Fehler = Bisher || !A.Trotzdem;
    return 1;
  }
  if (Art == Knöpfe::NochmalsOhneProtokoll || Art == Knöpfe::NochmalsOhneStapel) {
    Melden(Text);  // there is no going on without what was asked for
    Enden();
    return KnopfAbbruch;
  }
  const bool Warnt = Art == Knöpfe::JaNein && Vorgabe == KnopfNein;
  if (Warnt && A.Trotzdem) return KnopfJa;
  Ohne(Warnt ? Text + " (Ja mit --trotzdem)" : Text);
  return Warnt ? KnopfNein : KnopfAbbruch;
}

void PlattformKonsole::FormularZeigen(Formular& Form, bool Modal) {
  if (Modal) return Ohne(Form.Titel);
  Form.Öffnen();
}

std::unique_ptr<Leitung> PlattformKonsole::LeitungÖffnen(const std::string& Gerät,
                                                         const std::string& Einstellungen) {
  return SerielleLeitung(Gerät, Einstellungen);
}

int PlattformKonsole::Drucken(const Druckseiten& Seiten, const std::string& Titel,
                              const std::string& Vorschlag) {
  std::string Grund;
  if (PdfSchreiben(Vorschlag, Seiten, Titel, &Grund) == 0) return 0;
  Arbeitet(Vorschlag);
  Melden("Das PDF läßt sich nicht schreiben (" + Grund + ").");
  Fehler = true;
  return -1;
}

void PlattformKonsole::Melden(const std::string& Text) {
  if (Still || !Gesagt.insert(Text).second) return;
  std::string Datei = AnDatei, Worte;
  const bool ImStapel = !Datei.empty() && Datei == Stapel.Bilanz.Datei && Stapel.Zeilennummer > 0;
  const std::string Zeile = "Zeile: " + std::to_string(Stapel.Zeilennummer);
  Zeilenleser Leser(Text);
  std::string_view Stück;
  while (Leser.Nächste(Stück)) {
    Stück = TrimmenSicht(Stück);
    if (Stück.empty() || (ImStapel && Stück == Zeile)) continue;
    const bool Eigene = std::any_of(A.Werte.begin(), A.Werte.end(),
                                    [Stück](const auto& Option) { return Option.second == Stück; });
    if (Eigene || Stück == A.Koordinaten || Stück == A.Protokoll || Stück == A.Speichern ||
        Stück == A.Datei || Stück == A.Ziel) {
      Datei = Stück;
      Fehler = true;
    } else if (Stück == DateinameOptionen) {
      Datei = Stück;  // its defaults stand: no failure
    } else {
      Worte += (Worte.empty() ? "" : " ") + std::string(Stück);
    }
  }
  Ziel << Sichtbar(Datei.empty() ? "tavorena-stapel" : Datei);
  if (ImStapel && Datei == AnDatei) Ziel << ", Zeile " << Stapel.Zeilennummer;
  Ziel << ": " << Sichtbar(Worte) << '\n';
  if (Datei == A.Protokoll && !Datei.empty()) Enden();
}

void PlattformKonsole::Ohne(const std::string& Frage) {
  Melden("Frage ohne Antwort: " + Frage);
  Enden();
}

void PlattformKonsole::Enden() {
  Fehler = Still = true;
  StapelAnhalten();
}

}  // namespace tavorena
