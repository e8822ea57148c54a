// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "failing_calls.h"
#include "scratch_folder.h"

#include "support/message_log.h"

#include <QtTest/QTest>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace kiv;
using test::failingCalls;

namespace {

const QString name = QStringLiteral("home.budget");
const QString backup = name + QStringLiteral(".backup-1");

storage::BudgetStorage::Data budget(int version)
{
    storage::BudgetStorage::Data data;
    data.banks.add(banking::Bank(banking::BankName(QString::number(version)), {}, false));
    return data;
}

/// The bytes of a version.
QByteArray bytesOf(int version)
{
    static std::map<int, QByteArray> known;
    QByteArray &bytes = known[version];
    if (bytes.isEmpty()) {
        const test::ScratchFolder folder;
        test::store(folder.path(name), budget(version));
        bytes = folder.read(name);
    }
    return bytes;
}

/// How a budget stands to its file when it is saved.
enum class Standing { Open, NotOpen, New };

/// A budget of the second version with the first one as its backup, and with
/// attributes that a new version has to take over.
struct Desk {
    explicit Desk(Standing standing = Standing::Open)
    {
        folder.write(name, bytesOf(2));
        folder.write(backup, bytesOf(1));
        file.setFilePathName(path);
        if (standing == Standing::Open)
            (void)file.load();
        // A new version goes without what only the system may give.
        for (const char *note : {"user.note", "trusted.note", "security.note"})
            ::setxattr(qPrintable(path), note, "mine", 4, 0);
        if (::geteuid() == 0 && ::chown(qPrintable(path), 1234, 5678) != 0)
            qFatal("The owner cannot be changed.");
        if (standing == Standing::New)
            QFile::remove(path);
    }
    /// Of all files but the lock, which is there for as long as the file is open.
    [[nodiscard]] QStringList names() const
    {
        QStringList names = folder.names();
        names.removeAll(name + u".lock"_qs);
        return names;
    }
    void save(int version) { file.store(budget(version)); }
    void saveCarelessly(int version)
    {
        const QByteArray bytes = bytesOf(version);
        const int opened = ::open(qPrintable(path), O_WRONLY | O_TRUNC);
        const bool isWritten =
            ::write(opened, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size();
        if (::close(opened) != 0 || !isWritten)
            throw storage::StorageError(storage::StorageFailure::CannotWrite, path, {});
    }

    test::ScratchFolder folder;
    QString path = folder.path(name);
    storage::BudgetFile file;
};

using Saver = void (Desk::*)(int);

/// Saves the third version while a call fails, and then, without a fault, the
/// fourth. Answers with the promise that was broken, or with nothing.
QString brokenPromise(Saver save, const test::FailingCalls &failing,
                      Standing standing = Standing::Open)
{
    Desk desk(standing);
    const QByteArray old = desk.folder.read(name);
    const QStringList before = desk.names();
    failingCalls = failing;
    failingCalls.isOn = true;
    const auto failure = test::failureOf([&] { (desk.*save)(3); });
    failingCalls.isOn = false;

    // A folder that cannot be synchronised at all is none.
    const bool isSyncFailure = failing.name == "fsync" &&
                               QList{ENOSPC, EIO, EACCES, EDQUOT, EROFS}.contains(failing.error);
    const bool isEveryClose = failing.name == "close" && failing.from == 1 && failing.times > 1;
    if (!failure && (isSyncFailure || isEveryClose))
        return QStringLiteral("what may not be on the disk counts as saved");
    if (desk.folder.read(name) != (failure ? old : bytesOf(3)))
        return QStringLiteral("the file is not the %1 one").arg(failure ? u"old" : u"new");
    if (failure && desk.folder.read(backup) != bytesOf(1))
        return QStringLiteral("a failed save changed the backup");
    // The lock of a file that is not open went with the attempt.
    if (failure && standing != Standing::Open && failing.times == 1 &&
        desk.folder.names().contains(name + u".lock"_qs))
        return QStringLiteral("the lock file was left");
    const QStringList after = desk.names();
    if (failure && after != before && failing.name != "unlinkat")
        return QStringLiteral("left behind: %1").arg(after.join(u' '));
    if (test::failureOf([&] { desk.save(4); }) || desk.folder.read(name) != bytesOf(4))
        return QStringLiteral("the next save failed");
    for (const QString &left : desk.folder.names()) {
        if (!left.startsWith(name))
            return QStringLiteral("left for good: %1").arg(left);
    }
    return {};
}

/// Which calls the saver makes, and how often each.
std::map<std::string, int> callsOf(Saver save, Standing standing = Standing::Open)
{
    Desk desk(standing);
    failingCalls = {};
    failingCalls.isOn = true;
    (desk.*save)(3);
    failingCalls.isOn = false;
    return failingCalls.counts;
}

/// The first promise that the saver breaks when one of these calls fails with
/// one of the errors that the system gives, once or for good.
QString firstBrokenPromise(Saver save, const std::string &call, int count,
                           Standing standing = Standing::Open)
{
    for (int from = 1; from <= count; ++from) {
        for (const int error : {ENOSPC, EIO, EACCES, EDQUOT, EROFS, EPERM, EOPNOTSUPP, EINTR,
                                EINVAL, ENOSYS, ENOLCK, ENOENT, EISDIR, EMLINK, ENODATA, ERANGE}) {
            // What is tried again or done in another way fails only once.
            const bool isForGood = !QList{EINTR, ERANGE, ENOENT, EISDIR, EMLINK}.contains(error);
            for (const int times : {1, isForGood ? 1000 : 0}) {
                if (times == 0)
                    continue;
                test::FailingCalls failing;
                failing.name = call;
                failing.from = from;
                failing.times = times;
                failing.error = error;
                const QString broken = brokenPromise(save, failing, standing);
                if (!broken.isEmpty())
                    return QStringLiteral("%1 from the %2. time, %3: %4")
                        .arg(QString::fromStdString(call), QString::number(from),
                             qt_error_string(error), broken);
            }
        }
    }
    return {};
}

} // namespace

/// Lets each file call of a save fail in turn and compares what is left with
/// what was promised.
class SaveFaultsTest final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void aCarelessSaverIsCaught();
    void everyFailureLeavesAWholeFile_data();
    void everyFailureLeavesAWholeFile();
    void lyingCallsAreFoundOut();
    void aFileThatChangesMeanwhileIsNotOverwritten_data();
    void aFileThatChangesMeanwhileIsNotOverwritten();
    void whatCannotBeTakenBackIsSavedTheNextTime_data();
    void whatCannotBeTakenBackIsSavedTheNextTime();
    void onlyWhereThereAreNoLocksItGoesOnWithout();
    void theLockFileGoesWithTheFile();
    void theReasonIsTheSystemsOwn();
    void rightsOfALostGroupGoToNobody();
    void aLoadIsHonestToo_data();
    void aLoadIsHonestToo();

private:
    /// Lets the call fail that is made the `from`th time from now on.
    static void fail(const char *call, int from, int error, std::function<void()> meanwhile = {})
    {
        failingCalls = {};
        failingCalls.name = call;
        failingCalls.from = from;
        failingCalls.times = 1;
        failingCalls.error = error;
        failingCalls.meanwhile = std::move(meanwhile);
        failingCalls.isOn = true;
    }
};

