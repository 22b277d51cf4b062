#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/exchange/TVFreiForm.h>
#include <tavorena/forms/Dialogform.h>

namespace tavorena {
namespace {

constexpr const char *RahmenTrennung = "Trennung :", *RahmenStellen = "Stellen :", *RahmenDatei = "Datei :",
                     *RahmenVorschau = "Erste Zeilen :";
constexpr std::array<std::pair<const char*, char>, 4> Trennerliste = {
    {{"Leerzeichen", ' '}, {"Tabulator", '\t'}, {";", ';'}, {",", ','}}};
constexpr std::size_t Vorschaubytes = std::size_t{256} << 10U;
constexpr int Vorschauzeichen = 100;  // of a line that a cell shows

/// A line of the preview.
struct Vorschauzeile {
  int Nummer = 0;  ///< in the file, from 1
  std::string Text;
};
using Vorschauquelle = std::function<std::vector<Vorschauzeile>(const Freiformat&)>;

bool FeldLesen(const Feld& F, int Größte, int& Zahl) {
  const std::string Text = Trimmen(*F.Text);
  if (Text.size() > 4 || Text.find_first_not_of("0123456789") != std::string::npos) return false;
  const int Neu = Text.empty() ? 0 : std::stoi(Text);
  if (Neu > Größte) return false;
  Zahl = Neu;
  return true;
}

// What may be wrong in a row of the preview.
using Zellen = std::array<bool, Freiwerte + 2>;

// Every fifth column with its number: "....5...10...15".
std::string Spaltenlineal() {
  std::string Text;
  for (int Spalte = 5; Spalte <= Vorschauzeichen; Spalte += 5) {
    const std::string Zahl = std::to_string(Spalte);
    Text += std::string(5 - Zahl.size(), '.') + Zahl;
  }
  return Text;
}

class TVFreiForm final : public Dialogform {
 public:
  TVFreiForm(const Freiformat& F, bool ZumSchreiben, Vorschauquelle Erste)
      : Dialogform("TVFreiForm", ZumSchreiben ? "Freies Format schreiben" : "Freies Format lesen"),
        Wahl(F),
        Schreiben(ZumSchreiben),
        Zeilen(std::move(Erste)) {
    Hilfenummer = Austauschseite;
    Ungefragt = true;
    TrennungAnlegen();
    StellenAnlegen();
    DateiAnlegen();
    Meldung = &BeschriftungAnlegen("", {0, 0}, RahmenVorschau);
    Vorschau = &GitterAnlegen(
        "FreiVorschau",
        {{"Zeile", 6},
         {Freinamen[FreiPnr], PnrZeichen},
         {Freinamen[FreiRechts], 14},
         {Freinamen[FreiHoch], 14},
         {Freinamen[FreiHoehe], 11},
         {Freinamen[FreiSymbol], 8, false, false},
         {Schreiben ? "wird geschrieben" : "steht in der Datei", Vorschauzeichen + 4, false, false}},
        {1, 0}, RahmenVorschau);
    Vorschau->NurLesen = true;
    Vorschau->Auffällig = [this](int z, int s) {
      const auto Zeile = static_cast<std::size_t>(z);
      return Zeile < Zweifel.size() && Zweifel[Zeile][static_cast<std::size_t>(s)];
    };
    OkUndAbbruch([this] { Übernehmen(); }, "FreiOK", "FreiAbbruch");
    Darstellen();
  }

  Freiformat Wahl;

 private:
  void TrennungAnlegen() {
    MitTrenner = &OptionAnlegen("FreiTrennzeichen", "&Trennzeichen", {0, 0}, RahmenTrennung);
    std::vector<std::string> Namen;
    std::string Gewählt;
    for (const auto& [Name, Zeichen] : Trennerliste) {
      Namen.emplace_back(Name);
      if (Zeichen == Wahl.Trenner) Gewählt = Name;
    }
    Trenner = &ListeAnlegen("FreiTrenner", Namen, Gewählt, {0, 1}, RahmenTrennung);
    Trenner->Bezeichnung = "Art des Trennzeichens";
    InSpalten = &OptionAnlegen("FreiSpalten", "S&palten", {0, 2}, RahmenTrennung);
    MitTrenner->Gewählt = !Wahl.InSpalten;
    InSpalten->Gewählt = Wahl.InSpalten;
    for (Auswahl* A : {MitTrenner, Trenner, InSpalten}) A->BeiWahl = [this] { Darstellen(); };
  }

