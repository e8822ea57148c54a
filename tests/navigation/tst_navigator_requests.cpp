// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigator_requests.h"

#include <QtCore/QFile>

using namespace kiv;
using namespace kiv::test;

/// All that is said to each request stands in navigator_requests.txt; what
/// leaves a slot stands behind "x ".
class NavigatorRequests : public QObject {
    Q_OBJECT

private slots:
    void saysWhatIsWrittenDown_data();
    void saysWhatIsWrittenDown();

private:
    OwnSettings m_settings;
};

namespace {

QString writtenDown()
{
    QFile file(QFINDTESTDATA("navigator_requests.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    const QString all = QString::fromUtf8(file.readAll());
    const QString heading =
        QStringLiteral("# %1\n").arg(QString::fromUtf8(QTest::currentDataTag()));
    const qsizetype begin = all.indexOf(heading);
    return begin < 0 ? QStringLiteral("not written down")
                     : all.mid(begin + heading.size()).section(QStringLiteral("\n# "), 0, 0);
}

} // namespace

void NavigatorRequests::saysWhatIsWrittenDown_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const auto &[name, request] : allRequests())
        QTest::newRow(name.constData()) << index++;
}

void NavigatorRequests::saysWhatIsWrittenDown()
{
    QFETCH(const int, index);
    m_settings.reset();
    const auto [name, request] = allRequests().at(std::size_t(index));
    Desk desk;
    desk.furnish();
    const storage::BudgetStorage::Data before = desk.save();
    QStringList said;
    QStringList thrown;
    try {
        request(*desk.navigator);
    } catch (const std::exception &error) {
        thrown.append(QStringLiteral("x ") + QString::fromUtf8(error.what()));
    }
    said = shortened(desk.take()) + thrown;
    QCOMPARE(said.join(u'\n'), writtenDown().trimmed());
    if (name.startsWith("file: "))
        return;
    const auto has = [&](const char *text) {
        return said.join(u' ').contains(QLatin1String(text));
    };
    QCOMPARE(desk.isChanged(), has(" *"));
    // Whatever answers with no success has changed nothing.
    if (!has("Succeeded"))
        QVERIFY(desk.save() == before);
}

QTEST_GUILESS_MAIN(NavigatorRequests)
#include "tst_navigator_requests.moc"
