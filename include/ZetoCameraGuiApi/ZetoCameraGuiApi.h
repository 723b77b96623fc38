#ifndef ZETOCAMERAGUIAPI_H
#define ZETOCAMERAGUIAPI_H

/**
 * \file
 * The windows of the library for programs in any language, with or without Qt.
 *
 * The following holds for all functions.
 *
 * - Threads: call them on one thread, the one of your user interface. If the process has no Qt application
 * yet, the first call makes one on that thread; it is reused by later calls and lives until the process ends.
 * In a program that uses Qt its own application is used, and the functions belong to its thread.
 * - Texts: the functions whose names end in A take UTF-8, whatever the system's code page is; those that end
 * in W take wchar_t, which is UTF-16 on Windows and UTF-32 elsewhere. All texts end with a zero, stay yours,
 * and are not used after the call. A null title is an empty one.
 * - Parents: hwnd is the window over which the new one appears, see zetowindowhandle.h. Null, or a handle
 * that is no window, is no error: the new window then stands alone. The handle is not used after its window
 * is gone.
 * - Errors: none is reported but by what a function returns, and no C++ exception leaves a function. What
 * goes wrong within a window is told there.
 * - Qt's plug-ins: SelectCamera... and CreateGenParamTreeView... look for them in the directory bin\win64_x64
 * of the one that the environment variable ZETO_CAMSDK_ROOT names, and where Qt looks by itself. So if a
 * Show...Dialog function is the first one called, the plug-ins have to be where Qt looks by itself.
 *
 * Windows that stay open after the call, those of CreateGenParamTreeView..., live from the events that the
 * calling thread dispatches:
 *
 * - On Windows any message loop does that: GetMessage, TranslateMessage, DispatchMessage.
 * - On Linux Qt takes part in the main loop of GLib, so GTK and Qt programs serve the windows as they are. A
 * program with a loop of its own calls g_main_context_iteration(NULL, FALSE) of GLib until it returns FALSE,
 * each time its loop wakes up and at least some fifty times a second, or runs a GLib main loop with its own
 * connection as a source.
 *
 * A host may load the library at run time and look the functions up by their names, which are not decorated.
 * It must not unload it again.
 */

#include "zetoguiexport.h"
#include "zetowindowhandle.h"

#include <stdbool.h>
#include <wchar.h>

/*
 * The objects that are handed in and out. In C they are opaque; in C++ they are the classes of the camera
 * library, of GenICam and of izetogenparamtreeview.h.
 */
#ifdef __cplusplus

namespace ZetoCam {
class Device;
class DeviceInfo;
class System;
} // namespace ZetoCam
namespace ZetoGenParam {
class Array;
} // namespace ZetoGenParam
namespace ZetoGui {
class IZetoGenParamTreeView;
} // namespace ZetoGui

typedef ZetoCam::Device ZetoCam_Device;
typedef ZetoCam::DeviceInfo ZetoCam_DeviceInfo;
typedef ZetoCam::System ZetoCam_System;
typedef ZetoGenParam::Array ZetoGenParam_Array;
typedef ZetoGui::IZetoGenParamTreeView ZetoGui_IZetoGenParamTreeView;

