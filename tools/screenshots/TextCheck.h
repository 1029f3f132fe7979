#pragma once

#include <QQuickItem>
#include <QStringList>

#include <functional>

/// Calls `visit` for each text that is to be seen below `top`, with the part of the scene that it
/// covers, px.
void forEachText(const QQuickItem &top,
                 const std::function<void(const QQuickItem &text, const QRectF &covered)> &visit);

/// What does not fit below `top`: texts that are cut where nothing of the user's stands, texts and
/// buttons that leave their panel, dialog or the window, and texts that lie over one another. One
/// line for each.
QStringList misfits(const QQuickItem &top);
