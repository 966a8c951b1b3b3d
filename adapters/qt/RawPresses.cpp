#include "zqbchwcx/qt/RawPresses.h"

#ifdef ZQBCHWCX_XINPUT

#include <QCursor>
#include <QGuiApplication>
#include <QSocketNotifier>

#include <xcb/xinput.h>

#include <cstdlib>
#include <utility>

namespace zqbchwcx::qt {
namespace {

struct EndConnection {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
struct Free {
    void operator()(void* reply) const { std::free(reply); } // as the protocol library demands
};
template <class Reply>
using ReplyPtr = std::unique_ptr<Reply, Free>;

Qt::MouseButton ToButton(std::uint32_t detail)
{
    switch (detail) {
    case 1:
        return Qt::LeftButton;
    case 2:
        return Qt::MiddleButton;
    case 3:
        return Qt::RightButton;
    default:
        return Qt::NoButton;
    }
}

/// On a connection of its own: the raw events of all windows come there, and nothing else.
class XInputPresses : public RawPresses {
public:
    explicit XInputPresses(Handler handler) : mHandler(std::move(handler)), mConnection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(mConnection.get()) != 0 || !Select()) return;
        mNotifier =
            std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(mConnection.get()), QSocketNotifier::Read);
        QObject::connect(mNotifier.get(), &QSocketNotifier::activated, mNotifier.get(), [this] { Read(); });
    }

    bool IsWatching() const { return mNotifier != nullptr; }

private:
    bool Select()
    {
        const auto* extension = xcb_get_extension_data(mConnection.get(), &xcb_input_id);
        if (extension == nullptr || extension->present == 0) return false;
        mOpcode = extension->major_opcode;
        // Before version 2.1 a program that grabs the mouse hides raw events from others.
        constexpr std::uint16_t Major = 2;
        constexpr std::uint16_t Minor = 1;
        const auto asked = xcb_input_xi_query_version(mConnection.get(), Major, Minor);
        const ReplyPtr<xcb_input_xi_query_version_reply_t> version(
            xcb_input_xi_query_version_reply(mConnection.get(), asked, nullptr));
        if (!version || std::pair(version->major_version, version->minor_version) < std::pair(Major, Minor))
            return false;

        const struct {
            xcb_input_event_mask_t head;
            std::uint32_t mask;
        } wanted{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS};
        const auto selected = xcb_input_xi_select_events_checked(mConnection.get(), Root(), 1, &wanted.head);
        // With its answer, what is pressed from now on is told, and nothing from before.
        return ReplyPtr<xcb_generic_error_t>(xcb_request_check(mConnection.get(), selected)) == nullptr;
    }

    xcb_window_t Root() const { return xcb_setup_roots_iterator(xcb_get_setup(mConnection.get())).data->root; }

    void Read()
    {
        const std::weak_ptr<bool> alive = mAlive;
        while (const ReplyPtr<xcb_generic_event_t> event{xcb_poll_for_event(mConnection.get())}) {
            constexpr std::uint8_t SentMask = 0x7F;
            if ((event->response_type & SentMask) != XCB_GE_GENERIC) continue;
            const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(*event);
            if (raw.extension != mOpcode || raw.event_type != XCB_INPUT_RAW_BUTTON_PRESS) continue;
            const Qt::MouseButton button = ToButton(raw.detail);
            const auto handler = mHandler; // it may end this object
            if (button != Qt::NoButton) handler(button, QCursor::pos());
            if (alive.expired()) return;
        }
        if (xcb_connection_has_error(mConnection.get()) != 0) mNotifier->setEnabled(false);
    }

    Handler mHandler;
    std::unique_ptr<xcb_connection_t, EndConnection> mConnection;
    std::unique_ptr<QSocketNotifier> mNotifier;
    std::uint8_t mOpcode = 0;
    std::shared_ptr<bool> mAlive = std::make_shared<bool>(true);
};

} // namespace

std::unique_ptr<RawPresses> RawPresses::Watch(Handler handler)
{
    if (QGuiApplication::platformName() != u"xcb") return nullptr;
    auto presses = std::make_unique<XInputPresses>(std::move(handler));
    return presses->IsWatching() ? std::move(presses) : nullptr;
}

} // namespace zqbchwcx::qt

#else

namespace zqbchwcx::qt {

std::unique_ptr<RawPresses> RawPresses::Watch(Handler /*handler*/)
{
    return nullptr;
}

} // namespace zqbchwcx::qt

#endif
