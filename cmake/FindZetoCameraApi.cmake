# Finds a maker's camera access library to use instead of the one in cameras/.
#
# Looks in ZETO_CAMERA_API_ROOT only: include/ZetoCameraApi.h and ZetoGenParam.h beside it, and the library ZetoCameraApi in
# lib/ (on Windows its import library; the DLL is found at run time). Defines the imported targets
#   ZetoCameraApi::Headers   the interface
#   ZetoCameraApi::Library   the library behind its exported functions

include(FindPackageHandleStandardArgs)

unset(ZetoCameraApi_INCLUDE_DIR)
find_path(ZetoCameraApi_INCLUDE_DIR ZetoCameraApi.h
    NO_CACHE PATHS "${ZETO_CAMERA_API_ROOT}/include" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
unset(ZetoCameraApi_LIBRARY)
find_library(ZetoCameraApi_LIBRARY ZetoCameraApi
    NO_CACHE PATHS "${ZETO_CAMERA_API_ROOT}/lib" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)

find_package_handle_standard_args(ZetoCameraApi
    REQUIRED_VARS ZetoCameraApi_INCLUDE_DIR ZetoCameraApi_LIBRARY
    REASON_FAILURE_MESSAGE "Looked for a camera access library in: ${ZETO_CAMERA_API_ROOT}")

if(ZetoCameraApi_FOUND AND NOT TARGET ZetoCameraApi::Headers)
    add_library(ZetoCameraApi::Headers INTERFACE IMPORTED GLOBAL)
    target_include_directories(ZetoCameraApi::Headers INTERFACE "${ZetoCameraApi_INCLUDE_DIR}")
    add_library(ZetoCameraApi::Library UNKNOWN IMPORTED GLOBAL)
    set_target_properties(ZetoCameraApi::Library PROPERTIES IMPORTED_LOCATION "${ZetoCameraApi_LIBRARY}")
endif()
