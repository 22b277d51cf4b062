#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena {
namespace {

constexpr std::size_t GrößteGruppe = 8;

Blockpunkt ImBlock(const Punktsatz& P, const std::string& Marke = "") {
  return {{P.Rechts, P.Hoch, P.Pnr}, Marke};
}

std::vector<Blockpunkt> ImBlock(const std::vector<Punktsatz>& Punkte, const std::string& Marke = "") {
  std::vector<Blockpunkt> Block;
  for (const Punktsatz& P : Punkte) Block.push_back(ImBlock(P, Marke));
  return Block;
}

std::vector<Punktsatz> Sätze(const std::vector<int>& Zeilen) {
  std::vector<Punktsatz> Punkte;
  std::transform(Zeilen.begin(), Zeilen.end(), std::back_inserter(Punkte), PunktsatzVon);
  return Punkte;
}

int AlleEintragen(const std::vector<Punkteintrag>& Einträge) {
  return std::all_of(Einträge.begin(), Einträge.end(), [](const auto& E) { return Eintragen(E) == 0; }) ? 0
                                                                                                        : -1;
}

// A deed that is named after its rows; taken back it tells of them under a title.
Punkttat Zeilentat(const char* Wort, const std::vector<int>& Zeilen, const char* Titel) {
  Punkttat Tat{std::string(Wort) + " " +
                   (Zeilen.size() == 1 ? Zitat(KorPnr(Zeilen[0]))
                                       : Anzahltext(static_cast<int>(Zeilen.size()), "Punkt", "Punkte")),
               {}};
  std::vector<Blockpunkt>& Punkte = Tat.BeiRücknahme.emplace_back(Punkteintrag{Titel, {}}).Punkte;
  Punkte.reserve(Zeilen.size());
  for (const int z : Zeilen) {
    const KorSatz S = KorPunkt(z);
    Punkte.push_back({{S.Rechts, S.Hoch, std::string(S.Pnr)}, {}});
  }
  return Tat;
}

// The same points with another remark, and with another number if there is one; for the protocol alone.
template <typename Änderung>
int Umgeschrieben(const char* Titel, const std::vector<Blockpunkt>& Punkte, Änderung Ändere) {
  if (Prot.Datei.empty()) return 0;
  Punkteintrag E{Titel, Punkte};
  for (Blockpunkt& P : E.Punkte) Ändere(P);
  return Eintragen(E);
}

// ---- new numbers -----------------------------------------------------------------------------------

// The first of the new numbers that a point outside the rows has; "" if none.
std::string Vergeben(const std::vector<int>& Zeilen, const std::vector<std::string>& Neue) {
  std::unordered_set<std::string_view> Andere;
  auto Nächste = Zeilen.begin();
  for (int z = 0; z < KorAnzahl; ++z) {
    if (Nächste != Zeilen.end() && *Nächste == z) {
      ++Nächste;
    } else {
      Andere.insert(TrimmenSicht(KorPnr(z)));
    }
  }
  if (Andere.empty()) return "";
  for (const std::string& Pnr : Neue) {
    std::string MitPunkt = Pnr;
    ZeichenErsetzen(MitPunkt, ',', '.');
    if (Andere.contains(Pnr) || Andere.contains(MitPunkt)) return Pnr;
  }
  return "";
}

// @param[in] Neue  a number for each row
int NummernSetzen(Rücknahme& R, const std::vector<int>& Zeilen, const std::vector<std::string>& Neue) {
  Punkttat Tat = Zeilentat("Numeriere", Zeilen, TitelBerichtigung);
  std::vector<Blockpunkt>& Alte = Tat.BeiRücknahme.front().Punkte;
  for (std::size_t i = 0; i < Alte.size(); ++i) Alte[i].Alt = Neue[i];
  return R.Ausführen(Tat, [&] {
    for (std::size_t i = 0; i < Zeilen.size(); ++i) {
      KorSatz Satz = KorPunkt(Zeilen[i]);
      Satz.Pnr = Neue[i];
      if (KorZeileSetzen(Zeilen[i], Satz) < 0) return -1;
    }
    KorSortieren();
    return Umgeschrieben(TitelBerichtigung, Alte, [](Blockpunkt& P) { std::swap(P.Punkt.Pnr, P.Alt); });
  });
}

// The same if no other row has one of the numbers.
int Umnumerieren(Rücknahme& R, const std::vector<int>& Zeilen, const std::vector<std::string>& Neue) {
  if (const std::string Pnr = Vergeben(Zeilen, Neue); !Pnr.empty()) {
    PunktVorhandenMeldung(Pnr);
    return -1;
  }
  return NummernSetzen(R, Zeilen, Neue);
}

// ---- means -----------------------------------------------------------------------------------------

// The points of a mean, and the mean with its mark.
Punkteintrag Mitteleintrag(const std::vector<Punktsatz>& Alte, const Punktsatz& Mittel, const char* Marke) {
  Punkteintrag E{TitelMittel, {}};
  for (const Punktsatz& P : Alte) {
    const std::string Zeichen =
        Abstandsmarke(AchtStellen(Strecke(Mittel.Rechts, Mittel.Hoch, P.Rechts, P.Hoch)));
    E.Punkte.push_back(ImBlock(P, Zeichen.empty() ? "" : " " + Zeichen));
    if (!Zeichen.empty()) ++E.Marken;
  }
  E.Punkte.push_back(ImBlock(Mittel, Marke));
  return E;
}

// The rows of the old points; a missing point is asked for. @return 0; -1 with a message
int AlteSuchen(const std::vector<std::string>& Nummern, std::vector<int>& Zeilen) {
  if (Nummern.size() < 2 || Nummern.size() > GrößteGruppe) {
    FehlerMeldung("Zum Mitteln gehören 2 bis 8 Punkte.");
    return -1;
  }
  std::vector<Wert> Gefunden;
  for (const std::string& Pnr : Nummern) {
    Gefunden.emplace_back(Pnr);
    if (KorFind(Gefunden.back()) < 0) return -1;
  }
  // A point that was asked for has moved the others.
  for (const Wert& Pnr : Gefunden) {
    const int z = KorSuche(Pnr);
    if (std::find(Zeilen.begin(), Zeilen.end(), z) != Zeilen.end()) {
      FehlerMeldung("Punkt " + Zitat(Pnr.Text()) + " steht zweimal unter den Punkten.");
      return -1;
    }
    Zeilen.push_back(z);
  }
  return 0;
}

// Deletes the rows that hold just these points.
void SätzeLöschen(const std::vector<Punktsatz>& Punkte) {
  std::vector<int> Zeilen;
  for (const Punktsatz& P : Punkte) {
    for (int z = 0; z < KorAnzahl; ++z) {
      if (KorPnr(z) != P.Pnr || PunktsatzVon(z) != P) continue;
      Zeilen.push_back(z);
      break;
    }
  }
  std::sort(Zeilen.begin(), Zeilen.end());
  ZeilenLöschen(Zeilen);
}

// The first row takes the mean, so that a full table has room for it.
int MittelInErsteZeile(std::vector<int> Zeilen, const Punktsatz& Mittel) {
  if (KorZeileSetzen(Zeilen.front(), Mittel.Satz()) < 0) return -1;
  Zeilen.erase(Zeilen.begin());
  std::sort(Zeilen.begin(), Zeilen.end());
  ZeilenLöschen(Zeilen);
  KorSortieren();
  return 0;
}

// Stores the mean under a number that may be taken. @param[in,out] Mittel  as the table holds it
int MittelEinführen(Punktsatz& Mittel, const KorInfoSatz* Info) {
  Wert Pnr(Mittel.Pnr);
  NeupunktErgebnis E;
  const NeupunktCode Code = Neupunkt(Pnr, Mittel.Rechts, Mittel.Hoch,
                                     Mittel.Hoehe != 0 ? Wert(Mittel.Hoehe) : Wert(), Mittel.Symbol, Info, E);
  if (Code == NeupunktCode::Nichts || Code == NeupunktCode::NeuerVerworfen) return -2;
  Mittel.Pnr = E.Pnr;
  if (Code == NeupunktCode::Gemittelt) {
    Mittel.Rechts = E.Rechts;
    Mittel.Hoch = E.Hoch;
  }
  return 0;
}

// Makes one point of each group. @param[in] Größte  most rows that go into one mean
int Mitteln(Rücknahme& R, const std::vector<std::vector<int>>& Gruppen, std::size_t Größte) {
  Punkttat Tat{Gruppen.size() == 1 ? "Mittle " + Zitat(KorPnr(Gruppen[0].front())) : "Mittle doppelte Punkte",
               {}};
  return R.Ausführen(Tat, [&] {
    Punkteintrag Wieder{TitelEingabe, {}}, Fort{TitelLöschen, {}};
    std::vector<Punkteintrag> Einträge;
    std::vector<int> Überzählig;
    for (const std::vector<int>& Zeilen : Gruppen) {
      const std::vector<Punktsatz> Alle = Sätze(Zeilen);
      Punktsatz Mittel = Alle.front();
      for (std::size_t i = 1; i < Alle.size();) {
        std::vector<Punktsatz> Alte = {Mittel};
        while (i < Alle.size() && Alte.size() < Größte) Alte.push_back(Alle[i++]);
        Mittel = MittelVon(Alte);
        Einträge.push_back(Mitteleintrag(Alte, Mittel, " ***Mittel"));
      }
      if (KorZeileSetzen(Zeilen.front(), Mittel.Satz()) < 0) return -1;
      Überzählig.insert(Überzählig.end(), Zeilen.begin() + 1, Zeilen.end());
      for (const Punktsatz& P : Alle) Wieder.Punkte.push_back(ImBlock(P));
      Fort.Punkte.push_back(ImBlock(Mittel, " ***gelöscht"));
    }
    std::sort(Überzählig.begin(), Überzählig.end());
    ZeilenLöschen(Überzählig);
    KorSortieren();
    Tat.BeiRücknahme = {std::move(Wieder), std::move(Fort)};
    return AlleEintragen(Einträge);
  });
}

}  // namespace

