// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/versions/kept_versions.h"

#include "storage/scratch_folder.h"
#include "support/accounting.h"
#include "support/damage.h"
#include "support/message_log.h"
#include "support/surroundings.h"

#include <array>
#include <atomic>
#include <csignal>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;
using navigation::Navigator;
using namespace workbench;
using Data = storage::BudgetStorage::Data;
using Kept = Document::Kept;

namespace {

void addBank(Document &document, const QString &name)
{
    document.requests().change(workbench::bankOutcome, &Navigator::onBankAdded,
                               banking::Bank(banking::BankName(name), {}, false));
}

void addAccount(Document &document, std::uint32_t number)
{
    document.requests().change(
        workbench::accountOutcome, &Navigator::onAddedAct,
        accounting::Account(accounting::AccountTypes::Asset,
                            accounting::AccountCode(accounting::AccountNumber(number + 100),
                                                    u"Account %1"_s.arg(number), std::nullopt),
                            test::usd("7"), false));
}

Deed deed(int number)
{
    return {u"Deed %1"_s.arg(number), u"deed %1"_s.arg(number), u"place %1"_s.arg(number)};
}

/// A budget with a few versions in its file, open, and beside it a list of its states.
class Walk {
public:
    explicit Walk(unsigned seed) : m_random(seed)
    {
        for (int version = 0; version < 3; ++version) {
            // Another document each time: what one stores at once is one version.
            Document document(test::surroundings(m_folder.path(u"rates"_s)));
            if (version > 0)
                document.open(m_path);
            addBank(document, u"First %1"_s.arg(version));
            const QString line = u"Version %1"_s.arg(version);
            if (version > 0)
                document.save(line);
            else
                document.create(m_path, line);
            m_states.push_back({document.present(), line});
        }
        m_place = m_states.size() - 1;
        open();
    }

    /// Makes a random step, and answers what is wrong then, or nothing.
    QString step()
    {
        try {
            const QString did = act();
            const QString wrong = wrongNow();
            return wrong.isEmpty() ? QString() : u"%1: %2"_s.arg(did, wrong);
        } catch (const std::exception &error) {
            return QString::fromUtf8(error.what());
        }
    }

    /// Whether further versions would have some of the first thinned.
    [[nodiscard]] bool isFull() const { return workbench::KeptVersions(m_path).all().size() > 9; }

    /// Closes and opens the file.
    QString reopened()
    {
        setBlocked(false);
        m_document->saveUnsaved(); // closing would say that it could not be saved
        m_document.reset();
        open();
        const workbench::KeptVersions versions(m_path);
        std::set<qint64> numbers;
        for (const storage::KeptVersion &version : versions.all()) {
            if (!numbers.insert(version.mark.number).second)
                return u"two versions %1"_s.arg(version.name);
        }
        // The file's versions are some of the session's states, in the same order.
        std::vector<State> states;
        std::size_t place = m_place + 1;
        bool isThinned = false;
        for (const auto *version = &versions.present(); version;
             version = versions.before(*version)) {
            states.insert(states.begin(), {workbench::dataOf(*version), version->mark.change});
            if (isThinned) // it goes on with the next lower number
                continue;
            while (place > 0 && m_states[place - 1].data != states.front().data)
                --place;
            if (place == 0)
                return u"version %1 is none of the states before"_s.arg(version->name);
            isThinned = isThinned || !isAncestorKept(versions, *version);
            if (version->isFile && place != m_place + 1)
                return u"the file has not the last state"_s;
        }
        m_place = states.size() - 1;
        for (const auto *version = versions.after(versions.present()); version;
             version = versions.after(*version))
            states.push_back({workbench::dataOf(*version), version->mark.change});
        m_states = std::move(states);
        return wrongNow();
    }

private:
    struct State {
        Data data;
        QString line;
    };

    int pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

    static bool isAncestorKept(const workbench::KeptVersions &versions,
                               const storage::KeptVersion &version)
    {
        return std::ranges::any_of(versions.all(), [&](const storage::KeptVersion &other) {
            return version.mark.ancestors.contains(other.mark.id);
        });
    }

    void open()
    {
        m_document.emplace(test::surroundings(m_folder.path(u"rates"_s)));
        m_document->setKeeping(Document::Keeping::WithinASecond);
        m_document->open(m_path);
    }

    /// A folder has the name of the file, so that it cannot be saved.
    void setBlocked(bool isBlocked)
    {
        if (std::exchange(m_isBlocked, isBlocked) == isBlocked)
            return;
        m_document->writePending();
        const QString away = m_folder.path(u"away"_s);
        if (isBlocked)
            m_isBlocked = QFile::rename(m_path, away) && QDir().mkdir(m_path);
        else
            m_isBlocked = !(QDir().rmdir(m_path) && QFile::rename(away, m_path));
    }

