#include <algorithm>
#include <map>
#include <ostream>
#include <utility>
#include <vector>

#include <tavorena/console/PlattformKonsole.h>
#include <tavorena/console/Sitzung.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Koordinatendatei.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

const std::map<std::string, Konfliktwort> Antworten = {{"abbruch", Konfliktwort::Abbrechen},
                                                       {"alt-loeschen", Konfliktwort::AltenErsetzen},
                                                       {"mittel", Konfliktwort::Mitteln},
                                                       {"neu-loeschen", Konfliktwort::NeuenVerwerfen}};
// These take a number behind "=".
const std::map<std::string, Konfliktwort> Zähler = {{"alt-umnumerieren", Konfliktwort::AltenNeunum},
                                                    {"neu-umnumerieren", Konfliktwort::NeuenNeunum}};

// The answers that the option asks for; empty if it says nothing that there is.
std::function<Konfliktantwort(const Konflikt&)> Antwortgeber(const std::string& Vorhanden) {
  if (const auto Antwort = Antworten.find(Vorhanden); Antwort != Antworten.end())
    return [Wort = Antwort->second](const Konflikt&) { return Konfliktantwort{Wort, ""}; };
  const std::size_t Gleich = Vorhanden.find('=');
  const auto Antwort = Zähler.find(Vorhanden.substr(0, Gleich));
  std::int64_t Nummer = 0;
  if (Gleich == std::string::npos || Antwort == Zähler.end() ||
      !GanzePunktnummer(std::string_view(Vorhanden).substr(Gleich + 1), Nummer))
    return {};
  // The next free number.
  return [Wort = Antwort->second, Nummer](const Konflikt&) mutable {
    while (KorSuche(std::string_view(std::to_string(Nummer))) >= 0) ++Nummer;
    return Konfliktantwort{Wort, std::to_string(Nummer)};
  };
}

// What is wrong with the call; "" if nothing is.
std::string Einwand(const Konsolenbefehl& B, const Aufruf& A) {
  const std::string Ich = "tavorena-stapel: ";
  if (B.MitKoordinaten && A.Koordinaten.empty()) return Ich + "--koordinaten fehlt";
  const bool Ersetzt = B.OderKoordinaten && !A.Koordinaten.empty();
  if (Ersetzt && !A.Datei.empty()) return Ich + "--koordinaten oder " + A.Datei + ", nicht beide";
  if (B.Datei != nullptr && A.Datei.empty() && !Ersetzt) return Ich + "die " + B.Datei + " fehlt";
  if (B.Datei == nullptr && !A.Datei.empty()) return Ich + "unbekannte Angabe: " + A.Datei;
  if (B.Ziel != nullptr && A.Ziel.empty()) return Ich + "die " + B.Ziel + " fehlt";
  for (const auto& [Name, Wert] : A.Werte) {
    const auto Eigene = [&Name = Name](const Angabe& G) { return Name == G.Name; };
    if (!Wert.empty() && std::none_of(B.Angaben.begin(), B.Angaben.end(), Eigene))
      return Ich + "unbekannte Angabe: " + Name;
  }
  for (const Angabe& G : B.Angaben) {
    if (G.Nötig && A.Wert(G.Name).empty()) return Ich + G.Name + " fehlt";
  }
  if (!A.Vorhanden.empty() && !Antwortgeber(A.Vorhanden)) {
    std::string Worte;
    for (const auto& [Wort, Bedeutung] : Antworten) Worte += (Worte.empty() ? "" : ", ") + Wort;
    for (const auto& [Wort, Bedeutung] : Zähler) Worte += ", " + Wort + "=NR";
    return Ich + "--vorhanden " + A.Vorhanden + " gibt es nicht, nur " + Worte;
  }
  if (!A.Speichern.empty() && A.Koordinaten.empty()) return Ich + "--speichern braucht --koordinaten";
  if (!A.Wert("--pdf").empty() && A.Protokoll.empty()) return Ich + "--pdf braucht --protokoll";
  // An output must not destroy what is read or written besides.
  struct Rolle {
    std::string Wort, Name;
    bool Ausgabe;
  };
  std::vector<Rolle> Rollen = {{"die Datei von --speichern", A.Speichern, true},
                               {"das Protokoll", A.Protokoll, true},
                               {"die Koordinatendatei", A.Koordinaten, false},
                               {"die Datei des Befehls", A.Datei, false},
                               {"die Ausgabedatei", A.Ziel, true}};
  for (const Angabe& G : B.Angaben) {
    if (G.Rolle != Dateirolle::Keine)
      Rollen.push_back(
          {std::string("die Datei von ") + G.Name, A.Wert(G.Name), G.Rolle == Dateirolle::Ausgabe});
  }
  for (const Rolle& Aus : Rollen) {
    for (const Rolle& Andere : Rollen) {
      // The table may go back to its file; a file that is to become itself is told when it comes to that.
      const bool Erlaubt =
          (&Aus == &Rollen[0] && &Andere == &Rollen[2]) || (&Aus == &Rollen[4] && &Andere == &Rollen[3]);
      if (!Aus.Ausgabe || &Aus == &Andere || Erlaubt || !SelbeDatei(Aus.Name, Andere.Name)) continue;
      return Aus.Name + ": " + Aus.Wort + " ist auch " + Andere.Wort;
    }
  }
  const std::string Warum = B.Prüfen ? B.Prüfen(A) : "";
  return Warum.empty() ? "" : Ich + Warum;
}

