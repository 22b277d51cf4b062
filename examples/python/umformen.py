#!/usr/bin/env python3
"""Transforms a coordinate file to the system of a passpoint file and draws what happened.

    umformen.py [--fest] [--bild bild.png] punkte.kor passpunkte.kor ziel.kor

The passpoint file holds numbers of the coordinate file with their coordinates in the new system. --fest keeps
the scale at 1. Without --bild the drawing comes in a window. With the example job:

    PYTHONPATH=build/headless/python examples/python/umformen.py --bild /tmp/bild.png \\
        examples/musterdorf.kor examples/passpunkte.kor /tmp/ziel.kor
"""

import argparse
import shutil
import sys

import tavorena
from matplotlib import pyplot

GUT = (tavorena.enmResult.ok, tavorena.enmResult.Hinweis_PunktAusserhalbDesPasspunktfeldes)


def lesen(name):
    """The points of a coordinate file: number -> (Rechts, Hoch)."""
    with open(name, encoding="utf-8") as datei:
        zeilen = [zeile.split() for zeile in datei if zeile.strip()]
    return {zeile[0]: (float(zeile[1]), float(zeile[2])) for zeile in zeilen}


def umformen(alt, pass_, ziel, mit_massstab):
    """Writes the transformed file; the parameters with the residuals of the passpoints."""
    ta = tavorena.TA()
    if ta.KoordinatendateiLesen(alt) < 0:
        sys.exit(f"{alt} läßt sich nicht lesen")
    fit = ta.HelmertTransformationParameterPasspunktdatei(
        strKoordinatendateiName=pass_, bMasstabaenderungZulaessig=mit_massstab)
    if fit.result not in GUT:
        sys.exit(f"Paßpunkte: {fit.result.name}")
    shutil.copyfile(alt, ziel)
    result = ta.HelmertTransformationKoordinatendateiPasspunktdatei(ziel, pass_, mit_massstab).result
    if result not in GUT:
        sys.exit(f"Umformung: {result.name}")
    return fit


def zeichnen(neu, passpunkte, fit):
    """The new points; at each passpoint its residual, enlarged so that the longest is well seen."""
    bild, achse = pyplot.subplots(figsize=(8, 8))
    achse.scatter(*zip(*neu.values()), s=4, color="0.6", label=f"{len(neu)} Punkte")
    orte = list(passpunkte.values())
    achse.scatter(*zip(*orte), marker="^", color="tab:red", label=f"{len(orte)} Paßpunkte")
    laengste = max(fit.dLinieareAbweichungWL, default=0)
    if laengste > 0:
        breite = max(r for r, _ in neu.values()) - min(r for r, _ in neu.values())
        achse.quiver(*zip(*orte), fit.dRestklaffeVY, fit.dRestklaffeVX, color="tab:red", angles="xy",
                     scale_units="xy", scale=laengste / (0.1 * breite), width=0.003)
    achse.set_title(f"Maßstab {fit.dMassstab:.8f}, Drehung {fit.dDrehwinkelGon:.4f} gon, "
                    f"größte Restklaffe {laengste:.3f} m")
    achse.set_aspect("equal")
    achse.ticklabel_format(style="plain", useOffset=False)
    achse.set_xlabel("Rechts")
    achse.set_ylabel("Hoch")
    achse.tick_params(axis="x", rotation=30)
    achse.legend()
    bild.tight_layout()
    return bild


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("punkte")
    parser.add_argument("passpunkte")
    parser.add_argument("ziel")
    parser.add_argument("--fest", action="store_true", help="Maßstab 1")
    parser.add_argument("--bild", help="Bilddatei statt eines Fensters")
    wahl = parser.parse_args()
    fit = umformen(wahl.punkte, wahl.passpunkte, wahl.ziel, not wahl.fest)
    bild = zeichnen(lesen(wahl.ziel), lesen(wahl.passpunkte), fit)
    if wahl.bild:
        bild.savefig(wahl.bild, dpi=120)
    else:
        pyplot.show()


if __name__ == "__main__":
    main()
