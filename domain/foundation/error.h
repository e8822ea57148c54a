// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <exception>

namespace kiv::foundation {

/// The base of every error of the domain: a message for the user and,
/// optionally, the error that caused it.
///
/// what() holds the message in UTF-8 with the texts of all its causes behind
/// it: "Outer message. Caused by: inner message". An empty cause (a plain
/// std::exception, which says nothing) adds nothing.
class KIV_FOUNDATION_EXPORT Error : public std::exception {
public:
    /// An error that no other caused.
    explicit Error(const QString &message);
    /// When `cause` is the exception that is being handled, it is kept whole
    /// with its type; otherwise its text is kept.
    Error(const QString &message, const std::exception &cause);
    Error(const Error &) noexcept;
    Error &operator=(const Error &) noexcept;
    ~Error() override;

    /// The text for the user.
    [[nodiscard]] const QString &message() const noexcept { return m_message; }
    /// The technical text: the message and its causes, in UTF-8.
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }
    /// The error that caused this one, or null.
    [[nodiscard]] const std::exception_ptr &cause() const noexcept { return m_cause; }

private:
    QString m_message;
    QByteArray m_what;
    std::exception_ptr m_cause;
};

} // namespace kiv::foundation
