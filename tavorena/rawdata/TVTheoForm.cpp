#include <algorithm>
#include <memory>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/rawdata/TVTheoForm.h>

namespace tavorena {
namespace {

constexpr double Blickabstand = 0.05;      // of the receive loop [s]
constexpr std::size_t Statuszeichen = 44;  // of a line that the status shows
constexpr const char* Getrennt = "keine Verbindung";
constexpr const char* Reduktionen[] = {"Keine Reduktion", "Reduktion auf LASER- Punkte",
                                       "Reduktion auf optische Punkte"};  // by their modes

std::unique_ptr<TVTheoForm> Fenster;

std::vector<std::string> Worte(std::string_view Liste) {
  std::vector<std::string> W;
  while (!Liste.empty()) {
    const std::size_t Komma = std::min(Liste.find(','), Liste.size());
    W.emplace_back(TrimmenSicht(Liste.substr(0, Komma)));
    Liste.remove_prefix(std::min(Komma + 1, Liste.size()));
  }
  return W;
}

std::string Kurz(const std::string& Zeile) {
  const std::string Text = Sichtbar(IstUtf8(Zeile) ? Zeile : AusWindows1252(Zeile));
  const std::string Anfang(TextTeil(Text, 0, Statuszeichen));
  return Anfang.size() < Text.size() ? Anfang + "…" : Text;
}

}  // namespace

std::string TheoEmulationsdatei = "c:\\tests\\0751003.gsi";

TVTheoForm::TVTheoForm() : Formular("TVTheoForm") {
  Titel = "Theodolit";
  Hilfenummer = 4090;
  Nebenher = true;
  AnschlussAnlegen();
  AblageAnlegen();
  Status = &BeschriftungAnlegen(Getrennt, {6, 0, 6});
  Status->Name = "TheoStatus";
  IO = &KnopfAnlegen("TVTheoIO", "&Verbinden", [this] { Drücken(); });
  IO->Vorgabe = true;
  KnopfAnlegen("TVTheoStandard", "Standardwerte", [this] { Standard(); }, {0, 1});
  KnopfAnlegen("TVTheoEnde", "Schließen",
               [this] {
                 if (DarfSchließen()) Schließen();
               },
               {0, 2})
      .OhnePrüfung = true;
}

void TVTheoForm::AnschlussAnlegen() {
  const auto Neue = [this](const char* Label, const char* Name, const char* Einträge, Platz Ort) {
    BeschriftungAnlegen(Label, Ort).Rechtsbündig = Ort.Spalte > 0;
    Auswahl& A = ListeAnlegen(Name, Worte(Einträge), "", {Ort.Zeile, Ort.Spalte + 1});
    A.Zeichen = Ort.Zeile == 0 ? 4 : 1;
    return &A;
  };
  Port = Neue("Schnittstelle:", "TheoPort", "COM1,COM2", {0, 0});
  Baud = Neue("Baud:", "TheoBaud", "300,600,1200,2400,4800,9600,19200,38400,57600,115200", {0, 2});
  Parität = Neue("Parität:", "TheoParität", "N,E,O", {1, 0});
  Datenbits = Neue("Datenbits:", "TheoDatenbits", "7,8", {1, 2});
  Stopbits = Neue("Stopbits:", "TheoStopbits", "1,2", {1, 4});
}

void TVTheoForm::AblageAnlegen() {
  BeschriftungAnlegen("Rohdatendatei:", {2, 0});
  Datei = &FeldAnlegen("TheoDatei", {2, 1, 4}, "", 36);
  Datei->BeiVerlassen = [this] {
    Merken();
    return true;
  };
  KnopfAnlegen(
      "TheoDateiWaehlen", "...", [this] { DateiWählen(); }, {2, 5}, "");
  BeschriftungAnlegen("Reduktion:", {3, 0});
  Reduktion = &ListeAnlegen("TheoReduktion", {std::begin(Reduktionen), std::end(Reduktionen)}, "", {3, 1, 5});
  Reduktion->Zeichen = 28;
  Reduktion->BeiWahl = [this] { Merken(); };
  BeschriftungAnlegen("Parameter (m):", {4, 0});
  Parameter = &ZahlenfeldAnlegen("TheoParameter", {4, 1, 2}, "", 8);
  Parameter->Text = "0.087";
  Parameter->BeiVerlassen = [this] {
    Parameter->Text = Trimmen(*Parameter->Text);
    if (!IstZahlwort(*Parameter->Text)) return false;
    Merken();
    return true;
  };
  Emulation = &KästchenAnlegen("TheoEmulation", "Emulation: " + TheoEmulationsdatei, {5, 0, 6});
}

void TVTheoForm::BeiÖffnen() {
  Gewarnt = false;
  Verteilung = {};
  TheoOptionen T;
  if (TheoHaken.Lesen) static_cast<void>(TheoHaken.Lesen(T));
  Port->Text = T.Port == 1 ? "COM1" : "COM2";
  SettingsZeigen(T.Settings);
  Datei->Text = T.Rohdatendatei.empty() ? TheoStandarddatei() : T.Rohdatendatei;
  Reduktion->Text = Reduktionen[std::clamp(T.Reduktion, 0, 2)];
  Emulation->Sichtbar = DateiVorhanden(TheoEmulationsdatei);
  ZustandZeigen();
}

// What the lists do not have is added to them: another value may be what the instrument needs.
void TVTheoForm::SettingsZeigen(const std::string& Settings) {
  std::vector<std::string> W = Worte(Settings);
  W.resize(4);
  std::size_t i = 0;
  for (Auswahl* A : {Baud, Parität, Datenbits, Stopbits}) {
    if (std::find(A->Einträge.begin(), A->Einträge.end(), W[i]) == A->Einträge.end())
      A->Einträge.push_back(W[i]);
    A->Text = W[i++];
  }
}

std::string TVTheoForm::Settings() const {
  return *Baud->Text + "," + *Parität->Text + "," + *Datenbits->Text + "," + *Stopbits->Text;
}

void TVTheoForm::Standard() {
  if (!Gerät.Verbunden()) SettingsZeigen(TheoOptionen().Settings);
}

void TVTheoForm::DateiWählen() {
  Dateiauftrag Auftrag{"Rohdatendatei auswählen", "GSI |*.gsi", Startordner(), "*.gsi", false, "", false};
  std::string Name = FragenPort().DateiWählen(Auftrag);
  if (Name.empty()) return;
  EndungErgänzen(Name, "*.gsi");
  Datei->Text = Name;
  Merken();
}

// Takes over what stands in the fields, for the next line already, and keeps it for the next run.
void TVTheoForm::Merken() {
  Datei->Text = Trimmen(*Datei->Text);
  if (Datei->Text->empty()) Datei->Text = TheoStandarddatei();
  TheoOptionen T{Port->Text == "COM1" ? 1 : 2, Settings(), Datei->Text, 0};
  while (T.Reduktion < 2 && *Reduktion->Text != Reduktionen[T.Reduktion]) ++T.Reduktion;
  Gerät.Ablage = {T.Rohdatendatei, T.Reduktion, ZahlAusText(*Parameter->Text)};
  if (TheoHaken.Merken) TheoHaken.Merken(T);
}

void TVTheoForm::Drücken() {
  Stop = false;
  Merken();
  std::vector<Antwortzeile> Zeilen;
  static_cast<void>(Gerät.Nachholen(Zeilen));
  Verteilen(Zeilen);
  if (Emulation->Gewählt) return EmulationLesen();
  if (!Gerät.Verbunden()) {
    if (Gerät.Verbinden(TheoGerät(Port->Text == "COM1" ? 1 : 2), Settings()) < 0) return ZustandZeigen();
    ZustandZeigen();
  } else if (Gerät.Anfordern() < 0) {
    return ZustandZeigen();  // the loop sees it too
  }
  Empfangen();
}

void TVTheoForm::EmulationLesen() {
  if (!Emulator) {
    if (DateiLesen(TheoEmulationsdatei, Emuliert) < 0) Emuliert.clear();
    Emulator.emplace(Emuliert);
    IO->Text = "&Messen";
  }
  std::string_view Zeile;
  if (!Emulator->Nächste(Zeile)) {
    Hinweis("Emulationsdatei zuende !");
    return Schließen();
  }
  std::vector<Antwortzeile> Zeilen;
  Gerät.Einspeisen(std::string(Zeile) + "\n", Zeilen);
  Verteilen(Zeilen);
}

// Runs inside the press that opened the line until the line is closed; further presses come in between.
void TVTheoForm::Empfangen() {
  if (std::exchange(Lauscht, true)) return;
  while (!Stop && Gerät.Verbunden()) {
    std::vector<Antwortzeile> Zeilen;
    const bool Gut = Gerät.Holen(Zeilen) == 0;
    Verteilen(Zeilen);
    if (!Gut || Stop) break;
    Zwischenstand();
    Zeilen.empty() ? AblaufPort().Warten(Blickabstand) : AblaufPort().EreignisseAbarbeiten();
  }
  Lauscht = false;
  Gerät.Trennen();
  ZustandZeigen();
}

void TVTheoForm::Verteilen(const std::vector<Antwortzeile>& Zeilen) {
  for (const Antwortzeile& Z : Zeilen) {
    Status->Text = Z.Überlang ? "64 KB ohne Zeilenende: in der Rohdatendatei" : Kurz(Z.Text);
    Zwischenstand();
    ZeileMelden(Z);
  }
  if (!Gerät.Ungesichert().empty())
    Status->Text =
        Anzahltext(static_cast<int>(Gerät.Ungesichert().size()), "Zeile", "Zeilen") + " noch in keiner Datei";
}

void TVTheoForm::ZeileMelden(const Antwortzeile& Z) {
  if (Z.Befund == Reduktionsbefund::BereitsReduziert)
    return Hinweis("Fehler: Rohdaten bereits im Gerät reduziert !");
  if (Z.Befund == Reduktionsbefund::ImGerätReduziert && !std::exchange(Gewarnt, true))
    Hinweis("Achtung: Rohdaten werden im Gerät reduziert !");
  if (!Z.Überlang) Verteilung.Verteilen(Z.Text);
}

void TVTheoForm::ZustandZeigen() {
  const bool An = Gerät.Verbunden();
  Status->Text = An ? "Verbindung geöffnet" : Getrennt;
  IO->Text = An ? "&Messen" : "&Verbinden";
  for (Steuerelement* S : {Port, Baud, Parität, Datenbits, Stopbits, Emulation}) S->Aktiv = !An;
}

// The loop sees the flag at its next look; the line is closed at once.
bool TVTheoForm::DarfSchließen() {
  Stop = true;
  Gerät.Trennen();
  ZustandZeigen();
  const std::size_t Offen = Gerät.Ungesichert().size();
  if (Offen == 0) return true;
  const std::string Zeilen = Anzahltext(static_cast<int>(Offen), "Zeile", "Zeilen");
  if (FrageJaNein(Zeilen + " vom Theodoliten noch in keiner Datei. Verwerfen ?", "Tavorena", KnopfNein) !=
      KnopfJa)
    return false;
  Gerät.Verwerfen();
  return true;
}

void TVTheoForm::BeiSchließen() {
  Stop = true;
  Gerät.Trennen();
  Emulator.reset();
}

void TheodolitZeigen() {
  if (Fenster != nullptr && Fenster->Offen()) return;
  // One for the whole run: a press that is still running, and what shows it, may outlive its window.
  if (Fenster == nullptr) Fenster = std::make_unique<TVTheoForm>();
  AnzeigePort().FormularZeigen(*Fenster, false);
}

bool TheodolitSchließen() {
  if (Fenster != nullptr && Fenster->Offen()) Fenster->SchließenVerlangen();
  return Fenster == nullptr || !Fenster->Offen();
}

}  // namespace tavorena
