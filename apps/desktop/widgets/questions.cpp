// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/questions.h"

#include <QtPrintSupport/QPrintDialog>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

QString filter()
{
    return QObject::tr("Budgets (*.budget)");
}

} // namespace

Questions::~Questions() = default;

QString DialogQuestions::fileToOpen(QWidget *parent)
{
    return QFileDialog::getOpenFileName(parent, QObject::tr("Open a budget"), {}, filter());
}

QString DialogQuestions::fileToMake(QWidget *parent, const QString &heading)
{
    QFileDialog dialog(parent, heading, {}, filter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("budget"));
    // An existing file is refused with a sentence of its own.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString DialogQuestions::fileToExport(QWidget *parent, const QString &suffix)
{
    QFileDialog dialog(parent, QObject::tr("Export"), {},
                       QObject::tr("%1 files (*.%2)").arg(suffix.toUpper(), suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString DialogQuestions::fileToImport(QWidget *parent)
{
    return QFileDialog::getOpenFileName(parent, QObject::tr("Import a bank file"));
}

std::optional<qsizetype> DialogQuestions::choose(QWidget *parent, const QString &question,
                                                 const QStringList &answers)
{
    QMessageBox box(QMessageBox::Question, QObject::tr("Question"), question, QMessageBox::NoButton,
                    parent);
    box.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton *> buttons;
    for (const QString &answer : answers)
        buttons.push_back(box.addButton(answer, QMessageBox::AcceptRole));
    box.setDefaultButton(qobject_cast<QPushButton *>(buttons.front()));
    box.addButton(QMessageBox::Cancel);
    box.exec();
    const auto found = std::ranges::find(buttons, box.clickedButton());
    return found == buttons.end() ? std::nullopt : std::optional(found - buttons.begin());
}

std::optional<Questions::Typed> DialogQuestions::passphrase(QWidget *parent,
                                                            const QString &question)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(QObject::tr("Passphrase"));
    auto *layout = new QVBoxLayout(&dialog);
    auto *asked = new QLabel(question, &dialog);
    asked->setTextFormat(Qt::PlainText);
    asked->setWordWrap(true);
    layout->addWidget(asked);
    auto *field = new QLineEdit(&dialog);
    field->setEchoMode(QLineEdit::Password);
    field->setAccessibleName(QObject::tr("Passphrase"));
    field->setAccessibleDescription(question);
    layout->addWidget(field);
    auto *keep = new QCheckBox(QObject::tr("&Keep it in the desktop’s keyring"), &dialog);
    layout->addWidget(keep);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    field->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return Typed{field->text(), keep->isChecked()};
}

bool DialogQuestions::printer(QWidget *parent, QPrinter &printer)
{
    QPrintDialog dialog(&printer, parent);
    return dialog.exec() == QDialog::Accepted;
}

void DialogQuestions::show(QWidget *parent, const QString &heading, const QString &text)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(heading);
    auto *layout = new QVBoxLayout(&dialog);
    auto *shown = new QPlainTextEdit(text, &dialog);
    shown->setReadOnly(true);
    shown->setTabChangesFocus(true);
    shown->setAccessibleName(heading);
    layout->addWidget(shown);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.resize(dialog.fontMetrics().averageCharWidth() * 80,
                  dialog.fontMetrics().lineSpacing() * 24);
    dialog.exec();
}

} // namespace kiv::desktop
