# OpenCV's own CMake configuration comes on some distributions only with every OpenCV module there
# is. Three modules are used here, so plain headers and libraries do as well.
#
# Defines the imported targets OpenCV4::core, OpenCV4::imgproc and OpenCV4::features2d.

find_path(OpenCV4_INCLUDE_DIR opencv2/imgproc.hpp PATH_SUFFIXES opencv4)
set(_required OpenCV4_INCLUDE_DIR)
foreach(_module IN ITEMS core imgproc features2d)
    find_library(OpenCV4_${_module}_LIBRARY opencv_${_module})
    list(APPEND _required OpenCV4_${_module}_LIBRARY)
endforeach()

if(OpenCV4_INCLUDE_DIR)
    file(STRINGS ${OpenCV4_INCLUDE_DIR}/opencv2/core/version.hpp _lines
        REGEX "#define CV_VERSION_(MAJOR|MINOR|REVISION)")
    string(REGEX REPLACE "[^0-9;]" "" _numbers "${_lines}")
    list(JOIN _numbers "." OpenCV4_VERSION)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCV4
    REQUIRED_VARS ${_required}
    VERSION_VAR OpenCV4_VERSION)

if(OpenCV4_FOUND AND NOT TARGET OpenCV4::core)
    foreach(_module IN ITEMS core imgproc features2d)
        add_library(OpenCV4::${_module} UNKNOWN IMPORTED)
        set_target_properties(OpenCV4::${_module} PROPERTIES
            IMPORTED_LOCATION ${OpenCV4_${_module}_LIBRARY}
            INTERFACE_INCLUDE_DIRECTORIES ${OpenCV4_INCLUDE_DIR}
            INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${OpenCV4_INCLUDE_DIR})
    endforeach()
    target_link_libraries(OpenCV4::imgproc INTERFACE OpenCV4::core)
    target_link_libraries(OpenCV4::features2d INTERFACE OpenCV4::imgproc)
endif()
