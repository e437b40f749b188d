// A picture against one that is kept.
//
// TARVIX_KEEP_PICTURES=1 makes the kept pictures anew. Look at them before they are committed.
#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace tarvix::testing {

// Dots of which red, green or blue differs by more than `shades`.
inline int DotsThatDiffer(const QImage& one, const QImage& other, int shades) {
    int dots = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb seen = one.pixel(x, y);
            const QRgb kept = other.pixel(x, y);
            const int most =
                std::max({std::abs(qRed(seen) - qRed(kept)), std::abs(qGreen(seen) - qGreen(kept)),
                          std::abs(qBlue(seen) - qBlue(kept))});
            dots += most > shades ? 1 : 0;
        }
    }
    return dots;
}

// Fails when more than `strayDots` differ, and leaves what was seen as NAME.png beside the test's
// program, wherever it was started.
inline void ExpectKeptPicture(const QImage& seen, const QString& folder, const QString& name,
                              int shades, int strayDots) {
    const QString file = QString("%1/%2.png").arg(folder, name);
    if (qEnvironmentVariableIsSet("TARVIX_KEEP_PICTURES")) {
        ASSERT_TRUE(seen.save(file));
    }
    const QImage kept(file);
    const bool sameSize = seen.size() == kept.size();
    const int dots = sameSize ? DotsThatDiffer(seen, kept, shades) : strayDots + 1;
    if (dots > strayDots) {
        const QString left = QString("%1/%2.png").arg(QCoreApplication::applicationDirPath(), name);
        seen.save(left);
        ADD_FAILURE() << (sameSize ? dots : -1)
                      << " dots differ; what was seen: " << left.toStdString();
    }
}

}  // namespace tarvix::testing
