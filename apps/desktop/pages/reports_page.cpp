// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/reports_page.h"

#include "models/report_rows.h"
#include "pages/form.h"
#include "pages/report_output.h"
#include "widgets/chart_view.h"
#include "widgets/day_edit.h"
#include "widgets/offer.h"
#include "widgets/table.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/balances.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using Group = ActionCollection::Group;
using interchange::SpanLength;
using workbench::Grouping;
using workbench::ReportLine;

namespace {

/// Further ones scroll.
constexpr int linesMax = 8;
constexpr int valuesMax = 6;
constexpr int entriesShownMax = 10;

const QString overview = QStringLiteral("overview");

QString wordOfChoice(std::optional<Grouping> grouping)
{
    return grouping ? workbench::wordOf(*grouping) : overview;
}

} // namespace

ReportsPage::ReportsPage(Desk &desk)
    : Page(desk, QStringLiteral("reports"), tr("Reports")),
      m_form(new Form(desk, this)),
      m_by(m_form->add(QStringLiteral("by"), tr("&What:"), new QComboBox)),
      m_spans(m_form->add(QStringLiteral("spans"), tr("Spa&ns:"), new QComboBox)),
      m_from(m_form->add(QStringLiteral("from"), tr("F&rom:"), new DayEdit)),
      m_to(m_form->add(QStringLiteral("to"), tr("T&o:"), new DayEdit)),
      m_words(m_form->add(QStringLiteral("words"), tr("On&ly:"), new QLineEdit)),
      m_in(m_form->add(QStringLiteral("in"), tr("&Convert into:"), new QComboBox)),
      m_told(new QLabel(this)),
      m_chart(new ChartView(this)),
      m_lines(new TableModel(lineColumns(true), this)),
      m_lineTable(new Table(*m_lines, tr("Lines of the report"), this)),
      m_values(new TableModel({}, this)),
      m_valueTable(new Table(*m_values, tr("Values of the line"), this)),
      m_entriesTold(new QLabel(this)),
      m_entries(new TableModel(entryColumns(), this)),
      m_entryTable(new Table(*m_entries, tr("Entries behind the value"), this)),
      m_rates(new QLabel(this))
{
    m_by->addItem(tr("Overview"), overview);
    for (const Grouping grouping : workbench::groupings)
        m_by->addItem(presentationText(grouping), wordOf(grouping));
    m_by->setCurrentIndex(1);
    for (const auto &[length, text] : {std::pair(SpanLength::Week, tr("Weeks")),
                                       {SpanLength::TwoWeeks, tr("Two weeks")},
                                       {SpanLength::Payday, tr("Payday to payday")},
                                       {SpanLength::Month, tr("Months")},
                                       {SpanLength::Quarter, tr("Quarters")},
                                       {SpanLength::Year, tr("Years")},
                                       {SpanLength::Whole, tr("All as one")}})
        m_spans->addItem(text, static_cast<int>(length));
    m_spans->setCurrentIndex(static_cast<int>(SpanLength::Month));
    const auto tellDefault = [this] {
        const bool isOne = m_spans->currentData().toInt() == static_cast<int>(SpanLength::Whole);
        m_from->setPlaceholderText(isOne ? tr("twelve months") : tr("twelve spans"));
    };
    connect(m_spans, &QComboBox::currentIndexChanged, this, tellDefault);
    tellDefault();
    m_to->setPlaceholderText(tr("today"));
    m_words->setPlaceholderText(tr("all entries; words as in a search"));
    m_form->addButton(QStringLiteral("add"), tr("A&dd up"), [this] { askAnew(); });
    m_form->addButton(QStringLiteral("again"), tr("Start &again"), [this] { startAgain(); });
    for (QComboBox *box : {m_by, m_spans, m_in})
        connect(box, &QComboBox::activated, this, [this] { askAnew(); });
    connect(m_form, &Form::givenUp, this, &ReportsPage::startAgain);
    build();
    addActions();
    connect(m_lineTable, &Table::chosenChanged, this, &ReportsPage::showLine);
    connect(m_lineTable, &Table::opened, this, [this] { m_valueTable->setFocus(); });
    connect(m_valueTable, &Table::chosenChanged, this, &ReportsPage::showEntries);
    connect(m_chart, &ChartView::told, this, [this](const QString &values) {
        chooseValue(*m_chart->point());
        this->desk().say(values);
    });
    const auto toEntries = [this] { m_entryTable->setFocus(); };
    connect(m_chart, &ChartView::opened, this, toEntries);
    connect(m_valueTable, &Table::opened, this, toEntries);
    connect(m_entryTable, &Table::opened, this, [this](const QString &key) {
        const auto &entry = m_behind.at(key.toULongLong());
        this->desk().goTo({QStringLiteral("register"),
                           QStringLiteral("all/") +
                               accounting::presentationText(entry.transaction.number().value())});
    });
}

