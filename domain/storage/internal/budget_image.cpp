// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/budget_image.h"

#include "storage/internal/budget_rows.h"
#include "storage/internal/encrypted_file.h"
#include "storage/internal/faults.h"
#include "storage/internal/label.h"
#include "storage/internal/ledger_rows.h"
#include "storage/internal/mending.h"
#include "storage/internal/reconciliation_rows.h"
#include "storage/internal/row_digest.h"
#include "storage/internal/seal.h"
#include "storage/internal/sha256.h"

#include "surveying/reconciliation_derivation.h"

#include <QtCore/QObject>
#include <QtCore/QtEndian>

#include <sqlite3.h>

namespace kiv::storage::internal {
namespace {

constexpr QByteArrayView magic("SQLite format 3", 16);
constexpr qsizetype headerSize = 100;

// The offsets in the header of an SQLite database.
constexpr qsizetype pageSizeAt = 16;
constexpr qsizetype formatsAt = 18;
constexpr qsizetype pageCountAt = 28;
constexpr qsizetype encodingAt = 56;
constexpr qsizetype userVersionAt = 60;
constexpr qsizetype applicationIdAt = 68;

template <typename Number>
Number numberAt(QByteArrayView image, qsizetype offset) noexcept
{
    return qFromBigEndian<Number>(image.data() + offset);
}

std::uint32_t versionOf(QByteArrayView file) noexcept
{
    return numberAt<quint32>(file, userVersionAt);
}

/// Whether the header is as in every file that was written here. Another one, with
/// another journal mode for instance, would make SQLite look for further files.
bool isHeaderWhole(QByteArrayView image) noexcept
{
    return numberAt<quint16>(image, pageSizeAt) == pageSize &&
           numberAt<quint16>(image, formatsAt) == 0x0101 &&
           numberAt<quint32>(image, encodingAt) == SQLITE_UTF8;
}

/// Whether the image has as many bytes as its header tells.
bool isSizeWhole(QByteArrayView image) noexcept
{
    return image.size() >= headerSize &&
           numberAt<quint32>(image, pageCountAt) * qint64(pageSize) == image.size();
}

/// Writes or reads all tables in their order, since one may need an earlier one.
BudgetStorage::Data readTables(RowSource &source, QStringList &mended)
{
    BudgetStorage::Data data;
    data.generalLedger = readLedger(source, mended);
    data.budget = readItems(source);
    data.budgetAccountCodes = readItemAccounts(source);
    data.banks = readBanks(source);
    data.surveys = readSurveys(source);
    data.itemTags = readItemTags(source);
    return data;
}

void writeTables(RowSink &sink, const Version &version)
{
    const BudgetStorage::Data &data = version.data;
    writeLedger(sink, data.generalLedger);
    writeItems(sink, data.budget);
    writeItemAccounts(sink, data.budgetAccountCodes);
    writeBanks(sink, data.banks);
    writeSurveys(sink, data.surveys);
    writeItemTags(sink, data.itemTags);
    writeReconciliations(sink, version.reconciliations);
    writeNotes(sink, version.notes);
    sink.finish();
}

/// The first edition keeps its checksum, which is over its rows, in a table.
void checkRowSeal(ImageDatabase &database)
{
    Statement select(database, "SELECT id, sha256 FROM seal");
    if (!select.step() || sqlite3_column_int64(select.get(), 0) != 1 ||
        bytesOf(sqlite3_column_value(select.get(), 1)) != rowDigest(database) || select.step())
        throw checksumWrong();
}

} // namespace

void requireBudget(FileKind kind, const QString &path)
{
    if (kind == FileKind::Empty)
        throw emptyFile(path);
    if (kind == FileKind::Foreign)
        throw notOurs(path);
    if (kind == FileKind::Newer)
        throw newerVersion(path);
    if (kind == FileKind::Malformed)
        throw damaged(path, headerNotWhole());
}

FileKind kindOf(QByteArrayView file) noexcept
{
    if (file.isEmpty())
        return FileKind::Empty;
    if (file.startsWith(encryptedMagic))
        return EncryptedFile::isNewer(file) ? FileKind::Newer : FileKind::Encrypted;
    if (file.size() < headerSize)
        return magic.startsWith(file.first(std::min(file.size(), magic.size())))
                   ? FileKind::Malformed
                   : FileKind::Foreign;
    if (!file.startsWith(magic) || numberAt<quint32>(file, applicationIdAt) != applicationId)
        return FileKind::Foreign;
    const std::uint32_t version = versionOf(file);
    if (version > currentVersion)
        return FileKind::Newer;
    const bool isWhole =
        version > 0 && isHeaderWhole(file) && (version > firstEdition || isSizeWhole(file));
    return isWhole ? FileKind::Budget : FileKind::Malformed;
}

QByteArray encodeBudget(const Version &version)
{
    ImageDatabase database;
    RowSink sink(database);
    writeTables(sink, version);
    const Image image = database.serialised();
    const QByteArray label = toLabel(version.mark);
    if (image.bytes().size() + label.size() + sealSize > fileSizeMax)
        throw moreThanAFileMayHold();
    return sealed(image.bytes(), label);
}

BudgetImage::BudgetImage(QByteArrayView file) noexcept : m_file(file), m_version(versionOf(file)) {}

void BudgetImage::checkSeal() const
{
    if (hasByteSeal()) {
        (void)unsealed(m_file);
        return;
    }
    ImageDatabase database(m_file, m_version);
    checkRowSeal(database);
}

void BudgetImage::checkTables() const
{
    const ImageDatabase database(image(), m_version);
}

Version BudgetImage::version(QStringList &mended) const
{
    ImageDatabase database(image(), m_version);
    RowSource source(database, m_version);
    Version version{readTables(source, mended), {}, {}, mark()};
    BudgetStorage::Data &data = version.data;
    mend(data, mended);
    if (m_version > firstEdition) {
        version.reconciliations = readReconciliations(source);
        version.notes = readNotes(source);
    }
    if (version.reconciliations.empty())
        version.reconciliations =
            surveying::firstReconciliations({data.surveys, data.generalLedger});
    return version;
}

VersionMark BudgetImage::mark() const
{
    if (!hasByteSeal()) {
        Sha256 hash;
        hash.add(m_file);
        VersionMark mark;
        mark.id = QString::fromLatin1(hash.result().toHex().first(16));
        return mark;
    }
    const std::optional<SealedParts> parts = sealedParts(m_file);
    if (!parts)
        throw checksumWrong();
    return fromLabel(parts->label);
}

QByteArrayView BudgetImage::image() const
{
    if (!hasByteSeal())
        return m_file;
    const std::optional<SealedParts> parts = sealedParts(m_file);
    if (!parts || !isSizeWhole(parts->image))
        throw checksumWrong();
    return parts->image;
}

} // namespace kiv::storage::internal
