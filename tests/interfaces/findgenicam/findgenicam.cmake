# Lets a program find GenICam SDKs of several kinds.
# Expects PROJECT_DIR, WORK_DIR, LIBRARY (our base library), and CONFIGURE (a list: cmake options of this build).

include("${CMAKE_CURRENT_LIST_DIR}/../makesdk.cmake")

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
