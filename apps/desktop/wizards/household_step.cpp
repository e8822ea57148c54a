// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/household_step.h"

#include "widgets/day_edit.h"
#include "widgets/money_edit.h"
#include "widgets/table.h"

#include "workbench/requests/requests.h"

#include "foundation/clock.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using workbench::StarterChoice;

namespace {

QString typed(const QLineEdit &amount, const QLineEdit &day, const QLineEdit &target)
{
    return QStringList{amount.text(), day.text(), target.text()}.join(u'\n');
}

} // namespace

HouseholdStep::HouseholdStep(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_household(new QComboBox(this)),
      m_model(new TableModel(starterColumns(), this)),
      m_table(new Table(*m_model, tr("Items of the household"), this)),
      m_form(new Form(desk, this)),
      m_amount(m_form->add(QStringLiteral("amount"), tr("&Amount each time:"), new MoneyEdit)),
      m_day(m_form->add(QStringLiteral("day"), tr("Next da&y:"), new DayEdit)),
      m_target(m_form->add(QStringLiteral("target"), tr("Ta&rget:"), new MoneyEdit)),
      m_desk(desk)
{
    auto *label = new QLabel(tr("Ho&usehold:"), this);
    label->setBuddy(m_household);
    m_household->setObjectName(QStringLiteral("household"));
    for (const auto &[household, text] : households())
        m_household->addItem(text, static_cast<int>(household));
    auto *top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(m_household);
    top->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(top);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_form);
    m_form->addButton(QStringLiteral("take"), tr("&Keep this line"), [this] { take(); });
    m_table->installEventFilter(this);
    connect(m_household, &QComboBox::currentIndexChanged, this, &HouseholdStep::showRows);
    connect(m_table, &Table::chosenChanged, this, &HouseholdStep::follow);
    connect(m_table, &Table::opened, this, [this] { m_amount->setFocus(Qt::OtherFocusReason); });
    showRows();
}

void HouseholdStep::setCurrency(const numira::Currency &currency)
{
    m_currency = currency;
    m_amount->setCurrency(currency);
    m_target->setCurrency(currency);
    showRows();
}

std::vector<StarterChoice> HouseholdStep::items() const
{
    std::vector<StarterChoice> items;
    for (const StarterLine &line : m_lines) {
        if (line.isMade())
            items.push_back(line.choice);
    }
    return items;
}

QWidget *HouseholdStep::firstFocus() const
{
    return m_household;
}

StarterLine *HouseholdStep::chosen()
{
    const auto found =
        std::ranges::find(m_lines, m_table->chosen().value(0),
                          [](const StarterLine &line) { return keyOf(line.choice); });
    return found == m_lines.end() ? nullptr : &*found;
}

void HouseholdStep::showRows()
{
    const auto household =
        static_cast<navigation::BudgetWizardTemplates>(m_household->currentData().toInt());
    m_lines = starterLines(household, m_lines);
    m_table->setVisible(!m_lines.empty());
    m_form->setVisible(!m_lines.empty());
    showLines();
    follow();
    emit changed();
}

void HouseholdStep::showLines()
{
    m_model->setRows(starterRows(m_lines, m_currency, m_desk.document().displayAs()));
    m_table->settle();
}

void HouseholdStep::follow()
{
    const StarterLine *line = chosen();
    if (!line || keyOf(line->choice) == m_shownKey)
        return;
    // What was typed for the line before belongs to it, if it can be read.
    if (!takeTyped()) {
        const QSignalBlocker quiet(m_table);
        m_table->choose(m_shownKey);
        return;
    }
    const StarterChoice &choice = line->choice;
    const auto fill = [](MoneyEdit &edit, const std::optional<workbench::Amount> &amount) {
        edit.setText(amount ? amount->text : QString());
    };
    m_shownKey = keyOf(choice);
    m_form->setHeading(choice.name);
    fill(*m_amount, choice.amount);
    fill(*m_target, choice.target);
    m_day->setDay(choice.day);
    m_form->setShown(*m_target, choice.kind == budgeting::BudgetItemTypes::Goal);
    m_form->message().withdraw();
    m_shownText = typed(*m_amount, *m_day, *m_target);
}

bool HouseholdStep::takeTyped()
{
    const auto line = std::ranges::find(m_lines, m_shownKey,
                                        [](const StarterLine &one) { return keyOf(one.choice); });
    if (line == m_lines.end() || typed(*m_amount, *m_day, *m_target) == m_shownText)
        return true;
    StarterChoice choice = line->choice;
    const auto readAmount = [this](MoneyEdit &edit, std::optional<workbench::Amount> &amount) {
        if (edit.text().trimmed().isEmpty()) {
            amount.reset();
            return true;
        }
        const auto read = m_form->read(edit, [&] {
            workbench::Amount typedAmount = edit.amount();
            (void)typedAmount.in(m_currency); // which refuses too many digits
            return typedAmount;
        });
        if (read)
            amount = *read;
        return read.has_value();
    };
    if (!readAmount(*m_amount, choice.amount) || !readAmount(*m_target, choice.target))
        return false;
    const auto day = m_form->read(*m_day, [this] {
        const QDate read = m_day->day();
        if (read <= foundation::today())
            throw workbench::Refusal(tr("The next day must lie in the future."));
        return read;
    });
    if (!day)
        return false;
    choice.day = *day;
    line->isWanted = line->isWanted || choice.amount;
    line->choice = std::move(choice);
    m_shownText = typed(*m_amount, *m_day, *m_target);
    m_form->message().withdraw();
    showLines();
    emit changed();
    return true;
}

void HouseholdStep::take()
{
    if (takeTyped())
        chooseNext();
}

void HouseholdStep::chooseNext()
{
    const int row = m_model->place(m_shownKey);
    if (row + 1 < m_model->rowCount())
        m_table->choose(m_model->rows().at(static_cast<std::size_t>(row) + 1).key);
    m_amount->setFocus(Qt::OtherFocusReason);
    m_amount->selectAll();
}

void HouseholdStep::toggle()
{
    StarterLine *line = chosen();
    if (!line)
        return;
    line->isWanted = !line->isWanted;
    showLines();
    m_desk.say(line->isWanted ? tr("“%1” is wanted.").arg(line->choice.name)
                              : tr("“%1” is not wanted.").arg(line->choice.name));
    emit changed();
}

void HouseholdStep::complain(const QString &sentence)
{
    // The longest name that the sentence has is the item that it is about.
    const StarterLine *named = nullptr;
    for (const StarterLine &line : m_lines) {
        const bool isLonger = !named || line.choice.name.size() > named->choice.name.size();
        if (line.isMade() && isLonger && sentence.contains(line.choice.name))
            named = &line;
    }
    if (named)
        m_table->choose(keyOf(named->choice));
    m_form->message().complain(m_table, sentence);
}

bool HouseholdStep::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_table && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        toggle();
        return true;
    }
    return QWidget::eventFilter(object, event);
}

} // namespace kiv::desktop
