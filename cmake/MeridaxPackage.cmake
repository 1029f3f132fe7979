# The Debian package: configure with the preset "package", build, and run cpack in the build folder.
# ./dev package does all of it and tries the result.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME meridax)
set(CPACK_PACKAGE_VENDOR "Tarnwick Optics")
set(CPACK_PACKAGE_CONTACT "Tarnwick Optics <support@tarnwick-optics.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://docs.tarnwick-optics.example/meridax/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "collimation of telescopes with a USB camera")
set(CPACK_PACKAGE_DESCRIPTION
    "Meridax shows the live picture of a USB camera under a crosshair and up to
three measuring circles, and finds the true image centre of the camera in
its sleeve: the camera is turned in steps while a dark mark stays in view,
the mark is measured in each position to a fraction of a pixel, and a circle
is fitted through the positions.

The result comes with its uncertainty and with what the form of the path
says about the sleeve. Exposure, gain, focus and the other values go to the
camera itself and are kept in profiles; a motor focus is driven to the
sharpest position by a click.")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianDocs.cmake)
set(CPACK_MERIDAX_PACKAGING ${PROJECT_SOURCE_DIR}/packaging)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded at run time by name, so that no library lists it: the QML modules that are imported
# (each brings those it imports itself), the reader of SVG pictures, and Qt's own texts in the
# languages of the program. X11, TLS and the camera back end are plugins inside Qt's libraries.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
    qml6-module-qtquick
    qml6-module-qtquick-controls
    qml6-module-qtquick-dialogs
    qml6-module-qtquick-effects
    qml6-module-qtquick-layouts
    qml6-module-qtquick-shapes
    qml6-module-qtquick-templates
    qml6-module-qtquick-window
    qt6-svg-plugins
    qt6-translations-l10n)
# Without these the program runs by X11, reaches no server by HTTPS, and shows its own file dialog.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "v4l-utils, xdg-desktop-portal")

include(CPack)
