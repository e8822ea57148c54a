// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "failing_calls.h"
#include "image_surgery.h"
#include "open_budget.h"

#include "support/damage.h"
#include "support/message_log.h"

#include <array>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using storage::StorageFailure;
using test::fail;
using test::failingCalls;

namespace {

const QString versionsFolder = homeBudget + QStringLiteral(".versions");
const QString lockFile = homeBudget + QStringLiteral(".lock");

storage::BudgetStorage::Data budget(int version)
{
    return test::budget(QString::number(version));
}

/// The bytes of a version.
QByteArray bytesOf(int version)
{
    static std::map<std::pair<int, bool>, QByteArray> known;
    QByteArray &bytes = known[{version, test::isEncrypting}];
    if (bytes.isEmpty()) {
        const test::ScratchFolder folder;
        test::store(folder.path(homeBudget), budget(version));
        bytes = folder.read(homeBudget);
    }
    return bytes;
}

QByteArray imageOf(int version)
{
    return test::imageOf(bytesOf(version));
}

/// How a budget stands to its file when it is saved: with a former version, but for First.
enum class Standing { Open, First, NotOpen, New };

/// A folder with a budget of the second version, and with the first one as the former.
const test::ScratchFolder &twoVersions()
{
    static const std::array<test::ScratchFolder, 2> folders;
    const test::ScratchFolder &folder = folders[test::isEncrypting ? 1 : 0];
    if (folder.names().isEmpty()) {
        test::store(folder.path(homeBudget), budget(1));
        test::store(folder.path(homeBudget), budget(2));
    }
    return folder;
}

/// A copy of that folder, with attributes that a new version has to take over.
struct Desk {
    explicit Desk(Standing standing = Standing::Open)
    {
        folder.write(homeBudget, twoVersions().read(homeBudget));
        if (standing != Standing::First) {
            const auto former =
                storage::keptVersions(twoVersions().path(homeBudget), test::keys().get()).back();
            QDir().mkdir(path + u".versions"_qs);
            test::overwrite(path + u".versions/"_qs + QFileInfo(former.path).fileName(),
                            test::contentOf(former.path));
        }
        file.setFilePathName(path);
        if (standing == Standing::Open || standing == Standing::First)
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
        QStringList names =
            folder.names() + QDir(path + u".versions"_qs).entryList(QDir::Files | QDir::Hidden);
        names.removeAll(lockFile);
        return names;
    }
    [[nodiscard]] QStringList kept() const { return test::versionsOf(path); }
    [[nodiscard]] QByteArray image(const QString &which) const
    {
        return test::imageOf(folder.read(which));
    }
    void save(int version) { file.store(budget(version)); }
    void saveCarelessly(int version)
    {
        if (!test::saveCarelessly(path, bytesOf(version)))
            throw storage::StorageError(StorageFailure::CannotWrite, path, {});
    }

