#pragma once

/// \def ZETO_GUI_EXPORT
/// Marks what ZetoCameraGuiApi offers to other programs. The library's own sources are built with
/// ZETO_GUI_BUILD defined; nobody else defines it.
#if !defined(_WIN32)
#define ZETO_GUI_EXPORT __attribute__((visibility("default")))
#elif defined(ZETO_GUI_BUILD)
#define ZETO_GUI_EXPORT __declspec(dllexport)
#else
#define ZETO_GUI_EXPORT __declspec(dllimport)
#endif
