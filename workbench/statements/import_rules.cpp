// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_rules.h"

#include "workbench/entry/folded.h"
#include "workbench/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::workbench {

namespace {

QRegularExpression patternOf(const ImportRule &rule)
{
    return QRegularExpression(rule.text, QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::UseUnicodePropertiesOption);
}

/// The same, but it gives up after so many steps: (a+)+$ would take minutes for a file.
QRegularExpression boundedPatternOf(const ImportRule &rule)
{
    QRegularExpression pattern = patternOf(rule);
    pattern.setPattern(QStringLiteral("(*LIMIT_MATCH=20000)") + rule.text);
    return pattern;
}

bool isWithin(const ImportRule &rule, const numira::Decimal &amount)
{
    return !(rule.least && amount < *rule.least) && !(rule.most && *rule.most < amount);
}

} // namespace

void requireSound(const ImportRule &rule)
{
    if (rule.text.trimmed().isEmpty())
        throw internal::emptyRule();
    if (const QRegularExpression pattern = patternOf(rule); rule.isPattern && !pattern.isValid())
        throw internal::brokenPattern(rule.text, pattern.errorString());
    const numira::Decimal none;
    if ((rule.least && *rule.least < none) || (rule.most && *rule.most < none) ||
        (rule.least && rule.most && *rule.most < *rule.least))
        throw internal::emptyRuleSpan();
}

ImportRule ruleOf(const TypedRule &typed, const AccountIndex &accounts)
{
    ImportRule rule{typed.text.trimmed(), typed.isPattern, {}, {}, typed.of, typed.target};
    const accounting::Account *counted = accounts.find(typed.of.value_or(typed.target));
    const auto bound = [counted](const std::optional<Amount> &amount) {
        return amount && counted ? std::optional(amount->in(counted->balance().code()).amount())
                                 : std::nullopt;
    };
    rule.least = bound(typed.least);
    rule.most = bound(typed.most);
    requireSound(rule);
    return rule;
}

QString ruleText(const interchange::StatementEntry &entry)
{
    return entry.payee.isEmpty() || entry.text.isEmpty() ? entry.payee + entry.text
                                                         : entry.payee + u' ' + entry.text;
}

RuleBook::RuleBook(std::vector<ImportRule> rules) : m_rules(std::move(rules))
{
    for (const ImportRule &rule : m_rules) {
        m_parts.push_back(rule.isPattern ? QString() : folded(rule.text.simplified()));
        m_patterns.push_back(rule.isPattern ? boundedPatternOf(rule) : QRegularExpression());
    }
}

std::optional<std::size_t> RuleBook::first(const interchange::StatementEntry &entry,
                                           accounting::AccountNumber account) const
{
    if (m_rules.empty())
        return std::nullopt;
    const QString text = ruleText(entry);
    const QString plain = folded(text.simplified());
    const numira::Decimal amount = entry.amount.abs().amount();
    for (std::size_t at = 0; at < m_rules.size(); ++at) {
        const ImportRule &rule = m_rules[at];
        if (rule.of.value_or(account) != account || !isWithin(rule, amount))
            continue;
        if (rule.isPattern ? m_patterns[at].match(text).hasMatch() : plain.contains(m_parts[at]))
            return at;
    }
    return std::nullopt;
}

QString trialText(const RuleBook &rules, std::optional<std::size_t> place,
                  const AccountIndex &accounts)
{
    if (!place)
        return QObject::tr("No rule fits.");
    const ImportRule &rule = rules.rules()[*place];
    return QObject::tr("Rule %1, “%2”, says that it is for %3.")
        .arg(QString::number(*place + 1), rule.text, accounts.plainName(rule.target));
}

} // namespace kiv::workbench
