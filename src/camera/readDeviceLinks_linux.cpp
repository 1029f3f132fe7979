#include "camera/CameraIdentity.h"

#include <QFile>

#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace meridax {

namespace {

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// The node that a link such as "../../video0" leads to, empty if it is none.
QString nodeBehind(const QByteArray &link)
{
    char target[256];
    const ssize_t length = ::readlink(link.constData(), target, sizeof target);
    if (length <= 0)
        return {};
    const QByteArray path(target, length);
    return QStringLiteral("/dev/") + QFile::decodeName(path.mid(path.lastIndexOf('/') + 1));
}

/// Calls `found` with each link of a folder and the node it leads to. The links lie in memory: no
/// device is asked.
template <typename Found>
void forEachLink(const QByteArray &folder, Found found)
{
    const std::unique_ptr<DIR, CloseFolder> entries(::opendir(folder.constData()));
    while (const dirent *const entry = entries ? ::readdir(entries.get()) : nullptr) {
        const QByteArray link = folder + '/' + entry->d_name;
        if (const QString node = nodeBehind(link); !node.isEmpty())
            found(QFile::decodeName(link), node);
    }
}

} // namespace

void readDeviceLinks(QList<AttachedCamera> &cameras)
{
    const auto keep = [&](QString AttachedCamera::*which) {
        return [&cameras, which](const QString &link, const QString &node) {
            for (AttachedCamera &camera : cameras) {
                // The first in the alphabet, if there are several: folders have no order.
                if (camera.node == node && ((camera.*which).isEmpty() || link < camera.*which))
                    camera.*which = link;
            }
        };
    };
    forEachLink("/dev/v4l/by-id", keep(&AttachedCamera::byId));
    forEachLink("/dev/v4l/by-path", keep(&AttachedCamera::byPath));
}

std::uint64_t nodeStamp(const QString &node)
{
    if (!node.startsWith(u'/'))
        return 1;
    struct stat entry{};
    return ::stat(QFile::encodeName(node).constData(), &entry) == 0 ? entry.st_ino : 0;
}

} // namespace meridax
