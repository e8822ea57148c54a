// SPDX-License-Identifier: GPL-3.0-or-later
#include "scratch_folder.h"

#include <QtCore/QLockFile>
#include <QtTest/QTest>

#include <csignal>
#include <fcntl.h>
#include <sstream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace kiv;
using storage::BudgetFile;
using storage::StorageFailure;
using Data = storage::BudgetStorage::Data;

namespace {

/// Is another user for a while when it is root, for whom nothing is forbidden.
class Nobody {
public:
    Nobody() : m_before(::geteuid())
    {
        if (m_before == 0 && ::seteuid(65'534) != 0)
            qFatal("Root cannot be somebody else.");
    }
    ~Nobody()
    {
        if (::seteuid(m_before) != 0)
            qFatal("The user cannot come back.");
    }
    Nobody(const Nobody &) = delete;
    Nobody &operator=(const Nobody &) = delete;

private:
    uid_t m_before;
};

/// A budget with a bank of that name, by which it is known again.
Data budget(const QString &bank)
{
    Data data;
    data.banks.add(banking::Bank(banking::BankName(bank), {}, false));
    return data;
}

QString bankIn(const Data &data)
{
    return data.banks.begin()->first.institution();
}

} // namespace

class BudgetSavingTest final : public QObject {
    Q_OBJECT

private slots:
    void init();
    void refusedFilesStayAndTheOpenOneStaysOpen_data();
    void refusedFilesStayAndTheOpenOneStaysOpen();
    void otherFilesAreNotOverwritten_data();
    void otherFilesAreNotOverwritten();
    void whatMayNotBeWrittenStays_data();
    void whatMayNotBeWrittenStays();
    void whatCouldNotBeLoadedIsNotSaved();
    void aFileInUseIsLocked();
    void whatAnotherProgramChangedIsNotOverwritten();
    void linksAreFollowed();
    void attributesAreKept();
    void previousVersionsAreKept();
    void foreignJournalsAreLeftAlone();
    void aLimitOfFileSizeIsAnError();
    void leftoversOfAKilledSaveAreClearedAway();
    void failuresAreToldApart();

private:
    std::optional<StorageFailure> loading(const QString &path)
    {
        return test::failureOf([&] {
            m_file->setFilePathName(path);
            (void)m_file->load();
        });
    }
    std::optional<StorageFailure> storing(const QString &path, const QString &bank)
    {
        return test::failureOf([&] {
            m_file->setFilePathName(path);
            m_file->store(budget(bank));
        });
    }

