// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "support/comparison.h"
#include "support/refusal.h"

#include "foundation/dates.h"
#include "foundation/local_dates.h"
#include "foundation/percentage.h"
#include "foundation/presentation.h"
#include "foundation/qt_ptr.h"
#include "foundation/streams.h"
#include "foundation/type_index_map.h"

#include "numira/error.h"

#include <rapidcheck.h>

#include <cmath>

using namespace kiv::foundation;

namespace {

struct Red {};
struct Blue {};

bool refusesCopies = false;

struct Key {
    explicit Key(QString text) : name(std::move(text)) {}
    Key(const Key &other) : name(other.name)
    {
        if (refusesCopies)
            throw std::bad_alloc();
    }
    QString name;
    friend auto operator<=>(const Key &a, const Key &b) { return a.name.compare(b.name) <=> 0; }
    friend bool operator==(const Key &, const Key &) = default;
};

QString presentationText(const Key &key)
{
    return u"<%1>"_qs.arg(key.name);
}
std::ostream &operator<<(std::ostream &out, const Key &key)
{
    return out << qPrintable(key.name);
}

using Map = kiv::foundation::TypeIndexMap<Key, int>;

const Key a(u"a"_qs);
const Key b(u"b %2"_qs);

/// The error that a function of the domain makes of what it catches.
template <typename Cause>
Error wrapped(const QString &message, const Cause &cause)
{
    try {
        throw cause;
    } catch (const std::exception &caught) {
        return Error(message, caught);
    }
}

template <typename Expected>
std::optional<Expected> causeAs(const Error &error)
{
    try {
        if (error.cause())
            std::rethrow_exception(error.cause());
    } catch (const Expected &cause) {
        return cause;
    } catch (const std::exception &) {
    }
    return std::nullopt;
}

QDate anyDate()
{
    return QDate(2024, 2, 29).addDays(*rc::gen::inRange(-100'000, 100'000));
}

} // namespace

class tst_Foundation : public QObject {
    Q_OBJECT

private slots:
    void handledCausesKeepTheirTypes()
    {
        const Error inner = wrapped(u"Ünner %1"_qs, numira::OverflowError("root"));
        auto outer = std::make_unique<Error>(wrapped(u"Outer."_qs, inner));
        const Error copy = *outer;
        outer.reset();
        QCOMPARE(copy.message(), u"Outer."_qs);
        QCOMPARE(QString::fromUtf8(copy.what()), u"Outer. Caused by: Ünner %1 Caused by: root"_qs);
        const auto kept = causeAs<Error>(copy);
        QVERIFY(kept && causeAs<numira::OverflowError>(*kept));
        for (const Error &error : {Error(u"alone"_qs, std::exception()),
                                   wrapped(u"alone"_qs, std::exception()), Error(u"alone"_qs)}) {
            QCOMPARE(error.what(), "alone");
            QVERIFY(!error.cause());
        }
        QCOMPARE(Error(u"alone"_qs, Error(QString())).what(), "alone");
    }

    void causesThatAreNotHandledKeepTheirTexts()
    {
        const numira::OverflowError cause("not thrown");
        std::vector<Error> errors{Error(u"outer"_qs, cause)};
        for (const bool isException : {true, false}) {
            try {
                if (isException)
                    throw std::out_of_range("something else");
                throw 5;
            } catch (...) {
                errors.emplace_back(u"outer"_qs, cause);
            }
        }
        for (const Error &error : errors) {
            QCOMPARE(error.what(), "outer Caused by: not thrown");
            const auto kept = causeAs<std::runtime_error>(error);
            QVERIFY(kept && std::string_view(kept->what()) == "not thrown");
        }
    }

    void pointersForgetWhatIsGone()
    {
        auto timer = std::make_unique<QTimer>();
        auto first = std::make_unique<QtPtr<QTimer>>(timer.get());
        const QtPtr<QTimer> copy(*first);
        const QtPtr<QObject> asBase(copy);
        QtPtr<QTimer> assigned(copy);
        const QtPtr<QTimer> &same = assigned;
        assigned = same;
        first.reset();
        QVERIFY(copy == assigned && copy.get() == timer.get() && &*asBase == timer.get());
        QTimer other;
        assigned = QtPtr<QTimer>(&other);
        timer.reset();
        QVERIFY(!copy && !asBase && copy == QtPtr<QTimer>() && assigned.get() == &other);
    }

