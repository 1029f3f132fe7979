#include "TextCheck.h"

#include <QRectF>
#include <QSet>

namespace {

/// px that rounding may cost.
constexpr double kTolerance = 1.5;

/// Texts that name something of any length: a camera, a file, a preset, the server's words. Those
/// of the connection and of the section headers have their whole text for who asks.
const QSet<QString> &mayBeCut()
{
    static const QSet<QString> names{
        QStringLiteral("cameraLabel"),         QStringLiteral("connectionLabel"),
        QStringLiteral("notesLabel"),          QStringLiteral("screenshotPathLabel"),
        QStringLiteral("screenshotNameLabel"), QStringLiteral("profileCameraLabel"),
        QStringLiteral("nameLabel"),           QStringLiteral("value"),
    };
    return names;
}

/// Parts of the window that may lie over one another.
const QSet<QString> &surfaceNames()
{
    static const QSet<QString> names{
        QStringLiteral("topBar"),      QStringLiteral("footerBar"),
        QStringLiteral("leftPanel"),   QStringLiteral("rightPanel"),
        QStringLiteral("zoomControl"), QStringLiteral("focusPresetOverlay"),
        QStringLiteral("captureArea"), QStringLiteral("updateBanner"),
    };
    return names;
}

bool isSurface(const QQuickItem &item)
{
    return item.inherits("QQuickPopupItem") || surfaceNames().contains(item.objectName()) ||
           !item.parentItem();
}

const QQuickItem &surfaceOf(const QQuickItem &item)
{
    const QQuickItem *surface = &item;
    while (!isSurface(*surface))
        surface = surface->parentItem();
    return *surface;
}

double number(const QQuickItem &item, const char *property)
{
    return item.property(property).toDouble();
}

bool isText(const QQuickItem &item)
{
    return item.inherits("QQuickText") && !item.property("text").toString().isEmpty();
}

/// The line of a combo box that cannot be typed into.
bool isShownChoice(const QQuickItem &item)
{
    return item.inherits("QQuickTextInput") && item.property("readOnly").toBool();
}

/// What the letters of `text` cover in its own coordinates, px.
QRectF painted(const QQuickItem &text)
{
    const QRectF room(number(text, "leftPadding"), number(text, "topPadding"),
                      text.width() - number(text, "leftPadding") - number(text, "rightPadding"),
                      text.height() - number(text, "topPadding") - number(text, "bottomPadding"));
    QRectF letters(room.topLeft(),
                   QSizeF(number(text, "contentWidth"), number(text, "contentHeight")));
    const int horizontal = text.property("effectiveHorizontalAlignment").toInt();
    const int vertical = text.property("verticalAlignment").toInt();
    if (horizontal & Qt::AlignRight)
        letters.moveRight(room.right());
    else if (horizontal & Qt::AlignHCenter)
        letters.moveLeft(room.center().x() - letters.width() / 2);
    if (vertical & Qt::AlignBottom)
        letters.moveBottom(room.bottom());
    else if (vertical & Qt::AlignVCenter)
        letters.moveTop(room.center().y() - letters.height() / 2);
    return letters;
}

/// What is left of `area`, scene px, inside `item` and all around it. `cut` becomes true where
/// something is lost other than by scrolling.
QRectF seenPart(const QQuickItem &item, QRectF area, bool *cut = nullptr)
{
    for (const QQuickItem *around = item.parentItem(); around; around = around->parentItem()) {
        if (!around->clip() && !isSurface(*around))
            continue;
        const QRectF frame = around->mapRectToScene(around->boundingRect());
        const bool scrolls = around->inherits("QQuickFlickable");
        const bool scrollsX = scrolls && number(*around, "contentWidth") > frame.width() + 1;
        const bool scrollsY = scrolls && number(*around, "contentHeight") > frame.height() + 1;
        const bool outX =
            area.left() < frame.left() - kTolerance || area.right() > frame.right() + kTolerance;
        const bool outY =
            area.top() < frame.top() - kTolerance || area.bottom() > frame.bottom() + kTolerance;
        if (cut && ((outX && !scrollsX) || (outY && !scrollsY)))
            *cut = true;
        if (scrolls || around->clip())
            area &= frame;
        if (area.isEmpty())
            return {};
    }
    return area;
}

void visitTexts(const QQuickItem &item,
                const std::function<void(const QQuickItem &, const QRectF &)> &visit)
{
    if (!item.isVisible() || item.opacity() < 0.01)
        return;
    if (isText(item)) {
        const QRectF seen = seenPart(item, item.mapRectToScene(painted(item)));
        if (!seen.isEmpty())
            visit(item, seen);
    } else if (isShownChoice(item)) {
        visit(item, item.mapRectToScene(item.boundingRect()));
    }
    const QList<QQuickItem *> children = item.childItems();
    for (const QQuickItem *child : children)
        visitTexts(*child, visit);
}

/// Why `text` does not fit by itself; empty when it does.
QString misfit(const QQuickItem &text)
{
    if (isShownChoice(text)) {
        const double room =
            text.width() - number(text, "leftPadding") - number(text, "rightPadding");
        return number(text, "contentWidth") > room + kTolerance ? QStringLiteral("cut") : QString();
    }
    if (mayBeCut().contains(text.objectName()))
        return {};
    if (text.property("truncated").toBool())
        return QStringLiteral("cut");
    const QRectF letters = painted(text);
    if (letters.width() > text.width() + kTolerance)
        return QStringLiteral("too wide");
    // One line is painted whole, however high its room.
    if (number(text, "lineCount") > 1 && letters.height() > text.height() + kTolerance)
        return QStringLiteral("too high");
    bool cut = false;
    seenPart(text, text.mapRectToScene(letters), &cut);
    return cut ? QStringLiteral("outside") : QString();
}

QString quoted(const QQuickItem &text)
{
    return u'"' + text.property("text").toString().left(60) + u'"';
}

void findButtonsOutside(const QQuickItem &item, QStringList &found)
{
    if (!item.isVisible() || item.opacity() < 0.01)
        return;
    if (item.inherits("QQuickAbstractButton")) {
        bool cut = false;
        const QRectF area = item.mapRectToScene(item.boundingRect());
        if (!seenPart(item, area, &cut).isEmpty() && cut)
            found << QStringLiteral("button outside: ") + quoted(item);
    }
    const QList<QQuickItem *> children = item.childItems();
    for (const QQuickItem *child : children)
        findButtonsOutside(*child, found);
}

} // namespace

