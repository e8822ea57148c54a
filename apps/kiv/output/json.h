// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/json/json.h"
#include "workbench/json/json_text.h"

/// The JSON of the workbench, beside that of commands.
namespace kiv::app {

using workbench::accountJson;
using workbench::JsonText;
using workbench::Rows;
using workbench::toJson;
using workbench::withPaths;

} // namespace kiv::app
