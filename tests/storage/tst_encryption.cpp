// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "failing_calls.h"
#include "image_surgery.h"
#include "open_budget.h"
#include "random_budget.h"

#include "support/message_log.h"

#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace storage;
using enum storage::StorageFailure;

namespace {

using Failure = std::optional<StorageFailure>;

constexpr qsizetype headerSize = 184;
constexpr qsizetype digestAt = 152;
constexpr qsizetype pieceSize = 65'536 + 17;

qsizetype streamBegin(const QByteArray &file)
{
    return headerSize + qsizetype(qFromBigEndian<quint32>(file.constData() + 144));
}

/// The file with another header, whose checksum is right.
template <typename Number>
QByteArray withNumber(QByteArray file, qsizetype at, Number number)
{
    qToBigEndian(number, file.data() + at);
    const auto hash = QCryptographicHash::hash(file.first(digestAt), QCryptographicHash::Sha256);
    return file.replace(digestAt, hash.size(), hash);
}

/// How a passphrase is written to open a file that another writing encrypted.
struct Writing {
    QByteArray encrypts;
    QByteArray opens;
    Failure failure = {};
};

/// The change of this number, and whether its process is killed or fails.
using BrokenOff = std::pair<int, bool>;

} // namespace

class EncryptionTest final : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        m_path = m_folder->path(homeBudget);
    }

    void cleanup() { test::isEncrypting = false; }

    void whatLooksAlikeOpens_data()
    {
        test::addRows<Writing>(
            {{"nothing", {"", "", PassphraseRefused}},
             {"one byte", {"a", "a"}},
             {"another one", {"a", "b", PassphraseWrong}},
             {"another case", {"a", "A", PassphraseWrong}},
             {"more", {"a", "aa", PassphraseWrong}},
             {"10,000 bytes", {QByteArray(10'000, 'x'), QByteArray(10'000, 'x')}},
             {"9,999 of them", {QByteArray(10'000, 'x'), QByteArray(9'999, 'x'), PassphraseWrong}},
             {"the most", {QByteArray(65'536, 'x'), QByteArray(65'536, 'x')}},
             {"too many", {QByteArray(65'537, 'x'), {}, PassphraseRefused}},
             {"composed and not", {"caf\xc3\xa9", "cafe\xcc\x81"}},
             {"compatible only", {"\xef\xac\x81", "fi", PassphraseWrong}},
             {"other spaces",
              {"a b\xc2\xa0"
               "c",
               "a\xe3\x80\x80"
               "b c"}},
             {"beyond the basic plane", {"\xf0\x9f\x94\x91", "\xf0\x9f\x94\x91"}},
             {"zeros and controls", {QByteArray("\0\1\n", 3), QByteArray("\0\1\n", 3)}},
             {"cut at a zero", {QByteArray("a\0b", 3), "a", PassphraseWrong}},
             {"no Unicode", {"\xff\xfe\x80", "\xff\xfe\x80"}},
             {"other bytes", {"\xff\xfe\x80", "\xff\xfe\x81", PassphraseWrong}}});
    }
    void whatLooksAlikeOpens()
    {
        const auto writing = test::rowOf<Writing>();
        const Failure failure = test::failureOf([&] {
            storage::BudgetFile file(test::atLeisure());
            file.setKeys(test::keys());
            file.encryptNext(Passphrase::ofBytes(writing.encrypts));
            file.setFilePathName(m_path);
            file.store(test::budget(u"First"_s));
        });
        QCOMPARE(failure ? failure : openedWith(Passphrase::ofBytes(writing.opens)),
                 writing.failure);
        QCOMPARE(test::inTheClear(m_path), QString());
        if (!failure)
            QCOMPARE(test::failureOf([&] { (void)storage::inspectBudget(m_path); }),
                     PassphraseNeeded);
    }

    void passphrasesLieInFiles()
    {
        const auto words = [&](const QByteArray &content) {
            m_folder->write(u"words"_s, content);
            return Passphrase::inFile(m_folder->path(u"words"_s)).bytes().toByteArray();
        };
        // One line break may end it, as editors write it.
        for (const char *content : {"a b", "a b\n", "a b\r\n"})
            QCOMPARE(words(content), "a b");
        QCOMPARE(words("a b\n\n"), "a b\n");
        QCOMPARE(test::failureOf([&] { words(QByteArray(70'000, 'x')); }), PassphraseRefused);
    }

    void whatIsPutTogetherIsNotRead()
    {
        // Two versions under one key, each with several pieces.
        test::isEncrypting = true;
        test::store(m_path, test::someBudget(1, 3000));
        const QByteArray one = test::contentOf(m_path);
        test::store(m_path, test::someBudget(2, 3000));
        const QByteArray two = test::contentOf(m_path);
        QCOMPARE(openedWith(test::passphrase()), Failure());
        const qsizetype begin = streamBegin(one);
        QCOMPARE(begin, streamBegin(two));
        QVERIFY(one.size() > begin + 3 * pieceSize);
        const auto failure = [&](const QByteArray &bytes) {
            test::overwrite(m_path, bytes);
            return openedWith(test::passphrase());
        };
        QCOMPARE(failure(one), Failure());
        const auto piece = [&](const QByteArray &file, qsizetype which) {
            return file.sliced(begin + which * pieceSize, pieceSize);
        };
        const QList<QByteArray> broken{
            one.first(begin) + two.sliced(begin),
            one.first(headerSize) + two.first(begin).sliced(headerSize) + one.sliced(begin),
            one.first(begin) + piece(one, 1) + piece(one, 0) + one.sliced(begin + 2 * pieceSize),
            one.first(begin) + piece(two, 0) + one.sliced(begin + pieceSize),
            one.first(begin) + one.sliced(begin + pieceSize),
            one + one.last(100),
            one.first(begin),
            one.first(begin + pieceSize),
            one.first(begin + 2 * pieceSize),
            one.chopped(1),
            one.first(headerSize - 1),
            one.first(20),
        };
        for (const QByteArray &bytes : broken)
            QVERIFY2(failure(bytes) == Damaged, qPrintable(QString::number(broken.indexOf(bytes))));
        // Every bit of what stands before the stream.
        for (qsizetype bit = 0; bit < 8 * begin; ++bit) {
            QByteArray flipped = one;
            flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
            const Failure told = failure(flipped);
            const bool isMagic = bit < 8 * 16;
            const bool isForm = bit >= 8 * 16 && bit < 8 * 20;
            QVERIFY2(isMagic ? told == NotOurs : told == Damaged || (isForm && told == Newer),
                     qPrintable(QString::number(bit)));
        }
    }

    void hostileHeadersCostNothing()
    {
        test::isEncrypting = true;
        test::store(m_path, test::budget(u"First"_s));
        const QByteArray whole = test::contentOf(m_path);
        const QList<std::pair<QByteArray, StorageFailure>> files{
            {withNumber(whole, 16, quint32(2)), Newer},
            {withNumber(whole, 16, quint32(0)), Damaged},
            {withNumber(whole, 20, quint32(0)), Damaged},
            {withNumber(whole, 20, quint32(17)), Damaged},
            {withNumber(whole, 24, quint64(8191)), Damaged},
            {withNumber(whole, 24, quint64((256 << 20) + 1024)), Damaged},
            {withNumber(whole, 24, ~quint64(0)), Damaged},
            {withNumber(whole, 144, ~quint32(0)), Damaged},
            // It is affordable, and another key.
            {withNumber(whole, 24, quint64(16'384)), PassphraseWrong},
        };
        for (const auto &[bytes, failure] : files) {
            test::overwrite(m_path, bytes);
            QCOMPARE(openedWith(test::passphrase()), failure);
            QCOMPARE(test::contentOf(m_path), bytes);
        }
        rlimit dumps = {};
        QCOMPARE(::getrlimit(RLIMIT_CORE, &dumps), 0);
        QVERIFY(dumps.rlim_cur <= 1); // since a passphrase was right, above
    }

    void versionsAreEncryptedToo()
    {
        makeVersions();
        const QStringList ids = test::versionsOf(m_path);
        QCOMPARE(ids.size(), 4);
        test::TestFile file(m_path);
        QCOMPARE(file.encrypt(test::passphrase()), QStringList());
        QCOMPARE(test::inTheClear(m_path), QString());
        QCOMPARE(test::versionsOf(m_path), ids);
        for (const KeptVersion &version : storage::keptVersions(m_path))
            QCOMPARE(version.telling, KeptVersion::Telling::Locked);
        // It goes on as before: a change, back to a version, and to what the first edition kept.
        file.store(test::budget(u"Fourth"_s));
        for (const auto &[which, bank] : {std::pair(2, u"Second"_s), std::pair(-1, QString())}) {
            const auto versions = storage::keptVersions(m_path, test::keys().get());
            file.restore(which < 0 ? versions.back() : versions.at(std::size_t(which)));
            const auto found = storage::inspectBudget(m_path, test::keys().get());
            QVERIFY(found.isEncrypted && found.data);
            if (which > 0)
                QCOMPARE(test::bankIn(*found.data), bank);
        }
        QCOMPARE(test::inTheClear(m_path), QString());

        const Passphrase other(u"other words"_s);
        file.encrypt(other);
        QCOMPARE(openedWith(test::passphrase()), PassphraseWrong);
        QCOMPARE(openedWith(other), Failure());
        KeyRing ring;
        for (const KeptVersion &version : storage::keptVersions(m_path)) {
            ring.unlock(version.path, other);
            QVERIFY(storage::inspectBudget(version.path, &ring).data);
        }
        QCOMPARE(file.decrypt(), QStringList());
        for (const KeptVersion &version : storage::keptVersions(m_path))
            QVERIFY(storage::inspectBudget(version.path).data);
        QVERIFY(!file.isEncrypted());
    }

    void theFileDecidesAboutOtherNames()
    {
        const auto isEncrypted = [&](const QString &name) {
            return m_folder->read(name).startsWith("kivbudget locked");
        };
        std::optional<test::TestFile> file(std::in_place);
        file->encryptNext(test::passphrase());
        const auto store = [&](const QString &name) {
            file->setFilePathName(m_folder->path(name));
            file->store(test::budget(name));
            return isEncrypted(name);
        };
        QVERIFY(store(u"one.budget"_s));
        QVERIFY(store(u"two.budget"_s));
        file->setNew(true);
        QVERIFY(!store(u"new.budget"_s));
        // What is there stays as it is, and gets no second key.
        QVERIFY(store(u"two.budget"_s));
        const auto ring = std::make_shared<KeyRing>();
        ring->unlock(m_folder->path(u"two.budget"_s), test::passphrase());
        for (const KeptVersion &version :
             storage::keptVersions(m_folder->path(u"two.budget"_s), ring.get()))
            QCOMPARE(version.telling, KeptVersion::Telling::Everything);
        file.reset();
        // The last version brings an encrypted file back,
        QFile::remove(m_folder->path(u"two.budget"_s));
        // encrypted as it was, whatever else was open.
        test::TestFile lost(m_folder->path(u"new.budget"_s));
        lost.setFilePathName(m_folder->path(u"two.budget"_s));
        lost.restore(storage::keptVersions(lost.filePathName(), ring.get()).front());
        QVERIFY(isEncrypted(u"two.budget"_s));
    }

    void anotherPassphrasesVersionsStay()
    {
        makeVersions();
        const QString stranger = storage::keptVersions(m_path).at(1).path;
        // One that no file may be as large as, and what a killed program was writing.
        const QString versions = m_path + u".versions/"_s;
        const QString large = versions + u"2020-01-01T00-00-00.000Z-900.budget"_s;
        test::overwrite(large, "SQLite format 3");
        QVERIFY(QFile::resize(large, qint64(65) << 20));
        for (const auto &left : {u".keeping"_s, u".2020-01-01T00-00-00.000Z-1.budget.saving"_s})
            test::overwrite(versions + left, "SQLite format 3");
        {
            test::TestFile file(stranger);
            file.setKeys(std::make_shared<KeyRing>(KeyRing::Cost::Small));
            file.encrypt(Passphrase(u"forgotten"_s));
        }
        const QByteArray kept = test::contentOf(stranger);
        test::TestFile file(m_path);
        QCOMPARE(file.encrypt(test::passphrase()), (QStringList{large, stranger}));
        QCOMPARE(test::inTheClear(m_path), QFileInfo(large).fileName());
        QFile::remove(large);
        QCOMPARE(test::contentOf(stranger), kept);
        const auto told = storage::keptVersions(m_path, test::keys().get()).at(1);
        QCOMPARE(told.telling, KeptVersion::Telling::Locked);
        QCOMPARE(test::failureOf([&] { file.restore(told); }), PassphraseNeeded);
        test::keys()->unlock(stranger, Passphrase(u"forgotten"_s));
        file.restore(told);
        QCOMPARE(openedWith(test::passphrase()), Failure());
        QCOMPARE(file.decrypt(), QStringList());
        for (const KeptVersion &version : storage::keptVersions(m_path))
            QVERIFY(storage::inspectBudget(version.path).data);
    }

    void whatWasBrokenOffIsFinished_data()
    {
        test::addRows<BrokenOff>({{"encrypt, failed", {0, false}},
                                  {"encrypt, killed", {0, true}},
                                  {"another passphrase, failed", {1, false}},
                                  {"another passphrase, killed", {1, true}},
                                  {"decrypt, failed", {2, false}},
                                  {"decrypt, killed", {2, true}}});
    }
    void whatWasBrokenOffIsFinished()
    {
        const auto [change, isKilled] = test::rowOf<BrokenOff>();
        const MessageLog log; // a leftover that was cleared away is a warning
        const Passphrase other(u"other words"_s);
        const std::array<Change, 3> changes{
            [](storage::BudgetFile &file) { file.encrypt(test::passphrase()); },
            [&](storage::BudgetFile &file) { file.encrypt(other); },
            [](storage::BudgetFile &file) { file.decrypt(); }};
        int broken = 0;
        for (const std::string call : {"write", "fsync", "renameat", "linkat", "unlinkat"}) {
            for (int at = 1; at < 100; ++at) {
                init();
                test::isEncrypting = change > 0;
                makeVersions();
                if (change > 0) {
                    const test::TestFile file(m_path); // the first edition's backup with it
                    QCOMPARE(test::inTheClear(m_path), QString());
                }
                if (!breakOff(changes[std::size_t(change)], call, at, isKilled))
                    break;
                ++broken;
                const QByteArray where =
                    QByteArray::fromStdString(call) + ' ' + QByteArray::number(at);
                const bool isEncrypted = test::contentOf(m_path).startsWith("kivbudget locked");
                if (isEncrypted) // with one of the two passphrases, never none
                    QVERIFY2(!openedWith(test::passphrase()) || !openedWith(other),
                             where.constData());
                const auto ring = std::make_shared<KeyRing>(KeyRing::Cost::Small);
                const bool isOld = change != 1 || !openedWith(test::passphrase());
                ring->unlock(m_path, isOld ? test::passphrase() : other);
                storage::BudgetFile file(test::atLeisure());
                file.setKeys(ring);
                file.setFilePathName(m_path);
                QCOMPARE(test::bankIn(file.load()), u"Third"_s);
                if (isEncrypted)
                    QVERIFY2(test::inTheClear(m_path).isEmpty(),
                             (where + ": " + test::inTheClear(m_path).toUtf8()).constData());
                for (const KeptVersion &version : storage::keptVersions(m_path)) {
                    KeyRing alone;
                    if (test::contentOf(version.path).startsWith("kivbudget locked"))
                        alone.unlock(version.path, isOld ? test::passphrase() : other);
                    QVERIFY2(storage::inspectBudget(version.path, &alone).data, where.constData());
                }
            }
        }
        QVERIFY(broken > 10);
    }

    void wantOfMemoryIsTold()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("The sanitizer has all the addresses.");
#endif
        const pid_t child = ::fork();
        if (child == 0) {
            const auto ring = std::make_shared<KeyRing>(KeyRing::Cost::Full);
            storage::BudgetFile file(test::atLeisure());
            file.setKeys(ring);
            const QByteArray pages = test::contentOf(u"/proc/self/statm"_s).split(' ').first();
            rlimit little{};
            ::getrlimit(RLIMIT_AS, &little);
            little.rlim_cur = pages.toULong() * 4096 + (32 << 20);
            ::setrlimit(RLIMIT_AS, &little);
            ::_exit(test::failureOf([&] { file.encryptNext(test::passphrase()); }) ==
                            TooLittleMemory
                        ? 0
                        : 1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
    }

private:
    using Change = std::function<void(storage::BudgetFile &)>;

    /// Three versions and a backup of the first edition.
    void makeVersions()
    {
        QFile::copy(QFINDTESTDATA("data/small.budget"), m_path + u".backup-1"_s);
        test::TestFile file;
        file.setFilePathName(m_path);
        for (const auto &bank : {u"First"_s, u"Second"_s, u"Third"_s}) {
            file.setChange(u"Added "_s + bank);
            file.store(test::budget(bank));
        }
    }

    Failure openedWith(const Passphrase &passphrase) const
    {
        const auto ring = std::make_shared<KeyRing>(KeyRing::Cost::Small);
        return test::failureOf([&] {
            ring->unlock(m_path, passphrase);
            storage::BudgetFile file(test::atLeisure());
            file.setKeys(ring);
            file.setFilePathName(m_path);
            file.setReading(true);
            (void)file.load();
        });
    }

    /// Runs `change` in a process that ends at the call of that number, which fails or kills it.
    bool breakOff(const Change &change, const std::string &call, int at, bool isKilled) const
    {
        const pid_t child = ::fork();
        if (child == 0) {
            test::TestFile file(m_path);
            test::fail(call, at, isKilled ? 0 : ENOSPC,
                       isKilled ? [] { ::raise(SIGKILL); } : std::function<void()>());
            (void)test::failureOf([&] { change(file); });
            const bool isReached = test::failingCalls.counts[call] >= at;
            test::failingCalls.isOn = false;
            ::_exit(isReached ? 1 : 0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFSIGNALED(status) || WEXITSTATUS(status) == 1;
    }

    std::optional<test::ScratchFolder> m_folder;
    QString m_path;
};

static const kiv::test::Suite<EncryptionTest> encryptionSuite;
#include "tst_encryption.moc"