    QString act()
    {
        Document &document = *m_document;
        switch (pick(12)) {
        default: {
            const int number = ++m_deeds;
            document.perform(deed(number), [&] {
                if (number % 2 == 0)
                    addBank(document, u"Bank %1"_s.arg(number));
                else
                    addAccount(document, static_cast<std::uint32_t>(number));
            });
            m_states.resize(m_place + 1);
            m_states.push_back({document.present(), deed(number).line});
            ++m_place;
            return deed(number).line;
        }
        case 0: {
            try {
                document.perform(deed(0), [&] {
                    addBank(document, u"Half"_s);
                    addBank(document, u"Half"_s);
                });
            } catch (const workbench::Refusal &) {
                return u"a deed that fails half-way"_s;
            }
            return u"what should have failed"_s;
        }
        case 1:
        case 2:
            return go(-1 - pick(3));
        case 3:
            return go(1 + pick(3));
        case 4: {
            const auto steps = static_cast<int>(document.history().size());
            const int to = pick(steps);
            const auto first = m_place - document.history().place();
            (void)document.goTo(to);
            m_place = first + static_cast<std::size_t>(to);
            return u"go to step %1"_s.arg(to);
        }
        case 5:
            setBlocked(pick(3) == 0);
            return m_isBlocked ? u"block"_s : u"unblock"_s;
        case 6:
            std::this_thread::sleep_for(std::chrono::milliseconds(pick(700)));
            document.listen();
            return u"wait"_s;
        case 7:
            try {
                document.writeNow();
                return document.kept() == Kept::Saved ? u"write"_s : u"written, but not saved"_s;
            } catch (const storage::StorageError &) {
                return m_isBlocked && document.whyNotSaved() ? u"write in vain"_s
                                                             : u"write refused"_s;
            }
        }
    }

    QString go(int by)
    {
        const auto goal = static_cast<qsizetype>(m_place) + by;
        const bool isPossible = goal >= 0 && goal < static_cast<qsizetype>(m_states.size());
        const std::size_t wasAt = m_document->history().place();
        try {
            const auto recalled = by < 0 ? m_document->undo(-by) : m_document->redo(by);
            if (!isPossible)
                return u"went too far"_s;
            m_place = static_cast<std::size_t>(goal);
            const QString line = m_states[by < 0 ? m_place + 1 : m_place].line;
            return recalled.deed.line == line ? u"go by %1"_s.arg(by)
                                              : u"went by %1, but not %2"_s.arg(by).arg(line);
        } catch (const workbench::Refusal &) {
            // What could not be written cannot be left for a version of the file.
            const bool isOfSession = by > 0 || static_cast<std::size_t>(-by) <= wasAt;
            return !isPossible || (m_isBlocked && !isOfSession) ? u"no further"_s
                                                                : u"refused to go"_s;
        }
    }

    QString wrongNow()
    {
        const auto line = [](const std::optional<Deed> &known) {
            return known ? known->line : u"nothing"_s;
        };
        if (m_document->present() != m_states[m_place].data)
            return u"another state than %1"_s.arg(m_states[m_place].line);
        const QString before = m_place > 0 ? m_states[m_place].line : u"nothing"_s;
        if (!m_isBlocked && line(m_document->undoable()) != before)
            return u"undo would take back %1, not %2"_s.arg(line(m_document->undoable()), before);
        const QString next = m_place + 1 < m_states.size() ? m_states[m_place + 1].line : QString();
        if (!next.isEmpty() && line(m_document->redoable()) != next)
            return u"redo would do %1, not %2"_s.arg(line(m_document->redoable()), next);
        return {};
    }

    test::ScratchFolder m_folder;
    QString m_path = m_folder.path(u"home.budget"_s);
    std::mt19937 m_random;
    std::optional<Document> m_document;
    std::vector<State> m_states;
    std::size_t m_place = 0;
    int m_deeds = 0;
    bool m_isBlocked = false;
};

/// What a killed program had done: deed after deed, and when each was done.
struct Record {
    std::atomic<int> count = 0;
    std::array<std::atomic<std::int64_t>, 100'000> times = {};

