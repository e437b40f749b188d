// A composed page painted into a PDF file and read back.
#pragma once

#include "report/printer/page_painter.h"
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/report/pdf_reader.h"
#include "tests/report/sample_sheets.h"

#include <QImage>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <vector>

namespace tarvix::testing {

inline constexpr double kCharacter12 = 12 * 1229.0 / 2048.0;  // points

class PagePainterTest : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!CanReadPdf()) {
            GTEST_SKIP() << "poppler-utils is not installed";
        }
        ASSERT_TRUE(folder_.isValid());
        FillCustomer(module_);
    }

    QString File() const { return folder_.filePath("page.pdf"); }

    bool Paint(const ReportSheet& sheet, QPageSize::PageSizeId paper,
               const QMarginsF& unprintable = {}) {
        QPdfWriter writer(File());
        QPageLayout layout(QPageSize(paper), QPageLayout::Portrait, unprintable);
        if (unprintable.isNull()) {
            layout.setMode(QPageLayout::FullPageMode);
        }
        writer.setPageLayout(layout);
        return PaintReport(writer, ComposeReport(sheet, module_), logo_);
    }

    PdfPage PageOf(const ReportSheet& sheet, QPageSize::PageSizeId paper,
                   const QMarginsF& unprintable = {}) {
        EXPECT_TRUE(Paint(sheet, paper, unprintable));
        std::vector<PdfPage> pages = ReadPdf(File());
        EXPECT_EQ(pages.size(), 1U);
        return pages.empty() ? PdfPage{} : pages.front();
    }

    QTemporaryDir folder_;
    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
    QImage logo_;
};

}  // namespace tarvix::testing
