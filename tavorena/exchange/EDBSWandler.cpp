#include <array>
#include <unordered_set>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/EDBSWandler.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena {
namespace {

constexpr int ZeilenJeSeite = 50;

std::string Protokollname(const std::string& Aus) {
  const Dateiname Teile = DateinameZerlegen(Aus);
  return Teile.Ordner + Teile.Grundname + ".dru";
}

// Files that are written must not be read, or written twice.
bool NamenVerschieden(const EDBSAuftrag& A) {
  const std::string Protokoll = Protokollname(A.Aus);
  const std::array<std::pair<std::string, std::string>, 5> Paare = {
      {{A.Aus, A.Ein}, {A.Aus, A.Kataster}, {Protokoll, A.Ein}, {Protokoll, A.Kataster}, {Protokoll, A.Aus}}};
  for (const auto& [Ausgabe, Andere] : Paare) {
    if (Andere.empty() || !SelbeDatei(Ausgabe, Andere)) continue;
    Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ausgabe);
    return false;
  }
  return true;
}

// A KOR file knows words: no blank within a number.
std::string AlsWort(std::string_view Text) {
  std::string Wort(TrimmenSicht(Text));
  ZeichenErsetzen(Wort, ' ', '_');
  return Wort;
}

class Wandler {
 public:
  Wandler(const EDBSAuftrag& Auftrag, EDBSWandlung& Ziel) : A(Auftrag), W(Ziel) {
    V.Titel = "EDBS-> KOR- Datei";
  }

  int EdbsLesen() {
    std::string Bytes, Grund;
    if (DateiLesen(A.Ein, Bytes, &Grund) < 0) return LesefehlerMelden(A.Ein, Grund), -1;
    const Beschäftigung Lang;
    Lesebericht B;
    bool Gestoppt = false;
    const auto Nehmen = [&](const EDBSSatz& S) {
      PunktNehmen(S);
      Gestoppt = Pause.Fällig() && Angehalten();
      return !Gestoppt;
    };
    if (EDBSPunkteLesen(Bytes, Nehmen, B) < 0) return -1;
    if (Gestoppt) return -2;
    W.Verlust = Prüfer.Liste();
    W.Übergangen = B.Übergangen;
    W.ErsteÜbergangene = B.ErsteÜbergangene;
    if (B.Abgeschnitten) DateiendeMeldung(A.Ein);
    return 0;
  }

  // The points of the other file, as they stand.
  int KatasterLesen() {
    std::string Text, Grund;
    if (A.Kataster.empty()) return 0;
    if (TextdateiLesen(A.Kataster, Text, &Grund) < 0) return LesefehlerMelden(A.Kataster, Grund), -1;
    Zeilenleser Leser(Text);
    std::string_view Zeile;
    while (Leser.Nächste(Zeile)) {
      std::string_view Rest = Zeile;
      const std::string_view Pnr = Wortnehmen(Rest), Rechts = Wortnehmen(Rest), Hoch = Wortnehmen(Rest);
      if (!IstZahlwort(Rechts) || !IstZahlwort(Hoch) || Nummern.contains(std::string(Pnr))) continue;
      W.Kor.append(Zeile).append("\r\n");
      ++W.Kataster;
    }
    return 0;
  }

 private:
  void PunktNehmen(const EDBSSatz& S) {
    const bool Tabelle = A.Nummer == EDBSNummer::Tabelle;
    std::string Pnr(Tabelle ? S.Pnr : S.Kennung);
    if (A.Nummer == EDBSNummer::KmQuadrat) Pnr.insert(0, S.KmQuadrat);
    Pnr = AlsWort(Pnr);
    const std::string_view Symbol = TrimmenSicht(Tabelle ? S.Symbol : S.Art);
    KorZeileAnhängen(W.Kor, Pnr, S.Rechts, S.Hoch, S.Hoehe, Symbol, Optionen.OptNachkommaSpeichern);
    Prüfer.Punkt({Pnr, S.Rechts, S.Hoch, S.Hoehe, Symbol});
    W.Kor += "\r\n";
    ProtokollzeileAnhängen(S, Pnr);
    Nummern.insert(std::move(Pnr));
    ++W.Punkte;
  }

  void ProtokollzeileAnhängen(const EDBSSatz& S, const std::string& Pnr) {
    if (W.Punkte % ZeilenJeSeite == 0) {
      if (W.Punkte > 0) W.Protokoll += '\f';
      for (const std::string& Zeile : ProtKopfzeilen(V, A.Ein, 1 + W.Punkte / ZeilenJeSeite))
        W.Protokoll.append(Zeile).append("\r\n");
    }
    W.Protokoll.append(6, ' ').append(PnrFormat(Pnr)).append("  VA:");
    W.Protokoll.append(ZahlFeld(std::int32_t{S.Info.Vermarkungsart}, 3)).append(" LG:");
    W.Protokoll.append(S.Info.Lagegenauigkeit).append("  Gemark.: ").append(S.KmQuadrat);
    W.Protokoll.append(S.Kennung.starts_with('3') ? "  Sich.pkt.\r\n" : "\r\n");
  }

  bool Angehalten() const {
    StatusHilfeSetzen(Anzahltext(W.Punkte, "Punkt", "Punkte"));
    AblaufPort().EreignisseAbarbeiten();
    return std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop;
  }

  const EDBSAuftrag& A;
  EDBSWandlung& W;
  Verbindung V;
  Verlustprüfer Prüfer{*FormatFinden(Punktformat::Kor), Optionen.OptNachkommaSpeichern};
  std::unordered_set<std::string> Nummern;  // of the converted points
  Atempause Pause{0.5};
};

}  // namespace

int EDBSWandeln(const EDBSAuftrag& Auftrag, EDBSWandlung& W) {
  W = {};
  if (!NamenVerschieden(Auftrag)) return -1;
  Wandler Lauf(Auftrag, W);
  const int Ergebnis = Lauf.EdbsLesen();
  return Ergebnis < 0 ? Ergebnis : Lauf.KatasterLesen();
}

int EDBSWandlungSchreiben(const EDBSAuftrag& Auftrag, const EDBSWandlung& W) {
  if (!VerlustErlaubt(Auftrag.Aus, W.Verlust)) return -1;
  const std::string Protokoll = Protokollname(Auftrag.Aus);
  const auto Scheitern = [](const std::string& Datei, const std::string& Grund) {
    Hinweis("Fehler aufgetreten beim Anlegen von\n" + Datei + InKlammern(Grund));
    return -1;
  };
  std::string Grund;
  // It may be that of a job, and goes on on a new page.
  const Dateistand Vorher = DateistandVon(Protokoll);
  if (TextAnhängen(Protokoll, "", &Grund) < 0) return Scheitern(Protokoll, Grund);
  if (DateiErsetzen(Auftrag.Aus, W.Kor, &Grund) < 0) {
    if (Vorher == Dateistand{}) static_cast<void>(DateiLöschen(Protokoll));
    return Scheitern(Auftrag.Aus, Grund);
  }
  if (TextAnhängen(Protokoll, (Vorher.Länge > 0 ? "\f" : "") + W.Protokoll, &Grund) < 0)
    return Scheitern(Protokoll, Grund);
  return 0;
}

}  // namespace tavorena
