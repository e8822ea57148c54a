// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "open_budget.h"

#include "storage/budget_inspection.h"

#include <csignal>
#include <thread>

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using storage::StorageFailure;
using test::bankIn;
using test::budget;
using Data = storage::BudgetStorage::Data;

class BudgetSavingTest final : public test::OpenBudget {
    Q_OBJECT

private slots:
    void init() { begin(); }
    void whatCouldNotBeLoadedIsNotSaved()
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

    void aFileInUseIsLocked()
    {
        const auto loadingElsewhere = [this] {
            return test::failureOf([this] { (void)test::load(m_path); });
        };
        QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
        const QString told = test::refusalOf([this] { (void)test::load(m_path); });
        const QString holder = u"(process %1, %2 on %3)"_qs.arg(
            QString::number(::getpid()), QString::fromUtf8(::program_invocation_short_name),
            QSysInfo::machineHostName());
        QVERIFY2(told.contains(holder), qPrintable(told));
        ::symlink("home.budget", qPrintable(m_folder->path(u"link.budget"_qs)));
        QCOMPARE(test::failureOf([this] {
                     test::store(m_folder->path(u"link.budget"_qs), budget(u"Second"_qs));
                 }),
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
        m_file.emplace(test::atLeisure());
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
        // Who only reads needs none and makes none, until it saves.
        {
            auto writer = std::make_unique<storage::BudgetFile>(test::atLeisure());
            writer->setFilePathName(m_path);
            (void)writer->load();
            storage::BudgetFile reader(test::atLeisure());
            reader.setReading(true);
            reader.setFilePathName(m_path);
            QCOMPARE(bankIn(reader.load()), u"First"_qs);
            QCOMPARE(test::failureOf([&] { reader.store(budget(u"Second"_qs)); }),
                     StorageFailure::Locked);
            // Who writes waits for a while.
            storage::BudgetFile patient(
                storage::BudgetFile::Pace{.patience = std::chrono::hours(1)});
            patient.setFilePathName(m_path);
            std::thread waiting([&patient] { (void)patient.load(); });
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            writer.reset();
            waiting.join();
            QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
        }
        // What a killed process left, finished or not, locks nothing.
        for (const QByteArray &left : {QByteArray(), QByteArray("1\ninit\nelsewhere\n")}) {
            m_folder->write(u"home.budget.lock"_qs, left);
            QCOMPARE(loadingElsewhere(), std::nullopt);
            QVERIFY(!QFile::exists(m_path + u".lock"_qs));
        }
    }

    void whatAnotherProgramChangedIsNotOverwritten()
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

    void formerVersionsAreKept()
    {
        for (const QString &name : {u"home.budget"_qs, QString(255, u'n')}) {
            m_file.emplace(test::atLeisure());
            test::ScratchFolder folder;
            const QString path = folder.path(name);
            for (int version = 1; version <= 8; ++version) {
                m_file->setChange(u" Change\n%1"_qs.arg(version));
                QCOMPARE(storing(path, QString::number(version)), std::nullopt);
            }
            const auto versions = storage::keptVersions(path);
            QCOMPARE(versions.size(), 8U);
            QStringList ids;
            for (const storage::KeptVersion &version : std::views::reverse(versions)) {
                const storage::VersionMark &mark = version.mark;
                QCOMPARE(mark.ancestors, ids);
                ids.prepend(mark.id);
                QCOMPARE(version.name, QString::number(ids.size()));
                QCOMPARE(mark.change, u"Change "_qs + version.name);
                QCOMPARE(bankIn(*storage::inspectBudget(version.path).data), version.name);
                QCOMPARE(version.isFile, ids.size() == 8);
                QVERIFY(std::abs(mark.savedAt.secsTo(QDateTime::currentDateTimeUtc())) < 600);
            }
            struct stat status = {};
            ::stat(qPrintable(QFileInfo(versions.back().path).path()), &status);
            QCOMPARE(status.st_mode & 07777U, 0700U);
            // One by one they are thinned.
            for (int version = 9; version <= 20; ++version)
                QCOMPARE(storing(path, QString::number(version)), std::nullopt);
            QVERIFY(storage::keptVersions(path).size() < 14); // an hour may have begun
        }
        // A file that is saved over without being open is kept, and so is a damaged one.
        test::store(m_path, budget(u"Second"_qs));
        m_file.emplace(test::atLeisure());
        QVERIFY(QFile::resize(m_path, 5000));
        test::store(m_path, budget(u"Third"_qs));
        const auto versions = storage::keptVersions(m_path);
        QCOMPARE(versions.size(), 3U);
        QCOMPARE(versions.at(1).telling, storage::KeptVersion::Telling::Nothing);
        QCOMPARE(versions.at(1).size, 5000);
    }

    void storesWithinASecondMakeOneVersion()
    {
        std::chrono::steady_clock::time_point now;
        m_file.emplace(storage::BudgetFile::Pace{.now = [&now] { return now; }});
        QCOMPARE(loading(m_path), std::nullopt);
        const QString first = test::versionsOf(m_path).front();
        const auto change = [&](const QString &line, std::chrono::milliseconds after) {
            now += after;
            m_file->setChange(line);
            m_file->store(budget(line));
            return storage::keptVersions(m_path).front().mark;
        };
        using namespace std::chrono_literals;
        (void)change(u"Paid Rent"_qs, 0ms);
        (void)change(u"Paid Gym"_qs, 499ms);
        storage::VersionMark mark = change(u"Paid Club"_qs, 500ms);
        QCOMPARE(mark.change, u"Paid Rent and 2 more"_qs);
        QCOMPARE(mark.ancestors, QStringList{first});
        QCOMPARE(test::versionsOf(m_path), (QStringList{mark.id, first}));
        const QString before = mark.id;
        mark = change(u"Added Car"_qs, 1ms);
        QCOMPARE(mark.change, u"Added Car"_qs);
        QCOMPARE(mark.ancestors, (QStringList{before, first}));
        // What was gone back to stays what it was.
        m_file->restore(storage::keptVersions(m_path).at(1));
        mark = change(u"Added Boat"_qs, 0ms);
        QCOMPARE(mark.change, u"Added Boat"_qs);
        QCOMPARE(mark.ancestors, (QStringList{before, first}));
        QCOMPARE(test::versionsOf(m_path).size(), 4);
    }

    void aFormerVersionComesBack()
    {
        QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
        const auto before = storage::keptVersions(m_path);
        const QByteArray first = test::contentOf(before.at(1).path);
        m_file->restore(before.at(1));
        QCOMPARE(m_folder->read(u"home.budget"_qs), first);
        QCOMPARE(bankIn(m_file->load()), u"First"_qs);
        // It is in the file and among the kept ones.
        QCOMPARE(test::versionsOf(m_path), (QStringList{before[1].mark.id, before[0].mark.id}));
        QCOMPARE(storing(m_path, u"Third"_qs), std::nullopt);
        const auto after = storage::keptVersions(m_path);
        QCOMPARE(after.size(), 3U);
        QCOMPARE(after[0].mark.number, 3);
        QCOMPARE(after[0].mark.ancestors, QStringList{before[1].mark.id});
        // A damaged one does not come back, nor one that is gone.
        QVERIFY(QFile::resize(after[1].path, after[1].size - 1));
        QCOMPARE(test::failureOf([&] { m_file->restore(after[1]); }), StorageFailure::Damaged);
        QVERIFY(QFile::remove(after[1].path));
        QCOMPARE(test::failureOf([&] { m_file->restore(after[1]); }), StorageFailure::NotFound);
        QCOMPARE(bankIn(m_file->load()), u"Third"_qs);
        // Where the file is gone, it is there again.
        m_file.emplace(test::atLeisure());
        QVERIFY(QFile::remove(m_path));
        m_file->setFilePathName(m_path);
        m_file->restore(after[2]);
        QCOMPARE(m_folder->read(u"home.budget"_qs), first);
    }

    void theFirstEditionsBackupsAreFound()
    {
        m_file.emplace(test::atLeisure());
        const QByteArray old = test::contentOf(QFINDTESTDATA("data/small.budget"));
        QVERIFY(old.startsWith("SQLite"));
        m_folder->write(u"home.budget"_qs, old);
        m_folder->write(u"home.budget.backup-1"_qs, old.chopped(1));
        m_folder->write(u"home.budget.backup-2"_qs, old);
        auto versions = storage::keptVersions(m_path);
        QCOMPARE(versions.size(), 3U);
        QCOMPARE(versions[0].mark.number, 0);
        QCOMPARE(versions[2].name, u"backup-2"_qs);
        QCOMPARE(versions[0].mark.ancestors, QStringList{versions[2].mark.id});

        QCOMPARE(loading(m_path), std::nullopt);
        QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
        versions = storage::keptVersions(m_path);
        QCOMPARE(versions.size(), 4U);
        QCOMPARE(versions[0].mark.number, 2);
        QCOMPARE(versions[0].mark.ancestors, QStringList{versions[1].mark.id});
        QCOMPARE(versions[1].telling, storage::KeptVersion::Telling::FirstEdition);
        QCOMPARE(versions[1].mark.number, 1);
        QCOMPARE(test::contentOf(versions[1].path), old);
        // Back again it is a file of the present edition, and still the same version.
        m_file->restore(versions[1]);
        const storage::VersionMark mark = storage::keptVersions(m_path).front().mark;
        QCOMPARE(mark.id, versions[1].mark.id);
        QCOMPARE(mark.number, 1);
        QCOMPARE(storing(m_path, u"Third"_qs), std::nullopt);
        QCOMPARE(test::versionsOf(m_path).size(), 4);
    }

    void whatIsNoVersionIsLeftAlone()
    {
        QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
        const QString folder = m_path + u".versions/"_qs;
        const QString kept = QDir(folder).entryList(QDir::Files).front();
        const QString stamp = kept.left(kept.lastIndexOf(u'-'));
        const QStringList others{stamp + u"-0.budget"_qs, stamp + u"-02.budget"_qs,
                                 stamp + u"-2.budgets"_qs, u"2026-02-30T12-00-00.000Z-2.budget"_qs,
                                 u"notes.txt"_qs};
        for (const QString &other : others)
            test::overwrite(folder + other, m_folder->read(u"home.budget"_qs));
        ::symlink(qPrintable(m_path), qPrintable(folder + stamp + u"-7.budget"_qs));
        ::mkfifo(qPrintable(folder + stamp + u"-8.budget"_qs), 0600);
        QCOMPARE(test::versionsOf(m_path).size(), 2);
        for (int version = 3; version <= 20; ++version)
            QCOMPARE(storing(m_path, QString::number(version)), std::nullopt);
        QCOMPARE(storage::keptVersions(m_path).front().mark.number, 20);
        const QStringList left = QDir(folder).entryList(QDir::AllEntries | QDir::System);
        for (const QString &other : others)
            QVERIFY2(left.contains(other), qPrintable(other));
        QVERIFY(left.contains(stamp + u"-7.budget"_qs) && left.contains(stamp + u"-8.budget"_qs));
    }

    void foreignJournalsAreLeftAlone()
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

    void aLimitOfFileSizeIsAnError()
    {
        rlimit limit = {};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        m_file.emplace(test::atLeisure()); // each attempt makes its lock
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

    void leftoversOfAKilledSaveAreClearedAway()
    {
        const QByteArray first = m_folder->read(u"home.budget"_qs);
        m_folder->write(u".home.budget.saving"_qs, "half a budget");
        QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
        m_file.reset();
        QCOMPARE(m_folder->names(), (QStringList{u"home.budget"_qs, u"home.budget.versions"_qs}));
        QCOMPARE(test::contentOf(storage::keptVersions(m_path).back().path), first);
    }
};

static const kiv::test::Suite<BudgetSavingTest> budgetSavingSuite;
#include "tst_budget_saving.moc"
