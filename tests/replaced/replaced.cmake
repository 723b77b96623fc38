# Builds the library alone against a maker's camera library and a GenICam SDK, neither of them from cameras/, and
# runs a host on it. Expects PROJECT_DIR, WORK_DIR, LIBRARY (our base library, which the SDK is made from) and
# CONFIGURE (a list: cmake options of this build).

include("${CMAKE_CURRENT_LIST_DIR}/../interfaces/makesdk.cmake")

function(build name source)
    execute_process(COMMAND "${CMAKE_COMMAND}" ${CONFIGURE} ${ARGN} -S "${source}" -B "${WORK_DIR}/${name}"
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(code EQUAL 0)
        execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK_DIR}/${name}"
            RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    endif()
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "${name} does not build:\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
make_sdk(sdk 3 0 _Zeto)

build(maker "${CMAKE_CURRENT_LIST_DIR}/maker" "-DPROJECT_DIR=${PROJECT_DIR}")
set(root "${WORK_DIR}/makerroot")
file(COPY "${PROJECT_DIR}/interfaces/ZetoCameraApi/" DESTINATION "${root}/include")
file(COPY "${WORK_DIR}/maker/bin/" DESTINATION "${root}/lib")

build(library "${PROJECT_DIR}" "-DGENICAM_ROOT=${WORK_DIR}/sdk" "-DZETO_CAMERA_API_ROOT=${root}"
    -DCMAKE_UNITY_BUILD=ON)
file(READ "${WORK_DIR}/library/compile_commands.json" commands)
if(commands MATCHES "${PROJECT_DIR}/(cameras|interfaces)/")
    message(FATAL_ERROR "The build reaches into the folder of our own libraries: ${CMAKE_MATCH_0}")
endif()

execute_process(COMMAND "${CMAKE_COMMAND}" --install "${WORK_DIR}/library" --prefix "${WORK_DIR}/installed"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
build(host "${CMAKE_CURRENT_LIST_DIR}/host" "-DPROJECT_DIR=${PROJECT_DIR}"
    "-DCMAKE_PREFIX_PATH=${WORK_DIR}/installed" "-DGENICAM_ROOT=${WORK_DIR}/sdk" "-DZETO_CAMERA_API_ROOT=${root}")
set(ENV{LD_LIBRARY_PATH} "${root}/lib:${WORK_DIR}/sdk/bin/${platform}")
execute_process(COMMAND "${WORK_DIR}/host/bin/host" COMMAND_ERROR_IS_FATAL ANY)