    static std::int64_t now()
    {
        return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::milliseconds(1);
    }
};

using Change = void (*)(Document &document, const QString &from, const QString &to);

void rename(Document &document, const QString &from, const QString &to)
{
    document.requests().change(workbench::bankOutcome, &Navigator::onBankRenamed,
                               banking::BankName(from), banking::BankName(to));
}

void renameKept(Document &document, const QString &from, const QString &to)
{
    document.perform({to, {}, {}}, [&] { rename(document, from, to); });
}

/// A process that changes a budget steadily and is killed. The name of its bank is the
/// number of the last change.
class Victim {
public:
    explicit Victim(Change change)
        : m_record(new (::mmap(nullptr, sizeof(Record), PROT_READ | PROT_WRITE,
                               MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Record)
    {
        {
            Document document(test::surroundings(m_folder.path(u"rates"_s)));
            addBank(document, u"0"_s);
            document.create(m_path, u"Created"_s);
        }
        m_process = ::fork();
        if (m_process == 0)
            work(change);
    }
    ~Victim() { ::munmap(m_record, sizeof(Record)); }
    Victim(const Victim &) = delete;
    Victim &operator=(const Victim &) = delete;

    /// Kills it, and answers what is wrong then, or nothing.
    QString killed()
    {
        const std::int64_t at = Record::now();
        ::kill(m_process, SIGKILL);
        int status = 0;
        ::waitpid(m_process, &status, 0);
        if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
            return u"it ended by itself"_s;
        const QString wrong = test::wrongInVersions(m_path);
        if (!wrong.isEmpty())
            return wrong;
        const Data data = test::load(m_path);
        const int last = data.banks.begin()->first.institution().toInt();
        const int lost = last + 1;
        if (lost <= m_record->count &&
            m_record->times[static_cast<std::size_t>(lost)] < at - lostMax)
            return u"change %1 of %2 was lost after %3 ms"_s.arg(lost)
                .arg(m_record->count)
                .arg(at - m_record->times[static_cast<std::size_t>(lost)]);
        return {};
    }

    /// A second, and what a machine that does other work takes in addition.
    static constexpr std::int64_t lostMax = 2'500;

private:
    [[noreturn]] void work(Change change)
    {
        try {
            Document document(test::surroundings(m_folder.path(u"rates"_s)));
            document.setKeeping(Document::Keeping::WithinASecond);
            document.open(m_path);
            for (int number = 1; number < 100'000; ++number) {
                change(document, QString::number(number - 1), QString::number(number));
                m_record->times[static_cast<std::size_t>(number)] = Record::now();
                m_record->count = number;
                std::this_thread::sleep_for(1ms);
            }
        } catch (const std::exception &error) {
            qWarning("%s", error.what());
        }
        ::_exit(1);
    }

    test::ScratchFolder m_folder;
    QString m_path = m_folder.path(u"home.budget"_s);
    Record *m_record;
    pid_t m_process = -1;
};

/// Kills so many processes at random moments. Answers what was wrong, or nothing.
QString brokenByKills(Change change, int kills, int sinceMs, int untilMs)
{
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> moment(sinceMs, untilMs);
    while (kills > 0) {
        std::multimap<int, std::unique_ptr<Victim>> victims;
        for (int count = std::min(kills, 10); count > 0; --count, --kills)
            victims.emplace(moment(random), std::make_unique<Victim>(change));
        const std::int64_t begun = Record::now();
        QString broken;
        for (const auto &[after, victim] : victims) {
            std::this_thread::sleep_for(std::chrono::milliseconds(begun + after - Record::now()));
            const QString wrong = victim->killed();
            if (!wrong.isEmpty())
                broken = wrong;
        }
        if (!broken.isEmpty())
            return broken;
    }
    return {};
}

} // namespace

/// A document that keeps its changes at once and writes them within a second.
class DocumentTest final : public QObject {
    Q_OBJECT

private slots:
    void everyWalkOfDeedsUndoAndRedoAgreesWithAList()
    {
        for (int run = 0; run < randomRuns(4); ++run) {
            const unsigned seed = std::random_device()();
            Walk walk(seed);
            for (int part = 0; part < 3 && !walk.isFull(); ++part) {
                for (int step = 0; step < 30 && !walk.isFull(); ++step) {
                    const QString wrong = walk.step();
                    QVERIFY2(wrong.isEmpty(),
                             qPrintable(u"seed %1, step %2, %3"_s.arg(seed).arg(step).arg(wrong)));
                }
                const QString wrong = walk.reopened();
                QVERIFY2(wrong.isEmpty(),
                         qPrintable(u"seed %1, reopened: %2"_s.arg(seed).arg(wrong)));
            }
        }
    }

    void nothingIsLostButTheLastSecond()
    {
        // First one that keeps nothing.
        const int late = static_cast<int>(Victim::lostMax) + 1'000;
        QVERIFY(brokenByKills(rename, 1, late, late).contains(u"was lost"_s));
        const QString broken = brokenByKills(renameKept, randomRuns(10), 200, late);
        QVERIFY2(broken.isEmpty(), qPrintable(broken));
    }

