#pragma once

#include <cstdint>
#include <string>

#include <tavorena/core/KorDatei.h>

// What the benchmarks measure on: the points of one large job, always the same.

namespace tavorena::messung {

inline constexpr std::size_t Punktzahl = 20000;

/// Points in the order of the table: numbers from 1001 on, Gauss-Krueger coordinates and heights in whole
/// millimetres, so that a file gives them back exactly.
const Punktlisten& Punkte();

/// KOR file of all points, with its rows in order or shuffled, ended by both characters or a line feed alone.
std::string Kordatei(bool Gemischt, const char* Zeilenende = "\r\n");

/// A name in the folder of this run.
std::string Messpfad(const char* Name);

/// Fills the table with all points.
void TabelleFüllen();

/// Takes a row out of the table.
void ZeileLöschen(int Zeile);

/// The table holds all points, and nothing else, in their order, and no message was shown on the way.
bool TabelleIstGanz();

/// How often this process has taken memory from the heap.
std::int64_t Zuteilungen();

/// The most memory that this process has held since the last call [KiB].
long Speicherspitze();

/// Processor time of this thread [s]: what other programs do on the machine does not count.
double Prozessorzeit();

}  // namespace tavorena::messung
