#include <tavorena/rawdata/Rohzeichen.h>
#include <tavorena/worksheets/FStatMessempfaenger.h>
#include <tavorena/worksheets/TVFStatForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

bool Brauchbar(const Messwert& W) { return W.Da && W.Gelesen; }

// A code of 0 or of dashes is none.
std::string Symbol(const Messtext& Code) {
  const bool Keiner = !Code.Da || Code.Text.find_first_not_of('-') == std::string::npos || Code.Text == "0";
  return Keiner ? "" : Code.Text;
}

// As the worksheets have it; one of zeros alone is none.
std::string Punktnummer(const Messtext& Nummer) {
  const std::string_view Rest = OhneFührendeNullen(Nummer.Text);
  return !Nummer.Da || Rest == "0" ? "" : std::string(Rest);
}

Messort Ort(const Gitter& G, Messort Zelle) {
  return G.Spalten[static_cast<std::size_t>(*G.Spalte)].IstPnr ? Messort::Nummernspalte : Zelle;
}

}  // namespace

Formular& FStatMessempfänger::Blatt() { return Form; }

Messort FStatMessempfänger::Fokus() const {
  const Steuerelement* const S = Form.Fokus();
  const Gitter &Anschluss = Form.Anschlüsse().Zellen, &Polar = Form.Kleinpunkte().Zellen;
  if (S == &Anschluss) return Ort(Anschluss, Messort::Anschlussgitter);
  if (Form.Schnurgerüst().HatFokus()) return Messort::Schnurgerüst;
  return S == &Polar ? Ort(Polar, Messort::Polargitter) : Messort::Außerhalb;
}

std::string FStatMessempfänger::Standpunkt() const { return Form.Standpunkt(); }

bool FStatMessempfänger::StandpunktVollständig() const {
  return !Form.Standpunkt().empty() && (!Form.MitHöhen() || Form.Instrumentenhöhe().Zahl() > 0);
}

void FStatMessempfänger::StandpunktNehmen(const std::string& Nummer, const Messwert& Instrumentenhöhe) {
  const Wert Höhe = Brauchbar(Instrumentenhöhe) ? Wert(VierStellen(Instrumentenhöhe.Wert)) : Wert();
  Form.Ereignis([&] { static_cast<void>(Form.StandpunktSetzen(Nummer, "", Höhe)); });
}

int FStatMessempfänger::MessungNehmen(const Messsatz& Satz) {
  if (!Brauchbar(Satz.Hz) || !Brauchbar(Satz.V) || !Brauchbar(Satz.Strecke) || Satz.Strecke.Wert <= 0)
    return -1;
  const double t = Brauchbar(Satz.Reflektorhöhe) ? Satz.Reflektorhöhe.Wert : Form.Reflektorhöhe();
  const Stationsmessung M{VierStellen(Satz.Hz.Wert), VierStellen(Satz.V.Wert), VierStellen(Satz.Strecke.Wert),
                          VierStellen(t)};
  const Messort Wohin = Fokus();
  int Ergebnis = -1;
  Form.Ereignis([&] {
    if (Wohin == Messort::Anschlussgitter) Ergebnis = Form.Anschlüsse().MessungNehmen(M);
    if (Wohin == Messort::Polargitter) Ergebnis = Form.Kleinpunkte().MessungNehmen(M, Symbol(Satz.Code));
    if (Wohin != Messort::Schnurgerüst) return;
    Form.ReflektorhöheSetzen(M.Zielhöhe);  // there is no cell for it there
    Form.Schnurgerüst().MessungNehmen(Punktnummer(Satz.Nummer), M, Symbol(Satz.Code));
    Ergebnis = 0;
  });
  return Ergebnis;
}

}  // namespace tavorena
