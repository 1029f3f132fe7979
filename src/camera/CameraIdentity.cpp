#include "camera/CameraIdentity.h"

#include <algorithm>

namespace meridax {

namespace {

/// The link by maker, model and serial number that `camera` has or would have, if another device
/// had not taken it: udev gives a link to one of several only.
QString claimedId(const AttachedCamera &camera, const QList<AttachedCamera> &cameras)
{
    if (!camera.byId.isEmpty() || camera.byPath.isEmpty())
        return camera.byId;
    const auto owner = std::ranges::find_if(cameras, [&](const AttachedCamera &other) {
        return other.name == camera.name && !other.byId.isEmpty();
    });
    return owner == cameras.end() ? QString() : owner->byId;
}

} // namespace

void nameLasting(QList<AttachedCamera> &cameras)
{
    QStringList claims;
    for (const AttachedCamera &camera : std::as_const(cameras))
        claims << claimedId(camera, cameras);
    for (qsizetype i = 0; i < cameras.size(); ++i) {
        AttachedCamera &camera = cameras[i];
        const QString &claim = claims[i];
        const bool shared = !claim.isEmpty() && claims.count(claim) > 1;
        if (!camera.node.startsWith(QLatin1String("/dev/")))
            camera.id = camera.node;
        else if (!claim.isEmpty() && !shared)
            camera.id = claim;
        else if (shared && !camera.byPath.isEmpty())
            camera.id = claim + u'@' + camera.byPath;
        else
            camera.id =
                (camera.byPath.isEmpty() ? camera.node : camera.byPath) + u'@' + camera.name;
    }
}

} // namespace meridax
