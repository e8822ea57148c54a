// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/register_model.h"

#include <QtWidgets/QTableView>

namespace kiv::desktop {

/// Gives rows and columns of a register the sizes that usual texts need; `amount` is a long
/// one. What is usual decides, since to ask all rows would take seconds.
void sizeColumns(QTableView &table, const RegisterModel &rows, const QString &amount);

/// Gives the column of payee and reason what the others leave. Where that is too little, the
/// table scrolls.
void followWidth(QTableView &table, const RegisterModel &rows);

} // namespace kiv::desktop
