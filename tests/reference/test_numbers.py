#!/usr/bin/env python3
"""Number texts, tables and the steam table of the reference model against worked examples."""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from tarvix_equations import steam_density  # noqa: E402
from tarvix_numbers import (  # noqa: E402
    format_entry, format_limit, format_number, format_result, is_numeric, local_decimal,
    number_locale, read_single, round_to_5, single)
from tarvix_tables import (  # noqa: E402
    DENSITY_UNITS, FLOW_UNITS, LENGTH_UNITS, NOMINAL_SIZES, PRESSURE_UNITS)

US, GERMAN = number_locale("en_US"), number_locale("de_DE")


class NumberTexts(unittest.TestCase):
    def test_numeric_test(self):
        for text in ("1", " 1.5 ", "-.5", "+5.", "1,234.5", "1e3", "1.5E-3", "0e999999999",
                     "3.4028235e38", "12,345,678", "1e-400"):
            self.assertTrue(is_numeric(text, US), text)
        for text in ("", " ", ".", "-", "1e", "1,23", "1234,567", ",123", "1.234,5", "--1", "- 1",
                     "1 2", "abc", "&H10", "(1)", "3.5e38", "1e999", "inf", "nan", "1.2.3",
                     "1,,234", "9" * 400):
            self.assertFalse(is_numeric(text, US), text)
        self.assertTrue(is_numeric("1.234,5", GERMAN))
        self.assertFalse(is_numeric("1.5", GERMAN))
        self.assertEqual(read_single("1.500", GERMAN), 1500.0)

    def test_other_groupings(self):
        for name, text in (("hi_IN", "12,34,567"), ("es_ES", "1.234.567"),
                           ("fr_FR", "1\u202f234\u202f567"), ("de_CH", "1\u2019234\u2019567")):
            locale = number_locale(name)
            self.assertEqual(format_result(1234567.0, locale), text)
            self.assertEqual(read_single(text, locale), 1234567.0)
        self.assertEqual(format_result(1234.0, number_locale("es_ES")), "1234")
        self.assertEqual(format_result(12345.0, number_locale("es_ES")), "12.345")

    def test_one_rounding(self):
        # A hair above the middle of two singles; as a double it would be the middle itself.
        self.assertEqual(read_single("1.00000005960464477539062500001", US), 1 + 2.0 ** -23)
        self.assertEqual(read_single("1.000000059604644775390625", US), 1.0)

    def test_formats(self):
        self.assertEqual(format_result(single(1234.4), US), "1,234")
        self.assertEqual(format_entry(single(1234.4), US), "1234")
        self.assertEqual(format_result(single(0.05), US), "0.05000")
        self.assertEqual(format_result(0.0, US), "0.0")
        self.assertEqual(format_limit(single(0.005), US), "0.0050")
        self.assertEqual(format_limit(single(-14.7), US), "-14.7000")
        self.assertEqual(format_result(single(-1.5), US), "-1.500000")
        self.assertEqual(format_result(single(1234.4), GERMAN), "1.234")
        self.assertEqual(format_result(single(142.3), GERMAN), "142,3")
        self.assertEqual(format_number(single(0.75 / single(0.03937008)), 1, US, False), "19.1")
        pascals = single(-single(14.7) / single(0.0001450377))
        self.assertEqual(format_limit(pascals, US), "-101,353.0000")
        self.assertEqual(format_number(2.0675, 3, US, False, is_double=True), "2.068")
        self.assertEqual(format_number(single(-0.0001), 3, US, True), "0.000")
        self.assertEqual(format_number(single(16777216.0), 0, US, True), "16,777,216")
        self.assertEqual(format_number(single(1e38), 2, US, False),
                         "99999996802856924650656260769173209088.00")
        self.assertEqual(round_to_5(0.123455, True), single(0.12346))
        self.assertEqual(round_to_5(0.123465, True), single(0.12346))
        self.assertEqual(local_decimal("1.000.5", GERMAN), "1,000.5")
        self.assertEqual(local_decimal("0.5", US), "0.5")


class Tables(unittest.TestCase):
    def test_computed_factors(self):
        def quotient_of(dividend, divisor):
            return float("%.6e" % single(single(dividend) / single(divisor)))
        factors = dict(PRESSURE_UNITS)
        gas = {name: float(factor) for name, _, factor in FLOW_UNITS["G"]}
        product = single(single(2.698825) * single(14.696))
        for stored, computed in (
                (float(factors["kg/cm2"]), quotient_of(10000, 703.0696)),
                (float(factors["kPa"]), quotient_of(1, 6.894757)),
                (float(factors["Pa"]), quotient_of(1, 6894.757)),
                (float(DENSITY_UNITS[1][1]), quotient_of(1, 16.01846)),
                (float(LENGTH_UNITS[1][1]), quotient_of(1, 25.4)),
                (float(LENGTH_UNITS[2][1]), quotient_of(1, 2.54)),
                (gas["Kilograms"], quotient_of(13.1, 0.4535924)),
                (gas["Standard Cubic Meters"], quotient_of(1, 0.02831685)),
                (gas["Pounds"], quotient_of(1, single(product / single(459.67 + 60))))):
            self.assertEqual(stored, computed)

    def test_steam(self):
        pressures = [pressure for pressure, _ in STEAM_TABLE]
        self.assertEqual(len(pressures), 230)
        self.assertEqual(pressures, sorted(set(pressures)))
        falls = [pressures[i] for i in range(1, 230)
                 if float(STEAM_TABLE[i][1]) <= float(STEAM_TABLE[i - 1][1])]
        self.assertEqual(falls, [68])
        self.assertEqual(steam_density(0.0), single(0.03738))
        self.assertAlmostEqual(steam_density(102.0), 0.261292, places=6)
        self.assertAlmostEqual(steam_density(67.5), (0.18649 + 0.18264) / 2, places=6)
        self.assertEqual(steam_density(3000.0), single(11.86182))

    def test_pipes(self):
        self.assertEqual([value for _, value in NOMINAL_SIZES if value not in PIPE_SCHEDULES], [])
        self.assertEqual(len(PIPE_SCHEDULES), 25)
        self.assertEqual(PIPE_SCHEDULES["6"][5], ("Sch 160 5.187", "5.189"))


if __name__ == "__main__":
    unittest.main()
