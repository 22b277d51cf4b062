#include <algorithm>
#include <string_view>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Rohbericht.h>

namespace tavorena {
namespace {

constexpr std::size_t MaxStationen = 1000;

std::string Zahl(std::size_t n) { return std::to_string(n); }

// ", Zeilen 3, 7, 9 ..."; "" where they are not known
std::string Zeilennummern(const Fundstelle& F) {
  std::string Text;
  for (const std::size_t n : F.Zeilen) {
    if (n != 0) Text += (Text.empty() ? "" : ", ") + Zahl(n);
  }
  if (Text.empty()) return "";
  const bool Eine = F.Zeilen[1] == 0;
  return (Eine ? ", Zeile " : ", Zeilen ") + Text + (F.Zeilen[2] != 0 && F.Anzahl > 3 ? " ..." : "");
}

std::size_t Summe(const std::vector<Fundstelle>& Liste) {
  std::size_t n = 0;
  for (const Fundstelle& F : Liste) n += F.Anzahl;
  return n;
}

// A head with what and count, and below it where.
void Fundliste(std::vector<std::string>& Ziel, const std::string& Kopf,
               const std::vector<Fundstelle>& Liste) {
  std::string Erste = Kopf + Zahl(Summe(Liste));
  for (const Fundstelle& F : Liste)
    Erste += (&F == Liste.data() ? " - " : ", ") + F.Was + " (" + Zahl(F.Anzahl) + ")";
  Ziel.push_back(Erste);
  for (const Fundstelle& F : Liste) Ziel.push_back("  " + F.Was + ": " + Zahl(F.Anzahl) + Zeilennummern(F));
}

std::string Formtext(const Rohdaten& Roh) {
  if (Roh.Form == Rohform::GRE) return "GRE";
  if (Roh.Form == Rohform::M5) return "M5";
  const std::size_t Alle = Roh.Befund.Messzeilen + Roh.Befund.Codezeilen, n = Roh.Befund.Sechzehner;
  if (Alle == 0) return "GSI";
  return n == 0 ? "GSI, 8 Stellen" : n == Alle ? "GSI, 16 Stellen" : "GSI, 8 und 16 Stellen gemischt";
}

std::string_view Einheitname(const Wortzählung& W) {
  const bool Winkel = W.Wort < 30;
  switch (W.Einheit) {
    case '0':
      return Winkel ? "" : "mm";
    case '1':
      return Winkel ? "" : "1/1000 Fuß";
    case '2':
      return Winkel ? "gon" : "";
    case '3':
      return Winkel ? "Grad" : "";
    case '4':
      return Winkel ? "Grad, Minuten, Sekunden" : "";
    case '5':
      return Winkel ? "Strich" : "";
    case '6':
      return Winkel ? "" : "1/10 mm";
    case '7':
      return Winkel ? "" : "1/10000 Fuß";
    case '8':
      return Winkel ? "" : "1/100 mm";
    default:
      return "";
  }
}

// One line for each word index.
void Wortliste(std::vector<std::string>& Ziel, const Rohdaten& Roh) {
  const auto& Wörter = Roh.Befund.Wörter;
  for (std::size_t i = 0; i < Wörter.size();) {
    const int Wort = Wörter[i].Wort;
    std::string Text = "  Wort " + std::to_string(Wort) + ": ";
    for (bool Erstes = true; i < Wörter.size() && Wörter[i].Wort == Wort; ++i, Erstes = false) {
      Text += (Erstes ? "" : ", ") + Zahl(Wörter[i].Anzahl);
      if (Wort == 51 || Wort == 71) continue;
      const std::string_view Name = Einheitname(Wörter[i]);
      Text += " mit Einheit " + Sichtbar(std::string(1, Wörter[i].Einheit));
      if (!Name.empty()) Text.append(" (").append(Name) += ')';
    }
    Ziel.push_back(Text);
  }
}

void Stationsliste(std::vector<std::string>& Ziel, const Rohdaten& Roh) {
  std::size_t n = 0;
  for (const Rohblock& B : Roh.Blöcke) {
    if (++n > MaxStationen) return Ziel.push_back("  und weitere " + Zahl(Roh.Blöcke.size() - MaxStationen));
    const std::string Ih =
        B.Instrumentenhöhe.IstGegeben() ? ZahlFormat(B.Instrumentenhöhe, -1, 3) + " m" : "unbekannt";
    Ziel.push_back("  " + (B.Standpunkt.empty() ? "ohne Nummer" : Zitat(B.Standpunkt)) + ": Zeile " +
                   Zahl(B.Zeile) + ", Instrumentenhöhe " + Ih + ", " +
                   Anzahltext(static_cast<int>(B.Punkte.size()), "Ziel", "Ziele") +
                   (B.StandRechts.IstGegeben() ? ", mit Koordinaten" : ""));
    if (B.Punkte.size() > MessblockGrenze)
      Ziel.push_back("    mehr als " + Zahl(MessblockGrenze) +
                     " Ziele: die weiteren nimmt das Formular nicht");
  }
}

}  // namespace

std::vector<std::string> RohdatenBericht(const Rohdaten& Roh) {
  const Rohbefund& B = Roh.Befund;
  std::vector<std::string> Z = {"Datei: " + Sichtbar(Roh.Datei), "Form: " + Formtext(Roh),
                                "Zeilen: " + Zahl(B.Zeilen)};
  const auto Wenn = [&](std::size_t n, const std::string& Text) {
    if (n > 0) Z.push_back(Text + Zahl(n));
  };
  Wenn(B.Leere, "  leer: ");
  Wenn(B.ZuKurze, "  zu kurz: ");
  Wenn(B.Andere, "  anderer Art: ");
  Z.push_back("Messung: " + Zahl(B.Messzeilen));
  Wortliste(Z, Roh);
  Z.push_back("Codeblock: " + Zahl(B.Codezeilen));
  for (const Fundstelle& F : B.Codes)
    Z.push_back("  Code " + Sichtbar(F.Was) + ": " + Zahl(F.Anzahl) + Zeilennummern(F));
  Z.push_back("Stationen: " + Zahl(B.Stationen));
  if (B.OhneStationscode)
    Z.push_back("  kein Stationscode: Zeilen mit Standpunktkoordinaten eröffnen die Stationen");
  if (B.Stationen == 0 && B.Codezeilen > 0) Z.push_back("  keiner der Codes eröffnet einen Standpunkt");
  Stationsliste(Z, Roh);
  Z.push_back("Punkte: " + Zahl(B.Punkte));
  Wenn(Roh.Koordinaten.size(), "Koordinaten: ");
  Wenn(B.ZweiteLage, "Zweite Lage: ");
  if (B.Gemittelte > 0) {
    Z.push_back("Lagen gemittelt: " + Zahl(B.Gemittelte));
    Z.push_back("  größte Unterschiede: Hz " + ZahlFormat(B.SpanneHz, -1, 4) + " gon, V " +
                ZahlFormat(B.SpanneV, -1, 4) + " gon, Strecke " + ZahlFormat(B.SpanneStrecke, -1, 4) + " m");
  }
  Fundliste(Z, "Nicht gelesen: ", B.NichtGelesen);
  if (!B.NichtGenommen.empty()) Fundliste(Z, "Nicht übernommen: ", B.NichtGenommen);
  if (!B.Auffällig.empty()) Fundliste(Z, "Auffällig: ", B.Auffällig);
  return Z;
}

namespace {

void Gruppe(std::string& Ziel, int Wort, const Messinfo& Info, std::string_view Wert) {
  Ziel += '\t' + std::to_string(Wort) + ':';
  Ziel.append(Info.data(), Info.size()) += ':';
  Ziel += Sichtbar(Wert);
}

void Messgruppen(std::string& Ziel, const Messsatz& Satz) {
  if (Satz.Nummer.Da) Gruppe(Ziel, 11, Satz.Nummer.Info, Satz.Nummer.Text);
  for (const int Wort : {21, 22, 31, 32, 33, 51, 71, 81, 82, 83, 84, 85, 86, 87, 88}) {
    if (const Messwert* W = MesswertVon(Satz, Wort); W != nullptr) {
      if (W->Da) Gruppe(Ziel, Wort, W->Info, ZahlFormat(W->Wert, -1, 6));
    } else if (const Messtext& T = Wort == 51 ? Satz.Konstante : Satz.Code; T.Da) {
      Gruppe(Ziel, Wort, T.Info, T.Text);
    }
  }
}

}  // namespace

std::string RohdatenSatzliste(std::string_view Text, Rohform Form, bool AlleEinheiten) {
  Messsatz Satz;
  Codeblock Block;
  std::string Liste;
  std::string_view Zeile;
  std::size_t Nr = 0;
  for (Zeilenleser Leser(Text); Leser.Nächste(Zeile);) {
    const int Art = RohzeileLesen(Zeile, Form, Satz, Block, AlleEinheiten);
    Liste += Zahl(++Nr) + '\t' + std::to_string(Art);
    if (Art == Messzeile) Messgruppen(Liste, Satz);
    if (Art == Codezeile) {
      Liste += "\tNr:" + Sichtbar(Block.Nummer) + "\tAnzahl:" + std::to_string(Block.Anzahl);
      for (int i = 0; i < Block.Anzahl; ++i)
        Liste += '\t' + Sichtbar(Block.Werte[static_cast<std::size_t>(i)]);
    }
    Liste += '\n';
  }
  return Liste;
}

}  // namespace tavorena
