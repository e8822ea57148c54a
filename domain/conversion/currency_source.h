// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/conversion_map.h"
#include "conversion/export.h"

#include "foundation/qt_ptr.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <set>

namespace kiv::conversion {

/// What a source answers: a table, or the reason for which there is none
/// (a sentence for the user, who finds it in the log, without any secret of the source).
struct FetchedRates {
    /// The rates that arrived; nothing after a failure.
    std::optional<ConversionMap> table;
    /// Why there are none; empty after a success.
    QString failure;
};

/// Where exchange rates come from.
class KIV_CONVERSION_EXPORT CurrencySource : public QObject {
    Q_OBJECT
public:
    /// Gets what was fetched, once for each fetch.
    using Answer = std::function<void(const FetchedRates &)>;

    /// A source that `parent`, if any, destroys.
    explicit CurrencySource(const foundation::QtPtr<QObject> &parent);
    ~CurrencySource() override;

    /// Fetches the rates of these currencies for `user`. `answer` is called
    /// once, later and never from within this call; not any more once `user`
    /// is destroyed. The table may hold more or fewer rates than were wanted.
    virtual void fetch(const std::set<numira::Currency> &wanted, QObject &user, Answer answer) = 0;
};

} // namespace kiv::conversion
