#include <vector>

#include <tavorena/shell/Punktbefehle.h>

namespace tavorena {

std::span<const Befehl> Punktbefehle() {
  static const std::vector<Befehl> Alle = {};
  return Alle;
}

}  // namespace tavorena
