// SPDX-License-Identifier: GPL-3.0-or-later
// Encrypting the file of a document.
#include "workbench/document/document.h"

#include "workbench/internal/faults.h"
#include "workbench/internal/recalling_storage.h"

#include <stdexcept>

namespace kiv::workbench {

bool Document::isEncrypted() const
{
    return m_storage && m_storage->isEncrypted();
}

void Document::encryptNext(const storage::Passphrase &passphrase)
{
    (void)navigator();
    m_storage->fileItself().encryptNext(passphrase);
}

storage::BudgetFile &Document::fileToRewrite()
{
    if (m_file.isEmpty())
        throw std::logic_error("Only a file is encrypted, and none is open.");
    refuseReadOnly();
    if (writer())
        writeNow();
    refuseUnsaved();
    return m_storage->fileItself();
}

QStringList Document::encrypt(const storage::Passphrase &passphrase)
{
    QStringList left = fileToRewrite().encrypt(passphrase);
    emit m_news.keepingChanged();
    return left;
}

QStringList Document::decrypt()
{
    storage::BudgetFile &file = fileToRewrite();
    if (!file.isEncrypted())
        throw internal::notEncrypted(m_file);
    QStringList left = file.decrypt();
    emit m_news.keepingChanged();
    return left;
}

} // namespace kiv::workbench
