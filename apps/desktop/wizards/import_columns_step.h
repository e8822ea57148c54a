// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/form.h"

#include "interchange/csv_guess.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
QT_END_NAMESPACE

namespace kiv::desktop {

class Table;
class TableModel;

/// The step of an import that says how a bank's table is read. What was found is shown, and
/// each change of it at once, with the first rows of the table.
class ImportColumnsStep final : public QWidget {
    Q_OBJECT

public:
    ImportColumnsStep(Desk &desk, QWidget *parent);

    /// Shows how the table would be read; `account` is the name of its account, if that is
    /// known. Throws ImportError for what is no table.
    void show(const QByteArray &bytes, const QString &file, const interchange::CsvOptions &options,
              const QString &account);
    /// Whether a table is shown.
    [[nodiscard]] bool isShowing() const { return m_guess.has_value(); }
    void forget() { m_guess.reset(); }
    /// How the table is read.
    [[nodiscard]] const interchange::CsvProfile &profile() const { return m_guess->profile; }
    /// Whether files of the account are read so from now on.
    [[nodiscard]] bool isKept() const;
    /// Says what is missing to read the table. Returns whether nothing is.
    bool isReadable();
    /// Shows a refusal of the table.
    void complain(const QString &sentence);
    [[nodiscard]] QWidget *firstFocus() const;

signals:
    void goOnWanted();
    void backWanted();

private:
    /// A box for one or several columns.
    struct ColumnField {
        QComboBox *box;
        /// What stands for none.
        QString none;
        QStringList (*shown)(const interchange::CsvProfile &);
        void (*take)(interchange::CsvProfile &, const QStringList &);
    };

    void addFields();
    void addColumn(const char *id, const QString &label, const QString &none,
                   decltype(ColumnField::shown) shown, decltype(ColumnField::take) take);
    void follow(const interchange::CsvProfile &profile);
    /// What is missing, in the words of this page.
    [[nodiscard]] QString missingText() const;
    void reshape();
    void takeColumn(const ColumnField &field);
    void takeDays();
    void showGuess();
    void showDays();
    void fillColumn(const ColumnField &field);
    void showRows();
    void goOn();

    Form *m_form;
    QLabel *m_summary;
    QComboBox *m_encoding = nullptr;
    QComboBox *m_delimiter = nullptr;
    QComboBox *m_headings = nullptr;
    QComboBox *m_days = nullptr;
    std::vector<ColumnField> m_columns;
    QCheckBox *m_keep = nullptr;
    TableModel *m_model;
    Table *m_table;
    QByteArray m_bytes;
    QString m_file;
    interchange::CsvOptions m_options;
    std::optional<interchange::CsvGuess> m_guess;
    std::vector<interchange::DayReading> m_readings; ///< that the days leave open
};

} // namespace kiv::desktop
