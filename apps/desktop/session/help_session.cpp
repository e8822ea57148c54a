// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/help_session.h"

#include "actions/palette_sources.h"
#include "help/manual.h"

#include "workbench/requests/releases.h"

#include "foundation/presentation.h"

#include <QtCore/QCoreApplication>

namespace kiv::desktop {

using Group = ActionCollection::Group;

namespace {

const QString releaseNotice = QStringLiteral("release");

} // namespace

HelpSession::HelpSession(Desk &desk, QWidget *window)
    : QObject(window),
      m_desk(desk),
      m_window(window),
      m_keys(new CommandPalette({QStringLiteral("keys"), tr("Type keys, or what they do"),
                                 tr("List of keys"), tr("Found keys")},
                                window))
{
    m_keys->addSource(keySource(desk.actions()));
    ActionCollection &actions = desk.actions();
    actions.add(QStringLiteral("manual"), Group::Help, tr("&Manual of this page"),
                QKeySequence(Qt::Key_F1),
                [this] { m_desk.questions().show(m_window, tr("Manual"), manualText(m_page)); });
    actions.add(QStringLiteral("guide"), Group::Help, tr("The household's &guide"), {}, [this] {
        m_desk.questions().show(m_window, tr("The household's guide"), householdGuide());
    });
    actions.add(QStringLiteral("keys"), Group::Help, tr("List of &keys"),
                QKeySequence(Qt::CTRL | Qt::Key_Question), [this] { m_keys->open(); });
    actions.add(QStringLiteral("releaseNotes"), Group::Help, tr("&Release notes"), {},
                [this] { showReleaseNotes(); });
    actions.add(QStringLiteral("about"), Group::Help, tr("&About kiv"), {},
                [this] { showAbout(); });
    // Not acknowledged, so that it is told once in a session.
    connect(&desk.document().navigator(), &navigation::Navigator::updateReleased, this,
            [this](const updating::SemanticVersion &latest) {
                const QString told =
                    tr("There is a newer release: %1.").arg(updating::presentationText(latest));
                m_desk.notices().add(
                    {releaseNotice, told, {{tr("Release notes"), [this] { showReleaseNotes(); }}}});
                m_desk.say(told);
            });
}

void HelpSession::showAbout()
{
    m_desk.questions().show(
        m_window, tr("About kiv"),
        tr("kiv %1 keeps a household's money: what there is, what is due, and what is left to "
           "spend.\n\n"
           "It is free software under the GNU General Public License, version 3 or later: anybody "
           "may use, study, share and change it. It comes without any warranty.")
            .arg(QCoreApplication::applicationVersion()));
}

void HelpSession::showReleaseNotes()
{
    std::vector<updating::ReleaseInformation> releases;
    const auto fetch = [&] { releases = workbench::fetchedReleases(m_desk.requests()); };
    if (!m_desk.tryWork(QStringLiteral("releaseNotes"),
                        [&] { m_desk.wait(tr("Fetching the release notes …"), fetch); }))
        return;
    QStringList texts;
    for (const updating::ReleaseInformation &release : releases)
        texts += tr("%1, %2\n%3")
                     .arg(updating::presentationText(release.version),
                          foundation::presentationText(release.releasedOn), release.notes);
    m_desk.questions().show(m_window, tr("Release notes"),
                            texts.isEmpty() ? tr("There are no releases.")
                                            : texts.join(QStringLiteral("\n\n")));
}

} // namespace kiv::desktop
