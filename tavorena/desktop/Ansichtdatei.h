#pragma once

#include <string>

#include <QPageLayout>
#include <QPalette>

#include <tavorena/graphics/Grafikseite.h>

class QPagedPaintDevice;

namespace tavorena {

/// Writes what the graphics view shows, in light colours, as PDF, SVG (in both text stays text) or PNG, by
/// the end of the name. The file appears as a whole.
/// @return 0; -1 with a message: another end, nothing to be seen, or the file can not be written
int AnsichtSchreiben(const std::string& Name);

/// Fills in file and time of a job, and the file's name as its title.
void SeitenkopfSetzen(Seitenauftrag& Auftrag);

/// Writes a job of pages: as PDF all of them, as SVG or PNG one.
/// @return 0; -1 with a message
int SeitenSchreiben(const std::string& Name, const Seitenauftrag& Auftrag);

/// Draws the pages of a job on paper, one after the other. @return whether the paper took them
bool SeitenMalen(QPagedPaintDevice& Auf, const Seitenauftrag& Auftrag, const Seitenplan& Plan);

/// Sheet and direction of the paper.
[[nodiscard]] QPageLayout Papierformat(Blatt Papier);

/// The colours of paper and files.
[[nodiscard]] QPalette Papierfarben();

/// The command "Ansicht speichern ...": asks for the name, and before it replaces a file.
void AnsichtSpeichern();

}  // namespace tavorena
