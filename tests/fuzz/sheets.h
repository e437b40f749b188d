// Input and report sheets made of the fuzzer's bytes: every choice is one that the window can show,
// every text may be anything.
#pragma once

#include "app/sheet/input_sheet.h"
#include "report/page/report_page.h"
#include "tests/fuzz/fuzz_support.h"

namespace tarvix::fuzz {

InputSheet AnySheet(FuzzedDataProvider& data, const NumberLocale& locale);
ReportSheet AnyReportSheet(FuzzedDataProvider& data, const NumberLocale& locale);

}  // namespace tarvix::fuzz
