// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/file_session.h"

#include "workbench/document/demonstration.h"
#include "workbench/entry/user_locale.h"
#include "workbench/requests/settings.h"
#include "workbench/versions/kept_versions.h"

#include "foundation/clock.h"

#include <QtCore/QFileInfo>

#include <ranges>

namespace kiv::desktop {

using workbench::Document;
using workbench::Remedy;
using workbench::Trouble;
using Group = ActionCollection::Group;

namespace {

const QString openingNotice = QStringLiteral("opening");
const QString savingNotice = QStringLiteral("saving");
const QString readingNotice = QStringLiteral("reading");

/// Of the versions of a file that is damaged or gone, so many are offered.
constexpr std::size_t versionsOffered = 12;

QString undoText(const QString &verb, const std::optional<workbench::Deed> &deed)
{
    if (!deed)
        return verb;
    return deed->undone.isEmpty() ? QObject::tr("%1: %2").arg(verb, deed->line)
                                  : QObject::tr("%1 %2").arg(verb, deed->undone);
}

} // namespace

FileSession::FileSession(Desk &desk, QWidget *window)
    : QObject(window), m_desk(desk), m_window(window), m_unlocking(desk, window)
{
    desk.document().setKeeping(Document::Keeping::WithinASecond);
    addActions();
    // As long as there are no preferences, each start empties the budget for the wizard.
    connect(&desk.document().navigator(), &navigation::Navigator::showNewBudgetFirstTimeWizard,
            this, [this] {
                storePreferences();
                if (m_desk.document().file().isEmpty())
                    emit beginnerCame();
            });
    connect(&desk.document().news(), &workbench::DocumentNews::keepingChanged, this,
            &FileSession::followKeeping);
    connect(&desk, &Desk::refreshWanted, this, &FileSession::followBudget);
    followBudget();
}

void FileSession::addActions()
{
    ActionCollection &actions = m_desk.actions();
    const auto add = [&](const char *id, Group group, const QString &text, const QKeySequence &keys,
                         void (FileSession::*run)()) {
        actions.add(QString::fromLatin1(id), group, text, keys, [this, run] { (this->*run)(); });
    };
    add("new", Group::File, tr("&New budget …"), QKeySequence::New, &FileSession::makeNew);
    actions.add(QStringLiteral("open"), Group::File, tr("&Open a budget …"), QKeySequence::Open,
                [this] {
                    const QString file = m_desk.questions().fileToOpen(m_window);
                    if (!file.isEmpty())
                        open(file);
                });
    add("demonstration", Group::File, tr("&Demonstration …"), {}, &FileSession::makeDemonstration);
    add("save", Group::File, tr("&Save now"), QKeySequence::Save, &FileSession::saveNow);
    add("saveAs", Group::File, tr("Save &as …"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
        &FileSession::saveAs);
    add("saveCopy", Group::File, tr("Save a &copy …"), {}, &FileSession::saveCopy);
    actions.add(QStringLiteral("encryption"), Group::File, tr("Encr&yption …"), {}, [this] {
        m_desk.goTo({QStringLiteral("encryption"), {}});
    });
    add("undo", Group::Edit, tr("&Undo"), QKeySequence::Undo, &FileSession::undo);
    add("redo", Group::Edit, tr("&Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
        &FileSession::redo);
}

void FileSession::storePreferences()
{
    attempt(QStringLiteral("preferences"), [this] {
        workbench::Requests &requests = m_desk.requests();
        const auto answer = requests.ask(&navigation::Navigator::showConfigure,
                                         &navigation::Navigator::onPrepareShowConfigure);
        auto settings = std::get<navigation::ConfigurationData>(answer);
        // A budget that is open already can have others than those of the settings.
        settings.usableCurrencies.merge(std::set(std::get<std::set<numira::Currency>>(answer)));
        workbench::storeSettings(requests, settings);
    });
}

bool FileSession::attempt(const QString &id, const std::function<void()> &work)
{
    try {
        const bool isDone = m_unlocking.withPassphrases(work);
        m_desk.notices().remove(id);
        return isDone;
    } catch (const foundation::Error &error) {
        tell(id, workbench::troubleOfSaving(error), {});
        return false;
    }
}

bool FileSession::open(const QString &file, Document::Access access)
{
    Document &document = m_desk.document();
    // What was changed until now must not be lost for it.
    const Leaving leaving = leave();
    if (leaving == Leaving::Not)
        return false;
    const QString path = Document::withExtension(QFileInfo(file).absoluteFilePath());
    try {
        const bool isOpen = m_unlocking.withPassphrases([&] {
            if (leaving == Leaving::GivingUp)
                document.openGivingUp(path, access);
            else
                document.open(path, access);
        });
        if (!isOpen)
            return false;
    } catch (const foundation::Error &error) {
        tell(openingNotice, workbench::troubleOfOpening(path, error), path);
        return false;
    }
    settle();
    return true;
}

void FileSession::settle()
{
    const Document &document = m_desk.document();
    for (const QString &id : {openingNotice, savingNotice, readingNotice})
        m_desk.notices().remove(id);
    m_desk.settings().addRecentFile(document.file());
    if (document.isReadOnly()) {
        m_desk.notices().add({readingNotice,
                              tr("This budget can only be read now. %1")
                                  .arg(document.whyReadOnly().value_or(QString())),
                              {{tr("Try again"), [this] { open(m_desk.document().file()); }}}});
    }
    followBudget();
    emit opened();
    emit m_desk.refreshWanted();
    m_desk.say(tr("“%1” is open.").arg(QFileInfo(document.file()).completeBaseName()));
}

void FileSession::makeNew()
{
    // A new budget has no place to come back from, so nothing is given up for it.
    if (leave() != Leaving::Saved)
        return;
    const QString file = m_desk.questions().fileToMake(m_window, tr("New budget"));
    if (file.isEmpty())
        return;
    const bool isMade = attempt(openingNotice, [&] {
        Document &document = m_desk.document();
        document.createEmpty(QFileInfo(file).absoluteFilePath(), tr("New budget"));
    });
    if (isMade)
        settle();
}

void FileSession::makeFilled(const QString &file, const workbench::Deed &deed,
                             const std::function<void()> &fill)
{
    if (leave() != Leaving::Saved)
        return;
    m_desk.document().createFilled(file, deed, fill);
    settle();
}

void FileSession::makeDemonstration()
{
    const QString file = m_desk.questions().fileToMake(m_window, tr("Demonstration"));
    if (file.isEmpty())
        return;
    attempt(openingNotice, [&] {
        makeFilled(QFileInfo(file).absoluteFilePath(),
                   {tr("Made the demonstration"), tr("making the demonstration"), {}}, [this] {
                       workbench::makeDemonstration(m_desk.document(), foundation::today());
                   });
    });
}

void FileSession::saveNow()
{
    const bool isSaved = attempt(savingNotice, [this] { m_desk.document().writeNow(); });
    if (isSaved)
        m_desk.say(tr("Saved."));
}

void FileSession::saveCopy()
{
    const QString file = m_desk.questions().fileToMake(m_window, tr("Save a copy"));
    if (file.isEmpty())
        return;
    const QString notice = QStringLiteral("copy");
    if (attempt(notice, [&] { m_desk.document().saveCopy(QFileInfo(file).absoluteFilePath()); }))
        m_desk.say(tr("The copy is saved as “%1”.").arg(file));
}

void FileSession::saveElsewhere()
{
    saveUnder(tr("Save elsewhere"), savingNotice);
}

void FileSession::saveAs()
{
    saveUnder(tr("Save as"), QStringLiteral("saveAs"));
}

void FileSession::saveUnder(const QString &heading, const QString &notice)
{
    const QString file = m_desk.questions().fileToMake(m_window, heading);
    if (file.isEmpty())
        return;
    const bool isSaved = attempt(notice, [&] {
        Document::refuseExisting(file);
        m_desk.document().saveAs(QFileInfo(file).absoluteFilePath(), tr("Saved elsewhere"));
    });
    if (isSaved)
        settle();
}

void FileSession::undo()
{
    attempt(QStringLiteral("undo"), [this] {
        const Document::Recalled recalled = m_desk.document().undo();
        tellRecalled(recalled.deed, tr("Undone: %1").arg(recalled.deed.line));
    });
}

void FileSession::redo()
{
    attempt(QStringLiteral("undo"), [this] {
        const Document::Recalled recalled = m_desk.document().redo();
        tellRecalled(recalled.deed, recalled.deed.line);
    });
}

void FileSession::tellRecalled(const workbench::Deed &deed, const QString &sentence)
{
    if (!deed.place.isEmpty())
        m_desk.goTo(Place::fromText(deed.place));
    m_desk.say(sentence); // over the name of the page
}

void FileSession::reload()
{
    if (attempt(savingNotice, [this] { m_desk.document().reload(); }))
        settle();
}

void FileSession::bringBack(const QString &file, const std::optional<QString> &version)
{
    const bool isBack = attempt(openingNotice, [&] {
        Document &document = m_desk.document();
        document.openLost(file);
        auto back = qScopeGuard([&document] { document.revert(); }); // to the one that was open
        if (version)
            document.undoTo(*version);
        else
            document.undo();
        back.dismiss();
    });
    if (isBack)
        settle();
}

void FileSession::offerVersions(const QString &file)
{
    QStringList names;
    QStringList texts;
    const bool isRead = attempt(openingNotice, [&] {
        names.clear();
        texts.clear();
        const storage::KeyRing &keys = m_desk.document().keys();
        const workbench::KeptVersions versions(file, &keys);
        const auto isWhole = [](const storage::KeptVersion &version) {
            return !version.isFile && version.telling != storage::KeptVersion::Telling::Nothing;
        };
        auto whole = versions.all() | std::views::filter(isWhole);
        if (!whole.empty())
            keys.require(whole.front().path); // its change has a name
        for (const storage::KeptVersion &version : whole | std::views::take(versionsOffered)) {
            names += version.name;
            texts +=
                tr("%1, %2").arg(workbench::momentText(version.mark.savedAt), version.mark.change);
        }
    });
    if (!isRead || names.isEmpty())
        return;
    const std::optional<qsizetype> answer = m_desk.questions().choose(
        m_window, tr("Which version of “%1” is to be brought back?").arg(file), texts);
    if (answer)
        bringBack(file, names.at(*answer));
}

bool FileSession::mayClose()
{
    return leave() != Leaving::Not;
}

FileSession::Leaving FileSession::leave()
{
    Document &document = m_desk.document();
    while (true) {
        try {
            document.writeNow();
            return Leaving::Saved;
        } catch (const foundation::Error &error) {
            const std::optional<qsizetype> answer = m_desk.questions().choose(
                m_window, tr("The last changes are not saved. %1").arg(workbench::userText(error)),
                {tr("Try again"), tr("Save elsewhere …"), tr("Give the changes up")});
            if (!answer)
                return Leaving::Not;
            if (*answer == 2)
                return Leaving::GivingUp;
            if (*answer == 1)
                saveElsewhere();
        }
    }
}

QString FileSession::keptText() const
{
    const Document &document = m_desk.document();
    if (document.file().isEmpty())
        return {};
    if (document.isReadOnly())
        return tr("read only");
    switch (document.kept()) {
    case Document::Kept::Saved:
        return document.isEncrypted() ? tr("saved, encrypted") : tr("saved");
    case Document::Kept::Saving:
        return tr("saving");
    case Document::Kept::NotSaved:
        return tr("not saved");
    }
    return {};
}

void FileSession::followKeeping()
{
    if (const std::optional<Trouble> trouble = m_desk.document().whyNotSaved())
        tell(savingNotice, {tr("Not saved: %1").arg(trouble->sentence), trouble->choices}, {});
    else
        m_desk.notices().remove(savingNotice);
    emit keptChanged();
}

void FileSession::followBudget()
{
    Document &document = m_desk.document();
    const ActionCollection &actions = m_desk.actions();
    const std::optional<QString> reason = m_desk.whyNoChange();
    const auto follow = [&](const char *id, const QString &verb,
                            const std::optional<workbench::Deed> &deed, const QString &without) {
        QAction *action = actions.action(QString::fromLatin1(id));
        action->setText(undoText(verb, deed).replace(u'&', QStringLiteral("&&")));
        ActionCollection::allow(action, !reason && deed, reason.value_or(without));
    };
    const bool isOpen = !document.file().isEmpty();
    follow("undo", tr("Undo"), isOpen ? document.undoable() : std::nullopt,
           tr("There is nothing to undo."));
    follow("redo", tr("Redo"), isOpen ? document.redoable() : std::nullopt,
           tr("There is nothing to redo."));
    for (const char *id : {"save", "saveAs", "saveCopy", "encryption"})
        ActionCollection::allow(actions.action(QString::fromLatin1(id)), isOpen,
                                tr("No budget is open."));
    emit keptChanged();
}

std::optional<Notice::Choice> FileSession::choiceFor(Remedy remedy, const QString &id,
                                                     const QString &file)
{
    switch (remedy) {
    case Remedy::TryAgain:
        return Notice::Choice{tr("Try again"), [this, id, file] {
                                  if (id == openingNotice)
                                      open(file);
                                  else
                                      saveNow();
                              }};
    case Remedy::SaveElsewhere:
        return Notice::Choice{tr("Save elsewhere …"), [this] { saveElsewhere(); }};
    case Remedy::Reload:
        return Notice::Choice{tr("Take the file as it is now"), [this] { reload(); }};
    case Remedy::ListVersions:
        return Notice::Choice{tr("Look at former versions"), [this] {
                                  m_desk.goTo({QStringLiteral("history"), {}});
                              }};
    case Remedy::BringBack:
        return Notice::Choice{tr("Bring the newest whole version back"),
                              [this, file] { bringBack(file, std::nullopt); }};
    case Remedy::LookAtVersions:
        return Notice::Choice{tr("Look at former versions"), [this, file] { offerVersions(file); }};
    case Remedy::OpenForReading:
        return Notice::Choice{tr("Open it for reading"),
                              [this, file] { open(file, Document::Access::Reading); }};
    default: // what a command offers
        return std::nullopt;
    }
}

void FileSession::tell(const QString &id, const Trouble &trouble, const QString &file)
{
    Notice notice{id, trouble.sentence, {}};
    for (const Remedy remedy : trouble.choices) {
        if (auto choice = choiceFor(remedy, id, file))
            notice.choices.push_back(*std::move(choice));
    }
    notice.isClosable = id != savingNotice;
    m_desk.notices().add(notice);
    m_desk.say(trouble.sentence);
}

} // namespace kiv::desktop
