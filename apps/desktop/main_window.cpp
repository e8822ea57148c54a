// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include "actions/palette_sources.h"
#include "pages/all_pages.h"
#include "pages/explanation_panel.h"
#include "pages/welcome_page.h"
#include "session/file_outputs.h"
#include "session/help_session.h"
#include "widgets/followed_view.h"
#include "wizards/first_time_wizard.h"

#include <QtCore/QFileInfo>
#include <QtGui/QActionGroup>
#include <QtGui/QCloseEvent>
#include <QtGui/QFontInfo>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>

namespace kiv::desktop {

using Group = ActionCollection::Group;

namespace {

const QString windowKey = QStringLiteral("window");

} // namespace

MainWindow::MainWindow(const Surroundings &surroundings)
    : m_given(surroundings),
      m_actions(new ActionCollection(this)),
      m_announcer(new Announcer(this)),
      m_notices(new NoticeBar(this)),
      m_desk(new Desk({surroundings.document, surroundings.settings, surroundings.questions,
                       surroundings.passphrases, *m_actions, *m_announcer, *m_notices,
                       surroundings.showsTerms})),
      m_session(nullptr),
      m_help(nullptr),
      m_palette(nullptr),
      m_list(new FollowedView<QListWidget>(this)),
      m_stack(new QStackedWidget(this)),
      m_panel(new ExplanationPanel(*m_desk, this)),
      m_welcome(nullptr),
      m_wizard(nullptr),
      m_systemPalette(QApplication::palette()),
      m_systemFont(QApplication::font())
{
    m_desk->setParent(this);
    m_session = new FileSession(*m_desk, this);
    new FileOutputs(*m_desk, this);
    build();
    addActions();
    m_help = new HelpSession(*m_desk, this);
    addPages();
    fillMenus();
    m_palette =
        new CommandPalette({QStringLiteral("palette"), tr("Type what you want to do or to see"),
                            tr("Command"), tr("Found commands")},
                           this);
    addPaletteSources();
    applyLooks();
    connect(m_session, &FileSession::opened, this, &MainWindow::showOpened);
    connect(m_session, &FileSession::beginnerCame, this, &MainWindow::showWizard);
    connect(m_session, &FileSession::keptChanged, this, &MainWindow::showTitle);
    connect(m_desk, &Desk::placeWanted, this, &MainWindow::goTo);
    connect(m_desk, &Desk::looksChanged, this, &MainWindow::applyLooks);
    connect(m_desk, &Desk::refreshWanted, this, &MainWindow::followFigure);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::keepFocusInPage);
    if (!restoreGeometry(m_given.settings.state(windowKey)))
        resize(1000, 560);
    showOpened();
}

MainWindow::~MainWindow()
{
    // Its parts lose the focus when it is no longer a window of this kind.
    disconnect(qApp, &QApplication::focusChanged, this, &MainWindow::keepFocusInPage);
}

void MainWindow::build()
{
    auto *central = new QWidget(this);
    auto *sides = new QHBoxLayout(central);
    m_list->setObjectName(QStringLiteral("pages"));
    m_list->setAccessibleName(tr("Pages"));
    m_list->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    sides->addWidget(m_list);
    auto *right = new QVBoxLayout;
    right->addWidget(m_notices);
    right->addWidget(m_stack, 1);
    right->addWidget(m_panel);
    sides->addLayout(right, 1);
    setCentralWidget(central);
    statusBar()->addWidget(m_announcer, 1);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && static_cast<std::size_t>(row) < m_pages.size() &&
            m_pages[static_cast<std::size_t>(row)] != page())
            goTo({m_pages[static_cast<std::size_t>(row)]->id(), {}});
    });
}

void MainWindow::addPages()
{
    m_welcome = new WelcomePage(*m_desk);
    connect(m_welcome, &WelcomePage::fileWanted, this, &MainWindow::open);
    m_stack->addWidget(m_welcome);
    m_pages = makePages(*m_desk);
    // A page that is larger than the window scrolls; its buttons stay reachable.
    const auto addScrolled = [this](QWidget *page) {
        auto *scroll = new QScrollArea(m_stack);
        scroll->setWidget(page);
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setFocusPolicy(Qt::NoFocus);
        m_stack->addWidget(scroll);
    };
    for (Page *page : m_pages) {
        addScrolled(page);
        m_list->addItem(page->title());
        connect(page, &Page::figureChosen, this, [this, page] {
            if (page == this->page())
                followFigure();
        });
    }
    m_wizard = new FirstTimeWizard(*m_desk, *m_session);
    connect(m_wizard, &FirstTimeWizard::left, this, &MainWindow::showOpened);
    addScrolled(m_wizard);
    addPageActions();
}

void MainWindow::addPageActions()
{
    int number = 0;
    for (Page *page : m_pages) {
        ++number;
        const QKeySequence keys =
            number <= 9 ? QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + number))
                        : QKeySequence();
        m_actions->add(QStringLiteral("page ") + page->id(), Group::Go, page->title(), keys,
                       [this, page] {
                           goTo({page->id(), {}});
                       });
    }
}

