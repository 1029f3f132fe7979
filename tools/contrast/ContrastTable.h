#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

/// The contrast of every text and its ground in both themes, as a page in Markdown.
struct ContrastTable
{
    QString page;
    /// Colours of our own choice that are too pale; empty when all is well.
    QStringList faults;
};

/// Computes the table from the singleton `Theme` of the interface; its `dark` is changed.
ContrastTable contrastTable(QObject &theme);
