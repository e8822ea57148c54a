// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/error.h"

#include <stdexcept>
#include <typeinfo>

namespace kiv::foundation {
namespace {

/// The exception that is being handled, if that is `cause` itself.
std::exception_ptr handledNow(const std::exception &cause)
{
    std::exception_ptr handled = std::current_exception();
    if (!handled)
        return nullptr;
    try {
        std::rethrow_exception(handled);
    } catch (const std::exception &current) {
        return &current == &cause ? handled : nullptr;
    } catch (...) {
        return nullptr;
    }
}

std::exception_ptr kept(const std::exception &cause)
{
    if (typeid(cause) == typeid(std::exception))
        return nullptr;
    if (std::exception_ptr whole = handledNow(cause))
        return whole;
    return std::make_exception_ptr(std::runtime_error(cause.what()));
}

} // namespace

Error::Error(const QString &message) : m_message(message), m_what(message.toUtf8()) {}

Error::Error(const QString &message, const std::exception &cause)
    : m_message(message), m_what(message.toUtf8()), m_cause(kept(cause))
{
    if (m_cause && *cause.what() != '\0')
        m_what.append(" Caused by: ").append(cause.what());
}

Error::Error(const Error &) noexcept = default;
Error &Error::operator=(const Error &) noexcept = default;
Error::~Error() = default;

} // namespace kiv::foundation
