#pragma once

#include "app/sheet/input_sheet.h"
#include "report/page/report_page.h"
#include "ui/form/form_state.h"

namespace tarvix {

// Reads the window once for a calculation.
InputSheet ReadInputSheet(const FormContext& context);

// Reads the window once for a report; the date is left empty.
ReportSheet ReadReportSheet(const FormContext& context);

}  // namespace tarvix
