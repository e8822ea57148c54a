// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "actions/action_collection.h"
#include "application/passphrase_store.h"
#include "application/window_settings.h"
#include "pages/place.h"
#include "widgets/announcer.h"
#include "widgets/field_message.h"
#include "widgets/notice_bar.h"
#include "widgets/questions.h"

#include "workbench/document/document.h"

namespace kiv::desktop {

/// What all pages share: the document, the actions, and the ways to make a change and to
/// tell about it.
class Desk final : public QObject {
    Q_OBJECT

public:
    /// The parts of the window that pages use. All of them outlive the desk.
    struct Parts {
        workbench::Document &document;
        WindowSettings &settings;
        Questions &questions;
        PassphraseStore &passphrases;
        ActionCollection &actions;
        Announcer &announcer;
        NoticeBar &notices;
        bool showsTerms; ///< whether accounting's terms, numbers and paths are shown
    };
    explicit Desk(const Parts &parts);

    [[nodiscard]] workbench::Document &document() noexcept { return m_parts.document; }
    [[nodiscard]] workbench::Requests &requests() noexcept { return m_parts.document.requests(); }
    [[nodiscard]] WindowSettings &settings() noexcept { return m_parts.settings; }
    [[nodiscard]] Questions &questions() noexcept { return m_parts.questions; }
    [[nodiscard]] ActionCollection &actions() noexcept { return m_parts.actions; }
    [[nodiscard]] NoticeBar &notices() noexcept { return m_parts.notices; }
    [[nodiscard]] bool showsTerms() const noexcept { return m_parts.showsTerms; }

    /// Why nothing can be changed now: no file is open, it can be read only, or another
    /// request waits for the network. Nothing if changes are possible.
    [[nodiscard]] std::optional<QString> whyNoChange() const;

    /// Makes a change as one step of undo, and says its line. If it is refused, the sentence
    /// stands in `message`, `asker` keeps its content and gets the focus, and the budget is
    /// as before. Returns whether the change was made.
    bool perform(FieldMessage &message, QWidget *asker, const workbench::Deed &deed,
                 const std::function<void()> &work);
    /// perform() for transactions that are entered. What the user may not have meant is a
    /// notice above the page until the next change, together with `sentences`.
    bool enter(FieldMessage &message, QWidget *asker, const workbench::Deed &deed,
               const std::function<void()> &work, QStringList sentences = {});
    /// Changes what is not part of the budget, such as settings, and cannot be undone. Says
    /// the line. A refusal is shown as perform() does.
    bool apply(FieldMessage &message, QWidget *asker, const QString &line,
               const std::function<void()> &work);
    /// Runs requests that wait for the network in an event loop. Meanwhile pages say why
    /// nothing can be changed.
    void wait(const QString &line, const std::function<void()> &work);
    /// Writes a file for others to see, and says so. A failure becomes a notice with this id.
    void writeOut(const QString &id, const QString &file, const std::function<void()> &work);
    /// Runs work that changes nothing; a failure becomes a notice with this id. Returns whether it
    /// succeeded.
    bool tryWork(const QString &id, const std::function<void()> &work);
    /// The passphrase of a file that the store was asked to keep; nothing for others.
    [[nodiscard]] std::optional<QString> keptPassphrase(const QString &file);
    /// Has the store keep it; where it cannot, a notice says why.
    void keepPassphrase(const QString &file, const QString &passphrase);
    /// Has the store forget it, if it was asked to keep one.
    void forgetPassphrase(const QString &file);
    /// Says a sentence in the status line, and to screen readers.
    void say(const QString &sentence) { m_parts.announcer.say(sentence); }
    /// Shows another page, or another part of it.
    void goTo(const Place &place) { emit placeWanted(place); }
    /// Imports a bank's file, and asks for it unless it is given; into this account, if one is
    /// given.
    void importFile(std::optional<accounting::AccountNumber> into, const QString &file = {})
    {
        emit importWanted(into, file);
    }

signals:
    /// The window's appearance or the size of its texts was set.
    void looksChanged();
    /// Somebody wants to see this place.
    void placeWanted(const Place &place);
    /// See importFile().
    void importWanted(std::optional<accounting::AccountNumber> into, const QString &file);
    /// Pages are to show the budget anew: it has changed, or it can be changed now or no
    /// longer.
    void refreshWanted();

private:
    bool attempt(FieldMessage &message, QWidget *asker, const QString &line,
                 const std::function<void()> &work);

    Parts m_parts;
};

} // namespace kiv::desktop
