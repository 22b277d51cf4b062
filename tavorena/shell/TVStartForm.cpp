#include <algorithm>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/shell/Handbuchseiten.h>
#include <tavorena/shell/TVKernMDIForm.h>
#include <tavorena/shell/TVStartForm.h>

namespace tavorena {
namespace {

constexpr double LangerBlick = 1;  // [s]
constexpr const char* Rahmen = "Zuletzt benutzt";
constexpr const char* Gruß = "Willkommen";

TVKernMDIForm& Kern() { return TVKernMDIForm::Fenster(); }

// The recent file of a row; nullptr behind the last one.
const HistorieEintrag* EintragVon(int Zeile) {
  const int Index = Zeile >= 0 && Zeile < HistorieAnzahl ? Kern().HistIndex(Zeile + 1) : -1;
  return Index >= 0 ? &Historie[static_cast<std::size_t>(Index)] : nullptr;
}

std::function<void()> Kommando(const char* Name) {
  return [Name] { Kern().Ausführen(Name); };
}

TVStartForm& Startseite() {
  static TVStartForm Eine;
  return Eine;
}

}  // namespace

TVStartForm::TVStartForm()
    : Formular("TVStartForm"),
      Liste(GitterAnlegen("StartGitter",
                          {{"Nr.", 4},
                           {"Datei", 26, false, false},
                           {"Ordner", 48, false, false},
                           {"zuletzt offen", 13},
                           {"Stand", 18, false, false}},
                          {}, Rahmen)) {
  Titel = "Startseite";
  Hilfenummer = Startseitenhilfe;
  Liste.NurLesen = true;
  Liste.NimmtZeilen = false;
  Liste.BeiDoppelklick = [this](int Zeile) { DateiÖffnen(Zeile); };
  BeschriftungAnlegen(
      "Ziffer oder Return öffnet eine Datei. Entf nimmt sie aus der Liste; auf der Platte bleibt sie.",
      {1, 0}, Rahmen);
  KnopfAnlegen(
      "StartStreichen", "Aus der &Liste nehmen", [this] { Streichen(Liste.Zeile); }, {2, 0}, Rahmen);
  BeschriftungAnlegen(
      "Tavorena rechnet auf einer Datei numerierter Punkte; noch war hier keine offen.\n\n"
      "„Beispiel öffnen“ legt einen kleinen Auftrag zum Ausprobieren in Ihren Dokumenten an,\n"
      "„Die erste Viertelstunde“ führt durch ihn hindurch. F1 hilft an jeder Stelle.",
      {}, Gruß);
  KnopfAnlegen("StartLesen", "Öff&nen ...", Kommando("MenüDateiLesen(0)"), {0, 0});
  KnopfAnlegen("StartNeu", "Ne&u ...", Kommando("MenüDateiNeu"), {0, 1});
  KnopfAnlegen("StartBeispiel", "Beis&piel öffnen", Kommando("MenüDateiBeispiel"), {0, 2});
  KnopfAnlegen("StartViertelstunde", "Die erste &Viertelstunde",
               [] { AnzeigePort().HandbuchZeigen(Viertelstundenhilfe); }, {0, 3});
}

void TVStartForm::BeiÖffnen() {
  Angesehen = false;
  Fehlende.clear();
  Vorige.reset();
  Verlauf = VerlaufLesen();
  Zeigen();
  FokusSetzen(EintragVon(0) != nullptr ? Liste : *Finde("StartBeispiel"));
}

void TVStartForm::BeiFokus() {
  if (Angesehen || !Offen()) return;
  Angesehen = true;
  Ereignis([this] {
    const HistorieEintrag* H = nullptr;
    for (int z = 0; (H = EintragVon(z)) != nullptr; ++z) {
      const double Anfang = AblaufPort().Zeitgeber();
      if (!DateiVorhanden(H->Dateiname)) Fehlende.insert(H->Dateiname);
      if (AblaufPort().Zeitgeber() - Anfang > LangerBlick) break;
    }
    Zeigen();
  });
}

// The rows of the list, or the greeting where there is none.
void TVStartForm::Zeigen() {
  const int Gewählt = Liste.Zeile;
  Liste.Leeren(0);
  for (int z = 0; EintragVon(z) != nullptr; ++z) {
    const std::string& Name = EintragVon(z)->Dateiname;
    const Dateiname Teile = DateinameZerlegen(Name);
    const std::string Ordner =
        Teile.Ordner.size() > 1 ? Teile.Ordner.substr(0, Teile.Ordner.size() - 1) : Teile.Ordner;
    const auto Bekannt = Verlauf.find(Name);
    const bool Da = Bekannt != Verlauf.end();
    Liste.ZeileAnhängen({std::to_string((z + 1) % 10), Name.substr(Teile.Ordner.size()), Ordner,
                         Da ? Bekannt->second.Datum : "",
                         Fehlende.contains(Name) ? "nicht gefunden"
                         : Da                    ? Anzahltext(Bekannt->second.Punkte, "Punkt", "Punkte")
                                                 : ""});
  }
  Liste.Zeile = std::clamp(Gewählt, 0, std::max(Liste.Zeilen() - 1, 0));
  for (const auto& S : Steuerelemente()) {
    if (S->Rahmen == Rahmen) S->Sichtbar = Liste.Zeilen() > 0;
    if (S->Rahmen == Gruß) S->Sichtbar = Liste.Zeilen() == 0;
  }
}

bool TVStartForm::TasteUnten(Steuerelement& S, Taste T) {
  const int Ziffer = static_cast<int>(T) - static_cast<int>(Taste::Ziffer0);
  if (Ziffer >= 0 && Ziffer <= 9) {
    DateiÖffnen((Ziffer + 9) % 10);
  } else if (&S == &Liste && T == Taste::Return) {
    DateiÖffnen(Liste.Zeile);
  } else if (&S == &Liste && T == Taste::Entf) {
    Streichen(Liste.Zeile);
  } else {
    return false;
  }
  return true;
}

void TVStartForm::DateiÖffnen(int Zeile) {
  if (EintragVon(Zeile) == nullptr) return;
  Kern().Ausführen("MenüDateiHist(" + std::to_string(Zeile + 1) + ")");
}

void TVStartForm::Streichen(int Zeile) {
  const HistorieEintrag* H = EintragVon(Zeile);
  if (H == nullptr) return;
  const std::string Name = H->Dateiname;
  Vorige = Historie;
  HistorieStreichen(Kern().HistIndex(Zeile + 1));
  Kern().HistorieZeigen();
  Zeigen();
  if (Liste.Zeilen() == 0) FokusSetzen(*Finde("StartBeispiel"));
  StatusHilfeSetzen(Name + " steht nicht mehr in der Liste (Strg+Z holt es zurück)");
}

bool TVStartForm::Zurücknehmen() {
  if (!Vorige) return false;
  Historie = *Vorige;
  Vorige.reset();
  OptionenMerken();
  Kern().HistorieZeigen();
  Zeigen();
  FokusSetzen(Liste);
  return true;
}

void StartseiteZeigen() { AnzeigePort().FüllendZeigen(Startseite()); }
void StartseiteSchließen() {
  TVStartForm& Form = Startseite();
  Form.Ereignis([&Form] { Form.Schließen(); });
}

}  // namespace tavorena
