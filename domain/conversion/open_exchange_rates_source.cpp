// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion/open_exchange_rates_source.h"

#include "conversion/internal/faults.h"
#include "conversion/internal/rates_reply.h"

#include "foundation/presentation.h"

#include <QtCore/QStringList>
#include <QtCore/QUrlQuery>

namespace kiv::conversion {

namespace {

FetchedRates read(const networking::Response &response)
{
    try {
        return {internal::readRates(response), {}};
    } catch (const foundation::Error &error) {
        return {std::nullopt, error.message()};
    }
}

} // namespace

QUrl OpenExchangeRatesSource::serviceAddress()
{
    return QUrl(qEnvironmentVariable("KIV_RATES_SERVICE",
                                     QStringLiteral("https://openexchangerates.org/api/")));
}

OpenExchangeRatesSource::OpenExchangeRatesSource(networking::NotifyingSender &sender, QString appId,
                                                 const foundation::QtPtr<QObject> &parent,
                                                 QUrl service)
    : CurrencySource(parent),
      m_sender(sender),
      m_appId(std::move(appId)),
      m_service(std::move(service))
{
    if (const auto *object = dynamic_cast<QObject *>(&sender))
        connect(object, &QObject::destroyed, this, [this] { m_isSenderGone = true; });
}

OpenExchangeRatesSource::~OpenExchangeRatesSource() = default;

void OpenExchangeRatesSource::fetch(const std::set<numira::Currency> &wanted, QObject &user,
                                    Answer answer)
{
    if (m_isSenderGone) {
        QMetaObject::invokeMethod(
            &user,
            [answer = std::move(answer)] {
                answer({std::nullopt, internal::senderGone()});
            },
            Qt::QueuedConnection);
        return;
    }
    m_sender.get(latestRates(wanted), user,
                 [answer = std::move(answer)](const networking::Response &response) {
                     answer(read(response));
                 });
}

QUrl OpenExchangeRatesSource::latestRates(const std::set<numira::Currency> &wanted) const
{
    QStringList codes;
    for (const auto &currency : wanted)
        codes.append(foundation::toQString(currency));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("app_id"),
                       QString::fromLatin1(QUrl::toPercentEncoding(m_appId)));
    query.addQueryItem(QStringLiteral("symbols"), codes.join(u','));
    QUrl url = m_service.resolved(QUrl(QStringLiteral("latest.json")));
    url.setQuery(query);
    return url;
}

} // namespace kiv::conversion
