#pragma once

/// \file
/// Names of the library files of an SDK. The macros are not prefixed and so are taken for everybody.

#include <GenICamVersion.h>

#define STRINGIFY(x) #x
#define TOSTRING(x) STRINGIFY(x)

#define CONFIGURATION "MD"

#define GENICAM_FILE_STEM(module)                                                                            \
    module "_" CONFIGURATION "_" EXPAND_TO_STRINGISE(GENICAM_MAIN_COMPILER) "_v" GENICAM_VERSION_MAJOR_STR   \
                                                                            "_" GENICAM_VERSION_MINOR_STR
#define LIB_NAME(module) GENICAM_FILE_STEM(module) ".lib"
#define DLL_NAME(module) GENICAM_FILE_STEM(module) ".dll"
#define EXE_NAME(module) GENICAM_FILE_STEM(module) ".exe"
