#include <tavorena/core/Wert.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {

double Wert::Zahl() const {
  switch (Art()) {
    case WertArt::Ganz16:
      return std::get<std::int16_t>(Inhalt);
    case WertArt::Ganz32:
      return std::get<std::int32_t>(Inhalt);
    case WertArt::Gleit:
      return std::get<double>(Inhalt);
    case WertArt::Wahr:
      return std::get<bool>(Inhalt) ? -1.0 : 0.0;
    case WertArt::Text:
      return ZahlAusText(std::get<std::string>(Inhalt));
    case WertArt::Leer:
    case WertArt::Null:
      break;
  }
  return 0.0;
}

}  // namespace tavorena
