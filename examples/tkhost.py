#!/usr/bin/env python3
"""A program in Python with tkinter: lets a person choose a camera over its own window, shows each window of the
configuration tool for a moment, and opens two browsers, over the camera's features and over its node map. Escape in
the window ends it.

Usage: tkhost.py LIBRARY_FOLDER, the folder with libZetoCameraGuiApi and libZetoCameraApi
"""
import ctypes
import pathlib
import sys
import tkinter

ACCESS_CONTROL = 2
PUMP_INTERVAL = 15  # ms
SHOW_FUNCTIONS = (
    "ShowCamConfigDialog",
    "ShowColorDialog",
    "ShowFrameABDialog",
    "ShowOutputDialog",
    "ShowPulseDialog",
    "ShowStrobeDialog",
    "ShowTriggerDialog",
)

Pointer = ctypes.c_void_p


def function(library, name, result, *arguments):
    found = library[name]
    found.restype = result
    found.argtypes = arguments
    return found


def operation(thing, number, result, *arguments):
    """An operation of a C++ object, which begins with the table of them; the destructor takes the first two."""
    table = ctypes.cast(thing, ctypes.POINTER(ctypes.POINTER(Pointer))).contents
    return ctypes.CFUNCTYPE(result, Pointer, *arguments)(table[number + 1])


class Host:
    def __init__(self, folder):
        cameras = ctypes.CDLL(str(folder / "libZetoCameraApi.so"))
        gui = ctypes.CDLL(str(folder / "libZetoCameraGuiApi.so"))
        self.system = function(cameras, "ZetoCam_GetSystem", Pointer)
        self.create_device = function(cameras, "ZetoCam_CreateDevice", Pointer, Pointer, ctypes.c_int32, Pointer)
        self.select = function(gui, "SelectCameraW", Pointer, Pointer, ctypes.c_wchar_p, Pointer, ctypes.c_bool)
        self.browse = function(gui, "CreateGenParamTreeViewForArrayW", Pointer, Pointer, ctypes.c_wchar_p, Pointer)
        self.browse_nodes = function(gui, "CreateGenParamTreeViewForNodemapW", Pointer, Pointer, ctypes.c_wchar_p, Pointer)
        self.show = [function(gui, name, None, Pointer, Pointer) for name in SHOW_FUNCTIONS]
        self.destroy = function(gui, "DestroyGenParamTreeView", None, Pointer)
        glib = ctypes.CDLL("libglib-2.0.so.0")
        self.iterate = function(glib, "g_main_context_iteration", ctypes.c_int, Pointer, ctypes.c_int)

        self.window = tkinter.Tk()
        self.window.title("Tk host")
        self.window.geometry("640x480")
        self.window.bind("<Escape>", lambda event: self.window.quit())
        self.window.update()  # now the window has its id

    def pump(self):
        """Serves the library's windows from Tk's own loop."""
        while self.iterate(None, False):
            pass
        self.window.after(PUMP_INTERVAL, self.pump)

    def run(self):
        handle = self.window.winfo_id()
        camera = self.select(self.system(), "Choose a camera", handle, False)
        device = self.create_device(camera, ACCESS_CONTROL, None) if camera else None
        if not device:
            return "No camera"
        for show in self.show:
            show(device, None)  # the window is there during the call only
        parameters = operation(device, 2, Pointer, Pointer)(device, None)
        nodes = operation(parameters, 8, Pointer, ctypes.c_uint32)(parameters, 0)
        views = [self.browse_nodes(nodes, "Node map", handle), self.browse(parameters, "Features", handle)]
        self.pump()
        self.window.mainloop()
        for view in views:
            self.destroy(view)
        operation(device, 1, None)(device)
        return None


if __name__ == "__main__":
    sys.exit(Host(pathlib.Path(sys.argv[1]).resolve()).run())
