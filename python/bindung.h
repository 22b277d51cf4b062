#pragma once

// What the generated bindings are made of: point numbers, enumerations, named tuples.

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <limits>
#include <memory>
#include <optional>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>
#include <utility>

#include <tavorena/ta/TA.h>

namespace py = pybind11;

/// A point number of Python: int, float, str, a number of NumPy, or None for none.
template <>
struct pybind11::detail::type_caster<tavorena::Wert> {
  PYBIND11_TYPE_CASTER(tavorena::Wert, const_name("int | float | str | None"));
  bool load(handle Quelle, bool);
  static handle cast(const tavorena::Wert& Quelle, return_value_policy, handle);
};

namespace tavorena::python {

/// What a result holds that the method did not write.
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

/// An IntEnum of the module.
void Aufzählung(py::module_& Modul, const char* Name,
                std::initializer_list<std::pair<const char*, int>> Werte);

/// The named tuple <Method>Result of the module; a call makes one.
class Ergebnistupel {
 public:
  Ergebnistupel(py::module_& Modul, const char* Methode, std::initializer_list<const char*> Felder);
  template <typename... Wertart>
  py::object operator()(enmResult Ergebnis, const Wertart&... Werte) const {
    return Klasse(Ergebnisart(static_cast<int>(Ergebnis)), Werte...);
  }

 private:
  py::object Klasse;
  py::object Ergebnisart;
};

/// The count that was given, or that of the first list.
inline std::int32_t Anzahl(std::optional<std::int32_t> Gegeben, std::size_t Laenge) {
  constexpr std::size_t Größte = std::numeric_limits<std::int32_t>::max();
  return Gegeben.value_or(static_cast<std::int32_t>(Laenge < Größte ? Laenge : Größte));
}

/// Gives the process free for the next object.
struct Löschen {
  void operator()(TA* Ta) const;
};
using Taklasse = py::class_<TA, std::unique_ptr<TA, Löschen>>;

/// Generated: the enumerations and every method of TA.
void Binden(py::module_& Modul, Taklasse& Klasse);

}  // namespace tavorena::python
