// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/accessibility.h"
#include "desktop/household_window.h"

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
        const QPalette palette = desktop::paletteFor(desktop::Appearance::WhiteOnBlack, {});
        for (QWidget *part : std::initializer_list<QWidget *>{
                 new QLineEdit, new QPushButton, new QCheckBox, new QComboBox, new QListWidget}) {
            const std::unique_ptr<QWidget> widget(part);
            widget->setPalette(palette);
            widget->resize(100, 40);
            const QImage image = widget->grab().toImage();
            // Beginning outside, the first pixels lead over the edge.
            double seen = 0;
            for (int x = 0; x < 8; ++x)
                seen = std::max(seen, desktop::contrast(image.pixelColor(x, 20), Qt::black));
            QVERIFY2(seen >= 3, widget->metaObject()->className());
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

protected:
    /// Keeps all keys.
    bool eventFilter(QObject *, QEvent *event) override
    {
        return event->type() == QEvent::KeyPress;
    }
};

static const kiv::test::Suite<TestAccessibility> suite;

#include "tst_accessibility.moc"
