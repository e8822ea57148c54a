// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QLineEdit>

QT_BEGIN_NAMESPACE
class QCompleter;
class QStringListModel;
QT_END_NAMESPACE

namespace kiv::desktop {

/// A field for names, such as tags, with commas between them. The possible ones that contain the
/// word that is being typed are offered.
class NamesEdit final : public QLineEdit {
    Q_OBJECT

public:
    explicit NamesEdit(QWidget *parent = nullptr);

    /// Offers these names.
    void offer(const QStringList &possible);
    void setNames(const QStringList &names);
    /// What is typed.
    [[nodiscard]] QStringList names() const;

private:
    /// Where the word at the cursor begins.
    [[nodiscard]] qsizetype wordStart() const;
    void showOffers();
    void take(const QString &name);

    QStringListModel *m_possible;
    QCompleter *m_offers;
};

} // namespace kiv::desktop
