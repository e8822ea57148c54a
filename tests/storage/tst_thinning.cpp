// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "storage/internal/thinning.h"

using namespace kiv::storage::internal;

namespace {

const QDateTime begin(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC);
constexpr int savesADay = 30;

/// The former versions of a file, thinned at each save. Each has one transaction more.
struct History {
    void save(const QDateTime &now)
    {
        versions.push_back({++number, now, number, 1000});
        const auto going = toThin(versions, now, limits);
        std::erase_if(versions,
                      [&](const auto &version) { return going.contains(version.number); });
    }
    /// Saves on each of the days, from seven in the morning to ten in the evening.
    void saveFor(int days)
    {
        for (const int end = day + days; day < end; ++day) {
            for (int save = 0; save < savesADay; ++save)
                this->save(begin.addDays(day).addSecs(7 * 3600 + save * 1800));
        }
    }
    /// How many are younger than so many days.
    [[nodiscard]] qsizetype younger(int days) const
    {
        return std::ranges::count_if(versions, [&](const ThinnedVersion &version) {
            return version.savedAt.secsTo(versions.back().savedAt) < days * 86'400LL;
        });
    }

    std::vector<ThinnedVersion> versions;
    ThinningLimits limits;
    qint64 number = 0;
    int day = 0;
};

} // namespace

class ThinningTest final : public QObject {
    Q_OBJECT

private slots:
    void twoYearsOfSaves()
    {
        History history;
        QStringList table;
        for (const int day : {1, 7, 30, 365, 730}) {
            history.saveFor(day - history.day);
            table
                << u"%1 days, %2 saves: %3 kept, %4 of the last day, %5 of the last 30, oldest %6"_qs
                       .arg(day)
                       .arg(history.number)
                       .arg(history.versions.size())
                       .arg(history.younger(1))
                       .arg(history.younger(30))
                       .arg(history.versions.front().savedAt.daysTo(
                           history.versions.back().savedAt));
        }
        const QStringList expected{
            u"1 days, 30 saves: 20 kept, 20 of the last day, 20 of the last 30, oldest 0"_qs,
            u"7 days, 210 saves: 26 kept, 20 of the last day, 26 of the last 30, oldest 6"_qs,
            u"30 days, 900 saves: 49 kept, 20 of the last day, 49 of the last 30, oldest 29"_qs,
            u"365 days, 10950 saves: 61 kept, 20 of the last day, 49 of the last 30, oldest 359"_qs,
            u"730 days, 21900 saves: 74 kept, 20 of the last day, 49 of the last 30, oldest 724"_qs};
        QCOMPARE(table.join(u'\n'), expected.join(u'\n'));
    }

    void whatStaysWhateverTheClockSays()
    {
        History history;
        history.saveFor(60);
        const auto before = history.versions.size();
        // One save in the year 2099 takes four with it, and its time counts as now.
        history.save(begin.addYears(73));
        QCOMPARE(history.versions.size(), before + 1 - history.limits.removedAtOnce);
        history.saveFor(60);
        QCOMPARE(history.versions.size(), before + 1);
        // While the clock runs backwards, the last ten stay by their numbers.
        for (int save = 1; save <= 100; ++save)
            history.save(begin.addDays(-save));
        for (qsizetype last = 0; last < 10; ++last)
            QCOMPARE(history.versions.at(history.versions.size() - 1 - last).number,
                     history.number - last);
    }

    void theLargestStayAndLittleSpaceIsKept()
    {
        const QDateTime now = begin.addDays(1);
        ThinningLimits limits{.newest = 1, .removedAtOnce = 100};
        // Of an hour that with most transactions, of all the largest although it is too old.
        const std::vector<ThinnedVersion> versions{{1, now.addYears(-9), 50, 10},
                                                   {2, now.addYears(-9), 40, 10},
                                                   {3, now.addSecs(-7300), 8, 10},
                                                   {4, now.addSecs(-7301), 9, 10},
                                                   {5, now.addSecs(-3601), 3, 10},
                                                   {6, now.addSecs(-3601), 3, 10},
                                                   {7, now, 1, 10}};
        QCOMPARE(toThin(versions, now, limits), (std::set<qint64>{2, 3, 5}));
        limits.bytes = 30;
        QCOMPARE(toThin(versions, now, limits), (std::set<qint64>{2, 3, 4, 5}));
        limits.bytes = 1;
        QCOMPARE(toThin(versions, now, limits), (std::set<qint64>{2, 3, 4, 5, 6}));
        QCOMPARE(toThin({}, now, limits), std::set<qint64>());
    }
};

static const kiv::test::Suite<ThinningTest> thinningSuite;
#include "tst_thinning.moc"
