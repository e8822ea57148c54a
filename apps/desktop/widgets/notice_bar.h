// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QFrame>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

namespace kiv::desktop {

/// A sentence that stays above the page, with what can be done about it.
struct Notice {
    /// What can be done.
    struct Choice {
        QString text;
        std::function<void()> run;
    };
    QString id; ///< a notice replaces the one of the same id
    QString text;
    std::vector<Choice> choices;
    bool isClosable = true; ///< false for what stays until it is mended
};

/// The notices above the page. News never open a dialog.
class NoticeBar final : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /// Shows a notice.
    void add(const Notice &notice);
    /// Takes the notice of this id away, if it is shown.
    void remove(const QString &id);
    /// The texts of the notices that are shown.
    [[nodiscard]] QStringList texts() const;

private:
    [[nodiscard]] QWidget *rowOf(const QString &id) const;

    QVBoxLayout *m_rows;
};

} // namespace kiv::desktop
