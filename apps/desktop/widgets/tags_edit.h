// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tagging/tags.h"

#include <QtWidgets/QLineEdit>

QT_BEGIN_NAMESPACE
class QCompleter;
class QStringListModel;
QT_END_NAMESPACE

namespace kiv::desktop {

/// A field for tags, with commas between them. The possible ones that contain the word that
/// is being typed are offered.
class TagsEdit final : public QLineEdit {
    Q_OBJECT

public:
    explicit TagsEdit(QWidget *parent = nullptr);

    /// Offers these tags.
    void offer(const tagging::Tags &possible);
    void setTags(const tagging::Tags &tags);
    /// What is typed.
    [[nodiscard]] tagging::Tags tags() const;

private:
    /// Where the word at the cursor begins.
    [[nodiscard]] qsizetype wordStart() const;
    void showOffers();
    void take(const QString &tag);

    QStringListModel *m_possible;
    QCompleter *m_offers;
};

} // namespace kiv::desktop
