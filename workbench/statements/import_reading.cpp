// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_reading.h"

#include "workbench/internal/faults.h"
#include "workbench/statements/statement_books.h"

#include <QtCore/QObject>

#include <algorithm>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using interchange::Statement;

namespace {

/// Reads a source once it is known which account it is of.
class Reader {
public:
    Reader(Requests &requests, const ImportMemory &memory, const ImportSource &source)
        : m_memory(memory),
          m_source(source),
          m_index(requests.accounts()),
          m_preferred(requests.preferredCurrency())
    {
        for (const auto &[number, bank] : accountsWithStatements(requests)) {
            if (const Account *account = m_index.find(number); account && !account->isClosed())
                m_kept.push_back(number);
        }
    }

    ImportReading read()
    {
        if (const Account *into = m_source.into ? m_index.find(*m_source.into) : nullptr;
            into && !keepsMoney(*into))
            throw internal::notKeptByBanks(m_index.plainName(*m_source.into));
        ImportReading reading = m_source.into ? ImportReading{{}, m_source.into} : withPossible();
        if (reading.account) {
            // Its currency and the form of its tables count from now on.
            reading.statement = statementFor(*reading.account);
            compareNumbers(reading);
        }
        return reading;
    }

private:
    [[nodiscard]] std::vector<Statement> statements(const interchange::StatementOptions &options)
    {
        return interchange::readStatements(m_source.format, m_source.bytes, m_source.file, options);
    }

    /// What the file says of its account. A table may leave out its currency, so it is read
    /// in that of each account.
    [[nodiscard]] ImportReading withPossible()
    {
        std::vector<numira::Currency> currencies;
        for (const AccountNumber number : m_kept) {
            const numira::Currency currency = m_index.find(number)->balance().code();
            if (std::ranges::find(currencies, currency) == currencies.end())
                currencies.push_back(currency);
        }
        if (currencies.empty())
            currencies.push_back(m_preferred);
        std::optional<ImportReading> reading;
        std::exception_ptr refusal;
        for (const numira::Currency &currency : currencies) {
            interchange::StatementOptions options = m_source.options;
            options.currency = currency;
            try {
                Statement statement = chosen(statements(options), std::nullopt);
                if (!reading)
                    reading.emplace(statement);
                addPossible(*reading, statement.currency);
            } catch (const interchange::ImportError &) {
                refusal = refusal ? refusal : std::current_exception();
            }
        }
        if (!reading)
            std::rethrow_exception(refusal);
        if (reading->possible.empty())
            reading->possible = m_kept;
        reading->account = accountOf(reading->statement);
        if (!reading->account && reading->possible.size() == 1)
            reading->account = reading->possible.front();
        return *std::move(reading);
    }

    [[nodiscard]] Statement statementFor(AccountNumber account)
    {
        interchange::StatementOptions options = m_source.options;
        const Account *into = m_index.find(account);
        options.currency = into ? into->balance().code() : m_preferred;
        const auto known = m_memory.accounts.find(account);
        const bool isKnown = known != m_memory.accounts.end();
        if (!isKnown || !known->second.profile || m_source.hasProfile ||
            m_source.format != interchange::StatementFormat::Csv)
            return chosen(statements(options), account);
        options.profile = *known->second.profile;
        try {
            return chosen(statements(options), account);
        } catch (const interchange::ImportError &former) {
            options.profile = m_source.options.profile;
            Statement anew = chosen(statements(options), account);
            anew.notices +=
                QObject::tr("The columns that were kept no longer fit, and were found anew: %1")
                    .arg(former.message());
            return anew;
        }
    }

    /// Of several statements the one of this account, or the only one whose account is known.
    [[nodiscard]] Statement chosen(std::vector<Statement> statements,
                                   std::optional<AccountNumber> account) const
    {
        QString number = m_source.statement;
        if (number.isEmpty() && statements.size() > 1) {
            QStringList known;
            for (const Statement &statement : statements) {
                const auto owner = accountOf(statement);
                if (owner && (!account || owner == account))
                    known += statement.account;
            }
            if (known.size() == 1)
                number = known.front();
        }
        return interchange::chosenStatement(std::move(statements), number, m_source.file);
    }

    /// The account whose former files had this number.
    [[nodiscard]] std::optional<AccountNumber> accountOf(const Statement &statement) const
    {
        if (statement.account.isEmpty())
            return std::nullopt;
        for (const auto &[number, account] : m_memory.accounts) {
            if (account.bankNumber == statement.account && m_index.find(number))
                return number;
        }
        return std::nullopt;
    }

    void addPossible(ImportReading &reading, const numira::Currency &currency) const
    {
        for (const AccountNumber number : m_kept) {
            if (m_index.find(number)->balance().code() == currency &&
                std::ranges::find(reading.possible, number) == reading.possible.end())
                reading.possible.push_back(number);
        }
    }

    void compareNumbers(ImportReading &reading) const
    {
        Statement &statement = reading.statement;
        if (statement.account.isEmpty())
            return;
        const QString name = m_index.plainName(*reading.account);
        const auto own = m_memory.accounts.find(*reading.account);
        const auto other = accountOf(statement);
        if (other && other != reading.account) {
            reading.isOfOtherAccount = true;
            statement.notices += QObject::tr("The file is of %1, whose files have the number %2.")
                                     .arg(m_index.plainName(*other), statement.account);
        } else if (own != m_memory.accounts.end() && !own->second.bankNumber.isEmpty() &&
                   own->second.bankNumber != statement.account) {
            reading.isOfOtherAccount = true;
            statement.notices +=
                QObject::tr("The file is of the account %1; former files of %2 were of %3.")
                    .arg(statement.account, name, own->second.bankNumber);
        }
    }

    const ImportMemory &m_memory;
    const ImportSource &m_source;
    AccountIndex m_index;
    numira::Currency m_preferred;
    std::vector<AccountNumber> m_kept;
};

} // namespace

ImportReading readForImport(Requests &requests, const ImportMemory &memory,
                            const ImportSource &source)
{
    return Reader(requests, memory, source).read();
}

QStringList statementNumbers(Requests &requests, const ImportSource &source)
{
    interchange::StatementOptions options = source.options;
    options.currency = requests.preferredCurrency();
    QStringList numbers;
    for (const Statement &statement :
         interchange::readStatements(source.format, source.bytes, source.file, options))
        numbers += statement.account;
    return numbers;
}

ImportPreview previewOf(Requests &requests, ImportReading reading, ImportPreview::Choices choices)
{
    const AccountIndex index = requests.accounts();
    const Account *account = index.find(reading.account.value());
    if (!account)
        throw std::logic_error("A statement is read for an account of the budget.");
    StatementBooks books = statementBooks(requests, *account);
    const auto &known = choices.memory.accounts;
    if (const auto found = known.find(*reading.account); found != known.end())
        books.told = found->second.told;
    return ImportPreview(std::move(reading.statement), std::move(books), std::move(choices));
}

} // namespace kiv::workbench
