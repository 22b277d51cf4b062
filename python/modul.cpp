// The Python module tavorena: the class TA under the same names.

#include "bindung.h"

#include <stdexcept>
#include <string>

using tavorena::Wert;

bool pybind11::detail::type_caster<Wert>::load(handle Quelle, bool) {
  if (Quelle.is_none()) {
    value = Wert();
    return true;
  }
  if (PyUnicode_Check(Quelle.ptr())) {
    value = Wert(Quelle.cast<std::string>());
    return true;
  }
  if (PyBool_Check(Quelle.ptr())) return false;
  if (PyIndex_Check(Quelle.ptr())) {
    const auto Ganz = reinterpret_steal<object>(PyNumber_Index(Quelle.ptr()));
    if (!Ganz) throw error_already_set();
    int Überlauf = 0;
    const long long Zahl = PyLong_AsLongLongAndOverflow(Ganz.ptr(), &Überlauf);
    const auto Kurz = static_cast<std::int32_t>(Zahl);
    // A number that an int32 does not hold keeps its digits as a text.
    value = Überlauf == 0 && Kurz == Zahl ? Wert(Kurz) : Wert(str(Ganz).cast<std::string>());
    return true;
  }
  if (!PyNumber_Check(Quelle.ptr())) return false;
  const double Zahl = PyFloat_AsDouble(Quelle.ptr());
  if (PyErr_Occurred() != nullptr) throw error_already_set();
  value = Wert(Zahl);
  return true;
}

pybind11::handle pybind11::detail::type_caster<Wert>::cast(const Wert& Quelle, return_value_policy, handle) {
  if (!Quelle.IstGegeben()) return none().release();
  if (Quelle.IstText()) return str(Quelle.Text()).release();
  return float_(Quelle.Zahl()).release();
}

namespace tavorena::python {
namespace {

bool Lebt = false;

TA* Anlegen() {
  if (Lebt) {
    throw std::runtime_error(
        "only one TA lives in a process: it holds the one point table; use it, or del it first");
  }
  TA* Ta = new TA;
  Lebt = true;
  return Ta;
}

}  // namespace

void Löschen::operator()(TA* Ta) const {
  delete Ta;
  Lebt = false;
}

void Aufzählung(py::module_& Modul, const char* Name,
                std::initializer_list<std::pair<const char*, int>> Werte) {
  py::dict Glieder;
  for (const auto& [Glied, Zahl] : Werte) Glieder[Glied] = Zahl;
  Modul.attr(Name) =
      py::module_::import("enum").attr("IntEnum")(Name, Glieder, py::arg("module") = "tavorena");
}

Ergebnistupel::Ergebnistupel(py::module_& Modul, const char* Methode,
                             std::initializer_list<const char*> Felder)
    : Ergebnisart(Modul.attr("enmResult")) {
  py::list Namen;
  for (const char* Feld : Felder) Namen.append(Feld);
  const std::string Name = std::string(Methode) + "Result";
  Klasse = py::module_::import("collections").attr("namedtuple")(Name, Namen, py::arg("module") = "tavorena");
  Modul.attr(Name.c_str()) = Klasse;
}

}  // namespace tavorena::python

PYBIND11_MODULE(tavorena, Modul) {
  Modul.doc() =
      "Calculations of the land surveyor: coordinates in metres, angles in gon clockwise from north.\n\n"
      "The methods of TA take their inputs by name, lists or arrays where there are several, and return one\n"
      "named tuple: result first, then the outputs; those that a failing method did not write are nan, 0 or\n"
      "empty.";
  Modul.attr("__version__") = TAVORENA_FASSUNG;
  tavorena::python::Taklasse Klasse(Modul, "TA");
  Klasse.def(py::init(&tavorena::python::Anlegen),
             "Begins with an empty point table and the default settings.\n\n"
             "Raises RuntimeError while another object lives: one lives in a process.");
  tavorena::python::Binden(Modul, Klasse);
}
