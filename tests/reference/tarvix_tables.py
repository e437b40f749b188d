"""Unit lists, nominal sizes and fluid defaults for the reference model.

Every entry is (shown text, factor) or (shown text, kind, factor), the factor as the text that the
product holds.
"""

PRESSURE_UNITS = (
    ("PSI", "1"),
    ("kg/cm2", "14.22334"),
    ("kPa", "0.1450378"),
    ("bar", "14.5039"),
    ("mm of Mercury", "0.019324"),
    ("Pa", "0.0001450377"),
    ("mbar", "0.0145038"),
    ("inches of W.C", "0.0361011"),
)

DELTA_P_UNITS = (
    ("Inches Water", "1"),
    ("Inches of Mercury", "13.5962"),
    ("PSI", "27.7"),
    ("mm of Water", "0.03937"),
    ("mm of Mercury", "0.53528"),
    ("bar", "401.75"),
    ("mbar", "0.40175"),
    ("kPa", "4.0175"),
    ("Pa", "4017.5"),
)

DENSITY_UNITS = (
    ("lb/cubic foot", "1"),
    ("kg/cubic meter", "0.06242798"),
)

LENGTH_UNITS = (
    ("Inches", "1"),
    ("Millimeters", "0.03937008"),
    ("Centimeters", "0.3937008"),
)

FLOW_UNITS = {
    "L": (
        ("Gallons", "V", "1"),
        ("Imperial Gallons", "V", "1.20095"),
        ("Barrels", "V", "42"),
        ("Dekaliters", "V", "2.64172"),
        ("Liters", "V", "0.264172"),
        ("Cubic Meters ", "V", "264.172"),
        ("Grams", "M", "0.000264717"),
        ("Kilograms", "M", "0.2647168"),
        ("Tons", "M", "240.147"),
        ("Pounds", "M", "0.120074"),
        ("Metric Tons", "M", "264.762"),
        ("Long Tons", "M", "268.965"),
        ("Cubic Centimeters", "V", "0.000264172"),
    ),
    "S": (
        ("Pounds", "M", "1"),
        ("Kilograms", "M", "2.204614"),
    ),
    "G": (
        ("Standard Cubic Feet", "V", "1"),
        ("Pounds", "M", "13.10249"),
        ("Kilograms", "M", "28.88056"),
        ("Standard Cubic Meters", "V", "35.31466"),
    ),
}

TIME_UNITS = (
    ("Minute", "1"),
    ("Hour", "60"),
    ("Day", "1440"),
    ("Second", "0.0166667"),
)

# Flow unit and time unit that a change of fluid selects.
FLUID_DEFAULTS = {
    "L": ("Gallons", "Minute"),
    "S": ("Pounds", "Hour"),
    "G": ("Standard Cubic Feet", "Day"),
}

# Nominal sizes as shown in inches; the first six have another text for their value.
NOMINAL_SIZES = (
    ("1/2", "0.5"), ("3/4", "0.75"), ("1", "1"), ("1-1/2", "1.5"), ("2", "2"), ("2-1/2", "2.5"),
) + tuple((size, size) for size in (
    "3", "4", "5", "6", "8", "10", "12", "14", "16", "18", "20", "22", "24", "26", "30", "34",
    "36", "42"))