void ReportsPage::build()
{
    for (QLabel *label : {m_told, m_entriesTold, m_rates}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_told->setObjectName(QStringLiteral("told"));
    m_chart->setObjectName(QStringLiteral("chart"));
    m_entriesTold->setObjectName(QStringLiteral("entriesTold"));
    m_rates->setObjectName(QStringLiteral("rates"));
    QFont font = m_told->font();
    font.setBold(true);
    m_told->setFont(font);
    for (const auto &[table, id, rows] :
         {std::tuple(m_lineTable, "lines", linesMax), std::tuple(m_valueTable, "values", valuesMax),
          std::tuple(m_entryTable, "entries", entriesShownMax)}) {
        table->setObjectName(QLatin1String(id));
        table->fit(rows);
    }
    auto *layout = new QVBoxLayout(this);
    auto *top = new QHBoxLayout;
    top->addWidget(m_told, 1);
    const auto addButton = [this, top](const char *id, const QString &text,
                                       void (ReportsPage::*run)()) {
        auto *button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(id));
        connect(button, &QPushButton::clicked, this, run);
        top->addWidget(button, 0, Qt::AlignTop);
    };
    addButton("save", tr("&Save as …"), &ReportsPage::save);
    addButton("print", tr("&Print …"), &ReportsPage::print);
    layout->addLayout(top);
    auto *row = new QHBoxLayout;
    row->addWidget(m_chart, 5);
    row->addWidget(m_form, 3, Qt::AlignTop);
    layout->addLayout(row, 1);
    layout->addWidget(m_rates);
    layout->addWidget(m_lineTable);
    layout->addWidget(m_valueTable);
    layout->addWidget(m_entriesTold);
    layout->addWidget(m_entryTable);
}

void ReportsPage::addActions()
{
    ActionCollection &actions = desk().actions();
    const auto add = [&](const char *id, const QString &text, const QKeySequence &keys,
                         void (ReportsPage::*run)()) {
        return actions.add(QLatin1String(id), Group::File, text, keys, [this, run] {
            desk().goTo({this->id(), {}});
            (this->*run)();
        });
    };
    const QList<QAction *> all{
        add("saveReport", tr("Save a &report as …"), {}, &ReportsPage::save),
        add("print", tr("&Print a report …"), QKeySequence::Print, &ReportsPage::print)};
    const auto follow = [this, all] {
        for (QAction *action : all)
            ActionCollection::allow(action, !desk().document().file().isEmpty(),
                                    tr("No budget is open."));
    };
    connect(&desk(), &Desk::refreshWanted, this, follow);
    follow();
}

std::optional<Grouping> ReportsPage::grouping() const
{
    const QString word = m_by->currentData().toString();
    if (word == overview)
        return std::nullopt;
    Grouping grouping{};
    workbench::readValue(word, grouping);
    return grouping;
}

void ReportsPage::goTo(const QString &detail)
{
    const int by = m_by->findData(detail.section(u'/', 0, 0));
    if (by >= 0 && by != m_by->currentIndex()) {
        m_by->setCurrentIndex(by);
        if (m_report)
            askAnew();
    }
    m_lineTable->choose(detail.section(u'/', 1));
}

QString ReportsPage::detail() const
{
    const QString key = m_lineTable->chosen().value(0);
    const QString by = wordOfChoice(m_grouping);
    return key.isEmpty() ? by : by + u'/' + key;
}

QStringList ReportsPage::parts() const
{
    QStringList all{overview};
    for (const Grouping grouping : workbench::groupings)
        all += wordOf(grouping);
    return all;
}

