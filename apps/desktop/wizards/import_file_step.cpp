// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/import_file_step.h"

#include "workbench/requests/account_groups.h"
#include "workbench/statements/input_file.h"

#include "interchange/csv_guess.h"

#include <QtCore/QDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {

using accounting::AccountNumber;
using interchange::StatementFormat;
using workbench::ImportFormat;
using workbench::ImportReading;

ImportFileStep::ImportFileStep(Desk &desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_form(new Form(desk, this)),
      m_file(m_form->add(QStringLiteral("bankFile"), tr("&Bank file:"), new QLineEdit)),
      m_kind(m_form->add(QStringLiteral("kind"), tr("&Kind of file:"), new QComboBox)),
      m_statement(m_form->add(QStringLiteral("statement"), tr("&Statement of:"), new QComboBox)),
      m_account(m_form->add(QStringLiteral("account"), tr("&Account:"), new QComboBox)),
      m_agreed(m_form->add(QStringLiteral("agreed"), tr("Another number:"),
                           new QCheckBox(tr("I&mport it into this account all the same")))),
      m_asking(m_file)
{
    m_form->setHeading(tr("A file of your bank, or a journal of another program. Nothing is "
                          "changed before the last step."));
    m_form->addButton(QStringLiteral("next"), tr("&Next"), [this] { goOn(); });
    m_form->addButton(QStringLiteral("choose"), tr("&Choose the file …"),
                      [this] { choose(account()); });
    for (const auto &[kind, text] : {std::pair(ImportFormat::Csv, tr("Table of a bank (CSV)")),
                                     {ImportFormat::Ofx, tr("Statement as OFX or QFX")},
                                     {ImportFormat::Qif, tr("Statement as QIF")},
                                     {ImportFormat::Mt940, tr("Statement as MT940")},
                                     {ImportFormat::Camt, tr("Statement as CAMT (XML)")},
                                     {ImportFormat::Journal, tr("Journal of ledger or hledger")}})
        m_kind->addItem(text, static_cast<int>(kind));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_form);
    layout->addStretch();
    forgetAnswers();
    connect(m_file, &QLineEdit::textChanged, this, &ImportFileStep::forgetAnswers);
    connect(m_account, &QComboBox::activated, this, [this] { m_form->setShown(*m_agreed, false); });
    connect(m_form, &Form::givenUp, this, &ImportFileStep::givenUp);
}

void ImportFileStep::forgetAnswers()
{
    m_source = {};
    m_asking = m_file;
    for (QWidget *field : {static_cast<QWidget *>(m_kind), static_cast<QWidget *>(m_statement),
                           static_cast<QWidget *>(m_agreed)})
        m_form->setShown(*field, false);
}

void ImportFileStep::refresh()
{
    const QVariant chosen = m_account->currentData();
    m_account->clear();
    m_account->addItem(tr("as the file says"));
    for (const workbench::GroupedAccount &one :
         workbench::groupedAccounts(m_desk.document().present())) {
        if (one.bank && !one.account.isClosed())
            m_account->addItem(tr("%1 (%2)").arg(one.name, one.bank->institution()),
                               one.account.code().number().integer());
    }
    m_account->setCurrentIndex(std::max(0, m_account->findData(chosen)));
    m_form->allow(m_desk.whyNoChange());
}

QWidget *ImportFileStep::firstFocus() const
{
    return m_asking;
}

QString ImportFileStep::file() const
{
    return QDir::fromNativeSeparators(m_file->text().trimmed());
}

std::optional<AccountNumber> ImportFileStep::account() const
{
    const QVariant number = m_account->currentData();
    return number.isValid() ? std::optional(AccountNumber(number.toUInt())) : std::nullopt;
}

void ImportFileStep::choose(std::optional<AccountNumber> into, const QString &given)
{
    m_account->setCurrentIndex(into ? std::max(0, m_account->findData(into->integer())) : 0);
    const QString file = given.isEmpty() ? m_desk.questions().fileToImport(this) : given;
    if (file.isEmpty())
        return;
    forgetAnswers(); // also for the same file: the bank may have written it anew
    m_file->setText(QDir::toNativeSeparators(file));
    goOn();
}

void ImportFileStep::startAnew()
{
    m_form->message().withdraw();
    m_file->clear();
    m_account->setCurrentIndex(0);
    forgetAnswers();
}

