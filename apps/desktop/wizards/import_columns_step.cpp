// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/import_columns_step.h"

#include "models/table_model.h"
#include "widgets/table.h"

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using interchange::CsvGuess;
using interchange::CsvProfile;

namespace {

const QString noColumn = QStringLiteral("-");
/// The places of fields.
constexpr std::size_t dayField = 0;
constexpr std::size_t amountField = 1;
/// So many lines can be that of the headings, beside one that was found.
constexpr int linesOffered = 40;

/// The day with the name of its month, and short enough for a box.
QString dayText(QDate day)
{
    static const QRegularExpression weekday(QStringLiteral("^dddd[,.]? *"));
    return QLocale().toString(day, QLocale().dateFormat(QLocale::LongFormat).remove(weekday));
}

/// A column that may be missing.
template <auto Member>
QStringList columnOf(const CsvProfile &profile)
{
    const QString &column = profile.*Member;
    return column.isEmpty() || column == noColumn ? QStringList() : QStringList{column};
}
/// Where none is said, one would be found.
template <auto Member>
void setOrNone(CsvProfile &profile, const QStringList &columns)
{
    profile.*Member = columns.isEmpty() ? noColumn : columns.front();
}
template <auto Member>
void setInOrOut(CsvProfile &profile, const QStringList &columns)
{
    profile.*Member = columns.value(0);
    if (!columns.isEmpty())
        profile.amountColumn.clear();
}

} // namespace

