#!/usr/bin/env python3
"""Makes the example job: an invented village quarter in Gauss-Krüger coordinates.

    examples/erzeugen.py [path of tavorena-stapel]

Writes musterdorf.kor and musterdorf.sta beside this file, the passpoints to a new survey, a day's raw data
(tag.gsi), and, when the program is given, musterdorf.dru by replaying the batch file, tag.sta and tag.dru by
computing the day. The same numbers come out every time: the measuring errors have a fixed seed.
"""
import math
import pathlib
import random
import re
import subprocess
import sys

HIER = pathlib.Path(__file__).resolve().parent
ZUFALL = random.Random(19700101)
ZUFALL_NEU = random.Random(19700102)  # of the new points
ZUFALL_HOEHE = random.Random(19700103)  # of the level
ZUFALL_STATION = random.Random(19700104)  # of the total station
ZUFALL_TAG = random.Random(19700104)  # of the day's raw data
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
    zeilen += neue_punkte()
    return "".join(z + "\r\n" for z in zeilen)


# ---- the field book of the new points: one block of every kind, measured to points that are made up here


def feld(nummer):
    """The place of a made-up point [m, and its height]."""
    x, y = {5001: (12.5, 1.1), 5002: (31.2, -1.4), 5003: (49.9, 3.2), 5011: (140.3, 10.8), 5012: (155.7, -6.1),
            5013: (170.2, 8.3), 5024: (27.3, 14.9), 5030: (96.4, 30.2), 5031: (133.0, 90.4), 5041: (60.3, 40.1),
            5042: (128.8, 31.6), 5043: (196.2, 36.9), 5061: (83.5, 2.1), 5062: (74.2, 9.4), 5063: (88.9, 12.6),
            5064: (96.3, -5.8), 5065: (201.4, 9.7)}[nummer]
    return (URSPRUNG[0] + x * math.cos(DREHUNG) - y * math.sin(DREHUNG),
            URSPRUNG[1] + x * math.sin(DREHUNG) + y * math.cos(DREHUNG), 182.2 + 0.011 * x + 0.02 * y)


def ort(n):
    return punkte[n] if n in punkte else feld(n)


def winkel(a, b):
    """Bearing [gon]."""
    p, q = ort(a), ort(b)
    return math.atan2(q[0] - p[0], q[1] - p[1]) * 200 / math.pi % 400


def weit(a, b):
    return math.hypot(ort(b)[0] - ort(a)[0], ort(b)[1] - ort(a)[1])


def richtung(a, b, orientierung=0.0):
    """A direction that is read at a to b."""
    return round((winkel(a, b) - orientierung + ZUFALL_NEU.gauss(0, 0.0008)) % 400, 4)


def mass(a, b):
    return round(weit(a, b) + ZUFALL_NEU.gauss(0, 0.008), 3)


def zenit(a, b):
    return round(100 - math.atan2(ort(b)[2] - ort(a)[2], weit(a, b)) * 200 / math.pi, 4)


def linie(a, e, n):
    """Foot and offset on a measured line."""
    w = (winkel(a, n) - winkel(a, e)) * math.pi / 200
    return round(weit(a, n) * math.cos(w), 2), round(weit(a, n) * math.sin(w), 2)


def strahl(a, b, orientierung, breite):
    """Direction, zenith angle, slope distance and target height from an instrument 1.58 m above a to b."""
    weite, hoch = weit(a, b), ort(b)[2] + 1.7 - (ort(a)[2] + 1.58)
    hz = (winkel(a, b) - orientierung + ZUFALL_STATION.gauss(0, 0.0008)) % 400
    vk = math.atan2(weite, hoch) * 200 / math.pi + ZUFALL_STATION.gauss(0, 0.0008)
    sd = math.hypot(weite, hoch) + ZUFALL_STATION.gauss(0, 0.004)
    return "".join(f"{x:{breite}.4f}" for x in (hz, vk, sd, 1.7))


