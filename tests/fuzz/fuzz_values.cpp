// SPDX-License-Identifier: GPL-3.0-or-later
//
// Bytes as each kind of value that a user types: refused with an error for the
// user, or read; an amount and a date are written again as the same.
#include "apps/kiv/parsing/values.h"
#include "foundation/error.h"
#include "numira/library.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <sstream>

using namespace kiv;

namespace {

template <typename T>
std::optional<T> read(const std::string &text)
{
    try {
        T value{};
        app::readValue(text, value);
        return value;
    } catch (const foundation::Error &) {
    } catch (const CLI::Error &) {
    }
    return std::nullopt;
}

template <typename... T>
void readEach(const std::string &text)
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
    const std::string text(reinterpret_cast<const char *>(data), size);
    readEach<QString, app::NewName, numira::Currency, budgeting::EventFrequency,
             accounting::AccountTypes, banking::BankAccountTypes, budgeting::BudgetItemTypes,
             accounting::AccountNumber, accounting::TransactionNumber, std::chrono::days,
             std::chrono::hours, foundation::Percentage>(text);
    if (const auto amount = read<app::Amount>(text)) {
        if (numira::Decimal::fromText(amount->number.toText()) != amount->number)
            std::abort();
    }
    if (const auto date = read<QDate>(text)) {
        if (read<QDate>(date->toString(Qt::ISODate).toStdString()) != date)
            std::abort();
    }
    return 0;
}
