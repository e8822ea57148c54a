// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/written_values.h"

#include <vector>

namespace kiv::interchange::internal {

/// The day that is written, without the time that some banks write behind it.
[[nodiscard]] std::optional<QDate> readDay(QStringView written, const DateFormat &format);

/// The forms of days that fit all texts of a column. At first these are all common ones.
class DayForms {
public:
    /// Whether the text is a day in any common form.
    [[nodiscard]] static bool isDay(QStringView written);
    /// Whether it is one, or has numbers like one: it may be damaged.
    [[nodiscard]] static bool isDayLike(QStringView written);

    DayForms();
    explicit DayForms(const DateFormat &only) : m_fitting{only} {}

    /// Leaves the forms that read the text. Where none does, all stay: false.
    bool narrow(QStringView written);
    /// Leaves this form only.
    void choose(const DateFormat &form) { m_fitting = {form}; }
    /// At least one.
    [[nodiscard]] const std::vector<DateFormat> &fitting() const noexcept { return m_fitting; }
    [[nodiscard]] bool isOpen() const noexcept { return m_fitting.size() > 1; }

private:
    std::vector<DateFormat> m_fitting;
};

} // namespace kiv::interchange::internal
