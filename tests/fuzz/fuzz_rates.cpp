// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as a reply with exchange rates: refused, or rates that can be used.
#include "conversion/errors.h"
#include "conversion/internal/rates_reply.h"

#include <cstdlib>

using namespace kiv;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QByteArray body(reinterpret_cast<const char *>(data), qsizetype(size));
    try {
        const auto rates = conversion::internal::readRates(
            networking::Response::succeeded(body, QStringLiteral("application/json")));
        for (const auto &[currency, rate] : rates.rates()) {
            if (!(rate > 0))
                std::abort();
        }
    } catch (const foundation::Error &) {
    }
    return 0;
}
