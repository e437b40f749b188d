// The two logo pictures beside the program.
#pragma once

#include "app/shared/platform.h"

#include <QImage>
#include <QPixmap>
#include <QSize>

#include <string>
#include <string_view>

namespace tarvix {

inline constexpr std::string_view kBrindleLogo = "BrindleLogo.jpg";
inline constexpr std::string_view kVeltraneLogo = "VeltraneLogo.jpg";

// The picture in the file `path` (UTF-8). A file that is missing or holds no picture is reported in
// a message box and ends the program with exit status 1.
QImage LoadLogo(const std::string& path, Platform& platform);

// The logo as large as fits into `box`, sharp on a screen with this device pixel ratio.
QPixmap LogoPixmap(const QImage& logo, const QSize& box, qreal devicePixelRatio);

}  // namespace tarvix
