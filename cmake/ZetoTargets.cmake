# The few kinds of target that the project is made of.

include(GenerateExportHeader)

# zeto_use_qt_tools(TARGET): moc and uic for a target, and their output in zeto_generated.
function(zeto_use_qt_tools name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
    set_property(GLOBAL APPEND PROPERTY ZETO_GENERATED ${name}_autogen)
endfunction()

# zeto_add_generated_target(): a target that makes all generated sources and nothing else, for tools that only
# parse. To be called last.
function(zeto_add_generated_target)
    get_property(generated GLOBAL PROPERTY ZETO_GENERATED)
    add_custom_target(zeto_generated)
    if(generated)
        add_dependencies(zeto_generated ${generated})
    endif()
endfunction()

# zeto_add_part(NAME SOURCES... [DEPENDS targets...])
# One folder of the library as a static library: small enough to be tested alone, linked whole into
# ZetoCameraGuiApi. A part sees the folders of the parts it depends on and no others.
function(zeto_add_part name)
    cmake_parse_arguments(PART "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${PART_SOURCES})
    zeto_use_qt_tools(${name})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC Zeto::Settings ${PART_DEPENDS})
endfunction()

# zeto_add_test(NAME SOURCES... [LIBS targets...] [LABELS labels...])
# One Qt Test program, run by ctest without a display and failed by any unexpected Qt warning.
function(zeto_add_test name)
    cmake_parse_arguments(TEST "" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 300)
    endif()
    add_executable(${name} ${TEST_SOURCES})
    zeto_use_qt_tools(${name})
    target_link_libraries(${name} PRIVATE zeto_test_support ${TEST_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${TEST_TIMEOUT}
        LABELS "${TEST_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${ZETO_TEST_ENVIRONMENT}")
endfunction()
