#pragma once

#include <utility>

namespace tavorena {

/// A value of a control that a view shows. It reads like the value itself; an assignment that changes it is
/// noted until the view fetches it.
template <typename T>
class Gezeigt {
 public:
  Gezeigt() = default;
  Gezeigt(T Anfang) : Inhalt(std::move(Anfang)) {}
  Gezeigt(const Gezeigt&) = default;
  ~Gezeigt() = default;

  Gezeigt& operator=(T Neu) {
    if (Neu == Inhalt) return *this;
    Inhalt = std::move(Neu);
    Geändert = true;
    return *this;
  }
  /// Takes the value of the other over, not its note.
  Gezeigt& operator=(const Gezeigt& Anderer) { return *this = Anderer.Inhalt; }

  operator const T&() const { return Inhalt; }
  const T& operator*() const { return Inhalt; }
  const T* operator->() const { return &Inhalt; }
  friend bool operator==(const Gezeigt& G, const T& Wert) { return G.Inhalt == Wert; }

  /// @return whether the value was changed since the last call
  [[nodiscard]] bool Abholen() { return std::exchange(Geändert, false); }

 private:
  T Inhalt{};
  bool Geändert = false;
};

}  // namespace tavorena