QWidget *ReportsPage::firstFocus()
{
    return m_chart->isHidden() ? static_cast<QWidget *>(m_by) : m_chart;
}

void ReportsPage::forgetFile()
{
    clearFields();
}

void ReportsPage::refresh()
{
    offerCurrencies();
    if (ask())
        return;
    // The books have changed, so what was shown is not true any longer.
    m_shown.clear();
    m_report.reset();
    showLines();
}

void ReportsPage::offerCurrencies()
{
    std::set<numira::Currency> all{requests().preferredCurrency()};
    const workbench::AccountIndex index = requests().accounts();
    for (const accounting::Account &account : index.accounts())
        all.insert(account.balance().code());
    Offers items{{tr("nothing"), {}}};
    for (const numira::Currency &currency : all)
        items.emplace_back(foundation::presentationText(currency), QVariant::fromValue(currency));
    const QVariant chosen = m_in->currentData();
    offer(*m_in, items);
    m_in->setCurrentIndex(std::max(0, m_in->findData(chosen)));
}

std::optional<workbench::ReportQuestion> ReportsPage::readDays()
{
    workbench::ReportQuestion question;
    question.length = static_cast<SpanLength>(m_spans->currentData().toInt());
    question.today = foundation::today();
    question.to = question.today;
    if (m_in->currentIndex() > 0)
        question.in = m_in->currentData().value<numira::Currency>();
    const auto isRead = [this](DayEdit &field, const std::function<void(QDate)> &take) {
        return m_form->read(field, [&] {
            if (!field.text().trimmed().isEmpty())
                take(field.day());
        });
    };
    if (!isRead(*m_from, [&](QDate day) { question.from = day; }) ||
        !isRead(*m_to, [&](QDate day) { question.to = day; }))
        return std::nullopt;
    return question;
}

bool ReportsPage::ask()
{
    m_form->message().withdraw();
    std::optional<workbench::ReportQuestion> question = readDays();
    if (!question)
        return false;
    const auto make = [this, &question](QWidget &blamed) {
        return m_form->read(blamed, [&] {
            return std::make_unique<const workbench::BudgetReport>(requests(), *question);
        });
    };
    // Days that do not fit each other are refused before the search is looked at.
    // Whoever goes through the spans by arrows stays there.
    auto report = make(m_spans->hasFocus()        ? static_cast<QWidget &>(*m_spans)
                       : m_from->text().isEmpty() ? *m_to
                                                  : *m_from);
    question->words = m_words->text().trimmed();
    if (report && !question->words.isEmpty())
        report = make(*m_words);
    if (!report)
        return false;
    auto lines = m_form->read(*m_by, [&] { return reportLines(**report, grouping()); });
    if (!lines)
        return false;
    // What is shown refers to the report.
    m_shown = std::move(*lines);
    m_report = std::move(*report);
    m_grouping = grouping();
    showLines();
    return true;
}

void ReportsPage::askAnew()
{
    if (ask() && isVisible())
        desk().say(m_told->text());
}

void ReportsPage::showLines()
{
    m_told->setText(m_report ? reportSentences(*m_report, m_shown).join(u'\n') : QString());
    m_told->setVisible(!m_told->text().isEmpty());
    m_rates->setText(m_report ? m_report->rateTexts().join(u'\n') : QString());
    m_rates->setVisible(!m_rates->text().isEmpty());
    const QStringList columns = lineColumns(m_grouping.has_value());
    const QString chosen = m_lineTable->chosen().value(0);
    {
        const QSignalBlocker quiet(m_lineTable);
        if (m_lines->columnCount() != columns.size() ||
            m_lines->headerData(2, Qt::Horizontal, Qt::DisplayRole) != columns[2])
            m_lines->setColumns(columns);
        m_lines->setRows(lineRows(m_shown, m_grouping.has_value(), requests().displayAs()));
        m_lineTable->choose(chosen);
        m_lineTable->settle();
    }
    for (QWidget *part :
         {static_cast<QWidget *>(m_chart), static_cast<QWidget *>(m_lineTable),
          static_cast<QWidget *>(m_valueTable), static_cast<QWidget *>(m_entriesTold),
          static_cast<QWidget *>(m_entryTable)})
        part->setVisible(!m_shown.empty());
    showLine();
}

