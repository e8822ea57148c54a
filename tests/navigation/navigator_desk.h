// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// First, because moc can read the standard headers only behind one of Qt.
#include <QtTest/QTest>

#include "navigation/navigator.h"

#include "support/budgeting.h"
#include "support/memory_storage.h"
#include "support/preferences_store.h"
#include "support/scripted_sender.h"
#include "support/signal_log.h"

#include <QtCore/QCoreApplication>

namespace kiv::test {

using navigation::Navigator;

/// The file that is loaded and saved.
inline const QString homeBudget = QStringLiteral("home.budget");

/// Settings that belong to this process alone, in a folder that goes with it.
/// They are not empty, so that no Navigator takes this for its first run.
class OwnSettings {
public:
    OwnSettings()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("kiv-tests"));
        QCoreApplication::setApplicationName(QStringLiteral("navigator"));
        reset();
    }
    /// Back to the beginning; writes only what has changed, since a disk is slow.
    void reset()
    {
        const QMap<QString, QVariant> beginning{
            {QStringLiteral("Currencies/preferred"), QStringLiteral("USD")},
            {QStringLiteral("Currencies/usable"),
             QStringList{QStringLiteral("EUR"), QStringLiteral("USD")}},
        };
        QSettings settings;
        for (const QString &key : settings.allKeys()) {
            if (!beginning.contains(key))
                settings.remove(key);
        }
        for (auto entry = beginning.begin(); entry != beginning.end(); ++entry) {
            if (settings.value(entry.key()) != entry.value())
                settings.setValue(entry.key(), entry.value());
        }
    }

private:
    PreferencesStore m_store;
};

inline tagging::BudgetItemTags::ItemTags tagged(const budgeting::BudgetedMoney &item,
                                                tagging::Tags tags = {})
{
    return tagging::BudgetItemTags::ItemTags({toBudgetItemTypes(item), item.source()},
                                             std::move(tags));
}

inline navigation::GuiElementIdentifier element()
{
    return navigation::GuiElementIdentifier(77);
}

inline banking::BankName bankName(const char *name)
{
    return banking::BankName(QString::fromUtf8(name));
}

/// A Navigator with everything that a front end gives it, kept in memory, and a
/// record of all that it says: its signals, and the lines of the log behind "- "
/// (what it does), "! " (warnings) or "? " (what is for developers). Behind a
/// success stands " *" when the budget was marked as changed already while the
/// view heard of it.
class Desk {
public:
    explicit Desk(ScriptedSender::Script script = ScriptedSender::silence(),
                  const std::shared_ptr<MemoryDisk> &from = std::make_shared<MemoryDisk>())
        : disk(from),
          m_outer(std::exchange(current(), this)),
          m_handler(qInstallMessageHandler(&Desk::heard))
    {
        navigator =
            std::make_unique<Navigator>(std::make_unique<ScriptedSender>(std::move(script), sent),
                                        std::make_unique<MemoryBudgetStorage>(disk),
                                        std::make_unique<MemoryRatesStorage>(disk));
        m_signals.emplace(*navigator);
        m_signals->annotate([this](const QString &name) {
            return name.endsWith(QStringLiteral("Succeeded")) && isChanged() ? QStringLiteral(" *")
                                                                             : QString();
        });
    }
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;
    ~Desk()
    {
        m_signals.reset();
        navigator.reset();
        qInstallMessageHandler(m_handler);
        current() = m_outer;
    }

    /// All that was said since the last call.
    [[nodiscard]] QStringList take()
    {
        QStringList said = std::exchange(m_startUp, {});
        return said + m_signals->take();
    }

    /// The same, but waits (for five seconds at most) until something is said.
    [[nodiscard]] QStringList takeAfterWaiting()
    {
        QStringList said;
        (void)QTest::qWaitFor([&] { return !(said += take()).isEmpty(); });
        return said;
    }

    /// Whether there are unsaved changes, without a trace in the answers.
    bool isChanged()
    {
        bool isDirty = false;
        const auto heard = QObject::connect(navigator.get(), &Navigator::checkedIsBudgetFileDirty,
                                            [&](bool told) { isDirty = told; });
        m_signals->ignore(QStringLiteral("checkedIsBudgetFileDirty"), true);
        navigator->onCheckIsBudgetFileDirty();
        m_signals->ignore(QStringLiteral("checkedIsBudgetFileDirty"), false);
        QObject::disconnect(heard);
        return isDirty;
    }

