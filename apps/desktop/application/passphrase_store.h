// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <optional>

namespace kiv::desktop {

/// Keeps passphrases of budgets where the user wants that.
class PassphraseStore {
public:
    PassphraseStore() = default;
    virtual ~PassphraseStore();
    PassphraseStore(const PassphraseStore &) = delete;
    PassphraseStore &operator=(const PassphraseStore &) = delete;

    /// The passphrase of this file; nothing if none is kept, or the store does not answer.
    [[nodiscard]] virtual std::optional<QString> kept(const QString &file) = 0;
    /// Keeps it. Throws a Refusal with the reason if that is not possible.
    virtual void keep(const QString &file, const QString &passphrase) = 0;
    /// Forgets it, if it is there.
    virtual void forget(const QString &file) = 0;
};

} // namespace kiv::desktop
