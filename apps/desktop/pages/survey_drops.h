// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

#include "workbench/surveys/set_aside.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The accounts at which money is set aside that cannot be: closed ones, ones that no bank keeps
/// any more, and ones with less money than that. Each has a way out.
class SurveyDrops final : public QWidget {
    Q_OBJECT

public:
    SurveyDrops(Desk &desk, QWidget *parent);

    /// Looks at all accounts anew.
    void refresh();

private:
    void add(const QString &sentences, const banking::BankAccount &account);
    void drop(QWidget &asker, const banking::BankAccount &account);

    Desk &m_desk;
    QVBoxLayout *m_rows;
    FieldMessage *m_message;
};

} // namespace kiv::desktop