    test::ScratchFolder folder;
    QString path = folder.path(homeBudget);
    test::TestFile file;
};

using Saver = void (Desk::*)(int);

/// Saves the third version while a call fails, and then, without a fault, the
/// fourth. Answers with the promise that was broken, or with nothing.
QString brokenPromise(Saver save, const std::string &call, int from, int times, int error,
                      Standing standing)
{
    Desk desk(standing);
    const QByteArray old = desk.image(homeBudget);
    const QStringList before = desk.names();
    QStringList kept = desk.kept();
    fail(call, from, error, {}, times);
    const auto failure = test::failureOf([&] { (desk.*save)(3); });
    failingCalls.isOn = false;

    // A folder that cannot be synchronised at all is none.
    const bool isSyncFailure =
        call == "fsync" && QList{ENOSPC, EIO, EACCES, EDQUOT, EROFS}.contains(error);
    const bool isEveryClose = call == "close" && from == 1 && times > 1;
    if (!failure && (isSyncFailure || isEveryClose))
        return QStringLiteral("what may not be on the disk counts as saved");
    if (desk.image(homeBudget) != (failure ? old : imageOf(3)))
        return QStringLiteral("the file is not the %1 one").arg(failure ? u"old" : u"new");
    const QStringList keptThen = desk.kept();
    if (!failure)
        kept.prepend(keptThen.first());
    if (keptThen != kept)
        return QStringLiteral("the former versions are others");
    if (!failure && kept.size() > 1 &&
        storage::keptVersions(desk.path, test::keys().get()).front().mark.ancestors.value(0) !=
            kept.at(1) &&
        standing != Standing::New)
        return QStringLiteral("it does not come from the version before");
    // The lock of a file that is not open went with the attempt.
    if (failure && standing > Standing::First && times == 1 &&
        desk.folder.names().contains(lockFile))
        return QStringLiteral("the lock file was left");
    const QStringList after = desk.names();
    if (failure && after != before && call != "unlinkat" && call != "rmdir")
        return QStringLiteral("left behind: %1").arg(after.join(u' '));
    if (test::failureOf([&] { desk.save(4); }) || desk.image(homeBudget) != imageOf(4))
        return QStringLiteral("the next save failed");
    if (desk.kept().mid(1) != keptThen)
        return QStringLiteral("the next save lost a former version");
    const QString readable = test::inTheClear(desk.path);
    if (test::isEncrypting && !readable.isEmpty())
        return QStringLiteral("left in the clear: %1").arg(readable);
    for (const QString &left : desk.names()) {
        if (!left.startsWith(homeBudget) && !left.endsWith(u"Z-1.budget"_qs) &&
            !left.endsWith(u"Z-2.budget"_qs) && !left.endsWith(u"Z-3.budget"_qs))
            return QStringLiteral("left for good: %1").arg(left);
    }
    return {};
}

/// Which calls the saver makes, and how often each.
std::map<std::string, int> callsOf(Saver save, Standing standing)
{
    Desk desk(standing);
    fail({}, 0, 0);
    (desk.*save)(3);
    failingCalls.isOn = false;
    return failingCalls.counts;
}

/// The first promise that the saver breaks when one of these calls fails with
/// one of the errors that the system gives, once or for good.
QString firstBrokenPromise(Saver save, const std::string &call, int count, Standing standing)
{
    for (int from = 1; from <= count; ++from) {
        for (const int error : {ENOSPC, EIO, EACCES, EDQUOT, EROFS, EPERM, EOPNOTSUPP, EINTR,
                                EINVAL, ENOSYS, ENOLCK, ENOENT, EISDIR, EMLINK, ENODATA, ERANGE}) {
            // What is tried again or done in another way fails only once.
            const bool isForGood = !QList{EINTR, ERANGE, ENOENT, EISDIR, EMLINK}.contains(error);
            for (int times = 1; times <= (isForGood ? 1000 : 1); times += 999) {
                const QString broken = brokenPromise(save, call, from, times, error, standing);
                if (!broken.isEmpty())
                    return QStringLiteral("%1 from the %2. time, %3: %4")
                        .arg(QString::fromStdString(call), QString::number(from),
                             qt_error_string(error), broken);
            }
        }
    }
    return {};
}

/// A call that a save makes, how often, of what file, and whether that is encrypted.
using Call = std::tuple<std::string, int, Standing, bool>;

using Meanwhile = std::function<void(const Desk &)>;

/// What a saving or a loading program meets at one of its calls, and what comes of it.
struct Meeting {
    std::string call;
    int from;
    int error; ///< with 0 the call lies, or something happens meanwhile
    std::optional<StorageFailure> failure;
    Meanwhile meanwhile = {};
    int times = 1;
    int left = 2; ///< the version in the file after a failure
    bool isSaving = true;
    Standing standing = Standing::Open;
};

} // namespace

