// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/accessibility.h"
#include "desktop/follower.h"
#include "desktop/page_keys.h"
#include "desktop/wanderer.h"
#include "widgets/announcer.h"
#include "widgets/delay.h"
#include "wizards/first_time_wizard.h"

namespace kiv::test {

constexpr int rowsMax = 3; ///< of a table
constexpr qsizetype lineMax = 158;
constexpr int manyParts = 3; ///< that come back are told by their number and a checksum
const QString faultMark = u"wrong: "_qs;
inline QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// Versions and rates have the time of the calendar.
inline QRegularExpression moment()
{
    return QRegularExpression(
        u"%1( \\d\\d:\\d\\d(:\\d\\d)?)?"_qs.arg(QDate::currentDate().toString(Qt::ISODate)));
}

/// What a line begins with, and the parts, in lines that can be read; no step is broken.
inline QByteArray inLines(const QString &begin, const QStringList &told)
{
    QString text = begin + u" ⇒ "_qs + (told.isEmpty() ? u"nothing"_qs : told.join(u" · "_qs));
    text.replace(u'\n', u" / "_qs);
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
inline QStringList newsOf(const QStringList &told, const QStringList &before, bool isCounted = true)
{
    QStringList news;
    for (const QString &part : told) {
        if (!before.contains(part))
            news += part;
    }
    const auto gone = std::ranges::count_if(
        before, [&told](const QString &part) { return !told.contains(part); });
    return gone == 0 || !isCounted ? news : news << u"(%1 gone)"_qs.arg(gone);
}

inline std::map<QString, QSet<QString>> everSeen; ///< what each page and step told at any time
inline std::map<QString, QStringList> lastSeen; ///< what each page and step told, in any household

/// Does steps in a window on a small household, and tells what came of them.
class StepRunner {
public:
    explicit StepRunner(const QString &place) : m_place(place), m_wanderer(place)
    {
        QSignalSpy started(&m_home.requests().navigator(),
                           &navigation::Navigator::showNewBudgetFirstTimeWizard);
        m_home.begin();
        QVERIFY(QDir::setCurrent(m_home.path({}))); // where a name without a folder leads
        m_home.window().resize(1024, 600);
        m_home.show();
        QVERIFY(!started.isEmpty() || started.wait()); // which comes a while after the start
        m_start = m_home.document().present();
        for (const QTableView *table : m_home.window().findChildren<QTableView *>())
            m_followers += new Follower(*table->model());
        for (auto *delay : m_home.window().findChildren<desktop::Delay *>())
            delay->setInterval(0); // what waits is not to depend on how fast the test is
        m_home.window().goTo(desktop::Place::fromText(place));
        (void)news();
    }
    ~StepRunner()
    {
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QDir::setCurrent(m_folder);
    }
    /// "go PLACE", "do ACTION" and "at FIELD=TEXT", "=TEXT" where the keys go, "file FILE TEXT" for
    /// the one that is asked for next, "choose NUMBER" for the next answer, "read FILE TEXT" for an
    /// import, "press NAME X Y" and "twice NAME X Y" for the mouse at a hundredth of a part, "size
    /// WIDTH HEIGHT", "mirror" for a language that is read from the right, "menu", "walk COUNT",
    /// and keys.
    void step(const QString &steps)
    {
        for (QString one : steps.split(u"; "_qs)) {
            one.replace(u"FOLDER"_qs, m_home.path({}));
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
            else if (one.startsWith(u"choose "))
                m_home.questions().choices = {rest.toInt()};
            else if (one.startsWith(u"press ") || one.startsWith(u"twice "))
                press(rest, one.startsWith(u"twice "));
            else if (one.startsWith(u"size "))
                m_home.window().resize(rest.section(u' ', 0, 0).toInt(),
                                       rest.section(u' ', 1).toInt());
            else if (one.startsWith(u"walk "))
                walk(rest.toInt());
            else if (one == u"mirror")
                mirror();
            else if (one == u"menu")
                askForMenu();
            else if (one.startsWith(u'='))
                enter(m_home, one.mid(1));
            else
                keys(m_home, one);
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
            news += u"(%1 again: %2)"_qs.arg(back.size()).arg(sum, 0, 16);
        }
        everSeen[seen] += QSet<QString>(told.begin(), told.end());
        news += newsOf(round, std::exchange(m_round, round), false);
        return m_walked.isEmpty() ? news : std::exchange(m_walked, {});
    }
    void undoAll()
    {
        while (m_home.document().undoable() && m_home.document().undoable()->line != u"Began")
            m_home.trigger("undo");
        if (m_home.document().file() == m_home.path(u"home.budget"_qs))
            QCOMPARE(m_home.document().present(), m_start);
    }

private:
    /// So many steps of chance. What is wrong is told with them, the rest is summed up; with
    /// KIV_WALK, the name of a file, it is added there to compare what two versions tell.
    void walk(int count)
    {
        QCryptographicHash sum(QCryptographicHash::Md5), painted(QCryptographicHash::Md5);
        for (int rest = count; rest > 0; --rest) {
            const QString chosen = m_wanderer.step(m_home.window(), *page());
            step(chosen);
            // What these tell depends on how long something takes.
            const desktop::Page *there = m_home.window().page();
            if (there && (there->id() == u"history" || there->id() == u"encryption"))
                step(u"go "_qs + m_place);
            for (int again = 0; again < 4; ++again) // what wraps needs another layout
                QCoreApplication::processEvents();
            auto [told, round] = all();
            for (const QString &part : told) {
                // What is typed and not yet kept may be shown otherwise later, and keys may well
                // go to another column.
                if (part.startsWith(faultMark) && !part.contains(u": shown") &&
                    !part.contains(u"in column"))
                    m_walked += chosen + u' ' + part;
            }
            const QByteArray text = inLines(u"$ "_qs + chosen, told + round);
            sum.addData(text);
            // Where a path is shown, what is painted depends on it; what is kept is not shown.
            round.removeIf([](const QString &part) { return part.startsWith(u"keeps "); });
            const QString all = (told + round).join(u' ');
            if (rest % 5 == 0 && !all.contains(u"FOLDER") && !all.contains(u"DOCUMENTS"))
                painted.addData(Painted(m_home.window()).sum().toLatin1() + cells());
            if (qEnvironmentVariableIsSet("KIV_WALK")) {
                QFile file(qEnvironmentVariable("KIV_WALK"));
                QVERIFY(file.open(QFile::Append) && file.write(text) == text.size());
            }
        }
        m_walked += QString::fromLatin1(sum.result().toHex().first(8));
        m_walked += u"painted "_qs + QString::fromLatin1(painted.result().toHex().first(8));
    }
    /// All that tables know of their first rows.
    [[nodiscard]] QByteArray cells()
    {
        QString all;
        for (const QTableView *table : page()->findChildren<QTableView *>()) {
            for (int row = 0; row < std::min(table->model()->rowCount(), rowsMax); ++row) {
                for (int column = 0; column < table->model()->columnCount(); ++column) {
                    for (int role = 0; role <= Qt::SizeHintRole; ++role)
                        QDebug(&all) << table->model()->index(row, column).data(role);
                }
            }
        }
        return all.toUtf8();
    }
    /// What is shown, with what is wrong, and what is told around it.
    [[nodiscard]] std::pair<QStringList, QStringList> all()
    {
        QStringList told = shown();
        told += faults(told).replaceInStrings(QRegularExpression(u"^"_qs), faultMark);
        QStringList round = around(told);
        for (QStringList *all : {&told, &round}) {
            all->replaceInStrings(m_home.path({}), u"FOLDER"_qs);
            all->replaceInStrings(documents(), u"DOCUMENTS"_qs);
            all->replaceInStrings(moment(), u"MOMENT"_qs);
        }
        return {told, round};
    }
    /// As in a language that is read from the right to the left.
    void mirror()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        for (Follower *follower : m_followers)
            (void)follower->missed();
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
        tell(*page(), rowsMax, told);
        tell(*m_home.window().findChild<QWidget *>(u"explanation"_qs), rowsMax, told);
        return told;
    }
    [[nodiscard]] QString pageName()
    {
        const auto *pages = m_home.window().findChild<QListWidget *>(u"pages"_qs);
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
                faults += u"shown otherwise when all is refreshed: "_qs +
                          newsOf(shown(), told).join(u", "_qs);
        }
        for (int again = 0; again < 4; ++again) // what wraps needs another layout
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        // From double texts on, a page that fits needs a larger screen; see TestLooks.
        const bool fits = m_home.settings().textSize() < 200 || m_home.window().width() >= 1366;
        for (const QString &misfit : fits ? misfits(m_home.window()) : QStringList())
            faults += u"misfit: "_qs + misfit;
        for (const QTableView *table : page()->findChildren<QTableView *>()) {
            const QModelIndex chosen = table->currentIndex();
            if (!table->isVisible() || !chosen.isValid())
                continue;
            if (!table->viewport()->rect().contains(table->visualRect(chosen).center()))
                faults += u"out of sight: a row of "_qs + table->accessibleName();
            if (chosen.column() != 0)
                faults += u"in column %1"_qs.arg(chosen.column());
        }
        for (Follower *follower : m_followers) {
            if (const QString missed = follower->missed(); !missed.isEmpty())
                faults += u"not called changed: "_qs + missed;
        }
        return faults;
    }
    /// What is left of a step elsewhere: what was asked, is kept in the settings, and was written.
    [[nodiscard]] QStringList traces()
    {
        QStringList traces;
        for (const QString &asked : std::exchange(m_home.questions().asked, {}))
            traces += u"asked: "_qs + asked.left(lineMax);
        const QSettings kept(m_home.path(u"window.ini"_qs), QSettings::IniFormat);
        for (const QString &key : kept.allKeys()) {
            const QVariant value = kept.value(key);
            // The page is told already, and bytes are how wide columns are and the like.
            if (key == u"page" || value.typeId() == QMetaType::QByteArray)
                continue;
            const QStringList all = value.toStringList(); // none of a number
            traces +=
                u"keeps %1 %2"_qs.arg(key, all.isEmpty() ? value.toString() : all.join(u", "_qs));
        }
        const QDir folder(m_home.path({}));
        for (const QString &name : folder.entryList({u"out*.txt"_qs}, QDir::Files)) {
            QFile file(folder.filePath(name));
            if (!file.open(QFile::ReadOnly))
                traces += faultMark + name + u" cannot be read"_qs;
            const QString text = QString::fromUtf8(file.readAll()).replace(moment(), {});
            // A document has its time and the fonts in it.
            traces += u"wrote %1 %2"_qs.arg(name).arg(
                text.startsWith(u"%PDF") ? 0 : qChecksum(text.toUtf8()), 0, 16);
        }
        return traces;
    }
    /// What the window tells around its page.
    [[nodiscard]] QStringList around(const QStringList &told)
    {
        // Whether it is saved yet is a matter of time.
        QStringList round{
            u"%1 of %2"_qs.arg(pageName(), m_home.window().windowTitle().section(u" ("_qs, 0, 0))};
        for (const QString &notice : m_home.notices())
            round += u"notice: "_qs + notice;
        if (m_home.notices().isEmpty())
            round += u"no notice"_qs;
        const QString heard = m_home.window().findChild<desktop::Announcer *>()->text();
        round += u"heard: "_qs + (heard == pageName()    ? u"it"_qs
                                  : told.contains(heard) ? u"that"_qs
                                                         : heard);
        round += traces();
        for (const auto *name : {"undo", "redo"})
            round += m_home.window().desk().actions().action(QLatin1String(name))->text();
        const auto actions = m_home.window().findChildren<QAction *>();
        round += u"%1 actions"_qs.arg(std::ranges::count_if(actions, &QAction::isEnabled));
        round += u"at "_qs + focused();
        if (const auto *offers = qobject_cast<QListView *>(QApplication::activePopupWidget()))
            round += u"offered: "_qs + rowsOf(*offers, rowsMax).join(u", "_qs);
        if (const auto *found = m_home.window().findChild<QListWidget *>(u"found"_qs);
            found->isVisible())
            round += rowsOf(*found, rowsMax);
        if (const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            for (const QAction *one : menu->actions())
                round += one->text() + (one->isEnabled() ? QString() : u" (off)"_qs);
        }
        return round;
    }
    /// Where the keys go, and whether they replace what is there.
    [[nodiscard]] static QString focused()
    {
        const QWidget *focus = QApplication::focusWidget();
        if (!focus)
            return u"nothing"_qs;
        const auto *edit = qobject_cast<const QLineEdit *>(focus);
        const bool isMarked =
            edit && edit->hasSelectedText() && edit->selectedText() == edit->text();
        return (focus->accessibleName().isEmpty() ? focus->objectName() : focus->accessibleName()) +
               (isMarked ? u", marked"_qs : QString());
    }
    /// A part of the page without a letter of its own, by its name or its text.
    [[nodiscard]] QWidget *part(const QString &name)
    {
        for (QWidget *part : page()->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<QAbstractButton *>(part);
            if (part->isVisible() && part->focusPolicy() != Qt::NoFocus &&
                (part->objectName() == name || part->accessibleName() == name ||
                 (button && button->text() == name)))
                return part;
        }
        QTest::qFail(qPrintable(u"There is nothing to go to: "_qs + name), __FILE__, __LINE__);
        return nullptr;
    }
    /// Goes to a part, and types there what stands behind "=".
    void at(const QString &text)
    {
        QWidget *const part = this->part(text.section(u'=', 0, 0));
        if (!part)
            return;
        part->setFocus(Qt::OtherFocusReason);
        if (text.contains(u'='))
            enter(m_home, text.section(u'=', 1));
    }
    void press(const QString &text, bool isTwice)
    {
        QWidget *part = this->part(text.section(u' ', 0, -3));
        if (!part)
            return;
        if (auto *table = qobject_cast<QAbstractItemView *>(part))
            part = table->viewport();
        const QPoint at(part->width() * text.section(u' ', -2, -2).toInt() / 100,
                        part->height() * text.section(u' ', -1).toInt() / 100);
        QTest::mouseClick(part, Qt::LeftButton, {}, at);
        if (isTwice)
            QTest::mouseDClick(part, Qt::LeftButton, {}, at);
    }

    const QPalette m_palette = QApplication::palette();
    const QFont m_font = QApplication::font();
    const QString m_folder = QDir::currentPath();
    QString m_place; ///< where it began
    Wanderer m_wanderer;
    QStringList m_walked; ///< what walks told
    SmallHousehold m_home;
    storage::BudgetStorage::Data m_start;
    QList<Follower *> m_followers;
    QStringList m_round; ///< what the window told around its page
};

} // namespace kiv::test
