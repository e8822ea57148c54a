// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tags_edit.h"

#include "widgets/completion_keys.h"

#include "workbench/entry/tags_text.h"

#include <QtCore/QStringListModel>
#include <QtWidgets/QCompleter>

namespace kiv::desktop {

TagsEdit::TagsEdit(QWidget *parent)
    : QLineEdit(parent),
      m_possible(new QStringListModel(this)),
      m_offers(new QCompleter(m_possible, this))
{
    m_offers->setWidget(this);
    m_offers->setFilterMode(Qt::MatchContains);
    m_offers->setCaseSensitivity(Qt::CaseInsensitive);
    auto *keys = new CompletionKeys(*m_offers, *this, CompletionKeys::OnlyMatch::Stays);
    connect(keys, &CompletionKeys::taken, this, &TagsEdit::take);
    connect(m_offers, qOverload<const QString &>(&QCompleter::activated), this, &TagsEdit::take);
    connect(this, &QLineEdit::textEdited, this, &TagsEdit::showOffers);
}

void TagsEdit::offer(const tagging::Tags &possible)
{
    QStringList names;
    for (const tagging::Tag &tag : possible)
        names += workbench::tagsText({tag});
    m_possible->setStringList(names);
}

void TagsEdit::setTags(const tagging::Tags &tags)
{
    setText(workbench::tagsText(tags));
}

tagging::Tags TagsEdit::tags() const
{
    return workbench::tagsOf(text());
}

qsizetype TagsEdit::wordStart() const
{
    qsizetype start = text().first(cursorPosition()).lastIndexOf(u',') + 1;
    while (start < cursorPosition() && text().at(start).isSpace())
        ++start;
    return start;
}

void TagsEdit::showOffers()
{
    const QString word = text().first(cursorPosition()).sliced(wordStart());
    m_offers->setCompletionPrefix(word);
    if (word.isEmpty() || m_offers->completionCount() == 0)
        m_offers->popup()->hide();
    else
        m_offers->complete();
}

void TagsEdit::take(const QString &tag)
{
    const qsizetype start = wordStart();
    qsizetype end = text().indexOf(u',', start);
    if (end < 0)
        end = text().size();
    setText(text().first(start) + tag + text().sliced(end));
    setCursorPosition(static_cast<int>(start + tag.size()));
}

} // namespace kiv::desktop