    std::optional<test::ScratchFolder> m_folder;
    std::optional<BudgetFile> m_file;
    QString m_path;
};

void BudgetSavingTest::init()
{
    m_file.emplace();
    m_folder.emplace();
    m_path = m_folder->path(QStringLiteral("home.budget"));
    QCOMPARE(storing(m_path, u"First"_qs), std::nullopt);
}

void BudgetSavingTest::refusedFilesStayAndTheOpenOneStaysOpen_data()
{
    using Make = std::function<QString(const test::ScratchFolder &)>;
    QTest::addColumn<Make>("make");
    QTest::addColumn<StorageFailure>("failure");
    const auto row = [](const char *name, StorageFailure failure, const Make &make) {
        QTest::newRow(name) << make << failure;
    };
    const auto withContent = [](auto content) {
        return [content](const test::ScratchFolder &folder) {
            folder.write(u"other.budget"_qs, content(folder.read(u"home.budget"_qs)));
            return folder.path(u"other.budget"_qs);
        };
    };
    row("no name", StorageFailure::NoName, [](const auto &) { return QString(); });
    row("name with a zero", StorageFailure::NoName,
        [](const auto &folder) { return folder.path(u"a"_qs + QChar(u'\0')); });
    row("name with half a character", StorageFailure::NoName,
        [](const auto &folder) { return folder.path(QString(QChar(0xD800))); });
    row("name too long", StorageFailure::CannotRead,
        [](const auto &folder) { return folder.path(QString(256, u'a')); });
    row("missing", StorageFailure::NotFound,
        [](const auto &folder) { return folder.path(u"none.budget"_qs); });
    row("missing at the root", StorageFailure::NotFound,
        [](const auto &) { return u"/none.budget"_qs; });
    row("missing where we are", StorageFailure::NotFound,
        [](const auto &) { return u"none.budget"_qs; });
    row("folder above", StorageFailure::NotAFile,
        [](const auto &folder) { return folder.path(u".."_qs); });
    row("link with a whole path", StorageFailure::NotFound, [](const auto &folder) {
        const QString path = folder.path(u"whole.budget"_qs);
        ::symlink(qPrintable(folder.path(u"nothing"_qs)), qPrintable(path));
        return path;
    });
    row("missing folder", StorageFailure::NotFound,
        [](const auto &folder) { return folder.path(u"none/a.budget"_qs); });
    row("file as a folder", StorageFailure::NotFound,
        [](const auto &folder) { return folder.path(u"home.budget/a.budget"_qs); });
    row("folder that leads to itself", StorageFailure::CannotRead, [](const auto &folder) {
        ::symlink("loop", qPrintable(folder.path(u"loop"_qs)));
        return folder.path(u"loop/a.budget"_qs);
    });
    row("folder", StorageFailure::NotAFile,
        [](const auto &folder) { return folder.path(u"."_qs); });
    row("folder with a name", StorageFailure::NotAFile, [](const auto &folder) {
        QDir().mkdir(folder.path(u"x.budget"_qs));
        return folder.path(u"x.budget"_qs);
    });
    row("device", StorageFailure::NotAFile, [](const auto &folder) {
        // One of its own for root, who could lose the system's.
        const QString path = folder.path(u"device.budget"_qs);
        return ::mknod(qPrintable(path), S_IFCHR | 0600, makedev(1, 3)) == 0 ? path
                                                                             : u"/dev/null"_qs;
    });
    row("pipe", StorageFailure::NotAFile, [](const auto &folder) {
        const QString path = folder.path(u"pipe.budget"_qs);
        ::mkfifo(qPrintable(path), 0600);
        return path;
    });
    row("link to itself", StorageFailure::CannotRead, [](const auto &folder) {
        const QString path = folder.path(u"loop.budget"_qs);
        ::symlink("loop.budget", qPrintable(path));
        return path;
    });
    row("link to nothing", StorageFailure::NotFound, [](const auto &folder) {
        const QString path = folder.path(u"link.budget"_qs);
        ::symlink("nothing", qPrintable(path));
        return path;
    });
    row("empty", StorageFailure::NotOurs, withContent([](auto) { return QByteArray(); }));
    row("text", StorageFailure::NotOurs, withContent([](auto) { return QByteArray("Dear John"); }));
    row("another database", StorageFailure::NotOurs,
        withContent([](QByteArray bytes) { return bytes.replace(68, 4, "none"); }));
    row("newer", StorageFailure::Newer,
        withContent([](QByteArray bytes) { return bytes.replace(63, 1, "\2"); }));
    row("cut short", StorageFailure::Damaged,
        withContent([](const QByteArray &bytes) { return bytes.chopped(1); }));
    row("too large", StorageFailure::TooLarge, [](const auto &folder) {
        folder.write(u"other.budget"_qs, "x");
        QFile::resize(folder.path(u"other.budget"_qs), 1LL << 40);
        return folder.path(u"other.budget"_qs);
    });
}

void BudgetSavingTest::refusedFilesStayAndTheOpenOneStaysOpen()
{
    QFETCH(std::function<QString(const test::ScratchFolder &)>, make);
    QFETCH(storage::StorageFailure, failure);
    const QString other = make(*m_folder);
    const QStringList names = m_folder->names();
    QCOMPARE(loading(other), failure);
    QCOMPARE(m_file->filePathName(), m_path);
    // What is no file is not saved over either; others are another test's.
    const bool isNoFile = failure == StorageFailure::NotAFile ||
                          failure == StorageFailure::NoName ||
                          failure == StorageFailure::CannotRead;
    if (isNoFile)
        QCOMPARE(storing(other, u"Second"_qs), failure);
    QCOMPARE(m_folder->names(), names);
    if (isNoFile)
        QCOMPARE(loading(other), failure);

    m_file->store(budget(u"Second"_qs));
    m_file.reset();
    QCOMPARE(bankIn(test::load(m_path)), u"Second"_qs);
}

void BudgetSavingTest::otherFilesAreNotOverwritten_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::optional<StorageFailure>>("failure");
    init();
    const QByteArray whole = m_folder->read(u"home.budget"_qs);
    const auto row = [](const char *name, const QByteArray &content,
                        std::optional<StorageFailure> failure) {
        QTest::newRow(name) << content << failure;
    };
    row("text", "Dear John", StorageFailure::NotOurs);
    row("newer budget", QByteArray(whole).replace(63, 1, "\2"), StorageFailure::Newer);
    row("empty", {}, std::nullopt);
    row("damaged budget", whole.chopped(1), std::nullopt);
    row("budget", whole, std::nullopt);
}

void BudgetSavingTest::otherFilesAreNotOverwritten()
{
    QFETCH(QByteArray, content);
    QFETCH(std::optional<StorageFailure>, failure);
    m_folder->write(u"other.budget"_qs, content);
    const QString path = m_folder->path(u"other.budget"_qs);
    QCOMPARE(storing(path, u"Second"_qs), failure);
    if (failure) {
        QCOMPARE(m_folder->read(u"other.budget"_qs), content);
    } else {
        QCOMPARE(m_folder->read(u"other.budget.backup-1"_qs), content);
        QCOMPARE(m_file->filePathName(), path);
    }
}

void BudgetSavingTest::whatMayNotBeWrittenStays_data()
{
    QTest::addColumn<uint>("folderMode");
    QTest::addColumn<uint>("fileMode");
    QTest::addColumn<QString>("reading");
    QTest::addColumn<QString>("saving");
    const QString unwritten = u"The file '%1' could not be saved: Permission denied."_qs;
    const QString unread = u"The file '%1' could not be read: Permission denied."_qs;
    QTest::newRow("folder") << 0555U << 0666U << QString() << unwritten;
    QTest::newRow("file") << 0777U << 0444U << QString() << unwritten;
    QTest::newRow("file that hides") << 0777U << 0222U << unread << unread;
    QTest::newRow("folder that hides") << 0333U << 0666U << QString() << unwritten;
    QTest::newRow("closed folder") << 0666U << 0666U << unread << unread;
}

void BudgetSavingTest::whatMayNotBeWrittenStays()
{
    QFETCH(uint, folderMode);
    QFETCH(uint, fileMode);
    QFETCH(QString, reading);
    QFETCH(QString, saving);
    m_file.emplace(); // locks nothing any more
    const QStringList names = m_folder->names();
    const QByteArray before = m_folder->read(u"home.budget"_qs);
    const auto setModes = [this](uint folder, uint file) {
        ::chmod(qPrintable(m_path), file);
        ::chmod(qPrintable(m_folder->path(u"."_qs)), folder);
    };
    const auto said = [this](auto task) {
        try {
            m_file->setFilePathName(m_path);
            task();
        } catch (const storage::StorageError &error) {
            return error.what() == nullptr ? QString() : QString::fromUtf8(error.what());
        }
        return QString();
    };
    QString saidOnReading;
    QString saidOnSaving;
    setModes(folderMode, fileMode);
    {
        const Nobody nobody;
        saidOnReading = said([this] { (void)m_file->load(); });
        saidOnSaving = said([this] { m_file->store(budget(u"Second"_qs)); });
    }
    setModes(0777, 0666);
    const auto expected = [this](const QString &text) {
        return text.contains(u'%') ? text.arg(m_path) : text;
    };
    QCOMPARE(saidOnReading, expected(reading));
    QCOMPARE(saidOnSaving, expected(saving));
    m_file.emplace();
    QCOMPARE(m_folder->names(), names);
    QCOMPARE(m_folder->read(u"home.budget"_qs), before);
    const Nobody nobody;
    QCOMPARE(loading(m_path), std::nullopt);
    QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
}

void BudgetSavingTest::whatCouldNotBeLoadedIsNotSaved()
{
    const QByteArray before = m_folder->read(u"home.budget"_qs);
    QCOMPARE(storing(m_path, QString(4'200'000, u'n')), StorageFailure::CannotHold);
    Data strange;
    strange.banks.add(banking::Bank(banking::BankName(u"Strange"_qs),
                                    {{{}, static_cast<banking::BankAccountTypes>(9)}}, false));
    QCOMPARE(test::failureOf([&] { m_file->store(strange); }), StorageFailure::CannotHold);
    // A row more than a table may have, and more bytes than a file may.
    Data large;
    banking::Bank::Accounts accounts;
    for (std::uint32_t number = 1; number <= 65'536; ++number)
        accounts.emplace(accounting::AccountNumber(number), banking::BankAccountTypes::Cash);
    large.banks.add(banking::Bank(banking::BankName(u"Large"_qs), accounts, false));
    QCOMPARE(test::failureOf([&] { m_file->store(large); }), StorageFailure::CannotHold);
    large = {};
    accounting::SequentialAccountNumberGenerator generator;
    for (std::uint32_t number = 1; number <= 20; ++number)
        large.generalLedger.add({accounting::AccountTypes::Asset,
                                 {accounting::AccountNumber(number), QString(4'000'000, u'n'), {}},
                                 numira::Money(numira::toCurrency("USD")),
                                 false},
                                generator);
    QCOMPARE(test::failureOf([&] { m_file->store(large); }), StorageFailure::CannotHold);
    QCOMPARE(m_folder->read(u"home.budget"_qs), before);
}

void BudgetSavingTest::aFileInUseIsLocked()
{
    const auto loadingElsewhere = [this] {
        return test::failureOf([this] { (void)test::load(m_path); });
    };
    QCOMPARE(loadingElsewhere(), StorageFailure::Locked);
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

void BudgetSavingTest::linksAreFollowed()
{
    QDir().mkdir(m_folder->path(u"sub"_qs));
    for (const char *target : {"home.budget", "sub/new.budget"}) {
        const QString link = m_folder->path(u"link.budget"_qs);
        QFile::remove(link);
        ::symlink(target, qPrintable(link));
        QCOMPARE(storing(link, u"Linked"_qs), std::nullopt);
        QCOMPARE(QFileInfo(link).symLinkTarget(), m_folder->path(QString::fromLatin1(target)));
        m_file.emplace();
        QCOMPARE(bankIn(test::load(m_folder->path(QString::fromLatin1(target)))), u"Linked"_qs);
    }

    // Another name of the same file keeps the version that it has.
    ::link(qPrintable(m_path), qPrintable(m_folder->path(u"hard.budget"_qs)));
    QCOMPARE(storing(m_path, u"Newer"_qs), std::nullopt);
    QCOMPARE(bankIn(test::load(m_folder->path(u"hard.budget"_qs))), u"Linked"_qs);
}

void BudgetSavingTest::attributesAreKept()
{
    const QByteArray path = QFile::encodeName(m_path);
    struct stat before = {};
    ::stat(path.constData(), &before);
    QCOMPARE(before.st_mode & 07777U, 0600U);

    ::chmod(path.constData(), 0640);
    ::setxattr(path.constData(), "user.note", "mine", 4, 0);
    if (::geteuid() == 0)
        QCOMPARE(::chown(path.constData(), 1234, 5678), 0);
    ::stat(path.constData(), &before);
    QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
    struct stat after = {};
    ::stat(path.constData(), &after);
    QVERIFY(after.st_ino != before.st_ino);
    QCOMPARE(after.st_mode & 07777U, 0640U);
    QCOMPARE(after.st_uid, before.st_uid);
    QCOMPARE(after.st_gid, before.st_gid);
    std::array<char, 8> note{};
    QCOMPARE(::getxattr(path.constData(), "user.note", note.data(), note.size()), 4);
    QCOMPARE(QByteArray(note.data()), QByteArray("mine"));
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
    const rlimit tight{10'000, limit.rlim_max};
    const QStringList names = m_folder->names();
    const QByteArray before = m_folder->read(u"home.budget"_qs);
    sigset_t signal;
    sigemptyset(&signal);
    sigaddset(&signal, SIGXFSZ);
    // A program that holds the limit's signal back still holds it back then.
    for (const int how : {SIG_UNBLOCK, SIG_BLOCK}) {
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
    std::set<std::string> words;
    const int beyond = int(StorageFailure::CannotHold) + 1;
    for (int failure = 1; failure <= beyond; ++failure) {
        std::ostringstream out;
        out << static_cast<StorageFailure>(failure);
        words.insert(out.str());
    }
    QCOMPARE(int(words.size()), beyond);
}

QTEST_APPLESS_MAIN(BudgetSavingTest)
#include "tst_budget_saving.moc"
