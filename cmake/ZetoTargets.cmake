# The few kinds of target that the project is made of.

include(GenerateExportHeader)

# zeto_use_qt_tools(TARGET): moc and uic for a target, and their output in zeto_generated.
function(zeto_use_qt_tools name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTOGEN_ORIGIN_DEPENDS OFF)
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

# zeto_add_test(NAME SOURCES... [LIBS targets...] [LABELS labels...] [NATIVE_WINDOWS])
# One Qt Test program, run by ctest without a display and failed by any unexpected Qt warning. With NATIVE_WINDOWS it
# has one to itself, with a window manager, on which other programs' windows can be shown.
function(zeto_add_test name)
    cmake_parse_arguments(TEST "NATIVE_WINDOWS" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 300)
    endif()
    add_executable(${name} ${TEST_SOURCES})
    zeto_use_qt_tools(${name})
    target_link_libraries(${name} PRIVATE zeto_test_support ${TEST_LIBS})
    set(command ${name}) # by its name, so that a cross build runs it in its emulator
    set(platform offscreen)
    if(TEST_NATIVE_WINDOWS AND WIN32)
        set(platform windows) # on the one display that all programs have
    elseif(TEST_NATIVE_WINDOWS)
        set(command "${PROJECT_SOURCE_DIR}/tests/support/with-display" $<TARGET_FILE:${name}>)
    endif()
    add_test(NAME ${name} COMMAND ${command})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${TEST_TIMEOUT}
        LABELS "${TEST_LABELS}"
        RUN_SERIAL ${TEST_NATIVE_WINDOWS}
        ENVIRONMENT "QT_QPA_PLATFORM=${platform};${ZETO_TEST_ENVIRONMENT}")
endfunction()
