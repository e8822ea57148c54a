// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/description.h"

namespace kiv::accounting::internal {
namespace {

/// In units of UTF-16. A block lives as long as any of its texts.
constexpr std::size_t blockSize = 4'096;

} // namespace

Description::Description(const SharedBlock &block, QStringView text)
    : m_block(block),
      m_begin(static_cast<std::uint32_t>(block->units.size())),
      m_size(static_cast<std::uint32_t>(text.size()))
{
    block->units.insert(block->units.end(), text.utf16(), text.utf16() + text.size());
}

Description::Description(const std::optional<QString> &text)
{
    if (text)
        *this = Description(SharedBlock(new Block), *text);
}

std::optional<QString> Description::text() const
{
    const auto text = view();
    return text ? std::optional(text->toString()) : std::nullopt;
}

std::optional<QStringView> Description::view() const noexcept
{
    if (!isPresent())
        return std::nullopt;
    return QStringView(m_block->units.data() + m_begin, qsizetype{m_size});
}

Description DescriptionBlocks::add(QStringView text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (size >= blockSize)
        return Description(text.toString());
    if (!m_block || m_block->units.capacity() - m_block->units.size() < size) {
        m_block = new Description::Block;
        m_block->units.reserve(blockSize);
    }
    return {m_block, text};
}

} // namespace kiv::accounting::internal
