#include <algorithm>
#include <array>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/Passgitter.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

enum Spalten { SEin, SPnr, SRechts, SHoch, SNeu, SY, SX, SVY, SVX, SWL, SpaltenAnzahl };

constexpr std::array<const char*, SpaltenAnzahl> Titel = {"Ein", "Punktnr.", "Rechts", "Hoch", "Punktnr. neu",
                                                          "Y",   "X",        "VY",     "VX",   "WL"};

std::size_t Stelle(int i) { return static_cast<std::size_t>(i); }

double Zahlwert(const Passpaar& P, int Spalte) {
  switch (Spalte) {
    case SEin:
      return P.Ein ? 0 : 1;  // those that take part come first
    case SRechts:
      return P.Alt.RW;
    case SHoch:
      return P.Alt.HW;
    case SY:
      return P.Neu.RW;
    case SX:
      return P.Neu.HW;
    case SVY:
      return P.VY;
    case SVX:
      return P.VX;
    case SWL:
      return P.WL;
    default:
      return ZahlAusText(Spalte == SPnr ? P.Pnr : P.NeuPnr);
  }
}

// Numbers go by their value, equal ones by their text.
bool Davor(const Passpaar& A, const Passpaar& B, int Spalte) {
  const double a = Zahlwert(A, Spalte), b = Zahlwert(B, Spalte);
  if (a != b) return a < b;
  return (Spalte == SPnr && A.Pnr < B.Pnr) || (Spalte == SNeu && A.NeuPnr < B.NeuPnr);
}

}  // namespace

Passgitter::Passgitter(Rechenblatt& Für, const char* Rahmen, const NeuesSystem& Neues, const Passung& Fit,
                       std::function<void()> BeiWechsel, std::function<void()> Hinaus)
    : Sortiertext(Für.BeschriftungAnlegen("Sortieren nach", {0, 2}, Rahmen)),
      Sortierung(
          Für.ListeAnlegen(Für.Mit("Sortierung"), {Titel.begin(), Titel.end()}, Titel[SPnr], {0, 3}, Rahmen)),
      Löschknopf(Für.KnopfAnlegen(
          Für.Mit("Delete"), "Zeile lösc&hen", [this] { Delete(); }, {0, 4}, Rahmen)),
      Zellen(Für.GitterAnlegen(Für.Mit("Gitter"), {}, {1, 0}, Rahmen)),
      Blatt(Für),
      System(Neues),
      Anpassung(Fit),
      Wechsel(std::move(BeiWechsel)),
      Ende(std::move(Hinaus)) {
  for (int s = 0; s < SpaltenAnzahl; ++s) {
    const bool Nummer = s == SPnr || s == SNeu;
    const int Zeichen = s == SEin ? 3 : s == SPnr ? 8 : s == SNeu ? 10 : s < SVY ? Längenbreite(6) : 6;
    Zellen.Spalten.push_back({Titel[Stelle(s)], Zeichen, Nummer, s != SEin, Nummer});
  }
  Zellen.IstPnr = true;
  Zellen.NimmtZeilen = false;
  Zellen.Markenspalte = SEin;
  Zellen.Spalte = SPnr;
  Zellen.Hilfe =
      "Leertaste oder Klick: Paßpunkt ein, aus; Return: nächste Zelle; Klick auf eine Überschrift sortiert";
  Zellen.Quelle = [this](int z, int s) { return Zelle(z, s); };
  Zellen.Auffällig = [this](int z, int s) {
    if (z >= Anzahl() || (s != SVY && s != SVX)) return false;
    const Passpaar& P = Paare[Stelle(z)];
    return Anpassung.ÜberGrenze(P, s == SVY ? P.VY : P.VX);
  };
  Zellen.Markierbar = [this](int z) { return z < Anzahl(); };
  Zellen.BeiMarke = [this] { Markiert(); };
  Zellen.BeiTitel = [this](int s) { Sortieren(s); };
  Zellen.BeiTaste = [this](Taste T) { return TasteNehmen(T); };
  Zellen.BeiVerlassen = [this] { return ZeileLesen(); };
  Sortierung.BeiWahl = [this] {
    const auto i = std::find(Titel.begin(), Titel.end(), *Sortierung.Text);
    if (i != Titel.end()) Sortieren(static_cast<int>(i - Titel.begin()));
  };
  Sortierung.Hilfe = "Noch einmal dieselbe Spalte: umgekehrt";
  Zeigen();
}

