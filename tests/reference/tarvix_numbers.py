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
    "POSIX": (".", ","),
    "ar_EG": (".", "\u066c"),
    "en_US": (".", ","),
    "en_GB": (".", ","),
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


def _round_body_to_single(body):
    """The single nearest to a decimal text, rounded once."""
    double = float(body)
    nearest = single(double)
    if math.isinf(nearest) or math.isinf(double) or nearest == double:
        return nearest
    toward = math.inf if double > nearest else -math.inf
    other = _next_single(nearest, toward)
    if abs(other - double) == abs(double - nearest):
        # The double sits half-way between two singles: the digits that it lost decide.
        exact = Decimal(body)
        if (exact > Decimal(double)) == (toward > 0) and exact != Decimal(double):
            return other
    return nearest


def _next_single(value, toward):
    bits = ctypes.c_uint32.from_buffer(ctypes.c_float(value)).value
    if value == 0.0:
        bits = 1 | (0x80000000 if toward < 0 else 0)
    elif (toward > value) == (value > 0):
        bits += 1
    else:
        bits -= 1
    return ctypes.c_float.from_buffer(ctypes.c_uint32(bits)).value


def read_single(text, locale):
    """The value of a numeric text as a single; None when the text is not numeric."""
    body = _number_body(text, locale)
    if body is None:
        return None
    value = _round_body_to_single(body)
    return None if math.isinf(value) else value


def is_numeric(text, locale):
    return read_single(text, locale) is not None


def read_double(text, locale):
    if not is_numeric(text, locale):
        return None
    return float(_number_body(text, locale))


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
    groups = [whole[-locale.lowest:]]
    rest = whole[:-locale.lowest]
    while rest:
        groups.insert(0, rest[-locale.higher:])
        rest = rest[:-locale.higher]
    return locale.group.join(groups)


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


def _scaled_decimals(value, below_tenth, at_zero, otherwise):
    for limit, decimals in ((1000.0, 0), (100.0, 1), (10.0, 2), (1.0, 3), (single(0.1), 4),
                            (single(0.01), below_tenth)):
        if value >= limit:
            return decimals
    return at_zero if value == 0.0 else otherwise


def format_result(value, locale):
    return format_number(value, _scaled_decimals(value, 5, 1, 6), locale, True)


def format_entry(value, locale):
    return format_number(value, _scaled_decimals(value, 5, 1, 6), locale, False)


def format_limit(value, locale):
    return format_number(value, _scaled_decimals(value, 4, 4, 4), locale, True)


def round_to_5(value, is_double):
    """`value` rounded to 5 decimals of its decimal form, halves to even, as a single."""
    if math.isnan(value) or math.isinf(value):
        return value
    form = _decimal_form(value, is_double)
    return single(float(form.quantize(Decimal("0.00001"), rounding=ROUND_HALF_EVEN,
                                      context=_WIDE)))
