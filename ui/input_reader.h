#pragma once

#include "app/input_sheet.h"
#include "report/report_page.h"
#include "ui/form_state.h"

namespace tarvix {

// Reads the window once for a calculation.
InputSheet ReadInputSheet(const FormContext& context);

// Reads the window once for a report; the date is left empty.
ReportSheet ReadReportSheet(const FormContext& context);

}  // namespace tarvix
