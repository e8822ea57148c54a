// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as what other programs write; the first one says what: a journal, an OFX,
// QIF, MT940 or CAMT file, a saved profile, or a CSV table, which stands behind a profile on
// a line. What is read is refused, or can be used: a journal goes into a ledger,
// and is the same when it is written and read again.
#include "interchange/camt_reader.h"
#include "interchange/csv_guess.h"
#include "interchange/csv_table.h"
#include "interchange/journal_reader.h"
#include "interchange/ledger_writer.h"
#include "interchange/mt940_reader.h"
#include "interchange/ofx_reader.h"
#include "interchange/qif_reader.h"

#include "accounting/general_ledger.h"
#include "numira/error.h"

#include <QtCore/QDebug>

using namespace kiv;
using namespace kiv::interchange;

namespace {

const QString name = QStringLiteral("f");

void require(bool isKept, const char *promise)
{
    if (!isKept)
        qFatal("Not kept: %s", promise);
}

/// The journal of a ledger into which the draft was posted; nothing when the
/// ledger takes no such accounts or amounts.
std::optional<QByteArray> throughLedger(const Draft &draft)
{
    accounting::GeneralLedger ledger;
    accounting::SequentialAccountNumberGenerator generator;
    try {
        const AccountPlan plan = planAccounts(draft, {});
        for (const accounting::Account &account : plan.missing)
            ledger.add(account, generator, QDate(2026, 1, 1));
        for (const DraftTransaction &t : draft.transactions)
            ledger.post(accounting::Transaction(
                            t.date, plan.codes.at(t.debit), plan.codes.at(t.credit), t.amount,
                            t.text.isEmpty() ? std::nullopt : std::optional(t.text))
                            .withStatuses(t.debitStatus, t.creditStatus));
    } catch (const foundation::Error &) {
        return std::nullopt;
    } catch (const numira::Error &) {
        return std::nullopt;
    }
    return writeJournal(ledger.accounts(), ledger.transactions());
}

void readAsJournal(const QByteArray &bytes)
{
    JournalOptions options;
    options.preferred = numira::toCurrency("USD");
    // The file that it may include is itself, without what it includes.
    options.include = [&bytes](const QString &path, const Place &place) {
        if (path != u"j")
            throw ImportError(place, QStringLiteral("There is no such file."));
        return QByteArray(bytes).replace("include", "comment");
    };
    const auto written = throughLedger(readJournal(bytes, name, options));
    if (!written)
        return;
    try {
        const auto again = throughLedger(readJournal(*written, name, options));
        if (again != written)
            qCritical().noquote() << *written << again.value_or("refused");
        require(again == written, "what is written is read again");
    } catch (const ImportError &error) {
        qCritical().noquote() << *written << error.message();
        require(false, "what is written can be read");
    }
}

void readAsProfile(const QByteArray &bytes)
{
    const QByteArray saved = toJson(readProfile(bytes, name));
    require(toJson(readProfile(saved, name)) == saved, "a profile is read as it was saved");
}

void require(const Statement &statement)
{
    for (const StatementEntry &entry : statement.entries)
        require(entry.date.isValid() && entry.place.line > 0, "each entry has a day and a line");
}

void require(const std::vector<Statement> &statements)
{
    for (const Statement &statement : statements)
        require(statement);
}

void readAsTable(const QByteArray &bytes, CsvOptions options)
{
    const Statement statement = readCsv(bytes, name, options);
    require(statement);
    options.profile = guessCsv(bytes, name, options).profile;
    require(readCsv(bytes, name, options).entries == statement.entries,
            "what is guessed reads the same");
}

void read(char kind, const QByteArray &bytes)
{
    QifOptions options;
    options.currency = numira::toCurrency("EUR");
    const qsizetype end = bytes.indexOf('\n');
    switch (kind) {
    case 'j':
        return readAsJournal(bytes);
    case 'o':
        return require(readOfx(bytes, name, {}));
    case 'q':
        return require(readQif(bytes, name, options));
    case 'm':
        return require(readMt940(bytes, name, {}));
    case 'x':
        return require(readCamt(bytes, name, {}));
    case 'p':
        return readAsProfile(bytes);
    default:
        return readAsTable(
            bytes.mid(end + 1),
            {end > 0 ? readProfile(bytes.left(end), name) : CsvProfile(), options.currency});
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0 || !std::strchr("joqmxpc", data[0]) || data[0] == 0)
        return -1;
    try {
        read(char(data[0]),
             QByteArray(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1));
    } catch (const ImportError &) {
    }
    return 0;
}
