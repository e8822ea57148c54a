// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/rates_file.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/faults.h"
#include "storage/internal/file_lock.h"

#include "foundation/streams.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <cstdio>
#include <filesystem>
#include <new>

#include <sys/stat.h>

namespace kiv::storage {
namespace {

using conversion::RateSource;
using internal::ContentFault;
using internal::FileTarget;

constexpr qsizetype fileSizeMax = qsizetype{1024} * 1024;
constexpr QByteArrayView kindWord = "kiv-exchange-rates ";
constexpr int currentVersion = 2;
constexpr QByteArrayView digestWord = "sha256 ";
/// So long storing waits for another process that stores its rates.
constexpr std::chrono::milliseconds patience(500);

QByteArray digestOf(QByteArrayView text)
{
    return QCryptographicHash::hash(text.toByteArray(), QCryptographicHash::Sha256).toHex();
}

/// "kiv-exchange-rates 2", "base USD", "fetched 2026-03-31T12:00:00.000Z", a
/// line like "EUR 0.92 typed 2026-03-31" for each rate, and the checksum of all
/// that. An empty table has neither base nor time.
QByteArray encode(const conversion::ConversionMap &rates)
{
    QByteArray text = kindWord.toByteArray() + QByteArray::number(currentVersion) + '\n';
    const auto addLine = [&text](const std::string &word, const std::string &value) {
        text.append(QByteArray::fromStdString(word + ' ' + value)).append('\n');
    };
    if (rates.fetchedAt().isValid()) {
        addLine("base", numira::toStdString(rates.base()));
        addLine("fetched", rates.fetchedAt().toString(Qt::ISODateWithMs).toStdString());
    }
    for (const auto &[currency, rate] : rates.rates()) {
        const conversion::RateOrigin &origin = rates.origins().at(currency);
        addLine(numira::toStdString(currency), rate.str() + ' ' + wordOf(origin.source) + ' ' +
                                                   origin.day.toString(Qt::ISODate).toStdString());
    }
    return text + digestWord.toByteArray() + digestOf(text) + '\n';
}

/// The lines of a whole file of the present version, without its first and last.
QList<QByteArray> checkedLines(const QByteArray &text, const QString &path)
{
    if (text.isEmpty())
        throw internal::emptyFile(path);
    if (!text.startsWith(kindWord))
        throw internal::notOurs(path);
    const qsizetype versionEnd = text.indexOf('\n');
    if (text.mid(kindWord.size(), versionEnd - kindWord.size()).toInt() > currentVersion)
        throw internal::newerVersion(path);
    const qsizetype digestAt = text.lastIndexOf(digestWord);
    const QByteArray content = text.left(digestAt);
    if (text != content + digestWord.toByteArray() + digestOf(content) + '\n')
        throw internal::checksumWrong();
    QList<QByteArray> lines = content.split('\n');
    lines.removeFirst();
    lines.removeLast(); // empty: nothing follows the last line break
    return lines;
}

conversion::ConversionMap decode(const QByteArray &text, const QString &path)
{
    numira::Currency base;
    QDateTime fetchedAt;
    conversion::ConversionMap::Rates rates;
    conversion::ConversionMap::Origins origins;
    for (const QByteArray &line : checkedLines(text, path)) {
        const QList<QByteArray> words = line.split(' ');
        const std::string word = words.front().toStdString();
        const QByteArray value = words.value(1);
        if (word == "base")
            base = numira::toCurrency(value.toStdString());
        else if (word == "fetched")
            fetchedAt = QDateTime::fromString(QString::fromLatin1(value), Qt::ISODateWithMs);
        else
            rates.emplace(numira::toCurrency(word), numira::FloatingPoint(value.toStdString()));
        // The first form of the file has no origins.
        if (words.size() > 2) {
            origins.emplace(
                numira::toCurrency(word),
                conversion::RateOrigin{
                    words.at(2) == wordOf(RateSource::Typed) ? RateSource::Typed
                                                             : RateSource::Fetched,
                    QDate::fromString(QString::fromLatin1(words.value(3)), Qt::ISODate)});
        }
    }
    if (rates.empty() && !fetchedAt.isValid())
        return {};
    return {base, fetchedAt, std::move(rates), origins};
}

/// Throws StorageError for the bytes of another or a damaged file.
conversion::ConversionMap ratesIn(const QByteArray &text, const QString &path)
{
    try {
        return decode(text, path);
    } catch (const StorageError &) {
        throw;
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &cause) {
        throw internal::damaged(path, cause);
    }
}

/// Renames a damaged file to an unused name, and logs that.
void setAside(const FileTarget &target, const StorageError &reason)
{
    const auto isTaken = [&target](const QByteArray &name) {
        const std::filesystem::path path((target.folder() + '/' + name).toStdString());
        return std::filesystem::exists(std::filesystem::symlink_status(path));
    };
    QByteArray name = target.sibling(".unreadable");
    for (int number = 2; isTaken(name); ++number)
        name = target.sibling(".unreadable-" + QByteArray::number(number));
    if (std::rename(target.path().constData(), (target.folder() + '/' + name).constData()) != 0)
        throw internal::cannotWrite(target.shownPath(), errno);
    qWarning().noquote() << foundation::escaped(
        QObject::tr("%1 It was renamed to '%2'.")
            .arg(reason.message(), QString::fromLocal8Bit(name)));
}

std::optional<internal::FileStamp> stampOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0
               ? std::optional<internal::FileStamp>(status)
               : std::nullopt;
}

} // namespace

/// The rates in the file, and how the file was then.
struct RatesFile::Known {
    conversion::ConversionMap rates;
    internal::FileStamp stamp;
};

RatesFile::RatesFile(QString filePathName) : m_filePathName(std::move(filePathName)) {}
RatesFile::~RatesFile() = default;

bool RatesFile::exists() const
{
    return QFileInfo::exists(m_filePathName);
}

conversion::ConversionMap RatesFile::load() const
{
    const auto content = internal::readFile(FileTarget(m_filePathName), fileSizeMax);
    if (!content)
        throw internal::fileNotFound(m_filePathName);
    conversion::ConversionMap rates = ratesIn(content->bytes, m_filePathName);
    m_known = std::make_unique<Known>(Known{rates, content->stamp});
    return rates;
}

void RatesFile::store(const conversion::ConversionMap &rates)
{
    if (m_known && m_known->rates == rates && m_known->stamp == stampOf(m_filePathName))
        return;
    m_known.reset();
    std::error_code error;
    std::filesystem::create_directories(QFileInfo(m_filePathName).absolutePath().toStdString(),
                                        error);
    if (error)
        throw internal::cannotWrite(m_filePathName, error.value());
    const FileTarget target(m_filePathName);
    const internal::FileLock lock(target, patience);
    std::optional<internal::FileStamp> replaced;
    try {
        if (const auto content = internal::readFile(target, fileSizeMax)) {
            const conversion::ConversionMap known = ratesIn(content->bytes, m_filePathName);
            if (rates.isEmpty() && !known.isEmpty())
                return;
            replaced = content->stamp;
        }
    } catch (const StorageError &reason) {
        if (reason.failure() == StorageFailure::NotAFile)
            throw;
        setAside(target, reason);
    }
    internal::AtomicFileWriter(target, replaced).write(encode(rates));
    if (const auto stamp = stampOf(m_filePathName))
        m_known = std::make_unique<Known>(Known{rates, *stamp});
}

} // namespace kiv::storage
