#include "ui/windows/window_icon.h"

namespace tarvix {

QIcon WindowIcon() {
    // With its size told, a picture is not read before it is shown.
    QIcon icon;
    for (const int size : {48, 128}) {
        icon.addFile(QStringLiteral(":/tarvix-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

}  // namespace tarvix
