// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/encryption_page.h"

#include "pages/form.h"
#include "widgets/allow.h"

#include "workbench/document/encryption_text.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace kiv::desktop {
namespace {

QLabel *textIn(QVBoxLayout &layout)
{
    auto *label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    layout.addWidget(label);
    return label;
}

} // namespace

EncryptionPage::EncryptionPage(Desk &desk)
    : Page(desk, QStringLiteral("encryption"), tr("Encryption"))
{
    auto *layout = new QVBoxLayout(this);
    m_state = textIn(*layout);
    m_advice = textIn(*layout);
    m_form = new Form(desk, this);
    m_first = m_form->add(QStringLiteral("passphrase"), tr("&New passphrase:"), new QLineEdit);
    m_second = m_form->add(QStringLiteral("again"), tr("The same &again:"), new QLineEdit);
    m_isShown = m_form->add(QStringLiteral("shown"), tr("Typing:"),
                            new QCheckBox(tr("&Show what is typed")));
    m_isToKeep = m_form->add(QStringLiteral("keep"), tr("Afterwards:"),
                             new QCheckBox(tr("&Keep it in the desktop’s keyring")));
    m_encrypt = m_form->addButton(QStringLiteral("encrypt"), tr("Encr&ypt"), [this] { encrypt(); });
    m_decrypt = m_form->addButton(QStringLiteral("decrypt"), tr("Take the encryption a&way"),
                                  [this] { decrypt(); });
    layout->addWidget(m_form);
    layout->addStretch();
    const auto show = [this] {
        for (QLineEdit *field : {m_first, m_second})
            field->setEchoMode(m_isShown->isChecked() ? QLineEdit::Normal : QLineEdit::Password);
    };
    connect(m_isShown, &QCheckBox::toggled, this, show);
    connect(m_form, &Form::givenUp, this, &EncryptionPage::forgetFile);
    show();
}

QWidget *EncryptionPage::firstFocus()
{
    return m_first;
}

void EncryptionPage::forgetFile()
{
    m_first->clear();
    m_second->clear();
}

void EncryptionPage::refresh()
{
    const bool isEncrypted = desk().document().isEncrypted();
    m_state->setText(
        isEncrypted
            ? tr("This budget and its former versions are encrypted. Whoever finds the files reads "
                 "nothing without the passphrase.")
            : tr("This budget is not encrypted: whoever gets the file can read it. A passphrase "
                 "protects it and its former versions, in a shared folder or on a lost computer."));
    m_advice->setText(workbench::afterEncrypting(!isEncrypted).join(u' ') + u' ' +
                      tr("Exports, and what a running program has in memory, are not protected."));
    m_encrypt->setText(isEncrypted ? tr("Change the passphrase") : tr("Encr&ypt"));
    const std::optional<QString> whyNot = desk().whyNoChange();
    m_form->allow(whyNot);
    if (!whyNot)
        allow(*m_decrypt,
              isEncrypted ? std::nullopt : std::optional(tr("This budget is not encrypted.")));
}

std::optional<storage::Passphrase> EncryptionPage::typed()
{
    std::optional<storage::Passphrase> passphrase =
        m_form->read(*m_first, [this] { return storage::Passphrase(m_first->text()); });
    if (!passphrase)
        return std::nullopt;
    const bool isSame = m_form->read(*m_second, [&] {
        if (m_second->text() != m_first->text())
            throw workbench::Refusal(tr("This is not the same passphrase."));
    });
    return isSame ? passphrase : std::nullopt;
}

void EncryptionPage::encrypt()
{
    const std::optional<storage::Passphrase> passphrase = typed();
    if (!passphrase)
        return;
    QStringList sentences{workbench::weaknessOf(*passphrase)};
    workbench::Document &document = desk().document();
    const bool isDone = m_form->apply(*m_first, tr("The budget is encrypted."), [&] {
        sentences += workbench::leftVersions(document.encrypt(*passphrase));
    });
    if (!isDone)
        return;
    // What the keyring keeps must not be the old one.
    if (m_isToKeep->isChecked())
        desk().keepPassphrase(document.file(), m_first->text());
    else
        desk().forgetPassphrase(document.file());
    forgetFile();
    sentences.removeAll(QString());
    const QString notice = QStringLiteral("encryption");
    desk().notices().remove(notice);
    if (!sentences.isEmpty())
        desk().notices().add({notice, sentences.join(u' '), {}});
}

void EncryptionPage::decrypt()
{
    workbench::Document &document = desk().document();
    const bool isDone = m_form->apply(*m_first, tr("The budget is not encrypted any more."), [&] {
        const QString left = workbench::leftVersions(document.decrypt());
        if (!left.isEmpty())
            desk().notices().add({QStringLiteral("encryption"), left, {}});
    });
    if (isDone)
        desk().forgetPassphrase(document.file());
}

} // namespace kiv::desktop
