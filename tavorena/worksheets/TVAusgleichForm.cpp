#include <cmath>
#include <tuple>
#include <utility>

#include <tavorena/calc/Ausgleich.h>
#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/TVAusgleichForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

const char* const RahmenErgebnis = "Ergebnis";
constexpr int MaxPunkte = 1001;  // of a line

std::vector<Zeilenspalte> Listenspalten(bool Kreis) {
  return {{"Punktnr.", PnrZeichen, Zellart::Nummer},
          {"Rechts", Längenbreite(8)},
          {"Hoch", Längenbreite(8)},
          {"Linie", Längenbreite(6), Zellart::Ergebnis, !Kreis},
          {"Seitw.", Längenbreite(6)},
          {"Sy.", 6}};
}

Listenart ArtDerListe(bool Kreis) {
  return {true,
          Kreis ? KreisausgleichPunkte : MaxPunkte,
          Kreis ? "Höchstens 201 Punkte in einem Kreis" : "Höchstens 1001 Punkte in einer Geraden",
          "NeupErz",
          "&Punkte erzeugen",
          "Punkte mit Nummer speichern, alles ins Protokoll schreiben"};
}

}  // namespace

TVAusgleichForm::TVAusgleichForm(const Blattart& BlattArt, char Modus)
    : Listenblatt(BlattArt),
      Kreis(Modus == 'K'),
      AusgleichGitter(ListeAnlegen(Listenspalten(Kreis), ArtDerListe(Kreis))),
      Anf(PunktAnlegen("Anf", Kreis ? "Mittelpunkt:" : "Anfangspunkt:", 1)),
      End(PunktAnlegen("End", Kreis ? "Bogenpunkt:" : "Endpunkt:", 2)) {
  const char* const Überschriften[] = {"Rechts", "Hoch", "Punktnr.", "Sy."};
  for (int i = 0; i < 4; ++i)
    BeschriftungAnlegen(Überschriften[i], {0, i + 1}, RahmenErgebnis).Rechtsbündig = i < 3;
  if (Kreis) {
    Radius = &Ergebnisfeld("Radius", "Radius:", {3, 0}, RahmenErgebnis);
    Radius->Bezeichnung = "Radius";
  }
  if (Kreis) Radius->Zeichen = Längenbreite(8);  // below the coordinates
  ListenknöpfeAnlegen();
  AusgleichGitter.BeiTaste = [this, Nehmen = std::move(AusgleichGitter.BeiTaste)](Taste T) {
    Gittertaste = T;
    const bool Genommen = Nehmen(T);
    Gittertaste.reset();
    return Genommen;
  };
}

// The words are those of the line elements, on purpose.
void TVAusgleichForm::GeworfenesZeigen() {
  if (!Gittertaste) return Listenblatt::GeworfenesZeigen();
  const char* const Wo =
      *Gittertaste == Taste::Return ? "AusgleichGitterInkrement" : "AusgleichGitter_KeyDown";
  Hinweis(std::string("Interner Fehler in '") + Wo +
          "' ! Bitte Linienelemente- Formular verlassen und neu aufrufen");
  Gittertaste.reset();
}

TVAusgleichForm::Bestimmungspunkt TVAusgleichForm::PunktAnlegen(const char* Welcher, const char* Label,
                                                                int Zeile) {
  const std::string Name = Mit(Welcher);
  BeschriftungAnlegen(Label, {Zeile, 0}, RahmenErgebnis);
  Bestimmungspunkt P{ErgebnisfeldAnlegen(Name + "Rechts", {Zeile, 1}, RahmenErgebnis, Längenbreite(8)),
                     ErgebnisfeldAnlegen(Name + "Hoch", {Zeile, 2}, RahmenErgebnis, Längenbreite(8)),
                     ZahlenfeldAnlegen(Name + "Pnr", {Zeile, 3}, RahmenErgebnis, PnrZeichen),
                     FeldAnlegen(Name + "Sym", {Zeile, 4}, RahmenErgebnis, 6),
                     {}};
  P.Pnr.IstPnr = P.Pnr.OhneAbgriff = true;
  P.Pnr.Hilfe = "Nummer, unter der der Punkt gespeichert wird; leer: er wird nicht gespeichert";
  Wortfeld(P.Pnr);
  Wortfeld(P.Sym);
  return P;
}

void TVAusgleichForm::Wortfeld(Feld& F) {
  F.BeiVerlassen = [this, &F] {
    F.Text = Trimmen(*F.Text);
    if (!WortPrüfen(F.Text)) return false;
    if (!F.IstPnr || F.Text->empty()) return true;
    for (int z = 0; z < Anzahl(); ++z) {
      if (Reihe(z).Pnr != *F.Text) continue;
      StatusHilfeSetzen("Punkt " + *F.Text + " steht in der Liste");
      return false;
    }
    LetztePunktnummer = *F.Text;
    return true;
  };
}

