#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/Schnittfelder.h>

namespace tavorena {

Geradenfelder::Geradenfelder(Fallblatt& Blatt, const std::string& Name, const char* Rahmen)
    : Anf(Blatt.PunktAnlegen(Name + "Anf", "Anf.pkt.", Rahmen, 1)),
      End(Blatt.PunktAnlegen(Name + "End", "Endpkt.", Rahmen, 2)),
      Abstand(Blatt.MaßAnlegen(Name + "Pll", "Abstand", {2, 6}, Rahmen, false)),
      PllPunkt(Blatt.PunktAnlegen(Name + "Pll", "Parallele", Rahmen, 3, false)),
      SenkPunkt(Blatt.PunktAnlegen(Name + "Senk", "Senkrechte", Rahmen, 4, false)) {
  PunktfeldKopf(Blatt, Rahmen);
  Abstand.Eingabe.Zeichen = 9;
  PllPunkt.Pnr.Hilfe = "Die Parallele durch diesen Punkt; leer: keine";
  SenkPunkt.Pnr.Hilfe = "Die Senkrechte durch diesen Punkt; leer: keine";
  Abstand.Eingabe.Hilfe = "Abstand der Parallelen, rechts der Richtung positiv";
}

int Geradenfelder::Art() const {
  const bool MitAbstand = Abstand.Zahl() != 0, Parallel = PllPunkt.Gesetzt(), Senkrecht = SenkPunkt.Gesetzt();
  if (MitAbstand + Parallel + Senkrecht > 1) return -1;
  return MitAbstand ? 2 : Parallel ? 3 : Senkrecht ? 4 : 1;
}

Schnittgerade Geradenfelder::Gerade() const {
  return {Anf.Ort(), End.Ort(), Abstand.Zahl(), Art() == 4 ? SenkPunkt.Ort() : PllPunkt.Ort()};
}

Protgerade Geradenfelder::AlsProtgerade() const {
  const auto Wie = static_cast<Linienart>(Art() - 1);
  return {Anf.AlsProtpunkt(), End.AlsProtpunkt(), Wie, Abstand.Zahl(),
          (Wie == Linienart::Senkrechte ? SenkPunkt : PllPunkt).AlsProtpunkt()};
}

Geradeneingabe Geradenfelder::Eingabe() const {
  const auto Wie = static_cast<Linienart>(Art() - 1);
  return {Anf.Nummer(), End.Nummer(), Wie, Abstand.Zahl(),
          (Wie == Linienart::Senkrechte ? SenkPunkt : PllPunkt).Nummer()};
}

void Geradenfelder::Setzen(const Geradeneingabe& E) {
  Anf.Pnr.Text = E.AnfPnr;
  End.Pnr.Text = E.EndPnr;
  if (E.Art == Linienart::Abstand) Abstand.Setzen(E.Abstand);
  if (E.Art == Linienart::Parallele) PllPunkt.Pnr.Text = E.Pnr;
  if (E.Art == Linienart::Senkrechte) SenkPunkt.Pnr.Text = E.Pnr;
}

void Geradenfelder::Zeichnen(Markierung& Bild) const {
  if (!Anf.Gesetzt() || !End.Gesetzt()) return;
  const Schnittgerade S = Gerade();
  GebauteGerade G{S.A, S.B, 0, 0};
  int Ergebnis = 0;
  if (Art() == 2) Ergebnis = GeradeParallel(S.A, S.B, S.Parallelabstand, G);
  if (Art() == 3) Ergebnis = GeradeParallelPunkt(S.A, S.B, S.Punkt, G);
  if (Art() == 4) Ergebnis = GeradeSenkrecht(S.A, S.B, S.Punkt, G);
  if (Ergebnis == 0) Bild.Linie({G.A.RW, G.A.HW, G.B.RW, G.B.HW, FarbeRot});
}

// ---- circles ---------------------------------------------------------------------------------------

Kreisfelder::Kreisfelder(Fallblatt& Blatt, const std::string& Name, const char* Rahmen)
    : Mitte(Blatt.PunktAnlegen(Name + "Mitt", "Mittelpkt.", Rahmen, 1)),
      Bogen(Blatt.PunktAnlegen(Name + "Bogen", "Bogenpkt.", Rahmen, 2, false)),
      Radiusfeld(Blatt.MaßAnlegen(Name + "Radius", "Radius", {1, 6}, Rahmen, false)),
      Pll(Blatt.MaßAnlegen(Name + "Pll", "Abstand", {2, 6}, Rahmen, false)) {
  PunktfeldKopf(Blatt, Rahmen);
  Radiusfeld.Eingabe.Zeichen = Pll.Eingabe.Zeichen = 9;
  Bogen.Pnr.Hilfe = "Punkt auf dem Kreis, er gibt den Radius; leer: der Radius wird eingegeben";
  Radiusfeld.Eingabe.Hilfe = "Radius; gibt es einen Bogenpunkt, ist es sein Abstand vom Mittelpunkt";
  Pll.Eingabe.Hilfe = "Abstand des Parallelkreises, wird zum Radius addiert";
  Radiusfeld.Eingabe.BeiVerlassen = [this, Lesen = Radiusfeld.Eingabe.BeiVerlassen] {
    if (!Lesen()) return false;
    if (Bogen.Gesetzt() || !Radiusfeld.Gegeben() || Radiusfeld.Zahl() > 0) return true;
    StatusHilfeSetzen("Radius fehlt");
    return false;
  };
}

double Kreisfelder::Radius() const {
  const double r = Bogen.Gesetzt() ? tavorena::Abstand(Mitte.Ort(), Bogen.Ort()) : Radiusfeld.Zahl();
  return r > 0 ? r + Pll.Zahl() : 0;
}

void Kreisfelder::Nachführen() {
  const bool Vorher = std::exchange(AusPunkt, Mitte.Gesetzt() && Bogen.Gesetzt());
  if (AusPunkt) {
    Radiusfeld.Setzen(Abstand(Mitte.Ort(), Bogen.Ort()));
  } else if (Vorher) {
    Radiusfeld.Leeren();
  }
}

Protkreis Kreisfelder::AlsProtkreis() const {
  Protkreis K{Mitte.AlsProtpunkt(), Radius(), {}};
  if (Bogen.Gesetzt()) K.Bogen = Bogen.AlsProtpunkt();
  return K;
}

Kreiseingabe Kreisfelder::Eingabe() const {
  return {Mitte.Nummer(), Radiusfeld.Zahl(), Pll.Zahl(), Bogen.Nummer()};
}

void Kreisfelder::Setzen(const Kreiseingabe& E) {
  Mitte.Pnr.Text = E.MittPnr;
  Bogen.Pnr.Text = E.BogenPnr;
  if (E.Radius != 0) Radiusfeld.Setzen(E.Radius);
  if (E.Pll != 0) Pll.Setzen(E.Pll);
}

void Kreisfelder::Zeichnen(Markierung& Bild) const {
  if (Mitte.Gesetzt() && Radius() > 0)
    Bild.Bogen({Mitte.Ort().RW, Mitte.Ort().HW, Radius(), 0, 360, FarbeRot});
}

// ---- solutions -------------------------------------------------------------------------------------

std::string Schnittpaar::Zeigen(int Anzahl, Lage S1, Lage S2, double Grad) {
  Zwei.Öffnen(Anzahl == 2);
  Zwei.Entfällt();
  if (Anzahl == 0) {
    Eins.Zeigen("***kein Schnitt", "***kein Schnitt");
    TauZeigen(TauFeld, {}, KreisGerade);
    return "kein Schnitt";
  }
  Eins.Zeigen(S1);
  if (Anzahl == 2) Zwei.Zeigen(S2);
  if (Anzahl == 3) Zwei.Zeigen("*** als", " Berührpkt.");
  Tau = TauGefaltet(GradNachGon(Grad));
  TauZeigen(TauFeld, Tau, KreisGerade);
  return "";
}

void Schnittpaar::Setzen(const std::array<Neupunkteingabe, 2>& E) {
  Eins.Setzen(E[0]);
  Zwei.Setzen(E[1]);
}

double TauGefaltet(double Gon) {
  if (Gon >= 300) return 400 - Gon;
  if (Gon >= 200) return Gon - 200;
  return Gon >= 100 ? 200 - Gon : Gon;
}

void TauZeigen(Feld& F, std::optional<double> Tau, bool KreisGerade) {
  F.Text = Tau ? ZahlFormat(*Tau, -1, 4) : "";
  F.Fehlerhaft = Tau && SchnittlageVon(*Tau, KreisGerade, Optionen.OptWarnstufe) != Schnittlage::Gut;
  if (F.Fehlerhaft)
    StatusHilfeSetzen("Schleifender Schnitt: Tau bis " + std::string(KreisGerade ? "10" : "20") + " gon");
}

}  // namespace tavorena
