#include <tavorena/core/Formate.h>
#include <tavorena/exchange/CSV.h>
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/Formattafel.h>
#include <tavorena/exchange/Freiformat.h>
#include <tavorena/exchange/Gsipunkte.h>
#include <tavorena/exchange/NAS.h>
#include <tavorena/exchange/Textformate.h>

namespace tavorena {

void FormateAnmelden() {
  FormatAnmelden(CooZugang());
  FormatAnmelden(CsvZugang());
  FormatAnmelden(EDBSZugang());
  FormatAnmelden(FreiZugang());
  FormatAnmelden(GeografAusZugang());
  FormatAnmelden(GeografZugang());
  FormatAnmelden(GeoMapZugang());
  FormatAnmelden(GsiMitCodeZugang());
  FormatAnmelden(GsiMitHöheZugang());
  FormatAnmelden(GsiOhneHöheZugang());
  FormatAnmelden(GsiZugang());
  FormatAnmelden(HöhenlisteZugang());
  FormatAnmelden(LfsZugang());
  FormatAnmelden(NasZugang());
}

}  // namespace tavorena
