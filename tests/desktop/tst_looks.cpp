// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/accessibility.h"
#include "desktop/household_window.h"

#include "help/manual.h"
#include "widgets/flow_layout.h"

#include "workbench/entry/user_locale.h"

#include <QtWidgets/QtWidgets>

/// The window's size, its text in percent, the action for its colours, and its direction.
using Look = std::tuple<QSize, int, QByteArray, bool>;

/// Nothing is cut off or lies over another. With KIV_PICTURES, the name of a folder, it also
/// writes pictures of all pages for people to look at.
class TestLooks : public QObject {
    Q_OBJECT

private slots:
    void theJudgeSeesWhatIsWrong()
    {
        QWidget form;
        auto *layout = new QGridLayout(&form);
        auto *narrow = new QPushButton(u"A long text on a button"_s, &form);
        narrow->setFixedWidth(20);
        layout->addWidget(narrow, 0, 0);
        layout->addWidget(new QPushButton(u"Over"_s, &form), 1, 0);
        layout->addWidget(new QPushButton(u"Under"_s, &form), 1, 0);
        layout->addWidget(new QLabel(u"<b>Bold</b>"_s, &form), 2, 0);
        auto *lost = new QPushButton(u"Lost"_s, &form);
        form.show();
        lost->move(form.width(), 0);
        lost->show();
        QCOMPARE(misfits(form).size(), 5);
    }

    void allPagesFit_data()
    {
        const QSize small(1024, 600);
        const QSize large(1366, 768);
        // The first texts are longer, and their rows have the names of languages.
        addRows<Look>({{"de", {small, 100, "lookLight", false}},
                       {"es", {small, 100, "lookLight", false}},
                       {"light", {small, 100, "lookLight", false}},
                       {"dark", {small, 100, "lookDark", false}},
                       {"light, double text", {large, 200, "lookLight", false}},
                       {"largest text", {large, 250, "lookBlackOnWhite", false}},
                       {"white on black", {small, 100, "lookWhiteOnBlack", false}},
                       {"from right to left", {small, 100, "lookLight", true}},
                       {"from right to left, largest text", {large, 250, "lookLight", true}}});
    }
    void allPagesFit()
    {
        const auto [size, percent, look, isFromRight] = rowOf<Look>();
        QApplication::setLayoutDirection(isFromRight ? Qt::RightToLeft : Qt::LeftToRight);
        const QByteArray row = QTest::currentDataTag();
        for (auto *translator : qApp->findChildren<QTranslator *>())
            QCoreApplication::removeTranslator(translator);
        qunsetenv("LC_ALL");
        qputenv("LC_MESSAGES", row.size() == 2 ? row : "en");
        workbench::speakAsUser(*qApp);
        const QFont usual = QApplication::font();
        const auto back = qScopeGuard([&usual] { QApplication::setFont(usual); });
        HouseholdWindow desk;
        desk.openHousehold();
        for (int step = 100; step < percent; step += 10)
            desk.trigger("larger");
        desk.trigger(look);
        desk.window().resize(size);
        desk.show();
        QStringList faults;
        desk.lookAtAll([&](QWidget &, QWidget &, const QString &place) {
            QCoreApplication::processEvents(); // what wraps needs a second layout
            for (const QString &fault : misfits(desk.window()))
                faults += place + QStringLiteral(": ") + fault;
            picture(desk.window(), place);
        });
        QVERIFY2(desk.window().size() == size, "The window grows beyond the screen.");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QCOMPARE(missing(desk.window(), desktop::householdGuide()).join(u", "_s), QString());
    }

    void aWindowLooksAsItWasLeft()
    {
        const QPalette usual = QApplication::palette();
        HouseholdWindow desk;
        desk.show();
        desk.window().resize(1017, 613);
        desk.trigger("page settings");
        desk.window().findChild<QWidget *>(u"appearance"_s)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
        desk.trigger("entryRow");
        desk.window().close();
        QApplication::setPalette(usual);
        desktop::MainWindow again(
            {desk.document(), desk.settings(), desk.questions(), desk.keyring(), false});
        QCOMPARE(again.size(), QSize(1017, 613));
        QVERIFY(desktop::isDark(QApplication::palette()));
        QVERIFY(!again.desk().actions().action(u"entryRow"_s)->isChecked());
        QApplication::setPalette(usual);
    }

