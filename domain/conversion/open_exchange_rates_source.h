// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/currency_source.h"
#include "conversion/export.h"

#include "networking/notifying_sender.h"

#include <QtCore/QUrl>

namespace kiv::conversion {

/// The public service Open Exchange Rates: its latest rates, which it gives for
/// one base currency (USD, unless its customer pays for another).
///
/// Its reply is believed whole or not at all, see internal::readRates.
class KIV_CONVERSION_EXPORT OpenExchangeRatesSource final : public CurrencySource {
    Q_OBJECT
public:
    /// Under which address the service's documents lie: the public service's,
    /// unless the environment variable KIV_RATES_SERVICE names another one (with
    /// a slash at its end).
    [[nodiscard]] static QUrl serviceAddress();

    /// `appId` is the application's key at the service; it goes into the
    /// query of the requests and nowhere else. The sender may be destroyed
    /// first when it is a QObject; every later fetch then fails.
    OpenExchangeRatesSource(networking::NotifyingSender &sender, QString appId,
                            const foundation::QtPtr<QObject> &parent,
                            QUrl service = serviceAddress());
    ~OpenExchangeRatesSource() override;

    void fetch(const std::set<numira::Currency> &wanted, QObject &user, Answer answer) override;

private:
    [[nodiscard]] QUrl latestRates(const std::set<numira::Currency> &wanted) const;

    networking::NotifyingSender &m_sender;
    bool m_isSenderGone = false;
    QString m_appId;
    QUrl m_service;
};

} // namespace kiv::conversion
