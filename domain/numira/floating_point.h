// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <boost/multiprecision/cpp_dec_float.hpp>

namespace numira {

/// The type of exchange rates: a decimal floating-point number of 34 digits, as
/// in IEEE 754's decimal128, so that a rate and its inverse multiply to 1
/// within 1e-30.
using FloatingPoint = boost::multiprecision::number<boost::multiprecision::cpp_dec_float<34>,
                                                    boost::multiprecision::et_off>;

} // namespace numira
