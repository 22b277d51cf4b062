#!/usr/bin/env python3
"""Runs the console calls that README, handbook and man pages print, and compares what they show.

    tests/handbuch/aufrufe.py root tavorena-stapel [tavorena]

Every page has a folder of its own with a copy of the example job. Its blocks, in their order:

    sh ausführen             a script; it has to succeed, and what it prints stands in the block
    ausgabe                  behind it
    datei NAME               a file that later blocks read
    aus NAME                 lines that stand in this file, one after the other; "..." stands for others
    sh nicht ausgeführt: WHY

Any other block with a call is an error. In man pages .EX and .EE enclose a block, its kind stands in a
comment before. With TAVORENA_SOLL_NEU=1 the outputs are taken over, and the run fails once.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

WURZEL = pathlib.Path(sys.argv[1])
PROGRAMME = [pathlib.Path(p) for p in sys.argv[2:] if pathlib.Path(p).is_file()]
FENSTER = any(p.name == "tavorena" for p in PROGRAMME)
RUF = re.compile(r"(?:^|[\s;|&(/])tavorena(-stapel)?[ \t]+[^#\s]", re.M)
STEMPEL = re.compile(r"\d\d\.\d\d\.\d{4}   \d\d:\d\d")
ROFF = ((r"\-", "-"), (r"\(aq", "'"), (r"\&", ""), (r"\e", "\\"))


def blöcke(seite, zeilen):
    """All blocks of a page as [kind, first line, line behind the last]."""
    handbuch = seite.suffix == ".md"
    art, anfang = None, 0
    for i, z in enumerate(zeilen):
        if art is None and (handbuch and z.lstrip().startswith("```") or not handbuch and z == ".EX"):
            davor = zeilen[i - 1] if zeilen[i - 1].startswith('.\\"') else ""
            art, anfang = z.strip()[3:].strip() if handbuch else davor[3:].strip(), i + 1
        elif art is not None and z.strip() == ("```" if handbuch else ".EE"):
            yield art, anfang, i
            art = None
    if art is not None:
        yield "ohne Ende", anfang, len(zeilen)


def klartext(seite, zeilen):
    if seite.suffix != ".md":
        for roff, zeichen in ROFF:
            zeilen = [z.replace(roff, zeichen) for z in zeilen]
    return zeilen


def ausführen(text, ort):
    pfad = os.pathsep.join([str(ort.parent / "programme"), os.environ["PATH"]])
    umgebung = {"PATH": pfad, "HOME": str(ort), "LANG": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
                "LSAN_OPTIONS": os.environ.get("LSAN_OPTIONS", "")}
    return subprocess.run(["sh", "-eu", "-c", text], cwd=ort, env=umgebung, capture_output=True, timeout=60,
                          encoding="utf-8", errors="replace", stdin=subprocess.DEVNULL)


class Seite:
    def __init__(self, pfad, ordner):
        self.pfad, self.fehler, self.läufe = pfad, [], 0
        self.zeilen = pfad.read_text(encoding="utf-8").split("\n")
        shutil.copytree(WURZEL / "examples", ordner / "examples")
        (ordner / "programme").mkdir()
        for p in PROGRAMME:
            (ordner / "programme" / p.name).symlink_to(p.resolve())
        self.ort = ordner if pfad.name == "README.md" else ordner / "examples"
        if pfad.name == "README.md":
            self.ort = ordner / "quelle"
            self.ort.mkdir()
            (ordner / "examples").rename(self.ort / "examples")

    def falsch(self, zeile, text):
        self.fehler.append(f"{self.pfad.relative_to(WURZEL)}:{zeile}: {text}")

    def prüfen(self):
        gedruckt, neu = None, []  # what the script before printed and the page has still to show
        for art, von, bis in blöcke(self.pfad, self.zeilen):
            text = klartext(self.pfad, self.zeilen[von:bis])
            wort, _, rest = art.partition(" ")
            if gedruckt and art != "ausgabe":
                self.falsch(von, "davor wird etwas gedruckt, das die Seite nicht zeigt:\n" + "\n".join(gedruckt))
            if art == "sh ausführen":
                gedruckt = self.lauf(von, "\n".join(text))
                continue
            if art == "ausgabe":
                if gedruckt is not None and [z.rstrip() for z in text] != gedruckt:
                    self.falsch(von, "gedruckt wird:\n" + "\n".join(gedruckt))
                    neu.append((von, bis, gedruckt))
            elif wort == "datei":
                (self.ort / rest).write_text("\n".join(text) + "\n", encoding="utf-8")
            elif wort == "aus":
                self.auszug(von, rest, text)
            elif art == "ohne Ende" or wort == "sh" and not rest.startswith("nicht ausgeführt: "):
                self.falsch(von, f'der Block "{art}" wird nicht ausgeführt')
            elif wort != "sh" and RUF.search("\n".join(text)):
                self.falsch(von, "ein Aufruf, der nicht ausgeführt wird")
            gedruckt = None
        if gedruckt:
            self.falsch(len(self.zeilen), "die Seite zeigt nicht, was gedruckt wird:\n" + "\n".join(gedruckt))
        if neu and os.environ.get("TAVORENA_SOLL_NEU") == "1":
            for von, bis, soll in reversed(neu):
                if self.pfad.suffix != ".md":
                    soll = [z.replace("\\", r"\e").replace("-", r"\-") for z in soll]
                self.zeilen[von:bis] = soll
            self.pfad.write_text("\n".join(self.zeilen), encoding="utf-8")

    def lauf(self, zeile, text):
        if not FENSTER and any(m.group(1) is None for m in RUF.finditer(text)):
            return None  # a build without Qt
        self.läufe += 1
        erg = ausführen(text, self.ort)
        if erg.returncode != 0:
            self.falsch(zeile, f"Ergebnis {erg.returncode}: {erg.stderr}")
        return [z.rstrip() for z in STEMPEL.sub("21.11.2026   09:30", erg.stdout).rstrip("\n").split("\n")
                ] if erg.stdout else []

    def auszug(self, zeile, name, text):
        datei = (self.ort / name).read_text(encoding="utf-8")
        stelle, ganz = 0, "\n" + "\n".join(z.rstrip() for z in datei.splitlines()) + "\n"
        for stück in re.split(r"\n *\.\.\. *\n", "\n".join(z.rstrip() for z in text)):
            stelle = ganz.find("\n" + stück + "\n", stelle)
            if stelle < 0:
                self.falsch(zeile, f"steht so nicht in {name}:\n{stück}")
                return


def main():
    seiten = [WURZEL / "README.md", *sorted((WURZEL / "docs/handbuch").glob("*.md"))]
    for ordner in ("packaging", "debian"):
        seiten += sorted((WURZEL / ordner).glob("*.[1-9]"))
    fehler, läufe = [], 0
    for pfad in seiten:
        with tempfile.TemporaryDirectory() as ordner:
            seite = Seite(pfad, pathlib.Path(ordner))
            seite.prüfen()
            fehler += seite.fehler
            läufe += seite.läufe
    print("\n".join(fehler + [f"{läufe} Aufrufe auf {len(seiten)} Seiten, {len(fehler)} Fehler"]))
    return 1 if fehler or läufe == 0 else 0


sys.exit(main())
