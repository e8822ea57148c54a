// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QWidget>

#include <vector>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QLayout;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

/// A short list of what is due, each line with its own buttons.
class DueLines final : public QWidget {
    Q_OBJECT

public:
    /// What a line says.
    struct Line {
        QString key;
        QString day;
        QString when;
        QString item;
        QString amount;
        QString pay; ///< what the button says, such as "Pay"

        friend bool operator==(const Line &, const Line &) = default;
    };
    explicit DueLines(QWidget *parent);

    /// Shows these lines. The focus stays at its line and button, or goes to the line that
    /// takes its place.
    void setLines(const std::vector<Line> &lines);
    /// The buttons, line by line.
    [[nodiscard]] const std::vector<QPushButton *> &buttons() const noexcept { return m_buttons; }
    /// Allows the buttons that change something, or says why not.
    void allowChanges(const std::optional<QString> &whyNot);

signals:
    void payWanted(const QString &key, QWidget *by);
    void skipWanted(const QString &key, QWidget *by);
    /// Another amount is to be paid.
    void otherWanted(const QString &key);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addLine(int row, const Line &line);
    QPushButton *addButton(QLayout &buttons, const QString &text, const Line &line);
    /// Makes buttons that stand below each other equally wide.
    void align();

    std::vector<Line> m_lines;
    QGridLayout *m_grid;
    std::vector<QPushButton *> m_buttons; ///< three of each line
};

} // namespace kiv::desktop
