// SPDX-License-Identifier: GPL-3.0-or-later
#include "actions/action_collection.h"

#include <QtWidgets/QWidget>

#include <map>

namespace kiv::desktop {
namespace {

constexpr const char *reasonProperty = "kivReason";

} // namespace

ActionCollection::ActionCollection(QWidget *window) : QObject(window), m_window(window) {}

QString ActionCollection::groupName(Group group)
{
    switch (group) {
    case Group::File:
        return tr("&File");
    case Group::Edit:
        return tr("&Edit");
    case Group::Go:
        return tr("&Go");
    case Group::Transaction:
        return tr("&Transaction");
    case Group::View:
        return tr("&View");
    case Group::Help:
        return tr("&Help");
    }
    return {};
}

QAction *ActionCollection::add(const QString &id, Group group, const QString &text,
                               const QKeySequence &keys, const std::function<void()> &run)
{
    auto *action = new QAction(text, this);
    action->setObjectName(id);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [run] { run(); });
    m_window->addAction(action);
    m_entries.push_back({group, action});
    return action;
}

QAction *ActionCollection::action(const QString &id) const
{
    for (const Entry &entry : m_entries) {
        if (entry.action->objectName() == id)
            return entry.action;
    }
    throw std::logic_error("There is no such action.");
}

QList<QAction *> ActionCollection::actions(Group group) const
{
    QList<QAction *> actions;
    for (const Entry &entry : m_entries) {
        if (entry.group == group)
            actions += entry.action;
    }
    return actions;
}

QList<QAction *> ActionCollection::all() const
{
    QList<QAction *> actions;
    for (const Entry &entry : m_entries)
        actions += entry.action;
    return actions;
}

void ActionCollection::allow(QAction *action, bool isAllowed, const QString &reason)
{
    action->setEnabled(isAllowed);
    action->setProperty(reasonProperty, isAllowed ? QString() : reason);
    action->setToolTip(isAllowed ? action->iconText() : reason);
    action->setStatusTip(isAllowed ? QString() : reason);
}

QString ActionCollection::reason(const QAction *action)
{
    return action->property(reasonProperty).toString();
}

QStringList ActionCollection::conflicts() const
{
    std::map<QString, int> uses;
    for (const Entry &entry : m_entries) {
        for (const QKeySequence &keys : entry.action->shortcuts())
            ++uses[keys.toString()];
    }
    QStringList conflicts;
    for (const auto &[keys, count] : uses) {
        if (count > 1)
            conflicts += keys;
    }
    return conflicts;
}

} // namespace kiv::desktop
