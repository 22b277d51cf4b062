#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Selektion.h>

namespace tavorena {

int SelektionLesen(const std::string& Datei, std::vector<std::string>& Nummern) {
  std::string Text, Grund;
  if (TextdateiLesen(Datei, Text, &Grund) < 0) {
    LaufzeitFehlerMeldung(Grund.empty() ? Laufzeitfehler::DateiNichtGefunden : Laufzeitfehler::Zugriff,
                          "Selektion.Lesen", Datei + "\n" + (Grund.empty() ? "" : Grund + "\n"));
    return -1;
  }
  Nummern.clear();
  Zeilenleser Leser(Text);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    if (const std::string_view Pnr = TrimmenSicht(Zeile); !Pnr.empty()) Nummern.emplace_back(Pnr);
  }
  return 0;
}

int SelektionSchreiben(const std::string& Datei, const std::vector<std::string>& Nummern) {
  std::string Text, Grund;
  std::unordered_set<std::string_view> Geschrieben;
  for (const std::string& Nummer : Nummern) {
    const std::string_view Pnr = TrimmenSicht(Nummer);
    if (!Pnr.empty() && Geschrieben.insert(Pnr).second) Text.append(Pnr) += "\r\n";
  }
  if (DateiErsetzen(Datei, Text, &Grund) == 0) return 0;
  SpeicherfehlerMelden(Datei, Grund, "Selektion.Speichern");
  return -1;
}

std::vector<int> SelektionZeilen(const std::vector<std::string>& Nummern, const std::vector<std::string>& Pnr,
                                 int& Fremde) {
  std::unordered_map<std::string_view, std::vector<int>> ZeilenVon;
  for (std::size_t z = 0; z < Pnr.size(); ++z) ZeilenVon[TrimmenSicht(Pnr[z])].push_back(static_cast<int>(z));
  std::vector<int> Gewählt;
  Fremde = 0;
  for (const std::string& Nummer : Nummern) {
    auto Treffer = ZeilenVon.find(Nummer);
    if (Treffer == ZeilenVon.end()) {
      std::string MitPunkt = Nummer;
      ZeichenErsetzen(MitPunkt, ',', '.');
      Treffer = ZeilenVon.find(MitPunkt);
    }
    if (Treffer == ZeilenVon.end()) {
      ++Fremde;
      continue;
    }
    Gewählt.insert(Gewählt.end(), Treffer->second.begin(), Treffer->second.end());
    Treffer->second.clear();  // named twice, it is there once
  }
  std::sort(Gewählt.begin(), Gewählt.end());
  return Gewählt;
}

}  // namespace tavorena