    void pointersMayGoAndBeCopiedWhileTheirObjectGoes()
    {
        auto object = std::make_unique<QObject>();
        auto going = std::make_unique<QtPtr<QObject>>();
        QtPtr<QObject> dying;
        QtPtr<QObject> copy;
        bool wasNull = false;
        connect(object.get(), &QObject::destroyed, this, [&] {
            going.reset();
            wasNull = !dying;
            copy = dying;
        });
        *going = dying = QtPtr<QObject>(object.get());
        object.reset();
        QVERIFY(!going && wasNull && !copy);
    }

    void mapsCountAndNameWhatTheyHold()
    {
        Map map;
        map.insertOrAssign<Red>(a, 1);
        map.insertOrAssign<Blue>(a, 2);
        map.insertOrAssign<Red>(b, 3);
        map.insertOrAssign(typeid(Red), b, 4);
        map.value<Blue>(a) = 5;
        Map other; // the same in another order
        other.insertOrAssign<Blue>(a, 5);
        other.insertOrAssign<Red>(b, 4);
        QVERIFY(map != other);
        other.insertOrAssign<Red>(a, 1);
        QVERIFY(map == other && map.size() == 3);
        other.value<Red>(a) = 2;
        QVERIFY(map != other);
        QCOMPARE(std::as_const(map).value<Blue>(a), 5);
        map.remove<Blue>(a);
        QVERIFY(!map.has<Blue>(a) && map.has<Red>(a) && map.size() == 2);
        QCOMPARE(kiv::test::dump(map) + kiv::test::dump(Map()),
                 u"Type-Keys (%1[a=>1, b %2=>4])Type-Keys ()"_qs.arg(
                     QString::fromUtf8(Map::plainName(typeid(Red))), u"%2"_qs));
    }

