// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/import_rows_step.h"

#include "widgets/account_box.h"
#include "widgets/allow.h"
#include "widgets/table.h"

#include "workbench/entry/description.h"
#include "workbench/entry/money_text.h"

#include "foundation/presentation.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::ImportMeaning;
using workbench::ImportPreview;
using workbench::ImportRow;
using State = ImportRow::State;

namespace {

/// Whether nobody knows yet what the entry is for.
bool lacksOther(const ImportRow &row)
{
    return row.isTicked && row.state == State::New && !row.other && row.opens.isEmpty();
}

} // namespace

ImportRowsStep::ImportRowsStep(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_notices(new QLabel(this)),
      m_filter(new QComboBox(this)),
      m_model(new TableModel(draftColumns(), this)),
      m_table(new Table(*m_model, tr("Entries of the file"), this)),
      m_form(new Form(desk, this)),
      m_meaning(m_form->add(QStringLiteral("meaning"), tr("&What it is:"), new QComboBox)),
      m_other(m_form->add(QStringLiteral("other"), tr("&Item or account:"), new AccountBox)),
      m_remember(m_form->add(QStringLiteral("remember"), tr("From now on:"),
                             new QCheckBox(tr("Re&member this for the payee")))),
      m_figures(new QLabel(this)),
      m_import(new QPushButton(this))
{
    build();
    m_table->installEventFilter(this);
    connect(m_filter, &QComboBox::currentIndexChanged, this, &ImportRowsStep::showRows);
    connect(m_table, &Table::chosenChanged, this, &ImportRowsStep::follow);
    connect(m_table, &Table::opened, this, [this] {
        QWidget *field = m_other->isEnabled() ? static_cast<QWidget *>(m_other) : m_meaning;
        field->setFocus(Qt::OtherFocusReason);
    });
    connect(m_meaning, &QComboBox::activated, this, &ImportRowsStep::mean);
    connect(m_other, &QComboBox::editTextChanged, this, &ImportRowsStep::sayFigures);
    connect(m_remember, &QCheckBox::clicked, this, &ImportRowsStep::remember);
    connect(m_form, &Form::givenUp, this, [this] {
        if (m_shown)
            fillFields(*m_shown);
        m_table->setFocus(Qt::OtherFocusReason);
    });
    connect(m_import, &QPushButton::clicked, this, [this] {
        if (takeTyped())
            emit importWanted();
    });
}

void ImportRowsStep::build()
{
    m_notices->setObjectName(QStringLiteral("notices"));
    m_notices->setTextFormat(Qt::PlainText);
    m_notices->setWordWrap(true);
    auto *label = new QLabel(tr("&Show:"), this);
    label->setBuddy(m_filter);
    m_filter->setObjectName(QStringLiteral("filter"));
    for (const auto &[filter, text] : {std::pair(DraftFilter::All, tr("all entries")),
                                       {DraftFilter::New, tr("new ones")},
                                       {DraftFilter::Matched, tr("those that are there already")},
                                       {DraftFilter::Doubtful, tr("those to look at")}})
        m_filter->addItem(text, static_cast<int>(filter));
    m_table->setObjectName(QStringLiteral("entries"));
    m_meaning->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_meaning->setMinimumContentsLength(24);
    m_form->addButton(QStringLiteral("keep"), tr("&Keep this line"), [this] { keep(); });
    m_figures->setObjectName(QStringLiteral("figures"));
    m_figures->setTextFormat(Qt::PlainText);
    m_figures->setWordWrap(true);
    m_import->setObjectName(QStringLiteral("import"));
    auto *back = new QPushButton(tr("&Back"), this);
    back->setObjectName(QStringLiteral("back"));
    connect(back, &QPushButton::clicked, this, &ImportRowsStep::backWanted);
    auto *top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(m_filter);
    top->addStretch();
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_figures, 1);
    foot->addWidget(m_import);
    foot->addWidget(back);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_notices);
    layout->addLayout(top);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_form);
    layout->addLayout(foot);
}

// ---- what is shown -----------------------------------------------------------------

const ImportPreview *ImportRowsStep::preview() const noexcept
{
    return m_preview ? &*m_preview : nullptr;
}

void ImportRowsStep::show(ImportPreview preview)
{
    m_preview = std::move(preview);
    m_shown.reset();
    m_accounts = std::make_shared<const workbench::AccountIndex>(m_desk.requests().accounts());
    m_other->offer(m_accounts, m_preview->possibleOthers());
    m_notices->setText(m_preview->notices().join(u'\n'));
    m_notices->setVisible(!m_preview->notices().isEmpty());
    const QSignalBlocker quiet(m_filter);
    m_filter->setCurrentIndex(0);
    m_model->setRows({});
    showRows();
}

