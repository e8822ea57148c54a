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

/// One line of the command palette.
struct PaletteEntry {
    QString text;
    QString detail;                 ///< its kind, or its keys
    QString reason = {};            ///< why it cannot be chosen; empty if it can
    std::function<void()> run = {}; ///< none for an answer, such as a sum
};

/// A field in which all that the window can do, and all that it can show, is found by
/// typing a part of its name.
class CommandPalette final : public QFrame {
    Q_OBJECT

public:
    /// Gives entries for what was typed. Those whose text does not contain all typed words
    /// are left out, unless they have no `run`.
    using Source = std::function<std::vector<PaletteEntry>(const QString &typed)>;

    explicit CommandPalette(QWidget *window);

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
