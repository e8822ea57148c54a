// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/input_file.h"

#include "workbench/internal/faults.h"

namespace kiv::workbench {

namespace {

constexpr qint64 bytesMax = qint64{64} << 20;

} // namespace

QByteArray readFile(const QString &path)
{
    QFile file(path);
    (void)file.open(QIODevice::ReadOnly); // a file that is not open is refused below
    return readWhole(file, path);
}

QByteArray readWhole(QFile &file, const QString &name)
{
    if (!file.isOpen())
        throw internal::cannotRead(name, file.errorString());
    // Reading all at once would let a huge file or an endless pipe fill the memory.
    QByteArray bytes;
    for (QByteArray part; bytes.size() <= bytesMax; bytes += part) {
        // A pipe gives what is there, and nothing only at its end.
        part = file.read(bytesMax + 1 - bytes.size());
        if (part.isEmpty())
            break;
    }
    if (file.error() != QFileDevice::NoError)
        throw internal::cannotRead(name, file.errorString());
    if (bytes.size() > bytesMax)
        throw internal::fileTooLarge(name, bytes.count('\n') + 1);
    return bytes;
}

} // namespace kiv::workbench
