// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/element.h"
#include "interchange/internal/statement_parts.h"

namespace kiv::interchange::internal {

/// Entries with which a bank replaces or deletes others of the same account.
class OfxCorrections {
public:
    /// Where an entry stands: in which part, and the how manieth it is there.
    using Slot = std::pair<std::size_t, std::size_t>;

    /// Notes the correction if the transaction is one. Throws ImportError for one that does not
    /// say what it corrects.
    void add(const Element &transaction, Slot slot);

    /// Applies the corrections in their order. A corrected entry goes, and so does an entry
    /// that only deletes. A correction whose entry is not in the file is left out with a
    /// notice. Throws ImportError where several entries have the identifier.
    void apply(std::vector<StatementPart> &parts) const;

private:
    struct Correction {
        Slot slot;
        QString corrected; ///< the other entry's identifier
        bool deletes;
    };

    std::vector<Correction> m_corrections;
};

} // namespace kiv::interchange::internal
