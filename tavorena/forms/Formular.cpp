#include <algorithm>

#include <tavorena/core/TVDialog.h>
#include <tavorena/forms/Formular.h>

namespace tavorena {
namespace {

std::size_t Stelle(int i) { return static_cast<std::size_t>(i); }

}  // namespace

const std::string& Gitter::Inhalt(int z, int s) const { return Zellen.at(Stelle(z)).at(Stelle(s)); }

void Gitter::InhaltSetzen(int z, int s, std::string Neu) {
  Zellen.at(Stelle(z)).at(Stelle(s)) = std::move(Neu);
}

void Gitter::ZeileAnhängen() { Zellen.emplace_back(Spalten.size()); }

void Gitter::ZeileLöschen(int z) {
  if (z < 0 || z >= Zeilen()) return;
  Zellen.erase(Zellen.begin() + z);
  Zeile = std::clamp(Zeile, 0, std::max(Zeilen() - 1, 0));
}

void Gitter::Leeren(int ZeilenDanach) {
  Zellen.assign(Stelle(ZeilenDanach), std::vector<std::string>(Spalten.size()));
  Zeile = Spalte = 0;
}

Steuerelement* Formular::Finde(std::string_view Gesucht) const {
  const auto i = std::find_if(Liste.begin(), Liste.end(), [&](const auto& S) { return S->Name == Gesucht; });
  return i != Liste.end() ? i->get() : nullptr;
}

Steuerelement& Formular::Steuer(Steuerart Art, std::string SteuerName, std::string Text, Platz Ort,
                                std::string Rahmen) {
  auto& S = *Liste.emplace_back(std::make_unique<Steuerelement>());
  S.Art = Art;
  S.Name = std::move(SteuerName);
  S.Text = std::move(Text);
  S.Ort = Ort;
  S.Rahmen = std::move(Rahmen);
  return S;
}

Steuerelement& Formular::Beschriftung(std::string Text, Platz Ort, std::string Rahmen) {
  return Steuer(Steuerart::Beschriftung, "", std::move(Text), Ort, std::move(Rahmen));
}

Steuerelement& Formular::Feld(std::string FeldName, Platz Ort, std::string Rahmen, int Zeichen) {
  Steuerelement& S = Steuer(Steuerart::Feld, std::move(FeldName), "", Ort, std::move(Rahmen));
  S.Zeichen = Zeichen;
  return S;
}

Steuerelement& Formular::Zahlenfeld(std::string FeldName, Platz Ort, std::string Rahmen, int Zeichen) {
  Steuerelement& S = Feld(std::move(FeldName), Ort, std::move(Rahmen), Zeichen);
  S.Rechtsbündig = true;
  return S;
}

Steuerelement& Formular::Ergebnisfeld(std::string FeldName, Platz Ort, std::string Rahmen, int Zeichen) {
  Steuerelement& S = Zahlenfeld(std::move(FeldName), Ort, std::move(Rahmen), Zeichen);
  S.NurLesen = true;
  return S;
}

Steuerelement& Formular::Knopf(std::string KnopfName, std::string Text, Platz Ort, std::string Rahmen) {
  return Steuer(Steuerart::Knopf, std::move(KnopfName), std::move(Text), Ort, std::move(Rahmen));
}

Gitter& Formular::NeuesGitter(std::string GitterName, std::vector<Gitterspalte> Spalten, Platz Ort,
                              std::string Rahmen) {
  auto Neu = std::make_unique<Gitter>();
  Gitter& G = *Neu;
  G.Art = Steuerart::Gitter;
  G.Name = std::move(GitterName);
  G.Spalten = std::move(Spalten);
  G.Ort = Ort;
  G.Rahmen = std::move(Rahmen);
  Liste.push_back(std::move(Neu));
  return G;
}

bool Formular::NimmtFokus(const Steuerelement& S) {
  return S.Aktiv && S.Sichtbar && !S.NurLesen && S.Art != Steuerart::Beschriftung;
}

void Formular::FehlerZeigen(const char* Was) {
  LaufzeitFehlerMeldung(Laufzeitfehler::Index, FormName + " (" + Was + ")");
}

void Formular::Melden() {
  if (Beobachter != nullptr && IstOffen) Beobachter->FormularGeändert();
}

void Formular::Öffnen() {
  IstOffen = true;
  Ausführen([&] {
    const auto Erstes =
        std::find_if(Liste.begin(), Liste.end(), [](const auto& S) { return NimmtFokus(*S); });
    if (Erstes != Liste.end()) FokusSetzen(**Erstes);
    BeiÖffnen();
  });
}

void Formular::FokusSetzen(Steuerelement& S) {
  if (!NimmtFokus(S)) return;
  Aktuell = &S;
  FokusErhalten(S);
}

void Formular::FokusWeiter() {
  const auto Dieses =
      std::find_if(Liste.begin(), Liste.end(), [&](const auto& S) { return S.get() == Aktuell; });
  if (Dieses == Liste.end()) return;
  const auto Nächstes = std::find_if(Dieses + 1, Liste.end(), [](const auto& S) { return NimmtFokus(*S); });
  if (Nächstes != Liste.end()) FokusSetzen(**Nächstes);
}

void Formular::FokusWechseln(Steuerelement& Neu) {
  if (&Neu == Aktuell || !NimmtFokus(Neu)) return;
  Ausführen([&] {
    if (Aktuell == nullptr || Neu.OhnePrüfung || FokusVerloren(*Aktuell)) FokusSetzen(Neu);
  });
}

void Formular::Tippen(Steuerelement& S, const std::string& Text) {
  if (!NimmtFokus(S)) return;
  Ausführen([&] {
    S.Fehlerhaft = false;
    if (auto* G = dynamic_cast<Gitter*>(&S)) {
      if (G->Zeilen() > 0) G->InhaltSetzen(G->Zeile, G->Spalte, Text);
    } else {
      S.Text = Text;
    }
    TextGeändert(S);
  });
}

bool Formular::TasteDrücken(Taste T) {
  if (Aktuell == nullptr || !IstOffen) return false;
  bool Genommen = true;
  Ausführen([&] {
    Steuerelement& S = *Aktuell;
    if (TasteUnten(S, T)) return;
    if (T == Taste::Return) return ReturnDrücken(S);
    if (T == Taste::Escape) {
      const auto Knopf =
          std::find_if(Liste.begin(), Liste.end(), [](const auto& K) { return K->Abbruch && K->Aktiv; });
      if (Knopf != Liste.end()) return Geklickt(**Knopf);
    }
    Genommen = false;
  });
  return Genommen;
}

void Formular::ReturnDrücken(Steuerelement& S) {
  if (S.Art == Steuerart::Knopf) return Geklickt(S);
  if (!FokusVerloren(S)) return;
  FokusWeiter();
  if (Aktuell != nullptr && Aktuell->Vorgabe) Geklickt(*Aktuell);
}

void Formular::Klicken(Steuerelement& S) {
  if (!NimmtFokus(S)) return;
  Ausführen([&] {
    if (Aktuell != nullptr && Aktuell != &S && !S.OhnePrüfung && !FokusVerloren(*Aktuell)) return;
    Geklickt(S);
  });
}

void Formular::Wählen(Steuerelement& S, const std::string& Eintrag, bool An) {
  if (!NimmtFokus(S)) return;
  Ausführen([&] {
    if (S.Art == Steuerart::Liste) S.Text = Eintrag;
    if (S.Art == Steuerart::Option && An) {
      for (const auto& Andere : Liste) {
        if (Andere->Art == Steuerart::Option && Andere->Rahmen == S.Rahmen) Andere->Gewählt = false;
      }
    }
    S.Gewählt = An;
    Gewählt(S);
  });
}

void Formular::ZelleWechseln(Gitter& G, int Zeile, int Spalte) {
  if (Zeile < 0 || Zeile >= G.Zeilen() || (Zeile == G.Zeile && Spalte == G.Spalte)) return;
  Ausführen([&] {
    if (!ZelleVerlassen(G)) return;
    G.Zeile = std::min(Zeile, G.Zeilen() - 1);
    G.Spalte = Spalte;
  });
}

void Formular::SchließenVerlangen() {
  Ausführen([&] {
    if (IstOffen && DarfSchließen()) Schließen();
  });
}

void Formular::Schließen() {
  if (!IstOffen) return;
  IstOffen = false;
  BeiSchließen();
  if (Beobachter != nullptr) Beobachter->FormularGeschlossen();
  if (NachSchließen) NachSchließen();
}

}  // namespace tavorena
