#include <tavorena/core/Optionen.h>

namespace tavorena {

OptionenSatz Optionen;

}  // namespace tavorena
