#include <tavorena/core/Formate.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/Formattafel.h>

namespace tavorena {

void FormateAnmelden() {
  for (const Formatzugang& F : {EDBSZugang()}) FormatAnmelden(F);
}

}  // namespace tavorena
