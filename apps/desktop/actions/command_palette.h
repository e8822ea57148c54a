// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QFrame>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QListWidget;
QT_END_NAMESPACE

namespace kiv::desktop {

/// One line of a palette.
struct PaletteEntry {
    QString text;
    QString detail;                 ///< its kind, or its keys
    QString reason = {};            ///< why it cannot be chosen; empty if it can
    std::function<void()> run = {}; ///< none for what is only told
};

/// A field in which lines are found by typing words of them in any order. In one of them, all
/// that the window can do and show is found; in another one, all keys.
class CommandPalette final : public QFrame {
    Q_OBJECT

public:
    /// Gives all lines that can be found.
    using Source = std::function<std::vector<PaletteEntry>()>;
    /// What it is called.
    struct Names {
        QString id;         ///< as an object
        QString invitation; ///< in the field while it is empty
        QString field;      ///< for screen readers
        QString list;       ///< for screen readers
    };

    CommandPalette(const Names &names, QWidget *window);

    /// Adds a source; earlier ones come first.
    void addSource(Source source) { m_sources.push_back(std::move(source)); }
    /// Shows it over the window.
    void open();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void list();
    void choose();
    void close();

    std::vector<Source> m_sources;
    std::vector<PaletteEntry> m_shown;
    QLineEdit *m_field;
    QListWidget *m_list;
    QPointer<QWidget> m_focusBefore;
};

} // namespace kiv::desktop
