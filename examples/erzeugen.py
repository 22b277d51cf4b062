#!/usr/bin/env python3
"""Makes the example job: an invented village quarter in Gauss-Krüger coordinates.

    examples/erzeugen.py [path of tavorena-stapel]

Writes musterdorf.kor and musterdorf.sta beside this file, the passpoints of python/ to a new survey, and
musterdorf.dru by replaying the batch file when the program is given. The same numbers come out every time: the measuring errors have a fixed seed.
"""
import math
import pathlib
import random
import re
import subprocess
import sys

HIER = pathlib.Path(__file__).resolve().parent
ZUFALL = random.Random(19700101)
URSPRUNG = (3456213.40, 5612387.15)  # Rechts, Hoch of the churchyard corner, zone 3
DREHUNG = math.radians(14.3)  # of the main street against east
STEMPEL = "21.11.2026   09:30"

punkte = {}  # number -> (Rechts, Hoch, Höhe, symbol)


def setze(nummer, x, y, symbol):
    """Puts a point given in the system of the main street (x along it, y to the left) into the table."""
    r = URSPRUNG[0] + x * math.cos(DREHUNG) - y * math.sin(DREHUNG)
    h = URSPRUNG[1] + x * math.sin(DREHUNG) + y * math.cos(DREHUNG)
    z = 181.4 + 0.012 * x + 0.021 * y + 0.6 * math.sin(x / 45) + ZUFALL.gauss(0, 0.03)
    punkte[nummer] = (round(r, 3), round(h, 3), round(z, 3), symbol)


def krumm(x):
    """The bend of the street."""
    return 3.2 * math.sin(x / 70)


def flurstuecke(erste, gebaeude, anfang, breiten, strasse, seite, tiefe):
    """A row of parcels on one side of a street: four boundary points of each pair of neighbours are
    shared; every parcel but the open ones carries a house of four corners."""
    x, nummer, ecke = anfang, erste, gebaeude
    for i in range(len(breiten) + 1):
        vorn = strasse(x) + seite * 4.0
        hinten = strasse(x) + seite * (4.0 + tiefe + ZUFALL.uniform(-2.5, 2.5))
        setze(nummer, x + ZUFALL.uniform(-0.2, 0.2), vorn, "015")
        setze(nummer + 1, x + ZUFALL.uniform(-0.9, 0.9), hinten, "015")
        nummer += 2
        if i < len(breiten) and i % 5 != 3:
            b = breiten[i]
            links, rechts = x + 3.0 + ZUFALL.uniform(0, 1.5), x + b - 3.0 - ZUFALL.uniform(0, 1.5)
            nah = vorn + seite * (5.0 + ZUFALL.uniform(0, 2.0))
            fern = nah + seite * (9.5 + ZUFALL.uniform(0, 2.5))
            for ex, ey in ((links, nah), (rechts, nah), (rechts, fern), (links, fern)):
                setze(ecke, ex, ey, "027")
                ecke += 1
        if i < len(breiten):
            x += breiten[i]


def breiten(anzahl):
    return [round(ZUFALL.uniform(17.5, 24.5), 2) for _ in range(anzahl)]


def strecke(a, b):
    return math.hypot(punkte[a][0] - punkte[b][0], punkte[a][1] - punkte[b][1])


def punktfeld():
    for i, (x, y) in enumerate([(-12, 1), (58, 2.5), (121, 4.4), (189, 0.6), (262, -2.2), (120, 62), (118, 118),
                                (188, -58), (186, -112), (20, 96), (252, 88), (64, -84)]):
        setze(101 + i, x, y, "002")
    flurstuecke(1001, 4001, 0, breiten(14), krumm, +1, 38)
    flurstuecke(1101, 4101, 4, breiten(14), krumm, -1, 41)
    flurstuecke(1201, 4201, 6, breiten(13), lambda x: 92 + 0.04 * x, +1, 36)
    flurstuecke(1301, 4301, 2, breiten(11), lambda x: -96 - 0.03 * x, -1, 37)


def kor(feld):
    return "".join(f"      {n:8d}   {r:11.3f}   {h:11.3f} {z:11.3f}  {s}\r\n" for n, (r, h, z, s) in sorted(feld.items()))


