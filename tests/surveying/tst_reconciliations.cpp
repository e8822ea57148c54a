// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "surveying/reconciliation_check.h"
#include "surveying/reconciliation_derivation.h"

#include "accounting/ledger_book.h"
#include "support/comparison.h"

using namespace kiv::surveying;
using kiv::banking::BankName;

namespace {

/// Books with surveys, and the reconciliations that follow from them.
struct SurveyedBook {
    Book book;
    CompletedSurveys surveys;
    Reconciliations all;
    ReconciliationIndex index;
    std::vector<TransactionNumber> changed; ///< with the last version

    /// Makes the requests as one version.
    void change(const QString &requests)
    {
        const GeneralLedger ledger = book.ledger;
        const CompletedSurveys before = surveys;
        for (const QString &one : requests.split(u"; "_qs, Qt::SkipEmptyParts))
            make(one);
        changed = changedTransactions(ledger, book.ledger);
        all = reconciliationsAfter(all, {before, ledger}, {surveys, book.ledger});
        index.follow(all);
    }

private:
    void make(const QString &text)
    {
        Words words(text);
        const QString verb = words.next();
        if (verb == u"rename"_qs) {
            const BankName from(words.next());
            return surveys.renamedBank(from, BankName(words.next()));
        }
        if (verb != u"survey"_qs)
            request(book, text);
        const AccountNumber account =
            verb == u"recode"_qs || verb == u"survey"_qs ? words.account() : AccountNumber();
        if (verb == u"recode"_qs)
            surveys.renamedAccount(BankName(u"First"_qs), account, words.account());
        if (verb == u"survey"_qs)
            survey(account, words);
    }

    void survey(AccountNumber account, Words &words)
    {
        CompletedSurvey made({BankName(u"First"_qs), {account, {}}}, numira::toCurrency("USD"));
        const numira::Money balance = words.amount();
        made.completed(QDate(2026, 1, static_cast<int>(words.number())), balance, {}, usd("0"), {});
        surveys.upsert(made);
        while (!words.isEmpty()) {
            const TransactionNumber number = words.transaction();
            if (book.ledger.lookUpTransaction(number)->involves(account))
                book.ledger.reconcile(number, account);
            else
                book.ledger.reconcile(number);
        }
    }
};

/// The reconciliations and what is not as it was.
QString told(const Reconciliations &all, const std::vector<ReconciliationFault> &faults)
{
    QStringList reconciliations;
    for (const Reconciliation &one : all) {
        QString text = u"%1 %2 %3 %4:"_qs.arg(
            one.account.bank.institution(), dump(one.account.account.number),
            QString::number(one.day.day()), dump(one.balance).remove(u".00 USD"_qs));
        for (const ReconciledTransaction &transaction : one.transactions)
            text += u" #"_qs + dump(transaction.number);
        reconciliations += text;
    }
    QStringList departures;
    for (const ReconciliationFault &fault : faults) {
        const char *const words[] = {"", "gone", "changed", "unreconciled"};
        departures += u'#' + dump(fault.then.number) + u' ' +
                      QLatin1String(words[static_cast<int>(fault.departure)]);
    }
    return reconciliations.join(u"; "_qs) +
           (departures.isEmpty() ? QString() : u", but "_qs + departures.join(u", "_qs));
}

} // namespace

class tst_Reconciliations : public QObject {
    Q_OBJECT

private slots:
    void theyFollowFromTheVersions()
    {
        for (const Row &row : rows("== after")) {
            SurveyedBook books;
            for (const QString &one : row.before.split(u"; "_qs, Qt::SkipEmptyParts))
                books.change(one);
            books.change(row.request);
            const auto faults = reconciliationFaults(books.all, books.book.ledger);
            QCOMPARE(told(books.all, faults), row.answer);
            // The changed transactions are found among all, and only they.
            std::vector<ReconciliationFault> some = faults;
            std::erase_if(some, [&](const ReconciliationFault &fault) {
                return !std::ranges::count(books.changed, fault.then.number);
            });
            QCOMPARE(books.index.faults(books.all, books.book.ledger, books.changed), some);
        }
    }

    void booksWithoutAnyGetOneForEachSurvey()
    {
        for (const Row &row : rows("== first")) {
            SurveyedBook books;
            books.change(row.before);
            books.change(row.request);
            QCOMPARE(told(firstReconciliations({books.surveys, books.book.ledger}), {}),
                     row.answer);
        }
    }
};

static const kiv::test::Suite<tst_Reconciliations> reconciliationsSuite;
#include "tst_reconciliations.moc"