void SaveFaultsTest::initTestCase()
{
    for (const int version : {1, 2, 3, 4})
        QVERIFY(!bytesOf(version).isEmpty()); // made before any call fails
}

void SaveFaultsTest::aCarelessSaverIsCaught()
{
    const auto calls = callsOf(&Desk::saveCarelessly);
    QVERIFY(calls.at("write") == 1);
    QVERIFY(!firstBrokenPromise(&Desk::saveCarelessly, "write", 1).isEmpty());
}

void SaveFaultsTest::everyFailureLeavesAWholeFile_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("count");
    QTest::addColumn<Standing>("standing");
    for (const auto &[standing, words] :
         {std::pair(Standing::Open, ""), std::pair(Standing::NotOpen, " of a file not opened"),
          std::pair(Standing::New, " of a new file")}) {
        for (const auto &[call, count] : callsOf(&Desk::save, standing))
            QTest::addRow("%s%s", call.c_str(), words)
                << QByteArray::fromStdString(call) << count << standing;
    }
}

void SaveFaultsTest::everyFailureLeavesAWholeFile()
{
    QFETCH(QByteArray, call);
    QFETCH(int, count);
    QFETCH(Standing, standing);
    const MessageLog log; // saving without a backup is a warning
    QCOMPARE(firstBrokenPromise(&Desk::save, call.toStdString(), count, standing), QString());
}

