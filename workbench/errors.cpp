// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/errors.h"

#include "workbench/entry/similar.h"

#include <QtCore/QObject>

namespace kiv::workbench {

EntryError::~EntryError() = default;

Refusal::Refusal(const QString &message) : foundation::Error(message) {}

Refusal::Refusal(const QString &statement, Remedy remedy, const QString &subject)
    : foundation::Error(statement + u'.'),
      m_statement(statement),
      m_subject(subject),
      m_remedy(remedy)
{
}

Refusal::~Refusal() = default;

Refusal missed(const QString &statement, const QStringList &similar, Remedy remedy,
               const QString &subject)
{
    return similar.isEmpty() ? Refusal(statement, remedy, subject)
                             : Refusal(didYouMean(statement, similar));
}

QString didYouMean(const QString &statement, const QStringList &similar)
{
    QStringList quoted;
    for (const QString &name : similar)
        quoted += QObject::tr("'%1'", "a name").arg(name);
    return QObject::tr("%1; did you mean %2?").arg(statement, quoted.join(QStringLiteral(", ")));
}

EntryError notAChoice(const QString &text, const QStringList &choices)
{
    // Quotes, since a mark such as "," would be lost among the commas.
    QStringList shown;
    for (const QString &choice : choices)
        shown += choice.front().isLetter() ? choice : QObject::tr("'%1'", "a name").arg(choice);
    const QString statement =
        QObject::tr("'%1' is not one of: %2").arg(text, shown.join(QStringLiteral(", ")));
    const QStringList similar = similarTo(text, choices).mid(0, 1);
    return EntryError(similar.isEmpty() ? statement + u'.' : didYouMean(statement, similar));
}

EntryError notAnAssignment(const QString &text)
{
    return EntryError(QObject::tr("'%1' is not of the form NAME=VALUE.").arg(text));
}

EntryError notANumber(const QString &text, qint64 lowest, qint64 highest)
{
    return EntryError(QObject::tr("'%1' is not a whole number from %2 to %3.")
                          .arg(text, QString::number(lowest), QString::number(highest)));
}

} // namespace kiv::workbench
