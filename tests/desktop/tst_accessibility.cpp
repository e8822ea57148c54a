// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/accessibility.h"
#include "desktop/household_window.h"

#include "widgets/outline_style.h"

#include "workbench/entry/user_locale.h"

#include <QtWidgets/QtWidgets>

namespace {

/// A language whose texts are half as long again, with the letters of others.
class LongLanguage final : public QTranslator {
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString source = QString::fromUtf8(text);
        return u'Å' + source + QString(source.size() / 2, u'ö');
    }
};

} // namespace

/// What people need who use keys alone, or who cannot see.
class TestAccessibility : public QObject {
    Q_OBJECT

private slots:
    void theJudgesSeeWhatIsWrong()
    {
        QWidget form;
        auto *layout = new QVBoxLayout(&form);
        auto *unnamed = new QLineEdit(&form);
        layout->addWidget(unnamed);
        for (const QString &text : {u"&Pay"_s, u"&Post"_s})
            layout->addWidget(new QPushButton(text, &form));
        auto *table = new QTableWidget(1, 1, &form);
        layout->addWidget(table);
        auto *unreachable = new QLineEdit(&form);
        unreachable->setAccessibleName(u"Last"_s);
        layout->addWidget(unreachable);
        // A field that sends its Tab back to itself hides what follows.
        QWidget::setTabOrder(unreachable, unnamed);
        form.show();
        QApplication::setActiveWindow(&form);
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QCOMPARE(mnemonicsTwice(form), QStringList{u"Alt+P: &Pay and &Post"_s});
        const QStringList names = nameless(form);
        QVERIFY2(names.contains(u"QLineEdit : no name"_s), qPrintable(names.join(u'\n')));
        QVERIFY2(names.contains(u"QTableWidget : cell 0,0 is empty"_s),
                 qPrintable(names.join(u'\n')));
        QPalette grey;
        grey.setColor(QPalette::WindowText, QColor(0x80, 0x80, 0x80));
        grey.setColor(QPalette::Window, QColor(0xa0, 0xa0, 0xa0));
        QVERIFY(!pale(grey, 4.5).isEmpty());
        QVERIFY(unreached(form, *unnamed).isEmpty());
        unnamed->installEventFilter(this);
        QVERIFY(!unreached(form, *unnamed).isEmpty());
    }

    void allPalettesCanBeRead()
    {
        using desktop::Appearance;
        QCOMPARE(qRound(100 * desktop::contrast(QColor(0x77, 0x77, 0x77), Qt::white)), 448);
        QCOMPARE(qRound(100 * desktop::contrast(Qt::black, QColor(10, 10, 10))), 106);
        for (const Appearance appearance : {Appearance::Light, Appearance::Dark})
            QCOMPARE(pale(desktop::paletteFor(appearance, {}), 4.5), QStringList());
        for (const Appearance appearance : {Appearance::BlackOnWhite, Appearance::WhiteOnBlack})
            QCOMPARE(pale(desktop::paletteFor(appearance, {}), 7), QStringList());
        // A desktop with high contrast keeps its colours, but for those that would not be read.
        QPalette system(Qt::yellow, Qt::black, {}, {}, {}, Qt::yellow, {}, Qt::black, Qt::black);
        system.setColor(QPalette::Highlight, Qt::darkGray);
        const QPalette shown = desktop::paletteFor(Appearance::System, system);
        QCOMPARE(pale(shown, 7), QStringList());
        QCOMPARE(shown.color(QPalette::Text), QColor(Qt::yellow));
    }

