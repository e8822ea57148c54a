// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/names_edit.h"

#include "widgets/completion_keys.h"

#include "workbench/entry/tags_text.h"

#include <QtCore/QStringListModel>
#include <QtWidgets/QCompleter>

namespace kiv::desktop {

NamesEdit::NamesEdit(QWidget *parent)
    : QLineEdit(parent),
      m_possible(new QStringListModel(this)),
      m_offers(new QCompleter(m_possible, this))
{
    m_offers->setWidget(this);
    m_offers->setFilterMode(Qt::MatchContains);
    m_offers->setCaseSensitivity(Qt::CaseInsensitive);
    auto *keys = new CompletionKeys(*m_offers, *this, CompletionKeys::OnlyMatch::Stays);
    connect(keys, &CompletionKeys::taken, this, &NamesEdit::take);
    connect(m_offers, qOverload<const QString &>(&QCompleter::activated), this, &NamesEdit::take);
    connect(this, &QLineEdit::textEdited, this, &NamesEdit::showOffers);
}

void NamesEdit::offer(const QStringList &possible)
{
    QStringList texts;
    for (const QString &name : possible)
        texts += workbench::namesText({name});
    m_possible->setStringList(texts);
}

void NamesEdit::setNames(const QStringList &names)
{
    setText(workbench::namesText(names));
}

QStringList NamesEdit::names() const
{
    return workbench::namesOf(text());
}

qsizetype NamesEdit::wordStart() const
{
    qsizetype start = text().first(cursorPosition()).lastIndexOf(u',') + 1;
    while (start < cursorPosition() && text().at(start).isSpace())
        ++start;
    return start;
}

void NamesEdit::showOffers()
{
    const QString word = text().first(cursorPosition()).sliced(wordStart());
    m_offers->setCompletionPrefix(word);
    if (word.isEmpty() || m_offers->completionCount() == 0)
        m_offers->popup()->hide();
    else
        m_offers->complete();
}

void NamesEdit::take(const QString &name)
{
    const qsizetype start = wordStart();
    qsizetype end = text().indexOf(u',', start);
    if (end < 0)
        end = text().size();
    setText(text().first(start) + name + text().sliced(end));
    setCursorPosition(static_cast<int>(start + name.size()));
}

} // namespace kiv::desktop
