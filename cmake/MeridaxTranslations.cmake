# The catalogues, compiled to :/i18n/<language>.qm. The German one is empty and never loaded, since
# the texts of the sources are German. `./dev translate` brings them up to date with the sources.

set(_catalogues "")
foreach(_language IN ITEMS de ${QT_I18N_TRANSLATED_LANGUAGES})
    list(APPEND _catalogues ${PROJECT_SOURCE_DIR}/i18n/${_language}.ts)
endforeach()
# What Qt shows and does not translate itself.
foreach(_language IN ITEMS fr es it)
    list(APPEND _catalogues ${PROJECT_SOURCE_DIR}/i18n/qt_${_language}.ts)
endforeach()

qt_add_lrelease(TS_FILES ${_catalogues}
    OPTIONS -silent
    QM_FILES_OUTPUT_VARIABLE _compiled
    EXCLUDE_FROM_ALL)
foreach(_catalogue IN LISTS _compiled)
    get_filename_component(_name ${_catalogue} NAME)
    set_source_files_properties(${_catalogue} PROPERTIES QT_RESOURCE_ALIAS ${_name})
endforeach()
qt_add_resources(meridax_module "meridax_translations" PREFIX "/i18n" FILES ${_compiled})
