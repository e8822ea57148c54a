// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/household_window.h"
#include "desktop/told.h"

#include <QtWidgets/QtWidgets>

namespace {

struct Section {
    QString name;
    QString typed; ///< commands of a shell
    QStringList steps;
};

/// What each section of the guide types.
std::map<QString, QString> typedInGuide()
{
    std::map<QString, QString> sections;
    QString section;
    bool isTyped = false;
    for (const QString &line : test::linesOf(KIV_GUIDE)) {
        if (line.startsWith(u"```"))
            isTyped = !isTyped;
        else if (!isTyped && line.startsWith(u'#'))
            section = line.section(u' ', 1);
        else if (isTyped && (line.startsWith(u"$ ") || line.startsWith(u"> ")))
            sections[section] += line.mid(2) + u'\n';
    }
    return sections;
}

std::vector<Section> sectionsOfKeys()
{
    std::vector<Section> sections;
    for (const QString &line : test::linesOf(KIV_BY_KEYS)) {
        if (line.startsWith(u"## "))
            sections.push_back({line.mid(3), {}, {}});
        else if (line.startsWith(u"$ "))
            sections.back().typed += line.mid(2) + u'\n';
        else if (!line.isEmpty() && !line.startsWith(u'#'))
            sections.back().steps += line.split(u"; "_s);
    }
    return sections;
}

/// All that is in the books, as the command tells it.
QByteArray figures(const QString &file)
{
    const QString copy = file + u".budget"_s; // which the window does not keep for itself
    QFile::remove(copy);
    QFile::copy(file, copy);
    return KivCommand(copy).runLines("accounts --json\ntransactions --json\nbanks --json\n"
                                     "due --json\nbill list --json\ndebt list --json\n"
                                     "goal list --json\nwage list --json\nnontrack list --json\n"
                                     "rules list --json\nreconciliations --json\n"
                                     "envelopes --on 2026-07-31 --json\n");
}

} // namespace

/// What a household does, by keys alone in the window and by the command: the same books.
class TestByKeys : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath(typed({})));
        qputenv("KIV_PASSPHRASE_FILE", typed(u"passphrase"_s).toUtf8());
        m_desk.show();
        QTRY_VERIFY(m_desk.window().findChild<desktop::FirstTimeWizard *>()->isVisible());
    }
    void cleanupTestCase() { qunsetenv("KIV_PASSPHRASE_FILE"); }

    void windowAndCommandMakeTheSameBooks_data()
    {
        QTest::addColumn<QString>("commands");
        QTest::addColumn<QStringList>("steps");
        auto guide = typedInGuide();
        for (const Section &one : sectionsOfKeys())
            QTest::newRow(qPrintable(one.name)) << guide[one.name] + one.typed << one.steps;
        QCOMPARE(guide.size(), sectionsOfKeys().size()); // nothing of it is left out
    }
    void windowAndCommandMakeTheSameBooks()
    {
        QFETCH(QString, commands);
        QFETCH(QStringList, steps);
        QVERIFY2(!m_hasFailed, "This builds on what failed before.");
        commands.replace(u"HOUSEHOLD"_s, QStringLiteral(KIV_HOUSEHOLD));
        // The shell of each section begins with the file of the one before.
        KivCommand(typed(u"try.budget"_s)).runScript((m_export + commands).toUtf8());
        for (const QString &line : commands.split(u'\n')) {
            if (line.startsWith(u"export "))
                m_export = line + u'\n';
        }
        QVERIFY(steps.last().startsWith(u"same "));
        for (const QString &one : steps) {
            step(one);
            if (QTest::currentTestFailed()) {
                m_hasFailed = true;
                qWarning("failed at %s", qPrintable(one));
                return;
            }
        }
    }

