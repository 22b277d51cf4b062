#include <algorithm>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/Sortierung.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

bool KürzerAls(std::string_view Zeile, std::size_t Zeichen) {
  return Zeile.size() < Zeichen || (Zeile.size() < 4 * Zeichen && ZeichenAnzahl(Zeile) < Zeichen);
}

// A field of a fixed-column line, columns counted from 1.
std::string_view Spalten(std::string_view Zeile, std::size_t Von, std::size_t Bis) {
  return TextTeil(Zeile, Von - 1, Bis - Von + 1);
}

// The line readers fill what the format has. The views lie in the line.

bool KorZerlegen(std::string_view Zeile, KorSatz& S) {
  if (KürzerAls(Zeile, 6)) return false;
  S.Pnr = Wortnehmen(Zeile);
  S.Rechts = ZahlAusText(Wortnehmen(Zeile));
  S.Hoch = ZahlAusText(Wortnehmen(Zeile));
  S.Hoehe = ZahlAusText(Wortnehmen(Zeile));
  S.Symbol = Wortnehmen(Zeile);
  return true;
}

bool Lt4Zerlegen(std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
  if (Zeile.starts_with('#') || KürzerAls(Zeile, 64)) return false;
  S.Pnr = Spalten(Zeile, 9, 18);
  S.Rechts = ZahlAusText(Spalten(Zeile, 24, 34));
  S.Hoch = ZahlAusText(Spalten(Zeile, 36, 46));
  S.Symbol = "2";
  Info = {};
  Info.Lagestatus = Spalten(Zeile, 1, 3);
  Info.Vermarkungsart = KurzAusText(Spalten(Zeile, 20, 22));
  Info.Punktstatus = KurzAusText(Spalten(Zeile, 62, 62));
  Info.Lagegenauigkeit = Spalten(Zeile, 64, 64);
  S.Info = &Info;
  return true;
}

// What a point is made of; empty where the line makes none.
struct Punktworte {
  std::string_view Pnr, Rechts, Hoch;
};

Punktworte PunktworteVon(std::string_view Zeile, Punktformat Format) {
  if (Format == Punktformat::Lt4) {
    if (Zeile.starts_with('#') || KürzerAls(Zeile, 64)) return {};
    return {TrimmenSicht(Spalten(Zeile, 9, 18)), TrimmenSicht(Spalten(Zeile, 24, 34)),
            TrimmenSicht(Spalten(Zeile, 36, 46))};
  }
  if (KürzerAls(Zeile, 6)) return {};
  return {Wortnehmen(Zeile), Wortnehmen(Zeile), Wortnehmen(Zeile)};
}

Dateibefund Befunden(std::string_view Inhalt, Punktformat Format) {
  Dateibefund B;
  B.MitNull = Inhalt.find('\0') != std::string_view::npos;
  if (Format != Punktformat::Kor && Format != Punktformat::Lt4) return B;  // mostly something else besides
  Zeilenleser Leser(Inhalt);
  std::string_view Zeile;
  for (int Nummer = 1; Leser.Nächste(Zeile); ++Nummer) {
    const auto Ende = static_cast<std::size_t>(Zeile.data() - Inhalt.data()) + Zeile.size();
    // A code 0 may also stand at the end of a line.
    const bool Null =
        B.MitNull && Inhalt.substr(0, Ende + 1).find('\0', Ende - Zeile.size()) != std::string_view::npos;
    if (!Null && TrimmenSicht(Zeile).empty()) continue;
    if (!Null && Format == Punktformat::Lt4 && Zeile.starts_with('#')) {
      if (B.Bemerkungen++ == 0) B.ErsteBemerkung = Nummer;
      continue;
    }
    const Punktworte P = PunktworteVon(Zeile, Format);
    if (!P.Pnr.empty()) ++B.Punkte;
    if (!Null && !P.Pnr.empty() && IstZahlwort(P.Rechts) && IstZahlwort(P.Hoch)) {
      ++B.Lesbar;
    } else if (B.Andere++ == 0) {
      B.ErsteAndere = Nummer;
    }
  }
  return B;
}

int ZeilenZählen(std::string_view Text) {
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  int Anzahl = 0;
  while (Leser.Nächste(Zeile)) ++Anzahl;
  return Anzahl;
}

// One run of KorLesen over a file.
class Lesung {
 public:
  Lesung(const Punktquelle& Quelle, Lesemodus Modus, const Formatzugang& Format,
         const std::function<bool(std::string_view)>& Nimmt, Lesebericht& B)
      : Datei(Quelle), LeseModus(Modus), Zugang(Format), Test(Nimmt), Bericht(B) {}

