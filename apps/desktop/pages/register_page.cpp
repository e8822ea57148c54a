// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/register_page.h"

#include "models/account_rows.h"
#include "pages/category_row.h"
#include "pages/entry_row.h"
#include "pages/filter_bar.h"
#include "pages/register_columns.h"
#include "pages/register_delegate.h"
#include "widgets/allow.h"
#include "widgets/followed_view.h"
#include "widgets/offer.h"

#include "workbench/entry/money_text.h"

#include "foundation/clock.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace kiv::desktop {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using workbench::EntryForm;
using workbench::Marking;
using Group = ActionCollection::Group;

namespace {

const QString allAccounts = QStringLiteral("all");

} // namespace

RegisterPage::RegisterPage(Desk &desk)
    : Page(desk, QStringLiteral("register"), tr("Register")),
      m_rows(new RegisterModel(desk.showsTerms(), this)),
      m_shown(new RegisterFilter(*m_rows, this)),
      m_account(new QComboBox(this)),
      m_import(new QPushButton(tr("Import a bank file"), this)),
      m_filter(new FilterBar(this)),
      m_table(new FollowedView<QTableView>(this)),
      m_message(new FieldMessage(this)),
      m_category(new CategoryRow(this)),
      m_entry(new EntryRow(desk, this))
{
    build();
    buildTable();
    addActions();
    addMarkActions();
    connect(m_account, &QComboBox::activated, this, [this] {
        const QVariant number = m_account->currentData();
        showAccount(number.isValid() ? std::optional(AccountNumber(number.toUInt()))
                                     : std::nullopt);
    });
    connect(m_filter, &FilterBar::searched, this, &RegisterPage::searchFor);
    const auto toTable = [this] { m_table->setFocus(Qt::OtherFocusReason); };
    connect(m_filter, &FilterBar::leaving, this, toTable);
    connect(m_entry, &EntryRow::leaving, this, toTable);
    connect(m_entry, &EntryRow::entered, this, &RegisterPage::select);
    connect(m_category, &CategoryRow::chosen, this, &RegisterPage::recategorize);
    connect(m_category, &CategoryRow::leaving, this, [this, toTable] {
        m_category->hide();
        toTable();
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RegisterPage::allowActions);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RegisterPage::figureChosen);
    // Until it is shown, its keys belong to the other pages.
    connect(&desk, &Desk::refreshWanted, this, &RegisterPage::allowActions);
}

RegisterPage::~RegisterPage() = default;

void RegisterPage::build()
{
    auto *layout = new QVBoxLayout(this);
    auto *head = new QHBoxLayout;
    auto *label = new QLabel(tr("A&ccount"), this);
    label->setBuddy(m_account);
    m_account->setObjectName(QStringLiteral("account"));
    m_account->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_account->setMinimumContentsLength(16);
    auto *chooser = new QHBoxLayout;
    chooser->addWidget(label);
    chooser->addWidget(m_account);
    auto *left = new QVBoxLayout;
    left->addLayout(chooser);
    m_import->setObjectName(QStringLiteral("import"));
    connect(m_import, &QPushButton::clicked, this,
            [this] { desk().importFile(m_rows->account()); });
    left->addWidget(m_import, 0, Qt::AlignLeft);
    left->addStretch();
    head->addLayout(left);
    head->addWidget(m_filter, 1);
    layout->addLayout(head);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);
    layout->addWidget(m_category);
    layout->addWidget(m_entry);
}

