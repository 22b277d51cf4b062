#!/usr/bin/env python3
"""Sets each measurement of a run beside its baseline; exit status 1 if a limit is missed."""

import json
import statistics
import sys

# Measurement, baselines (their times are added), highest ratio. All stem from the same run; a measurement
# that stands in no pair, or only in a sum, is printed as a figure.
PAARE = (
    ("KorLesen/geordnet", ("NurZahlen/geordnet",), 3.0),
    ("KorLesen/gemischt", ("NurZahlen/gemischt",), 5.0),
    ("KorLesen/unix", ("KorLesen/geordnet",), 1.1),
    ("KorText", ("FmtText",), 3.0),
    ("Verlust/kor", ("KorText",), 0.1),
    ("CsvLesen", ("KorLesen/geordnet",), 2.0),
    ("LfsLesen", ("KorLesen/geordnet",), 2.0),
    ("Umrechnen/Konsole", ("Wandeln/kor-kor",), 2.0),
    ("Wandeln/edbs-kor", ("Wandeln/kor-kor",), 2.0),
    ("Wandeln/kor-edbs", ("Wandeln/kor-kor",), 2.0),
    ("Zeichnen/20001", ("QPainter/20001",), 2.0),
    ("Zeichnen/200", ("Zeichnen/20001",), 0.05),
    ("Verschieben/20001", ("Zeichnen/20001",), 0.2),
    ("Marke/20001", ("Zeichnen/20001",), 0.3),
    ("Freistellen/20001", ("Zeichnen/20001",), 1.0),
    ("GrafikPunktSuchen/fehlt", ("LineareSuche/fehlt",), 0.02),
    ("GrafikPunktSuchen/letzte", ("LineareSuche/letzte",), 0.02),
    ("GrafikPunktSuchen/weit", ("LineareSuche/weit",), 2.0),
    ("Index/20000", ("StdSort/20000",), 2.0),
    ("EdbsLesen/20000", ("NurSpalten/20000",), 4.0),
    ("EdbsText/20000", ("FmtEdbs/20000",), 3.0),
    ("DxfPunkte/20000", ("FmtDxf/20000",), 3.0),
    ("Pdf/1000", ("Pdf/100",), 12.0),
    ("KorSuche/letzte", ("StdFind/letzte",), 3.0),
    ("KorSuche/fehlt", ("StdFind/fehlt",), 3.0),
    ("Neupunkt", ("AnhaengenUndSortieren",), 0.05),
    ("Neupunkt/gemischt", ("AnhaengenUndSortieren/gemischt",), 0.1),
    ("KorLesen/mischen", ("KorSuche/jede", "KorLesen/geordnet"), 1.1),
    ("Quasiidentisch/20000", ("StdSort/20000",), 3.0),
    ("Quasiidentisch/20000/fleck", ("StdSort/20000",), 3.0),
    ("Quasiidentisch/20000/linie", ("StdSort/20000",), 3.0),
    ("Loeschen/Bereich", ("KorLesen/geordnet",), 2.0),
    ("Umnumerieren/Bereich", ("KorLesen/geordnet",), 2.0),
    ("Umrechnen/geo-gk", ("KorHinUndHer",), 2.0),
    ("Umrechnen/gk-geo", ("KorHinUndHer",), 2.0),
    ("Umrechnen/gk-gk4", ("KorHinUndHer",), 2.0),
    ("Umrechnen/geo-utm", ("KorHinUndHer",), 2.0),
    ("Umrechnen/utm-geo", ("KorHinUndHer",), 2.0),
    ("Umrechnen/utm-utm", ("KorHinUndHer",), 2.0),
    ("KonvertierungGeographischNachGK", ("ProjTrans/vorwaerts",), 0.5),
    ("KonvertierungGKNachGeographisch", ("ProjTrans/rueckwaerts",), 0.5),
    ("HelmertAlle/innen", ("MalUndPlus",), 2.0),
    ("HelmertAlle/aussen", ("MalUndPlus",), 2.0),
    ("Transformation/20000", ("FmtListe/20000",), 3.0),
    ("Verteilen/20000", ("Doppelschleife/20000",), 2.0),
    ("FreieStation/1000", ("Passung/1000", "SinusCosinus/4000"), 2.0),
    ("Tagesjob/8000", ("NurTag/8000",), 2.0),
    ("FreieStationierungPnr/50", ("KorSuche/50", "FreieStationierung/50"), 1.1),
    ("PolarpunktPnr", ("KorSuche/2", "Polarpunkt"), 1.1),
    ("Konsole/ohne", ("NurRechnen/ohne",), 3.0),
    ("Konsole/mit", ("NurRechnen/mit",), 3.0),
    ("Konsole/gemischt", ("NurRechnen/gemischt",), 2.0),
    ("Zeile/5MB", ("Zeile/leer",), 1.3),
    ("Return/24.40", ("Schritte/24.40",), 2.0),
    ("Return/08.40", ("Schritte/08.40",), 2.0),
    ("Return/22.10", ("Schritte/22.10",), 2.0),
    ("Return/22.00", ("Schritte/22.00",), 2.0),
    ("Return/19.70", ("Schritte/19.70",), 2.0),
    ("Return/09.00", ("Schritte/09.00",), 2.0),
    ("Return/09.50", ("Schritte/09.50",), 2.0),
    ("Return/09.40", ("Schritte/09.40",), 2.0),
    ("Return/23.10", ("Schritte/23.10",), 2.0),
    ("Return/10.00", ("Schritte/10.00",), 2.0),
    ("Return/11.00", ("Schritte/11.00",), 2.0),
    ("Return/3D Raumstrecke", ("Schritte/3D Raumstrecke",), 2.0),
    ("Return/3D Lotabstand", ("Schritte/3D Lotabstand",), 2.0),
    ("Return/19.10", ("Schritte/19.10",), 2.0),
    ("Return/65.00", ("Schritte/65.00",), 2.0),
    ("Streifen/20000", ("Streifen/2000",), 1.2),
    ("Streifen/20000", ("Konsole/mit",), 4.0),
    ("Flaeche/1000", ("NurFlaeche/1000",), 3.0),
    ("Zug/1000", ("NurZug/1000",), 3.0),
    ("EditorTaste/20001", ("EditorTaste/20",), 2.0),
    ("RohdatenGsi16/20000", ("NurRohzahlen/20000",), 3.0),
    ("RohdatenGsi16/400000", ("RohdatenGsi16/20000",), 32.0),
    ("Fenster/zu", ("Fenster/Konsole",), 4.0),
    ("Fenster/offen", ("Fenster/Konsole",), 6.0),
)
SEKUNDEN = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def zeiten_lesen(dateien):
    """Median time of each measurement in seconds."""
    laeufe = []
    for datei in dateien:
        with open(datei, encoding="utf-8") as kanal:
            laeufe += json.load(kanal)["benchmarks"]
    zeiten = {}
    for lauf in laeufe:
        if lauf.get("error_occurred"):
            sys.exit(f"{lauf['name']}: {lauf['error_message']}")
        if lauf["run_type"] != "iteration":
            continue
        # Processor time, unless the measurement says what its time is: other programs run beside it.
        voll = lauf["run_name"]
        eigene = voll.endswith(("/manual_time", "/real_time"))
        name = voll.rpartition("/")[0] if eigene else voll
        name = name.partition("/iterations:")[0]
        zeit = lauf["real_time" if eigene else "cpu_time"] * SEKUNDEN[lauf["time_unit"]]
        zeiten.setdefault(name, []).append(zeit)
    return {name: statistics.median(werte) for name, werte in zeiten.items()}