  void StellenAnlegen() {
    Von.reserve(Freiwerte);
    VonTitel = &BeschriftungAnlegen("", {1, 0}, RahmenStellen);
    BisTitel = &BeschriftungAnlegen("bis", {2, 0}, RahmenStellen);
    for (std::size_t i = 0; i < Freiwerte; ++i) {
      const int Spalte = static_cast<int>(i) + 1;
      BeschriftungAnlegen(Freinamen[i], {0, Spalte}, RahmenStellen);
      Von.push_back(&Stelle("FreiVon", i, {1, Spalte}, Wahl.Werte[i].Von));
    }
    for (std::size_t i = 0; i < Freiwerte; ++i)
      Bis.push_back(&Stelle("FreiBis", i, {2, static_cast<int>(i) + 1}, Wahl.Werte[i].Bis));
  }

  Feld& Stelle(const char* Name, std::size_t i, Platz Ort, int Zahl) {
    Feld& F = ZahlenfeldAnlegen(std::string(Name) + "(" + std::to_string(i) + ")", Ort, RahmenStellen, 5);
    F.Text = Zahl > 0 ? std::to_string(Zahl) : "";
    F.Hilfe = std::string(Freinamen[i]) + ": leer, wenn es nicht in der Zeile steht";
    F.BeiText = [this] { Darstellen(); };
    return F;
  }

  void DateiAnlegen() {
    BeschriftungAnlegen("&Zeilen überspringen:", {0, 0}, RahmenDatei);
    Überspringen = &ZahlenfeldAnlegen("FreiZeilen", {0, 1}, RahmenDatei, 5);
    Überspringen->Text = std::to_string(Wahl.Überspringen);
    Überspringen->BeiText = [this] { Darstellen(); };
    if (Schreiben) {
      Überspringen->Hilfe = "so viele leere Zeilen stehen vor dem ersten Punkt";
      return;
    }
    BeschriftungAnlegen("Zei&chensatz:", {0, 2}, RahmenDatei);
    std::vector<std::string> Namen = {ZeichensatzName(Zeichensatz::Automatisch)};
    for (const Zeichensatz Z : {Zeichensatz::Utf8, Zeichensatz::Windows1252, Zeichensatz::Dos850})
      Namen.emplace_back(ZeichensatzName(Z));
    Satz = &ListeAnlegen("FreiZeichensatz", Namen, ZeichensatzName(Wahl.Satz), {0, 3}, RahmenDatei);
    Satz->BeiWahl = [this] { Darstellen(); };
  }

  // What the fields say. @return "", or what is wrong; the field is marked
  std::string FelderLesen() {
    const std::string Erwartet =
        "erwartet wird eine Zahl bis " + std::to_string(FreiMaxFeld) + " oder nichts";
    std::string Fehler;
    Wahl.InSpalten = InSpalten->Gewählt;
    for (const auto& [Name, Zeichen] : Trennerliste) {
      if (Trenner->Text == Name) Wahl.Trenner = Zeichen;
    }
    if (Satz != nullptr) static_cast<void>(ZeichensatzAus(*Satz->Text, Wahl.Satz));
    for (std::size_t i = 0; i < Freiwerte; ++i) {
      Freispalte& S = Wahl.Werte[i];
      Von[i]->Fehlerhaft = !FeldLesen(*Von[i], FreiMaxFeld, S.Von);
      Bis[i]->Fehlerhaft = Wahl.InSpalten && !FeldLesen(*Bis[i], FreiMaxFeld, S.Bis);
      if (Fehler.empty() && (*Von[i]->Fehlerhaft || *Bis[i]->Fehlerhaft))
        Fehler = Freinamen[i] + (": " + Erwartet);
    }
    Überspringen->Fehlerhaft = !FeldLesen(*Überspringen, FreiMaxZeilen, Wahl.Überspringen);
    if (Fehler.empty() && *Überspringen->Fehlerhaft)
      Fehler = "Zeilen überspringen: erwartet wird eine Zahl bis " + std::to_string(FreiMaxZeilen);
    if (!Fehler.empty()) return Fehler;
    const Freieinwand E = FreiformatEinwand(Wahl, Schreiben);
    const bool OhneEnde = Wahl.InSpalten && Wahl.Werte[E.Wert].Bis == 0;
    if (!E.Text.empty()) (OhneEnde ? Bis : Von)[E.Wert]->Fehlerhaft = true;
    return E.Text;
  }

