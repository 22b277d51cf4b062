#include <vector>

#include <tavorena/rawdata/Messempfaenger.h>

namespace tavorena {
namespace {

std::vector<Messempfänger*> Gemeldete;  // the last one takes

}  // namespace

Messempfänger* MessempfängerJetzt() { return Gemeldete.empty() ? nullptr : Gemeldete.back(); }

void MessempfängerAnmelden(Messempfänger& E) {
  MessempfängerAbmelden(E);
  Gemeldete.push_back(&E);
}

void MessempfängerAbmelden(Messempfänger& E) { std::erase(Gemeldete, &E); }

}  // namespace tavorena
