// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/journal_books.h"
#include "interchange/internal/quantity_reader.h"
#include "interchange/text_decoding.h"

#include <QtCore/QMap>

namespace kiv::interchange::internal {

/// Turns the lines of a journal into entries and hands them to the books. Reads what ledger
/// and hledger share, and refuses everything else. Two sources: journal_parser.cpp has
/// lines and entries, journal_directives.cpp directives.
class JournalParser {
public:
    JournalParser(const JournalOptions &options, JournalBooks &books)
        : m_options(options), m_books(books), m_quantities(options, m_settings.amounts)
    {
    }

    void parse(const QByteArray &bytes, const QString &file);

    /// The first line of journals that writeJournal() writes. In them a transaction's code
    /// is its number, and accounts have the tags "number" and "currency".
    static const QString &ownHeader();

private:
    using Line = std::pair<Place, QStringView>; ///< of the text that is parsed

    /// The first line of a directive or entry with its indented lines. Functions take the
    /// lines that they understand; lines left over are refused.
    struct Block {
        Place place;
        QString head;
        qsizetype size = 0; ///< of its text, see entryTextMax
        std::vector<Line> lines = {};

        void add(const Place &at, QStringView line);
        [[nodiscard]] std::vector<Line> takeLines() { return std::exchange(lines, {}); }
    };

    struct Alias {
        QString account;
        std::size_t order = 0; ///< a later one has a greater one
    };
    using Aliases = QMap<QString, Alias>;

    /// An "apply tag" or "apply account" for the lines after it.
    struct Applied {
        QString kind; ///< "tag" or "account"
        QString value;
    };

    /// Settings of a file and of the files that it includes. They end with the file.
    struct Settings {
        bool isOwn = false; ///< see ownHeader
        int depth = 0;      ///< how many files include this one
        std::optional<int> year = {};
        std::vector<Applied> applied = {};
        AmountSettings amounts = {};
        Aliases aliases = {};
    };

    void take(Block block);
    void takeDirective(Block &block);
    void takeAccount(Block &block, const QString &name);
    void takeCommodity(Block &block, bool isDefault, const QString &sample);
    static void takeRemarks(Block &block);
    void takeInclude(const Block &block, const QString &path);
    void takeApply(const Block &block, const QString &rest);
    void takeEnd(const Block &block, const QString &rest);
    void takeAlias(const Place &place, const QString &alias, const QString &account);
    [[nodiscard]] bool isApplied(const QString &kind) const;
    /// The name with an alias for all of it, or else for its first part, applied.
    [[nodiscard]] static QString withWholeOrRoot(const Aliases &aliases, const QString &name);
    /// The name with the latest alias for it or a parent applied, then the one before, and
    /// so on.
    [[nodiscard]] static QString withLatest(const Aliases &aliases, QString name);
    /// The account that the name means, below the applied parents.
    [[nodiscard]] QString fullName(const QString &name, const Place &place) const;
    void takeEntry(Block &block);
    void takeAutomated(Block &block);
    void addPostings(Block &block, Entry &entry);
    void noticeDays(const QString &comment);
    [[nodiscard]] Posting readPosting(const Place &place, QStringView line);
    void readAmounts(QStringView rest, Posting &posting);
    void readCost(QStringView &rest, Posting &posting);
    /// Reads "{$5}", "{{$50}}", "{=$5}" and "[2026-01-31]" in any order, and the cost of the
    /// lot, if it has one.
    void readLot(QStringView &rest, const Posting &posting, std::optional<Quantity> &cost);
    void checkLot(Posting &posting, const std::optional<Quantity> &cost);

    const JournalOptions &m_options;
    JournalBooks &m_books;
    Settings m_settings;
    QuantityReader m_quantities;
    Aliases m_aliases; ///< aliases of included files stay in force after them
    std::size_t m_aliasOrder = 0;
    bool m_hasPayees = false; ///< whether payees choose accounts
    qsizetype m_declared = 0;
    int m_included = 0;
};

/// Cuts off the comment, and returns its text without the semicolon.
QString takeComment(QString &text);

} // namespace kiv::interchange::internal
