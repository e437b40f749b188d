// The two logo pictures beside the program.
#pragma once

#include "app/shared/platform.h"

#include <QByteArray>
#include <QImage>
#include <QPixmap>
#include <QSize>

#include <string>
#include <string_view>

namespace tarvix {

inline constexpr std::string_view kBrindleLogo = "BrindleLogo.jpg";
inline constexpr std::string_view kVeltraneLogo = "VeltraneLogo.jpg";

// A logo as its file holds it: fine enough for paper, and read only as finely as a window needs it.
// A file that is missing or holds no picture is reported in a message box and ends the program with
// exit status 1, as soon as that is found.
class Logo {
  public:
    // Takes the file `path` (UTF-8) in, without looking at what it holds.
    Logo(std::string path, Platform& platform);

    // The whole picture, every dot of it, at its own dots per inch.
    QImage Picture() const { return Read({}); }

    // The drawing without the white around it, at the size that it has when the whole picture fills
    // `box`, sharp on a screen with this device pixel ratio.
    QPixmap Pixmap(const QSize& box, qreal devicePixelRatio) const;

  private:
    // The picture as large as fits into `box`, read no finer than that; without a box, whole.
    QImage Read(const QSize& box) const;
    void NotFound() const;

    std::string path_;
    Platform& platform_;
    QByteArray file_;
};

}  // namespace tarvix
