// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "application/passphrase_store.h"

namespace kiv::desktop {

/// The keyring of the user's desktop.
class DesktopKeyring final : public PassphraseStore {
public:
    [[nodiscard]] std::optional<QString> kept(const QString &file) override;
    void keep(const QString &file, const QString &passphrase) override;
    void forget(const QString &file) override;
};

} // namespace kiv::desktop
