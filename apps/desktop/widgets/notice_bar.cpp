// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notice_bar.h"

#include "widgets/colours.h"
#include "widgets/spoken_label.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace kiv::desktop {

NoticeBar::NoticeBar(QWidget *parent) : QFrame(parent), m_rows(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("notices"));
    m_rows->setContentsMargins({});
    hide();
}

QWidget *NoticeBar::rowOf(const QString &id) const
{
    return findChild<QWidget *>(id, Qt::FindDirectChildrenOnly);
}

void NoticeBar::add(const Notice &notice)
{
    remove(notice.id);
    auto *row = new QFrame(this);
    row->setObjectName(notice.id);
    row->setFrameShape(QFrame::StyledPanel);
    row->setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour(Colour::NoticeBack, colours));
    row->setPalette(colours);
    auto *layout = new QHBoxLayout(row);
    auto *text = new SpokenLabel(row);
    text->setObjectName(QStringLiteral("text"));
    text->setWordWrap(true);
    layout->addWidget(text, 1);
    for (const Notice::Choice &choice : notice.choices) {
        auto *button = new QPushButton(choice.text, row);
        connect(button, &QPushButton::clicked, this, [run = choice.run] { run(); });
        layout->addWidget(button);
    }
    if (notice.isClosable) {
        auto *close = new QPushButton(tr("Close"), row);
        connect(close, &QPushButton::clicked, this, [this, id = notice.id] { remove(id); });
        layout->addWidget(close);
    }
    m_rows->addWidget(row);
    show();
    text->speak(notice.text);
}

void NoticeBar::remove(const QString &id)
{
    if (QWidget *row = rowOf(id)) {
        // A button of the row may have asked for this.
        row->setObjectName({});
        row->hide();
        m_rows->removeWidget(row);
        row->deleteLater();
    }
    setVisible(m_rows->count() > 0);
}

QStringList NoticeBar::texts() const
{
    QStringList texts;
    for (int place = 0; place < m_rows->count(); ++place)
        texts +=
            m_rows->itemAt(place)->widget()->findChild<QLabel *>(QStringLiteral("text"))->text();
    return texts;
}

} // namespace kiv::desktop
