// What the main window shows after a solved run of each fluid, as the report gets it.
#pragma once

#include "report/page/report_page.h"

namespace tarvix::testing {

ReportSheet LiquidSheet();
ReportSheet GasSheet();
ReportSheet SteamSheet();

// The gas run with every line that a page can have: second customer line, message, both warnings.
ReportSheet FullestSheet();

// Customer "Northfield Refinery", "Unit 4, Crude Distillation", tag "FE-4102".
void FillCustomer(Module1& module);

}  // namespace tarvix::testing