  void Darstellen() {
    const std::string Fehler = FelderLesen();
    const bool Spalten = Wahl.InSpalten;
    Trenner->Aktiv = !Spalten;
    VonTitel->Text = Spalten ? "von" : "Nummer des Feldes";
    BisTitel->Sichtbar = Spalten;
    for (Feld* F : Bis) F->Sichtbar = Spalten;
    ZeilenZeigen(Fehler.empty());
    const auto Zweifelhafte = std::count_if(Zweifel.begin(), Zweifel.end(), [](const Zellen& Z) {
      return std::find(Z.begin(), Z.end(), true) != Z.end();
    });
    Meldung->Text = !Fehler.empty()   ? Fehler
                    : Zweifel.empty() ? "keine Zeile"
                    : Zweifelhafte > 0
                        ? Anzahltext(static_cast<int>(Zweifelhafte), "Zeile ist", "Zeilen sind") +
                              " zweifelhaft, die Stellen sind markiert"
                        : "ohne Zweifel";
  }

  // A file is seen before it is understood: its columns have to be counted.
  void ZeilenZeigen(bool Verstanden) {
    Zweifel.clear();
    Vorschau->Leeren(0);
    if (!Verstanden && Schreiben) return;
    if (Wahl.InSpalten) NurText("", Spaltenlineal());
    for (const Vorschauzeile& V : Zeilen(Wahl)) {
      if (!Verstanden) {
        NurText(std::to_string(V.Nummer), V.Text);
      } else {
        Zweifel.emplace_back();
        Vorschau->ZeileAnhängen(Zeilentexte(V, Zweifel.back()));
      }
    }
    LückenMarkieren();
  }

  void NurText(std::string Nummer, std::string Text) {
    Zweifel.emplace_back();
    std::vector<std::string> Texte(Freiwerte + 2);
    Texte.front() = std::move(Nummer);
    Texte.back() = std::move(Text);
    Vorschau->ZeileAnhängen(std::move(Texte));
  }

  // A line as it would be read; what may be wrong in it is marked.
  std::vector<std::string> Zeilentexte(const Vorschauzeile& V, Zellen& Z) const {
    const Punktfelder P = FreizeileZerlegen(V.Text, Wahl);
    const std::string_view Felder[] = {P.Pnr, P.Rechts, P.Hoch, P.Hoehe, P.Symbol};
    std::vector<std::string> Texte = {std::to_string(V.Nummer)};
    for (std::size_t i = 0; i < Freiwerte; ++i) {
      double Zahl = 0;
      const bool IstZahl = FeldzahlLesen(Felder[i], Zahl), IstWort = i == FreiPnr || i == FreiSymbol;
      const bool Nötig = i != FreiHoehe && i != FreiSymbol;
      Z[i + 1] = FreispalteZerschneidet(V.Text, Wahl, i) || (Nötig && Felder[i].empty()) ||
                 (!IstWort && !Felder[i].empty() && !IstZahl) ||
                 (IstWort && Felder[i].find(' ') != std::string_view::npos);
      if (Nötig && Felder[i].empty()) {
        Texte.emplace_back("fehlt");
      } else {
        Texte.push_back(IstZahl && !IstWort ? ZahlFormat(Zahl, -1, Optionen.OptNachkommaSpeichern)
                                            : std::string(Felder[i]));
      }
    }
    Texte.push_back(V.Text);
    return Texte;
  }

  // Between blanks a value that is missing moves those behind it: a line without the last value that most
  // lines have may have lost another one.
  void LückenMarkieren() {
    if (Wahl.InSpalten || Wahl.Trenner != ' ') return;
    const auto Letzter = std::max_element(Wahl.Werte.begin(), Wahl.Werte.end(),
                                          [](const auto& A, const auto& B) { return A.Von < B.Von; });
    const int Spalte = static_cast<int>(Letzter - Wahl.Werte.begin()) + 1;
    std::vector<std::size_t> Kürzere;
    for (std::size_t z = 0; z < Zweifel.size(); ++z) {
      if (Vorschau->Inhalt(static_cast<int>(z), Spalte).empty()) Kürzere.push_back(z);
    }
    if (2 * Kürzere.size() >= Zweifel.size()) return;
    for (const std::size_t z : Kürzere) Zweifel[z][FreiHoehe + 1] = Zweifel[z][FreiSymbol + 1] = true;
  }

