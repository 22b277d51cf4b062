#pragma once

#include <string>

#include <QPageLayout>
#include <QPalette>

#include <tavorena/graphics/Grafikseite.h>

class QPainter;

namespace tavorena {

struct Blattbereich;

/// Writes what the graphics view shows, in light colours, as PDF, SVG (in both text stays text) or PNG, by
/// the end of the name. The file appears as a whole.
/// @return 0; -1 with a message: another end, nothing to be seen, or the file can not be written
int AnsichtSchreiben(const std::string& Name);

/// Fills in file and time of a job, and the file's name as its title.
void SeitenkopfSetzen(Seitenauftrag& Auftrag);

/// Writes a job of pages: as PDF several of them, as SVG or PNG one.
/// @param[in] Welche  nullptr: all
/// @return 0; -1 with a message; -2 stopped
int SeitenSchreiben(const std::string& Name, const Seitenauftrag& Auftrag,
                    const Blattbereich* Welche = nullptr);

/// Draws a page of a job from the upper left corner of the sheet on, counted from 0.
void SeiteMalen(QPainter& Maler, const Seitenauftrag& Auftrag, const Seitenplan& Plan, int Seite);

/// Sheet and direction of the paper.
[[nodiscard]] QPageLayout Papierformat(Blatt Papier);

/// The colours of paper and files.
[[nodiscard]] QPalette Papierfarben();

/// The command "Ansicht speichern ...": asks for the name, and before it replaces a file.
void AnsichtSpeichern();

}  // namespace tavorena
