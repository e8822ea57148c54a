// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace kiv::desktop {

class Desk;

/// What is shown while no budget is open: how to begin one, how to open one, and those
/// that were opened last.
class WelcomePage final : public QWidget {
    Q_OBJECT

public:
    explicit WelcomePage(Desk &desk);

    /// Lists the recent files anew.
    void refresh();
    [[nodiscard]] QWidget *firstFocus() const;

signals:
    /// This recent file is to be opened.
    void fileWanted(const QString &file);

private:
    Desk &m_desk;
    QPushButton *m_wizard;
    QPushButton *m_new;
    QPushButton *m_open;
    QVBoxLayout *m_recent;
};

} // namespace kiv::desktop
