// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/accessibility.h"
#include "desktop/follower.h"
#include "desktop/page_keys.h"
#include "desktop/wanderer.h"
#include "desktop/ways.h"
#include "widgets/announcer.h"
#include "widgets/delay.h"
#include "widgets/notice_bar.h"
#include "wizards/first_time_wizard.h"

namespace {
QDate todayIs; ///< for a test; otherwise the calendar's
}
/// A program's own function goes before that of a library that is loaded.
QDate kiv::foundation::today()
{
    return todayIs.isValid() ? todayIs : QDate::currentDate();
}

namespace {

constexpr int rowsMax = 4; ///< of a table
constexpr qsizetype lineMax = 158;
constexpr int manyParts = 4; ///< that come back are told by their number and a checksum
const QString faultMark = u"wrong: "_qs;
const QByteArray licence = "# SPDX-License-Identifier: GPL-3.0-or-later\n";

QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// Versions and rates have the time of the calendar.
QRegularExpression moment()
{
    return QRegularExpression(
        u"%1( \\d\\d:\\d\\d(:\\d\\d)?)?"_s.arg(QDate::currentDate().toString(Qt::ISODate)));
}

/// What a line begins with, and the parts, in lines that can be read; no step is broken.
QByteArray inLines(const QString &begin, const QStringList &told)
{
    QString text = begin + u" ⇒ "_s + (told.isEmpty() ? u"nothing"_s : told.join(u" · "_s));
    text.replace(u'\n', u" / "_s);
    qsizetype first = 0;
    while (text.size() - first > lineMax) {
        const qsizetype end = std::max(text.lastIndexOf(u' ', first + lineMax), begin.size() + 2);
        if (end < first)
            break; // a word that is longer than a line
        text[end] = u'\n';
        first = end + 1;
    }
    return text.toUtf8() + '\n';
}

/// What was not told before, and how much is told no more.
QStringList newsOf(const QStringList &told, const QStringList &before, bool isCounted = true)
{
    QStringList news;
    for (const QString &part : told) {
        if (!before.contains(part))
            news += part;
    }
    const auto gone = std::ranges::count_if(
        before, [&told](const QString &part) { return !told.contains(part); });
    return gone == 0 || !isCounted ? news : news << u"(%1 gone)"_s.arg(gone);
}

/// Compares with a file, or writes it anew.
void compare(const QByteArray &told, const char *path)
{
    if (qEnvironmentVariableIsSet("KIV_RENEW")) {
        QFile file(QString::fromLatin1(path));
        QVERIFY(file.open(QFile::WriteOnly) && file.write(told) == told.size());
        return;
    }
    QStringList found = QString::fromUtf8(told).split(u'\n');
    QStringList expected = test::linesOf(path);
    if (!test::Painted::isKnown()) {
        for (QStringList *lines : {&found, &expected})
            lines->replaceInStrings(QRegularExpression(u"painted [0-9a-f]+"_s), u"painted"_s);
    }
    for (qsizetype line = 0; line < std::max(expected.size(), found.size()); ++line)
        QCOMPARE(found.value(line), expected.value(line));
}

std::map<QString, QSet<QString>> everSeen; ///< what each page and step told at any time
std::map<QString, QStringList> lastSeen;   ///< what each page and step told, in any household

/// A household in which deeds are done.
class Desk {
public:
    explicit Desk(const QString &place) : m_place(place), m_wanderer(place)
    {
        m_home.begin();
        QVERIFY(QDir::setCurrent(m_home.path({}))); // where a name without a folder leads
        m_home.window().resize(1024, 600);
        m_home.show();
        m_start = m_home.document().present();
        for (const QTableView *table : m_home.window().findChildren<QTableView *>())
            m_followers += new test::Follower(*table->model());
        for (auto *delay : m_home.window().findChildren<desktop::Delay *>())
            delay->setInterval(0); // what waits is not to depend on how fast the test is
        m_home.window().goTo(desktop::Place::fromText(place));
        (void)news();
    }
    ~Desk()
    {
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
        QDir::setCurrent(m_folder);
    }
    /// "go PLACE", "do ACTION" and "at FIELD=TEXT", "=TEXT" where the keys go, "file FILE TEXT" for
    /// the one that is asked for next, "read FILE TEXT" for an import, "menu", "walk COUNT", and
    /// keys.
    void step(const QString &steps)
    {
        for (QString one : steps.split(u"; "_s)) {
            one.replace(u"FOLDER"_s, m_home.path({}));
            const QString rest = one.section(u' ', 1);
            if (one.startsWith(u"go "))
                m_home.window().goTo(desktop::Place::fromText(rest));
            else if (one.startsWith(u"do "))
                m_home.trigger(rest.toLatin1());
            else if (one.startsWith(u"at "))
                at(rest);
            else if (one.startsWith(u"file "))
                m_home.questions().files = {fileOf(rest)};
            else if (one.startsWith(u"read "))
                m_home.beginImport(rest.section(u' ', 0, 0), bytesOf(rest), "");
            else if (one.startsWith(u"walk "))
                walk(rest.toInt());
            else if (one == u"menu")
                askForMenu();
            else if (one.startsWith(u'='))
                test::enter(m_home, one.mid(1));
            else
                test::keys(m_home, one);
        }
    }
    /// What is new since the page was seen, and since the last step around it.
    QStringList news()
    {
        auto [told, round] = all();
        QString seen = pageName() + QLatin1String(page()->metaObject()->className());
        for (const auto *steps : page()->findChildren<QStackedWidget *>())
            seen += QString::number(steps->currentIndex());
        QStringList news = newsOf(told, std::exchange(lastSeen[seen], told));
        const auto isKnown = [&](const QString &part) { return everSeen[seen].contains(part); };
        QStringList back;
        std::ranges::copy_if(news, std::back_inserter(back), isKnown);
        if (back.size() >= manyParts) {
            const quint16 sum = qChecksum(back.join(u'\n').toUtf8());
            news.removeIf(isKnown);
            news += u"(%1 again: %2)"_s.arg(back.size()).arg(sum, 0, 16);
        }
        everSeen[seen] += QSet<QString>(told.begin(), told.end());
        news += newsOf(round, std::exchange(m_round, round), false);
        return m_walked.isEmpty() ? news : std::exchange(m_walked, {});
    }
    void undoAll()
    {
        while (m_home.document().undoable() && m_home.document().undoable()->line != u"Began")
            m_home.trigger("undo");
        if (m_home.document().file() == m_home.path(u"home.budget"_s))
            QCOMPARE(m_home.document().present(), m_start);
    }

private:
    /// So many steps of chance. What is wrong is told with them, the rest is summed up; with
    /// KIV_WALK, the name of a file, it is added there to compare what two versions tell.
    void walk(int count)
    {
        QCryptographicHash sum(QCryptographicHash::Md5), painted(QCryptographicHash::Md5);
        for (int left = count; left > 0; --left) {
            const QString chosen = m_wanderer.step(m_home.window(), *page());
            step(chosen);
            for (int again = 0; again < 4; ++again) // what wraps needs another layout
                QCoreApplication::processEvents();
            // The one takes its time, the other changes the looks.
            if (pageName() == u"History" || pageName() == u"Settings")
                step(u"go "_s + m_place);
            const auto [told, round] = all();
            for (const QString &part : told) {
                // What is typed and not yet kept may be shown otherwise later, and keys may well
                // go to another column.
                if (part.startsWith(faultMark) && !part.contains(u": shown") &&
                    !part.contains(u"in column"))
                    m_walked += chosen + u' ' + part;
            }
            const QByteArray text = inLines(u"$ "_s + chosen, told + round);
            sum.addData(text);
            if (left % 5 == 0 && !text.contains("FOLDER") && !text.contains("DOCUMENTS"))
                painted.addData(test::Painted(m_home.window()).sum().toLatin1());
            if (qEnvironmentVariableIsSet("KIV_WALK")) {
                QFile file(qEnvironmentVariable("KIV_WALK"));
                QVERIFY(file.open(QFile::Append) && file.write(text) == text.size());
            }
        }
        m_walked += QString::fromLatin1(sum.result().toHex().first(8));
        m_walked += u"painted "_s + QString::fromLatin1(painted.result().toHex().first(8));
    }
    /// What is shown, with what is wrong, and what is told around it.
    [[nodiscard]] std::pair<QStringList, QStringList> all()
    {
        QStringList told = shown();
        told += faults(told).replaceInStrings(QRegularExpression(u"^"_s), faultMark);
        QStringList round = around(told);
        for (QStringList *all : {&told, &round}) {
            all->replaceInStrings(m_home.path({}), u"FOLDER"_s);
            all->replaceInStrings(documents(), u"DOCUMENTS"_s);
            all->replaceInStrings(moment(), u"MOMENT"_s);
        }
        return {told, round};
    }
    static void askForMenu()
    {
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(QApplication::focusWidget(), &asked);
    }
    /// What stands behind the file's name; a line each.
    [[nodiscard]] static QByteArray bytesOf(const QString &step)
    {
        return step.section(u' ', 1).replace(u'|', u'\n').toUtf8();
    }
    [[nodiscard]] QString fileOf(const QString &step) const
    {
        const QString name = step.section(u' ', 0, 0);
        return name == step ? m_home.path(name) : m_home.write(name, bytesOf(step));
    }
    /// The page that is shown, or the first steps.
    [[nodiscard]] QWidget *page()
    {
        auto *first = m_home.window().findChild<desktop::FirstTimeWizard *>();
        return first && first->isVisible() ? static_cast<QWidget *>(first) : m_home.window().page();
    }
    [[nodiscard]] QStringList shown()
    {
        QStringList told;
        test::tell(*page(), rowsMax, told);
        test::tell(*m_home.window().findChild<QWidget *>(u"explanation"_s), rowsMax, told);
        return told;
    }
    [[nodiscard]] QString pageName()
    {
        const auto *pages = m_home.window().findChild<QListWidget *>(u"pages"_s);
        return pages->currentItem() ? pages->currentItem()->text() : QString();
    }
    /// What is wrong whatever was done.
    [[nodiscard]] QStringList faults(const QStringList &told)
    {
        QStringList faults;
        // What is shown has followed at once, new rows with the events they wait for; what is
        // refused waits for another try.
        const bool isRefused =
            std::ranges::any_of(told, [](const QString &part) { return part.startsWith(u"⚠ "); });
        if (!isRefused) {
            emit m_home.window().desk().refreshWanted();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
            if (told != shown())
                faults += u"shown otherwise when all is refreshed: "_s +
                          newsOf(shown(), told).join(u", "_s);
        }
        for (int again = 0; again < 4; ++again) // what wraps needs another layout
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (const QString &misfit : test::misfits(m_home.window()))
            faults += u"misfit: "_s + misfit;
        for (const QTableView *table : page()->findChildren<QTableView *>()) {
            const QModelIndex chosen = table->currentIndex();
            if (!table->isVisible() || !chosen.isValid())
                continue;
            if (!table->viewport()->rect().contains(table->visualRect(chosen).center()))
                faults += u"out of sight: a row of "_s + table->accessibleName();
            if (chosen.column() != 0)
                faults += u"in column %1"_s.arg(chosen.column());
        }
        for (test::Follower *follower : m_followers) {
            if (!follower->isTrue())
                faults += u"not all that changed is called changed"_s;
        }
        return faults;
    }
    /// What the window tells around its page.
    [[nodiscard]] QStringList around(const QStringList &told)
    {
        // Whether it is saved yet is a matter of time.
        QStringList round{
            u"%1 of %2"_s.arg(pageName(), m_home.window().windowTitle().section(u" ("_s, 0, 0))};
        for (const QString &notice : m_home.notices())
            round += u"notice: "_s + notice;
        if (m_home.notices().isEmpty())
            round += u"no notice"_s;
        const QString heard = m_home.window().findChild<desktop::Announcer *>()->text();
        round += u"heard: "_s + (heard == pageName()    ? u"it"_s
                                 : told.contains(heard) ? u"that"_s
                                                        : heard);
        const auto deed = m_home.document().undoable();
        round += u"undoes "_s + (deed ? deed->undone : u"nothing"_s);
        const auto actions = m_home.window().findChildren<QAction *>();
        round += u"%1 actions"_s.arg(std::ranges::count_if(actions, &QAction::isEnabled));
        round += u"at "_s + focused();
        if (const auto *offers = qobject_cast<QListView *>(QApplication::activePopupWidget()))
            round += u"offered: "_s + test::rowsOf(*offers, rowsMax).join(u", "_s);
        if (const auto *found = m_home.window().findChild<QListWidget *>(u"found"_s);
            found->isVisible())
            round += test::rowsOf(*found, rowsMax);
        if (const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *one : menu->actions())
                round += one->text() + (one->isEnabled() ? QString() : u" (off)"_s);
        }
        return round;
    }
    /// Where the keys go, and whether they replace what is there.
    [[nodiscard]] static QString focused()
    {
        const QWidget *focus = QApplication::focusWidget();
        if (!focus)
            return u"nothing"_s;
        const auto *edit = qobject_cast<const QLineEdit *>(focus);
        const bool isMarked =
            edit && edit->hasSelectedText() && edit->selectedText() == edit->text();
        return (focus->accessibleName().isEmpty() ? focus->objectName() : focus->accessibleName()) +
               (isMarked ? u", marked"_s : QString());
    }
    /// Goes to a part of the page without a letter of its own, by its name or its text.
    void at(const QString &text)
    {
        const QString name = text.section(u'=', 0, 0);
        for (QWidget *part : page()->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<QAbstractButton *>(part);
            if (!part->isVisible() || part->focusPolicy() == Qt::NoFocus ||
                (part->objectName() != name && part->accessibleName() != name &&
                 (!button || button->text() != name)))
                continue;
            part->setFocus(Qt::OtherFocusReason);
            if (text.contains(u'='))
                test::enter(m_home, text.section(u'=', 1));
            return;
        }
        QFAIL(qPrintable(u"There is nothing to go to: "_s + name));
    }