void ReportsPage::clearFields()
{
    for (QLineEdit *field :
         {static_cast<QLineEdit *>(m_from), static_cast<QLineEdit *>(m_to), m_words})
        field->clear();
    m_in->setCurrentIndex(0);
    m_spans->setCurrentIndex(static_cast<int>(SpanLength::Month));
}

void ReportsPage::startAgain()
{
    clearFields();
    askAnew();
    firstFocus()->setFocus(Qt::OtherFocusReason);
}

const ReportLine *ReportsPage::line() const
{
    const auto found = std::ranges::find(m_shown, m_lineTable->chosen().value(0), &ReportLine::key);
    return found == m_shown.end() ? nullptr : &*found;
}

void ReportsPage::showLine()
{
    const ReportLine *shown = line();
    const auto displayAs = requests().displayAs();
    const QString before = m_valueTable->chosen().value(0);
    // A span stays for every line; one of several names only for the same line among the same.
    const QStringList among = shown ? shown->peers + QStringList{shown->key} : QStringList();
    const bool stays = std::exchange(m_among, among) == among || (shown && shown->peers.isEmpty());
    {
        const QSignalBlocker quiet(m_valueTable);
        m_chart->setChart(shown ? shown->chart : interchange::Chart(), displayAs);
        m_values->setColumns(shown ? valueColumns(*shown) : QStringList());
        m_values->setRows(shown ? valueRows(*shown, displayAs) : std::vector<Row>());
        if (stays && m_values->place(before) >= 0)
            m_valueTable->choose(before);
        else if (shown && !shown->peers.isEmpty())
            m_valueTable->choose(QString::number(shown->peers.indexOf(shown->key)));
        else if (shown)
            m_valueTable->choose(QString::number(shown->chart.labels.size() - 1)); // the newest
        m_valueTable->settle();
    }
    m_valueTable->scrollTo(m_valueTable->currentIndex());
    showEntries();
}

void ReportsPage::showEntries()
{
    const ReportLine *shown = line();
    const QString value = m_valueTable->chosen().value(0);
    m_behind.clear();
    QString told;
    if (shown && !value.isEmpty()) {
        m_chart->setPoint(value.toULongLong());
        std::size_t span = value.toULongLong();
        QString label = shown->chart.labels.value(value.toLongLong());
        if (!shown->peers.isEmpty()) {
            // Each value is a line of its own, and there is one span.
            const QString &key = shown->peers.at(value.toLongLong());
            shown = &*std::ranges::find(m_shown, key, &ReportLine::key);
            span = 0;
        } else {
            label = tr("%1, %2", "a name and a span of days").arg(shown->name, label);
        }
        m_behind = entriesOf(*m_report, *shown, span);
        told = entriesText(*shown, label);
    }
    m_entriesTold->setText(told);
    m_entries->setRows(m_report ? entryRows(m_behind, m_report->index(), requests().displayAs())
                                : std::vector<Row>());
    m_entryTable->settle();
}

QString ReportsPage::entriesText(const ReportLine &line, const QString &label) const
{
    if (m_behind.empty())
        return tr("%1: no entries").arg(label);
    workbench::Sums sums;
    for (const workbench::ReportEntry &entry : m_behind)
        workbench::add(sums, entry.amount);
    const QString sum = workbench::sumsText(sums, requests().displayAs());
    const auto count = static_cast<int>(m_behind.size());
    QString text = (line.isLevel ? tr("%1: %n entries, which change it by %2", nullptr, count)
                                 : tr("%1: %n entries, together %2", nullptr, count))
                       .arg(label, sum);
    if (m_behind.size() > entriesMax)
        text += u' ' + tr("The first %1 are shown.").arg(entriesMax);
    return text;
}

void ReportsPage::chooseValue(std::size_t label)
{
    m_valueTable->choose(QString::number(label));
}

void ReportsPage::save()
{
    if (!m_report)
        return;
    saveReport(desk(), window(), *m_report, m_grouping.value_or(Grouping::Category));
}

void ReportsPage::print()
{
    if (!m_report)
        return;
    printReport(desk(), window(), *m_report, m_grouping.value_or(Grouping::Category));
}

} // namespace kiv::desktop
