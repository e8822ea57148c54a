// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pages/desk.h"

namespace kiv::desktop {

/// What is made of the open file for others to see: exports, and a check of the file.
class FileOutputs final : public QObject {
    Q_OBJECT

public:
    /// Adds its actions to the desk's. `window` is the parent of questions.
    FileOutputs(Desk &desk, QWidget *window);

private:
    void exportBudget();
    void checkFile();

    Desk &m_desk;
    QWidget *m_window;
};

} // namespace kiv::desktop
