// Which properties apply: what each option and flow unit shows, enables and colors.
#include "tests/random/invariants.h"

namespace tarvix {

namespace {

QString Expect(const Step& step, std::string_view name, bool visible, bool enabled) {
    const ControlView& control = step.now[name];
    if (control.visible != visible) {
        return Named(name) + (visible ? QStringLiteral(" is hidden") : QStringLiteral(" is shown"));
    }
    if (visible && control.enabled != enabled) {
        return Named(name) +
               (enabled ? QStringLiteral(" is disabled") : QStringLiteral(" is enabled"));
    }
    return {};
}

QString ExpectField(const Step& step, std::string_view name, bool enabled) {
    QString fault = Expect(step, name, true, enabled);
    const BackColor expected = enabled ? BackColor::WindowBackground : BackColor::PaleGrey;
    if (fault.isEmpty() && step.now[name].backColor != expected) {
        fault = Named(name) + QStringLiteral(" has the wrong color");
    }
    return fault;
}

// The first fault of the list.
QString First(std::initializer_list<QString> faults) {
    for (const QString& fault : faults) {
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}

QString LiquidGravity(const Step& step) {
    if (step.is.fluid != 'L') {
        return {};
    }
    const bool base = !step.is.mass;
    return First({ExpectField(step, "txtSGf", !step.is.sgCalculated),
                  Expect(step, "txtSGb", base, true), Expect(step, "lblSGb1", base, true),
                  Expect(step, "lblSGb2", base, true), Expect(step, "optSgCalc", true, true),
                  Expect(step, "optSgUser", true, true)});
}

QString LiquidDensity(const Step& step) {
    if (step.is.fluid != 'L') {
        return {};
    }
    const bool used = step.is.sgCalculated;
    return First(
        {Expect(step, "fraDensity", true, used), ExpectField(step, "txtDensity", used),
         Expect(step, "cboDensityUnit", true, used), Expect(step, "lblDensity", true, used),
         Expect(step, "lblSteamTbl", false, false), Expect(step, "optSaturated", true, false),
         Expect(step, "optSuperheated", true, false), Expect(step, "optSteamTbl", true, false),
         Expect(step, "optSteamUser", true, false)});
}

QString SteamDensity(const Step& step) {
    if (step.is.fluid != 'S') {
        return {};
    }
    const bool saturated = step.now["optSaturated"].checked;
    if (!saturated && step.is.steamTable) {
        return QStringLiteral("superheated steam with a density from the table");
    }
    return First(
        {Expect(step, "fraDensity", true, true),
         ExpectField(step, "txtDensity", !step.is.steamTable),
         Expect(step, "cboDensityUnit", true, true), Expect(step, "lblDensity", true, true),
         Expect(step, "optSaturated", true, true), Expect(step, "optSuperheated", true, true),
         Expect(step, "optSteamUser", true, true), Expect(step, "optSteamTbl", true, saturated),
         Expect(step, "lblSteamTbl", true, saturated)});
}

QString PressureAndTemperature(const Step& step) {
    const bool gas = step.is.fluid == 'G';
    const bool pressure = step.is.fluid != 'L';
    QString fault;
    for (const std::string_view name :
         {"txtPf", "cboPressUnit", "optPgauge", "optPabsolute", "lblPf"}) {
        fault = fault.isEmpty() ? Expect(step, name, pressure, true) : fault;
    }
    for (const std::string_view name : {"txtTf", "optDegF", "optDegC", "lblTf"}) {
        fault = fault.isEmpty() ? Expect(step, name, gas, true) : fault;
    }
    return fault;
}

QString GasGravity(const Step& step) {
    const bool shown =
        step.is.fluid == 'G' && !(step.is.correction == CompCorrection::Density && step.is.mass);
    return First({Expect(step, "fraGasSG", shown, true), Expect(step, "txtGasSGb", shown, true)});
}

QString GasCorrection(const Step& step) {
    const bool gas = step.is.fluid == 'G';
    const bool density = gas && step.is.correction == CompCorrection::Density;
    const bool zf = gas && step.is.correction == CompCorrection::Zf;
    QString fault =
        First({Expect(step, "txtZf", density || zf, true),
               Expect(step, "cboZfDensityUnit", density, true),
               Expect(step, "lblCompCorr", density || zf, true),
               Expect(step, "optCompCorrNone", gas, true),
               Expect(step, "optCompDensity", gas, true), Expect(step, "optCompZf", gas, true)});
    const ControlView& label = step.now["lblCompCorr"];
    if (density && (label.caption != QLatin1String("Operating Density") || label.width != 735)) {
        fault = label.caption;
    }
    if (zf && (label.caption != QLatin1String("Compressibility at Flowing Conditions (Zf)") ||
               label.width != 1700)) {
        fault = label.caption;
    }
    return fault;
}

// Above 200 psi gauge "may", above 400 "will", for a gas without a correction only.
QString CompressibilityWarning(const Step& step) {
    const ControlView& warning = step.now["fraZfCompWarning"];
    bool shown = false;
    bool will = false;
    const auto psi = step.is.PressurePsi();
    if (step.is.fluid == 'G' && step.is.correction == CompCorrection::None && psi) {
        const float gauge = step.is.absolute ? *psi - 14.7F : *psi;
        shown = gauge > 200;
        will = gauge > 400;
    }
    if (warning.visible != shown) {
        return shown ? QStringLiteral("the warning is missing")
                     : QStringLiteral("the warning is out of place");
    }
    if (!shown) {
        return {};
    }
    const QString text = step.now["lbl2ZfCompWarning"].caption;
    const bool matches = will ? warning.backColor == BackColor::Red &&
                                    text == QLatin1String("will result in erroneous computations.")
                              : warning.backColor == BackColor::Yellow &&
                                    text == QLatin1String("may result in erroneous computations.");
    return matches ? QString() : QStringLiteral("wrong color or words: ") + text;
}

// 8 inches nominal and more, 150 inches of water and more.
QString PlateWarning(const Step& step) {
    const ControlView& warning = step.now["fraPlateThicknessWarning"];
    const float inches =
        step.is.nominalSize >= 8 && step.is.deltaP ? *step.is.deltaP * step.is.deltaPFactor : 0.0F;
    if (warning.visible != (inches >= 150)) {
        return QStringLiteral("%1 inches of water").arg(double{inches});
    }
    return warning.backColor == BackColor::Yellow ? QString() : QStringLiteral("wrong color");
}

QString PipeMask(const Step& step) {
    return First({Expect(step, "txtMaskNomSize", step.is.userEnteredPipe, true)});
}

}  // namespace

void AddOptionInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"liquid-gravity",
          "For a liquid, txtSGf is open for a typed gravity and grey for a calculated one; the "
          "base gravity is shown for volume units only.",
          LiquidGravity},
         {"liquid-density",
          "For a liquid, the density can be entered exactly while the gravity is calculated from "
          "it; the steam options are closed.",
          LiquidDensity},
         {"steam-density",
          "For steam, the density is open when typed and grey when from the table; only saturated "
          "steam offers the table.",
          SteamDensity},
         {"pressure-temperature",
          "The pressure is shown for gas and steam, the temperature for gas, both always open.",
          PressureAndTemperature},
         {"gas-gravity", "The gas gravity is shown except for a mass flow with an entered density.",
          GasGravity},
         {"gas-correction",
          "txtZf, its label and its density unit are shown as the correction asks, with the words "
          "and width of the correction.",
          GasCorrection},
         {"compressibility-warning",
          "The compressibility warning is shown exactly for an uncorrected gas above 200 psi gauge "
          "(yellow, may) and above 400 (red, will).",
          CompressibilityWarning},
         {"plate-warning",
          "The plate warning is shown exactly from 8 inches nominal and 150 inches of water on.",
          PlateWarning},
         {"pipe-mask", "The nominal size is covered exactly while the pipe is the user's own.",
          PipeMask}});
}

}  // namespace tarvix
