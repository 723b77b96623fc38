# Tool chain for Windows x64 with Debian's mingw-w64 (posix threads). ZETO_WINDOWS_QT, a variable of CMake or of
# the environment, names a Qt 5.15 built with the same compiler, such as tools/windows/build-qt makes.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(DEFINED ENV{ZETO_WINDOWS_QT}) # kept for later runs of CMake
    set(ZETO_WINDOWS_QT "$ENV{ZETO_WINDOWS_QT}" CACHE PATH "Qt 5.15 for Windows" FORCE)
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZETO_WINDOWS_QT)
set(CMAKE_FIND_ROOT_PATH "${ZETO_WINDOWS_QT}" /usr/x86_64-w64-mingw32)
set(CMAKE_PREFIX_PATH "${ZETO_WINDOWS_QT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/windows/run-under-wine")
