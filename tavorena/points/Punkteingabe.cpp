#include <algorithm>
#include <optional>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/points/Punkteingabe.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/records/Neupunktblock.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena {
namespace {

Punkteintrag Eintrag(const char* Titel, const Punktsatz& P, const std::string& Marke = "") {
  return {Titel, {{{P.Rechts, P.Hoch, P.Pnr}, Marke}}};
}

Punkteintrag Nummerneintrag(const Punktsatz& P, const std::string& Alt) {
  return Eintrag(TitelBerichtigung, P, " ***bericht. alt:" + PnrFormat(Alt));
}

// What the protocol tells when a typed point is taken back.
std::vector<Punkteintrag> Zurücknahme(NeupunktCode Code, const NeupunktErgebnis& E, const Punktsatz& Alter,
                                      const Punktsatz& Neuer) {
  std::vector<Punkteintrag> Alle;
  if (Code == NeupunktCode::AlterErsetzt || Code == NeupunktCode::Gemittelt)
    Alle.push_back(Eintrag(TitelEingabe, Alter));
  if (Code == NeupunktCode::AlterNeunum) Alle.push_back(Nummerneintrag(Alter, E.AlterPnr));
  Alle.push_back(Eintrag(TitelLöschen, Neuer, " ***gelöscht"));
  return Alle;
}

int NotizSchreiben(NeupunktCode Code, const NeupunktErgebnis& E) {
  const Block Notiz =
      Bearbeitungsnotiz(Optionen.OptNachkommastellen, Code,
                        Code == NeupunktCode::AlterNeunum ? E.AlterPnr : E.Pnr, E.DeltaRechts, E.DeltaHoch);
  return Notiz.Zeilen.empty() ? 0 : ProtBlock(Prot, Notiz);
}

// Points on their way into the table; their entries are written when all of them are in it.
class Reiheneingabe {
 public:
  explicit Reiheneingabe(Eingabezählung& Z) : Zählung(Z) {}

  // @return 0 or -1
  int Nehmen(const Punktsatz& P) {
    Wert Pnr(P.Pnr);
    const int Besitzer = KorSucheMitPunkt(Pnr);
    if (Besitzer < 0) {  // all of them are sorted at once
      Punktsatz Neuer = P;
      ZeichenErsetzen(Neuer.Pnr, ',', '.');  // as the sort will leave it, for those that follow
      if (KorAnhängen(Neuer.Satz()) < 0) return Voll();
      return Merken(NeupunktCode::Neu, {0, 0, Neuer.Pnr, P.Rechts, P.Hoch, {}}, Neuer, Neuer);
    }
    const Punktsatz Alter = PunktsatzVon(Besitzer);
    NeupunktErgebnis E;
    const NeupunktCode Code =
        Neupunkt(Pnr, P.Rechts, P.Hoch, P.Hoehe != 0 ? Wert(P.Hoehe) : Wert(), P.Symbol, &P.Info, E);
    if (Code == NeupunktCode::Nichts) return -1;
    return Merken(Code, E, P, Alter);
  }

  int Abschließen(Punkttat& Tat) {
    KorSortieren();
    for (auto Z = Zurück.rbegin(); Z != Zurück.rend(); ++Z) {
      if (Tat.BeiRücknahme.empty() || Tat.BeiRücknahme.back().Titel != Z->Titel)
        Tat.BeiRücknahme.push_back({Z->Titel, {}});
      Tat.BeiRücknahme.back().Punkte.push_back(std::move(Z->Punkte.front()));
    }
    for (const Gemerktes& G : Getan) {
      if (Eintragen(G.Eintrag) < 0 || NotizSchreiben(G.Code, G.E) < 0) return -1;
    }
    return 0;
  }

 private:
  struct Gemerktes {
    Punkteintrag Eintrag;
    NeupunktCode Code;
    NeupunktErgebnis E;
  };

  static int Voll() {
    LaufzeitFehlerMeldung(Laufzeitfehler::Index, "Punkteingabe.PunkteEingeben");
    return -1;
  }

  int Merken(NeupunktCode Code, const NeupunktErgebnis& E, const Punktsatz& P, const Punktsatz& Alter) {
    if (Code == NeupunktCode::NeuerVerworfen) return ++Zählung.Verworfene, 0;
    const bool Ersetzt = Code == NeupunktCode::AlterErsetzt || Code == NeupunktCode::Gemittelt;
    ++(Ersetzt ? Zählung.Ersetzte : Zählung.Neue);
    Punktsatz Getippt = P;
    Getippt.Pnr = E.Pnr;
    // A note stands below the last point of its entry.
    if (Getan.empty() || Getan.back().Code != NeupunktCode::Neu)
      Getan.push_back({{TitelEingabe, {}}, Code, E});
    Getan.back().Eintrag.Punkte.push_back({{Getippt.Rechts, Getippt.Hoch, Getippt.Pnr}, ""});
    Getan.back().Code = Code;
    Getan.back().E = E;
    for (Punkteintrag& Z : Zurücknahme(Code, E, Alter, Getippt)) Zurück.push_back(std::move(Z));
    return 0;
  }

