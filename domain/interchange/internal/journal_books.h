// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/draft.h"
#include "interchange/internal/journal_entry.h"
#include "interchange/journal_options.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <bitset>

namespace kiv::interchange::internal {

/// The currency that a commodity is; nothing for another one.
[[nodiscard]] std::optional<numira::Currency> currencyOf(const QString &commodity);

/// Balances the entries of a journal and splits them into transactions between two
/// accounts. Two sources: journal_books.cpp has entries, automated transactions and
/// assertions; journal_bookings.cpp has accounts and transactions.
class JournalBooks {
public:
    explicit JournalBooks(const JournalOptions &options) : m_options(options) {}

    // What the parser finds is told in the order of the file.
    void add(Entry entry);
    void add(AutomatedEntry automated);
    /// An account that is declared, with the tags of its comments.
    void declare(const QString &account, const std::map<QString, QString> &tags,
                 const Place &place);
    /// Keeps a sentence for the user, once.
    void notice(const QString &sentence);

    /// Checks assertions that failed in file order once more by date, and returns the
    /// draft.
    [[nodiscard]] Draft finish();

private:
    /// What one posting does to one account of the draft.
    struct Booking {
        std::size_t account;
        numira::Money amount; ///< debits are positive
        accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
        QStringList comments = {};
    };
    struct Rule {
        QRegularExpression pattern;
        Entry entry;
    };
    static constexpr std::size_t rulesMax = 100; ///< each is matched against each account
    /// Which rules match an account, as far as they were tried.
    struct Fitting {
        std::size_t asked = 0;
        std::bitset<rulesMax> rules = {};
    };
    /// A posting, kept for assertions that hold only in the order of dates.
    struct Movement {
        QDate date;
        QString account;
        PostingKind kind;
        Quantity amount;
        std::optional<Quantity> assertion;
        AssertionScope scope;
        bool isAssigned; ///< whether the amount comes from the assertion
        Place place;
    };
    /// By account and commodity. Programs differ on whether virtual postings count.
    struct Balance {
        numira::Decimal all;
        numira::Decimal real; ///< without virtual postings
    };
    using Balances = std::map<std::pair<QString, QString>, Balance>;
    struct KnownAccount {
        std::size_t index; ///< in the draft
        Place place;       ///< of its first use
    };

    void fill(std::vector<Posting> &postings, const Place &place);
    void checkBalance(std::vector<Posting *> &group, const Place &place);
    void inferCost(std::vector<Posting *> &group, const std::map<QString, numira::Decimal> &rest);
    void applyRules(const Entry &entry);
    [[nodiscard]] bool fits(std::size_t rule, const QString &account);
    void assign(Entry &entry) const;
    void move(const Entry &entry);
    [[nodiscard]] static Movement movementOf(const Entry &entry, const Posting &posting);
    [[nodiscard]] static bool holds(const Balances &balances, const Movement &movement);
    static void add(Balances &balances, const Movement &movement);
    void checkByDay();
    void book(const Entry &entry);
    [[nodiscard]] Booking bookingOf(const Posting &posting);
    void addConversions(std::vector<Booking> &bookings);
    void settle(const Entry &entry, std::vector<Booking> bookings);
    void addTransaction(const Entry &entry, const Booking &debit, const Booking &credit,
                        const numira::Money &amount);

    [[nodiscard]] std::size_t accountOf(const QString &name, const numira::Currency &currency,
                                        const Place &place);
    [[nodiscard]] std::size_t newAccount(const QString &name, const numira::Currency &currency,
                                         const Place &place);
    void checkKinds() const;
    /// The index of the draft's account. A new account keeps `name`.
    [[nodiscard]] std::size_t indexOf(DraftAccount account, const QString &name);
    [[nodiscard]] accounting::AccountTypes typeOf(const QString &name, const QString &root,
                                                  const Place &place) const;

    const JournalOptions &m_options;
    Draft m_draft;
    std::map<std::tuple<accounting::AccountTypes, QStringList, numira::Currency>, std::size_t>
        m_indexes;
    std::map<QString, accounting::AccountTypes> m_declaredTypes;
    std::map<QString, accounting::AccountNumber> m_declaredNumbers;
    /// Accounts declared with a currency are opened even without a posting.
    std::vector<std::tuple<QString, numira::Currency, Place>> m_wanted;
    std::map<std::pair<QString, numira::Currency>, KnownAccount> m_known;
    std::vector<QString> m_names; ///< the first name of each account of the draft
    bool m_hasJoined = false;     ///< whether an account has several names
    QSet<QString> m_paths;        ///< of the accounts and their parents
    qsizetype m_pathsSize = 0;
    qsizetype m_opened = 0; ///< accounts that are opened, at most
    qsizetype m_descriptionsSize = 0;
    int m_withoutEffect = 0; ///< entries
    std::vector<Rule> m_rules;
    std::map<QString, Fitting> m_fitting;
    Balances m_balances;
    std::vector<Movement> m_movements;
    std::optional<ImportError> m_failedAssertion;
};

} // namespace kiv::interchange::internal
