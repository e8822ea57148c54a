// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "application/passphrase_store.h"
#include "pages/desk.h"

#include "storage/storage_error.h"

namespace kiv::desktop {

/// Gets the passphrases of encrypted budgets: from the store, or by asking.
class Unlocking {
public:
    /// `window` is the parent of questions.
    Unlocking(Desk &desk, QWidget *window) : m_desk(desk), m_window(window) {}

    /// Runs `work`, and once more with each passphrase that it needs. Throws what it throws;
    /// returns whether it was done, and not given up for want of a passphrase.
    template <typename Work>
    bool withPassphrases(Work work)
    {
        while (true) {
            try {
                work();
                return true;
            } catch (const storage::StorageError &error) {
                const QString &file = error.filePathName();
                if (error.failure() != storage::StorageFailure::PassphraseNeeded ||
                    !m_desk.document().keys().isLocked(file))
                    throw;
                if (!unlock(file))
                    return false;
            }
        }
    }

private:
    /// Returns whether the file can be opened now. Throws what has nothing to do with the
    /// passphrase.
    [[nodiscard]] bool unlock(const QString &file);
    /// Whether this is its passphrase.
    [[nodiscard]] bool opens(const QString &file, const QString &passphrase);

    Desk &m_desk;
    QWidget *m_window;
};

} // namespace kiv::desktop
