// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/welcome_page.h"

#include "pages/desk.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

QPushButton *buttonFor(QAction *action, QWidget *parent)
{
    // Without the letter of the menu: it might be that of a menu here.
    auto *button = new QPushButton(action->iconText(), parent);
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    return button;
}

} // namespace

WelcomePage::WelcomePage(Desk &desk)
    : m_desk(desk),
      m_wizard(buttonFor(desk.actions().action(QStringLiteral("wizard")), this)),
      m_new(buttonFor(desk.actions().action(QStringLiteral("new")), this)),
      m_open(buttonFor(desk.actions().action(QStringLiteral("open")), this)),
      m_recent(new QVBoxLayout)
{
    setObjectName(QStringLiteral("welcome"));
    auto *layout = new QVBoxLayout(this);
    auto *text = new QLabel(
        tr("kiv keeps your household's money: what you have, what is due, and what is left to "
           "spend. A budget is one file on your computer; nothing of it is sent anywhere."),
        this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    layout->addStretch();
    layout->addWidget(text);
    auto *demonstration = buttonFor(desk.actions().action(QStringLiteral("demonstration")), this);
    for (QPushButton *button : {m_wizard, m_new, m_open, demonstration})
        layout->addWidget(button, 0, Qt::AlignLeft);
    layout->addLayout(m_recent);
    layout->addStretch(2);
}

void WelcomePage::refresh()
{
    while (QLayoutItem *item = m_recent->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const QStringList files = m_desk.settings().recentFiles();
    if (!files.isEmpty())
        m_recent->addWidget(new QLabel(tr("Opened before:"), this));
    for (const QString &file : files) {
        auto *button = new QPushButton(
            QFileInfo(file).completeBaseName().replace(u'&', QStringLiteral("&&")), this);
        button->setToolTip(file);
        button->setAccessibleDescription(file);
        connect(
            button, &QPushButton::clicked, this, [this, file] { emit fileWanted(file); },
            Qt::QueuedConnection); // the list is made anew meanwhile
        m_recent->addWidget(button, 0, Qt::AlignLeft);
    }
}

QWidget *WelcomePage::firstFocus() const
{
    return m_recent->count() > 1 ? m_recent->itemAt(1)->widget() : m_wizard;
}

} // namespace kiv::desktop