    /// Everything that the budget holds; it counts as saved afterwards.
    storage::BudgetStorage::Data save(const char *path = "home.budget")
    {
        navigator->onSaveAsBudgetFile(QString::fromLatin1(path));
        (void)take();
        return disk->files.at(QString::fromLatin1(path));
    }

    /// A household, saved: the bank First with the accounts 1 Checking (with
    /// 2,500.00 USD) and 4 Savings under it, the bill Rent (account 3, tagged
    /// "home"), the wage Salary (5), the non-tracked Food (6), and the account 8
    /// Sundries. Account 2 holds the openings. Transaction 1 opens Checking, 2
    /// has paid 10.00 USD from it for Rent, 3 has moved 5.00 USD to Savings.
    void furnish();

    const std::shared_ptr<MemoryDisk> disk;
    const std::shared_ptr<ScriptedSender::Record> sent = std::make_shared<ScriptedSender::Record>();

private:
    static Desk *&current()
    {
        static Desk *desk = nullptr;
        return desk;
    }
    static void heard(QtMsgType level, const QMessageLogContext &, const QString &message)
    {
        const Unwatched aside;
        const QString mark = level == QtWarningMsg ? QStringLiteral("! ")
                             : level == QtDebugMsg ? QStringLiteral("? ")
                                                   : QStringLiteral("- ");
        Desk &desk = *current();
        if (desk.m_signals)
            desk.m_signals->note(mark + message);
        else
            desk.m_startUp.append(mark + message);
    }

    Desk *m_outer;
    QtMessageHandler m_handler;
    QStringList m_startUp;

public:
    std::unique_ptr<Navigator> navigator;

private:
    std::optional<SignalLog> m_signals;
};

inline void Desk::furnish()
{
    using banking::BankAccountTypes;
    using budgeting::BudgetItemTypes;
    const auto add = [&](const budgeting::BudgetedMoney &item, tagging::Tags tags = {}) {
        navigator->onAdded(element(), toBudgetItemTypes(item), item, std::nullopt,
                           tagged(item, std::move(tags)));
    };
    navigator->onAddedBankAccount(QStringLiteral("Checking"), BankAccountTypes::Checking,
                                  usd("2500"));
    navigator->onAddedAct(accounting::Account(accounting::AccountTypes::Asset,
                                              code(4, "Savings", no(1)), usd("0"), false));
    navigator->onBankAdded(
        banking::Bank(bankName("First"), {{no(1), BankAccountTypes::Checking}}, false));
    add(item<budgeting::Bill>("Rent"), {tagging::Tag(QStringLiteral("home"))});
    add(item<budgeting::Wage>("Salary", usd("1000")));
    add(item<budgeting::Nontrack>("Food"));
    navigator->onAddedAct(accounting::Account(accounting::AccountTypes::Expense,
                                              code(8, "Sundries"), usd("0"), false));
    navigator->onAddedTransaction(transfer(no(3), no(1), usd("10")));
    navigator->onAddedTransaction(transfer(no(4), no(1), usd("5")));
    (void)save();
}

struct FurnishedDesk : Desk {
    FurnishedDesk() { furnish(); }
};

inline QStringList texts(const std::vector<const char *> &lines)
{
    QStringList list;
    for (const char *line : lines)
        list.append(QString::fromUtf8(line));
    return list;
}

/// The lines with "=" in place of each message that is the warning before it.
inline QStringList shortened(QStringList lines)
{
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype begin = lines[i].indexOf(u'"');
        const qsizetype length = lines[i].lastIndexOf(u'"') - begin - 1;
        if (begin >= 0 && lines[i - 1].startsWith(u'!') && length > 0 &&
            lines[i - 1].endsWith(u' ' + lines[i].mid(begin + 1, length)))
            lines[i].replace(begin, length + 2, u'=');
    }
    return lines;
}

} // namespace kiv::test
