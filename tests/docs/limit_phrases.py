"""The words in which the documents name each limit and constant of the program; # stands for its
number, the rest is a regular expression over the documents without emphasis and line breaks.
"""

PHRASES = {
    # Flow equations.
    "kLiquidConstant": (r"KL \| # \| liquid flow",),
    "kMassConstant": (r"KM \| # \| mass flow",),
    "kStandardVolumeConstant": (r"KV \| # \| standard volume flow",),
    "kDischargeCoefficient": (r"Cd \| # \| discharge", r"Discharge coefficient \| #",
                              r"The discharge coefficient is #"),
    "kDischargeCoefficientSquared": (r"Cd² \| # \|", r"A² / \(A² \+ #"),
    "kExpansionConstant": (r"a \| # \| expansion", r"1 - \(# \+ [\d.]+ β⁴\)"),
    "kExpansionPerBetaToTheFourth": (r"b \| # \| expansion", r"1 - \([\d.]+ \+ # β⁴\)"),
    "kIsentropicExponent": (r"κ \| # \| isentropic", r"Isentropic exponent .* steam \| # ",
                            r"\(h / \([\d.]+ × P\)\) / #", r"isentropic exponent of # for all"),
    "kInchesOfWaterPerPsi": (r"KY \| # \| expansion factor: inches of water per psi",
                             r"\(h / \(# × P\)\)", r"the expansion factor on #"),
    "kGasDensityConstant": (r"KG \| # \| density of a gas",),
    "kBaseCompressibility": (r"Compressibility at base conditions \| #",
                             r"Base compressibility is #"),
    "kBaseAirDensityNumerator": (r"ρa \| # / ", r"ρa = # / ", r"In ρa, # is"),
    "kBaseAirDensityDenominator": (r"ρa \| [\d.]+ / #", r"ρa = [\d.]+ / #"),
    # Base conditions.
    "kBaseTempF": (r"Base temperature \| # Deg F \(15\.56 Deg C\)",
                   r"standard cubic meter is one of # Deg F"),
    "kAtmosphericPressurePsi": (
        r"atmospheric pressure added to a gauge reading \| # psia \(101\.353 kPa\)",
        r"Pb \| # \| base and atmospheric", r"base pressure, # \| psi",
        r"gauge pressure is greater than -# psi", r"gauge pressure is -# psi or less",
        r"The atmosphere is # psi", r"atmospheric pressure\. It is # psi", r"factor, plus #",
        r"of an absolute pressure # is subtracted", r"base pressure of #",
        r"one of [\d.]+ Deg F and # psia"),
    "kRankineOffset": (r"T0 \| # \| deg F to deg R", r"deg R = deg F \+ #"),
    "kWaterDensityLbPerFt3": (r"W \| # \| density of water", r"from density is ρ / #,",
                              r"gravity from density as #"),
    "kMinutesPerHour": (r"gas, steam Ff = \(flow factor / time factor\) × #",),
    # Limits of a result.
    "kMaxFlow": (r"a flow above # \(in single", r"precision: #\)",
                 r"a flow outside [\d.]+ to #"),
    "kMinFlow": (r"or below # is not shown", r"a flow outside # to"),
    "kMaxDiffPressInH2O": (r"A differential pressure above # inches of water is not shown",
                           r"a differential pressure of a liquid above # inches of water"),
    "kMaxBeta": (r"solved beta above # after", r"\(beta > #\)", r"one of # exactly is refused",
                 r"A beta of # or more, typed or from", r"This ratio must be less than #",
                 r"a beta of # or more, typed or of"),
    "kMinBeta": (r"solved beta of # or less", r"\(beta <= #\)"),
    # The iterations.
    "kMaxSteps": (r"after # steps",),
    "kFirstDiffPressInH2O": (r"from h = # inches of water", r"starts at # inches of water"),
    "kFirstBeta": (r"Beta, from β = #",),
    # Warnings.
    "kMayFromPsig": (r"correction above # psi gauge: it \"may\"", r"gas above # psi gauge without",
                     r"a gas without correction, above # psi gauge"),
    "kWillFromPsig": (r"above # psi gauge it \"will",
                      r"will result in erroneous computations\.\" \| above # psi"),
    "kDeflectingSizeIn": (r"Nominal size of # inches and more", r"from # inches nominal"),
    "kDeflectingDiffPressInH2O": (r"differential pressure of # inches of water and more",
                                  r"nominal and # inches of water on"),
    "kLowestStandardBeta": (r"Beta below # or above", r"standard range \(# to"),
    "kHighestStandardBeta": (r"Beta below [\d.]+ or above #", r"standard range \([\d.]+ to #\)",
                             r"with a beta above # and"),
    # Decimals.
    "kOfSingle": (r"# significant digits for a single", r"24 bits, about # digits"),
    "kOfDouble": (r"for a single, # for a double",),
    "kBetaDecimals": (r"Beta is rounded to # decimals", r"typed bore, written with # decimals"),
    "kBoreDecimals": (r"The bore is shown with # decimals", r"from the bore with its # decimals",
                      r"bore has # decimals of its unit"),
    "kInchDecimals": (r"rounded to # decimals of an inch",),
    "kMetricDecimals": (r"or centimeters, it is rounded to # decimals",
                        r"or centimeters with # decimals"),
    "kNominalDecimals": (r"nominal sizes there with # decimal",),
    "kSpecificGravityDecimals": (r"shown and used with # decimals",),
    "kSteamDensityDecimals": (r"The density is shown with # decimals", r"so it has the # decimals"),
    "kLimitDecimalsBelow": (r"but # decimals below 1",),
    "kResultDecimalsOfZero": (r"\| 0 \| # \|",),
    "kResultDecimalsBelow": (r"\| other \| # \|",),
    # Printing.
    "kCustomerColumns": (r"is longer than # characters", r"has room for # characters"),
    "kNarrowest": (r"at # of their width", r"narrower, down to # %"),
    "kRoomForPage": (r"less than # bytes, which a page",),
    # The steam table.
    "the steam table's last row": (r"needs 0 to # psi gauge", r"0 to # psi, \d+ pairs",
                                   r"above # psi gauge \| \| `The Operating Density"),
    "the steam table's rows": (r"0 to \d+ psi, # pairs",),
}

# Codes and sizes that no user meets, and measures of the paper, which pictures of it show.
NO_LIMITS = {"kAllOfThem", "kAnswerCancel", "kAnswerOk", "kBackspace", "kCustomerPrefix", "kDataBad",
             "kDataGood", "kDoNotPrint", "kHair", "kInk", "kLeftMargin", "kNearlyWhite", "kNoLimit",
             "kNotesTopTwips", "kPrint", "kShade", "kStyleCriticalOk", "kStyleCriticalOkCancel",
             "kTopMargin", "kTwipsPerInch", "kTwipsPerPoint", "kValueColumn"}

# Where docs/method.md lists limits: from this text to the next that matches.
LIMIT_LISTS = (
    ("| Assumption | Value |", r"\n\n"),
    ("<!-- figures: constants -->", r"\n\n"),
    ("two exceptions:", r"\n\n\*\*"),
    ("**Limits** apply", r"\n## "),
    ("## Warnings", r"\n## "),
    ("**No result and no message**", r"\n## "),
)
