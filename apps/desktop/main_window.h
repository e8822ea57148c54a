// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "actions/command_palette.h"
#include "pages/page.h"
#include "session/file_session.h"

#include <QtWidgets/QMainWindow>

QT_BEGIN_NAMESPACE
class QListWidget;
class QStackedWidget;
QT_END_NAMESPACE

namespace kiv::desktop {

class ExplanationPanel;
class FirstTimeWizard;
class HelpSession;
class WelcomePage;

/// The window: the list of pages at the left, the page, the notices above it and the
/// status line below.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// What the window is given. All of it outlives the window.
    struct Surroundings {
        workbench::Document &document;
        WindowSettings &settings;
        Questions &questions;
        PassphraseStore &passphrases;
        bool showsTerms = false; ///< see StartOptions
    };
    explicit MainWindow(const Surroundings &surroundings);
    ~MainWindow() override;

    /// Opens a budget; see FileSession::open().
    bool open(const QString &file) { return m_session->open(file); }
    /// Shows an error that nobody caught.
    void report(const QString &sentence);
    /// Shows a page; one that is not there is ignored.
    void goTo(const Place &place);

    [[nodiscard]] Desk &desk() noexcept { return *m_desk; }
    /// All pages, in the order of the list.
    [[nodiscard]] const std::vector<Page *> &pages() const noexcept { return m_pages; }
    /// The page that is shown; null while no budget is open, or one is begun.
    [[nodiscard]] Page *page() const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void build();
    void addPages();
    void addActions();
    void addPageActions();
    void addViewActions();
    void fillMenus();
    void addPaletteSources();
    void applyLooks();
    void showOpened();
    /// What hides or is off gives the focus to what comes next, which may be the list of pages.
    void keepFocusInPage(QWidget *former, const QWidget *present);
    void showWizard();
    void showTitle();
    void goThrough(std::vector<Place> &from, std::vector<Place> &to);
    void focusNextPart();
    /// Explains the figure that is chosen; closes the panel if the focus is there already.
    void explain();
    /// Brings the panel, and whether it can be opened, in line with what is chosen.
    void followFigure();

    Surroundings m_given;
    ActionCollection *m_actions;
    Announcer *m_announcer;
    NoticeBar *m_notices;
    Desk *m_desk;
    FileSession *m_session;
    HelpSession *m_help;
    CommandPalette *m_palette;
    QListWidget *m_list;
    QStackedWidget *m_stack;
    ExplanationPanel *m_panel;
    WelcomePage *m_welcome;
    FirstTimeWizard *m_wizard;
    std::vector<Page *> m_pages;
    std::vector<Place> m_back;
    std::vector<Place> m_forward;
    QPalette m_systemPalette;
    QFont m_systemFont;
};

} // namespace kiv::desktop