  enum class Ende { Gut, Gestoppt, Voll, Unlesbar };

  Ende Laufen() {
    if (Zugang.Lesen != nullptr) {
      if (Zugang.Lesen(
              Datei, [this](const KorSatz& S) { return Nehmen(S); }, Bericht) < 0)
        return Ende::Unlesbar;
      if (Bericht.Gestoppt) Schluß = Ende::Gestoppt;
    } else {
      ZeilenLesen();
    }
    return Schluß;
  }

 private:
  void ZeilenLesen() {
    Zeilenleser Leser(Datei.Inhalt);
    std::string_view Zeile;
    KorInfoSatz Info;
    for (int Nummer = 1; Leser.Nächste(Zeile); ++Nummer) {
      KorSatz Satz;
      if (!Zugang.ZeileLesen(Zeile, Satz, Info)) {
        Satz = {};
        if (!TrimmenSicht(Zeile).empty() && Bericht.Übergangen++ == 0) Bericht.ErsteÜbergangene = Nummer;
        if (KorAnzahl < KorGrenze) continue;
      }
      if (!Nehmen(Satz)) return;
    }
  }

  bool Nehmen(const KorSatz& Satz) {
    if (KorAnzahl >= KorGrenze) {  // the others are counted: they are lost where the file is replaced
      Schluß = Ende::Voll;
      Bericht.Überzählig += Verworfen(Satz.Pnr) ? 0 : 1;
      return true;
    }
    if (Verworfen(Satz.Pnr) || KorAnhängen(Satz) < 0) return true;
    ++Bericht.Gelesen;
    if (KorAnzahl % 100 == 0 && Angehalten()) return Schluß = Ende::Gestoppt, false;
    return true;
  }

  [[nodiscard]] bool Verworfen(std::string_view Pnr) const {
    return TrimmenSicht(Pnr).empty() || (Test && !Test(Pnr)) ||
           (LeseModus == Lesemodus::NurNeue && KorSuche(Pnr) >= 0);
  }

  bool Angehalten() {
    if (!Pause.Fällig()) return false;
    // The lines are counted when there is somebody to show them to.
    if (LeseModus == Lesemodus::Ersetzen && Zusatz.empty() && !Datei.Inhalt.empty()) {
      Zusatz = " von " + std::to_string(ZeilenZählen(Datei.Inhalt)) + " Punkten   ";
    }
    KorAnzahlAnzeigen(Zusatz);
    AblaufPort().EreignisseAbarbeiten();
    return std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop;
  }

  const Punktquelle& Datei;
  Lesemodus LeseModus;
  const Formatzugang& Zugang;
  const std::function<bool(std::string_view)>& Test;
  Lesebericht& Bericht;
  Ende Schluß = Ende::Gut;
  std::string Zusatz;
  Atempause Pause{0.5};
};

// The key of an LT4 line: the fixed area key of the format and the point number as it stands, its blanks too.
std::string Lt4Schlüssel(const std::string& Pnr) {
  const std::size_t L = ZeichenAnzahl(Pnr);
  if (L < 6) return "45590000" + ZahlFeldNull(Pnr, 6);
  if (L < 10) return "4559" + ZahlFeldNull(Pnr, 10);
  return "4559" + Pnr;
}

void ListenOrdnen(Punktlisten& L) {
  std::vector<Sortierwert> Werte(L.Pnr.size());
  std::transform(L.Pnr.begin(), L.Pnr.end(), Werte.begin(), SortierwertVon);
  std::vector<int> Folge;
  if (SortierfolgeErmitteln(L.Pnr, Werte, KommaZeilen(L.Pnr), Folge)) return;
  SpaltenOrdnen(Folge, L.Pnr, L.Rechts, L.Hoch, L.Hoehe, L.Symbol);
}

}  // namespace

int KorZeileLesen(std::string_view Zeile, std::string& Pnr, double& Rechts, double& Hoch, double& Hoehe,
                  std::string& Symbol) {
  KorSatz S;
  if (!KorZerlegen(Zeile, S)) return -1;
  Pnr = S.Pnr;
  Rechts = S.Rechts;
  Hoch = S.Hoch;
  Hoehe = S.Hoehe;
  Symbol = S.Symbol;
  return 0;
}

