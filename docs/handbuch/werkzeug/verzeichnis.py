"""The index of commands and messages, made from the pages: verzeichnis.py > ../verzeichnis.md"""

import re
import sys
from functools import cache

from quelle import ERSTE, MENÜ, VERZEICHNIS, klartext, seiten, zellen

# Tables whose first column names what the program shows.
MELDUNGSKÖPFE = ("Meldung", "Marke", "Anzeige", "Vermerk")


@cache
def vergleichbar(text):
    """A caption or message without what may differ where it is told: dots, case, brackets, quotes."""
    text = re.sub(r"\([^)]*\)|\.\.\.|[\"„“!?:;,.]", " ", text)
    return " ".join(re.sub(r" ?- ", "- ", text).casefold().split())


def ordnung(text):
    """The key of an index: letters and digits alone, ä as a and ß as ss; no gap (*n*) counts."""
    text = re.sub(r"\*[nmk]\*", "", text)
    text = text.lower().translate(str.maketrans({"ä": "a", "ö": "o", "ü": "u", "ß": "ss", "ð": "d"}))
    return "".join(z for z in text if z.isalnum() or z == " ").strip()


def menüpunkte(menüseite):
    """([menu, ..., caption], page of F1) of each entry."""
    menü, alle = "", []
    for _, zeile in menüseite.prosa():
        if zeile.startswith("## "):
            menü = klartext(zeile[3:])
        elif treffer := re.match(r"\| (.*) \| .* \| \[F1\]\((.*)\) \|", zeile):
            alle.append(([menü] + klartext(treffer[1]).split(": "), treffer[2]))
    return alle


@cache
def nennungen(zeile):
    """What a line names as such: its emphasised words, as paths ("Datei | Drucken"), its heading, its first cell."""
    alle = []
    for betont in re.findall(r"\*+([^*]+)\*+", zeile.replace("\\*", "\0")):
        alle.append([vergleichbar(t) for t in klartext(betont).replace("\0", "*").split(" | ")])
    if zeile.startswith("#"):
        for teil in re.split(r"[:,]", klartext(zeile.lstrip("#"))):
            alle.append([re.sub(r"^(vr )?\w\w\.?\d\d ", "", vergleichbar(teil))])
    elif zeile.startswith("|"):
        alle.append([vergleichbar(klartext(zellen(zeile)[0]))])
    return alle


def stellen_des_befehls(weg, eigene, alle):
    """{page: number of the line} where a command is told, its own page first; that is missing without a word of it."""
    name, menü = vergleichbar(weg[-1]), [vergleichbar(t) for t in weg[:-1]]
    unverkennbar = " " in name or len(name) > 14  # not "Drucken", which many windows have
    gefunden = {}
    for seite in alle.values():
        if seite.name in {ERSTE, MENÜ, VERZEICHNIS} - {eigene}:
            continue
        schwach = None
        for nummer, zeile in seite.prosa():
            for nennung in nennungen(zeile):
                if nennung[-1] == name and (
                    unverkennbar or seite.name == eigene or (len(nennung) > 1 and nennung[-2] in menü)
                ):
                    gefunden.setdefault(seite.name, nummer)
            if schwach is None and name in vergleichbar(klartext(zeile)):
                schwach = nummer
        if seite.name == eigene and schwach is not None:
            gefunden.setdefault(eigene, schwach)
    return {s: gefunden[s] for s in sorted(gefunden, key=lambda s: s != eigene)}


def einzelne(zelle):
    """The messages of a cell, which names several of a kind behind each other."""
    zelle = re.sub(r" und (ähnliche|andere|was sonst).*|; ebenso .*", "", zelle)
    for text in re.split(r",(?= +(?:[A-ZÄÖÜ\"`]|\.\.\. |\*n\* ))", zelle):
        text = re.sub(r"^\.\.\. | hinter D$", "", text.strip())
        if ordnung(text):  # the stars of a mark are no emphasis
            yield "`" + re.sub(r"[`\\]", "", text) + "`" if "**" in text else text


def meldungen(alle):
    """{message, as Markdown: {page: number of the line}} of all tables of messages and marks."""
    gefunden = {}
    for seite in alle.values():
        if seite.name == VERZEICHNIS:
            continue
        for stelle in seite.stellen:
            if stelle.kopf.startswith(MELDUNGSKÖPFE):
                for text in einzelne(zellen(seite.zeilen[stelle.nummer - 1])[0]):
                    gefunden.setdefault(text, {}).setdefault(seite.name, stelle.nummer)
    # Told on other pages too: all of it, or a long piece between its gaps.
    for text, orte in gefunden.items():
        stücke = [s for t in re.split(r"\.\.\.|\*\w+\*", text) if (s := vergleichbar(t))]
        genug = 15 if len(stücke) == 1 else 20
        stücke = [s for s in stücke if " " in s and len(s) >= genug and not klartext(text)[0].islower()]
        for seite in alle.values():
            if seite.name in (ERSTE, MENÜ, VERZEICHNIS) or seite.name in orte:
                continue
            for nummer, zeile in seite.prosa():
                if any(s in vergleichbar(klartext(zeile)) for s in stücke):
                    orte.setdefault(seite.name, nummer)
    return gefunden


def verweis(seite, nummer):
    stelle = seite.stelle_vor(nummer)
    return f"[{seite.titel}]({seite.name}{'#' + stelle.anker if stelle else ''})"


def liste(einträge):
    """Lines of an index; einträge: (text as Markdown, links)."""
    zeilen, buchstabe = [], ""
    for text, verweise in sorted(einträge, key=lambda e: (ordnung(e[0]), e)):
        erster = ordnung(text)[0].upper()
        erster = erster if erster.isalpha() else "0-9"
        if erster != buchstabe:
            buchstabe = erster
            zeilen += ["", f"**{buchstabe}**", ""]
        zeilen.append(f"* {text}: {', '.join(verweise)}")
    return zeilen


def verzeichnis(alle):
    befehle = []
    for weg, eigene in menüpunkte(alle[MENÜ]):
        orte = stellen_des_befehls(weg, eigene, alle)
        verweise = [verweis(alle[s], n) for s, n in orte.items()]
        if eigene not in orte:
            verweise.insert(0, f"[{alle[eigene].titel}]({eigene})")
        befehle.append((f"{weg[-1]} (*{' | '.join(weg[:-1])}*)".replace("\\", "").replace("*.", "\\*."), verweise))
    texte = [
        (text, [verweis(alle[s], n) for s, n in orte.items()]) for text, orte in meldungen(alle).items()
    ]
    return "\n".join(
        ["# Verzeichnis der Befehle und Meldungen", ""]
        + ["## Befehle", "", "Alle Menüpunkte, in Klammern das Menü, und wo von ihnen die Rede ist."]
        + liste(befehle)
        + ["", "## Meldungen", "", "Meldungen und Marken, *n* steht für eine Zahl, ... für einen Namen oder Wert."]
        + liste(texte)
        + [""]
    )


if __name__ == "__main__":
    sys.stdout.write(verzeichnis(seiten()))
