# The QML module Meridax: every type that the interface sees. Its backing target is a static
# library, so that program and tests share one module; an executable that links it must call
# qml_register_types_Meridax(), or the linker drops the registration.
#
# Included from the top-level file, so that the QML files keep their path src/qml in the module.

include(${CMAKE_CURRENT_SOURCE_DIR}/src/qml/files.cmake)

set_source_files_properties(src/qml/Theme.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
set_source_files_properties(${meridax_qml_internal} PROPERTIES QT_QML_SKIP_QMLDIR_ENTRY TRUE)
# qmllint takes QML documents only and crashes on modules of plain functions (Qt 6.8).
set(meridax_qml_modules ${meridax_qml_internal})
list(FILTER meridax_qml_modules INCLUDE REGEX "\\.mjs$")
set_source_files_properties(${meridax_qml_modules} PROPERTIES QT_QML_SKIP_QMLLINT TRUE)

qt_add_library(meridax_module STATIC)
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
    # C++ made from QML is half the build time and pays only in what is shipped.
    set_target_properties(meridax_module PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
endif()
qt_add_qml_module(meridax_module
    URI Meridax
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    TYPEINFO TO.Meridax_Qt.qmltypes
    NO_PLUGIN
    # A qmldir in src/qml would send the import of that folder back to the module, where the
    # internal types have no entry.
    NO_GENERATE_EXTRA_QMLDIRS
    DEPENDENCIES QtQuick
    QML_FILES ${meridax_qml_public} ${meridax_qml_internal}
    SOURCES
        src/camera/CameraController.cpp src/camera/CameraController.h
        src/camera/CameraController_controls.cpp
        src/camera/CameraController_device.cpp
        src/camera/CameraController_pipeline.cpp
        src/camera/CameraController_status.cpp
        src/camera/FrameWatchdog.cpp src/camera/FrameWatchdog.h
        src/items/FrameMapping.cpp src/items/FrameMapping.h
        src/items/LinkColor.cpp src/items/LinkColor.h
        src/items/SvgItem.cpp src/items/SvgItem.h
        src/items/VideoFrameItem.cpp src/items/VideoFrameItem.h
        src/measurement/CalibrationSession.h
        src/measurement/CameraController_calibration.cpp
        src/measurement/CameraController_focus.cpp
        src/measurement/FocusSession.h
        src/viewmodel/BoundedText.cpp src/viewmodel/BoundedText.h
        src/viewmodel/BlobAdviceMap.cpp src/viewmodel/BlobAdviceMap.h
        src/viewmodel/CameraList.cpp src/viewmodel/CameraList.h
        src/viewmodel/CameraViewModel.cpp src/viewmodel/CameraViewModel.h
        src/viewmodel/CameraViewModel_advice.cpp
        src/viewmodel/CameraViewModel_calibration.cpp
        src/viewmodel/CameraViewModel_camera.cpp
        src/viewmodel/CameraViewModel_crash.cpp
        src/viewmodel/CameraViewModel_focus.cpp
        src/viewmodel/CameraViewModel_identity.cpp
        src/viewmodel/CameraViewModel_legal.cpp
        src/viewmodel/CameraViewModel_center.cpp
        src/viewmodel/CameraViewModel_presets.cpp
        src/viewmodel/CameraViewModel_profile.cpp
        src/viewmodel/CameraViewModel_screenshot.cpp
        src/viewmodel/CameraViewModel_settings.cpp
        src/viewmodel/CameraViewModel_support.cpp
        src/viewmodel/CameraViewModel_update.cpp
        src/viewmodel/LanguageSwitch.cpp src/viewmodel/LanguageSwitch.h
        src/viewmodel/QtTexts.cpp src/viewmodel/QtTexts.h
        src/viewmodel/ScreenshotFile.cpp src/viewmodel/ScreenshotFile.h
        src/viewmodel/WebLink.cpp src/viewmodel/WebLink.h
)
target_include_directories(meridax_module PUBLIC ${PROJECT_SOURCE_DIR}/src
    # The generated type registration includes headers by their bare names.
    PRIVATE src/camera src/items src/viewmodel)
target_link_libraries(meridax_module
    PUBLIC meridax_diagnostics meridax_settings meridax_camera meridax_measurement meridax_server
        Qt6::Quick Qt6::QuickControls2 Qt6::Multimedia Qt6::Svg Qt6::Network
    PRIVATE meridax_options meridax_buildinfo)

# A QML file is a table of a few kilobytes, in a release with a few functions, behind headers that
# take seconds: several share one compilation.
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
    set(_group_size 20)
else()
    set(_group_size 8)
endif()
set_target_properties(meridax_module PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
get_target_property(_tables meridax_module SOURCES)
list(FILTER _tables INCLUDE REGEX "/qmlcache/.*_(qml|mjs)\\.cpp$")
set(_count 0)
foreach(_table IN LISTS _tables)
    math(EXPR _group "${_count} / ${_group_size}")
    set_source_files_properties(${_table} PROPERTIES UNITY_GROUP "qml${_group}")
    math(EXPR _count "${_count} + 1")
endforeach()

file(GLOB _resources RELATIVE ${PROJECT_SOURCE_DIR}/resources CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/resources/*.svg ${PROJECT_SOURCE_DIR}/resources/*.png
    ${PROJECT_SOURCE_DIR}/resources/*.md)
list(TRANSFORM _resources PREPEND resources/)
qt_add_resources(meridax_module "meridax_resources" PREFIX "/" FILES ${_resources})
