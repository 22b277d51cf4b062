#include <charconv>

#include <tavorena/console/Rohangaben.h>
#include <tavorena/console/Worte.h>
#include <tavorena/core/TVDialog.h>

namespace tavorena {
namespace {

// The number of a value in a code block.
bool WertnummerLesen(const Aufruf& A, const char* Option, int Kleinste, int& Nummer) {
  const std::string Wort = A.Wert(Option);
  if (Wort.empty()) return true;
  int n = 0;
  const auto [Ende, Fehler] = std::from_chars(Wort.data(), Wort.data() + Wort.size(), n);
  if (Fehler == std::errc() && Ende == Wort.data() + Wort.size() && n >= Kleinste && n <= 9) {
    Nummer = n;
    return true;
  }
  FehlerMeldung(std::string(Option) + " " + Wort + ": eine Zahl von " + std::to_string(Kleinste) + " bis 9");
  return false;
}

}  // namespace

bool WortLesen(const Aufruf& A, const char* Option, const std::vector<std::string>& Worte,
               std::size_t& Stelle) {
  const std::string Wort = A.Wert(Option);
  for (Stelle = 0; Stelle < Worte.size(); ++Stelle) {
    if (Wort.empty() || Wort == Worte[Stelle]) return true;
  }
  std::string Alle;
  for (const std::string& W : Worte) {
    if (!W.empty()) Alle += (Alle.empty() ? "" : ", ") + W;
  }
  FehlerMeldung(std::string(Option) + " " + Wort + " gibt es nicht, nur " + Alle);
  return false;
}

std::vector<Angabe> MitRohangaben(const std::vector<Angabe>& Eigene) {
  std::vector<Angabe> Alle = {
      {"--form", "FORM", "gsi oder gre; sonst nach der Endung: .gre ist GRE, alles andere GSI"},
      {"--stationscode", "LISTE", "Codes, die einen Standpunkt eröffnen, durch Kommas getrennt (60)"},
      {"--stationswert", "ZAHL", "Wert des Codeblocks mit der Standpunktnummer, der Code ist Wert 1 (2)"},
      {"--ihwert", "ZAHL", "Wert des Codeblocks mit der Instrumentenhöhe in mm; 0: keiner (0)"},
      {"--lagen", "ART", "einzeln oder mitteln: beide Lagen eines Punkts zu einer Messung (einzeln)"},
      {"--einheiten", "ART", "alle: auch Fuß, Grad mit Minuten und Strich lesen"}};
  Alle.insert(Alle.end(), Eigene.begin(), Eigene.end());
  return Alle;
}

bool RohwahlLesen(const Aufruf& A, Rohdatenwahl& Wahl) {
  Wahl = {};
  std::size_t Form = 0, Lagen = 0, Einheiten = 0;
  if (!WortLesen(A, "--form", {"", "gsi", "gre"}, Form)) return false;
  if (!WortLesen(A, "--lagen", {"einzeln", "mitteln"}, Lagen)) return false;
  if (!WortLesen(A, "--einheiten", {"", "alle"}, Einheiten)) return false;
  if (!WertnummerLesen(A, "--stationswert", 2, Wahl.Stationswert)) return false;
  if (!WertnummerLesen(A, "--ihwert", 0, Wahl.Ihwert)) return false;
  Wahl.Form = Form == 0 ? Rohform::NachEndung : Form == 1 ? Rohform::GSI : Rohform::GRE;
  Wahl.LagenMitteln = Lagen == 1;
  Wahl.AlleEinheiten = Einheiten == 1;
  if (const std::string Codes = A.Wert("--stationscode"); !Codes.empty())
    Wahl.Stationscodes = Wortliste(Codes);
  return true;
}

bool RohdatenHolen(const Aufruf& A, Rohdatenwahl& Wahl, Rohdaten& Roh) {
  if (!RohwahlLesen(A, Wahl)) return false;
  std::string Grund;
  if (RohdatenLesen(A.Datei, Wahl, Roh, &Grund) == 0) return true;
  Hinweis("Rohdatendatei\n" + A.Datei + "\n" +
          (Grund.empty() ? "nicht vorhanden !" : "nicht lesbar !" + InKlammern(Grund)));
  return false;
}

}  // namespace tavorena
