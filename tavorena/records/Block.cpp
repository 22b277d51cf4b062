#include <utility>

#include <tavorena/records/Block.h>

namespace tavorena {

Block Zahlenblock(int Nachkomma, std::vector<std::string> Zeilen, int Marken) {
  if (Nachkomma > 5) return {{"      #Fehler: Zu viele Nachkommastellen#"}, Marken};
  return {std::move(Zeilen), Marken};
}

}  // namespace tavorena
