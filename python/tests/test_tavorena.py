"""The module tavorena: PYTHONPATH=build/headless/python python3 -m unittest discover -s python/tests"""

import contextlib
import enum
import gc
import io
import math
import pathlib
import re
import tempfile
import unittest

import numpy
import tavorena
from tavorena import enmArtGeradenschnitt, enmResult

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"
METHODS = {name: getattr(tavorena.TA, name) for name in vars(tavorena.TA) if not name.startswith("_")}


class WithTa(unittest.TestCase):
    def setUp(self):
        self.ta = tavorena.TA()

    def tearDown(self):
        del self.ta
        gc.collect()


class Handbook(unittest.TestCase):
    def test_the_example_prints_what_its_page_shows(self):
        page = (EXAMPLES.parent / "docs/handbuch/bibliothek.md").read_text(encoding="utf-8")
        code, shown = re.search(r"```python\n(.*?)```.*?```ausgabe\n(.*?)```", page, re.S).groups()
        with contextlib.chdir(EXAMPLES), contextlib.redirect_stdout(io.StringIO()) as out:
            exec(code, {})
        self.assertEqual(out.getvalue(), shown)


class Surface(unittest.TestCase):
    def test_every_method_with_a_meaning_for_every_name(self):
        self.assertEqual(len(METHODS), 62)
        for name, method in METHODS.items():
            with self.subTest(name):
                signature, _, text = method.__doc__.partition("\n")
                names = re.findall(r"(?:, )(\w+): ", signature)
                tuple_class = getattr(tavorena, name + "Result", None)
                fields = tuple_class._fields if tuple_class else ()
                if fields:
                    self.assertEqual(fields[0], "result")
                for word in (*names, *fields):
                    self.assertRegex(text, rf"(?m)^{word}: \S")

    def test_coordinates_and_angles_have_their_unit(self):
        for name, method in METHODS.items():
            lines = re.findall(r"(?m)^(\w+(?:RW|HW|Rw|Hw|Gon\d?)): (.*)", method.__doc__)
            for word, meaning in lines:
                self.assertRegex(meaning, r"\[(m|gon)\b", f"{name}: {word}")

    def test_enumerations(self):
        self.assertTrue(issubclass(enmResult, enum.IntEnum))
        self.assertEqual(enmResult.Fehler_ZuvielePunkte, 13)
        self.assertEqual(enmArtGeradenschnitt(18).name, "Kreis2Punkt_Kreis2Punkt")


class OneObject(unittest.TestCase):
    def test_second_object_raises_until_the_first_is_gone(self):
        first = tavorena.TA()
        with self.assertRaisesRegex(RuntimeError, "only one TA"):
            tavorena.TA()
        del first
        gc.collect()
        tavorena.TA()


