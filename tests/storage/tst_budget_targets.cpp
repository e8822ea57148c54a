// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "open_budget.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace kiv;
using storage::StorageFailure;
using test::bankIn;
using test::budget;

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

} // namespace

class BudgetTargetsTest final : public test::OpenBudget {
    Q_OBJECT

private slots:
    void init() { begin(); }
    void refusedFilesStayAndTheOpenOneStaysOpen_data();
    void refusedFilesStayAndTheOpenOneStaysOpen();
    void otherFilesAreNotOverwritten_data();
    void otherFilesAreNotOverwritten();
    void whatMayNotBeWrittenStays_data();
    void whatMayNotBeWrittenStays();
    void whatIsInTheWayStays_data();
    void whatIsInTheWayStays();
    void linksAreFollowed();
    void attributesAreKept();
};

void BudgetTargetsTest::refusedFilesStayAndTheOpenOneStaysOpen_data()
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

void BudgetTargetsTest::refusedFilesStayAndTheOpenOneStaysOpen()
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

void BudgetTargetsTest::otherFilesAreNotOverwritten_data()
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

void BudgetTargetsTest::otherFilesAreNotOverwritten()
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

void BudgetTargetsTest::whatMayNotBeWrittenStays_data()
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
    if (::geteuid() == 0)
        QTest::newRow("folder whose files stay their owners'")
            << 01777U << 0666U << QString()
            << u"The file '%1' could not be saved: Operation not permitted."_qs;
    QTest::newRow("closed folder") << 0666U << 0666U << unread << unread;
}

void BudgetTargetsTest::whatMayNotBeWrittenStays()
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

void BudgetTargetsTest::whatIsInTheWayStays_data()
{
    using Make = std::function<void(const QByteArray &)>;
    QTest::addColumn<QString>("name");
    QTest::addColumn<Make>("make");
    const auto row = [](const char *title, const QString &name, const Make &make) {
        QTest::newRow(title) << name << make;
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
    row("folder as what is being saved", u".home.budget.saving"_qs,
        [](const QByteArray &path) { ::mkdir(path, 0700); });
}

void BudgetTargetsTest::whatIsInTheWayStays()
{
    QFETCH(QString, name);
    QFETCH(std::function<void(const QByteArray &)>, make);
    m_file.emplace(); // locks nothing any more
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
            QVERIFY2(error.message().contains(m_folder->path(name)), qPrintable(error.message()));
        }
    }
    m_file.reset();
    QCOMPARE(m_folder->names(), names);
    QCOMPARE(m_folder->read(name), before);
}

void BudgetTargetsTest::linksAreFollowed()
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

void BudgetTargetsTest::attributesAreKept()
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

static const kiv::test::Suite<BudgetTargetsTest> suite;
#include "tst_budget_targets.moc"