bool NummerTaugt(const std::string& Pnr) {
  if (!Pnr.empty() && Pnr.find_first_of(" \t") == std::string::npos) return true;
  FehlerMeldung("Punktnummer \"" + Zitat(Pnr) + "\": leer oder mit Leerzeichen");
  return false;
}

int NummerZeilen(const std::string& Pnr, std::vector<int>& Zeilen) {
  Wert Gesucht(Pnr);
  const int Erste = KorSucheMitPunkt(Gesucht);
  for (int z = Erste; z >= 0 && z < KorAnzahl; ++z) {
    if (TrimmenSicht(KorPnr(z)) == TrimmenSicht(Gesucht.Text())) Zeilen.push_back(z);
  }
  if (Erste >= 0) return 0;
  FehlerMeldung("Punkt " + Zitat(Pnr) + " nicht vorhanden !");
  return -1;
}

int BereichZeilen(const std::string& Von, const std::string& Bis, std::vector<int>& Zeilen) {
  const std::string Bereich = "Punktbereich " + Zitat(Von) + " - " + Zitat(Bis) + ": ";
  const Wert Unten(Wert(Von).Zahl()), Oben(Wert(Bis).Zahl());
  if (Unten.Zahl() > Oben.Zahl()) {
    FehlerMeldung(Bereich + "die erste Nummer ist größer als die letzte");
    return -1;
  }
  for (int z = -1; (z = KorBereichSuche(Unten, Oben, z)) >= 0;) Zeilen.push_back(z);
  if (!Zeilen.empty()) return 0;
  FehlerMeldung(Bereich + "keine Punkte vorhanden");
  return -1;
}

