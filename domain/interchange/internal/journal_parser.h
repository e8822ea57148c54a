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
        : m_options(options), m_sink(sink), m_quantities(options)
    {
    }

    void parse(const QByteArray &bytes, const QString &file, int depth = 0);

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

    void take(const Block &block);
    void takeDirective(const Block &block);
    void takeAccount(const Block &block, const QString &name);
    void takeCommodity(const Block &block, const QString &sample);
    void takeInclude(const Block &block, const QString &path);
    void takeTagging(const Block &block, const QString &word, const QString &rest);
    void takeEntry(const Block &block);
    void takeAutomated(const Block &block);
    void addPostings(const Block &block, Entry &entry) const;
    [[nodiscard]] Posting readPosting(const Place &place, QStringView line) const;
    void readAmounts(QStringView rest, Posting &posting) const;
    void readCost(QStringView &rest, Posting &posting) const;
    [[nodiscard]] QDate takeDate(QStringView &rest, const Place &place) const;

    const JournalOptions &m_options;
    JournalSink &m_sink;
    QuantityReader m_quantities;
    QStringList m_appliedTags;
    std::optional<int> m_year;
    int m_depth = 0;
    int m_included = 0;
    bool m_isOwn = false;
};

} // namespace kiv::interchange::internal