void MainWindow::addActions()
{
    QAction *const importing =
        m_actions->add(QStringLiteral("import"), Group::File, tr("&Import a bank file …"),
                       QKeySequence(Qt::CTRL | Qt::Key_I), [this] { m_desk->importFile({}); });
    const auto follow = [this, importing] {
        const std::optional<QString> whyNot = m_desk->whyNoChange();
        ActionCollection::allow(importing, !whyNot, whyNot.value_or(QString()));
    };
    connect(m_desk, &Desk::refreshWanted, importing, follow);
    follow();
    m_actions->add(QStringLiteral("quit"), Group::File, tr("&Quit"),
                   QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });
    m_actions->add(QStringLiteral("wizard"), Group::File, tr("Begin s&tep by step …"), {},
                   [this] { showWizard(); });
    m_actions->add(QStringLiteral("palette"), Group::Go, tr("&Find a command …"),
                   QKeySequence(Qt::CTRL | Qt::Key_K), [this] { m_palette->open(); });
    m_actions->add(QStringLiteral("back"), Group::Go, tr("&Back"),
                   QKeySequence(Qt::ALT | Qt::Key_Left), [this] { goThrough(m_back, m_forward); });
    m_actions->add(QStringLiteral("forward"), Group::Go, tr("F&orward"),
                   QKeySequence(Qt::ALT | Qt::Key_Right), [this] { goThrough(m_forward, m_back); });
    m_actions->add(QStringLiteral("nextPart"), Group::Go, tr("Next &part of the window"),
                   QKeySequence(Qt::Key_F6), [this] { focusNextPart(); });
    addViewActions();
}

void MainWindow::addViewActions()
{
    auto *looks = new QActionGroup(this);
    const auto addLook = [&](const char *id, const QString &text, Appearance appearance) {
        QAction *action =
            m_actions->add(QString::fromLatin1(id), Group::View, text, {}, [this, appearance] {
                m_given.settings.setAppearance(appearance);
                applyLooks();
            });
        action->setCheckable(true);
        action->setChecked(m_given.settings.appearance() == appearance);
        looks->addAction(action);
    };
    addLook("lookSystem", tr("Colours of the &system"), Appearance::System);
    addLook("lookLight", tr("&Light"), Appearance::Light);
    addLook("lookDark", tr("&Dark"), Appearance::Dark);
    addLook("lookBlackOnWhite", tr("&Black on white"), Appearance::BlackOnWhite);
    addLook("lookWhiteOnBlack", tr("&White on black"), Appearance::WhiteOnBlack);
    const auto addSize = [this](const char *id, const QString &text, const QKeySequence &keys,
                                const std::function<int(int)> &change) {
        m_actions->add(QString::fromLatin1(id), Group::View, text, keys, [this, change] {
            m_given.settings.setTextSize(change(m_given.settings.textSize()));
            applyLooks();
            m_desk->say(tr("Text size %1 %").arg(m_given.settings.textSize()));
        });
    };
    m_actions->add(QStringLiteral("explain"), Group::View, tr("&Explain this number"),
                   QKeySequence(Qt::Key_F9), [this] { explain(); });
    addSize("larger", tr("L&arger text"), QKeySequence(Qt::CTRL | Qt::Key_Plus),
            [](int size) { return size + 10; });
    addSize("smaller", tr("S&maller text"), QKeySequence(Qt::CTRL | Qt::Key_Minus),
            [](int size) { return size - 10; });
    addSize("usualSize", tr("&Usual text size"), QKeySequence(Qt::CTRL | Qt::Key_0),
            [](int) { return 100; });
}

void MainWindow::fillMenus()
{
    for (const Group group :
         {Group::File, Group::Edit, Group::Transaction, Group::Go, Group::View, Group::Help}) {
        QMenu *menu = menuBar()->addMenu(ActionCollection::groupName(group));
        menu->setToolTipsVisible(true); // a disabled action says why
        menu->addActions(m_actions->actions(group));
    }
}

void MainWindow::addPaletteSources()
{
    m_palette->addSource(actionSource(*m_actions));
    m_palette->addSource(accountSource(*m_desk));
    m_palette->addSource(itemSource(*m_desk));
}

void MainWindow::applyLooks()
{
    QApplication::setPalette(paletteFor(m_given.settings.appearance(), m_systemPalette));
    QFont font = m_systemFont;
    // A font whose size is given in pixels does not know its points itself.
    font.setPointSizeF(QFontInfo(font).pointSizeF() * m_given.settings.textSize() / 100.0);
    QApplication::setFont(font);
    // The list of pages is as wide as its longest name. It hears of the size only later.
    const QFontMetrics letters(font);
    int width = 0;
    for (const Page *page : m_pages)
        width = std::max(width, letters.horizontalAdvance(page->title()));
    m_list->setFixedWidth(width + 3 * letters.averageCharWidth() + 2 * m_list->frameWidth());
    // Their colours are taken from the palette when they are shown.
    emit m_desk->refreshWanted();
}

Page *MainWindow::page() const
{
    const auto place = static_cast<std::size_t>(m_stack->currentIndex() - 1);
    return m_stack->currentIndex() > 0 && place < m_pages.size() ? m_pages[place] : nullptr;
}

