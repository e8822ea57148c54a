// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"

#include "workbench/statements/import_format.h"
#include "workbench/statements/import_reading.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QLineEdit;
QT_END_NAMESPACE

namespace kiv::desktop {

/// The first step of an import: which file it is, and of which account. What the file tells
/// by itself is not asked.
class ImportFileStep final : public QWidget {
    Q_OBJECT

public:
    ImportFileStep(Desk &desk, QWidget *parent);

    /// Offers the accounts that banks keep. What is chosen stays.
    void refresh();
    /// Asks for a file unless it is given, and begins with it.
    void choose(std::optional<accounting::AccountNumber> into, const QString &given = {});
    /// Reads the file, unless something is refused or must be chosen first.
    void goOn();
    /// Reads the table so, and goes on.
    void readWith(const interchange::CsvProfile &columns);
    [[nodiscard]] QWidget *firstFocus() const;
    /// Is empty, for another file.
    void startAnew();
    /// Shows a refusal of the file that came up later.
    void complain(const QString &sentence);

    /// The name of the file.
    [[nodiscard]] QString file() const;
    /// All that it holds.
    [[nodiscard]] const QByteArray &bytes() const noexcept { return m_source.bytes; }
    /// The file as it was read last, with the account that was found or chosen.
    [[nodiscard]] const workbench::ImportSource &source() const noexcept { return m_source; }

signals:
    /// A statement was read, and its account is known.
    void statementRead(const workbench::ImportReading &reading);
    /// It should be looked at how the table is read, into this account if that is known.
    void columnsWanted(std::optional<accounting::AccountNumber> account);
    /// The file is a journal.
    void journalChosen();
    /// Something is refused, or must be chosen first. What is refused may be how the file is
    /// read.
    void asked(const QString &sentence, bool isOfFile);
    void givenUp();

private:
    void readFile();
    /// The form of the file; nothing if it must be chosen.
    [[nodiscard]] std::optional<workbench::ImportFormat> kind() const;
    void readStatement();
    void askFor(const workbench::ImportReading &reading);
    /// Whether the table can be read only after somebody has said more about it.
    [[nodiscard]] bool lacksColumns() const;
    /// Whether the user must choose one of several statements first.
    [[nodiscard]] bool asksForStatement();
    [[nodiscard]] std::optional<accounting::AccountNumber> account() const;
    /// Whether a file with another number is to be imported.
    [[nodiscard]] bool isAgreed() const;
    void forgetAnswers();
    void ask(QWidget &field, const QString &sentence);

    Desk &m_desk;
    Form *m_form;
    QLineEdit *m_file;
    QComboBox *m_kind;
    QComboBox *m_statement;
    QComboBox *m_account;
    QCheckBox *m_agreed;
    QWidget *m_asking; ///< the field that is to be looked at
    workbench::ImportSource m_source;
};

} // namespace kiv::desktop
