#include "ui/windows/logo_picture.h"

#include <QString>

namespace tarvix {

QImage LoadLogo(const std::string& path, Platform& platform) {
    QImage logo(QString::fromStdString(path));
    if (logo.isNull()) {
        platform.ShowMessageBox({"Run-time error: File not found: " + path, "Brindle Tarvix",
                                 BoxStyle::Critical, BoxButtons::Ok});
        platform.EndProgram(1);
    }
    return logo;
}

QPixmap LogoPixmap(const QImage& logo, const QSize& box, qreal devicePixelRatio) {
    QPixmap pixmap = QPixmap::fromImage(
        logo.scaled(box * devicePixelRatio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

}  // namespace tarvix
