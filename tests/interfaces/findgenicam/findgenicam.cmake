# Builds SDKs of the official layout from our own headers and library and lets a program find them.
# Expects PROJECT_DIR, WORK_DIR, LIBRARY (our base library), and CONFIGURE (a list: cmake options of this build).

cmake_host_system_information(RESULT processor QUERY OS_PLATFORM)
if(processor MATCHES "^(arm|aarch64)")
    set(platform "Linux64_ARM")
else()
    set(platform "Linux64_x64")
endif()

# An SDK below WORK_DIR/name; its headers say the given version and its suffix line is active or commented out.
function(make_sdk name major minor suffix)
    set(root "${WORK_DIR}/${name}")
    set(include "${root}/library/CPP/include")
    file(COPY "${PROJECT_DIR}/interfaces/" DESTINATION "${include}"
        FILES_MATCHING PATTERN "*.h" PATTERN ZetoCameraApi EXCLUDE)
    file(READ "${include}/_GenICamVersion.h" header)
    string(REGEX REPLACE "(VERSION_MAJOR) [0-9]+" "\\1 ${major}" header "${header}")
    string(REGEX REPLACE "(VERSION_MINOR) [0-9]+" "\\1 ${minor}" header "${header}")
    if(NOT suffix)
        string(REPLACE "#define GENICAM_COMPANY_SUFFIX" "//#define GENICAM_COMPANY_SUFFIX" header "${header}")
    endif()
    # The pragma warns unless the headers are system headers.
    string(APPEND header "#define MADE_FOR_THE_TEST\n#pragma MADE_FOR_THE_TEST\n")
    file(WRITE "${include}/_GenICamVersion.h" "${header}")

    # Debug libraries and those of an older compiler are there to be passed over, so they are no libraries.
    set(bin "${root}/bin/${platform}")
    file(COPY "${LIBRARY}" DESTINATION "${bin}")
    foreach(base GCBase GenApi)
        set(end "_v${major}_${minor}${suffix}.so")
        file(COPY_FILE "${LIBRARY}" "${bin}/lib${base}_gcc48${end}")
        file(WRITE "${bin}/lib${base}_gcc421${end}" "")
        file(WRITE "${bin}/lib${base}_d_gcc49${end}" "")
    endforeach()
endfunction()

function(configure name)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" ${CONFIGURE} "-DPROJECT_DIR=${PROJECT_DIR}" ${ARGN}
            -S "${CMAKE_CURRENT_LIST_DIR}" -B "${WORK_DIR}/build-${name}"
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(code "${code}" PARENT_SCOPE)
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_found name)
    configure("${name}" ${ARGN})
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "The SDK '${name}' was not found:\n${output}")
    endif()
endfunction()

function(expect_refused name text)
    configure("${name}" "-DGENICAM_ROOT=${WORK_DIR}/${name}")
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    if(code EQUAL 0 OR NOT output MATCHES "${text}")
        message(FATAL_ERROR "Expected '${text}' for the SDK '${name}', got ${code}:\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
make_sdk(ours 3 0 _Zeto)
expect_found(ours "-DGENICAM_ROOT=${WORK_DIR}/ours")
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK_DIR}/build-ours"
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT code EQUAL 0)
    message(FATAL_ERROR "The program does not build with the SDK:\n${output}")
endif()
execute_process(COMMAND "${WORK_DIR}/build-ours/bin/consumer" COMMAND_ERROR_IS_FATAL ANY)

make_sdk(later 3 4 "")
expect_found(later "-DGENICAM_ROOT=${WORK_DIR}/later")

make_sdk(old 2 4 "")
expect_refused(old "Found unsuitable version \"2.4.0\"")

make_sdk(incomplete 3 0 "")
file(REMOVE "${WORK_DIR}/incomplete/bin/${platform}/libGenApi_gcc48_v3_0.so"
            "${WORK_DIR}/incomplete/bin/${platform}/libGenApi_gcc421_v3_0.so")
expect_refused(incomplete "missing: GenICam_GENAPI_LIBRARY")

file(MAKE_DIRECTORY "${WORK_DIR}/empty")
expect_refused(empty "missing: GenICam_INCLUDE_DIR")
