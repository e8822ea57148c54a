// SPDX-License-Identifier: GPL-3.0-or-later
#include "actions/command_palette.h"

#include "widgets/colours.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

/// Nobody looks through more; the others are found by typing more.
constexpr std::size_t resultsMax = 200;

bool matches(const PaletteEntry &entry, const QStringList &words)
{
    return std::ranges::all_of(words, [&entry](const QString &word) {
        return entry.text.contains(word, Qt::CaseInsensitive) ||
               entry.detail.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace

CommandPalette::CommandPalette(const Names &names, QWidget *window)
    : QFrame(window), m_field(new QLineEdit(this)), m_list(new QListWidget(this))
{
    setObjectName(names.id);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    m_field->setPlaceholderText(names.invitation);
    m_field->setAccessibleName(names.field);
    m_list->setObjectName(QStringLiteral("found"));
    m_list->setAccessibleName(names.list);
    m_list->setFocusPolicy(Qt::NoFocus);
    // Why a command is off may take more than a line.
    m_list->setWordWrap(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_field, &QLineEdit::textChanged, this, &CommandPalette::list);
    connect(m_field, &QLineEdit::returnPressed, this, &CommandPalette::choose);
    connect(m_list, &QListWidget::itemClicked, this, &CommandPalette::choose);
    m_field->installEventFilter(this);
    hide();
}

void CommandPalette::open()
{
    m_focusBefore = QApplication::focusWidget();
    const QSize window = parentWidget()->size();
    const int width = std::min(window.width() - 20, fontMetrics().averageCharWidth() * 70);
    setGeometry((window.width() - width) / 2, 30, width, std::min(window.height() - 60, 460));
    m_field->clear();
    list();
    show();
    raise();
    m_field->setFocus(Qt::ShortcutFocusReason);
}

void CommandPalette::list()
{
    const QStringList words = m_field->text().split(u' ', Qt::SkipEmptyParts);
    m_shown.clear();
    m_list->clear();
    for (const Source &source : m_sources) {
        for (PaletteEntry &entry : source()) {
            if (m_shown.size() < resultsMax && matches(entry, words))
                m_shown.push_back(std::move(entry));
        }
    }
    for (const PaletteEntry &entry : m_shown) {
        QStringList parts{entry.text, entry.detail, entry.reason};
        parts.removeAll(QString());
        auto *item = new QListWidgetItem(parts.join(QStringLiteral("  –  ")), m_list);
        // The arrow keys go to it all the same, so that a reader hears the reason.
        if (!entry.reason.isEmpty())
            item->setForeground(colour(Colour::Faint, palette()));
    }
    m_list->setCurrentRow(0);
}

void CommandPalette::choose()
{
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    const PaletteEntry entry = m_shown.at(static_cast<std::size_t>(row));
    if (!entry.reason.isEmpty() || !entry.run)
        return;
    close();
    entry.run();
}

void CommandPalette::close()
{
    hide();
    if (m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
}

bool CommandPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        hide();
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape) {
        close();
        return true;
    }
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
        key == Qt::Key_PageDown) {
        // The reader hears the list's row, while typing goes on in the field.
        QApplication::sendEvent(m_list, event);
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace kiv::desktop
