"""Numbers as text, and single-precision arithmetic, for the reference model of the window.

Python floats are doubles. A single is a float whose value was rounded by `single`; a sum, product
or quotient of two singles, worked out as a double and rounded once more, is the correctly rounded
single result (a double has more than twice the digits).
"""

import ctypes
import math
import re
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Context, Decimal

INFINITY = float("inf")
NAN = float("nan")

_WIDE = Context(prec=1200, Emax=99999, Emin=-99999)


class NumberLocale:
    """How a system writes numbers.

    `lowest` and `higher` are the digits of the lowest group and of all others; `minimum` is how
    many digits must stand before the first separator for the system to group at all.
    """

    def __init__(self, decimal, group, lowest=3, higher=3, minimum=1):
        self.decimal = decimal
        self.group = group
        self.lowest = lowest
        self.higher = higher
        self.minimum = minimum
        sign, exponent = "[+-]?", "(?:[eE][+-]?[0-9]+)?"
        mark = re.escape(group)
        whole = "(?:[0-9]{1,%d}(?:%s[0-9]{%d})*%s[0-9]{%d}|[0-9]+)" % (
            higher, mark, higher, mark, lowest)
        point = re.escape(decimal)
        digits = "(?:%s(?:%s[0-9]*)?|%s[0-9]+)" % (whole, point, point)
        self.pattern = re.compile(" *(%s%s%s) *" % (sign, digits, exponent))


_LOCALES = {
    "C": (".", ","),
    "ar_EG": (".", "\u066c"),
    "en_US": (".", ","),
    "de_DE": (",", "."),
    "de_CH": (".", "\u2019"),
    "es_ES": (",", ".", 3, 3, 2),
    "fr_FR": (",", "\u202f"),
    "hi_IN": (".", ",", 3, 2),
    "sv_SE": (",", "\u00a0"),
}


def number_locale(name):
    return NumberLocale(*_LOCALES[name])


# --- arithmetic -----------------------------------------------------------------------------------

def single(value):
    """The double `value` rounded to single precision; infinite when it does not fit."""
    return ctypes.c_float(value).value


def quotient(dividend, divisor):
    """Division with infinities and NaN in place of errors."""
    if divisor == 0.0:
        if dividend == 0.0 or math.isnan(dividend):
            return NAN
        return math.copysign(INFINITY, dividend) * math.copysign(1.0, divisor)
    return dividend / divisor


def root(value):
    return math.sqrt(value) if value >= 0.0 else NAN


def power(base, exponent):
    try:
        return math.pow(base, exponent)
    except OverflowError:
        return INFINITY
    except ValueError:
        return NAN


# --- reading --------------------------------------------------------------------------------------

def _number_body(text, locale):
    match = locale.pattern.fullmatch(text)
    if match is None:
        return None
    return match.group(1).replace(locale.group, "").replace(locale.decimal, ".")


def _nearest_single(body):
    """The single nearest to a decimal text, rounded once: near the middle between two singles, the
    digits that a double on the way loses decide."""
    double, exact = float(body), Decimal(body)
    nearest = single(double)
    if math.isinf(nearest) or exact == Decimal(double):
        return nearest
    around = (nearest, *(single(math.nextafter(double, way)) for way in (-INFINITY, INFINITY)))
    return min(around, key=lambda value: abs(_WIDE.subtract(Decimal(value), exact)))


def read_single(text, locale):
    """The value of a numeric text as a single; None when the text is not numeric."""
    body = _number_body(text, locale)
    if body is None:
        return None
    value = _nearest_single(body)
    return None if math.isinf(value) else value


def is_numeric(text, locale):
    return read_single(text, locale) is not None


def read_double(text, locale):
    return float(_number_body(text, locale)) if is_numeric(text, locale) else None


def local_decimal(text, locale):
    """A number text of the program, written with a point, in the form that the system reads."""
    return text.replace(".", ",", 1) if locale.decimal == "," else text


# --- writing --------------------------------------------------------------------------------------

def _decimal_form(value, is_double):
    if is_double:
        return Decimal("%.14e" % value)
    if abs(value) >= 1e7:
        return Decimal(value)
    return Decimal("%.6e" % value)


def _grouped(whole, locale):
    if len(whole) < locale.lowest + locale.minimum:
        return whole
    places = r"(?<=\d)(?=(?:\d{%d})*\d{%d}$)" % (locale.higher, locale.lowest)
    return re.sub(places, locale.group, whole)


def format_number(value, decimals, locale, grouping, is_double=False):
    """`value` with a fixed number of decimals, halves of its decimal form away from zero."""
    if math.isnan(value) or math.isinf(value):
        return ""
    form = _decimal_form(value, is_double)
    rounded = form.quantize(Decimal(1).scaleb(-decimals), rounding=ROUND_HALF_UP, context=_WIDE)
    whole, _, fraction = format(rounded.copy_abs(), "f").partition(".")
    sign = "-" if rounded < 0 else ""
    if grouping:
        whole = _grouped(whole, locale)
    return sign + whole + (locale.decimal + fraction if decimals else "")


RESULT_SCALE = ((1000.0, 0), (100.0, 1), (10.0, 2), (1.0, 3), (single(0.1), 4), (single(0.01), 5))


def format_result(value, locale, grouping=True):
    below = 1 if value == 0.0 else 6
    decimals = next((decimals for limit, decimals in RESULT_SCALE if value >= limit), below)
    return format_number(value, decimals, locale, grouping)


def format_limit(value, locale):
    decimals = next((decimals for limit, decimals in RESULT_SCALE[:4] if value >= limit), 4)
    return format_number(value, decimals, locale, True)


def round_to_5(value, is_double):
    """`value` rounded to 5 decimals of its decimal form, halves to even, as a single."""
    if math.isnan(value) or math.isinf(value):
        return value
    form = _decimal_form(value, is_double)
    return single(float(form.quantize(Decimal("0.00001"), rounding=ROUND_HALF_EVEN,
                                      context=_WIDE)))
