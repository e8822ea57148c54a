// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/statement_words.h"
#include "interchange/written_values.h"

namespace kiv::interchange::internal {

/// A heading, and the currency that it names, as in "Betrag (EUR)" or "Bedrag in EUR".
struct CsvHeading {
    QString plain; ///< as a word; see words::plainWord()
    QString base;  ///< the same without the currency
    std::optional<numira::Currency> currency;
};

/// `preferred` is what a sign means that several currencies share.
[[nodiscard]] CsvHeading headingOf(const QString &text, const numira::Currency &preferred);

} // namespace kiv::interchange::internal
