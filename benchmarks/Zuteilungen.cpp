#include "Messdaten.h"

#include <atomic>
#include <cstdlib>
#include <new>

// Alone in its file: seen together with their callers, g++ takes malloc and delete for a mismatch.

namespace {

std::atomic<std::int64_t> Zähler{0};

}  // namespace

std::int64_t tavorena::messung::Zuteilungen() { return Zähler; }

void* operator new(std::size_t Größe) {
  Zähler.fetch_add(1, std::memory_order_relaxed);
  if (void* Stück = std::malloc(Größe > 0 ? Größe : 1)) return Stück;
  throw std::bad_alloc();
}
void operator delete(void* Stück) noexcept { std::free(Stück); }
void operator delete(void* Stück, std::size_t) noexcept { std::free(Stück); }
