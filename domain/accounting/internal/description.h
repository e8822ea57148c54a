// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QSharedData>
#include <QtCore/QString>

#include <optional>
#include <vector>

namespace kiv::accounting::internal {

/// The description of a transaction, or none: a piece of a block of text that many
/// share. A ledger that is loaded takes memory once for a block and not for each text.
class Description {
public:
    Description() = default;
    /// In a block of its own.
    explicit Description(const std::optional<QString> &text);

    [[nodiscard]] bool isPresent() const noexcept { return m_block.constData() != nullptr; }
    [[nodiscard]] std::optional<QString> text() const;
    /// Good as long as the description.
    [[nodiscard]] std::optional<QStringView> view() const noexcept;

    friend bool operator==(const Description &a, const Description &b) noexcept
    {
        return a.view() == b.view();
    }

private:
    friend class DescriptionBlocks;
    struct Block : QSharedData {
        std::vector<char16_t> units;
    };
    using SharedBlock = QExplicitlySharedDataPointer<Block>;

    Description(const SharedBlock &block, QStringView text);

    SharedBlock m_block; ///< null without a text
    std::uint32_t m_begin = 0;
    std::uint32_t m_size = 0;
};

/// Fills one block after the other.
class DescriptionBlocks {
public:
    [[nodiscard]] Description add(QStringView text);

private:
    Description::SharedBlock m_block; ///< that is being filled
};

} // namespace kiv::accounting::internal
