#include <string_view>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/Verlauf.h>

namespace tavorena {
namespace {

constexpr std::string_view Kopf = "[Verlauf]";
constexpr std::string_view Trenner = "  ";
constexpr std::size_t Datumslänge = 10;
constexpr int Höchstens = 100;  // files that are kept
constexpr int Versuche = 5;     // while other programs write

std::string Verlaufsdatei() { return PfadVerbinden(Anwendungsordner, "\\TavorenaVerlauf.ini"); }

bool NurZiffern(std::string_view Text) {
  return !Text.empty() && Text.find_first_not_of("0123456789") == std::string_view::npos;
}

// @return false: no line of ours
bool Zerlegen(std::string_view Zeile, std::string& Name, Verlaufsatz& Satz) {
  const std::string_view Datum = Zeile.substr(0, Datumslänge);
  if (Datum.size() < Datumslänge || Datum[2] != '.' || Datum[5] != '.' || !NurZiffern(Datum.substr(0, 2)) ||
      !NurZiffern(Datum.substr(3, 2)) || !NurZiffern(Datum.substr(6)))
    return false;
  Zeile.remove_prefix(Datumslänge);
  if (!Zeile.starts_with(Trenner)) return false;
  const std::size_t Ende = Zeile.find(Trenner, Trenner.size());
  if (Ende == std::string_view::npos) return false;
  const std::string_view Anzahl = Zeile.substr(Trenner.size(), Ende - Trenner.size());
  if (!NurZiffern(Anzahl) || Anzahl.size() > 6) return false;
  Name = Zeile.substr(Ende + Trenner.size());
  Satz = {std::string(Datum), static_cast<int>(ZahlAusText(Anzahl))};
  return !Name.empty();
}

// The text with a line for the file in front; what is no line of ours stays behind them.
std::string Fortgeschrieben(const std::string& Alt, const std::string& Dateiname, std::optional<int> Punkte) {
  std::string Eigene, Fremde, Name;
  std::string_view Zeile;
  Verlaufsatz Satz;
  int Anzahl = 1;
  Zeilenleser Leser(Alt);
  static_cast<void>(Leser.Nächste(Zeile));  // the head
  while (Leser.Nächste(Zeile)) {
    if (!Zerlegen(Zeile, Name, Satz)) {
      Fremde.append(Zeile).append("\r\n");
    } else if (Name == Dateiname) {
      if (!Punkte) Punkte = Satz.Punkte;
    } else if (++Anzahl <= Höchstens) {
      Eigene.append(Zeile).append("\r\n");
    }
  }
  if (!Punkte) return Alt;
  return std::string(Kopf) + "\r\n" + Zeitstempel().substr(0, Datumslänge) + std::string(Trenner) +
         std::to_string(*Punkte) + std::string(Trenner) + Dateiname + "\r\n" + Eigene + Fremde;
}

}  // namespace

std::map<std::string, Verlaufsatz> VerlaufLesen() {
  std::map<std::string, Verlaufsatz> Alle;
  std::string Text, Name;
  if (TextdateiLesen(Verlaufsdatei(), Text) < 0) return Alle;
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  Verlaufsatz Satz;
  while (Leser.Nächste(Zeile)) {
    if (Zerlegen(Zeile, Name, Satz)) Alle.emplace(Name, Satz);
  }
  return Alle;
}

void VerlaufMerken(const std::string& Dateiname, std::optional<int> Punkte) {
  // A name that is no text would make the whole file one of another coding.
  if (Dateiname.empty() || !IstUtf8(Dateiname) || Dateiname.find_first_of("\r\n") != std::string::npos)
    return;
  const std::string Datei = Verlaufsdatei();
  for (int i = 0; i < Versuche; ++i) {
    const Dateistand Eben = DateistandVon(Datei);
    std::string Alt;
    if (Eben != Dateistand{} && TextdateiLesen(Datei, Alt) < 0) return;
    if (!Alt.empty() && !Alt.starts_with(Kopf)) return;  // somebody else's
    const std::string Neu = Fortgeschrieben(Alt, Dateiname, Punkte);
    if (Neu == Alt || OrdnerAnlegen(Anwendungsordner) < 0) return;
    if (DateiErsetzen(Datei, Neu, nullptr, &Eben) != -2) return;  // -2: another program wrote, once more
  }
}

}  // namespace tavorena
