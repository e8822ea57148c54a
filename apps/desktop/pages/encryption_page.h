// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/page.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
QT_END_NAMESPACE

namespace kiv::desktop {

class Form;

/// Encrypts the budget's file, changes its passphrase, and takes the encryption away.
class EncryptionPage final : public Page {
    Q_OBJECT

public:
    explicit EncryptionPage(Desk &desk);

    [[nodiscard]] QWidget *firstFocus() override;

protected:
    void refresh() override;
    void forgetFile() override;

private:
    void encrypt();
    void decrypt();
    /// The passphrase that was typed twice; nothing after a refusal at its field.
    [[nodiscard]] std::optional<storage::Passphrase> typed();

    QLabel *m_state;
    QLabel *m_advice;
    Form *m_form;
    QLineEdit *m_first;
    QLineEdit *m_second;
    QCheckBox *m_isShown;
    QCheckBox *m_isToKeep;
    QPushButton *m_encrypt;
    QPushButton *m_decrypt;
};

} // namespace kiv::desktop
