#include "items/SvgItem.h"

namespace meridax {

SvgItem::SvgItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void SvgItem::setSource(const QString &source)
{
    if (source == m_source)
        return;
    m_source = source;
    // The renderer takes file names, and ":" for resources.
    const bool isResource = source.startsWith(QStringLiteral("qrc:"), Qt::CaseInsensitive);
    m_renderer.load(isResource ? source.mid(3) : source);
    update();
    emit sourceChanged();
}

void SvgItem::paint(QPainter *painter)
{
    if (!m_renderer.isValid())
        return;
    const QSize document = m_renderer.defaultSize();
    if (document.width() < 1 || document.height() < 1)
        return;
    const QSizeF drawn = QSizeF(document).scaled(size(), Qt::KeepAspectRatio);
    m_renderer.render(painter,
                      QRectF((width() - drawn.width()) / 2, (height() - drawn.height()) / 2,
                             drawn.width(), drawn.height()));
}

} // namespace meridax
