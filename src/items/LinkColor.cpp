#include "items/LinkColor.h"

#include <QGuiApplication>
#include <QPalette>

namespace meridax {

void setLinkColor()
{
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Link, QColor(0x4A, 0x9E, 0xCA));
    QGuiApplication::setPalette(palette);
}

} // namespace meridax
