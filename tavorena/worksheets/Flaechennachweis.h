#pragma once

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/records/Pol.h>

// The dialogs around the printed proof of an area.

namespace tavorena {

/// Asks for the first page number and the decimals of a printed list, up to a good answer.
/// @param[in,out] NachkommaKoordinaten  nullptr: the list has none
/// @return 0; -1: cancelled
[[nodiscard]] int SeitenangabenFragen(int& Seite, int* NachkommaKoordinaten, int& NachkommaFlaeche);

/// Asks for pages, decimals and the file, and writes the proof, behind what the file holds if that is wanted.
/// @param[in,out] N  Seite and decimals are proposed; afterwards what the next proof begins with
/// @return 0; -1: broken off, or not written with a message
[[nodiscard]] int NachweisSchreiben(Polnachweis& N);

/// Asks for a file and, where it holds several, for one of its proofs.
/// @return 0; -1: broken off, or none with a message
[[nodiscard]] int NachweisWählen(Polnachweis& N);

/// As it would be typed; a proof has no measured lengths.
[[nodiscard]] Flaecheneingabe AlsEingabe(const Polnachweis& N);

/// Stores the points of a proof that the table lacks, with its coordinates, after a question that counts
/// them. @param[in,out] R  takes them as one deed
/// @return 0; -1: broken off, or they can not be stored: the table stays
[[nodiscard]] int FehlendePunkteSpeichern(const Polnachweis& N, Rücknahme& R);

/// Takes them back; what hinders it is told. @return false: there are none
bool PunkteZurück(Rücknahme& R);

}  // namespace tavorena
