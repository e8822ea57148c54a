// SPDX-License-Identifier: GPL-3.0-or-later
// The budget file: new, load, reload, save.
//
// Storage exceptions pass through these slots: the front end shows them.
#include "navigation/internal/navigator_change.h"

#include "conversion/currency_converter.h"
#include "storage/budget_storage.h"
#include "storage/exchange_rates_storage.h"

namespace kiv::navigation {

namespace {
const QString &extension()
{
    static const QString text = QStringLiteral(".budget");
    return text;
}
} // namespace

void Navigator::clear()
{
    m_budgetBankLedgers->reset();
    m_budgetFile.reset();
    m_isDirty = false;
}

// ---- new ---------------------------------------------------------------------

void Navigator::onPrepareNewBudgetEmpty()
{
    if (!m_budgetBankLedgers->isEmpty() && m_isDirty) {
        qInfo() << "The budget file is not empty, using an empty budget must be confirmed.";
        emit showConfirmNewBudget();
        return;
    }
    onConfirmedNewBudgetEmpty();
}

void Navigator::onConfirmedNewBudgetEmpty()
{
    qInfo() << "Clearing the budget values to show the new empty budget.";
    clear();
    emit showNewBudget();
}

// ---- load --------------------------------------------------------------------

void Navigator::onLoadBudgetFile(const QString &filePathName)
{
    if (m_isDirty) {
        internal::tell(this, &Navigator::showConfirmLoadBudgetFile, filePathName);
        return;
    }
    onConfirmedLoadBudgetFile(filePathName, false);
}

void Navigator::onConfirmedLoadBudgetFile(const QString &filePathName, const bool &isReloaded)
{
    qInfo() << "Loading Budget:" << filePathName;
    m_budgetStorage->setFilePathName(filePathName);
    storage::BudgetStorage::Data loaded = m_budgetStorage->load();

    // Built before anything changes and taken over when nothing can fail any
    // more, so that an error leaves the present tags where they are.
    tagging::BudgetTagManager tags(std::move(loaded.itemTags));
    m_budgetBankLedgers->setManaged(std::move(loaded.generalLedger), std::move(loaded.budget),
                                    std::move(loaded.budgetAccountCodes), std::move(loaded.banks),
                                    std::move(loaded.surveys));
    m_tagManager = std::move(tags);
    internal::logDone("Successfully loaded budget.");

    m_budgetFile = filePathName;
    m_isDirty = false;
    emit loadedBudgetFile(m_budgetStorage->filePathName(), isReloaded);
}

void Navigator::onReloadBudgetFile()
{
    qInfo() << "Reloading the current budget file.";
    if (!m_budgetFile) {
        emit showNoBudgetFileOpened();
        return;
    }
    // Clearing forgets the path.
    const QString filePathName = *m_budgetFile;
    onConfirmedNewBudgetEmpty();
    onConfirmedLoadBudgetFile(filePathName, true);
}

// ---- save --------------------------------------------------------------------

void Navigator::onSaveBudgetFile()
{
    qInfo() << "Handling Save Budget to"
            << m_budgetFile.value_or(QStringLiteral("Budget File Not Set"));
    if (!m_budgetFile) {
        emit showSaveAsBudgetFile();
        return;
    }
    // A copy: saving sets the path anew.
    const QString filePathName = *m_budgetFile;
    onSaveAsBudgetFile(filePathName);
}

void Navigator::onSaveAsBudgetFile(const QString &filePathName)
{
    QString path = filePathName;
    // Case counts: on most file systems NAME.BUDGET is another file.
    if (!path.endsWith(extension(), Qt::CaseSensitive))
        path += extension();
    qInfo() << "User selected the file-name" << path << "to store the budget under.";
    m_budgetStorage->setFilePathName(path);
    m_budgetStorage->store({m_budgetBankLedgers->generalLedger(), m_budgetBankLedgers->budget(),
                            m_budgetBankLedgers->budgetLedgers().budgetAccountCodes(),
                            m_budgetBankLedgers->banks(), m_budgetBankLedgers->surveys(),
                            m_tagManager.associations()});
    m_budgetFile = path;
    // When this fails, the budget counts as changed although it is saved: saving
    // once more is the safe side.
    m_exchangeRatesStorage->store(conversion::CurrencyConverter::cache());
    m_isDirty = false;
    emit savedBudgetFile(m_budgetStorage->filePathName());
}

void Navigator::onCheckIsBudgetFileDirty()
{
    emit checkedIsBudgetFileDirty(m_isDirty);
}

} // namespace kiv::navigation
