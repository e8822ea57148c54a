// SPDX-License-Identifier: GPL-3.0-or-later
// Uses the general ledger without the rest.
#include "accounting/account_number_generator.h"
#include "accounting/errors.h"
#include "accounting/general_ledger.h"

#include <iostream>

int main()
{
    using namespace kiv::accounting;
    const numira::Money balance(numira::toCurrency("USD"), 2500, 50);
    GeneralLedger ledger;
    SequentialAccountNumberGenerator generator;
    const AccountCode code(AccountNumber(1200), QStringLiteral("Checking"), std::nullopt);
    ledger.add(Account(AccountTypes::Asset, code, balance, false), generator);
    try {
        ledger.close(code.number());
        return 1;
    } catch (const AccountError &error) {
        std::cout << error.code() << ": " << ledger.ledger(code).balance() << '\n';
    }
}
