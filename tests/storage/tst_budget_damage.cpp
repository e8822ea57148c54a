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

#include <ctime>
#include <fstream>
#include <random>

#include <malloc.h>
#include <sqlite3.h>
#include <sys/resource.h>

using storage::StorageFailure;
using Data = storage::BudgetStorage::Data;

namespace {

/// Two accounts, transactions between them, a refund of the first one, and a bill.
Data smallBudget(int transactions = 1)
{
    Data data = test::budgetWith(transactions);
    data.generalLedger.refund(test::txn(1), test::usd("2"), QDate(2026, 1, 2));
    data.budget.bills.add(budgeting::Bill(budgeting::BudgetSource(QStringLiteral("Rent")),
                                          test::usd("5"), budgeting::EventFrequency::Monthly,
                                          QDate(2026, 1, 1)));
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

/// The same as smallBudget() gives, as the first edition had it.
QByteArray firstEdition()
{
    return test::contentOf(QFINDTESTDATA("data/small.budget"));
}

/// A budget, how many of its file's bits are flipped at least, and whether it is encrypted.
using Whole = std::tuple<Data, int, bool>;

constexpr int nearlyFull = 65'534; // one number is left for the refund

/// In which a hostile file must have been refused.
#if defined KIV_COUNTS_BRANCHES || !defined __OPTIMIZE__ // which take several times as long
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
        test::isEncrypting = false;
        for (const QString &name : m_folder.names())
            QFile::remove(m_folder.path(name));
    }

