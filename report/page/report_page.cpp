#include "report/page/report_page.h"

#include "report/page/document_name.h"
#include "report/page/page_writer.h"
#include "report/page/report_notes.h"
#include "units/pipe_id_texts.h"

#include <string_view>

namespace tarvix {

namespace {

// The logo, drawn by the painter, has these empty lines to itself.
constexpr int kLogoLines = 3;

// The column behind the values, where a remark on the line above begins.
constexpr int kRemarkBlanks = kValueColumn + 1;

class ReportComposer {
  public:
    ReportComposer(const ReportSheet& sheet, Module1& module)
        : sheet_(sheet), inputs_(sheet.inputs), module_(module) {}

    ReportPage Compose();

  private:
    std::string Title();
    void PrintCustomer();
    void PrintRates();
    void PrintSteam();
    void PrintGas();
    void PrintLiquid();
    void PrintPipeAndBore();
    void PrintWarnings();
    void PrintZfCompWarning();
    void PrintOperatingPressure();

    // A field's value with this many decimals; empty when it is not a number.
    std::string Number(const EnteredNumber& field, int decimals) const;
    void PrintValue(std::string_view label, const std::string& value, std::string_view unit = {});

    const ReportSheet& sheet_;
    const InputSheet& inputs_;
    Module1& module_;
    PageWriter writer_;
};

ReportPage ReportComposer::Compose() {
    writer_.SetFont(kReportFont);
    writer_.EmptyLines(kLogoLines);
    writer_.Print(Title());
    writer_.EmptyLines(1);
    PrintCustomer();
    writer_.EmptyLines(1);
    PrintRates();
    switch (inputs_.fluid) {
        case Fluid::Steam:
            PrintSteam();
            break;
        case Fluid::Gas:
            PrintGas();
            break;
        case Fluid::Liquid:
            PrintLiquid();
            break;
    }
    writer_.EmptyLines(1);
    PrintPipeAndBore();
    PrintWarnings();
    PrintNotes(writer_);
    PrintFooter(writer_, sheet_.date);
    ReportPage page = writer_.Page();
    page.name = DocumentName(module_.TagText);
    return page;
}

std::string ReportComposer::Title() {
    std::string title = "Orifice calculation for ";
    if (inputs_.mode == SolveFor::FlowRate) {
        title += "Flow Rate";
    } else if (inputs_.mode == SolveFor::DiffPressure) {
        title += "Pressure Differential";
    } else if (inputs_.mode == SolveFor::Beta) {
        title += "Bore size";
    } else {
        module_.FatalError("Calculation type not selected");
    }
    title += " - Flange Taps";
    switch (inputs_.fluid) {
        case Fluid::Liquid:
            return title + " - Liquid";
        case Fluid::Steam:
            return title + " - Steam";
        case Fluid::Gas:
            break;
    }
    return title + " - Gas";
}

void ReportComposer::PrintCustomer() {
    writer_.PrintCustomerLine("Customer: " + OnOneLine(module_.CustLine1));
    const std::string second = OnOneLine(module_.CustLine2);
    if (second.find_first_not_of(' ') != std::string::npos) {
        writer_.PrintCustomerLine(std::string(kCustomerPrefix, ' ') + second);
    }
    writer_.PrintCustomerLine("     Tag: " + OnOneLine(module_.TagText));
}

void ReportComposer::PrintRates() {
    PrintValue("Flow Rate", Number(inputs_.flow, 2),
               std::string(inputs_.flowUnit.text) + "/" + std::string(inputs_.timeUnit.text));
    PrintValue("Differential Pressure", Number(inputs_.deltaP, 2), inputs_.deltaPUnit.text);
}

void ReportComposer::PrintSteam() {
    PrintValue("Operating Density", Number(inputs_.density, 3), inputs_.densityUnit.text);
    std::string state = "(Superheated)";
    if (sheet_.saturated) {
        state = inputs_.steamFromTable ? "(Saturated - from ASME table)" : "(Saturated)";
    }
    writer_.Print(std::string(kRemarkBlanks, ' ') + state);
    PrintOperatingPressure();
}

void ReportComposer::PrintGas() {
    PrintValue("Operating Temperature", Number(inputs_.tf, 2), inputs_.degC ? "Deg C" : "Deg F");
    PrintOperatingPressure();
    if (inputs_.gasSGbVisible) {
        PrintValue("Base Specific Gravity", Number(inputs_.gasSGb, 2));
    }
    writer_.Print("Compressibility Factor:");
    switch (inputs_.compCorrection) {
        case CompCorrection::None:
            PrintValue("     Zf", FormatNumber(1.0, 5, module_.locale(), Grouping::On),
                       "(assumed)");
            break;
        case CompCorrection::Zf:
            PrintValue("     Zf", Number(inputs_.zf, 5));
            break;
        case CompCorrection::Density:
            PrintValue("     Operating Density", Number(inputs_.zf, 3), inputs_.zfDensityUnit.text);
            break;
    }
}

void ReportComposer::PrintLiquid() {
    PrintValue("Base Specific Gravity", Number(inputs_.sgb, 2));
    PrintValue("Flowing Specific Gravity", Number(inputs_.sgf, 2),
               inputs_.sgCalculated ? "(Calculated from Density)" : "");
    if (inputs_.sgCalculated) {
        PrintValue("Operating Density", Number(inputs_.density, 3), inputs_.densityUnit.text);
    }
}

void ReportComposer::PrintOperatingPressure() {
    PrintValue("Operating Pressure", Number(inputs_.pf, 2),
               std::string(inputs_.pressUnit.text) +
                   (inputs_.absolutePressure ? " (absolute)" : " (gauge)"));
}

void ReportComposer::PrintPipeAndBore() {
    std::string label = "Pipe Diameter";
    if (sheet_.pipeIdText.find(kUserEntered) != std::string::npos) {
        label += " " + std::string(kUserEntered);
    }
    const std::optional<std::string> diameter =
        PipeDiameterInUnit(sheet_.pipeIdUnit, inputs_.pipeDiameter.text(), sheet_.pipeIdText);
    if (!diameter) {
        // Names the user-entered pipe, whatever pipe it is.
        module_.FatalError(kUnknownPipeUnit);
    }
    PrintValue(
        label,
        Number(EnteredNumber(*diameter, module_.locale()), PipeDiameterDecimals(sheet_.pipeIdUnit)),
        sheet_.pipeIdUnit);
    PrintValue("Bore Diameter (approximate)", Number(sheet_.oriBoreDia, 3), sheet_.oriBoreUnit);
    PrintValue("Beta (approximate)", Number(inputs_.beta, 5));
}

void ReportComposer::PrintWarnings() {
    if (!sheet_.message.empty()) {
        writer_.EmptyLines(1);
        writer_.Print(OnOneLine(sheet_.message));
    }
    if (sheet_.plateWarning) {
        if (sheet_.message.empty()) {
            writer_.EmptyLines(1);
        }
        writer_.Print("Warning: " + sheet_.plateWarning1 + " " + sheet_.plateWarning2);
    }
    if (inputs_.fluid == Fluid::Gas && sheet_.zfCompWarning != CompressibilityWarning::None) {
        writer_.EmptyLines(1);
        PrintZfCompWarning();
    }
}

void ReportComposer::PrintZfCompWarning() {
    writer_.Print("  **************************************************************");
    writer_.Print("  * WARNING: A compressibility correction factor has not been  *");
    writer_.Print("  *          entered.  At this pressure, no compressibility    *");
    writer_.Print(sheet_.zfCompWarning == CompressibilityWarning::May
                      ? "  *          correction may result in erroneous computations.  *"
                      : "  *          correction will result in erroneous computations. *");
    writer_.Print("  **************************************************************");
}

std::string ReportComposer::Number(const EnteredNumber& field, int decimals) const {
    const std::optional<double> value = field.Double();
    if (!value) {
        return {};
    }
    return FormatNumber(*value, decimals, module_.locale(), Grouping::On, Negatives::Parentheses);
}

void ReportComposer::PrintValue(std::string_view label, const std::string& value,
                                std::string_view unit) {
    std::string line = ValueLine(label, value);
    if (!unit.empty()) {
        line += " " + std::string(unit);
    }
    writer_.Print(line);
}

}  // namespace

ReportPage ComposeReport(const ReportSheet& sheet, Module1& module) {
    return ReportComposer(sheet, module).Compose();
}

}  // namespace tarvix
