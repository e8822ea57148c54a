// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account_number.h"

#include "foundation/streams.h"

namespace kiv::accounting {

QString presentationText(AccountNumber number)
{
    return QString::number(number.integer());
}

std::ostream &operator<<(std::ostream &out, AccountNumber number)
{
    return out << number.integer();
}

QDebug operator<<(QDebug debug, AccountNumber number)
{
    return foundation::streamed(std::move(debug), number);
}

} // namespace kiv::accounting
