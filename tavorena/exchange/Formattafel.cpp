#include <tavorena/core/Formate.h>
#include <tavorena/exchange/Formattafel.h>

namespace tavorena {

void FormateAnmelden() {}

}  // namespace tavorena
