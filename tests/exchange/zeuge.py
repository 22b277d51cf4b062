"""Another DXF library reads what tavorena-stapel writes, and finds what it reads: zeuge.py PROGRAM FOLDER_OF_DATA"""
import pathlib
import subprocess
import sys
import tempfile

import ezdxf
from ezdxf import recover
from ezdxf.lldxf.encoding import decode_dxf_unicode

PROGRAMM, DATEN = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])


def stapel(*worte):
    return subprocess.run([PROGRAMM, "dxf", *worte], check=True, capture_output=True, text=True).stdout


def elemente(dokument):
    """Lines and arcs of the model space as sorted points in the world: both ends, and the middle of an arc."""
    gefunden = []

    def dazu(e):
        if e.dxftype() in ("LWPOLYLINE", "POLYLINE"):
            for teil in e.virtual_entities():
                dazu(teil)
        elif e.dxftype() == "LINE":
            gefunden.append(("L", *sorted((e.dxf.start.vec2, e.dxf.end.vec2))))
        elif e.dxftype() in ("ARC", "CIRCLE"):
            rund = e.dxftype() == "CIRCLE"
            for a, b in [(0, 180), (180, 360)] if rund else [(e.dxf.start_angle, e.dxf.end_angle)]:
                b += 360 if b <= a else 0
                orte = [e.ocs().to_wcs(e.dxf.center + e.dxf.radius * ezdxf.math.Vec3.from_deg_angle(w)).vec2
                        for w in (a, (a + b) / 2, b)]
                gefunden.append(("A", orte[1], *sorted((orte[0], orte[2]))))

    for e in dokument.modelspace():
        dazu(e)
    return sorted(gefunden, key=lambda g: (g[0], [(round(p.x, 3), round(p.y, 3)) for p in g[1:]]))


def gleich(a, b):
    assert len(a) == len(b), (len(a), len(b))
    for x, y in zip(a, b):
        assert x[0] == y[0] and all(p.isclose(q, abs_tol=3e-6) for p, q in zip(x[1:], y[1:])), (x, y)


def cad_datei(name):
    """What a CAD program writes: bulges, closed ones, mirrored ones, a circle, and things that are not read."""
    d = ezdxf.new("R2010")
    m = d.modelspace()
    ecken = [(0, 0, 0.3), (10, 0, 0), (10, 10, -1.5), (2, 8, 0.01)]
    for dx, achse in ((3500000, 1), (100, -1)):
        lage = {"extrusion": (0, 0, achse)}
        m.add_lwpolyline([(x + dx, y, b) for x, y, b in ecken], format="xyb", close=True, dxfattribs=lage)
        m.add_polyline2d([(x + dx, y + 50, b) for x, y, b in ecken], format="xyb", dxfattribs=lage)
        m.add_arc((dx, 7), 3, 300, 45, dxfattribs=lage)
        m.add_circle((dx, 77), 4, dxfattribs=lage)
        m.add_line((dx, 1), (dx + 5, 6), dxfattribs=lage)
    m.add_polyline3d([(1, 2, 3), (4, 5, 6)])
    m.add_text("LINE")
    d.saveas(name)


with tempfile.TemporaryDirectory() as ordner:
    o = pathlib.Path(ordner)
    cad_datei(o / "cad.dxf")
    (o / "a.kor").write_text("1001 3500100.5 5600200 12.5 015\r\n2003ä€Ж 3500160 5600280.25\r\n", encoding="utf-8")
    for quelle in (o / "cad.dxf", *sorted(DATEN.glob("*.dxf"))):
        soll = elemente(recover.readfile(quelle)[0])
        stapel("--lesen-cad", quelle, "--nach", o / "eigen.dxf", "--koordinaten", o / "a.kor", "--punkte", o / "p.dxf")
        gleich(elemente(recover.readfile(o / "eigen.dxf")[0]), soll)
        streng = ezdxf.readfile(o / "p.dxf")
        prüfung = streng.audit()
        assert not prüfung.errors and not prüfung.fixes, (prüfung.errors, prüfung.fixes)
        gleich(elemente(streng), soll)
        m = streng.modelspace()
        assert streng.dxfversion == "AC1009" and streng.encoding == "cp1252"
        for ebene, texte in (("NUMMERN", ["1001", "2003ä€Ж"]), ("HOEHEN", ["12.500"]), ("SYMBOLE", ["015"])):
            assert [decode_dxf_unicode(t.dxf.text) for t in m.query(f'TEXT[layer=="{ebene}"]')] == texte, (ebene, texte)
            assert ebene in streng.layers
        orte = [tuple(p.dxf.location) for p in m.query('POINT[layer=="PUNKTE"]')]
        assert orte == [(3500100.5, 5600200, 12.5), (3500160, 5600280.25, 0)], orte
        assert {e.dxf.layer for e in m.query("LINE ARC")} <= {"STRECKEN", "BOGEN"}
