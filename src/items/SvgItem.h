#pragma once

#include <QQuickPaintedItem>
#include <QString>
#include <QSvgRenderer>

namespace meridax {

/// Draws one SVG document, as large as fits into the item with its aspect ratio kept, centred. A
/// missing or broken document leaves the item empty.
class SvgItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    /// File name, resource path or "qrc:" address of the document.
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)

public:
    explicit SvgItem(QQuickItem *parent = nullptr);

    QString source() const { return m_source; }
    void setSource(const QString &source);
    void paint(QPainter *painter) override;

signals:
    void sourceChanged();

private:
    QString m_source;
    QSvgRenderer m_renderer;
};

} // namespace meridax