void forEachText(const QQuickItem &top,
                 const std::function<void(const QQuickItem &text, const QRectF &covered)> &visit)
{
    visitTexts(top, visit);
}

QStringList misfits(const QQuickItem &top)
{
    struct Seen
    {
        const QQuickItem *text;
        const QQuickItem *surface;
        QRectF covered;
    };
    QStringList found;
    findButtonsOutside(top, found);
    QList<Seen> all;
    forEachText(top, [&](const QQuickItem &text, const QRectF &covered) {
        if (const QString why = misfit(text); !why.isEmpty())
            found << why + QStringLiteral(": ") + quoted(text);
        all.append({&text, &surfaceOf(text), covered});
    });
    for (qsizetype i = 0; i < all.size(); ++i) {
        for (qsizetype k = i + 1; k < all.size(); ++k) {
            const QRectF shared = all[i].covered & all[k].covered;
            // An effect shows what it works on a second time.
            const bool twice = quoted(*all[i].text) == quoted(*all[k].text);
            if (!twice && all[i].surface == all[k].surface && shared.width() > kTolerance &&
                shared.height() > kTolerance) {
                found << QStringLiteral("over one another: %1 and %2")
                             .arg(quoted(*all[i].text), quoted(*all[k].text));
            }
        }
    }
    return found;
}
