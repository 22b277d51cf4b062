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
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {
namespace {

// Number in the brackets of a control of an array.
int IndexVon(std::string_view Name) {
  const std::size_t Klammer = Name.find('(');
  return Klammer == std::string_view::npos ? 0 : static_cast<int>(ZahlAusText(Name.substr(Klammer + 1)));
}

constexpr std::string_view OhneDatei = "keine Koordinatendatei offen";
constexpr std::string_view Fehlt = "noch nicht vorhanden";
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
  Hist.fill(-1);
  std::size_t Eintrag = 1;
  for (int i = 0; i < HistorieAnzahl; ++i) {
    if (!Historie[static_cast<std::size_t>(i)].Dateiname.empty()) Hist[Eintrag++] = i;
  }
  AnzeigePort().HauptfensterGeändert();
}

void TVKernMDIForm::DateiOffen() {
  Offen = true;
  AnzeigePort().HauptfensterGeändert();
}

bool TVKernMDIForm::Sichtbar(const Menüeintrag& E) const {
  const std::string_view Name = E.Name;
  if (IstHist(E)) return HistIndex(IndexVon(Name)) >= 0;
  if (Name.starts_with("MenüDateiCondorLesen")) return Optionen.CondorfensterAn;
  if (IstEinerVon(Name, {"MenüMain(5)", "MenüMain(6)", "MenüDateiImportierenMain", "MenüDateiExportierenMain",
                         "MenüBearbeiten3D"}))
    return Offen;
  return !E.Verborgen;
}

std::string_view TVKernMDIForm::Grund(const Menüeintrag& E) const {
  const std::string_view Name = E.Name;
  if (Lang) return "langer Lauf";
  if (Name.starts_with("MenüMain(")) {
    return Offen || !IstEinerVon(Name,
                                 {"MenüMain(2)", "MenüMain(3)", "MenüMain(4)", "MenüMain(9)", "MenüMain(10)"})
               ? ""
               : OhneDatei;
  }
  if (IstHist(E))
    return HistIndex(IndexVon(Name)) < 0 ? "kein Eintrag" : Offen ? "Koordinatendatei offen" : "";
  if (Offen && Name == Rücknahmebefehl && TabellenRücknahme.Leer()) return "nichts zurückzunehmen";
  if (const Befehl* B = BefehlFinden(Name)) return Offen || !B->MitDatei ? "" : OhneDatei;
  // A submenu can be opened when one of its entries can be used; else what helps most is told.
  std::string_view Warum = Fehlt;
  for (const Menüeintrag& U : Menübaum()) {
    if (U.Eltern != Name || !Sichtbar(U)) continue;
    const std::string_view G = Grund(U);
    if (G.empty() || G == OhneDatei) Warum = G;
    if (G.empty()) break;
  }
  return Warum;
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
  if (std::string_view(W.Name) == "ImageStop") return Lang || Stapel.Aktiv ? "" : "kein langer Lauf";
  if (BlätterOffen() && IstEinerVon(W.Name, {"ImageProgrammende", "ImageDateiLesen", "ImageOptionen"}))
    return "Rechenblatt offen";
  const Menüeintrag* E = MenüFinden(W.Eintrag);
  return E != nullptr ? Grund(*E) : Fehlt;
}

std::string TVKernMDIForm::Hinweis(const Werkzeug& W) const {
  const std::string_view Warum = Grund(W);
  if (Warum.empty()) return W.Hinweis;
  return std::string(TrimmenSicht(W.Hinweis)) + " (" + std::string(Warum) + ")";
}

int TVKernMDIForm::Hilfe(const Menüeintrag& E) const {
  if (E.Hilfe != 0) return E.Hilfe;
  if (const Befehl* B = BefehlFinden(E.Name); B != nullptr && B->Hilfe != 0) return B->Hilfe;
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