void KorZeileAnhängen(std::string& Ziel, const Wert& Pnr, double Rechts, double Hoch, double Hoehe,
                      std::string_view Symbol, int Nachkomma) {
  Ziel.append(6, ' ').append(PnrFormat(Pnr)).append(3, ' ');
  ZahlFormatAnhängen(Ziel, Rechts, 7, Nachkomma);
  Ziel.append(3, ' ');
  ZahlFormatAnhängen(Ziel, Hoch, 7, Nachkomma);
  Ziel += ' ';
  ZahlFormatAnhängen(Ziel, Hoehe, 7, Nachkomma);
  Ziel.append(2, ' ').append(Symbol);
}

void KorZeileSchreiben(const Wert& Pnr, double Rechts, double Hoch, double Hoehe, std::string_view Symbol,
                       std::string& Zeile) {
  Zeile.clear();
  KorZeileAnhängen(Zeile, Pnr, Rechts, Hoch, Hoehe, Symbol, Optionen.OptNachkommaSpeichern);
}

int Lt4ZeileLesen(std::string_view Zeile, std::string& Pnr, double& Rechts, double& Hoch, std::string& Symbol,
                  KorInfoSatz& Info) {
  KorSatz S;
  if (!Lt4Zerlegen(Zeile, S, Info)) return -1;
  Pnr = S.Pnr;
  Rechts = S.Rechts;
  Hoch = S.Hoch;
  Symbol = S.Symbol;
  return 0;
}

void Lt4ZeileSchreiben(const Wert& Pnr, double Rechts, double Hoch, const KorInfoSatz& Info,
                       std::string& Zeile) {
  Zeile = ZahlFeldNull(Info.Lagestatus, 3) + " " + Lt4Schlüssel(ZahlNachText(Pnr).Text()) + " ";
  Zeile += ZahlFeldNull(std::int32_t{Info.Vermarkungsart}, 3) + " " + ZahlFormat(Rechts, 7, 3) + " ";
  Zeile += ZahlFormat(Hoch, 7, 3) + " " + Leerzeichen(8) + Leerzeichen(6);
  Zeile += std::to_string(Info.Punktstatus) + " " + FeldLinks(Info.Lagegenauigkeit, 1);
}

namespace {

bool NurZiffern(std::string_view Text) {
  return std::all_of(Text.begin(), Text.end(), [](char z) { return z >= '0' && z <= '9'; });
}

Rückkehr KorVoraussage(const KorSatz& S, int /*Nachkomma*/) {
  return IstSchlicht(S) ? Rückkehr::Ganz : Rückkehr::Unklar;
}

Rückkehr Lt4Voraussage(const KorSatz& S, int /*Nachkomma*/) {
  const KorInfoSatz& I = *S.Info;
  const bool Gut = IstSchlicht(S) && S.Pnr.size() <= 10 && NurZiffern(S.Pnr) && S.Hoehe == 0 &&
                   (S.Symbol.empty() || S.Symbol == "2") && I.Lagestatus.size() <= 3 &&
                   NurZiffern(I.Lagestatus) && I.Vermarkungsart >= 0 && I.Vermarkungsart <= 999 &&
                   I.Punktstatus >= 0 && I.Punktstatus <= 9 && I.Lagegenauigkeit.size() <= 1 &&
                   NurZiffern(I.Lagegenauigkeit);
  if (!Gut) return Rückkehr::Unklar;
  return S.Pnr.size() == 10 ? Rückkehr::Ganz : Rückkehr::OhneNullen;
}

int Lt4AttributeVerloren(const KorInfoSatz& Vorher, const KorInfoSatz& Zurück) {
  return int{TextVerloren(Vorher.Lagestatus, Zurück.Lagestatus)} +
         int{TextVerloren(Vorher.Lagegenauigkeit, Zurück.Lagegenauigkeit)} +
         int{Vorher.Vermarkungsart != 0 && Vorher.Vermarkungsart != Zurück.Vermarkungsart} +
         int{Vorher.Punktstatus != 0 && Vorher.Punktstatus != Zurück.Punktstatus};
}

}  // namespace

Formatzugang KorZugang() {
  Formatzugang F{Punktformat::Kor};
  F.ZeileLesen = [](std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
    if (!KorZerlegen(Zeile, S)) return false;
    Info.Punktart = KurzAusText(S.Symbol);  // and no other attribute
    S.Info = &Info;
    return true;
  };
  F.ZeileSchreiben = [](const KorSatz& S, int Nachkomma, std::string& Ziel) {
    KorZeileAnhängen(Ziel, S.Pnr, S.Rechts, S.Hoch, S.Hoehe, S.Symbol, Nachkomma);
  };
  F.Voraussage = KorVoraussage;
  return F;
}