    /// Large text and dark colours that come later leave nothing behind of what was before.
    void looksChangeAtAnyTime()
    {
        const QPalette palette = QApplication::palette();
        const QFont usual = QApplication::font();
        std::map<QString, QImage> late;
        for (const bool isLate : {true, false}) {
            const auto back = qScopeGuard([&] {
                QApplication::setFont(usual);
                QApplication::setPalette(palette);
            });
            HouseholdWindow desk;
            desk.openHousehold();
            QStringList faults;
            for (const bool isSecond : {false, true}) {
                if (isLate == isSecond) {
                    for (int step = 0; step < 6; ++step)
                        desk.trigger("larger");
                    desk.trigger("lookDark");
                }
                desk.window().resize(isLate && !isSecond ? QSize(1100, 640) : QSize(1366, 768));
                desk.show();
                desk.lookAtAll([&](QWidget &, QWidget &, const QString &place) {
                    for (int again = 0; again < 4; ++again) // what wraps needs another layout
                        QCoreApplication::processEvents();
                    const QImage picture = desk.window().grab().toImage();
                    // The one takes its time, the other names its folder.
                    if (place == u"history" || place == u"import file")
                        return;
                    if (isLate)
                        late[place] = picture;
                    else if (isSecond && late[place] != picture)
                        faults += place;
                });
            }
            QCOMPARE(faults.join(u", "_s), QString());
        }
    }

    void buttonsFlowIntoRows()
    {
        QWidget area;
        auto *flow = new desktop::FlowLayout(&area);
        flow->setSpacing(5);
        for (const QSize size : {QSize(500, 10), QSize(50, 20), QSize(60, 30), QSize(40, 10)}) {
            auto *one = new QLabel(&area);
            one->setPixmap(QPixmap(size)); // which is the size it would like
            flow->addWidget(one);
        }
        flow->addWidget(new QLabel(u"hidden"_s, &area));
        flow->itemAt(4)->widget()->hide();
        QCOMPARE(flow->sizeHint(), QSize(665, 30));
        QCOMPARE(flow->minimumSize(), QSize(500, 30));
        QCOMPARE(flow->heightForWidth(115), 60);
        QCOMPARE(flow->heightForWidth(114), 70);
        const QRect wide{10, 20, 120, 100};
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            area.setLayoutDirection(direction);
            flow->setGeometry(wide);
            QList<QRect> places;
            for (int at = 0; at < 4; ++at)
                places += QStyle::visualRect(direction, wide, flow->itemAt(at)->geometry());
            QCOMPARE(places, QList({QRect(10, 20, 120, 10), QRect(10, 35, 50, 20),
                                    QRect(65, 35, 60, 30), QRect(10, 70, 40, 10)}));
        }
        QVERIFY(!flow->takeAt(-1) && !flow->takeAt(5));
        delete flow->takeAt(4);
        QCOMPARE(flow->count(), 4);
    }

    /// The window that docs/pictures shows.
    void aYearFits()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        HouseholdWindow desk;
        const QString file = desk.path(u"home.budget"_s);
        KivCommand(file).run({u"demo"_s, file});
        QVERIFY(desk.window().open(file));
        desk.window().resize(1024, 640);
        desk.show();
        for (const auto &[name, place] : {std::pair(u"home"_s, u"home"_s),
                                          {u"register"_s, u"register/all"_s},
                                          {u"goals"_s, u"items/goal"_s},
                                          {u"reports"_s, u"reports/category"_s}}) {
            desk.window().goTo(desktop::Place::fromText(place));
            QCoreApplication::processEvents();
            QCOMPARE(misfits(desk.window()), QStringList());
            // Its two currencies are no fault of the settings of somebody who just began.
            QCOMPARE(desk.notices(), QStringList());
            picture(desk.window(), name, {});
        }
    }

private:
    /// What the text names in quotation marks and the window does not have.
    static QStringList missing(const QWidget &window, const QString &text)
    {
        QStringList names;
        for (const auto *one : window.findChildren<desktop::Page *>())
            names += one->title();
        for (const auto *one : window.findChildren<QAbstractButton *>())
            names += one->text();
        for (const auto *one : window.findChildren<QAction *>())
            names += one->text();
        for (const auto *one : window.findChildren<QTabBar *>()) {
            for (int tab = 0; tab < one->count(); ++tab)
                names += one->tabText(tab);
        }
        for (const auto *one : window.findChildren<QComboBox *>()) {
            for (int item = 0; item < one->count(); ++item)
                names += one->itemText(item);
        }
        names.replaceInStrings(u"&"_s, QString()).replaceInStrings(u" …"_s, QString());
        QStringList lacking;
        static const QRegularExpression quoted(u"[“„«]([^“”»]+)[“”»]"_s);
        for (auto found = quoted.globalMatch(text); found.hasNext();) {
            const QString name = found.next().captured(1);
            if (!names.contains(name))
                lacking += name;
        }
        return names.isEmpty() || !text.contains(quoted) ? QStringList{u"nothing is named"_s}
                                                         : lacking;
    }

    static void picture(QWidget &window, const QString &page,
                        const QString &looks = u", "_s + QString::fromUtf8(QTest::currentDataTag()))
    {
        const QString folder = qEnvironmentVariable("KIV_PICTURES");
        if (!folder.isEmpty())
            QVERIFY(window.grab().save(u"%1/%2%3.png"_s.arg(folder, page, looks)));
    }
};

static const kiv::test::Suite<TestLooks> testLooksSuite;

#include "tst_looks.moc"