def station(art, stand, anschluesse, orientierung, neu, punkte_neu):
    """A station on known points; on a known one a single connection point."""
    return block("VR 19.50 Freie Stationierung", [art, f"PAN {stand:8d}  {1.58:12.4f}"],
                 [f"PSN {n:8d}{strahl(stand, n, orientierung, 14)}" for n in anschluesse] + [neu]
                 + [f"PWS {n:8d}{strahl(stand, n, orientierung, 15)}  014  {linie}" for n, linie in punkte_neu],
                 "E Ende")


def neupunkt(n, symbol="015"):
    return f"NEUPUNKT   {n:8d}  {symbol}"


def zug(anfziel, anf, neue, end, endziel):
    """A traverse with its breaking angles."""
    kette = [anfziel, anf, *neue, end, endziel]
    brech = [round((winkel(p, n) - winkel(p, v) + ZUFALL_NEU.gauss(0, 0.001)) % 400, 4)
             for v, p, n in zip(kette, kette[1:], kette[2:])]
    seiten = [mass(p, n) for p, n in zip(kette[1:], kette[2:-1])]
    return ([f"ANSCHLZP {anfziel:8d}", f"ANSCHLP {anf:8d}  {brech[0]:12.4f}  {seiten[0]:12.4f}"]
            + [f"NEUPWS {n:8d}  {w:12.4f}  {s:12.4f}  014" for n, w, s in zip(neue, brech[1:], seiten[1:])]
            + [f"ABSCHLP {end:8d}  {brech[-1]:12.4f}", f"ABSCHLZP {endziel:8d}"])


def nivellement():
    """A level line from the church to the end of the main street, with two covers beside it, and back."""
    zeilen = []
    for kette in ((101, 102, 103, 104, 105), (105, 104, 103, 102, 101)):
        rueck = None  # backsight and its length at the point before
        for i, n in enumerate(kette):
            s = round(weit(kette[i - 1], n) / 2, 1) if i > 0 else None
            vor = None
            if i > 0:
                dh = punkte[n][2] - punkte[kette[i - 1]][2] + ZUFALL_HOEHE.gauss(0, 0.0004)
                vor = round(rueck - dh, 5)
            letzter = i == len(kette) - 1
            auf = None if letzter else (punkte[kette[i + 1]][2] - punkte[n][2]) / 2
            rueck = None if letzter else round(1.6 + auf + ZUFALL_HOEHE.uniform(-0.3, 0.3), 5)
            weite = None if letzter else round(weit(n, kette[i + 1]) / 2, 1)
            zeilen.append((n, rueck, None, vor, weite, s, ""))
            if n in (102, 103) and kette[0] == 101:
                zeilen.append((6000 + n, None, round(rueck + 0.8, 4), None, None, None, "Schacht"))
    wert = lambda x: f"{'-':>13}" if x is None else f"{x:13.5f}"
    return ([f"FEST {101:8d}  {punkte[101][2]:12.4f}", f"FEST {105:8d}  {punkte[105][2]:12.4f}"]
            + [f"NIV {n:8d}" + "".join("  " + wert(x) for x in werte) + (f"  {b}" if b else "")
               for n, *werte, b in zeilen] + ["PARAM KLASSE 15"])


