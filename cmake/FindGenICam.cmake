# Finds the GenApi of a GenICam SDK, version 3.
#
# Looks in GENICAM_ROOT if it is set (variable or -D), else in the environment variables GENICAM_ROOT_V3_0 to
# GENICAM_ROOT_V3_4, which SDK installers set, and GENICAM_ROOT. Defines the imported targets
#   GenICam::GCBase, GenICam::GenApi   the two libraries with their headers (as system headers)
# and GenICam_FOUND, GenICam_VERSION (from the headers), GenICam_INCLUDE_DIR, GenICam_GCBASE_LIBRARY and
# GenICam_GENAPI_LIBRARY. Nothing is cached, so that another GENICAM_ROOT takes effect at once.
#
# An SDK's file names carry the compiler it was built with, which need not be the one in use, and only release
# libraries are shipped: whatever is there is taken, for debug builds too.

include(FindPackageHandleStandardArgs)

# The folder that an SDK keeps this platform's libraries in.
function(_genicam_platform result)
    string(TOLOWER "${CMAKE_SYSTEM_PROCESSOR}" processor)
    if(WIN32)
        set(names_4 "Win32_i86")
        set(names_8 "Win64_x64")
    elseif(APPLE)
        set(names_8 "Maci64_x64")
    elseif(processor MATCHES "^(arm|aarch64)")
        set(names_4 "Linux32_ARMhf")
        set(names_8 "Linux64_ARM")
    else()
        set(names_4 "Linux32_i86")
        set(names_8 "Linux64_x64")
    endif()
    set(${result} "${names_${CMAKE_SIZEOF_VOID_P}}" PARENT_SCOPE)
endfunction()

# The value of "#define name value" in a version header, empty if there is none or it is commented out.
function(_genicam_defined result file name)
    file(STRINGS "${file}" line REGEX "^[ \t]*#[ \t]*define[ \t]+${name}[ \t]+[A-Za-z0-9_]+")
    string(REGEX REPLACE ".*${name}[ \t]+([A-Za-z0-9_]+).*" "\\1" value "${line}")
    set(${result} "${value}" PARENT_SCOPE)
endfunction()

# The release library that matches the pattern. Should there be several, that of the newest compiler: the tags
# sort as text, since gcc421 is older than gcc48.
function(_genicam_library result pattern)
    file(GLOB files "${pattern}")
    list(FILTER files EXCLUDE REGEX "_(d|MDd)_[^/]*$")
    list(SORT files)
    if(files)
        list(GET files -1 file)
        set(${result} "${file}" PARENT_SCOPE)
    endif()
endfunction()

function(_genicam_import name file implib)
    if(TARGET GenICam::${name})
        return()
    endif()
    add_library(GenICam::${name} SHARED IMPORTED GLOBAL)
    set_target_properties(GenICam::${name} PROPERTIES
        IMPORTED_LOCATION "${file}"
        INTERFACE_INCLUDE_DIRECTORIES "${GenICam_INCLUDE_DIR}"
        INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${GenICam_INCLUDE_DIR}"
        # The headers name the libraries to MSVC by pragma; they are linked here instead.
        INTERFACE_COMPILE_DEFINITIONS "GENICAM_NO_AUTO_IMPLIB")
    if(implib)
        set_target_properties(GenICam::${name} PROPERTIES IMPORTED_IMPLIB "${implib}")
    elseif(NOT APPLE)
        # The libraries need others of the same folder, which only the linker has to find.
        get_filename_component(folder "${file}" DIRECTORY)
        target_link_options(GenICam::${name} INTERFACE "LINKER:-rpath-link,${folder}")
    endif()
endfunction()

set(_genicam_roots "${GENICAM_ROOT}")
if(NOT GENICAM_ROOT)
    set(_genicam_roots "")
    foreach(_genicam_name V3_0 V3_1 V3_2 V3_3 V3_4)
        list(APPEND _genicam_roots "$ENV{GENICAM_ROOT_${_genicam_name}}")
    endforeach()
    list(APPEND _genicam_roots "$ENV{GENICAM_ROOT}")
    list(REMOVE_ITEM _genicam_roots "")
endif()

unset(GenICam_INCLUDE_DIR)
find_path(GenICam_INCLUDE_DIR GenApi/GenApi.h
    NO_CACHE HINTS ${_genicam_roots}
    PATH_SUFFIXES library/CPP/include include
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)

unset(GenICam_VERSION)
foreach(_genicam_name GCBASE_LIBRARY GENAPI_LIBRARY GCBASE_IMPLIB GENAPI_IMPLIB)
    unset(GenICam_${_genicam_name})
endforeach()
if(GenICam_INCLUDE_DIR AND EXISTS "${GenICam_INCLUDE_DIR}/_GenICamVersion.h")
    foreach(_genicam_name VERSION_MAJOR VERSION_MINOR VERSION_SUBMINOR COMPANY_SUFFIX)
        _genicam_defined(_genicam_${_genicam_name}
            "${GenICam_INCLUDE_DIR}/_GenICamVersion.h" GENICAM_${_genicam_name})
    endforeach()
    set(GenICam_VERSION
        "${_genicam_VERSION_MAJOR}.${_genicam_VERSION_MINOR}.${_genicam_VERSION_SUBMINOR}")

    set(_genicam_end "_v${_genicam_VERSION_MAJOR}_${_genicam_VERSION_MINOR}")
    if(_genicam_COMPANY_SUFFIX)
        string(APPEND _genicam_end "_${_genicam_COMPANY_SUFFIX}")
    endif()
    string(REGEX REPLACE "/(library/CPP/)?include/?$" "" _genicam_root "${GenICam_INCLUDE_DIR}")
    _genicam_platform(_genicam_folder)
    foreach(_genicam_name GCBase GenApi)
        string(TOUPPER "${_genicam_name}" _genicam_upper)
        set(_genicam_pattern "${_genicam_name}_*${_genicam_end}")
        if(WIN32)
            _genicam_library(GenICam_${_genicam_upper}_LIBRARY
                "${_genicam_root}/bin/${_genicam_folder}/${_genicam_pattern}.dll")
            _genicam_library(GenICam_${_genicam_upper}_IMPLIB
                "${_genicam_root}/library/CPP/lib/${_genicam_folder}/${_genicam_pattern}.lib")
        else()
            _genicam_library(GenICam_${_genicam_upper}_LIBRARY
                "${_genicam_root}/bin/${_genicam_folder}/lib${_genicam_pattern}${CMAKE_SHARED_LIBRARY_SUFFIX}")
        endif()
    endforeach()
endif()

set(_genicam_required GenICam_INCLUDE_DIR GenICam_GCBASE_LIBRARY GenICam_GENAPI_LIBRARY)
if(WIN32)
    list(APPEND _genicam_required GenICam_GCBASE_IMPLIB GenICam_GENAPI_IMPLIB)
endif()
find_package_handle_standard_args(GenICam
    REQUIRED_VARS ${_genicam_required}
    VERSION_VAR GenICam_VERSION
    REASON_FAILURE_MESSAGE "Looked for a GenICam SDK in: ${_genicam_roots}")

if(GenICam_FOUND)
    _genicam_import(GCBase "${GenICam_GCBASE_LIBRARY}" "${GenICam_GCBASE_IMPLIB}")
    _genicam_import(GenApi "${GenICam_GENAPI_LIBRARY}" "${GenICam_GENAPI_IMPLIB}")
    target_link_libraries(GenICam::GenApi INTERFACE GenICam::GCBase)
endif()
