#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>

namespace tavorena {

Stapeldatei StapelDatei;

namespace {

constexpr int MeisteVersuche = 100;  // to write at a moment when nobody else does

std::string Zusammen(const std::vector<std::string>& Zeilen) {
  std::string Text;
  for (const std::string& Zeile : Zeilen) Text += Zeile + "\r\n";
  return Text;
}

// Nothing is written until another file is taken. The pieces keep their places, which the rows know.
void OhneStapel() {
  StapelDatei.Name.clear();
  StapelDatei.Offen.reset();
  StapelDatei.Fremde = StapelDatei.Stücke.size();
}

// Writes another text in the place of a piece. Only what was written here is ours; somebody may have edited
// the file meanwhile. @return 0; -1: it is left alone
int StückSetzen(int Griff, const std::string& Neu) {
  Stapeldatei& D = StapelDatei;
  if (Griff < 0 || Griff >= std::ssize(D.Stücke) || static_cast<std::size_t>(Griff) < D.Fremde) return -1;
  std::string& Stück = D.Stücke[static_cast<std::size_t>(Griff)];
  const Dateistand Eben = DateistandVon(D.Name);
  std::string Inhalt, Alles, Danach;
  if (Stück.empty() == Neu.empty() || DateiLesen(D.Name, Inhalt) < 0) return -1;
  for (std::size_t i = D.Fremde; i < D.Stücke.size(); ++i) {
    Alles += D.Stücke[i];
    Danach += static_cast<int>(i) == Griff ? Neu : D.Stücke[i];
  }
  // The file keeps the coding that it has.
  if (!IstUtf8(Inhalt)) {
    Alles = NachWindows1252(Alles);
    Danach = NachWindows1252(Danach);
  }
  if (Inhalt.size() != D.Ab + Alles.size() || !Inhalt.ends_with(Alles)) return -1;
  if (DateiErsetzen(D.Name, Inhalt.substr(0, D.Ab) + Danach, nullptr, &Eben) < 0) return -1;
  Stück = Neu;
  D.Stand = DateistandVon(D.Name);
  return 0;
}

std::string Endzeilen(const Verbindung& V) {
  return Zusammen({V.EndeMitZeilen ? "E Ende" : "E  (Ende)", "EM  (Ende Modul  " + V.Titel + ")",
                   "C ________________________"});
}

std::string Kopfzeilen(const Verbindung& V) {
  std::vector<std::string> Zeilen = {"M  " + V.Titel, "C  Tavorena             " + Zeitstempel(),
                                     "C  Datei: " + KoordinatendateiName};
  if (Optionen.AbfrageRiss) {
    Zeilen.push_back("RISS       " + V.Riß.Riss);
    Zeilen.push_back("BERNR      " + V.Riß.BerNr);
  }
  Zeilen.insert(Zeilen.end(), V.Sätze.begin(), V.Sätze.end());
  return Zusammen(Zeilen);
}

// The end of the file is not below the open head any more: the file was emptied or taken away, or another
// program wrote a block behind it.
bool KopfVerloren(const Dateistand& Jetzt) {
  const Dateistand& Alt = StapelDatei.Stand;
  std::string Inhalt;
  if (Jetzt == Alt) return false;
  if (Jetzt.Länge < Alt.Länge || DateiLesen(StapelDatei.Name, Inhalt) < 0 || Inhalt.size() < Alt.Länge)
    return true;
  return ("\n" + Inhalt.substr(Alt.Länge)).find("\nM ") != std::string::npos;
}

// What has to stand above a record of V with the file as it is; without V no block stands open there.
std::vector<std::string> Darüber(const std::shared_ptr<const Verbindung>& V, const Dateistand& Jetzt) {
  std::shared_ptr<const Verbindung>& Offen = StapelDatei.Offen;
  std::vector<std::string> Stücke;
  if (Offen && KopfVerloren(Jetzt)) Offen.reset();
  if (Offen && Offen != V) Stücke.push_back(Endzeilen(*Offen));
  if (V && Offen != V) Stücke.push_back(Kopfzeilen(*V));
  return Stücke;
}

// Appends a text below V, or below nothing, and what has to stand above it, in one go. Another program may
// write at the same moment: that is then thought over. Pieces from before somebody else changed the file can
// not be taken out any more.
int Schreiben(const std::shared_ptr<const Verbindung>& V, const std::string& Text, const char* Routine) {
  Stapeldatei& D = StapelDatei;
  int Ergebnis = -2;
  for (int Versuch = 0; Ergebnis != 0 && !D.Name.empty(); ++Versuch) {
    const Dateiblick Eben = DateiAnsehen(D.Name);
    std::vector<std::string> Neue = Darüber(V, Eben.Stand);
    if (!Text.empty()) Neue.push_back(Text);
    if (Neue.empty()) return 0;
    std::string Grund, Alles;
    for (const std::string& Stück : Neue) Alles += Stück;
    const bool Anders = D.Stücke.empty() || Eben.Stand != D.Stand;
    Ergebnis = Versuch < MeisteVersuche ? TextAnhängenSolange(D.Name, Alles, Eben, &Grund, &D.Stand)
                                        : TextAnhängen(D.Name, Alles, &Grund, &D.Stand);
    if (Ergebnis == 0) {
      if (Anders) D.Fremde = D.Stücke.size();
      if (Anders) D.Ab = Eben.Stand.Länge;
      D.Stücke.insert(D.Stücke.end(), Neue.begin(), Neue.end());
      D.Offen = V;
    } else if (Ergebnis == -1) {
      const int Antwort = SchreibfehlerFrage(D.Name, Grund, std::string("Stapelmodul.") + Routine);
      if (Antwort == KnopfOhne)
        OhneStapel();
      else if (Antwort != KnopfNochmals)
        return -1;
    }
  }
  return 0;
}

int StapelEnde() { return Schreiben(nullptr, "", "StapelEnde"); }

int LetztesStück() { return static_cast<int>(StapelDatei.Stücke.size()) - 1; }

}  // namespace

int Stapelblock::Beginnen(std::shared_ptr<const Verbindung> Neue) {
  const int Ergebnis = Beenden();
  Über = std::move(Neue);
  Kopf = -1;
  return Ergebnis;
}

int Stapelblock::Anfügen(const std::string& Satz, int& Griff) {
  const int Platz = std::exchange(Griff, -1);
  if (StapelDatei.Name.empty()) return 0;
  if (Platz >= 0 && StückSetzen(Platz, Satz + "\r\n") == 0) {
    Griff = Platz;
    return 0;
  }
  const std::string Zeile = Satz.empty() ? "" : Satz + "\r\n";
  const bool War = Offen();
  if (Schreiben(Über, Zeile, War ? "StapelPunktzeile" : "StapelKopf") < 0) return -1;
  if (!War && Offen()) Kopf = LetztesStück() - (Zeile.empty() ? 0 : 1);
  if (Satz.empty()) return 0;
  if (StapelDatei.Name.empty()) return 0;
  Griff = LetztesStück();
  return 0;
}

int Stapelblock::Ganz(int& Griff) {
  Griff = -1;
  if (Schreiben(nullptr, Kopfzeilen(*Über) + Endzeilen(*Über), "StapelKopf") < 0) return -1;
  if (!StapelDatei.Name.empty()) Griff = LetztesStück();
  return 0;
}

bool Stapelblock::AmEnde(int Griff) {
  int Letztes = LetztesStück();
  while (Letztes >= 0 && StapelDatei.Stücke[static_cast<std::size_t>(Letztes)].empty()) --Letztes;
  return Griff >= 0 && Griff == Letztes;
}

int Stapelblock::Entfernen(int Griff) { return StapelDatei.Name.empty() ? 0 : StückSetzen(Griff, ""); }

int Stapelblock::Verwerfen() {
  if (StapelDatei.Name.empty()) return 0;
  if (!Offen() || !AmEnde(Kopf) || StückSetzen(Kopf, "") < 0) return -1;
  StapelDatei.Offen.reset();
  return 0;
}

int Stapelblock::Beenden() { return Offen() ? StapelEnde() : 0; }

int StapelKommentar(const std::string& Text) {
  return Schreiben(nullptr, "C  " + Text + "\r\n", "StapelKommentar");
}

}  // namespace tavorena