    void whatIsDamagedIsNotRead_data()
    {
        test::addRows<Whole>({{"empty", {Data(), 3000, false}},
                              {"empty, encrypted", {Data(), 3000, true}},
                              {"dense", {test::someBudget(7, 60), 1000, false}},
                              // Inner pages as well.
                              {"large", {test::someBudget(7, 1000), 100, false}},
                              {"full", {test::budgetWith(65'535), 3, false}},
                              {"full, encrypted", {test::budgetWith(65'535), 3, true}}});
    }
    void whatIsDamagedIsNotRead()
    {
        const auto [data, flips, isEncrypted] = test::rowOf<Whole>();
        test::isEncrypting = isEncrypted;
        test::store(m_path, data);
        const QByteArray whole = m_folder.read(u"a.budget"_s);
        QCOMPARE(test::difference(test::load(m_path), data), QString());
        QVERIFY(!isRefusedOrEqual(whole, test::budgetWith(1)));
        // Each bit of the smallest file when there is time, and many of the others.
        const qsizetype bits = 8 * whole.size();
        const qsizetype stride = std::max(bits / randomRuns(flips), qsizetype(1));
        const bool isFull = data.generalLedger.transactionCount() == 65'535;
        std::uniform_int_distribution<qsizetype> first(0, stride - 1);
        std::random_device random;
        for (qsizetype bit = isFull ? first(random) : 0; bit < bits;
             bit += bit < 800 && !isFull ? 1 : stride) {
            QByteArray flipped = whole;
            flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
            QVERIFY2(isRefusedOrEqual(flipped, data), qPrintable(QString::number(bit)));
        }
        for (qsizetype size = 0; size < whole.size(); size += 1 + size / 5) {
            m_folder.write(u"a.budget"_s, whole.first(size));
            QVERIFY(test::failureOf([&] { (void)test::load(m_path); }));
        }
    }

    void hostileFilesAreRefusedAtOnce_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<bool>("isFirst");
        QFile file(QFINDTESTDATA("hostile_files.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll()).replace(u"\n  "_s, u" "_s);
        for (const QString &line : text.split(u'\n')) {
            const QStringList row = line.split(u" | "_s);
            for (const QString &edition : {u"1"_s, u"2"_s}) {
                const bool isOfOne = row[0].startsWith(u"1 ") || row[0].startsWith(u"2 ");
                if (row.size() == 2 && (!isOfOne || row[0].startsWith(edition)))
                    QTest::addRow("%s, %s", qPrintable(row[0]), qPrintable(edition))
                        << row[1] << (edition == u"1");
            }
        }
    }
    void hostileFilesAreRefusedAtOnce()
    {
        QFETCH(QString, sql);
        QFETCH(bool, isFirst);
        const QString schema = u"PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = %1 "
                               "WHERE name = 'banks'"_s;
        sql.replace(u"LOOSEN"_s, schema.arg(u"replace(sql, ' STRICT', '')"_s));
        sql.replace(u"TIGHTEN"_s, schema.arg(u"sql || ' STRICT'"_s));
        if (isFirst) {
            test::overwrite(m_path, firstEdition());
        } else {
            test::store(m_path, smallBudget());
            sql.replace(u"'USD'"_s, u"1"_s);
        }
        test::operate(m_path, sql.split(u";;"_s));
        try {
            test::sealAgain(m_path);
        } catch (const SQLite::Exception &) {
            // There is no seal or no table any more.
        }
        const QByteArray before = m_folder.read(u"a.budget"_s);
        // The most memory counts from here on, without what was freed before.
        ::malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << 5;
        const std::clock_t start = std::clock();
        QCOMPARE(test::failureOf([&] { (void)test::load(m_path); }), StorageFailure::Damaged);
        QVERIFY(std::clock() - start < secondsMax * CLOCKS_PER_SEC);
#ifndef __SANITIZE_ADDRESS__
        rusage usage = {};
        ::getrusage(RUSAGE_SELF, &usage);
        QVERIFY(usage.ru_maxrss < 300 * 1024);
#endif
        const QString verdicts = verdictsOn(m_path);
        QVERIFY2(verdicts.size() == 5 && verdicts.count(u'B') == 1, qPrintable(verdicts));
        QCOMPARE(m_folder.read(u"a.budget"_s), before);
    }

    void rowsThatSharePagesAreRefused()
    {
        using storage::internal::pageSize;
        test::overwrite(m_path, firstEdition());
        test::operate(m_path, {u"WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n "
                               "WHERE i < 4) INSERT INTO item_tags "
                               "SELECT i, 1, i, printf('%.*c', 3998370, 'n') FROM n"_s});
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

    void theFirstWrongRowOfAFullFileIsNamed()
    {
        const QString noText = u"The row 30000 of the table 'transactions' has a malformed text."_s;
        const QString ruled = u"A transaction cannot debit and credit the same account '1 a'."_s;
        const QString badText =
            u"UPDATE transactions SET description = CAST(x'ff' AS TEXT) WHERE number = 30000"_s;
        test::store(m_path, smallBudget(nearlyFull));
        const QByteArray whole = m_folder.read(u"a.budget"_s);
        for (const auto &[sql, reason] :
             {std::pair(u"SELECT 1"_s, noText),
              {u"UPDATE transactions SET credit = 1 WHERE number = 29999"_s, ruled},
              {u"UPDATE transactions SET credit = 1 WHERE number > 30000"_s, noText},
              {u"UPDATE transactions SET amount = '' WHERE number = 65000"_s, noText}}) {
            m_folder.write(u"a.budget"_s, whole);
            test::operate(m_path, {badText, sql});
            test::sealAgain(m_path);
            QVERIFY2(refusal().endsWith(reason), qPrintable(refusal()));
        }
    }

    void aSealThatWasMadeAgainIsRight()
    {
        const MessageLog log; // the item has no account
        test::store(m_path, smallBudget());
        test::operate(m_path, {u"UPDATE accounts SET name = 'other'"_s});
        QCOMPARE(test::failureOf([&] { (void)test::load(m_path); }), StorageFailure::Damaged);
        test::sealAgain(m_path);
        QCOMPARE(test::load(m_path).generalLedger.accountCode(accounting::AccountNumber(1)).name(),
                 QStringLiteral("other"));
        // As 1.1.0 left an item's account that was converted and came back; and parents
        // as deep as a ledger had let them in.
        test::operate(m_path, {u"UPDATE accounts SET name = 'Car [Budget Item]' WHERE number = 1"_s,
                               u"UPDATE transactions SET debit_amount = '4.99' WHERE number = 1"_s,
                               u"WITH RECURSIVE n(i) AS (VALUES(3) UNION ALL SELECT i + 1 FROM n "
                               "WHERE i < 203) INSERT INTO accounts SELECT i, 'deep', i - 1, 1, "
                               "1, 0, 0, NULL FROM n"_s});
        test::sealAgain(m_path);
        const Data loaded = test::load(m_path);
        QVERIFY(loaded.generalLedger.hasLedger(accounting::AccountNumber(203)));
        QCOMPARE(loaded.generalLedger.ledger(accounting::AccountNumber(1)).balance(),
                 numira::Money(numira::toCurrency("USD"), 3, 0));
    }

    void hostileLabelsAreRefused()
    {
        test::store(m_path, smallBudget());
        const test::FileParts whole(m_folder.read(u"a.budget"_s));
        const auto isRefused = [&](test::FileParts parts) {
            parts.sealAgain();
            m_folder.write(u"a.budget"_s, parts.file());
            return test::failureOf([&] { (void)test::load(m_path); }) == StorageFailure::Damaged;
        };
        QVERIFY(!isRefused(whole));
        for (const auto &[from, to] :
             {std::pair(QByteArray("\"number\":1"), QByteArray("\"number\":0")),
              {"\"id\":\"", "\"id\":\"../"},
              {"\"ancestors\":[", "\"ancestors\":[\"x\""},
              {"\"savedAt\":\"", "\"savedAt\":\"x"},
              {"\"transactions\":", "\"transactions\":-"},
              {"\"change\":\"", "\"change\":\"" + QByteArray(20'000, 'x')},
              {"}", ""},
              {whole.label, ""}}) {
            test::FileParts parts = whole;
            QVERIFY(parts.label.contains(from));
            parts.label.replace(from, to);
            QVERIFY2(isRefused(parts), to.left(40).constData());
        }
        // Sizes that fit together while the image's own does not.
        test::FileParts parts = whole;
        parts.label.prepend(parts.image.last(1));
        parts.image.chop(1);
        QVERIFY(isRefused(parts));
    }

    void everyPromiseIsJudged()
    {
        const auto after = [this](const QString &sql, bool isSealed) {
            QFile::remove(m_path);
            test::store(m_path, smallBudget());
            test::operate(m_path, {sql});
            if (isSealed)
                test::sealAgain(m_path);
            return verdictsOn(m_path);
        };
        QCOMPARE(after(u"PRAGMA application_id = 0"_s, false), u"B----"_s);
        QCOMPARE(after(u"CREATE INDEX i ON accounts(name)"_s, true), u"kBk--"_s);
        QCOMPARE(after(u"UPDATE accounts SET name = 'other'"_s, false), u"k-B--"_s);
        QCOMPARE(after(u"UPDATE accounts SET parent = 9"_s, true), u"kkkB-"_s);
        // The bill has no account.
        QCOMPARE(after(u"UPDATE accounts SET name = 'other'"_s, true), u"kkkkm"_s);
        QCOMPARE(after(u"DELETE FROM items"_s, true), u"kkkkk"_s);
        // Neither a lock nor anything else is left.
        QCOMPARE(m_folder.names(), QStringList{u"a.budget"_s});
        QCOMPARE(test::failureOf([this] { (void)storage::inspectBudget(m_folder.path(u"b"_s)); }),
                 StorageFailure::NotFound);
    }

    void wantOfMemoryIsNoDamage()
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

    void rowsOutOfOrderAreRefused()
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
        test::sealAgain(m_path);
        QVERIFY2(refusal().endsWith(u"the table 'accounts' is out of order."),
                 qPrintable(refusal()));
    }

    void halfRowsAndEndlessQueriesEnd()
    {
        using namespace storage::internal;
        test::store(m_path, smallBudget());
        const QByteArray image = test::imageOf(m_folder.read(u"a.budget"_s));
        ImageDatabase database(image, currentVersion);
        Statement endless(database,
                          "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                          "SELECT max(i) FROM n");
        QVERIFY_THROWS_EXCEPTION(ContentFault, endless.step());
        RowSource source(database, currentVersion);
        RowReader reader(source, Table::Accounts);
        QVERIFY(reader.next());
        QVERIFY_THROWS_EXCEPTION(std::logic_error, reader.next());
        const ImageDatabase empty;
        RowSink sink(empty);
        RowWriter writer(sink, Table::Accounts);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, writer.integer(1).endRow());
        QVERIFY_THROWS_EXCEPTION(std::logic_error, writer.writeAll([&] {
            writer.integer(1);
            return true;
        }));
    }

private:
    const test::ScratchFolder m_folder;
    const QString m_path = m_folder.path(u"a.budget"_s);

    /// Why the file is not read.
    QString refusal() const
    {
        try {
            (void)test::load(m_path);
        } catch (const storage::StorageError &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }
    /// Whether these bytes are refused, or read as what they were.
    bool isRefusedOrEqual(const QByteArray &bytes, const Data &data)
    {
        m_folder.write(u"a.budget"_s, bytes);
        try {
            return test::difference(test::load(m_path), data).isEmpty();
        } catch (const storage::StorageError &) {
            return true;
        }
    }
};

static const kiv::test::Suite<BudgetDamageTest> budgetDamageSuite;
#include "tst_budget_damage.moc"
