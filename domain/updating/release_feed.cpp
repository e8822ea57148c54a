// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/release_feed.h"

namespace kiv::updating {

ReleaseFeed ReleaseFeed::builtIn()
{
    return {QUrl(qEnvironmentVariable("KIV_RELEASE_FEED", QStringLiteral(KIV_RELEASE_FEED))),
            SemanticVersion::fromText(QStringLiteral(KIV_VERSION))};
}

} // namespace kiv::updating