  Eingabezählung& Zählung;
  const Punktreihe Reihe;
  std::optional<Beschäftigung> Lang{std::in_place};
  std::vector<Gemerktes> Getan;
  std::vector<Punkteintrag> Zurück;
};

}  // namespace

int PunkteEingeben(Rücknahme& R, const std::string& Name, const std::vector<Punktsatz>& Neue,
                   Eingabezählung& Zählung) {
  Zählung = {};
  Punkttat Tat{Name, {}};
  return R.Ausführen(Tat, [&] {
    Reiheneingabe Eingabe(Zählung);
    Atempause Pause(0.5);
    for (const Punktsatz& P : Neue) {
      if (Eingabe.Nehmen(P) < 0) return -1;
      if (!Pause.Fällig()) continue;
      KorAnzahlAnzeigen();
      AblaufPort().EreignisseAbarbeiten();
      if (std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop) return -1;
    }
    KorAnzahlAnzeigen();
    return Eingabe.Abschließen(Tat);
  });
}

NeupunktCode PunktEingeben(Rücknahme& R, Punktsatz& P) {
  Wert Pnr(P.Pnr);
  const int Besitzer = KorSucheMitPunkt(Pnr);
  const Punktsatz Alter = Besitzer >= 0 ? PunktsatzVon(Besitzer) : Punktsatz{};
  Punkttat Tat{"Eingabe " + Zitat(P.Pnr), {}};
  Punktsatz Getippt = P, Neuer;
  NeupunktErgebnis E;
  NeupunktCode Code = NeupunktCode::Nichts;
  const int Ergebnis = R.Ausführen(Tat, [&] {
    Code = Neupunkt(Pnr, P.Rechts, P.Hoch, P.Hoehe != 0 ? Wert(P.Hoehe) : Wert(), P.Symbol, &P.Info, E);
    if (Code == NeupunktCode::Nichts) return -1;
    if (Code == NeupunktCode::NeuerVerworfen) return 0;
    Getippt.Pnr = E.Pnr;
    Neuer = PunktsatzVon(KorSuche(std::string_view(E.Pnr)));
    Tat.BeiRücknahme = Zurücknahme(Code, E, Alter, Neuer);
    return Eintragen(Eintrag(TitelEingabe, Getippt)) < 0 ? -1 : NotizSchreiben(Code, E);
  });
  if (Ergebnis < 0) return NeupunktCode::Nichts;
  if (Code != NeupunktCode::NeuerVerworfen) P = Neuer;
  return Code;
}

int PunktÄndern(Rücknahme& R, int& Zeile, const Punktsatz& Neuer) {
  const Punktsatz Alt = PunktsatzVon(Zeile);
  Punktsatz Neu = Neuer;
  Wert Pnr(Neu.Pnr);
  const int Besitzer = Neu.Pnr != Alt.Pnr ? KorSucheMitPunkt(Pnr) : Zeile;
  if (Besitzer >= 0 && Besitzer != Zeile) {
    PunktVorhandenMeldung(Neu.Pnr);
    return -1;
  }
  const bool Nummer = Besitzer < 0;
  if (!Nummer) Neu.Pnr = Alt.Pnr;  // "1,5" is its "1.5"
  if (Neu == Alt) return 0;
  Punktsatz MitAlter = Neu;
  MitAlter.Pnr = Alt.Pnr;
  std::vector<Punkteintrag> Hin, Her;
  if (Nummer) {
    Hin.push_back(Nummerneintrag(Neu, Alt.Pnr));
    Her.push_back(Nummerneintrag(Alt, Neu.Pnr));
  }
  if (MitAlter != Alt) {
    Hin.push_back(Eintrag(TitelEingabe, Neu));
    Her.push_back(Eintrag(TitelEingabe, Alt));
  }
  Punkttat Tat{(Nummer ? "Numeriere " : "Ändere ") + Zitat(Alt.Pnr), std::move(Her)};
  const int Ergebnis = R.Ausführen(Tat, [&] {
    if (KorZeileSetzen(Zeile, Neu.Satz()) < 0) return -1;
    if (Nummer) KorSortieren();
    return std::all_of(Hin.begin(), Hin.end(), [](const auto& E) { return Eintragen(E) == 0; }) ? 0 : -1;
  });
  if (Ergebnis == 0 && Nummer) Zeile = KorSucheMitPunkt(Pnr);
  return Ergebnis;
}

}  // namespace tavorena