    void refusedChangesOfMapsChangeNothing()
    {
        Map map;
        map.insertOrAssign<Red>(a, 1);
        const Map before = map;
        // Each names the key and the type.
        for (const auto &[said, key, type] :
             {std::tuple(refusalOf([&] { (void)map.value<Red>(b); }), b,
                         Map::plainName(typeid(Red))),
              {refusalOf([&] { (void)before.value<Blue>(a); }), a, Map::plainName(typeid(Blue))},
              {refusalOf([&] { map.remove<Blue>(a); }), a, Map::plainName(typeid(Blue))},
              {refusalOf([&] { map.remove<Red>(b); }), b, Map::plainName(typeid(Red))}})
            QVERIFY2(said.contains(u'\'' + presentationText(key) + u'\'') &&
                         said.contains(u'\'' + QString::fromUtf8(type) + u'\''),
                     qPrintable(said));
        const auto reset = qScopeGuard([] { refusesCopies = false; });
        refusesCopies = true;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, map.insertOrAssign<Blue>(a, 1));
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, map.insertOrAssign<Red>(b, 2));
        QVERIFY(map == before && !map.has<Blue>(a) && map.maps().size() == 1);
    }

    void monthsHaveTheirDays()
    {
        const QDate leapDay(2024, 2, 29);
        QCOMPARE(firstOfMonth(leapDay), QDate(2024, 2, 1));
        QCOMPARE(halfOfMonth(leapDay), QDate(2024, 2, 15));
        QCOMPARE(lastOfMonth(QDate(2024, 2, 1)), leapDay);
        QCOMPARE(lastOfMonth(QDate(2023, 2, 1)), QDate(2023, 2, 28));
        QVERIFY(!firstOfMonth(QDate()).isValid() && !lastOfMonth(QDate()).isValid());
        QCOMPARE(daysBetween(leapDay, QDate(2024, 2, 1)), -28);
        QCOMPARE(presentationText(leapDay.addDays(1)), u"2024-03-01"_qs);
        QCOMPARE(presentationText(QDate()), u"no date"_qs);
    }

    void peopleReadDatesInTheirLocale()
    {
        const auto back = qScopeGuard([] { setDateLocale(""); });
        // The Thai have another calendar.
        for (const char *row : {"de_AT.UTF-8|09.03.2026", "es_ES|09/03/2026", "th_TH|09/03/2026",
                                "en_US.UTF-8@euro|03/09/2026", "hu_HU|2026. 03. 09.",
                                "C.UTF-8|2026-03-09", "POSIX|2026-03-09", "|2026-03-09"}) {
            const QString shown = QString::fromLatin1(row).section(u'|', 1);
            setDateLocale(QByteArray(row).split('|').front().toStdString());
            const QDate date(2026, 3, 9);
            QCOMPARE(presentationText(date), shown);
            QCOMPARE(dateFromLocalText(shown), date);
            QVERIFY(!dateFromLocalText(shown.left(9)).isValid());
            QCOMPARE(isoText(date), u"2026-03-09"_qs);
            QCOMPARE(isoText(QDate(987, 12, 30)), u"0987-12-30"_qs);
        }
    }

    void elapsedMonthsAddUpAndKeepTheDay()
    {
        QCOMPARE(monthsBetween(QDate(2025, 1, 31), QDate(2025, 2, 1)), 1);
        QCOMPARE(monthsBetween(QDate(2025, 1, 1), QDate(2024, 12, 31)), -1);
        QCOMPARE(addMonthsOnDay(QDate(2025, 2, 28), 1, 31), QDate(2025, 3, 31));
        QCOMPARE(addMonthsOnDay(QDate(2024, 1, 31), -2, 31), QDate(2023, 11, 30));
        QVERIFY(!addMonthsOnDay(QDate(), 1, 31).isValid());
        QVERIFY(rc::check("months add up over a chain", [] {
            const QDate a = anyDate();
            const QDate b = anyDate();
            const QDate c = anyDate();
            RC_ASSERT(monthsBetween(a, b) + monthsBetween(b, c) == monthsBetween(a, c));
            const QDate moved = addMonthsOnDay(a, monthsBetween(a, b), c.day());
            RC_ASSERT(monthsBetween(b, moved) == 0);
            RC_ASSERT(moved.day() == std::min(c.day(), b.daysInMonth()));
        }));
    }

    void percentagesAreExact()
    {
        for (const auto &[percentage, fraction, text] :
             {std::tuple(Percentage(2.75, 6), "0.0275", "2.75 %"),
              {Percentage(0.125, 2), "0.0012", "0.12 %"},
              {Percentage(-2.5, 0), "-0.02", "-2 %"},
              {Percentage(0.1 + 0.2, 255), "0.003", "0.3 %"}}) {
            QCOMPARE(percentage.fraction().toText(), fraction);
            QCOMPARE(presentationText(percentage), QString::fromLatin1(text));
        }
        for (const auto &[rate, text] :
             {std::pair(1e300, u"1e+300 %"_qs), {std::nan(""), u"nan %"_qs}}) {
            QVERIFY_THROWS_EXCEPTION(numira::Error, (void)Percentage(rate, 6).fraction());
            QCOMPARE(presentationText(Percentage(rate, 6)), text);
        }
        const Percentage window(2.75, 6);
        QVERIFY(window == Percentage(2.75, 2) && window == 2.75 && window > 2.7 && 2.7 < window);
    }

    void escapesWhatATerminalObeys()
    {
        const QString plain = u"Miete \\ 50 % – ñ 家 😀 \u00A0"_qs;
        QCOMPARE(escaped(plain), plain);
        QCOMPARE(escapedUtf8(plain), plain.toStdString());
        for (const uint unit :
             {0x0000U, 0x001BU, 0x007FU, 0x0085U, 0x009FU, 0x061CU, 0x200EU, 0x200FU, 0x2028U,
              0x2029U, 0x202AU, 0x202EU, 0x2066U, 0x2069U, 0xFEFFU, 0xDE00U})
            QCOMPARE(escaped(u"a"_qs + QChar(unit) + u"b"_qs),
                     QString::asprintf("a\\u{%04X}b", unit));
        QCOMPARE(escaped(QString(2, QChar(0xDE00)) + QChar(0xD83D)),
                 u"\\u{DE00}\\u{DE00}\\u{D83D}"_qs);
    }
};

static const kiv::test::Suite<tst_Foundation> foundationSuite;
#include "tst_foundation.moc"
