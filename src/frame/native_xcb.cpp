#include "native.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QRect>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <limits>
#include <memory>

namespace Native {

namespace {

struct Free
{
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

/// Qt's connection: requests on it stay in order with those of Qt. Null when Qt does not run on X11.
xcb_connection_t* connection()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    return static_cast<xcb_connection_t*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("connection"));
}

/// The id in \a window, 0 (no window) for a value that is no id.
xcb_window_t idOf(HWND window)
{
    const auto id = reinterpret_cast<quintptr>(window);
    return id <= std::numeric_limits<xcb_window_t>::max() ? static_cast<xcb_window_t>(id) : xcb_window_t(0);
}

xcb_window_t rootOf(xcb_connection_t* x)
{
    return xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
}

HWND handleOf(xcb_window_t id)
{
    return reinterpret_cast<HWND>(static_cast<quintptr>(id));
}

/// Waits until the server has done what was asked for, as the host's own connection overtakes ours otherwise.
/// The error, should the window be gone, is nobody's business.
void finish(xcb_connection_t* x, xcb_void_cookie_t cookie)
{
    std::free(xcb_request_check(x, cookie));
}

xcb_atom_t atom(xcb_connection_t* x, const QByteArray& name)
{
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        x, xcb_intern_atom(x, 0, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

Reply<xcb_query_tree_reply_t> tree(xcb_connection_t* x, xcb_window_t window)
{
    return Reply<xcb_query_tree_reply_t>(xcb_query_tree_reply(x, xcb_query_tree(x, window), nullptr));
}

bool hasProperty(xcb_connection_t* x, xcb_window_t window, xcb_atom_t property)
{
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        x, xcb_get_property(x, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 0), nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

/// The window that the window manager handles among \a window and those around it, or the outermost one.
xcb_window_t topLevel(xcb_connection_t* x, xcb_window_t window)
{
    const xcb_atom_t state = atom(x, "WM_STATE");
    for (xcb_window_t candidate = window; candidate != XCB_WINDOW_NONE;) {
        if (hasProperty(x, candidate, state))
            return candidate;
        const auto around = tree(x, candidate);
        if (!around || around->parent == around->root)
            return candidate;
        candidate = around->parent;
    }
    return window;
}

/// Tells which program made a window: the bits of its id that the server gives to a connection.
xcb_window_t programOf(xcb_connection_t* x, xcb_window_t window)
{
    return window & ~xcb_get_setup(x)->resource_id_mask;
}

bool isInputOnly(xcb_connection_t* x, xcb_window_t window)
{
    const Reply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(x, xcb_get_window_attributes(x, window), nullptr));
    return reply && reply->_class == XCB_WINDOW_CLASS_INPUT_ONLY;
}

/// The cover that disables \a window: an invisible child of ours that takes all input and passes none on.
xcb_window_t coverOf(xcb_connection_t* x, xcb_window_t window)
{
    const auto within = tree(x, window);
    if (!within)
        return XCB_WINDOW_NONE;
    const xcb_window_t* const children = xcb_query_tree_children(within.get());
    for (int i = xcb_query_tree_children_length(within.get()) - 1; i >= 0; --i) {
        if (programOf(x, children[i]) == xcb_get_setup(x)->resource_id_base && isInputOnly(x, children[i]))
            return children[i];
    }
    return XCB_WINDOW_NONE;
}

void cover(xcb_connection_t* x, xcb_window_t window)
{
    constexpr uint16_t AnySize = std::numeric_limits<int16_t>::max();
    constexpr uint32_t AllInput = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                  XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                  XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_BUTTON_MOTION;
    const xcb_window_t id = xcb_generate_id(x);
    finish(x,
           xcb_create_window_checked(x, 0, id, window, 0, 0, AnySize, AnySize, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                                     XCB_COPY_FROM_PARENT, XCB_CW_DONT_PROPAGATE, &AllInput));
    finish(x, xcb_map_window_checked(x, id));
}

} // namespace

bool isWindow(HWND window)
{
    xcb_connection_t* const x = connection();
    if (!x || idOf(window) == XCB_WINDOW_NONE)
        return false;
    const Reply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(x, xcb_get_window_attributes(x, idOf(window)), nullptr));
    return reply != nullptr;
}

void embed(HWND window, HWND parent)
{
    if (xcb_connection_t* const x = connection())
        finish(x, xcb_reparent_window_checked(x, idOf(window), parent ? idOf(parent) : rootOf(x), 0, 0));
}

void setOwner(QWindow& window, HWND owner)
{
    xcb_connection_t* const x = connection();
    if (!x || !isWindow(owner))
        return;
    // Window managers know top-level windows only, which neither Qt's parent, the host, nor a control is.
    const xcb_window_t id = topLevel(x, idOf(owner));
    if (window.transientParent() && window.transientParent()->winId() == id)
        return;
    QWindow* const foreign = QWindow::fromWinId(id);
    QObject::connect(&window, &QObject::destroyed, foreign, [foreign] { delete foreign; });
    window.setTransientParent(foreign);
}

QRect rectangle(HWND window)
{
    xcb_connection_t* const x = connection();
    if (!x)
        return {};
    const Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(x, xcb_get_geometry(x, idOf(window)), nullptr));
    if (!size)
        return {};
    const Reply<xcb_translate_coordinates_reply_t> position(xcb_translate_coordinates_reply(
        x, xcb_translate_coordinates(x, idOf(window), size->root, 0, 0), nullptr));
    return position ? QRect(position->dst_x, position->dst_y, size->width, size->height) : QRect();
}

