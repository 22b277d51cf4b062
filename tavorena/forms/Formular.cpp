#include <algorithm>
#include <utility>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/forms/Punktnummer.h>

namespace tavorena {

Steuerelement* Formular::Finde(std::string_view Gesucht) const {
  const auto i = std::find_if(Liste.begin(), Liste.end(), [&](const auto& S) { return S->Name == Gesucht; });
  return i != Liste.end() ? i->get() : nullptr;
}

// ---- the controls -------------------------------------------------------------------------------------

template <typename Art>
Art& Formular::Anlegen(std::string Name, std::string Text, Platz Ort, std::string Rahmen) {
  auto Neu = std::make_unique<Art>();
  Art& Ganzes = *Neu;
  Steuerelement& S = *Liste.emplace_back(std::move(Neu));
  S.Name = std::move(Name);
  S.Text = std::move(Text);
  S.Ort = Ort;
  S.Rahmen = std::move(Rahmen);
  return Ganzes;
}

Beschriftung& Formular::BeschriftungAnlegen(std::string Text, Platz Ort, std::string Rahmen) {
  return Anlegen<Beschriftung>("", std::move(Text), Ort, std::move(Rahmen));
}

Feld& Formular::FeldAnlegen(std::string Name, Platz Ort, std::string Rahmen, int Zeichen) {
  Feld& F = Anlegen<Feld>(std::move(Name), "", Ort, std::move(Rahmen));
  F.Zeichen = Zeichen;
  return F;
}

Feld& Formular::ZahlenfeldAnlegen(std::string Name, Platz Ort, std::string Rahmen, int Zeichen) {
  Feld& F = FeldAnlegen(std::move(Name), Ort, std::move(Rahmen), Zeichen);
  F.Rechtsbündig = true;
  return F;
}

Feld& Formular::ErgebnisfeldAnlegen(std::string Name, Platz Ort, std::string Rahmen, int Zeichen) {
  Feld& F = ZahlenfeldAnlegen(std::move(Name), Ort, std::move(Rahmen), Zeichen);
  F.NurLesen = true;
  return F;
}

Knopf& Formular::KnopfAnlegen(std::string Name, std::string Text, std::function<void()> Aktion, Platz Ort,
                              std::string Rahmen) {
  Knopf& K = Anlegen<Knopf>(std::move(Name), std::move(Text), Ort, std::move(Rahmen));
  K.BeiDruck = std::move(Aktion);
  return K;
}

Knopf& Formular::AbbruchAnlegen(std::string Name, std::string Text, Platz Ort) {
  Knopf& K = KnopfAnlegen(
      std::move(Name), std::move(Text), [this] { Schließen(); }, Ort);
  K.Abbruch = K.OhnePrüfung = true;
  return K;
}

void Formular::OkUndAbbruch(std::function<void()> BeiOk, std::string OkName, std::string AbbruchName) {
  KnopfAnlegen(std::move(OkName), "&OK", std::move(BeiOk)).Vorgabe = true;
  AbbruchAnlegen(std::move(AbbruchName), "&Abbrechen", {0, 1});
}

Auswahl& Formular::KästchenAnlegen(std::string Name, std::string Text, Platz Ort, std::string Rahmen) {
  return Anlegen<Auswahl>(std::move(Name), std::move(Text), Ort, std::move(Rahmen));
}

Auswahl& Formular::OptionAnlegen(std::string Name, std::string Text, Platz Ort, std::string Rahmen) {
  Auswahl& A = Anlegen<Auswahl>(std::move(Name), std::move(Text), Ort, std::move(Rahmen));
  A.Art = Auswahlart::Option;
  return A;
}

Auswahl& Formular::ListeAnlegen(std::string Name, std::vector<std::string> Einträge, std::string Gewählter,
                                Platz Ort, std::string Rahmen) {
  Auswahl& A = Anlegen<Auswahl>(std::move(Name), std::move(Gewählter), Ort, std::move(Rahmen));
  A.Art = Auswahlart::Liste;
  A.Einträge = std::move(Einträge);
  return A;
}

Gitter& Formular::GitterAnlegen(std::string Name, std::vector<Gitterspalte> Spalten, Platz Ort,
                                std::string Rahmen) {
  Gitter& G = Anlegen<Gitter>(std::move(Name), "", Ort, std::move(Rahmen));
  G.Spalten = std::move(Spalten);
  return G;
}

// ---- what the view is told ----------------------------------------------------------------------------

void Formular::Beobachten(FormularBeobachter* Neuer) {
  Beobachter = nullptr;
  Melden();  // whoever comes takes over what there is: the notes so far are void
  Beobachter = Neuer;
}

void Formular::Melden() {
  for (const auto& S : Liste) {
    if (Gitter* const G = S->AlsGitter()) {
      const Gitteränderung Was = G->ÄnderungAbholen();
      if (Was.Etwas() && Beobachter != nullptr) Beobachter->GitterGeändert(*G, Was);
    }
    if (S->Abholen() && Beobachter != nullptr) Beobachter->SteuerelementGeändert(*S);
  }
  if (Titel.Abholen() && Beobachter != nullptr) Beobachter->TitelGeändert();
}

void Formular::Zwischenstand() {
  if (IstOffen) Melden();
}

// ---- the focus ----------------------------------------------------------------------------------------

bool Formular::NimmtFokus(const Steuerelement& S) {
  const auto* F = dynamic_cast<const Feld*>(&S);
  return S.Aktiv && S.Sichtbar && !(F != nullptr && F->NurLesen) &&
         dynamic_cast<const Beschriftung*>(&S) == nullptr;
}

void Formular::FokusSetzen(Steuerelement& S) {
  if (!NimmtFokus(S) || std::exchange(Aktuell, &S) == &S) return;
  if (const auto* E = dynamic_cast<const Eingabeelement*>(&S); E != nullptr && E->BeiFokus) E->BeiFokus();
}

void Formular::FokusWeiter() {
  const auto Dieses =
      std::find_if(Liste.begin(), Liste.end(), [&](const auto& S) { return S.get() == Aktuell; });
  if (Dieses == Liste.end()) return;
  const auto Nächstes = std::find_if(Dieses + 1, Liste.end(), [](const auto& S) { return NimmtFokus(*S); });
  if (Nächstes != Liste.end()) FokusSetzen(**Nächstes);
}

Steuerelement* Formular::Nachbar(const Steuerelement& S, bool Vor) const {
  std::vector<Steuerelement*> Reihe;
  for (const auto& N : Liste) {
    if (N.get() == &S || NimmtFokus(*N)) Reihe.push_back(N.get());
  }
  if (!Vor) std::reverse(Reihe.begin(), Reihe.end());
  const auto Hier = std::find(Reihe.begin(), Reihe.end(), &S);
  if (Hier == Reihe.end()) return nullptr;
  Steuerelement* N = Hier + 1 != Reihe.end() ? Hier[1] : Reihe.front();
  return NimmtFokus(*N) ? N : nullptr;
}

bool Formular::Lesen(Eingabeelement& E) {
  if (!E.BeiVerlassen || E.NurLesen || !NimmtFokus(E)) return true;
  const bool Gut = E.BeiVerlassen();
  E.Fehlerhaft = !Gut;
  return Gut;
}

// Reads the control with the focus.
bool Formular::Verlassen() {
  auto* E = dynamic_cast<Eingabeelement*>(Aktuell);
  if (E == nullptr) return true;
  const std::string Letzte = LetztePunktnummer;
  // What reads the field may know the number in another form.
  if (std::exchange(Nummernfeld, nullptr) == E && *E->Text != NummerVorher && !E->Text->empty())
    LetztePunktnummer = Trimmen(*E->Text);
  if (Lesen(*E)) return true;
  LetztePunktnummer = Letzte;
  return false;
}

// ---- what the user does -------------------------------------------------------------------------------

void Formular::Öffnen() {
  IstOffen = true;
  Stand = KorStand;
  Ausführen([&] {
    const auto Erstes =
        std::find_if(Liste.begin(), Liste.end(), [](const auto& S) { return NimmtFokus(*S); });
    if (Erstes != Liste.end()) FokusSetzen(**Erstes);
    BeiÖffnen();
  });
}

void Formular::FokusWechseln(Steuerelement& Neu) {
  BeiFokus();
  if (&Neu == Aktuell || !NimmtFokus(Neu)) return;
  Ausführen([&] {
    const auto* K = dynamic_cast<const Knopf*>(&Neu);
    if ((K != nullptr && K->OhnePrüfung) || Verlassen()) FokusSetzen(Neu);
  });
}

void Formular::Tippen(Eingabeelement& E, const std::string& Text) {
  if (!NimmtFokus(E)) return;
  auto* G = dynamic_cast<Gitter*>(&E);
  if (G != nullptr && !G->ZelleOffen()) return;
  Ausführen([&] {
    E.Fehlerhaft = false;
    if (G != nullptr) {
      G->InhaltSetzen(G->Zeile, G->Spalte, Text);
    } else {
      if (E.IstPnr && std::exchange(Nummernfeld, &E) != &E) NummerVorher = *E.Text;
      E.Text = Text;
    }
    if (E.BeiText) E.BeiText();
  });
}

bool Formular::TasteDrücken(Taste T) {
  if (Aktuell == nullptr || !IstOffen) return false;
  bool Genommen = true;
  Ausführen([&] {
    if (NimmtFokus(*Aktuell)) {  // it may have been closed since
      if (TasteUnten(*Aktuell, T)) return;
      if (T >= Taste::Entf) {
        Genommen = false;
        return;
      }
      if (auto* G = dynamic_cast<Gitter*>(Aktuell); G != nullptr && GitterTaste(*G, T)) return;
      if (NummerZählen(T)) return;
      if (T == Taste::Return) return ReturnDrücken();
    }
    Genommen = T == Taste::Escape && EscapeDrücken();
  });
  return Genommen;
}

void Formular::TasteSenden(Taste T) {
  static_cast<void>(TasteDrücken(T));
  if (Beobachter != nullptr) Beobachter->FokusGeändert();
}

// "+" and "-" step the number entered last, in the place of what stands in a field or column of numbers.
bool Formular::NummerZählen(Taste T) {
  auto* const E = dynamic_cast<Eingabeelement*>(Aktuell);
  if (E == nullptr || !E->IstPnr || E->NurLesen || (T != Taste::Plus && T != Taste::Minus)) return false;
  if (const auto* G = dynamic_cast<const Gitter*>(E); G != nullptr && *G->Spalte != G->Nummernspalte())
    return false;
  const std::string Neu = PunktnummerSchritt(T == Taste::Plus ? 1 : -1);
  if (Neu.empty()) return false;
  LetztePunktnummer = Neu;
  Tippen(*E, Neu);
  return true;
}

// A grid that is only looked at knows the arrows alone, and the keys of the marks.
bool Formular::GitterTaste(Gitter& G, Taste T) {
  if (G.Markenspalte >= 0 && (T == Taste::Leer || T == Taste::Return) && !G.ZelleOffen()) {
    Markieren(G, G.Zeile, false);
    if (T == Taste::Return) ZelleWechseln(G, G.Zeile + 1, G.Spalte);
    return true;
  }
  if (!G.NurLesen) return G.BeiTaste && G.BeiTaste(T);
  if (T == Taste::Auf || T == Taste::Ab) ZelleWechseln(G, G.Zeile + (T == Taste::Auf ? -1 : 1), G.Spalte);
  return T != Taste::Escape;
}

void Formular::ReturnDrücken() {
  if (auto* K = dynamic_cast<Knopf*>(Aktuell)) return Drücken(*K);
  const auto* F = dynamic_cast<const Feld*>(Aktuell);
  if (!Verlassen()) return;
  if (F != nullptr && F->BeiReturn) return F->BeiReturn();
  FokusWeiter();
  if (auto* K = dynamic_cast<Knopf*>(Aktuell); K != nullptr && K->Vorgabe) Drücken(*K);
}

bool Formular::EscapeDrücken() {
  for (const auto& S : Liste) {
    auto* K = dynamic_cast<Knopf*>(S.get());
    if (K == nullptr || !K->Abbruch || !NimmtFokus(*K)) continue;
    Drücken(*K);
    return true;
  }
  return false;
}

void Formular::Drücken(Knopf& K) {
  if (K.BeiDruck && NimmtFokus(K)) K.BeiDruck();
}

void Formular::Klicken(Knopf& K) {
  if (!NimmtFokus(K)) return;
  Ausführen([&] {
    if (Aktuell == &K || K.OhnePrüfung || Verlassen()) Drücken(K);
  });
}

void Formular::Wählen(Auswahl& A, const std::string& Eintrag, bool An) {
  if (!NimmtFokus(A)) return;
  Ausführen([&] {
    if (A.Art == Auswahlart::Liste) A.Text = Eintrag;
    if (A.Art == Auswahlart::Option && An) {
      for (const auto& S : Liste) {
        auto* Andere = dynamic_cast<Auswahl*>(S.get());
        if (Andere != nullptr && Andere->Art == Auswahlart::Option && Andere->Rahmen == A.Rahmen &&
            Andere->Gruppe == A.Gruppe)
          Andere->Gewählt = false;
      }
    }
    A.Gewählt = An;
    if (A.BeiWahl) A.BeiWahl();
  });
}

void Formular::ZelleWechseln(Gitter& G, int Zeile, int Spalte) {
  if (!NimmtFokus(G) || Zeile < 0 || Zeile >= G.Zeilen() || (Zeile == G.Zeile && Spalte == G.Spalte)) return;
  Ausführen([&] {
    G.Ziel = Zeile;
    const bool Gut = Lesen(G);
    const int Neue = std::exchange(G.Ziel, -1);  // reading may have moved the rows
    if (!Gut) return;
    G.Zeile = std::clamp(Neue, 0, std::max(G.Zeilen() - 1, 0));
    G.Spalte = Spalte;
    if (G.BeiZelle) G.BeiZelle();
  });
}

void Formular::Markieren(Gitter& G, int Zeile, bool Bereich) {
  if (!NimmtFokus(G) || Zeile < 0 || Zeile >= G.Zeilen()) return;
  Ausführen([&] {
    if (Bereich) {
      G.MarkenBis(Zeile);
    } else {
      G.MarkeSetzen(Zeile, !G.Markiert(Zeile));
    }
    if (G.BeiMarke) G.BeiMarke();
  });
}

void Formular::Doppelklicken(Gitter& G, int Zeile) {
  if (!NimmtFokus(G) || !G.BeiDoppelklick || Zeile < 0 || Zeile >= G.Zeilen()) return;
  Ausführen([&] { G.BeiDoppelklick(Zeile); });
}

void Formular::TitelKlicken(Gitter& G, int Spalte) {
  if (!NimmtFokus(G) || !G.BeiTitel) return;
  Ausführen([&] { G.BeiTitel(Spalte); });
}

bool Formular::RücknahmeVerlangen() {
  bool Getan = false;
  Ausführen([&] { Getan = IstOffen && Zurücknehmen(); });
  return Getan;
}

void Formular::Nachsehen() {
  if (!IstOffen || InArbeit() || Stand == KorStand) return;
  Stand = KorStand;
  Ausführen([&] { BeiTabelle(); });
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