def passpunkte():
    """The control points as a new survey found them: shifted, turned by 3 mgon, 12 ppm longer, with errors of a
    centimetre."""
    w, m = math.radians(0.0027), 1.000012
    neu = {}
    for n in range(101, 113):
        r, h, z, s = punkte[n]
        dr, dh = m * (r - URSPRUNG[0]), m * (h - URSPRUNG[1])
        neu[n] = (URSPRUNG[0] + 0.184 + dr * math.cos(w) + dh * math.sin(w) + ZUFALL.gauss(0, 0.01),
                  URSPRUNG[1] - 0.327 + dh * math.cos(w) - dr * math.sin(w) + ZUFALL.gauss(0, 0.01), z, s)
    return neu


def block(titel, anfang, zeilen, ende):
    kopf = [f"M  {titel}", f"C  Tavorena             {STEMPEL}", "C  Datei: musterdorf.kor",
            "RISS       Riss 12/2026", "BERNR      3"]
    schluss = [ende, f"EM  (Ende Modul  {titel})", "C ________________________"]
    return kopf + anfang + zeilen + schluss


def anschluss(a, wa, e, we):
    return [f"PAN {a:8d}  {wa:12.4f}", f"PEN {e:8d}  {we:12.4f}"]


def gemessen(a, b, streuung=0.012):
    return round(strecke(a, b) + ZUFALL.gauss(0, streuung), 2)


def sta():
    linien = "VR 24.40 Linienelemente"
    polar = "VR 08.40 Polarelemente"
    kontrolle = "VR 22.10 Entfernungskontrolle"
    zeilen = []
    for a, e, von, bis, anlege in ((101, 102, 1001, 1007, 0), (102, 103, 1107, 1114, 0), (103, 104, 1013, 1020, 2.5),
                                   (104, 105, 1118, 1126, 0), (103, 106, 1011, 1016, 0)):
        endmass = round(anlege + gemessen(a, e, 0.02), 2)
        nummern = [n for n in range(von, bis + 1) if n in punkte]
        zeilen += block(linien, anschluss(a, anlege, e, endmass), [f"NR  {n:8d}" for n in nummern], "E Ende")
    for station, ziel, ablesung, nummern in ((102, 101, 0.0, range(4001, 4009)), (103, 104, 12.3450, range(4017, 4029)),
                                             (107, 106, 200.0, range(1211, 1219)), (109, 108, 399.9985, range(1309, 1317))):
        vorhanden = [n for n in nummern if n in punkte]
        zeilen += block(polar, anschluss(station, ablesung, ziel, gemessen(station, ziel)),
                        [f"NR  {n:8d}" for n in vorhanden], "E Ende")
    for erste, grob in ((1001, {4: 0.31}), (1101, {2: 0.06, 7: -0.19})):
        paare = [(n, n + 2) for n in range(erste, erste + 22, 2)]
        (a, e), weitere = paare[0], paare[1:]
        masse = {p: round(gemessen(*p) + grob.get(i, 0), 2) for i, p in enumerate(paare)}
        zeilen += block(kontrolle, anschluss(a, 0, e, masse[(a, e)]),
                        [f"NND {p:8d}  {q:8d}  {masse[(p, q)]:12.4f}" for p, q in weitere], "E  (Ende)")
    return "".join(z + "\r\n" for z in zeilen)


def main():
    punktfeld()
    (HIER / "musterdorf.kor").write_bytes(kor(punkte).encode())
    (HIER / "musterdorf.sta").write_bytes(sta().encode())
    (HIER / "python" / "passpunkte.kor").write_bytes(kor(passpunkte()).encode())
    if len(sys.argv) > 1:
        dru = HIER / "musterdorf.dru"
        dru.unlink(missing_ok=True)
        subprocess.run([str(pathlib.Path(sys.argv[1]).resolve()), "--koordinaten", "musterdorf.kor", "--protokoll",
                        "musterdorf.dru", "musterdorf.sta"], cwd=HIER, check=True)
        text = dru.read_bytes().decode()
        dru.write_bytes(re.sub(r"\d\d\.\d\d\.\d{4}   \d\d:\d\d", STEMPEL, text).encode())


if __name__ == "__main__":
    main()
