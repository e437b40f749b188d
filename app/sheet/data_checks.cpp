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
    const EnteredNumber* number;
    std::string name;  // as messages call it
    bool required;     // in the passes over the whole set
    enum class Rule { Positive, OperatingPressure, AnyNumber } rule = Rule::Positive;
};

using Fields = std::span<const CheckedField>;

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
            return field.number->empty() ? nullptr : &field;
        }
    }
    return nullptr;
}

// The limit of the operating pressure: above zero absolute, above a full vacuum on the gauge.
// Empty when it is kept. The absolute message ends in a full stop in the passes over the whole set
// only.
std::string PressureLimitMessage(const CheckedField& field, const InputSheet& sheet,
                                 const Module1& module, std::string_view absoluteFullStop) {
    const float psi = field.number->SingleOrZero() * sheet.pressUnit.factor;
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
    const auto value = field->number->Single();
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
    std::string list = ListOf(fields, [](const CheckedField& f) { return f.number->empty(); });
    if (!list.empty()) {
        return "Incomplete fluid data (" + list + ").";
    }
    list = ListOf(fields, [](const CheckedField& f) { return !f.number->IsNumeric(); });
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
    list = ListOf(fields, [](const CheckedField& f) {
        return f.rule == CheckedField::Rule::Positive && !(f.number->SingleOrZero() > 0);
    });
    return list.empty() ? "" : list + " must be greater than 0.";
}

std::string FluidCheckMessage(Fields fields, const InputSheet& sheet, const Module1& module) {
    std::string message = EditedFieldMessage(fields, sheet, module);
    return message.empty() ? FluidDataMessage(fields, sheet, module) : message;
}

void StorePressures(const InputSheet& sheet, WorkingValues& working) {
    working.OperPress = sheet.pf.SingleOrZero() * sheet.pressUnit.factor;
    working.BasePress = kAtmosphericPressurePsi;
}

}  // namespace

CheckResult DataChkLiquid(const InputSheet& sheet, const WorkingValues& before,
                          const Module1& module) {
    const std::array fields{
        CheckedField{
            Field::SGf, &sheet.sgf,
            std::string("Flowing Specific Gravity") + (sheet.sgCalculated ? " [from Density]" : ""),
            !sheet.sgCalculated},
        CheckedField{Field::SGb, &sheet.sgb, "Base Specific Gravity", sheet.sgbVisible},
        CheckedField{Field::Density, &sheet.density, "Operating Density", sheet.sgCalculated},
    };
    CheckResult result{FluidCheckMessage(fields, sheet, module), before};
    if (result.status() == kDataBad) {
        return result;
    }
    result.working.FlowingSG = sheet.sgf.SingleOrZero();
    if (sheet.sgbVisible) {
        result.working.BaseSG = sheet.sgb.SingleOrZero();
    }
    return result;
}

CheckResult DataChkSteam(const InputSheet& sheet, const WorkingValues& before,
                         const Module1& module) {
    const std::string densityName =
        std::string("Operating Density") + (sheet.steamFromTable ? " [from Op. Pressure]" : "");
    const std::array fields{
        CheckedField{Field::Density, &sheet.density, densityName, !sheet.steamFromTable},
        CheckedField{Field::Pf, &sheet.pf, "Operating Pressure", true,
                     CheckedField::Rule::OperatingPressure},
    };
    CheckResult result{FluidCheckMessage(fields, sheet, module), before};
    if (result.message.empty() && sheet.steamFromTable && sheet.density.empty()) {
        result.message = "The " + densityName + " must not exceed steam table limits.";
    }
    if (result.status() == kDataBad) {
        return result;
    }
    StorePressures(sheet, result.working);
    result.working.OperDensity = sheet.density.SingleOrZero() * sheet.densityUnit.factor;
    return result;
}

CheckResult DataChkGas(const InputSheet& sheet, const WorkingValues& before, Module1& module) {
    const bool zfIsDensity = sheet.compCorrection == CompCorrection::Density;
    const std::array fields{
        CheckedField{Field::Tf, &sheet.tf, "Op. Temperature", true, CheckedField::Rule::AnyNumber},
        CheckedField{Field::Pf, &sheet.pf, "Op. Pressure", true,
                     CheckedField::Rule::OperatingPressure},
        CheckedField{Field::GasSGb, &sheet.gasSGb, "Base Specific Gravity", sheet.gasSGbVisible},
        CheckedField{Field::Zf, &sheet.zf, zfIsDensity ? "Density" : "Zf", sheet.zfVisible},
    };
    CheckResult result{FluidCheckMessage(fields, sheet, module), before};
    if (result.status() == kDataBad) {
        return result;
    }
    WorkingValues& working = result.working;
    working.FlowTempF = module.TempToDegF(sheet.tf.SingleOrZero(), sheet.degC ? "C" : "F");
    working.BaseTempF = kBaseTempF;
    if (sheet.gasSGbVisible) {
        working.BaseSG = sheet.gasSGb.SingleOrZero();
    }
    StorePressures(sheet, result.working);
    if (zfIsDensity) {
        working.OperDensity = sheet.zf.SingleOrZero() * sheet.zfDensityUnit.factor;
    } else if (sheet.compCorrection == CompCorrection::Zf) {
        working.UserZf = sheet.zf.SingleOrZero();
    }
    return result;
}

CheckResult OrificeDataCheck(const InputSheet& sheet, const WorkingValues& before) {
    const std::array fields{
        CheckedField{Field::Flow, &sheet.flow, "Flow Rate", sheet.mode != SolveFor::FlowRate},
        CheckedField{Field::DeltaP, &sheet.deltaP, "Differential Pressure",
                     sheet.mode != SolveFor::DiffPressure},
        CheckedField{Field::Beta, &sheet.beta, "Beta Ratio", sheet.mode != SolveFor::Beta},
    };
    CheckResult result{"", before};
    const CheckedField* edited = EditedField(fields, sheet.activeField);
    if (edited != nullptr && edited->required) {
        const auto value = edited->number->Single();
        if (!value) {
            result.message = "Non-Numeric " + edited->name + " data.";
        } else if (!(*value > 0)) {
            result.message = "The " + edited->name + " must be greater than 0.";
        }
    }
    if (result.message.empty()) {
        const std::string list =
            ListOf(fields, [](const CheckedField& f) { return !f.number->IsNumeric(); });
        if (!list.empty()) {
            result.message = "Incomplete or Non-Numeric fluid data (" + list + ").";
        }
    }
    if (result.message.empty()) {
        const std::string list =
            ListOf(fields, [](const CheckedField& f) { return !(f.number->SingleOrZero() > 0); });
        if (!list.empty()) {
            result.message = "Fluid data (" + list + ") must be greater than 0.";
        }
    }
    return result;
}

}  // namespace tarvix