void Passgitter::Setzen(std::vector<Passpaar> Neue) {
  Paare = std::move(Neue);
  Sortiert = -1;
  Zellen.EntwurfVerwerfen();
  Zellen.Fehlerhaft = false;
  Zellen.Zeile = 0;
  Zellen.Spalte = SPnr;
  Wechsel();
}

void Passgitter::Sperren() {
  Gesperrt = true;
  Zellen.EntwurfVerwerfen();
  Zellen.NurLesen = true;
  Löschknopf.Aktiv = false;
  Sortiertext.Sichtbar = Sortierung.Sichtbar = false;
}

void Passgitter::Öffnen() {
  Gesperrt = false;
  Zellen.NurLesen = false;
  Löschknopf.Aktiv = true;
  Sortiertext.Sichtbar = Sortierung.Sichtbar = true;
}

void Passgitter::Nachsehen() {
  const Nummernverzeichnis V = Tabellenverzeichnis();
  bool Anders = false;
  const auto Weg = std::erase_if(Paare, [&](Passpaar& P) {
    Passpaar Jetzt;
    if (!PaarBilden(V.Suche(P.Pnr), P.Pnr, P.NeuPnr, System, Jetzt).empty()) return true;
    Anders = Anders || Jetzt.Alt.RW != P.Alt.RW || Jetzt.Alt.HW != P.Alt.HW;
    P.Alt = Jetzt.Alt;
    return false;
  });
  if (Weg > 0)
    StatusHilfeSetzen(Anzahltext(static_cast<int>(Weg), "Paßpunkt ist", "Paßpunkte sind") +
                      " nicht mehr in der Tabelle");
  if (Weg > 0 || Anders) Wechsel();
}

// ---- what is shown ---------------------------------------------------------------------------------

std::string Passgitter::Zelle(int z, int s) const {
  if (z >= Anzahl()) return "";
  const Passpaar& P = Paare[Stelle(z)];
  if (s == SEin) return "";
  if (s == SPnr || s == SNeu) return s == SPnr ? P.Pnr : P.NeuPnr;
  if (s < SVY) return Längentext(Zahlwert(P, s));
  return Anpassung.Passt() ? ZahlFormat(Zahlwert(P, s), -1, 3) : "";
}

void Passgitter::Zeigen() {
  Zellen.ZeilenSetzen(Anzahl() + 1);
  for (int z = 0; z <= Anzahl(); ++z) Zellen.MarkeSetzen(z, z < Anzahl() && Paare[Stelle(z)].Ein);
}

// A click on the heading that is the order turns it round; the greatest discrepancies come first.
void Passgitter::Sortieren(int Spalte) {
  if (Gesperrt) return;
  Abwärts = Spalte == Sortiert ? !Abwärts : Spalte == SWL;
  Sortiert = Spalte;
  Sortierung.Text = Titel[Stelle(Spalte)];
  Zellen.EntwurfVerwerfen();
  std::stable_sort(Paare.begin(), Paare.end(), [&](const Passpaar& A, const Passpaar& B) {
    return Abwärts ? Davor(B, A, Spalte) : Davor(A, B, Spalte);
  });
  Zellen.Zeile = 0;
  Wechsel();
}

