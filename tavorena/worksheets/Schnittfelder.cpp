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

double TauGefaltet(double Gon) {
  if (Gon >= 300) return 400 - Gon;
  if (Gon >= 200) return Gon - 200;
  return Gon >= 100 ? 200 - Gon : Gon;
}

std::string Tautext(double Gon) { return ZahlFormat(Gon, -1, 4); }

}  // namespace tavorena
