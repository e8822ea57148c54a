// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/unlocking.h"

namespace kiv::desktop {

/// The file that is open in the window: new, open, save, undo and redo, and what can be
/// done when one of these fails.
class FileSession final : public QObject {
    Q_OBJECT

public:
    /// Adds its actions to the desk's. `window` is the parent of questions.
    FileSession(Desk &desk, QWidget *window);

    /// Opens a file. If that fails, the open one stays, and a notice says why and what can
    /// be done. Returns whether it is open.
    bool open(const QString &file,
              workbench::Document::Access access = workbench::Document::Access::ChangeIfPossible);
    /// Makes a new budget as Document::createFilled() does, after what is open was written.
    /// Nothing happens if the user then would rather keep it. Throws what that throws.
    void makeFilled(const QString &file, const workbench::Deed &deed,
                    const std::function<void()> &fill);
    /// Makes sure that nothing is lost when the window closes: writes what is pending, and
    /// asks only if that failed. Returns whether the window may close.
    [[nodiscard]] bool mayClose();
    /// "saved", "saving" or "not saved"; empty without a file.
    [[nodiscard]] QString keptText() const;

signals:
    /// Another file is open.
    void opened();
    /// There are no preferences yet, so somebody begins who knows nothing of all this.
    void beginnerCame();
    /// The file, or how it is kept, has changed.
    void keptChanged();

private:
    /// How the budget in memory is left.
    enum class Leaving : std::uint8_t { Not, Saved, GivingUp };
    /// Writes what is pending, and asks only if that failed.
    [[nodiscard]] Leaving leave();
    void addActions();
    /// Stores the present settings, so that preferences exist.
    void storePreferences();
    void makeNew();
    void makeDemonstration();
    void saveNow();
    void saveCopy();
    void saveElsewhere();
    void saveAs();
    /// Saves under another name, which is asked for under this heading. The file is then
    /// the open one.
    void saveUnder(const QString &heading, const QString &notice);
    void undo();
    void redo();
    /// Goes where something was undone or done again, and says so.
    void tellRecalled(const workbench::Deed &deed, const QString &sentence);
    void reload();
    /// Brings a version of a file that is damaged or gone back; the newest whole one if
    /// none is named.
    void bringBack(const QString &file, const std::optional<QString> &version);
    /// Lets the user choose one of its versions.
    void offerVersions(const QString &file);
    /// The budget in memory is that of another file.
    void settle();
    void followKeeping();
    void followBudget();
    /// Shows what went wrong, with buttons for the choices.
    void tell(const QString &id, const workbench::Trouble &trouble, const QString &file);
    [[nodiscard]] std::optional<Notice::Choice> choiceFor(workbench::Remedy remedy,
                                                          const QString &id, const QString &file);
    /// Runs `work`, and asks for the passphrases that it needs; a failure becomes a notice.
    /// Returns whether it succeeded.
    bool attempt(const QString &id, const std::function<void()> &work);

    Desk &m_desk;
    QWidget *m_window;
    Unlocking m_unlocking;
};

} // namespace kiv::desktop