ImportColumnsStep::ImportColumnsStep(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_form(new Form(desk, this)),
      m_summary(new QLabel(this)),
      m_model(new TableModel({}, this)),
      m_table(new Table(*m_model, tr("First rows of the table"), this))
{
    addFields();
    m_summary->setObjectName(QStringLiteral("summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_table->setObjectName(QStringLiteral("preview"));
    auto *sides = new QHBoxLayout;
    auto *left = new QVBoxLayout;
    left->addWidget(m_form);
    left->addStretch();
    sides->addLayout(left, 1);
    sides->addWidget(m_table, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_summary);
    layout->addLayout(sides, 1);
}

void ImportColumnsStep::addFields()
{
    m_encoding = m_form->add(QStringLiteral("encoding"), tr("&Letters as:"), new QComboBox);
    m_delimiter = m_form->add(QStringLiteral("delimiter"), tr("&Between cells:"), new QComboBox);
    m_headings = m_form->add(QStringLiteral("headings"), tr("Headings in l&ine:"), new QComboBox);
    m_headings->addItem(tr("none"));
    for (int line = 1; line <= linesOffered; ++line)
        m_headings->addItem(QString::number(line), line);
    for (const auto &[delimiter, text] : {std::pair(u',', tr("commas")),
                                          {u';', tr("semicolons")},
                                          {u'\t', tr("tabs")},
                                          {u'|', tr("bars")}})
        m_delimiter->addItem(text, QChar(delimiter));
    addColumn("day", tr("&Day:"), tr("choose"), columnOf<&CsvProfile::dateColumn>,
              [](CsvProfile &profile, const QStringList &columns) {
                  profile.dateColumn = columns.value(0);
                  profile.dateFormat.reset();
              });
    m_days = m_form->add(QStringLiteral("days"), tr("Days a&re:"), new QComboBox);
    addColumn("amount", tr("&Amount:"), tr("none"), columnOf<&CsvProfile::amountColumn>,
              [](CsvProfile &profile, const QStringList &columns) {
                  profile.amountColumn = columns.value(0);
                  if (columns.isEmpty())
                      return;
                  profile.inColumn.clear();
                  profile.outColumn.clear();
              });
    addColumn("in", tr("&Money in:"), tr("none"), columnOf<&CsvProfile::inColumn>,
              setInOrOut<&CsvProfile::inColumn>);
    addColumn("out", tr("Money o&ut:"), tr("none"), columnOf<&CsvProfile::outColumn>,
              setInOrOut<&CsvProfile::outColumn>);
    addColumn("payee", tr("&Payee:"), tr("none"), columnOf<&CsvProfile::payeeColumn>,
              setOrNone<&CsvProfile::payeeColumn>);
    addColumn(
        "text", tr("Te&xt:"), tr("none"),
        [](const CsvProfile &profile) { return profile.textColumns; },
        [](CsvProfile &profile, const QStringList &columns) { profile.textColumns = columns; });
    addColumn("balance", tr("Balan&ce:"), tr("none"), columnOf<&CsvProfile::balanceColumn>,
              setOrNone<&CsvProfile::balanceColumn>);
    for (auto *box : m_form->findChildren<QComboBox *>()) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(box == m_days ? 32 : 12);
    }
    m_keep = m_form->add(QStringLiteral("keepProfile"), tr("From now on:"), new QCheckBox);
    m_form->addButton(QStringLiteral("useColumns"), tr("&Next"), [this] { goOn(); });
    m_form->addButton(QStringLiteral("back"), tr("Bac&k"), [this] { emit backWanted(); });
    for (QComboBox *box : {m_encoding, m_delimiter, m_headings})
        connect(box, &QComboBox::activated, this, &ImportColumnsStep::reshape);
    connect(m_days, &QComboBox::activated, this, &ImportColumnsStep::takeDays);
    connect(m_form, &Form::givenUp, this, &ImportColumnsStep::backWanted);
}

void ImportColumnsStep::addColumn(const char *id, const QString &label, const QString &none,
                                  decltype(ColumnField::shown) shown,
                                  decltype(ColumnField::take) take)
{
    auto *box = m_form->add(QLatin1String(id), label, new QComboBox);
    const ColumnField field{box, none, shown, take};
    m_columns.push_back(field);
    connect(box, &QComboBox::activated, this, [this, field] { takeColumn(field); });
}

// ---- what is shown -----------------------------------------------------------------

void ImportColumnsStep::show(const QByteArray &bytes, const QString &file,
                             const interchange::CsvOptions &options, const QString &account)
{
    CsvGuess guess = interchange::guessCsv(bytes, file, options);
    if (!guess.missing.isEmpty()) // the bank may write it in another way now
        guess = interchange::guessCsv(bytes, file, {{}, options.currency});
    m_bytes = bytes;
    m_file = file;
    m_options = options;
    m_keep->setText(account.isEmpty() ? tr("Read files of this account so")
                                      : tr("Read files of “%1” so").arg(account));
    m_keep->setChecked(true);
    m_guess = std::move(guess);
    m_readings = m_guess->dayReadings;
    showGuess();
}

void ImportColumnsStep::follow(const CsvProfile &profile)
{
    QWidget *const changed = m_form->focusWidget();
    const auto guess = m_form->read(changed ? *changed : *m_encoding, [&] {
        return interchange::guessCsv(m_bytes, m_file, {profile, m_options.currency});
    });
    if (guess) {
        m_guess = *guess;
        m_readings = m_guess->dayReadings;
    }
    showGuess();
}

void ImportColumnsStep::reshape()
{
    // Its columns and days are found anew.
    CsvProfile profile;
    profile.encoding = m_encoding->currentText();
    profile.delimiter = m_delimiter->currentData().toChar();
    const int line = m_headings->currentData().toInt();
    profile.hasHeadings = line > 0;
    if (line > 0)
        profile.skippedLines = line - 1;
    follow(profile);
}

void ImportColumnsStep::takeColumn(const ColumnField &field)
{
    CsvProfile profile = m_guess->profile;
    field.take(profile, field.box->currentData().toStringList());
    follow(profile);
}

void ImportColumnsStep::takeDays()
{
    const auto at = static_cast<std::size_t>(m_days->currentData().toInt());
    if (!m_days->currentData().isValid() || at >= m_readings.size())
        return;
    CsvProfile profile = m_guess->profile;
    profile.dateFormat = m_readings[at].format;
    const auto readings = m_readings; // the others can still be chosen
    follow(profile);
    m_readings = readings;
    showDays();
}

void ImportColumnsStep::showGuess()
{
    const CsvProfile &profile = m_guess->profile;
    m_summary->setText(m_guess->summary);
    const int line = profile.hasHeadings.value_or(true) ? profile.skippedLines.value_or(0) + 1 : 0;
    if (line > 0 && m_headings->findData(line) < 0)
        m_headings->addItem(QString::number(line), line);
    m_headings->setCurrentIndex(line > 0 ? m_headings->findData(line) : 0);
    m_encoding->clear();
    QStringList encodings{profile.encoding,
                          QStringLiteral("UTF-8"),
                          QStringLiteral("windows-1252"),
                          QStringLiteral("ISO-8859-1"),
                          QStringLiteral("ISO-8859-2"),
                          QStringLiteral("ISO-8859-15"),
                          QStringLiteral("UTF-16")};
    encodings.removeDuplicates();
    m_encoding->addItems(encodings);
    if (profile.delimiter) {
        if (m_delimiter->findData(*profile.delimiter) < 0)
            m_delimiter->addItem(QString(*profile.delimiter), *profile.delimiter);
        m_delimiter->setCurrentIndex(m_delimiter->findData(*profile.delimiter));
    }
    for (const ColumnField &field : m_columns)
        fillColumn(field);
    showDays();
    showRows();
}

void ImportColumnsStep::showDays()
{
    m_days->clear();
    if (m_guess->dayReadings.size() > 1)
        m_days->addItem(tr("choose"));
    for (std::size_t at = 0; at < m_readings.size(); ++at) {
        const interchange::DayReading &one = m_readings[at];
        m_days->addItem(tr("%1 is %2", "how a day is read").arg(one.written, dayText(one.day)),
                        static_cast<int>(at));
        m_days->setItemData(m_days->count() - 1, m_days->itemText(m_days->count() - 1),
                            Qt::ToolTipRole);
        if (m_guess->profile.dateFormat == one.format)
            m_days->setCurrentIndex(m_days->count() - 1);
    }
    m_form->setShown(*m_days, m_days->count() > 0);
}

void ImportColumnsStep::fillColumn(const ColumnField &field)
{
    const QStringList shown = field.shown(m_guess->profile);
    field.box->clear();
    field.box->addItem(field.none, QStringList());
    if (shown.size() > 1)
        field.box->addItem(shown.join(QStringLiteral(" + ")), shown);
    for (int place = 0; place < m_guess->headings.size(); ++place) {
        const QString &heading = m_guess->headings[place];
        // A heading that is missing or not the only one is named by its number.
        const bool isClear = !heading.isEmpty() && m_guess->headings.count(heading) == 1;
        const QString number = QString::number(place + 1);
        field.box->addItem(heading.isEmpty() ? tr("column %1").arg(number) : heading,
                           QStringList{isClear ? heading : number});
    }
    int row = 0;
    for (int at = 0; at < field.box->count() && !shown.isEmpty(); ++at) {
        if (field.box->itemData(at).toStringList() == shown)
            row = at;
    }
    if (row == 0 && !shown.isEmpty()) {
        field.box->addItem(shown.front(), shown);
        row = field.box->count() - 1;
    }
    field.box->setCurrentIndex(row);
}

void ImportColumnsStep::showRows()
{
    QStringList titles;
    for (int place = 0; place < m_guess->headings.size(); ++place)
        titles += m_guess->headings[place].isEmpty() ? tr("column %1").arg(place + 1)
                                                     : m_guess->headings[place];
    m_model->setColumns(titles);
    std::vector<Row> rows;
    for (const interchange::CsvRecord &record : m_guess->rows) {
        Row row{QString::number(rows.size()), {}};
        for (const QString &cell : record.cells.first(std::min(record.cells.size(), titles.size())))
            row.cells.push_back({cell});
        rows.push_back(std::move(row));
    }
    m_model->setRows(std::move(rows));
    m_table->settle();
}

bool ImportColumnsStep::isKept() const
{
    return m_keep->isChecked();
}

QWidget *ImportColumnsStep::firstFocus() const
{
    if (!m_guess || m_guess->missing.isEmpty())
        return m_encoding;
    if (m_guess->dayReadings.size() > 1)
        return m_days;
    return m_columns[m_guess->profile.dateColumn.isEmpty() ? dayField : amountField].box;
}

void ImportColumnsStep::complain(const QString &sentence)
{
    const bool isComplete = !m_guess || m_guess->missing.isEmpty();
    m_form->message().complain(firstFocus(), isComplete ? sentence : missingText());
}

QString ImportColumnsStep::missingText() const
{
    const CsvProfile &profile = m_guess->profile;
    if (m_guess->dayReadings.size() > 1)
        return tr("Day and month can be read in two ways. Choose how.");
    if (columnOf<&CsvProfile::dateColumn>(profile).isEmpty())
        return tr("Choose the column with the day.");
    if (columnOf<&CsvProfile::amountColumn>(profile).isEmpty() &&
        columnOf<&CsvProfile::inColumn>(profile).isEmpty() &&
        columnOf<&CsvProfile::outColumn>(profile).isEmpty())
        return tr("Choose the column with the amount, or those of money in and money out.");
    return m_guess->missing;
}

bool ImportColumnsStep::isReadable()
{
    m_form->message().withdraw();
    if (!m_guess->missing.isEmpty())
        complain(m_guess->missing);
    return m_guess->missing.isEmpty();
}

void ImportColumnsStep::goOn()
{
    if (isReadable())
        emit goOnWanted();
}

} // namespace kiv::desktop