void ImportFileStep::ask(QWidget &field, const QString &sentence)
{
    m_asking = &field;
    m_form->setShown(field, true);
    m_form->message().complain(&field, sentence);
    emit asked(sentence, &field == m_file);
}

void ImportFileStep::complain(const QString &sentence)
{
    ask(*m_file, sentence);
}

void ImportFileStep::goOn()
{
    m_form->message().withdraw();
    m_asking = m_file;
    if (const std::optional<QString> whyNot = m_desk.whyNoChange()) {
        complain(*whyNot);
        return;
    }
    try {
        readFile();
        const std::optional<ImportFormat> kind = this->kind();
        if (!kind) {
            ask(*m_kind, tr("The file does not show what it is. Choose it."));
        } else if (const auto form = workbench::statementFormat(*kind)) {
            m_source.format = *form;
            readStatement();
        } else {
            emit journalChosen();
        }
    } catch (const foundation::Error &error) {
        complain(workbench::userText(error));
    }
}

void ImportFileStep::readFile()
{
    if (m_source.file == file() && !m_source.bytes.isEmpty())
        return;
    if (file().isEmpty())
        throw workbench::Refusal(tr("Choose the file that is to be imported."));
    m_source.bytes = workbench::readFile(file());
    m_source.file = file();
}

std::optional<ImportFormat> ImportFileStep::kind() const
{
    return m_kind->isHidden() ? workbench::guessImportFormat(m_source.file, m_source.bytes)
                              : std::optional(ImportFormat(m_kind->currentData().toInt()));
}

bool ImportFileStep::asksForStatement()
{
    if (!m_statement->isHidden())
        return false;
    const QStringList numbers = workbench::statementNumbers(m_desk.requests(), m_source);
    if (numbers.size() < 2)
        return false;
    m_statement->clear();
    m_statement->addItems(numbers);
    return true;
}

void ImportFileStep::readStatement()
{
    m_source.into = account();
    m_source.statement = m_statement->isHidden() ? QString() : m_statement->currentText();
    const auto memory = workbench::ImportMemory::of(m_desk.document().notes());
    ImportReading reading;
    try {
        reading = workbench::readForImport(m_desk.requests(), memory, m_source);
    } catch (const interchange::ImportError &) {
        // Which one is meant can be known from former files; only then it is not asked.
        if (lacksColumns())
            emit columnsWanted(m_source.into);
        else if (asksForStatement())
            ask(*m_statement, tr("The file has statements of several accounts. Choose one; the "
                                 "others can be imported afterwards."));
        else
            throw;
        return;
    }
    if (!reading.account || (reading.isOfOtherAccount && !isAgreed())) {
        askFor(reading);
        return;
    }
    m_account->setCurrentIndex(m_account->findData(reading.account->integer()));
    const auto known = memory.accounts.find(*reading.account);
    const bool isKnown = known != memory.accounts.end() && known->second.profile;
    if (m_source.format == StatementFormat::Csv && !m_source.hasProfile && !isKnown)
        emit columnsWanted(reading.account);
    else
        emit statementRead(reading);
}

bool ImportFileStep::isAgreed() const
{
    return !m_agreed->isHidden() && m_agreed->isChecked();
}

void ImportFileStep::askFor(const ImportReading &reading)
{
    if (reading.account) {
        m_account->setCurrentIndex(m_account->findData(reading.account->integer()));
        m_agreed->setChecked(false);
        ask(*m_agreed, reading.statement.notices.last());
    } else if (reading.possible.empty()) {
        ask(*m_account, tr("There is no account at a bank yet. It is added on the page “Banks”."));
    } else {
        ask(*m_account, tr("Choose the account whose statement it is."));
    }
}

bool ImportFileStep::lacksColumns() const
{
    if (m_source.format != StatementFormat::Csv || m_source.hasProfile)
        return false;
    const interchange::CsvOptions options{{}, m_desk.requests().preferredCurrency()};
    return !interchange::guessCsv(m_source.bytes, m_source.file, options).missing.isEmpty();
}

void ImportFileStep::readWith(const interchange::CsvProfile &columns)
{
    m_source.options.profile = columns;
    m_source.hasProfile = true;
    goOn();
}

} // namespace kiv::desktop
