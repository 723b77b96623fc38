# What a program for Windows needs beside it: Qt's libraries and plug-ins and the compiler's run-time libraries.

# zeto_copy_beside_programs(NAME FOLDER FILES...)
# A target that keeps copies of the files in a folder below the programs of the build.
function(zeto_copy_beside_programs name folder)
    set(folder "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}")
    add_custom_target(${name} ALL
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
        COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${ARGN} "${folder}"
        VERBATIM)
endfunction()

# Each kind of plug-in has a folder of its own, which Qt looks for below the program and below the folder that
# it is started with.
set(ZETO_RUNTIME_PLUGINS platforms imageformats styles)
set(ZETO_RUNTIME_platforms $<TARGET_FILE:Qt5::QWindowsIntegrationPlugin>
    $<TARGET_FILE:Qt5::QMinimalIntegrationPlugin> $<TARGET_FILE:Qt5::QOffscreenIntegrationPlugin>)
set(ZETO_RUNTIME_imageformats $<TARGET_FILE:Qt5::QICOPlugin>)
set(ZETO_RUNTIME_styles $<TARGET_FILE:Qt5::QWindowsVistaStylePlugin>)

set(ZETO_RUNTIME_LIBRARIES $<TARGET_FILE:Qt5::Core> $<TARGET_FILE:Qt5::Gui> $<TARGET_FILE:Qt5::Widgets>)
if(MINGW)
    foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${library}.dll"
            OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        set(stripped "${CMAKE_BINARY_DIR}/runtime/${library}.dll") # a tenth of the size
        file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/runtime")
        execute_process(COMMAND "${CMAKE_STRIP}" -o "${stripped}" "${file}" COMMAND_ERROR_IS_FATAL ANY)
        list(APPEND ZETO_RUNTIME_LIBRARIES "${stripped}")
    endforeach()
endif()

zeto_copy_beside_programs(zeto_runtime . ${ZETO_RUNTIME_LIBRARIES})
foreach(kind IN LISTS ZETO_RUNTIME_PLUGINS)
    zeto_copy_beside_programs(zeto_runtime_${kind} ${kind} ${ZETO_RUNTIME_${kind}})
endforeach()