def zeit_text(sekunden):
    for einheit in ("s", "ms", "us"):
        if sekunden >= SEKUNDEN[einheit]:
            return f"{sekunden / SEKUNDEN[einheit]:8.2f} {einheit:2}"
    return f"{sekunden / 1e-9:8.2f} ns"


def main():
    zeiten = zeiten_lesen(sys.argv[1:])
    genannt = set()
    zu_langsam = False
    print(f"{'Messung':31} {'Zeit':>11}   {'Grundlage':34} {'Zeit':>11} {'Verhältnis':>11} {'Grenze':>7}")
    for messung, grundlagen, grenze in PAARE:
        genannt.update((messung, *grundlagen) if len(grundlagen) == 1 else (messung,))
        fehlende = [name for name in (messung, *grundlagen) if name not in zeiten]
        if fehlende:
            sys.exit(f"nicht gemessen: {', '.join(fehlende)}")
        grundzeit = sum(zeiten[name] for name in grundlagen)
        verhaeltnis = zeiten[messung] / grundzeit
        gut = verhaeltnis <= grenze
        zu_langsam = zu_langsam or not gut
        print(
            f"{messung:31} {zeit_text(zeiten[messung])}   {' + '.join(grundlagen):34} {zeit_text(grundzeit)}"
            f" {verhaeltnis:11.3f} {grenze:7.2f}  {'ok' if gut else 'ZU LANGSAM'}"
        )
    for name in sorted(zeiten.keys() - genannt):
        print(f"{name:31} {zeit_text(zeiten[name])}")
    return 1 if zu_langsam else 0


if __name__ == "__main__":
    sys.exit(main())
