// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/ofx_corrections.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_notices.h"

#include "foundation/presentation.h"

#include <map>
#include <set>

namespace kiv::interchange::internal {

namespace {

/// What goes has no day any more.
void forget(StatementEntry &entry)
{
    entry.date = QDate();
}

} // namespace

void OfxCorrections::add(const Element &transaction, Slot slot)
{
    const QString action = transaction.text("CORRECTACTION").toUpper();
    const QString corrected = transaction.text("CORRECTFITID");
    if (action.isEmpty() && corrected.isEmpty())
        return;
    if (corrected.isEmpty())
        throw faults::missingValue(transaction.place, QStringLiteral("CORRECTFITID"));
    if (action != u"REPLACE" && action != u"DELETE")
        throw faults::missingValue(transaction.place, QStringLiteral("CORRECTACTION"));
    m_corrections.push_back({slot, corrected, action == u"DELETE"});
}

void OfxCorrections::apply(std::vector<StatementPart> &parts) const
{
    if (m_corrections.empty())
        return;
    std::set<Slot> correcting;
    for (const Correction &correction : m_corrections)
        correcting.insert(correction.slot);
    std::map<std::pair<QString, QString>, std::vector<StatementEntry *>> entries;
    for (std::size_t at = 0; at < parts.size(); ++at) {
        for (std::size_t number = 0; number < parts[at].entries.size(); ++number) {
            StatementEntry &entry = parts[at].entries[number];
            if (!correcting.contains({at, number}))
                entries[{parts[at].account, entry.bankId}].push_back(&entry);
        }
    }
    for (const auto &[slot, corrected, deletes] : m_corrections) {
        StatementPart &part = parts[slot.first];
        StatementEntry &entry = part.entries[slot.second];
        std::vector<StatementEntry *> &found = entries[{part.account, corrected}];
        if (found.size() > 1)
            throw faults::unsupported(entry.place, QStringLiteral("CORRECTFITID"));
        const bool isKept = !found.empty() && !deletes;
        if (found.empty())
            part.notices +=
                notices::correctionLeftOut(entry.place, foundation::toQString(entry.amount));
        else
            forget(*found.front());
        found.clear();
        if (isKept)
            entries[{part.account, entry.bankId}].push_back(&entry);
        else
            forget(entry);
    }
    for (StatementPart &part : parts)
        std::erase_if(part.entries, [](const auto &entry) { return !entry.date.isValid(); });
}

} // namespace kiv::interchange::internal
