#include <algorithm>
#include <cstddef>

#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena {
namespace {

constexpr std::size_t Seitenlänge = 60;
constexpr int Seitenbreite = 72;

// A row against the place and height that its group is compared with.
Listenzeile Vergleich(int Zeile, double Rechts, double Hoch, double Hoehe) {
  const KorSatz S = KorPunkt(Zeile);
  Listenzeile L{Zeile, AchtStellen(Strecke(Rechts, Hoch, S.Rechts, S.Hoch)), {}};
  if (S.Hoehe != 0 && Hoehe != 0) L.dh = AchtStellen(S.Hoehe - Hoehe);
  return L;
}

std::string ZeileText(const Listenzeile& L, int n) {
  if (L.Zeile < 0) return "";
  const KorSatz S = KorPunkt(L.Zeile);
  const auto Lücke = [n](int Breite) { return Leerzeichen(Breite - n); };
  return Leerzeichen(6) + PnrFormat(S.Pnr) + " " + ZahlFormat(S.Rechts, 7, n) + Lücke(4) +
         ZahlFormat(S.Hoch, 7, n) + Lücke(4) + ZahlFormat(S.Hoehe != 0 ? Wert(S.Hoehe) : Wert(), 5, n) +
         Lücke(3) + ZahlFormat(L.fs, 2, n) + Lücke(4) + ZahlFormat(L.dh, 2, n) + Lücke(5) +
         FeldLinks(S.Symbol, 3) + " " + Abstandsmarke(L.fs.Zahl());
}

}  // namespace

const char* Abstandsmarke(double fs) {
  return fs > GrenzeMaximum ? "******W>D(max)" : fs > GrenzeWarnung ? "***W>D" : "";
}

std::string Abstandswort(double fs) {
  const std::string Marke = Abstandsmarke(fs);
  return Marke.substr(std::min(Marke.find_first_not_of('*'), Marke.size()));
}

std::vector<Listenzeile> DoppelteListe() {
  std::vector<Listenzeile> Liste;
  for (const std::vector<int>& Gruppe : Doppelgruppen()) {
    const KorSatz Erster = KorPunkt(Gruppe.front());
    for (const int z : Gruppe) {
      Liste.push_back(z == Gruppe.front() ? Listenzeile{z, {}, {}}
                                          : Vergleich(z, Erster.Rechts, Erster.Hoch, Erster.Hoehe));
    }
  }
  std::vector<int> Index;
  int Anzahl = 0;
  DoppeltePunkteSuchen(Index, Anzahl);
  for (Listenzeile& L : Liste) {
    L.Index = static_cast<int>(std::lower_bound(Index.begin(), Index.end(), L.Zeile) - Index.begin());
  }
  return Liste;
}

std::vector<Listenzeile> AlleListe() {
  std::vector<Listenzeile> Liste(static_cast<std::size_t>(KorAnzahl));
  for (int z = 0; z < KorAnzahl; ++z) Liste[static_cast<std::size_t>(z)].Zeile = z;
  for (const Listenzeile& L : DoppelteListe()) Liste[static_cast<std::size_t>(L.Zeile)] = L;
  return Liste;
}

std::vector<Listenzeile> QuasiListe(double Radius, bool MitEinzelpunkten) {
  std::vector<Listenzeile> Liste;
  for (const Punktgruppe& G : QuasiidentischePunkte(Radius, MitEinzelpunkten)) {
    for (const int z : G.Zeilen) Liste.push_back(Vergleich(z, G.Rechts, G.Hoch, G.Hoehe));
    Liste.emplace_back();
  }
  return Liste;
}

Listentext PunktlisteText(const std::vector<Listenzeile>& Liste, int Nachkomma) {
  Listentext T{{"      Punktnr.     Rechts        Hoch      Hoehe   ds     dH   Sy Bem."}, {}};
  for (const Listenzeile& L : Liste) T.Zeilen.push_back(ZeileText(L, Nachkomma));
  return T;
}

Listentext KoordinatenlisteText(int Nachkomma) {
  Listentext T{{"      Punktnr.     Rechts          Hoch      Hoehe   Bemerkung",
                "                      (m)           (m)       (m)"},
               {}};
  std::string Text;
  if (KorText(Dateiformat::Kor, Nachkomma, Text) < 0) return T;
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) T.Zeilen.emplace_back(Zeile);
  return T;
}

std::string Koordinatenseiten(int Nachkomma) {
  constexpr std::size_t JeSeite = 50;
  Verbindung V;
  V.Titel = "Aktuelle Koordinaten";
  V.Riß = LetzterPlan;
  const Listentext Liste = KoordinatenlisteText(Nachkomma);
  std::string Text;
  const auto Zeile = [&Text](const std::string& Inhalt) { Text += Inhalt + "\r\n"; };
  int Seite = 0;
  for (std::size_t i = 0; i < Liste.Zeilen.size(); ++i) {
    if (i % JeSeite == 0) {
      if (i > 0) Text += '\f';
      for (const std::string& Z : ProtKopfzeilen(V, KoordinatendateiName, ++Seite)) Zeile(Z);
      for (const std::string& Z : Liste.Kopf) Zeile(Z);
    }
    Zeile(Liste.Zeilen[i]);
  }
  return Text;
}

Listentext BelegungText(const std::vector<Nummernlauf>& Läufe) {
  Listentext T;
  for (const Nummernlauf& L : Läufe) {
    const auto Nummer = [](std::int64_t Zahl) { return PnrFormat(std::to_string(Zahl)); };
    T.Zeilen.push_back(Leerzeichen(6) + Nummer(L.Von) + " - " + Nummer(L.Bis) + "  " +
                       (L.Belegt ? "belegt" : "frei") + ZahlFeld(static_cast<double>(L.Bis - L.Von + 1), 8));
  }
  return T;
}

std::string QuasiZusatz(double Radius, int Nachkomma) {
  return "      Quasiidentische Punkte; ds >=" + ZahlFormat(Radius, 2, Nachkomma);
}

std::string Listenseiten(const Seitenkopf& Kopf, const Listentext& Liste) {
  std::vector<std::string> Oben = {"      Tavorena" + RechtsBündig(Zeitstempel(), Seitenbreite - 14),
                                   Kopf.Titel};
  if (!Kopf.Zusatz.empty()) Oben.push_back(Kopf.Zusatz);
  Oben.insert(Oben.end(), {"      Koordinatendatei: " + Kopf.Koordinaten, ""});
  Oben.insert(Oben.end(), Liste.Kopf.begin(), Liste.Kopf.end());
  const std::size_t JeSeite = Seitenlänge - 1 - Oben.size();
  std::string Text;
  for (std::size_t Ab = 0, Seite = 1; Ab < std::max<std::size_t>(Liste.Zeilen.size(), 1);
       Ab += JeSeite, ++Seite) {
    const auto Zeile = [&Text](const std::string& Inhalt) { Text += Inhalt + "\r\n"; };
    for (const std::string& Z : Oben) Zeile(Z);
    for (std::size_t i = Ab; i < std::min(Ab + JeSeite, Liste.Zeilen.size()); ++i) Zeile(Liste.Zeilen[i]);
    const std::string Nummer = "- " + std::to_string(Seite) + " -";
    Zeile(Leerzeichen((Seitenbreite - static_cast<int>(Nummer.size())) / 2) + Nummer);
    Text += '\f';
  }
  return Text;
}

}  // namespace tavorena