Listenmangel TVAusgleichForm::Rechnen() {
  Werte = {Kreis, {}, {}, 0, {}};
  Linien.clear();
  std::vector<double> R, H;
  for (int z = 0; z < Anzahl(); ++z) {
    if (Reihe(z).Pnr.empty()) return {"Punktnummer fehlt", z, 0, nullptr, true};
    const Lage P = Reihe(z).Ort;
    R.push_back(P.RW);
    H.push_back(P.HW);
  }
  const int Mindestens = Kreis ? 3 : 2;
  if (Anzahl() < Mindestens) return {"Punktnummer fehlt", Anzahl(), 0, nullptr, true};
  if (Kreis) {
    if (Kreisausgleich(R, H, Anzahl(), Anf.Ort, Werte.Radius) < 0 || !(Werte.Radius > 0))
      return {"Die Punkte liegen auf keinem Kreis", 0, 0, nullptr, false};
    End.Ort = {Anf.Ort.RW, Anf.Ort.HW + Werte.Radius};
  } else if (Geradenausgleich(R, H, Anzahl(), Anf.Ort, End.Ort) < 0 ||
             Strecke(Anf.Ort.RW, Anf.Ort.HW, End.Ort.RW, End.Ort.HW) == 0) {
    return {"Die Punkte liegen an einer Stelle", 0, 0, nullptr, false};
  }
  Werte.Erster = {Anf.Ort.RW, Anf.Ort.HW, ""};
  Werte.Zweiter = {End.Ort.RW, End.Ort.HW, ""};
  for (int z = 0; z < Anzahl(); ++z) {
    const Lage P = Reihe(z).Ort;
    double Linie = 0, Seitwärts = Strecke(Anf.Ort.RW, Anf.Ort.HW, P.RW, P.HW) - Werte.Radius;
    if (!Kreis) static_cast<void>(Linienelemente(Anf.Ort, End.Ort, P, Linie, Seitwärts));
    Linien.push_back(Linie);
    Werte.Punkte.push_back({{P.RW, P.HW, Reihe(z).Pnr}, Seitwärts});
  }
  return {};
}

void TVAusgleichForm::Zeilenergebnis(int z, std::vector<double>& Zellwerte) const {
  const Listenreihe& Z = Reihe(z);
  const auto i = static_cast<std::size_t>(z);
  if (Z.Pnr.empty()) return;
  Zellwerte = {Z.Ort.RW, Z.Ort.HW};
  if (Gerechnet()) Zellwerte.insert(Zellwerte.end(), {Linien[i], Werte.Punkte[i].Abstand});
}

// A text is no length: the symbols of the table stand beside what is computed.
void TVAusgleichForm::ZeigeBerechnung() {
  for (int z = 0; z <= Anzahl(); ++z) {
    const int Tabellenzeile = KorSuche(std::string_view(Reihe(z).Pnr));
    AusgleichGitter.InhaltSetzen(z, 5, Tabellenzeile < 0 ? "" : std::string(KorPunkt(Tabellenzeile).Symbol));
  }
  for (const Bestimmungspunkt* P : {&Anf, &End}) {
    P->Rechts.Text = Gerechnet() ? Längentext(P->Ort.RW) : "";
    P->Hoch.Text = Gerechnet() ? Längentext(P->Ort.HW) : "";
  }
  if (Kreis) Radius->Text = Gerechnet() ? Längentext(Werte.Radius) : "";
  Zeichnen();
}

void TVAusgleichForm::Zeichnen() {
  Bild.Löschen();
  for (int z = 0; z < Anzahl(); ++z) {
    const Listenreihe& Z = Reihe(z);
    if (!Z.Pnr.empty()) Bild.Punkt({Z.Pnr, Z.Ort.RW, Z.Ort.HW, "MARK", FarbeRot});
  }
  if (!Gerechnet()) return;
  if (Kreis) {
    Bild.Bogen({Anf.Ort.RW, Anf.Ort.HW, Werte.Radius, 0, 360, FarbeRot, false, Strich::Breit});
  } else {
    Bild.Linie({Anf.Ort.RW, Anf.Ort.HW, End.Ort.RW, End.Ort.HW, FarbeRot, Strich::Breit, false});
  }
}

Listenakte TVAusgleichForm::Akte() const {
  Protausgleich A = Werte;
  A.Erster.Pnr = *Anf.Pnr.Text;
  A.Zweiter.Pnr = *End.Pnr.Text;
  return {{}, AusgleichKommentar(A), AusgleichBlock(Optionen.OptNachkommastellen, A)};
}

// A point that is refused is as one that is not wanted.
int TVAusgleichForm::PunkteEintragen(Listenakte& A) {
  Protausgleich P = Werte;
  std::vector<std::string> Notizen[2];
  bool Verweigert = false;
  for (auto& [Von, Ziel, Notiz] :
       {std::tie(Anf, P.Erster, Notizen[0]), std::tie(End, P.Zweiter, Notizen[1])}) {
    if (Von.Pnr.Text->empty()) continue;
    std::string Pnr = *Von.Pnr.Text;
    Lage Ort = Von.Ort;
    if (PunktEintragen(Pnr, Ort, {}, *Von.Sym.Text, Notiz) < 0) {
      Verweigert = true;
      continue;
    }
    Von.Pnr.Text = Pnr;
    Ziel = {Ort.RW, Ort.HW, Pnr};
  }
  if (Verweigert && P.Erster.Pnr.empty() && P.Zweiter.Pnr.empty()) return -1;
  A.Kommentar = AusgleichKommentar(P);
  A.Zeilen = AusgleichBlock(Optionen.OptNachkommastellen, P);
  std::vector<std::string>& Zeilen = A.Zeilen.Zeilen;  // head, first point, second point, rows
  if (Zeilen.size() > 3) {
    Zeilen.insert(Zeilen.begin() + 3, Notizen[1].begin(), Notizen[1].end());
    Zeilen.insert(Zeilen.begin() + 2, Notizen[0].begin(), Notizen[0].end());
  }
  if (!Verweigert && !StapelDatei.Name.empty())
    StatusHilfeSetzen(*Titel + " wird im Stapel nicht wiederholt");
  return 0;
}

void TVAusgleichForm::FelderLeeren() {
  for (Feld* F : {&Anf.Pnr, &Anf.Sym, &End.Pnr, &End.Sym}) F->Text = "";
}

}  // namespace tavorena
