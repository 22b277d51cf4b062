#include <algorithm>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/points/Punkteingabe.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/TVEDBSPunktForm.h>
#include <tavorena/points/TVKernKoordinatenEditor.h>

namespace tavorena {
namespace {

const char* Titelwort(Editormodus Wie) {
  return Wie == Editormodus::Eingabe      ? "Tavorena Koordinateneingabe"
         : Wie == Editormodus::Bearbeiten ? "Tavorena Koordinaten editieren"
                                          : "Tavorena Koordinaten";
}

}  // namespace

TVKernKoordinatenEditor::TVKernKoordinatenEditor(Editormodus Wie)
    : Punktform("TVKernKoordinatenEditor"),
      Modus(Wie),
      Spalten(Editorspalten(Koordinatendateiformat)),
      Zeilen(Wie != Editormodus::Eingabe) {
  Titel = Titelwort(Modus);
  Hilfenummer = Modus == Editormodus::Eingabe ? 4010 : 2010;
  if (Modus != Editormodus::Eingabe) {
    BeschriftungAnlegen("Punktnr. such&en:", {0, 0});
    Such = &FeldAnlegen("EditorSuchPnr", {0, 1}, "", PnrZeichen);
    Such->Rechtsbündig = Such->IstPnr = true;
    Such->Hilfe = "Punktnummer, Return geht zu ihrer Zeile, noch einmal zur nächsten mit dieser Nummer";
    Such->BeiReturn = [this] { GeheZu(Trimmen(*Such->Text)); };
  }
  std::vector<Gitterspalte> Köpfe;
  for (const Editorspalte& S : Spalten) Köpfe.push_back({S.Titel, S.Zeichen, true});
  Zellen = &GitterAnlegen("EditorGitter", std::move(Köpfe), {1, 0}, "Punkte");
  Zellen->IstPnr = true;
  Zellen->NurLesen = Modus == Editormodus::Ansicht;
  Zellen->NimmtZeilen = Modus == Editormodus::Eingabe;
  Zellen->Hilfe = Modus == Editormodus::Eingabe
                      ? "Return geht weiter und nimmt hinter \"Symbol\" den Punkt auf"
                      : "Return geht weiter; was geändert ist, gilt beim Verlassen der Zelle";
  Zellen->Quelle = [this](int z, int s) { return Zellentext(z, s); };
  Zellen->BeiTaste = [this](Taste T) { return TasteNehmen(T); };
  Zellen->BeiVerlassen = [this] { return ZelleVerlassen(); };
  Zellen->BeiZelle = [this] { Merken(); };
  Zellen->BeiAbgriff = [this](const std::string& Pnr) { Abgreifen(Pnr); };
  KnöpfeAnlegen();
  if (Modus == Editormodus::Eingabe) Neu = 0;
  ZeilenZeigen();
}

void TVKernKoordinatenEditor::KnöpfeAnlegen() {
  if (Modus != Editormodus::Ansicht) {
    RückgängigAnlegen("EditorRückgängig", {0, 0});
    Knopf& Ein = KnopfAnlegen("EditorEinfügen", "Zeile ei&nfügen", [this] { Einfügen(); }, {0, 1});
    Ein.Hilfe = "Leere Zeile für einen neuen Punkt";
    Ein.Sichtbar = Modus == Editormodus::Bearbeiten;
    Knopf& Fort = KnopfAnlegen("EditorLöschen", "Zeile &löschen", [this] { Löschen(); }, {0, 2});
    Fort.Hilfe = "Punkt der Zeile löschen; Rückgängig holt ihn wieder";
    Fort.OhnePrüfung = true;
  }
  if (Koordinatendateiformat != Dateiformat::Kor) {
    Knopf& K = KnopfAnlegen("EditorAttribute", "&Attribute", [this] { AttributeZeigen(); }, {0, 3});
    K.Hilfe = "Alle Angaben zum Punkt der Zeile (F2)";
  }
  KnopfAnlegen("EditorEnd", "&Schließen", [this] { SchließenVerlangen(); }, {0, 4}).OhnePrüfung = true;
}

void TVKernKoordinatenEditor::BeiÖffnen() {
  FokusSetzen(*Zellen);
  Merken();
  AnzeigePort().HauptfensterGeändert();  // it counts as a worksheet, also while it is modal
}

void TVKernKoordinatenEditor::BeiSchließen() {
  if (Modus != Editormodus::Ansicht) KorSortieren();
  AktenSichern();
}

// ---- the rows --------------------------------------------------------------------------------------

std::string TVKernKoordinatenEditor::Zellentext(int z, int s) const {
  if (z != Neu) return Spalten[static_cast<std::size_t>(s)].Text(Zeilen.Satz(Platz(z)));
  const double Vorgabe = s == EditorRechts ? Optionen.VorgabeRechts
                         : s == EditorHoch ? Optionen.VorgabeHoch
                                           : 0;
  return Vorgabe == 0 ? "" : ZahlFormat(Vorgabe, -1, Optionen.OptNachkommaSpeichern);
}

void TVKernKoordinatenEditor::ZeilenZeigen() {
  if (Modus == Editormodus::Eingabe) Neu = Zeilen.Anzahl();
  Zellen->ZeilenSetzen(Zeilen.Anzahl() + (Neu >= 0 ? 1 : 0));
  Stand = KorStand;
}

void TVKernKoordinatenEditor::ZelleSetzen(int z, int s) {
  Zellen->Zeile = std::clamp(z, 0, std::max(Zellen->Zeilen() - 1, 0));
  Zellen->Spalte = s;
  Merken();
}

// The point of the current row: the table may change behind the back of the editor.
void TVKernKoordinatenEditor::Merken() {
  const int z = Zellen->Zeile;
  if (z >= Zellen->Zeilen() || z == Neu) {
    Hier = {};
  } else {
    const KorSatz S = Zeilen.Satz(Platz(z));
    Hier = {std::string(S.Pnr), S.Rechts, S.Hoch, S.Hoehe, std::string(S.Symbol), *S.Info};
  }
}

void TVKernKoordinatenEditor::BeiTabelle() {
  if (Stand == KorStand) return;
  Zeilen.Auffrischen();
  NachTat();
}

// Follows the table. The cell that is typed into stays with its point; where that is another one now, it is
// told.
void TVKernKoordinatenEditor::NachTat() {
  const int z = Zellen->Zeile, s = Zellen->Spalte;
  if (z == Neu) {
    const int Jetzt = std::min(z, Zeilen.Anzahl());
    Zellen->ZeileUmziehen(z, Jetzt);
    Neu = Jetzt;
    return ZeilenZeigen();
  }
  const Punktsatz Vorher = Hier;
  const bool Getippt = Angefangen(Zellen->Entwurf());
  const std::string Wort = Getippt ? Zellen->Inhalt(z, s) : "";
  const int i = Zeilen.Suchen(Vorher, Platz(z));
  Zellen->EntwurfVerwerfen();
  ZeilenZeigen();
  ZelleSetzen(i >= 0 ? i : z, s);
  if (!Getippt) return;
  if (Hier == Vorher) return Zellen->InhaltSetzen(i, s, Wort);
  Zellen->Fehlerhaft = false;
  Hinweis("Punkt " + Zitat(Vorher.Pnr) + " wurde inzwischen geändert oder gelöscht. Verworfen: " +
          Spalten[static_cast<std::size_t>(s)].Titel + " \"" + Zitat(Wort) + "\"");
}

// ---- a cell is left --------------------------------------------------------------------------------

// @return false: the text can not be taken, it was told why
bool TVKernKoordinatenEditor::ZelleNehmen(int z, int s, Punktsatz& P) {
  const Editorspalte& S = Spalten[static_cast<std::size_t>(s)];
  const std::string Text = Trimmen(Zellen->Inhalt(z, s));
  const std::string Fehler = S.Nehmen(Text, P);
  if (Fehler.empty()) return true;
  Zellen->Zeile = z;
  Zellen->Spalte = s;
  FehlerMeldung(std::string(S.Titel) + (Text.empty() ? "" : " \"" + Zitat(Text) + "\"") + ": " + Fehler);
  return false;
}

bool TVKernKoordinatenEditor::FernNehmen(int z, const Punktsatz& P) {
  if (FernpunktFrage(P.Pnr, P.Rechts, P.Hoch)) return true;
  Zellen->Zeile = z;
  if (Zellen->Spalte != EditorHoch) Zellen->Spalte = EditorRechts;
  return false;
}

bool TVKernKoordinatenEditor::ZelleVerlassen() {
  const int z = Zellen->Zeile, s = Zellen->Spalte;
  const bool Fort = Zellen->Ziel >= 0 && Zellen->Ziel != z;
  if (z == Neu && Fort) return NeueVerlassen();
  if (Zellen->Entwurf() != z) return true;
  if (z != Neu) return Ändern(z);
  // What is missing in the new row is told when the whole row is left.
  Punktsatz P;
  if (Trimmen(Zellen->Inhalt(z, s)).empty()) return true;
  if (!ZelleNehmen(z, s, P)) return false;
  Wert Pnr(P.Pnr);
  if (s == EditorPnr && Modus == Editormodus::Bearbeiten && KorSucheMitPunkt(Pnr) >= 0) {
    PunktVorhandenMeldung(P.Pnr);
    return false;
  }
  Zellen->InhaltSetzen(z, s, Spalten[static_cast<std::size_t>(s)].Text(P.Satz()));
  return true;
}

bool TVKernKoordinatenEditor::Ändern(int z) {
  const int s = Zellen->Spalte;
  int i = Platz(z);
  if (Zellen->Inhalt(z, s) == Zellentext(z, s)) {
    Zellen->EntwurfVerwerfen();
    return true;
  }
  if (!DarfÄndern()) return false;
  const int t = Zeilen.Tabellenzeile(i);
  if (t < 0) return true;  // gone, and told between two events
  Punktsatz P = PunktsatzVon(t);
  const Punktsatz Alt = P;
  if (!ZelleNehmen(z, s, P)) return false;
  if ((P.Rechts != Alt.Rechts || P.Hoch != Alt.Hoch) && !FernNehmen(z, P)) return false;
  return Setzen(i, t, P);
}

// A shown point gets other values, row t of the table. @param[in,out] i  its place
bool TVKernKoordinatenEditor::Setzen(int& i, int t, const Punktsatz& P) {
  const int Vorher = t;
  if (PunktÄndern(R, t, P) < 0) return false;
  Zellen->EntwurfVerwerfen();
  Zeilen.Setzen(i, PunktsatzVon(t));
  if (Modus == Editormodus::Bearbeiten && t != Vorher) {
    Zellen->ZeileUmziehen(Vorher, t);
    StatusHilfeSetzen("Punkt " + Zitat(P.Pnr) + " steht jetzt in Zeile " + std::to_string(t + 1));
    i = t;
  }
  Merken();
  Getan(0);
  return true;
}

// Something was typed into the row that is not in the table.
bool TVKernKoordinatenEditor::Angefangen(int z) const {
  for (int s = 0; z >= 0 && s < std::ssize(Spalten); ++s) {
    if (Zellen->Inhalt(z, s) != Zellentext(z, s)) return true;
  }
  return false;
}

// ---- the new row -----------------------------------------------------------------------------------

// An untouched new row goes, one that is complete is taken, any other stays.
bool TVKernKoordinatenEditor::NeueVerlassen() {
  if (Angefangen(Neu)) return NeueSchreiben();
  Zellen->EntwurfVerwerfen();
  if (Modus == Editormodus::Eingabe) return true;
  if (Zellen->Ziel > Neu) --Zellen->Ziel;
  Neu = -1;
  ZeilenZeigen();
  return true;
}

bool TVKernKoordinatenEditor::NeueSchreiben() {
  const int z = Neu;
  if (!DarfÄndern()) return false;
  Punktsatz P;
  for (int s = 0; s < std::ssize(Spalten); ++s) {
    // Where two cells say the same, the one that was typed into counts.
    if (Zellen->Inhalt(z, s) != Zellentext(z, s) || s <= EditorHoch) {
      if (!ZelleNehmen(z, s, P)) return false;
    }
  }
  Wert Pnr(P.Pnr);
  if (Modus == Editormodus::Bearbeiten && KorSucheMitPunkt(Pnr) >= 0) {
    Zellen->Spalte = EditorPnr;
    PunktVorhandenMeldung(P.Pnr);
    return false;
  }
  if (!FernNehmen(z, P)) return false;
  const NeupunktCode Code = PunktEingeben(R, P);
  if (Code == NeupunktCode::Nichts) {
    Zellen->Spalte = EditorPnr;
    return false;
  }
  LetztePunktnummer = P.Pnr;
  Zellen->EntwurfVerwerfen();
  if (Code != NeupunktCode::NeuerVerworfen) NeueGeschrieben(P);
  if (Code != NeupunktCode::Neu && Code != NeupunktCode::NeuerNeunum) Zeilen.Auffrischen();
  Merken();
  Getan(0);
  return true;
}

void TVKernKoordinatenEditor::NeueGeschrieben(const Punktsatz& P) {
  const int z = std::exchange(Neu, -1);
  Zeilen.Hinzu(P);
  if (Modus == Editormodus::Bearbeiten) Zellen->ZeileUmziehen(z, KorSuche(std::string_view(P.Pnr)));
}

// ---- what the user does ----------------------------------------------------------------------------

bool TVKernKoordinatenEditor::TasteNehmen(Taste T) {
  const int z = Zellen->Zeile, s = Zellen->Spalte;
  switch (T) {
    case Taste::Return:
      ReturnDrücken();
      return true;
    case Taste::Escape:
      if (Zellen->Entwurf() != z || Zellen->Inhalt(z, s) == Zellentext(z, s)) return false;
      Zellen->Fehlerhaft = false;
      Zellen->InhaltSetzen(z, s, Zellentext(z, s));
      return true;
    case Taste::Auf:
    case Taste::Ab:
      ZelleWechseln(*Zellen, z + (T == Taste::Auf ? -1 : 1), s);
      return true;
    default:
      return false;
  }
}

// From cell to cell; behind "Symbol", and behind the last attribute, the row is done.
void TVKernKoordinatenEditor::ReturnDrücken() {
  const int z = Zellen->Zeile, s = Zellen->Spalte;
  if (z >= Zellen->Zeilen()) return;
  if (s != EditorSymbol && s + 1 < std::ssize(Spalten)) return ZelleWechseln(*Zellen, z, s + 1);
  if (!Lesen(*Zellen)) return;
  const bool Neue = z == Neu;
  Zellen->Fehlerhaft = Neue && !NeueSchreiben();
  if (Zellen->Fehlerhaft) return;
  if (!Neue) return ZelleSetzen(Zellen->Zeile + 1, Zellen->Zeile + 1 < Zellen->Zeilen() ? EditorPnr : s);
  ZelleSetzen(Modus == Editormodus::Eingabe ? Neu : *Zellen->Zeile, EditorPnr);
}

void TVKernKoordinatenEditor::Einfügen() {
  FokusSetzen(*Zellen);
  if (!DarfÄndern() || (Neu >= 0 && !NeueVerlassen())) return;
  Neu = std::min(*Zellen->Zeile, Zeilen.Anzahl());
  ZeilenZeigen();
  ZelleSetzen(Neu, EditorPnr);
}

void TVKernKoordinatenEditor::Löschen() {
  const int z = Zellen->Zeile;
  FokusSetzen(*Zellen);
  if (z >= Zellen->Zeilen() || !DarfÄndern()) return;
  Zellen->Fehlerhaft = false;
  Zellen->EntwurfVerwerfen();
  if (z == Neu) {
    if (Modus == Editormodus::Bearbeiten) Neu = -1;
    return NachTat();
  }
  const int t = Zeilen.Tabellenzeile(Platz(z));
  if (t < 0 || PunkteLöschen(R, {t}) < 0) return;
  Zeilen.Auffrischen();
  Getan(0);
}

// To the next row of that number, behind the last one the first.
void TVKernKoordinatenEditor::GeheZu(const std::string& Pnr) {
  Wert Gesucht(Pnr);
  if (KorSucheMitPunkt(Gesucht) < 0) return FehlerMeldung("Punkt " + Zitat(Pnr) + " nicht vorhanden !");
  int t = Zellen->Zeile == Neu ? Neu - 1 : Platz(Zellen->Zeile);
  do {
    t = t + 1 < KorAnzahl ? t + 1 : 0;
  } while (TrimmenSicht(KorPnr(t)) != TrimmenSicht(Gesucht.Text()));
  FokusSetzen(*Zellen);
  ZelleWechseln(*Zellen, t + (Neu >= 0 && t >= Neu ? 1 : 0), Zellen->Spalte);
}

bool TVKernKoordinatenEditor::TasteUnten(Steuerelement& /*S*/, Taste T) {
  if (T != Taste::F2) return false;
  if (Koordinatendateiformat != Dateiformat::Kor) AttributeZeigen();
  return true;
}

// All there is of the point in the current row, and its neighbours.
void TVKernKoordinatenEditor::AttributeZeigen() {
  FokusSetzen(*Zellen);
  if (!Lesen(*Zellen)) return;
  if (Zellen->Zeile >= Zellen->Zeilen() || Zellen->Zeile == Neu)
    return StatusHilfeSetzen("Diese Zeile ist noch kein Punkt");
  EDBSPunktzugriff Zugriff{Zeilen.Anzahl(), [this](int i) { return Zeilen.Satz(i); }, {}};
  if (Modus != Editormodus::Ansicht)
    Zugriff.Ändern = [this](int& i, const Punktsatz& P) { return AttributeÄndern(i, P); };
  int i = Platz(Zellen->Zeile);
  EDBSPunktZeigen(Zugriff, i);
  ZelleSetzen(i + (Neu >= 0 && i >= Neu ? 1 : 0), Zellen->Spalte);
}

bool TVKernKoordinatenEditor::AttributeÄndern(int& i, const Punktsatz& P) {
  const int t = Zeilen.Tabellenzeile(i);
  if (t < 0 || !DarfÄndern()) return false;
  const Punktsatz Alt = PunktsatzVon(t);
  if (P == Alt) return true;
  if ((P.Rechts != Alt.Rechts || P.Hoch != Alt.Hoch) && !FernpunktFrage(P.Pnr, P.Rechts, P.Hoch))
    return false;
  return Setzen(i, t, P);
}

// In the table a picked point is gone to; among new ones its number is taken.
void TVKernKoordinatenEditor::Abgreifen(const std::string& Pnr) {
  if (Modus != Editormodus::Eingabe) return GeheZu(Pnr);
  ZelleWechseln(*Zellen, Neu, EditorPnr);
  if (Zellen->Zeile != Neu || Zellen->Spalte != EditorPnr) return;
  Tippen(*Zellen, Pnr);
  ReturnDrücken();
}

// What came back is shown, unless something is being typed.
bool TVKernKoordinatenEditor::Zurücknehmen() {
  if (R.Leer()) return false;
  if (!DarfÄndern()) return true;
  const int Ab = R.Zeile();
  const bool Getippt = Angefangen(Zellen->Entwurf());
  if (R.Zurück() < 0) return true;
  Zeilen.Auffrischen();
  Getan(0);
  if (!Getippt) ZelleSetzen(Modus == Editormodus::Eingabe ? Neu : Ab, EditorPnr);
  return true;
}

bool TVKernKoordinatenEditor::OffenesKlären() {
  const int z = Zellen->Entwurf();
  if (!Angefangen(z)) return true;
  const int Antwort = FrageJaNeinAbbruch(z == Neu ? "Angefangene Zeile aufnehmen ?"
                                                  : "Änderung an Punkt " + Zitat(Hier.Pnr) + " aufnehmen ?");
  if (Antwort == KnopfNein) Zellen->EntwurfVerwerfen();
  if (Antwort == KnopfNein || (Antwort == KnopfJa && (z == Neu ? NeueSchreiben() : Ändern(z)))) return true;
  FokusSetzen(*Zellen);
  return false;
}

}  // namespace tavorena