void MainWindow::goTo(const Place &place)
{
    const auto found = std::ranges::find(m_pages, place.page, &Page::id);
    if (found == m_pages.end() || m_given.document.file().isEmpty())
        return;
    if (const Page *before = page()) {
        const Place left{before->id(), before->detail()};
        if (m_back.empty() || m_back.back() != left)
            m_back.push_back(left);
        m_forward.clear();
    }
    Page *wanted = *found;
    const int row = static_cast<int>(found - m_pages.begin());
    const bool isOther = wanted != page();
    if (isOther)
        m_panel->close();
    {
        // The row first: without one, the list would take its first row when the page that is
        // hidden leaves it the focus, and that row's page would be shown as well.
        const QSignalBlocker blocker(m_list);
        m_list->setCurrentRow(row);
    }
    m_stack->setCurrentIndex(row + 1);
    wanted->bringUpToDate();
    if (!place.detail.isEmpty())
        wanted->goTo(place.detail);
    m_given.settings.setPage(wanted->id());
    m_help->setPage(wanted->id());
    if (isOther || !place.detail.isEmpty()) {
        if (!m_list->hasFocus())
            wanted->entry()->setFocus(Qt::OtherFocusReason);
        m_desk->say(wanted->title());
    }
    followFigure();
}

void MainWindow::explain()
{
    if (m_panel->isAncestorOf(QApplication::focusWidget()))
        m_panel->close();
    else if (page())
        m_panel->open(page()->explanation());
}

void MainWindow::followFigure()
{
    const Explain explanation = page() ? page()->explanation() : Explain();
    ActionCollection::allow(m_actions->action(QStringLiteral("explain")), bool(explanation),
                            page() ? tr("No number is chosen that can be explained.")
                                   : tr("No budget is open."));
    if (!explanation)
        m_panel->close();
    else if (m_panel->isVisible())
        m_panel->explain(explanation);
}

void MainWindow::goThrough(std::vector<Place> &from, std::vector<Place> &to)
{
    if (from.empty() || !page())
        return;
    const Place wanted = from.back();
    const Place left{page()->id(), page()->detail()};
    std::vector<Place> back = m_back;
    std::vector<Place> forward = m_forward;
    goTo(wanted); // which notes a step of its own
    m_back = std::move(back);
    m_forward = std::move(forward);
    from.pop_back();
    to.push_back(left);
}

void MainWindow::keepFocusInPage(QWidget *former, const QWidget *present)
{
    if (present != m_list || !former || (former->isVisible() && former->isEnabled()))
        return;
    // When the page is shown as a whole, if nobody has moved on by then.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_list->hasFocus() && page())
                page()->entry()->setFocus(Qt::OtherFocusReason);
        },
        Qt::QueuedConnection);
}

void MainWindow::focusNextPart()
{
    QWidget *const focus = QApplication::focusWidget();
    QWidget *const first = page()                        ? page()->entry()
                           : m_stack->currentIndex() > 0 ? m_wizard->firstFocus()
                                                         : m_welcome->firstFocus();
    if (focus == m_list || !m_list->isEnabled())
        first->setFocus(Qt::TabFocusReason);
    else
        m_list->setFocus(Qt::TabFocusReason);
}

void MainWindow::showOpened()
{
    const bool isOpen = !m_given.document.file().isEmpty();
    m_list->setEnabled(isOpen);
    for (const Page *page : m_pages)
        ActionCollection::allow(m_actions->action(QStringLiteral("page ") + page->id()), isOpen,
                                tr("No budget is open."));
    m_back.clear();
    m_forward.clear();
    if (isOpen && !m_pages.empty()) {
        const QString last = m_given.settings.page();
        const bool isKnown = std::ranges::find(m_pages, last, &Page::id) != m_pages.end();
        goTo({isKnown ? last : m_pages.front()->id(), {}});
        page()->entry()->setFocus(Qt::OtherFocusReason);
        m_back.clear();
    } else {
        m_welcome->refresh();
        m_help->setPage({});
        m_stack->setCurrentIndex(0);
        m_welcome->firstFocus()->setFocus(Qt::OtherFocusReason);
    }
    followFigure();
    showTitle();
}

void MainWindow::showWizard()
{
    m_help->setPage({});
    m_stack->setCurrentIndex(m_stack->count() - 1);
    m_list->setCurrentRow(-1);
    m_wizard->firstFocus()->setFocus(Qt::OtherFocusReason);
    followFigure();
}

void MainWindow::showTitle()
{
    const QString file = m_given.document.file();
    setWindowTitle(file.isEmpty() ? QString()
                                  : tr("%1 (%2)").arg(QFileInfo(file).completeBaseName(),
                                                      m_session->keptText()));
    setWindowFilePath(file);
}

void MainWindow::report(const QString &sentence)
{
    m_notices->add({QStringLiteral("error"), sentence, {}});
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_session->mayClose()) {
        event->ignore();
        return;
    }
    m_given.settings.setState(windowKey, saveGeometry());
    event->accept();
}

} // namespace kiv::desktop
