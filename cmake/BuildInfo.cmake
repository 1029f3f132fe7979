# The build constants: version, commit, build time and platform, in the library meridax_buildinfo.
# Version has one source, the project() call. The commit is read at every build; the file is
# written anew, and with it the build time, only when the revision has changed.

if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|amd64)$")
    set(_cpu x64)
elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64|ARM64)$")
    set(_cpu arm64)
else()
    set(_cpu ${CMAKE_SYSTEM_PROCESSOR})
endif()
if(WIN32)
    set(MERIDAX_PLATFORM win-${_cpu})
elseif(APPLE)
    set(MERIDAX_PLATFORM mac-${_cpu})
else()
    set(MERIDAX_PLATFORM linux-${_cpu})
endif()

set(_generated ${CMAKE_BINARY_DIR}/buildinfo/BuildInfo.cpp)
find_package(Git QUIET)
add_custom_target(meridax_write_buildinfo
    COMMAND ${CMAKE_COMMAND}
        -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
        -DOUTPUT=${_generated}
        -DVERSION=${PROJECT_VERSION}
        -DPLATFORM=${MERIDAX_PLATFORM}
        -DGIT=${GIT_EXECUTABLE}
        -P ${CMAKE_CURRENT_LIST_DIR}/WriteBuildInfo.cmake
    BYPRODUCTS ${_generated}
    COMMENT "Reading the revision")

add_library(meridax_buildinfo STATIC
    ${CMAKE_CURRENT_LIST_DIR}/BuildInfo.h
    ${_generated})
set_target_properties(meridax_buildinfo PROPERTIES AUTOMOC OFF)
add_dependencies(meridax_buildinfo meridax_write_buildinfo)
target_include_directories(meridax_buildinfo PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(meridax_buildinfo PUBLIC Qt6::Core PRIVATE meridax_options)
