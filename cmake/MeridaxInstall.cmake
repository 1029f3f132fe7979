# What `cmake --install` puts into place: the program and, where there is a freedesktop desktop, what
# the desktop needs to find it. Nothing else in the project has an install rule: tests, tools and the
# simulated camera stay in the build folder.
include(GNUInstallDirs)

# One name for desktop entry, AppStream component, icon, Flatpak and the window's application id.
set(MERIDAX_DESKTOP_ID org.tarnwick_optics.Meridax)

install(TARGETS meridax RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(WIN32 OR APPLE)
    return()
endif()

set(_packaging ${PROJECT_SOURCE_DIR}/packaging)
set(_icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(_drawing ${PROJECT_SOURCE_DIR}/resources/app_icon.svg)
set(_small_drawing ${PROJECT_SOURCE_DIR}/resources/app_icon_small.svg)

install(FILES ${_packaging}/${MERIDAX_DESKTOP_ID}.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${_packaging}/${MERIDAX_DESKTOP_ID}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${_drawing} DESTINATION ${_icons}/scalable/apps RENAME ${MERIDAX_DESKTOP_ID}.svg)
install(FILES ${_packaging}/meridax.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES CHANGELOG.md LICENSE ${_packaging}/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/meridax)

# Desktops that cannot draw SVG take these; without the tool the drawing alone has to do.
find_program(RSVG_CONVERT rsvg-convert)
if(RSVG_CONVERT)
    set(_pictures "")
    foreach(_size IN ITEMS 16 22 24 32 48 64 128 256 512)
        set(_picture ${CMAKE_BINARY_DIR}/icons/${_size}/${MERIDAX_DESKTOP_ID}.png)
        file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/icons/${_size})
        set(_source ${_drawing})
        if(_size LESS 32)
            set(_source ${_small_drawing})
        endif()
        add_custom_command(OUTPUT ${_picture}
            COMMAND ${RSVG_CONVERT} --width ${_size} --height ${_size} --output ${_picture}
                ${_source}
            DEPENDS ${_source}
            VERBATIM)
        install(FILES ${_picture} DESTINATION ${_icons}/${_size}x${_size}/apps)
        list(APPEND _pictures ${_picture})
    endforeach()
    add_custom_target(meridax_icons ALL DEPENDS ${_pictures} COMMENT "Drawing the icons")
endif()