bool NeueNummerFrei(const std::string& Pnr) {
  Wert Nummer(Pnr);
  if (!NummerTaugt(Pnr)) return false;
  if (KorSucheMitPunkt(Nummer) < 0) return true;
  PunktVorhandenMeldung(Pnr);
  return false;
}

int PunkteLöschen(Rücknahme& R, const std::vector<int>& Zeilen) {
  Punkttat Tat = Zeilentat("Lösche", Zeilen, TitelEingabe);
  return R.Ausführen(Tat, [&] {
    ZeilenLöschen(Zeilen);
    return Umgeschrieben(TitelLöschen, Tat.BeiRücknahme.front().Punkte,
                         [](Blockpunkt& P) { P.Marke = " ***gelöscht"; });
  });
}

int NummerBerichtigen(Rücknahme& R, const std::string& Alt, const std::string& Neu) {
  std::vector<int> Zeilen;
  if (NummerZeilen(Alt, Zeilen) < 0 || !NummerTaugt(Neu)) return -1;
  if (TrimmenSicht(KorPnr(Zeilen.front())) == Neu) {
    PunktVorhandenMeldung(Neu);
    return -1;
  }
  return Umnumerieren(R, Zeilen, std::vector<std::string>(Zeilen.size(), Neu));
}

int BereichBerichtigen(Rücknahme& R, const std::string& Von, const std::string& Bis,
                       const std::string& Start) {
  std::vector<int> Zeilen;
  return BereichZeilen(Von, Bis, Zeilen) < 0 ? -1 : ReiheBerichtigen(R, Zeilen, Start);
}

int ReiheBerichtigen(Rücknahme& R, const std::vector<int>& Zeilen, const std::string& Start) {
  std::int64_t Nächste = 0;
  if (!GanzePunktnummer(Start, Nächste)) {
    FehlerMeldung("Punktnummer \"" + Zitat(Start) + "\": keine ganze Zahl");
    return -1;
  }
  std::unordered_map<std::string_view, std::string> NeueNummer;
  std::vector<std::string> Neue;
  Neue.reserve(Zeilen.size());
  const bool Einzeln = !DoppelteVorhanden();
  for (const int z : Zeilen) {
    if (Einzeln) {
      Neue.push_back(std::to_string(Nächste++));
      continue;
    }
    std::string& Neu = NeueNummer[TrimmenSicht(KorPnr(z))];
    if (Neu.empty()) Neu = std::to_string(Nächste++);
    Neue.push_back(Neu);
  }
  return Umnumerieren(R, Zeilen, Neue);
}