def neue_punkte():
    fall, ende = "E  (Ende)", "E Ende"
    aufnahme = [(n, *linie(101, 102, n)) for n in (5001, 5002, 5003)]
    zeilen = block("VR 22.00 Meßlinie", anschluss(101, 0, 102, mass(101, 102)),
                   [f"AO  {n:8d}{l:15.4f}{s:15.4f}{0:15.4f}  014" for n, l, s in aufnahme], ende)
    zeilen += block("VR 19.70 Polare Punkte", anschluss(103, richtung(103, 104), 104, mass(103, 104)),
                    [f"PWS {n:8d}{richtung(103, n):15.4f}{zenit(103, n):15.4f}{mass(103, n):15.4f}  014"
                     for n in (5011, 5012, 5013)], ende)
    zeilen += block("VR 09.50 Kreismittelpunkt",
                    [f"K0P{i}N {n:8d}" for i, n in enumerate((4101, 4102, 4103), 1)], ["K0PMN     5020  -"], fall)
    zeilen += block("VR 09.00 Geradenschnitt", ["G1PAN     1003", "G1PEN     1005", f"G1DIST {2.5:12.4f}"],
                    ["G2PAN     4001", "G2PEN     4004", "G2ORIG", neupunkt(5021)], fall)
    zeilen += block("VR 09.40 Schnitt Kreis / Gerade", [f"K0PNR      102  {20:12.4f}  {0:12.4f}  -"],
                    ["G0PAN     1101", "G0PEN     1115", "G0ORIG", neupunkt(5022), neupunkt(5023)], fall)
    zeilen += block("VR 23.10 Bogenschnitt",
                    [f"K{i}PNR {n:8d}  {mass(n, 5024):12.4f}  {0:12.4f}  -" for i, n in ((1, 102), (2, 101))],
                    [neupunkt(5024), "NEUPUNKT          0  -   -"], fall)
    zeilen += block("VR 10.00 Vorwärtsschnitt",
                    [z for i, s, f in ((1, 102, 101), (2, 104, 105))
                     for z in (f"FERNP{i}WS {f:8d}  {richtung(s, f):12.4f}",
                               f"STANDP{i}WS {s:8d}  {richtung(s, 5030):12.4f}  {zenit(s, 5030):12.4f}")],
                    ["NEUPNR     5030  014"], fall)
    zeilen += block("VR 11.00 Rückwärtsschnitt", ["PARAM CASSINI"],
                    [f"PWS {n:8d}{richtung(5031, n, 77.7):15.4f}" for n in (110, 107, 111)] + ["NEUPNR     5031  014"],
                    fall)
    zeilen += block("VR 19.10 Polygonzüge",
                    ["ZUGNR 1", "PARAM TP", "PARAM ANSCHLUSSRI", "PARAM ABSCHLUSSRI", "PARAM VERTEIL",
                     "PARAM VERTEIL WINKEL"], zug(107, 101, (5041, 5042, 5043), 105, 112), ende)
    ecken = (1003, 1005, 1006, 1004)
    zeilen += block("VR 65.00 Flächenberechnung", ["NAME      Flurstück 12/3"],
                    [f"PN    {a:8d}  {mass(a, b):12.4f}" for a, b in zip(ecken, ecken[1:] + ecken[:1])], ende)
    zeilen += block("VR NI.00 Nivellement", [], nivellement(), ende)
    zeilen += block("3D Raumstrecke", [], ["NR3D      101       107"], fall)
    zeilen += block("3D Kanalmeßstab", [], ["NR3D     5011      5013      5050        0.8500"], fall)
    zeilen += station("HELMERT", 5061, (101, 103, 104, 106), 287.1234, neupunkt(5061),
                      ((5062, "-"), (5063, "5062"), (5064, "5063")))
    zeilen += station("HELMERT", 104, (105,), 12.3456, "NEUPUNKT          0  -   -", ((5065, "-"),))
    return zeilen + block("VR 24.00 Helmert- Transformation", ["NEUESSYSTEM  passpunkte.kor"],
                          [f"{'KEIN' * (n == 110)}PASSP   {n:8d}" for n in range(101, 113)], ende)


# ---- a day with the total station: two free stations and a known one, in the form of 16 digits


def wort(index, wert, faktor, einheit):
    return f"{index}...{einheit}{'-' if wert < 0 else '+'}{round(abs(wert) * faktor):016d} "


