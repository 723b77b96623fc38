# Compiles refused.cpp once with no case defined, which must work, and once with each case, which must not.
# Expects COMPILER (a list: the compiler and its options), INCLUDE_DIR and SOURCE.

function(compile result)
    execute_process(
        COMMAND ${COMPILER} ${ARGN} "-I${INCLUDE_DIR}" "${SOURCE}"
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(${result} "${code}" PARENT_SCOPE)
    set(output "${output}" PARENT_SCOPE)
endfunction()

compile(code)
if(NOT code EQUAL 0)
    message(FATAL_ERROR "The code without a case does not compile:\n${output}")
endif()

file(STRINGS "${SOURCE}" lines REGEX "CASE_[A-Z_]+")
string(REGEX MATCHALL "CASE_[A-Z_]+" cases "${lines}")
list(REMOVE_DUPLICATES cases)
list(LENGTH cases count)
if(count LESS 5)
    message(FATAL_ERROR "Only ${count} cases found")
endif()
foreach(case IN LISTS cases)
    if(WINDOWS AND case STREQUAL "CASE_IDENTIFIER_INTERFACE")
        continue()
    endif()
    compile(code "-D${case}")
    if(code EQUAL 0)
        message(SEND_ERROR "${case} compiles")
    endif()
endforeach()
