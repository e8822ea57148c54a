// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/seal.h"

#include "storage/internal/faults.h"
#include "storage/internal/sha256.h"

#include <QtCore/QtEndian>

namespace kiv::storage::internal {
namespace {

constexpr QByteArrayView magic("kivbseal", 8);
constexpr qsizetype imageSizeAt = 8;
constexpr qsizetype labelSizeAt = 16;
constexpr qsizetype digestAt = 32;

/// The sizes of image and label.
std::optional<std::pair<qsizetype, qsizetype>> sizesIn(QByteArrayView end) noexcept
{
    if (end.size() < sealSize)
        return std::nullopt;
    const QByteArrayView seal = end.last(sealSize);
    if (!seal.startsWith(magic))
        return std::nullopt;
    const auto image = qFromBigEndian<qint64>(seal.data() + imageSizeAt);
    const auto label = qFromBigEndian<qint64>(seal.data() + labelSizeAt);
    // Far above every size that a file may have, far below what overflows.
    constexpr qint64 sizeMax = qint64{1} << 40;
    if (image < 0 || label < 0 || image > sizeMax || label > sizeMax)
        return std::nullopt;
    return std::pair(qsizetype{image}, qsizetype{label});
}

} // namespace

QByteArray sealed(QByteArrayView image, QByteArrayView label)
{
    QByteArray file;
    file.reserve(image.size() + label.size() + sealSize);
    file.append(image).append(label).append(magic);
    const auto appendNumber = [&file](qint64 number) {
        std::array<char, sizeof number> bytes{};
        qToBigEndian(number, bytes.data());
        file.append(bytes.data(), bytes.size());
    };
    appendNumber(image.size());
    appendNumber(label.size());
    appendNumber(0);
    Sha256 hash;
    hash.add(file);
    return file.append(hash.result());
}

std::optional<SealedParts> sealedParts(QByteArrayView file) noexcept
{
    const auto sizes = sizesIn(file);
    if (!sizes || sizes->first + sizes->second + sealSize != file.size())
        return std::nullopt;
    return SealedParts{file.first(sizes->first), file.sliced(sizes->first, sizes->second)};
}

SealedParts unsealed(QByteArrayView file)
{
    const std::optional<SealedParts> parts = sealedParts(file);
    if (!parts)
        throw checksumWrong();
    const qsizetype hashed = file.size() - sealSize + digestAt;
    Sha256 hash;
    hash.add(file.first(hashed));
    if (hash.result() != file.sliced(hashed))
        throw checksumWrong();
    return *parts;
}

std::optional<qsizetype> labelBegin(QByteArrayView end) noexcept
{
    const auto sizes = sizesIn(end);
    return sizes ? std::optional(sizes->second + sealSize) : std::nullopt;
}

} // namespace kiv::storage::internal
