// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

QT_BEGIN_NAMESPACE
class QPrinter;
class QWidget;
QT_END_NAMESPACE

namespace kiv::desktop {

/// All questions to the user that wait for an answer. No other place opens a dialog.
class Questions {
public:
    Questions() = default;
    virtual ~Questions();
    Questions(const Questions &) = delete;
    Questions &operator=(const Questions &) = delete;

    /// A budget file to open; empty if the user gave up.
    [[nodiscard]] virtual QString fileToOpen(QWidget *parent) = 0;
    /// A new budget file, under this heading; empty if the user gave up.
    [[nodiscard]] virtual QString fileToMake(QWidget *parent, const QString &heading) = 0;
    /// A file of another program to write, whose name ends so; empty if the user gave up.
    /// Asks before one is written over.
    [[nodiscard]] virtual QString fileToExport(QWidget *parent, const QString &suffix) = 0;
    /// A file of a bank or of another program to read; empty if the user gave up.
    [[nodiscard]] virtual QString fileToImport(QWidget *parent) = 0;
    /// One of the answers by its place, or nothing if the user gave up. The first answer
    /// is the usual one.
    [[nodiscard]] virtual std::optional<qsizetype> choose(QWidget *parent, const QString &question,
                                                          const QStringList &answers) = 0;
    /// A passphrase that was typed.
    struct Typed {
        QString text;
        bool isToKeep = false; ///< whether the desktop's keyring is to keep it
    };
    /// A passphrase, which nobody sees while it is typed; nothing if the user gave up.
    [[nodiscard]] virtual std::optional<Typed> passphrase(QWidget *parent,
                                                          const QString &question) = 0;
    /// The printer that the user chose, and how, set in `printer`. Returns whether one was.
    [[nodiscard]] virtual bool printer(QWidget *parent, QPrinter &printer) = 0;
    /// Shows a longer text, such as the manual, until it is closed.
    virtual void show(QWidget *parent, const QString &heading, const QString &text) = 0;
};

/// Asks with dialogs.
class DialogQuestions final : public Questions {
public:
    [[nodiscard]] QString fileToOpen(QWidget *parent) override;
    [[nodiscard]] QString fileToMake(QWidget *parent, const QString &heading) override;
    [[nodiscard]] QString fileToExport(QWidget *parent, const QString &suffix) override;
    [[nodiscard]] QString fileToImport(QWidget *parent) override;
    [[nodiscard]] std::optional<qsizetype> choose(QWidget *parent, const QString &question,
                                                  const QStringList &answers) override;
    [[nodiscard]] std::optional<Typed> passphrase(QWidget *parent,
                                                  const QString &question) override;
    [[nodiscard]] bool printer(QWidget *parent, QPrinter &printer) override;
    void show(QWidget *parent, const QString &heading, const QString &text) override;
};

} // namespace kiv::desktop
