#include <algorithm>
#include <cmath>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Kastenseiten.h>
#include <tavorena/records/Pol.h>

namespace tavorena {
namespace {

const char* const Fortsetzung = " (Fortsetzung)";

using Zeilen = std::vector<std::string>;

Zeilen Seitenkopf(const Polnachweis& N, int Seite) {
  Zeilen Kopf =
      Kastenkopf(Seite, "F l ä c h e n n a c h w e i s",
                 {"Name:   " + N.Name + (Seite > N.Seite ? Fortsetzung : ""), "Bem.:   " + N.Bemerkung,
                  "Fläche: " + ZahlFormat(N.Flaeche, 9, N.NachkommaFlaeche) + " m²"});
  Kopf.emplace_back("        Punktnummer     Rechtswert       Hochwert        Grenzlänge");
  return Kopf;
}

int Nachkommastellen(std::string_view Wort) {
  const std::size_t Punkt = Wort.find_first_of(".,");
  return Punkt == std::string_view::npos
             ? 0
             : static_cast<int>(std::min<std::size_t>(Wort.size() - Punkt - 1, 5));
}

Zeilen Kantenzeilen(const Polkante& K, int NK) {
  const bool Bogen = K.Art != Kantenart::Linie,
             Innen = K.Art == Kantenart::Innen || K.Art == Kantenart::InnenLang;
  Zeilen Ziel = {Leerzeichen(8) + FeldRechts(K.Punkt.Pnr, 11) + Leerzeichen(5) +
                 ZahlFormat(K.Punkt.Rechts, 7, NK) + Leerzeichen(3) + ZahlFormat(K.Punkt.Hoch, 7, NK) +
                 Leerzeichen(6) + ZahlFormat(K.Laenge, 5, NK) + Leerzeichen(3) + (Bogen ? "BOGEN" : "LINIE")};
  if (Bogen) {
    const double Radius = std::fabs(K.Radius);
    Ziel.push_back(Leerzeichen(24) + "    mx=" + ZahlFormat(K.MitteHoch, 7, NK) + " my=" +
                   ZahlFormat(K.MitteRechts, 7, NK) + "    r=" + ZahlFormat(Innen ? -Radius : Radius, 5, NK) +
                   (IstLang(K.Art) ? "G" : "") + "    s=" + ZahlFormat(K.Sehne, 5, NK));
  }
  return Ziel;
}

// @return false: the line is no row
bool ZeileNehmen(std::string_view Zeile, Polkante& K, int& Nachkomma) {
  K = {};
  K.Punkt.Pnr = Wortnehmen(Zeile);
  const std::string_view Rechts = Wortnehmen(Zeile), Hoch = Wortnehmen(Zeile);
  if (!IstZahlwort(Rechts) || !IstZahlwort(Hoch)) return false;
  Nachkomma = Nachkommastellen(Rechts);
  K.Punkt.Rechts = ZahlAusText(Rechts);
  K.Punkt.Hoch = ZahlAusText(Hoch);
  K.Laenge = ZahlAusText(Wortnehmen(Zeile));
  // Upper case alone: the rows of a protocol end in "Linie".
  const std::string_view Art = Wortnehmen(Zeile);
  K.Art = Art == "BOGEN" ? Kantenart::Außen : Kantenart::Linie;
  return Art == "BOGEN" || Art == "LINIE";
}

// What stands behind a mark such as " r=".
std::string_view Wortbehinter(std::string_view Zeile, std::string_view Marke) {
  const std::size_t Ab = Zeile.find(Marke);
  if (Ab == std::string_view::npos) return {};
  Zeile.remove_prefix(Ab + Marke.size());
  return Wortnehmen(Zeile);
}

// The line behind an arc: its centre, "r=" with the radius and "G" for the long arc, the chord.
void BogenNehmen(std::string_view Zeile, Polkante& K) {
  if (K.Art == Kantenart::Linie || K.Radius != 0) return;
  const std::string_view Wort = Wortbehinter(Zeile, " r=");
  const double Radius = ZahlAusText(Wort);
  if (Radius == 0) return;
  const bool Lang = Wort.ends_with('G') || Wort.ends_with('g');
  K.Radius = std::fabs(Radius);
  K.Art = KantenartVon(Radius, Lang);
  K.MitteHoch = ZahlAusText(Wortbehinter(Zeile, " mx="));
  K.MitteRechts = ZahlAusText(Wortbehinter(Zeile, " my="));
  K.Sehne = ZahlAusText(Wortbehinter(Zeile, " s="));
}

// A row whose numbers are stars.
bool IstUnlesbareZeile(std::string_view Zeile) {
  const std::string_view Ende = TrimmenSicht(Zeile);
  return Ende.ends_with("LINIE") || Ende.ends_with("BOGEN");
}

// What stands in a line of the box behind its word.
bool KopfNehmen(std::string_view Zeile, std::string_view Wort, std::string& Text) {
  const std::size_t Ab = Zeile.find(Wort);
  if (Ab > std::string_view("      │ ").size()) return false;  // or not at all
  Text = Trimmen(Zeile.substr(Ab + Wort.size()));
  return true;
}

}  // namespace

std::string PolSeiten(const Polnachweis& N) {
  std::vector<Zeilen> Kanten;  // an arc is not torn
  for (const Polkante& K : N.Kanten) Kanten.push_back(Kantenzeilen(K, N.NachkommaKoordinaten));
  return Kastenseiten(
      N.Seite, [&](int Seite) { return Seitenkopf(N, Seite); }, Kanten);
}

std::string PolText(const Polnachweis& N) { return NachCodepage850(PolSeiten(N)); }

std::vector<Polnachweis> PolLesen(std::string_view Bytes, int* Unlesbar) {
  if (Unlesbar != nullptr) *Unlesbar = 0;
  const std::string Inhalt = IstUtf8(Bytes) ? std::string(Bytes) : AusCodepage850(Bytes);
  std::vector<Polnachweis> Alle(1);
  Zeilenleser Leser(Inhalt);
  Polkante K;
  std::string Text;
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    Polnachweis& N = Alle.back();
    int Nachkomma = 0;
    if (ZeileNehmen(Zeile, K, Nachkomma)) {
      if (N.Kanten.empty()) N.NachkommaKoordinaten = Nachkomma;
      N.Kanten.push_back(K);
    } else if (KopfNehmen(Zeile, "Name:", Text)) {
      if (Text != Trimmen(N.Name + Fortsetzung)) Alle.emplace_back().Name = Text;
    } else if (KopfNehmen(Zeile, "Bem.:", Text)) {
      N.Bemerkung = Text;
    } else if (KopfNehmen(Zeile, "Fläche:", Text)) {
      std::string_view Rest = Text;
      const std::string_view Wort = Wortnehmen(Rest);
      N.Flaeche = ZahlAusText(Wort);
      N.NachkommaFlaeche = Nachkommastellen(Wort);
    } else if (Unlesbar != nullptr && IstUnlesbareZeile(Zeile)) {
      ++*Unlesbar;
    } else if (!N.Kanten.empty()) {
      BogenNehmen(Zeile, N.Kanten.back());
    }
  }
  std::erase_if(Alle, [](const Polnachweis& N) { return N.Kanten.empty(); });
  return Alle;
}

int PolSchreiben(const std::string& Datei, const Polnachweis& N, bool Anhängen) {
  const std::string Seiten = PolText(N);
  std::string Inhalt, Grund;
  bool Gut = !Anhängen || DateiLesen(Datei, Inhalt, &Grund) == 0;
  if (!Inhalt.empty() && !Inhalt.ends_with('\f')) Inhalt += '\f';
  Gut = Gut && DateiErsetzen(Datei, Inhalt + Seiten, &Grund) == 0;
  if (Gut) return static_cast<int>(std::count(Seiten.begin(), Seiten.end(), '\f'));
  SpeicherfehlerMelden(Datei, Grund, "Flächennachweis");
  return -1;
}

int PolDateiLesen(const std::string& Datei, std::vector<Polnachweis>& Alle, int* Unlesbar) {
  std::string Bytes, Grund;
  if (DateiLesen(Datei, Bytes, &Grund) < 0) {
    LesefehlerMelden(Datei, Grund);
    return -1;
  }
  Alle = PolLesen(Bytes, Unlesbar);
  if (!Alle.empty()) return 0;
  Hinweis("Kein Flächennachweis in der Datei:\n" + Datei);
  return -1;
}

}  // namespace tavorena