void Passgitter::Markiert() {
  bool Anders = false;
  for (int z = 0; z < Anzahl() && !Gesperrt; ++z) {
    const bool Ein = Zellen.Markiert(z);
    Anders = Anders || Ein != Paare[Stelle(z)].Ein;
    Paare[Stelle(z)].Ein = Ein;
  }
  if (Gesperrt) Zeigen();
  if (Anders) Wechsel();
}

void Passgitter::Delete() {
  const int z = Zellen.Zeile;
  Blatt.FokusSetzen(Zellen);
  Zellen.EntwurfVerwerfen();
  Zellen.Fehlerhaft = false;
  if (z >= Anzahl()) return;
  Paare.erase(Paare.begin() + z);
  Wechsel();
}

// ---- what is typed ---------------------------------------------------------------------------------

bool Passgitter::TasteNehmen(Taste T) {
  switch (T) {
    case Taste::Return:
      GitterReturn();
      return true;
    case Taste::Escape:
      Zellen.EntwurfVerwerfen();
      Zellen.Fehlerhaft = false;
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

void Passgitter::GitterReturn() {
  const int z = Zellen.Zeile;
  if (z == Anzahl() && Zellen.Entwurf() < 0) return Ende();
  if (!Formular::Lesen(Zellen)) return;
  if (Zellen.Spalte == SPnr) {
    Zellen.Spalte = SNeu;
  } else {
    Zellen.Spalte = SPnr;
    Zellen.Zeile = z + 1;
  }
}

// A row that is typed becomes a pair as soon as both numbers are known; until then it is a draft.
bool Passgitter::ZeileLesen() {
  const int z = Zellen.Entwurf();
  if (z < 0) return true;
  const std::string Pnr = Trimmen(Zellen.Inhalt(z, SPnr)), NeuPnr = Trimmen(Zellen.Inhalt(z, SNeu));
  if (z == Anzahl() && Pnr.empty() && NeuPnr.empty()) {
    Zellen.EntwurfVerwerfen();
    return true;
  }
  const std::string Grund = ZeileNehmen(z, Pnr, NeuPnr);
  if (!Grund.empty()) StatusHilfeSetzen(Grund);
  return Grund.empty();
}

// @return "", or why it is refused
std::string Passgitter::ZeileNehmen(int z, std::string Pnr, const std::string& NeuPnr) {
  if (z >= static_cast<int>(PassGrenze)) return "höchstens " + std::to_string(PassGrenze) + " Paßpunkte";
  if (Pnr.empty()) return "Punktnummer fehlt";
  Wert Nummer(Pnr);
  const int Zeile = KorFind(Nummer);
  Pnr = Trimmen(Nummer);
  Zellen.InhaltSetzen(z, SPnr, Pnr);
  // The first number alone: what it is called in the new system may follow.
  const bool Offen = NeuPnr.empty() && Zellen.Spalte == SPnr && (Zellen.Ziel < 0 || Zellen.Ziel == z);
  if (Zeile >= 0 && Offen && System.Suche(Pnr) < 0) return "";
  Passpaar P;
  if (std::string Grund = PaarBilden(Zeile, Pnr, NeuPnr, System, P); !Grund.empty()) return Grund;
  for (int i = 0; i < Anzahl(); ++i) {
    if (i != z && Paare[Stelle(i)].Pnr == P.Pnr)
      return "Punkt " + P.Pnr + " steht schon in Zeile " + std::to_string(i + 1);
    if (i != z && Paare[Stelle(i)].NeuPnr == P.NeuPnr)
      return "Punkt " + P.NeuPnr + " des neuen Systems steht schon in Zeile " + std::to_string(i + 1);
  }
  LetztePunktnummer = P.Pnr;
  Zellen.EntwurfVerwerfen();
  if (z < Anzahl()) {
    P.Ein = Paare[Stelle(z)].Ein;
    Paare[Stelle(z)] = P;
  } else {
    Paare.push_back(P);
  }
  Wechsel();
  return "";
}

}  // namespace tavorena