Punktsatz MittelVon(const std::vector<Punktsatz>& Alte) {
  Punktsatz M = Alte.front();
  std::vector<double> R, H, Z;
  for (const Punktsatz& P : Alte) {
    R.push_back(P.Rechts);
    H.push_back(P.Hoch);
    Z.push_back(P.Hoehe);
    if (M.Symbol.empty()) M.Symbol = P.Symbol;
  }
  const auto n = static_cast<int>(Alte.size());
  static_cast<void>(Schwerpunkt(R, H, n, M.Rechts, M.Hoch));
  static_cast<void>(MittelOhneNull(Z, n, M.Hoehe));
  return M;
}

int DoppelteMitteln(Rücknahme& R, const std::vector<std::vector<int>>& Gruppen) {
  return Mitteln(R, Gruppen, GrößteGruppe);
}

int ZeilenMitteln(Rücknahme& R, const std::vector<int>& Zeilen) {
  return Mitteln(R, {Zeilen}, Zeilen.size());
}

int NummerGeben(Rücknahme& R, std::vector<int> Zeilen, const std::string& Neu) {
  if (!NummerTaugt(Neu)) return -1;
  std::sort(Zeilen.begin(), Zeilen.end());
  const bool Eigene = std::erase_if(Zeilen, [&](int z) { return TrimmenSicht(KorPnr(z)) == Neu; }) > 0;
  const std::vector<std::string> Neue(Zeilen.size(), Neu);
  if (Zeilen.empty()) return 0;
  return Eigene ? NummernSetzen(R, Zeilen, Neue) : Umnumerieren(R, Zeilen, Neue);
}

std::string Nummernliste(const std::vector<int>& Zeilen) {
  constexpr std::size_t Genannt = 20;
  std::string Liste;
  for (std::size_t i = 0; i < std::min(Zeilen.size(), Genannt); ++i)
    Liste += (i > 0 ? ", " : "") + Zitat(KorPnr(Zeilen[i]));
  return Zeilen.size() > Genannt ? Liste + ", ..." : Liste;
}

int PunkteMitteln(Rücknahme& R, const Mittelauftrag& M) {
  std::vector<int> Zeilen;
  if (AlteSuchen(M.Alte, Zeilen) < 0 || !NummerTaugt(M.Neu)) return -1;
  const bool Ersetzt = M.Art == Mittelart::Ersetzen;
  const std::vector<Punktsatz> Alte = Sätze(Zeilen);
  Punktsatz Mittel = MittelVon(Alte);
  Mittel.Pnr = M.Neu;
  Mittel.Hoehe = M.Hoehe;
  Mittel.Symbol = M.Symbol;
  Wert Neu(M.Neu);
  const int Besitzer = KorSucheMitPunkt(Neu);
  const bool Frei = Besitzer < 0 || std::find(Zeilen.begin(), Zeilen.end(), Besitzer) != Zeilen.end();
  Punkttat Tat{"Mittle " + Zitat(M.Neu), {}};
  return R.Ausführen(Tat, [&] {
    const int Ergebnis = Ersetzt && Frei ? MittelInErsteZeile(Zeilen, Mittel)
                                         : MittelEinführen(Mittel, Ersetzt ? &Alte.front().Info : nullptr);
    if (Ergebnis < 0) return Ergebnis;
    if (Ersetzt && !Frei) SätzeLöschen(Alte);
    if (Ersetzt) Tat.BeiRücknahme.push_back({TitelEingabe, ImBlock(Alte)});
    Tat.BeiRücknahme.push_back({TitelLöschen, {ImBlock(Mittel, " ***gelöscht")}});
    return Eintragen(Mitteleintrag(Alte, Mittel, Ersetzt ? " ***Mittel (L)" : " ***Mittel (S)"));
  });
}

int TabelleVerschieben(Rücknahme& R, const std::string& Name, const Versatz& d, bool Tauschen) {
  if (!std::isfinite(d.Rechts) || !std::isfinite(d.Hoch) || !std::isfinite(d.Hoehe)) {
    FehlerMeldung("Der Versatz ist nicht endlich.");
    return -1;
  }
  Punkttat Tat{Name, {}};
  return R.Ausführen(Tat, [&] {
    KorVerschieben(d.Rechts, d.Hoch, d.Hoehe, 0, 0, 0, Tauschen ? 1 : 0);
    return 0;
  });
}

}  // namespace tavorena
