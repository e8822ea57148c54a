// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QObject>

namespace kiv::workbench {

/// Tells front ends about the document.
class KIV_WORKBENCH_EXPORT DocumentNews : public QObject {
    Q_OBJECT
public:
    DocumentNews();
    ~DocumentNews() override;

signals:
    /// The budget in memory is another one: after a deed, undo, redo, opening or creating.
    void changed();
    /// Document::kept() or Document::whyNotSaved() says something else.
    void keepingChanged();
};

} // namespace kiv::workbench
