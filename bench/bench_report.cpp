// One report, composed and painted into a PDF in memory, as it is on its way to a printer.
#include "bench/bench_desk.h"
#include "report/page/report_page.h"
#include "report/printer/page_painter.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>

#include <benchmark/benchmark.h>
namespace tarvix {
namespace {

// A gas run with every line that a page can have.
ReportSheet FullPage() {
    ReportSheet sheet;
    sheet.inputs.fluid = Fluid::Gas;
    sheet.inputs.mode = SolveFor::FlowRate;
    sheet.inputs.flow = "1,234,567";
    sheet.inputs.flowUnit = {"Standard Cubic Feet", 1};
    sheet.inputs.timeUnit = {"Day", 1440};
    sheet.inputs.deltaP = "150";
    sheet.inputs.deltaPUnit = {"Inches Water", 1};
    sheet.inputs.beta = "0.7";
    sheet.inputs.tf = "60";
    sheet.inputs.pf = "450";
    sheet.inputs.pressUnit = {"PSI", 1};
    sheet.inputs.gasSGb = "0.6";
    sheet.inputs.gasSGbVisible = true;
    sheet.inputs.pipeDiameter = "7.981";
    sheet.pipeIdText = "7.981\"  Sch 40, STD, Sch 40S";
    sheet.pipeIdUnit = "Inches";
    sheet.oriBoreDia = "5.587";
    sheet.oriBoreUnit = "Inches";
    sheet.message = "Warning: Beta value exceeds standard range (0.15 to 0.67).";
    sheet.plateWarning = true;
    sheet.plateWarning1 = "Orifice plate deflection";
    sheet.plateWarning2 = "should be checked.";
    sheet.zfCompWarning = CompressibilityWarning::Will;
    sheet.date = "05 Mar 2024";
    return sheet;
}

// cppcheck-suppress constParameterCallback; the framework wants it so
void ComposePage(benchmark::State& state) {
    BenchDesk platform;
    Module1 module(platform, NumberLocale{});
    module.CustLine1 = "Northfield Refinery";
    module.TagText = "FE-4102";
    const ReportSheet sheet = FullPage();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(ComposeReport(sheet, module));
    }
}
BENCHMARK(ComposePage)->Unit(benchmark::kMicrosecond);

void ComposeAndPaintPage(benchmark::State& state) {
    BenchDesk platform;
    Module1 module(platform, NumberLocale{});
    module.CustLine1 = "Northfield Refinery";
    module.TagText = "FE-4102";
    const ReportSheet sheet = FullPage();
    // A logo of the size of the real one.
    QImage logo(640, 160, QImage::Format_RGB32);
    logo.fill(QColor(0x0B, 0x3D, 0x75));
    logo.setDotsPerMeterX(11811);
    logo.setDotsPerMeterY(11811);
    for ([[maybe_unused]] auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        QPageLayout paper(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF());
        paper.setMode(QPageLayout::FullPageMode);
        writer.setPageLayout(paper);
        if (!PaintReport(writer, ComposeReport(sheet, module), logo)) {
            state.SkipWithError("the page could not be painted");
        }
        benchmark::DoNotOptimize(buffer.size());
    }
}
BENCHMARK(ComposeAndPaintPage)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvix

int main(int argc, char* argv[]) {
    // No display is needed to paint on paper.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
