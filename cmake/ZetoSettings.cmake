# Language level, warnings, sanitizers and output folders of every target of the project.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(MINGW) # a library is found by the same name whichever compiler built it
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

# An installed program or library finds the libraries beside it, wherever the folder stands.
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/../lib")

add_library(zeto_settings INTERFACE)
add_library(Zeto::Settings ALIAS zeto_settings)

target_compile_definitions(zeto_settings INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_USE_QSTRINGBUILDER QT_DEPRECATED_WARNINGS
    $<$<PLATFORM_ID:Windows>:NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE>)

if(MSVC)
    target_compile_options(zeto_settings INTERFACE /W4 /utf-8 /permissive- /Zc:__cplusplus
        $<$<BOOL:${ZETO_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(zeto_settings INTERFACE -Wall -Wextra
        "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual>"
        $<$<BOOL:${ZETO_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

if(ZETO_BUILD_FUZZERS)
    # Lets libFuzzer see which code of the library an input reaches.
    target_compile_options(zeto_settings INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(zeto_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(ZETO_SANITIZE)
    target_compile_options(zeto_settings INTERFACE -fsanitize=${ZETO_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    target_link_options(zeto_settings INTERFACE -fsanitize=${ZETO_SANITIZE})
endif()