Formatzugang Lt4Zugang() {
  Formatzugang F{Punktformat::Lt4};
  F.ZeileLesen = [](std::string_view Zeile, KorSatz& S, KorInfoSatz& Info) {
    // The row keeps the height that it had, on purpose.
    if (KorAnzahl < KorZeilen) S.Hoehe = KorHoehe[static_cast<std::size_t>(KorAnzahl)];
    return Lt4Zerlegen(Zeile, S, Info);
  };
  F.ZeileSchreiben = [](const KorSatz& S, int, std::string& Ziel) {
    std::string Zeile;
    Lt4ZeileSchreiben(S.Pnr, S.Rechts, S.Hoch, *S.Info, Zeile);
    Ziel += Zeile;
  };
  F.ZurückLesen = Lt4Zerlegen;  // a height that no column holds
  F.Voraussage = Lt4Voraussage;
  F.AttributeVerloren = Lt4AttributeVerloren;
  return F;
}

namespace {

// The rows of a file, sorted into the table; what was stopped or is no such file is taken back.
Lesung::Ende TabelleFüllen(const Punktquelle& Quelle, Lesemodus Modus, const Formatzugang& Format,
                           const std::function<bool(std::string_view)>& Nimmt, Lesebericht& Bericht) {
  const Beschäftigung Lang;
  if (Modus == Lesemodus::Ersetzen) KorAbschneiden(0);
  const int AlteAnzahl = KorAnzahl;
  const Lesung::Ende Ende = Lesung(Quelle, Modus, Format, Nimmt, Bericht).Laufen();
  const bool Zurück = Ende == Lesung::Ende::Gestoppt || Ende == Lesung::Ende::Unlesbar;
  if (Zurück) KorAbschneiden(AlteAnzahl);
  if (Ende == Lesung::Ende::Voll) {
    Hinweis("Maximale Anzahl von \n\n" + std::to_string(KorGrenze) + "\n\nPunkten überschritten !");
  }
  if (!Zurück) KorSortieren();
  if (Ende != Lesung::Ende::Unlesbar || Modus == Lesemodus::Ersetzen)
    KorGeaendertSetzen(Modus != Lesemodus::Ersetzen);
  return Ende;
}

// What the reader of a format gets. @return 0; -1 with the reason
int InhaltHolen(const std::string& Dateiname, const Formatzugang& Format, std::string& Inhalt,
                std::string& Grund) {
  if (Format.Lesen == nullptr || Format.Was == Formatzugang::Zufuhr::Text)
    return TextdateiLesen(Dateiname, Inhalt, &Grund);
  if (Format.Was == Formatzugang::Zufuhr::Bytes) return DateiLesen(Dateiname, Inhalt, &Grund);
  return DateiVorhanden(Dateiname) ? 0 : -1;
}

}  // namespace

int KorLesen(const std::string& Dateiname, Lesemodus Modus, Punktformat Format,
             const std::function<bool(std::string_view)>& Nimmt,
             const std::function<bool(const Dateibefund&)>& Prüfen, Lesebericht* Bericht) {
  if (Dateiname.empty()) return -1;
  const Formatzugang* Zugang = FormatFinden(Format);
  if (Zugang == nullptr || (Zugang->ZeileLesen == nullptr && Zugang->Lesen == nullptr)) {
    FehlerMeldung("Das Format der Datei wird nicht gelesen:\n" + Dateiname);
    return -1;
  }
  std::string Inhalt, Grund;
  if (InhaltHolen(Dateiname, *Zugang, Inhalt, Grund) < 0) {
    KoordinatendateiFehlt(Dateiname, Grund);
    return -1;
  }
  if (Prüfen && Zugang->Was != Formatzugang::Zufuhr::Name && !Prüfen(Befunden(Inhalt, Format))) return -2;
  const Punktquelle Quelle{Dateiname, Inhalt, Modus == Lesemodus::Ersetzen};
  Lesebericht B;
  const Lesung::Ende Ende = TabelleFüllen(Quelle, Modus, *Zugang, Nimmt, B);
  B.Gestoppt = Ende == Lesung::Ende::Gestoppt;
  if (B.Gestoppt) B.Gelesen = 0;
  if (Bericht != nullptr) *Bericht = B;
  KorAnzahlAnzeigen();
  if (Ende == Lesung::Ende::Unlesbar) return -1;
  if (B.Gestoppt) return Modus == Lesemodus::Ersetzen ? -1 : 0;
  if (B.Abgeschnitten) DateiendeMeldung(Dateiname);
  if (DoppelteVorhanden()) Hinweis("Achtung, doppelte Punkte vorhanden !");
  return 0;
}