void RegisterPage::buildTable()
{
    m_table->setObjectName(QStringLiteral("rows"));
    m_table->setAccessibleName(tr("Transactions"));
    m_table->setModel(m_shown);
    m_table->setItemDelegate(new RegisterDelegate(m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->setMinimumHeight(6 * m_table->fontMetrics().lineSpacing());
    m_table->verticalHeader()->hide();
    // One height for all: to ask each row would take seconds.
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    m_table->installEventFilter(this);
    m_table->viewport()->installEventFilter(this);
    connect(m_table, &QTableView::doubleClicked, this, &RegisterPage::edit);
    connect(m_table, &QTableView::customContextMenuRequested, this, [this](const QPoint &at) {
        auto *menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->setToolTipsVisible(true);
        menu->addActions(m_rowActions);
        menu->popup(m_table->viewport()->mapToGlobal(at));
    });
}

// ---- actions -----------------------------------------------------------------------

void RegisterPage::addActions()
{
    const auto begin = [this](EntryForm form) { return [this, form] { beginEntry(form); }; };
    ActionCollection &actions = desk().actions();
    actions.add(QStringLiteral("newEntry"), Group::Transaction, tr("&New transaction"),
                QKeySequence(Qt::CTRL | Qt::Key_T), begin(EntryForm::Spent));
    actions.add(QStringLiteral("newEarned"), Group::Transaction, tr("New, e&arned"), {},
                begin(EntryForm::Earned));
    actions.add(QStringLiteral("newMoved"), Group::Transaction, tr("New &transfer"),
                QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T), begin(EntryForm::Moved));
    addRowAction("editEntry", tr("&Change"), QKeySequence(Qt::Key_F2), [this] { edit(); });
    addRowAction("removeEntry", tr("&Remove"), QKeySequence(Qt::Key_Delete), [this] { remove(); });
    addRowAction("enterAgain", tr("&Enter again"), QKeySequence(Qt::CTRL | Qt::Key_D),
                 [this] { enterAgain(); });
    addRowAction("refundEntry", tr("Re&fund"), {}, [this] { refund(); });
    addRowAction("categoryOfEntries", tr("&Item or category"), {},
                 [this] { m_category->ask(selected().size(), m_accounts); });
    actions.add(QStringLiteral("reconcileAccount"), Group::Transaction,
                tr("Reconcile this acco&unt"), QKeySequence(Qt::CTRL | Qt::Key_R), [this] {
                    const auto account = isVisible() ? m_rows->account() : std::nullopt;
                    desk().goTo({QStringLiteral("survey"), account ? keyOf(*account) : QString()});
                });
    actions.add(QStringLiteral("findEntries"), Group::Edit, tr("&Find transactions"),
                QKeySequence(Qt::CTRL | Qt::Key_F), [this] {
                    desk().goTo({id(), {}});
                    m_filter->field()->setFocus(Qt::ShortcutFocusReason);
                });
    QAction *entry =
        actions.add(QStringLiteral("entryRow"), Group::View, tr("&Entry row"),
                    QKeySequence(Qt::Key_F4), [this] { showEntryRow(m_entry->isHidden()); });
    entry->setCheckable(true);
    showEntryRow(desk().settings().isEntryShown());
}

void RegisterPage::addMarkActions()
{
    const auto add = [this](const char *id, const QString &text, Marking marking) {
        addRowAction(id, text, {}, [this, marking] { mark(marking); });
    };
    add("clearEntries", tr("Mark as c&leared"), Marking::Clear);
    add("unclearEntries", tr("Mark as n&ot cleared"), Marking::TakeClearedBack);
    add("reconcileEntries", tr("Mark as reconcile&d"), Marking::Reconcile);
    add("unreconcileEntries", tr("&Mark as not reconciled"), Marking::TakeReconciledBack);
}

void RegisterPage::addRowAction(const char *id, const QString &text, const QKeySequence &keys,
                                const std::function<void()> &run)
{
    m_rowActions +=
        desk().actions().add(QString::fromLatin1(id), Group::Transaction, text, keys, run);
}

void RegisterPage::allowActions()
{
    const std::optional<QString> whyNot = desk().whyNoChange();
    for (const char *id : {"newEntry", "newEarned", "newMoved"})
        ActionCollection::allow(desk().actions().action(QString::fromLatin1(id)), !whyNot,
                                whyNot.value_or(QString()));
    QString reason = whyNot.value_or(QString());
    if (!whyNot && !isVisible())
        reason = tr("The register is not shown.");
    else if (!whyNot && !m_table->selectionModel()->hasSelection())
        reason = tr("No transaction is selected.");
    for (QAction *action : m_rowActions)
        ActionCollection::allow(action, reason.isEmpty(), reason);
    ActionCollection::allow(desk().actions().action(QStringLiteral("reconcileAccount")),
                            !desk().document().file().isEmpty(), tr("No budget is open."));
    m_entry->allow(whyNot);
    allow(*m_import, whyNot);
}

// ---- what is shown -----------------------------------------------------------------

void RegisterPage::forgetFile()
{
    m_filter->setText({});
    m_entry->forgetFile();
    m_category->hide();
}

void RegisterPage::refresh()
{
    m_accounts = std::make_shared<const workbench::AccountIndex>(requests().accounts());
    m_displayAs = requests().displayAs();
    std::optional<AccountNumber> account = m_rows->account();
    if (account && !m_accounts->find(*account))
        account.reset();
    showAccount(account);
    // A search may name an account that has another name now.
    if (m_filter->offer(*m_accounts) && m_shown->isSearching())
        searchFor(m_filter->text());
    if (std::exchange(m_isFirst, false)) {
        sizeRows();
        scrollToEnd();
    }
}

void RegisterPage::sizeRows()
{
    const QString amount = workbench::amountText(
        -numira::Money(requests().preferredCurrency(), numira::Decimal(88'888)), m_displayAs);
    sizeColumns(*m_table, *m_rows, amount);
    m_table->horizontalHeader()->restoreState(desk().settings().state(columnsKey()));
    followWidth(*m_table, *m_rows);
}

QString RegisterPage::columnsKey() const
{
    // Widths fit one size of text.
    return QStringLiteral("register columns %1").arg(desk().settings().textSize());
}

void RegisterPage::showAccount(std::optional<AccountNumber> account)
{
    const bool isOther = m_rows->account() != account;
    m_rows->show(m_accounts, account, m_displayAs,
                 {foundation::today(), account ? reconciledOn(*account) : QDate()});
    m_table->setColumnHidden(m_rows->place(RegisterModel::Column::Balance), !account);
    fillAccounts();
    m_entry->refresh(m_accounts, account);
    if (isOther) {
        // The search also looks at the account.
        searchFor(m_filter->text());
        scrollToEnd();
    }
    showResult();
    allowActions();
}

QDate RegisterPage::reconciledOn(AccountNumber account) const
{
    // Only an account of a bank is reconciled; others are refused.
    if (!requests().banks().find(account))
        return {};
    using navigation::Navigator;
    const auto last = std::get<1>(requests().ask(&Navigator::lookedUpLastReconciliation,
                                                 &Navigator::onLookUpLastReconciliation, account));
    return last && last->reconciledOn ? *last->reconciledOn : QDate();
}

void RegisterPage::fillAccounts()
{
    const auto numbers =
        m_accounts->accounts() | std::views::transform([](const accounting::Account &account) {
            return account.code().number();
        });
    offer(*m_account, {{tr("All accounts"), {}}}, *m_accounts, numbers);
    m_account->setCurrentIndex(m_rows->account() ? m_account->findData(m_rows->account()->integer())
                                                 : 0);
}

void RegisterPage::searchFor(const QString &text)
{
    if (!m_accounts)
        return;
    try {
        m_shown->search(text, *m_accounts, foundation::today());
    } catch (const foundation::Error &error) {
        m_filter->complain(workbench::userText(error));
        return;
    }
    showResult();
    if (m_shown->isSearching())
        desk().say(m_shown->resultText(m_displayAs));
    if (m_table->currentIndex().isValid())
        m_table->scrollTo(m_table->currentIndex());
}

void RegisterPage::showResult()
{
    m_filter->showResult(m_shown->resultText(m_displayAs));
}

void RegisterPage::scrollToEnd()
{
    m_table->scrollToBottom();
    m_table->setCurrentIndex(m_shown->index(m_shown->rowCount() - 1, 0)); // without rows, none
}

QString RegisterPage::detail() const
{
    const QString account =
        m_rows->account() ? accounting::presentationText(*m_rows->account()) : allAccounts;
    const QModelIndex row = m_table->currentIndex();
    return row.isValid()
               ? account + u'/' +
                     accounting::presentationText(m_rows->number(m_shown->sourceRow(row.row())))
               : account;
}

QString RegisterPage::placeOf(TransactionNumber number) const
{
    return id() + u'/' + detail().section(u'/', 0, 0) + u'/' + accounting::presentationText(number);
}

void RegisterPage::goTo(const QString &detail)
{
    const AccountNumber account(detail.section(u'/', 0, 0).toUInt());
    const TransactionNumber number(detail.section(u'/', 1, 1).toUShort());
    if (!m_accounts)
        return;
    showAccount(account.isValid() && m_accounts->find(account) ? std::optional(account)
                                                               : std::nullopt);
    if (number.isValid())
        select(number);
}

void RegisterPage::select(TransactionNumber number)
{
    int row = m_shown->rowOf(number);
    if (row < 0 && m_rows->rowOf(number) >= 0) {
        // A search hides it; it is what the user has to see now.
        m_filter->setText({});
        row = m_shown->rowOf(number);
    }
    if (row < 0)
        return;
    m_table->setCurrentIndex(m_shown->index(row, 0));
    m_table->scrollTo(m_shown->index(row, 0));
}

QWidget *RegisterPage::firstFocus()
{
    return m_table;
}

std::vector<TransactionNumber> RegisterPage::selected() const
{
    std::vector<int> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::ranges::sort(rows);
    std::vector<TransactionNumber> numbers;
    for (const int row : rows)
        numbers.push_back(m_rows->number(m_shown->sourceRow(row)));
    return numbers;
}

std::optional<Transaction> RegisterPage::current() const
{
    const QModelIndex row = m_table->currentIndex();
    return row.isValid() ? std::optional(m_rows->transaction(m_shown->sourceRow(row.row())))
                         : std::nullopt;
}

Explain RegisterPage::explanation()
{
    const std::optional<accounting::Transaction> one = current();
    if (!one || one->debitAmount().code() == one->creditAmount().code())
        return {};
    return [number = one->number().value()](const workbench::Explainer &explainer) {
        return explainer.conversions(number);
    };
}

void RegisterPage::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    if (!m_isFirst)
        desk().settings().setState(columnsKey(), m_table->horizontalHeader()->saveState());
    allowActions();
}

void RegisterPage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    allowActions();
}

bool RegisterPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::FontChange && !m_isFirst)
        sizeRows();
    if (watched == m_table->viewport() && event->type() == QEvent::Resize && !m_isFirst)
        followWidth(*m_table, *m_rows);
    // Enter changes the row; as keys of an action it would be taken from all fields.
    if (watched == m_table && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            edit();
            return true;
        }
    }
    return Page::eventFilter(watched, event);
}

} // namespace kiv::desktop
