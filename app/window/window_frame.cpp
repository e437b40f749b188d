#include "app/window/window_frame.h"

#include <QGuiApplication>
#include <QStyle>
#include <QWindow>

#ifdef TARVIX_XCB
#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>
#endif

namespace tarvix {

#ifdef TARVIX_XCB
namespace {

// A window manager answers within one or two milliseconds, and within a second or so where the
// machine is busy; one that hangs must not hang the start.
constexpr int kAnswerWithinMs = 2000;

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

// Left, right, top and bottom of a frame, as window managers tell them.
using Extents = std::array<uint32_t, 4>;

class WindowManager {
  public:
    explicit WindowManager(xcb_connection_t* connection)
        : connection_(connection),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root) {}

    // What a window manager that has ended said stays behind, but not the window that it shows.
    bool IsThere() const {
        const xcb_atom_t check = Atom("_NET_SUPPORTING_WM_CHECK");
        const std::vector<uint32_t> own = Values(root_, check, XCB_ATOM_WINDOW);
        return !own.empty() && Values(own.front(), check, XCB_ATOM_WINDOW) == own;
    }

    // The extents of the frame that a window will get; nothing when there is no answer.
    std::optional<Extents> FrameOf(xcb_window_t window) const {
        const xcb_atom_t request = Atom("_NET_REQUEST_FRAME_EXTENTS");
        const xcb_atom_t extents = Atom("_NET_FRAME_EXTENTS");
        const std::vector<uint32_t> features = Values(root_, Atom("_NET_SUPPORTED"), XCB_ATOM_ATOM);
        if (std::ranges::find(features, request) == features.end()) {
            return std::nullopt;
        }
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = request;
        const auto bytes = std::bit_cast<std::array<char, sizeof message>>(message);
        xcb_send_event(connection_, 0, root_,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       bytes.data());
        const QDeadlineTimer deadline(kAnswerWithinMs);
        do {
            const std::vector<uint32_t> sides = Values(window, extents, XCB_ATOM_CARDINAL);
            if (sides.size() == Extents{}.size()) {
                return Extents{sides[0], sides[1], sides[2], sides[3]};
            }
            QThread::msleep(1);
        } while (!deadline.hasExpired());
        return std::nullopt;
    }

  private:
    xcb_atom_t Atom(std::string_view name) const {
        const auto cookie =
            xcb_intern_atom(connection_, 0, static_cast<uint16_t>(name.size()), name.data());
        const Owned<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection_, cookie, nullptr), &std::free);
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    // A property's list of numbers; empty when there is no such property.
    std::vector<uint32_t> Values(xcb_window_t window, xcb_atom_t property, xcb_atom_t type) const {
        constexpr uint32_t kMostValues = 1024;
        const auto cookie =
            xcb_get_property(connection_, 0, window, property, type, 0, kMostValues);
        const Owned<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_, cookie, nullptr), &std::free);
        if (!reply || reply->format != 32) {
            return {};
        }
        const auto* first = static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
        std::vector<uint32_t> values(reply->value_len);
        std::copy_n(first, values.size(), values.begin());
        return values;
    }

    xcb_connection_t* connection_;
    xcb_window_t root_;
};

}  // namespace
#endif

QMargins FrameOf(QWidget& window) {
    const WId id = window.winId();
#ifdef TARVIX_XCB
    // The offscreen platform has that interface, too, but no window of it is the X server's.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 != nullptr && QGuiApplication::platformName() == QLatin1String("xcb")) {
        const WindowManager manager(x11->connection());
        if (!manager.IsThere()) {
            return {};
        }
        const auto device = manager.FrameOf(static_cast<xcb_window_t>(id));
        if (!device) {
            const QStyle* style = window.style();
            return {0, style->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window), 0, 0};
        }
        const auto side = [&](size_t index) {
            return static_cast<int>(std::lround(device->at(index) / window.devicePixelRatioF()));
        };
        return {side(0), side(2), side(1), side(3)};
    }
#else
    Q_UNUSED(id);
#endif
    return window.windowHandle()->frameMargins();
}

}  // namespace tarvix
