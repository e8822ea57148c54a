// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "image_surgery.h"
#include "random_budget.h"
#include "scratch_folder.h"

#include "storage/budget_inspection.h"
#include "storage/internal/faults.h"
#include "storage/internal/rows.h"
#include "support/damage.h"
#include "support/message_log.h"

#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <ctime>
#include <fstream>
#include <random>

#include <malloc.h>
#include <sqlite3.h>
#include <sys/resource.h>

using namespace kiv;
using storage::StorageFailure;
using Data = storage::BudgetStorage::Data;
using Sql = std::vector<const char *>;
using namespace Qt::StringLiterals;

namespace {

Data someBudget(unsigned seed, int steps)
{
    std::mt19937 random(seed);
    return test::RandomBudget(
               [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); })
        .make(steps);
}

/// Two accounts, a transaction and its refund.
Data smallBudget()
{
    Data data;
    accounting::SequentialAccountNumberGenerator generator;
    const numira::Currency usd = numira::toCurrency("USD");
    for (const std::uint32_t number : {1U, 2U})
        data.generalLedger.add({accounting::AccountTypes::Asset,
                                {accounting::AccountNumber(number), QStringLiteral("a"), {}},
                                numira::Money(usd),
                                false},
                               generator);
    const auto posted =
        data.generalLedger.post({QDate(2026, 1, 1), accounting::AccountNumber(1),
                                 accounting::AccountNumber(2), numira::Money(usd, 5, 0)});
    data.generalLedger.refund(posted, numira::Money(usd, 2, 0), QDate(2026, 1, 2));
    data.budget.bills.add(budgeting::Bill(budgeting::BudgetSource(QStringLiteral("Rent")),
                                          numira::Money(usd, 5, 0),
                                          budgeting::EventFrequency::Monthly, QDate(2026, 1, 1)));
    return data;
}

/// The verdicts on the promises in their order: kept, mended, Broken, or not
/// judged. Says so when the budget does not go with them.
QString verdictsOn(const QString &path)
{
    const storage::BudgetInspection found = storage::inspectBudget(path);
    QString verdicts;
    for (const storage::Judgement &judgement : found.judgements) {
        verdicts += u" kmB-"_s.at(int(judgement.verdict));
        if ((judgement.verdict == storage::Verdict::Kept ||
             judgement.verdict == storage::Verdict::NotJudged) != judgement.reasons.isEmpty())
            verdicts += QStringLiteral(" without a reason");
    }
    return found.data.has_value() != verdicts.contains(u'B')
               ? verdicts
               : verdicts + QStringLiteral(" and the budget");
}

/// As many transactions as there are numbers for.
Data fullBudget()
{
    Data data = smallBudget();
    const numira::Currency usd = numira::toCurrency("USD");
    for (int i = 2; i < 65'535; ++i)
        data.generalLedger.post({QDate(2026, 1, 1).addDays(i % 3650), accounting::AccountNumber(1),
                                 accounting::AccountNumber(2),
                                 numira::Money(usd, std::int64_t(i), 0),
                                 QStringLiteral("shopping")});
    return data;
}

/// In which a hostile file must have been refused.
#ifdef KIV_COUNTS_BRANCHES // which takes an atomic addition for each
constexpr int secondsMax = 5;
#else
constexpr int secondsMax = 1;
#endif

} // namespace

class BudgetDamageTest final : public QObject {
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const QString &name : m_folder.names())
            QFile::remove(m_folder.path(name));
    }

    void noFlippedBitAndNoTruncationIsRead();
    void noFlippedBitOfTheSmallestFileIsRead();
    void noFlippedBitOfTheLargestFileIsRead();
    void hostileFilesAreRefusedAtOnce_data();
    void hostileFilesAreRefusedAtOnce();
    void rowsThatSharePagesAreRefused();
    void theFirstWrongRowOfAFullFileIsNamed();
    void aSealThatWasMadeAgainIsRight();
    void everyPromiseIsJudged();
    void wantOfMemoryIsNoDamage();
    void rowsOutOfOrderAreRefused();
    void halfRowsAndEndlessQueriesEnd();