bool Lesen(const Aufruf& A, PlattformKonsole& Konsole) {
  Konsole.Arbeitet(A.Koordinaten);
  if (A.Koordinaten.empty()) return true;
  KoordinatendateiName = A.Koordinaten;
  Koordinatendateiformat = FormatNachEndung(A.Koordinaten);
  if (KoordinatendateiLesen() < 0) return false;
  TVKernMDIForm::Fenster().DateiOffen();
  return true;
}

bool ProtokollBeginnen(const Aufruf& A, PlattformKonsole& Konsole) {
  // Told before the work, not at its first row.
  std::string Grund;
  if (!A.Protokoll.empty() && TextAnhängen(A.Protokoll, "", &Grund) < 0) {
    Konsole.Arbeitet(A.Protokoll);
    Konsole.Melden("Das Protokoll läßt sich nicht schreiben (" + Grund + ").");
    return false;
  }
  ProtokollNehmen(A.Protokoll);
  return true;
}

bool Speichern(const Aufruf& A, PlattformKonsole& Konsole) {
  Konsole.Arbeitet(A.Speichern);
  return A.Speichern.empty() || KoordinatenExportieren(A.Speichern, FormatNachEndung(A.Speichern)) == 0;
}

// What the messages of the command are about.
std::string Arbeitsdatei(const Konsolenbefehl& B, const Aufruf& A) {
  for (const Angabe& G : B.Angaben) {
    if (G.Rolle == Dateirolle::Eingabe && !A.Wert(G.Name).empty()) return A.Wert(G.Name);
  }
  return A.Datei.empty() ? A.Koordinaten : A.Datei;
}

bool Arbeiten(const Konsolenbefehl& B, const Aufruf& A, const Umfeld& U, PlattformKonsole& Konsole) {
  HauptAnschließen();
  HauptInitialisierung();
  DateinameProtokollTemp.clear();  // nothing is printed afterwards
  if (auto Antwort = Antwortgeber(A.Vorhanden)) Haken.PunktVorhandenBehandeln = std::move(Antwort);
  if (!Lesen(A, Konsole) || !ProtokollBeginnen(A, Konsole)) return false;
  Konsole.Arbeitet(Arbeitsdatei(B, A));
  if (SelbeDatei(A.Datei, A.Ziel)) {
    Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + A.Ziel);
    return false;
  }
  // After a failure the table may be half done: the file stays as it is.
  return B.Tun(A, U) && !Konsole.Mißlungen() && Speichern(A, Konsole);
}

}  // namespace

Rückgabe SitzungFühren(const Konsolenbefehl& B, const Aufruf& A, const Umfeld& U) {
  if (const std::string Warum = Einwand(B, A); !Warum.empty()) {
    U.Meldungen << Sichtbar(Warum) << '\n';
    return FalscherAufruf;
  }
  PlattformKonsole Konsole(A, U.Meldungen, U.Programmordner);
  const Ports Vorher = PortsSetzen({&Konsole, &Konsole, nullptr, &Konsole, &Konsole, &Konsole});
  bool Gut = false;
  const Umfeld Innen{U.Ausgabe, U.Meldungen, U.Programmordner, [&] { return Konsole.Mißlungen(); }};
  const auto Tun = [&] { Gut = Arbeiten(B, A, Innen, Konsole); };
  Gut = Geschützt("Konsole", Tun) == 0 && Gut && !Konsole.Mißlungen();
  static_cast<void>(BlätterSchließen());  // that of a replay stays to be read, and here is nobody
  PortsSetzen(Vorher);
  return Gut ? Getan : NichtGetan;
}

}  // namespace tavorena
