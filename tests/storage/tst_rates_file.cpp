// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "scratch_folder.h"

#include "storage/rates_file.h"

using conversion::ConversionMap;
using namespace storage;

/// What is replaced in a file, by what, and how the file is refused.
using Change = std::tuple<QByteArray, QByteArray, StorageFailure>;

class RatesFileTest final : public QObject {
    Q_OBJECT

private slots:
    void ratesAreReadAsTheyWereStored()
    {
        const test::ScratchFolder folder;
        RatesFile file(folder.path(u"new/rates"_qs));
        QVERIFY(!file.exists());
        QCOMPARE(test::failureOf([&] { (void)file.load(); }), StorageFailure::NotFound);
        for (const ConversionMap &rates :
             {ConversionMap(),
              ConversionMap(numira::toCurrency("EUR"), someRates().fetchedAt(), {}), someRates()}) {
            file.store(rates);
            QVERIFY(file.exists());
            QVERIFY(file.load() == rates);
        }
        file.store({}); // nothing takes the place of something
        QVERIFY(file.load() == someRates());
        // The first form, without origins.
        folder.write(u"new/rates"_qs,
                     "kiv-exchange-rates 1\nbase USD\nfetched 2026-03-31T12:00:00.007Z\n"
                     "JPY 151.42\nsha256 c370196dcd33de6ba3382b129d57b0016142afe7"
                     "c882f033ff3ef16336568851\n");
        QCOMPARE(file.load(),
                 ConversionMap(someRates().base(), someRates().fetchedAt(),
                               {{numira::toCurrency("JPY"), numira::FloatingPoint("151.42")}}));
        QCOMPARE(folder.names(), QStringList(u"new"_qs));
        QCOMPARE(QDir(folder.path(u"new"_qs)).entryList(QDir::Files | QDir::Hidden),
                 QStringList(u"rates"_qs));
    }

    void whatIsInTheWayIsToldOf()
    {
        const test::ScratchFolder folder;
        folder.write(u"rates"_qs, {});
        QCOMPARE(test::failureOf([&] { (void)RatesFile(folder.path(u"rates"_qs)).load(); }),
                 StorageFailure::NotOurs);
        RatesFile inAFile(folder.path(u"rates/rates"_qs));
        QCOMPARE(test::failureOf([&] { inAFile.store(someRates()); }), StorageFailure::CannotWrite);
        RatesFile atAFolder(folder.path(u"third"_qs));
        QCOMPARE(test::failureOf([&] { (void)atAFolder.load(); }), StorageFailure::NotFound);
        QVERIFY(QDir().mkdir(folder.path(u"third.lock"_qs)));
        QCOMPARE(test::failureOf([&] { atAFolder.store(someRates()); }), StorageFailure::NotOurs);
        QCOMPARE(test::failureOf([] { (void)RatesFile(QString()).load(); }),
                 StorageFailure::NoName);

        // Another process that stores its own is waited for, but not for ever.
        RatesFile file(folder.path(u"other"_qs));
        QLockFile lock(folder.path(u"other.lock"_qs));
        QVERIFY(lock.lock());
        QCOMPARE(test::failureOf([&] { file.store(someRates()); }), StorageFailure::Locked);
        QVERIFY(!file.exists());
    }

    void otherFilesAreRefused_data()
    {
        using enum StorageFailure;
        test::addRows<Change>(
            {{"another kind", {"kiv-exchange-rates", "kiv-exchange", NotOurs}},
             {"newer", {"rates 2", "rates 3", Newer}},
             {"a rate changed", {"151.42", "151.43", Damaged}},
             {"no checksum", {"sha256", "sha", Damaged}},
             {"something behind it", {"\nsha256", "\nsha256 \nsha256", Damaged}}});
    }
    void otherFilesAreRefused()
    {
        const auto [from, to, failure] = test::rowOf<Change>();
        const test::ScratchFolder folder;
        RatesFile file(folder.path(u"rates"_qs));
        file.store(someRates());
        QByteArray bytes = folder.read(u"rates"_qs);
        QVERIFY(bytes.contains(from));
        bytes.replace(from, to);
        folder.write(u"rates"_qs, bytes);
        QCOMPARE(test::failureOf([&] { (void)file.load(); }), failure);
        QCOMPARE(folder.read(u"rates"_qs), bytes);

        // It is set aside, and so is the next one.
        for (const QString &aside : {u"rates.unreadable"_qs, u"rates.unreadable-2"_qs}) {
            folder.write(u"rates"_qs, bytes);
            file.store({});
            QCOMPARE(folder.read(aside), bytes);
            QVERIFY(file.load().isEmpty());
        }
        QCOMPARE(folder.names().size(), 3);
    }

private:
    static ConversionMap someRates()
    {
        // The digits of a third go on for as long as the type has any.
        return {numira::toCurrency("USD"),
                QDateTime(QDate(2026, 3, 31), QTime(12, 0, 0, 7), Qt::UTC),
                {{numira::toCurrency("EUR"), numira::FloatingPoint(1) / 3},
                 {numira::toCurrency("JPY"), numira::FloatingPoint("151.42")},
                 {numira::toCurrency("KWD"), numira::FloatingPoint("1e-12")}},
                ConversionMap::Origins{{numira::toCurrency("KWD"),
                                        {conversion::RateSource::Typed, QDate(2026, 3, 30)}}}};
    }
};

static const kiv::test::Suite<RatesFileTest> ratesFileSuite;
#include "tst_rates_file.moc"
