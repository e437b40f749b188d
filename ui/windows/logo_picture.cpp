#include "ui/windows/logo_picture.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QRect>
#include <QString>

#include <utility>

namespace tarvix {

namespace {

// Lighter than this is the white of the picture, or what a JPEG leaves of it.
constexpr int kInk = 240;

QRect DrawingOf(const QImage& picture) {
    QRect drawing;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < kInk) {
                drawing |= QRect(x, y, 1, 1);
            }
        }
    }
    return drawing;
}

}  // namespace

Logo::Logo(std::string path, Platform& platform) : path_(std::move(path)), platform_(platform) {
    // Of a file that isn't there nothing is read, which is no picture.
    QFile file(QString::fromStdString(path_));
    if (file.open(QIODevice::ReadOnly)) {
        file_ = file.readAll();
    }
}

QPixmap Logo::Pixmap(const QSize& box, qreal devicePixelRatio) const {
    const QImage picture = Read(box * devicePixelRatio);
    QPixmap pixmap = QPixmap::fromImage(picture.copy(DrawingOf(picture)));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QImage Logo::Read(const QSize& box) const {
    QBuffer buffer;
    buffer.setData(file_);
    QImageReader reader(&buffer);
    if (box.isValid()) {
        reader.setScaledSize(reader.size().scaled(box, Qt::KeepAspectRatio));
    }
    QImage picture = reader.read();
    if (picture.isNull()) {
        NotFound();
    }
    return picture;
}

void Logo::NotFound() const {
    platform_.ShowMessageBox({"Run-time error: File not found: " + path_, "Brindle Tarvix",
                              BoxStyle::Critical, BoxButtons::Ok});
    platform_.EndProgram(1);
}

}  // namespace tarvix
