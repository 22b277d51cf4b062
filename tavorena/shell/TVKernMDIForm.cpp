#include <algorithm>
#include <utility>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Befehle.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVKernMDIForm.h>
#include <tavorena/shell/TVStartForm.h>
#include <tavorena/shell/Tabellenbefehle.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

// Number in the brackets of a control of an array.
int IndexVon(std::string_view Name) {
  const std::size_t Klammer = Name.find('(');
  return Klammer == std::string_view::npos ? 0 : static_cast<int>(ZahlAusText(Name.substr(Klammer + 1)));
}

constexpr std::string_view OhneDatei = "keine Koordinatendatei offen";
constexpr std::string_view Rücknahmebefehl = "MenüBearbeitenRück";

bool IstHist(const Menüeintrag& E) { return std::string_view(E.Name).starts_with("MenüDateiHist("); }

bool IstEinerVon(std::string_view Name, std::initializer_list<std::string_view> Namen) {
  return std::find(Namen.begin(), Namen.end(), Name) != Namen.end();
}

}  // namespace

const Menüeintrag* MenüFinden(std::string_view Name) {
  const auto Baum = Menübaum();
  const auto i = std::find_if(Baum.begin(), Baum.end(), [&](const Menüeintrag& E) { return E.Name == Name; });
  return i != Baum.end() ? &*i : nullptr;
}

TVKernMDIForm& TVKernMDIForm::Fenster() {
  static TVKernMDIForm Eins;
  return Eins;
}

void TVKernMDIForm::OhneKoordinaten() {
  Offen = false;
  HistorieZeigen();
  StartseiteZeigen();
}

void TVKernMDIForm::HistorieZeigen() {
  Hist.fill(-1);
  std::size_t Eintrag = 1;
  for (int i = 0; i < HistorieAnzahl; ++i) {
    if (!Historie[static_cast<std::size_t>(i)].Dateiname.empty()) Hist[Eintrag++] = i;
  }
  AnzeigePort().HauptfensterGeändert();
}

void TVKernMDIForm::DateiOffen() {
  Offen = true;
  StartseiteSchließen();
  AnzeigePort().HauptfensterGeändert();
}

std::string_view TVKernMDIForm::VerborgenWeil(const Menüeintrag& E) const {
  const std::string_view Name = E.Name;
  if (E.Verborgen != nullptr) return E.Verborgen;
  if (IstHist(E)) return HistIndex(IndexVon(Name)) >= 0 ? "" : "leerer Eintrag";
  if (Name.starts_with("MenüDateiCondorLesen"))
    return Optionen.CondorfensterAn ? "" : "nur mit Condorfenster";
  if (IstEinerVon(Name, {"MenüMain(5)", "MenüMain(6)", "MenüDateiImportierenMain", "MenüDateiExportierenMain",
                         "MenüBearbeiten3D"}))
    return Offen ? "" : "erst mit offener Koordinatendatei";
  const Menüeintrag* Eltern = MenüFinden(E.Eltern);
  return Eltern != nullptr && Eltern->Verborgen != nullptr ? Eltern->Verborgen : "";
}

std::string_view TVKernMDIForm::Grund(const Menüeintrag& E) const {
  const std::string_view Name = E.Name;
  if (const std::string_view Warum = VerborgenWeil(E); !Warum.empty()) return Warum;
  if (Lang) return "langer Lauf";
  if (IstHist(E)) return Offen ? "erst die Koordinatendatei schließen" : "";
  if (Name == Rücknahmebefehl && Offen && TabellenRücknahme.Leer()) return "nichts zurückzunehmen";
  if (const Befehl* B = BefehlFinden(Name)) return Offen || !B->MitDatei ? "" : OhneDatei;
  // A menu can be opened when one of its entries can be used.
  const auto Frei = [&](const Menüeintrag& U) {
    return U.Eltern == Name && *U.Titel != '\0' && Grund(U).empty();
  };
  return std::any_of(Menübaum().begin(), Menübaum().end(), Frei) ? "" : OhneDatei;
}

std::string TVKernMDIForm::Titel(const Menüeintrag& E) const {
  if (E.Name == Rücknahmebefehl && !TabellenRücknahme.Leer())
    return std::string(E.Titel) + ": " + TabellenRücknahme.Name();
  if (!IstHist(E)) return E.Titel;
  const int i = HistIndex(IndexVon(E.Name));
  std::string Name = i >= 0 ? Historie[static_cast<std::size_t>(i)].Dateiname : "";
  for (std::size_t k = Name.find('&'); k != std::string::npos; k = Name.find('&', k + 2))
    Name.insert(k, 1, '&');
  return Name;  // in a caption "&&" is the sign itself
}

std::string_view TVKernMDIForm::Grund(const Werkzeug& W) const {
  if (std::string_view(W.Name) == "ImageStop")
    return Lang || Stapel.Aktiv ? "" : "nur während eines langen Laufs";
  if (BlätterOffen() && IstEinerVon(W.Name, {"ImageProgrammende", "ImageDateiLesen", "ImageOptionen"}))
    return "Rechenblatt offen";
  const Menüeintrag* E = MenüFinden(W.Eintrag);
  return E != nullptr ? Grund(*E) : OhneDatei;
}

std::string TVKernMDIForm::Hinweis(const Werkzeug& W) const {
  const std::string_view Warum = Grund(W);
  if (Warum.empty()) return W.Hinweis;
  return std::string(TrimmenSicht(W.Hinweis)) + " (" + std::string(Warum) + ")";
}

int TVKernMDIForm::Hilfe(const Menüeintrag& E) const {
  if (E.Hilfe != 0) return E.Hilfe;
  if (const Befehl* B = BefehlFinden(E.Name); B != nullptr && B->Hilfe != 0) return B->Hilfe;
  if (const Blattart* Art = BlattartVonMenü(E.Name); Art != nullptr) return Art->Hilfenummer;
  const Menüeintrag* Eltern = MenüFinden(E.Eltern);
  return Eltern != nullptr ? Hilfe(*Eltern) : 0;
}

void TVKernMDIForm::Ausführen(std::string_view Name) {
  const Menüeintrag* E = MenüFinden(Name);
  if (E == nullptr || !Aktiv(*E)) return;
  const auto Tun = [&] {
    if (IstHist(*E)) return HistorieÖffnen(HistIndex(IndexVon(Name)));
    const Befehl* B = BefehlFinden(Name);
    if (B == nullptr) return;
    if (B->Ändert && StapelSchreibenOffen()) return StatusHilfeSetzen("Stapel noch nicht abgeschlossen");
    if (B->OhnePunkte != nullptr && KorAnzahl == 0) return tavorena::Hinweis(B->OhnePunkte);
    B->Tun();
  };
  const int Vorher = std::exchange(Laufend, Hilfe(*E));
  static_cast<void>(Geschützt("TVKernMDIForm." + std::string(Name), Tun));  // the message is the answer
  Laufend = Vorher;
}

void TVKernMDIForm::WerkzeugAusführen(const Werkzeug& W) {
  if (!WerkzeugAktiv(W)) return;
  if (std::string_view(W.Name) == "ImageStop") {
    if (Lang) {
      KorStop = Laufwunsch::Stop;
    } else {
      StapelAnhalten();
    }
  } else {
    Ausführen(W.Eintrag);
  }
}

}  // namespace tavorena
