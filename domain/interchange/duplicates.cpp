// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/duplicates.h"

#include "foundation/local_dates.h"
#include "foundation/presentation.h"
#include "foundation/streams.h"

namespace kiv::interchange {

using accounting::Transaction;

namespace {

const QString idOpening = QStringLiteral("[id ");

/// Where the identifier's bracket begins, at the front or behind a blank; -1 when there
/// is none.
qsizetype idBegin(QStringView description)
{
    static const QString inside = u' ' + idOpening;
    if (!description.endsWith(u']'))
        return -1;
    const qsizetype blank = description.lastIndexOf(inside);
    return blank < 0 && !description.startsWith(idOpening) ? -1 : blank + 1;
}

bool takeOne(std::map<QString, int> &counts, const QString &key)
{
    const auto found = counts.find(key);
    if (found == counts.end())
        return false;
    if (--found->second == 0)
        counts.erase(found);
    return true;
}

/// The amount and both accounts.
QString amountKey(const Transaction &transaction)
{
    return QStringLiteral("%1<%2 %3 %4")
        .arg(accounting::presentationText(transaction.debiting().number()),
             accounting::presentationText(transaction.crediting().number()),
             foundation::toQString(transaction.amount()),
             foundation::toQString(transaction.amount().code()));
}

QString contentKey(const Transaction &transaction)
{
    QString text = transaction.description().value_or(QString());
    if (const qsizetype at = idBegin(text); at >= 0)
        text.truncate(at);
    // A journal has neither semicolons nor control characters in descriptions.
    text = foundation::escaped(text.simplified()).replace(u';', u',').toCaseFolded();
    return foundation::isoText(transaction.occurredOn()) + amountKey(transaction) + u'\n' + text;
}

QString idKey(const Transaction &transaction)
{
    const QString id = bankIdOf(transaction.description().value_or(QString()));
    return id.isEmpty() ? id : amountKey(transaction) + u'\n' + id;
}

} // namespace

QString withBankId(const QString &text, const QString &bankId)
{
    QString id = foundation::escaped(bankId.simplified());
    id.remove(u'[').remove(u']');
    if (id.isEmpty())
        return text;
    // Journals keep no blank at the front.
    return (text.isEmpty() ? text : text + u' ') + idOpening + id + u']';
}

QString bankIdOf(const QString &description)
{
    const qsizetype at = idBegin(description);
    return at < 0 ? QString()
                  : description.mid(at + idOpening.size(),
                                    description.size() - at - idOpening.size() - 1);
}

QStringView withoutBankId(QStringView description)
{
    const qsizetype at = idBegin(description);
    return at < 0 ? description : description.first(at).trimmed();
}

void forgetSharedIds(std::vector<StatementEntry> &entries)
{
    static const QStringList none{QStringLiteral("NOTPROVIDED"), QStringLiteral("NONREF"),
                                  QStringLiteral("NONE"),        QStringLiteral("NULL"),
                                  QStringLiteral("N/A"),         QStringLiteral("-")};
    std::map<QString, const StatementEntry *> first;
    std::set<QString> shared;
    for (const StatementEntry &entry : entries) {
        const QString &id = entry.bankId;
        const StatementEntry &other = *first.emplace(id, &entry).first->second;
        const bool isSame = other.date == entry.date && other.text == entry.text &&
                            other.payee == entry.payee &&
                            numira::compareExactly(other.amount, entry.amount) == 0;
        if (!isSame || none.contains(id, Qt::CaseInsensitive) ||
            std::ranges::all_of(id, [](QChar letter) { return letter == u'0'; }))
            shared.insert(id);
    }
    for (StatementEntry &entry : entries) {
        if (shared.contains(entry.bankId))
            entry.bankId.clear();
    }
}

Duplicates::Duplicates(const std::vector<Transaction> &present)
{
    for (const Transaction &transaction : present) {
        const QString id = idKey(transaction);
        if (!id.isEmpty())
            m_ids.emplace(id, transaction.occurredOn());
        ++(id.isEmpty() ? m_withoutId : m_withId)[contentKey(transaction)];
    }
}

bool Duplicates::take(const Transaction &transaction)
{
    const QString id = idKey(transaction);
    const QString content = contentKey(transaction);
    return id.isEmpty() ? takeOne(m_withoutId, content) || takeOne(m_withId, content)
                        : takeId(id, transaction.occurredOn()) || takeOne(m_withoutId, content);
}

bool Duplicates::takeId(const QString &id, const QDate &day)
{
    const auto [first, last] = m_ids.equal_range(id);
    const bool isThere = std::any_of(first, last, [&day](const auto &entry) {
        return std::abs(entry.second.daysTo(day)) <= sameIdDaysMax;
    });
    if (!isThere)
        m_ids.emplace(id, day);
    return isThere;
}

} // namespace kiv::interchange