int KorText(Punktformat Format, int Nachkomma, std::string& Text) {
  const Formatzugang* Zugang = FormatFinden(Format);
  Text.clear();
  if (Zugang == nullptr || (Zugang->Schreiben == nullptr && Zugang->ZeileSchreiben == nullptr)) return -1;
  if (Zugang->Schreiben != nullptr) return Zugang->Schreiben(Nachkomma, Text), 0;
  Text.reserve(static_cast<std::size_t>(KorAnzahl) * 64);
  for (int i = 0; i < KorAnzahl; ++i) {
    const std::size_t Vorher = Text.size();
    Zugang->ZeileSchreiben(KorPunkt(i), Nachkomma, Text);
    if (Text.size() > Vorher) Text += "\r\n";
  }
  return 0;
}

int KorSchreiben(const std::string& Dateiname, Dateiformat Format, int Nachkomma) {
  std::string Text;
  return KorText(Format, Nachkomma, Text) < 0 || DateiErsetzen(Dateiname, Text) < 0 ? -1 : KorAnzahl;
}

Dateiformat FormatNachEndung(std::string_view Name, Dateiformat Sonst) {
  const std::string Endung = Großtext(DateinameZerlegen(Name).Endung);
  if (Endung == "LT4" || Endung == "ALK") return Dateiformat::Lt4;
  if (Endung.size() == 3 && Endung.starts_with("ED")) return Dateiformat::Edbs;
  return Sonst;
}

namespace {

// The points of a file, one after the other, until one is refused. @return 0; -1 with a message
int PunkteDurchgehen(const std::string& Dateiname, const Formatzugang& Zugang, const Punktnehmer& Nehmen) {
  std::string Inhalt, Grund;
  if (InhaltHolen(Dateiname, Zugang, Inhalt, Grund) < 0) {
    LesefehlerMelden(Dateiname, Grund);
    return -1;
  }
  Lesebericht B;
  if (Zugang.Lesen != nullptr) return Zugang.Lesen({Dateiname, Inhalt}, Nehmen, B);
  Zeilenleser Leser(Inhalt);
  std::string_view Zeile;
  KorInfoSatz Info;
  while (Leser.Nächste(Zeile)) {
    KorSatz S;
    if (Zugang.ZeileLesen(Zeile, S, Info) && !Nehmen(S)) return 0;
  }
  return 0;
}

}  // namespace

int PunkteInListen(const std::string& Dateiname, Punktformat Format, Punktlisten& Listen, int Maximum,
                   int& Anzahl, bool Sortieren) {
  Anzahl = 0;
  if (Dateiname.empty()) return 0;
  Listen = {};
  const Formatzugang* Zugang = FormatFinden(Format);
  if (Zugang == nullptr) return -1;
  bool Zuviel = false;
  const auto Nehmen = [&](const KorSatz& S) {
    if (TrimmenSicht(S.Pnr).empty()) return true;
    Zuviel = Anzahl == Maximum;
    if (Zuviel) return false;
    Listen.Pnr.emplace_back(S.Pnr);
    Listen.Rechts.push_back(S.Rechts);
    Listen.Hoch.push_back(S.Hoch);
    Listen.Hoehe.push_back(Format == Punktformat::Lt4 ? 0 : S.Hoehe);
    Listen.Symbol.emplace_back(S.Symbol);
    ++Anzahl;
    return true;
  };
  if (PunkteDurchgehen(Dateiname, *Zugang, Nehmen) < 0) return -1;
  if (Zuviel) {
    Hinweis("Zu viele Punkte in " + Dateiname + "\n\nMaximalwert:" + ZahlFeld(Maximum, 8) + " Punkte");
    return -1;
  }
  if (Sortieren) ListenOrdnen(Listen);
  return 0;
}

int KorDateiInListen(const std::string& Dateiname, Punktlisten& Listen, int Maximum, int& Anzahl,
                     bool Sortieren) {
  return PunkteInListen(Dateiname, Punktformat::Kor, Listen, Maximum, Anzahl, Sortieren);
}

}  // namespace tavorena