private:
    test::ScratchFolder m_folder{QFileInfo(u"/dev/shm"_qs).isWritable() ? u"/dev/shm"_qs
                                                                        : QDir::tempPath()};
    const QString m_path = m_folder.path(QStringLiteral("a.budget"));

    /// Whether these bytes are refused, or read as what they were.
    bool isRefusedOrEqual(const QByteArray &bytes, const Data &data)
    {
        m_folder.write(QStringLiteral("a.budget"), bytes);
        try {
            return test::difference(test::load(m_path), data).isEmpty();
        } catch (const storage::StorageError &) {
            return true;
        }
    }
};

void BudgetDamageTest::noFlippedBitAndNoTruncationIsRead()
{
    // Many transactions make inner pages as well; the few of the other one are
    // near each other, so that most flips hit something.
    for (const auto &[steps, stride] : {std::pair(60, 311), std::pair(1000, 30'013)}) {
        const Data data = someBudget(7, steps);
        test::store(m_path, data);
        const QByteArray whole = m_folder.read(QStringLiteral("a.budget"));
        QVERIFY(isRefusedOrEqual(whole, data));
        QVERIFY(!isRefusedOrEqual(whole, Data()));
        for (qsizetype bit = 0; bit < 8 * whole.size(); bit += bit < 800 ? 1 : stride) {
            QByteArray flipped = whole;
            flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
            if (!isRefusedOrEqual(flipped, data))
                QFAIL(qPrintable(QStringLiteral("bit %1").arg(bit)));
        }
        for (qsizetype size = 0; size < whole.size(); size += 1 + size / 5) {
            m_folder.write(QStringLiteral("a.budget"), whole.first(size));
            QVERIFY(test::failureOf([&] { (void)test::load(m_path); }));
        }
    }
}

void BudgetDamageTest::noFlippedBitOfTheSmallestFileIsRead()
{
    // Each bit and each size when there is time, otherwise some of them.
    const int stride = randomRuns(0) > 0 ? 1 : 97;
    test::store(m_path, {});
    const QByteArray whole = m_folder.read(QStringLiteral("a.budget"));
    for (qsizetype bit = 0; bit < 8 * whole.size(); bit += stride) {
        QByteArray flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        if (!isRefusedOrEqual(flipped, {}))
            QFAIL(qPrintable(QStringLiteral("bit %1").arg(bit)));
    }
    for (qsizetype size = 0; size < whole.size(); size += stride) {
        m_folder.write(QStringLiteral("a.budget"), whole.first(size));
        QVERIFY(test::failureOf([&] { (void)test::load(m_path); }));
    }
}

void BudgetDamageTest::noFlippedBitOfTheLargestFileIsRead()
{
    test::store(m_path, fullBudget());
    const Data data = test::load(m_path); // its bill has an account now
    const QByteArray whole = m_folder.read(QStringLiteral("a.budget"));
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    std::uniform_int_distribution<qsizetype> bits(0, 8 * whole.size() - 1);
    for (int run = randomRuns(3); run > 0; --run) {
        const qsizetype bit = bits(random);
        QByteArray flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        if (!isRefusedOrEqual(flipped, data))
            QFAIL(qPrintable(QStringLiteral("bit %1").arg(bit)));
    }
}

void BudgetDamageTest::hostileFilesAreRefusedAtOnce_data()
{
    QTest::addColumn<Sql>("sql");
    QTest::addColumn<StorageFailure>("failure");
    const auto row = [](const char *name, const Sql &sql,
                        StorageFailure failure = StorageFailure::Damaged) {
        QTest::newRow(name) << sql << failure;
    };
    row("another program's database", {"PRAGMA application_id = 0"}, StorageFailure::NotOurs);
    row("newer version", {"PRAGMA user_version = 2"}, StorageFailure::Newer);
    row("version 0", {"PRAGMA user_version = 0"});
    row("write-ahead journal", {"PRAGMA journal_mode = WAL"});
    row("view", {"CREATE VIEW v AS SELECT * FROM accounts"});
    row("view in a table's place", {"DROP TABLE item_tags; CREATE VIEW item_tags AS WITH RECURSIVE "
                                    "n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                                    "SELECT i, 1, 'a', 'b' FROM n"});
    row("trigger", {"CREATE TRIGGER t AFTER INSERT ON accounts BEGIN SELECT 1; END"});
    row("index", {"CREATE INDEX i ON accounts(name)"});
    row("virtual table", {"CREATE VIRTUAL TABLE f USING fts5(a)"});
    row("generated column", {"ALTER TABLE banks ADD COLUMN g TEXT AS (hex(zeroblob(100000000)))"});
    row("missing table", {"DROP TABLE seal"});
    row("other types", {"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET "
                        "sql = replace(sql, 'STRICT', '') WHERE name = 'accounts'"});
    row("tables exchanged", {"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET rootpage = 3 "
                             "WHERE name = 'accounts'"});
    row("no seal", {"DELETE FROM seal"});
    row("null name in a table that was not strict",
        {"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET "
         "sql = replace(replace(sql, 'STRICT', ''), ' NOT NULL', '') WHERE name = 'accounts'",
         "UPDATE accounts SET name = NULL",
         "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = 'CREATE TABLE "
         "accounts(number INTEGER PRIMARY KEY, name TEXT NOT NULL, parent INTEGER, type INTEGER "
         "NOT NULL, currency TEXT NOT NULL, closed INTEGER NOT NULL, holds_openings INTEGER NOT "
         "NULL, opened_by INTEGER) STRICT' WHERE name = 'accounts'"});

    const char *const loosen = "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET "
                               "sql = replace(sql, ' STRICT', '') WHERE name = 'banks'";
    const char *const tighten = "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET "
                                "sql = sql || ' STRICT' WHERE name = 'banks'";
    row("bytes in a text's place", {loosen, "INSERT INTO banks VALUES(1, x'41', 0)", tighten});
    row("text in a number's place", {loosen, "INSERT INTO banks VALUES(1, 'a', 'no')", tighten});
    row("table of another's name", {"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET "
                                    "tbl_name = 'banks' WHERE name = 'accounts'"});

    row("stored generated column", {"CREATE TABLE n(a INTEGER, b AS (a + 1) STORED)"});
    row("table more", {"CREATE TABLE n(a INTEGER) STRICT"});
    row("column more", {"ALTER TABLE accounts ADD COLUMN note TEXT"});
    row("column renamed", {"ALTER TABLE accounts RENAME COLUMN closed TO shut"});
    row("table renamed", {"ALTER TABLE surveys RENAME TO audits"});
    row("tree of rectangles", {"CREATE VIRTUAL TABLE r USING rtree(i, a, b)"});
    row("trigger that never ends",
        {"CREATE TRIGGER t AFTER INSERT ON banks BEGIN INSERT INTO banks SELECT new.id + 1, "
         "new.id + 1, 0; END"});
    row("larger pages", {"PRAGMA page_size = 65536; VACUUM"});
    row("statistics", {"ANALYZE"});

    row("account under itself", {"UPDATE accounts SET parent = 1 WHERE number = 1"});
    row("circle of parents", {"UPDATE accounts SET parent = 3 - number WHERE number < 3"});
    row("circle of three parents",
        {"INSERT INTO accounts SELECT 3, name, 1, type, currency, closed, 0, NULL FROM accounts "
         "WHERE number = 1; UPDATE accounts SET parent = 4 - number WHERE number IN (1, 3)"});
    row("missing parent", {"UPDATE accounts SET parent = 9"});
    row("account number too high", {"UPDATE accounts SET number = 4294967296 WHERE number = 2"});
    row("account type that is none", {"UPDATE accounts SET type = 6"});
    row("account type 0", {"UPDATE accounts SET type = 0"});
    row("currency that is none", {"UPDATE accounts SET currency = 'usd'"});
    row("closed twice over", {"UPDATE accounts SET closed = 2"});
    row("opened by a missing transaction", {"UPDATE accounts SET opened_by = 9"});
    row("malformed text", {"UPDATE accounts SET name = CAST(x'ff' AS TEXT)"});
    row("overlong text", {"UPDATE accounts SET name = CAST(x'c080' AS TEXT)"});
    row("text beyond all", {"UPDATE accounts SET name = printf('%.*c', 4200000, 'n')"});
    row("tag beyond all",
        {"INSERT INTO item_tags VALUES(1, 1, 'Rent', printf('%.*c', 4200000, 'n'))"});
    row("as large as may be",
        {"UPDATE accounts SET name = printf('%.*c', 4100000, 'n'), parent = 9",
         "WITH RECURSIVE n(i) AS (VALUES(3) UNION ALL SELECT i + 1 FROM n WHERE i < 16) "
         "INSERT INTO accounts SELECT i, printf('%d%.*c', i, 2050000, 'ü'), 1, 1, 'USD', 0, 0, "
         "NULL FROM n"});
    row("surrogates that make a pair",
        {"UPDATE accounts SET name = CAST(x'eda080edb080' AS TEXT)"});
    row("transaction number too high", {"UPDATE transactions SET number = 65536 WHERE number = 2"});
    row("missing account", {"UPDATE transactions SET debit = 9"});
    row("amount with an exponent", {"UPDATE transactions SET amount = '1e1'"});
    row("negative amount", {"UPDATE transactions SET amount = '-5'"});
    row("huge amount", {"UPDATE transactions SET amount = '1' || hex(zeroblob(1000000))"});
    row("side of a missing account",
        {"UPDATE transactions SET debit = 9, debit_amount = '5', credit_amount = '5'"});
    row("sides that differ",
        {"UPDATE transactions SET debit_amount = '1', credit_amount = '2' WHERE number = 1"});
    row("side in nothing", {"UPDATE transactions SET debit_amount = '0'"});
    row("date that is none", {"UPDATE transactions SET date = '2026-02-30'"});
    row("year in letters", {"UPDATE transactions SET date = 'MMXX-02-03'"});
    row("month below nothing", {"UPDATE transactions SET date = '2026--1-03'"});
    row("date with strokes", {"UPDATE transactions SET date = '2026/02/03'"});
    row("date with one stroke", {"UPDATE transactions SET date = '2026-02/03'"});
    row("date with blanks", {"UPDATE transactions SET date = '2026- 2-03'"});
    row("date of another length", {"UPDATE transactions SET date = '02026-02-03'"});
    row("status that is none", {"UPDATE transactions SET debit_status = 3"});
    row("refund of itself", {"UPDATE transactions SET refund_of = number"});
    row("refund of too much", {"UPDATE transactions SET amount = '6' WHERE number = 2"});
    row("refund of a refund", {"INSERT INTO transactions SELECT 3, date, credit, debit, amount, "
                               "currency, NULL, NULL, NULL, 0, 0, 2 FROM transactions LIMIT 1"});
    row("too many transactions",
        {"WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n WHERE i < 65536) INSERT "
         "INTO transactions SELECT i, '2026-01-01', 1, 2, '1', 'USD', NULL, NULL, NULL, 0, 0, NULL "
         "FROM n"});
    row("unknown kind of item", {"UPDATE items SET kind = 6"});
    row("no kind of item", {"UPDATE items SET kind = 0"});
    row("currency of no total", {"UPDATE items SET total_currency = 'USD'"});
    row("total of a bill", {"UPDATE items SET total = '1'"});
    row("frequency that is none", {"UPDATE items SET frequency = 16"});
    row("day of the month that is none", {"UPDATE items SET day_of_month = 32"});
    row("item twice", {"INSERT INTO items SELECT 2, kind, source, amount, currency, frequency, "
                       "next_date, day_of_month, total, total_currency FROM items"});
    row("negative row number", {"UPDATE items SET id = -1"});
    row("second account of an item", {"INSERT INTO item_accounts VALUES(1, 1, 'Rent', 1), "
                                      "(2, 1, 'Rent', 2)"});
    row("account twice in a bank", {"INSERT INTO banks VALUES(1, 'a', 0); INSERT INTO "
                                    "bank_accounts VALUES(1, 1, 1, 1), (2, 1, 1, 2)"});
    row("account of no kind",
        {"INSERT INTO banks VALUES(1, 'a', 0)", "INSERT INTO bank_accounts VALUES(1, 1, 1, 0)"});
    row("account of a missing bank", {"INSERT INTO bank_accounts VALUES(1, 1, 1, 1)"});
    row("bank without a name", {"INSERT INTO banks VALUES(1, '', 0)"});
    row("distribution of a missing survey",
        {"INSERT INTO distributions VALUES(1, 1, 1, 'a', '1', 'USD', NULL, '1', 'USD')"});
    row("distributions of one item",
        {"INSERT INTO surveys VALUES(1, 'a', 1, 1, '1', 'USD', NULL, '1', 'USD', '0.5', 6)",
         "INSERT INTO distributions VALUES(1, 1, 1, 'a', '1', 'USD', NULL, '1', 'USD'), "
         "(2, 1, 1, 'a', '1', 'USD', NULL, '1', 'USD')"});
    row("percentage in words",
        {"INSERT INTO surveys VALUES(1, 'a', 1, 1, '1', 'USD', NULL, '1', 'USD', 'half', 6)"});
    row("percentage that is no number",
        {"INSERT INTO surveys VALUES(1, 'a', 1, 1, '1', 'USD', NULL, '1', 'USD', 'nan', 6)"});
    row("tag twice", {"INSERT INTO item_tags VALUES(1, 1, 'Rent', 'a'), (2, 1, 'Rent', 'a')"});
    row("second seal", {"INSERT INTO seal VALUES(2, '')"});
    row("percentage that is none",
        {"INSERT INTO surveys VALUES(1, 'a', 1, 1, '1', 'USD', NULL, '1', 'USD', '1 %', 6)"});
}

void BudgetDamageTest::hostileFilesAreRefusedAtOnce()
{
    QFETCH(Sql, sql);
    QFETCH(storage::StorageFailure, failure);
    test::store(m_path, smallBudget());
    test::operate(m_path, sql);
    try {
        test::sealAgain(m_path);
    } catch (const SQLite::Exception &) {
        // There is no seal or no table any more.
    }
    const QByteArray before = m_folder.read(QStringLiteral("a.budget"));
    // The most memory counts from here on, without what was freed before.
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;
    const std::clock_t start = std::clock();
    QCOMPARE(test::failureOf([&] { (void)test::load(m_path); }), failure);
    QVERIFY(std::clock() - start < secondsMax * CLOCKS_PER_SEC);
#ifndef __SANITIZE_ADDRESS__
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    QVERIFY(usage.ru_maxrss < 300 * 1024);
#endif
    const QString verdicts = verdictsOn(m_path);
    QVERIFY2(verdicts.size() == 5 && verdicts.count(u'B') == 1, qPrintable(verdicts));
    QCOMPARE(m_folder.read(QStringLiteral("a.budget")), before);
}

void BudgetDamageTest::rowsThatSharePagesAreRefused()
{
    using storage::internal::pageSize;
    test::store(m_path, {});
    test::operate(m_path, Sql{"WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n "
                              "WHERE i < 4) INSERT INTO item_tags "
                              "SELECT i, 1, i, printf('%.*c', 3998370, 'n') FROM n"});
    test::sealAgain(m_path);
    QByteArray bytes = m_folder.read(u"a.budget"_s);
    const auto numberAt = [&](qsizetype at) { return qFromBigEndian<quint32>(&bytes[at]); };
    // The page of the four rows is filled from its end, and each row ends with the
    // number of the page where its text goes on: all get the first one's.
    const qsizetype page = bytes.indexOf(QByteArray::fromHex("0d00000004"));
    const quint32 first = numberAt(page + pageSize - 4);
    quint32 second = 0;
    for (qsizetype row = 0; row < 3; ++row) {
        const auto end = page + qFromBigEndian<quint16>(&bytes[page + 8 + 2 * row]);
        second = row == 0 ? numberAt(end - 4) : second;
        qToBigEndian(first, &bytes[end - 4]);
    }
    bytes.truncate(qsizetype(second - 1) * pageSize);
    qToBigEndian(second - 1, &bytes[28]);
    m_folder.write(u"a.budget"_s, bytes);
    QCOMPARE(test::failureOf([&] { (void)test::load(m_path); }), StorageFailure::Damaged);
}

void BudgetDamageTest::theFirstWrongRowOfAFullFileIsNamed()
{
    const QString noText = u"The row 30000 of the table 'transactions' has a malformed text."_s;
    const QString ruled = u"A transaction cannot debit and credit the same account '1 a'."_s;
    const char *const badText =
        "UPDATE transactions SET description = CAST(x'ff' AS TEXT) WHERE number = 30000";
    test::store(m_path, fullBudget());
    const QByteArray whole = m_folder.read(u"a.budget"_s);
    // Rows are read and posted by different threads, one ahead of the other.
    for (const auto &[sql, reason] :
         {std::pair("SELECT 1", noText),
          {"UPDATE transactions SET credit = 1 WHERE number = 29999", ruled},
          {"UPDATE transactions SET credit = 1 WHERE number > 30000", noText},
          {"UPDATE transactions SET date = '' WHERE number = 65000", noText}}) {
        m_folder.write(u"a.budget"_s, whole);
        test::operate(m_path, std::array{badText, sql});
        test::sealAgain(m_path);
        try {
            (void)test::load(m_path);
            QFAIL("It was read.");
        } catch (const storage::StorageError &error) {
            QVERIFY2(QString::fromUtf8(error.what()).endsWith(reason), error.what());
        }
    }
}

void BudgetDamageTest::aSealThatWasMadeAgainIsRight()
{
    const MessageLog log; // the item has no account
    test::store(m_path, smallBudget());
    test::operate(m_path, Sql{"UPDATE accounts SET name = 'other'"});
    QCOMPARE(test::failureOf([&] { (void)test::load(m_path); }), StorageFailure::Damaged);
    test::sealAgain(m_path);
    QCOMPARE(test::load(m_path).generalLedger.accountCode(accounting::AccountNumber(1)).name(),
             QStringLiteral("other"));
    // As 1.1.0 left an item's account that was converted and came back; and parents
    // as deep as a ledger had let them in.
    test::operate(m_path, Sql{"UPDATE accounts SET name = 'Car [Budget Item]' WHERE number = 1",
                              "UPDATE transactions SET debit_amount = '4.99' WHERE number = 1",
                              "WITH RECURSIVE n(i) AS (VALUES(3) UNION ALL SELECT i + 1 FROM n "
                              "WHERE i < 203) INSERT INTO accounts SELECT i, 'deep', i - 1, 1, "
                              "'USD', 0, 0, NULL FROM n"});
    test::sealAgain(m_path);
    const Data loaded = test::load(m_path);
    QVERIFY(loaded.generalLedger.hasLedger(accounting::AccountNumber(203)));
    QCOMPARE(loaded.generalLedger.ledger(accounting::AccountNumber(1)).balance(),
             numira::Money(numira::toCurrency("USD"), 3, 0));
}

void BudgetDamageTest::everyPromiseIsJudged()
{
    const auto after = [this](const char *sql, bool isSealed) {
        QFile::remove(m_path);
        test::store(m_path, smallBudget());
        test::operate(m_path, std::span(&sql, 1));
        if (isSealed)
            test::sealAgain(m_path);
        return verdictsOn(m_path);
    };
    QCOMPARE(after("PRAGMA application_id = 0", false), u"B----"_s);
    QCOMPARE(after("CREATE INDEX i ON accounts(name)", false), u"kB---"_s);
    QCOMPARE(after("UPDATE accounts SET name = 'other'", false), u"kkB--"_s);
    QCOMPARE(after("UPDATE accounts SET parent = 9", true), u"kkkB-"_s);
    // The bill has no account.
    QCOMPARE(after("UPDATE accounts SET name = 'other'", true), u"kkkkm"_s);
    QCOMPARE(after("DELETE FROM items", true), u"kkkkk"_s);
    // Neither a lock nor anything else is left.
    QCOMPARE(m_folder.names(), QStringList{u"a.budget"_s});
    QCOMPARE(storage::backupOf(m_path, 1), m_path + u".backup-1"_s);
    QCOMPARE(test::failureOf([this] { (void)storage::inspectBudget(m_folder.path(u"b"_s)); }),
             StorageFailure::NotFound);
}

void BudgetDamageTest::wantOfMemoryIsNoDamage()
{
    const MessageLog log; // the item has no account
    test::store(m_path, smallBudget());
    const QByteArray before = m_folder.read(u"a.budget"_s);
    const std::function<void()> load = [this] { (void)test::load(m_path); };
    const std::function<void()> inspect = [this] { QCOMPARE(verdictsOn(m_path), u"kkkkm"_s); };
    const std::function<void()> store = [this] { test::store(m_path, {}); };
    for (const auto &task : {load, inspect, store}) {
        // A little more each time, until there is enough for it.
        int wants = 0;
        for (sqlite3_int64 limit = 4096; wants >= 0; limit += 1024) {
            sqlite3_hard_heap_limit64(limit);
            const auto unlimited = qScopeGuard([] { sqlite3_hard_heap_limit64(0); });
            try {
                task();
                break;
            } catch (const std::bad_alloc &) {
                ++wants;
            } catch (const std::exception &other) {
                QFAIL(other.what());
            }
            QCOMPARE(m_folder.read(u"a.budget"_s), before);
        }
        QVERIFY(wants > 3);
    }
}

void BudgetDamageTest::rowsOutOfOrderAreRefused()
{
    test::store(m_path, smallBudget());
    QByteArray bytes = m_folder.read(u"a.budget"_s);
    // Pages of two rows exchange them.
    for (qsizetype page = storage::internal::pageSize; page < bytes.size();
         page += storage::internal::pageSize) {
        if (bytes.sliced(page, 5) == QByteArray::fromHex("0d00000002"))
            std::swap_ranges(&bytes[page + 8], &bytes[page + 10], &bytes[page + 10]);
    }
    m_folder.write(u"a.budget"_s, bytes);
    try {
        (void)test::load(m_path);
        QFAIL("It was read.");
    } catch (const storage::StorageError &error) {
        QVERIFY2(QByteArray(error.what()).endsWith("the table 'accounts' is out of order."),
                 error.what());
    }
}

void BudgetDamageTest::halfRowsAndEndlessQueriesEnd()
{
    using namespace storage::internal;
    test::store(m_path, smallBudget());
    const QByteArray bytes = m_folder.read(u"a.budget"_s);
    const ImageDatabase database(bytes, currentVersion);
    Statement endless(database, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                                "SELECT max(i) FROM n");
    QVERIFY_THROWS_EXCEPTION(ContentFault, endless.step());
    Seal seal(currentVersion);
    RowReader reader(database, Table::Accounts, seal);
    QVERIFY(reader.next());
    QVERIFY_THROWS_EXCEPTION(std::logic_error, reader.next());
    RowWriter writer(database, Table::Accounts, seal);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, writer.integer(1).endRow());
}

static const kiv::test::Suite<BudgetDamageTest> suite;
#include "tst_budget_damage.moc"