private:
    [[nodiscard]] QString typed(const QString &name) const
    {
        return m_desk.path(u"typed/"_s + name);
    }
    void step(const QString &text)
    {
        const QString word = text.section(u' ', 0, 0);
        const QString rest = text.section(u' ', 1);
        if (word == u"new")
            m_desk.questions().files += m_desk.path(rest);
        else if (word == u"given")
            m_desk.questions().files += typed(rest);
        else if (word == u"tab")
            chooseTab(rest);
        else if (word == u"row")
            chooseRow(QRegularExpression(rest));
        else if (word == u"says")
            QVERIFY2(told().contains(rest), qPrintable(told()));
        else if (word == u"same")
            compare(rest);
        else if (word == u"undone")
            undo(rest.section(u' ', 0, 0).toInt(), rest.section(u' ', 1));
        else if (text.contains(u'='))
            fill(text.section(u'=', 0, 0), text.section(u'=', 1));
        else
            press(text);
    }

    /// Presses keys. A button with a letter goes up a moment later.
    void press(const QString &text)
    {
        const QKeyCombination keys = QKeySequence(text)[0];
        QTest::keyClick(m_desk.keyTarget(), keys.key(), keys.keyboardModifiers());
        QCoreApplication::processEvents();
        const auto isDown = [](const QAbstractButton *button) {
            return button->isVisible() && button->isDown();
        };
        QTRY_VERIFY(
            std::ranges::none_of(m_desk.window().findChildren<QAbstractButton *>(), isDown));
    }
    /// A field with a letter, or one that keys open: the palette and the search.
    void fill(const QString &keys, QString text)
    {
        press(keys);
        text.replace(u"FOLDER"_s, m_desk.path({}));
        const auto *box = qobject_cast<QComboBox *>(QApplication::focusWidget());
        if (box && !box->isEditable()) {
            press(u"Home"_s);
            for (int left = box->count(); left > 0 && !box->currentText().startsWith(text); --left)
                press(u"Down"_s);
            QVERIFY(box->currentText().startsWith(text));
            return;
        }
        press(u"Ctrl+A"_s);
        press(u"Del"_s);
        m_desk.type(text);
        if (!keys.startsWith(u"Alt+"))
            press(u"Return"_s);
        else if (QApplication::activePopupWidget())
            press(u"Tab"_s);
    }
    /// Goes on with Tab until a part of this class has the focus.
    template <typename Part>
    Part *tabTo()
    {
        for (int tries = 0; !qobject_cast<Part *>(QApplication::focusWidget()) && tries < 40;
             ++tries)
            press(u"Tab"_s);
        return qobject_cast<Part *>(QApplication::focusWidget());
    }
    void chooseTab(const QString &title)
    {
        auto *tabs = tabTo<QTabBar>();
        QVERIFY(tabs);
        while (tabs->currentIndex() > 0)
            press(u"Left"_s);
        while (tabs->tabText(tabs->currentIndex()) != title &&
               tabs->currentIndex() + 1 < tabs->count())
            press(u"Right"_s);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), title);
    }
    void chooseRow(const QRegularExpression &wanted)
    {
        auto *table = tabTo<QTableView>();
        QVERIFY(table);
        press(u"Ctrl+Home"_s);
        const auto isThere = [&] {
            return test::rowText(*table,
                                 [table](int column) {
                                     return table->currentIndex().siblingAtColumn(column).data();
                                 })
                .contains(wanted);
        };
        for (int row = 0; !isThere() && row < table->model()->rowCount(); ++row)
            press(u"Down"_s);
        QVERIFY(isThere());
    }
    void undo(int steps, const QString &begun)
    {
        for (int left = steps; left > 0; --left)
            press(u"Ctrl+Z"_s);
        press(u"Ctrl+S"_s);
        QCOMPARE(figures(m_desk.document().file()), figures(typed(begun)));
        for (int left = steps; left > 0; --left)
            press(u"Ctrl+Shift+Z"_s);
    }

    /// All that the page shows.
    QString told()
    {
        QStringList texts;
        test::tell(*m_desk.window().page(), INT_MAX, texts);
        return texts.join(u'\n');
    }
    void compare(const QString &name)
    {
        press(u"Ctrl+S"_s);
        const auto window = figures(m_desk.path(name)).split('\n');
        const auto command = figures(typed(name)).split('\n');
        for (qsizetype line = 0; line < command.size(); ++line)
            QCOMPARE(window.value(line), command.at(line));
    }

    HouseholdWindow m_desk;
    QString m_export;
    bool m_hasFailed = false;
};

static const kiv::test::Suite<TestByKeys> testByKeysSuite;

#include "tst_by_keys.moc"
