#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/worksheets/Eingabegitter.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

namespace {

std::vector<Gitterspalte> Gitterspalten(const std::vector<Zeilenspalte>& Spalten) {
  std::vector<Gitterspalte> Alle;
  for (const Zeilenspalte& S : Spalten)
    Alle.push_back({S.Titel, S.Zeichen, S.Art != Zellart::Ergebnis && S.Art != Zellart::Marke,
                    S.Art != Zellart::Marke, S.Art == Zellart::Nummer, Gezeigt<bool>(S.Sichtbar)});
  return Alle;
}

constexpr double KeinMaß = std::numeric_limits<double>::quiet_NaN();

std::size_t Stelle(int s) { return static_cast<std::size_t>(s); }
int Messstellen(int Dezimalen) { return Dezimalen < 0 ? Messdezimalen : Dezimalen; }

}  // namespace

Eingabegitter::Eingabegitter(Rechenblatt& Für, const std::vector<Zeilenspalte>& Spalten, Gitterverhalten Wie,
                             const Gitterort& Wo)
    : Zellen(Für.GitterAnlegen(Wo.Name.empty() ? Für.Mit("Gitter") : Wo.Name, Gitterspalten(Spalten), Wo.Ort,
                               Wo.Rahmen)),
      Blatt(Für),
      Verhalten(std::move(Wie)) {
  for (const Zeilenspalte& S : Spalten) {
    if (S.Art == Zellart::Maß && S.Sichtbar) LetzteRechenspalte = static_cast<int>(Arten.size());
    if (S.Art == Zellart::Marke) Zellen.Markenspalte = static_cast<int>(Arten.size());
    if (S.Art == Zellart::Wort) Wortform = S.Wortform;
    Arten.push_back(S.Art);
    Stellen.push_back(S.Dezimalen);
  }
  Zellen.IstPnr = true;
  Zellen.BeiTaste = [this](Taste T) { return TasteNehmen(T); };
}

// ---- the cells -------------------------------------------------------------------------------------

bool Eingabegitter::ZelleLesen(int z, int s) {
  std::string Text = Trimmen(Zellen.Inhalt(z, s));
  double Zahl = 0;
  if (Art(s) == Zellart::Maß && Text.empty() && LeerIstNull) Text = "0";
  const bool IstMaß = Art(s) == Zellart::Maß || Art(s) == Zellart::Vorgabe;
  if (IstMaß && !Text.empty()) {
    if (!MesswertPrüfen(Text, Zahl, Messstellen(Stellen[Stelle(s)]))) return false;
    Text = Maßtext(s, Zahl);
  }
  if (Art(s) == Zellart::Fest && !Text.empty()) Text = "*";
  if (Art(s) == Zellart::Wort && !Wortform(Text)) return false;
  const bool EinWort = Art(s) == Zellart::Nummer || Art(s) == Zellart::Symbol;
  if (EinWort && !WortPrüfen(Text)) return false;
  Zellen.InhaltSetzen(z, s, Text);
  return true;
}

Zeileneingabe Eingabegitter::Eingabe(int z) const {
  Zeileneingabe E;
  for (int s = 0; s < Spalten(); ++s) {
    if (!Getippt(s)) continue;
    const std::string Text = Zellen.Inhalt(z, s);
    if (Art(s) == Zellart::Nummer) E.Pnr = Text;
    if (Art(s) == Zellart::Symbol) E.Symbol = Text;
    if (Art(s) == Zellart::Wort) E.Wort = Text;
    if (Art(s) != Zellart::Maß && Art(s) != Zellart::Vorgabe) continue;
    E.Maße.push_back(Text.empty() || ZeigtErgebnis(z, s) ? KeinMaß : ZahlAusText(Text));
  }
  return E;
}

bool Eingabegitter::EingabeLesen(int z, Zeileneingabe& E) {
  for (int s = 0; s < Spalten(); ++s) {
    if (!Getippt(s) || ZelleLesen(z, s)) continue;
    Zellen.Spalte = s;
    return false;
  }
  E = Eingabe(z);
  return true;
}

void Eingabegitter::EingabeZeigen(int z, const Zeileneingabe& E) {
  auto Maß = E.Maße.begin();
  for (int s = 0; s < Spalten(); ++s) {
    if (Art(s) == Zellart::Nummer) Zellen.InhaltSetzen(z, s, E.Pnr);
    if (Art(s) == Zellart::Symbol) Zellen.InhaltSetzen(z, s, E.Symbol);
    if (Art(s) == Zellart::Wort) Zellen.InhaltSetzen(z, s, E.Wort);
    if (Art(s) != Zellart::Maß && Art(s) != Zellart::Vorgabe) continue;
    const double Zahl = Maß == E.Maße.end() ? KeinMaß : *Maß++;
    Zellen.InhaltSetzen(z, s, Maßtext(s, Zahl));
    if (Art(s) == Zellart::Vorgabe)
      Zellen.InhaltSetzen(z, SpalteVon(Zellart::Fest), std::isnan(Zahl) ? "" : "*");
  }
}

