/*
 * A program for Windows in plain C that loads the libraries at run time: lets a person choose a camera over
 * its own window, shows each window of the configuration tool for a moment, and opens two browsers, over the
 * camera's features and over its node map. They live from the program's message loop. Closing the window, or
 * Escape in it, ends the program.
 *
 * Usage: win32host [FOLDER], the folder with ZetoCameraGuiApi.dll and ZetoCameraApi.dll; else they are
 * searched for.
 */
#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include <stdint.h>
#include <stdlib.h>
#include <windows.h>

/* The camera library's functions, and the operations of a camera. */
typedef ZetoCam_System* (*GetSystem)(void);
typedef ZetoCam_Device* (*CreateDevice)(ZetoCam_DeviceInfo* info, int32_t accessMode, int32_t* error);
typedef ZetoCam_DeviceInfo* (*SelectCamera)(ZetoCam_System*, const wchar_t* title, HWND, bool poll);
typedef ZetoGui_IZetoGenParamTreeView* (*BrowseArray)(ZetoGenParam_Array*, const wchar_t* title, HWND);
typedef ZetoGui_IZetoGenParamTreeView* (*BrowseNodeMap)(GenApi_INodeMap*, const wchar_t* title, HWND);
typedef void (*DestroyTreeView)(ZetoGui_IZetoGenParamTreeView*);
typedef void (*ShowDialog)(ZetoCam_Device*, HWND);
enum
{
    AccessControl = 2
};

/* A C++ object begins with the table of its operations. The destructor comes first, and takes two places with
 * GCC. */
enum
{
#ifdef __GNUC__
    DestructorCount = 2
#else
    DestructorCount = 1
#endif
};
struct DeviceOperations
{
    void* destructors[DestructorCount];
    void (*release)(ZetoCam_Device*);
    ZetoGenParam_Array* (*parameters)(ZetoCam_Device*, int32_t* error);
};
struct ArrayOperations
{
    void* destructors[DestructorCount];
    void* byName[7];
    GenApi_INodeMap* (*nodeMap)(ZetoGenParam_Array*, uint32_t index);
};

static const struct DeviceOperations* operationsOf(ZetoCam_Device* device)
{
    return *(const struct DeviceOperations**)device;
}

static GenApi_INodeMap* nodeMapOf(ZetoGenParam_Array* parameters)
{
    return parameters ? (*(const struct ArrayOperations**)parameters)->nodeMap(parameters, 0) : NULL;
}

static const char* const ShowNames[] = {"ShowCamConfigDialog", "ShowColorDialog", "ShowFrameABDialog",
                                        "ShowOutputDialog",    "ShowPulseDialog", "ShowStrobeDialog",
                                        "ShowTriggerDialog"};
enum
{
    ShowCount = sizeof ShowNames / sizeof ShowNames[0]
};

struct Functions
{
    GetSystem system;
    CreateDevice createDevice;
    SelectCamera select;
    BrowseArray browseArray;
    BrowseNodeMap browseNodeMap;
    DestroyTreeView destroyView;
    ShowDialog show[ShowCount];
};

static void fail(const wchar_t* what)
{
    MessageBoxW(NULL, what, L"Win32 host", MB_ICONERROR);
    ExitProcess(EXIT_FAILURE);
}

static FARPROC load(HMODULE library, const char* name)
{
    const FARPROC function = library ? GetProcAddress(library, name) : NULL;
    if (!function)
        fail(L"A library or one of its functions is missing.");
    return function;
}

static struct Functions loadFunctions(const wchar_t* folder)
{
    struct Functions functions;
    HMODULE cameras;
    HMODULE gui;
    int i;
    if (folder)
        SetDllDirectoryW(folder);
    cameras = LoadLibraryW(L"ZetoCameraApi.dll");
    gui = LoadLibraryW(L"ZetoCameraGuiApi.dll");
    functions.system = (GetSystem)(void*)load(cameras, "ZetoCam_GetSystem");
    functions.createDevice = (CreateDevice)(void*)load(cameras, "ZetoCam_CreateDevice");
    functions.select = (SelectCamera)(void*)load(gui, "SelectCameraW");
    functions.browseArray = (BrowseArray)(void*)load(gui, "CreateGenParamTreeViewForArrayW");
    functions.browseNodeMap = (BrowseNodeMap)(void*)load(gui, "CreateGenParamTreeViewForNodemapW");
    functions.destroyView = (DestroyTreeView)(void*)load(gui, "DestroyGenParamTreeView");
    for (i = 0; i < ShowCount; ++i)
        functions.show[i] = (ShowDialog)(void*)load(gui, ShowNames[i]);
    return functions;
}

static LRESULT CALLBACK handleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CLOSE || (message == WM_KEYDOWN && wParam == VK_ESCAPE)) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

static HWND openWindow(HINSTANCE instance)
{
    WNDCLASSW kind = {0};
    kind.lpfnWndProc = handleMessage;
    kind.hInstance = instance;
    kind.hCursor = LoadCursorW(NULL, (LPCWSTR)IDC_ARROW);
    kind.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
    kind.lpszClassName = L"Win32Host";
    RegisterClassW(&kind);
    return CreateWindowW(kind.lpszClassName, L"Win32 host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT,
                         CW_USEDEFAULT, 640, 480, NULL, NULL, instance, NULL);
}

static void runMessageLoop(void)
{
    MSG message;
    while (GetMessageW(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/* Each window is there during its call only. */
static void showDialogs(const struct Functions* functions, ZetoCam_Device* device)
{
    int i;
    for (i = 0; i < ShowCount; ++i)
        functions->show[i](device, NULL);
}

static void browse(const struct Functions* functions, ZetoCam_Device* device, HWND window)
{
    int32_t error = 0;
    ZetoGenParam_Array* const parameters = operationsOf(device)->parameters(device, &error);
    ZetoGui_IZetoGenParamTreeView* const nodes =
        functions->browseNodeMap(nodeMapOf(parameters), L"Node map", window);
    ZetoGui_IZetoGenParamTreeView* const features = functions->browseArray(parameters, L"Features", window);
    if (!nodes || !features)
        fail(L"A browser could not be opened.");
    runMessageLoop();
    functions->destroyView(features);
    functions->destroyView(nodes);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previous, LPWSTR folder, int show)
{
    const struct Functions functions = loadFunctions(folder[0] ? folder : NULL);
    const HWND window = openWindow(instance);
    ZetoCam_DeviceInfo* const camera =
        functions.select(functions.system(), L"Choose a camera", window, false);
    int32_t error = 0;
    ZetoCam_Device* const device = camera ? functions.createDevice(camera, AccessControl, &error) : NULL;
    (void)previous;
    (void)show;
    if (device) {
        showDialogs(&functions, device);
        browse(&functions, device, window);
        operationsOf(device)->release(device);
    }
    DestroyWindow(window);
    return device ? EXIT_SUCCESS : EXIT_FAILURE;
}
