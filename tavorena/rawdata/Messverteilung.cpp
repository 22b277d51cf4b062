#include <algorithm>
#include <array>
#include <string_view>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Messempfaenger.h>
#include <tavorena/rawdata/Messverteilung.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

constexpr std::string_view Stationscode = "60", Stationsblatt = "tvfstatform";

bool Vollständig(const Messsatz& S) {
  const std::array<const Messwert*, 3> Nötig{&S.Hz, &S.V, &S.Strecke};
  return std::all_of(Nötig.begin(), Nötig.end(), [](const Messwert* W) { return W->Da && W->Gelesen; }) &&
         S.Strecke.Wert > 0;
}

}  // namespace

void Messverteilung::Verteilen(const std::string& Zeile) {
  Messempfänger* const E = MessempfängerJetzt();
  if (E == nullptr || E->Formname() != Stationsblatt) return;
  const std::string Text = IstUtf8(Zeile) ? Zeile : AusWindows1252(Zeile);
  std::string_view Worte = Text;
  const bool Sechzehn = GSISechzehn(Worte);
  const int Art = Sechzehn ? GSIZeilenart16(Worte) : GSIZeilenart8(Worte);
  if (Art == Messzeile) {
    Sechzehn ? GSIZeileLesen16(Worte, Satz) : GSIZeileLesen8(Worte, Satz);
    Messzeileverteilen(*E);
  } else if (Art == Codezeile) {
    Codeblock Block;
    Sechzehn ? GSICodeblockLesen16(Worte, Block) : GSICodeblockLesen8(Worte, Block);
    Codezeileverteilen(*E, Block);
  }
}

// The code is the first value, the number the second; or the code is the data of word 1.
void Messverteilung::Codezeileverteilen(Messempfänger& E, const Codeblock& Block) {
  if (Block.Anzahl > 1 && Block.Werte[0] == Stationscode) return Standpunkt(E, Block.Werte[1], {});
  if (Block.Anzahl > 0 && Block.Wort1 == Stationscode) Standpunkt(E, Block.Werte[0], {});
}

void Messverteilung::Standpunkt(Messempfänger& E, const std::string& Nummer,
                                const Messwert& Instrumentenhöhe) {
  const std::string Neue(OhneFührendeNullen(Nummer));
  if (!E.Standpunkt().empty() && OhneFührendeNullen(E.Standpunkt()) != Neue) {
    return Hinweis(
        "Für neuen Standpunkt bitte Formular verlassen und \nFreie Stationierung / Polaren Anschluß neu "
        "aufrufen !");
  }
  E.Blatt().Ereignis([&] { E.StandpunktNehmen(Neue, Instrumentenhöhe); });
}

void Messverteilung::Messzeileverteilen(Messempfänger& E) {
  if (Satz.Reflektorhöhe.Da && Satz.Reflektorhöhe.Gelesen) Reflektorhöhe = Satz.Reflektorhöhe;
  Satz.Reflektorhöhe = Reflektorhöhe;
  if (Satz.StandRechts.Da && Satz.StandHoch.Da && !Satz.Hz.Da)
    return Standpunkt(E, Satz.Nummer.Text, Satz.Instrumentenhöhe);
  if (Satz.Instrumentenhöhe.Da && Satz.Instrumentenhöhe.Gelesen)
    E.Blatt().Ereignis([&] { E.StandpunktNehmen("", Satz.Instrumentenhöhe); });
  if (Vollständig(Satz)) Messung(E);
}

void Messverteilung::Messung(Messempfänger& E) {
  if (!E.StandpunktVollständig()) {
    return Hinweis(
        "Vor einer Messung \nStandpunktnummer und Instr.- / Refl.- Höhe\nam Gerät oder in der Maske "
        "speichern !");
  }
  const Messort Ort = E.Fokus();
  if (Ort == Messort::Außerhalb) return Hinweis("Sie müssen sich in einem Gitterfeld befinden !");
  if (Ort == Messort::Nummernspalte) return Hinweis("Punktnummerneingabe nur manuell oder aus der Grafik !");
  int Genommen = -1;
  E.Blatt().Ereignis([&] { Genommen = E.MessungNehmen(Satz); });
  if (Genommen == 0) E.Blatt().TasteSenden(Taste::Return);
}

}  // namespace tavorena
