#!/usr/bin/env python3
"""Writes the Python side of the class TA from its header: bindung.py TA.h bindung.cpp

The header is the one place where names, orders, defaults and units of the methods stand. A parameter that
is a non-const reference, a pointer or a vector is a result and becomes a field of the method's named tuple;
all others become arguments by name.
"""

import re
import sys
from dataclasses import dataclass

ENUM = re.compile(r"enum class (\w+) : std::int32_t \{\n(.*?)\};", re.S)
CLASS = re.compile(r"((?:^///.*\n)+)class TA \{", re.M)
METHOD = re.compile(r"((?:^  ///.*\n)+)  (enmResult|std::int32_t) (\w+)\(([^;]*)\);", re.M)
RESULTS = {
    "double&": "double {0} = NaN;",
    "double*": "double {0} = NaN;",
    "std::int16_t*": "std::int16_t {0} = 0;",
    "std::int32_t&": "std::int32_t {0} = 0;",
    "std::vector<double>&": "std::vector<double> {0};",
}
ARGUMENTS = {
    "double": "double {0}",
    "bool": "bool {0}",
    "std::int32_t": "std::int32_t {0}",
    "enmArtGeradenschnitt": "std::int32_t {0}",
    "const std::string&": "const std::filesystem::path& {0}",
    "const Wert&": "const Wert& {0}",
    "std::span<const double>": "const std::vector<double>& {0}",
    "std::span<const Wert>": "const std::vector<Wert>& {0}",
}
COUNT = "lPunktanzahl"  # may be left out in Python: the length of the first list


@dataclass
class Parameter:
    kind: str
    name: str
    default: str

    @property
    def result(self):
        return self.kind in RESULTS


@dataclass
class Method:
    text: str
    units: dict
    returns: str
    result: str
    name: str
    parameters: list

    @property
    def arguments(self):
        return [p for p in self.parameters if not p.result]

    @property
    def results(self):
        return [p for p in self.parameters if p.result]


def split_parameters(text):
    parameters = []
    for part in re.split(r",(?![^<]*>)", " ".join(text.split())):
        match = re.fullmatch(r"\s*(.+?[&*]?)\s*\b(\w+)(?:\s*=\s*(.+))?", part)
        kind, name, default = match.groups()
        if kind not in RESULTS and kind not in ARGUMENTS:
            raise SystemExit(f"bindung.py: no rule for the parameter '{part.strip()}'")
        parameters.append(Parameter(kind, name, default))
    return parameters


def read_comment(comment):
    text, units, returns = [], {}, ""
    body = " ".join(line.strip()[3:].strip() for line in comment.splitlines())
    for index, part in enumerate(re.split(r"\s*@(?=param|return)", body)):
        if index == 0:
            text = part
        elif part.startswith("return"):
            returns = part[len("return"):].strip()
        else:
            names, meaning = re.match(r"param\S*\s+(\w+(?:,\s*\w+)*)\s+(.*)", part).groups()
            units.update({name.strip(): meaning for name in names.split(",")})
    return text, units, returns


def read_methods(header):
    """The public methods in their order. One without @param takes the words of the method before it."""
    methods, family = [], {}
    for comment, result, name, parameters in METHOD.findall(header):
        text, units, returns = read_comment(comment)
        if units:
            family = units
        method = Method(text, dict(units), returns, result, name, split_parameters(parameters))
        for parameter in method.parameters:
            if parameter.name in units:
                continue
            if parameter.name in family:
                method.units[parameter.name] = family[parameter.name]
            elif re.match(r"v(Pnr|\w*Pnr\d*|Linelpnr|Polelpnr)$", parameter.name):
                method.units[parameter.name] = "point number: int, float or str"
        methods.append(method)
    return methods


def docstring(method):
    lines = [method.text, ""]
    for p in method.arguments:
        lines.append(f"{p.name}: {method.units.get(p.name, '')}".rstrip(": "))
    if method.result == "enmResult":
        lines += ["", "Returns a named tuple:", "result: " + (method.returns or "as above")]
        lines += [f"{p.name}: {method.units.get(p.name, '')}".rstrip(": ") for p in method.results]
    else:
        lines += ["", "Returns " + method.returns]
    return "\n".join(lines)


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n") + '"'


def call(method):
    """The body of the lambda: results, the call, the tuple."""
    lines = [RESULTS[p.kind].format(p.name) for p in method.results]
    first = next((p.name for p in method.arguments if p.kind.startswith("std::span")), None)
    passed = []
    for p in method.parameters:
        if p.name == COUNT:
            passed.append(f"Anzahl({p.name}, {first}.size())")
        elif p.kind.startswith("enm"):
            passed.append(f"static_cast<{p.kind}>({p.name})")
        elif "string" in p.kind:
            passed.append(f"{p.name}.string()")
        else:
            passed.append(("&" if p.result and p.kind.endswith("*") else "") + p.name)
    call_text = f"Ta.{method.name}({', '.join(passed)})"
    if method.result != "enmResult":
        return lines + [f"return {call_text};"]
    names = ", ".join(["result"] + [p.name for p in method.results])
    return lines + [f"const enmResult result = {call_text};", f"return Tupel({names});"]


def bind(method):
    signature, args = ["TA& Ta"], []
    for p in method.arguments:
        if p.name == COUNT:
            signature.append(f"std::optional<std::int32_t> {p.name}")
            args.append(f'py::arg("{p.name}") = py::none()')
            continue
        signature.append(ARGUMENTS[p.kind].format(p.name))
        default = f"static_cast<std::int32_t>({p.default})" if p.kind.startswith("enm") else p.default
        args.append(f'py::arg("{p.name}")' + (f" = {default}" if default else ""))
    body = "\n        ".join(call(method))
    captured = ""
    before = ""
    if method.result == "enmResult":
        fields = ", ".join(f'"{p.name}"' for p in method.results)
        before = f'    const Ergebnistupel Tupel(Modul, "{method.name}", {{"result"{", " + fields if fields else ""}}});\n'
        captured = "Tupel"
    return (
        f"  {{\n{before}"
        f'    Klasse.def(\n        "{method.name}",\n        [{captured}]({", ".join(signature)}) {{\n        {body}\n        }},\n'
        f"        {', '.join(args + [quoted(docstring(method))])});\n  }}\n"
    )


def main(header_file, target_file):
    with open(header_file, encoding="utf-8") as file:
        header = file.read()
    methods = read_methods(header)
    with open(target_file, "w", encoding="utf-8") as file:
        file.write('// Made by bindung.py from TA.h.\n#include "bindung.h"\n\nnamespace tavorena::python {\n\n')
        file.write("void Binden(py::module_& Modul, Taklasse& Klasse) {\n")
        for name, body in ENUM.findall(header):
            values = ", ".join(f'{{"{n}", {v}}}' for n, v in re.findall(r"(\w+) = (\d+),", body))
            file.write(f'  Aufzählung(Modul, "{name}", {{{values}}});\n')
        words = CLASS.search(header).group(1).replace("///", "").splitlines()
        file.write(f"  Klasse.doc() = {quoted(chr(10).join(line.strip() for line in words))};\n")
        file.write("".join(bind(method) for method in methods))
        file.write("}\n\n}  // namespace tavorena::python\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
