// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QDebug>

#include <concepts>
#include <sstream>
#include <type_traits>

namespace kiv::foundation {

/// A type of ours with an operator<< on std::ostream.
template <typename T>
concept Streamable = (std::is_class_v<T> || std::is_enum_v<T>)&&requires(std::ostream &out,
                                                                         const T &value)
{
    {
        out << value
        } -> std::same_as<std::ostream &>;
};

/// Writes to a debug stream what the value's std::ostream operator writes. Each value so has one
/// text form. A header that declares the std::ostream operator of a type takes this one into the
/// type's namespace, where look-up finds it: `using foundation::operator<<;`.
template <std::same_as<QDebug> Debug, Streamable T>
Debug operator<<(Debug debug, const T &value)
{
    std::ostringstream out;
    out << value;
    QDebugStateSaver saver(debug);
    debug.nospace().noquote() << QString::fromStdString(out.str());
    return debug;
}

} // namespace kiv::foundation
