#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/records/TVProtokollmodul.h>

namespace tavorena {

std::string StapeldateiName;

namespace {

// The block that is being written.
struct OffenerBlock {
  std::string Datei;  // empty: no block is open
  std::string Titel;
  std::vector<std::string> Sätze;  // records behind the head, as lines
};
OffenerBlock Block;

int Schreiben(const std::string& Datei, const std::string& Text, const char* Routine) {
  if (TextAnhängen(Datei, Text) == 0) return 0;
  LaufzeitFehlerMeldung(Laufzeitfehler::EinAusgabe, std::string("Stapelmodul.") + Routine);
  return -1;
}

std::string Zusammen(const std::vector<std::string>& Zeilen) {
  std::string Text;
  for (const std::string& Zeile : Zeilen) Text += Zeile + "\r\n";
  return Text;
}

}  // namespace

std::string StapelZahl(const Wert& Zahl) { return ZahlFormat(Zahl, 7, 4); }

int StapelKopf(const std::string& Titel) {
  if (StapelEnde(true) < 0) return -1;
  if (StapeldateiName.empty()) return 0;
  std::vector<std::string> Zeilen = {"M  " + Titel, "C  Tavorena             " + Zeitstempel(),
                                     "C  Datei: " + KoordinatendateiName};
  if (Optionen.AbfrageRiss) {
    Zeilen.push_back("RISS       " + Riss);
    Zeilen.push_back("BERNR      " + BerNr);
  }
  if (Schreiben(StapeldateiName, Zusammen(Zeilen), "StapelKopf") < 0) return -1;
  Block = {StapeldateiName, Titel, {}};
  return 0;
}

int StapelKopfLinie(const std::string& Titel, const std::string& AnfPnr, double AnfWert,
                    const std::string& EndPnr, double EndWert) {
  if (StapelKopf(Titel) < 0) return -1;
  if (StapelPunktzeile("PAN ", AnfPnr, {AnfWert}) < 0 || StapelPunktzeile("PEN ", EndPnr, {EndWert}) < 0)
    return -1;
  Block.Sätze.clear();  // the connection belongs to the head
  return 0;
}

int StapelPunktzeile(const std::string& Schlüssel, const std::string& Pnr, const std::vector<Wert>& Werte) {
  std::string Zeile = Schlüssel + PnrFormat(Pnr);
  for (const Wert& Zahl : Werte) Zeile += "  " + (Zahl.IstText() ? PnrFormat(Zahl) : StapelZahl(Zahl));
  return StapelZeile(Zeile);
}

int StapelNeupunkt(const std::string& Pnr, const std::string& Symbol) {
  if (Pnr.empty()) return StapelZeile("NEUPUNKT          0  -   -");
  return StapelZeile("NEUPUNKT   " + PnrFormat(Pnr) + "  " + (Symbol.empty() ? "-" : Symbol));
}

int StapelZeile(const std::string& Text) {
  if (!StapelBlockOffen()) return 0;
  if (Schreiben(Block.Datei, Text + "\r\n", "StapelPunktzeile") < 0) return -1;
  Block.Sätze.push_back(Text);
  return 0;
}

int StapelSatzEntfernen(int Nummer) {
  if (!StapelBlockOffen() || Nummer < 0 || Nummer >= std::ssize(Block.Sätze)) return 0;
  std::string Inhalt;
  const std::string Alt = Zusammen(Block.Sätze);
  std::vector<std::string> Übrig = Block.Sätze;
  Übrig.erase(Übrig.begin() + Nummer);
  // Only the end of the file is ours; somebody may have edited the rest meanwhile.
  if (DateiLesen(Block.Datei, Inhalt) == 0) {
    const std::string Kodiert = IstUtf8(Inhalt) ? Alt : NachWindows1252(Alt);
    if (Inhalt.ends_with(Kodiert)) {
      Inhalt.resize(Inhalt.size() - Kodiert.size());
      Inhalt += IstUtf8(Inhalt) ? Zusammen(Übrig) : NachWindows1252(Zusammen(Übrig));
      if (DateiErsetzen(Block.Datei, Inhalt) == 0) {
        Block.Sätze = Übrig;
        return 0;
      }
    }
  }
  LaufzeitFehlerMeldung(Laufzeitfehler::EinAusgabe, "Stapelmodul.StapelSatzEntfernen");
  return -1;
}

int StapelEnde(bool MitZeilen) {
  if (!StapelBlockOffen()) return 0;
  const OffenerBlock Alt = std::exchange(Block, {});
  return Schreiben(Alt.Datei,
                   Zusammen({MitZeilen ? "E Ende" : "E  (Ende)", "EM  (Ende Modul  " + Alt.Titel + ")",
                             "C ________________________"}),
                   "StapelEnde");
}

bool StapelBlockOffen() { return !Block.Datei.empty(); }

void StapelschreiberLeeren() {
  StapeldateiName.clear();
  Block = {};
}

}  // namespace tavorena
