// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/questions.h"

#include <QtGui/QScreen>
#include <QtPrintSupport/QPrintDialog>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

QString filter()
{
    return QObject::tr("Budgets (*.budget)");
}

void addText(QDialog &dialog, const QString &text)
{
    auto *label = new QLabel(text, &dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    dialog.layout()->addWidget(label);
}

void addButtons(QDialog &dialog, QDialogButtonBox::StandardButtons which)
{
    auto *buttons = new QDialogButtonBox(which, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    dialog.layout()->addWidget(buttons);
}

/// Gives a dialog this size, or as much of it as the screen has.
void fit(QDialog &dialog, QSize wanted)
{
    dialog.resize(wanted.boundedTo(dialog.screen()->availableSize() * 0.9));
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
    QDialog dialog(parent);
    dialog.setWindowTitle(QObject::tr("Question"));
    new QVBoxLayout(&dialog);
    addText(dialog, question);
    // One below the other, and scrolled: many or long ones would not fit beside each other.
    auto *list = new QWidget;
    auto *rows = new QVBoxLayout(list);
    std::optional<qsizetype> chosen;
    for (qsizetype place = 0; place < answers.size(); ++place) {
        QString text = answers[place];
        auto *button = new QPushButton(text.replace(u'&', QStringLiteral("&&")), list);
        rows->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &chosen, place] {
            chosen = place;
            dialog.accept();
        });
    }
    auto *scroll = new QScrollArea(&dialog);
    scroll->setWidget(list);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    dialog.layout()->addWidget(scroll);
    addButtons(dialog, QDialogButtonBox::Cancel);
    rows->itemAt(0)->widget()->setFocus();
    fit(dialog, dialog.sizeHint());
    dialog.exec();
    return chosen;
}

std::optional<Questions::Typed> DialogQuestions::passphrase(QWidget *parent,
                                                            const QString &question)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(QObject::tr("Passphrase"));
    auto *layout = new QVBoxLayout(&dialog);
    addText(dialog, question);
    auto *field = new QLineEdit(&dialog);
    field->setEchoMode(QLineEdit::Password);
    field->setAccessibleName(QObject::tr("Passphrase"));
    field->setAccessibleDescription(question);
    layout->addWidget(field);
    auto *keep = new QCheckBox(QObject::tr("&Keep it in the desktop’s keyring"), &dialog);
    layout->addWidget(keep);
    addButtons(dialog, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    field->setFocus();
    fit(dialog, dialog.sizeHint());
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
    addButtons(dialog, QDialogButtonBox::Close);
    fit(dialog,
        {dialog.fontMetrics().averageCharWidth() * 80, dialog.fontMetrics().lineSpacing() * 24});
    dialog.exec();
}

} // namespace kiv::desktop
