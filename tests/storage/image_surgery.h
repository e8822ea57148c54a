// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "decryption.h"
#include "scratch_folder.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QStringList>
#include <QtCore/QtEndian>

#include <SQLiteCpp/SQLiteCpp.h>

namespace kiv::test {

// All here is written anew from what docs/file-format.md says, so that a change of the
// seal that fits itself does not go unseen.

/// A budget file that can be cut open. One of the first edition is all image.
struct FileParts {
    QByteArray image;
    QByteArray label;
    QByteArray digest;
    bool hasSeal = false;

    explicit FileParts(const QByteArray &file) : image(file)
    {
        const QByteArray seal = file.last(std::min(file.size(), sealSize));
        const qint64 size = seal.startsWith("kivbseal") && seal.size() == sealSize
                                ? qFromBigEndian<qint64>(seal.constData() + 8)
                                : -1;
        if (size < 0 || size > file.size() - sealSize)
            return;
        hasSeal = true;
        image = file.first(size);
        label = file.sliced(size).chopped(sealSize);
        digest = seal.last(32);
    }
    /// With the digest as it is.
    [[nodiscard]] QByteArray file() const { return hasSeal ? unsealed() + digest : image; }
    void sealAgain() { digest = QCryptographicHash::hash(unsealed(), QCryptographicHash::Sha256); }

private:
    static constexpr qsizetype sealSize = 64;

    [[nodiscard]] QByteArray unsealed() const
    {
        QByteArray sizes(16, '\0');
        qToBigEndian(qint64(image.size()), sizes.data());
        qToBigEndian(qint64(label.size()), sizes.data() + 8);
        return image + label + "kivbseal" + sizes + QByteArray(8, '\0');
    }
};

/// The part of a sealed file that is the same for the same budget, encrypted or not.
inline QByteArray imageOf(const QByteArray &file)
{
    const FileParts parts(decrypted(file));
    return parts.hasSeal ? parts.image : QByteArray("not sealed");
}

/// Runs SQL on a budget file as an enemy would, each text on a connection of
/// its own, so that a changed schema is read again. The checksum stays.
inline void operate(const QString &path, const QStringList &sql)
{
    FileParts parts(contentOf(path));
    overwrite(path, parts.image);
    for (const QString &text : sql) {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        database.exec(text.toStdString());
    }
    parts.image = contentOf(path);
    overwrite(path, parts.file());
}

/// Makes the checksum of the first edition right again for whatever stands in the
/// tables, as far as they are tables.
inline void sealRowsAgain(SQLite::Database &database)
{
    QByteArray dump = "kiv-budget 1\n";
    for (const char *table : {"accounts", "transactions", "items", "item_accounts", "banks",
                              "bank_accounts", "surveys", "distributions", "item_tags"}) {
        if (!database.tableExists(table))
            return;
        dump += QByteArray("table ") + table + '\n';
        SQLite::Statement rows(database, std::string("SELECT * FROM ") + table + " ORDER BY rowid");
        while (rows.executeStep()) {
            for (int i = 0; i < rows.getColumnCount(); ++i) {
                const SQLite::Column value = rows.getColumn(i);
                const QByteArray text = QByteArray::fromStdString(value.getString());
                dump += value.isNull()      ? "-"
                        : value.isInteger() ? 'i' + text + ';'
                                            : 't' + QByteArray::number(text.size()) + ':' + text;
            }
            dump += '\n';
        }
    }
    const auto digest = QCryptographicHash::hash(dump, QCryptographicHash::Sha256).toHex();
    SQLite::Statement update(database, "UPDATE seal SET sha256 = ?");
    update.bind(1, digest.toStdString());
    update.exec();
}

/// Makes the checksum right again, whatever stands in the file.
inline void sealAgain(const QString &path)
{
    FileParts parts(contentOf(path));
    parts.sealAgain();
    if (parts.hasSeal)
        return overwrite(path, parts.file());
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    sealRowsAgain(database);
}

} // namespace kiv::test
