// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/passphrase_store.h"

namespace kiv::desktop {

PassphraseStore::~PassphraseStore() = default;

} // namespace kiv::desktop
