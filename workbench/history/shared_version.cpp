// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/history/shared_version.h"

namespace kiv::workbench {
namespace {

template <typename Part>
std::shared_ptr<const Part> shared(Part part, const std::shared_ptr<const Part> *like)
{
    if (like && **like == part)
        return *like;
    return std::make_shared<const Part>(std::move(part));
}

} // namespace

SharedVersion::SharedVersion(storage::Version version, const SharedVersion *like)
    : m_ledger(std::move(version.data.generalLedger)),
      m_budget(shared(std::move(version.data.budget), like ? &like->m_budget : nullptr)),
      m_codes(shared(std::move(version.data.budgetAccountCodes), like ? &like->m_codes : nullptr)),
      m_banks(shared(std::move(version.data.banks), like ? &like->m_banks : nullptr)),
      m_surveys(shared(std::move(version.data.surveys), like ? &like->m_surveys : nullptr)),
      m_itemTags(shared(std::move(version.data.itemTags), like ? &like->m_itemTags : nullptr)),
      m_reconciliations(
          shared(std::move(version.reconciliations), like ? &like->m_reconciliations : nullptr)),
      m_notes(shared(std::move(version.notes), like ? &like->m_notes : nullptr))
{
}

storage::BudgetStorage::Data SharedVersion::data() const
{
    return {m_ledger, *m_budget, *m_codes, *m_banks, *m_surveys, *m_itemTags};
}

storage::Version SharedVersion::version(storage::VersionMark mark) const
{
    return {data(), *m_reconciliations, *m_notes, std::move(mark)};
}

bool SharedVersion::has(const storage::BudgetStorage::Data &data) const
{
    return data.generalLedger == m_ledger && data.budget == *m_budget &&
           data.budgetAccountCodes == *m_codes && data.banks == *m_banks &&
           data.surveys == *m_surveys && data.itemTags == *m_itemTags;
}

} // namespace kiv::workbench