    void aFileThatAnotherHasIsOpenedForReading()
    {
        const test::ScratchFolder folder;
        const QString path = folder.path(u"home.budget"_s);
        Document owner(test::surroundings(folder.path(u"rates"_s)));
        addBank(owner, u"First"_s);
        owner.create(path, u"Created"_s);
        Document other(test::surroundings(folder.path(u"rates"_s)));
        other.setKeeping(Document::Keeping::WithinASecond);
        other.open(path, Document::Access::ChangeIfPossible);
        QVERIFY(other.isReadOnly() && other.whyReadOnly()->contains(u"another program"_s));
        bool isCalled = false;
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal, other.perform({}, [&] { isCalled = true; }));
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal, other.undo());
        QVERIFY(!isCalled);
        // Under another name it can be changed.
        other.saveAs(folder.path(u"other.budget"_s), u"Saved elsewhere"_s);
        other.perform({u"Added"_s, {}, {}}, [&] { addBank(other, u"Second"_s); });
        other.writeNow();
        QVERIFY(*storage::inspectBudget(folder.path(u"other.budget"_s)).data == other.present());
    }

    void anEncryptedBudgetStaysSo()
    {
        const test::ScratchFolder folder;
        const QString path = folder.path(u"home.budget"_s);
        {
            Document document(test::surroundings(folder.path(u"rates"_s)));
            document.setKeeping(Document::Keeping::WithinASecond);
            addBank(document, u"First"_s);
            document.create(path, u"Created"_s);
            document.perform({u"Added Second"_s, {}, {}}, [&] { addBank(document, u"Second"_s); });
            // What is pending is in the file that is encrypted, and undo goes on across it.
            QCOMPARE(document.encrypt(test::passphrase()), QStringList());
            QCOMPARE(test::inTheClear(path), QString());
            document.perform({u"Added Third"_s, {}, {}}, [&] { addBank(document, u"Third"_s); });
            document.undo(2);
            document.redo();
            document.saveCopy(folder.path(u"copy.budget"_s));
            document.writeNow();
            QCOMPARE(test::inTheClear(path), QString());
            QVERIFY_THROWS_EXCEPTION(workbench::Refusal, document.saveCopy(path));
        }
        Document document(test::surroundings(folder.path(u"rates"_s)));
        document.setKeeping(Document::Keeping::WithinASecond);
        const auto open = [&] { document.open(path, Document::Access::ChangeIfPossible); };
        QCOMPARE(test::failureOf(open), storage::StorageFailure::PassphraseNeeded);
        QVERIFY(document.file().isEmpty());
        document.keys().unlock(path, test::passphrase());
        open();
        QVERIFY(document.isEncrypted());
        QCOMPARE(document.undo().deed.line, u"Added Second"_s);
        document.writeNow();
        // A file that is lost comes back encrypted, once a version of it is unlocked.
        const QString lost = folder.path(u"lost.budget"_s);
        QDir().rename(path + u".versions"_s, lost + u".versions"_s);
        Document finder(test::surroundings(folder.path(u"rates"_s)));
        finder.openLost(lost);
        QString needed;
        try {
            (void)finder.undo();
        } catch (const storage::StorageError &error) {
            needed = error.filePathName();
        }
        QVERIFY(finder.keys().isLocked(needed));
        finder.keys().unlock(needed, test::passphrase());
        (void)finder.undo();
        QVERIFY(finder.isEncrypted());
        QCOMPARE(test::inTheClear(path), QString());
    }

    void aCopyHasEverything()
    {
        const test::ScratchFolder folder;
        Document document(test::surroundings(folder.path(u"rates"_s)));
        document.setKeeping(Document::Keeping::WithinASecond);
        addBank(document, u"First"_s);
        document.create(folder.path(u"home.budget"_s), u"Created"_s);
        document.perform({u"Added"_s, {}, {}}, [&] { addBank(document, u"Second"_s); });
        document.saveCopy(folder.path(u"copy.budget"_s));
        QVERIFY(test::load(folder.path(u"copy.budget"_s)) == document.present());
        QCOMPARE(document.file(), folder.path(u"home.budget"_s));
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal,
                                 document.saveCopy(folder.path(u"copy.budget"_s)));
    }

    void moreStepsThanAreKeptLoseTheOldest()
    {
        const test::ScratchFolder folder;
        Document document(test::surroundings(folder.path(u"rates"_s)));
        document.setKeeping(Document::Keeping::WithinASecond);
        document.create(folder.path(u"home.budget"_s), u"Created"_s);
        for (int number = 1; number <= 1'003; ++number)
            document.perform(deed(number), [&] { addBank(document, u"%1"_s.arg(number)); });
        QCOMPARE(document.undo(2).deed.line, deed(1'002).line);
        QCOMPARE(document.redo().deed.line, deed(1'002).line);
        (void)document.undo(998);
        QCOMPARE(document.present().banks.size(), 4U);
        QCOMPARE(document.steps().size(), 1'000U);
    }

private:
    const MessageLog m_log;
};

static const kiv::test::Suite<DocumentTest> documentSuite;
#include "tst_document.moc"
