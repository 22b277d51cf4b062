#include <memory>
#include <utility>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Punktblock.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena {

Block Punktblock(int Nachkomma, const std::vector<Blockpunkt>& Punkte, int Marken) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen = {KopfPunkte};
  for (const Blockpunkt& P : Punkte) {
    Zeilen.push_back(S.Punkt(P.Punkt, Leerzeichen(26), P.Marke));
    if (!P.Alt.empty()) Zeilen.back() += " ***bericht. alt:" + PnrFormat(P.Alt);
  }
  return Zahlenblock(Nachkomma, std::move(Zeilen), Marken);
}

int Eintragen(const Punkteintrag& E) {
  Verbindung V;
  V.Titel = E.Titel;
  V.Riß = LetzterPlan;
  const auto Darüber = std::make_shared<const Verbindung>(std::move(V));
  // A large entry takes its time: without a protocol its lines are not made.
  if (!Prot.Datei.empty() &&
      Schreiben(Prot, Darüber, Punktblock(Optionen.OptNachkommastellen, E.Punkte, E.Marken)) < 0)
    return -1;
  Prot.Marken += E.Marken;
  return 0;
}

}  // namespace tavorena
