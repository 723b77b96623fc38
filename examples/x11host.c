/*
 * A program for X11 in plain C: lets a person choose a camera over its own window, shows each window of the
 * configuration tool for a moment, and opens two browsers, over the camera's features and over its node map.
 * They live from the program's main loop, which is GLib's. Escape in the window ends it.
 *
 *     cc x11host.c -o x11host $(pkg-config --cflags --libs ZetoCameraGuiApi glib-2.0 xcb) -lZetoCameraApi
 */
#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include <glib-unix.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <xcb/xcb.h>

/* From the camera library, whose header is for C++. */
ZetoCam_System* ZetoCam_GetSystem(void);
ZetoCam_Device* ZetoCam_CreateDevice(ZetoCam_DeviceInfo* info, int32_t accessMode, int32_t* error);
enum
{
    AccessControl = 2
};

/* The operations of a camera and of its parameters: a C++ object begins with the table of them, and the
 * destructor takes the first two. */
typedef void (*ReleaseDevice)(ZetoCam_Device*);
typedef ZetoGenParam_Array* (*GetParameters)(ZetoCam_Device*, int32_t* error);
struct DeviceOperations
{
    void* destructors[2];
    ReleaseDevice release;
    GetParameters parameters;
};
typedef GenApi_INodeMap* (*GetNodeMap)(ZetoGenParam_Array*, uint32_t index);
struct ArrayOperations
{
    void* destructors[2];
    void* byName[7];
    GetNodeMap nodeMap;
};

static const struct DeviceOperations* operationsOf(ZetoCam_Device* device)
{
    return *(const struct DeviceOperations**)device;
}

static GenApi_INodeMap* nodeMapOf(ZetoGenParam_Array* parameters)
{
    return parameters ? (*(const struct ArrayOperations**)parameters)->nodeMap(parameters, 0) : NULL;
}

static xcb_window_t openWindow(xcb_connection_t* x)
{
    static const char Title[] = "X11 host";
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x)).data;
    const xcb_window_t window = xcb_generate_id(x);
    const uint32_t values[] = {screen->white_pixel, XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(x, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 640, 480, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        sizeof Title - 1, Title);
    xcb_map_window(x, window);
    xcb_flush(x);
    return window;
}

struct Host
{
    xcb_connection_t* x;
    GMainLoop* loop;
};

/* Called by the main loop when the X server has sent something. */
static gboolean handleEvents(gint fd, GIOCondition condition, gpointer data)
{
    const struct Host* host = data;
    enum
    {
        Escape = 9
    }; /* a key code, the same on all keyboards of personal computers */
    xcb_generic_event_t* event;
    (void)fd;
    (void)condition;
    while ((event = xcb_poll_for_event(host->x))) {
        if ((event->response_type & 0x7f) == XCB_KEY_PRESS &&
            ((xcb_key_press_event_t*)event)->detail == Escape)
            g_main_loop_quit(host->loop);
        free(event);
    }
    if (xcb_connection_has_error(host->x))
        g_main_loop_quit(host->loop);
    return G_SOURCE_CONTINUE;
}

static void runMainLoop(xcb_connection_t* x)
{
    struct Host host = {x, g_main_loop_new(NULL, FALSE)};
    const guint source = g_unix_fd_add(xcb_get_file_descriptor(x), G_IO_IN, handleEvents, &host);
    g_main_loop_run(host.loop);
    g_source_remove(source);
    g_main_loop_unref(host.loop);
}

/* Each window is there during its call only. */
static void showDialogs(ZetoCam_Device* device)
{
    ShowCamConfigDialog(device, NULL);
    ShowColorDialog(device, NULL);
    ShowFrameABDialog(device, NULL);
    ShowOutputDialog(device, NULL);
    ShowPulseDialog(device, NULL);
    ShowStrobeDialog(device, NULL);
    ShowTriggerDialog(device, NULL);
}

static int browse(ZetoCam_Device* device, xcb_connection_t* x, HWND window)
{
    int32_t error = 0;
    ZetoGenParam_Array* const parameters = operationsOf(device)->parameters(device, &error);
    ZetoGui_IZetoGenParamTreeView* const nodes =
        CreateGenParamTreeViewForNodemapA(nodeMapOf(parameters), "Node map", window);
    ZetoGui_IZetoGenParamTreeView* const features =
        CreateGenParamTreeViewForArrayA(parameters, "Features", window);
    const bool areOpen = nodes && features;
    if (areOpen)
        runMainLoop(x);
    DestroyGenParamTreeView(features);
    DestroyGenParamTreeView(nodes);
    return areOpen ? EXIT_SUCCESS : EXIT_FAILURE;
}

int main(void)
{
    int result = EXIT_FAILURE;
    int32_t error = 0;
    xcb_connection_t* const x = xcb_connect(NULL, NULL);
    if (!xcb_connection_has_error(x)) {
        const HWND window = (HWND)(uintptr_t)openWindow(x);
        ZetoCam_DeviceInfo* const camera =
            SelectCameraA(ZetoCam_GetSystem(), "Choose a camera", window, false);
        ZetoCam_Device* const device = camera ? ZetoCam_CreateDevice(camera, AccessControl, &error) : NULL;
        if (device) {
            showDialogs(device);
            result = browse(device, x, window);
            operationsOf(device)->release(device);
        } else {
            fprintf(stderr, "No camera (error %d)\n", (int)error);
        }
    }
    xcb_disconnect(x);
    return result;
}
