cmake_minimum_required(VERSION 3.24)
# Installs the build and makes a project use what is installed. Expects BUILD_DIR, WORK_DIR, CONFIGURE (a list:
# cmake options), EMULATOR (may be empty), OBJDUMP, BIN (the folder of the programs), WINDOWS.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# The programs and libraries there have all they need beside them, but for what belongs to Windows.
function(expect_complete folder)
    file(GLOB programs "${folder}/*.exe")
    file(GLOB_RECURSE libraries "${folder}/*.dll")
    file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} LIBRARIES ${libraries}
        RESOLVED_DEPENDENCIES_VAR found UNRESOLVED_DEPENDENCIES_VAR missing) # in lower case
    file(GLOB shipped RELATIVE "${folder}" "${folder}/*.dll")
    foreach(library IN LISTS shipped)
        string(TOLOWER "${library}" library)
        list(REMOVE_ITEM missing "${library}")
    endforeach()
    list(REMOVE_ITEM missing advapi32.dll d3d11.dll dwmapi.dll dxgi.dll gdi32.dll imm32.dll kernel32.dll mpr.dll
        msvcrt.dll netapi32.dll ole32.dll oleaut32.dll shell32.dll user32.dll userenv.dll uxtheme.dll version.dll
        winmm.dll ws2_32.dll wtsapi32.dll)
    if(missing)
        message(SEND_ERROR "Not in the package: ${missing}")
    endif()
endfunction()

set(CMAKE_GET_RUNTIME_DEPENDENCIES_PLATFORM windows+pe)
set(CMAKE_GET_RUNTIME_DEPENDENCIES_TOOL objdump)
set(CMAKE_GET_RUNTIME_DEPENDENCIES_COMMAND "${OBJDUMP}")
set(installed "${WORK_DIR}/a camera kit")
set(outside "${WORK_DIR}/outside")

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${installed}")
set(ENV{PKG_CONFIG_PATH} "${installed}/lib/pkgconfig")
if(WINDOWS)
    set(suffix .exe)
    expect_complete("${installed}/${BIN}")
    foreach(licence IN ITEMS qt/LICENSE.LGPL3 qt/3rdparty/freetype/LICENSE.txt gcc/copyright mingw-w64/copyright)
        if(NOT EXISTS "${installed}/licenses/${licence}")
            message(SEND_ERROR "Not in the package: ${licence}")
        endif()
    endforeach()
    # A tool chain file may look in its own folders only.
    list(APPEND CONFIGURE "-DZetoCameraGuiApi_DIR=${installed}/lib/cmake/ZetoCameraGuiApi")
    set(ENV{WINEPATH} "Z:${installed}/${BIN}")
    set(ENV{QT_PLUGIN_PATH} "Z:${installed}/${BIN}")
endif()

run("${CMAKE_COMMAND}" ${CONFIGURE} "-DCMAKE_PREFIX_PATH=${installed}" "-DHEADERS=${installed}/include"
    -S "${CMAKE_CURRENT_LIST_DIR}/outside" -B "${outside}")
run("${CMAKE_COMMAND}" --build "${outside}")
run(${EMULATOR} "${outside}/qthost${suffix}")
string(FIND "${output}" "browsing a camera" at)
if(at EQUAL -1)
    message(FATAL_ERROR "The program said: ${output}")
endif()

if(NOT WINDOWS)
    run("${outside}/pkgconfighost")
endif()

# The installed tool starts without the folders of the build.
run(${EMULATOR} "${installed}/${BIN}/zetocameratool${suffix}" --render "${WORK_DIR}" select)
if(NOT EXISTS "${WORK_DIR}/select.png")
    message(FATAL_ERROR "The tool rendered no window: ${output}")
endif()
