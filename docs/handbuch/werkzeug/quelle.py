"""Reads the pages of the handbook: titles, places that a link can name, links, pictures, tables.

A place is a heading or the first cell of a table's row. Its name is made from its text in the same way
here and in the window (tavorena/desktop/Handbuch.cpp).
"""

import re
from functools import cache
from pathlib import Path

ORDNER = Path(__file__).resolve().parent.parent
ERSTE = "index.md"
MENÜ = "menuepunkte.md"
VERZEICHNIS = "verzeichnis.md"


@cache
def klartext(markdown):
    """The text of a line as a reader sees it."""
    teile = re.split(r"`([^`]*)`", re.sub(r"!?\[([^\]]*)\]\([^)]*\)", r"\1", markdown))
    teile[::2] = (re.sub(r"\\(.)|\*", lambda m: m[1] or "", t) for t in teile[::2])
    return "".join(teile).strip()


def ankername(text):
    """Name of the place with this text: its letters, digits, "-" and "_"; blanks become "-"."""
    text = " ".join(text.lower().split())
    return "".join("-" if z == " " else z for z in text if z.isalnum() or z in "-_ ")


def zellen(zeile):
    """The cells of a table's row, as Markdown."""
    return [z.strip() for z in re.split(r"(?<!\\)\|", zeile.strip().strip("|"))]


class Stelle:
    """A heading (its level in Stufe) or the first cell of a row (Stufe 0, its table's first word in Kopf)."""

    def __init__(self, nummer, stufe, text, kopf=""):
        self.nummer, self.stufe, self.text, self.kopf = nummer, stufe, text, kopf
        self.anker = ankername(text)


class Seite:
    def __init__(self, datei):
        self.name = datei.name
        self.text = datei.read_text(encoding="utf-8")
        self.zeilen = self.text.split("\n")  # those of code blocks are in "code" as well
        self.code = set()
        self.stellen = []
        self._lesen()
        self.titel = self.stellen[0].text if self.stellen else ""

    def _lesen(self):
        im_code, kopf = False, None
        for nummer, zeile in enumerate(self.zeilen, 1):
            zaun = zeile.lstrip().startswith("```")
            if im_code or zaun:
                self.code.add(nummer)
                im_code = im_code != zaun
                continue
            if treffer := re.match(r"(#+) +(.*)", zeile):
                self.stellen.append(Stelle(nummer, len(treffer[1]), klartext(treffer[2])))
            if not zeile.startswith("|"):
                kopf = None
            elif kopf is None:
                kopf = klartext(zellen(zeile)[0])
            elif not zeile.startswith("|--"):
                self.stellen.append(Stelle(nummer, 0, klartext(zellen(zeile)[0]), kopf))

    def prosa(self):
        """(number, line) of all lines outside code blocks."""
        return [(n, z) for n, z in enumerate(self.zeilen, 1) if n not in self.code]

    def anker(self):
        return {s.anker for s in self.stellen}

    def verweise(self):
        """(number of the line, is a picture, target) of each link."""
        for nummer, zeile in self.prosa():
            ohne_code = re.sub(r"`[^`]*`", "", zeile)
            for bild, ziel in re.findall(r"(!?)\[[^\]]*\]\(([^)\s]+)\)", ohne_code):
                yield nummer, bool(bild), ziel

    def stelle_vor(self, nummer):
        """The place that a line belongs to: its row, else the heading above it; None at the page's top."""
        stelle = None
        for s in self.stellen:
            if s.nummer <= nummer and (s.stufe or s.nummer == nummer):
                stelle = s
        return stelle if stelle is not None and stelle.stufe != 1 else None


def seiten(ordner=ORDNER):
    """All pages by file name; first those that the first page names, in its order."""
    alle = {d.name: Seite(d) for d in sorted(ordner.glob("*.md"))}
    folge = [ERSTE]
    for _, bild, ziel in alle[ERSTE].verweise():
        if not bild and ziel in alle and ziel not in folge:
            folge.append(ziel)
    return {name: alle[name] for name in folge + [n for n in alle if n not in folge]}
