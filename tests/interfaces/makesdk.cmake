# make_sdk(): GenICam SDKs of the official layout, made from our own headers and library.
# Expects PROJECT_DIR, WORK_DIR and LIBRARY (our base library).

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
