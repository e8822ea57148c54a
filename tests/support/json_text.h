// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

/// The text with double quotes for single ones: JSON that is easy to read in a
/// test. (moc loses its way in raw string literals that hold quotes.)
inline QByteArray jsonText(QByteArray text)
{
    return text.replace('\'', '"');
}
