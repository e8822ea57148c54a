// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/document_news.h"

namespace kiv::workbench {

DocumentNews::DocumentNews() = default;
DocumentNews::~DocumentNews() = default;

} // namespace kiv::workbench
