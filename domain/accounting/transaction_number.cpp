// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/transaction_number.h"

#include "foundation/streams.h"

namespace kiv::accounting {

QString presentationText(TransactionNumber number)
{
    return QString::number(number.integer());
}

std::ostream &operator<<(std::ostream &out, TransactionNumber number)
{
    return out << number.integer();
}

QDebug operator<<(QDebug debug, TransactionNumber number)
{
    return foundation::streamed(std::move(debug), number);
}

} // namespace kiv::accounting