void setEnabled(HWND window, bool enabled)
{
    xcb_connection_t* const x = connection();
    if (!x)
        return;
    const xcb_window_t existing = coverOf(x, idOf(window));
    if (enabled && existing != XCB_WINDOW_NONE)
        finish(x, xcb_destroy_window_checked(x, existing));
    else if (!enabled && existing == XCB_WINDOW_NONE)
        cover(x, idOf(window));
}

void activate(HWND window)
{
    xcb_connection_t* const x = connection();
    const auto around = x ? tree(x, idOf(window)) : nullptr;
    if (!around)
        return;
    constexpr uint32_t FromApplication = 1; // of the extended window manager hints
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = topLevel(x, idOf(window));
    message.type = atom(x, "_NET_ACTIVE_WINDOW");
    message.data.data32[0] = FromApplication;
    finish(x,
           xcb_send_event_checked(x, 0, around->root,
                                  XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                                  reinterpret_cast<const char*>(&message)));
}

void raise(HWND window)
{
    constexpr uint32_t Above = XCB_STACK_MODE_ABOVE;
    if (xcb_connection_t* const x = connection())
        finish(x, xcb_configure_window_checked(x, topLevel(x, idOf(window)), XCB_CONFIG_WINDOW_STACK_MODE,
                                               &Above));
}

HWND focus(HWND window)
{
    xcb_connection_t* const x = connection();
    if (!x)
        return nullptr;
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    if (!reply || reply->focus <= XCB_INPUT_FOCUS_POINTER_ROOT)
        return nullptr;
    const xcb_window_t program = programOf(x, reply->focus);
    const bool isKnown =
        program == programOf(x, idOf(window)) || program == xcb_get_setup(x)->resource_id_base;
    return isKnown ? handleOf(reply->focus) : nullptr;
}

void setFocus(HWND window)
{
    // The focus of no window would take the keyboard from all programs.
    xcb_connection_t* const x = idOf(window) != XCB_WINDOW_NONE ? connection() : nullptr;
    if (x)
        finish(x, xcb_set_input_focus_checked(x, XCB_INPUT_FOCUS_PARENT, idOf(window), XCB_CURRENT_TIME));
}

bool isFocusMessage(const QByteArray& eventType, void* message)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto& event = *static_cast<const xcb_focus_in_event_t*>(message);
    constexpr uint8_t SentByOthers = 0x80;
    const bool isToItself =
        event.detail != XCB_NOTIFY_DETAIL_INFERIOR && event.detail != XCB_NOTIFY_DETAIL_POINTER;
    return (event.response_type & ~SentByOthers) == XCB_FOCUS_IN && event.mode == XCB_NOTIFY_MODE_NORMAL &&
           isToItself;
}

Qt::FocusReason focusReason()
{
    xcb_connection_t* const x = connection();
    if (!x)
        return Qt::TabFocusReason;
    const Reply<xcb_query_pointer_reply_t> down(
        xcb_query_pointer_reply(x, xcb_query_pointer(x, rootOf(x)), nullptr));
    if (down && (down->mask & (XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_3)))
        return Qt::MouseFocusReason;
    return down && (down->mask & XCB_MOD_MASK_SHIFT) ? Qt::BacktabFocusReason : Qt::TabFocusReason;
}

QString environment(const char* name)
{
    return QString::fromUtf8(qgetenv(name));
}

} // namespace Native
