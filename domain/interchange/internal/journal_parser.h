// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/journal_entry.h"
#include "interchange/text_decoding.h"

namespace kiv::interchange::internal {

/// Takes what a parser finds, in the order of the file.
class JournalSink {
public:
    virtual ~JournalSink() = default;
    virtual void add(Entry entry) = 0;
    virtual void add(AutomatedEntry automated) = 0;
    /// An account that is declared, with the tags of its comments.
    virtual void declare(const QString &account, const std::map<QString, QString> &tags,
                         const Place &place) = 0;
    virtual void notice(const QString &sentence) = 0;
};

/// Turns the lines of a journal into entries. Knows the forms that ledger and
/// hledger share, and refuses everything else.
class JournalParser {
public:
    JournalParser(const JournalOptions &options, JournalSink &sink)
        : m_options(options), m_sink(sink), m_quantities(options, m_settings.amounts)
    {
    }

    void parse(const QByteArray &bytes, const QString &file);

    /// The first line of journals that are written here. In them a
    /// transaction's code is its number, and an account has the tags "number"
    /// and "currency".
    static const QString &ownHeader();

private:
    /// A directive's or entry's first line, and the indented ones behind it.
    struct Block {
        Place place;
        QString head;
        std::vector<std::pair<Place, QString>> lines = {};
    };

    /// What "apply tag" or "apply account" says of the lines behind it.
    struct Applied {
        QString kind; ///< "tag" or "account"
        QString value;
    };

    /// What holds for the lines of a file and of those that it includes there, and
    /// ends with it.
    struct Settings {
        bool isOwn = false; ///< see ownHeader
        int depth = 0;      ///< how many files include this one
        std::optional<int> year = {};
        std::vector<Applied> applied = {};
        AmountSettings amounts = {};
    };

    void take(const Block &block);
    void takeDirective(const Block &block);
    void takeAccount(const Block &block, const QString &name);
    void takeCommodity(const Block &block, bool isDefault, const QString &sample);
    void takeInclude(const Block &block, const QString &path);
    void takeApply(const Block &block, const QString &rest);
    void takeEnd(const Block &block, const QString &rest);
    void takeAlias(const Place &place, const QString &alias, const QString &account);
    [[nodiscard]] bool isApplied(const QString &kind) const;
    /// The account that such a name stands for, under what is applied.
    [[nodiscard]] QString fullName(const QString &name) const;
    void takeEntry(const Block &block);
    void takeAutomated(const Block &block);
    void addPostings(const Block &block, Entry &entry) const;
    [[nodiscard]] Posting readPosting(const Place &place, QStringView line) const;
    void readAmounts(QStringView rest, Posting &posting) const;
    void readCost(QStringView &rest, Posting &posting) const;

    const JournalOptions &m_options;
    JournalSink &m_sink;
    Settings m_settings;
    QuantityReader m_quantities;
    std::map<QString, QString> m_aliases; ///< the accounts that they stand for
    int m_included = 0;
};

} // namespace kiv::interchange::internal
