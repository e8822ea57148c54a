// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QAction>
#include <QtGui/QKeySequence>

#include <functional>
#include <vector>

namespace kiv::desktop {

/// The owner of all actions of the window. So the menus, the list of keys, the check for
/// conflicts and the command palette say the same.
class ActionCollection final : public QObject {
    Q_OBJECT

public:
    explicit ActionCollection(QWidget *window);

    /// Where in the menus an action stands.
    enum class Group : std::uint8_t { File, Edit, Go, Transaction, View, Help };
    /// The name of a group, as a menu has it.
    [[nodiscard]] static QString groupName(Group group);

    /// Adds an action, which can be reached from anywhere in the window.
    QAction *add(const QString &id, Group group, const QString &text, const QKeySequence &keys,
                 const std::function<void()> &run);
    /// The action of this id, which must be there.
    [[nodiscard]] QAction *action(const QString &id) const;
    /// All actions of a group, in the order in which they were added.
    [[nodiscard]] QList<QAction *> actions(Group group) const;
    /// All actions.
    [[nodiscard]] QList<QAction *> all() const;

    /// Allows an action, or says in a sentence why it cannot be chosen now.
    static void allow(QAction *action, bool isAllowed, const QString &reason);
    /// Why it cannot be chosen; empty if it can.
    [[nodiscard]] static QString reason(const QAction *action);

    /// The keys that several actions have, for a test.
    [[nodiscard]] QStringList conflicts() const;

private:
    struct Entry {
        Group group;
        QAction *action;
    };

    QWidget *m_window;
    std::vector<Entry> m_entries;
};

} // namespace kiv::desktop