  void Übernehmen() {
    Darstellen();
    for (Feld* F : Von) {
      if (*F->Fehlerhaft) return FokusSetzen(*F);
    }
    for (Feld* F : Bis) {
      if (*F->Fehlerhaft) return FokusSetzen(*F);
    }
    if (*Überspringen->Fehlerhaft) return FokusSetzen(*Überspringen);
    if (!Wahl.InSpalten) {
      for (Freispalte& S : Wahl.Werte) S.Bis = 0;
    }
    Fertig(0);
  }

  bool Schreiben;
  Vorschauquelle Zeilen;
  std::vector<Zellen> Zweifel;
  Auswahl *MitTrenner = nullptr, *InSpalten = nullptr, *Trenner = nullptr, *Satz = nullptr;
  std::vector<Feld*> Von, Bis;
  Feld* Überspringen = nullptr;
  Beschriftung *VonTitel = nullptr, *BisTitel = nullptr, *Meldung = nullptr;
  Gitter* Vorschau = nullptr;
};

int Fragen(Freiformat& F, bool Schreiben, Vorschauquelle Erste) {
  TVFreiForm Form(F, Schreiben, std::move(Erste));
  if (Form.Zeigen() < 0) return -1;
  F = LetztesFreiformat = Form.Wahl;
  return 0;
}

// The beginning of a file, in whole lines where it has some.
std::string AnfangVon(std::string Bytes) {
  if (Bytes.size() <= Vorschaubytes) return Bytes;
  const std::size_t Ende = Bytes.find_last_of("\r\n", Vorschaubytes - 1);
  Bytes.resize(Ende == std::string::npos ? Vorschaubytes : Ende + 1);
  for (int i = 0; i < 3 && Ende == std::string::npos && !IstUtf8(Bytes); ++i) Bytes.pop_back();
  return Bytes;
}

std::vector<Vorschauzeile> Dateizeilen(const std::string& Text, const Freiformat& F) {
  constexpr std::size_t Breiteste = 2000;  // characters that are shown of a line
  std::vector<Vorschauzeile> Erste;
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  for (int Nummer = 1; static_cast<int>(Erste.size()) < FreiVorschauzeilen && Leser.Nächste(Zeile);
       ++Nummer) {
    if (Nummer > F.Überspringen && !TrimmenSicht(Zeile).empty())
      Erste.push_back({Nummer, std::string(TextTeil(Zeile, 0, Breiteste))});
  }
  return Erste;
}

}  // namespace

int FreiformatFragenLesen(const std::string& Datei, Freiformat& F) {
  std::string Bytes, Grund;
  if (DateiLesen(Datei, Bytes, &Grund) < 0) {
    KoordinatendateiFehlt(Datei, Grund);
    return -1;
  }
  // What the whole file is taken for holds for its beginning.
  const bool Utf8 = IstUtf8(Bytes);
  Bytes = AnfangVon(std::move(Bytes));
  return Fragen(F, false, [&Bytes, Utf8](const Freiformat& Wahl) {
    std::string Text = Bytes;
    const bool Als1252 = Wahl.Satz == Zeichensatz::Automatisch && !Utf8;
    const int Ergebnis = AusZeichensatz(Text, Als1252 ? Zeichensatz::Windows1252 : Wahl.Satz);
    return Ergebnis == 0 ? Dateizeilen(Text, Wahl) : std::vector<Vorschauzeile>{};
  });
}

int FreiformatFragenSchreiben(Freiformat& F) {
  return Fragen(F, true, [](const Freiformat& Wahl) {
    std::vector<Vorschauzeile> Erste;
    for (int z = 0; z < std::min(KorAnzahl, FreiVorschauzeilen); ++z) {
      Erste.push_back({Wahl.Überspringen + z + 1, ""});
      FreizeileAnhängen(Wahl, KorPunkt(z), Optionen.OptNachkommaSpeichern, Erste.back().Text);
    }
    return Erste;
  });
}

}  // namespace tavorena