void ImportRowsStep::forget()
{
    m_preview.reset();
    m_shown.reset();
    m_model->setRows({});
}

void ImportRowsStep::showRows()
{
    if (!m_preview)
        return;
    const auto filter = static_cast<DraftFilter>(m_filter->currentData().toInt());
    m_model->setRows(draftRows(*m_preview, filter, *m_accounts, m_desk.document().displayAs()));
    m_told = m_preview->rows();
    m_table->settle();
    follow();
    sayFigures();
}

bool ImportRowsStep::showsFewChanges()
{
    constexpr std::size_t fewMax = 50;
    const auto filter = static_cast<DraftFilter>(m_filter->currentData().toInt());
    const std::vector<ImportRow> &rows = m_preview->rows();
    std::vector<std::size_t> changed;
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (areSame(m_told[place], rows[place]))
            continue;
        if (isShown(m_told[place], filter) != isShown(rows[place], filter))
            return false;
        if (isShown(rows[place], filter))
            changed.push_back(place);
        m_told[place] = rows[place];
    }
    if (changed.size() > fewMax)
        return false;
    for (const std::size_t place : changed)
        m_model->setRow(draftRow(*m_preview, place, *m_accounts, m_desk.document().displayAs()));
    m_table->settle();
    return true;
}

void ImportRowsStep::showChanges()
{
    if (!showsFewChanges()) {
        showRows();
        return;
    }
    follow();
    sayFigures();
}

void ImportRowsStep::sayFigures()
{
    if (!m_preview)
        return;
    workbench::ImportCounts counts = m_preview->counts();
    if (m_shown && lacksOther(m_preview->rows()[*m_shown]) && m_other->accountIfAny())
        --counts.open; // what is typed is taken before the import
    m_figures->setText(draftSummary(counts));
    const auto number = [](qsizetype count) { return static_cast<int>(count); };
    if (counts.added > 0)
        m_import->setText(tr("Im&port %n entries", nullptr, number(counts.added)));
    else if (hasWork(counts))
        m_import->setText(
            tr("Mark %n entries as seen at the bank", nullptr, number(counts.matched)));
    else
        m_import->setText(tr("Com&plete"));
    std::optional<QString> whyNot = m_desk.whyNoChange();
    if (!whyNot && counts.open > 0)
        whyNot = tr("%n entries still need an item or account.", nullptr, number(counts.open));
    desktop::allow(*m_import, whyNot);
}

std::optional<std::size_t> ImportRowsStep::chosen() const
{
    const QString key = m_table->chosen().value(0);
    return m_preview && !key.isEmpty() ? std::optional<std::size_t>(key.toULongLong())
                                       : std::nullopt;
}

void ImportRowsStep::follow()
{
    const std::optional<std::size_t> place = chosen();
    if (m_shown && place != m_shown && m_other->currentText() != m_shownOther) {
        // What was typed for the entry before belongs to it, if it can be read.
        const QString wanted = m_table->chosen().value(0);
        const QString before = QString::number(*m_shown);
        const QSignalBlocker quiet(m_table);
        const bool isTaken = takeTyped();
        m_table->choose(isTaken ? wanted : before);
        if (!isTaken)
            return;
    }
    m_form->setVisible(place.has_value());
    if (place)
        fillFields(*place);
    else
        m_shown.reset();
}

void ImportRowsStep::fillFields(std::size_t place)
{
    const ImportRow &row = m_preview->rows()[place];
    m_shown = place;
    const QString said = workbench::Description{row.entry.payee, row.entry.text, {}}.shown();
    const QString amount = workbench::amountText(row.entry.amount, m_desk.document().displayAs());
    m_form->setHeading(
        QStringList{foundation::presentationText(row.entry.date), amount, said}.join(u' '));
    offerMeanings(place);
    m_other->setAccount(row.state == State::New ? row.other : std::nullopt);
    m_shownOther = m_other->currentText();
    m_remember->setChecked(row.isRemembered);
    m_form->message().withdraw();
    allowFields();
}

void ImportRowsStep::offerMeanings(std::size_t place)
{
    const ImportRow &row = m_preview->rows()[place];
    m_meanings.clear();
    m_meaning->clear();
    const auto offer = [this](std::optional<ImportMeaning> meaning, const QString &text) {
        m_meaning->addItem(text);
        m_meaning->setItemData(m_meaning->count() - 1, text, Qt::ToolTipRole);
        m_meanings.push_back(std::move(meaning));
    };
    if (row.state == State::LeftOut) {
        offer({}, row.reason);
        return;
    }
    if (row.meaning)
        offer(row.meaning, row.reason);
    offer({}, tr("New: nothing that is there is the same"));
    for (const ImportMeaning &meaning : m_preview->alternatives(place))
        offer(meaning, m_preview->reasonOf(place, meaning));
}