void SaveFaultsTest::lyingCallsAreFoundOut()
{
    // A write that is cut short goes on, for as long as anything is taken; what
    // reads back otherwise is not saved.
    using storage::StorageFailure;
    const std::optional<StorageFailure> cannot = StorageFailure::CannotWrite;
    const std::optional<StorageFailure> none;
    for (const auto &[call, times, expected] :
         {std::tuple("write", 1, none), std::tuple("write", 1000, cannot),
          std::tuple("pread", 1, cannot), std::tuple("pread", 1000, cannot)}) {
        test::FailingCalls lying;
        lying.name = call;
        lying.from = 1;
        lying.times = times;
        QCOMPARE(brokenPromise(&Desk::save, lying), QString());

        Desk desk;
        failingCalls = lying;
        failingCalls.isOn = true;
        const auto failure = test::failureOf([&] { desk.save(3); });
        failingCalls.isOn = false;
        QCOMPARE(failure, expected);
    }
}

void SaveFaultsTest::aFileThatChangesMeanwhileIsNotOverwritten_data()
{
    using Change = std::function<void(const Desk &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("left");
    QTest::newRow("written to") << Change([](const Desk &d) { d.folder.write(name, bytesOf(4)); })
                                << bytesOf(4);
    QTest::newRow("replaced") << Change([](const Desk &d) {
        d.folder.write(u"other"_qs, bytesOf(4));
        std::rename(qPrintable(d.folder.path(u"other"_qs)), qPrintable(d.path));
    }) << bytesOf(4);
    QTest::newRow("replaced by the same") << Change([](const Desk &d) {
        QFile::remove(d.path);
        d.folder.write(name, bytesOf(2));
    }) << bytesOf(2);
}

void SaveFaultsTest::aFileThatChangesMeanwhileIsNotOverwritten()
{
    QFETCH(std::function<void(const Desk &)>, change);
    QFETCH(QByteArray, left);
    Desk desk;
    // While the new version is synchronised, before the old one is replaced.
    fail("fsync", 1, 0, [&] { change(desk); });
    const auto failure = test::failureOf([&] { desk.save(3); });
    failingCalls = {};
    QCOMPARE(failure, storage::StorageFailure::ChangedOnDisk);
    QCOMPARE(desk.folder.read(name), left);
    QCOMPARE(desk.folder.names(), (QStringList{name, backup, name + QStringLiteral(".lock")}));
}

void SaveFaultsTest::whatCannotBeTakenBackIsSavedTheNextTime_data()
{
    // The new version is in its place when the folder cannot be synchronised, and
    // there is no way back: no link to the old version, or none that can be moved.
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::newRow("no backup") << QByteArray("linkat") << QByteArray("fsync");
    QTest::newRow("no moving back") << QByteArray("fsync") << QByteArray("renameat");
}

void SaveFaultsTest::whatCannotBeTakenBackIsSavedTheNextTime()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    const MessageLog log; // saving without a backup is a warning
    Desk desk;
    fail(first, 2, first == "linkat" ? EPERM : EIO, [&] { fail(second, 1, EIO); });
    QCOMPARE(test::failureOf([&] { desk.save(3); }), storage::StorageFailure::CannotWrite);
    failingCalls = {};
    QCOMPARE(desk.folder.read(name), bytesOf(3));
    desk.save(4);
    QCOMPARE(desk.folder.read(name), bytesOf(4));
}

void SaveFaultsTest::onlyWhereThereAreNoLocksItGoesOnWithout()
{
    for (const int error : {ENOLCK, ENOSYS, EOPNOTSUPP, EINVAL, EIO, EINTR}) {
        Desk desk(Standing::NotOpen);
        fail("flock", 1, error);
        const auto failure = test::failureOf([&] { desk.save(3); });
        failingCalls = {};
        QCOMPARE(failure.has_value(), error == EIO || error == EINTR);
    }
}

void SaveFaultsTest::theLockFileGoesWithTheFile()
{
    for (const char *call : {"lstat", "unlink"}) {
        const Desk desk(Standing::NotOpen);
        {
            storage::BudgetFile file;
            file.setFilePathName(desk.path);
            (void)file.load();
            fail(call, 1, EIO);
        }
        failingCalls = {};
        QVERIFY2(!desk.folder.names().contains(name + u".lock"_qs), call);
    }
}