def messung(zeilen, stand, ziel, nummer, hoehen, lage=1, code=""):
    """A line as the instrument writes it; stand is place, height and orientation of the circle."""
    (r, h, z, orientierung), (ih, t) = stand, hoehen
    dr, dh, dz = ziel[0] - r, ziel[1] - h, ziel[2] + t - z - ih
    eben = math.hypot(dr, dh)
    hz = math.atan2(dr, dh) * 200 / math.pi - orientierung + ZUFALL_TAG.gauss(0, 0.0006)
    v = math.atan2(eben, dz) * 200 / math.pi + ZUFALL_TAG.gauss(0, 0.0006)
    s = math.hypot(eben, dz) + ZUFALL_TAG.gauss(0, 0.002)
    if lage == 2:
        hz, v = hz + 200, 400 - v
    zeile = (f"*11{len(zeilen) + 1:04d}+{nummer:016d} " + wort(21, hz % 400, 100000, 2) + wort(22, v, 100000, 2)
             + wort(31, s, 10000, 6) + wort(87, t, 1000, 0) + wort(88, ih, 1000, 0))
    zeilen.append(zeile + (f"71....+{code:0>16} " if code else ""))


def stationscode(zeilen, nummer):
    zeilen.append(f"*41{len(zeilen) + 1:04d}+{0:016d} 42....+{60:016d} 43....+{nummer:016d} ")


def tag():
    zeilen = []
    hoehen, neu = (1.57, 1.6), 6001
    for nummer, (x, y), anschluss_nummern, orientierung, bereich in (
            (5101, (88.0, 8.5), (101, 102, 103, 106), 61.2345, (20, 150)),
            (5102, (205.0, -9.0), (103, 104, 105, 108), 317.8812, (160, 250)),
            (107, (118, 118), (106, 111), 5.4321, (90, 200))):
        stand = (*(punkte[nummer][:3] if nummer in punkte else ecke_im_dorf(x, y)), orientierung)
        stationscode(zeilen, nummer)
        for n in anschluss_nummern:
            for lage in (1, 2):
                messung(zeilen, stand, punkte[n], n, hoehen, lage)
        stationscode(zeilen, nummer)
        for _ in range(9):
            x_neu = ZUFALL_TAG.uniform(*bereich)
            y_neu = ZUFALL_TAG.uniform(-25, 25) + (100 if nummer == 107 else 0)
            messung(zeilen, stand, ecke_im_dorf(x_neu, y_neu), neu, hoehen, 1, ZUFALL_TAG.choice(("015", "027", "")))
            neu += 1
    return "".join(z + "\r\n" for z in zeilen)


def ecke_im_dorf(x, y):
    """A place in the system of the main street."""
    return (URSPRUNG[0] + x * math.cos(DREHUNG) - y * math.sin(DREHUNG),
            URSPRUNG[1] + x * math.sin(DREHUNG) + y * math.cos(DREHUNG),
            181.4 + 0.012 * x + 0.021 * y + 0.6 * math.sin(x / 45))


def main():
    punktfeld()
    (HIER / "musterdorf.kor").write_bytes(kor(punkte).encode())
    (HIER / "musterdorf.sta").write_bytes(sta().encode())
    (HIER / "passpunkte.kor").write_bytes(kor(passpunkte()).encode())
    (HIER / "tag.gsi").write_bytes(tag().encode())
    if len(sys.argv) > 1:
        laufen(["--protokoll", "musterdorf.dru", "musterdorf.sta"], ["musterdorf.dru"])
        laufen(["stationieren", "tag.gsi", "--art", "helmert", "--standpunkt", "orientierung", "--protokoll", "tag.dru",
                "--stapel-ausgabe", "tag.sta"], ["tag.dru", "tag.sta"])


def laufen(angaben, ergebnisse):
    """Runs the program on the example coordinates; what it writes gets the stamp of the example."""
    for name in ergebnisse:
        (HIER / name).unlink(missing_ok=True)
    befehl = angaben[:1] if angaben[0] == "stationieren" else []
    subprocess.run([str(pathlib.Path(sys.argv[1]).resolve()), *befehl, "--koordinaten", "musterdorf.kor",
                    *angaben[len(befehl):]], cwd=HIER, check=True)
    for name in ergebnisse:
        text = (HIER / name).read_bytes().decode()
        (HIER / name).write_bytes(re.sub(r"\d\d\.\d\d\.\d{4}   \d\d:\d\d", STEMPEL, text).encode())


if __name__ == "__main__":
    main()
