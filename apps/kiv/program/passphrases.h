// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/arguments.h"

#include "storage/key_ring.h"

namespace kiv::app {

/// Where passphrases come from: a file that is named, or the user at a terminal.
class Passphrases {
public:
    /// With --passphrase-file, or else the variable KIV_PASSPHRASE_FILE.
    explicit Passphrases(const Options &options);

    /// Gives `keys` the one of this file. Throws StorageError if it is wrong, and a UsageError if
    /// there is none and nobody to ask.
    void unlock(storage::KeyRing &keys, const QString &path) const;
    /// A new one for a budget that has none yet, or in place of the one that it has. It lies in
    /// `file`, or in the file from above unless that is for the old one, or is asked twice. Warns
    /// of a weak one. Throws as unlock().
    [[nodiscard]] storage::Passphrase chosen(const QString &file, bool isInPlace) const;

private:
    QString m_file;
};

} // namespace kiv::app