void ImportRowsStep::allow()
{
    if (!m_preview)
        return;
    allowFields();
    sayFigures();
}

void ImportRowsStep::allowFields()
{
    if (!m_shown)
        return;
    const ImportRow &row = m_preview->rows()[*m_shown];
    std::optional<QString> whyNot = m_desk.whyNoChange();
    if (!whyNot && row.state == State::LeftOut)
        whyNot = row.reason;
    m_form->allow(whyNot);
    if (!whyNot && row.state != State::New)
        whyNot = tr("Only a new entry has an item or account to choose.");
    desktop::allow(*m_other, whyNot);
    desktop::allow(*m_remember, whyNot);
}

QWidget *ImportRowsStep::firstFocus() const
{
    return m_model->rows().empty() ? static_cast<QWidget *>(m_filter) : m_table;
}

FieldMessage &ImportRowsStep::message()
{
    return m_form->message();
}

void ImportRowsStep::complain(const QString &sentence, const interchange::Place &place)
{
    const auto found = std::ranges::find_if(
        m_preview->rows(), [&place](const ImportRow &row) { return row.entry.place == place; });
    m_filter->setCurrentIndex(0);
    if (found != m_preview->rows().end())
        m_table->choose(QString::number(found - m_preview->rows().begin()));
    m_form->message().complain(m_table, sentence);
}

// ---- corrections -------------------------------------------------------------------

std::optional<accounting::AccountNumber> ImportRowsStep::readOther()
{
    return m_form->read(*m_other, [this] {
        const accounting::AccountNumber account =
            m_other->account(tr("Choose the item or account of this entry."));
        if (std::ranges::count(m_preview->possibleOthers(), account) == 0)
            throw workbench::Refusal(tr("“%1” is closed, or is the account of the file itself.")
                                         .arg(m_accounts->plainName(account)));
        return account;
    });
}

bool ImportRowsStep::takeTyped()
{
    if (!m_shown || m_other->currentText() == m_shownOther)
        return true;
    const std::optional<accounting::AccountNumber> account = readOther();
    if (!account)
        return false;
    m_preview->setOther(*m_shown, *account);
    m_shownOther = m_other->currentText();
    showChanges();
    return true;
}

void ImportRowsStep::mean()
{
    const auto at = static_cast<std::size_t>(m_meaning->currentIndex());
    if (!m_shown || at >= m_meanings.size())
        return;
    if (const std::optional<ImportMeaning> meaning = m_meanings[at])
        m_preview->mean(*m_shown, *meaning);
    else
        m_preview->part(*m_shown);
    m_shownOther = m_other->currentText(); // it belonged to what the entry was
    showChanges();
    (m_shown ? m_meaning : firstFocus())->setFocus(Qt::OtherFocusReason);
}

void ImportRowsStep::remember(bool isRemembered)
{
    const std::optional<std::size_t> place = m_shown; // a filter may hide it then
    if (!place || !takeTyped()) {
        m_remember->setChecked(false);
        return;
    }
    m_preview->setRemembered(*place, isRemembered);
    showChanges();
}

/// What is sent as it is was looked at, so that it is no longer in doubt.
void ImportRowsStep::keep()
{
    if (!m_shown)
        return;
    const std::size_t place = *m_shown;
    const auto below = static_cast<std::size_t>(m_model->place(QString::number(place))) + 1;
    const QString wanted = below < m_model->rows().size() ? m_model->rows()[below].key : QString();
    const ImportRow &row = m_preview->rows()[place];
    if (lacksOther(row) ? !readOther() || !takeTyped() : !takeTyped())
        return;
    if (row.isDoubtful && row.meaning)
        m_preview->mean(place, ImportMeaning(*row.meaning));
    else if (row.isDoubtful && row.other)
        m_preview->setOther(place, *row.other);
    showChanges();
    if (wanted.isEmpty()) {
        m_import->setFocus(Qt::OtherFocusReason);
        return;
    }
    m_table->choose(wanted);
    QWidget *field = m_other->isEnabled() ? static_cast<QWidget *>(m_other) : m_table;
    field->setFocus(Qt::OtherFocusReason);
}

void ImportRowsStep::toggle()
{
    const std::optional<std::size_t> place = chosen();
    if (!place || m_desk.whyNoChange())
        return;
    const ImportRow &row = m_preview->rows()[*place];
    if (row.state == State::LeftOut) {
        m_desk.say(row.reason);
        return;
    }
    m_preview->setTicked(*place, !row.isTicked);
    showChanges();
    m_desk.say((row.isTicked ? tr("Taken: %1") : tr("Left out: %1")).arg(m_figures->text()));
}

bool ImportRowsStep::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        toggle();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kiv::desktop
