#pragma once

#include <QRegularExpression>

/// What QTest::failOnWarning() takes: every warning except those that Qt Multimedia gives by itself
/// on a machine without sound and without a graphics card.
inline QRegularExpression unexpectedWarning()
{
    return QRegularExpression(QStringLiteral("^(?!PulseAudioService|QRhi\\*)"));
}
