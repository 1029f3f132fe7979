# Run at every build: writes OUTPUT when VERSION, PLATFORM or the revision of SOURCE_DIR changed.

set(commit unknown)
if(GIT)
    execute_process(COMMAND ${GIT} -C ${SOURCE_DIR} rev-parse --short=7 HEAD
        OUTPUT_VARIABLE _commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE _failed)
    if(NOT _failed)
        set(commit ${_commit})
    endif()
endif()

set(_identity "// ${VERSION} ${commit} ${PLATFORM} $ENV{SOURCE_DATE_EPOCH}\n")
if(EXISTS ${OUTPUT})
    file(READ ${OUTPUT} _old)
    string(FIND "${_old}" "${_identity}" _found)
    if(_found EQUAL 0)
        return()
    endif()
endif()

# TIMESTAMP honours SOURCE_DATE_EPOCH.
string(TIMESTAMP _time "%Y-%m-%dT%H:%M:%SZ" UTC)
file(WRITE ${OUTPUT} "${_identity}#include \"BuildInfo.h\"

namespace meridax::build
{

QString version() { return QStringLiteral(\"${VERSION}\"); }
QString commit() { return QStringLiteral(\"${commit}\"); }
QString buildTime() { return QStringLiteral(\"${_time}\"); }
QString platform() { return QStringLiteral(\"${PLATFORM}\"); }

} // namespace meridax::build
")