    const QPalette m_palette = QApplication::palette();
    const QFont m_font = QApplication::font();
    const QString m_folder = QDir::currentPath();
    QString m_place; ///< where it began
    test::Wanderer m_wanderer;
    QStringList m_walked; ///< what walks told
    SmallHousehold m_home;
    storage::BudgetStorage::Data m_start;
    QList<test::Follower *> m_followers;
    QStringList m_round; ///< what the window told around its page
};

} // namespace

/// What each page, form and wizard tells about the household, against told.txt, how their parts
/// are set, against ways.txt, and what deeds tell, against deeds.txt. With KIV_RENEW the files are
/// written anew.
class TestTold : public QObject {
    Q_OBJECT

private slots:
    void init() { todayIs = QDate(2026, 3, 1); }
    void cleanup() { todayIs = QDate(); }

    void everyPageTellsWhatIsWritten()
    {
        HouseholdWindow desk;
        const auto *pages = desk.window().findChild<QWidget *>(u"pages"_s);
        QVERIFY(!pages->isEnabled()); // without a budget
        desk.openHousehold();
        desk.show();
        QStringList before;
        test::tell(*pages, std::numeric_limits<int>::max(), before);
        desk.window().desk().notices().add({u"one"_s, u"Mind."_s, {{u"Mend"_s, [] {}}}});
        test::tell(*desk.window().findChild<desktop::NoticeBar *>(), rowsMax, before);
        for (const QAction *menu : desk.window().menuBar()->actions())
            before += u"%1 (%2)"_s.arg(menu->text()).arg(menu->menu()->actions().size());
        QByteArray told = licence + inLines(u"## window"_s, before);
        test::Ways ways;
        const auto look = [&](QWidget &shown, QWidget &first, const QString &place) {
            QStringList parts;
            test::tell(shown, rowsMax, parts);
            for (int again = 0; again < 4; ++again) // what wraps needs another layout
                QCoreApplication::processEvents();
            const QString all = parts.join(u' ');
            const bool hasPath = all.contains(desk.path({})) || all.contains(documents());
            told +=
                inLines(u"## %1: begins at '%2', Tab goes up %3 times, %4 parts, painted %5"_s
                            .arg(place, first.objectName())
                            .arg(test::tabsUp(shown, first))
                            .arg(parts.size())
                            .arg(hasPath ? u"with a path"_s : test::Painted(*shown.window()).sum()),
                        newsOf(parts, before));
            before = parts;
        };
        desk.lookAtAll(look);
        ways.count(desk.window());
        desk.lookAtDialogs([&](QWidget &shown, QWidget &first, const QString &name) {
            look(shown, first, name);
            ways.count(shown);
        });
        told.replace(desk.path({}).toUtf8(), "FOLDER");
        told.replace(documents().toUtf8(), "DOCUMENTS");
        told = QString::fromUtf8(told).replace(moment(), u"MOMENT"_s).toUtf8();
        compare(told, KIV_TOLD);
        compare(licence + ways.text(lineMax), KIV_WAYS);
    }

    /// Each step of deeds.txt with what is new then; at the end of its part all is undone.
    void deedsTellWhatTheyDid()
    {
        QByteArray told;
        std::optional<Desk> desk;
        for (const QString &line : test::linesOf(KIV_DEEDS)) {
            const QString rest = line.section(u' ', 1);
            const bool isPart = line.startsWith(u"## ");
            if (isPart && desk)
                desk->undoAll();
            if (isPart)
                desk.emplace(rest);
            if (isPart || line.startsWith(u"# "))
                told += line.toUtf8() + '\n';
            if (!line.startsWith(u"$ "))
                continue;
            const QString step = line.section(u" ⇒"_s, 0, 0);
            desk->step(step.mid(2));
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(step));
            told += inLines(step, desk->news());
        }
        QVERIFY(desk);
        desk->undoAll();
        compare(told, KIV_DEEDS);
    }
};

static const kiv::test::Suite<TestTold> suite;

#include "tst_told.moc"