extern "C" {
#else
typedef struct ZetoCam_Device ZetoCam_Device;
typedef struct ZetoCam_DeviceInfo ZetoCam_DeviceInfo;
typedef struct ZetoCam_System ZetoCam_System;
typedef struct ZetoGenParam_Array ZetoGenParam_Array;
typedef struct ZetoGui_IZetoGenParamTreeView ZetoGui_IZetoGenParamTreeView;
#endif

/**
 * A GenApi::INodeMap. The name of its namespace depends on the version of GenICam, so it is not declared
 * here: pass exactly an INodeMap pointer, and cast one to a derived class to it before.
 */
typedef void GenApi_INodeMap;

/**
 * Lets a person choose a camera, and returns when the dialog is closed; until then the parent takes no input.
 *
 * \param system the camera library's system; it stays yours
 * \param title  title of the dialog, UTF-8
 * \param hwnd   window over which the dialog is centred, or null
 * \param poll   whether the dialog searches for cameras all the time at first; the person can change that
 * \return the chosen camera; null when the dialog was cancelled or closed, when hwnd went meanwhile, or on
 *         failure. It belongs to the system: it is not released, and valid until the system is closed.
 */
ZETO_GUI_EXPORT ZetoCam_DeviceInfo* SelectCameraA(ZetoCam_System* system, const char* title, HWND hwnd,
                                                  bool poll);

/** Does what SelectCameraA() does, with a title of wide characters. */
ZETO_GUI_EXPORT ZetoCam_DeviceInfo* SelectCameraW(ZetoCam_System* system, const wchar_t* title, HWND hwnd,
                                                  bool poll);

/**
 * Opens a browser over all features of a node map, and returns at once.
 *
 * Closing the window only hides it: it exists until DestroyGenParamTreeView(). The events of the thread keep
 * it alive, see above.
 *
 * \param nodeMap what to show. It stays yours, and must exist until the browser is destroyed or shows it no
 *                more (clearParams() of its interface). Null shows nothing.
 * \param title   title of the window, UTF-8
 * \param hwnd    window over which the browser is centred and stays, or null; it takes input as before
 * \return the browser's interface, or null on failure; yours, to be given to DestroyGenParamTreeView() and
 *         to nothing else
 */
ZETO_GUI_EXPORT ZetoGui_IZetoGenParamTreeView*
CreateGenParamTreeViewForNodemapA(GenApi_INodeMap* nodeMap, const char* title, HWND hwnd);

/** Does what CreateGenParamTreeViewForNodemapA() does, with a title of wide characters. */
ZETO_GUI_EXPORT ZetoGui_IZetoGenParamTreeView*
CreateGenParamTreeViewForNodemapW(GenApi_INodeMap* nodeMap, const wchar_t* title, HWND hwnd);

/** Does what CreateGenParamTreeViewForNodemapA() does for the features of the parameter array \a params. */
ZETO_GUI_EXPORT ZetoGui_IZetoGenParamTreeView* CreateGenParamTreeViewForArrayA(ZetoGenParam_Array* params,
                                                                               const char* title, HWND hwnd);

/** Does what CreateGenParamTreeViewForArrayA() does, with a title of wide characters. */
ZETO_GUI_EXPORT ZetoGui_IZetoGenParamTreeView*
CreateGenParamTreeViewForArrayW(ZetoGenParam_Array* params, const wchar_t* title, HWND hwnd);

/**
 * Closes and destroys a browser. When it returns, nothing refers to the node map or array any more.
 *
 * \param view what one of the functions above returned, not valid any more afterwards; null does nothing
 */
ZETO_GUI_EXPORT void DestroyGenParamTreeView(ZetoGui_IZetoGenParamTreeView* view);

/**
 * Opens the configuration window of a camera, and closes it again before returning: no events are dispatched
 * and nobody can work with the window. For one that stays, Qt programs use the class ZetoCamConfig.
 *
 * \param device an open camera; it stays yours
 * \param parent the window of a Qt widget of this process; any other handle and null give no parent
 */
ZETO_GUI_EXPORT void ShowCamConfigDialog(ZetoCam_Device* device, HWND parent);

/** Does what ShowCamConfigDialog() does, with the colour dialog. */
ZETO_GUI_EXPORT void ShowColorDialog(ZetoCam_Device* device, HWND parent);

/** Does what ShowCamConfigDialog() does, with the colour dialog, too, and not the one of Frame A/B. */
ZETO_GUI_EXPORT void ShowFrameABDialog(ZetoCam_Device* device, HWND parent);

/** Does what ShowCamConfigDialog() does, with the data output dialog. */
ZETO_GUI_EXPORT void ShowOutputDialog(ZetoCam_Device* device, HWND parent);

/** Does what ShowCamConfigDialog() does, with the pulse dialog. */
ZETO_GUI_EXPORT void ShowPulseDialog(ZetoCam_Device* device, HWND parent);

/** Does what ShowCamConfigDialog() does, with the strobe dialog. */
ZETO_GUI_EXPORT void ShowStrobeDialog(ZetoCam_Device* device, HWND parent);

/** Does what ShowCamConfigDialog() does, with the trigger dialog. */
ZETO_GUI_EXPORT void ShowTriggerDialog(ZetoCam_Device* device, HWND parent);

#ifdef __cplusplus
} // extern "C"
#endif

#endif
