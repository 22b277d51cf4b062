#include <cmath>

#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protbloecke.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/worksheets/TVDisForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr Blattart Dis = {"TVDisForm",
                          "Dis",
                          "VR 22.10 Entfernungskontrolle",
                          "Tavorena Entfernungskontrolle [Stapel]",
                          "Berechnung Entfernungskontrolle",
                          4130};

}  // namespace

TVDisForm::TVDisForm()
    : Anschlussblatt(Dis),
      Strecke(Messfeld("Strecke", "Strecke", {2, 6}, Gemessen)),
      L(Anschlussergebnis("L", "L:", 0)),
      D(Anschlussergebnis("D", "D:", 2)),
      Ws(Anschlussergebnis("Ws", "WS:", 4)) {
  Strecke.Hilfe = "Gemessene Strecke; Return schreibt die Kontrolle";
  KnöpfeAnlegen();
}

void TVDisForm::AnschlussRechnen() {
  if (!AnschlussGesetzt()) return;
  const bool MitMessung = Entfernungskontrolle(Anf.Ort, End.Ort, Gemessen, Werte) == 0;
  L.Text = Längentext(Werte.EntfGerechnet);
  D.Text = MitMessung ? Längentext(Werte.AbweichungZulaessig) : "";
  Ws.Text = MitMessung ? Längentext(Werte.Abweichung) : "";
  Ws.Fehlerhaft = MitMessung && std::fabs(Werte.Abweichung) > std::fabs(Werte.AbweichungZulaessig);
}

bool TVDisForm::TasteUnten(Steuerelement& S, Taste T) {
  if (&S != &Strecke || T != Taste::Return) return Anschlussblatt::TasteUnten(S, T);
  if (AnschlussPrüfen()) AnschlussEinzel();
  return true;
}

int TVDisForm::AnschlussEinzel() {
  if (!AnschlussGesetzt()) return -1;
  AnschlussRechnen();
  KontrolleSchreiben();
  if (ImStapel()) {
    ++Stapellauf.Zeilen;
  } else {
    NächsteKontrolle();
  }
  return 0;
}

void TVDisForm::KontrolleSchreiben() {
  if (!ImStapel()) {
    if (Geschrieben) {
      StapelPunktzeile("NND ", Anf.Gesucht, {End.Gesucht, Gemessen});
    } else {
      StapelKopfLinie(ProtTitel, Anf.Gesucht, 0, End.Gesucht, Gemessen);
    }
  }
  Geschrieben = true;
  ProtKopfBeiWechsel(ProtTitel);
  Protokollieren([&] {
    ProtEntfernungskontrolle({Zeilenpunkt(Anf),
                              Zeilenpunkt(End),
                              {},
                              {},
                              Gemessen != 0 ? Wert(Gemessen) : Wert(),
                              Werte.EntfGerechnet,
                              Werte.Abweichung,
                              Werte.AbweichungZulaessig},
                             Gemessen != 0);
  });
}

void TVDisForm::NächsteKontrolle() {
  Anf.Pnr.Text = End.Pnr.Text;
  End.Pnr.Text = "";
  PunktLeeren(End);
  SetzeAnfpunkt();
  Gemessen = 0;
  Strecke.Text = Messwerttext(0);
  FokusSetzen(End.Pnr);
}

void TVDisForm::KopfwerteSetzen(double /*AnfWert*/, double EndWert) { MesswertSetzen(Strecke, EndWert); }

int TVDisForm::StapelZeile() {
  double Entfernung = 0;
  std::string AnfNr = Anf.Pnr.Text, EndNr = End.Pnr.Text;
  const int Ergebnis = StapelLeseZweiPnr("NND", AnfNr, EndNr, Entfernung);
  if (Ergebnis < 0) return Ergebnis;
  Anf.Pnr.Text = AnfNr;
  End.Pnr.Text = EndNr;
  // A point that the user does not supply drops its check, the replay goes on.
  if (SetzeAnfpunkt() < 0 || SetzeEndpunkt() < 0) return 0;
  MesswertSetzen(Strecke, Entfernung);
  AnschlussEinzel();
  return 0;
}

bool TVDisForm::HatOffenes() const { return AnschlussGesetzt() && ZahlAusText(*Strecke.Text) != 0; }

bool TVDisForm::OffenesSchreiben() { return AnschlussPrüfen() && AnschlussEinzel() == 0; }

void TVDisForm::BlockBeenden() {
  if (!ImStapel() && Geschrieben) StapelEnde(false);
  Geschrieben = false;
}

}  // namespace tavorena
