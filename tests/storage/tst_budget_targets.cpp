// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "open_budget.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

using storage::StorageFailure;
using test::bankIn;
using test::budget;
using Making = std::function<void(const QByteArray &path)>;

namespace {

using Obstacle = std::pair<QString, Making>;

/// A name, in which "%" is the folder of the test, how it is refused, and how it is made.
using Target = std::tuple<QString, StorageFailure, Making>;

/// The rights to a folder and to the file in it, and what reading and saving say then.
using Rights = std::tuple<uint, uint, QString, QString>;

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

} // namespace

class BudgetTargetsTest final : public test::OpenBudget {
    Q_OBJECT

private slots:
    void init() { begin(); }
    void refusedFilesStayAndTheOpenOneStaysOpen_data()
    {
        QTest::addColumn<Target>("row");
        const auto row = [](const char *title, StorageFailure failure, const QString &name,
                            const Making &make = {}) {
            QTest::newRow(title) << Target(name, failure, make);
        };
        using enum StorageFailure;
        row("no name", NoName, {});
        row("name with a zero", NoName, u"%/a"_qs + QChar(u'\0'));
        row("name with half a character", NoName, u"%/"_qs + QChar(0xD800));
        row("name too long", CannotRead, u"%/"_qs + QString(256, u'a'));
        row("missing", NotFound, u"%/none.budget"_qs);
        row("missing at the root", NotFound, u"/none.budget"_qs);
        row("missing where we are", NotFound, u"none.budget"_qs);
        row("missing folder", NotFound, u"%/none/a.budget"_qs);
        row("file as a folder", NotFound, u"%/home.budget/a.budget"_qs);
        row("folder", NotAFile, u"%/."_qs);
        row("folder above", NotAFile, u"%/.."_qs);

        const QString other = u"%/other.budget"_qs;
        const auto link = [](const char *target) {
            return [=](const QByteArray &path) { ::symlink(target, path); };
        };
        row("link to nothing", NotFound, other, link("nothing"));
        row("link with a whole path", NotFound, other, link("/nothing"));
        row("link to itself", CannotRead, other, link("other.budget"));
        row("folder that leads to itself", CannotRead, u"%/loop/a.budget"_qs,
            [](const QByteArray &path) { ::symlink("loop", path.first(path.lastIndexOf('/'))); });
        row("folder with a name", NotAFile, other,
            [](const QByteArray &path) { ::mkdir(path, 0700); });
        row("pipe", NotAFile, other, [](const QByteArray &path) { ::mkfifo(path, 0600); });
        row("device", NotAFile, other, [](const QByteArray &path) {
            // One of its own for root, who could lose the system's.
            if (::mknod(path, S_IFCHR | 0600, makedev(1, 3)) != 0)
                ::symlink("/dev/null", path);
        });

        const auto content = [](auto change) {
            return [change](const QByteArray &path) {
                QFile whole(QFileInfo(QFile::decodeName(path)).path() + u"/home.budget"_qs);
                QFile file(QFile::decodeName(path));
                QVERIFY(whole.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly));
                file.write(change(whole.readAll()));
            };
        };
        row("empty", NotOurs, other, content([](const QByteArray &) { return QByteArray(); }));
        row("text", NotOurs, other, content([](const QByteArray &) { return "Dear John"; }));
        row("another database", NotOurs, other,
            content([](QByteArray bytes) { return bytes.replace(68, 4, "none"); }));
        row("newer", Newer, other,
            content([](QByteArray bytes) { return bytes.replace(63, 1, "\3"); }));
        row("locked with a passphrase", Newer, other,
            content([](QByteArray bytes) { return bytes.replace(0, 16, "kivbudget locked"); }));
        row("cut short", Damaged, other,
            content([](const QByteArray &bytes) { return bytes.chopped(1); }));
        row("too large", TooLarge, other, [](const QByteArray &path) {
            QFile file(QFile::decodeName(path));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(1LL << 40));
        });
    }
    void refusedFilesStayAndTheOpenOneStaysOpen()
    {
        const auto [name, failure, make] = test::rowOf<Target>();
        const QString other = QString(name).replace(u"%"_qs, m_folder->path({}));
        if (make)
            make(QFile::encodeName(other));
        const QStringList names = m_folder->names();
        const bool isRead = failure != StorageFailure::TooLarge && QFileInfo(other).isFile();
        const QByteArray before = isRead ? m_folder->read(u"other.budget"_qs) : QByteArray();
        QCOMPARE(loading(other), failure);
        // What is another's is not saved over; what was a budget is kept as a former version.
        const bool isSaved = isRead && (failure == StorageFailure::Damaged || before.isEmpty());
        if (!isSaved && failure != StorageFailure::NotFound &&
            failure != StorageFailure::TooLarge) {
            QCOMPARE(storing(other, u"Third"_qs), failure);
            QCOMPARE(loading(other), failure);
        }
        QCOMPARE(m_file->filePathName(), m_path);
        QCOMPARE(m_folder->names(), names);
        m_file->store(budget(u"Second"_qs));
        if (isSaved) {
            QCOMPARE(storing(other, u"Third"_qs), std::nullopt);
            QCOMPARE(m_file->filePathName(), other);
        }
        // An empty file is no version.
        if (isRead && !before.isEmpty())
            QCOMPARE(test::contentOf(isSaved ? storage::keptVersions(other).back().path : other),
                     before);
        m_file.reset();
        QCOMPARE(bankIn(test::load(m_path)), u"Second"_qs);
    }

    void whatMayNotBeWrittenStays_data()
    {
        const QString unwritten = u"The file '%1' could not be saved: Permission denied."_qs;
        const QString unread = u"The file '%1' could not be read: Permission denied."_qs;
        test::addRows<Rights>({{"folder", {0555U, 0666U, {}, unwritten}},
                               {"file", {0777U, 0444U, {}, unwritten}},
                               {"file that hides", {0777U, 0222U, unread, unread}},
                               {"folder that hides", {0333U, 0666U, {}, unwritten}},
                               {"closed folder", {0666U, 0666U, unread, unread}}});
        if (::geteuid() == 0)
            QTest::newRow("folder whose files stay their owners'")
                << Rights(01777U, 0666U, {},
                          u"The file '%1' could not be saved: Operation not permitted."_qs);
    }
    void whatMayNotBeWrittenStays()
    {
        const auto [folderMode, fileMode, reading, saving] = test::rowOf<Rights>();
        m_file.emplace(test::atLeisure()); // locks nothing any more
        const QStringList names = m_folder->names();
        const QByteArray before = m_folder->read(u"home.budget"_qs);
        const auto setModes = [this](uint folder, uint file) {
            ::chmod(qPrintable(m_path), file);
            ::chmod(qPrintable(m_folder->path(u"."_qs)), folder);
        };
        const auto said = [this](bool isSaving) {
            return test::refusalOf([&] {
                m_file->setFilePathName(m_path);
                isSaving ? m_file->store(budget(u"Second"_qs)) : void(m_file->load());
            });
        };
        setModes(folderMode, fileMode);
        auto nobody = std::make_unique<Nobody>();
        const QString saidOnReading = said(false);
        const QString saidOnSaving = said(true);
        nobody.reset();
        setModes(0777, 0666);
        QCOMPARE(saidOnReading, QString(reading).replace(u"%1"_qs, m_path));
        QCOMPARE(saidOnSaving, QString(saving).replace(u"%1"_qs, m_path));
        m_file.emplace(test::atLeisure());
        QCOMPARE(m_folder->names(), names);
        QCOMPARE(m_folder->read(u"home.budget"_qs), before);
        nobody = std::make_unique<Nobody>();
        QCOMPARE(loading(m_path), std::nullopt);
        QCOMPARE(storing(m_path, u"Second"_qs), std::nullopt);
    }

    void whatIsInTheWayStays_data()
    {
        QTest::addColumn<Obstacle>("row");
        const auto row = [](const char *title, const QString &name, const Making &make) {
            QTest::newRow(title) << Obstacle(name, make);
        };
        const auto text = [](const QByteArray &content) {
            return [content](const QByteArray &path) {
                QFile file(QFile::decodeName(path));
                QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) > 0);
            };
        };
        const QString lock = u"home.budget.lock"_qs;
        row("text as a lock", lock, text("Dear John\n"));
        row("number as a lock", lock, text("4711\n"));
        row("folder as a lock", lock, [](const QByteArray &path) { ::mkdir(path, 0700); });
        row("link as a lock", lock, [](const QByteArray &path) { ::symlink("home.budget", path); });
        row("second name as a lock", lock, [=](const QByteArray &path) {
            text("1\ninit\nelsewhere\n")(path);
            ::link(path, QByteArray(path + "2"));
        });
        const QString versions = u"home.budget.versions"_qs;
        row("text as versions", versions, text("Dear John\n"));
        row("link as versions", versions, [](const QByteArray &path) { ::symlink(".", path); });
        row("folder as what is being saved", u".home.budget.saving"_qs,
            [](const QByteArray &path) { ::mkdir(path, 0700); });
    }
    void whatIsInTheWayStays()
    {
        const auto [name, make] = test::rowOf<Obstacle>();
        m_file.emplace(test::atLeisure()); // locks nothing any more
        make(QFile::encodeName(m_folder->path(name)));
        const QStringList names = m_folder->names();
        const QByteArray before = m_folder->read(name);
        for (const bool isSaved : {false, true}) {
            m_file->setFilePathName(m_path);
            try {
                if (isSaved)
                    m_file->store(budget(u"Second"_qs));
                else
                    (void)m_file->load();
                QVERIFY(!isSaved && !name.endsWith(u".lock"_qs));
            } catch (const storage::StorageError &error) {
                QVERIFY2(error.message().contains(m_folder->path(name)),
                         qPrintable(error.message()));
            }
        }
        m_file.reset();
        QCOMPARE(m_folder->names(), names);
        QCOMPARE(m_folder->read(name), before);
    }

    void versionsThatCannotBeKeptRefuseTheSave()
    {
        const QByteArray before = m_folder->read(u"home.budget"_qs);
        const QString versions = m_path + u".versions"_qs;
        m_file.emplace(test::atLeisure()); // locks nothing any more
        ::chmod(qPrintable(m_path), 0666);
        ::chmod(qPrintable(m_folder->path(u"."_qs)), 0777);
        const bool isRoot = ::geteuid() == 0;
        // Read-only, and a stranger's.
        for (const auto &[owner, mode, cause] :
             {std::tuple(65'534U, 0555U, u"cannot be used: Permission denied."_qs),
              std::tuple(1234U, 0777U, u"belongs to another user."_qs)}) {
            if (!isRoot && owner == 1234)
                QSKIP("Only root gives folders away.");
            ::mkdir(qPrintable(versions), mode);
            ::chmod(qPrintable(versions), mode);
            QVERIFY(!isRoot || ::chown(qPrintable(versions), owner, owner) == 0);
            const auto nobody = std::make_unique<Nobody>();
            const QString told =
                test::refusalOf([this] { test::store(m_path, budget(u"Second"_qs)); });
            QCOMPARE(bankIn(test::load(m_path)), u"First"_qs);
            QCOMPARE(told, u"The folder '%1' for the former versions "_qs.arg(versions) + cause);
            QCOMPARE(m_folder->read(u"home.budget"_qs), before);
            QCOMPARE(QDir(versions).entryList(QDir::Files).size(), 0);
            ::rmdir(qPrintable(versions));
        }
    }

    void linksAreFollowed()
    {
        QDir().mkdir(m_folder->path(u"sub"_qs));
        for (const char *target : {"home.budget", "sub/new.budget"}) {
            const QString link = m_folder->path(u"link.budget"_qs);
            QFile::remove(link);
            ::symlink(target, qPrintable(link));
            QCOMPARE(storing(link, u"Linked"_qs), std::nullopt);
            QCOMPARE(QFileInfo(link).symLinkTarget(), m_folder->path(QString::fromLatin1(target)));
            m_file.emplace(test::atLeisure());
            QCOMPARE(bankIn(test::load(m_folder->path(QString::fromLatin1(target)))), u"Linked"_qs);
        }

        // Another name of the same file keeps the version that it has.
        ::link(qPrintable(m_path), qPrintable(m_folder->path(u"hard.budget"_qs)));
        QCOMPARE(storing(m_path, u"Newer"_qs), std::nullopt);
        QCOMPARE(bankIn(test::load(m_folder->path(u"hard.budget"_qs))), u"Linked"_qs);
    }

    void attributesAreKept()
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
};

static const kiv::test::Suite<BudgetTargetsTest> budgetTargetsSuite;
#include "tst_budget_targets.moc"