    void edgesAreSeenWithHighContrast()
    {
        const desktop::OutlineStyle style;
        QStyleOptionFrame frame;
        frame.frameShape = QFrame::Box;
        QStyleOptionButton button;
        QStyleOptionTab tab;
        QStyleOptionSlider bar;
        const auto primitive = [&](auto which, const QStyleOption &option) {
            return [&, which](QPainter &to) { style.drawPrimitive(which, &option, &to, nullptr); };
        };
        const auto shape = [&](QPainter &to) {
            style.drawControl(QStyle::CE_TabBarTabShape, &tab, &to, nullptr);
        };
        const auto slider = [&](QPainter &to) {
            style.drawComplexControl(QStyle::CC_ScrollBar, &bar, &to, nullptr);
        };
        for (auto &[option, drawn, edge] : std::initializer_list<
                 std::tuple<QStyleOption &, std::function<void(QPainter &)>, std::array<int, 3>>>{
                 {frame, primitive(QStyle::PE_FrameLineEdit, frame), {1, 3, 1}},
                 {frame, primitive(QStyle::PE_Frame, frame), {1, 3, 1}},
                 {frame, primitive(QStyle::PE_FrameMenu, frame), {1, 3, 1}},
                 {button, primitive(QStyle::PE_PanelButtonCommand, button), {1, 3, 1}},
                 {button, primitive(QStyle::PE_IndicatorCheckBox, button), {1, 3, 1}},
                 {frame, primitive(QStyle::PE_PanelStatusBar, frame), {0, 0, 0}},
                 {tab, shape, {1, 1, 3}},
                 {bar, slider, {1, 1, 1}}}) {
            const std::array states{QStyle::State_Enabled, QStyle::State_HasFocus,
                                    QStyle::State_Selected};
            for (std::size_t at = 0; at < states.size(); ++at) {
                QCOMPARE(edges(option, states.at(at), desktop::Appearance::WhiteOnBlack, drawn),
                         QList<int>(4, edge.at(at)));
                QCOMPARE(edges(option, states.at(at), desktop::Appearance::Dark, drawn),
                         QList<int>(4, 0));
            }
        }
    }

    void everyPageHasNamesAndKeys_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char *locale : {"C.UTF-8", "de_DE.UTF-8", "es_ES.UTF-8", "long"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }
    void everyPageHasNamesAndKeys()
    {
        QFETCH(QString, locale);
        LongLanguage longLanguage;
        if (locale == u"long") {
            QCoreApplication::installTranslator(&longLanguage);
        } else {
            qputenv("LC_MESSAGES", locale.toLatin1());
            qunsetenv("LC_ALL");
            workbench::speakAsUser(*qApp);
        }
        HouseholdWindow desk;
        desk.show();
        QStringList faults;
        const auto judge = [&faults](QWidget &shown, QWidget &first, const QString &place) {
            for (const QStringList &found :
                 {nameless(*shown.window()), mnemonicsTwice(*shown.window()),
                  unreached(shown, first)}) {
                for (const QString &fault : found)
                    faults += place + QStringLiteral(": ") + fault;
            }
        };
        judge(desk.window(), *QApplication::focusWidget(), u"welcome"_s);
        desk.openHousehold();
        desk.trigger("page accounts");
        desk.trigger("explain");
        desk.window().desk().notices().add({u"one"_s, u"Mind."_s, {{u"Mend"_s, [] {}}}});
        judge(desk.window(), *QApplication::focusWidget(), u"explanation and notice"_s);
        desk.lookAtAll(judge);
        desk.trigger("palette");
        auto *palette = desk.window().findChild<QWidget *>(u"palette"_s);
        QCOMPARE(nameless(*palette), QStringList());
        desk.lookAtDialogs(judge);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

private:
    /// How many pixels of the text's colour each side has, from outside.
    static QList<int> edges(QStyleOption &option, QStyle::State state, desktop::Appearance look,
                            const std::function<void(QPainter &)> &drawn)
    {
        option.palette = desktop::paletteFor(look, {});
        option.rect = QRect(5, 5, 60, 60);
        option.state = state;
        QImage image(70, 70, QImage::Format_RGB32);
        image.fill(option.palette.color(QPalette::Window));
        QPainter painter(&image);
        drawn(painter);
        painter.drawPoint(0, 0); // with the black that it had before
        const auto count = [&](QPoint at, QPoint step) {
            int pixels = 0;
            for (; image.pixelColor(at) == option.palette.color(QPalette::WindowText); at += step)
                ++pixels;
            return pixels;
        };
        const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(&option);
        const QRect rect = bar ? QApplication::style()->subControlRect(QStyle::CC_ScrollBar, bar,
                                                                       QStyle::SC_ScrollBarSlider)
                               : option.rect;
        const QPoint middle = rect.center();
        return {count({rect.left(), middle.y()}, {1, 0}),
                count({rect.right(), middle.y()}, {-1, 0}), count({middle.x(), rect.top()}, {0, 1}),
                count({middle.x(), rect.bottom()}, {0, -1})};
    }

protected:
    /// Keeps all keys.
    bool eventFilter(QObject *, QEvent *event) override
    {
        return event->type() == QEvent::KeyPress;
    }
};

static const kiv::test::Suite<TestAccessibility> testAccessibilitySuite;

#include "tst_accessibility.moc"