void SaveFaultsTest::theReasonIsTheSystemsOwn()
{
    Desk desk;
    fail("write", 1, EIO);
    try {
        desk.save(3);
        QFAIL("It was saved.");
    } catch (const storage::StorageError &error) {
        failingCalls = {};
        QVERIFY2(error.message().contains(qt_error_string(EIO)), qPrintable(error.message()));
    }
}

void SaveFaultsTest::rightsOfALostGroupGoToNobody()
{
    // As a list says it: its version, then who may do what. The group has the
    // right to write.
    constexpr const char *list = "system.posix_acl_access";
    const QByteArray rights = QByteArray::fromHex("02000000"
                                                  "01000600ffffffff"
                                                  "02000600d2040000"
                                                  "04000600ffffffff"
                                                  "10000600ffffffff"
                                                  "20000400ffffffff");
    for (const bool isLost : {false, true}) {
        Desk desk;
        const QByteArray path = QFile::encodeName(desk.path);
        if (::geteuid() != 0 ||
            ::setxattr(path, list, rights.constData(), std::size_t(rights.size()), 0) != 0)
            QSKIP("Only root gives files away, and not every file system has lists.");
        // Only who may not give the file away goes on without, to the group or the owner.
        for (const int call : {1, 2}) {
            fail("fchown", call, EIO);
            QCOMPARE(test::failureOf([&] { desk.save(3); }), storage::StorageFailure::CannotWrite);
            failingCalls = {};
        }
        if (isLost)
            fail("fchown", 1, EPERM);
        desk.save(3);
        failingCalls = {};
        struct stat status = {};
        ::stat(path, &status);
        QCOMPARE(status.st_mode & 0777U, isLost ? 0644U : 0664U);
        std::array<char, 64> kept{};
        QCOMPARE(::getxattr(path, list, kept.data(), kept.size()), isLost ? -1 : rights.size());
    }
}

void SaveFaultsTest::aLoadIsHonestToo_data()
{
    using Change = std::function<void(const Desk &)>;
    using storage::StorageFailure;
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("error");
    QTest::addColumn<Change>("meanwhile");
    QTest::addColumn<std::optional<StorageFailure>>("expected");
    const auto row = [](const char *title, const char *call, int from, int error,
                        const Change &meanwhile, std::optional<StorageFailure> expected) {
        QTest::newRow(title) << QByteArray(call) << from << error << meanwhile << expected;
    };
    row("not to be asked for", "access", 1, EIO, {}, std::nullopt);
    row(
        "gone", "lstat", 3, 0, [](const Desk &d) { QFile::remove(d.path); },
        StorageFailure::NotFound);
    row(
        "cut short", "read", 1, 0, [](const Desk &d) { QFile::resize(d.path, 5000); },
        StorageFailure::Damaged);
    row(
        "lock replaced", "lstat", 2, 0,
        [](const Desk &d) {
            QFile::remove(d.path + u".lock"_qs);
            d.folder.write(name + u".lock"_qs, "");
        },
        std::nullopt);
    row(
        "lock only to be read", "lstat", 1, 0,
        [](const Desk &d) {
            d.folder.write(name + u".lock"_qs, "");
            fail("open", 1, EACCES);
        },
        std::nullopt);
    row("lock not to be made", "open", 1, EACCES, {}, std::nullopt);
    row(
        "lock made by another just then", "open", 1, 0,
        [](const Desk &d) { d.folder.write(name + u".lock"_qs, ""); }, std::nullopt);
}

void SaveFaultsTest::aLoadIsHonestToo()
{
    QFETCH(QByteArray, call);
    QFETCH(int, from);
    QFETCH(int, error);
    QFETCH(std::function<void(const Desk &)>, meanwhile);
    QFETCH(std::optional<storage::StorageFailure>, expected);
    Desk desk(Standing::NotOpen);
    storage::BudgetStorage::Data data;
    fail(call, from, error, [&] {
        if (meanwhile)
            meanwhile(desk);
    });
    const auto failure = test::failureOf([&] { data = desk.file.load(); });
    failingCalls = {};
    QCOMPARE(failure, expected);
    if (!expected)
        QVERIFY(data.banks.hasBank(banking::BankName(u"2"_qs)));
}

static const kiv::test::Suite<SaveFaultsTest> suite;
#include "tst_save_faults.moc"
