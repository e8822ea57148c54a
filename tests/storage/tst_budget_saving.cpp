// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "open_budget.h"

#include "support/comparison.h"

#include <QtCore/QLockFile>
#include <QtCore/QSysInfo>

#include <csignal>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace kiv;
using storage::StorageFailure;
using test::bankIn;
using test::budget;
using Data = storage::BudgetStorage::Data;

class BudgetSavingTest final : public test::OpenBudget {
    Q_OBJECT

private slots:
    void init() { begin(); }
    void whatCouldNotBeLoadedIsNotSaved();
    void aFileInUseIsLocked();
    void whatAnotherProgramChangedIsNotOverwritten();
    void previousVersionsAreKept();
    void foreignJournalsAreLeftAlone();
    void aLimitOfFileSizeIsAnError();
    void leftoversOfAKilledSaveAreClearedAway();
    void failuresAreToldApart();
};

void BudgetSavingTest::whatCouldNotBeLoadedIsNotSaved()
{
    const QByteArray before = m_folder->read(u"home.budget"_qs);
    const auto saving = [this](const Data &data) {
        std::string told;
        try {
            m_file->store(data);
        } catch (const storage::StorageError &error) {
            told = error.failure() == StorageFailure::CannotHold ? error.what() : "other";
        }
        return told;
    };
    const QString longest(4 * 1024 * 1024, u'n');
    QVERIFY(saving(budget(longest + u'n')).ends_with("A text is too long."));
    Data strange;
    strange.surveys.upsert(surveying::CompletedSurvey(
        {banking::BankName(u"Strange"_qs), {{}, static_cast<banking::BankAccountTypes>(9)}},
        numira::Currency()));
    QVERIFY(!saving(strange).empty());
    // A row more than a table may have, and more bytes than a file may.
    Data large;
    banking::Bank::Accounts accounts;
    for (std::uint32_t number = 1; number <= 65'536; ++number)
        accounts.emplace(accounting::AccountNumber(number), banking::BankAccountTypes::Cash);
    large.banks.add(banking::Bank(banking::BankName(u"Large"_qs), accounts, false));
    QVERIFY(saving(large).ends_with("There are too many rows."));
    large = {};
    for (char16_t bank = u'a'; bank < u'u'; ++bank)
        large.banks.add(banking::Bank(banking::BankName(bank + longest.chopped(1)), {}, false));
    QVERIFY(saving(large).ends_with("The content is larger than a file may be."));
    QCOMPARE(m_folder->read(u"home.budget"_qs), before);

    QCOMPARE(storing(m_path, longest), std::nullopt);
    QCOMPARE(bankIn(m_file->load()), longest);
}

void BudgetSavingTest::aFileInUseIsLocked()
{
    const auto loadingElsewhere = [this] {
        return test::failureOf([this] { (void)test::load(m_path); });
    };
    QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
    try {
        (void)test::load(m_path);
    } catch (const storage::StorageError &error) {
        const QString holder = u"(process %1, %2 on %3)"_qs.arg(
            QString::number(::getpid()), QString::fromUtf8(::program_invocation_short_name),
            QSysInfo::machineHostName());
        QVERIFY2(error.message().contains(holder), qPrintable(error.message()));
    }
    ::symlink("home.budget", qPrintable(m_folder->path(u"link.budget"_qs)));
    QCOMPARE(test::failureOf(
                 [this] { test::store(m_folder->path(u"link.budget"_qs), budget(u"Second"_qs)); }),
             StorageFailure::Locked);
    QCOMPARE(bankIn(m_file->load()), u"First"_qs);

    // A failed attempt keeps it, another file that is opened frees it.
    QCOMPARE(loading(m_folder->path(u"none.budget"_qs)), StorageFailure::NotFound);
    QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
    QCOMPARE(storing(m_folder->path(u"other.budget"_qs), u"Second"_qs), std::nullopt);
    QCOMPARE(loadingElsewhere(), std::nullopt);

    m_file.reset();
    {
        QLockFile other(m_path + u".lock"_qs);
        QVERIFY(other.lock());
        QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
    }
    // A lock that took the place of this one stays.
    m_file.emplace();
    QCOMPARE(loading(m_path), std::nullopt);
    QVERIFY(QFile::remove(m_path + u".lock"_qs));
    m_folder->write(u"home.budget.lock"_qs, "1\ninit\nelsewhere\n");
    m_file.reset();
    QVERIFY(QFile::exists(m_path + u".lock"_qs));
    // One that does not say who it is.
    {
        m_folder->write(u"home.budget.lock"_qs, {});
        QFile other(m_path + u".lock"_qs);
        QVERIFY(other.open(QIODevice::ReadWrite) && ::flock(other.handle(), LOCK_EX) == 0);
        QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
    }
    // What a killed process left, finished or not, locks nothing.
    for (const QByteArray &left : {QByteArray(), QByteArray("1\ninit\nelsewhere\n")}) {
        m_folder->write(u"home.budget.lock"_qs, left);
        QCOMPARE(loadingElsewhere(), std::nullopt);
        QVERIFY(!QFile::exists(m_path + u".lock"_qs));
    }
}

void BudgetSavingTest::whatAnotherProgramChangedIsNotOverwritten()
{
    const QByteArray before = m_folder->read(u"home.budget"_qs);
    QByteArray changed = before;
    changed[changed.size() - 1] = static_cast<char>(changed.back() + 1);
    m_folder->write(u"home.budget"_qs, changed);
    QCOMPARE(storing(m_path, u"Second"_qs), StorageFailure::ChangedOnDisk);
    QCOMPARE(m_folder->read(u"home.budget"_qs), changed);

    // The same content in another file is no change; a file that is gone can
    // be made again.
    QVERIFY(QFile::remove(m_path));
    m_folder->write(u"home.budget"_qs, before);
    QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
    QVERIFY(QFile::remove(m_path));
    QCOMPARE(storing(m_path, u"Third"_qs), std::nullopt);

    // A link that leads elsewhere now is a change too.
    const QString link = m_folder->path(u"link.budget"_qs);
    m_folder->write(u"other.budget"_qs, before);
    ::symlink("home.budget", qPrintable(link));
    QCOMPARE(loading(link), std::nullopt);
    QVERIFY(QFile::remove(link));
    ::symlink("other.budget", qPrintable(link));
    QCOMPARE(storing(link, u"Fourth"_qs), StorageFailure::ChangedOnDisk);
}

void BudgetSavingTest::previousVersionsAreKept()
{
    for (const QString &name : {u"home.budget"_qs, QString(255, u'n')}) {
        m_file.emplace();
        test::ScratchFolder folder;
        for (int version = 1; version <= 8; ++version)
            QCOMPARE(storing(folder.path(name), QString::number(version)), std::nullopt);
        m_file.emplace();
        QStringList banks;
        for (const QString &kept : folder.names())
            banks << bankIn(test::load(folder.path(kept)));
        banks.sort();
        QCOMPARE(banks, (QStringList{u"3"_qs, u"4"_qs, u"5"_qs, u"6"_qs, u"7"_qs, u"8"_qs}));
        if (name == u"home.budget"_qs)
            QCOMPARE(bankIn(test::load(folder.path(u"home.budget.backup-2"_qs))), u"6"_qs);
    }
    // As many as are wanted.
    for (const unsigned backups : {0U, 1U}) {
        test::ScratchFolder folder;
        for (int version = 1; version <= 3; ++version) {
            storage::BudgetFile file(backups);
            file.setFilePathName(folder.path(u"home.budget"_qs));
            file.store(budget(QString::number(version)));
        }
        QCOMPARE(folder.names().size(), qsizetype(1 + backups));
        if (backups > 0)
            QCOMPARE(bankIn(test::load(folder.path(u"home.budget.backup-1"_qs))), u"2"_qs);
    }
}

void BudgetSavingTest::foreignJournalsAreLeftAlone()
{
    const QStringList planted{u"home.budget-journal"_qs, u"home.budget-shm"_qs,
                              u"home.budget-wal"_qs};
    const QByteArray journal = QByteArray::fromHex("d9d505f920a163d7") + QByteArray(600, 'j');
    for (const QString &name : planted)
        m_folder->write(name, journal);
    QCOMPARE(bankIn(m_file->load()), u"First"_qs);
    QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
    for (const QString &name : planted)
        QCOMPARE(m_folder->read(name), journal);
}

void BudgetSavingTest::aLimitOfFileSizeIsAnError()
{
    rlimit limit = {};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    m_file.emplace(); // each attempt makes its lock
    const QStringList names = m_folder->names();
    const QByteArray before = m_folder->read(u"home.budget"_qs);
    sigset_t signal;
    sigemptyset(&signal);
    sigaddset(&signal, SIGXFSZ);
    // A program that holds the limit's signal back still holds it back then.
    for (const auto &[how, size] : {std::pair(SIG_UNBLOCK, 0U), std::pair(SIG_UNBLOCK, 10'000U),
                                    std::pair(SIG_BLOCK, 10'000U)}) {
        const rlimit tight{size, limit.rlim_max};
        sigset_t mask;
        pthread_sigmask(how, &signal, nullptr);
        ::setrlimit(RLIMIT_FSIZE, &tight);
        const auto failure = storing(m_path, u"Second"_qs);
        ::setrlimit(RLIMIT_FSIZE, &limit);
        pthread_sigmask(SIG_BLOCK, nullptr, &mask);
        QCOMPARE(sigismember(&mask, SIGXFSZ), how == SIG_BLOCK ? 1 : 0);
        QCOMPARE(failure, StorageFailure::CannotWrite);
        QCOMPARE(m_folder->names(), names);
        QCOMPARE(m_folder->read(u"home.budget"_qs), before);
    }
    const timespec atOnce = {};
    QCOMPARE(sigtimedwait(&signal, nullptr, &atOnce), SIGXFSZ);
    pthread_sigmask(SIG_UNBLOCK, &signal, nullptr);
    QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
}

void BudgetSavingTest::leftoversOfAKilledSaveAreClearedAway()
{
    const QByteArray first = m_folder->read(u"home.budget"_qs);
    m_folder->write(u".home.budget.saving"_qs, "half a budget");
    m_folder->write(u".home.budget.previous"_qs, "the version before");
    QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
    m_file.reset();
    QCOMPARE(m_folder->names(), (QStringList{u"home.budget"_qs, u"home.budget.backup-1"_qs,
                                             u"home.budget.backup-2"_qs}));
    QCOMPARE(m_folder->read(u"home.budget.backup-1"_qs), first);
    QCOMPARE(m_folder->read(u"home.budget.backup-2"_qs), QByteArray("the version before"));
}

void BudgetSavingTest::failuresAreToldApart()
{
    std::set<QString> words;
    const int beyond = int(StorageFailure::CannotHold) + 1;
    for (int failure = 1; failure <= beyond; ++failure)
        words.insert(test::dump(static_cast<StorageFailure>(failure)));
    QCOMPARE(int(words.size()), beyond);
}

static const kiv::test::Suite<BudgetSavingTest> suite;
#include "tst_budget_saving.moc"
