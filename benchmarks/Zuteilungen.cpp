#include "Messdaten.h"

#include <atomic>
#include <cstdlib>
#include <new>

// Alone in its file: seen together with their callers, g++ takes malloc and delete for a mismatch.

namespace {

std::atomic<std::int64_t> Zaehler{0};

}  // namespace

std::int64_t tavorena::messung::Zuteilungen() { return Zaehler; }

void* operator new(std::size_t Groesse) {
  Zaehler.fetch_add(1, std::memory_order_relaxed);
  if (void* Stueck = std::malloc(Groesse > 0 ? Groesse : 1)) return Stueck;
  throw std::bad_alloc();
}
void operator delete(void* Stueck) noexcept { std::free(Stueck); }
void operator delete(void* Stueck, std::size_t) noexcept { std::free(Stueck); }