void Eingabegitter::ErgebnisseZeigen(int z, const std::vector<std::string>& Texte) {
  auto Text = Texte.begin();
  for (int s = 0; s < Spalten(); ++s) {
    if (Art(s) == Zellart::Ergebnis) Zellen.InhaltSetzen(z, s, Text == Texte.end() ? "" : *Text++);
  }
}

bool Eingabegitter::HatEingabe(int z) const {
  for (int s = 0; s < Spalten(); ++s) {
    const bool Zählt = Art(s) == Zellart::Nummer || Art(s) == Zellart::Maß || Art(s) == Zellart::Wort;
    if (Zählt && !TrimmenSicht(Zellen.Inhalt(z, s)).empty()) return true;
  }
  return false;
}

bool Eingabegitter::Vollständig(int z) const {
  for (int s = 0; s <= LetzteRechenspalte; ++s) {
    if (Getippt(s) && TrimmenSicht(Zellen.Inhalt(z, s)).empty()) return false;
  }
  return true;
}

void Eingabegitter::Anhängen() {
  Zellen.ZeileAnhängen();
  SymbolÜbernehmen(Zellen.Zeilen() - 1);
}

void Eingabegitter::SymbolÜbernehmen(int z) {
  for (int s = 0; z > 0 && s < Spalten() && !HatEingabe(z); ++s) {
    if (Art(s) == Zellart::Symbol) Zellen.InhaltSetzen(z, s, Zellen.Inhalt(z - 1, s));
  }
}

int Eingabegitter::SpalteVon(Zellart A) const {
  const auto i = std::find(Arten.begin(), Arten.end(), A);
  return i == Arten.end() ? -1 : static_cast<int>(i - Arten.begin());
}

bool Eingabegitter::ZeigtErgebnis(int z, int s) const {
  if (Art(s) != Zellart::Vorgabe) return Art(s) == Zellart::Ergebnis;
  return TrimmenSicht(Zellen.Inhalt(z, SpalteVon(Zellart::Fest))).empty();
}

std::string Eingabegitter::Maßtext(int s, double Zahl) const {
  if (std::isnan(Zahl)) return "";
  const int Dezimalen = Stellen[Stelle(s)];
  return Dezimalen < 0 ? Messwerttext(Zahl) : ZahlFormat(Zahl, -1, Dezimalen);
}

std::string Eingabegitter::Ergebnistext(int s, double Zahl) const {
  if (std::isnan(Zahl)) return "";
  const int Dezimalen = Stellen[Stelle(s)];
  return Dezimalen < 0 ? Längentext(Zahl) : ZahlFormat(Zahl, -1, Dezimalen);
}

int Eingabegitter::ErsteSpalte() const {
  int s = 0;
  while (!Getippt(s)) ++s;
  return s;
}

// ---- the keys --------------------------------------------------------------------------------------

// Return: on to the next typed cell, and behind the last one to the next row.
void Eingabegitter::GitterReturn() {
  const int z = Zellen.Zeile, Nächste = Zellen.Eingabespalte(1);
  if (!HatEingabe(z)) {
    if (z + 1 == Zellen.Zeilen()) Verhalten.Hinaus();
    return;
  }
  if (Nächste >= 0) {
    // What can not be computed is mended here, and not behind the symbol.
    if (Zellen.Spalte == LetzteRechenspalte && Verhalten.Rechnen && !Verhalten.Rechnen(z)) return;
    return Blatt.ZelleWechseln(Zellen, z, Nächste);
  }
  if (!Verhalten.Abschließen(z)) return;
  if (z + 1 == Zellen.Zeilen()) Verhalten.Anhängen();
  Zellen.Zeile = z + 1;
  Zellen.Spalte = ErsteSpalte();
}

bool Eingabegitter::TasteNehmen(Taste T) {
  switch (T) {
    case Taste::Return:
      GitterReturn();
      return true;
    case Taste::Escape:
      Verhalten.Zeigen(Zellen.Zeile);
      return true;
    case Taste::Auf:
    case Taste::Ab:
      Blatt.ZelleWechseln(Zellen, Zellen.Zeile + (T == Taste::Auf ? -1 : 1), Zellen.Spalte);
      return true;
    case Taste::Leer:
      Blatt.Markieren(Zellen, Zellen.Zeile, false);
      return true;
    default:
      break;
  }
  return false;
}

}  // namespace tavorena
