// SPDX-License-Identifier: GPL-3.0-or-later
//
// Bytes as requests to a Navigator, one after the other. Debits stay equal to
// credits, a request that is answered with a failure alone changes nothing, and
// what was made is saved and loaded as the same.
#include "navigation/navigator_requests.h"

#include "storage/budget_file.h"

#include <QtCore/QTemporaryDir>

#include <fuzzer/FuzzedDataProvider.h>

using namespace kiv;
using namespace kiv::test;

namespace {

using budgeting::BudgetItemTypes;

/// A request whose parts come from the bytes; most of them are about what is
/// there.
class AnyRequest {
public:
    explicit AnyRequest(FuzzedDataProvider &bytes) : m_bytes(bytes) {}

    void make(Navigator &n)
    {
        static const Rows rows = allRequests();
        m_kind = m_bytes.ConsumeIntegralInRange(0, 15);
        switch (m_kind) {
        case 0:
            return n.onAddedAct({accounting::AccountTypes(pick(6)), account(), amount(), false});
        case 1:
            return n.onRecoded(account(), account());
        case 2:
            return pick(2) ? n.onClosed(account()) : n.onOpened(account());
        case 3:
            return pick(2) ? n.onRemovedAct(account()) : n.onRemovedBankAccount(account());
        case 4:
        case 5:
            return n.onAddedTransaction(transaction());
        case 6:
            return n.onUpdatedTransaction(number(), transaction());
        case 7:
            return mark(n);
        case 8:
            return n.onPostRefund(number(), amount());
        case 9:
            return n.onBankUpdated({bank(), {{anyNumber(), kind()}, {anyNumber(), kind()}}, false});
        case 10:
            return n.onBankRenamed(bank(), bank());
        case 11:
            return n.onRenamed(element(), BudgetItemTypes(1 + pick(5)), name(), name());
        case 12:
            return n.onRemoved(element(), BudgetItemTypes(1 + pick(5)), name());
        case 13:
            return n.onPostBudgetItemPostedUnexpected({BudgetItemTypes(1 + pick(5)), name(), {}},
                                                      amount(), account(), date());
        case 14:
            return n.onCompletedSurvey(date(), {bank(), {anyNumber(), kind()}}, amount(),
                                       {number(), number()}, {}, {}, {}, amount());
        default:
            return rows.at(std::size_t(pick(int(rows.size())))).second(n);
        }
    }

    /// Whether the last one may leave a trace when it fails, on purpose:
    /// docs/domain.md gives the reasons. What comes from the list is unknown.
    [[nodiscard]] bool mayLeaveTrace() const
    {
        constexpr int renaming[] = {1, 11};
        constexpr int survey = 14;
        return std::ranges::count(renaming, m_kind) > 0 || m_kind >= survey;
    }

private:
    int pick(int count) { return m_bytes.ConsumeIntegralInRange(0, count - 1); }
    budgeting::BudgetSource name()
    {
        static const char *const names[] = {"Rent", "Salary", "Food",    "Trip",
                                            "Car",  "",       "Checking"};
        return source(names[pick(7)]);
    }
    accounting::AccountNumber anyNumber() { return no(std::uint32_t(pick(12))); }
    accounting::AccountCode account()
    {
        return {anyNumber(), name().name(), pick(3) ? std::nullopt : std::optional(anyNumber())};
    }
    accounting::TransactionNumber number() { return txn(std::uint16_t(pick(12))); }
    banking::BankName bank() { return bankName(pick(2) ? "First" : "Second"); }
    banking::BankAccountTypes kind() { return banking::BankAccountTypes(1 + pick(8)); }
    QDate date() { return day("2026-01-31").addDays(pick(4000) - 2000); }
    numira::Money amount()
    {
        return {numira::toCurrency(pick(4) ? "USD" : "EUR"),
                std::int64_t(m_bytes.ConsumeIntegral<std::uint32_t>() >> pick(32)), 0,
                std::uint16_t(pick(10'000))};
    }
    accounting::Transaction transaction() { return {date(), anyNumber(), anyNumber(), amount()}; }
    void mark(Navigator &n)
    {
        switch (pick(4)) {
        case 0:
            return n.onMarkCleared({number(), number()});
        case 1:
            return n.onMarkReconciled(number());
        case 2:
            return n.onMarkUnreconciled({number()});
        default:
            return n.onRemovedTransaction(number());
        }
    }

    FuzzedDataProvider &m_bytes;
    int m_kind = 0;
};

storage::BudgetStorage::Data throughFile(const QString &path,
                                         const storage::BudgetStorage::Data &data)
{
    storage::BudgetFile file;
    file.setFilePathName(path);
    file.store(data);
    return file.load();
}

void require(bool isKept, const char *promise, const QString &said = {})
{
    if (!isKept) {
        qInstallMessageHandler(nullptr);
        qFatal("Not kept: %s\n%s", promise, qPrintable(said));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 0;
    static const QCoreApplication application(count, nullptr);
    static OwnSettings settings;
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz"));
    settings.reset();
    FuzzedDataProvider bytes(data, size);
    Desk desk(ScriptedSender::json("{}"));
    desk.furnish();
    AnyRequest any(bytes);
    for (int step = 0; step < 24 && bytes.remaining_bytes() > 0; ++step) {
        const storage::BudgetStorage::Data before = desk.save();
        try {
            any.make(*desk.navigator);
        } catch (const std::exception &) {
            // What may leave a slot is tested elsewhere.
            continue;
        }
        const QString said = desk.take().join(u'\n');
        if (!any.mayLeaveTrace() && said.contains(u"Failed(") && !said.contains(u"Succeeded("))
            require(desk.save() == before, "a refused request changes nothing", said);
    }
    const storage::BudgetStorage::Data made = desk.save("made.budget");
    require(isBalanced(made.generalLedger), "debits are equal to credits");
    const QString path = folder.filePath(QStringLiteral("a.budget"));
    const storage::BudgetStorage::Data loaded = throughFile(path, made);
    // An account that an item lacks is opened when the file is loaded.
    require(loaded.generalLedger.transactionCount() >= made.generalLedger.transactionCount(),
            "no transaction is lost");
    require(throughFile(path, loaded) == loaded, "what was loaded is loaded again");
    return 0;
}
