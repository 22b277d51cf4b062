"""Makes HTML and PDF of the handbook with pandoc and weasyprint.

bauen.py ZIEL FASSUNG: ZIEL/html/*.html and ZIEL/handbuch.pdf. The same pages give the same bytes, wherever
and whenever they are made.
"""

import html
import logging
import os
import re
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from weasyprint import CSS, HTML, LOGGER

from quelle import ERSTE, ORDNER, VERZEICHNIS, ankername, seiten

HIER = Path(__file__).resolve().parent
BASIS = "handbuch:/"
SPALTENZEICHEN = 90  # in a line of a table on paper


def rumpf(seite):
    """The page as pandoc's HTML; its places have their names."""
    ruf = ["pandoc", "-f", "gfm-gfm_auto_identifiers", "-t", "html5", "--wrap=none", "--no-highlight"]
    text = subprocess.run(ruf, input=seite.text, text=True, capture_output=True, check=True).stdout
    vergeben = set()

    def benannt(treffer):
        name = ankername(html.unescape(re.sub(r"<[^>]+>", "", treffer[3])))
        if not name or name in vergeben:
            return treffer[0]
        vergeben.add(name)
        return f'{treffer[1]}{treffer[2]} id="{html.escape(name)}">{treffer[3]}'

    text = re.sub(r"(<)(h[1-6])>(.*)", benannt, text)
    text = re.sub(r'(<tr class="(?:odd|even)">\n<)(td[^>]*)>(.*)', benannt, text)
    return re.sub(r"(<table>.*?</table>)", r'<div class="tafel">\1</div>', text, flags=re.S)


def verwiesen(text, ziel_von):
    """With each link to a page led to ziel_von(page, place)."""
    return re.sub(
        r'href="([a-z0-9]+\.md)(?:#([^"]*))?"', lambda t: f'href="{ziel_von(t[1], t[2] or "")}"', text
    )


def zur_htmlseite(datei, stelle):
    return datei.removesuffix(".md") + ".html" + ("#" + stelle if stelle else "")


def im_dokument(datei, stelle=""):
    return "#" + datei.removesuffix(".md") + ("--" + stelle if stelle else "")


def inhalt(rumpf_der_ersten):
    """The list of all pages on the first one."""
    return rumpf_der_ersten[rumpf_der_ersten.index("<ul>") : rumpf_der_ersten.rindex("</ul>") + 5]


def htmlseiten(ziel, alle, rümpfe):
    shutil.rmtree(ziel, ignore_errors=True)
    (ziel / "bilder").mkdir(parents=True)
    shutil.copyfile(HIER / "stil.css", ziel / "stil.css")
    liste = inhalt(rümpfe[ERSTE])
    namen = list(alle)
    for i, (name, seite) in enumerate(alle.items()):
        for bild in sorted({z for _, ist_bild, z in seite.verweise() if ist_bild}):
            shutil.copyfile(ORDNER / bild, ziel / bild)
        links = liste.replace(f'href="{name}"', f'aria-current="page" href="{name}"')
        nachbarn = "".join(
            f'<a rel="{art}" href="{namen[k]}">{pfeil.format(html.escape(alle[namen[k]].titel))}</a>\n'
            for art, k, pfeil in (("prev", i - 1, "← {}"), ("next", i + 1, "{} →"))
            if 0 <= k < len(namen)
        )
        titel = seite.titel if name == ERSTE else f"{seite.titel} - {alle[ERSTE].titel}"
        text = f"""<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>{html.escape(titel)}</title>
<link rel="stylesheet" href="stil.css">
</head>
<body>
<a class="sprung" href="#text">Zum Text</a>
<nav class="inhalt" aria-label="Inhalt">
<p><a href="{ERSTE}">{html.escape(alle[ERSTE].titel)}</a></p>
{links}
</nav>
<main id="text">
{rümpfe[name]}<nav class="nachbarn" aria-label="Blättern">
{nachbarn}</nav>
</main>
</body>
</html>
"""
        (ziel / zur_htmlseite(name, "")).write_text(verwiesen(text, zur_htmlseite), encoding="utf-8")


