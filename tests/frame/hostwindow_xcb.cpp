#include "hostwindow.h"

#include <xcb/xcb.h>

#include <cstdlib>

namespace {

struct Free
{
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

HWND handleOf(xcb_window_t window)
{
    return reinterpret_cast<HWND>(quintptr(window));
}

Reply<xcb_query_tree_reply_t> treeOf(xcb_connection_t* x, xcb_window_t window)
{
    return Reply<xcb_query_tree_reply_t>(xcb_query_tree_reply(x, xcb_query_tree(x, window), nullptr));
}

int countWithin(xcb_connection_t* x, xcb_window_t window)
{
    const auto tree = treeOf(x, window);
    int count = tree ? xcb_query_tree_children_length(tree.get()) : 0;
    for (int i = 0, direct = count; i < direct; ++i)
        count += countWithin(x, xcb_query_tree_children(tree.get())[i]);
    return count;
}

} // namespace

class HostWindow::Native
{
public:
    xcb_window_t open(xcb_window_t parent, const QRect& rectangle, Kind kind) const
    {
        const xcb_window_t id = xcb_generate_id(x);
        const uint32_t unmanaged = kind == Bare;
        xcb_create_window(x, XCB_COPY_FROM_PARENT, id, parent, rectangle.x(), rectangle.y(),
                          rectangle.width(), rectangle.height(), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
        xcb_map_window(x, id);
        return id;
    }

    /// Has the server do all that was asked for.
    void finish() const
    {
        Reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    }

    /// One for all: the server gives the ids of a closed connection to the next one, and what the window
    /// manager still does to the old window would hit the new one.
    static xcb_connection_t* connection()
    {
        static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> shared(
            xcb_connect(nullptr, nullptr), xcb_disconnect);
        return shared.get();
    }

    xcb_connection_t* const x = connection();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
    xcb_window_t window = 0;
    xcb_window_t control = 0;
};

HostWindow::HostWindow(const QRect& rectangle, Kind kind)
    : m_native(new Native)
{
    m_native->window = m_native->open(m_native->root, rectangle, kind);
    m_native->control = m_native->open(m_native->window, QRect(10, 10, 50, 20), Bare);
    m_native->finish();
}

HostWindow::~HostWindow()
{
    destroy();
}

HWND HostWindow::handle() const
{
    return handleOf(m_native->window);
}

HWND HostWindow::control() const
{
    return handleOf(m_native->control);
}

void HostWindow::destroy()
{
    xcb_destroy_window(m_native->x, m_native->window);
    m_native->finish();
}

void HostWindow::focus(HWND window)
{
    xcb_set_input_focus(m_native->x, XCB_INPUT_FOCUS_PARENT, xcb_window_t(quintptr(window)),
                        XCB_CURRENT_TIME);
    m_native->finish();
}

HWND HostWindow::focused() const
{
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_native->x, xcb_get_input_focus(m_native->x), nullptr));
    return handleOf(reply->focus);
}

bool HostWindow::takesKeys(HWND window) const
{
    return focused() == window || focused() == handle();
}

bool HostWindow::isEnabled() const
{
    // What a click in the control would reach: the control, or what covers the window.
    const auto point = xcb_translate_coordinates_reply(
        m_native->x, xcb_translate_coordinates(m_native->x, m_native->window, m_native->window, 15, 15),
        nullptr);
    return Reply<xcb_translate_coordinates_reply_t>(point)->child == m_native->control;
}

int HostWindow::childCount() const
{
    return countWithin(m_native->x, m_native->window);
}

int HostWindow::windowCount() const
{
    return countWithin(m_native->x, m_native->root);
}
