// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as each kind of value that a user types: refused with an error for the
// user, or read; an amount and a date are written again as the same.
#include "foundation/error.h"
#include "numira/library.h"
#include "workbench/entry/values.h"

#include <cstdlib>

using namespace kiv;

namespace {

template <typename T>
std::optional<T> read(const QString &text)
{
    try {
        T value{};
        workbench::readValue(text, value);
        return value;
    } catch (const foundation::Error &) {
    }
    return std::nullopt;
}

template <typename... T>
void readEach(const QString &text)
{
    (void)(read<T>(text), ...);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isSetUp = [] {
        numira::setUpLibrary([](const auto &, const auto &) { return numira::FloatingPoint("1"); },
                             "en_US", numira::ShouldAllowFallback::Yes);
        return true;
    }();
    (void)isSetUp;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    readEach<QString, workbench::NewName, numira::Currency, budgeting::EventFrequency,
             accounting::AccountTypes, banking::BankAccountTypes, budgeting::BudgetItemTypes,
             accounting::AccountNumber, accounting::TransactionNumber, std::chrono::days,
             std::chrono::hours, foundation::Percentage>(text);
    if (const auto amount = read<workbench::Amount>(text)) {
        if (numira::Decimal::fromText(amount->number.toText()) != amount->number)
            std::abort();
    }
    if (const auto date = read<QDate>(text)) {
        if (read<QDate>(date->toString(Qt::ISODate)) != date)
            std::abort();
    }
    return 0;
}