class Calls(WithTa):
    def test_named_tuple(self):
        r = self.ta.Linienelemente(dAnfRW=0, dAnfHW=0, dEndRW=0, dEndHW=10, dLinelRW=3, dLinelHW=4)
        self.assertEqual(r, (enmResult.ok, 4, 3))
        self.assertIs(type(r), tavorena.LinienelementeResult)
        self.assertEqual((r.result, r.dLinie, r.dSeitwaerts), (enmResult.ok, 4, 3))

    def test_failure_leaves_nan(self):
        r = self.ta.Linienelemente(1, 1, 1, 1, 3, 4)
        self.assertEqual(r.result, enmResult.Fehler_AnfangsUndEndpunktGleich)
        self.assertTrue(math.isnan(r.dLinie) and math.isnan(r.dSeitwaerts))

    def test_enumeration_as_argument(self):
        lines = (0, 0, 0, 9, 5, 5, 6, 5)
        for kind in (enmArtGeradenschnitt.Gerade1Senkrpunkt_Gerade2Senkrpunkt, 8):
            r = self.ta.SchnittGeradeGerade(*lines, eSchnittart=kind, dGerade1PunktRW=2, dGerade1PunktHW=3,
                                            dGerade2PunktRW=7, dGerade2PunktHW=8)
            self.assertEqual(r, (enmResult.ok, 7, 3, 100))

    def test_lists_and_arrays(self):
        square = [[0, 0], [0, 10], [10, 10], [10, 0]]
        column = numpy.array(square)  # of whole numbers, every second entry
        for rw, hw, radius in (
            ([0, 0, 10, 10], (0, 10, 10, 0), [0.0] * 4),
            (column[:, 0], column[:, 1], numpy.zeros(4, dtype=numpy.float32)),
        ):
            r = self.ta.Flaechenberechnung(rw, hw, radius)
            self.assertEqual(r, (enmResult.ok, -100, 40, 0))
        triangle = self.ta.Flaechenberechnung(column[:, 0], column[:, 1], numpy.zeros(4), lPunktanzahl=3)
        self.assertEqual(triangle.dFlaeche, -50)

    def test_bad_lists(self):
        for rw, hw, radius, count in (
            ([0, 1, 1], [0, 1], [0, 0, 0], None),  # a short list
            ([0, 1, 1], [0, 1, 0], [0, 0, 0], -1),
            ([0, 1, 1], [0, 1, 0], [0, 0, 0], 4),
            ([0, math.nan, 1], [0, 1, 0], [0, 0, 0], None),
        ):
            self.assertEqual(self.ta.Flaechenberechnung(rw, hw, radius, count).result, enmResult.Fehler_Allgemein)
        with self.assertRaises(TypeError):
            self.ta.Flaechenberechnung([0, "east"], [0, 1], [0, 0])

    def test_lists_as_results(self):
        old = numpy.array([[0, 0], [100, 0], [0, 100]], dtype=float)
        r = self.ta.HelmertTransformationParameter(
            dPasspunktAltesSystemRW=old[:, 0], dPasspunktAltesSystemHW=old[:, 1],
            dPasspunktNeuesSystemRW=1000 + old[:, 1], dPasspunktNeuesSystemHW=2000 - old[:, 0],
            bMasstabaenderungZulaessig=True)
        self.assertEqual(r.result, enmResult.ok)
        self.assertAlmostEqual(r.dDrehwinkelGon, 100, 9)
        numpy.testing.assert_allclose([r.dRestklaffeVY, r.dRestklaffeVX], numpy.zeros((2, 3)), atol=1e-9)


class Table(WithTa):
    def setUp(self):
        super().setUp()
        self.assertEqual(self.ta.KoordinatendateiLesen(EXAMPLES / "musterdorf.kor"), 292)

    def test_kinds_of_point_numbers(self):
        expected = self.ta.EntfernungskontrollePnr(101, 102).dEntfGerechnet
        self.assertGreater(expected, 50)
        for a, b in (("101", "102"), (101.0, 102.0), (numpy.int64(101), numpy.float64(102))):
            self.assertEqual(self.ta.EntfernungskontrollePnr(vPnr1=a, vPnr2=b).dEntfGerechnet, expected)
        for missing in ("kein", 99999, 10**20, None):
            self.assertEqual(self.ta.EntfernungskontrollePnr(101, missing).result,
                             enmResult.Fehler_PunktNichtVorhanden)
        for wrong in ([101], True):
            with self.assertRaises(TypeError):
                self.ta.EntfernungskontrollePnr(101, wrong)

    def test_list_of_point_numbers(self):
        r = self.ta.FlaechenberechnungPnr([101, "102", 103.0], numpy.zeros(3))
        self.assertEqual(r.result, enmResult.ok)
        self.assertGreater(abs(r.dFlaeche), 1)

    def test_file_to_file(self):
        with tempfile.TemporaryDirectory() as folder:
            target = pathlib.Path(folder) / "Straße 1.kor"
            target.write_bytes((EXAMPLES / "musterdorf.kor").read_bytes())
            r = self.ta.HelmertTransformationKoordinatendateiPasspunktdatei(
                target, EXAMPLES / "passpunkte.kor", True)
            self.assertEqual(r.result, enmResult.Hinweis_PunktAusserhalbDesPasspunktfeldes)
            new = target.read_text().splitlines()
            control = (EXAMPLES / "passpunkte.kor").read_text().splitlines()
            self.assertEqual(len(new), 292)
            for a, b in zip(new, control):  # the control points come first
                for x, y in zip(a.split()[1:3], b.split()[1:3]):
                    self.assertAlmostEqual(float(x), float(y), delta=0.03)
            missing = self.ta.HelmertTransformationKoordinatendateiPasspunktdatei(target, folder + "/nichts", True)
            self.assertEqual(missing.result, enmResult.Fehler_DateiNichtVorhanden)


if __name__ == "__main__":
    unittest.main()
