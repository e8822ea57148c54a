// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account_code.h"

#include "foundation/streams.h"

namespace kiv::accounting {

AccountCode::AccountCode(AccountNumber number, QString name, std::optional<AccountNumber> parent)
    : m_number(number), m_name(std::move(name)), m_parent(parent)
{
}

AccountCode::AccountCode(AccountNumber number, std::optional<AccountNumber> parent)
    : AccountCode(number, QString(), parent)
{
}

AccountCode::AccountCode(QString name, std::optional<AccountNumber> parent)
    : AccountCode(AccountNumber::invalid(), std::move(name), parent)
{
}

std::strong_ordering operator<=>(const AccountCode &a, const AccountCode &b) noexcept
{
    if (const auto byNumber = a.m_number <=> b.m_number; byNumber != 0)
        return byNumber;
    if (const auto byName = a.m_name.compare(b.m_name) <=> 0; byName != 0)
        return byName;
    return a.m_parent <=> b.m_parent;
}

QString presentationText(const AccountCode &code)
{
    if (!code.number().isValid())
        return code.name();
    if (code.name().isEmpty())
        return presentationText(code.number());
    return presentationText(code.number()) + u' ' + code.name();
}

std::ostream &operator<<(std::ostream &out, const AccountCode &code)
{
    out << foundation::escapedUtf8(presentationText(code));
    if (const auto parent = code.parent())
        out << " under " << *parent;
    return out;
}

} // namespace kiv::accounting
