// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace kiv::http::internal {

/// The reasons for which an exchange fails: one function each. None holds a request's address.
[[nodiscard]] QString addressNotAllowed();
[[nodiscard]] QString redirectNotAllowed();
[[nodiscard]] QString tooManyRedirects(int redirectsMax);
[[nodiscard]] QString timedOut(qint64 milliseconds);
[[nodiscard]] QString bodyTooLarge(qint64 bytesMax);
[[nodiscard]] QString statusNotOk(int status);
[[nodiscard]] QString contentEncoded();
/// `error` is the name of a QNetworkReply::NetworkError.
[[nodiscard]] QString transferFailed(const QString &error);

} // namespace kiv::http::internal
