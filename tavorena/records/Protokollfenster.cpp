#include <tavorena/core/Ports.h>
#include <tavorena/records/Protokollfenster.h>

namespace tavorena {

std::string ProtokollfensterText;

void ProtokollfensterZeile(const std::string& Text) {
  constexpr std::size_t Grenze = 32000;
  if (ProtokollfensterText.size() > Grenze) {
    ProtokollfensterText.erase(0, ProtokollfensterText.find('\n') + 1);
  }
  ProtokollfensterText += Text + '\n';
  AnzeigePort().ProtokollGeändert();
}

}  // namespace tavorena
