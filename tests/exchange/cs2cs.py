"""Whole files of points over Germany through `umrechnen` and through PROJ's cs2cs: cs2cs.py PROGRAM

Prints the largest difference of each way and fails above its limit. The ellipsoids are those of the table."""
import math
import pathlib
import subprocess
import sys
import tempfile

PROGRAMM = pathlib.Path(sys.argv[1])
KOERPER = {"gk": "+a=6377397.155 +b=6356078.963", "utm": "+a=6378137 +b=6356752.314"}
NETZE = {"gk": (2, 3, 4, 5), "utm": (31, 32, 33)}
ORTE = [(l / 10 + 0.00123457, b / 10) for l in range(58, 152, 3) for b in range(470, 553, 4)]


def projektion(netz, nr):
    if netz == "gk":
        return f"+proj=tmerc +lat_0=0 +lon_0={3 * nr} +k=1 +x_0={nr}500000 +y_0=0 {KOERPER[netz]} +no_defs"
    return f"+proj=tmerc +lat_0=0 +lon_0={6 * nr - 183} +k=0.9996 +x_0=500000 +y_0=0 {KOERPER[netz]} +no_defs"


def cs2cs(netz, nr):
    lang = f"+proj=longlat {KOERPER[netz]} +no_defs"
    text = "".join(f"{l} {b}\n" for l, b in ORTE)
    aus = subprocess.run(["cs2cs", "-f", "%.7f", *lang.split(), "+to", *projektion(netz, nr).split()], input=text,
                         check=True, capture_output=True, text=True).stdout
    return {i: tuple(map(float, z.split()[:2])) for i, z in enumerate(aus.splitlines())}


def umrechnen(von, nach, zeilen):
    """The numbers of each line of the output, by the number of its point."""
    with tempfile.TemporaryDirectory() as ordner:
        ein, aus = pathlib.Path(ordner, "ein"), pathlib.Path(ordner, "aus")
        ein.write_text("".join(zeilen))
        subprocess.run([PROGRAMM, "umrechnen", "--von", von, "--nach", nach, "--nachkomma", "6", ein, aus],
                       check=True, capture_output=True)
        worte = [z.split() for z in aus.read_text().splitlines() if not z.startswith("@")]
    return {int(w[0]): [float(x) for x in w[1:]] for w in worte}


def abstand(ist, soll):
    """Largest distance [mm]. Every point within 10 degrees, and no other, was written."""
    return 1000 * max(math.dist(ist[i][:2], soll[i]) for i in ist)


def geprueft(was, mm, grenze):
    print(f"{was:24} {mm:.3f} mm")
    return mm <= grenze


def grad(w):
    return (w[0] + w[1] / 60 + w[2] / 3600, w[3] + w[4] / 60 + w[5] / 3600)


gut = True
for netz, nummern in NETZE.items():
    soll = {nr: cs2cs(netz, nr) for nr in nummern}
    mitte = {nr: 3 * nr if netz == "gk" else 6 * nr - 183 for nr in nummern}
    for nr in nummern:
        nah = [i for i, (l, _) in enumerate(ORTE) if abs(l - mitte[nr]) < 10]
        ist = umrechnen("geo", f"{netz}{nr}", [f"{i} {l} {b}\n" for i, (l, b) in enumerate(ORTE)])
        gut &= geprueft(f"geo -> {netz}{nr}", abstand(ist, soll[nr]), 0.1) and sorted(ist) == nah
        # A Rechts with the million of another strip can not be told from one of that strip.
        zeilen = [f"{i} {soll[nr][i][0]:.7f} {soll[nr][i][1]:.7f}\n" for i in nah
                  if netz == "utm" or soll[nr][i][0] // 1e6 == nr]
        quelle = "gk" if netz == "gk" else f"utm{nr}"
        zurueck = umrechnen(quelle, "geo", zeilen)
        # The file's seconds are rounded by 0.16 mm. UTM keeps the half millimetre of its way back.
        mm = max(111.3e6 * math.hypot((g[0] - ORTE[i][0]) * math.cos(math.radians(g[1])), g[1] - ORTE[i][1])
                 for i, g in ((i, grad(w)) for i, w in zurueck.items()))
        gut &= geprueft(f"{netz}{nr} -> geo", mm, 0.3 if netz == "gk" else 0.7) and len(zurueck) == len(zeilen)
        for anderer in nummern:
            if anderer != nr:
                ist = umrechnen(quelle, f"{netz}{anderer}", zeilen)
                gut &= geprueft(f"{netz}{nr} -> {netz}{anderer}", abstand(ist, soll[anderer]), 0.1 if netz == "gk" else 0.6)
sys.exit(not gut)
