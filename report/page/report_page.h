// The printed report as data: lines of text with their font and place, composed from what the main
// window shows. Knows no printer.
#pragma once

#include "app/shared/module1.h"
#include "app/sheet/input_sheet.h"
#include "app/sheet/warning_rules.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvix {

// What the main window shows beyond the inputs of a calculation when a report is printed.
struct ReportSheet {
    InputSheet inputs;
    EnteredNumber oriBoreDia;   // txtOriBoreDia
    std::string oriBoreUnit;    // text of cboOriBoreUnit
    std::string pipeIdUnit;     // unit name of the selected cboPipeIDUnit entry
    std::string pipeIdText;     // text of cboPipeID
    bool saturated = false;     // optSaturated
    std::string message;        // caption of lblMsg
    bool plateWarning = false;  // fraPlateThicknessWarning is visible
    std::string plateWarning1;  // caption of lbl1PlateThicknessWarning
    std::string plateWarning2;  // caption of lbl2PlateThicknessWarning
    // What fraZfCompWarning says; None while it is not visible.
    CompressibilityWarning zfCompWarning = CompressibilityWarning::None;
    std::string date;  // dd mmm yyyy, as the system's locale names the month
};

struct ReportFont {
    double sizePt = 12;
    bool bold = false;
    bool italic = false;
};

// The report's font and its measures, in parts of the font size: those of Courier New's horizontal
// header (ascent 1705, descent 615, no line gap, every advance 1229, of 2048 units an em). Its
// metric-compatible stand-ins share them, so the page is laid out before any font is at hand.
inline constexpr std::string_view kReportFontFamily = "Courier New";
inline constexpr double kFontAscent = 1705.0 / 2048.0;
inline constexpr double kFontLineHeight = (1705.0 + 615.0) / 2048.0;
inline constexpr double kFontAdvance = 1229.0 / 2048.0;
inline constexpr double kTwipsPerPoint = 20;

// Of the title, the customer lines, the values and the warnings.
inline constexpr ReportFont kReportFont{12, true, false};

// A customer line begins with a word of so many characters ("Customer: "), and then has room for so
// many on A4, the narrowest paper that the page is made for.
inline constexpr int kCustomerPrefix = 10;
inline constexpr int kCustomerColumns = 62;

// The value of a value line ends in this column, counted from 1.
inline constexpr int kValueColumn = 40;

// The notes start here, whatever stands above them.
inline constexpr double kNotesTopTwips = 8000;

// One piece of text. Places are twips (1/1440 inch) from where printing starts.
struct ReportLine {
    std::string text;  // UTF-8, no line breaks; nothing on an empty line
    ReportFont font;   // "Courier New"
    double xTwips = 0;
    double yTwips = 0;  // upper edge
    // What follows the first kCustomerPrefix characters was typed by the user, and is drawn
    // narrower when one of the page's customer lines is too long.
    bool customer = false;
};

struct ReportPage {
    std::vector<ReportLine> lines;  // in the order of printing
    std::string name;               // of the document
};

// Composes the page from the sheet and the customer lines in `module`. No selected mode or an
// unknown pipe ID unit ends the program.
ReportPage ComposeReport(const ReportSheet& sheet, Module1& module);

}  // namespace tarvix