/// Lets each file call of a save fail in turn and compares what is left with
/// what was promised.
class SaveFaultsTest final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const int version : {1, 2, 3, 4})
            QVERIFY(!bytesOf(version).isEmpty()); // made before any call fails
    }

    void cleanup() { test::isEncrypting = false; }
    void aCarelessSaverIsCaught()
    {
        const int writes = callsOf(&Desk::saveCarelessly, Standing::Open).at("write");
        QVERIFY(writes > 0);
        QVERIFY(
            !firstBrokenPromise(&Desk::saveCarelessly, "write", writes, Standing::Open).isEmpty());
    }

    void everyFailureLeavesAWholeFile_data()
    {
        QTest::addColumn<Call>("row");
        for (const bool isEncrypted : {false, true}) {
            test::isEncrypting = isEncrypted;
            for (const auto &[standing, words] :
                 {std::pair(Standing::Open, ""),
                  std::pair(Standing::First, " of the first version"),
                  std::pair(Standing::NotOpen, " of a file not opened"),
                  std::pair(Standing::New, " of a new file")}) {
                if (isEncrypted && standing != Standing::Open && randomRuns(0) == 0)
                    continue;
                for (const auto &[call, count] : callsOf(&Desk::save, standing))
                    QTest::addRow("%s%s%s", call.c_str(), words, isEncrypted ? ", encrypted" : "")
                        << Call(call, count, standing, isEncrypted);
            }
        }
        test::isEncrypting = false;
    }
    void everyFailureLeavesAWholeFile()
    {
        const auto [call, count, standing, isEncrypted] = test::rowOf<Call>();
        const MessageLog log; // a version that is not removed is a warning
        test::isEncrypting = isEncrypted;
        QCOMPARE(firstBrokenPromise(&Desk::save, call, count, standing), QString());
    }

    void whateverIsMetIsToldRight_data()
    {
        QTest::addColumn<Meeting>("row");
        const auto row = [](const char *title, const Meeting &met) { QTest::newRow(title) << met; };
        const auto write = [](const QString &which, int version) {
            return [=](const Desk &d) { d.folder.write(which, bytesOf(version)); };
        };
        const auto replace = [](int version) {
            return [=](const Desk &d) {
                d.folder.write(u"other"_qs, bytesOf(version));
                std::rename(qPrintable(d.folder.path(u"other"_qs)), qPrintable(d.path));
            };
        };
        const auto failThen = [](const char *call, int error) {
            return [=](const Desk &) { fail(call, 1, error); };
        };
        using enum StorageFailure;
        // A write that is cut short goes on, for as long as anything is taken; what reads
        // back otherwise is not saved.
        row("a write cut short", {"write", 1, 0, {}});
        row("writes cut short", {"write", 1, 0, CannotWrite, {}, 1000});
        row("another byte read back", {"pread", 2, 0, CannotWrite});
        row("nothing read back", {"pread", 1, 0, CannotWrite, {}, 1000});
        // The former versions are read first. Where no file can be without a name, it has one.
        row("no nameless files", {"openat", 3, EISDIR, {}});
        row("nobody knows of nameless files", {"openat", 3, ENOENT, {}});
        row("no new files", {"openat", 3, EACCES, CannotWrite});
        row("reading back interrupted", {"pread", 2, EINTR, {}});
        row("no reading back", {"pread", 2, EIO, CannotWrite});
        row("no link to the old version", {"linkat", 2, EIO, CannotWrite});
        row("attributes that grow meanwhile", {"flistxattr", 2, ERANGE, {}});
        // While the new version is synchronised, before the old one is replaced.
        row("written to", {"fsync", 1, 0, ChangedOnDisk, write(homeBudget, 4), 1, 4});
        row("replaced", {"fsync", 1, 0, ChangedOnDisk, replace(4), 1, 4});
        row("replaced by the same", {"fsync", 1, 0, ChangedOnDisk, replace(2), 1, 2});
        // The new version is in its place when the folder cannot be synchronised, and
        // there is no way back, since the one that was kept cannot be moved.
        row("no moving back", {"fsync", 3, EIO, CannotWrite, failThen("renameat", EIO), 1, 3});
        // Where there are no links, a copy is kept, or nothing is saved.
        row("a copy", {"linkat", 2, EPERM, {}});
        row("no copy", {"linkat", 2, EXDEV, CannotWrite, failThen("fsync", EIO)});
        row("no attributes of the copy",
            {"linkat", 2, EMLINK, CannotWrite, failThen("fchmod", EIO)});
        // Only where there are no locks it goes on without.
        for (const int error : {ENOLCK, ENOSYS, EOPNOTSUPP, EINVAL, EIO, EINTR}) {
            std::optional<StorageFailure> failure;
            if (error == EIO || error == EINTR)
                failure = CannotWrite;
            QTest::addRow("lock: %s", qPrintable(qt_error_string(error)))
                << Meeting{"flock", 1, error, failure, {}, 1, 2, true, Standing::NotOpen};
        }

        const auto loading = [&](const char *title, Meeting met) {
            met.isSaving = false;
            met.standing = Standing::NotOpen;
            row(title, met);
        };
        const auto makeLock = [](const Desk &d) { d.folder.write(lockFile, ""); };
        loading("not to be asked for", {"access", 1, EIO, {}});
        loading("gone", {"lstat", 3, 0, NotFound, [](const Desk &d) { QFile::remove(d.path); }});
        loading("cut short",
                {"read", 1, 0, Damaged, [](const Desk &d) { QFile::resize(d.path, 5000); }});
        loading("lock replaced", {"lstat", 2, 0, {}, [=](const Desk &d) {
                                      QFile::remove(d.path + u".lock"_qs);
                                      makeLock(d);
                                  }});
        loading("lock only to be read", {"lstat", 1, 0, {}, [=](const Desk &d) {
                                             makeLock(d);
                                             fail("open", 1, EACCES);
                                         }});
        loading("lock not to be made", {"open", 1, EACCES, {}});
        loading("lock made by another just then", {"open", 1, 0, {}, makeLock});
    }
    void whateverIsMetIsToldRight()
    {
        const auto met = test::rowOf<Meeting>();
        const MessageLog log; // a version that is not removed is a warning
        Desk desk(met.standing);
        storage::BudgetStorage::Data data;
        QString told;
        std::function<void()> meanwhile;
        if (met.meanwhile)
            meanwhile = [&] { met.meanwhile(desk); };
        fail(met.call, met.from, met.error, meanwhile, met.times);
        const auto failure = test::failureOf([&] {
            try {
                met.isSaving ? desk.save(3) : void(data = desk.file.load());
            } catch (const storage::StorageError &error) {
                told = error.message();
                throw;
            }
        });
        failingCalls = {};
        QCOMPARE(failure, met.failure);
        if (!met.isSaving) {
            if (!failure)
                QCOMPARE(test::bankIn(data), u"2"_qs);
            return;
        }
        QCOMPARE(desk.image(homeBudget), imageOf(failure ? met.left : 3));
        // The reason is the system's own.
        if (failure == StorageFailure::CannotWrite && met.error != 0 && !met.meanwhile)
            QVERIFY2(told.contains(qt_error_string(met.error)), qPrintable(told));
        if (failure == StorageFailure::ChangedOnDisk) {
            QCOMPARE(desk.folder.names(), (QStringList{homeBudget, lockFile, versionsFolder}));
            return;
        }
        desk.save(4);
        // The third only where it could be saved.
        QCOMPARE(desk.kept().size(), failure && met.left != 3 ? 3 : 4);
        QCOMPARE(desk.image(homeBudget), imageOf(4));
    }

    void theLockFileGoesWithTheFile()
    {
        for (const char *call : {"lstat", "unlink"}) {
            const Desk desk(Standing::NotOpen);
            {
                const test::TestFile file(desk.path);
                fail(call, 1, EIO);
            }
            failingCalls = {};
            QVERIFY2(!desk.folder.names().contains(lockFile), call);
        }
    }

    void rightsOfALostGroupGoToNobody()
    {
        // As a list says it: its version, then who may do what. The group has the
        // right to write.
        constexpr const char *list = "system.posix_acl_access";
        const QByteArray rights = QByteArray::fromHex("0200000001000600ffffffff02000600d2040000"
                                                      "04000600ffffffff10000600ffffffff20000400"
                                                      "ffffffff");
        for (const bool isLost : {false, true}) {
            Desk desk;
            const QByteArray path = QFile::encodeName(desk.path);
            if (::geteuid() != 0 ||
                ::setxattr(path, list, rights.constData(), std::size_t(rights.size()), 0) != 0)
                QSKIP("Only root gives files away, and not every file system has lists.");
            // Only who may not give the file away goes on without, to the group or the owner.
            for (const int call : {1, 2}) {
                fail("fchown", call, EIO);
                QCOMPARE(test::failureOf([&] { desk.save(3); }), StorageFailure::CannotWrite);
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
};

static const kiv::test::Suite<SaveFaultsTest> saveFaultsSuite;
#include "tst_save_faults.moc"
