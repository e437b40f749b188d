#include "app/sheet/data_checks.h"

#include "calc/constants.h"

#include <array>
#include <span>
#include <string>

namespace tarvix {

namespace {

// One field as a check sees it.
struct CheckedField {
    Field field;
    const std::string* text;
    std::string name;  // as messages call it
    bool required;     // in the passes over the whole set
    enum class Rule { Positive, OperatingPressure, AnyNumber } rule = Rule::Positive;
};

using Fields = std::span<const CheckedField>;

float ValueOf(const CheckedField& field, const NumberLocale& locale) {
    return TextToSingle(*field.text, locale).value_or(0.0F);
}

// Names of the required fields that `isBad` picks, joined by ", ".
template <typename Predicate>
std::string ListOf(Fields fields, Predicate isBad) {
    std::string list;
    for (const CheckedField& field : fields) {
        if (field.required && isBad(field)) {
            list += (list.empty() ? "" : ", ") + field.name;
        }
    }
    return list;
}

const CheckedField* EditedField(Fields fields, Field active) {
    for (const CheckedField& field : fields) {
        if (field.field == active && active != Field::None) {
            return field.text->empty() ? nullptr : &field;
        }
    }
    return nullptr;
}

// The limit of the operating pressure: above zero absolute, above a full vacuum on the gauge.
// Empty when it is kept. The absolute message ends in a full stop in the passes over the whole set
// only.
std::string PressureLimitMessage(const CheckedField& field, const InputSheet& sheet,
                                 const Module1& module, std::string_view absoluteFullStop) {
    const float psi = ValueOf(field, module.locale()) * sheet.pressUnit.factor;
    if (sheet.absolutePressure) {
        return psi > 0 ? ""
                       : field.name + " must be greater than 0" + std::string(absoluteFullStop);
    }
    if (psi > -kAtmosphericPressurePsi) {
        return "";
    }
    return field.name + " must be greater than " +
           module.FormatLimit(-kAtmosphericPressurePsi / sheet.pressUnit.factor) + " " +
           std::string(sheet.pressUnit.text) + ".";
}

// The field being edited, judged alone.
std::string EditedFieldMessage(Fields fields, const InputSheet& sheet, const Module1& module) {
    const CheckedField* field = EditedField(fields, sheet.activeField);
    if (field == nullptr) {
        return "";
    }
    const auto value = TextToSingle(*field->text, module.locale());
    if (!value) {
        return "Non-Numeric " + field->name;
    }
    switch (field->rule) {
        case CheckedField::Rule::OperatingPressure:
            return PressureLimitMessage(*field, sheet, module, "");
        case CheckedField::Rule::Positive:
            return *value > 0 ? "" : field->name + " must be greater than 0.";
        case CheckedField::Rule::AnyNumber:
            break;
    }
    return "";
}

// The whole set: what is empty, then what is no number, then what is too small.
std::string FluidDataMessage(Fields fields, const InputSheet& sheet, const Module1& module) {
    const NumberLocale& locale = module.locale();
    std::string list = ListOf(fields, [](const CheckedField& f) { return f.text->empty(); });
    if (!list.empty()) {
        return "Incomplete fluid data (" + list + ").";
    }
    list = ListOf(fields, [&](const CheckedField& f) { return !IsNumeric(*f.text, locale); });
    if (!list.empty()) {
        return "Non-Numeric fluid data (" + list + ").";
    }
    for (const CheckedField& field : fields) {
        if (field.rule == CheckedField::Rule::OperatingPressure) {
            std::string message = PressureLimitMessage(field, sheet, module, ".");
            if (!message.empty()) {
                return message;
            }
        }
    }
    list = ListOf(fields, [&](const CheckedField& f) {
        return f.rule == CheckedField::Rule::Positive && !(ValueOf(f, locale) > 0);
    });
    return list.empty() ? "" : list + " must be greater than 0.";
}

std::string FluidCheckMessage(Fields fields, const InputSheet& sheet, const Module1& module) {
    std::string message = EditedFieldMessage(fields, sheet, module);
    return message.empty() ? FluidDataMessage(fields, sheet, module) : message;
}

float SingleOf(const std::string& text, const Module1& module) {
    return TextToSingle(text, module.locale()).value_or(0.0F);
}

void StorePressures(const InputSheet& sheet, Module1& module) {
    module.working.OperPress = SingleOf(sheet.pf, module) * sheet.pressUnit.factor;
    module.working.BasePress = kAtmosphericPressurePsi;
}

}  // namespace

int DataChkLiquid(const InputSheet& sheet, Module1& module) {
    const std::array fields{
        CheckedField{
            Field::SGf, &sheet.sgf,
            std::string("Flowing Specific Gravity") + (sheet.sgCalculated ? " [from Density]" : ""),
            !sheet.sgCalculated},
        CheckedField{Field::SGb, &sheet.sgb, "Base Specific Gravity", sheet.sgbVisible},
        CheckedField{Field::Density, &sheet.density, "Operating Density", sheet.sgCalculated},
    };
    module.MsgText = FluidCheckMessage(fields, sheet, module);
    if (!module.MsgText.empty()) {
        return kDataBad;
    }
    module.working.FlowingSG = SingleOf(sheet.sgf, module);
    if (sheet.sgbVisible) {
        module.working.BaseSG = SingleOf(sheet.sgb, module);
    }
    return kDataGood;
}

int DataChkSteam(const InputSheet& sheet, Module1& module) {
    const std::string densityName =
        std::string("Operating Density") + (sheet.steamFromTable ? " [from Op. Pressure]" : "");
    const std::array fields{
        CheckedField{Field::Density, &sheet.density, densityName, !sheet.steamFromTable},
        CheckedField{Field::Pf, &sheet.pf, "Operating Pressure", true,
                     CheckedField::Rule::OperatingPressure},
    };
    module.MsgText = FluidCheckMessage(fields, sheet, module);
    if (module.MsgText.empty() && sheet.steamFromTable && sheet.density.empty()) {
        module.MsgText = "The " + densityName + " must not exceed steam table limits.";
    }
    if (!module.MsgText.empty()) {
        return kDataBad;
    }
    StorePressures(sheet, module);
    module.working.OperDensity = SingleOf(sheet.density, module) * sheet.densityUnit.factor;
    return kDataGood;
}

int DataChkGas(const InputSheet& sheet, Module1& module) {
    const bool zfIsDensity = sheet.compCorrection == CompCorrection::Density;
    const std::array fields{
        CheckedField{Field::Tf, &sheet.tf, "Op. Temperature", true, CheckedField::Rule::AnyNumber},
        CheckedField{Field::Pf, &sheet.pf, "Op. Pressure", true,
                     CheckedField::Rule::OperatingPressure},
        CheckedField{Field::GasSGb, &sheet.gasSGb, "Base Specific Gravity", sheet.gasSGbVisible},
        CheckedField{Field::Zf, &sheet.zf, zfIsDensity ? "Density" : "Zf", sheet.zfVisible},
    };
    module.MsgText = FluidCheckMessage(fields, sheet, module);
    if (!module.MsgText.empty()) {
        return kDataBad;
    }
    WorkingValues& working = module.working;
    working.FlowTempF = module.TempToDegF(SingleOf(sheet.tf, module), sheet.degC ? "C" : "F");
    working.BaseTempF = kBaseTempF;
    if (sheet.gasSGbVisible) {
        working.BaseSG = SingleOf(sheet.gasSGb, module);
    }
    StorePressures(sheet, module);
    if (zfIsDensity) {
        working.OperDensity = SingleOf(sheet.zf, module) * sheet.zfDensityUnit.factor;
    } else if (sheet.compCorrection == CompCorrection::Zf) {
        working.UserZf = SingleOf(sheet.zf, module);
    }
    return kDataGood;
}

int OrificeDataCheck(const InputSheet& sheet, Module1& module) {
    const NumberLocale& locale = module.locale();
    const std::array fields{
        CheckedField{Field::Flow, &sheet.flow, "Flow Rate", sheet.mode != SolveFor::FlowRate},
        CheckedField{Field::DeltaP, &sheet.deltaP, "Differential Pressure",
                     sheet.mode != SolveFor::DiffPressure},
        CheckedField{Field::Beta, &sheet.beta, "Beta Ratio", sheet.mode != SolveFor::Beta},
    };
    module.MsgText.clear();

    const CheckedField* edited = EditedField(fields, sheet.activeField);
    if (edited != nullptr && edited->required) {
        const auto value = TextToSingle(*edited->text, locale);
        if (!value) {
            module.MsgText = "Non-Numeric " + edited->name + " data.";
        } else if (!(*value > 0)) {
            module.MsgText = "The " + edited->name + " must be greater than 0.";
        }
    }
    if (module.MsgText.empty()) {
        const std::string list =
            ListOf(fields, [&](const CheckedField& f) { return !IsNumeric(*f.text, locale); });
        if (!list.empty()) {
            module.MsgText = "Incomplete or Non-Numeric fluid data (" + list + ").";
        }
    }
    if (module.MsgText.empty()) {
        const std::string list =
            ListOf(fields, [&](const CheckedField& f) { return !(ValueOf(f, locale) > 0); });
        if (!list.empty()) {
            module.MsgText = "Fluid data (" + list + ") must be greater than 0.";
        }
    }
    return module.MsgText.empty() ? kDataGood : kDataBad;
}

bool IsBetaOutsideStandardRange(std::string_view beta, const NumberLocale& locale) {
    const auto value = TextToSingle(beta, locale);
    return value && (*value < 0.15F || *value > 0.67F);
}

}  // namespace tarvix
