# meridax_add_test(<name> SOURCES ... [LIBRARIES ...] [LABELS ...] [ENVIRONMENT VAR=value ...]
#                  [TIMEOUT seconds] [CAMERA] [DISPLAY] [ISOLATION option...])
#
# One Qt Test executable and one ctest entry of that name. Every run gets its own data, config and
# cache folders, so that tests neither meet each other nor the user's files.
#
# CAMERA runs the test with the simulated camera attached; DISPLAY on a virtual X display, where
# the scene graph draws with OpenGL, instead of the offscreen platform. ISOLATION are further options
# of tests/run-isolated.
# A sanitizer's run-time library has to come before the preloaded camera.
set(MERIDAX_SANITIZER_PRELOAD "")
if(MERIDAX_SANITIZE MATCHES "address|thread")
    string(REGEX MATCH "address|thread" _sanitizer ${MERIDAX_SANITIZE})
    string(REPLACE address asan _sanitizer ${_sanitizer})
    string(REPLACE thread tsan _sanitizer ${_sanitizer})
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=lib${_sanitizer}.so
        OUTPUT_VARIABLE _library OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(MERIDAX_SANITIZER_PRELOAD --preload ${_library})
endif()

function(meridax_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "CAMERA;DISPLAY" "TIMEOUT"
        "SOURCES;LIBRARIES;LABELS;ENVIRONMENT;ISOLATION")
    find_package(Qt6 6.8 REQUIRED COMPONENTS Test QUIET)
    qt_add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE meridax_options Qt6::Test ${arg_LIBRARIES})
    # Plugins of imported QML modules are found at run time; the scan only serves static builds.
    set_target_properties(${name} PROPERTIES QT_QML_MODULE_NO_IMPORT_SCAN TRUE)
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 60)
    endif()

    set(command ${PROJECT_SOURCE_DIR}/tests/run-isolated)
    if(arg_CAMERA)
        list(APPEND command --camera $<TARGET_FILE:simcam> ${MERIDAX_SANITIZER_PRELOAD})
    endif()
    if(arg_DISPLAY)
        list(APPEND command --display)
    endif()
    list(APPEND command ${arg_ISOLATION})
    add_test(NAME ${name} COMMAND ${command} -- $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        LABELS "${arg_LABELS}"
        ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()
