// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_requests.h"

#include "storage/budget_file.h"

#include <rapidcheck.h>

using storage::BudgetStorage;
using Data = BudgetStorage::Data;

namespace {

/// What is read of a budget that was written by the real storage.
Data throughFile(const QString &path, const Data &data)
{
    storage::BudgetFile file;
    file.setFilePathName(path);
    file.store(data);
    file.setFilePathName(path);
    return file.load();
}

/// Makes the requests; what leaves a slot must be a mistake of the caller or an error
/// of a storage or a query.
void make(Desk &desk, const Situation &one)
{
    static const QRegularExpression queries(
        QStringLiteral("Show|SelectedLedger|LookUp|Generate|Load|Configure"));
    try {
        requestOf(one.request)(*desk.navigator);
    } catch (const foundation::Error &error) {
        QVERIFY2(queries.match(one.request).hasMatch(), (one.name + ": " + error.what()).data());
    } catch (const std::logic_error &) {
        QVERIFY2(one.name.contains("at a") || one.name.contains("kind") ||
                     one.name.contains("generate") || one.name.contains("look up"),
                 one.name.constData());
    } catch (const std::bad_cast &) {
        QVERIFY2(one.name.contains("as bill"), one.name.constData());
    }
}

std::set<budgeting::BudgetItemIdentifier> itemsOf(const Data &data)
{
    std::set<budgeting::BudgetItemIdentifier> items;
    data.budget.forEach([&](const budgeting::BudgetedMoney &one) {
        items.insert({toBudgetItemTypes(one), one.source()});
    });
    return items;
}

/// What no request may break.
void checkBooks(const Data &data)
{
    const accounting::GeneralLedger &ledger = data.generalLedger;
    RC_ASSERT(isBalanced(ledger));
    for (const auto &[bank, one] : data.banks) {
        for (const auto &[number, type] : one.accounts())
            RC_ASSERT(ledger.hasLedger(number));
    }
    for (const auto &[type, name] : itemsOf(data)) {
        RC_ASSERT(!ledger.hasLedgerNamed(name.name()));
        budgeting::visitItemClass(
            type, [] { return std::logic_error("no kind"); },
            [&]<typename T>(std::type_identity<T>) {
                const auto own =
                    ledger.accountCode(data.budgetAccountCodes.template value<T>(name));
                RC_ASSERT(own.name() == name.name() + u" [Budget Item]"_qs);
            });
    }
}

/// What the accepted request may have changed of the items and transactions.
void checkChange(const QString &request, const Data &before, const Data &after)
{
    const auto size = [](const Data &data) { return int(itemsOf(data).size()); };
    const int more = int(request.startsWith(u"Added(")) - int(request.startsWith(u"Removed("));
    RC_ASSERT(size(after) == size(before) + more);
    if (request.startsWith(u"Removed") || request.startsWith(u"BankRemoved"))
        return;
    for (const accounting::Transaction &one : before.generalLedger.transactions()) {
        const auto now = after.generalLedger.lookUpTransaction(*one.number());
        RC_ASSERT(now && (request.startsWith(u"Updated") || now->amount() == one.amount()));
    }
}

} // namespace

/// Every request in every state of a budget, and random walks: nothing may leave a
/// slot that should not, debits stay equal to credits, and whatever was made can be
/// saved and loaded again.
class NavigatorStates : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void staysWhole_data() { addStates(); }
    void staysWhole()
    {
        QFETCH(const Request, prepare);
        m_settings.reset();
        FurnishedDesk preparing;
        prepare(*preparing.navigator);
        const Data data = preparing.save();
        QVERIFY(isBalanced(data.generalLedger));
        QVERIFY(throughFile(m_folder.filePath(homeBudget), data) == data);
        // Filling a ledger takes long; read again, it is as full.
        const bool isFull = data.generalLedger.transactionCount() > 1000;

        for (const Situation &one : situations()) {
            if (isFull && one.name.startsWith("more "))
                continue;
            m_settings.reset();
            Desk desk;
            if (isFull) {
                desk.disk->files.insert_or_assign(homeBudget, data);
                desk.navigator->onLoadBudgetFile(homeBudget);
            } else {
                desk.furnish();
                prepare(*desk.navigator);
            }
            (void)desk.take();
            const bool wasChanged = desk.isChanged();
            make(desk, one);
            const QString said = desk.take().join(u'\n');
            if (one.name.startsWith("file: "))
                continue;
            QVERIFY2(desk.isChanged() == (wasChanged || said.contains(QStringLiteral(" *"))),
                     one.name.constData());
            if (desk.isChanged())
                QVERIFY2(isBalanced(desk.save().generalLedger), one.name.constData());
        }
    }

    void everyStepKeepsTheBooksTrue()
    {
        const QString path = m_folder.filePath(QStringLiteral("walk.budget"));
        m_settings.reset();
        unsigned walks = 0;
        using Steps = std::vector<std::array<std::uint8_t, 4>>;
        QVERIFY(rc::check("every step keeps the books true", [&](const Steps &steps) {
            FurnishedDesk desk;
            Data before = desk.save();
            for (const auto &step : steps) {
                const QString request = randomRequest(step);
                RC_LOG() << request.toStdString() << '\n';
                requestOf(request)(*desk.navigator);
                const bool isAccepted = desk.take().join(u' ').contains(u"Succeeded");
                Data after = desk.save();
                if (isAccepted)
                    checkChange(request, before, after);
                else
                    RC_ASSERT(before == after);
                checkBooks(after);
                before = std::move(after);
            }
            if (++walks % 8 == 0)
                RC_ASSERT(throughFile(path, before) == before);
        }));
    }

private:
    OwnSettings m_settings;
    QTemporaryDir m_folder;
};

static const kiv::test::Suite<NavigatorStates> navigatorStatesSuite;
#include "tst_navigator_states.moc"
