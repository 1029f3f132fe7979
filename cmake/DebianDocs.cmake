# Run by cpack on the staged files: documents under the names and in the form that Debian wants.
set(_root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(_docs ${_root}/doc/meridax)

# The copyright file points at the system's own copy.
file(REMOVE ${_docs}/LICENSE)
file(RENAME ${_docs}/CHANGELOG.md ${_docs}/changelog)
file(COPY_FILE ${CPACK_MERIDAX_PACKAGING}/debian/changelog ${_docs}/changelog.Debian)
execute_process(COMMAND gzip -9n ${_docs}/changelog ${_docs}/changelog.Debian
    ${_root}/man/man1/meridax.1
    COMMAND_ERROR_IS_FATAL ANY)

file(MAKE_DIRECTORY ${_root}/lintian/overrides)
file(COPY_FILE ${CPACK_MERIDAX_PACKAGING}/debian/lintian-overrides
    ${_root}/lintian/overrides/meridax)
