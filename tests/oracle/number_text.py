"""Numbers as text, worked out with the decimal module.

A double is first turned into the shortest decimal text that reads back as the
same double; that text is then rounded half away from zero.
"""

import re
from decimal import ROUND_HALF_UP, Decimal, getcontext

getcontext().prec = 400

_NUMBER = re.compile(r"^ *([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)")


def read_number(line):
    """Longest numeric prefix of a line; None when the line holds no number."""
    found = _NUMBER.match(line)
    return None if found is None else float(found.group(1))


def fixed_picture(value, decimals):
    """Text under a picture of '#' only: no padding, no zero before the point.

    A value that rounds to zero gives the empty string.
    """
    step = Decimal(1).scaleb(-decimals)
    rounded = Decimal(repr(float(value))).quantize(step, rounding=ROUND_HALF_UP)
    if rounded == 0:
        return ""
    sign = "-" if rounded < 0 else ""
    whole, _, fraction = format(abs(rounded), "f").partition(".")
    whole = whole.lstrip("0")
    fraction = fraction.rstrip("0")
    return sign + whole + ("." + fraction if fraction else "")


def formatta_numero(value):
    """Number of the project and result file: at most seven decimals."""
    if value is True:
        value = -1.0
    elif value is False:
        value = 0.0
    text = fixed_picture(value, 7)
    if text == "":
        return "0"
    return "0" + text if text.startswith(".") else text


def formatta_relazione(value, decimals=2):
    """Number of the report: four decimals rounded, then cut to `decimals`."""
    text = fixed_picture(value, 4)
    text += "00000000" if "." in text else ".00000000"
    text = text.strip(" ").lstrip("0")
    if text.startswith("."):
        text = "0" + text
    return text[: text.index(".") + 1 + decimals]
