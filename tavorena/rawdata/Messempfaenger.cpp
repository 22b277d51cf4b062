#include <utility>

#include <tavorena/rawdata/Messempfaenger.h>

namespace tavorena {
namespace {

Messempfänger* Gemeldet = nullptr;

}  // namespace

Messempfänger* MessempfängerJetzt() { return Gemeldet; }

Messempfänger* MessempfängerSetzen(Messempfänger* Neuer) { return std::exchange(Gemeldet, Neuer); }

}  // namespace tavorena
