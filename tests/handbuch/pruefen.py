"""The handbook: links, pictures, help numbers, commands, the index, spelling. pruefen.py ROOT [OUTPUT]

With OUTPUT, where the target "handbuch" put HTML and PDF, their links, and that a second run elsewhere gives
the same bytes.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

WURZEL = Path(sys.argv[1]).resolve()
sys.dont_write_bytecode = True
sys.path.insert(0, str(WURZEL / "docs/handbuch/werkzeug"))
from quelle import ERSTE, MENÜ, ORDNER, VERZEICHNIS, seiten  # noqa: E402
from verzeichnis import menüpunkte, nennungen, stellen_des_befehls, vergleichbar, verzeichnis  # noqa: E402

# What the old spelling never has: "dass", "Messlinie", "nummerieren".
NEU = re.compile(r"(?<!\ba)[aeiouäöüy]ss(?![aeiouäöüy])|nummerier|umnummer", re.I)
# Names of fields, records, functions and programs: dH, PNRA, NumPy.
NAME = re.compile(r"\w*[a-zäöüß][A-ZÄÖÜ]\w*|[^a-zäöüß]+|[^\W_]")
fehler = []


def verweise(alle):
    bilder = set()
    for name, seite in alle.items():
        for zeile, ist_bild, ziel in seite.verweise():
            datei, _, stelle = unquote(ziel).partition("#")
            if ist_bild:
                bilder.add(datei)
                gut = (ORDNER / datei).is_file()
            else:
                gut = datei in alle and (not stelle or stelle in alle[datei].anker())
            if not gut:
                fehler.append(f"{name}:{zeile}: {ziel} gibt es nicht")
    for bild in sorted({f"bilder/{b.name}" for b in (ORDNER / "bilder").iterdir()} - bilder):
        fehler.append(f"{bild}: keine Seite zeigt es")
    for name, seite in alle.items():
        texte = [s.text for s in seite.stellen if s.stufe or s.kopf in ("Meldung", "Anzeige")]
        fehler.extend(f"{name}: {t} steht zweimal da" for t in sorted(set(texte)) if texte.count(t) > 1)
    genannt = {ziel for _, _, ziel in alle[ERSTE].verweise()} | {ERSTE}
    fehler.extend(f"{name}: fehlt im Inhalt von {ERSTE}" for name in alle if name not in genannt)


def hilfenummern(alle):
    """Each number that a form or view names leads to a page of its own."""

    def zeilen(datei):
        text = (WURZEL / "tavorena" / datei).read_text(encoding="utf-8")
        return [(int(n), s) for n, s in re.findall(r'\b(\d+),\s+"(\w+\.md)"', text)]

    tafel, arten = sorted(zeilen("shell/Handbuchseiten.cpp")), zeilen("worksheets/Blattart.cpp")
    fehler.extend(f"{s} von Hilfenummer {n} gibt es nicht" for n, s in tafel + arten if s not in alle)
    setzt = re.compile(r"\b\w*(?:Hilfenummer|[Hh]ilfe|seite) = (?:[\w: ]+ \? (\d+) : )?(\d+);")
    nummern = {}
    for quelle in sorted((WURZEL / "tavorena").rglob("*.[ch]*")):
        for treffer in setzt.finditer(quelle.read_text(encoding="utf-8")):
            nummern.update((int(n), quelle.name) for n in treffer.groups() if n and int(n))
    if len(tafel) < 30 or len(arten) < 20 or len(nummern) < 15:
        fehler.append("die Hilfenummern sind in den Quellen nicht mehr zu finden")
    for nummer, quelle in nummern.items():
        seite = [s for n, s in tafel if n <= nummer][-1]
        seite = next((s for n, s in arten if n <= nummer < n + 10), seite)
        if seite == ERSTE:
            fehler.append(f"{quelle}: Hilfenummer {nummer} hat keine Seite")


def befehle(alle):
    punkte = menüpunkte(alle[MENÜ])
    namen = {vergleichbar(t) for weg, _ in punkte for t in weg}
    for seite in alle.values():
        for zeile, text in seite.prosa():
            for weg in nennungen(text):
                if len(weg) > 1 and not namen.issuperset(weg):
                    fehler.append(f"{seite.name}:{zeile}: {' | '.join(weg)} steht nicht im Menü")
    for weg, eigene in punkte:
        if eigene not in stellen_des_befehls(weg, eigene, alle):
            fehler.append(f"{eigene}: kein Wort von {' | '.join(weg)}")
    if verzeichnis(alle) != alle[VERZEICHNIS].text:
        fehler.append(f"{VERZEICHNIS} ist veraltet: docs/handbuch/werkzeug/verzeichnis.py > docs/handbuch/{VERZEICHNIS}")


def sterne(alle):
    """The stars of a mark, which would be emphasis, stand in code."""
    for seite in alle.values():
        for zeile, text in seite.prosa():
            if "***" in re.sub(r"`[^`]*`", "", text):
                fehler.append(f"{seite.name}:{zeile}: Sterne einer Marke gehören in `...`")


def rechtschreibung(alle):
    liste = (ORDNER / "woerter.txt").read_text(encoding="utf-8").split()
    if liste != sorted(set(liste)):
        fehler.append("woerter.txt ist nicht sortiert, oder ein Wort steht zweimal da")
    bekannt, wo = set(liste), {}
    for name, seite in alle.items():
        for zeile, text in seite.prosa():
            if name == VERZEICHNIS:
                continue
            text = re.sub(r"``.*?``|`[^`]*`|\]\([^)]*\)|[\w\\*]*\.[a-z]\w{1,3}\b", " ", text)  # code, links, file names
            for wort in re.findall(r"[^\W\d_]+", text):
                if not NAME.fullmatch(wort) and not {wort, wort[0].lower() + wort[1:]} & bekannt:
                    wo.setdefault(wort, f"{name}:{zeile}")
    ruf = ["hunspell", "-d", "de_DE", "-i", "utf-8", "-l"]
    lauf = subprocess.run(ruf, input="\n".join(wo), text=True, capture_output=True, check=True)
    fremd = set(lauf.stdout.split()) | {w for w in wo if NEU.search(w)}
    fehler.extend(f"{wo[w]}: {w} steht nicht in woerter.txt" for w in sorted(fremd))


class Html(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.namen, self.ziele, self.titel = [], [], 0
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        self.titel += tag == "h1"
        for art, wert in attrs:
            if art == "id":
                self.namen.append(wert)
            elif art in ("href", "src"):
                self.ziele.append(wert)


def htmlausgabe(ordner, alle):
    dokumente = {d.name: Html(d.read_text(encoding="utf-8")) for d in ordner.glob("*.html")}
    if len(dokumente) != len(alle):
        fehler.append(f"{len(dokumente)} HTML-Seiten statt {len(alle)}")
    for name, d in dokumente.items():
        if d.titel != 1 or len(set(d.namen)) != len(d.namen):
            fehler.append(f"{name}: {d.titel} Überschriften erster Stufe, oder ein Name steht zweimal da")
        for ziel in d.ziele:
            datei, _, stelle = unquote(ziel).partition("#")
            ist_seite = datei == "" or datei.endswith(".html")
            if not (ordner / datei).exists() or (
                ist_seite and stelle and stelle not in dokumente[datei or name].namen
            ):
                fehler.append(f"{name}: {ziel} gibt es nicht")


def pdfausgabe(datei, alle):
    """Every link of the pages is one in the PDF, to a page that is there; each chapter starts where the contents say."""
    roh = datei.read_bytes()
    zahl = sum(not bild for s in alle.values() for _, bild, _ in s.verweise())
    if roh.count(b"/Subtype /Link") < zahl or b"/S /URI" in roh:
        fehler.append(f"{roh.count(b'/Subtype /Link')} Verweise im PDF statt {zahl}, oder einer führt hinaus")
    text = subprocess.run(["pdftotext", "-layout", datei, "-"], text=True, capture_output=True, check=True).stdout
    blätter = text.split("\f")
    inhalt = re.findall(r"^ *(\S.*?) ?(?:\. )+\.? *(\d+)$", "\n".join(blätter[:6]), re.M)
    if len(inhalt) != len(alle) - 1:
        fehler.append(f"{len(inhalt)} Zeilen im Inhalt des PDF statt {len(alle) - 1}")
    for (_, nummer), seite in zip(inhalt, list(alle.values())[1:]):
        anfang = " ".join(blätter[int(nummer) - 1].split()[: 15 + 2 * len(seite.titel.split())])
        if seite.titel not in anfang:
            fehler.append(f"{seite.titel} beginnt nicht auf Seite {nummer}")


def noch_einmal(ordner):
    """From a copy of the sources at another place, for another user."""
    fassung = re.search(r"Fassung (\S+)", subprocess.run(
        ["pdftotext", "-l", "1", ordner / "handbuch.pdf", "-"], text=True, capture_output=True, check=True).stdout)[1]
    with tempfile.TemporaryDirectory() as neu:
        shutil.copytree(ORDNER, f"{neu}/anderswo/handbuch")
        umgebung = dict(os.environ, TZ="Asia/Tokyo", HOME=neu, LANG="C.UTF-8")
        werkzeug = f"{neu}/anderswo/handbuch/werkzeug/bauen.py"
        subprocess.run([sys.executable, werkzeug, f"{neu}/ziel", fassung], check=True, env=umgebung)
        for datei in [ordner / "handbuch.pdf", *sorted((ordner / "html").rglob("*.*"))]:
            zweite = Path(neu, "ziel", datei.relative_to(ordner))
            if not zweite.is_file() or zweite.read_bytes() != datei.read_bytes():
                fehler.append(f"{datei.name}: zweimal gemacht ist nicht dasselbe")


def main():
    alle = seiten()
    if len(sys.argv) == 2:
        verweise(alle)
        hilfenummern(alle)
        befehle(alle)
        sterne(alle)
        rechtschreibung(alle)
    else:
        ordner = Path(sys.argv[2]).resolve()
        htmlausgabe(ordner / "html", alle)
        pdfausgabe(ordner / "handbuch.pdf", alle)
        noch_einmal(ordner)
    print("\n".join(fehler))
    return len(fehler) > 0


if __name__ == "__main__":
    sys.exit(main())