def spaltenbreiten(treffer):
    """A table with widths on paper: as much as its text asks for, never less than its longest word."""
    zeilen = [re.findall(r"<t[hd][^>]*>(.*?)</t[hd]>", z, re.S) for z in treffer[0].split("<tr")[1:]]
    breiten = []
    for spalte in zip(*zeilen):
        texte = [html.unescape(re.sub(r"<[^>]+>", "", z.replace("</a>", " (S.\u00a0100)"))) for z in spalte]
        wort = 1.1 * max(len(w) for t in texte for w in t.split() or [""]) + 2
        menge = SPALTENZEICHEN * sum(map(len, texte)) / sum(len(re.sub(r"<[^>]+>", "", z)) for r in zeilen for z in r)
        breiten.append(max(wort, min(menge, max(map(len, texte)) + 2)))
    spalten = "".join(f'<col style="width: {100 * b / sum(breiten):.1f}%">' for b in breiten)
    return treffer[0].replace("<table>", f"<table>\n<colgroup>{spalten}</colgroup>")


def druckfassung(alle, rümpfe, fassung):
    """All pages as one document: title page, contents, a chapter for each page."""
    erste = rümpfe[ERSTE]
    anfang, liste = erste.index("<ul>"), inhalt(erste)
    kapitel = []
    for name in alle:
        if name == ERSTE:
            continue
        kurz = name.removesuffix(".md")
        text = re.sub(r' id="([^"]*)"', rf' id="{kurz}--\1"', rümpfe[name])
        text = re.sub(r"<table>.*?</table>", spaltenbreiten, text, flags=re.S)
        art = ' class="verzeichnis"' if name == VERZEICHNIS else ""
        if art:
            text = re.sub(r"(<p><strong>.*?)(?=<h2|$)", r'<div class="spalten">\n\1</div>\n', text, flags=re.S)
        kapitel.append(f'<section id="{kurz}"{art}>\n{text}</section>\n')
    text = f"""<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="utf-8">
<title>{html.escape(alle[ERSTE].titel)}</title>
</head>
<body>
<section class="titel">
{erste[:anfang]}<p class="fassung">Fassung {fassung}</p>
</section>
<section class="inhalt" id="{ERSTE.removesuffix(".md")}">
<h1>Inhalt</h1>
{liste}
</section>
{"".join(kapitel)}</body>
</html>
"""
    return verwiesen(text, im_dokument)


def pdf(ziel, text):
    """Pictures go by a name without a folder: it is written into the file."""

    def holen(name):
        return {"file_obj": (ORDNER / name.removeprefix(BASIS)).open("rb")}

    os.environ["SOURCE_DATE_EPOCH"] = "0"  # the date in the embedded fonts
    mängel = []
    LOGGER.handlers = [logging.Handler()]
    LOGGER.handlers[0].emit = lambda e: mängel.append(e.getMessage())  # also a link that leads nowhere
    dokument = HTML(string=text, base_url=BASIS, url_fetcher=holen)
    dokument.write_pdf(ziel, stylesheets=[CSS(HIER / "druck.css")], optimize_size=("fonts",))
    if mängel:
        sys.exit("\n".join(mängel))


def main(ziel, fassung):
    alle = seiten()
    with ThreadPoolExecutor() as helfer:
        rümpfe = dict(zip(alle, helfer.map(rumpf, alle.values())))
    htmlseiten(ziel / "html", alle, rümpfe)
    pdf(ziel / "handbuch.pdf", druckfassung(alle, rümpfe, fassung))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("Aufruf: bauen.py ZIEL FASSUNG")
    main(Path(sys.argv[1]), sys.argv[2])
